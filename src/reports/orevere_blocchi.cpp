// Under the tables of the true hours: equinoctial, substyle, fundamental points, legend.
#include "gnomonica/longitudine.h"
#include "reports/orevere.h"

namespace ombrelia::reports::ore {

namespace {

// A turned dial's substyle, and the point P where substyle and equinoctial meet.
struct Piede {
    Reale x, y;
};
Piede preparaBlocchi(Conto &v, Calcolo &c) {
    if (Abs(v.dec) == 90) {
        v.segStiloSus = v.gn / tan(v.altStilo);
        v.xCentro = -v.segStiloSus * sin(v.angSustilare);
        v.yCentro = v.segStiloSus * cos(v.angSustilare);
    }
    if (Abs(v.dec) > 90) {
        v.angSustilare = v.segnoDec * PI - v.angSustilare;
        v.angoloOra = v.angoloOra + v.segnoDec * 180;  // degrees onto radians: meant
        c.oraSus = 12 + v.angoloOra / 15;
    }
    Piede p;
    if (Abs(v.declinSessag) != 90) {
        p.x = v.gn * tan(v.altStilo) * sin(v.angSustilare);
        p.y = -v.gn * tan(v.altStilo) * cos(v.angSustilare);
    }
    return p;
}

void coppie(Conto &v, Tabulato &f, Calcolo &c) {
    const Piede P = preparaBlocchi(v, c);
    const Valore ts = tan(v.angSustilare);
    const bool declina = v.decR != 0;
    const auto taglia = [](Valore x) { return Int(x * 10000) / 10000; };
    // Not computed is 0.
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

}  // namespace

void Blocchi(Sessione &s, Conto &v, Tabulato &f, Calcolo &c) {
    const bool equatore = c.specie == SpecieOreVere::LatZero || c.specie == SpecieOreVere::LatZeroInclinato;
    s.in.optHorae = 0;
    f.colore(BLU);
    if (equatore) {
        v.xSusEq = Sgn(v.xCentro) * v.gn * tan(v.altStilo);
        f.etichetta("E Q U I N O Z I A L E"_it);
        f.riga({f.tr("La retta equinoziale è sempre verticale dal punto xel ="_it),
                Numero(Round(v.xSusEq * 10000, 4) / 10000).vero(v.xSusEq)});
        f.etichetta("S U S T I L A R E"_it);
        f.etichetta("La retta sustilare coincide con l'orizzonte"_it);
    } else {
        coppie(v, f, c);
    }
    const Valore GP = Abs(v.segAsse) - Abs(v.segStiloSus), PM = v.segAsse * tan(v.angSustilare);
    f.riga({f.tr("CM = "_it), Arrotonda5(v.segCentroPiede), Spc(3), f.tr("CG = "_it), Arrotonda5(v.segStiloSus), Spc(3),
            f.tr("CP = "_it), Arrotonda5(v.segAsse)});
    f.riga({f.tr("GP = "_it), Arrotonda5(GP), Spc(3), f.tr("PM = "_it), Arrotonda5(PM), Spc(3), f.tr("MS = "_it),
            Arrotonda5(v.segPiedeEq)});
    f.colore(NERO);
    const auto angolo = [&](std::string_view nome, Valore x, std::string_view cosa) {
        f.riga({f.tr(nome), Arrotonda5(x), f.tr(" rad   "_it), Arrotonda5(Gradi(x)), " °", Zona(), f.tr(cosa)});
    };
    angolo("sigma ="_it, v.angSustilare, "angolo sustilare i"_it);
    angolo("epsilon ="_it, -v.altStilo, "elevazione dello stilo j"_it);
    if (equatore) f.colore(BLU_SCURO);
    f.riga({f.tr("CX ="_it), Arrotonda5(v.xCentro), Spc(3), f.tr("CY ="_it), Arrotonda5(v.yCentro), Zona(),
            f.tr("Coordinate del centro"_it)});
    if (equatore) f.colore(NERO);

    const Valore minuti = 60 * (c.oraSus - Int(c.oraSus));
    const Valore angolare = Gradi(equatore ? Valore(v.angoloOra) : v.angoloOra - v.diffLong);
    const Valore dalFuso = DalMeridiano(angolare, v.meridiano);
    const Valore longitudine = equatore ? -Round(dalFuso, 4) : -dalFuso;
    f.riga({f.tr("ORA VERA SUSTILARE "_it), Arrotonda5(c.oraSus), Numero(Int(c.oraSus)), Numero(Int(minuti)),
            Arrotonda5(60 * (minuti - Int(minuti))), f.tr(" long.sustilare = "_it), Fmt(longitudine, "0.0000")});
    const std::string unita = s.Traduci(equatore ? " metri" : " unità");
    f.riga({f.tr("latitudine "_it), Arrotonda5(v.lat), f.tr(", declinazione "_it), Arrotonda5(v.dec), f.tr(", ortostilo "_it),
            Arrotonda5(v.gn), unita, f.tr(", assostilo "_it), Arrotonda5(v.assostiloLen), unita});
    f.riga({f.tr("longitudine "_it), Arrotonda5(v.lon), f.tr(", declinazione sole "_it), Arrotonda5(v.deltaOpz)});
    f.legenda();
    if (equatore) f.colore(MAGENTA);
}

}  // namespace ombrelia::reports::ore
