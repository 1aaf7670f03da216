// Time zones out of the system's zone files; their form is RFC 8536's.
#include "luoghi/fusi.h"

#include <algorithm>
#include <cstdlib>

#include "core/file.h"

namespace ombrelia::luoghi {

namespace {

constexpr std::int64_t GIORNO = 86400;
constexpr std::size_t ZONA_MASSIMA = 1U << 20;  // bytes; the largest zone has some 4000
constexpr int SCARTO_MASSIMO = 26 * 3600;

// Days from 1970-01-01 of a day of the Gregorian calendar; the year begins in March, so that the leap day ends it.
std::int64_t giorni(std::int64_t anno, int mese, int giorno) {
    const std::int64_t m = mese - 1;
    anno += m >= 0 ? m / 12 : (m - 11) / 12;
    const std::int64_t mm = ((m % 12) + 12) % 12;
    const std::int64_t a = mm < 2 ? anno - 1 : anno;
    const std::int64_t era = (a >= 0 ? a : a - 399) / 400, ae = a - era * 400;
    const std::int64_t ga = (153 * ((mm + 10) % 12) + 2) / 5 + giorno - 1;
    return era * 146097 + ae * 365 + ae / 4 - ae / 100 + ga - 719468;
}

std::int64_t intero(std::int64_t t, std::int64_t per) { return t >= 0 ? t / per : -((per - 1 - t) / per); }

// Big-endian bytes, bounded by the file.
struct Lettore {
    std::string_view file;
    std::size_t i = 0;
    bool buono = true;
    std::uint64_t numero(std::size_t n) {
        if (file.size() - i < n || i > file.size()) {
            buono = false;
            return 0;
        }
        std::uint64_t v = 0;
        for (std::size_t k = 0; k < n; ++k) v = v << 8U | static_cast<unsigned char>(file[i++]);
        return v;
    }
    void salta(std::size_t n) {
        if (file.size() - i < n) buono = false;
        else i += n;
    }
};

struct Testata {
    std::uint64_t ut = 0, std = 0, leap = 0, passi = 0, tipi = 0, lettere = 0;
};

bool testata(Lettore &l, Testata &t) {
    if (!l.file.substr(l.i).starts_with("TZif")) return false;
    l.salta(20);
    t = {l.numero(4), l.numero(4), l.numero(4), l.numero(4), l.numero(4), l.numero(4)};
    return l.buono && t.passi < 50000 && t.tipi > 0 && t.tipi < 256 && t.ut < 256 && t.std < 256 && t.leap < 5000 &&
           t.lettere < 5000;
}

std::size_t lunghezza(const Testata &t, std::size_t istante) {
    return static_cast<std::size_t>(t.passi * (istante + 1) + t.tipi * 6 + t.lettere + t.leap * (istante + 4) + t.std + t.ut);
}

// Parts of a rule. Each takes what it reads off the text; false when that is not there.
bool sigla(std::string_view &t) {
    if (t.starts_with('<')) {
        const std::size_t a = t.find('>');
        if (a == std::string_view::npos) return false;
        t.remove_prefix(a + 1);
        return true;
    }
    std::size_t n = 0;
    while (n < t.size() && ((t[n] >= 'A' && t[n] <= 'Z') || (t[n] >= 'a' && t[n] <= 'z'))) ++n;
    t.remove_prefix(n);
    return n >= 3;
}

bool cifre(std::string_view &t, int massimo, int &n) {
    std::size_t k = 0;
    n = 0;
    for (; k < t.size() && k < 4 && t[k] >= '0' && t[k] <= '9'; ++k) n = n * 10 + (t[k] - '0');
    t.remove_prefix(k);
    return k > 0 && n <= massimo;
}

bool segno(std::string_view &t, char c) {
    if (!t.starts_with(c)) return false;
    t.remove_prefix(1);
    return true;
}

// [+-]h[:m[:s]] as seconds.
bool tempo(std::string_view &t, int &secondi) {
    const bool meno = segno(t, '-');
    if (!meno) segno(t, '+');
    int h = 0, m = 0, s = 0;
    if (!cifre(t, 167, h)) return false;
    if (segno(t, ':') && (!cifre(t, 59, m) || (segno(t, ':') && !cifre(t, 59, s)))) return false;
    secondi = (h * 60 + m) * 60 + s;
    if (meno) secondi = -secondi;
    return true;
}

}  // namespace

std::int64_t Secondi(const Orario &o) {
    return giorni(o.anno, o.mese, o.giorno) * GIORNO + std::int64_t{o.ore} * 3600 + std::int64_t{o.minuti} * 60 + o.secondi;
}

Orario DaSecondi(std::int64_t t) {
    const std::int64_t g = intero(t, GIORNO), s = t - g * GIORNO;
    const std::int64_t z = g + 719468, era = intero(z, 146097), ge = z - era * 146097;
    const std::int64_t ae = (ge - ge / 1460 + ge / 36524 - ge / 146096) / 365, ga = ge - (365 * ae + ae / 4 - ae / 100),
                       mp = (5 * ga + 2) / 153;
    Orario o;
    o.mese = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    o.giorno = static_cast<int>(ga - (153 * mp + 2) / 5 + 1);
    o.anno = ae + era * 400 + (o.mese <= 2 ? 1 : 0);
    o.ore = static_cast<int>(s / 3600), o.minuti = static_cast<int>(s / 60 % 60), o.secondi = static_cast<int>(s % 60);
    return o;
}

std::optional<Fuso> Fuso::Leggi(std::string_view nome) {
    // A zone's name is a path below the folder: nothing else may come of it.
    if (nome.empty() || nome.size() > 64 || nome.front() == '/' || nome.find("..") != std::string_view::npos) return {};
    for (const char c : nome)
        if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
              std::string_view("/_+-").find(c) != std::string_view::npos))
            return {};
    const char *cartella = std::getenv("TZDIR");
    const auto file =
        LeggiFile(std::string(cartella && *cartella ? cartella : "/usr/share/zoneinfo") + "/" + std::string(nome), ZONA_MASSIMA);
    return file ? DaTesto(*file) : std::nullopt;
}

