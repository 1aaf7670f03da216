// Where the hour lines meet the day lines, by spherical trigonometry and by analytic geometry.
#include "gnomonica/angoli_parete.h"
#include "gnomonica/conica.h"
#include "gnomonica/declinazioni.h"
#include "gnomonica/longitudine.h"
#include "gnomonica/proiezione.h"
#include "gnomonica/stilo.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

namespace {

const Trilingue LINEE{
    "                                                            linea diurna invernale                        linea diurna "
    "estiva",
    "                                                            arc diurne d'hiver                               arc diurne "
    "d'été",
    "                                                            winter daylight arc                              summer "
    "daylight arc "};
const Trilingue TESTE{
    " ora                            A.0.                     ascissa                ordinata                   ascissa          "
    "      ordinata  ",
    " heure                       A.H.                     abscisse               ordonnée                   ascissa             "
    "   ordinata  ",
    " hour                          H.A.                     abscissa               ordinate                   abscissa          "
    "     ordinate  "};

// Names for exports: the columns under each of the two day lines are told apart by its name.
std::vector<std::string> colonne(const Sessione &s) {
    std::vector<std::string> nomi = Colonne(s, TESTE);
    const std::vector<std::string> linee = Colonne(s, LINEE);
    for (std::size_t i = 2; i < 6; ++i) nomi[i] += ", " + linee[(i - 2) / 2];
    nomi.emplace_back("delta");
    return nomi;
}

Elemento quattro(Valore x) { return Fmt(x, "0.0000"); }

// Hour angles of the rows, degrees. The spherical table counts them positive after noon, the analytic one before: meant.
Conteggio angoli(const Lettura &letto, Valore fraz) { return {180 - 15 * letto.fine, 180 - 15 * letto.inizio, 15 / fraz}; }

}  // namespace

void IntersezioniSferiche(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, letto.inizio, letto.fine, letto.fraz, 5)) return;
    LeggiParametri(s, letto);
    LeggiUnita(s);
    const Variabili &v = s.v;
    Tabulato f(s, "Form6", uscita);
    const Valore cL = v.lonPiu15 * v.oraFuso * SegnoLatitudine(v.latR);  // degrees

    f.riga({" Trigonometria sferica - Trigonometrie spherique - Spherical trigonometry"});
    f.vuota();
    const auto tabella = [&](Valore delta) { f.tabella("delta = +/- " + TestoNumero(delta.v), colonne(s)); };
    // The last one is worked for the declinations of the third and only labelled otherwise: meant.
    const Reale scelta = letto.delta;
    const struct {
        double delta;
        Valore scritta;
    } tabelle[] = {{OBLIQUITA, OBLIQUITA},
                   {DELTA_SEGNI, DELTA_SEGNI},
                   {DELTA_SEGNI_VICINI, DELTA_SEGNI_VICINI},
                   {0, 0},
                   {DELTA_SEGNI_VICINI, scelta}};
    tabella(OBLIQUITA);
    f.titoli(LINEE);
    f.vuota();
    f.intestazioni(TESTE);
    f.vuota();
    const Proiezione proietta = Proiezione::delPiano(v.latR, v.decR, v.incR, v.gn, 1);
    Reale xa, ya, xb, yb;
    bool prima = true;
    for (const auto &t : tabelle) {
        if (!prima) {
            f.vuota();
            tabella(t.scritta);
        }
        prima = false;
        for (const double V : angoli(letto, v.fraz)) {
            const Valore a = (V - cL) * PI / 180;
            proietta(a, Radianti(-t.delta), xa, ya);
            proietta(a, Radianti(t.delta), xb, yb);
            f.dati({Fmt(12 + Valore(V) / 15, "00.00"), Zona(), Fmt(V - cL, "00.00"), Zona(), quattro(xa), Zona(), quattro(ya),
                    Zona(), quattro(xb), Zona(), quattro(yb), Zona(), Ornamento("delta = "), Numero(t.scritta)});
        }
    }
    f.chiudi();
}

