// Towns, points that are read back and the shadow that moves over the dial, as the page asks for them.
#include <cmath>

#include "certificato/certificato.h"
#include "certificato/istante.h"
#include "luoghi/atlante.h"
#include "plot/percorso.h"
#include "web/json.h"
#include "web/pagina.h"

namespace ombrelia::web {

namespace {

constexpr double MM = 1000;

// The sheet's millimetres and the plane's metres as mounted.
struct VistaSole {
    const Tavolo &tavolo;
    double verso;
    VistaSole(const Tavolo &t, const Posa &posa) : tavolo(t), verso(posa.verso()) {}
    [[nodiscard]] ombra::Punto piano(double x, double y) const {
        const PuntoPiano p = tavolo.disegnato(x / MM, y / MM);
        return {p.x * verso, p.y};
    }
    Json &foglio(Json &j, const ombra::Punto &p) const {
        const PuntoPiano q = tavolo.dipinto(p.x * verso, p.y);
        return j.apri('[').numero(q.x * MM).numero(q.y * MM).chiudi(']');
    }
};

const char *parola(ombra::Luce l) {
    switch (l) {
        case ombra::Luce::Si:
            return "si";
        case ombra::Luce::Notte:
            return "notte";
        case ombra::Luce::Mai:
            return "mai";
        default:
            return "dietro";
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

std::string Pagina::Leggi(double x, double y, int anno, double entro) {
    const Sessione &s = disegno();
    const Posa posa = PosaDelDisegno(s);
    const VistaSole vista(s.tavolo, posa);
    const ombra::Punto p = vista.piano(x, y);
    Json j;
    j.apri('{').nome("x").numero(p.x * MM).nome("y").numero(p.y * MM);
    if (posa.quadrante.gnomone == 0) return std::move(j.nome("luce").testo("mai").chiudi('}')).fine();
    if (const auto vicina = TrovaLinea(DatiDelCertificato(s), s.tavolo.lista(), p, entro / MM)) {
        j.nome("linea").testo(TestoPretesa(dizionario(), vicina->specie, vicina->valore));
        j.nome("pretesa").numero(static_cast<double>(vicina->pretesa));
    }
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

std::string Pagina::Linea(std::size_t pretesa) {
    const Tavolo &t = disegno().tavolo;
    const Lista &l = t.lista();
    if (pretesa >= l.pretese.size()) return {};
    const Pretesa &p = l.pretese[pretesa];
    std::string d = "<path d=\"";
    const RecLinea *prima = nullptr;
    const auto scrivi = [&](char c, double x, double y) {
        d += c;
        const PuntoPiano q = t.dipinto(x, y);
        AggiungiNumero(d, std::round(q.x * 1e6) / 1e3);
        d += ' ';
        AggiungiNumero(d, std::round(q.y * 1e6) / 1e3);
    };
    const auto corda = [&](const RecLinea &r) {
        const bool segue = prima && prima->X1 == r.X2 && prima->Y1 == r.Y2;
        if (!segue) scrivi('M', r.X2, r.Y2);
        scrivi('L', r.X1, r.Y1);
        prima = &r;
    };
    const auto punto = [&](const RecPunto &r) {
        scrivi('M', r.X, r.Y);
        d += "h0";
        prima = nullptr;
    };
    Percorri(l, p, TrattiEPunti{corda, punto});
    return d.substr(d.find('"') + 1);
}

std::string Pagina::Certificato() {
    const Sessione &s = disegno();
    const Lista &lista = s.tavolo.lista();
    const DatiCertificato dati = DatiDelCertificato(s);
    const ombrelia::Certificato c = Certifica(dati, lista);
    if (c.righe.empty()) return "null";
    const Dizionario &d = dizionario();
    const VistaSole vista(s.tavolo, PosaDelDisegno(s));
    Json j;
    j.apri('{').nome("vero").vero(c.vero()).nome("verdetto").testo(Verdetto(d, c)).nome("righe").apri('[');
    for (const RigaCertificato &r : c.righe) {
        j.apri('{')
            .nome("linea")
            .testo(r.originale ? TestoRiga(d, r) : TestoPretesa(d, r.specie, r.valore))
            .nome("vera")
            .vero(r.vera)
            .nome("doppia")
            .vero(r.doppia);
        j.nome("misure").apri('[');
        for (const double n : {r.disegnati, r.massimo, r.medio, r.mancanti, r.superflui}) j.numero(n);
        vista.foglio(j.chiudi(']').nome("peggio"), {r.xPeggiore / MM, r.yPeggiore / MM}).chiudi('}');
    }
    return std::move(j.chiudi(']').chiudi('}')).fine();
}

std::string Pagina::Ombra(std::string_view data, double ore) {
    const Sessione &s = disegno();
    const Posa posa = PosaDelDisegno(s);
    const VistaSole vista(s.tavolo, posa);
    const Istante i = IstanteDi(posa, ombra::leggiData(data).value_or(ombra::Data{}), ore, posa.fuso());
    const ombra::PianoMontato piano(posa.quadrante);
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
    const VistaSole vista(s.tavolo, posa);
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
