// The table of controls: that each field of the record has its one row, that names find their rows, and the key filters.
#include "core/controlli.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "core/testo.h"

namespace ombrelia {
namespace {

// Number of members of an aggregate: the most initializers that it takes.
struct Qualsiasi {
    std::size_t quale;
    template <typename T>
    requires std::same_as<T, std::string> || std::same_as<T, int>
    operator T() const;
};
template <typename T, std::size_t... I>
constexpr bool Accetta(std::index_sequence<I...>) {
    return requires { T{Qualsiasi{I}...}; };
}
template <typename T, std::size_t N = 0>
constexpr std::size_t NumeroMembri() {
    if constexpr (Accetta<T>(std::make_index_sequence<N + 1>{})) return NumeroMembri<T, N + 1>();
    else return N;
}

const Controllo &Riga(std::string_view nome) {
    const IdControllo id = TrovaControllo(nome);
    if (id == NESSUN_CONTROLLO) throw std::out_of_range(std::string(nome));
    return TavolaControlli()[static_cast<std::size_t>(id)];
}

std::string Pieno(const Controllo &riga) {
    std::string nome = std::string(riga.modulo) + '.' + std::string(riga.nome);
    return riga.indice < 0 ? nome : nome + '(' + std::to_string(riga.indice) + ')';
}

TEST(Controlli, EachMemberOfTheRecordsHasItsOneRow) {
    const DialInputs in;
    const PannelloTavolo pannello;
    std::multiset<const void *> campi, testi;
    for (const Controllo &riga : TavolaControlli()) {
        if (riga.testo) campi.insert(&(in.*riga.testo));
        if (riga.casella) campi.insert(&(in.*riga.casella));
        if (riga.pannello) testi.insert(&(pannello.*riga.pannello));
        EXPECT_LE((riga.testo != nullptr) + (riga.casella != nullptr) + (riga.pannello != nullptr), 1) << Pieno(riga);
        const bool scritta = riga.classe == Classe::Testo || riga.classe == Classe::Elenco;
        const bool segnata = riga.classe == Classe::Casella || riga.classe == Classe::Opzione;
        EXPECT_TRUE((!riga.testo || scritta) && (!riga.casella || segnata)) << Pieno(riga);
    }
    const auto diversi = [](const auto &insieme) { return std::set<const void *>(insieme.begin(), insieme.end()).size(); };
    EXPECT_EQ(campi.size(), NumeroMembri<DialInputs>());
    EXPECT_EQ(diversi(campi), NumeroMembri<DialInputs>());
    EXPECT_EQ(testi.size(), NumeroMembri<PannelloTavolo>());
    EXPECT_EQ(diversi(testi), NumeroMembri<PannelloTavolo>());
}

TEST(Controlli, EveryRowIsFoundByItsOwnNameOnly) {
    for (const Controllo &riga : TavolaControlli()) {
        EXPECT_EQ(TrovaControllo(Pieno(riga)), IdDi(riga)) << Pieno(riga);
        const Controllo copia = riga;
        EXPECT_EQ(IdDi(copia), IdDi(riga)) << Pieno(riga);
    }
}

// The project file looks a control up by the first place where its name begins.
TEST(Controlli, NoNameOfTheMainWindowBeginsLikeAnEarlierOne) {
    const auto righe = ControlliDi("MDIForm1");
    for (const Controllo &prima : righe)
        for (const Controllo &poi : righe)
            EXPECT_FALSE(IdDi(prima) < IdDi(poi) && UguaglianzaSenzaCaso(prima.nome.substr(0, poi.nome.size()), poi.nome))
                << prima.nome << ' ' << poi.nome;
}

TEST(Controlli, NamesAsTheScriptGivesThem) {
    const struct {
        const char *nome, *modulo, *trovato;
        int indice;
    } casi[] = {
        {"txtLAT", "MDIForm1", "txtLAT", -1},
        {"MDIForm1.txtLAT", "MDIForm1", "txtLAT", -1},
        {"mdiform1.TXTlat", "MDIForm1", "txtLAT", -1},
        {"cmdsave", "MDIForm1", "cmdSave", -1},
        {"Tavolo1.cmdSave", "Tavolo1", "cmdSave", -1},
        {"TAVOLO1.VSCROLL1", "Tavolo1", "VScroll1", -1},
        {"frmDeclin.txtLonG", "frmDeclin", "txtLonG", -1},
        {"frmDeclin.cmdSign(0)", "frmDeclin", "cmdSign", 0},
        {"FRMDECLIN.CMDSIGN(1)", "frmDeclin", "cmdSign", 1},
        {"Form2.mnuPrinta", "Form2", "mnuPrinta", -1},
        {"Form8.menuPrinta", "Form8", "menuprinta", -1},
    };
    for (const auto &caso : casi) {
        ASSERT_NE(TrovaControllo(caso.nome), NESSUN_CONTROLLO) << caso.nome;
        const Controllo &riga = Riga(caso.nome);
        EXPECT_EQ(riga.modulo, caso.modulo) << caso.nome;
        EXPECT_EQ(riga.nome, caso.trovato) << caso.nome;
        EXPECT_EQ(riga.indice, caso.indice) << caso.nome;
    }
    for (const char *nome : {"", ".", "txtLA", "txtLATx", " txtLAT", "txtQL", "MDIForm1.txtQL", ".txtLAT", "txtLAT(0)",
                             "frmDeclin.cmdSign", "frmDeclin.cmdSign(2)", "cmdSign(0)", "frmTavolo.txtX", "Form5.menuFond"})
        EXPECT_EQ(TrovaControllo(nome), NESSUN_CONTROLLO) << nome;
}

TEST(Controlli, FormsLieOneAfterTheOther) {
    std::size_t somma = 0;
    for (const Modulo &modulo : TavolaModuli()) {
        const auto righe = ControlliDi(modulo.nome);
        ASSERT_FALSE(righe.empty()) << modulo.nome;
        EXPECT_EQ(righe.data(), TavolaControlli().data() + somma) << modulo.nome;
        for (const Controllo &riga : righe) EXPECT_EQ(riga.modulo, modulo.nome) << riga.nome;
        somma += righe.size();
    }
    EXPECT_EQ(somma, TavolaControlli().size());
    EXPECT_TRUE(ControlliDi("Form11").empty());
}

TEST(Controlli, StartTexts) {
    const DialInputs in = InputsIniziali();
    EXPECT_EQ(in.txtLAT, "45.74805");
    EXPECT_EQ(in.txtInc, "25.2");
    EXPECT_EQ(in.TxtStilo, ".195");
    EXPECT_EQ(in.txtY1, "-0.8");
    EXPECT_EQ(in.txtDensity, ".005");
    EXPECT_EQ(in.TxtFine, "17.5");
    EXPECT_EQ(in.txtQlon, "-39.81638");
    EXPECT_EQ(in.txtWest, "150");
    EXPECT_EQ(in.txtEAST, "50");
    EXPECT_EQ(in.cmbStati, "");
    // Every other field starts as a number, so that no engine meets an empty text.
    for (const Controllo &riga : TavolaControlli()) {
        if (riga.testo && riga.classe == Classe::Testo) {
            EXPECT_NE((in.*riga.testo).find_first_of("0123456789"), std::string::npos) << riga.nome;
        }
        if (riga.casella) {
            EXPECT_EQ(in.*riga.casella, 0) << riga.nome;
        }
    }
}

TEST(Controlli, CaptionsKeepTheirBlanks) {
    EXPECT_EQ(Riga("chkOreAstronomiche").caption, std::string(12, ' ') + "Rette orarie");
    EXPECT_EQ(Riga("ck_babiloniche").caption, std::string(5, ' ') + "Ore babiloniche");
    EXPECT_EQ(Riga("lblX1").caption, "III retta :" + std::string(12, ' ') + "x1 = ");
    EXPECT_EQ(Riga("CkUNI").toolTip.back(), ' ');
    EXPECT_EQ(Riga("Tavolo1.PicAssi").caption.front(), ' ');
    EXPECT_EQ(Riga("Tavolo1.lblQL").caption, "L Larghezza ");
}

TEST(Controlli, HiddenAtTheStart) {
    std::set<std::string> nascosti;
    for (const Controllo &riga : TavolaControlli())
        if (!riga.visibile) nascosti.insert(Pieno(riga));
    EXPECT_EQ(nascosti, (std::set<std::string>{"MDIForm1.lblFiltro", "MDIForm1.Filtertxt", "Tavolo1.PicAssi",
                                               "Tavolo1.picDimensioni", "Tavolo1.picPrint"}));
}

TEST(Controlli, WhichBoxesFilterTheirKeys) {
    const std::set<std::string> tasti{"txtAO",    "txtDec",  "txtDelta", "txtDensity", "txtEqx",  "txtEqy",  "TxtFraz",
                                      "txtLAT",   "txtLonG", "txtMax",   "txtMinus",   "txtOriz", "txtQlat", "txtQlon",
                                      "TxtStilo", "txtSusx", "txtSusy",  "txtX0",      "txtX1",   "txtY0",   "txtY1"};
    std::set<std::string> trovati;
    for (const Controllo &riga : TavolaControlli()) {
        EXPECT_TRUE(riga.filtro == Filtro::Nessuno || riga.classe == Classe::Testo) << Pieno(riga);
        if (riga.filtro == Filtro::Tasti) trovati.insert(riga.modulo == "MDIForm1" ? std::string(riga.nome) : Pieno(riga));
    }
    EXPECT_EQ(trovati, tasti);
    for (const char *nome : {"Tavolo1.txtX", "Tavolo1.txtY", "Tavolo1.txtQL", "Tavolo1.txtQH"})
        EXPECT_EQ(Riga(nome).filtro, Filtro::Numeri) << nome;
    for (const char *nome : {"txtAngle", "txtLAT", "txtLON", "TxtFuso"})
        EXPECT_EQ(Riga("frmDeclin." + std::string(nome)).filtro, Filtro::SoloCifreSegno) << nome;
    for (const char *nome : {"txtLatG", "txtLatP", "txtLATS", "txtLonG", "txtLonP", "txtLonS"})
        EXPECT_EQ(Riga("frmDeclin." + std::string(nome)).filtro, Filtro::SoloCifre) << nome;
}

TEST(Controlli, KeyFilters) {
    const struct {
        std::uint16_t tasto, numerico;
        bool beep;
        std::uint16_t cifre, cifreSegno;
    } casi[] = {
        {'0', '0', false, '0', '0'}, {'9', '9', false, '9', '9'}, {'.', '.', false, '.', '.'}, {',', '.', false, 0, 0},
        {'-', '-', false, 0, '-'},   {'+', 0, true, 0, '+'},      {8, 8, false, 8, 8},         {'a', 0, true, 0, 0},
        {'/', 0, true, 0, 0},        {':', 0, true, 0, 0},        {' ', 0, true, 0, 0},        {0, 0, true, 0, 0},
        {13, 0, true, 0, 0},         {256 + '5', 0, true, 0, 0},  {65535, 0, true, 0, 0},
    };
    for (const auto &caso : casi) {
        bool beep = !caso.beep;
        EXPECT_EQ(FiltroTasti(caso.tasto, beep), caso.numerico) << caso.tasto;
        EXPECT_EQ(beep, caso.beep) << caso.tasto;
        EXPECT_EQ(SoloNumeri(caso.tasto, false), caso.cifre) << caso.tasto;
        EXPECT_EQ(SoloNumeri(caso.tasto, true), caso.cifreSegno) << caso.tasto;
    }
}

}  // namespace
}  // namespace ombrelia
