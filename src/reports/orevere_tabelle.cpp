// The tables of the true hours: where an hour line meets two chosen lines, and its shadow lengths.
#include "reports/orevere.h"

namespace ombrelia::reports::ore {

namespace {

// Heads as printed to the blank: the part before the shadow columns, then the shadow columns by their order. The screen
// first, then paper, which is narrower; "si" twice on paper is meant.
constexpr std::string_view PRIMA_IT[] = {
    "  ora      ascissa    ordinata         ascissa                   ordinata                              ",
    "  ora   ascissa    ordinata    ascissa            ordinata              "};
// A wall's head is marked and one blank shorter.
constexpr std::string_view PARETE_IT[] = {
    "T ora      ascissa    ordinata         ascissa                   ordinata                             ",
    "T ora   ascissa    ordinata    ascissa            ordinata              "};
constexpr std::string_view PRIMA_FR[] = {
    "  heure       x              y0                             x0                           y                                  "
    "   ",
    "  heure x          y0          x0                 y                     "};
constexpr std::string_view SECONDA_FR[] = {
    "  heure       x              y1                             x1                           y                                  "
    "   ",
    "  heure x          y1          x1                 y                     "};
constexpr std::string_view INGLESE = "  hour ";

enum Ordine { Diretto, Inverso, Misto };
constexpr std::string_view OMBRE[2][3] = {
    {"se                            si                     se-si                         ce                        se-ce         "
     " "
     "          si-ce                    delta",
     "si                            se                     se-si                         ce                        si-ce         "
     " "
     "          se-ce                    delta",
     "si                            se                     se-si                         ce                        se-ce         "
     " "
     "          si-ce                    delta"},
    {"se                si                   se-si               ce                  se-ce             si-ce                    "
     "delta",
     "si                si                   se-si               ce                  si-ce             se-ce                    "
     "delta",
     "si                se                   se-si               ce                  se-ce             si-ce                    "
     "delta"}};

// Names for exports, where the four columns of the chosen lines must be told apart.
std::vector<std::string> colonne(const Sessione &s, const Trilingue &teste, bool prima) {
    std::vector<std::string> nomi = Colonne(s, teste);
    if (Lingua(s) != 0) return nomi;
    const std::string_view coda[] = {" x", prima ? " y0" : " y1", prima ? " x0" : " x1", " y"};
    for (std::size_t i = 0; i < 4; ++i) nomi[i + 1] += coda[i];
    return nomi;
}

constexpr std::string_view INF = "inf";
constexpr std::string_view INF_ASCISSA = "inf         ";

Valore taglia(Valore x) { return Int(x * 10000) / 10000; }

// What a row holds; a formula without a value keeps the row's before.
struct RigaOre {
    Reale se, si, ce;   // shadow lengths, the unit of gn
    Reale x, ordinata;  // where the hour line meets the chosen ones
    std::string testoOrdinata;
    Reale w, A;  // tangent of the angle at the centre between style and hour line, and that angle
    Reale D;     // what the hour line's tangent is multiplied by
};

// From the centre to the points of both solstices and of the equinox on an hour line. Given: the dial, q the hour angle from the
// substyle, radians. Gives: se, si, ce, the unit of gn, negative beyond the centre. Source: tan A = tan(style) / cos q of the
// right spherical triangle of pole, substyle and hour line (Napier); the law of sines in the triangle of centre, tip and point,
// whose angle at the tip is a quarter turn less or more the declination. Faults: a length without a value is that of the row
// before.
void ombre(const DatiOre &d, RigaOre &r, Valore gn, Valore q) {
    const Valore delta = d.delta * PI / 180;
    switch (d.specie) {
        case SpecieOreVere::Inclinato:
            r.w = tan(d.altStilo) / cos(q);
            break;
        case SpecieOreVere::Parete:
            r.w = d.tanStilo / cos(q);
            break;
        default:
            r.w = d.L / cos(q);
            break;
    }
    r.A = d.specie == SpecieOreVere::LatZero ? -Atn(r.w) : Atn(r.w);
    if (Abs(q) > PI / 2) r.A = (PI - Abs(r.A)) * Sgn(r.A);
    const Valore lato = d.specie == SpecieOreVere::Inclinato ? Sgn(sin(d.altStilo)) : Sgn(gn / sin(d.altStilo));
    const Reale K = d.k * lato * d.delta * PI / 180;
    const Valore asse = d.lati.assostiloLen;
    r.se = asse * cos(-delta) / cos(r.A + K);
    r.si = asse * cos(delta) / cos(r.A - K);
    r.ce = asse / cos(r.A);
}

// Abscissa at the chosen ordinate ys, ordinate at the chosen abscissa xs. Given: V, degrees of hour angle, and t, the same with
// the longitude in it, radians. Gives: the unit of gn, y upward, the ordinate cut to four decimals in its text. Source: the
// straight line through the centre at tan = cos(lat) tan t / D (Rohr, Sundials, hour lines of declining walls). Faults: as above.
void intercetti(const Variabili &v, const DatiOre &d, RigaOre &r, double V, Valore t, Valore xs, Valore ys) {
    const bool fuoriMeridiano = V + d.lonPiu15 != 0;
    const Valore xC = d.lati.xCentro, yC = d.lati.yCentro;
    const auto ordinata = [&](Valore y) {
        r.ordinata = y;
        if (const Valore tagliata = taglia(r.ordinata); tagliata.esiste()) r.testoOrdinata = TestoNumero(tagliata.v);
    };
    switch (d.specie) {
        case SpecieOreVere::LatZeroInclinato:
            r.x = ys * tan(t);
            if (fuoriMeridiano) {
                ordinata(xs / tan(t + 0.0001));  // the small angle keeps the division alive
                return;
            }
            break;
        case SpecieOreVere::LatZero:
            if (Abs(v.dec) == 90) {
                ordinata(v.gn / tan(t));  // whichever side the wall looks: meant
            } else {
                ordinata((xs - xC) * cos(d.decR) / tan(t) + yC);
                r.x = (ys - yC) * tan(t) / cos(d.decR) + xC;
            }
            break;
        default:
            r.D = cos(d.decR) - sin(d.decR) * sin(d.latR) * tan(t);
            r.x = (ys - yC) * cos(d.latR) * tan(t) / r.D + xC;
            if (fuoriMeridiano) ordinata((xs - xC) * r.D / (cos(d.latR) * tan(t)) + yC);
            break;
    }
    if (t == 0) r.testoOrdinata = INF;
}

void calcola(const Variabili &v, const DatiOre &d, RigaOre &r, double V, Valore xs, Valore ys) {
    const Valore t = V * PI / 180 + d.corrLong;
    if (d.specie == SpecieOreVere::LatZeroInclinato) {
        r.se = v.gn * tan(PI / 2 - d.delta * PI / 180);
        r.si = -v.gn * tan(PI / 2 - d.delta * PI / 180);
    } else {
        ombre(d, r, v.gn, d.angoloOra + t);
    }
    intercetti(v, d, r, V, t, xs, ys);
}

void scrivi(const Variabili &v, const DatiOre &d, const RigaOre &r, Tabulato &f, double V, Valore xs, Valore ys, bool prima) {
    const bool estOvest = Abs(v.dec) == 90;
    const auto differenza = [&](Valore x) { return Taglio4(prima && !estOvest ? Abs(x) : x); };
    const Elemento inf(INF);
    Elemento ordinata(r.testoOrdinata);
    if (r.testoOrdinata != INF && !r.testoOrdinata.empty()) ordinata.numero = r.ordinata.numero();
    const bool senzaAscissa = d.specie == SpecieOreVere::LatZero && estOvest;
    std::vector<Elemento> voci{Fmt(12 - Valore(V) / 15, "00.00"), Spc(2),
                               senzaAscissa ? Elemento(INF_ASCISSA) : Fmt(taglia(r.x), ".0000").vero(r.x), Spc(2), Numero(ys)};
    const auto cella = [&](Elemento e) {
        voci.push_back(Zona());
        voci.push_back(std::move(e));
    };
    cella(Numero(xs));
    cella(std::move(ordinata));
    if (d.specie == SpecieOreVere::LatZeroInclinato) {
        for (Elemento &e : std::array{Taglio4(r.se), Taglio4(r.si), differenza(r.se - r.si), inf, inf, inf}) cella(std::move(e));
    } else {
        cella(estOvest ? inf : Taglio4(r.se));
        cella(estOvest ? inf : Taglio4(r.si));
        cella(differenza(r.se - r.si));
        cella(estOvest ? inf : Taglio4(r.ce));
        cella(differenza(r.se - r.ce));
        cella(differenza(r.si - r.ce));
    }
    if (prima) cella(Numero(d.delta));
    f.dati(std::move(voci));
}

}  // namespace

bool PrimoOrdine(SpecieOreVere specie, Valore altStilo) { return specie == SpecieOreVere::Parete ? altStilo > 0 : altStilo < 0; }

Trilingue Intestazioni(SpecieOreVere specie, bool schermo, bool primoOrdine, bool prima) {
    const std::size_t carta = schermo ? 0 : 1;
    const Ordine ordine = !primoOrdine ? Inverso : specie == SpecieOreVere::LatZero ? Misto : Diretto;
    const std::string_view ombre = OMBRE[carta][ordine];
    const std::string_view it = specie == SpecieOreVere::Parete ? PARETE_IT[carta] : PRIMA_IT[carta];
    const std::string_view fr = prima ? PRIMA_FR[carta] : SECONDA_FR[carta];
    return {std::string(it).append(ombre), std::string(fr).append(ombre), std::string(INGLESE)};
}

void Tabelle(const Sessione &s, const Lettura &letto, const DatiOre &d, Tabulato &f) {
    const Variabili &v = s.v;
    const Valore Vi = -(15 * letto.inizio - 180), Vf = -(15 * letto.fine - 180);
    const bool primo = PrimoOrdine(d.specie, d.altStilo);
    RigaOre r;
    for (const bool prima : {true, false}) {
        const Valore xs = prima ? v.x0 : v.x1, ys = prima ? v.y0 : v.y1;
        const std::string n = prima ? "0" : "1";
        if (!prima) f.vuota();
        f.tabella("x" + n + " = " + TestoNumero(xs.v) + ", y" + n + " = " + TestoNumero(ys.v),
                  colonne(s, Intestazioni(d.specie, true, primo, prima), prima));
        f.intestazioni(Intestazioni(d.specie, f.schermo(), primo, prima));
        for (const double V : Conteggio(Vf, Vi, 15 / v.fraz)) {
            calcola(v, d, r, V, xs, ys);
            scrivi(v, d, r, f, V, xs, ys, prima);
        }
    }
}

}  // namespace ombrelia::reports::ore
