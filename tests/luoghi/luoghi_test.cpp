// Towns, written angles and zones: against atlases, against the letter of the law, and the zones against the C library, which
// reads the same files by other code. Broken files and texts must do no harm.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "cli/place.h"
#include "comuni/cartella.h"
#include "comuni/prova.h"
#include "core/file.h"
#include "luoghi/angolo.h"
#include "luoghi/atlante.h"
#include "luoghi/fusi.h"

namespace ombrelia::luoghi {
namespace {

double n(const std::string &t) { return Val(t).v; }

std::string tabella() { return LeggiFile(OMBRELIA_RADICE "/data/luoghi.csv", 1U << 23).value_or(""); }
const Atlante &atlante() {
    static const Atlante a(tabella());
    return a;
}

TEST(Luoghi, KnownTowns) {
    double peggiore = 0;
    int righe = 0;
    for (const auto &r : prova::Tabella("luoghi_noti.txt")) {
        const Scelta s = atlante().Scegli(r[0], r[1] == "-" ? "" : r[1]);
        ASSERT_TRUE(s.luogo) << r[0];
        peggiore = std::max(peggiore, Distanza(*s.luogo, n(r[2]), n(r[3])));
        EXPECT_LE(Distanza(*s.luogo, n(r[2]), n(r[3])), 0.1) << r[0];
        EXPECT_EQ(s.luogo->meridiano, n(r[4])) << r[0];
        EXPECT_EQ(s.luogo->fuso, r[5]) << r[0];
        ++righe;
    }
    std::printf("%d towns, the worst %.3f degrees off\n", righe, peggiore);
    EXPECT_EQ(righe, 50);
}

TEST(Luoghi, NamesakesAndNearly) {
    EXPECT_TRUE(atlante().Scegli("Cambridge").omonimi);
    EXPECT_EQ(atlante().Scegli("Cambridge, MA").luogo->regione, "MA");
    EXPECT_EQ(atlante().Scegli("Cambridge", "gb").luogo->paese, "GB");
    EXPECT_FALSE(atlante().Scegli("Torrino").luogo);
    EXPECT_EQ(atlante().Cerca("Torrino").luoghi.at(0)->nome, "Turin");
    EXPECT_TRUE(atlante().Cerca("\xFF\xC0;|").luoghi.empty());
    EXPECT_TRUE(atlante().Cerca("   ").luoghi.empty());
    EXPECT_TRUE(atlante().Suggerisci("").empty());
    // Broken lines are passed over.
    const Atlante rotto("=0;Europe/Rome;60\nA;;IT;;91;0;1;0\nB;;IT;;45;7;1;9\nC;;IT;;45;7\nD;;IT;;x;7;1;0\nE;;IT;;45;7;5001;0");
    ASSERT_EQ(rotto.luoghi().size(), 1U);
    EXPECT_EQ(rotto.luoghi()[0].longitudine, -7);
}

// By the map: a zone's meridian is said as it lies from its towns, also beyond the 180th; a degree of longitude is as long as the
// cosine of the latitude.
TEST(Luoghi, MeridiansAndDistances) {
    struct Riga {
        const char *longitudine;  // East, as the table has it
        int minuti;
        double meridiano;
    };
    for (const Riga &r :
         {Riga{"172.9", -600, -210}, {"-171.8", 780, 165}, {"-157.4", 840, 150}, {"178.4", 720, -180}, {"7", 60, -15}}) {
        const Atlante a("=0;X;" + std::to_string(r.minuti) + "\nA;;XX;;60;" + r.longitudine + ";1;0");
        ASSERT_EQ(a.luoghi().size(), 1U);
        EXPECT_EQ(a.luoghi()[0].meridiano, r.meridiano) << r.longitudine;
        EXPECT_NEAR(Distanza(a.luoghi()[0], 60, a.luoghi()[0].longitudine + 359), 0.5, 1e-9);
    }
}

TEST(Luoghi, AnswersEveryKey) {
    for (const std::string_view nome : {"San Francisco", "zürich", "qwertyuiop", "Saint-Étienne", "new york"})
        for (std::size_t k = 1; k <= nome.size(); ++k)
            ASSERT_LE(atlante().Suggerisci(nome.substr(0, k)).size(), 12U) << nome.substr(0, k);
    ASSERT_FALSE(atlante().Suggerisci("lon").empty());
    EXPECT_EQ(atlante().Suggerisci("lon").front()->nome, "London");
    EXPECT_EQ(atlante().Suggerisci("rom").front()->nome, "Rome");
}

TEST(Angoli, AsTheyAreWritten) {
    for (const auto &r : prova::Tabella("angoli_scritti.txt")) {
        const CampoAngolo *campo = TrovaCampoAngolo(r[0]);
        ASSERT_TRUE(campo) << r[0];
        const AngoloLetto a = LeggiAngolo(r[1], *campo);
        if (r[2].starts_with('!')) {
            EXPECT_EQ(static_cast<int>(a.intoppo), static_cast<int>(n(r[2].substr(1)))) << r[0] << " " << r[1];
            EXPECT_FALSE(Motivo(a.intoppo).empty());
            continue;
        }
        EXPECT_TRUE(a.buono()) << r[1];
        EXPECT_EQ(a.testo, r[2]) << r[1];
        EXPECT_EQ(DueForme(a.gradi, campo->verso), r[3]) << r[1];
    }
    EXPECT_FALSE(TrovaCampoAngolo("TxtStilo"));
}

// Any text at all: either a reason, or a number in range that the field's text gives again.
TEST(Angoli, AnyText) {
    std::mt19937 g(1);
    const std::string_view pezzi[] = {"4", "5", "0", "9", "60", "179", ".", ",", " ", "-", "+",   "°",    "'",    "\"", "''",
                                      "′", "N", "S", "E", "W",  "o",   "d", "m", "s", "e", "nan", "\xC2", "\xFF", "x"};
    int buoni = 0;
    for (int k = 0; k < 200000; ++k) {
        std::string t;
        for (auto q = g() % 9; q > 0; --q) t += pezzi[g() % std::size(pezzi)];
        const CampoAngolo &campo = *TrovaCampoAngolo(k % 2 ? "txtLAT" : "txtLonG");
        const AngoloLetto a = LeggiAngolo(t, campo);
        if (!a.buono()) continue;
        ++buoni;
        ASSERT_TRUE(a.gradi >= campo.da && a.gradi <= campo.a) << t;
        ASSERT_NEAR(Val(a.testo).v, a.gradi, 1e-12) << t;
        const std::string forme = DueForme(a.gradi, campo.verso);
        const AngoloLetto b = LeggiAngolo(forme.substr(forme.find('=') + 1), campo);
        ASSERT_TRUE(b.buono()) << t << " -> " << forme;
        ASSERT_NEAR(b.gradi, a.gradi, 0.051 / 3600) << t;
    }
    EXPECT_GT(buoni, 5000);
    EXPECT_FALSE(LeggiAngolo(std::string(100000, '4'), *TrovaCampoAngolo("txtLAT")).buono());
}

Orario orario(const std::string &t) {
    Orario o;
    long long anno = 0;
    std::sscanf(t.c_str(), "%lld-%d-%d %d:%d:%d", &anno, &o.mese, &o.giorno, &o.ore, &o.minuti, &o.secondi);
    o.anno = anno;
    return o;
}

TEST(Fusi, Clocks) {
    for (const auto &r : prova::Tabella("ore_civili.txt")) {
        const auto f = Fuso::Leggi(r[0]);
        if (!f) GTEST_SKIP() << "no zone data on this system";
        const Civile c = f->InCivile(orario(r[1]));
        EXPECT_EQ(c.ut, Secondi(orario(r[2]))) << r[0] << " " << r[1];
        EXPECT_EQ(c.ora.estate, r[3] == "1") << r[0] << " " << r[1];
        EXPECT_EQ(static_cast<int>(c.quale), static_cast<int>(n(r[4]))) << r[0] << " " << r[1];
    }
    for (const char *brutto : {"", "../passwd", "/etc/passwd", "Europe/Nowhere", "Europe", "a\nb", "zone.tab"})
        EXPECT_FALSE(Fuso::Leggi(brutto)) << brutto;
    EXPECT_EQ(Fuso::LeggiOppure("Europe/Nowhere", 345).InUT(0).scarto, 345 * 60);
}

TEST(Fusi, AsTheCLibraryHasThem) {
    const char *prima = std::getenv("TZ");
    const std::string tz = prima ? prima : "";
    std::mt19937_64 g(7);
    std::set<std::string> nomi;
    for (const Luogo &l : atlante().luoghi()) nomi.insert(std::string(l.fuso));
    long paragoni = 0, diversi = 0;
    for (const std::string &nome : nomi) {
        const auto f = Fuso::Leggi(nome);
        if (!f) GTEST_SKIP() << "no zone data on this system";
        ::setenv("TZ", (":" + nome).c_str(), 1);
        ::tzset();
        for (int k = 0; k < 200; ++k) {
            const std::time_t t = static_cast<std::time_t>(g() % 6600000000ULL) - 2200000000LL;  // 1900 to 2109
            std::tm tm{};
            ::localtime_r(&t, &tm);
            ++paragoni;
            const OraDelFuso o = f->InUT(t);
            diversi += o.scarto != tm.tm_gmtoff;
            const Orario q = DaSecondi(t + o.scarto);
            diversi += q.anno != tm.tm_year + 1900 || q.mese != tm.tm_mon + 1 || q.giorno != tm.tm_mday || q.ore != tm.tm_hour ||
                       q.secondi != tm.tm_sec;
            const Civile c = f->InCivile(q);
            diversi += c.ut != t && c.quale != Civile::Doppia;
        }
    }
    prima ? ::setenv("TZ", tz.c_str(), 1) : ::unsetenv("TZ");
    ::tzset();
    std::printf("%zu zones, %ld instants\n", nomi.size(), paragoni);
    EXPECT_EQ(diversi, 0);
    // The table's standard offsets are the zones' of the year.
    const std::time_t ora = std::time(nullptr);
    int base = 0;
    for (const Luogo &l : atlante().luoghi())
        base += l.popolazione > 200000 && Fuso::Leggi(l.fuso)->InUT(ora).base != l.base * 60;
    EXPECT_EQ(base, 0);
}

// Rules alone, in every form that they have, hour by hour through leap years and common ones.
TEST(Fusi, RulesAsTheCLibraryHasThem) {
    const char *prima = std::getenv("TZ");
    const std::string tz = prima ? prima : "";
    for (const std::string regola : {"AAA-1BBB,J60/0,J300/3", "AAA5BBB,59/2,J300/1:30", "<+03>-3:30<+04>,M3.5.0,M10.1.6/5",
                                     "AAA-9:30", "AAA3BBB2,M11.1.0/0,J60/0", "AAA-10BBB-10:30,300,J59/12:00:30"}) {
        std::string parte = "TZif2";
        parte.append(15 + 4 * 4 + 3, '\0').append("\1\0\0\0\1", 5).append(7, '\0');  // one kind of time, one letter
        const auto f = Fuso::DaTesto(parte + parte + "\n" + regola + "\n");
        ASSERT_TRUE(f) << regola;
        ::setenv("TZ", regola.c_str(), 1);
        ::tzset();
        int diversi = 0;
        for (std::time_t t = 1672531200; t < 1672531200 + 5 * 365 * 86400; t += 3600) {  // from 2023 on
            std::tm tm{};
            ::localtime_r(&t, &tm);
            diversi += f->InUT(t).scarto != tm.tm_gmtoff;
        }
        EXPECT_EQ(diversi, 0) << regola;
    }
    prima ? ::setenv("TZ", tz.c_str(), 1) : ::unsetenv("TZ");
    ::tzset();
}

TEST(Fusi, BrokenFiles) {
    const auto file = LeggiFile("/usr/share/zoneinfo/Australia/Lord_Howe", 1U << 20);
    if (!file) GTEST_SKIP() << "no zone data on this system";
    std::mt19937 g(3);
    int letti = 0;
    for (int k = 0; k < 20000; ++k) {
        std::string f = *file;
        if (k % 4 == 0) f.resize(g() % f.size());
        else
            for (auto q = 1 + g() % 4; q > 0; --q)
                f[k % 4 == 1 ? f.size() - 1 - g() % 60 : g() % f.size()] = static_cast<char>(g());
        if (const auto z = Fuso::DaTesto(f)) {
            ++letti;
            EXPECT_LE(std::abs(z->InCivile({2026, 1, 15, 12, 0, 0}).ora.scarto), 200 * 3600);
        }
    }
    EXPECT_GT(letti, 1000);
}

using ComandoPlace = prova::InCartella;

int place(std::vector<std::string> a, std::string &uscita) {
    std::vector<char *> argv;
    for (std::string &x : a) argv.push_back(x.data());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int esito = cli::Place(static_cast<int>(argv.size()), argv.data());
    uscita = testing::internal::GetCapturedStdout();
    (void)testing::internal::GetCapturedStderr();
    return esito;
}

TEST_F(ComandoPlace, ListsAndStatus) {
    scrivi("luoghi.csv", tabella());
    std::string t;
    EXPECT_EQ(place({"New", "York"}, t), 0);
    EXPECT_EQ(t, "New York (New York City)  US-NY  40.7143  74.0060  75  America/New_York\n");
    EXPECT_EQ(place({"Quito", "--country", "EC", "--json"}, t), 0);
    EXPECT_EQ(t,
              "[\n {\"name\": \"Quito\", \"country\": \"EC\", \"latitude\": -0.2298, \"longitude\": 78.525, \"meridian\": 75, "
              "\"zone\": "
              "\"America/Guayaquil\", \"population\": 1399814}\n]\n");
    EXPECT_EQ(place({"qwzx"}, t), 1);
    EXPECT_EQ(t, "");
    EXPECT_EQ(place({"Torino", "--country", "US"}, t), 1);
    for (const std::vector<std::string> &brutto :
         {std::vector<std::string>{}, {"--jsn", "Roma"}, {"Roma", "--country"}, {"Roma", "--country", "Italy"}})
        EXPECT_EQ(place(brutto, t), 2);
}

}  // namespace
}  // namespace ombrelia::luoghi
