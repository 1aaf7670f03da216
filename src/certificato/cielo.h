// The Sun of mean time and the bearing of a place: what drawing and judging true lines share beside the shadow itself.
#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "certificato/posa.h"
#include "ombra/sole.h"

namespace ombrelia {

inline constexpr double GIORNI_DELL_ANNO = 365.2422;
// The Sun's greatest declination as this program's dials draw it, degrees, and in radians.
inline constexpr double SOLSTIZIO_GRADI = 23.445, SOLSTIZIO = SOLSTIZIO_GRADI * ombra::RADIANTI;

// The year whose Sun an analemma shows: the field's, or that of now.
[[nodiscard]] int AnnoDelSole(const Sessione &s);

// Bearing of a place from a site. Given: both, radians, latitudes North and longitudes West positive. Gives: radians from South,
// West positive, -pi to pi. Source: the four-parts formula of the spherical triangle of pole, site and place (Smart, Textbook on
// Spherical Astronomy, ch. I). Faults: 0 where the two are one or
// antipodes.
[[nodiscard]] double Rilevamento(double lat, double lon, double latMeta, double lonMeta);

// The Sun at the same hour of the zone's mean time, through the days of a year. Given: days from the year's first, of universal
// time. Gives: hour angle and declination, radians, afternoon and North positive. Source: ombra::soleDi; mean time and the
// equation of time by definition. Faults: none.
class TempoMedio {
public:
    TempoMedio(const Posa &posa, int anno, double ora)
        : inizio_(ombra::giornoGiuliano({anno, 1, 1}) + (ora - posa.fuso()) / 24),
          medio_((ora - 12) * 15 * ombra::RADIANTI - (posa.longitudine - posa.meridiano)) {}
    [[nodiscard]] std::pair<double, double> sole(double giorno) const { return conSole(ombra::soleDi(inizio_ + giorno)); }

    // The same through a year in equal steps, its first and its last moment among them. The Suns are those of the call before
    // where it asked for the same: what a dial shows of a year changes with its plane, the year's Sun does not.
    [[nodiscard]] std::vector<std::pair<double, double>> annata(int passi) const;

private:
    [[nodiscard]] std::pair<double, double> conSole(const ombra::Sole &sole) const {
        return {medio_ + sole.equazione / 4 * ombra::RADIANTI, sole.delta};
    }

    double inizio_, medio_;
};

}  // namespace ombrelia
