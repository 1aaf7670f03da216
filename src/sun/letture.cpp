// Readings of a wall: parsing and statistics.
#include "sun/letture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/angoli.h"
#include "core/testo.h"

namespace ombrelia::sun {

namespace {

constexpr double CASO = 0.05;

// Whole numbers divided by a sign, each of one to four digits. False when the text is anything else.
template <std::size_t N>
bool interi(std::string_view testo, char divisore, std::array<int, N> &numeri, std::size_t &quanti) {
    quanti = 0;
    while (quanti < N) {
        const std::size_t fine = std::min(testo.find(divisore), testo.size());
        const std::string_view pezzo = testo.substr(0, fine);
        if (pezzo.empty() || pezzo.size() > 4 || pezzo.find_first_not_of("0123456789") != std::string_view::npos) return false;
        numeri[quanti++] = static_cast<int>(Val(pezzo).v);
        if (fine == testo.size()) return true;
        testo.remove_prefix(fine + 1);
    }
    return false;
}

int giorniDelMese(int anno, int mese) {
    constexpr std::array<int, 12> GIORNI{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool gregoriano = anno > 1582;
    const bool bisestile = anno % 4 == 0 && (!gregoriano || anno % 100 != 0 || anno % 400 == 0);
    return mese == 2 && bisestile ? 29 : GIORNI[static_cast<std::size_t>(mese - 1)];
}

// Chance that a Student variable of so many degrees of freedom lies farther from 0 than t, on both sides. The finite
// series in the angle of t (Abramowitz and Stegun, 26.7.3 and 26.7.4).
double codeDiStudent(double t, std::size_t liberta) {
    const auto n = static_cast<double>(liberta);
    const double angolo = std::atan(std::fabs(t) / std::sqrt(n));
    const double sen = std::sin(angolo), cos2 = std::cos(angolo) * std::cos(angolo);
    const bool dispari = liberta % 2 == 1;
    double termine = dispari ? std::cos(angolo) : 1, somma = 0;
    for (std::size_t k = dispari ? 1 : 0; k + 2 <= liberta; k += 2) {
        somma += termine;
        termine *= cos2 * static_cast<double>(k + 1) / static_cast<double>(k + 2);
    }
    // Here pi is pi: this is no angle of the dial.
    const double dentro = dispari ? (angolo + sen * somma) * 2 / std::acos(-1.0) : sen * somma;
    return std::max(0.0, 1 - dentro);
}

double media(const std::vector<double> &v) {
    double somma = 0;
    for (const double x : v) somma += x;
    return somma / static_cast<double>(v.size());
}

double scarto(const std::vector<double> &v) {
    if (v.size() < 2) return 0;
    const double m = media(v);
    double quadrati = 0;
    for (const double x : v) quadrati += (x - m) * (x - m);
    return std::sqrt(quadrati / static_cast<double>(v.size() - 1));
}

std::string leggiRiga(std::string_view riga, DatiDeclinazione &dati) {
    std::vector<std::string_view> campi;
    constexpr std::string_view DIVISORI = " \t,;";
    for (std::size_t i = 0; (i = riga.find_first_not_of(DIVISORI, i)) != std::string_view::npos;) {
        const std::size_t fine = std::min(riga.find_first_of(DIVISORI, i), riga.size());
        campi.push_back(riga.substr(i, fine - i));
        i = fine;
    }
    if (campi.size() != 3) return "write date, time and angle, as in 2026-06-21 9:40 -12.5";
    if (std::string e = LeggiData(campi[0], dati); !e.empty()) return e;
    if (std::string e = LeggiOra(campi[1], dati); !e.empty()) return e;
    return LeggiNumero(campi[2], -180, 180, dati.angolo);
}

}  // namespace

double Girato(double gradi) {
    const double r = std::remainder(gradi, 360.0);
    return r <= -180 ? r + 360 : r;
}

std::string LeggiData(std::string_view testo, DatiDeclinazione &dati) {
    std::array<int, 3> n{};
    std::size_t quanti = 0;
    if (!interi(testo, '-', n, quanti) || quanti != 3)
        return "no date: " + std::string(testo) + "; write year-month-day, as in 2026-06-21";
    const auto [anno, mese, giorno] = n;
    const bool saltato = anno == 1582 && mese == 10 && giorno > 4 && giorno < 15;
    if (anno < 1 || mese < 1 || mese > 12 || giorno < 1 || giorno > giorniDelMese(anno, mese) || saltato)
        return "there is no such day: " + std::string(testo);
    dati.anno = anno;
    dati.mese = mese;
    dati.giorno = giorno;
    return {};
}

std::string LeggiOra(std::string_view testo, DatiDeclinazione &dati) {
    std::array<int, 3> n{};
    std::size_t quanti = 0;
    if (!interi(testo, ':', n, quanti) || quanti < 2)
        return "no time: " + std::string(testo) + "; write hours:minutes, UT, as in 9:40 or 9:40:30";
    const auto [ore, minuti, secondi] = n;
    if (ore > 23 || minuti > 59 || secondi > 59) return "there is no such time: " + std::string(testo);
    dati.ore = ore;
    dati.minuti = minuti;
    dati.secondi = secondi;
    return {};
}

std::string LeggiNumero(std::string_view testo, double da, double a, Valore &numero) {
    const std::size_t cifra = testo.find_first_not_of("+-");
    const bool forma = cifra <= 1 && testo.find_first_not_of("0123456789.", cifra) == std::string_view::npos &&
                       testo.find_first_of("0123456789") != std::string_view::npos && testo.find('.') == testo.rfind('.');
    const Valore v = Val(testo);
    if (!forma) return "no number: " + std::string(testo) + "; write plain decimals with a point, as in -7.68";
    if (!(v >= da && v <= a)) return std::string(testo) + " is outside " + TestoNumero(da) + ".." + TestoNumero(a);
    numero = v;
    return {};
}

std::vector<LetturaParete> LeggiLetture(std::string_view testo, const DatiDeclinazione &comune, std::string &errore) {
    std::vector<LetturaParete> letture;
    for (std::size_t numero = 1; !testo.empty(); ++numero) {
        const std::size_t fine = std::min(testo.find('\n'), testo.size());
        std::string_view riga = testo.substr(0, std::min(fine, testo.find('#')));
        testo.remove_prefix(std::min(fine + 1, testo.size()));
        const std::size_t ultimo = riga.find_last_not_of(" \t\r");
        if (ultimo == std::string_view::npos) continue;
        riga = riga.substr(0, ultimo + 1);
        LetturaParete l{numero, SenzaBlanks(riga), comune};
        if (const std::string e = leggiRiga(riga, l.dati); !e.empty()) {
            errore = std::to_string(numero) + ": " + e;
            return {};
        }
        letture.push_back(std::move(l));
    }
    return letture;
}

Riassunto Riassumi(const std::vector<double> &gradi) {
    Riassunto r;
    if (gradi.empty()) return r;
    const std::size_t n = gradi.size();
    std::vector<double> v;
    for (const double g : gradi) v.push_back(Girato(g - gradi[0]));
    const double m = media(v);
    r.media = Girato(gradi[0] + m);
    r.scarto = scarto(v);
    for (const double x : v) r.distanze.push_back(n > 1 ? (x - m) * static_cast<double>(n) / static_cast<double>(n - 1) : 0);
    for (std::size_t i = 1; i < n; ++i)
        if (std::fabs(r.distanze[i]) > std::fabs(r.distanze[r.lontana])) r.lontana = i;
    if (n < 3) return r;
    // The farthest against the spread of the others; any of the n could have been the farthest.
    std::vector<double> altre = v;
    altre.erase(altre.begin() + static_cast<std::ptrdiff_t>(r.lontana));
    const auto k = static_cast<double>(n);
    const double incerto = scarto(altre) * std::sqrt(k / (k - 1));
    const double d = std::fabs(r.distanze[r.lontana]);
    r.stona = incerto > 0 ? codeDiStudent(d / incerto, n - 2) * k < CASO : d > 0;
    return r;
}

}  // namespace ombrelia::sun
