// The tables of the twelve signs, half a year a file; everybody else asks TrattiSegno.
#pragma once

#include "glyphs/tratti.h"

namespace ombrelia::tratti {

std::span<const Tratto> PrimaveraEstate(Segno segno);
std::span<const Tratto> AutunnoInverno(Segno segno);

}  // namespace ombrelia::tratti
