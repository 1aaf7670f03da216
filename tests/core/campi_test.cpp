// The quoted forms of our text files.
#include "core/campi.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "comuni/prova.h"

namespace ombrelia {
namespace {

TEST(Campi, OneFieldAfterAnother) {
    for (const auto &r : prova::Tabella("campi.txt")) {
        const std::string testo = prova::Scritto(r.at(0));
        std::vector<std::string> avuti, attesi;
        for (std::string_view resto = testo; !resto.empty();) avuti.push_back(PrendiCampo(resto));
        for (std::size_t i = 1; i < r.size(); ++i) attesi.push_back(prova::Scritto(r[i]));
        EXPECT_EQ(avuti, attesi) << r[0];
    }
}

TEST(Campi, IntegersOfSixteenBits) {
    const std::pair<const char *, std::optional<int>> casi[] = {
        {"1", 1},           {" 2 ", 2},         {"", 0},       {"abc", 0},     {"1.9", 1},    {"-1.9", -1},  {"32767", 32767},
        {"-32768", -32768}, {"32767.5", 32767}, {"32768", {}}, {"-32769", {}}, {"1e300", {}}, {"1e999", {}}, {"1e-999", 0},
    };
    for (const auto &[testo, numero] : casi) EXPECT_EQ(Intero16(testo), numero) << testo;
}

}  // namespace
}  // namespace ombrelia
