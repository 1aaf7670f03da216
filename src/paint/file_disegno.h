// A drawing as the bytes of a file, for those who know no toolkit.
#pragma once

#include <string>

#include "plot/tavolo.h"

namespace ombrelia::paint {

// The whole sheet on one page at true scale; a picture of the sheet at its present scale. No display is needed. Empty
// when errore tells why.
[[nodiscard]] std::string Pdf(Tavolo &t, std::string &errore);
// The selected tiles at 1:1, each on a page of the sheet's paper.
[[nodiscard]] std::string PdfAPagine(Tavolo &t, std::string &errore);
[[nodiscard]] std::string Png(Tavolo &t, std::string &errore);
[[nodiscard]] std::string Bmp(Tavolo &t, std::string &errore);

}  // namespace ombrelia::paint
