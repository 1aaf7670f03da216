// Day lines of the analytic engine, point by point from their conics, and the solstices on the horizon.
#include <array>

#include "analytic/corsa.h"
#include "core/conteggio.h"
#include "gnomonica/angoli_parete.h"
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"

namespace ombrelia::analytic {

namespace {

// The side of the equinoctial on which a point lies tells the declination of the two that one conic holds: the centre
// of a wall that looks to the equator lies on the winter's side, of one that looks away on the summer's.
class Lato {
public:
    Lato(const Corsa &c, double delta) : delta_(std::fabs(delta)), ss_(c.stilo().ss), cs_(c.stilo().cs), y0_(c.v.y0) {}
    // The claim of a point of the dial's frame, y upward: recorded while it lives.
    [[nodiscard]] Pretendi operator()(Tavolo &t, Valore x, Valore y) const {
        if (delta_ == 0) return Pretendi(t, Specie::Equinoziale);
        return {t, Specie::Diurna, y * cs_ - x * ss_ + y0_ > 0 ? -delta_ : delta_};
    }

private:
    double delta_;
    Valore ss_, cs_, y0_;
};

// A day line in a sweep of abscissas; its ordinates keep their values where they fault.
struct Diurna {
    OrdinateConica ordinate;
    Colore colore;
    Lato lato;
    Reale meno, piu;

    Diurna(const Corsa &c, Valore m, double delta, Colore colore_)
        : ordinate(conica(c, m), c.stilo(), c.v.y0), colore(colore_), lato(c, delta) {}
    void punto(Tavolo &t, double x) {
        const Radici y = ordinate(x);
        if (!y.reali) return;
        meno = y.meno;
        piu = y.piu;
        for (const Reale y : {meno, piu}) {
            const Pretendi pretendi = lato(t, x, y);
            t.TracciaPunto(x, y, colore, SENZA_STRATO);
        }
    }

private:
    static Conica conica(const Corsa &c, Valore m) {
        Conica k;
        k.calcola(m, c.stilo(), c.v.gn);
        return k;
    }
};

// The same at the equator, where another equation is used: symmetric about the horizontal through the foot, abscissa
// turned round.
struct DiurnaEquatore {
    Valore m;
    Colore colore;
    Lato lato;
    Reale y;

