// What painting needs of a surface, in device units (1/56700 m at 1:1). Screen, printer and file are all this; a
// recording one serves the tests.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/colori.h"

namespace ombrelia {

class Dispositivo {
public:
    virtual ~Dispositivo() = default;
    virtual void Cls() = 0;
    virtual void Linea(double x1, double y1, double x2, double y2, Colore colore, int spessore) = 0;
    // A box stroke; pieno: filled in its outline colour.
    virtual void Riquadro(double x1, double y1, double x2, double y2, Colore colore, bool pieno) = 0;
    virtual void Punto(double x, double y, Colore colore) = 0;
    // Angles in radians, counter-clockwise from the right as seen; fine 0: a whole ellipse of the aspect (height over
    // width). riempimento negative: none.
    virtual void Cerchio(double x, double y, double raggio, Colore colore, Colore riempimento, double inizio, double fine,
                         double aspetto) = 0;
    // A text with its top left corner at the position.
    virtual void Testo(double x, double y, std::string_view testo, Colore colore) = 0;
    // Lines that follow are dotted, or plain again.
    virtual void Tratteggio(bool) {}
    // Lines that follow have this pattern, 0 for plain: what tells families of lines apart where colours don't. A device that has
    // none draws them plain.
    virtual void Trattini(std::uint8_t) {}
};

// A device that paints nothing: whoever counts, guards or looks on takes only what concerns him.
class DispositivoMuto : public Dispositivo {
public:
    void Cls() override {}
    void Linea(double, double, double, double, Colore, int) override {}
    void Riquadro(double, double, double, double, Colore, bool) override {}
    void Punto(double, double, Colore) override {}
    void Cerchio(double, double, double, Colore, Colore, double, double, double) override {}
    void Testo(double, double, std::string_view, Colore) override {}
};

}  // namespace ombrelia
