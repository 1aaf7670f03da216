// The day's path over an SVG.
#include "certificato/percorso.h"

#include <algorithm>
#include <cstdio>

#include "plot/svg.h"

namespace ombrelia {

namespace {

struct Mm {
    double x, y;
};

class Velo {
public:
    Velo(const Tavolo &t, const Posa &p, const std::vector<Istante> &giorno) : tavolo_(t), piano_(p.quadrante), giorno_(giorno) {
        centro_ = piano_.centro();
        if (centro_ && !vicino(*centro_)) centro_.reset();
        k_ = std::max(1.0, std::max(t.QuadranteL(), t.QuadranteH()) / 0.3);
    }

    std::string percorso() {
        t_.clear();
        scrivi("<g id=\"percorso\" fill=\"none\" stroke=\"#d2691e\" stroke-width=\"%.2f\">\n", 0.5 * k_);
        bool aperto = false;
        for (const Istante &i : giorno_) {
            if (!cade(i)) {
                if (aperto) t_ += "\"/>\n";
                aperto = false;
                continue;
            }
            t_ += aperto ? "L" : "<path d=\"M";
            aperto = true;
            punto(mm(i.ombra.punto));
        }
        if (aperto) t_ += "\"/>\n";
        // The whole hours of the clock.
        for (const Istante &i : giorno_) {
            if (!cade(i) || std::fabs(i.ore - std::round(i.ore)) > 1e-9) continue;
            const Mm p = mm(i.ombra.punto);
            scrivi("<circle cx=\"%.3f\" cy=\"%.3f\" r=\"%.2f\" fill=\"#d2691e\" stroke=\"none\"/>", p.x, p.y, 0.9 * k_);
            scrivi("<text x=\"%.3f\" y=\"%.3f\" fill=\"#8b4513\" stroke=\"none\" font-family=\"sans-serif\" font-size=\"%.2f\">",
                   p.x + 1.3 * k_, p.y - 1.3 * k_, 3.5 * k_);
            t_ += Orologio(i.ore) + "</text>\n";
        }
        return t_ + "</g>\n";
    }

