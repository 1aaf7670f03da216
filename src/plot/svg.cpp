// The SVG writer. Coordinates are whole ten-thousandths of a millimetre inside, so that ends that meet are equal.
#include "plot/svg.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "core/testo.h"

namespace ombrelia {

namespace {

using namespace std::string_view_literals;

constexpr double MILLIMETRI = 1000;
constexpr double PASSI_AL_MM = 1e4;
constexpr double LIMITE_MM = 1e9;    // viewers count in single precision
constexpr double PENNA_MM = 0.2;     // of width 1
constexpr double PUNTO_MM = 0.35;    // diameter of a point
constexpr double CORPO_MM = 2.8222;  // 8 point, as the screen's text
constexpr double BASE_MM = 2.6;      // from the top of a text line to its base line

using Passi = std::int64_t;
struct Punto {
    Passi x, y;
    bool operator==(const Punto &) const = default;
};

void aggiungiIntero(std::string &t, Passi n) {
    char b[24];
    const auto r = std::to_chars(b, b + sizeof b, n);
    t.append(b, r.ptr);
}

void aggiungi(std::string &t, Passi passi) {
    constexpr Passi UNO = static_cast<Passi>(PASSI_AL_MM);
    if (passi < 0) t += '-';
    const Passi n = passi < 0 ? -passi : passi;
    aggiungiIntero(t, n / UNO);
    Passi resto = n % UNO;
    if (resto == 0) return;
    t += '.';
    for (Passi peso = UNO / 10; resto != 0; peso /= 10) {
        t += static_cast<char>('0' + resto / peso);
        resto %= peso;
    }
}

Passi daMm(double mm) { return std::llround(mm * PASSI_AL_MM); }

void aggiungiMm(std::string &t, double mm) { aggiungi(t, daMm(mm)); }

void aggiungiPunto(std::string &t, const Punto &p) {
    aggiungi(t, p.x);
    t += ' ';
    aggiungi(t, p.y);
}

// An RGB long, blue in the high byte; white is drawn black.
void aggiungiColore(std::string &t, Colore colore) {
    constexpr auto CIFRE = "0123456789abcdef"sv;
    const auto c = static_cast<std::uint32_t>(colore) & 0xFFFFFFU;
    const std::uint32_t v = c == 0xFFFFFFU ? 0 : c;
    t += '#';
    for (const int giu : {4, 0, 12, 8, 20, 16}) t += CIFRE[(v >> giu) & 15U];
}

// Text for XML 1.0: valid UTF-8, marks escaped, characters that XML has not as blanks.
std::string xml(std::string_view grezzo) {
    const std::string valido = DaFile(std::string(grezzo));
    std::string t;
    t.reserve(valido.size());
    for (std::size_t i = 0; i < valido.size(); ++i) {
        const char c = valido[i];
        if (c == '&') t += "&amp;"sv;
        else if (c == '<') t += "&lt;"sv;
        else if (c == '>') t += "&gt;"sv;
        else if (c == '"') t += "&quot;"sv;
        else if (valido.compare(i, 3, "\xEF\xBF\xBE") == 0 || valido.compare(i, 3, "\xEF\xBF\xBF") == 0) t += ' ', i += 2;
        else t += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    return t;
}

// One layer: its finished elements, the path in hand, and its points by colour.
struct Strato {
    std::string corpo;
    std::vector<Punto> percorso;
    Colore colore = 0;
    std::int32_t spessore = 1;
    std::vector<std::pair<Colore, std::string>> punti;

    void chiudiPercorso() {
        if (percorso.empty()) return;
        corpo += "<path stroke=\""sv;
        aggiungiColore(corpo, colore);
        if (spessore != 1) {
            corpo += "\" stroke-width=\""sv;
            aggiungiMm(corpo, PENNA_MM * spessore);
        }
        corpo += "\" d=\"M"sv;
        const bool chiuso = percorso.size() > 3 && percorso.front() == percorso.back();
        if (chiuso) percorso.pop_back();
        aggiungiPunto(corpo, percorso.front());
        for (std::size_t i = 1; i < percorso.size(); ++i) {
            corpo += i == 1 ? 'L' : ' ';
            aggiungiPunto(corpo, percorso[i]);
        }
        corpo += chiuso ? "Z\"/>\n"sv : "\"/>\n"sv;
        percorso.clear();
    }

    // A chord goes on where the path in hand ends, whichever way round it was drawn.
    void corda(const Punto &a, const Punto &b, Colore c, std::int32_t s) {
        if (!percorso.empty() && c == colore && s == spessore) {
            if (percorso.size() == 2 && (percorso[0] == a || percorso[0] == b) && percorso[1] != a && percorso[1] != b)
                std::swap(percorso[0], percorso[1]);
            if (percorso.back() == a) return percorso.push_back(b);
            if (percorso.back() == b) return percorso.push_back(a);
        }
        chiudiPercorso();
        colore = c;
        spessore = s;
        percorso = {a, b};
    }

    void punto(const Punto &p, Colore c) {
        auto gruppo = std::find_if(punti.begin(), punti.end(), [c](const auto &g) { return g.first == c; });
        if (gruppo == punti.end()) gruppo = punti.insert(gruppo, {c, {}});
        gruppo->second += 'M';
        aggiungiPunto(gruppo->second, p);
        gruppo->second += "h0"sv;
    }

    void chiudi() {
        chiudiPercorso();
        for (const auto &[c, d] : punti) {
            corpo += "<path stroke-width=\""sv;
            aggiungiMm(corpo, PUNTO_MM);
            corpo += "\" stroke=\""sv;
            aggiungiColore(corpo, c);
            corpo += "\" d=\""sv;
            corpo += d;
            corpo += "\"/>\n"sv;
        }
    }
};

class Scrittore {
public:
    explicit Scrittore(const Tavolo &t) : tavolo(t), lista(t.lista()), posto(lista.nomi.quanti(), SENZA) {}

    std::string scrivi() {
        cammino();
        std::string t;
        std::size_t misura = 1024 + lista.Testi.size() * 160;
        for (Strato &s : strati) {
            s.chiudi();
            misura += s.corpo.size() + 256;
        }
        t.reserve(misura);
        testata(t);
        for (std::size_t i = 0; i < strati.size(); ++i) {
            const std::string &nome = lista.nomi.testo(nomi[i]);
            apriStrato(t, i + 1, nome.empty() ? "Disegno"sv : std::string_view(nome));
            t += strati[i].corpo;
            t += "</g>\n"sv;
        }
        testi(t);
        t += "</g>\n</svg>\n"sv;
        return t;
    }

private:
    static constexpr std::size_t SENZA = static_cast<std::size_t>(-1);

    void testata(std::string &t) const {
        const double L = std::max(tavolo.QuadranteL(), 0.0) * MILLIMETRI, H = std::max(tavolo.QuadranteH(), 0.0) * MILLIMETRI;
        t += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
             "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" version=\"1.1\" width=\""sv;
        aggiungiMm(t, L);
        t += "mm\" height=\""sv;
        aggiungiMm(t, H);
        t += "mm\" viewBox=\"0 0 "sv;
        aggiungiMm(t, L);
        t += ' ';
        aggiungiMm(t, H);
        t += "\">\n<g fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\" stroke-width=\""sv;
        aggiungiMm(t, PENNA_MM);
        t += "\">\n"sv;
    }

    // The id is safe and unique by its number; the name itself is the label.
    static void apriStrato(std::string &t, std::size_t numero, std::string_view nome) {
        t += "<g id=\"strato"sv;
        t += std::to_string(numero);
        t += '-';
        for (const char c : nome) {
            const bool lettera = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
            t += lettera ? c : '_';
        }
        t += "\" inkscape:groupmode=\"layer\" inkscape:label=\""sv;
        t += xml(nome);
        t += "\">\n"sv;
    }

    Strato &strato(IdNome id) {
        if (posto[id] == SENZA) {
            posto[id] = strati.size();
            strati.emplace_back();
            nomi.push_back(id);
        }
        return strati[posto[id]];
    }

    [[nodiscard]] bool specchia(IdNome id) const {
        const std::string &nome = lista.nomi.testo(id);
        return nome != "AssiXY" && nome != "sys:page";
    }

    // World metres to the sheet; false when no viewer could show it.
    bool porta(double x, double y, bool specchiato, Punto &p) const {
        if (specchiato) {
            x *= tavolo.FattoreX;
            y *= tavolo.FattoreY;
        }
        const double mmX = (x + tavolo.ShiftX()) * MILLIMETRI, mmY = (y + tavolo.ShiftY()) * MILLIMETRI;
        if (!(std::fabs(mmX) < LIMITE_MM && std::fabs(mmY) < LIMITE_MM)) return false;
        p = {daMm(mmX), daMm(mmY)};
        return true;
    }

    void cammino() {
        const auto &f = lista.Figure;
        std::size_t punto = 0, linea = 0, figura = 0;
        Punto a{}, b{};
        for (const char tipo : lista.Ordine) {
            if (tipo == 'P') {
                const RecPunto &r = lista.Punti[punto++];
                if (porta(r.X, r.Y, true, a)) strato(r.Id).punto(a, r.colore);
            } else if (tipo == 'L') {
                const RecLinea &r = lista.Linee[linea++];
                const bool s = specchia(r.Id);
                if (porta(r.X1, r.Y1, s, a) && porta(r.X2, r.Y2, s, b)) strato(r.Id).corda(a, b, r.colore, r.Spessore);
            } else {
                while (figura < f.size() && f[figura].Tipo == 'V' && f[figura].voce != Voce::START) ++figura;
                if (figura == f.size()) continue;
                if (tipo == 'B') riquadro(f[figura]);
                else if (tipo == 'C') cerchio(f[figura]);
                else polilinea(figura);
                ++figura;
            }
        }
    }

    // The outline as four chords in hand: one closed path.
    void riquadro(const RecFigura &r) {
        Punto a{}, c{};
        const bool s = specchia(r.Id);
        if (!porta(r.X1, r.Y1, s, a) || !porta(r.X2, r.Y2, s, c)) return;
        Strato &st = strato(r.Id);
        st.chiudiPercorso();
        st.colore = r.colore;
        st.spessore = 1;
        st.percorso = {a, {c.x, a.y}, c, {a.x, c.y}, a};
        st.chiudiPercorso();
    }

    void polilinea(std::size_t i) {
        const auto &f = lista.Figure;
        const IdNome id = f[i].Id;
        const RecFigura *prima = nullptr;
        const bool s = specchia(id);
        Punto a{}, b{};
        for (++i; i < f.size() && !(f[i].Tipo == 'V' && f[i].Id == id && f[i].voce != Voce::VERTEX); ++i) {
            if (f[i].Tipo != 'V' || f[i].Id != id) continue;
            if (prima && porta(prima->X1, prima->Y1, s, a) && porta(f[i].X1, f[i].Y1, s, b))
                strato(id).corda(a, b, f[i].colore, 1);
            prima = &f[i];
        }
    }

    // Of an ellipse the radius is the longer half axis.
    void cerchio(const RecFigura &r) {
        Punto c{};
        const double mm = r.X2 * MILLIMETRI, aspetto = std::fabs(r.Y2);
        if (!porta(r.X1, r.Y1, specchia(r.Id), c) || !(mm > 0 && mm < LIMITE_MM) || aspetto == 0) return;
        const double rx = aspetto > 1 ? mm / aspetto : mm, ry = aspetto > 1 ? mm : mm * aspetto;
        constexpr double GIRO = 2 * std::numbers::pi;
        double arco = std::fmod(r.B - r.A, GIRO);
        if (arco < 0) arco += GIRO;
        constexpr double INTERO = 1e-6;
        Strato &st = strato(r.Id);
        st.chiudiPercorso();
        std::string &t = st.corpo;
        if (r.B == 0 || arco < INTERO || arco > GIRO - INTERO) {
            t += rx == ry ? "<circle r=\""sv : "<ellipse rx=\""sv;
            aggiungiMm(t, rx);
            if (rx != ry) {
                t += "\" ry=\""sv;
                aggiungiMm(t, ry);
            }
            t += "\" cx=\""sv;
            aggiungi(t, c.x);
            t += "\" cy=\""sv;
            aggiungi(t, c.y);
            if (r.Riempimento >= 0) {
                t += "\" fill=\""sv;
                aggiungiColore(t, r.Riempimento);
            }
        } else {
            // Counter-clockwise as seen, with y downward.
            const auto capo = [&](double angolo) {
                return Punto{c.x + daMm(rx * std::cos(angolo)), c.y - daMm(ry * std::sin(angolo))};
            };
            t += "<path d=\"M"sv;
            aggiungiPunto(t, capo(r.A));
            t += 'A';
            aggiungiPunto(t, {daMm(rx), daMm(ry)});
            t += arco > std::numbers::pi ? " 0 1 0 "sv : " 0 0 0 "sv;
            aggiungiPunto(t, capo(r.B));
        }
        t += "\" stroke=\""sv;
        aggiungiColore(t, r.colore);
        t += "\"/>\n"sv;
    }

    // Texts do not mirror and carry no colour.
    void testi(std::string &t) const {
        bool aperto = false;
        for (const RecTesto &r : lista.Testi) {
            Punto p{};
            if (r.Testo.empty() || !porta(r.X, r.Y, false, p)) continue;
            if (!aperto) {
                apriStrato(t, strati.size() + 1, "Testi"sv);
                t += "<g fill=\"#000000\" stroke=\"none\" font-family=\"sans-serif\" font-size=\""sv;
                aggiungiMm(t, CORPO_MM);
                t += "\">\n"sv;
                aperto = true;
            }
            t += "<text xml:space=\"preserve\" x=\""sv;
            aggiungi(t, p.x);
            t += "\" y=\""sv;
            aggiungi(t, p.y + daMm(BASE_MM));
            t += "\">"sv;
            t += xml(r.Testo);
            t += "</text>\n"sv;
        }
        if (aperto) t += "</g>\n</g>\n"sv;
    }

    const Tavolo &tavolo;
    const Lista &lista;
    std::vector<std::size_t> posto;  // of a name among the layers
    std::vector<Strato> strati;      // in the order of their first record
    std::vector<IdNome> nomi;
};

}  // namespace

std::string SVG_Generate(const Tavolo &tavolo) { return Scrittore(tavolo).scrivi(); }

}  // namespace ombrelia
