// The session: controls' states, the common reading of the fields, the frame.
#include "sessione/sessione.h"

#include <algorithm>

namespace ombrelia {

Sessione::Sessione(Utente &chi, double larghezzaPagina, double altezzaPagina)
    : in(InputsIniziali()), tavolo(larghezzaPagina, altezzaPagina), utente(chi) {
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
    const Controllo &riga = RigaDi(id);
    if (riga.testo) return in.*riga.testo;
    if (riga.pannello) return tavolo.pannello.*riga.pannello;
    return stato(id).testo;
}

int &Sessione::valore(IdControllo id) {
    const Controllo &riga = RigaDi(id);
    return riga.casella ? in.*riga.casella : stato(id).valore;
}

std::string &Sessione::titolo(std::string_view modulo) {
    const auto moduli = TavolaModuli();
    const auto i = std::find_if(moduli.begin(), moduli.end(), [&](const Modulo &m) { return m.nome == modulo; });
    return titoli.at(static_cast<std::size_t>(i - moduli.begin()));
}

void LeggiParametri(Sessione &s, const Lettura &letto) {
    Variabili &v = s.v;
    v.lat = letto.lat;
    v.latR = Abs(PI * v.lat / 180);
    v.dec = letto.dec;
    v.lon = letto.lon;
    v.lonCopia = v.lon;
    v.decR = PI * v.dec / 180;
    v.gn = letto.gn;
    v.x0 = letto.x0;
    v.y0 = letto.y0;
    v.x1 = letto.x1;
    v.y1 = letto.y1;
    v.xEq = letto.xEq;
    v.yEq = letto.yEq;
    v.xSus = letto.xSus;
    v.ySus = letto.ySus;
    v.inc = letto.inc;
    v.incR = (letto.inc * PI) / 180.0;
    v.yOriz = letto.oriz;
    v.fraz = letto.fraz;
    v.deltaOpz = letto.delta;
    v.passo = letto.passo;
    v.limMin = letto.limMin;
    v.limMax = letto.limMax;
    LasciaFuso(v, letto);
    v.meridiano = letto.meridiano;
    v.letture = v.letture + 1;
    if (v.letture == 1) LasciaOriginale(v);
    v.lonPiu15 = v.lon - v.meridiano;
}

void LasciaOriginale(Variabili &v) {
    v.lat_o = v.latR;
    v.dec_o = v.decR;
    v.iz_o = v.incR;
    v.lon_o = v.lonCopia;
    v.inc_o = v.inc;
    v.diffLong = 0;
}

Cornice CorniceDi(const Lettura &letto) {
    Cornice c;
    c.xMin = letto.x0 * letto.unita;
    c.xMax = letto.x1 * letto.unita;
    c.yMax = letto.y0 * letto.unita;
    c.yMin = letto.y1 * letto.unita;
    return c;
}

void LeggiUnita(Sessione &s) { s.v.unita = UnitaDi(s.in); }

namespace {

// The frame's corner, scaled, in the place of the one as typed.
void lasciaAngolo(Variabili &v, const Lettura &letto) {
    v.x1 = letto.x0 * v.unita;
    v.y1 = letto.y0 * v.unita;
}

}  // namespace

void TracciaCornice(Sessione &s, const Lettura &letto) {
    lasciaAngolo(s.v, letto);
    const Variabili &v = s.v;
    s.tavolo.TracciaRiquadro(v.x1, v.y1, letto.x1 * v.unita, letto.y1 * v.unita, BIANCO, true, "Cornice");
}

std::string_view TestoUnita(const Sessione &s) { return s.in.ChCentimetro == 1 ? " mm" : " m"; }

}  // namespace ombrelia
