// Handlers of the utility board: conversion of degrees, the Sun and the wall's declination.
#include <array>
#include <ctime>

#include "app/comandi.h"
#include "app/lingua.h"
#include "sun/declinazione.h"

namespace ombrelia::app {

namespace {

constexpr std::string_view MODULO = "frmDeclin";

// The boxes of one angle, by their names on the board: latitude, longitude.
struct CaselleAngolo {
    NomeControllo decimale, gradi, primi, secondi, segno;
};
constexpr std::array<CaselleAngolo, 2> ANGOLI{{
    {"frmDeclin.txtLAT", "frmDeclin.txtLatG", "frmDeclin.txtLatP", "frmDeclin.txtLATS", "frmDeclin.cmdSign(0)"},
    {"frmDeclin.txtLON", "frmDeclin.txtLonG", "frmDeclin.txtLonP", "frmDeclin.txtLonS", "frmDeclin.cmdSign(1)"},
}};

Valore valore(Sessione &s, NomeControllo nome) { return Val(s.testo(nome)); }

// Only one set of boxes answers; the sign buttons always do.
void modo(Sessione &s, bool decimale) {
    for (const CaselleAngolo &a : ANGOLI) {
        s.stato(a.decimale).abilitato = decimale;
        for (const NomeControllo nome : {a.gradi, a.primi, a.secondi}) s.stato(nome).abilitato = !decimale;
    }
}

// Boxes are converted when they are left, not while they change. A number that overflows converts nothing.
void inSessagesimali(Sessione &s, const CaselleAngolo &a) {
    const Valore v = valore(s, a.decimale);
    if (!v.esiste()) return;
    const sun::Sessagesimale parti = sun::GradiDecToSex(v);
    s.testo(a.gradi) = TestoNumero(Abs(parti.gradi).v);
    s.testo(a.primi) = TestoNumero(Abs(parti.primi).v);
    s.testo(a.secondi) = Formato(Abs(parti.secondi), "0.0000");
    s.stato(a.segno).caption.assign(1, v >= 0 ? '+' : '-');
}

void inDecimali(Sessione &s, const CaselleAngolo &a) {
    const std::string decimali =
        sun::GradiSexToDec(s.stato(a.segno).caption, valore(s, a.gradi), valore(s, a.primi), valore(s, a.secondi));
    if (!decimali.empty()) s.testo(a.decimale) = decimali;
}

template <std::size_t I>
void decimale_LostFocus(Sessione &s, int) {
    inSessagesimali(s, ANGOLI[I]);
}
template <std::size_t I>
void sessagesimale_LostFocus(Sessione &s, int) {
    inDecimali(s, ANGOLI[I]);
}

void cmdSign_Click(Sessione &s, int indice) {
    const CaselleAngolo &a = ANGOLI[static_cast<std::size_t>(indice)];
    std::string &segno = s.stato(a.segno).caption;
    segno.assign(1, segno == "+" ? '-' : '+');
    const Valore v = Abs(valore(s, a.decimale)) * Val(segno + "1");
    if (v.esiste()) s.testo(a.decimale) = TestoNumero(v.v);
}

void mnuAusiliaria_Click(Sessione &s, int) {
    CaricaForm(s, MODULO);
    s.valore("frmDeclin.optModoDec") = 1;
    s.valore("frmDeclin.OptModoSess") = 0;
    modo(s, true);
    s.testo(ANGOLI[0].decimale) = s.in.txtLAT;
    s.testo(ANGOLI[1].decimale) = s.in.txtLonG;
    for (const CaselleAngolo &a : ANGOLI) inSessagesimali(s, a);
    // Another zone than the start's is the board's too; at the start's the box keeps what was typed there.
    if (const Valore meridiano = Val(s.in.txtMeridiano); meridiano.esiste() && meridiano != -15)
        s.testo("frmDeclin.TxtFuso") = TestoNumero((meridiano / 15).v);
    // The boxes are UT, so the clock is read as UT.
    const std::time_t adesso = std::time(nullptr);
    if (const std::tm *m = std::gmtime(&adesso)) {
        s.testo("frmDeclin.txtDay") = std::to_string(m->tm_mday);
        s.testo("frmDeclin.txtMonth") = std::to_string(m->tm_mon + 1);
        s.testo("frmDeclin.txtYear") = std::to_string(m->tm_year + 1900);
        s.testo("frmDeclin.txtHH") = std::to_string(m->tm_hour);
        s.testo("frmDeclin.txtMM") = std::to_string(m->tm_min);
        s.testo("frmDeclin.txtSS") = std::to_string(m->tm_sec);
    }
    s.utente.Modulo(MODULO, true);
}

void cmdTrans_Click(Sessione &s, int) {
    s.Scrivi(&DialInputs::txtLAT, s.testo(ANGOLI[0].decimale));
    s.Scrivi(&DialInputs::txtLonG, s.testo(ANGOLI[1].decimale));
}

void cmdCalcola_Click(Sessione &s, int) {
    const sun::EsitoDeclinazione e = sun::Declinazione(
        {
            .lat = valore(s, "frmDeclin.txtLAT"),
            .lon = valore(s, "frmDeclin.txtLON"),
            .giorno = valore(s, "frmDeclin.txtDay"),
            .mese = valore(s, "frmDeclin.txtMonth"),
            .anno = valore(s, "frmDeclin.txtYear"),
            .ore = valore(s, "frmDeclin.txtHH"),
            .minuti = valore(s, "frmDeclin.txtMM"),
            .secondi = valore(s, "frmDeclin.txtSS"),
            .angolo = valore(s, "frmDeclin.txtAngle"),
            .fuso = valore(s, "frmDeclin.TxtFuso"),
            .dst = s.valore("frmDeclin.ckDst") == 1,
        },
        s.dizionario);
    // What was reached before a fault is written all the same.
    if (e.deltaOpz) s.v.deltaOpz = *e.deltaOpz;
    if (e.txtDelta) s.Scrivi(&DialInputs::txtDelta, *e.txtDelta);
    if (e.txtAO) s.Scrivi(&DialInputs::txtAO, *e.txtAO);
    if (e.corrLong) s.v.corrLong = 1;
    if (e.errore.empty()) s.testo("frmDeclin.txtResult") = e.rapporto;
    else s.utente.Box(e.errore);
}

void cmdInfo_Click(Sessione &s, int) {
    CaricaForm(s, "frmInfoDec");
    s.utente.Modulo("frmInfoDec", true);
}

constexpr Gestore GESTORI[] = {
    {"mnuAusiliaria", Evento::Clic, mnuAusiliaria_Click},
    {"frmDeclin.optModoDec", Evento::Clic, [](Sessione &s, int) { modo(s, true); }},
    {"frmDeclin.OptModoSess", Evento::Clic, [](Sessione &s, int) { modo(s, false); }},
    {"frmDeclin.txtLAT", Evento::Uscita, decimale_LostFocus<0>},
    {"frmDeclin.txtLON", Evento::Uscita, decimale_LostFocus<1>},
    {"frmDeclin.txtLatG", Evento::Uscita, sessagesimale_LostFocus<0>},
    {"frmDeclin.txtLatP", Evento::Uscita, sessagesimale_LostFocus<0>},
    {"frmDeclin.txtLATS", Evento::Uscita, sessagesimale_LostFocus<0>},
    {"frmDeclin.txtLonG", Evento::Uscita, sessagesimale_LostFocus<1>},
    {"frmDeclin.txtLonP", Evento::Uscita, sessagesimale_LostFocus<1>},
    {"frmDeclin.txtLonS", Evento::Uscita, sessagesimale_LostFocus<1>},
    {"frmDeclin.cmdSign(0)", Evento::Clic, cmdSign_Click},
    {"frmDeclin.cmdSign(1)", Evento::Clic, cmdSign_Click},
    {"frmDeclin.cmdTrans", Evento::Clic, cmdTrans_Click},
    {"frmDeclin.cmdCalcola", Evento::Clic, cmdCalcola_Click},
    {"frmDeclin.cmdInfo", Evento::Clic, cmdInfo_Click},
    {"frmDeclin.cmdExit", Evento::Clic, [](Sessione &s, int) { s.utente.Modulo(MODULO, false); }},
};

}  // namespace

std::span<const Gestore> GestoriSole() { return GESTORI; }

}  // namespace ombrelia::app
