// Performing an action script.
#include "cli/batch.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>

#include "app/comandi.h"
#include "app/progetto.h"
#include "app/rapporti.h"
#include "cli/consegna.h"
#include "cli/console.h"
#include "core/file.h"
#include "formati/formati.h"
#include "reports/rapporti.h"

namespace ombrelia::cli {

namespace {

constexpr std::size_t SCRIPT_MASSIMO = 64U << 20;
constexpr std::string_view BOM = "\xEF\xBB\xBF";

// One run of a script. An action that can't be done throws its reason.
struct Rifiuto {
    std::string motivo;
};

class Esecuzione {
public:
    Esecuzione() : console_(stdout), s_(console_) {
        s_.suImmagine = [](Sessione &s) {
            std::string errore;
            return FormatoDi("bmp")->scrivi(s.tavolo, errore);
        };
        app::Avvia(s_);
    }
    void esegui(std::string_view riga);
    Sessione &sessione() { return s_; }

private:
    struct Verbo {
        std::string_view nome;
        void (Esecuzione::*esegui)(std::string_view);
    };
    static std::span<const Verbo> azioni();

    // Takes the next word off the line.
    static std::string_view parola(std::string_view &resto) {
        const std::size_t a = resto.find_first_not_of(' ');
        if (a == std::string_view::npos) {
            resto = {};
            return {};
        }
        resto.remove_prefix(a);
        const std::size_t b = std::min(resto.find(' '), resto.size());
        const std::string_view p = resto.substr(0, b);
        resto.remove_prefix(std::min(b + 1, resto.size()));
        return p;
    }
    static std::string_view richiesta(std::string_view &resto, std::string_view cosa) {
        const std::string_view p = parola(resto);
        if (p.empty()) throw Rifiuto{"missing argument: " + std::string(cosa)};
        return p;
    }
    // The same where nothing may stand behind it: an action half understood is not done.
    static std::string_view sola(std::string_view resto, std::string_view cosa) {
        const std::string_view p = richiesta(resto, cosa);
        if (resto.find_first_not_of(' ') != std::string_view::npos) throw Rifiuto{"too many words: " + std::string(resto)};
        return p;
    }
    static double numero(std::string_view &resto, std::string_view cosa, bool ultimo = false) {
        const std::string_view p = ultimo ? sola(resto, cosa) : richiesta(resto, cosa);
        const Valore n = Val(p);
        const char c = p[p.find_first_not_of("+-.") == std::string_view::npos ? 0 : p.find_first_not_of("+-.")];
        if (!n.esiste() || c < '0' || c > '9') throw Rifiuto{std::string(cosa) + " is no number: " + std::string(p)};
        return n.v;
    }
    static std::string file(std::string_view resto) {
        if (resto.find_first_not_of(' ') == std::string_view::npos) throw Rifiuto{"missing argument: FILE"};
        return std::string(resto);
    }
    static IdControllo controllo(std::string_view nome) {
        const auto id = CercaControllo(nome);
        if (!id) throw Rifiuto{"unknown control: " + std::string(nome)};
        return *id;
    }
    void esito(app::Esito e, std::string_view nome, std::string_view impossibile) const {
        if (e == app::Esito::Disabilitato) console_.di("disabled: ", nome);
        if (e == app::Esito::Impossibile) throw Rifiuto{std::string(nome) + ": " + std::string(impossibile)};
    }
    void consegna(const std::string &percorso, std::string_view contenuto) const {
        const std::string errore = Consegna(percorso, contenuto);
        if (!errore.empty()) throw Rifiuto{errore};
    }

