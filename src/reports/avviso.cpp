// The notice, as the lines of its text box.
#include "controlli/nomi.h"
#include "reports/tabulato.h"

namespace ombrelia::reports {

void Avviso(Sessione &s, Uscita uscita) {
    Tabulato f(s, "Form5", uscita);
    std::string_view testo = s.testo("Form5.Text1");
    while (!testo.empty()) {
        const std::size_t fine = std::min(testo.find('\n'), testo.size());
        std::string_view riga = testo.substr(0, fine);
        if (riga.ends_with('\r')) riga.remove_suffix(1);
        f.riga({riga});
        testo.remove_prefix(std::min(fine + 1, testo.size()));
    }
    f.consegna();
}

}  // namespace ombrelia::reports
