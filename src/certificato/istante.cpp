// Moments and readings.
#include "certificato/istante.h"

#include <cstdio>
#include <ctime>

namespace ombrelia {

using ombra::PianoMontato;

Istante IstanteDi(const Posa &posa, const ombra::Data &data, double ore, double fuso) {
    Istante i;
    i.ore = ore;
    i.jd = ombra::giornoGiuliano(data) + (ore - fuso) / 24;
    i.sole = ombra::soleDi(i.jd);
    const double t = ombra::angoloOrario(i.jd, i.sole.equazione, posa.longitudine);
    const PianoMontato piano(posa.quadrante);
    const ombra::Vettore s = PianoMontato::sole(t, i.sole.delta);
    i.cielo = piano.leggi(s);
    i.ombra = piano.getta(s);
    i.cielo.luce = i.ombra.luce;
    return i;
}

std::vector<Istante> GiornataDi(const Posa &posa, const ombra::Data &data, double fuso, double passo) {
    std::vector<Istante> g;
    for (int k = 0; k * passo < 1440; ++k) g.push_back(IstanteDi(posa, data, k * passo / 60, fuso));
    return g;
}

LetturaPunto LeggiPunto(const Posa &posa, const ombra::Punto &p, int anno) {
    const PianoMontato piano(posa.quadrante);
    const double phi = posa.quadrante.latitudine;
    LetturaPunto l;
    l.sole = piano.leggi(p);
    const double t = l.sole.t, delta = l.sole.delta;
    l.oraVera = ombra::oraVera(t);
    l.italica = ombra::italica(phi, t, delta);
    l.babilonica = ombra::babilonica(phi, t, delta);
    l.temporaria = ombra::temporaria(phi, t, delta);
    l.momenti = ombra::momentiDi(delta, anno);
    l.date = ombra::dateDi(delta, t, anno, posa.longitudine, posa.fuso());
    const ombra::Moto m = piano.moto(t, delta);
    l.mmAlMinuto = std::hypot(m.perT.x, m.perT.y) * 1000 * ombra::RADIANTI / 4;
    if (!l.momenti.empty())
        l.mmAlGiorno = std::hypot(m.perDelta.x, m.perDelta.y) * 1000 * std::fabs(ombra::passoDelGiorno(l.momenti.front()));
    return l;
}

ombra::Data Oggi(double fuso) { return ombra::dataDi(2440587.5 + (static_cast<double>(std::time(nullptr)) / 3600 + fuso) / 24); }

std::string Orologio(double ore, bool secondi) {
    const long unita = secondi ? 3600 : 60;
    const long n = ((std::lround(ore * static_cast<double>(unita)) % (24 * unita)) + 24 * unita) % (24 * unita);
    char t[48];
    if (secondi) std::snprintf(t, sizeof t, "%ld:%02ld:%02ld", n / 3600, n / 60 % 60, n % 60);
    else std::snprintf(t, sizeof t, "%ld:%02ld", n / 60, n % 60);
    return t;
}

}  // namespace ombrelia
