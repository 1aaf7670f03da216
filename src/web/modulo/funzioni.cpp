// The module's library rounds its trigonometry loosely: this stands in its place, under the names that everybody calls.
#include "core/funzioni.h"

extern "C" {
double sin(double x) { return ombrelia::portatile::sin(x); }
double cos(double x) { return ombrelia::portatile::cos(x); }
double tan(double x) { return ombrelia::portatile::tan(x); }
double atan(double x) { return ombrelia::portatile::atan(x); }
}