namespace {

// What the rows rest on.
struct SustilareAnalitica {
    explicit SustilareAnalitica(const Variabili &v) : angoloOra(v.angoloOra), y0(v.y0) {
        const Reale seno = SenOraSustilare(v.decR, v.incR, v.altStilo);
        angoloOra = ArcSin(seno) + CorrezioneFuso(DalMeridiano(v.lonCopia, v.meridiano), v.oraFuso);
        y0 = DistanzaEquinoziale(v.gn, v.altStilo);
    }
    Reale angoloOra;  // hour angle of the substyle with the longitude in it, radians
    Reale y0;         // from the foot to the equinoctial, the unit of gn
};

// The same, for the engines that take them up; the option that asked for the report springs back.
void lasciaAnalitiche(Sessione &s, const SustilareAnalitica &sustilare) {
    s.v.angoloOra = sustilare.angoloOra;
    s.v.y0 = sustilare.y0;
    s.in.OptInter = 0;
}

// Where the hour line that meets the equinoctial at h, with the slope q, meets a day line. Given: both in the frame of the
// substyle, the equinox being a line and no conic. Gives: both points by the sign of the root. Source: the line put into the
// conic's equation. Faults: none where they don't meet.
Quadratica incontri(const Conica &k, Valore h, Valore q, bool equinozio) {
    if (equinozio) return {1, 0, 0};
    return {1 + k.R * (q * q), k.Q - 2 * k.R * h * q, k.P + k.R * (h * h)};
}

}  // namespace

void IntersezioniAnalitiche(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    if (TroppeRighe(s, letto.inizio, letto.fine, letto.fraz, 4)) return;
    CalcolaAngoliAnalitici(s, letto);
    const Variabili &v = s.v;
    const SustilareAnalitica sustilare(v);
    Tabulato f(s, "Form7", uscita);

    f.etichetta(" Geometria Analitica "_it);
    const auto tabella = [&](Valore delta) { f.tabella("delta = +/- " + TestoNumero(delta.v), colonne(s)); };
    const Valore tabelle[] = {v.deltaOpz, DELTA_SEGNI, DELTA_SEGNI_VICINI, 0};
    const RiferimentoSustilare quadro(v.angSustilare, sustilare.y0);
    Conica k;
    Reale m, h, q, x1, y1, x2, y2;
    bool prima = true;
    for (const Valore &delta : tabelle) {
        if (!prima) f.vuota();
        tabella(delta);
        if (prima) {
            f.titoli(LINEE);
            f.intestazioni(TESTE);
        }
        const bool equinozio = &delta == &tabelle[3];
        prima = false;
        m = QuadratoCotangente(delta);
        k.calcola(m, v.altStilo, v.gn);
        for (const double V : angoli(letto, v.fraz)) {
            const Valore t = V * PI / 180;
            h = (v.gn / cos(v.altStilo)) * tan(sustilare.angoloOra + t);
            q = sin(v.altStilo) * tan(sustilare.angoloOra + t);
            const Radici r = incontri(k, h, q, equinozio).radici();
            if (r.reali) {
                const Valore u1 = -(h - r.piu * q), u2 = -(h - r.meno * q);
                x1 = quadro.x(u1, r.piu);
                y1 = quadro.y(u1, r.piu);
                x2 = quadro.x(u2, r.meno);
                y2 = quadro.y(u2, r.meno);
            }
            f.dati({Fmt(12 - Valore(V) / 15, "00.00"), Zona(), Fmt(-Valore(V) - v.lonPiu15 * v.oraFuso, "00.0000"), Zona(),
                    Taglio4(x1), Zona(), Taglio4(y1), Zona(), Taglio4(x2), Zona(), Taglio4(y2), Zona(), Ornamento("delta = "),
                    Numero(delta)});
        }
    }
    lasciaAnalitiche(s, sustilare);
    f.chiudi();
}

}  // namespace ombrelia::reports
