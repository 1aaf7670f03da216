// Where time and place part: the zone's meridian and the site's. Degrees, West positive, unless said.
#pragma once

#include "core/angoli.h"
#include "core/variabili.h"

namespace ombrelia {

// From the zone's meridian to the site: at 0 clock noon, less the equation of time, is the site's noon. Given: degrees, West
// positive. Gives: degrees. Source: elementary (an hour is 15 degrees). Faults: none.
inline Valore DalMeridiano(Valore lon, Valore meridiano) { return lon - meridiano; }
// Leaves it for the longitude that the shared variables hold.
inline void LasciaDalMeridiano(Variabili &v) { v.lonPiu15 = DalMeridiano(v.lon, v.meridiano); }
// The same as an angle of time. Given: lonPiu15, degrees. Gives: radians. Source: elementary. Faults: none.
inline Valore CorrezioneLongitudine(Valore lonPiu15) { return PI * lonPiu15 / 180; }
inline Valore CorrezioneLongitudine(const Variabili &v) { return CorrezioneLongitudine(v.lonPiu15); }

// The same with the box of the zone's time set, else 0. Given: besides oraFuso, 1 or 0. Gives, source, faults: as above.
inline Valore CorrezioneFuso(Valore lonPiu15, Valore oraFuso) { return CorrezioneLongitudine(lonPiu15) * oraFuso; }
inline Valore CorrezioneFuso(const Variabili &v) { return CorrezioneFuso(v.lonPiu15, v.oraFuso); }

// "Costante locale". Given: lonCopia, the longitude as typed, and the zone's meridian, degrees. Gives: minutes of time, West
// positive. Source: elementary (a degree is 4 minutes). Faults: none.
inline Valore CostanteLocale(Valore lonCopia, Valore meridiano) { return 4 * (lonCopia - meridiano); }
inline Valore CostanteLocale(const Variabili &v) { return CostanteLocale(v.lonCopia, v.meridiano); }
// Whether the zone is another than the one at start; captions then name its meridian.
inline bool AltroMeridiano(Valore meridiano) { return meridiano != -15; }
inline bool AltroMeridiano(const Variabili &v) { return AltroMeridiano(v.meridiano); }

}  // namespace ombrelia
