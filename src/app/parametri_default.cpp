// The defaults file.
#include "app/parametri_default.h"

#include "app/comandi.h"
#include "core/campi.h"
#include "persist/parametri.h"

namespace ombrelia::app {

namespace {

using In = DialInputs;

// A key, and the field or the box that it keeps.
struct Chiave {
    std::string_view nome;
    std::string In::*testo = nullptr;
    int In::*casella = nullptr;
    std::string_view inizio{};  // of a later key, which a file holds only where it differs; empty for the others
};
constexpr Chiave T(std::string_view nome, std::string In::*campo, std::string_view inizio = {}) {
    return {nome, campo, nullptr, inizio};
}
constexpr Chiave C(std::string_view nome, int In::*casella) { return {nome, nullptr, casella}; }

// In the order of a fresh file. ROMANI is the size box; the switch of the Roman numerals is CIFRE.
constexpr Chiave CHIAVI[] = {
    T("LAT", &In::txtLAT),
    T("DEC", &In::txtDec),
    T("INC", &In::txtInc),
    T("ORTO", &In::TxtStilo),
    T("LONG", &In::txtLonG),
    T("FRAZIONE", &In::TxtFraz),
    C("DIURNE", &In::Ck_DayLightCurves),
    C("EQUINOX", &In::ck_Equinoziale),
    C("LEMNISCATA", &In::ck_Lemniscate),
    C("ITALICHE", &In::ck_Italiche),
    C("BABILONICHE", &In::ck_babiloniche),
    C("TEMPORARIE", &In::ckTemp),
    C("TRIANGOLO", &In::ck_Triangolo),
    C("ORAMEDIA", &In::ck_Etna),
    C("SUSTILARE", &In::ck_Sustilare),
    T("PRIMAASCISSA", &In::txtX0),
    T("PRIMAORDINATA", &In::txtY0),
    T("SECONDAASCISSA", &In::txtX1),
    T("SECONDAORDINATA", &In::txtY1),
    T("ASCISSAEQUINOZIALE", &In::txtEqx),
    T("ORDINATAEQUINOZIALE", &In::txtEqy),
    T("ASCISSASUSTILARE", &In::txtSusx),
    T("ORDINATASUSTILARE", &In::txtSusy),
    T("ORDINATAORIZZONTE", &In::txtOriz),
    T("LIMITEMINIMO", &In::txtMinus),
    T("LIMITEMASSIMO", &In::txtMax),
    T("ANGOLOORARIO", &In::txtAO),
    T("DELTASOLE", &In::txtDelta),
    C("CIFRE", &In::ckRomani),
    C("QUADRO", &In::ckAsr),
    C("QIBLA", &In::CkQibla),
    T("QIBLALAT", &In::txtQlat),
    T("QIBLALON", &In::txtQlon),
    C("ORIZZONTE", &In::ck_Orizzonte),
    T("ORAINIZIO", &In::TxtInizio),
    T("ORAFINE", &In::TxtFine),
    C("OREASTRONOMICHE", &In::chkOreAstronomiche),
    C("CENTIMETRO", &In::ChCentimetro),
    T("ARABI", &In::txtArabi),
    T("ROMANI", &In::txtNumbersize),
    T("ZODIACO", &In::txtZodiacsize),
    T("MERIDIANO", &In::txtMeridiano, "-15"),
};

}  // namespace

void LeggiDefault(Sessione &s) {
    Parametri parametri;
    for (const Chiave &c : CHIAVI) {
        const std::string valore = parametri.Leggi(c.nome);
        if (valore.empty()) continue;
        if (c.testo) s.Scrivi(c.testo, valore);
        else if (const auto n = Intero16(valore)) SpuntaDaProgramma(s, c.casella, *n);
    }
}

std::optional<std::string> ScriviDefault(Sessione &s) {
    Parametri parametri;
    for (const Chiave &c : CHIAVI) {
        const std::string valore = c.testo ? s.in.*c.testo : std::to_string(s.in.*c.casella);
        const bool sottinteso = !c.inizio.empty() && valore == c.inizio && parametri.Leggi(c.nome).empty();
        if (!sottinteso) parametri.Poni(c.nome, valore);
    }
    return parametri.Salva();
}

}  // namespace ombrelia::app
