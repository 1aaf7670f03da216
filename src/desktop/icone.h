// The commands' icons: strokes of a free set, read from the program's own resources and painted in the palette's colours, so that
// they follow light and dark.
#pragma once

#include <QIcon>
#include <QPainterPath>
#include <string_view>

namespace ombrelia::desktop {

// What an icon lies on: the window's ground, or a button in the accent's colour.
enum class Fondo : std::uint8_t { Finestra, Accento };

// By its name in the set; an empty icon for a name that is not there.
[[nodiscard]] QIcon IconaDi(std::string_view nome, Fondo fondo = Fondo::Finestra);

// The path of an SVG's "d": commands MLHVCSQTAZ and their relatives. Arcs of circles and upright ellipses. What can't be read
// ends it.
[[nodiscard]] QPainterPath PercorsoSvg(const QString &d);

}  // namespace ombrelia::desktop