    void set(std::string_view resto);
    void type(std::string_view resto);
    void check(std::string_view resto) { spunta(resto, 1); }
    void uncheck(std::string_view resto) { spunta(resto, 0); }
    void spunta(std::string_view resto, int valore);
    void click(std::string_view resto);
    void mouse(std::string_view resto);
    void answer(std::string_view resto) { console_.rispondi(std::string(resto)); }
    void sheet(std::string_view resto);
    void disegno(std::string_view resto, const FormatoDisegno &formato);
    void show(std::string_view resto);
    void value(std::string_view resto);
    void report(std::string_view resto);
    void print(std::string_view resto);
    // A file that is missing or broken gives the program's own message box.
    void open(std::string_view resto) { app::ApriProgetto(s_, file(resto)); }
    void save(std::string_view resto) {
        const std::string percorso = file(resto), testo = app::ScriviProgetto(s_);
        if (const auto errore = app::TroppoGrande(percorso, testo)) throw Rifiuto{*errore};
        consegna(percorso, testo);
    }

    Console console_;
    Sessione s_;
};

// Besides these each form of a drawing is an action.
std::span<const Esecuzione::Verbo> Esecuzione::azioni() {
    using E = Esecuzione;
    static constexpr Verbo TUTTE[] = {
        {"set", &E::set},     {"type", &E::type},     {"check", &E::check},   {"uncheck", &E::uncheck}, {"click", &E::click},
        {"mouse", &E::mouse}, {"answer", &E::answer}, {"sheet", &E::sheet},   {"show", &E::show},       {"value", &E::value},
        {"open", &E::open},   {"save", &E::save},     {"report", &E::report}, {"print", &E::print},
    };
    return TUTTE;
}

void Esecuzione::esegui(std::string_view riga) {
    if (!riga.empty() && riga.back() == '\r') riga.remove_suffix(1);
    if (riga.find_first_not_of(" \t") == std::string_view::npos || riga.front() == '#') return;
    const std::string_view nome = parola(riga);
    for (const Verbo &a : azioni())
        if (a.nome == nome) return (this->*a.esegui)(riga);
    for (const FormatoDisegno &f : Formati())
        if (f.azione == nome) return disegno(riga, f);
    throw Rifiuto{"unknown action: " + std::string(nome)};
}

void Esecuzione::set(std::string_view resto) {
    const std::string_view nome = richiesta(resto, "CONTROL");
    esito(app::Imposta(s_, controllo(nome), std::string(resto)), nome, "takes no such text");
}

void Esecuzione::type(std::string_view resto) {
    const std::string_view nome = richiesta(resto, "CONTROL");
    const IdControllo id = controllo(nome);
    if (resto.empty()) throw Rifiuto{"missing argument: TEXT"};
    esito(app::Digita(s_, id, resto), nome, "is no text box");
}

void Esecuzione::spunta(std::string_view resto, int valore) {
    const std::string_view nome = sola(resto, "BOX");
    esito(app::Spunta(s_, controllo(nome), valore), nome, "is no check box");
}

void Esecuzione::click(std::string_view resto) {
    const std::string_view nome = sola(resto, "CONTROL");
    esito(app::Premi(s_, controllo(nome)), nome, "can't be pressed");
}

void Esecuzione::mouse(std::string_view resto) {
    const double x = numero(resto, "X");
    const double y = numero(resto, "Y", true);
    s_.tavolo.MouseDown(x, y);
}

void Esecuzione::sheet(std::string_view resto) {
    const double l = numero(resto, "L"), h = numero(resto, "H"), x = numero(resto, "X"), y = numero(resto, "Y", true);
    Tavolo &t = s_.tavolo;
    t.QuadranteL(l);
    t.QuadranteH(h);
    t.ShiftX(x);
    t.ShiftY(y);
}

void Esecuzione::disegno(std::string_view resto, const FormatoDisegno &formato) {
    const std::string percorso = file(resto);
    std::string errore;
    const std::string contenuto = formato.scrivi(s_.tavolo, errore);
    if (!errore.empty()) throw Rifiuto{errore};
    consegna(percorso, contenuto);
}

void Esecuzione::report(std::string_view resto) {
    const std::string percorso = file(resto);
    if (s_.rapporti.aperto.modulo.empty()) throw Rifiuto{"no report was opened yet"};
    consegna(percorso, reports::RapportoTesto(s_.rapporti.aperto));
}

void Esecuzione::print(std::string_view resto) {
    const std::string percorso = file(resto);
    Rapporti &r = s_.rapporti;
    if (r.aperto.modulo.empty()) throw Rifiuto{"no report was opened yet"};
    r.stampato = {};
    if (!app::StampaRapporto(s_)) throw Rifiuto{r.aperto.modulo + " has no Stampa menu"};
    consegna(percorso, reports::RapportoTesto(r.stampato));
}

void Esecuzione::show(std::string_view resto) {
    const std::string_view nome = sola(resto, "CONTROL");
    const IdControllo id = controllo(nome);
    const StatoControllo &stato = s_.stato(id);
    const std::string abilitato = stato.abilitato ? " enabled" : " disabled";
    std::string testo;
    switch (RigaDi(id).classe) {
        case Classe::Testo:
        case Classe::Elenco:
            testo = s_.testo(id);
            break;
        case Classe::Casella:
            testo = std::to_string(s_.valore(id));
            break;
        case Classe::Opzione:
            testo = stato.caption + abilitato + " " + std::to_string(s_.valore(id));
            break;
        case Classe::Pulsante:
        case Classe::Menu:
            testo = stato.caption + abilitato;
            break;
        default:
            testo = app::Didascalia(s_, id);
            break;
    }
    console_.di(std::string(nome) + "=", testo);
}

void Esecuzione::value(std::string_view resto) {
    const std::string nome(sola(resto, "NAME"));
    std::string riga = nome + "=";
    for (const NomeVariabile &n : NomiVariabili()) {
        if (!UguaglianzaSenzaCaso(n.nome, nome)) continue;
        AggiungiNumero17(riga, (s_.v.*n.variabile).numero());
        return console_.di(riga, "");
    }
    throw Rifiuto{"unknown variable: " + nome};
}

}  // namespace

struct Copione::Interno {
    Esecuzione esecuzione;
};

Copione::Copione() : interno_(std::make_unique<Interno>()) {}
Copione::~Copione() = default;
Sessione &Copione::sessione() { return interno_->esecuzione.sessione(); }

std::optional<std::string> Copione::Esegui(std::string_view riga) {
    try {
        interno_->esecuzione.esegui(riga);
    } catch (const Rifiuto &rifiuto) {
        return rifiuto.motivo;
    }
    return {};
}

int EseguiAzioni(std::string_view script, const std::string &nome) {
    if (script.starts_with(BOM)) script.remove_prefix(BOM.size());
    Copione copione;
    std::size_t numero = 0;
    while (!script.empty()) {
        ++numero;
        const std::size_t fine = std::min(script.find('\n'), script.size());
        if (const auto motivo = copione.Esegui(script.substr(0, fine))) {
            std::fprintf(stderr, "%s:%zu: %s\n", nome.c_str(), numero, motivo->c_str());
            return 2;
        }
        script.remove_prefix(std::min(fine + 1, script.size()));
    }
    return 0;
}

int Batch(int argc, char **argv) {
    if (argc != 1) {
        std::fputs("ombrelia batch: one script is needed; see ombrelia batch --help\n", stderr);
        return 2;
    }
    const std::string nome = argv[0];
    std::string script, errore;
    if (nome == "-") {
        char pezzo[65536];
        for (std::size_t n; (n = std::fread(pezzo, 1, sizeof pezzo, stdin)) > 0 && script.size() <= SCRIPT_MASSIMO;)
            script.append(pezzo, n);
        if (std::ferror(stdin)) errore = std::string("standard input: ") + std::strerror(errno);
        else if (script.size() > SCRIPT_MASSIMO) errore = "more than " + std::to_string(SCRIPT_MASSIMO) + " bytes";
    } else if (auto letto = LeggiFile(nome, SCRIPT_MASSIMO, &errore)) {
        script = std::move(*letto);
    }
    if (!errore.empty()) {
        std::fprintf(stderr, "%s:0: %s\n", nome.c_str(), errore.c_str());
        return 2;
    }
    return EseguiAzioni(script, nome);
}

}  // namespace ombrelia::cli
