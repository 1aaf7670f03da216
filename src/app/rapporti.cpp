// The table of the reports, and what opens and prints them.
#include "app/rapporti.h"

#include <algorithm>

#include "app/lingua.h"
#include "gnomonica/originale.h"

namespace ombrelia::app {

namespace {

bool parete(const Sessione &s) { return Val(s.in.txtInc) == 0; }
bool trasformato(const Sessione &s) { return s.v.flagVerticale == 1; }
bool analitica(const Sessione &s) { return s.in.ckFunzione == 1 && parete(s); }
template <bool (*prova)(const Sessione &)>
bool non(const Sessione &s) {
    return !prova(s);
}

constexpr VoceRapporto ELENCO[] = {
    {"data", "fundamental data", "Form1", reports::DatiFondamentali, "cmdData", non<trasformato>},
    {"equivalent", "the equivalent vertical dial and the original one", "Form10", reports::DatiEquivalente, "cmdData",
     trasformato, false, "cmdTrasforma"},
    {"hours", "true hours against two pairs of lines, shadow lengths", "Form2", reports::OreVere, "optHorae", nullptr, true},
    {"italic", "hours from sunset", "Form9", reports::OreItaliche, "OptIta", nullptr, true},
    {"babylonian", "hours from sunrise", "Form4", reports::OreBabiloniche, "OptBab", nullptr, true},
    {"temporary", "twelfths of the day", "Form3", reports::OreTemporarie, "OptTEMP", nullptr, true},
    {"spherical",
     "hour lines against day lines, by spherical trigonometry",
     "Form6",
     reports::IntersezioniSferiche,
     "OptInter",
     non<analitica>,
     true,
     {},
     0},
    {"analytic",
     "the same by analytic geometry, walls only",
     "Form7",
     reports::IntersezioniAnalitiche,
     "OptInter",
     analitica,
     true,
     {},
     1},
    {"daylines", "day lines by abscissa, walls only", "Form8", reports::TabellaDiurne, "Option1", parete},
    {"notice", "what the program does and does not promise", "Form5", reports::Avviso, "mnuAvviso", nullptr, false, {}, -1, ""},
};

}  // namespace

std::span<const VoceRapporto> ElencoRapporti() { return ELENCO; }

bool ApreRapporto(IdControllo controllo) {
    return std::any_of(std::begin(ELENCO), std::end(ELENCO), [&](const VoceRapporto &r) { return r.controllo == controllo; });
}

bool HaRapporto(const Sessione &s, const VoceRapporto &voce) {
    return (!voce.quando || voce.quando(s)) && !(voce.soloNord && Val(s.in.txtLAT) < 0);
}

std::optional<IdControllo> MenuStampa(std::string_view modulo) {
    for (const Controllo &c : ControlliDi(modulo))
        if (c.classe == Classe::Menu) return IdDi(c);
    return {};
}

void ApriRapporto(Sessione &s, const VoceRapporto &voce) {
    CaricaForm(s, voce.modulo);
    RinfrescaOriginale(s, Lettura(s.in));
    voce.scrivi(s, reports::Uscita::Schermo);
}

void PremiRapporto(Sessione &s, IdControllo id) {
    for (const VoceRapporto &r : ELENCO) {
        if (MenuStampa(r.modulo) == id) {
            RinfrescaOriginale(s, Lettura(s.in));
            return r.scrivi(s, reports::Uscita::Stampa);
        }
        if (r.controllo != id) continue;
        if (r.soloNord && !(Val(s.in.txtLAT) > 0)) s.in.*RigaDi(id).casella = 0;
        if (HaRapporto(s, r)) return ApriRapporto(s, r);
    }
}

bool StampaRapporto(Sessione &s) {
    const std::string_view modulo = s.rapporti.aperto.modulo;
    const auto r = std::find_if(std::begin(ELENCO), std::end(ELENCO), [&](const VoceRapporto &v) { return v.modulo == modulo; });
    if (r == std::end(ELENCO) || !MenuStampa(modulo)) return false;
    r->scrivi(s, reports::Uscita::Stampa);
    return true;
}

}  // namespace ombrelia::app
