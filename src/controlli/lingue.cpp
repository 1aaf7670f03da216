// The table of languages.
#include "controlli/lingue.h"

#include "controlli/nomi.h"

namespace ombrelia {

namespace {

constexpr Lingua LINGUE[] = {
    {"it", "Italiano", "", "Apri...", "Riavviare Ombrelia!!", "mnuItalian"},
    {"fr", "Français", "Francese", "Ouvrir...", "Il faut sortir avant d'exécuter Ombrelia!!", "mnuFrancais"},
    {"en", "English", "Inglese", "Open...", "You must restart Ombrelia!!", "mnuInglese"},
};

}  // namespace

std::span<const Lingua> Lingue() { return LINGUE; }

const Lingua &LinguaDi(std::string_view codice) {
    for (const Lingua &l : LINGUE)
        if (l.codice == codice) return l;
    return LINGUE[0];
}

std::string DizionarioDi(const Lingua &lingua) {
    return lingua.file.empty() ? std::string() : std::string(lingua.file) + "C2008";
}

std::array<std::string, 3> FileDi(const Lingua &lingua) {
    if (lingua.file.empty()) return {};
    const std::string file(lingua.file);
    return {"DB" + DizionarioDi(lingua) + ".txt", "DBFinestra" + file + ".txt", "DBPagina" + file + ".txt"};
}

}  // namespace ombrelia
