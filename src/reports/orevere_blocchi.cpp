// Under the tables of the true hours: equinoctial, substyle, fundamental points, legend.
#include "gnomonica/centro.h"
#include "gnomonica/longitudine.h"
#include "reports/orevere.h"

namespace ombrelia::reports::ore {

namespace {

// The point P where substyle and equinoctial meet. Given: ortostilo, the dial. Gives: the unit of gn, y upward; departure: the
// foot itself where the wall looks due east or west. Source: elementary geometry. Faults: 0.
struct PuntoEquinoziale {
    Reale x, y;
};
PuntoEquinoziale incontro(Valore gn, const DatiOre &d) {
    PuntoEquinoziale p;
    if (Abs(d.declinSessag) != 90) {
        const Valore y0 = DistanzaEquinoziale(gn, d.altStilo);
        p.x = y0 * sin(d.angSustilare);
        p.y = -y0 * cos(d.angSustilare);
    }
    return p;
}

void coppie(const Variabili &v, const DatiOre &d, Tabulato &f) {
    const PuntoEquinoziale P = incontro(v.gn, d);
    const Valore ts = tan(d.angSustilare);
    const bool declina = d.decR != 0;
    const auto taglia = [](Valore x) { return Int(x * 10000) / 10000; };
    // The equinoctial runs through P square to the substyle. Given: an abscissa, an ordinate. Gives: the other, those but the
    // first cut to four decimals; not computed is 0.
    const auto equinoziale = [&](Valore a) { return Reale(declina ? ts * (a - P.x) + P.y : Valore(0)); };
    const auto equinozialeY = [&](Valore b) { return Reale(declina ? taglia((b - P.y) / ts + P.x) : Valore(0)); };
    const auto sustilare = [&](Valore a) { return Reale(taglia(-a / ts)); };
    const auto sustilareY = [&](Valore b) { return Reale(taglia(-b * ts)); };
    const auto riga = [&](std::string_view scelta, Valore quale, std::string_view relativa, Reale valore) {
        f.riga({f.tr(scelta), Arrotonda5(quale), Zona(), f.tr(relativa), Arrotonda5(valore)});
    };
    f.etichetta("E Q U I N O Z I A L E"_it);
    riga("Ascissa retta equinoziale a scelta x0 ="_it, v.x0, "Ordinata relativa y ="_it, equinoziale(v.x0));
    riga("Ordinata retta equin.ale a scelta y0 ="_it, v.y0, "Ascissa relativa x ="_it, equinozialeY(v.y0));
    riga("Ascissa retta equinoziale a scelta x2 ="_it, v.xEq, "Ordinata relativa y ="_it, equinoziale(v.xEq));
    riga("Ordinata retta equin.ale a scelta y2 ="_it, v.yEq, "Ascissa relativa x ="_it, equinozialeY(v.yEq));
    f.etichetta("S U S T I L A R E"_it);
    riga("Ascissa retta sustilare a scelta x0 ="_it, v.x0, "Ordinata relativa y ="_it, sustilare(v.x0));
    riga("Ordinata retta sust.re a scelta y0 ="_it, v.y0, "Ascissa relativa x ="_it, sustilareY(v.y0));
    riga("Ascissa retta sustilare a scelta x3 ="_it, v.xSus, "Ordinata relativa y ="_it, sustilare(v.xSus));
    riga("Ordinata retta sust.re a scelta y3 ="_it, v.ySus, "Ascissa relativa x ="_it, sustilareY(v.ySus));
}

bool equatore(const DatiOre &d) { return d.specie == SpecieOreVere::LatZero || d.specie == SpecieOreVere::LatZeroInclinato; }

}  // namespace

DatiOre DatiDeiBlocchi(const Variabili &v, DatiOre d) {
    if (equatore(d)) {
        d.xSusEq = Sgn(d.lati.xCentro) * v.gn * tan(d.altStilo);
        return d;
    }
    if (Abs(v.dec) == 90) {
        d.lati.CG = v.gn / tan(d.altStilo);
        const PostoCentro centro = CentroDaSustilare(d.lati.CG, d.angSustilare);
        d.lati.xCentro = centro.x;
        d.lati.yCentro = centro.y;
    }
    if (Abs(v.dec) > 90) {
        d.angSustilare = d.segnoDec * PI - d.angSustilare;
        d.angoloOra = d.angoloOra + d.segnoDec * 180;  // degrees onto radians: meant
        d.oraSus = 12 + d.angoloOra / 15;
    }
    return d;
}

void Blocchi(const Sessione &s, const DatiOre &d, Tabulato &f) {
    const Variabili &v = s.v;
    const TriangoloStilo &t = d.lati;
    f.colore(BLU);
    if (equatore(d)) {
        f.etichetta("E Q U I N O Z I A L E"_it);
        f.riga({f.tr("La retta equinoziale è sempre verticale dal punto xel ="_it),
                Numero(Round(d.xSusEq * 10000, 4) / 10000).vero(d.xSusEq)});
        f.etichetta("S U S T I L A R E"_it);
        f.etichetta("La retta sustilare coincide con l'orizzonte"_it);
    } else {
        coppie(v, d, f);
    }
    const Valore GP = Abs(t.CP) - Abs(t.CG), PM = t.CP * tan(d.angSustilare);
    f.riga({f.tr("CM = "_it), Arrotonda5(t.CM), Spc(3), f.tr("CG = "_it), Arrotonda5(t.CG), Spc(3), f.tr("CP = "_it),
            Arrotonda5(t.CP)});
    f.riga(
        {f.tr("GP = "_it), Arrotonda5(GP), Spc(3), f.tr("PM = "_it), Arrotonda5(PM), Spc(3), f.tr("MS = "_it), Arrotonda5(t.MS)});
    f.colore(NERO);
    const auto angolo = [&](std::string_view nome, Valore x, std::string_view cosa) {
        f.riga({f.tr(nome), Arrotonda5(x), f.tr(" rad   "_it), Arrotonda5(Gradi(x)), " °", Zona(), f.tr(cosa)});
    };
    angolo("sigma ="_it, d.angSustilare, "angolo sustilare i"_it);
    angolo("epsilon ="_it, -d.altStilo, "elevazione dello stilo j"_it);
    if (equatore(d)) f.colore(BLU_SCURO);
    f.riga({f.tr("CX ="_it), Arrotonda5(t.xCentro), Spc(3), f.tr("CY ="_it), Arrotonda5(t.yCentro), Zona(),
            f.tr("Coordinate del centro"_it)});
    if (equatore(d)) f.colore(NERO);

    const Valore minuti = 60 * (d.oraSus - Int(d.oraSus));
    const Valore angolare = Gradi(equatore(d) ? Valore(d.angoloOra) : d.angoloOra - d.diffLong);
    const Valore dalFuso = DalMeridiano(angolare, v.meridiano);
    const Valore longitudine = equatore(d) ? -Round(dalFuso, 4) : -dalFuso;
    f.riga({f.tr("ORA VERA SUSTILARE "_it), Arrotonda5(d.oraSus), Numero(Int(d.oraSus)), Numero(Int(minuti)),
            Arrotonda5(60 * (minuti - Int(minuti))), f.tr(" long.sustilare = "_it), Fmt(longitudine, "0.0000")});
    const std::string unita = s.Traduci(equatore(d) ? " metri" : " unità");
    f.riga({f.tr("latitudine "_it), Arrotonda5(v.lat), f.tr(", declinazione "_it), Arrotonda5(v.dec), f.tr(", ortostilo "_it),
            Arrotonda5(v.gn), unita, f.tr(", assostilo "_it), Arrotonda5(t.assostiloLen), unita});
    f.riga({f.tr("longitudine "_it), Arrotonda5(d.lon), f.tr(", declinazione sole "_it), Arrotonda5(d.delta)});
    f.legenda();
    if (equatore(d)) f.colore(MAGENTA);
}

}  // namespace ombrelia::reports::ore
