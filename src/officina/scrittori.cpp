// The table of the machine's formats, and what its writers share.
#include "officina/scrittori.h"

#include <algorithm>
#include <cmath>

#include "core/testo.h"

namespace ombrelia::officina {

namespace {

constexpr FormatoMacchina FORMATI[] = {
    {"dxf", "DXF R12", "DXF R12 whole: units, extents, layers, polylines, circles, arcs, points, texts", Dxf12},
    {"svg", "SVG", "layers, millimetres, hairlines by colour", SvgMacchina},
    {"plt", "HPGL", "HPGL, one pen a colour, 0.025 mm a step", Hpgl},
    {"pdf", "PDF", "one page at true scale, one layer a kind", PdfStrati},
};

}  // namespace

std::span<const FormatoMacchina> FormatiMacchina() { return FORMATI; }

const FormatoMacchina *FormatoMacchinaDi(std::string_view estensione) {
    for (const FormatoMacchina &f : FORMATI)
        if (UguaglianzaSenzaCaso(f.estensione, estensione)) return &f;
    return nullptr;
}

void AggiungiDecimali(std::string &t, double n, int decimali) {
    std::int64_t uno = 1;
    for (int i = 0; i < decimali; ++i) uno *= 10;
    const std::int64_t intero = std::llround(n * static_cast<double>(uno));
    if (intero < 0) t += '-';
    const std::uint64_t passi = intero < 0 ? 0U - static_cast<std::uint64_t>(intero) : static_cast<std::uint64_t>(intero);
    const auto base = static_cast<std::uint64_t>(uno);
    t += std::to_string(passi / base);
    std::uint64_t resto = passi % base;
    if (resto == 0) return;
    t += '.';
    for (std::uint64_t peso = base / 10; resto != 0; peso /= 10) {
        t += static_cast<char>('0' + resto / peso);
        resto %= peso;
    }
}

Riquadro Pagina(const Disegno &d) {
    Riquadro p = d.campo;
    p.allarga({d.estensione.x0, d.estensione.y0});
    p.allarga({d.estensione.x1, d.estensione.y1});
    return p;
}

std::vector<Genere> GeneriUsati(const Disegno &d) {
    std::vector<Genere> g;
    for (const RigaGenere &r : Generi())
        if (std::any_of(d.cammini.begin(), d.cammini.end(), [&](const Cammino &c) { return c.genere == r.genere; }))
            g.push_back(r.genere);
    return g;
}

}  // namespace ombrelia::officina
