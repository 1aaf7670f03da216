// What lines and verdicts are called: for files in English, for people through the dictionary.
#include <algorithm>
#include <cmath>

#include "certificato/certificato.h"
#include "certificato/istante.h"
#include "core/testo.h"
#include "plot/specie.h"

namespace ombrelia {

namespace {

std::string conValore(std::string testo, const RigaSpecie &r, double valore) {
    if (r.valore == ValoreDi::Niente) return testo;
    return testo + TestoNumero(std::round(valore * 1e5) / 1e5) + std::string(r.unitaEstesa);
}

}  // namespace

std::string TestoPretesa(Specie specie, double valore) {
    const RigaSpecie &r = DellaSpecie(specie);
    return conValore(std::string(r.inglese), r, valore);
}

std::string TestoPretesa(const Dizionario &d, Specie specie, double valore) {
    const RigaSpecie &r = DellaSpecie(specie);
    return Giudicabile(specie) ? conValore(d.Traduci(r.distesa), r, valore) : "";
}

namespace {

std::string secondo(std::string testo, const QuadranteOriginale &o) {
    for (const double v : {o.latitudine, o.declinazione, o.inclinazione})
        testo.replace(testo.find('%'), 1, TestoNumero(std::round(v * 1e4) / 1e4));
    return testo;
}

}  // namespace

std::string TestoRiga(const RigaCertificato &r) {
    if (r.originale)
        return secondo("second dial: the original's latitude %, declination %, inclination % still count", *r.originale);
    return TestoPretesa(r.specie, r.valore) + (r.doppia ? ", drawn twice" : "");
}

std::string TestoRiga(const Dizionario &d, const RigaCertificato &r) {
    if (r.originale)
        return secondo(d.Traduci("secondo quadrante: contano ancora latitudine %, declinazione %, inclinazione % del primo"),
                       *r.originale);
    return TestoPretesa(d, r.specie, r.valore) + (r.doppia ? d.Traduci(", due volte") : "");
}

// The largest deviation as it is told: up, so that nothing is called better than it is.
static std::string millimetri(double mm) {
    const double n = std::ceil(mm * 100 - 1e-9) / 100;
    return n < 1000 ? TestoNumero(n) : TestoNumero(std::ceil(n));
}

std::string VerdettoInglese(const Certificato &c) {
    if (!c.esaminate()) return "no line to certify";
    if (c.vero()) return "true within " + millimetri(c.peggiore) + " mm";
    return std::to_string(c.false_) + (c.false_ == 1 ? " line is not true" : " lines are not true");
}

std::string Verdetto(const Dizionario &d, const Certificato &c) {
    if (!c.esaminate()) return d.Traduci("nessuna linea da certificare");
    if (c.vero()) return d.Traduci("vero entro ") + millimetri(c.peggiore) + " mm";
    return std::to_string(c.false_) + (c.false_ == 1 ? d.Traduci(" linea non è vera") : d.Traduci(" linee non sono vere"));
}

PezziDelPunto LeggiPezzi(const DatiCertificato &dati, const Lista &lista, const ombra::Punto &p, double entro) {
    PezziDelPunto r;
    r.lettura = LeggiPunto(dati.posa, p, dati.anno);
    for (const ombra::Data &g : r.lettura.date) {
        // The moment of that civil date: the day of universal time that holds it may be the one before or after.
        const double civile = ombra::giornoGiuliano(g), fuso = dati.posa.fuso() / 24;
        double jd = ombra::momento(civile, r.lettura.sole.t, dati.posa.longitudine);
        jd += std::round(civile + 0.5 - jd - fuso);
        r.oreCivili.push_back((jd + fuso - civile) * 24);
    }
    r.linea = TrovaLinea(dati, lista, p, entro);
    return r;
}

std::string FraseDelPunto(const Dizionario &d, const DatiCertificato &dati, const Lista &lista, const ombra::Punto &p,
                          double entro) {
    const PezziDelPunto r = LeggiPezzi(dati, lista, p, entro);
    std::string t;
    if (r.lettura.sole.luce == ombra::Luce::Notte) t = d.Traduci("qui mai ombra: Sole sotto l'orizzonte");
    else if (r.lettura.sole.luce != ombra::Luce::Si) t = d.Traduci("qui mai ombra: nessun Sole ha questa declinazione");
    else {
        t = Orologio(r.lettura.oraVera) + d.Traduci(" vere, ");
        for (std::size_t i = 0; i < r.oreCivili.size(); ++i)
            t += (i > 0 ? d.Traduci(" o ") : "") + Orologio(r.oreCivili[i]) + d.Traduci(" il giorno ") +
                 testoData(r.lettura.date[i]);
        t += d.Traduci(", Sole alto ") + std::to_string(std::lround(r.lettura.sole.altezza * ombra::GRADI)) + "\xC2\xB0";
    }
    if (r.linea) t += d.Traduci(", linea: ") + TestoPretesa(d, r.linea->specie, r.linea->valore);
    return t;
}

}  // namespace ombrelia
