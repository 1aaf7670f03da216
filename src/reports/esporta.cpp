// A report given out: text in print zones, CSV, HTML.
#include <cstdio>
#include <utility>

#include "reports/rapporti.h"

namespace ombrelia::reports {

namespace {

constexpr std::size_t ZONA = 14;

std::size_t caratteri(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void aggiungiRiga(std::string &uscita, const RigaRapporto &riga) {
    std::size_t colonna = 0;
    std::size_t mancano = 0;  // blanks owed by the separator before the next item
    for (const Elemento &e : riga.voci) {
        if (!e.testo.empty()) {
            uscita.append(mancano, ' ');
            uscita += e.testo;
            colonna += mancano + caratteri(e.testo);
            mancano = 0;
        }
        const std::size_t qui = colonna + mancano;
        if (e.dopo == Separatore::Zona) mancano += ZONA - qui % ZONA;
        if (e.dopo == Separatore::Blank) mancano += static_cast<std::size_t>(std::max(e.blank, 0));
    }
}

// All digits that a double holds for people: 15 would lose what the cell is there for.
std::string pieno(double x) {
    std::string t;
    AggiungiNumero17(t, x);
    return Val(TestoNumero(x)) == x ? TestoNumero(x) : t;
}

constexpr std::string_view BOM = "\xEF\xBB\xBF";  // tells spreadsheets that the file is UTF-8

bool controllo(char c) { return CarattereDiControllo(c) && c != '\t'; }

// Whether all of a cell is a number: sign, digits, point, exponent.
bool numero(std::string_view t) {
    const std::size_t cifre = t.find_first_of("+-") == 0 ? 1 : 0;
    return t.find_first_of("0123456789") != std::string_view::npos &&
           t.find_first_not_of("0123456789.Ee+-", cifre) == std::string_view::npos;
}

// A file of cells: "," between them and decimal points, or ";" and decimal commas.
struct Celle {
    bool virgola;
    std::string testo{BOM};

    // Quoted where it must be. What a spreadsheet would take for a formula is told to be a text.
    void cella(std::string_view t) {
        std::string pulita;
        for (const char c : t) pulita += controllo(c) ? ' ' : c;
        const bool cifra = numero(pulita);
        if (cifra && virgola) std::replace(pulita.begin(), pulita.end(), '.', ',');
        if (!cifra && pulita.find_first_of("=+-@\t") == 0) pulita.insert(0, 1, '\'');
        const bool nuda = pulita.find_first_of(virgola ? ";\"" : ",\"") == std::string::npos && pulita.find('\'') != 0;
        if (nuda) {
            testo += pulita;
            return;
        }
        testo += '"';
        for (const char c : pulita) {
            if (c == '"') testo += '"';
            testo += c;
        }
        testo += '"';
    }
    void riga(const std::vector<std::string> &celle) {
        for (std::size_t i = 0; i < celle.size(); ++i) {
            if (i > 0) testo += virgola ? ';' : ',';
            cella(celle[i]);
        }
        testo += "\r\n";
    }
};

// A line of labelled values as cells: texts without their blanks, numbers whole.
std::vector<std::string> celle(const RigaRapporto &riga) {
    std::vector<std::string> c;
    bool aperta = false;  // a text that the next text goes on
    for (const Elemento &e : riga.voci) {
        if (e.ornamento) continue;
        if (e.numero) {
            c.push_back(pieno(*e.numero));
            aperta = false;
        } else if (riga.genere == GenereRiga::Dati) {
            c.push_back(SenzaBlanks(e.testo));
        } else if (aperta) {
            c.back() += e.testo;
        } else if (!SenzaBlanks(e.testo).empty()) {
            c.push_back(e.testo);
            aperta = true;
        }
        if (e.dopo != Separatore::Nessuno) aperta = false;
    }
    for (std::string &t : c) t = SenzaBlanks(t);
    return c;
}

bool haNumeri(const RigaRapporto &riga) {
    return std::any_of(riga.voci.begin(), riga.voci.end(), [](const Elemento &e) { return e.numero.has_value(); });
}

void aggiungiHtml(std::string &uscita, std::string_view testo) {
    for (const char c : testo) AggiungiXml(uscita, controllo(c) ? ' ' : c);
}

std::string colore(Colore c) {
    char t[16];
    std::snprintf(t, sizeof t, "#%02x%02x%02x", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
    return t;
}

constexpr std::string_view STILE = R"(
body { font: 15px/1.45 sans-serif; color: #000; background: #fff; margin: 2em auto; max-width: 72em; padding: 0 1em; }
h1 { font-size: 1.3em; }
h2 { font-size: 1.05em; margin: 1.6em 0 .4em; }
pre { font: 13px/1.45 monospace; margin: 0; white-space: pre-wrap; }
.t { overflow-x: auto; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { padding: .15em .7em; text-align: right; white-space: nowrap; }
th { border-bottom: 2px solid #000; vertical-align: bottom; white-space: normal; }
td { border-bottom: 1px solid #ccc; }
tbody tr:nth-child(even) { background: #f4f4f4; }
@media print { body { margin: 0; max-width: none; padding: 0; } .t { overflow: visible; } table { font-size: 7pt; } th, td { padding: .1em .35em; } tr { break-inside: avoid; } }
)";

void apriTabella(std::string &h, const TabellaRapporto &t, Colore c) {
    if (!t.titolo.empty()) {
        h += "<h2>";
        aggiungiHtml(h, SenzaBlanks(t.titolo));
        h += "</h2>\n";
    }
    h += "<div class=\"t\"><table style=\"color:" + colore(c) + "\">\n<thead><tr>";
    for (const std::string &n : t.colonne) {
        h += "<th>";
        aggiungiHtml(h, n);
        h += "</th>";
    }
    h += "</tr></thead>\n<tbody>\n";
}

}  // namespace

std::string RapportoTesto(const Rapporto &r) {
    std::string t;
    for (const RigaRapporto &riga : r.righe) {
        aggiungiRiga(t, riga);
        t += '\n';
    }
    return t;
}

std::vector<Blocco> RapportoBlocchi(const Rapporto &r) {
    std::vector<Blocco> blocchi;
    int aperta = -2;  // the table that the last line belongs to; -1 is that of labelled values
    for (const RigaRapporto &riga : r.righe) {
        if (riga.tabella < 0 && !haNumeri(riga)) continue;
        if (riga.tabella != std::exchange(aperta, riga.tabella)) {
            Blocco &b = blocchi.emplace_back();
            b.tabella = aperta;
            if (aperta >= 0) {
                const TabellaRapporto &tabella = r.tabelle[static_cast<std::size_t>(aperta)];
                b.titolo = SenzaBlanks(tabella.titolo);
                b.colonne = tabella.colonne;
            }
        }
        if (riga.tabella < 0 || riga.genere == GenereRiga::Dati) blocchi.back().righe.push_back(celle(riga));
    }
    return blocchi;
}

namespace {

std::string csv(const Rapporto &r, bool virgola) {
    Celle t{.virgola = virgola};
    t.riga({SenzaBlanks(r.caption)});
    for (const Blocco &b : RapportoBlocchi(r)) {
        t.testo += "\r\n";
        if (b.tabella >= 0) {
            if (!b.titolo.empty()) t.riga({b.titolo});
            t.riga(b.colonne);
        }
        for (const std::vector<std::string> &riga : b.righe) t.riga(riga);
    }
    return std::move(t.testo);
}

}  // namespace

std::string RapportoCsv(const Rapporto &r) { return csv(r, false); }
std::string RapportoCsvItaliano(const Rapporto &r) { return csv(r, true); }

std::string RapportoHtml(const Rapporto &r) {
    std::string h =
        "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" "
        "content=\"width=device-width\">\n<title>";
    aggiungiHtml(h, SenzaBlanks(r.caption));
    h += "</title>\n<style>";
    h += STILE;
    h += "</style>\n</head>\n<body>\n<h1>";
    aggiungiHtml(h, SenzaBlanks(r.caption));
    h += "</h1>\n";
    int aperta = -1;
    const auto chiudi = [&] {
        if (aperta >= 0) h += "</tbody>\n</table></div>\n";
        aperta = -1;
    };
    for (const RigaRapporto &riga : r.righe) {
        if (riga.tabella >= 0) {
            if (riga.tabella != aperta) {
                chiudi();
                aperta = riga.tabella;
                apriTabella(h, r.tabelle[static_cast<std::size_t>(aperta)], riga.colore);
            }
            if (riga.genere != GenereRiga::Dati) continue;
            h += "<tr>";
            std::size_t celle = 0;
            for (const Elemento &e : riga.voci) {
                if (e.ornamento) continue;
                h += "<td>";
                aggiungiHtml(h, SenzaBlanks(e.testo));
                h += "</td>";
                ++celle;
            }
            for (; celle < r.tabelle[static_cast<std::size_t>(aperta)].colonne.size(); ++celle) h += "<td></td>";
            h += "</tr>\n";
            continue;
        }
        if (riga.voci.empty() && aperta >= 0) continue;  // blank lines within a table's head
        chiudi();
        h += "<pre style=\"color:" + colore(riga.colore) + "\">";
        std::string testo;
        aggiungiRiga(testo, riga);
        aggiungiHtml(h, testo.empty() ? " " : testo);
        h += "</pre>\n";
    }
    chiudi();
    h += "</body>\n</html>\n";
    return h;
}

namespace {

constexpr FormaRapporto FORME[] = {
    {"txt", "--text", "lines in print zones of 14 columns, as on the form (without a choice)", RapportoTesto, false},
    {"csv", "--csv", "labelled values, then one block a table: numbers with all their digits", RapportoCsv},
    {"csv", "--csv-it", "the same with ; and decimal commas, for Italian spreadsheets", RapportoCsvItaliano},
    {"html", "--html", "a page with tables", RapportoHtml},
};

}  // namespace

std::span<const FormaRapporto> FormeRapporto() { return FORME; }

const FormaRapporto &FormaRapportoDi(std::string_view estensione) {
    for (const FormaRapporto &f : FORME)
        if (UguaglianzaSenzaCaso(f.estensione, estensione)) return f;
    return FORME[0];
}

}  // namespace ombrelia::reports
