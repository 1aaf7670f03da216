// Towns, points that are read back and the shadow that moves over the dial, as the page asks for them.
#include "certificato/istante.h"
#include "luoghi/atlante.h"
#include "web/json.h"
#include "web/pagina.h"

namespace ombrelia::web {

namespace {

constexpr double MM = 1000;

// The sheet's millimetres, y downward, and the plane's metres as mounted, y upward.
struct Vista {
    double x0, y0, versoX, versoY;
    explicit Vista(const Tavolo &t, const Posa &posa)
        : x0(t.ShiftX()), y0(t.ShiftY()), versoX(t.FattoreX * (posa.australe ? -1 : 1)), versoY(-t.FattoreY) {}
    [[nodiscard]] ombra::Punto piano(double x, double y) const { return {(x / MM - x0) * versoX, (y / MM - y0) * versoY}; }
    Json &foglio(Json &j, const ombra::Punto &p) const {
        return j.apri('[').numero((p.x * versoX + x0) * MM).numero((p.y * versoY + y0) * MM).chiudi(']');
    }
};

const char *parola(ombra::Luce l) {
    switch (l) {
        case ombra::Luce::Si: return "si";
        case ombra::Luce::Notte: return "notte";
        case ombra::Luce::Mai: return "mai";
        default: return "dietro";
    }
}

}  // namespace

std::string Pagina::Luoghi(std::string_view inizio) {
    Json j;
    j.apri('[');
    for (const luoghi::Luogo *l : luoghi::Atlante::Comune().Suggerisci(inizio, 8)) {
        j.apri('[').testo(luoghi::NomeChiesto(*l, inizio));
        j.testo(l->regione.empty() ? std::string(l->paese) : std::string(l->regione) + ", " + std::string(l->paese));
        for (const double n : {l->latitudine, l->longitudine, l->meridiano}) j.testo(TestoNumero(n));
        j.chiudi(']');
    }
    return std::move(j.chiudi(']')).fine();
}

std::string Pagina::Leggi(double x, double y, int anno) {
    const Sessione &s = disegno();
    const Posa posa = PosaDelDisegno(s);
    const Vista vista(s.tavolo, posa);
    const ombra::Punto p = vista.piano(x, y);
    Json j;
    j.apri('{').nome("x").numero(p.x * MM).nome("y").numero(p.y * MM);
    if (posa.quadrante.gnomone == 0) return std::move(j.nome("luce").testo("mai").chiudi('}')).fine();
    const LetturaPunto l = LeggiPunto(posa, p, anno);
    j.nome("luce").testo(parola(l.sole.luce)).nome("vera").testo(Orologio(l.oraVera));
    j.nome("altezza").numero(l.sole.altezza * ombra::GRADI).nome("azimut").numero(l.sole.azimut * ombra::GRADI);
    j.nome("date").apri('[');
    for (const ombra::Data &d : l.date) j.testo(testoData(d));
    // The zone's clock at each of the dates: true time, the meridian and that day's equation of time.
    j.chiudi(']').nome("fuso").apri('[');
    for (const double jd : l.momenti) j.testo(Orologio(l.oraVera + (posa.minutiDelFuso() - ombra::soleDi(jd).equazione) / 60));
    return std::move(j.chiudi(']').chiudi('}')).fine();
}

std::string Pagina::Ombra(std::string_view data, double ore) {
    const Sessione &s = disegno();
    const Posa posa = PosaDelDisegno(s);
    const Vista vista(s.tavolo, posa);
    const Istante i = IstanteDi(posa, ombra::leggiData(data).value_or(ombra::Data{}), ore, posa.fuso());
    const ombra::Piano piano(posa.quadrante);
    Json j;
    j.apri('{').nome("luce").testo(parola(i.ombra.luce)).nome("ore").testo(Orologio(i.ore)).nome("vera");
    j.testo(Orologio(ombra::oraVera(i.cielo.t))).nome("altezza").numero(i.cielo.altezza * ombra::GRADI);
    vista.foglio(j.nome("piede"), {});
    if (i.ombra.luce == ombra::Luce::Si) {
        vista.foglio(j.nome("punta"), i.ombra.punto);
        // Where the style's shadow comes from: its foot in the plane, else far along its direction.
        const auto centro = piano.centro();
        const ombra::Retta r = piano.ombraDelloStilo(i.cielo.t);
        const double lungo = s.tavolo.QuadranteL() + s.tavolo.QuadranteH();
        const ombra::Punto capo = centro ? *centro : ombra::Punto{i.ombra.punto.x - r.b * lungo, i.ombra.punto.y + r.a * lungo};
        vista.foglio(j.nome("stilo"), capo);
    }
    return std::move(j.chiudi('}')).fine();
}

std::string Pagina::Giornata(std::string_view data) {
    const Sessione &s = disegno();
    const Posa posa = PosaDelDisegno(s);
    const Vista vista(s.tavolo, posa);
    constexpr double MINUTI = 6;
    Json j;
    j.apri('[');
    for (const Istante &i : GiornataDi(posa, ombra::leggiData(data).value_or(ombra::Data{}), posa.fuso(), MINUTI)) {
        if (i.ombra.luce == ombra::Luce::Si) vista.foglio(j, i.ombra.punto);
        else j.vero(false);
    }
    return std::move(j.chiudi(']')).fine();
}

}  // namespace ombrelia::web
