// The table of controls as the page builds itself from it.
#include "app/gruppi.h"
#include "app/rapporti.h"
#include "formati/formati.h"
#include "officina/scrittori.h"
#include "reports/rapporti.h"
#include "web/json.h"
#include "web/pagina.h"
#include "web/testi.h"

namespace ombrelia::web {

namespace {

// Names the page's script knows the classes by.
std::string_view nomeDi(Classe c) {
    switch (c) {
        case Classe::Testo:
            return "testo";
        case Classe::Casella:
            return "casella";
        case Classe::Opzione:
            return "opzione";
        case Classe::Pulsante:
            return "pulsante";
        case Classe::Etichetta:
            return "etichetta";
        case Classe::Elenco:
            return "elenco";
        case Classe::Menu:
            return "menu";
        default:
            return "";
    }
}

void controllo(Json &j, const Dizionario &d, IdControllo id) {
    const Controllo &c = RigaDi(id);
    j.apri('{').nome("nome").testo(c.nome).nome("classe").testo(nomeDi(c.classe));
    j.nome("caption").testo(d.Traduci(c.caption)).nome("tip").testo(d.Traduci(c.toolTip));
    j.nome("rapporto").vero(app::ApreRapporto(id)).chiudi('}');
}

// A group's rows: names of controls, and captions of its own as {"caption": text}.
void gruppo(Json &j, const Dizionario &d, const app::Gruppo &g) {
    j.apri('{')
        .nome("titolo")
        .testo(d.Traduci(g.titolo))
        .nome("chiave")
        .testo(g.titolo)
        .nome("aperto")
        .vero(!g.piegato)
        .nome("righe")
        .apri('[');
    for (const app::Gruppo::RigaDiGruppo &r : g.righe) {
        j.apri('[');
        for (const app::Gruppo::VoceDiGruppo &c : r) {
            if (c.id == NESSUN_CONTROLLO)
                j.apri('{').nome("classe").testo("etichetta").nome("caption").testo(d.Traduci(c.caption)).chiudi('}');
            else controllo(j, d, c.id);
        }
        j.chiudi(']');
    }
    j.chiudi(']').chiudi('}');
}

// Beside the groups: buttons and menu entries.
constexpr NomeControllo COMANDI[] = {"cmdRun", "cmdEqui", "cmdTrasforma", "cmdData", "mnuAvviso"};

}  // namespace

std::string Pagina::Tavola() const {
    const Dizionario &d = dizionario();
    Json j;
    j.apri('{').nome("gruppi").apri('[');
    for (const auto *gruppi : {&app::GruppiQuadrante(), &app::GruppiDisegno()})
        for (const app::Gruppo &g : *gruppi) gruppo(j, d, g);
    j.chiudi(']').nome("comandi").apri('[');
    for (const NomeControllo nome : COMANDI) controllo(j, d, nome);
    // Forms of a drawing, for machines and of a report, by their endings.
    j.chiudi(']').nome("formati").apri('[');
    for (const FormatoDisegno &f : Formati())
        if (f.disegno && f.qui) j.testo(f.estensione);
    j.chiudi(']').nome("macchina").apri('[');
    for (const officina::FormatoMacchina &f : officina::FormatiMacchina()) j.testo(f.estensione);
    j.chiudi(']').nome("rapporti").apri('[');
    for (const reports::FormaRapporto &f : reports::FormeRapporto())
        if (&f == &reports::FormaRapportoDi(f.estensione)) j.testo(f.estensione);
    j.chiudi(']').nome("testi").apri('{');
    for (const TestoPagina &t : TestiPagina()) j.nome(t.chiave).testo(d.Traduci(t.testo));
    return std::move(j.chiudi('}').chiudi('}')).fine();
}

}  // namespace ombrelia::web
