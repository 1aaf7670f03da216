// Hours from sunset, from sunrise and twelfths of the day: an hour line is taken straight through its two solstice points.
#include <functional>

#include "gnomonica/declinazioni.h"
#include "gnomonica/proiezione.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

enum class Ora : std::uint8_t { Italica, Babilonica, Temporaria };

struct TestiStagionali {
    std::string_view modulo;
    // Titles and heads of the table of solstices, then of those of chosen lines; Italian, French, English.
    std::array<std::string_view, 3> titoloSolstizi, testaSolstizi, titoloRette, testaRette;
};

const TestiStagionali &testi(Ora ora) {
    static const TestiStagionali tutti[] = {
        {"Form9",
         {"COORDINATE CARTESIANE DEGLI INTERCETTI DELLE RETTE ORARIE Italiche con le linee diurne dei SOLSTIZI.",
          "Coordonnées rectangulaires des points d'intersection des droites horaires italiques avec les lignes des solstices.",
          "Rectangular coordinates of the intercepts of the Italic hour lines with the curves of the solstices"},
         {"ora italica           ascissa i              ordinata i              ascissa e            ordinata e",
          "heure italique    abscisse h         ordonnée h              abscisse é           ordonnée é",
          "Italic hour           abscissa w             ordinate w              abscissa s           ordinate s"},
         {"COORDINATE CARTESIANE DEGLI INTERCETTI DELLE RETTE ORARIE italiche con rette a piacere.",
          "Coordonnées rectangulaires des points d'intersection des lignes horaires italiques avec droites au choix.",
          "Rectangular coordinates of the intercepts of Italic hour lines with optional straight lines."},
         {"ora italica           ascissa               ordinata               ordinata            ascissa",
          "heure italique    abscisse h         ordonnée h               ordonnée               abscisse ",
          "Italic hour           abscissa               ordinate               ordinate            abscissa"}},
        {"Form4",
         {"COORDINATE CARTESIANE DEGLI INTERCETTI DELLE RETTE ORARIE Babiloniche con le linee diurne dei SOLSTIZI.",
          "Coordonnées rectangulaires des points d'intersection des droites horaires babyloniques avec les lignes des solstices.",
          "Rectangular coordinates of the intercepts of the Babylonic hour lines with the curves of the solstices"},
         {"ora babilonica        ascissa i         ordinata i            ascissa e            ordinata e",
          "heure babylonique     abscisse h        ordonnée h            abscisse é           ordonnée e",
          "Babylonic hour        abscissa w        ordinate w            abscissa s           ordinat s"},
         {"COORDINATE CARTESIANE DEGLI INTERCETTI DELLE RETTE ORARIE babiloniche con rette a piacere.",
          "Coordonnées rectangulaires des points d'intersection des lignes horaires babyloniques avec droites au choix.",
          "Rectangular coordinates of the intercepts of Babylonic hour lines with optional straight lines."},
         {"ora babilonica           ascissa               ordinata               ordinata            ascissa",
          "heure babylonique    abscisse h         ordonnée h               ordonnée               abscisse ",
          "Babylonic hour           abscissa               ordinate               ordinate            abscissa"}},
        {"Form3",
         {},
         {},
         {"COORDINATE DEGLI INTERCETTI DELLE RETTE ORARIE Temporarie CON RETTE A PIACERE, PER ESEMPIO I BORDI DEL QUADRO.",
          "Coordonnées des intersections des lignes horaires temporaires avec des droites au choix, par exemple les bords du "
          "cadre.",
          "Coordinates of the intercepts of the temporary hour lines with straight lines, for example the edges of the pattern."},
         {"ora temp               ascissa                ordinata                ordinata               ascissa ",
          "heure temp          abscisse                ordonnée                ordonnée               abscisse ",
          "temp hour              abscissa               ordinate                ordinate               abscissa "}},
    };
    return tutti[static_cast<std::size_t>(ora)];
}

// The two solstice points of a line: a at the winter one, b at the summer one.
struct Punti {
    Reale xa, ya, xb, yb;
};

// The plane as the lines take it, radians: a horizontal one that was transformed comes back; one that lies level has no
// declination.
struct PianoLinee {
    explicit PianoLinee(const Variabili &v) : latR(v.latR), decR(v.decR), incR(v.incR) {
        if (Gradi(v.iz_o) != 90 || v.incR != 0) return;
        latR = v.lat_o;
        decR = 0;
        incR = PI / 2;
    }
    [[nodiscard]] bool orizzontale() const { return Gradi(incR) == 90; }
    Reale latR, decR, incR;
};

