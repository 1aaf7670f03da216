// What lines and verdicts are called: for files in English, for people through the dictionary.
#include <algorithm>
#include <cmath>

#include "certificato/certificato.h"
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

}  // namespace ombrelia
