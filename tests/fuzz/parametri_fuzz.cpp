// The reader of the defaults file.
#include "fuzz.h"
#include "persist/parametri.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *dati, std::size_t quanti) {
    using namespace ombrelia;
    Parametri p;
    p.Interpreta(fuzz::Testo(dati, quanti));
    p.Interpreta(p.Testo());
    // What was read once from a file of ours is kept from then on.
    const std::string seconda = p.Testo();
    p.Interpreta(seconda);
    fuzz::Pretendi(p.Testo() == seconda, "a file of ours is read as it was written");
    return 0;
}
