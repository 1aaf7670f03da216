// The SVG writer. Coordinates are whole ten-thousandths of a millimetre inside, so that ends that meet are equal.
#include "plot/svg.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "core/testo.h"
#include "plot/impronta.h"
#include "plot/percorso.h"
#include "plot/snello.h"

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

using Decimillesimi = std::int64_t;

void aggiungiIntero(std::string &t, Decimillesimi n) {
    char b[24];
    const auto r = std::to_chars(b, b + sizeof b, n);
    t.append(b, r.ptr);
}

void aggiungi(std::string &t, Decimillesimi passi) {
    constexpr Decimillesimi UNO = static_cast<Decimillesimi>(PASSI_AL_MM);
    if (passi < 0) t += '-';
    const Decimillesimi n = passi < 0 ? -passi : passi;
    aggiungiIntero(t, n / UNO);
    Decimillesimi resto = n % UNO;
    if (resto == 0) return;
    t += '.';
    for (Decimillesimi peso = UNO / 10; resto != 0; peso /= 10) {
        t += static_cast<char>('0' + resto / peso);
        resto %= peso;
    }
}

Decimillesimi daMm(double mm) { return std::llround(mm * PASSI_AL_MM); }

void aggiungiMm(std::string &t, double mm) { aggiungi(t, daMm(mm)); }

void aggiungiPunto(std::string &t, const PuntoIntero &p) {
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
        if (valido.compare(i, 3, "\xEF\xBF\xBE") == 0 || valido.compare(i, 3, "\xEF\xBF\xBF") == 0) t += ' ', i += 2;
        else AggiungiXml(t, static_cast<unsigned char>(c) < ' ' ? ' ' : c);
    }
    return t;
}

// An element of a layer: where its text begins, what it draws, and when it was begun.
struct Pezzo {
    std::size_t inizio;
    Impronta impronta;
    std::size_t turno;
    bool copia = false;  // of one begun earlier, on whatever layer
};

// Points of a colour: what is written of them, and those that follow each other without a gap.
struct Puntini {
    Colore colore;
    std::string d;
    std::vector<PuntoIntero> fila;

    void chiudiFila(const Occhio &occhio) {
        if (fila.empty()) return;
        occhio.snellisci(fila);
        for (std::size_t i = 0; i < fila.size(); ++i) {
            d += i == 0 ? 'M' : i == 1 ? 'L' : ' ';
            aggiungiPunto(d, fila[i]);
        }
        if (fila.size() == 1) d += "h0"sv;
        fila.clear();
    }
};

// One layer: its finished elements, the path in hand, and its points by colour.
struct Strato {
    Occhio occhio;
    std::string corpo;
    std::vector<Pezzo> pezzi;
    std::vector<PuntoIntero> percorso;
    std::size_t turno = 0;  // of the path in hand
    Colore colore = 0;
    std::int32_t spessore = 1;
    std::vector<Puntini> punti;
    std::size_t fineElementi = 0;  // behind them the points

    void chiudiPercorso() {
        if (percorso.empty()) return;
        pezzi.push_back({corpo.size(), Impronta(percorso), turno});
        occhio.snellisci(percorso);
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
    void corda(const PuntoIntero &a, const PuntoIntero &b, Colore c, std::int32_t s, std::size_t adesso) {
        if (!percorso.empty() && c == colore && s == spessore) {
            if (percorso.size() == 2 && (percorso[0] == a || percorso[0] == b) && percorso[1] != a && percorso[1] != b)
                std::swap(percorso[0], percorso[1]);
            if (percorso.back() == a) return percorso.push_back(b);
            if (percorso.back() == b) return percorso.push_back(a);
        }
        chiudiPercorso();
        colore = c;
        spessore = s;
        turno = adesso;
        percorso = {a, b};
    }

    void punto(const PuntoIntero &p, Colore c) {
        auto gruppo = std::find_if(punti.begin(), punti.end(), [c](const Puntini &g) { return g.colore == c; });
        if (gruppo == punti.end()) gruppo = punti.insert(gruppo, {c, {}, {}});
        if (!gruppo->fila.empty() && !occhio.attaccati(gruppo->fila.back(), p)) gruppo->chiudiFila(occhio);
        gruppo->fila.push_back(p);
    }

    void chiudi() {
        chiudiPercorso();
        fineElementi = corpo.size();
        for (Puntini &g : punti) {
            g.chiudiFila(occhio);
            corpo += "<path stroke-width=\""sv;
            aggiungiMm(corpo, PUNTO_MM);
            corpo += "\" stroke=\""sv;
            aggiungiColore(corpo, g.colore);
            corpo += "\" d=\""sv;
            corpo += g.d;
            corpo += "\"/>\n"sv;
        }
    }
};

class ScrittoreSvg {
public:
    ScrittoreSvg(const Tavolo &t, double pixel)
        : tavolo(t), lista(t.lista()), q(t.quadrante()), occhio{pixel * PASSI_AL_MM}, posto(lista.nomi.quanti(), SENZA) {}

