// The day lines of four declinations, ordinate by abscissa.
#include <span>

#include "gnomonica/angoli_parete.h"
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/stilo.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

// Heads: of the abscissa and the first declination, then of each further one.
constexpr std::string_view PRIME[] = {"ascissa                ordinata e      ordinata i  ",
                                      "abscisse                ordonnée é      ordonnée h  ",
                                      "abscissa                ordinate s      ordinate w  "};
constexpr std::string_view ALTRE[] = {"    ordinata e      ordinata i  ", "    ordonnée é      ordonnée h  ",
                                      "    ordinate s      ordinate w  "};

// The heads, and with each column of an export its declination; the fourth one, the reader's own, has no name on the form: meant.
void testata(const Sessione &s, Tabulato &f, std::span<const Valore> declinazioni) {
    f.riga({" Coordinate cartesiane   Coordonnées rectangulaires  Rectangular coordinates"});
    Trilingue teste;
    for (std::size_t i = 0; i < 3; ++i) {
        teste[i] = PRIME[i];
        for (int n = 0; n < 3; ++n) teste[i] += ALTRE[i];
    }
    std::vector<std::string> nomi = Colonne(s, teste);
    for (std::size_t i = 1; i < nomi.size(); ++i)
        nomi[i].append(" ").append(TestoNumero(declinazioni[(i - 1) / 2].v)).append("°");
    f.tabella(std::string(), std::move(nomi));
    std::string delta = "         delta = +/- ";
    delta.append(Numero(OBLIQUITA).testo).append(" °");
    delta.append(
        "                                                                  +/- 20°                                         +/- "
        "11.5°");
    f.titoli({delta, {}, {}});
    f.intestazioni(teste);
}

// Rows: abscissa, then both ordinates of each line. Given: abscissas and conics in the unit of gn. Gives: the same unit, y
// upward. Source: see OrdinateConica. Faults: an ordinate without a value is that of the row before.
void righe(Tabulato &f, const Conteggio &ascisse, const std::vector<OrdinateConica> &linee) {
    std::array<Reale, 4> estive, invernali;
    for (const double V : ascisse) {
        std::vector<Elemento> voci{Fmt(V, "0.00")};
        for (std::size_t i = 0; i < linee.size(); ++i) {
            const Radici r = linee[i](V);
            estive[i] = r.meno;
            invernali[i] = r.piu;
            for (const Valore y : {Valore(estive[i]), Valore(invernali[i])}) {
                voci.push_back(Zona());
                voci.push_back(Fmt(y, "0.0000"));
            }
        }
        f.dati(std::move(voci));
    }
}

// The unit, and where the equinoctial lies, for the analytic engine.
void lascia(Sessione &s, Valore y0) {
    LeggiUnita(s);
    s.v.y0 = y0;
}

}  // namespace

void TabellaDiurne(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    const Conteggio ascisse(letto.limMin, letto.limMax, 0.05 / letto.unita);
    const bool inizio = Abs(letto.limMin) > Abs(letto.limMax);
    if (TroppoFitto(
            s, {{inizio ? "txtMinus" : "txtMax", inizio ? s.in.txtMinus : s.in.txtMax, ascisse, PUNTI_MASSIMI / RIGHE_MASSIME}}))
        return;
    CalcolaAngoliAnalitici(s, letto);
    const Variabili &v = s.v;
    Reale y0 = v.y0;  // an endless one leaves that of the dial before
    y0 = DistanzaEquinoziale(v.gn, v.altStilo);
    Tabulato f(s, "Form8", uscita);

    const Valore declinazioni[] = {OBLIQUITA, DELTA_SEGNI, DELTA_SEGNI_VICINI, v.deltaOpz};
    std::vector<OrdinateConica> linee;
    for (const Valore &d : declinazioni) {
        Conica k;
        const Reale m = QuadratoCotangente(d);  // a declination of 0 has none: m stays empty
        k.calcola(m, v.altStilo, v.gn);
        linee.emplace_back(k, v.angSustilare, y0);
    }
    testata(s, f, declinazioni);
    righe(f, ascisse, linee);
    lascia(s, y0);
    f.chiudi();
}

}  // namespace ombrelia::reports
