// The main window's logic without a toolkit: what happens when a user enters, types, checks or presses a control.
// Window and action script both come through here, so that one handler serves an action.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "app/esito.h"
#include "controlli/nomi.h"
#include "sessione/sessione.h"

namespace ombrelia::app {

enum class Evento : std::uint8_t { Clic, Cambio, Entrata, Uscita };

// What a handler runs; indice is that of a control array, else -1. One that can fail or be cancelled gives an outcome, one
// that always does its work gives nothing.
class Azione {
public:
    template <class F>
    constexpr Azione(F azione) {  // NOLINT: a routine is an action
        if constexpr (std::is_void_v<std::invoke_result_t<F, Sessione &, int>>) senza_ = azione;
        else con_ = azione;
    }
    Esito operator()(Sessione &s, int indice) const {
        if (con_) return con_(s, indice);
        senza_(s, indice);
        return Esito::Fatto;
    }

private:
    void (*senza_)(Sessione &, int) = nullptr;
    Esito (*con_)(Sessione &, int) = nullptr;
};

// A handler: which control, which event, what runs.
struct Gestore {
    NomeControllo controllo;
    Evento evento;
    Azione azione;
};

// The start-up: defaults file, dictionary, sheet and shift, enabled controls. Makes no folder.
void Avvia(Sessione &s);

// Enters a text box, gives it the text, leaves it; in a list selects the entry. Impossibile for a control that holds
// no text, or a list without that entry.
Esito Imposta(Sessione &s, IdControllo id, const std::string &testo);
// The same in a window's three moments: the box is entered, its text changes, it is left.
Esito Entra(Sessione &s, IdControllo id);
Esito Cambia(Sessione &s, IdControllo id, const std::string &testo);
Esito LasciaCampo(Sessione &s, IdControllo id);
// Sends keys, one a character, through the control's filter, appended to what stands in the box; a backspace that
// passes takes its last character.
Esito Digita(Sessione &s, IdControllo id, std::string_view tasti);
// Gives a check box its value; the click handler runs when the value changes.
Esito Spunta(Sessione &s, IdControllo id, int valore);
// Presses a button, option, check box or menu entry. Besides what all of them give: Annullato or Fallito from its handler.
Esito Premi(Sessione &s, IdControllo id);

// For handlers: clear or set a box as a routine does, its click running when the value changes.
void SpuntaDaProgramma(Sessione &s, int DialInputs::*casella, int valore);

// Fits sheet and shift to the four limit lines with a margin of 2 cm. False when the frame is empty, turned round or
// larger than a sheet can be: then nothing changes.
bool Adatta(Sessione &s);

// Folder for drawings: "c:\OMDXF" on Windows, OMDXF in the home folder elsewhere.
[[nodiscard]] std::string CartellaDisegni();

// What a label or other control without a text of its own shows: the sheet's read-outs, else the caption.
[[nodiscard]] std::string Didascalia(Sessione &s, IdControllo id);

// The dispatch of the run button.
void cmdRun(Sessione &s);

// The handlers of each form, for the dispatch.
std::span<const Gestore> GestoriPrincipale();
std::span<const Gestore> GestoriTavolo();
std::span<const Gestore> GestoriSole();
std::span<const Gestore> GestoriMappa();
std::span<const Gestore> GestoriFile();

}  // namespace ombrelia::app
