// Italic, Babylonian and temporary hours of the vertical engine, and the numbers along the summer solstice.
#include "vertical/piana.h"

#include <algorithm>

#include "core/conteggio.h"
#include "vertical/sfera.h"

namespace ombrelia::vertical {

namespace {

// Cosine of the half day arc; there is no sunrise where it is not below 1.
Valore cosenoArco(Valore latR, double tanD) { return -tan(latR) * tanD; }
Valore semiArco(Valore c) { return PI / 2 - Atn(c / Sqr(1 - c * c)); }

// A declination of the year on which the Sun rises, with its half day arc.
struct Giornata : Sfera::Giorno {
    double H0;
};

// The year by steps of 10 * passo degrees, as far as a line has room; leaves its last declination in deltaOpz.
std::vector<Giornata> anno(Variabili &v, const Sfera &sfera) {
    std::vector<Giornata> giorni;
    for (const double d : Conteggio(-23.44, 23.44, 10 * v.passo)) {
        v.deltaOpz = d;
        if (giorni.size() == PUNTI_LINEA) continue;
        const double dr = PI * d / 180, tanD = std::tan(dr);
        const Valore c = cosenoArco(v.latR, tanD);
        if (Abs(c) < 1) giorni.push_back({sfera.giorno(tanD, std::sin(dr), std::cos(dr)), semiArco(c).v});
    }
    return giorni;
}

// These hours compare the angles themselves, not their sines.
inline void azimut(Sfera &sfera, const Orario &o, const Sfera::Giorno &g) {
    sfera.azimut(o, g);
    if (Sfera::segno(o.Hr) != Sfera::segno(sfera.A.numero())) sfera.mendaMuro();
}

// A point of a line. What no test needs is worked out when a chord asks for it.
struct Posto {
    enum class Manca : std::uint8_t { Niente, Ordinata, Tutto };
    Reale x, y;
    double A, seno;  // azimuth and sine of the altitude
    Manca manca = Manca::Niente;

    void completa(const Sfera &sfera) {
        if (manca == Manca::Tutto) x = sfera.ascissa(A);
        if (manca != Manca::Niente) y = sfera.ordinata(A, ArcSin(seno).v);
        manca = Manca::Niente;
    }
};

// The lines n of a count; angolo gives the hour angle from n and H0. A point behind the plane is counted but not stored,
// so the next chord joins what an earlier line of this call left in its place, or the foot of the ortostilo: meant.
template <typename Angolo>
void tracciaOre(Sessione &s, Valore da, Valore a, Specie specie, std::string_view strato, Colore colore, Angolo angolo) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    v.fraz = Val(s.in.TxtFraz);
    if (v.fraz == 0) v.fraz = 1;
    Sfera sfera(v);
    std::vector<Giornata> giorni;
    std::vector<Posto> posti;
    const IdNome id = s.tavolo.nome(strato);
    double seno = 0;  // of the last altitude that did not fault
    for (const double n : Conteggio(da, a, 1 / v.fraz)) {
        if (posti.empty()) {
            giorni = anno(v, sfera);
            posti.resize(giorni.size() + 1);
        }
        const Pretendi pretendi(s.tavolo, specie, n);
        std::size_t i = 0;
        for (const Giornata &g : giorni) {
            const Orario ora(angolo(n, g.H0));
            azimut(sfera, ora, g);
            const double s0 = Sfera::senAltezza(ora, g);
            if (std::fabs(s0) < 1) seno = s0;
            ++i;
            if (!sfera.davanti()) continue;
            Posto &p = posti[i];
            p.A = sfera.A.numero();
            p.seno = seno;
            p.manca = Posto::Manca::Tutto;
            if (i < 2 || sfera.sottoTerra(p.A, p.seno)) continue;
            p.x = sfera.ascissa(p.A);
            p.manca = Posto::Manca::Ordinata;
            if (!(cornice.xMin < p.x && p.x < cornice.xMax)) continue;
            p.completa(sfera);
            if (p.y > 0 || !cornice.contiene(p.x, p.y)) continue;
            Posto &prima = posti[i - 1];
            prima.completa(sfera);
            s.tavolo.xLine(p.x, -p.y, prima.x, -prima.y, colore, id);
        }
    }
}

// The numbers n of a row, where their lines meet the summer solstice.
struct Etichetta {
    std::string_view testo;
    int n;
};
template <std::size_t N, typename Angolo>
void etichette(Sessione &s, const Etichetta (&righe)[N], Colore colore, Angolo angolo) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    const Colore prima = s.tavolo.ForeColor;
    s.tavolo.ForeColor = colore;
    v.deltaOpz = 23.445;
    Sfera sfera(v);
    const Sfera::Giorno giorno = sfera.giorno(v.deltaOpz.numero());
    const Valore c = cosenoArco(v.latR, tan(PI * v.deltaOpz / 180).v);
    if (Abs(c) < 1) {
        const Valore H0 = semiArco(c);
        Reale x, y;
        for (const Etichetta &e : righe) {
            const Orario ora(angolo(e.n, H0));
            azimut(sfera, ora, giorno);
            sfera.altezza(ora, giorno);
            if (!sfera.davanti()) continue;
            sfera.punto(x, y);
            if (!(y > 0) && cornice.contiene(x, y)) s.tavolo.Dati(e.testo, x, -y);
        }
    }
    s.tavolo.ForeColor = prima;
}

