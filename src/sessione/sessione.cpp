// The session: controls' states, the common reading of the fields, the frame.
#include "sessione/sessione.h"

#include <algorithm>

namespace ombrelia {

Sessione::Sessione(Utente &chi) : in(InputsIniziali()), utente(chi) {
    const auto tavola = TavolaControlli();
    stati.resize(tavola.size());
    for (std::size_t i = 0; i < tavola.size(); ++i) {
        stati[i].caption = tavola[i].caption;
        stati[i].toolTip = tavola[i].toolTip;
        stati[i].testo = tavola[i].inizio;
        stati[i].visibile = tavola[i].visibile;
    }
    for (const Modulo &m : TavolaModuli()) titoli.emplace_back(m.caption);
    tavolo.suMessaggio = [this](std::string_view testo) { utente.Messaggio(testo); };
    tavolo.suAttesa = [this](bool attesa) { utente.Puntatore(attesa); };
}

void Sessione::Scrivi(std::string DialInputs::*campo, std::string testo) {
    if (in.*campo == testo) return;
    in.*campo = std::move(testo);
    if (suCambio) suCambio(*this, campo);
}

std::string &Sessione::testo(IdControllo id) {
    const Controllo &riga = TavolaControlli()[static_cast<std::size_t>(id)];
    if (riga.testo) return in.*riga.testo;
    if (riga.pannello) return tavolo.pannello.*riga.pannello;
    return stato(id).testo;
}

int &Sessione::valore(IdControllo id) {
    const Controllo &riga = TavolaControlli()[static_cast<std::size_t>(id)];
    return riga.casella ? in.*riga.casella : stato(id).valore;
}

StatoControllo &Sessione::stato(std::string_view nome) { return stato(TrovaControllo(nome)); }

std::string &Sessione::titolo(std::string_view modulo) {
    const auto moduli = TavolaModuli();
    const auto i = std::find_if(moduli.begin(), moduli.end(), [&](const Modulo &m) { return m.nome == modulo; });
    return titoli.at(static_cast<std::size_t>(i - moduli.begin()));
}

void LeggiParametri(Sessione &s) {
    Variabili &v = s.v;
    const DialInputs &in = s.in;
    v.lat = Val(in.txtLAT);
    v.latR = Abs(PI * v.lat / 180);
    v.dec = Val(in.txtDec);
    v.lon = Val(in.txtLonG);
    v.lonCopia = v.lon;
    v.decR = PI * v.dec / 180;
    v.gn = Val(in.TxtStilo);
    v.x0 = Val(in.txtX0);
    v.y0 = Val(in.txtY0);
    v.x1 = Val(in.txtX1);
    v.y1 = Val(in.txtY1);
    v.xEq = Val(in.txtEqx);
    v.yEq = Val(in.txtEqy);
    v.xSus = Val(in.txtSusx);
    v.ySus = Val(in.txtSusy);
    v.inc = Val(in.txtInc);
    v.incR = (Val(in.txtInc) * PI) / 180.0;
    v.yOriz = Val(in.txtOriz);
    v.fraz = Val(in.TxtFraz);
    v.deltaOpz = Val(in.txtDelta);
    v.passo = Val(in.txtDensity);
    v.limMin = Val(in.txtMinus);
    v.limMax = Val(in.txtMax);
    v.oraFuso = in.ck_Etna == 1 ? 1 : 0;
    v.letture = v.letture + 1;
    if (v.letture == 1) {
        v.lat_o = v.latR;
        v.dec_o = v.decR;
        v.iz_o = v.incR;
        v.lon_o = v.lonCopia;
        v.inc_o = v.inc;
        v.diffLong = 0;
    }
    v.lonPiu15 = v.lon + 15;
}

Cornice LeggiCornice(Sessione &s) {
    Reale &unita = s.v.unita;
    unita = s.in.ChCentimetro == 1 ? 0.001 : 1.0;
    Cornice c;
    c.xMin = Val(s.in.txtX0) * unita;
    c.xMax = Val(s.in.txtX1) * unita;
    c.yMax = Val(s.in.txtY0) * unita;
    c.yMin = Val(s.in.txtY1) * unita;
    return c;
}

void TracciaCornice(Sessione &s) {
    Variabili &v = s.v;
    v.x1 = Val(s.in.txtX0) * v.unita;
    v.y1 = Val(s.in.txtY0) * v.unita;
    s.tavolo.xBox(v.x1, -v.y1, Val(s.in.txtX1) * v.unita, -Val(s.in.txtY1) * v.unita, QB(15), true, "Cornice");
}

std::string_view TestoUnita(const Sessione &s) { return s.in.ChCentimetro == 1 ? " mm" : " m"; }

}  // namespace ombrelia