Fuso Fuso::Fisso(int minuti) {
    Fuso f;
    f.prima_ = minuti * 60;
    return f;
}

Fuso Fuso::LeggiOppure(std::string_view nome, int minuti) {
    auto f = Leggi(nome);
    return f ? std::move(*f) : Fisso(minuti);
}

std::optional<Fuso> Fuso::DaTesto(std::string_view file) {
    Lettore l{file};
    Testata t;
    if (!testata(l, t) || file[4] < '2')
        return {};  // files of one part have 32-bit instants and no rule: none is made so any more
    l.salta(lunghezza(t, 4));
    if (!l.buono || !testata(l, t)) return {};
    const std::size_t fine = lunghezza(t, 8);
    if (file.size() - l.i < fine) return {};

    Fuso f;
    f.conRegole_ = true;
    std::vector<std::int64_t> quando;
    for (std::uint64_t k = 0; k < t.passi; ++k) quando.push_back(static_cast<std::int64_t>(l.numero(8)));
    std::vector<std::size_t> quale;
    for (std::uint64_t k = 0; k < t.passi; ++k) quale.push_back(static_cast<std::size_t>(l.numero(1)));
    std::vector<int> scarti;
    for (std::uint64_t k = 0; k < t.tipi; ++k) {
        const int s = static_cast<int>(static_cast<std::uint32_t>(l.numero(4)));
        l.salta(
            2);  // whether summer time, as the file has it: some count winter as a summer time that goes back; and the letters
        if (s < -SCARTO_MASSIMO || s > SCARTO_MASSIMO) return {};
        scarti.push_back(s);
    }
    f.prima_ = scarti.front();
    for (std::size_t k = 0; k < quando.size(); ++k) {
        if (quale[k] >= scarti.size() || (k > 0 && quando[k] <= quando[k - 1])) return {};
        f.passi_.push_back({quando[k], scarti[quale[k]]});
    }
    l.salta(static_cast<std::size_t>(t.lettere + t.leap * 12 + t.std + t.ut));
    if (!l.buono) return {};
    std::string_view coda = file.substr(l.i);
    if (!segno(coda, '\n')) return {};
    coda = coda.substr(0, coda.find('\n'));
    if (!coda.empty() && !leggiRegola(coda, f.regola_)) return {};
    return f;
}

