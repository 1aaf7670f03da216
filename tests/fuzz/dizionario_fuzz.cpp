// The reader of dictionary files.
#include "fuzz.h"
#include "lang/dizionario.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *dati, std::size_t quanti) {
    using namespace ombrelia;
    Dizionario d;
    d.Interpreta(fuzz::Testo(dati, quanti));
    for (const auto &[sorgente, traduzione] : d.Voci()) {
        fuzz::Pretendi(traduzione.find_first_not_of(' ') != std::string::npos, "no blank translation is kept");
        fuzz::Pretendi(d.Traduci(sorgente) == d.Traduci(Maiuscolo(sorgente)), "the case of a text makes no difference");
    }
    return 0;
}
