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

// Shadow lengths at the hour angle q from the substyle.
void ombre(const Variabili &v, Calcolo &c, Valore q) {
    const Valore delta = v.deltaOpz * PI / 180;
    switch (c.specie) {
        case SpecieOreVere::Inclinato:
            c.w = tan(v.altStilo) / cos(q);
            break;
        case SpecieOreVere::Parete:
            c.w = c.sine / cos(q);
            break;
        default:
            c.w = c.L / cos(q);
            break;
    }
    c.A = c.specie == SpecieOreVere::LatZero ? -Atn(c.w) : Atn(c.w);
    if (Abs(q) > PI / 2) c.A = (PI - Abs(c.A)) * Sgn(c.A);
    const Valore lato = c.specie == SpecieOreVere::Inclinato ? Sgn(sin(v.altStilo)) : Sgn(v.gn / sin(v.altStilo));
    const Reale K = c.k * lato * v.deltaOpz * PI / 180;
    c.se = v.assostiloLen * cos(-delta) / cos(c.A + K);
    c.si = v.assostiloLen * cos(delta) / cos(c.A - K);
    c.ce = v.assostiloLen / cos(c.A);
}

// Abscissa at the chosen ordinate, ordinate at the chosen abscissa.
void intercetti(const Variabili &v, Calcolo &c, double V, Valore t, Valore xs, Valore ys) {
    const bool fuoriMeridiano = V + v.lonPiu15 != 0;
    const auto ordinata = [&](Valore y) {
        c.ordinata = y;
        if (const Valore tagliata = taglia(c.ordinata); tagliata.esiste()) c.testoOrdinata = TestoNumero(tagliata.v);
    };
    switch (c.specie) {
        case SpecieOreVere::LatZeroInclinato:
            c.x = ys * tan(t);
            if (fuoriMeridiano) {
                ordinata(xs / tan(t + 0.0001));  // the small angle keeps the division alive
                return;
            }
            break;
        case SpecieOreVere::LatZero:
            if (Abs(v.dec) == 90) {
                ordinata(v.gn / tan(t));  // whichever side the wall looks: meant
            } else {
                ordinata((xs - v.xCentro) * cos(v.decR) / tan(t) + v.yCentro);
                c.x = (ys - v.yCentro) * tan(t) / cos(v.decR) + v.xCentro;
            }
            break;
        default:
            c.D = cos(v.decR) - sin(v.decR) * sin(v.latR) * tan(t);
            c.x = (ys - v.yCentro) * cos(v.latR) * tan(t) / c.D + v.xCentro;
            if (fuoriMeridiano) ordinata((xs - v.xCentro) * c.D / (cos(v.latR) * tan(t)) + v.yCentro);
            break;
    }
    if (t == 0) c.testoOrdinata = INF;
}

void riga(const Variabili &v, Tabulato &f, Calcolo &c, double V, Valore xs, Valore ys, bool prima) {
    const Valore t = V * PI / 180 + v.corrLong;
    if (c.specie == SpecieOreVere::LatZeroInclinato) {
        c.se = v.gn * tan(PI / 2 - v.deltaOpz * PI / 180);
        c.si = -v.gn * tan(PI / 2 - v.deltaOpz * PI / 180);
    } else {
        ombre(v, c, v.angoloOra + t);
    }
    intercetti(v, c, V, t, xs, ys);

    const bool estOvest = Abs(v.dec) == 90;
    const auto differenza = [&](Valore d) { return Taglio4(prima && !estOvest ? Abs(d) : d); };
    const Elemento inf(INF);
    Elemento ordinata(c.testoOrdinata);
    if (c.testoOrdinata != INF && !c.testoOrdinata.empty()) ordinata.numero = c.ordinata.numero();
    const bool senzaAscissa = c.specie == SpecieOreVere::LatZero && estOvest;
    std::vector<Elemento> voci{Fmt(12 - Valore(V) / 15, "00.00"), Spc(2),
                               senzaAscissa ? Elemento(INF_ASCISSA) : Fmt(taglia(c.x), ".0000").vero(c.x), Spc(2), Numero(ys)};
    const auto cella = [&](Elemento e) {
        voci.push_back(Zona());
        voci.push_back(std::move(e));
    };
    cella(Numero(xs));
    cella(std::move(ordinata));
    if (c.specie == SpecieOreVere::LatZeroInclinato) {
        for (Elemento &e : std::array{Taglio4(c.se), Taglio4(c.si), differenza(c.se - c.si), inf, inf, inf}) cella(std::move(e));
    } else {
        cella(estOvest ? inf : Taglio4(c.se));
        cella(estOvest ? inf : Taglio4(c.si));
        cella(differenza(c.se - c.si));
        cella(estOvest ? inf : Taglio4(c.ce));
        cella(differenza(c.se - c.ce));
        cella(differenza(c.si - c.ce));
    }
    if (prima) cella(Numero(v.deltaOpz));
    f.dati(std::move(voci));
}

}  // namespace

bool PrimoOrdine(SpecieOreVere specie, const Variabili &v) {
    return specie == SpecieOreVere::Parete ? v.altStilo > 0 : v.altStilo < 0;
}

Trilingue Intestazioni(SpecieOreVere specie, bool schermo, bool primoOrdine, bool prima) {
    const std::size_t carta = schermo ? 0 : 1;
    const Ordine ordine = !primoOrdine ? Inverso : specie == SpecieOreVere::LatZero ? Misto : Diretto;
    const std::string_view ombre = OMBRE[carta][ordine];
    const std::string_view it = specie == SpecieOreVere::Parete ? PARETE_IT[carta] : PRIMA_IT[carta];
    const std::string_view fr = prima ? PRIMA_FR[carta] : SECONDA_FR[carta];
    return {std::string(it).append(ombre), std::string(fr).append(ombre), std::string(INGLESE)};
}

void Tabelle(const Sessione &s, const Conto &v, Tabulato &f, Calcolo &c) {
    const Valore Vi = -(15 * v.letto.inizio - 180), Vf = -(15 * v.letto.fine - 180);
    const bool primo = PrimoOrdine(c.specie, v);
    for (const bool prima : {true, false}) {
        const Valore xs = prima ? v.x0 : v.x1, ys = prima ? v.y0 : v.y1;
        const std::string n = prima ? "0" : "1";
        if (!prima) f.vuota();
        f.tabella("x" + n + " = " + TestoNumero(xs.v) + ", y" + n + " = " + TestoNumero(ys.v),
                  colonne(s, Intestazioni(c.specie, true, primo, prima), prima));
        f.intestazioni(Intestazioni(c.specie, f.schermo(), primo, prima));
        for (const double V : Conteggio(Vf, Vi, 15 / v.fraz)) riga(v, f, c, V, xs, ys, prima);
    }
}

}  // namespace ombrelia::reports::ore
