// Years and bearings.
#include "certificato/cielo.h"

namespace ombrelia {

int AnnoDelSole(const Sessione &s) {
    const Valore v = Val(s.in.txtAnno);
    const int anno = v.esiste() && v.v >= 1 && v.v <= 9999 ? static_cast<int>(v.v) : 0;
    return anno > 0 ? anno : s.rapporti.orologio().tm_year + 1900;
}

double Rilevamento(double lat, double lon, double latMeta, double lonMeta) {
    const double l = lonMeta - lon;  // westward
    return std::atan2(std::sin(l) * std::cos(latMeta),
                      std::sin(lat) * std::cos(latMeta) * std::cos(l) - std::cos(lat) * std::sin(latMeta));
}

std::vector<std::pair<double, double>> TempoMedio::annata(int passi) const {
    struct SoliTenuti {
        double inizio = 0;
        int passi = -1;
        std::vector<ombra::Sole> soli;
    };
    thread_local SoliTenuti tenuti;
    if (tenuti.passi != passi || tenuti.inizio != inizio_) {
        tenuti = {inizio_, passi, {}};
        for (int i = 0; i <= passi; ++i) tenuti.soli.push_back(ombra::soleDi(inizio_ + GIORNI_DELL_ANNO * i / passi));
    }
    std::vector<std::pair<double, double>> anno;
    anno.reserve(tenuti.soli.size());
    for (const ombra::Sole &sole : tenuti.soli) anno.push_back(conSole(sole));
    return anno;
}

}  // namespace ombrelia
