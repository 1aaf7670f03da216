// The console's answers.
#include "cli/console.h"

#include "core/testo.h"

namespace ombrelia::cli {

void Console::di(std::string_view inizio, std::string_view testo) const {
    if (!voce_) return;
    std::string riga(inizio);
    riga += testo;
    riga += '\n';
    std::fwrite(riga.data(), 1, riga.size(), voce_);
    std::fflush(voce_);
}

std::optional<std::string> Console::risposta() {
    if (risposte_.empty()) return {};
    std::string r = std::move(risposte_.front());
    risposte_.pop_front();
    return r;
}

bool Console::Box(std::string_view testo, Domanda domanda) {
    di("box: ", testo);
    const auto r = risposta();
    return domanda == Domanda::Avviso || !r || UguaglianzaSenzaCaso(*r, "Yes");
}

std::string Console::Input(std::string_view, std::string_view, std::string_view proposta) {
    return risposta().value_or(std::string(proposta));
}

std::optional<std::string> Console::File(const RichiestaFile &) {
    auto r = risposta();
    return r && !r->empty() ? r : std::nullopt;
}

}  // namespace ombrelia::cli
