// The user's side of a session: what the program tells and asks. The window and the console each implement it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ombrelia {

enum class Domanda { Avviso, SiNo };

// What a file box is opened for.
struct RichiestaFile {
    bool salva = false;
    std::string_view estensione;  // without point
    std::string_view filtro;      // "*.omb"
    std::string suggerito;
};

class Utente {
public:
    virtual ~Utente() = default;
    // Status line.
    virtual void Messaggio(std::string_view testo) = 0;
    // A message box; false only when the user answers No to a question.
    virtual bool Box(std::string_view testo, Domanda domanda = Domanda::Avviso) = 0;
    virtual std::string Input(std::string_view domanda, std::string_view titolo, std::string_view proposta) = 0;
    // Nothing when the user cancels.
    virtual std::optional<std::string> File(const RichiestaFile &richiesta) = 0;
    // The whole name of a DXF to write. As asked here, in an input box, whatever comes back gets the ending and there is no
    // cancelling; a window with file boxes of its own asks there. Nothing when the user cancels.
    virtual std::optional<std::string> NomeDxf(std::string_view domanda, std::string_view titolo, std::string_view proposta) {
        return Input(domanda, titolo, proposta) + ".dxf";
    }
    virtual void Beep() = 0;
    // A form opens, its load having run, or closes.
    virtual void Modulo(std::string_view, bool) {}
    // Hourglass while a run lasts.
    virtual void Puntatore(bool) {}
};

}  // namespace ombrelia
