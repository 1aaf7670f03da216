// Angles as people write them.
#include "luoghi/angolo.h"

#include <cmath>

#include "core/testo.h"

namespace ombrelia::luoghi {

namespace {

// The zone's meridian goes beyond the half turn where a zone of 13 or 14 hours is written as such.
constexpr CampoAngolo CAMPI[] = {
    {"txtLAT", Verso::NordSud, -90, 90},    {"txtLonG", Verso::OvestEst, -180, 180}, {"txtMeridiano", Verso::OvestEst, -210, 210},
    {"txtDec", Verso::OvestEst, -180, 180}, {"txtInc", Verso::Nudo, -180, 180},      {"txtDelta", Verso::NordSud, -90, 90},
    {"txtQlat", Verso::NordSud, -90, 90},   {"txtQlon", Verso::OvestEst, -180, 180}, {"txtAO", Verso::Nudo, -180, 180},
};

constexpr std::size_t TESTO_MASSIMO = 64;  // characters of an angle

struct Ragione {
    Intoppo intoppo;
    std::string_view italiano, inglese;
};
constexpr Ragione RAGIONI[] = {
    {Intoppo::Vuoto, "Manca l'angolo"_it, "the angle is missing"},
    {Intoppo::NonSiLegge, "Non si legge: scrivere come 45.07 o 45°04'13''"_it, "can't be read: write it as 45.07 or 45°04'13''"},
    {Intoppo::Sessanta, "Primi e secondi sono minori di 60"_it, "minutes and seconds are below 60"},
    {Intoppo::Decimali, "Solo l'ultimo numero ha decimali"_it, "only the last number has decimals"},
    {Intoppo::SegnoELettera, "O il segno o la lettera, non tutti e due"_it, "either the sign or the letter, not both"},
    {Intoppo::LetteraEstranea, "Lettera di un altro campo"_it, "a letter that this field does not take"},
    {Intoppo::FuoriCampo, "Angolo fuori dal campo dei valori"_it, "the angle is out of range"},
};

// Signs that stand for degrees, minutes and seconds become D, M, Q; letters are small, so that the seconds' "s" and South's stay
// apart.
struct SegnoScritto {
    std::string_view scritto;
    char vale;
};
constexpr SegnoScritto SEGNI[] = {
    {"''", 'Q'}, {"°", 'D'}, {"º", 'D'}, {"˚", 'D'},  {"′", 'M'}, {"’", 'M'},        {"'", 'M'},
    {"´", 'M'},  {"″", 'Q'}, {"”", 'Q'}, {"\"", 'Q'}, {"“", 'Q'}, {"\xC2\xA0", ' '}, {"\xE2\x80\xAF", ' '},
    {"\t", ' '}, {"−", '-'}, {"–", '-'}, {",", '.'},
};

std::string semplice(std::string_view testo) {
    std::string t;
    while (!testo.empty()) {
        const SegnoScritto *trovato = nullptr;
        for (const SegnoScritto &s : SEGNI)
            if (!trovato && testo.starts_with(s.scritto)) trovato = &s;
        const char c = testo.front();
        t += trovato ? trovato->vale : c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
        testo.remove_prefix(trovato ? trovato->scritto.size() : 1);
    }
    return t;
}

// How many characters at the beginning are digits with at most one point; 0 when there is no digit.
std::size_t cifre(std::string_view t) {
    std::size_t n = 0, punti = 0;
    while (n < t.size() && ((t[n] >= '0' && t[n] <= '9') || (t[n] == '.' && punti++ == 0))) ++n;
    return n > (punti > 0 ? 1 : 0) ? n : 0;
}

// A number as files have it and nothing else: such a text is kept as it is.
bool numeroNudo(std::string_view t, double &n) {
    std::string_view r = t;
    const auto segno = [&r] {
        if (r.starts_with('-') || r.starts_with('+')) r.remove_prefix(1);
    };
    segno();
    const std::size_t mantissa = cifre(r);
    r.remove_prefix(mantissa);
    if (mantissa > 0 && (r.starts_with('e') || r.starts_with('E'))) {
        r.remove_prefix(1);
        segno();
        if (r.empty() || r.find_first_not_of("0123456789") != std::string_view::npos) return false;
        r = {};
    }
    const Valore v = Val(t);
    n = v.v;
    return mantissa > 0 && r.empty() && v.esiste();
}

AngoloLetto intoppo(Intoppo i) { return {i, 0, {}}; }

AngoloLetto finito(double gradi, std::string testo, const CampoAngolo &campo) {
    const bool dentro = gradi >= campo.da && gradi <= campo.a;
    return {dentro ? Intoppo::Nessuno : Intoppo::FuoriCampo, gradi, std::move(testo)};
}

// What no letter gives.
constexpr int SENZA_LETTERA = 2;

// The sign that a wind's letter gives; 0 for a letter of another field.
int segnoDi(char c, Verso verso) {
    switch (c) {
        case 'n':
            return verso == Verso::NordSud ? 1 : 0;
        case 's':
            return verso == Verso::NordSud ? -1 : 0;
        case 'w':
        case 'o':
            return verso == Verso::OvestEst ? 1 : 0;
        case 'e':
            return verso == Verso::OvestEst ? -1 : 0;
        default:
            return SENZA_LETTERA;
    }
}

// Takes the letter off the text's beginning or end. An "s" behind the digits of "45d4m13s" is seconds.
int prendiLettera(std::string &t, Verso verso) {
    if (const int s = segnoDi(t.front(), verso); s != SENZA_LETTERA) {
        t.erase(0, 1);
        return s;
    }
    const int s = segnoDi(t.back(), verso);
    const bool secondi = t.back() == 's' && t.find('m') != std::string::npos && t[t.size() - 2] >= '0' && t[t.size() - 2] <= '9';
    if (s == SENZA_LETTERA || secondi) return SENZA_LETTERA;
    t.pop_back();
    return s;
}

}  // namespace

const CampoAngolo *TrovaCampoAngolo(std::string_view nome) {
    for (const CampoAngolo &c : CAMPI)
        if (UguaglianzaSenzaCaso(c.nome, nome)) return &c;
    return nullptr;
}

AngoloLetto LeggiAngolo(std::string_view testo, const CampoAngolo &campo) {
    const std::string nudo = SenzaBlanks(testo);
    if (nudo.empty()) return intoppo(Intoppo::Vuoto);
    if (nudo.size() > TESTO_MASSIMO) return intoppo(Intoppo::NonSiLegge);
    if (double n = 0; numeroNudo(nudo, n)) return finito(n, nudo, campo);

    std::string t = SenzaBlanks(semplice(nudo));
    if (t.empty()) return intoppo(Intoppo::NonSiLegge);
    const int verso = prendiLettera(t, campo.verso);
    t = SenzaBlanks(t);
    if (verso == 0) return intoppo(Intoppo::LetteraEstranea);
    bool meno = false;
    if (!t.empty() && (t.front() == '-' || t.front() == '+')) {
        if (verso != SENZA_LETTERA) return intoppo(Intoppo::SegnoELettera);
        meno = t.front() == '-';
        t.erase(0, 1);
    }

    // Up to three numbers, each with its own sign behind it or a blank.
    double parti[3] = {0, 0, 0};
    std::size_t quante = 0;
    bool decimali = false;
    for (std::size_t i = 0; i < t.size();) {
        if (t[i] == ' ') {
            ++i;
            continue;
        }
        const std::size_t a = i + cifre(std::string_view(t).substr(i));
        if (a == i || quante == 3 || (i > 0 && (t[i - 1] == '.' || cifre(t.substr(i - 1, 1)) > 0)))
            return intoppo(Intoppo::NonSiLegge);
        if (decimali) return intoppo(Intoppo::Decimali);
        parti[quante] = Val(std::string_view(t).substr(i, a - i)).v;
        decimali = t.find('.', i) < a;
        i = a;
        while (i < t.size() && t[i] == ' ') ++i;
        if (i < t.size() && std::string_view("DMQdms").find(t[i]) != std::string_view::npos) {
            if (t[i] != "DMQ"[quante] && t[i] != "dms"[quante]) return intoppo(Intoppo::NonSiLegge);
            ++i;
        }
        ++quante;
    }
    if (quante == 0) return intoppo(Intoppo::NonSiLegge);
    if (parti[1] >= 60 || parti[2] >= 60) return intoppo(Intoppo::Sessanta);
    double gradi = parti[0] + parti[1] / 60 + parti[2] / 3600;
    if (meno || verso == -1) gradi = -gradi;
    gradi = std::round(gradi * 1e9) / 1e9;  // a tenth of a millimetre on the ground; no tail of digits in the field
    if (gradi == 0) gradi = 0;              // no -0
    return finito(gradi, TestoNumero(gradi), campo);
}

std::string DueForme(double gradi, Verso verso) {
    const double decimi = std::round(std::abs(gradi) * 36000);
    const double g = std::floor(decimi / 36000), p = std::floor(std::fmod(decimi, 36000) / 600), s = std::fmod(decimi, 600) / 10;
    const bool intero = s == std::floor(s);
    std::string t = TestoNumero(std::round(gradi * 1e6) / 1e6) +
                    "° = " + (gradi < 0 && verso == Verso::Nudo && decimi > 0 ? "-" : "") + Formato(g, "0") + "°" +
                    Formato(p, "00") + "'" + Formato(s, intero ? "00" : "00.0") + "\"";
    if (decimi == 0 || verso == Verso::Nudo) return t;
    return t + (verso == Verso::NordSud ? (gradi < 0 ? " S" : " N") : (gradi < 0 ? " E" : " W"));
}

std::string_view Motivo(Intoppo intoppo) {
    for (const Ragione &r : RAGIONI)
        if (r.intoppo == intoppo) return r.italiano;
    return {};
}

std::string_view MotivoInglese(Intoppo intoppo) {
    for (const Ragione &r : RAGIONI)
        if (r.intoppo == intoppo) return r.inglese;
    return {};
}

}  // namespace ombrelia::luoghi
