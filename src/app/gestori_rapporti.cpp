// Handlers of the reports: which one a button or option opens, when it is refused, and the forms' "Stampa" menus.
#include "app/azioni.h"
#include "app/lingua.h"
#include "gnomonica/originale.h"
#include "reports/rapporti.h"

namespace ombrelia::app {

namespace {

using Routine = void (*)(Sessione &);

void apri(Sessione &s, std::string_view modulo, Routine mostra) {
    CaricaForm(s, modulo);
    RinfrescaOriginale(s, Lettura(s.in));
    mostra(s);
}

// Southern latitudes have no tables: the option is cleared and nothing opens. At the equator it is cleared too, and its
// table opens.
bool rifiutata(Sessione &s, int DialInputs::*opzione) {
    const Reale lat = Val(s.in.txtLAT);
    if (lat <= 0) s.in.*opzione = 0;
    return lat < 0;
}

void cmdData_Click(Sessione &s, int) {
    if (s.v.flagVerticale == 1) apri(s, "Form10", reports::MostraDatiEquivalente);
    else apri(s, "Form1", reports::MostraDatiFondamentali);
}

void optHorae_Click(Sessione &s, int) {
    if (rifiutata(s, &DialInputs::optHorae)) return;
    const bool equatore = Val(s.in.txtLAT) == 0, parete = Val(s.in.txtInc) == 0;
    apri(s, "Form2",
         equatore ? reports::MostraOreVereLatZero
         : parete ? reports::MostraOreVereVerticale
                  : reports::MostraOreVere);
}

void OptInter_Click(Sessione &s, int) {
    if (rifiutata(s, &DialInputs::OptInter)) return;
    if (s.in.ckFunzione == 1 && Val(s.in.txtInc) == 0) apri(s, "Form7", reports::MostraInterAnalitica);
    else apri(s, "Form6", reports::MostraInterSferica);
}

void OptIta_Click(Sessione &s, int) {
    if (!rifiutata(s, &DialInputs::OptIta)) apri(s, "Form9", reports::MostraItaliche);
}
void OptBab_Click(Sessione &s, int) {
    if (!rifiutata(s, &DialInputs::OptBab)) apri(s, "Form4", reports::MostraBabiloniche);
}
void OptTEMP_Click(Sessione &s, int) {
    if (!rifiutata(s, &DialInputs::OptTEMP)) apri(s, "Form3", reports::MostraTemporarie);
}
void Option1_Click(Sessione &s, int) {
    if (Val(s.in.txtInc) == 0) apri(s, "Form8", reports::MostraLineeDiurne);
}

template <Routine stampa>
void menu(Sessione &s, int) {
    RinfrescaOriginale(s, Lettura(s.in));
    stampa(s);
}

constexpr Gestore GESTORI[] = {
    {"cmdData", Evento::Clic, cmdData_Click},
    {"optHorae", Evento::Clic, optHorae_Click},
    {"OptIta", Evento::Clic, OptIta_Click},
    {"OptBab", Evento::Clic, OptBab_Click},
    {"OptTEMP", Evento::Clic, OptTEMP_Click},
    {"OptInter", Evento::Clic, OptInter_Click},
    {"Option1", Evento::Clic, Option1_Click},
    {"mnuAvviso", Evento::Clic, [](Sessione &s, int) { apri(s, "Form5", reports::MostraAvviso); }},
    {"Form1.menuFond", Evento::Clic, menu<reports::StampaDatiFondamentali>},
    {"Form2.mnuPrinta", Evento::Clic, menu<reports::StampaForm2>},
    {"Form3.mnustampat", Evento::Clic, menu<reports::StampaTemporarie>},
    {"Form4.mnubabprint", Evento::Clic, menu<reports::StampaBabiloniche>},
    {"Form6.mnu_Print", Evento::Clic, menu<reports::StampaInterSferica>},
    {"Form7.menustampa", Evento::Clic, menu<reports::StampaInterAnalitica>},
    {"Form8.menuprinta", Evento::Clic, menu<reports::StampaLineeDiurne>},
    {"Form9.mnuStammpa", Evento::Clic, menu<reports::StampaItaliche>},
    {"Form10.mnuDatiQ", Evento::Clic, menu<reports::StampaForm10>},
};

}  // namespace

std::span<const Gestore> GestoriRapporti() { return GESTORI; }

}  // namespace ombrelia::app
