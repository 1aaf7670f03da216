// Inks.
#include "paint/tinte.h"

namespace ombrelia::paint {

namespace {

// Brightness as the eye weighs it, 0 to 1.
double chiarezza(const QColor &c) { return 0.2126 * c.redF() + 0.7152 * c.greenF() + 0.0722 * c.blueF(); }

QColor mescola(const QColor &a, const QColor &b, double quantoB) {
    const auto f = [quantoB](double x, double y) { return static_cast<float>(x + (y - x) * quantoB); };
    return QColor::fromRgbF(f(a.redF(), b.redF()), f(a.greenF(), b.greenF()), f(a.blueF(), b.blueF()));
}

}  // namespace

QColor Sfondo(Supporto supporto) { return supporto == Supporto::Schermo ? QColor(0x10, 0x15, 0x1B) : QColor(255, 255, 255); }

QColor Inchiostro(Colore colore, Supporto supporto) {
    constexpr double BUIO = 0.30, LUCE = 0.50;
    const QColor c(colore & 0xFF, (colore >> 8) & 0xFF, (colore >> 16) & 0xFF);
    const double l = chiarezza(c);
    if (supporto == Supporto::Schermo) {
        if (l == 0) return {0xD6, 0xDC, 0xE2};
        return l < BUIO ? mescola(c, Qt::white, (BUIO - l) / (1 - l)) : c;
    }
    if (c == QColor(Qt::white)) return Qt::black;
    return l > LUCE ? mescola(c, Qt::black, 1 - LUCE / l) : c;
}

}  // namespace ombrelia::paint
