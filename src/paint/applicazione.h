// The toolkit's application for a program without a window.
#pragma once

namespace ombrelia::paint {

// Fonts and pictures need an application object. Makes one that asks for no display, unless there is one already.
void AssicuraApplicazione();

}  // namespace ombrelia::paint
