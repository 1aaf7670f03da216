// The tables of the shared sweeps.
#include "gnomonica/spazzate.h"

namespace ombrelia {

const std::vector<Declinazione> &Anno() {
    static const std::vector<Declinazione> anno = [] {
        std::vector<Declinazione> a;
        for (const double d : Conteggio(-OBLIQUITA, OBLIQUITA, 0.05)) a.push_back({d, std::tan(PI * d / 180)});
        return a;
    }();
    return anno;
}

const std::vector<SenCos> &AnnoSenCos() {
    static const std::vector<SenCos> anno = [] {
        std::vector<SenCos> a;
        for (const Declinazione &d : Anno()) a.emplace_back(PI * d.d / 180);
        return a;
    }();
    return anno;
}

namespace {

std::vector<SenCos> giornata(double scarto) {
    std::vector<SenCos> t;
    t.reserve(2401);
    for (const double A : Conteggio(-120, 120, 0.1)) t.emplace_back(PI * A / 180 + scarto);
    return t;
}

}  // namespace

const std::vector<SenCos> &GiornoDiOre::con(Valore scarto) {
    static const std::vector<SenCos> SENZA_SCARTO = giornata(0);
    if (scarto == 0) return SENZA_SCARTO;
    if (ore_.empty() || scarto_ != scarto.v) ore_ = giornata(scarto.v);
    scarto_ = scarto.v;
    return ore_;
}

const std::vector<Mezzodi> &AnnoMedio() {
    static const std::vector<Mezzodi> anno = [] {
        std::vector<Mezzodi> a;
        for (const double m : Conteggio(-80, 280, (360.0 / 365.2422) * 0.1)) {
            const SoleMedio sole = SoleAllaLongitudine(PI * m / 180);
            a.push_back({std::tan(sole.D), sole.Et});
        }
        return a;
    }();
    return anno;
}

}  // namespace ombrelia