    DiurnaEquatore(const Corsa &c, Valore m_, double delta, Colore colore_) : m(m_), colore(colore_), lato(c, delta) {}
    void punti(Tavolo &t, double x) const {
        const Pretendi pretendi = lato(t, -x, y);
        t.TracciaPunto(-x, y, colore, SENZA_STRATO);
        t.TracciaPunto(-x, -y, colore, SENZA_STRATO);
    }
};

class Equatore {
public:
    explicit Equatore(const Piano &p)
        : sd_(p.sg), cd_(p.cg), gc_(p.gn * cd_), gs_(p.gn * sd_), gst_(gs_ * p.tg), gsec_(p.gn / cd_) {}
    // Whether the line has a point at x. The test and the ordinate are written in two ways, which agree but for rounding.
    [[nodiscard]] bool esiste(DiurnaEquatore &l, double x) const {
        const Valore xs = x * sd_, b = x * cd_ - gs_;
        const Valore a = xs + gc_, a2 = xs - gst_ + gsec_;
        if (!(l.m * (a * a) - b * b >= 0)) return false;
        l.y = Sqr(l.m * (a2 * a2) - b * b);
        return true;
    }
    static Conteggio ascisse() { return {-1, 1, 0.0005}; }

private:
    Valore sd_, cd_, gc_, gs_, gst_, gsec_;
};

bool paralleloAlPolo(const Variabili &v) { return v.dec == 0 || Abs(v.dec) == 180; }

}  // namespace

// Where the equinoctial lies, in the unit of gn, which the conics' frame begins at.
void LasciaDiurne(Corsa &c) { c.s.v.y0 = DistanzaEquinoziale(c.v.gn, c.stilo()); }

// One conic holds a declination and its opposite.
void LineaScelta(const Corsa &c, LineeAttese &linee) {
    const double delta = c.v.deltaOpz.numero();
    for (const double d : {delta, -delta}) linee.push_back({d, d, "", BLU});
}
void TracciaLineaDiurnaScelta(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    Tavolo &tavolo = c.s.tavolo;
    const LineaAttesa &l = linee[0];
    Reale m;  // stays 0 on the equinox, whose cotangent faults
    m = QuadratoCotangente(l.parametro);
    if (v.lat != 0) {
        Diurna linea(c, m, l.parametro, l.colore);
        for (const double x : Conteggio(-1, 1, v.passo)) linea.punto(tavolo, x);
    } else if (!paralleloAlPolo(v)) {
        const Equatore equatore(c.piano());
        DiurnaEquatore linea(c, m, l.parametro, l.colore);
        for (const double x : Equatore::ascisse())
            if (equatore.esiste(linea, x)) linea.punti(tavolo, x);
    }
}

namespace {

// A declination and its opposite, which are one conic; at the equator their points have a colour of their own.
struct CoppiaDiurna {
    double delta, daConica;
    Colore colore, alEquatore;
};
constexpr CoppiaDiurna COPPIE[] = {
    {OBLIQUITA, OBLIQUITA_2345, BIANCO, VERDE_SCURO},  // not the 23.445 of the horizon: meant
    {DELTA_SEGNI, DELTA_SEGNI, GIALLO, ACQUA},
    {DELTA_SEGNI_VICINI, DELTA_SEGNI_VICINI, MAGENTA, ROSSO_SCURO},
};

}  // namespace

void LineeDiurne(const Corsa &, LineeAttese &linee) {
    for (const CoppiaDiurna &p : COPPIE)
        for (const double d : {p.delta, -p.delta}) linee.push_back({d, d, "", p.colore});
}
void TracciaLineeDiurneAnalitiche(Corsa &c, const LineeAttese &linee) {
    const Variabili &v = c.v;
    Tavolo &tavolo = c.s.tavolo;
    if (v.lat != 0) {
        const auto diurna = [&](std::size_t n) {
            const LineaAttesa &l = linee[2 * n];
            return Diurna(c, QuadratoCotangente(COPPIE[n].daConica), l.parametro, l.colore);
        };
        std::array tre{diurna(0), diurna(1), diurna(2)};
        for (const double x : Conteggio(-1, 1, v.passo))
            for (Diurna &linea : tre) linea.punto(tavolo, x);
    } else if (!paralleloAlPolo(v)) {
        const Equatore equatore(c.piano());
        const auto diurna = [&](std::size_t n) {
            const CoppiaDiurna &p = COPPIE[n];
            return DiurnaEquatore(c, QuadratoCotangente(p.daConica), p.delta, p.alEquatore);
        };
        DiurnaEquatore d2345 = diurna(0), d20 = diurna(1), d115 = diurna(2);
        for (const double x : Equatore::ascisse()) {
            // Each line only where those nearer the equinox exist; the innermost is drawn first.
            if (!equatore.esiste(d115, x)) continue;
            if (equatore.esiste(d20, x)) {
                if (equatore.esiste(d2345, x)) d2345.punti(tavolo, x);
                d20.punti(tavolo, x);
            }
            d115.punti(tavolo, x);
        }
    }
}

namespace {

// The wall's angles once more, at the equator the hour angle of the substyle with this run's sign; where the equinoctial lies.
void lasciaSolstizi(Corsa &c) {
    Variabili &v = c.s.v;
    LasciaStiloParete(v, c.piano());
    c.rifaiPiano();
    if (v.lat == 0) v.angoloOra = (PI / 2) * v.segnoDec;
    if (!(v.lat == 0 && v.dec == 0)) v.y0 = DistanzaEquinoziale(v.gn, c.stilo());
}

}  // namespace

void CalcolaSolstiziOrizzonte(Corsa &c, const LineeAttese &) {
    Sessione &s = c.s;
    lasciaSolstizi(c);
    const Variabili &v = c.v;
    const Reale L = c.letto.oriz;  // as typed, unscaled: meant
    Reale xa, xb;
    if (v.lat == 0 && v.dec == 0) {
        xa = v.gn / tan(Radianti(OBLIQUITA));
        xb = -v.gn / tan(Radianti(OBLIQUITA));
    } else {
        Conica k;
        k.calcola(QuadratoCotangente(OBLIQUITA), c.stilo(), v.gn);
        const Radici x = AscisseConica(k, c.stilo().sigma, v.y0, L);
        if (x.reali) {
            xa = x.piu;
            xb = x.meno;
        }
    }

    s.tavolo.ForeColor = CIANO;
    s.Dati(s.Traduci("Ascisse delle intersezioni dei solstizi con l'orizzonte "), 0.1, 0.5);
    s.Dati(Formato(xa / v.unita, "0.000000"), 0.1, 0.45);
    s.Dati(Formato(xb / v.unita, "0.000000"), 0.1, 0.4);
    s.tavolo.ForeColor = BIANCO;
    const struct {
        std::string_view etichetta;
        Valore valore;
        double y;
    } righe[] = {{"lat = "_it, Gradi(v.lat_o), 0.7},
                 {"d = "_it, Gradi(v.dec_o), 0.65},
                 {"i = "_it, Gradi(v.iz_o), 0.6},
                 {"gn = "_it, v.gn / v.unita, 0.55}};
    for (const auto &riga : righe) {
        s.Dati(s.Traduci(riga.etichetta), 0.1, riga.y);
        s.Dati(Frase() << riga.valore, 0.15, riga.y);
    }
    if (v.inc_o == 90) return;
    Reale ore12;
    if (v.lat_o != 0) ore12 = Round(OrdinataOrizzonte(v.gn, v.iz_o), 4) / v.unita;
    s.Dati(s.Traduci(" ordinata ore 12 itabab"), 0.31, 0.35);
    s.Dati(Frase() << ore12, 0.1, 0.35);
}

}  // namespace ombrelia::analytic
