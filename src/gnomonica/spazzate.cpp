// The tables of the shared sweeps.
#include "gnomonica/spazzate.h"

namespace ombrelia {

namespace {

std::vector<Declinazione> declinazioni(double passo) {
    std::vector<Declinazione> a;
    for (const double d : Conteggio(-OBLIQUITA, OBLIQUITA, passo)) a.push_back({d, std::tan(PI * d / 180)});
    return a;
}

}  // namespace

const std::vector<Declinazione> &Anno() {
    static const std::vector<Declinazione> anno = declinazioni(0.05);
    return anno;
}
const std::vector<Declinazione> &AnnoFitto() {
    static const std::vector<Declinazione> anno = declinazioni(0.005);
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

namespace {

std::vector<Mezzodi> mezzodi(const Conteggio &gradi) {
    std::vector<Mezzodi> a;
    for (const double m : gradi) {
        const SoleMedio sole = SoleAllaLongitudine(PI * m / 180);
        a.push_back({m, std::tan(sole.D), std::sin(sole.D), std::cos(sole.D), sole.Et});
    }
    return a;
}

}  // namespace

const std::vector<Mezzodi> &AnnoMedio() {
    static const std::vector<Mezzodi> anno = mezzodi({-80, 280, (360.0 / 365.2422) * 0.1});
    return anno;
}
const std::vector<Mezzodi> &AnnoMedioGiorni() {
    static const std::vector<Mezzodi> anno = mezzodi({-80, 360, 360 / 365.2422});
    return anno;
}
const std::vector<Mezzodi> &AnnoMedioGiorniAlterni() {
    static const std::vector<Mezzodi> anno = mezzodi({-80, 360, 2 * (360 / 365.2422)});
    return anno;
}

}  // namespace ombrelia
