// The shared variables of the dial model. They live from start to exit and are read and overwritten freely by the
// engines: what a routine leaves behind is part of the behaviour.
#pragma once

#include <span>
#include <string_view>

#include "core/reale.h"

namespace ombrelia {

// Radians in the variables marked R and where said, degrees in the others; West and North positive; lengths as typed
// unless said scaled (metres).
struct Variabili {
    Reale lat, latR;                   // latitude; latR is absolute after LeggiParametri, signed where an engine says so
    Reale dec, decR;                   // gnomonic declination of the plane
    Reale inc, incR;                   // zenith inclination: 0 a wall, 90 a horizontal plane
    Reale lon, lonCopia;               // longitude; as typed
    Reale meridiano = -15;             // of the zone
    Reale lonPiu15;                    // longitude less the zone's meridian: longitude + 15 in central Europe
    Reale gn;                          // ortostilo
    Reale x0, y0, x1, y1;              // frame lines as typed; x1, y1 scaled once a frame was drawn
    Reale xEq, yEq, xSus, ySus;        // auxiliary lines of the analytic engine
    Reale yOriz;                       // ordinate of the horizon, scaled once a driver has run
    Reale fraz;                        // fraction of the hour
    Reale deltaOpz;                    // optional declination, and the running declination of the engines' loops, degrees
    Reale passo;                       // tracing step
    Reale limMin, limMax;              // abscissa limits of the day lines
    Reale oraFuso;                     // 1 for true time of the zone meridian, else 0
    Reale letture;                     // calls of LeggiParametri since start
    Reale lat_o, dec_o, iz_o;          // original dial, radians: the first read since start, never again
    Reale lon_o, inc_o;                // original dial, degrees
    Reale unita;                       // metres in a unit of length: 1 or 0.001
    Reale diffLong;                    // difference of longitudes of an equivalent dial, radians
    Reale flagVerticale;               // 1 once the dial was made its equivalent vertical dial
    Reale flagTrasformato;             // 1 once a horizontal plane was transformed
    Reale latGradi;                    // latitude typed at the last press, signed degrees
    Reale segnoLat = 1;                // its sign, 1 at 0; starts at 1 so that a report before the first run is right
    Reale segnoDec;                    // sign of decR, 1 when dec is 0
    Reale segnoLat2;                   // sign of latR, 1 at 0
    Reale segnoLatPiana;               // the same for the vertical engine
    Reale segnoLon;                    // 1 when the longitude is East, else -1
    Reale segnoDecPiana;               // sign of decR for the vertical hour lines
    Reale corrLong;                    // longitude correction, radians
    Reale larghezzaBase, altezzaBase;  // sheet at start, metres
    Reale rapportoBase;                // divisor of the sheet's height that places the origin
    Reale origineX, origineY;          // shift of the sheet as the driver left it, metres
    Reale xCentro, yCentro;            // the dial's centre
    Reale xCentroNeg, yCentroNeg;      // foot of the ortostilo seen from the centre
    Reale angSustilare;                // angle of the substyle from the vertical, radians
    Reale altStilo;                    // elevation of the polar style over the plane, radians
    Reale angoloOra;                   // hour angle of the substyle, radians
    Reale segStiloSus, segCentroPiede, segPiedeEq, segAsse, assostiloLen;  // CG, CM, MS, CP and the assostilo
    Reale xSusEq, ySusEq, xSusPiede, ySusPiede;                            // auxiliary lines against equinoctial and substyle
    Reale lonEq;                                                           // longitude of the equivalent dial, degrees
    Reale incR2;                                                           // incR of the plane being transformed or reported
    Reale segnoTrasf;                                                      // sign of the equivalent latitude
    Reale decGradi, declinSessag;   // declination in degrees, as the vertical engine folds it
    Reale lonAssoluta, angOraLong;  // |longitude| in degrees; its difference from the zone meridian, radians
    Reale gradiPasso;               // degrees of hour angle between lines
    Reale semiL, semiH;             // shift of the sheet as an engine read it, metres
};

// A shared variable by its name.
struct NomeVariabile {
    std::string_view nome;
    Reale Variabili::*variabile;
};
[[nodiscard]] std::span<const NomeVariabile> NomiVariabili();

}  // namespace ombrelia
