// The user's side of a program without a window: answers come from a queue, what the program tells goes to standard
// output at once.
#pragma once

#include <cstdio>
#include <deque>
#include <string>

#include "sessione/utente.h"

namespace ombrelia::cli {

class Console : public Utente {
public:
    // Where the program's words go; nothing is said when it is null.
    explicit Console(std::FILE *voce) : voce_(voce) {}

    void rispondi(std::string risposta) { risposte_.push_back(std::move(risposta)); }

    void Messaggio(std::string_view testo) override { di("message: ", testo); }
    bool Box(std::string_view testo, Domanda domanda) override;
    std::string Input(std::string_view domanda, std::string_view titolo, std::string_view proposta) override;
    std::optional<std::string> File(const RichiestaFile &richiesta) override;
    void Beep() override { di("beep", ""); }

    void di(std::string_view inizio, std::string_view testo) const;

private:
    std::optional<std::string> risposta();

    std::FILE *voce_;
    std::deque<std::string> risposte_;
};

}  // namespace ombrelia::cli
