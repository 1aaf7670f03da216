// One running program without its window: the fields, the shared variables, the sheet, the dictionary and the user.
// Every routine of the program is a free function on it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controlli/controlli.h"
#include "core/angoli.h"
#include "core/certo.h"
#include "core/inputs.h"
#include "core/testo.h"
#include "core/variabili.h"
#include "lang/dizionario.h"
#include "plot/tavolo.h"
#include "sessione/correzione.h"
#include "sessione/lettura.h"
#include "sessione/mondo.h"
#include "sessione/rapporto.h"
#include "sessione/utente.h"

namespace ombrelia {

// What a control shows beyond the fields: enabled, visible, caption, and the text or value of controls that no
// record keeps.
struct StatoControllo {
    std::string caption, toolTip, testo;
    int valore = 0;
    bool visibile = true, abilitato = true;
};

struct Sessione {
    // The page of the tiles, in device units: A4 upright where nobody knows better.
    explicit Sessione(Utente &chi, double larghezzaPagina = 11906, double altezzaPagina = 16838);
    Sessione(const Sessione &) = delete;
    Sessione &operator=(const Sessione &) = delete;

    DialInputs in;
    Variabili v;
    Tavolo tavolo;
    Dizionario dizionario;
    Mondo mondo;  // as cmdStati loaded it
    Rapporti rapporti;
    Utente &utente;
    // A run reads the original dial anew unless the dial was transformed: on for whoever designs, off for action scripts,
    // where the first read since start fixes it for good.
    bool originaleFresco = false;
    // A southern dial, drawn as the mirror image of what is mounted, is mirrored at once: on for whoever designs, off for action
    // scripts, where the user is told to press the button.
    bool australeMontato = false;
    // Whether what a run draws now will be seen in a mirror: figures that are read are drawn the other way round then.
    [[nodiscard]] bool visteAlloSpecchio() const { return australeMontato && v.segnoLat == -1; }
    std::vector<StatoControllo> stati;  // one a row of the table of controls
    std::vector<std::string> titoli;    // captions of the forms, one a row of the table of forms

    // Draws true lines in place of an engine's own while ckCorretta is set; absent where nobody does.
    Correzione suCorretta;
    // Says of the dial that a run is drawing where shadows fall.
    std::function<OmbreVere::Dove(const Sessione &)> suOmbra;
    // Change handlers of fields that an engine rewrites; set by the application above.
    std::function<void(Sessione &, std::string DialInputs::*)> suCambio;
    // What needs a toolkit; absent without one. The sheet to the printer, whole or its selected tiles; the sheet's picture
    // as a BMP file's bytes, empty when there can be none.
    std::function<void(Sessione &, bool aree)> suStampa;
    std::function<std::string(Sessione &)> suImmagine;

    // For the figures of one routine.
    [[nodiscard]] OmbreVere ombreVere() const {
        return OmbreVere(in.ckCorretta == 1 && suOmbra ? suOmbra(*this) : OmbreVere::Dove());
    }
    // Whether somebody else drew these lines, true ones, in place of the engine's.
    [[nodiscard]] bool corretta(const Attesa &attesa) { return in.ckCorretta == 1 && suCorretta && suCorretta(*this, attesa); }
    [[nodiscard]] std::string Traduci(std::string_view testo) const { return dizionario.Traduci(testo); }
    void Messaggio(std::string_view testo) { tavolo.Messaggio(testo); }
    // A caption line at the running text cursor; left out when a number in it has no value.
    void Dati(const Frase &frase) {
        if (frase.esiste()) tavolo.Dati(frase.testo());
    }
    // At a place, y upward.
    void Dati(const Frase &frase, Valore x, Valore y) {
        if (frase.esiste()) tavolo.Scritta(frase.testo(), x, y);
    }
    // Gives a field a text, as a routine does; its change handler runs.
    void Scrivi(std::string DialInputs::*campo, std::string testo);

    // --- controls, wherever their text or value is kept -----------------------------------------------------------
    [[nodiscard]] std::string &testo(IdControllo id);
    [[nodiscard]] int &valore(IdControllo id);
    [[nodiscard]] StatoControllo &stato(IdControllo id) {
        Certo(id >= 0 && static_cast<std::size_t>(id) < stati.size(), "a control that is none");
        return stati[static_cast<std::size_t>(id)];
    }
    // Of a control that the program names itself.
    [[nodiscard]] std::string &testo(NomeControllo nome) { return testo(IdControllo(nome)); }
    [[nodiscard]] int &valore(NomeControllo nome) { return valore(IdControllo(nome)); }
    [[nodiscard]] StatoControllo &stato(NomeControllo nome) { return stato(IdControllo(nome)); }
    // Caption of a form of the table.
    [[nodiscard]] std::string &titolo(std::string_view modulo);
};

// The common reading of the fields into the shared variables; every engine starts with it. The first call since start
// also fixes the original dial. A field whose number overflows keeps its variable as it was.
void LeggiParametri(Sessione &s, const Lettura &letto);
inline void LeggiParametri(Sessione &s) { LeggiParametri(s, Lettura(s.in)); }

// The plane as just read becomes the original dial.
void LasciaOriginale(Variabili &v);

// The frame of a drawing: scaled limits, y upward.
struct Cornice {
    Reale xMin, xMax, yMin, yMax;
    // Strictly inside.
    [[nodiscard]] bool contiene(Valore x, Valore y) const { return xMin < x && x < xMax && yMin < y && y < yMax; }
};
[[nodiscard]] Cornice CorniceDi(const Lettura &letto);
[[nodiscard]] inline Cornice LeggiCornice(const Sessione &s) { return CorniceDi(Lettura(s.in)); }
// Leaves oraFuso as its box says.
inline void LasciaFuso(Variabili &v, const Lettura &letto) { v.oraFuso = letto.fuso ? 1 : 0; }
// Leaves unita as ChCentimetro says.
void LeggiUnita(Sessione &s);
// The frame, drawn by the unit in force; leaves its corner in x1 and y1.
void TracciaCornice(Sessione &s, const Lettura &letto);
inline void TracciaCornice(Sessione &s) { TracciaCornice(s, Lettura(s.in)); }

// Text of the unit of length in force: " m" or " mm".
[[nodiscard]] std::string_view TestoUnita(const Sessione &s);

}  // namespace ombrelia
