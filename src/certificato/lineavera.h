// The true line of a claim, from the shadow by vectors: how far a point is from it, whether a shadow falls there, and the
// line itself as far as it can be seen.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "certificato/posa.h"
#include "plot/pretesa.h"

namespace ombrelia {

// The dial that a session's first reading of the fields fixed, in the fields' own degrees; what a later dial is drawn with
// where an engine asks for the original.
struct QuadranteOriginale {
    double latitudine, declinazione, inclinazione;
};

// What the judgement of a drawing needs of a session: plain values, to be carried to another thread.
struct DatiCertificato {
    Posa posa;
    double xMin = 0, xMax = 0, yMin = 0, yMax = 0;  // the frame as mounted, metres
    double scartoOra = 0;                           // radians of hour angle that the face runs ahead of the site's true time
    bool delFuso = false;                           // the hours are the zone's
    double qiblaLat = 0, qiblaLon = 0;              // radians, North and West positive
    int anno = 2026;                                // of the analemma's Sun
    std::optional<QuadranteOriginale> originale;    // where it is another than the fields' dial
    std::string titolo, luogo, piano, data;         // for the page
};

using Intervallo = std::pair<double, double>;

// Stretches of a line in order, none of them overlapping. Given, gives: the parameter's unit. Source: elementary. Faults: none;
// an empty row has no length.
using Intervalli = std::vector<Intervallo>;
[[nodiscard]] double Lunghezza(const Intervalli &t);
// Sorts and joins what touches.
void UnisciIntervalli(Intervalli &t);
[[nodiscard]] Intervalli Intersezione(const Intervalli &a, const Intervalli &b);

// What for: judging. Given: the dial, a claim and its value. Gives: metres as mounted, x to the right, y upward from the foot.
// Source: planes and cones through the tip (ombra); no formula of a dial. Faults: a line that does not exist has no stretch and
// no sample.
class LineaVera {
public:
    LineaVera(const DatiCertificato &dati, Specie specie, double valore);

    enum class Andamento : std::uint8_t { Nessuna, Retta, Curva, Stilo };
    [[nodiscard]] Andamento forma() const { return forma_; }
    // A line that the dial's maker draws and no shadow follows, as substyle and horizon: nothing of it can be missing or
    // lie in the dark.
    [[nodiscard]] bool costruzione() const { return costruzione_; }
    // Only a piece of its line is meant to be drawn.
    [[nodiscard]] bool frammento() const { return frammento_; }

    // A point against the line.
    struct Esame {
        double distanza;   // metres
        double parametro;  // along the line: metres on a straight one, an angle or a day on a curve
        bool buia;         // no shadow of the claim ever falls there; not told for straight lines
    };
    [[nodiscard]] Esame esamina(const ombra::Punto &p) const;

    // --- straight lines: stretches in metres of the parameter ---------------------------------------------------------
    [[nodiscard]] const Intervalli &lucenti() const { return lucenti_; }    // where a shadow falls at some time of the year
    [[nodiscard]] const Intervalli &visibili() const { return visibili_; }  // the same inside the frame
    // Lit by the opposite Sun: twelve hours later, which bears the same numeral, or the azimuth across.
    [[nodiscard]] const Intervalli &opposti() const { return opposti_; }
    [[nodiscard]] ombra::Punto punto(double parametro) const {
        return {retta_.c * retta_.a - parametro * retta_.b, retta_.c * retta_.b + parametro * retta_.a};
    }

    // --- curves: the line in samples half a millimetre apart inside the frame, by growing parameter ---------------------
    struct Campione {
        double u;
        ombra::Punto p;
        bool visibile;
    };
    [[nodiscard]] const std::vector<Campione> &campioni() const { return campioni_; }

private:
    enum class Legge : std::uint8_t { Lineare, Conica, Temporaria, Asr, Analemma };

    // lato: the half of the sky that is meant; soloLato: the other half is no light for this claim.
    void retta(const ombra::Vettore &normale, const ombra::Vettore *lato, bool soloLato);
    void campiona(double da, double a, int parti);
    void dividi(const Campione &a, const Campione &b, int livello);
    [[nodiscard]] std::optional<ombra::Vettore> direzione(double u) const;
    [[nodiscard]] Campione campione(double u) const;
    [[nodiscard]] ombra::Vettore verso(const ombra::Punto &p) const { return base_ - p.x * destra_ - p.y * alto_; }
    [[nodiscard]] bool dentro(const ombra::Punto &p) const;
    [[nodiscard]] double scartoAnalemma(const ombra::Punto &p, double &u) const;
    void preparaAnalemma();

    const DatiCertificato &dati_;
    ombra::PianoMontato piano_;
    ombra::Vettore base_, destra_, alto_;  // of the direction to the Sun, not of unit length
    double valore_;
    Andamento forma_ = Andamento::Nessuna;
    Legge legge_ = Legge::Lineare;
    bool costruzione_ = false, frammento_ = false;
    ombra::Retta retta_, orizzonte_;
    std::optional<ombra::Vettore> lato_;
    ombra::Vettore asse_;
    double seno_ = 0;  // of a cone about asse_
    Intervalli lucenti_, visibili_, opposti_;
    std::vector<Campione> campioni_;
    struct GiornoAnalemma {
        double t, delta;
        ombra::Punto p;
        int lato;  // 1 in front of the plane, -1 behind, 0 nowhere
    };
    std::vector<GiornoAnalemma> anno_;
    std::vector<ombra::Retta> stilo_;
};

}  // namespace ombrelia
