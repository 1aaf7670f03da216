// The page's own words.
#include "web/testi.h"

#include "core/testo.h"

namespace ombrelia::web {

namespace {

constexpr TestoPagina TESTI[] = {
    {"motto", "Orologi solari in vera grandezza"_it},
    {"cerca", "Cerca un luogo"_it},
    {"esempi", "Esempi"_it},
    {"scarica", "Scarica"_it},
    {"progetto", "Progetto"_it},
    {"tabella", "Tabella"_it},
    {"perCad", "per il CAD"_it},
    {"perMacchina", "per la macchina"_it},
    {"copia", "Copia il collegamento"_it},
    {"copiato", "Collegamento copiato"_it},
    {"apri", "Apri un progetto o trascinalo qui"_it},
    {"lascia", "Lascia qui il progetto"_it},
    {"tutto", "Tutto il foglio"_it},
    {"avvicina", "Avvicina"_it},
    {"allontana", "Allontana"_it},
    {"chiudi", "Chiudi"_it},
    {"tema", "Chiaro o scuro"_it},
    {"nessunaTabella", "Nessuna tabella per questi campi"_it},
    {"vuoto", "Nulla da disegnare: scegliere le linee"_it},
    {"certificato", "Certificato"_it},
    {"linea", "Linea"_it},
    {"disegnati", "Disegnati mm"_it},
    {"massimo", "Scarto massimo mm"_it},
    {"medio", "Scarto medio mm"_it},
    {"mancanti", "Mancanti mm"_it},
    {"superflui", "Superflui mm"_it},
    {"doppia", "disegnata due volte"_it},
    {"correggi", "Disegna le linee vere"_it},
    {"giorno", "Giorno"_it},
    {"ora", "Ora del fuso"_it},
    {"avvia", "Muovi l'ombra"_it},
    {"ferma", "Ferma l'ombra"_it},
    {"notte", "notte"_it},
    {"dietro", "il Sole è dietro il piano"_it},
    {"mai", "qui non arriva mai l'ombra"_it},
    {"vera", "ora vera"_it},
    {"sole", "Sole a"_it},
    {"oppure", "oppure"_it},
};

}  // namespace

std::span<const TestoPagina> TestiPagina() { return TESTI; }

}  // namespace ombrelia::web
