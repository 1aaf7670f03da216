// The table of controls put together from the forms' rows, and the look-ups in it; the key filters of the text boxes.
#include "controlli/controlli.h"

#include <array>
#include <functional>

#include "controlli/tavola.h"
#include "core/certo.h"

namespace ombrelia {
namespace {

constexpr auto MODULI = [] {
    constexpr std::size_t QUANTI = [] {
        std::size_t n = 0;
        righe::PerOgniGruppo([&](const righe::RigheModulo &) { ++n; });
        return n;
    }();
    std::array<Modulo, QUANTI> tutti{};
    std::size_t i = 0;
    righe::PerOgniGruppo([&](const righe::RigheModulo &g) { tutti[i++] = g.modulo; });
    return tutti;
}();

constexpr std::uint16_t BACKSPACE = 8;

bool tra(std::uint16_t tasto, std::string_view ammessi) {
    return tasto < 128 && ammessi.find(static_cast<char>(tasto)) != std::string_view::npos;
}

}  // namespace

std::span<const Controllo> TavolaControlli() { return righe::TAVOLA; }

const Controllo &RigaDi(IdControllo id) {
    Certo(id >= 0 && static_cast<std::size_t>(id) < righe::TAVOLA.size(), "a control that is none");
    return righe::TAVOLA[static_cast<std::size_t>(id)];
}

std::span<const Controllo> ControlliDi(std::string_view modulo) {
    const std::span<const Controllo> tutte = TavolaControlli();
    const auto suo = [&](const Controllo &riga) { return righe::SenzaCaso(riga.modulo, modulo); };
    std::size_t primo = 0;
    while (primo < tutte.size() && !suo(tutte[primo])) ++primo;
    std::size_t fine = primo;
    while (fine < tutte.size() && suo(tutte[fine])) ++fine;
    return tutte.subspan(primo, fine - primo);
}

std::optional<IdControllo> CercaControllo(std::string_view nome) {
    const IdControllo id = righe::PostoDi(nome);
    return id == NESSUN_CONTROLLO ? std::nullopt : std::optional(id);
}

IdControllo IdDi(const Controllo &riga) {
    const Controllo *const inizio = righe::TAVOLA.data();
    Certo(std::greater_equal<>{}(&riga, inizio) && std::less<>{}(&riga, inizio + righe::TAVOLA.size()), "a row of another table");
    return static_cast<IdControllo>(&riga - inizio);
}

DialInputs InputsIniziali() {
    DialInputs in;
    for (const Controllo &riga : TavolaControlli()) {
        if (riga.testo) in.*riga.testo = riga.inizio;
        if (riga.casella) in.*riga.casella = 0;
    }
    return in;
}

std::span<const Modulo> TavolaModuli() { return MODULI; }

std::uint16_t FiltroTasti(std::uint16_t tasto, bool &beep) {
    beep = tasto != BACKSPACE && !tra(tasto, "0123456789,.-");
    if (beep) return 0;
    return tasto == ',' ? static_cast<std::uint16_t>('.') : tasto;
}

std::uint16_t SoloNumeri(std::uint16_t tasto, bool conSegno) {
    const bool passa = tasto == BACKSPACE || tra(tasto, "0123456789.") || (conSegno && tra(tasto, "+-"));
    return passa ? tasto : std::uint16_t{0};
}

}  // namespace ombrelia
