// How the rows of the table of controls are written down: one short maker a class of control. For the files righe_*.h alone;
// everybody else reads the finished table of controlli.h.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "controlli/controlli.h"

namespace ombrelia::righe {

// A form with its rows; the assembled table writes the form's name into each of them.
struct RigheModulo {
    Modulo modulo;
    std::span<const Controllo> righe;
};

using Sv = std::string_view;

// A text box of the record, with its start text.
constexpr Controllo Testo(Sv nome, std::string DialInputs::*campo, Sv inizio, Sv toolTip = {}, Filtro filtro = Filtro::Nessuno) {
    return {.modulo = {},
            .nome = nome,
            .classe = Classe::Testo,
            .toolTip = toolTip,
            .inizio = inizio,
            .filtro = filtro,
            .testo = campo};
}
// A text box that keeps its own text.
constexpr Controllo Testo(Sv nome, Sv inizio = {}, Filtro filtro = Filtro::Nessuno, Sv toolTip = {}) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Testo, .toolTip = toolTip, .inizio = inizio, .filtro = filtro};
}
// A text of the plot surface's panels; the surface itself writes its start text.
constexpr Controllo Pannello(Sv nome, Classe classe, std::string PannelloTavolo::*campo, Filtro filtro = Filtro::Nessuno) {
    return {.modulo = {}, .nome = nome, .classe = classe, .filtro = filtro, .pannello = campo};
}
// A list of the record; what fills it selects its entry.
constexpr Controllo Elenco(Sv nome, std::string DialInputs::*campo) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Elenco, .testo = campo};
}
constexpr Controllo Casella(Sv nome, int DialInputs::*campo, Sv caption, Sv toolTip = {}) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Casella, .caption = caption, .toolTip = toolTip, .casella = campo};
}
constexpr Controllo Opzione(Sv nome, int DialInputs::*campo, Sv caption, Sv toolTip = {}) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Opzione, .caption = caption, .toolTip = toolTip, .casella = campo};
}
constexpr Controllo Pulsante(Sv nome, Sv caption, Sv toolTip = {}, int indice = -1) {
    return {.modulo = {}, .nome = nome, .indice = indice, .classe = Classe::Pulsante, .caption = caption, .toolTip = toolTip};
}
constexpr Controllo Menu(Sv nome, Sv caption) { return {.modulo = {}, .nome = nome, .classe = Classe::Menu, .caption = caption}; }
constexpr Controllo Etichetta(Sv nome, Sv caption) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Etichetta, .caption = caption};
}
constexpr Controllo Cornice(Sv nome, Sv caption = {}) {
    return {.modulo = {}, .nome = nome, .classe = Classe::Cornice, .caption = caption};
}
// Scroll bars, pictures and what else has neither caption nor text.
constexpr Controllo Muto(Sv nome, Classe classe) { return {.modulo = {}, .nome = nome, .classe = classe}; }
// The same control, not to be seen at the start.
constexpr Controllo Nascosto(Controllo riga) {
    riga.visibile = false;
    return riga;
}

// A control that older files do not know: kept out of them while it stands at its start value.
constexpr Controllo Nostro(Controllo riga) {
    riga.nostro = true;
    return riga;
}

}  // namespace ombrelia::righe