    std::string scrivi() {
        Percorri(lista, *this);
        std::string t;
        std::size_t misura = 1024 + lista.Testi.size() * 160;
        for (Strato &s : strati) {
            s.chiudi();
            misura += s.corpo.size() + 256;
        }
        togliCopie();
        t.reserve(misura);
        testata(t);
        for (std::size_t i = 0; i < strati.size(); ++i) {
            const Strato &s = strati[i];
            const bool tutte = std::all_of(s.pezzi.begin(), s.pezzi.end(), [](const Pezzo &p) { return p.copia; });
            if (tutte && s.punti.empty()) continue;
            const std::string &nome = lista.nomi.testo(nomi[i]);
            apriStrato(t, i + 1, nome.empty() ? "Disegno"sv : std::string_view(nome));
            for (std::size_t k = 0; k < s.pezzi.size(); ++k) {
                const std::size_t da = s.pezzi[k].inizio, a = k + 1 < s.pezzi.size() ? s.pezzi[k + 1].inizio : s.fineElementi;
                if (!s.pezzi[k].copia) t.append(s.corpo, da, a - da);
            }
            t.append(s.corpo, s.fineElementi);
            t += "</g>\n"sv;
        }
        testi(t);
        t += "</g>\n</svg>\n"sv;
        return t;
    }

    void punto(const RecPunto &r) {
        PuntoIntero p{};
        const double x = r.X * tavolo.FattoreX, y = r.Y * tavolo.FattoreY;
        if (q.copre(x, y) && porta(x, y, false, p) && puntiVisti.insert(Impronta({p})).second) strato(r.Id).punto(p, r.colore);
    }
    void linea(const RecLinea &r) { segmento(r.X1, r.Y1, r.X2, r.Y2, r.colore, r.Spessore, r.Id); }
    void figura(std::size_t i) {
        const RecFigura &r = lista.Figure[i];
        if (r.Tipo == 'B') riquadro(r);
        else if (r.Tipo == 'C') cerchio(r);
        else polilinea(i);
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
            strati.emplace_back().occhio = occhio;
            nomi.push_back(id);
        }
        return strati[posto[id]];
    }

    [[nodiscard]] bool specchia(IdNome id) const {
        const std::string &nome = lista.nomi.testo(id);
        return nome != "AssiXY" && nome != "sys:page";
    }

    // World metres to the sheet; false when no viewer could show it.
    bool porta(double x, double y, bool specchiato, PuntoIntero &p) const {
        if (specchiato) {
            x *= tavolo.FattoreX;
            y *= tavolo.FattoreY;
        }
        const double mmX = q.daSinistra(x) * MILLIMETRI, mmY = q.dallAlto(y) * MILLIMETRI;
        if (!(std::fabs(mmX) < LIMITE_MM && std::fabs(mmY) < LIMITE_MM)) return false;
        p = {daMm(mmX), daMm(mmY)};
        return true;
    }

    // Of elements that draw the same the one begun first stays.
    void togliCopie() {
        std::vector<Pezzo *> tutti;
        for (Strato &s : strati)
            for (Pezzo &p : s.pezzi) tutti.push_back(&p);
        std::sort(tutti.begin(), tutti.end(), [](const Pezzo *p, const Pezzo *q) { return p->turno < q->turno; });
        Visti visti;
        visti.reserve(tutti.size());
        for (Pezzo *p : tutti) p->copia = !visti.insert(p->impronta).second;
    }