// Texts in the order in which they are written.
constexpr Etichetta ITALICHE[] = {{" 12 ", 12}, {" 11 ", 11}, {" 13 ", 13}, {" 14 ", 14}, {" 15 ", 15}, {" 16 ", 16}, {" 17 ", 17},
                                  {" 18 ", 18}, {" 19 ", 19}, {" 20 ", 20}, {" 21 ", 21}, {" 22 ", 22}, {" 23 ", 23}};
constexpr Etichetta BABILONICHE[] = {{" 0 ", 0},   {" 1 ", 1},   {" 2 ", 2},   {" 3 ", 3},   {" 4 ", 4},   {" 5 ", 5},
                                     {" 6 ", 6},   {" 7 ", 7},   {" 8 ", 8},   {" 9 ", 9},   {" 10 ", 10}, {" 11 ", 11},
                                     {" 12 ", 12}, {" 13 ", 13}, {" 14 ", 14}, {" 15 ", 15}};
constexpr Etichetta TEMPORARIE[] = {{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4},   {"5", 5},  {"6", 6},
                                    {"7", 7}, {"8", 8}, {"9", 9}, {"10", 10}, {"11", 11}};

void orizzonteEtichette(Variabili &v) { v.yOriz = OrdinataOrizzonte(v, v.iz_o < PI / 2 ? 1 : -1); }

}  // namespace

void TracciaItaliche(Sessione &s) {
    if (s.v.inc_o == 90) return;
    // The hours of the steeples begin half an hour after sunset.
    const bool campanili = s.in.ckFunzione == 1;
    if (campanili) s.Messaggio(s.Traduci("Steeple Italic Hours"));
    const double scarto = campanili ? 0.5 : 0;
    tracciaOre(s, 6 + scarto, 24 + scarto, Specie::Italica, "Ita", Rgb(255, 128, 128), [](double n, double H0) { return H0 + PI * n / 12 - 2 * PI; });
}

void TracciaBabiloniche(Sessione &s) {
    if (s.v.inc_o == 90) return;
    tracciaOre(s, 0, 18, Specie::Babilonica, "Bab", QB(11), [](double n, double H0) { return PI * n / 12 - H0; });
}

void TracciaTemporarie(Sessione &s) {
    tracciaOre(s, 0, 12, Specie::Temporaria, "Temp", QB(6), [](double n, double H0) { return (n / 6 - 1) * H0; });
}

void EtichetteItaliche(Sessione &s) {
    if (s.v.inc_o == 90) return;
    (void)LeggiCornice(s);
    orizzonteEtichette(s.v);
    etichette(s, ITALICHE, s.tavolo.ForeColor, [&v = s.v](int n, Valore H0) { return v.diffLong + H0 + PI * n / 12 - 2 * PI; });
}

void EtichetteBabiloniche(Sessione &s) {
    if (s.v.inc_o == 90) return;
    (void)LeggiCornice(s);
    orizzonteEtichette(s.v);
    etichette(s, BABILONICHE, QB(13), [&v = s.v](int n, Valore H0) { return v.diffLong + PI * n / 12 - H0; });
}

void EtichetteTemporarie(Sessione &s) {
    etichette(s, TEMPORARIE, QB(6), [&v = s.v](int n, Valore H0) { return v.diffLong + (Valore(n) / 6 - 1) * H0; });
}

}  // namespace ombrelia::vertical
