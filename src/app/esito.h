// What became of an action, as a value: from the handler through window and script to whoever asked for it.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace ombrelia::app {

struct Esito {
    enum Cosa : std::uint8_t {
        Fatto,
        Annullato,     // the user changed his mind: nothing was done
        Fallito,       // file or reason, or both, tell more
        Disabilitato,  // the control does not answer now
        Impossibile    // the control takes no such thing
    };

    Cosa cosa = Fatto;
    std::string file{};    // that was read or written, or could not be; empty where there is none
    std::string motivo{};  // of a failure: a text for the user, which names the file
    bool detto = false;    // the user has read the reason in a box already

    Esito(Cosa che = Fatto) : cosa(che) {}  // NOLINT: a plain outcome is an outcome
    [[nodiscard]] static Esito conFile(std::string nome) {
        Esito e;
        e.file = std::move(nome);
        return e;
    }
    [[nodiscard]] static Esito fallito(std::string nome, std::string perche, bool letto) {
        Esito e(Fallito);
        e.file = std::move(nome);
        e.motivo = std::move(perche);
        e.detto = letto;
        return e;
    }

    explicit operator bool() const { return cosa == Fatto; }
    friend bool operator==(const Esito &e, Cosa che) { return e.cosa == che; }
};

}  // namespace ombrelia::app
