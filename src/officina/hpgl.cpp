// HPGL: whole steps of a fortieth of a millimetre from the lower left corner, one pen a colour.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/testo.h"
#include "officina/scrittori.h"

namespace ombrelia::officina {

namespace {

constexpr double PASSI = 40;  // a millimetre
constexpr int PENNE = 8;

class ScrittoreHpgl {
public:
    explicit ScrittoreHpgl(const Disegno &d) : d_(d) {
        const Riquadro p = Pagina(d);
        origine_ = {p.x0, p.y0};
    }

    std::string scrivi() {
        t = "IN;";
        int penna = 0;
        for (const Cammino &c : d_.cammini) {
            // The frame and what shares its colour have the first pen.
            const int n = static_cast<int>(c.genere) % PENNE + 1;
            if (n != penna) t += "SP" + std::to_string(penna = n) + ";";
            cammino(c);
            t += '\n';
        }
        return std::move(t += "PU;SP0;\n");
    }

private:
    [[nodiscard]] static long passi(double mm) { return std::lround(PASSI * mm); }
    void punto(P2 p) { t += std::to_string(passi(p.x - origine_.x)) + "," + std::to_string(passi(p.y - origine_.y)); }
    void su(P2 p) {
        t += "PU";
        punto(p);
        t += ';';
    }

    void cammino(const Cammino &c) {
        if (c.tipo == Cammino::Tipo::Cerchio) {
            su(c.punti[0]);
            t += "CI" + std::to_string(std::max(1L, passi(c.raggio))) + ";";
            return;
        }
        su(c.capo());
        t += "PD";
        if (c.tipo == Cammino::Tipo::Linea) {
            const std::size_t n = c.punti.size() + (c.chiuso ? 1 : 0);
            for (std::size_t i = 1; i < n; ++i) {
                if (i > 1) t += ',';
                punto(c.punti[i % c.punti.size()]);
            }
            t += ';';
        } else if (c.tipo == Cammino::Tipo::Arco) {
            const double giro = std::fmod(c.fine - c.inizio + 4 * std::numbers::pi, 2 * std::numbers::pi);
            t += ";AA";
            punto(c.punti[0]);
            t += ',';
            AggiungiDecimali(t, giro * 180 / std::numbers::pi, 3);
            t += ';';
        } else if (c.tipo == Cammino::Tipo::Testo) {
            // Capitals two thirds of the letter's cell high; sizes in centimetres.
            t += ";PU;SI";
            AggiungiDecimali(t, c.raggio / 10 * 0.75, 3);
            t += ',';
            AggiungiDecimali(t, c.raggio / 10, 3);
            t += ";LB";
            std::string testo;
            AggiungiCp1252(testo, c.testo);
            std::erase_if(testo, [](char ch) { return static_cast<unsigned char>(ch) < ' '; });
            (t += testo) += "\x03;";
        } else {
            t += ';';
        }
    }

    const Disegno &d_;
    P2 origine_;
    std::string t;
};

}  // namespace

std::string Hpgl(const Disegno &d, const Intestazione &) { return ScrittoreHpgl(d).scrivi(); }

}  // namespace ombrelia::officina
