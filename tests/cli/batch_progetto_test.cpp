// Projects, defaults and language from an action script.
#include "cli/batch.h"
#include "comuni/cartella.h"

namespace ombrelia {
namespace {

using BatchProgetto = prova::InCartella;

struct Esito {
    int stato;
    std::string detto, errore;
};
Esito Esegui(std::string_view script) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int stato = cli::EseguiAzioni(script, "prova");
    return {stato, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST_F(BatchProgetto, SavesAndOpens) {
    const Esito e = Esegui(
        "set txtLAT 41.5\nsave a b.omb\nset txtLAT 12\ncheck ck_Italiche\nanswer a b.omb\nclick mnuApri\nshow txtLAT\nshow "
        "ck_Italiche\nshow TxtInizio\nsave c.omb\nopen none.omb\nshow txtLAT\n");
    EXPECT_EQ(e.stato, 0) << e.errore;
    // The hours are those of the file, too.
    EXPECT_EQ(e.detto, "txtLAT=41.5\nck_Italiche=0\nTxtInizio=6.5\nbox: File non riconosciuto!\ntxtLAT=41.5\n");
    EXPECT_EQ(leggi("a b.omb"), leggi("c.omb"));
    EXPECT_EQ(Esegui("set txtLAT 41.5\nsave -\n").detto, leggi("c.omb"));
}

TEST_F(BatchProgetto, WhatIsNotSavedStops) {
    for (const std::string file : {"/dev/full", "no/where.omb"}) {
        const Esito e = Esegui("show txtH\nsave " + file + "\nshow txtH\n");
        EXPECT_EQ(e.stato, 2) << file;
        EXPECT_EQ(e.detto, "txtH=0\n") << file;
        EXPECT_TRUE(e.errore.starts_with("prova:2: \"" + file + "\": ")) << e.errore;
    }
    for (const char *azione : {"open", "save", "open  "}) EXPECT_EQ(Esegui(azione).stato, 2) << azione;
}

}  // namespace
}  // namespace ombrelia
