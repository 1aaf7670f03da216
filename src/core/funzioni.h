// Sine, cosine, tangent and arc tangent rounded to the nearest double, but for one value in some thousands. Libraries differ in
// the last bit here, and a dial's tests (does this chord touch the frame, is the Sun up on the horizon's own line) turn such a
// bit into a record more or less. A build whose library rounds more loosely takes these, so that its lists are those of the
// others.
#pragma once

namespace ombrelia::portatile {

// All: Given: radians, or for the arc tangent a number, any double. Gives: a number, or radians from -pi/2 to pi/2. Source:
// series summed in pairs of doubles (Dekker's and Knuth's exact sums and products). Faults: what is not finite gives no number.
double sin(double x);
double cos(double x);
double tan(double x);
double atan(double x);

}  // namespace ombrelia::portatile