// Runs through the lines of a report, what one line computes carried to the next: a half day that doesn't exist is that of the
// line before.
class Linee {
public:
    Linee(const Variabili &v, const PianoLinee &p, Ora ora)
        : tanLat_(tan(v.lat_o)),
          diffLong_(v.diffLong),
          ora_(ora),
          proietta_(Proiezione::delPiano(p.latR, p.decR, p.incR, v.gn, 1)) {}

    // The solstice points of the line V. Given: the hour as its system counts it. Gives: the unit of gn, y upward. Source: half
    // the day by cos H = -tan(lat) tan(delta), the hour angle from sunset, sunrise or noon, the gnomonic projection; departure:
    // the line between is taken to be straight, which that of a twelfth is but nearly. Faults: a point without a value is the
    // line's before.
    const Punti &operator()(double V) {
        punto(V, -OBLIQUITA, p_.xa, p_.ya);
        punto(V, OBLIQUITA, p_.xb, p_.yb);
        return p_;
    }

private:
    void punto(double V, double delta, Reale &x, Reale &y) {
        const Valore d = Radianti(delta);
        H_ = PI / 2 - ArcSin(-tanLat_ * tan(d));
        switch (ora_) {
            case Ora::Italica:
                a_ = Valore(V) * PI / 12 + H_ - 2 * PI + diffLong_;
                break;
            case Ora::Babilonica:
                a_ = Valore(V) * PI / 12 - H_ + diffLong_;
                break;
            case Ora::Temporaria:
                a_ = H_ * (Valore(V) / 6 - 1) + diffLong_;
                break;
        }
        proietta_(Valore(a_), d, x, y);
    }

    Valore tanLat_, diffLong_;  // of the original dial; its longitude less that of the plane, radians
    Ora ora_;
    Proiezione proietta_;
    Reale H_, a_;
    Punti p_;
};

// What a row shows in the place of an ordinate or abscissa; empty for the number itself.
struct Speciale {
    std::string_view ordinata, ascissa;
};

Elemento quattro(Valore x) { return Fmt(x, "0.0000"); }

Trilingue trilingue(const std::array<std::string_view, 3> &t) {
    return {std::string(t[0]), std::string(t[1]), std::string(t[2])};
}

void testata(Sessione &s, Tabulato &f, const std::array<std::string_view, 3> &titoli,
             const std::array<std::string_view, 3> &teste, const std::string &rette) {
    f.vuota();
    f.tabella(std::string(titoli[Lingua(s)]) + rette, Colonne(s, trilingue(teste)));
    f.titoli(trilingue(titoli));
    f.vuota();
    f.intestazioni(trilingue(teste));
}

// The tables against (x0, y0) and (x1, y1). Given: the lines. Gives: the unit of gn, y upward. Source: the straight line through
// two points. Faults: what has no value is that of the row before.
void tabelleRette(Sessione &s, Tabulato &f, const TestiStagionali &t, Linee &linee, const Conteggio &ore,
                  const std::function<Speciale(double)> &speciale) {
    const Variabili &v = s.v;
    Reale ordinata, ascissa;
    for (const bool prima : {true, false}) {
        const Valore xs = prima ? v.x0 : v.x1, ys = prima ? v.y0 : v.y1;
        testata(s, f, t.titoloRette, t.testaRette, " x = " + TestoNumero(xs.v) + ", y = " + TestoNumero(ys.v));
        for (const double V : ore) {
            const Punti &p = linee(V);
            ordinata = (xs - p.xa) * (p.yb - p.ya) / (p.xb - p.xa) + p.ya;
            ascissa = (ys - p.ya) * (p.xb - p.xa) / (p.yb - p.ya) + p.xa;
            const Speciale e = speciale(V);
            f.dati({Fmt(V, "00.00"), Zona(), quattro(xs), Zona(), e.ordinata.empty() ? quattro(ordinata) : Elemento(e.ordinata),
                    Zona(), quattro(ys), Zona(), e.ascissa.empty() ? quattro(ascissa) : Elemento(e.ascissa)});
        }
    }
}

void latitudini(const Variabili &v, const PianoLinee &p, Tabulato &f) {
    const auto riga = [&](std::string_view nome, Valore lat, Valore dec, Valore inc) {
        f.riga({nome, Spc(2), Numero(Round(Gradi(lat), 4)), Zona(), Numero(Round(dec, 4)), Zona(), Numero(Gradi(inc))});
    };
    riga("lat", p.latR, v.dec, p.incR);
    riga("lat_o", v.lat_o, Gradi(v.dec_o), v.iz_o);
}

