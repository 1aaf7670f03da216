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

}  // namespace

void IntersezioniSferiche(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    const Valore inizio = letto.inizio, fine = letto.fine;
    if (TroppeRighe(s, inizio, fine, letto.fraz, 5)) return;
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
        for (const double V : Conteggio(180 - 15 * fine, 180 - 15 * inizio, 15 / v.fraz)) {
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

// The hour angle of the substyle with the longitude in it, and where the equinoctial lies, on which the rows rest.
void lasciaAnalitiche(Variabili &v) {
    const Reale seno = SenOraSustilare(v.decR, v.incR, v.altStilo);
    v.angoloOra = ArcSin(seno) + (DalMeridiano(v.lonCopia, v.meridiano) * PI / 180) * v.oraFuso;
    v.y0 = DistanzaEquinoziale(v.gn, v.altStilo);
}

}  // namespace

void IntersezioniAnalitiche(Sessione &s, Uscita uscita) {
    const Lettura letto(s.in);
    const Valore inizio = letto.inizio, fine = letto.fine;
    if (TroppeRighe(s, inizio, fine, letto.fraz, 4)) return;
    CalcolaAngoliAnalitici(s, letto);
    lasciaAnalitiche(s.v);
    const Variabili &v = s.v;
    Tabulato f(s, "Form7", uscita);

    f.etichetta(" Geometria Analitica "_it);
    const auto tabella = [&](Valore delta) { f.tabella("delta = +/- " + TestoNumero(delta.v), colonne(s)); };
    const Valore tabelle[] = {v.deltaOpz, DELTA_SEGNI, DELTA_SEGNI_VICINI, 0};
    const RiferimentoSustilare quadro(v.angSustilare, v.y0);
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
        for (const double V : Conteggio(180 - 15 * fine, 180 - 15 * inizio, 15 / v.fraz)) {
            const Valore t = V * PI / 180;
            h = (v.gn / cos(v.altStilo)) * tan(v.angoloOra + t);
            q = sin(v.altStilo) * tan(v.angoloOra + t);
            const Valore a = equinozio ? Valore(1) : 1 + k.R * (q * q);
            const Valore b = equinozio ? Valore(0) : k.Q - 2 * k.R * h * q;
            const Valore c = equinozio ? Valore(0) : k.P + k.R * (h * h);
            const Radici r = RisolviQuadratica(a, b, c);
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
    s.in.OptInter = 0;
    f.chiudi();
}

}  // namespace ombrelia::reports
