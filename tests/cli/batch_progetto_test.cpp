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

TEST_F(BatchProgetto, SaveAndOpen) {
    const Esito e = Esegui(
        "set txtLAT 41.5\nsave a b.omb\nset txtLAT 12\ncheck ck_Italiche\nopen a b.omb\nshow txtLAT\nshow ck_Italiche\nshow "
        "TxtInizio\n"
        "save c.omb\nopen none.omb\nshow txtLAT\n");
    EXPECT_EQ(e.stato, 0) << e.errore;
    // The hours are those of the file, too.
    EXPECT_EQ(e.detto, "txtLAT=41.5\nck_Italiche=0\nTxtInizio=6.5\nbox: File non riconosciuto!\ntxtLAT=41.5\n");
    EXPECT_EQ(leggi("a b.omb"), leggi("c.omb"));
    EXPECT_EQ(Esegui("set txtLAT 41.5\nsave -\n").detto, leggi("c.omb"));
}

TEST_F(BatchProgetto, WhatCanNotBeSavedEndsTheRun) {
    for (const std::string file : {"/dev/full", "no/where.omb"}) {
        const Esito e = Esegui("show txtH\nsave " + file + "\nshow txtH\n");
        EXPECT_EQ(e.stato, 2) << file;
        EXPECT_EQ(e.detto, "txtH=0\n") << file;
        EXPECT_TRUE(e.errore.starts_with("prova:2: \"" + file + "\": ")) << e.errore;
    }
    for (const char *azione : {"open", "save", "open  "}) EXPECT_EQ(Esegui(azione).stato, 2) << azione;
}

TEST_F(BatchProgetto, MenusTakeQueuedAnswers) {
    const Esito e = Esegui(
        "answer m.omb\nclick mnuSalva\nclick mnuApri\nset txtLAT 1\nanswer m.omb\nclick mnuApri\nshow txtLAT\nset txtLAT "
        "2\nanswer No\n"
        "click mnuApri\nshow txtLAT\nanswer Yes\nanswer m.omb\nclick mnuApri\nshow txtLAT\n");
    EXPECT_EQ(e.stato, 0) << e.errore;
    const std::string domanda = "box: Attenzione! Vuoi chiudere il file m.omb?\n";
    EXPECT_EQ(e.detto, "txtLAT=45.74805\n" + domanda + "txtLAT=2\n" + domanda + "txtLAT=45.74805\n");
}

TEST_F(BatchProgetto, TheNextRunSpeaksTheNewLanguageAndKnowsTheDefaults) {
    std::filesystem::copy_file(OMBRELIA_RADICE "/data/DBFranceseC2008.txt", "DBFranceseC2008.txt");
    const Esito prima = Esegui("set txtLAT 48.85\nclick cmdSave\nclick mnuFrancais\nclick mnuFrancais\nshow cmdRun\n");
    EXPECT_EQ(prima.detto, "box: Il faut sortir avant d'exécuter Ombrelia!!\ndisabled: mnuFrancais\ncmdRun=Esegui enabled\n");
    const Esito poi = Esegui("show cmdRun\nshow txtLAT\nclick mnuAusiliaria\nshow frmDeclin.cmdExit\nopen none.omb\n");
    EXPECT_EQ(poi.detto,
              "cmdRun=Exécuter enabled\ntxtLAT=48.85\nfrmDeclin.cmdExit=Quitter enabled\nbox: Fichier non reconnu !\n");
}

}  // namespace
}  // namespace ombrelia
