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
struct Angolo {
    std::string_view decimale, gradi, primi, secondi, segno;
};
constexpr std::array<Angolo, 2> ANGOLI{{
    {"frmDeclin.txtLAT", "frmDeclin.txtLatG", "frmDeclin.txtLatP", "frmDeclin.txtLATS", "frmDeclin.cmdSign(0)"},
    {"frmDeclin.txtLON", "frmDeclin.txtLonG", "frmDeclin.txtLonP", "frmDeclin.txtLonS", "frmDeclin.cmdSign(1)"},
}};

std::string &testo(Sessione &s, std::string_view nome) { return s.testo(TrovaControllo(nome)); }
Valore valore(Sessione &s, std::string_view nome) { return Val(testo(s, nome)); }

// Only one set of boxes answers; the sign buttons always do.
void modo(Sessione &s, bool decimale) {
    for (const Angolo &a : ANGOLI) {
        s.stato(a.decimale).abilitato = decimale;
        for (const std::string_view nome : {a.gradi, a.primi, a.secondi}) s.stato(nome).abilitato = !decimale;
    }
}

// Boxes are converted when they are left, not while they change. A number that overflows converts nothing.
void inSessagesimali(Sessione &s, const Angolo &a) {
    const Valore v = valore(s, a.decimale);
    if (!v.esiste()) return;
    const sun::Sessagesimale parti = sun::GradiDecToSex(v);
    testo(s, a.gradi) = TestoNumero(Abs(parti.gradi).v);
    testo(s, a.primi) = TestoNumero(Abs(parti.primi).v);
    testo(s, a.secondi) = Formato(Abs(parti.secondi), "0.0000");
    s.stato(a.segno).caption.assign(1, v >= 0 ? '+' : '-');
}

void inDecimali(Sessione &s, const Angolo &a) {
    const std::string decimali =
        sun::GradiSexToDec(s.stato(a.segno).caption, valore(s, a.gradi), valore(s, a.primi), valore(s, a.secondi));
    if (!decimali.empty()) testo(s, a.decimale) = decimali;
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
    const Angolo &a = ANGOLI[static_cast<std::size_t>(indice)];
    std::string &segno = s.stato(a.segno).caption;
    segno.assign(1, segno == "+" ? '-' : '+');
    const Valore v = Abs(valore(s, a.decimale)) * Val(segno + "1");
    if (v.esiste()) testo(s, a.decimale) = TestoNumero(v.v);
}

void mnuAusiliaria_Click(Sessione &s, int) {
    CaricaForm(s, MODULO);
    s.valore(TrovaControllo("frmDeclin.optModoDec")) = 1;
    s.valore(TrovaControllo("frmDeclin.OptModoSess")) = 0;
    modo(s, true);
    testo(s, ANGOLI[0].decimale) = s.in.txtLAT;
    testo(s, ANGOLI[1].decimale) = s.in.txtLonG;
    for (const Angolo &a : ANGOLI) inSessagesimali(s, a);
    // Another zone than the start's is the board's too; at the start's the box keeps what was typed there.
    if (const Valore meridiano = Val(s.in.txtMeridiano); meridiano.esiste() && meridiano != -15)
        testo(s, std::string(MODULO) + ".TxtFuso") = TestoNumero((meridiano / 15).v);
    // The boxes are UT, so the clock is read as UT.
    const std::time_t adesso = std::time(nullptr);
    if (const std::tm *m = std::gmtime(&adesso)) {
        const std::pair<std::string_view, int> parti[] = {
            {"txtDay", m->tm_mday}, {"txtMonth", m->tm_mon + 1}, {"txtYear", m->tm_year + 1900},
            {"txtHH", m->tm_hour},  {"txtMM", m->tm_min},        {"txtSS", m->tm_sec},
        };
        for (const auto &[nome, n] : parti) testo(s, std::string(MODULO) + "." + std::string(nome)) = std::to_string(n);
    }
    s.utente.Modulo(MODULO, true);
}

void cmdTrans_Click(Sessione &s, int) {
    s.Scrivi(&DialInputs::txtLAT, testo(s, ANGOLI[0].decimale));
    s.Scrivi(&DialInputs::txtLonG, testo(s, ANGOLI[1].decimale));
}

void cmdCalcola_Click(Sessione &s, int) {
    const auto v = [&s](std::string_view nome) { return valore(s, std::string(MODULO) + "." + std::string(nome)); };
    const sun::EsitoDeclinazione e = sun::Declinazione(
        {
            .lat = v("txtLAT"),
            .lon = v("txtLON"),
            .giorno = v("txtDay"),
            .mese = v("txtMonth"),
            .anno = v("txtYear"),
            .ore = v("txtHH"),
            .minuti = v("txtMM"),
            .secondi = v("txtSS"),
            .angolo = v("txtAngle"),
            .fuso = v("TxtFuso"),
            .dst = s.valore(TrovaControllo("frmDeclin.ckDst")) == 1,
        },
        s.dizionario);
    // What was reached before a fault is written all the same.
    if (e.deltaOpz) s.v.deltaOpz = *e.deltaOpz;
    if (e.txtDelta) s.Scrivi(&DialInputs::txtDelta, *e.txtDelta);
    if (e.txtAO) s.Scrivi(&DialInputs::txtAO, *e.txtAO);
    if (e.corrLong) s.v.corrLong = 1;
    if (e.errore.empty()) testo(s, "frmDeclin.txtResult") = e.rapporto;
    else s.utente.Box(e.errore);
}

void cmdInfo_Click(Sessione &s, int) {
    CaricaForm(s, "frmInfoDec");
    s.utente.Modulo("frmInfoDec", true);
}

constexpr Gestore GESTORI[] = {
    {"MDIForm1", "mnuAusiliaria", Evento::Clic, mnuAusiliaria_Click},
    {MODULO, "optModoDec", Evento::Clic, [](Sessione &s, int) { modo(s, true); }},
    {MODULO, "OptModoSess", Evento::Clic, [](Sessione &s, int) { modo(s, false); }},
    {MODULO, "txtLAT", Evento::Uscita, decimale_LostFocus<0>},
    {MODULO, "txtLON", Evento::Uscita, decimale_LostFocus<1>},
    {MODULO, "txtLatG", Evento::Uscita, sessagesimale_LostFocus<0>},
    {MODULO, "txtLatP", Evento::Uscita, sessagesimale_LostFocus<0>},
    {MODULO, "txtLATS", Evento::Uscita, sessagesimale_LostFocus<0>},
    {MODULO, "txtLonG", Evento::Uscita, sessagesimale_LostFocus<1>},
    {MODULO, "txtLonP", Evento::Uscita, sessagesimale_LostFocus<1>},
    {MODULO, "txtLonS", Evento::Uscita, sessagesimale_LostFocus<1>},
    {MODULO, "cmdSign", Evento::Clic, cmdSign_Click},
    {MODULO, "cmdTrans", Evento::Clic, cmdTrans_Click},
    {MODULO, "cmdCalcola", Evento::Clic, cmdCalcola_Click},
    {MODULO, "cmdInfo", Evento::Clic, cmdInfo_Click},
    {MODULO, "cmdExit", Evento::Clic, [](Sessione &s, int) { s.utente.Modulo(MODULO, false); }},
};

}  // namespace

std::span<const Gestore> GestoriSole() { return GESTORI; }

}  // namespace ombrelia::app