    // What of it lies on the sheet.
    void segmento(double x1, double y1, double x2, double y2, Colore colore, std::int32_t spessore, IdNome id) {
        if (specchia(id)) {
            x1 *= tavolo.FattoreX;
            y1 *= tavolo.FattoreY;
            x2 *= tavolo.FattoreX;
            y2 *= tavolo.FattoreY;
        }
        const bool ampio = x1 != x2 || y1 != y2;
        if (q.RitagliaSegmento(x1, y1, x2, y2) == 0 || (ampio && x1 == x2 && y1 == y2)) return;
        PuntoIntero a{}, b{};
        if (porta(x1, y1, false, a) && porta(x2, y2, false, b)) strato(id).corda(a, b, colore, spessore, turno++);
    }

    // One closed path, or what of its sides lies on the sheet.
    void riquadro(const RecFigura &r) {
        Strato &st = strato(r.Id);
        st.chiudiPercorso();
        segmento(r.X1, r.Y1, r.X2, r.Y1, r.colore, 1, r.Id);
        segmento(r.X2, r.Y1, r.X2, r.Y2, r.colore, 1, r.Id);
        segmento(r.X2, r.Y2, r.X1, r.Y2, r.colore, 1, r.Id);
        segmento(r.X1, r.Y2, r.X1, r.Y1, r.colore, 1, r.Id);
        st.chiudiPercorso();
    }

    void polilinea(std::size_t i) {
        const auto &f = lista.Figure;
        const IdNome id = f[i].Id;
        const RecFigura *prima = nullptr;
        for (++i; i < f.size() && !(f[i].Tipo == 'V' && f[i].Id == id && f[i].voce != Voce::VERTEX); ++i) {
            if (f[i].Tipo != 'V' || f[i].Id != id) continue;
            if (prima) segmento(prima->X1, prima->Y1, f[i].X1, f[i].Y1, f[i].colore, 1, id);
            prima = &f[i];
        }
    }

    // Millimetres on the sheet; of an ellipse the radius is the longer half axis. Counter-clockwise as seen.
    struct Ellisse {
        double x, y, rx, ry, inizio, arco;

        [[nodiscard]] double X(double angolo) const { return x + rx * std::cos(angolo); }
        [[nodiscard]] double Y(double angolo) const { return y - ry * std::sin(angolo); }
        [[nodiscard]] PuntoIntero capo(double angolo) const {
            return {daMm(x) + daMm(rx * std::cos(angolo)), daMm(y) - daMm(ry * std::sin(angolo))};
        }
    };

    void cerchio(const RecFigura &r) {
        const double mm = r.X2 * MILLIMETRI, aspetto = std::fabs(r.Y2);
        const bool s = specchia(r.Id);
        PuntoIntero c{};
        if (!porta(r.X1, r.Y1, s, c) || !(mm > 0 && mm < LIMITE_MM) || aspetto == 0) return;
        double da = r.A, a = r.B;
        if (s) tavolo.specchio().arco(da, a);
        constexpr double GIRO = 2 * std::numbers::pi;
        double arco = std::fmod(a - da, GIRO);
        if (arco < 0) arco += GIRO;
        constexpr double INTERO = 1e-6;
        const bool intero = r.B == 0 || arco < INTERO || arco > GIRO - INTERO;
        if (intero) da = 0, arco = GIRO;
        const Ellisse e{static_cast<double>(c.x) / PASSI_AL_MM,
                        static_cast<double>(c.y) / PASSI_AL_MM,
                        aspetto > 1 ? mm / aspetto : mm,
                        aspetto > 1 ? mm : mm * aspetto,
                        da,
                        arco};
        Strato &st = strato(r.Id);
        st.chiudiPercorso();
        const double L = q.L * MILLIMETRI, H = q.H * MILLIMETRI;
        const bool dentro = e.x - e.rx >= 0 && e.x + e.rx <= L && e.y - e.ry >= 0 && e.y + e.ry <= H;
        if (dentro && intero) return tondo(st, e, c, r);
        // Cut where it crosses the sheet's edges; a piece whose middle lies on the sheet stays.
        std::vector<double> tagli{da, da + arco};
        const auto taglia = [&](double angolo) {
            double t = std::fmod(angolo - da, GIRO);
            if (t < 0) t += GIRO;
            if (t < arco) tagli.push_back(da + t);
        };
        for (const double x : {0.0, L})
            if (const double k = (x - e.x) / e.rx; std::fabs(k) < 1) taglia(std::acos(k)), taglia(-std::acos(k));
        for (const double y : {0.0, H})
            if (const double k = (e.y - y) / e.ry; std::fabs(k) < 1)
                taglia(std::asin(k)), taglia(std::numbers::pi - std::asin(k));
        if (dentro) tagli.resize(2);
        std::sort(tagli.begin(), tagli.end());
        for (std::size_t i = 1; i < tagli.size(); ++i) {
            const double mezzo = (tagli[i - 1] + tagli[i]) / 2, x = e.X(mezzo), y = e.Y(mezzo);
            if (x >= 0 && x <= L && y >= 0 && y <= H) pezzo(st, e, tagli[i - 1], tagli[i], r);
        }
    }

