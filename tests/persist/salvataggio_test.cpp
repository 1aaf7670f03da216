// Tags by first occurrence, and the quoted file around them.
#include "persist/salvataggio.h"

#include "comuni/cartella.h"
#include "core/campi.h"

namespace ombrelia {
namespace {

TEST(Salvataggio, TagsByFirstOccurrence) {
    const struct {
        const char *testo, *nome, *frammento, *valore;
    } casi[] = {
        {"<txtH visible=true>1</txtH>", "txtH", "<txtH visible=true>1", "1"},
        {"<TXTH visible=true>Perché</txth>", " txtH ", "<TXTH visible=true>Perché", "Perché"},
        {"<txtHour>1</txtHour><txtH>2</txtH>", "txtH", "<txtHour>1", "1"},  // the longer name stands earlier
        {"<txtH>2</txtH><txtHour>1</txtHour>", "txtH", "<txtH>2", "2"},
        {"<a>x <b>y</a><b>z</b>", "b", "<b>y</a><b>z", "y</a><b>z"},  // a value that holds another's open
        {"<a>x </b>y</a><b>z</b>", "b", "", ""},                      // or its close
        {"</a><a>1", "a", "", ""},
        {"<a>1", "a", "", ""},
        {"1</a>", "a", "", ""},
        {"", "a", "", ""},
        {"<a</a>", "a", "<a", ""},
        {"<a></a>", "a", "<a>", ""},
        {"<a>1>2</a>", "a", "<a>1>2", "1>2"},
        {"<_a>5</_a><a>6</a>", "a", "<a>6", "6"},
    };
    for (const auto &caso : casi) {
        const TestoProgetto t(caso.testo);
        EXPECT_EQ(t.EstraiTag(caso.nome), caso.frammento) << caso.testo;
        EXPECT_EQ(ValoreTag(t.EstraiTag(caso.nome)), caso.valore) << caso.testo;
    }
    const TestoProgetto foglio("<a>6</a><_a>5</_A><_Shiftx>1.5E-02</_Shiftx>");
    EXPECT_EQ(foglio.EstraiTagSheet("A"), "<_a>5");
    EXPECT_EQ(ValoreTag(foglio.EstraiTagSheet("ShiftX")), "1.5E-02");
}

using SalvataggioTest = prova::InCartella;

TEST_F(SalvataggioTest, WhatAProjectFileHolds) {
    EXPECT_EQ(ProgettoDaTesto("<a>1</a>\r\n<_b>2</_b>"), "\"<a>1</a>\r\n<_b>2</_b>\"\r\n");
    const struct {
        std::string file;
        std::optional<std::string> testo;
    } casi[] = {
        {ProgettoDaTesto("uno\r\ndue, tre"), "uno\r\ndue, tre"},
        {ProgettoDaTesto("prima \" dopo"), "prima "},
        {"senza virgolette, resto", "senza virgolette"},
        {"\"perch\xE9\"\r\n", "perché"},
        {"\"mai chiuso", "mai chiuso"},
        {"", {}},
        {"\"\"\r\n", {}},
        {"\r\n\"dopo\"", {}},
        {"\"" + std::string(FILE_MASSIMO, 'x') + "\"", {}},
    };
    for (const auto &caso : casi) {
        scrivi("p.omb", caso.file);
        EXPECT_EQ(LeggiProgetto("p.omb"), caso.testo) << caso.file.substr(0, 50);
    }
    EXPECT_EQ(LeggiProgetto("manca.omb"), std::nullopt);
    EXPECT_EQ(LeggiProgetto("."), std::nullopt);
}

}  // namespace
}  // namespace ombrelia
