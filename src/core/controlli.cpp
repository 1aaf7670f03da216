// The table of controls put together from the forms' rows, and the look-ups in it; the key filters of the text boxes.
#include "core/controlli.h"

#include <functional>
#include <unordered_map>
#include <vector>

#include "core/righe.h"
#include "core/testo.h"

namespace ombrelia {
namespace {

constexpr std::string_view PRINCIPALE = "MDIForm1";

std::string Minuscolo(std::string_view testo) {
    std::string t(testo);
    for (char &c : t)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    return t;
}

// "form.name" or "form.name(index)", in small letters.
std::string Chiave(const Controllo &riga) {
    std::string t = Minuscolo(riga.modulo) + '.' + Minuscolo(riga.nome);
    if (riga.indice >= 0) t += '(' + std::to_string(riga.indice) + ')';
    return t;
}

struct Tavola {
    std::vector<Controllo> righe;
    std::vector<Modulo> moduli;
    std::unordered_map<std::string, IdControllo> indice;

    Tavola() {
        for (const auto gruppi : {righe::GruppiPrincipale(), righe::GruppiTavolo(), righe::GruppiModuli()})
            for (const righe::Gruppo &gruppo : gruppi) Aggiungi(gruppo);
    }

private:
    void Aggiungi(const righe::Gruppo &gruppo) {
        moduli.push_back(gruppo.modulo);
        for (Controllo riga : gruppo.righe) {
            riga.modulo = gruppo.modulo.nome;
            indice.emplace(Chiave(riga), static_cast<IdControllo>(righe.size()));
            righe.push_back(riga);
        }
    }
};

const Tavola &LaTavola() {
    static const Tavola tavola;
    return tavola;
}

constexpr std::uint16_t BACKSPACE = 8;

bool tra(std::uint16_t tasto, std::string_view ammessi) {
    return tasto < 128 && ammessi.find(static_cast<char>(tasto)) != std::string_view::npos;
}

}  // namespace

std::span<const Controllo> TavolaControlli() { return LaTavola().righe; }

std::span<const Controllo> ControlliDi(std::string_view modulo) {
    const std::span<const Controllo> righe = TavolaControlli();
    const auto suo = [&](const Controllo &riga) { return UguaglianzaSenzaCaso(riga.modulo, modulo); };
    std::size_t primo = 0;
    while (primo < righe.size() && !suo(righe[primo])) ++primo;
    std::size_t fine = primo;
    while (fine < righe.size() && suo(righe[fine])) ++fine;
    return righe.subspan(primo, fine - primo);
}

IdControllo TrovaControllo(std::string_view nome) {
    std::string chiave = Minuscolo(nome);
    if (chiave.find('.') == std::string::npos) chiave = Minuscolo(PRINCIPALE) + '.' + chiave;
    const auto &indice = LaTavola().indice;
    const auto trovato = indice.find(chiave);
    return trovato == indice.end() ? NESSUN_CONTROLLO : trovato->second;
}

IdControllo IdDi(const Controllo &riga) {
    const std::span<const Controllo> righe = TavolaControlli();
    const Controllo *const inizio = righe.data();
    const bool dentro = std::greater_equal<>{}(&riga, inizio) && std::less<>{}(&riga, inizio + righe.size());
    return dentro ? static_cast<IdControllo>(&riga - inizio) : TrovaControllo(Chiave(riga));  // a copy of a row
}

DialInputs InputsIniziali() {
    DialInputs in;
    for (const Controllo &riga : TavolaControlli()) {
        if (riga.testo) in.*riga.testo = riga.inizio;
        if (riga.casella) in.*riga.casella = 0;
    }
    return in;
}

std::span<const Modulo> TavolaModuli() { return LaTavola().moduli; }

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
