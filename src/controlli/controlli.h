// The one table of controls: every control of every form stands here once. The window builds its widgets from it, the
// project file walks it, the dictionary translates it, the action script addresses it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/inputs.h"

namespace ombrelia {

enum class Classe : std::uint8_t { Testo, Casella, Opzione, Pulsante, Menu, Etichetta, Cornice, Elenco, Barra, Immagine, Altro };

// Which key filter a text box has.
enum class Filtro : std::uint8_t {
    Nessuno,
    Tasti,          // digits, point, comma (which becomes a point), minus; anything else beeps
    Numeri,         // the plot surface's sibling: the same keys
    SoloCifre,      // utility board: digits and point
    SoloCifreSegno  // the same with plus and minus
};

struct Controllo {
    std::string_view modulo, nome;
    int indice = -1;  // of a control array, else -1
    Classe classe = Classe::Altro;
    std::string_view caption{}, toolTip{};
    std::string_view inizio{};  // start text of a text box or list; boxes and options all start at 0
    Filtro filtro = Filtro::Nessuno;
    // Where the text or value is kept; both null for a control that keeps its own.
    std::string DialInputs::*testo = nullptr;
    int DialInputs::*casella = nullptr;
    std::string PannelloTavolo::*pannello = nullptr;
    bool visibile = true;
    bool nostro = false;  // a later control: files hold it only where it differs from its start value
};

// A row's place in the table.
using IdControllo = int;
inline constexpr IdControllo NESSUN_CONTROLLO = -1;

// A control that the program itself names, "txtLAT" or "frmDeclin.cmdSign(0)": the compiler looks it up, so that a slip does not
// compile and nothing is looked up at run. Whoever writes such a name includes controlli/nomi.h.
class NomeControllo {
public:
    constexpr NomeControllo() = default;        // none
    consteval NomeControllo(const char *nome);  // NOLINT: a name is a control
    constexpr operator IdControllo() const { return id_; }

private:
    IdControllo id_ = NESSUN_CONTROLLO;
};

// The whole table, form by form, in each form's own order.
[[nodiscard]] std::span<const Controllo> TavolaControlli();
// A row; an id that is none of the table's is a bug.
[[nodiscard]] const Controllo &RigaDi(IdControllo id);
// A form's rows.
[[nodiscard]] std::span<const Controllo> ControlliDi(std::string_view modulo);
// For names that come from outside: the control named as the action script names it, "txtLAT", "MDIForm1.txtLAT",
// "frmDeclin.cmdSign(0)". Names are compared without regard to case.
[[nodiscard]] std::optional<IdControllo> CercaControllo(std::string_view nome);
// Of a row of the table; a copy of one is a bug.
[[nodiscard]] IdControllo IdDi(const Controllo &riga);
// A record with the start values of the table.
[[nodiscard]] DialInputs InputsIniziali();

// The caption of a form.
struct Modulo {
    std::string_view nome, caption;
};
[[nodiscard]] std::span<const Modulo> TavolaModuli();

// Key filter of the numeric fields: backspace passes, a comma becomes a point, any key outside "0123456789,.-" is
// dropped (0) and beeps.
[[nodiscard]] std::uint16_t FiltroTasti(std::uint16_t tasto, bool &beep);
// Key filter of the utility board: digits and ".", with conSegno also "+" and "-", and backspace; anything else is 0.
[[nodiscard]] std::uint16_t SoloNumeri(std::uint16_t tasto, bool conSegno);

}  // namespace ombrelia
