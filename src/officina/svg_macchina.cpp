// SVG as laser programs read it: a stroke's colour picks the tool, a hairline is cut.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "officina/scrittori.h"

namespace ombrelia::officina {

namespace {

constexpr double CAPELLO = 0.025;  // mm: a hairline, a thousandth of an inch
constexpr double CORPO = 1.4;      // font size in heights of capitals

std::string xml(std::string_view s) {
    std::string t;
    for (const char c : s) AggiungiXml(t, static_cast<unsigned char>(c) < ' ' ? ' ' : c);
    return t;
}

class ScrittoreSvgMacchina {
public:
    explicit ScrittoreSvgMacchina(const Disegno &d) : d_(d), pagina_(Pagina(d)), foglio_{0, 0, -pagina_.x0, pagina_.y1} {}

    std::string scrivi(const std::string &titolo) {
        t = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
            "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\"";
        numero(pagina_.x1 - pagina_.x0);
        t += "mm\" height=\"";
        numero(pagina_.y1 - pagina_.y0);
        t += "mm\" viewBox=\"0 0 ";
        numero(pagina_.x1 - pagina_.x0);
        t += ' ';
        numero(pagina_.y1 - pagina_.y0);
        t += "\">\n<title>" + xml(titolo) + "</title>\n";
        for (const Genere g : GeneriUsati(d_)) strato(Riga(g));
        t += "</svg>\n";
        return std::move(t);
    }

private:
    void numero(double n) { AggiungiDecimali(t, n, 4); }
    void punto(P2 p) {
        numero(foglio_.daSinistra(p.x));
        t += ' ';
        numero(foglio_.dallAlto(p.y));
    }
    void attributo(std::string_view nome, double n) {
        ((t += ' ') += nome) += "=\"";
        numero(n);
        t += '"';
    }

    void strato(const RigaGenere &r) {
        char colore[8];
        std::snprintf(colore, sizeof colore, "#%06x", r.rgb);
        const std::string nome(r.nome);
        t += "<g inkscape:groupmode=\"layer\" id=\"" + nome + "\" inkscape:label=\"" + nome + "\" fill=\"none\" stroke=\"" +
             colore + "\"";
        attributo("stroke-width", CAPELLO);
        t += " stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
        for (const Cammino &c : d_.cammini)
            if (c.genere == r.genere) cammino(c, colore);
        t += "</g>\n";
    }

    void cammino(const Cammino &c, const char *colore) {
        if (c.tipo == Cammino::Tipo::Cerchio) {
            t += "<circle";
            attributo("cx", foglio_.daSinistra(c.punti[0].x));
            attributo("cy", foglio_.dallAlto(c.punti[0].y));
            attributo("r", c.raggio);
            t += "/>\n";
        } else if (c.tipo == Cammino::Tipo::Testo) {
            t += "<text xml:space=\"preserve\"";
            attributo("x", foglio_.daSinistra(c.punti[0].x));
            attributo("y", foglio_.dallAlto(c.punti[0].y));
            t += std::string(" fill=\"") + colore + "\" stroke=\"none\" font-family=\"sans-serif\"";
            attributo("font-size", CORPO * c.raggio);
            t += ">" + xml(c.testo) + "</text>\n";
        } else {
            t += "<path d=\"M";
            punto(c.capo());
            if (c.tipo == Cammino::Tipo::Arco) {
                const double giro = std::fmod(c.fine - c.inizio + 4 * std::numbers::pi, 2 * std::numbers::pi);
                t += 'A';
                numero(c.raggio);
                t += ' ';
                numero(c.raggio);
                t += giro > std::numbers::pi ? " 0 1 0 " : " 0 0 0 ";
                punto(c.coda());
            } else if (c.tipo == Cammino::Tipo::Punto) {
                t += "h0";  // a dot of the round cap
            } else {
                for (std::size_t i = 1; i < c.punti.size(); ++i) {
                    t += 'L';
                    punto(c.punti[i]);
                }
                if (c.chiuso) t += 'Z';
            }
            t += "\"/>\n";
        }
    }

    const Disegno &d_;
    const Riquadro pagina_;
    const Quadrante foglio_;  // millimetres, the drawing's foot on the page
    std::string t;
};

}  // namespace

std::string SvgMacchina(const Disegno &d, const Intestazione &f) { return ScrittoreSvgMacchina(d).scrivi(f.titolo); }

}  // namespace ombrelia::officina