// std offset [dst [offset] [,start[/time],end[/time]]]; offsets are West positive there.
bool Fuso::leggiRegola(std::string_view t, Regola &r) {
    int s = 0;
    if (!sigla(t) || !tempo(t, s)) return false;
    r.esiste = true;
    r.base = -s;
    if (t.empty()) return true;
    if (!sigla(t)) return false;
    r.avanti = r.base + 3600;
    if (!t.empty() && t.front() != ',') {
        if (!tempo(t, s)) return false;
        r.avanti = -s;
    }
    for (GiornoDiRegola *g : {&r.inizio, &r.fine}) {
        if (!segno(t, ',')) return false;
        if (segno(t, 'M')) {
            g->tipo = 'M';
            if (!cifre(t, 12, g->mese) || !segno(t, '.') || !cifre(t, 5, g->settimana) || !segno(t, '.') ||
                !cifre(t, 6, g->giorno))
                return false;
            if (g->mese < 1 || g->settimana < 1) return false;
        } else {
            g->tipo = segno(t, 'J') ? 'J' : '0';
            if (!cifre(t, 365, g->giorno)) return false;
        }
        if (segno(t, '/') && !tempo(t, g->ora)) return false;
    }
    r.estate = true;
    return t.empty();
}

// Seconds of the local clock at which a rule's day and time come in a year.
std::int64_t Fuso::istante(const GiornoDiRegola &g, std::int64_t anno) {
    std::int64_t giorno = 0;
    if (g.tipo == 'M') {
        const std::int64_t primo = giorni(anno, g.mese, 1), dopo = giorni(anno, g.mese + 1, 1);
        const std::int64_t settimana = ((primo + 4) % 7 + 7) % 7;  // 1970-01-01 was a Thursday
        giorno = primo + (g.giorno - settimana + 7) % 7 + 7 * (g.settimana - 1);
        if (giorno >= dopo) giorno -= 7;
    } else {
        const bool bisestile = giorni(anno, 3, 1) - giorni(anno, 2, 1) == 29;
        giorno = giorni(anno, 1, 1) + g.giorno - (g.tipo == 'J' ? (bisestile && g.giorno >= 60 ? 0 : 1) : 0);
    }
    return giorno * GIORNO + g.ora;
}

int Fuso::scarto(std::int64_t ut) const {
    const auto dopo =
        std::upper_bound(passi_.begin(), passi_.end(), ut, [](std::int64_t t, const Scatto &p) { return t < p.da; });
    if (dopo != passi_.end() || !regola_.esiste) return dopo == passi_.begin() ? prima_ : (dopo - 1)->scarto;
    if (!regola_.estate) return regola_.base;
    const std::int64_t anno = DaSecondi(ut + regola_.base).anno;
    const std::int64_t da = istante(regola_.inizio, anno) - regola_.base, a = istante(regola_.fine, anno) - regola_.avanti;
    const bool dentro = da < a ? ut >= da && ut < a : ut >= da || ut < a;
    return dentro ? regola_.avanti : regola_.base;
}

OraDelFuso Fuso::InUT(std::int64_t ut) const {
    OraDelFuso o;
    o.scarto = scarto(ut);
    const std::int64_t anno = DaSecondi(ut + o.scarto).anno;
    o.base = std::min(scarto(Secondi({anno, 1, 1})), scarto(Secondi({anno, 7, 1})));
    o.estate = o.scarto > o.base;
    return o;
}

Civile Fuso::InCivile(const Orario &orologio) const {
    const std::int64_t t = Secondi(orologio);
    // The offsets a day before and after: the time is right by one of them, by both (the hour that comes twice) or by none.
    const int prima = scarto(t - scarto(t) - GIORNO), poi = scarto(t - scarto(t) + GIORNO);
    const bool buonaPrima = scarto(t - prima) == prima, buonaPoi = scarto(t - poi) == poi;
    Civile c;
    c.ut = t - (buonaPrima || !buonaPoi ? prima : poi);
    c.ora = InUT(c.ut);
    if (prima != poi) c.quale = buonaPrima && buonaPoi ? Civile::Doppia : buonaPrima || buonaPoi ? Civile::Una : Civile::Saltata;
    return c;
}

}  // namespace ombrelia::luoghi
