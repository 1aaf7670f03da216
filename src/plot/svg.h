// The display list as an SVG text. Saving is another's work.
#pragma once

#include <string>

#include "plot/tavolo.h"

namespace ombrelia {

// The sheet at true size, in millimetres from its top left corner, y downward: one group a layer under the layer's name,
// chords that follow each other as one path, texts as texts. Mirrors as on the screen; white is drawn black on paper.
// What lies beyond the sheet is cut off, as on paper, and a path, point or circle that is there already, on whatever layer, is
// left out: a machine would cut it again. Boxes are outlines only, even filled ones: a filled
// frame would cover the dial, and a cutter wants the outline.
// With the width in millimetres of a screen's pixel, what that screen tells apart: paths with fewer points and digits, points
// that touch as paths.
[[nodiscard]] std::string SVG_Generate(const Tavolo &tavolo, double pixel = 0);

}  // namespace ombrelia
