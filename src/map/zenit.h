// A place of the Earth as the Sun of a plane: the one computation that the outlines and the cities share.
#pragma once

#include "gnomonica/proiezione.h"
#include "sessione/sessione.h"

namespace ombrelia {

// Whether the plane is that of a southern site as a corrected run draws it: mirrored, with the seasons exchanged.
bool Specchiato(const Sessione &s, const Lettura &letto);

// The plane that places are shown on. Given: the fields as read, degrees; the gnomon and the unit of the projection. Gives: the
// plane, of the complement of the inclination; leaves site, plane and gnomon in the shared variables latR (signed, but for a
// mirrored one), dec, decR and gn; a horizontal plane has no declination. Source: by definition. Faults: a field without a value
// keeps its variable.
Piano LasciaPiano(Sessione &s, const Lettura &letto, Valore gn, Valore unita);

// The same for the map, the gnomon scaled: unita is left before. Given, gives, source, faults: as above.
struct PianoDeiLuoghi {
    Piano piano;
    bool capovolta;    // the map lies north to south
    bool orizzontale;  // the plane lies level
    bool negativo;     // its front is the negative side: a declination within 90 degrees
};
PianoDeiLuoghi LasciaPianoDeiLuoghi(Sessione &s, const Lettura &letto);

// What was asked for is drawn: its box is clear again.
void LasciaRichiesta(Sessione &s);

// A place as the Sun that stands in its zenith. Given: X degrees West of the site, Y minus the latitude. Gives: the point of the
// plane that shows it, metres from the foot, x to the right, y upward. Source: the gnomonic projection of the sphere (Snyder, Map
// Projections: A Working Manual, ch. 22) by Proiezione, its hour angle X and its declination -Y; the side of the plane by the
// spherical triangle of pole, zenith and place. Faults: azimuth, zenith distance and side keep their old values from place to
// place, as do x and y.
class Zenit {
public:
    explicit Zenit(const PianoDeiLuoghi &p);
    // Whether the place lies in front of the plane; only then x and y are given.
    bool operator()(Valore X, Valore Y, Reale &x, Reale &y);

private:
    double senPhi_, cosPhi_;
    Proiezione proiezione_;
    double fattore_;  // -1 mirrors the map north to south
    bool orizzontale_;
    double tanDec_, divisore_;  // of the side of the plane
    bool negativo_;             // which side is the front: the negative one where Abs(dec) < 90
    Reale H_, D_, A_, z_, lato_;
};

}  // namespace ombrelia
