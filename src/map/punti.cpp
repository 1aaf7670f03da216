// Single points on the dial: the cities, the optional Sun or Moon and its star.
#include "core/conteggio.h"
#include "map/citta.h"
#include "map/mappa.h"
#include "map/zenit.h"
#include "sessione/limiti.h"

namespace ombrelia {

void DisegnaCitta(Sessione &s) {
    const DialInputs &in = s.in;
    s.Messaggio(s.Traduci("Map"));
    LeggiUnita(s);  // no test against the frame is made
    const Valore da = Val(in.txtEAST), a = Val(in.txtWest);
    const Conteggio righe(da, a, 1);
    const bool ovest = Abs(a) >= Abs(da);
    if (TroppoFitto(s, {{ovest ? "txtWest" : "txtEAST", ovest ? in.txtWest : in.txtEAST, righe}})) return;

    const Lettura letto(in);
    const Reale sito = letto.lon;
    const auto citta = TavolaCitta();
    Zenit zenit(LasciaPianoDeiLuoghi(s, letto));
    Reale x, y;
    for (const double i : righe) {
        const double riga = std::nearbyint(i);
        if (!(riga >= 1 && riga <= static_cast<double>(citta.size()))) continue;
        const Citta &c = citta[static_cast<std::size_t>(riga) - 1];
        if (!zenit(c.X - sito, c.Y, x, y)) continue;
        s.tavolo.TracciaCerchio(x, y, 0.0009, GIALLO, ROSSO, 1, -2 * PI, 0);
        s.tavolo.Scritta(c.nome, x, y - 0.02);
    }
}

namespace {

// The place, as typed, of the point that was asked for last, degrees.
void lasciaPunto(Variabili &v, const Lettura &letto) { v.deltaOpz = letto.delta; }

}  // namespace

void PuntoOpzionale(Sessione &s) {
    const DialInputs &in = s.in;
    const Lettura letto(in);
    const Valore orario = Val(in.txtAO);
    s.Messaggio(s.Traduci("Optional position"));
    LeggiUnita(s);
    lasciaPunto(s.v, letto);
    const Piano piano = LasciaPiano(s, letto, letto.gn, s.v.unita);
    const Variabili &v = s.v;
    // The hour angle is the site's own already: with true lines the longitude is not taken once more.
    const Reale H = PI * (in.ckCorretta == 1 ? orario : orario - letto.lon) / 180;
    const Reale D = PI * v.deltaOpz / 180;
    LasciaRichiesta(s);

    Reale x, y;
    Proiezione{piano}(H, D, x, y);
    if (!s.ombreVere().sposta(H, D, x, y)) return;
    // The circle's radius is not scaled by unita, the star's is: meant.
    s.tavolo.TracciaCerchio(x, y, (v.gn / 20) * std::sin(18 * PI / 180) / std::sin(126 * PI / 180), GIALLO, BLU, 1, -CERCHIO, 0);
    DisegnaStella(s, x, Capovolta(Valore(y)), v.unita * v.gn / 20, BIANCO);
}

void DisegnaStella(Sessione &s, Valore X, Valore Y, Valore raggio, Colore colore) {
    // Tips at even multiples of 36 degrees, notches at odd ones; Y is the sheet's, downward.
    const auto ascissa = [&](int gradi) { return X + (gradi % 72 == 0 ? 1 : 0.381966) * raggio * std::cos(gradi * PI / 180); };
    const auto ordinata = [&](int gradi) { return Y - (gradi % 72 == 0 ? 1 : 0.381966) * raggio * std::sin(gradi * PI / 180); };
    for (int k = 0; k < 10; ++k) {
        const int da = (72 + 36 * k) % 360, a = (da + 36) % 360;
        s.tavolo.xLine(ascissa(da), ordinata(da), ascissa(a), ordinata(a), colore);
    }
}

}  // namespace ombrelia
