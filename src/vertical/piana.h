// The vertical engine: a dial on a wall by spherical trigonometry, every point through the Sun's azimuth and altitude.
// Origin at the foot of the ortostilo, x to the right, y upward; what is drawn is (x, -y). The latitude keeps its sign.
#pragma once

#include "sessione/sessione.h"

namespace ombrelia::vertical {

// Draws the whole dial onto what is there. Refuses, with a message, loops too long.
void Piana_Esegui(Sessione &s);

// The engine's own reading of the fields. letture is not raised: the original dial stays open until a common reading.
void LeggiParametriPiana(Sessione &s);
// xCentro, yCentro: metres, y upward; left alone where the plane has no centre.
void CalcolaCentroPiana(Sessione &s);

// One line or figure each; they read the fields they need again and add to the sheet.
void TracciaOreAstro(Sessione &s);
// A numeral for each hour from 6 to 18 on the day line of txtDelta: Roman with ckRomani set, else Arabic.
void PosizionaNumeriOrari(Sessione &s);

// The day lines, each calling the next down to the summer solstice; ckFunzione leaves the four between out.
void TracciaDiurnaSolstizioDicembre(Sessione &s);
void TracciaDiurna20XI(Sessione &s);
void TracciaDiurna20II(Sessione &s);
void TracciaDiurna20IV(Sessione &s);
void TracciaDiurna20V(Sessione &s);
void TracciaDiurnaSolstizioGiugno(Sessione &s);
void TracciaDiurnaOpzionale(Sessione &s);
void TracciaEquinoziale(Sessione &s);
// The equinoctial of a plane of declination 0, as points.
void PuntiEquinozialeDecZero(Sessione &s);

void TracciaItaliche(Sessione &s);    // hours from sunset; from half an hour later with ckFunzione
void TracciaBabiloniche(Sessione &s); // hours from sunrise
void TracciaTemporarie(Sessione &s);  // twelfths of the day
void EtichetteItaliche(Sessione &s);
void EtichetteBabiloniche(Sessione &s);
void EtichetteTemporarie(Sessione &s);

// The figure of mean noon; with ckFunzione the day marks follow, each calling the next, the zodiac and the noon line.
void TracciaLemniscata(Sessione &s);
void TaccheMeno20(Sessione &s);
void TaccheMeno115(Sessione &s);
void TaccheEquinozio(Sessione &s);
void TacchePiu115(Sessione &s);
void TacchePiu20(Sessione &s);
void RettaMezzogiorno(Sessione &s);

void TracciaSustilare(Sessione &s);
void TracciaOrizzonte(Sessione &s);
void TracciaAzimutali(Sessione &s);
void TracciaAsr(Sessione &s);
void TracciaQibla(Sessione &s);
// The triangle of the polar style lengthened by txtSUBSTYLE, with its measures as text.
void TracciaTriangoloStilo(Sessione &s);

}  // namespace ombrelia::vertical
