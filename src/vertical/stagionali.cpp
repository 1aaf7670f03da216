// Italic, Babylonian and temporary hours of the vertical engine, and the numbers along the summer solstice.
#include <algorithm>

#include "gnomonica/ricordo.h"
#include "vertical/corsa.h"

namespace ombrelia::vertical {

namespace {

// Cosine of the half day arc; there is no sunrise where it is not below 1.
Valore cosenoArco(const Piano &p, double tanD) { return -p.tphi * tanD; }
Valore semiArco(Valore c) { return PI / 2 - Atn(c / Sqr(1 - c * c)); }

// The year by steps of 10 * passo degrees, as far as a line has room. Its last declination is left; a step that takes none
// leaves none.
const std::vector<Giornata> &annoDi(Corsa &c, const Sfera &sfera) {
    const Variabili &v = c.v;
    if (c.anno.empty()) {
        for (const double d : Conteggio(-OBLIQUITA_2344, OBLIQUITA_2344, 10 * v.passo)) {
            c.ultima = d;
            if (c.anno.size() == PUNTI_LINEA) continue;
            const double dr = PI * d / 180, tanD = std::tan(dr);
            const Valore cosH0 = cosenoArco(c.piano(), tanD);
            if (Abs(cosH0) < 1) c.anno.push_back({sfera.giorno(tanD, std::sin(dr), std::cos(dr)), semiArco(cosH0).v});
        }
        if (c.anno.empty() && c.ultima == 0) return c.anno;
    }
    LasciaDeclinazione(c.s.v, c.ultima);
    return c.anno;
}

// These hours compare the angles themselves, not their sines.
inline void mendaAzimut(Direzione &sole, const Sfera &sfera, const AngoloOrario &o) {
    if (Sfera::segno(o.Hr) != Sfera::segno(sole.A.numero())) sfera.mendaMuro(sole);
}
inline void azimut(Direzione &sole, const Sfera &sfera, const AngoloOrario &o, const Sfera::Giorno &g) {
    sfera.azimut(sole, o, g);
    mendaAzimut(sole, sfera, o);
}

// What the points of one kind of hours took last time: by hour angle, by tangent of the azimuth, by sine of the altitude, by
// azimuth from the wall's normal.
struct Ricordi {
    struct Arco {
        double operator()(double q) const { return std::atan(q); }
    };
    struct TangenteAltezza {
        double operator()(double seno) const { return std::tan(ArcSin(seno).v); }
    };
    struct Obliqua {
        double tan = 0, cos = 1;
    };
    struct Normale {
        Obliqua operator()(double a) const { return {std::tan(a), std::cos(a)}; }
    };
    SenCosRicordati ore;
    Ricordo<double, Arco> azimut;
    Ricordo<double, TangenteAltezza> altezza;
    Ricordo<Obliqua, Normale> parete;
};

double azimutDa(const Sfera &sfera, double arco, bool girato) {
    return girato ? arco - Sfera::segno(arco - sfera.declinazione()) * PI : arco;
}

// A point of a line. What no test needs is worked out when a chord asks for it.
struct PuntoTemporaria {
    enum class Manca : std::uint8_t { Niente, Tutto, Angolo };
    Reale x, y;
    double A, seno;  // azimuth and sine of the altitude
    double q;        // tangent of the azimuth; whether the quadrant is the other
    bool girato;
    Manca manca = Manca::Niente;

