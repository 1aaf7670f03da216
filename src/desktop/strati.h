// What a drawing is made of as its maker reads it: a layer a kind of line, each with its colour on the screen; and which line
// lies under a point. Knows no widget.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "plot/specie.h"
#include "sessione/sessione.h"

namespace ombrelia::desktop {

inline constexpr std::size_t STRATI = std::size(SPECIE);
[[nodiscard]] constexpr std::size_t Strato(Specie s) { return static_cast<std::size_t>(s); }

// How the sheet looks: paper-white or dark, the colour of each layer, what is hidden, what is chosen.
struct StileFoglio {
    struct AspettoLinea {
        Colore colore = 0;
        bool nascosto = false;
        int spessore = 0;  // 0: as drawn
        bool mio = false;  // the user chose the colour: paper shows it too
        bool operator==(const AspettoLinea &) const = default;
    };
    bool scuro = false;
    bool trattini = false;  // on paper each family has its pattern
    std::array<AspettoLinea, STRATI> strati{};
    std::set<std::pair<std::size_t, double>> nascoste;           // single lines: layer and value
    std::map<std::pair<std::size_t, double>, AspettoLinea> sue;  // those with looks of their own
    std::optional<std::pair<std::size_t, double>> scelta;        // the chosen line
    bool operator==(const StileFoglio &) const = default;

    // The looks of a line, its own or its layer's.
    [[nodiscard]] const AspettoLinea &tratto(const std::pair<std::size_t, double> &chi) const {
        const auto i = sue.find(chi);
        return i == sue.end() ? strati[chi.first] : i->second;
    }
};

// The calm palette: few colours, told apart by the colour-blind too, each at least 3 to 1 against its sheet.
[[nodiscard]] StileFoglio StileDi(bool scuro);
[[nodiscard]] QColor TintaDi(Colore colore);
// The pattern of a layer's lines, as Dispositivo::Trattini takes it.
[[nodiscard]] std::uint8_t TrattiniDi(std::size_t strato);

// The drawing as the style shows it: colours of the layers, hidden lines left out. On paper only what the user changed.
[[nodiscard]] Tavolo::DisegnoTenuto Vesti(const Tavolo &t, const StileFoglio &stile, bool perCarta);
// Whether the user changed anything that paper shows.
[[nodiscard]] bool Ritoccato(const StileFoglio &stile);

// The lines of a drawing: one for each layer and value, with what is drawn of it.
struct Linea {
    std::size_t strato = 0;
    double valore = 0;
    double metri = 0;  // length
    QRectF dove;       // metres of the drawing
};
[[nodiscard]] std::vector<Linea> LineeDi(const Tavolo &t);

// The line under a point of the drawing, metres, within a reach in metres; none when there is none. Frame and glyphs are no
// lines.
[[nodiscard]] std::optional<Linea> LineaSotto(const Tavolo &t, const StileFoglio &stile, const QPointF &qui, double raggio);

// Names as people say them, through the dictionary: "Ore", "Ora 9:30", "Linea diurna 23.4°".
[[nodiscard]] QString NomeStrato(const Sessione &s, std::size_t strato);
[[nodiscard]] QString NomeLinea(const Sessione &s, std::size_t strato, double valore);
// What a point of the drawing says, read back by vectors: time, dates, Sun; empty where no Sun reads there. Metres.
[[nodiscard]] QString LetturaDi(const Sessione &s, const QPointF &punto);

}  // namespace ombrelia::desktop
