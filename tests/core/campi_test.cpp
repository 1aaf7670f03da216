// The quoted forms of our text files.
#include "core/campi.h"

#include <gtest/gtest.h>

#include <vector>

namespace ombrelia {
namespace {

TEST(Campi, FieldsOneAfterTheOther) {
    const struct {
        std::string testo;
        std::vector<std::string> campi;
    } casi[] = {
        {"", {}},
        {"\"LAT\",\"45.5\"\r\n", {"LAT", "45.5"}},
        {"\"a,b\",\"c\r\nd\"\r\n\"e\"", {"a,b", "c\r\nd", "e"}},
        {"LAT,45.5\nDEC,-20\rINC,0", {"LAT", "45.5", "DEC", "-20", "INC", "0"}},
        {"\"uno\"\r\n\"due\"\r\n", {"uno", "due"}},
        {"\"a\" behind, \t\"b\"\r\n", {"a", "b"}},
        {"\"say \"hm\", next\"\r\nb", {"say ", " next\"", "b"}},
        {"\"never closed, ever\r\n", {"never closed, ever\r\n"}},
        {"\"A\",", {"A"}},
        {",,\r\n\r\n", {"", "", "", ""}},
        {" a \"b\" ,c", {" a \"b\" ", "c"}},
        {"   ", {"   "}},
        {"\"\"", {""}},
        {std::string("\"a\0b\",c\r", 8), {std::string("a\0b", 3), "c"}},
    };
    for (const auto &caso : casi) {
        std::vector<std::string> campi;
        for (std::string_view resto = caso.testo; !resto.empty();) campi.push_back(PrendiCampo(resto));
        EXPECT_EQ(campi, caso.campi) << caso.testo;
    }
}

TEST(Campi, WholeNumbersOfSixteenBits) {
    const struct {
        const char *testo;
        std::optional<int> numero;
    } casi[] = {
        {"1", 1},           {" 2 ", 2},         {"", 0},       {"abc", 0},     {"1.9", 1},    {"-1.9", -1},  {"32767", 32767},
        {"-32768", -32768}, {"32767.5", 32767}, {"32768", {}}, {"-32769", {}}, {"1e300", {}}, {"1e999", {}}, {"1e-999", 0},
    };
    for (const auto &caso : casi) EXPECT_EQ(Intero16(caso.testo), caso.numero) << caso.testo;
}

}  // namespace
}  // namespace ombrelia
