// The program behind a page: one session that scripts and the user's fields share, and a second one that draws it anew while
// the user types. Everything goes in and out as text; what the page shows, it knows from here.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/batch.h"
#include "sessione/muto.h"

namespace ombrelia::web {

class Pagina {
public:
    Pagina();

    // The program started afresh, as a script meets it.
    void Avvia();
    // A line of an action script. Empty when it was done, else why not. The page then shows what the script drew.
    [[nodiscard]] std::string Esegui(std::string_view riga);

    // A field is typed into, or an entry of a list chosen: the text passes the control's filter and its handlers. Gives the text
    // that now stands there. A new frame or unit fits the sheet to the frame.
    std::string Scrivi(std::string_view nome, std::string_view testo);
    // A box or button is pressed. cmdRun and cmdEqui choose who draws, cmdPlot lays the map on the dial or takes it off.
    void Premi(std::string_view nome);
    // Fits the sheet to the frame.
    void Adatta();

    // A link's fields, "name TAB text" a line: a fresh program in which they have these texts; no handler runs, names that
    // the table does not hold are passed over. The counterpart gives what differs from the start, as JSON pairs.
    void Collega(std::string_view righe);
    [[nodiscard]] std::string Collegamento();

    // Code and name of each language.
    [[nodiscard]] static std::string Lingue();
    // The page's language, by its code. The session keeps the one that its own dictionary has.
    void Lingua(std::string_view codice);
    // The table of controls in the page's language, group by group, and the page's own words. JSON.
    [[nodiscard]] std::string Tavola() const;
    // What the controls hold. JSON: name to [text or value, enabled].
    [[nodiscard]] std::string Stato();

    // The dial drawn anew from the fields, or what a script has drawn if nobody touched a field since. JSON: the sheet, its
    // layers in their order, and an SVG of the layers that changed since the last call, as a screen shows them whose pixel has
    // so many millimetres.
    [[nodiscard]] std::string Disegna(double pixel);
    // The same drawing on another screen, or nearer.
    [[nodiscard]] std::string Mostra(double pixel);
    // The same with all layers, for a page that starts over.
    void Dimentica() { mostrati_.clear(); }
    // The drawing shown, in one of the program's forms ("svg", "dxf"), or made ready for a machine ("macchina.dxf"); "omb" is the
    // project. Throws what went wrong.
    [[nodiscard]] std::string Esporta(std::string_view forma);
    // The report that a control opens; JSON, null when these fields have none. Forms "csv" and "txt" of the last one.
    [[nodiscard]] std::string ApriRapporto(std::string_view nome);
    [[nodiscard]] std::string RapportoCome(std::string_view forma) const;

    // Towns whose name begins so, the larger first. JSON: [name, country or state, latitude, longitude, zone meridian], the
    // numbers as texts for the fields.
    [[nodiscard]] static std::string Luoghi(std::string_view inizio);
    // What a point of the sheet says, x and y in millimetres from its corner, the dates in a year, and the line that lies
    // within so many millimetres. JSON.
    [[nodiscard]] std::string Leggi(double x, double y, int anno, double entro);
    // The chords of a claimed line, by its number, as the "d" of a path.
    [[nodiscard]] std::string Linea(std::size_t pretesa);
    // The drawing held against the shadow: verdict and a row a line. JSON; null when nothing is drawn.
    [[nodiscard]] std::string Certificato();
    // The shadow at a date and hours of the zone's mean time, x and y as above. JSON.
    [[nodiscard]] std::string Ombra(std::string_view data, double ore);
    // The way of the shadow through that day: JSON, points or null where there is none.
    [[nodiscard]] std::string Giornata(std::string_view data);

    [[nodiscard]] Sessione &sessione() { return copione_->sessione(); }
    [[nodiscard]] Sessione &disegno() { return daScript_ ? sessione() : prova_; }
    [[nodiscard]] const Dizionario &dizionario() const { return prova_.dizionario; }

private:
    void ridisegna();
    void tocca();

    std::unique_ptr<cli::Copione> copione_;
    Muto muto_;
    Sessione prova_;  // draws; its dictionary is the page's
    bool daScript_ = false, analitica_ = false, mappa_ = false;
    std::vector<std::string> mostrati_;  // the layers that the page has
};

}  // namespace ombrelia::web