    std::string moto() {
        // From the first moment with the Sun up to the last.
        std::size_t da = 0, a = giorno_.size();
        while (da < a && giorno_[da].ombra.luce == ombra::Luce::Notte) ++da;
        while (a > da && giorno_[a - 1].ombra.luce == ombra::Luce::Notte) --a;
        t_.clear();
        scrivi("<g id=\"ombra\">\n<line stroke=\"#333333\" stroke-width=\"%.2f\" stroke-linecap=\"round\">\n", 0.7 * k_);
        const auto anima = [&](const char *nome, auto valore) {
            t_ += std::string("<animate attributeName=\"") + nome + "\" dur=\"10s\" repeatCount=\"indefinite\" values=\"";
            for (std::size_t k = da; k < a; ++k) {
                char b[40];
                std::snprintf(b, sizeof b, k == da ? "%.3f" : ";%.3f", valore(k));
                t_ += b;
            }
            t_ += "\"/>\n";
        };
        const auto spegni = [&] {
            t_ += "<animate attributeName=\"visibility\" calcMode=\"discrete\" dur=\"10s\" repeatCount=\"indefinite\" values=\"";
            for (std::size_t k = da; k < a; ++k)
                t_ += std::string(k == da ? "" : ";") + (cade(giorno_[k]) ? "visible" : "hidden");
            t_ += "\"/>\n";
        };
        // In the dark the place stays where it was last, unseen.
        std::vector<Mm> piedi, punte;
        Mm piede{}, punta{};
        for (std::size_t k = 0; k < a; ++k) {
            if (k < da) {
                piedi.push_back(piede), punte.push_back(punta);
                continue;
            }
            if (cade(giorno_[k])) punta = mm(giorno_[k].ombra.punto), piede = mm(piedeDelloStilo(giorno_[k]));
            piedi.push_back(piede), punte.push_back(punta);
        }
        anima("x1", [&](std::size_t k) { return piedi[k].x; });
        anima("y1", [&](std::size_t k) { return piedi[k].y; });
        anima("x2", [&](std::size_t k) { return punte[k].x; });
        anima("y2", [&](std::size_t k) { return punte[k].y; });
        spegni();
        scrivi("</line>\n<circle r=\"%.2f\" fill=\"#b22222\">\n", 1.5 * k_);
        anima("cx", [&](std::size_t k) { return punte[k].x; });
        anima("cy", [&](std::size_t k) { return punte[k].y; });
        spegni();
        scrivi("</circle>\n<g font-family=\"sans-serif\" font-size=\"%.2f\" fill=\"#333333\">\n", 6 * k_);
        const double n = static_cast<double>(a - da);
        for (std::size_t k = da; k < a; ++k) {
            const double inizio = static_cast<double>(k - da) / n, fine = static_cast<double>(k + 1 - da) / n;
            scrivi("<text x=\"%.2f\" y=\"%.2f\" visibility=\"hidden\">", 5 * k_, 9 * k_);
            t_ += Orologio(giorno_[k].ore);
            if (giorno_[k].ombra.luce != ombra::Luce::Si) t_ += " dark";
            t_ += "<animate attributeName=\"visibility\" calcMode=\"discrete\" dur=\"10s\" repeatCount=\"indefinite\" ";
            if (k == da) scrivi("values=\"visible;hidden\" keyTimes=\"0;%.5f\"/></text>\n", fine);
            else scrivi("values=\"hidden;visible;hidden\" keyTimes=\"0;%.5f;%.5f\"/></text>\n", inizio, fine);
        }
        return t_ + "</g>\n</g>\n";
    }

private:
    template <typename... A>
    void scrivi(const char *forma, A... a) {
        char b[240];
        std::snprintf(b, sizeof b, forma, a...);
        t_ += b;
    }
    void punto(const Mm &p) { scrivi("%.3f %.3f", p.x, p.y); }
    [[nodiscard]] Mm mm(const ombra::Punto &p) const {
        return {tavolo_.quadrante().daSinistra(p.x) * 1000, tavolo_.quadrante().dallAlto(p.y) * 1000};
    }
    // Not beyond twice the sheet: the shadows of sunrise and sunset run to the end of the world.
    [[nodiscard]] bool vicino(const ombra::Punto &p) const {
        const double l = tavolo_.QuadranteL(), h = tavolo_.QuadranteH();
        return std::fabs(p.x) < 2 * l && std::fabs(p.y) < 2 * h;
    }
    [[nodiscard]] bool cade(const Istante &i) const { return i.ombra.luce == ombra::Luce::Si && vicino(i.ombra.punto); }
    // The other end of the style's shadow: the centre, or far along the shadow where there is none near.
    [[nodiscard]] ombra::Punto piedeDelloStilo(const Istante &i) const {
        if (centro_) return *centro_;
        const ombra::Retta r = piano_.ombraDelloStilo(i.cielo.t);
        const double l = tavolo_.QuadranteL() + tavolo_.QuadranteH();
        return {i.ombra.punto.x - r.b * l, i.ombra.punto.y + r.a * l};
    }

    const Tavolo &tavolo_;
    ombra::PianoMontato piano_;
    const std::vector<Istante> &giorno_;
    std::optional<ombra::Punto> centro_;
    double k_ = 1;  // of marks and letters: legible on the whole sheet
    std::string t_;
};

}  // namespace

std::string SvgConPercorso(const Tavolo &tavolo, const Posa &posa, const std::vector<Istante> &giorno, bool animato) {
    std::string svg = SVG_Generate(tavolo);
    Velo velo(tavolo, posa, giorno);
    std::string sopra = velo.percorso();
    if (animato) sopra += velo.moto();
    const std::size_t fine = svg.rfind("</svg>");
    return svg.insert(fine == std::string::npos ? svg.size() : fine, sopra);
}

}  // namespace ombrelia
