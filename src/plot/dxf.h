// The display list as a DXF text. Saving is another's work.
#pragma once

#include <string>

#include "plot/lista.h"
#include "plot/tavolo.h"

namespace ombrelia {

// Colour of an RGB long in the table of the format; what has no row there is given back as it is.
[[nodiscard]] int DXF_QbColorConverter(Colore colore);

// The drawing in millimetres, y upward, in Windows-1252 with lines ended by CR LF. Scale and shift have no part in it,
// the mirrors have. Texts have no place in it: tell the user so when there are any.
[[nodiscard]] std::string DXF_Generate(const Lista &lista, double QuadranteL, double QuadranteH, const Specchio &specchio);
[[nodiscard]] std::string DXF_Generate(const Tavolo &tavolo);

}  // namespace ombrelia