// For the reports and engines after this one: the plane of the lines.
void lasciaPiano(Variabili &v, const PianoLinee &p) {
    v.latR = p.latR;
    v.decR = p.decR;
    v.incR = p.incR;
}
// The options that asked for the report spring back.
void lasciaOpzioni(DialInputs &in) {
    in.OptIta = 0;
    in.OptBab = 0;
}
void lasciaOpzioneTemporarie(DialInputs &in) { in.OptTEMP = 0; }

// The day on which the lines end, degrees.
void lasciaSolstizio(Variabili &v) { v.deltaOpz = OBLIQUITA; }

void italicheBabiloniche(Sessione &s, Uscita uscita, Ora ora) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, letto.inizio, letto.fine, letto.fraz, 3)) return;
    LeggiParametri(s, letto);
    const Variabili &v = s.v;
    const TestiStagionali &t = testi(ora);
    Tabulato f(s, t.modulo, uscita);
    PianoLinee piano(v);
    Valore da = letto.inizio, a = letto.fine;
    if (piano.orizzontale()) {
        piano.decR = 0;
        da = 12;
        a = 22;
    }
    const Conteggio ore(da, a, 1 / v.fraz);
    testata(s, f, t.titoloSolstizi, t.testaSolstizi, {});
    Linee linee(v, piano, ora);
    for (const double V : ore) {
        const Punti &p = linee(V);
        f.dati({Fmt(V, "00.00"), Zona(), quattro(p.xa), Zona(), quattro(p.ya), Zona(), quattro(p.xb), Zona(), quattro(p.yb)});
    }
    tabelleRette(s, f, t, linee, ore, [](double V) { return V == 24 ? Speciale{"0", "inf"} : Speciale{}; });
    latitudini(v, piano, f);
    lasciaPiano(s.v, piano);
    if (ore.begin() != ore.end()) lasciaSolstizio(s.v);
    lasciaOpzioni(s.in);
    f.chiudi();
}

// Noon, which a level dial's substyle is.
void lasciaMezzogiorno(Variabili &v) { v.angoloOra = 0; }

// Lines that are no hour lines are told to be nearly straight.
void avvertenza(Tabulato &f) {
    f.vuota();
    for (const std::string_view riga :
         {"Si ricorda che i dati numerici sono stati ottenuti considerando rette le linee orarie. ",
          "L'errore che si commette è comunque irrilevante ai fini pratici.",
          "On rappel que les données numériques ont été obtenues en considérant droites les lignes horaires.",
          "L'erreur commis est en pratique de toute façon insignifiant.",
          "Let me remind you that the numerical data have been obtained considering straight the hour lines. ",
          "The error is, in any case, irrelevant."})
        f.riga({riga});
}

}  // namespace

void OreTemporarie(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, 0, 11, letto.fraz, 2)) return;
    LeggiParametri(s, letto);
    const Variabili &v = s.v;
    Tabulato f(s, "Form3", uscita);
    PianoLinee piano(v);
    lasciaOpzioneTemporarie(s.in);
    if (v.lat_o == 0) {
        lasciaPiano(s.v, piano);
        f.chiudi();
        return;
    }
    const bool orizzontale = Gradi(v.iz_o) == 90;
    if (orizzontale) {
        piano.decR = 0;
        lasciaMezzogiorno(s.v);
        f.riga({f.schermo() ? "iz0 = 90" : "iz_o = 90"});
    }
    lasciaPiano(s.v, piano);
    // Sunrise and sunset are the horizon, which has no abscissa at an ordinate; noon is upright and has no ordinate.
    const bool nonTrasformato = Gradi(piano.latR) == Gradi(v.lat_o);
    const auto speciale = [nonTrasformato](double V) {
        return V == 6 ? Speciale{"inf", {}} : nonTrasformato && (V == 0 || V == 12) ? Speciale{{}, "inf"} : Speciale{};
    };
    Linee linee(v, piano, Ora::Temporaria);
    const Conteggio ore = orizzontale ? Conteggio(1, 11, 1) : Conteggio(0, 4, 1 / v.fraz);
    tabelleRette(s, f, testi(Ora::Temporaria), linee, ore, speciale);
    latitudini(v, piano, f);
    avvertenza(f);
    f.chiudi(orizzontale ? "Lia Berna 220408 " : "");
}

void OreItaliche(Sessione &s, Uscita uscita) { italicheBabiloniche(s, uscita, Ora::Italica); }
void OreBabiloniche(Sessione &s, Uscita uscita) { italicheBabiloniche(s, uscita, Ora::Babilonica); }

}  // namespace ombrelia::reports
