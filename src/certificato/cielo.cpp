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

}  // namespace ombrelia