    void completa(const Sfera &sfera, Ricordi &ricordi, std::size_t posto) {
        if (manca == Manca::Niente) return;
        if (manca == Manca::Angolo) A = azimutDa(sfera, ricordi.azimut(posto, q), girato);
        const Ricordi::Obliqua o = ricordi.parete(posto, A - sfera.declinazione());
        x = sfera.ascissa(o.tan);
        y = sfera.ordinata(o.cos, ricordi.altezza(posto, seno));
        manca = Manca::Niente;
    }
};

// angolo gives the hour angle from the hour and H0. A point behind the plane is counted but not stored, so the next chord
// joins what an earlier line of this call left in its place, or the foot of the ortostilo: meant.
template <typename Angolo>
void tracciaOre(Corsa &c, const LineeAttese &linee, Specie specie, std::string_view strato, Angolo angolo) {
    Sessione &s = c.s;
    const Cornice &cornice = c.cornice;
    const IdNome id = s.tavolo.nome(strato);
    if (linee.empty()) return;
    const Sfera sfera = c.sfera();
    Direzione sole;
    const std::vector<Giornata> &giorni = annoDi(c, sfera);
    std::vector<PuntoTemporaria> posti(giorni.size() + 1);
    double seno = 0;  // of the last altitude that did not fault
    const double senDec = std::sin(sfera.declinazione()), cosDec = std::cos(sfera.declinazione());
    const double xMin = cornice.xMin.numero() - 1e-6, xMax = cornice.xMax.numero() + 1e-6;
    bool pendente = false, giratoPendente = false;  // an azimuth that the last point did not work out
    double qPendente = 0;
    static thread_local Ricordi ricordi;
    std::size_t posto = 0;
    for (const LineaAttesa &l : linee) {
        const double n = l.parametro;
        const Pretendi pretendi(s.tavolo, specie, l.valore);
        std::size_t i = 0;
        for (const Giornata &g : giorni) {
            ++i;
            ++posto;
            const double Hr = angolo(n, g.H0);
            const AngoloOrario ora(Hr, ricordi.ore(posto, Hr));
            const double s0 = Sfera::senAltezza(ora, g);
            if (std::fabs(s0) < 1) seno = s0;
            // Where the tangent of the azimuth alone tells, by a wide margin, that the point lies behind the wall, under
            // the ground or beyond the frame, the angle is left for a chord to ask for.
            const double q = ora.sen / sfera.denominatore(ora, g);
            const bool girato = Sfera::segno(ora.Hr) != Sfera::segno(q);
            const double coseno = cosDec + q * senDec, davanti = girato ? -coseno : coseno, margine = 1 + std::fabs(q);
            if (margine < 1e100) {
                const double x = sfera.braccio() * (q * cosDec - senDec) / coseno;
                const bool dietro = davanti < -1e-7 * margine;
                const bool fuori = davanti > 1e-3 * margine && sfera.braccio() > 0 &&
                                   (seno < 0 || x < xMin - 1e-6 * std::fabs(x) || x > xMax + 1e-6 * std::fabs(x));
                if (dietro || fuori) {
                    if (fuori) {
                        posti[i].q = q;
                        posti[i].girato = girato;
                        posti[i].seno = seno;
                        posti[i].manca = PuntoTemporaria::Manca::Angolo;
                    }
                    qPendente = q;
                    giratoPendente = girato;
                    pendente = true;
                    continue;
                }
            } else if (pendente) {
                // A quotient that faults leaves the last one standing.
                sole.A = azimutDa(sfera, std::atan(qPendente), giratoPendente);
            }
            pendente = false;
            if (Valore(q).esiste()) sole.A = ricordi.azimut(posto, q);
            mendaAzimut(sole, sfera, ora);
            if (!sfera.davanti(sole)) continue;
            PuntoTemporaria &p = posti[i];
            p.A = sole.A.numero();
            p.seno = seno;
            p.manca = PuntoTemporaria::Manca::Tutto;
            if (i < 2 || sfera.sottoTerra(p.A, p.seno)) continue;
            p.completa(sfera, ricordi, posto);
            if (p.y > 0 || !cornice.contiene(p.x, p.y)) continue;
            PuntoTemporaria &prima = posti[i - 1];
            prima.completa(sfera, ricordi, posto - 1);
            s.tavolo.TracciaLinea(p.x, p.y, prima.x, prima.y, l.colore, id);
        }
    }
}

// The numbers where their lines meet the summer solstice.
template <typename Angolo>
void etichette(Corsa &c, const LineeAttese &linee, Angolo angolo) {
    Sessione &s = c.s;
    const Colore prima = s.tavolo.ForeColor;
    s.tavolo.ForeColor = linee[0].colore;
    LasciaDeclinazione(s.v, OBLIQUITA);
    const Sfera sfera = c.sfera();
    const Sfera::Giorno giorno = sfera.giorno(OBLIQUITA);
    const Valore cosH0 = cosenoArco(c.piano(), tan(PI * Valore(OBLIQUITA) / 180).v);
    if (Abs(cosH0) < 1) {
        const Valore H0 = semiArco(cosH0);
        Direzione sole;
        Reale x, y;
        for (const LineaAttesa &l : linee) {
            const AngoloOrario ora(angolo(l.parametro, H0));
            azimut(sole, sfera, ora, giorno);
            sfera.altezza(sole, ora, giorno);
            if (!sfera.davanti(sole)) continue;
            sfera.punto(sole, x, y);
            if (!(y > 0) && c.cornice.contiene(x, y)) s.tavolo.Scritta(l.strato, x, y);
        }
    }
    s.tavolo.ForeColor = prima;
}

struct Numero {
    std::string_view testo;
    int n;
};
template <std::size_t N>
void numeri(const Numero (&righe)[N], Colore colore, LineeAttese &linee) {
    for (const Numero &r : righe) linee.push_back({static_cast<double>(r.n), static_cast<double>(r.n), r.testo, colore});
}

// Texts in the order in which they are written.
constexpr Numero ITALICHE[] = {{" 12 ", 12}, {" 11 ", 11}, {" 13 ", 13}, {" 14 ", 14}, {" 15 ", 15}, {" 16 ", 16}, {" 17 ", 17},
                               {" 18 ", 18}, {" 19 ", 19}, {" 20 ", 20}, {" 21 ", 21}, {" 22 ", 22}, {" 23 ", 23}};
constexpr Numero BABILONICHE[] = {{" 0 ", 0},   {" 1 ", 1},   {" 2 ", 2},   {" 3 ", 3},  {" 4 ", 4},   {" 5 ", 5},
                                  {" 6 ", 6},   {" 7 ", 7},   {" 8 ", 8},   {" 9 ", 9},  {" 10 ", 10}, {" 11 ", 11},
                                  {" 12 ", 12}, {" 13 ", 13}, {" 14 ", 14}, {" 15 ", 15}};
constexpr Numero TEMPORARIE[] = {{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4},   {"5", 5},  {"6", 6},
                                 {"7", 7}, {"8", 8}, {"9", 9}, {"10", 10}, {"11", 11}};

// The hours of the steeples begin half an hour after sunset.
bool campanili(const Corsa &c) { return c.s.in.ckFunzione == 1; }

void conta(const Corsa &c, double da, double a, std::string_view strato, Colore colore, LineeAttese &linee) {
    for (const double n : Conteggio(da, a, 1 / c.v.fraz)) linee.push_back({n, n, strato, colore});
}

}  // namespace

// The fraction of the hour, as typed; none counts as whole hours, here and for the reports after the run.
void LasciaStagionali(Corsa &c) {
    Variabili &v = c.s.v;
    v.fraz = c.letto.fraz;
    if (v.fraz == 0) v.fraz = 1;
}
void PreparaItaliche(Corsa &c) {
    if (campanili(c)) c.s.Messaggio(c.s.Traduci("Steeple Italic Hours"));
    LasciaStagionali(c);
}

void LineeItaliche(const Corsa &c, LineeAttese &linee) {
    const double scarto = campanili(c) ? 0.5 : 0;
    conta(c, 6 + scarto, 24 + scarto, "Ita", CORALLO, linee);
}
void LineeBabiloniche(const Corsa &c, LineeAttese &linee) { conta(c, 0, 18, "Bab", CIANO, linee); }
void LineeTemporarie(const Corsa &c, LineeAttese &linee) { conta(c, 0, 12, "Temp", OLIVA, linee); }

void TracciaItaliche(Corsa &c, const LineeAttese &linee) {
    tracciaOre(c, linee, Specie::Italica, "Ita", [](double n, double H0) { return H0 + PI * n / 12 - 2 * PI; });
}
void TracciaBabiloniche(Corsa &c, const LineeAttese &linee) {
    tracciaOre(c, linee, Specie::Babilonica, "Bab", [](double n, double H0) { return PI * n / 12 - H0; });
}
void TracciaTemporarie(Corsa &c, const LineeAttese &linee) {
    tracciaOre(c, linee, Specie::Temporaria, "Temp", [](double n, double H0) { return (n / 6 - 1) * H0; });
}

// The horizon's ordinate, metres: no number is held against it, the last horizon is drawn at it.
void LasciaEtichette(Corsa &c) {
    Variabili &v = c.s.v;
    v.yOriz = OrizzonteOriginale(v, v.iz_o < PI / 2 ? 1 : -1);
}

void NumeriItaliche(const Corsa &c, LineeAttese &linee) { numeri(ITALICHE, c.s.tavolo.ForeColor, linee); }
void NumeriBabiloniche(const Corsa &, LineeAttese &linee) { numeri(BABILONICHE, MAGENTA, linee); }
void NumeriTemporarie(const Corsa &, LineeAttese &linee) { numeri(TEMPORARIE, OLIVA, linee); }

void EtichetteItaliche(Corsa &c, const LineeAttese &linee) {
    etichette(c, linee, [&v = c.v](double n, Valore H0) { return v.diffLong + H0 + PI * n / 12 - 2 * PI; });
}
void EtichetteBabiloniche(Corsa &c, const LineeAttese &linee) {
    etichette(c, linee, [&v = c.v](double n, Valore H0) { return v.diffLong + PI * n / 12 - H0; });
}
void EtichetteTemporarie(Corsa &c, const LineeAttese &linee) {
    etichette(c, linee, [&v = c.v](double n, Valore H0) { return v.diffLong + (Valore(n) / 6 - 1) * H0; });
}

}  // namespace ombrelia::vertical
