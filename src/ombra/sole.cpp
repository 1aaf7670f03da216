// The Sun's place by a short series.
#include "ombra/sole.h"

#include <cmath>
#include <cstdio>
#include <iterator>
#include <span>

#include "ombra/ombra.h"

namespace ombrelia::ombra {

namespace {

constexpr double PI2 = 2 * std::numbers::pi;

double modulo(double x, double m) {
    const double r = std::fmod(x, m);
    return r < 0 ? r + m : r;
}
// To -pi..pi.
double angolo(double x) { return x - PI2 * std::floor(x / PI2 + 0.5); }

// One term a cos(b + c tau) of the Earth's longitude, a in 1e-8 radians, tau in thousands of years from 2000. The series
// is cut at a tenth of a second of arc.
struct Termine {
    double a, b, c;
};
constexpr Termine L0[] = {{175347046, 0, 0},           {3341656, 4.6692568, 6283.07585},
                          {34894, 4.6261, 12566.1517}, {3497, 2.7441, 5753.3849},
                          {3418, 2.8289, 3.5231},      {3136, 3.6277, 77713.7715},
                          {2676, 4.4181, 7860.4194},   {2343, 6.1352, 3930.2097},
                          {1324, 0.7425, 11506.7698},  {1273, 2.0371, 529.691},
                          {1199, 1.1096, 1577.3435},   {990, 5.233, 5884.927},
                          {902, 2.045, 26.298},        {857, 3.508, 398.149},
                          {780, 1.179, 5223.694},      {753, 2.533, 5507.553},
                          {505, 4.583, 18849.228},     {492, 4.205, 775.523},
                          {357, 2.92, 0.067},          {317, 5.849, 11790.629},
                          {284, 1.899, 796.298},       {271, 0.315, 10977.079},
                          {243, 0.345, 5486.778},      {206, 4.806, 2544.314},
                          {205, 1.869, 5573.143},      {202, 2.458, 6069.777},
                          {156, 0.833, 213.299},       {132, 3.411, 2942.463},
                          {126, 1.083, 20.775},        {115, 0.645, 0.98},
                          {103, 0.636, 4694.003},      {102, 0.976, 15720.839},
                          {102, 4.267, 7.114},         {99, 6.21, 2146.17},
                          {98, 0.68, 155.42},          {86, 5.98, 161000.69},
                          {85, 1.3, 6275.96},          {85, 3.67, 71430.7},
                          {80, 1.81, 17260.15},        {79, 3.04, 12036.46},
                          {75, 1.76, 5088.63},         {74, 3.5, 3154.69},
                          {74, 4.68, 801.82},          {70, 0.83, 9437.76},
                          {62, 3.98, 8827.39},         {61, 1.82, 7084.9},
                          {57, 2.78, 6286.6},          {56, 4.39, 14143.5},
                          {56, 3.47, 6279.55},         {52, 0.19, 12139.55},
                          {52, 1.33, 1748.02},         {51, 0.28, 5856.48},
                          {49, 0.49, 1194.45}};
constexpr Termine L1[] = {
    {628331966747, 0, 0},   {206059, 2.678235, 6283.07585}, {4303, 2.6351, 12566.1517}, {425, 1.59, 3.523}, {119, 5.796, 26.298},
    {109, 2.966, 1577.344}, {93, 2.59, 18849.23},           {72, 1.14, 529.69},         {68, 1.87, 398.15}, {67, 4.41, 5507.55}};
constexpr Termine L2[] = {{52919, 0, 0}, {8720, 1.0721, 6283.0758}, {309, 0.867, 12566.152}};
constexpr Termine L3[] = {{289, 5.844, 6283.076}};
// Of its latitude.
constexpr Termine B0[] = {
    {280, 3.199, 84334.662}, {102, 5.422, 5507.553}, {80, 3.88, 5223.69}, {44, 3.7, 2352.87}, {32, 4, 1577.34}};

// Terrestrial less universal time, seconds: published means of the years, joined by straight lines. A minute more or
// less moves the Sun by 2.5 seconds of arc.
double deltaT(double anno) {
    constexpr struct {
        double anno, dt;
    } TAVOLA[] = {{1800, 14},   {1900, -3},   {1920, 21}, {1950, 29}, {1975, 45.5},
                  {2000, 63.8}, {2025, 69.1}, {2050, 80}, {2100, 120}};
    if (anno <= TAVOLA[0].anno) return TAVOLA[0].dt;
    for (std::size_t i = 1; i < std::size(TAVOLA); ++i) {
        if (anno > TAVOLA[i].anno) continue;
        const auto &a = TAVOLA[i - 1], &b = TAVOLA[i];
        return a.dt + (b.dt - a.dt) * (anno - a.anno) / (b.anno - a.anno);
    }
    return 120;
}

}  // namespace

double giornoGiuliano(const Data &d) {
    const int a = (14 - d.mese) / 12, y = d.anno + 4800 - a, m = d.mese + 12 * a - 3;
    return d.giorno + (153 * m + 2) / 5 + 365.0 * y + y / 4 - y / 100 + y / 400 - 32045 - 0.5;
}

Data dataDi(double jd) {
    const long n = std::lround(std::floor(jd + 0.5));
    const long a = n + 32044, b = (4 * a + 3) / 146097, c = a - 146097 * b / 4;
    const long d = (4 * c + 3) / 1461, e = c - 1461 * d / 4, m = (5 * e + 2) / 153;
    return {static_cast<int>(100 * b + d - 4800 + m / 10), static_cast<int>(m + 3 - 12 * (m / 10)),
            static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

std::optional<Data> leggiData(std::string_view testo) {
    Data d;
    int fine = 0;
    const std::string t(testo);
    if (std::sscanf(t.c_str(), "%4d-%2d-%2d%n", &d.anno, &d.mese, &d.giorno, &fine) != 3) return {};
    if (static_cast<std::size_t>(fine) != t.size() || d.anno < 1 || d.mese < 1 || d.mese > 12 || d.giorno < 1) return {};
    return dataDi(giornoGiuliano(d)) == d ? std::optional(d) : std::nullopt;
}

std::string testoData(const Data &d) {
    char t[40];
    std::snprintf(t, sizeof t, "%04d-%02d-%02d", d.anno, d.mese, d.giorno);
    return t;
}

Sole soleDi(double jd) {
    const double anno = 2000 + (jd - 2451544.5) / 365.25;
    const double attesa = deltaT(anno) / 86400;  // days
    const double tau = (jd + attesa - 2451545) / 365250, T = 10 * tau;
    const auto sen = [](double gradi) { return std::sin(gradi * RADIANTI); };
    const auto cosi = [](double gradi) { return std::cos(gradi * RADIANTI); };
    const auto somma = [tau](std::span<const Termine> serie) {
        double l = 0;
        for (const Termine &k : serie) l += k.a * std::cos(k.b + k.c * tau);
        return l;
    };
    // The Earth's heliocentric longitude, degrees.
    const double terra = (somma(L0) + tau * (somma(L1) + tau * (somma(L2) + tau * somma(L3)))) * 1e-8 * GRADI;

    const double media = 280.4664567 + tau * (360007.6982779 + tau * 0.03032028);  // the Sun's mean longitude
    const double M = 357.52911 + T * 35999.05029;
    const double luna = 218.3165 + 481267.8813 * T, O = 125.04452 - 1934.136261 * T;
    const double raggio = 1.000140 - 0.016708 * cosi(M) - 0.000139 * cosi(2 * M);
    const double dPsi = (-17.20 * sen(O) - 1.32 * sen(2 * media) - 0.23 * sen(2 * luna) + 0.21 * sen(2 * O)) / 3600;
    const double dEps = (9.20 * cosi(O) + 0.57 * cosi(2 * media) + 0.10 * cosi(2 * luna) - 0.09 * cosi(2 * O)) / 3600;
    const double eps = 23.4392911 - T * (46.8150 + T * 0.00059) / 3600 + dEps;
    const double lambda = terra + 180 - 0.09033 / 3600 + dPsi - 20.4898 / 3600 / raggio;

    const double beta = -somma(B0) * 1e-8;  // small: its own sine and tangent

    const double alfa = std::atan2(cosi(eps) * sen(lambda) - beta * sen(eps), cosi(lambda));
    // The mean Sun runs by universal time.
    const double e = angolo((media - 0.9856474 * attesa - 0.0057183 + dPsi * cosi(eps)) * RADIANTI - alfa);
    return {std::asin(sen(eps) * sen(lambda) + beta * cosi(eps)), e * GRADI * 4, modulo(lambda * RADIANTI, PI2)};
}

double angoloOrario(double jd, double equazione, double longitudine) {
    const double ore = (jd + 0.5 - std::floor(jd + 0.5)) * 24;  // universal time
    return angolo((ore - 12 + equazione / 60) * 15 * RADIANTI - longitudine);
}

double momento(double jd0, double t, double longitudine) {
    double jd = jd0 + 0.5 + (t + longitudine) / PI2;
    for (int i = 0; i < 3; ++i) jd = jd0 + 0.5 + (t + longitudine) / PI2 - soleDi(jd).equazione / 1440;
    return jd;
}

std::vector<double> momentiDi(double delta, int anno) {
    const double inizio = giornoGiuliano({anno, 1, 1}), fine = giornoGiuliano({anno + 1, 1, 1});
    // The turning points of the year, then one root a stretch by halving.
    const auto solstizio = [](double a, double b) {
        while (b - a > 1e-7) {
            const double m = (a + b) / 2;
            (passoDelGiorno(a) > 0) == (passoDelGiorno(m) > 0) ? a = m : b = m;
        }
        return a;
    };
    const double giugno = solstizio(inizio + 150, inizio + 195), dicembre = solstizio(inizio + 335, inizio + 364);
    std::vector<double> esito;
    double prima = inizio;
    for (const double dopo : {giugno, dicembre, fine}) {
        double a = prima, b = dopo;
        prima = dopo;
        const double fa = soleDi(a).delta - delta;
        if ((fa > 0) == (soleDi(b).delta - delta > 0)) continue;
        while (b - a > 1e-7) {
            const double m = (a + b) / 2;
            (soleDi(m).delta - delta > 0) == (fa > 0) ? a = m : b = m;
        }
        if (esito.empty() || a - esito.back() > 0.5) esito.push_back(a);
    }
    if (esito.empty() && std::fabs(delta) <= DECLINAZIONE_MASSIMA) {
        if (delta > soleDi(giugno).delta) esito.push_back(giugno);
        else if (delta < soleDi(dicembre).delta) esito.push_back(dicembre);
    }
    return esito;
}

std::vector<Data> dateDi(double delta, double t, int anno, double longitudine, double fuso) {
    std::vector<Data> esito;
    for (const double jd : momentiDi(delta, anno)) {
        // The day whose Sun at t is nearest to the moment; civil in the zone.
        const double jd0 = std::floor(jd + 0.5) - 0.5;
        double vicino = momento(jd0, t, longitudine);
        vicino += std::round(jd - vicino);
        const Data d = dataDi(vicino + fuso / 24);
        if (esito.empty() || !(esito.back() == d)) esito.push_back(d);
    }
    return esito;
}

double passoDelGiorno(double jd) { return soleDi(jd + 0.5).delta - soleDi(jd - 0.5).delta; }

}  // namespace ombrelia::ombra
