// Output forms.
#include "formati/formati.h"

#include <utility>

#include "core/testo.h"
#include "plot/dxf.h"
#include "plot/lista_testo.h"
#include "plot/svg.h"
#ifdef OMBRELIA_CON_QT
#include "paint/file_disegno.h"
#endif

namespace ombrelia {

namespace {

#ifdef OMBRELIA_CON_QT
std::string pagine(Tavolo &t, std::string &errore) {
    const bool colori = std::exchange(t.PrintMultiColor, true);
    t.ScegliPiene();
    std::string file = paint::PdfAPagine(t, errore);
    t.LasciaPagine();
    t.PrintMultiColor = colori;
    return file;
}
constexpr bool CON_QT = true;
constexpr auto pdf = paint::Pdf, png = paint::Png, bmp = paint::Bmp;
#else
std::string pdf(Tavolo &, std::string &errore) {
    errore = "this build has no Qt: pdf, png and bmp are absent; dxf and svg are there";
    return {};
}
constexpr bool CON_QT = false;
constexpr auto png = pdf, bmp = pdf, pagine = pdf;
#endif

constexpr FormatoDisegno FORMATI[] = {
    {"dxf", "dxf", "drawing for CAD and cutters, millimetres", [](Tavolo &t, std::string &) { return DXF_Generate(t); }, false},
    {"svg", "svg", "drawing at true scale, one group a layer", [](Tavolo &t, std::string &) { return SVG_Generate(t); }},
    {"txt", "list", "the display list as text", [](Tavolo &t, std::string &) { return ListaTesto(t.lista()); }, true, false,
     false},
    {"pdf", "pdf", "one page at true scale; with --paper in pages", pdf, true, false, true, pagine, CON_QT},
    {"png", "png", "picture at the sheet's scale, 150 dots an inch", png, true, true, true, nullptr, CON_QT},
    {"bmp", "bmp", "the same picture without compression", bmp, true, true, true, nullptr, CON_QT},
};

}  // namespace

std::span<const FormatoDisegno> Formati() { return FORMATI; }

const FormatoDisegno *FormatoDi(std::string_view estensione) {
    for (const FormatoDisegno &f : FORMATI)
        if (UguaglianzaSenzaCaso(f.estensione, estensione)) return &f;
    return nullptr;
}

std::string_view Estensione(std::string_view percorso) {
    const std::size_t barra = percorso.find_last_of("/\\");
    const std::size_t punto = percorso.find_last_of('.');
    if (punto == std::string_view::npos || (barra != std::string_view::npos && punto < barra)) return {};
    return percorso.substr(punto + 1);
}

}  // namespace ombrelia
