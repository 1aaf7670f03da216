// Output forms.
#include "cli/formati.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include "core/file.h"
#include "plot/dxf.h"
#include "plot/lista_testo.h"
#include "plot/svg.h"
#ifdef OMBRELIA_CON_QT
#include "paint/file_disegno.h"
#endif

namespace ombrelia::cli {

namespace {

#ifdef OMBRELIA_CON_QT
std::string pdf(Sessione &s, std::string &errore) { return paint::Pdf(s.tavolo, errore); }
std::string pagine(Sessione &s, std::string &errore) {
    Tavolo &t = s.tavolo;
    const bool colori = std::exchange(t.PrintMultiColor, true);
    t.ScegliPiene();
    std::string file = paint::PdfAPagine(t, errore);
    t.LasciaPagine();
    t.PrintMultiColor = colori;
    return file;
}
std::string png(Sessione &s, std::string &errore) { return paint::Png(s.tavolo, errore); }
std::string bmp(Sessione &s, std::string &errore) { return paint::Bmp(s.tavolo, errore); }
#else
std::string pdf(Sessione &, std::string &errore) {
    errore = "this build has no Qt: pdf, png and bmp are absent; dxf and svg are there";
    return {};
}
constexpr auto png = pdf, bmp = pdf, pagine = pdf;
#endif

constexpr Formato FORMATI[] = {
    {"dxf", "drawing for CAD and cutters, millimetres", [](Sessione &s, std::string &) { return DXF_Generate(s.tavolo); }, false},
    {"svg", "drawing at true scale, one group a layer", [](Sessione &s, std::string &) { return SVG_Generate(s.tavolo); }},
    {"txt", "the display list as text", [](Sessione &s, std::string &) { return ListaTesto(s.tavolo.lista()); }},
    {"pdf", "one page at true scale; with --paper in pages", pdf, true, false, pagine},
    {"png", "picture at the sheet's scale, 150 dots an inch", png, true, true},
    {"bmp", "the same picture without compression", bmp, true, true},
};

}  // namespace

std::span<const Formato> Formati() { return FORMATI; }

const Formato *FormatoDi(std::string_view estensione) {
    for (const Formato &f : FORMATI)
        if (UguaglianzaSenzaCaso(f.estensione, estensione)) return &f;
    return nullptr;
}

std::string_view Estensione(std::string_view percorso) {
    const std::size_t barra = percorso.find_last_of("/\\");
    const std::size_t punto = percorso.find_last_of('.');
    if (punto == std::string_view::npos || (barra != std::string_view::npos && punto < barra)) return {};
    return percorso.substr(punto + 1);
}

std::string Consegna(const std::string &percorso, std::string_view contenuto) {
    if (percorso != "-") return ScriviFile(percorso, contenuto).value_or("");
    if (std::fwrite(contenuto.data(), 1, contenuto.size(), stdout) != contenuto.size() || std::fflush(stdout) != 0)
        return std::string("standard output: ") + std::strerror(errno);
    return {};
}

}  // namespace ombrelia::cli
