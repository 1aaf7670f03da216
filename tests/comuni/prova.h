// What the tests share: a user who answers from a queue and remembers what was said, a session with fields of one's
// choice, and tables of published values.
#pragma once

#include <deque>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/comandi.h"
#include "plot/lista_testo.h"

namespace ombrelia {

// A control by a name of the test's own table; one that no control has is the test's fault.
[[nodiscard]] IdControllo TrovaControllo(std::string_view nome);

}  // namespace ombrelia

namespace ombrelia::prova {

class UtenteDiProva : public Utente {
public:
    std::vector<std::string> messaggi, box;
    int beep = 0;
    std::deque<std::string> risposte;

    void Messaggio(std::string_view testo) override { messaggi.emplace_back(testo); }
    bool Box(std::string_view testo, Domanda) override {
        box.emplace_back(testo);
        return prossima("Yes") != "No";
    }
    std::string Input(std::string_view, std::string_view, std::string_view proposta) override {
        return prossima(std::string(proposta));
    }
    std::optional<std::string> File(const RichiestaFile &) override {
        std::string r = prossima("");
        return r.empty() ? std::nullopt : std::optional(r);
    }
    void Beep() override { ++beep; }

private:
    std::string prossima(std::string altrimenti) {
        if (risposte.empty()) return altrimenti;
        std::string r = risposte.front();
        risposte.pop_front();
        return r;
    }
};

using CampiScritti = std::initializer_list<std::pair<std::string_view, std::string_view>>;

// A started program driven by control names. The sheet is wide, so that points of any dial of a few metres are kept.
class Banco {
public:
    UtenteDiProva utente;
    Sessione s{utente};

    explicit Banco(CampiScritti campi = {}, std::initializer_list<std::string_view> caselle = {}) {
        app::Avvia(s);
        foglio(14, 14, 7, 7);
        imposta(campi);
        for (const std::string_view c : caselle) spunta(c);
    }
    void foglio(double l, double h, double x, double y) {
        s.tavolo.QuadranteL(l);
        s.tavolo.QuadranteH(h);
        s.tavolo.ShiftX(x);
        s.tavolo.ShiftY(y);
    }
    void imposta(CampiScritti campi) {
        for (const auto &[nome, testo] : campi) app::Imposta(s, TrovaControllo(nome), std::string(testo));
    }
    // Gnomon, and the frame to its left, right, top and bottom, in the unit of the fields.
    void cornice(std::string_view gnomone, std::string_view x0, std::string_view x1, std::string_view y0, std::string_view y1) {
        imposta({{"TxtStilo", gnomone}, {"txtX0", x0}, {"txtX1", x1}, {"txtY0", y0}, {"txtY1", y1}});
    }
    app::Esito spunta(std::string_view casella, int valore = 1) { return app::Spunta(s, TrovaControllo(casella), valore); }
    app::Esito premi(std::string_view controllo) { return app::Premi(s, TrovaControllo(controllo)); }
    void esegui() { premi("cmdRun"); }

    [[nodiscard]] const Lista &lista() const { return s.tavolo.lista(); }
    [[nodiscard]] const std::string &strato(const RecLinea &l) const { return lista().nomi.testo(l.Id); }
    // Lines of one layer.
    [[nodiscard]] std::vector<RecLinea> linee(std::string_view strato_) const {
        std::vector<RecLinea> r;
        for (const RecLinea &l : lista().Linee)
            if (strato(l) == strato_) r.push_back(l);
        return r;
    }
    [[nodiscard]] bool testo(std::string_view t) const {
        for (const RecTesto &r : lista().Testi)
            if (r.Testo == t) return true;
        return false;
    }
};

// Rows of tests/data/NAME: fields divided by "|", blank lines and lines that begin with # passed over.
std::vector<std::vector<std::string>> Tabella(std::string_view nome);
// What a field lists; an empty field lists nothing.
std::vector<std::string> Divisi(std::string_view testo, char con);
// A field of a table with its escapes undone: \r, \n, \t, \s for a blank, \p for a bar, \\, \xHH for a byte.
std::string Scritto(std::string_view campo);

}  // namespace ombrelia::prova
