// What each control is, in its maker's words: a name where the control's caption is cryptic, a sentence, and a small drawing of
// what it measures. The control's own caption and tool tip stay in the tool tip.
#pragma once

#include <QImage>
#include <cstdint>

#include "desktop/ponte.h"

namespace ombrelia::desktop {

// What a field measures, drawn.
enum class Grandezza : std::uint8_t {
    Nessuno,
    Latitudine,
    Longitudine,
    Declinazione,
    Inclinazione,
    Ortostilo,
    Stilo,
    Cornice,
    Ore,
    Giorno,
    Carattere
};

struct Aiuto {
    NomeControllo controllo;
    std::string_view umano;  // empty: the control's caption
    std::string_view testo;
    Grandezza disegno = Grandezza::Nessuno;
};

// Null when there is none.
[[nodiscard]] const Aiuto *TrovaAiuto(IdControllo id);
// The tool tip of a control: its own, or the help's sentence; its caption where the window shows another; its keys.
[[nodiscard]] QString Suggerimento(Sessione &s, IdControllo id);
// "What's this?": name, sentences and drawing, as rich text in the palette's colours.
[[nodiscard]] QString CheCosE(Sessione &s, IdControllo id);
// Lets a widget answer "What's this?".
void Spiega(Sessione &s, IdControllo id, QWidget *w);
// Shows what a widget says of itself beside it; false when it says nothing.
bool MostraSpiegazione(QWidget *w);

// The small drawing, in dots of the screen times rapporto.
[[nodiscard]] QImage DisegnoAiuto(Grandezza quale, double rapporto = 1);

}  // namespace ombrelia::desktop
