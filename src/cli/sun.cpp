// The Sun and the wall's declination from options.
#include "cli/sun.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "app/lingua.h"
#include "cli/place.h"
#include "core/file.h"
#include "core/testo.h"
#include "luoghi/fusi.h"
#include "sun/letture.h"

namespace ombrelia::cli {

namespace {

constexpr std::size_t LETTURE_MASSIME = 1U << 20;  // bytes of a file of readings

using sun::DatiDeclinazione;

struct ArgomentiSun {
    DatiDeclinazione dati;
    std::string letture, luogo, paese;
    const luoghi::Luogo *posto = nullptr;  // of --place
    std::vector<std::string_view> date;    // options that were given
    [[nodiscard]] bool data(std::string_view opzione) const { return std::find(date.begin(), date.end(), opzione) != date.end(); }
};

struct OpzioneDato {
    std::string_view nome, cosa;
    bool perLetture;  // needed by a file of readings too
    std::string (*leggi)(std::string_view testo, DatiDeclinazione &d);
};
constexpr std::array<OpzioneDato, 5> NECESSARIE{{
    {"--date", "a date, as in 2026-06-21", false, sun::LeggiData},
    {"--time", "a time, UT, as in 9:40 or 9:40:30", false, sun::LeggiOra},
    {"--lat", "degrees, North positive, as in 45.07", true,
     [](std::string_view t, DatiDeclinazione &d) { return sun::LeggiNumero(t, -90, 90, d.lat); }},
    {"--lon", "degrees, West positive, as in -7.68 for Turin", true,
     [](std::string_view t, DatiDeclinazione &d) { return sun::LeggiNumero(t, -180, 180, d.lon); }},
    {"--zone", "hours, West positive, as in -1 for Italy", false,
     [](std::string_view t, DatiDeclinazione &d) { return sun::LeggiNumero(t, -15, 15, d.fuso); }},
}};
constexpr OpzioneDato ANGOLO{"--angle", "degrees, as in -12.5", false,
                             [](std::string_view t, DatiDeclinazione &d) { return sun::LeggiNumero(t, -180, 180, d.angolo); }};
constexpr std::string_view LETTURE = "--readings", ESTATE = "--dst", LUOGO = "--place", PAESE = "--country", OROLOGIO = "--clock";

// Options beside those of the tables: what their argument is, nothing for a switch.
struct Altra {
    std::string_view nome, argomento;
    std::string ArgomentiSun::*dove;
};
constexpr std::array<Altra, 5> ALTRE{{
    {LETTURE, "a file", &ArgomentiSun::letture},
    {LUOGO, "a name, as in Torino", &ArgomentiSun::luogo},
    {PAESE, "two letters, as in IT", &ArgomentiSun::paese},
    {ESTATE, "", nullptr},
    {OROLOGIO, "", nullptr},
}};

int rifiuta(const std::string &motivo) {
    std::fprintf(stderr, "ombrelia sun: %s\n", motivo.c_str());
    return 2;
}

const OpzioneDato *opzione(std::string_view nome) {
    for (const OpzioneDato &o : NECESSARIE)
        if (o.nome == nome) return &o;
    return nome == ANGOLO.nome ? &ANGOLO : nullptr;
}

// Whether the place says what an option would.
bool daLuogo(std::string_view o) { return o == "--lat" || o == "--lon" || o == "--zone" || o == ESTATE; }

std::string leggi(int argc, char **argv, ArgomentiSun &r) {
    for (int i = 0; i < argc; ++i) {
        const std::string_view a = argv[i];
        const OpzioneDato *o = opzione(a);
        const auto altra = std::find_if(ALTRE.begin(), ALTRE.end(), [a](const Altra &x) { return x.nome == a; });
        if (!o && altra == ALTRE.end()) return "unknown option " + std::string(a) + "; see ombrelia sun --help";
        if (r.data(a)) return std::string(a) + " stands twice";
        r.date.push_back(a);
        if (!o && !altra->dove) continue;
        if (i + 1 >= argc) return std::string(a) + " needs " + std::string(o ? o->cosa : altra->argomento);
        const std::string valore = argv[++i];
        if (!o) r.*altra->dove = valore;
        else if (const std::string e = o->leggi(valore, r.dati); !e.empty()) return std::string(a) + ": " + e;
    }
    r.dati.dst = r.data(ESTATE);
    const bool molte = r.data(LETTURE), luogo = r.data(LUOGO);
    for (const OpzioneDato &o : NECESSARIE)
        if ((!molte || o.perLetture) && !r.data(o.nome) && !(luogo && daLuogo(o.nome)))
            return std::string(o.nome) + " is missing: " + std::string(o.cosa);
    if (molte)
        for (const std::string_view n : {NECESSARIE[0].nome, NECESSARIE[1].nome, ANGOLO.nome})
            if (r.data(n)) return std::string(n) + ": the file of --readings says that for each reading";
    for (const std::string_view n : r.date)
        if (luogo && daLuogo(n)) return std::string(n) + ": the place of --place says that";
    for (const std::string_view n : {PAESE, OROLOGIO})
        if (!luogo && r.data(n)) return std::string(n) + " goes with --place";
    std::string errore;
    if (luogo && (r.posto = TrovaLuogo(r.luogo, r.paese, errore)))
        r.dati.lat = r.posto->latitudine, r.dati.lon = r.posto->longitudine;
    return errore;
}

int interoDi(Valore v) { return static_cast<int>(v.v); }

// Zone and summer time of the place at the moment of the data; with orologio their time is the place's clock's and becomes UT.
std::string alFuso(const luoghi::Fuso &fuso, bool orologio, DatiDeclinazione &d) {
    const luoghi::Orario scritto{interoDi(d.anno), interoDi(d.mese),   interoDi(d.giorno),
                                 interoDi(d.ore),  interoDi(d.minuti), interoDi(d.secondi)};
    luoghi::OraDelFuso ora;
    if (orologio) {
        const luoghi::Civile c = fuso.InCivile(scritto);
        if (c.quale == luoghi::Civile::Saltata) return "the clock there jumps over that time";
        ora = c.ora;
        const luoghi::Orario ut = luoghi::DaSecondi(c.ut);
        d.anno = static_cast<double>(ut.anno), d.mese = ut.mese, d.giorno = ut.giorno;
        d.ore = ut.ore, d.minuti = ut.minuti, d.secondi = ut.secondi;
    } else {
        ora = fuso.InUT(luoghi::Secondi(scritto));
    }
    // The sums put summer time one hour ahead of the zone: so the zone is what makes the clock right.
    d.dst = ora.estate;
    d.fuso = (ora.estate ? 1 : 0) - ora.scarto / 3600.0;
    return {};
}

luoghi::Fuso fusoDi(const luoghi::Luogo &l) {
    luoghi::Fuso f = luoghi::Fuso::LeggiOppure(l.fuso, l.base);
    if (!f.conRegole()) std::fprintf(stderr, "ombrelia sun: no zone data on this system: standard time all year\n");
    return f;
}

int singola(const ArgomentiSun &r) {
    DatiDeclinazione dati = r.dati;
    if (r.posto) {
        if (const std::string e = alFuso(fusoDi(*r.posto), r.data(OROLOGIO), dati); !e.empty()) return rifiuta(e);
        std::fprintf(stderr, "ombrelia sun: %s, %s: %s, clock %s hours West of Greenwich%s\n", std::string(r.posto->nome).c_str(),
                     std::string(r.posto->paese).c_str(), std::string(r.posto->fuso).c_str(),
                     TestoNumero(dati.fuso.v - (dati.dst ? 1 : 0)).c_str(), dati.dst ? ", summer time" : "");
    }
    Dizionario dizionario;
    dizionario.CaricaDizionario(app::LINGUA);
    const sun::EsitoDeclinazione e = sun::Declinazione(dati, dizionario);
    if (!e.errore.empty()) return rifiuta(e.errore);
    std::string testo = e.rapporto + "\n";
    std::erase(testo, '\r');
    std::fwrite(testo.data(), 1, testo.size(), stdout);
    if (Abs(dati.lat) == 90) std::fputs("ombrelia sun: at the poles the lines of sunrise and sunset mean nothing\n", stderr);
    return 0;
}

std::string colonna(const std::string &testo, std::size_t larghezza) {
    return std::string(larghezza - std::min(larghezza, testo.size()), ' ') + testo;
}
std::string gradi(double g) { return colonna(Formato(g, "0.000"), 11); }

int molte(const ArgomentiSun &r) {
    std::string errore;
    auto contenuto = LeggiFile(r.letture, LETTURE_MASSIME, &errore);
    if (!contenuto) return rifiuta("--readings: " + errore);
    auto letture = sun::LeggiLetture(DaFile(std::move(*contenuto)), r.dati, errore);
    if (!errore.empty()) return rifiuta(r.letture + ":" + errore);
    if (letture.empty())
        return rifiuta(r.letture + ": no reading; write lines of date, time and angle, as in 2026-06-21 9:40 -12.5");

    if (r.data(OROLOGIO)) {
        const luoghi::Fuso fuso = fusoDi(*r.posto);
        for (sun::LetturaParete &l : letture)
            if (const std::string e = alFuso(fuso, true, l.dati); !e.empty())
                return rifiuta(r.letture + ":" + std::to_string(l.riga) + ": " + e);
    }

    std::vector<sun::EsitoDeclinazione> esiti;
    std::vector<double> declinazioni;
    for (const sun::LetturaParete &l : letture) {
        esiti.push_back(sun::Declinazione(l.dati, {}));
        if (!esiti.back().errore.empty()) return rifiuta(r.letture + ":" + std::to_string(l.riga) + ": " + esiti.back().errore);
        declinazioni.push_back(sun::Girato(esiti.back().declinazione.v));
    }
    const sun::Riassunto m = sun::Riassumi(declinazioni);

    std::size_t larghezza = 0;
    for (const sun::LetturaParete &l : letture) larghezza = std::max(larghezza, l.testo.size());
    std::string t = colonna("", larghezza) + "  Sun azimuth   altitude  declination  from others\n";
    for (std::size_t i = 0; i < letture.size(); ++i) {
        t += letture[i].testo + std::string(larghezza - letture[i].testo.size(), ' ');
        t += "  " + gradi(esiti[i].azimut.v) + gradi(esiti[i].altezza.v) + "  " + gradi(declinazioni[i]);
        t += letture.size() > 1 ? "  " + gradi(m.distanze[i]) : "";
        if (esiti[i].altezza < 0) t += "  the Sun is below the horizon";
        t += '\n';
    }
    const std::string quante = std::to_string(letture.size());
    t += "\nmean declination    " + gradi(m.media) + (m.media < 0 ? " East" : " West") + ", of " + quante + " readings\n";
    if (letture.size() > 1) {
        t += "standard deviation  " + gradi(m.scarto) + ", of their mean " +
             Formato(m.scarto / std::sqrt(static_cast<double>(letture.size())), "0.000") + "\n";
        t += "stands out          " + r.letture + ":" + std::to_string(letture[m.lontana].riga) + ": " +
             letture[m.lontana].testo + ", " + Formato(m.distanze[m.lontana], "0.000") + " from the mean of the others: ";
        if (m.stona) t += "measure it again\n";
        else t += letture.size() < 3 ? "two readings can't tell which\n" : "no more than chance\n";
    }
    std::fwrite(t.data(), 1, t.size(), stdout);
    return 0;
}

}  // namespace

int Sun(int argc, char **argv) {
    ArgomentiSun r;
    if (const std::string e = leggi(argc, argv, r); !e.empty()) return rifiuta(e);
    return r.data(LETTURE) ? molte(r) : singola(r);
}

}  // namespace ombrelia::cli
