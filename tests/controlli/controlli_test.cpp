// The table of controls: that each field of the record has its one row, that names find their rows, and the key filters.
#include "controlli/controlli.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "comuni/prova.h"
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

std::string Pieno(const Controllo &riga) {
    std::string nome = std::string(riga.modulo) + '.' + std::string(riga.nome);
    return riga.indice < 0 ? nome : nome + '(' + std::to_string(riga.indice) + ')';
}

TEST(Controlli, EveryMemberHasItsRow) {
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

TEST(Controlli, EveryRowIsFoundByItsName) {
    for (const Controllo &riga : TavolaControlli()) {
        EXPECT_EQ(CercaControllo(Pieno(riga)), IdDi(riga)) << Pieno(riga);
    }
}

// The project file looks a control up by the first place where its name begins.
TEST(Controlli, NoNameBeginsAsAnother) {
    const auto righe = ControlliDi("MDIForm1");
    for (const Controllo &prima : righe)
        for (const Controllo &poi : righe)
            EXPECT_FALSE(IdDi(prima) < IdDi(poi) && UguaglianzaSenzaCaso(prima.nome.substr(0, poi.nome.size()), poi.nome))
                << prima.nome << ' ' << poi.nome;
}

TEST(Controlli, NamesAsInTheScript) {
    for (const auto &r : prova::Tabella("controlli.txt")) {
        const auto id = CercaControllo(r.at(0));
        EXPECT_EQ(id ? Pieno(RigaDi(*id)) : "", r.at(1)) << r[0];
    }
    EXPECT_FALSE(CercaControllo(" txtLAT"));
}

TEST(Controlli, FormsOneAfterAnother) {
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

// So that no engine meets an empty text; years may be empty to mean the current one, and words say what they like.
TEST(Controlli, FieldsAreBornNumbers) {
    static const std::set<std::string_view> PAROLE{"txtAnno", "txtAnnoCartiglio", "txtLetture", "txtLuogo", "txtMotto"};
    const DialInputs in = InputsIniziali();
    for (const Controllo &riga : TavolaControlli()) {
        const bool testo = riga.testo && riga.classe == Classe::Testo && !PAROLE.contains(riga.nome);
        EXPECT_TRUE(!testo || (in.*riga.testo).find_first_of("0123456789") != std::string::npos) << riga.nome;
        EXPECT_TRUE(!riga.casella || in.*riga.casella == 0) << riga.nome;
    }
}

constexpr std::pair<Filtro, const char *> FILTRI[] = {{Filtro::Tasti, "keys"},
                                                      {Filtro::Numeri, "numbers"},
                                                      {Filtro::SoloCifreSegno, "digits and sign"},
                                                      {Filtro::SoloCifre, "digits"}};

TEST(Controlli, WhichBoxesFilterOrHide) {
    std::map<std::string, std::set<std::string>> attesi, trovati;
    for (const auto &r : prova::Tabella("filtri.txt")) attesi[r.at(0)].insert(r.begin() + 1, r.end());
    for (const Controllo &riga : TavolaControlli()) {
        EXPECT_TRUE(riga.filtro == Filtro::Nessuno || riga.classe == Classe::Testo) << Pieno(riga);
        for (const auto &[filtro, nome] : FILTRI)
            if (riga.filtro == filtro) trovati[nome].insert(Pieno(riga));
        if (!riga.visibile) trovati["hidden"].insert(Pieno(riga));
    }
    EXPECT_EQ(trovati, attesi);
}

TEST(Controlli, FiltersOfKeys) {
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