    void tondo(Strato &st, const Ellisse &e, const PuntoIntero &c, const RecFigura &r) {
        std::string &t = st.corpo;
        st.pezzi.push_back({t.size(), Impronta({c, {daMm(e.rx), daMm(e.ry)}, {r.Riempimento, 0}}), turno++});
        t += e.rx == e.ry ? "<circle r=\""sv : "<ellipse rx=\""sv;
        aggiungiMm(t, e.rx);
        if (e.rx != e.ry) {
            t += "\" ry=\""sv;
            aggiungiMm(t, e.ry);
        }
        t += "\" cx=\""sv;
        aggiungi(t, c.x);
        t += "\" cy=\""sv;
        aggiungi(t, c.y);
        fine(t, r, true);
    }

    void pezzo(Strato &st, const Ellisse &e, double da, double a, const RecFigura &r) {
        const PuntoIntero primo = e.capo(da), secondo = e.capo(a), raggi{daMm(e.rx), daMm(e.ry)};
        std::string &t = st.corpo;
        st.pezzi.push_back({t.size(), Impronta({primo, e.capo((da + a) / 2), secondo}), turno++});
        t += "<path d=\"M"sv;
        aggiungiPunto(t, primo);
        t += 'A';
        aggiungiPunto(t, raggi);
        t += a - da > std::numbers::pi ? " 0 1 0 "sv : " 0 0 0 "sv;
        aggiungiPunto(t, secondo);
        fine(t, r, r.B == 0);
    }

    // Fill, of whole ones, and colour.
    static void fine(std::string &t, const RecFigura &r, bool intero) {
        if (intero && r.Riempimento >= 0) {
            t += "\" fill=\""sv;
            aggiungiColore(t, r.Riempimento);
        }
        t += "\" stroke=\""sv;
        aggiungiColore(t, r.colore);
        t += "\"/>\n"sv;
    }

    // Texts do not mirror. One that begins beyond the sheet, or ends before it by a guess at its length, is left out.
    [[nodiscard]] bool siVede(const RecTesto &r) const {
        constexpr double LETTERA = 0.6 * CORPO_MM / MILLIMETRI, ALTA = BASE_MM / MILLIMETRI;
        const double x = q.daSinistra(r.X), y = q.dallAlto(r.Y);
        return x < q.L && y < q.H && y + ALTA > 0 && x + LETTERA * static_cast<double>(r.Testo.size()) > 0;
    }
    void testi(std::string &t) const {
        bool aperto = false;
        for (const RecTesto &r : lista.Testi) {
            PuntoIntero p{};
            if (r.Testo.empty() || !siVede(r) || !porta(r.X, r.Y, false, p)) continue;
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
            if (r.colore != 0) {
                t += "\" fill=\""sv;
                aggiungiColore(t, r.colore);
            }
            t += "\">"sv;
            t += xml(r.Testo);
            t += "</text>\n"sv;
        }
        if (aperto) t += "</g>\n</g>\n"sv;
    }

    const Tavolo &tavolo;
    const Lista &lista;
    const Quadrante &q;
    Occhio occhio;
    Visti puntiVisti;
    std::size_t turno = 0;
    std::vector<std::size_t> posto;  // of a name among the layers
    std::vector<Strato> strati;      // in the order of their first record
    std::vector<IdNome> nomi;
};

}  // namespace

std::string SVG_Generate(const Tavolo &tavolo, double pixel) { return ScrittoreSvg(tavolo, pixel).scrivi(); }

}  // namespace ombrelia
