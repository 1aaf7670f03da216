// What the labels say.
#include "app/etichette.h"

#include <algorithm>
#include <cmath>

#include "certificato/posa.h"
#include "core/testo.h"
#include "officina/etichette.h"
#include "officina/tratti.h"
#include "ombra/sole.h"

namespace ombrelia::app {

namespace {

constexpr int ANNO_TIPO = 2026;                                // dates of a day line move by a day at the most
constexpr double QUASI_SOLSTIZIO = 23.4;                       // degrees: from here on a day line is the solstice's
constexpr double ALTEZZA_MINIMA = 0.5, ALTEZZA_MASSIMA = 500;  // mm

// Signs that begin when the Sun has a declination, the one it climbs into first.
std::string segni(double delta) {
    struct SegnoDelCielo {
        double delta;
        const char *segni;
    };
    constexpr SegnoDelCielo SEGNI[] = {{-23.44, "♑"},  {-20.15, "♒ ♐"}, {-11.47, "♓ ♏"}, {0, "♈ ♎"},
                                       {11.47, "♉ ♍"}, {20.15, "♊ ♌"},  {23.44, "♋"}};
    for (const SegnoDelCielo &s : SEGNI)
        if (std::fabs(delta - s.delta) < 0.5) return s.segni;
    return {};
}

class Scritte {
public:
    explicit Scritte(const Sessione &s) : in_(s.in), posa_(PosaDelDisegno(s)), piano_(posa_.quadrante) {}

    [[nodiscard]] std::string operator()(Specie specie, double valore) const {
        switch (DellaSpecie(specie).scritto) {
            case ScrittoDi::Ora:
                return ora(specie, valore);
            case ScrittoDi::Giorno:
                return giorno(valore);
            case ScrittoDi::Gradi:
                return TestoNumero(std::round(valore * 100) / 100) + "°";
            case ScrittoDi::Niente:
                break;
        }
        return {};
    }

private:
    [[nodiscard]] std::string ora(Specie specie, double valore) const {
        int n = static_cast<int>(std::lround(valore));
        if (std::fabs(valore - n) > 1e-6 || !illuminata(specie, valore)) return {};
        if (specie == Specie::Ora) n = (n + 11) % 12 + 1;
        return in_.ckEtichetteRomane == 1 && n > 0 ? NumeroRomano(n) : std::to_string(n);
    }

    // Whether the Sun ever shines on the plane at that hour.
    [[nodiscard]] bool illuminata(Specie specie, double valore) const {
        using ombra::RADIANTI;
        for (double gradi = -23.4; gradi < 23.5; gradi += 0.6) {
            const double delta = gradi * RADIANTI;
            double t = 0;
            if (specie == Specie::Ora) {
                const double vera = in_.ck_Etna == 1 ? valore - posa_.minutiDelFuso() / 60 : valore;
                t = (vera - 12) * 15 * RADIANTI;
            } else {
                const auto h = ombra::semiarco(posa_.quadrante.latitudine, delta);
                if (!h) continue;
                t = specie == Specie::Italica      ? *h + (valore - 24) * 15 * RADIANTI
                    : specie == Specie::Babilonica ? -*h + valore * 15 * RADIANTI
                                                   : *h * (valore / 6 - 1);
            }
            if (piano_.getta(t, delta).luce == ombra::Luce::Si) return true;
        }
        return false;
    }

    [[nodiscard]] std::string giorno(double delta) const {
        if (in_.ckEtichetteSegni == 1)
            if (const std::string t = segni(delta); !t.empty()) return t;
        if (std::fabs(delta) >= QUASI_SOLSTIZIO) return delta > 0 ? "21 VI" : "21 XII";
        std::string t;
        for (const ombra::Data &d : ombra::dateDi(delta * ombra::RADIANTI, 0, ANNO_TIPO, posa_.longitudine, posa_.fuso()))
            t += (t.empty() ? "" : " - ") + std::to_string(d.giorno) + " " + NumeroRomano(d.mese);
        return t;
    }

    const DialInputs &in_;
    const Posa posa_;
    const ombra::PianoMontato piano_;
};

double altezza(const Sessione &s) {
    const Valore v = Val(s.in.txtAltezzaEtichette);
    return v.esiste() && v > 0 ? std::clamp(v.v, ALTEZZA_MINIMA, ALTEZZA_MASSIMA) : 0;
}

std::vector<std::string> righeCartiglio(const Sessione &s) {
    const DialInputs &in = s.in;
    const Posa posa = PosaDelDisegno(s);
    const auto gradi = [](double g, const char *piu, const char *meno) {
        return TestoNumero(std::round(std::fabs(g) * 1e5) / 1e5) + "° " + (g < 0 ? meno : piu);
    };
    const auto angolo = [](const std::string &t) { return TestoNumero(Val(t).v) + "°"; };
    std::vector<std::string> righe;
    const std::string luogo = SenzaBlanks(in.txtLuogo), motto = SenzaBlanks(in.txtMotto), anno = SenzaBlanks(in.txtAnnoCartiglio);
    const std::string sito =
        gradi(posa.quadrante.latitudine * ombra::GRADI, "N", "S") + "  " + gradi(Val(in.txtLonG).v, "O", "E");
    righe.push_back(luogo.empty() ? sito : luogo + "  " + sito);
    righe.push_back(s.Traduci("declinazione ") + angolo(in.txtDec) + "  " + s.Traduci("inclinazione ") + angolo(in.txtInc) +
                    "  " + s.Traduci("gnomone ") + TestoNumero(Val(in.TxtStilo).v) + (in.ChCentimetro == 1 ? " mm" : " m"));
    if (!motto.empty() || !anno.empty()) righe.push_back(motto + (motto.empty() || anno.empty() ? "" : "  ") + anno);
    return righe;
}

constexpr double DEL_CARTIGLIO = 0.75;  // of a label's height

}  // namespace

double AltezzaCartiglio(const Sessione &s) {
    if (s.in.ckCartiglio != 1) return 0;
    return 0.001 * DEL_CARTIGLIO * altezza(s) * (1.7 * static_cast<double>(righeCartiglio(s).size()) + 1.5);
}

void TracciaEtichette(Sessione &s) {
    if ((s.in.ckEtichette != 1 && s.in.ckCartiglio != 1) || s.tavolo.lista().Ordine.empty() || altezza(s) == 0) return;
    if (!officina::CiSonoTratti()) {
        s.utente.Box(s.Traduci("Senza l'alfabeto di Hershey non ci sono etichette né cartiglio"));
        return;
    }
    const bool specchiata = s.v.segnoLat == -1;  // to be mirrored by its user, and read then
    if (s.in.ckEtichette == 1) {
        officina::StileEtichette stile;
        stile.altezza = altezza(s);
        stile.lungo = s.in.ckEtichetteLungo == 1;
        stile.specchiata = specchiata;
        stile.testo = Scritte(s);
        const officina::EsitoEtichette e = officina::Etichetta(s.tavolo, stile);
        s.Messaggio(s.Traduci("Etichette scritte: ") + std::to_string(e.scritte) + s.Traduci(", senza posto: ") +
                    std::to_string(e.senzaPosto));
    }
    if (s.in.ckCartiglio == 1) officina::Cartiglio(s.tavolo, righeCartiglio(s), DEL_CARTIGLIO * altezza(s), specchiata);
}

}  // namespace ombrelia::app
