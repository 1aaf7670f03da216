// The painting device: lines that are simplified must stay where they are, and what is drawn must be seen.
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <numbers>

#include "paint/dispositivo_qt.h"

namespace ombrelia {
namespace {

using paint::Supporto;

constexpr int LATO = 400;

// A screen of its own, one dot a device unit.
struct Schermo {
    QImage immagine{LATO, LATO, QImage::Format_RGB32};
    QPainter pittore;
    paint::PosaDipinta posa;

    Schermo() {
        immagine.fill(paint::Sfondo(Supporto::Schermo));
        pittore.begin(&immagine);
        pittore.setRenderHint(QPainter::Antialiasing);
        posa.vista = QRectF(-2, -2, LATO + 4, LATO + 4);
    }
    // Brightest dot within one of a place.
    [[nodiscard]] int luce(double x, double y) const {
        int l = 0;
        for (int i = -1; i <= 1; ++i)
            for (int j = -1; j <= 1; ++j) {
                const QPoint p(static_cast<int>(x) + i, static_cast<int>(y) + j);
                if (immagine.rect().contains(p)) l = std::max(l, immagine.pixelColor(p).value());
            }
        return l;
    }
};

constexpr int ACCESO = 100;

TEST(Dispositivo, SimplifiedLinesStay) {
    using Linea = std::vector<QPointF>;
    std::vector<Linea> casi(5);
    constexpr int PASSI = 3000;
    for (int i = 0; i <= PASSI; ++i) {
        const double f = i / double(PASSI), t = f * 2 * std::numbers::pi;
        casi[0].push_back({200 + 150 * std::cos(t), 200 + 150 * std::sin(t)});  // a circle of tiny chords
        casi[1].push_back({200 + 8 * std::cos(9 * t), 20 + 360 * f});           // a tight wave
        casi[2].push_back({20 + 360 * std::fabs(2 * f - 1), 60.5});             // to and fro on itself
        casi[3].push_back({20 + 360 * f, 200 + 150 * f * f});                   // bends slowly
    }
    casi[4] = {{50, 50}, {350, 50.2}, {50.1, 50}, {50.2, 300}};  // far out and back to where it began
    for (const Linea &punti : casi) {
        Schermo s;
        paint::DispositivoQt d(s.pittore, Supporto::Schermo, s.posa);
        for (std::size_t i = 1; i < punti.size(); ++i) {
            const bool indietro = &punti == &casi[3];  // the newer end first
            const QPointF a = punti[indietro ? i : i - 1], b = punti[indietro ? i - 1 : i];
            d.Linea(a.x(), a.y(), b.x(), b.y(), QB(14), 1);
        }
        d.vuota();
        std::size_t spenti = 0;
        for (const QPointF &p : punti) spenti += s.luce(p.x(), p.y()) < ACCESO;
        EXPECT_EQ(spenti, 0U) << "case " << &punti - casi.data();
    }
}

TEST(Dispositivo, AlternateCurvesAndDotsAreAllThere) {
    Schermo s;
    paint::DispositivoQt d(s.pittore, Supporto::Schermo, s.posa);
    constexpr int CURVE = 9;  // more than are kept in hand
    for (int x = 10; x < 390; ++x)
        for (int k = 0; k < CURVE; ++k) {
            d.Linea(x, 20 + 40 * k, x + 1, 20 + 40 * k, QB(9 + k % 3), 1);
            d.Punto(x, 40 + 40 * k, QB(12));
        }
    d.vuota();
    for (int x = 12; x < 388; x += 7)
        for (int k = 0; k < CURVE; ++k) {
            EXPECT_GE(s.luce(x, 20 + 40 * k), ACCESO) << x << ' ' << k;
            EXPECT_GE(s.luce(x, 40 + 40 * k), ACCESO) << x << ' ' << k;
        }
}

TEST(Dispositivo, EveryColourIsSeenOnBothGrounds) {
    for (int n = 0; n < 16; ++n) {
        const auto distanza = [](const QColor &a, const QColor &b) {
            return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
        };
        for (const Supporto s : {Supporto::Schermo, Supporto::Carta})
            EXPECT_GT(distanza(paint::Inchiostro(QB(n), s), paint::Sfondo(s)), 140) << n;
    }
    EXPECT_EQ(paint::Inchiostro(QB(15), Supporto::Carta), QColor(Qt::black));
    EXPECT_EQ(paint::Inchiostro(QB(0), Supporto::Carta), QColor(Qt::black));
}

// Along two lines drawn by turns in short chords: strokes of 3 mm and gaps of 1.2 on the first, the second whole.
TEST(Dispositivo, PatternsRunAlongALine) {
    Schermo s;
    s.posa.millimetro = 10;
    paint::DispositivoQt d(s.pittore, Supporto::Schermo, s.posa);
    for (int x = 10; x < 388; x += 3)
        for (const int k : {1, 0}) {
            d.Trattini(k == 1 ? 1 : 0);
            d.Linea(x, 100 + 50 * k, x + 3, 100 + 50 * k, QB(15), 1);
        }
    d.vuota();
    for (int k = 0; k < 2; ++k) {
        int tratti = 0, accesi = 0;
        for (int x = 11, prima = 0; x < 388; ++x) {
            const int ora = s.luce(x, 100 + 50 * k) >= ACCESO;
            tratti += ora > prima;
            accesi += ora;
            prima = ora;
        }
        EXPECT_EQ(tratti, k == 1 ? 9 : 1);
        EXPECT_GE(accesi, k == 1 ? 270 : 377);
        EXPECT_LT(accesi, k == 1 ? 310 : 378);
    }
}

TEST(Dispositivo, ATextHasItsOwnColour) {
    for (const auto &[colore, pieno] : {std::pair{QB(12), &QColor::red}, {QB(10), &QColor::green}}) {
        Schermo s;
        paint::DispositivoQt d(s.pittore, Supporto::Schermo, s.posa);
        d.Testo(50, 50, "QIBLA", colore);
        d.vuota();
        int accesi = 0;
        for (int y = 45; y < 80; ++y)
            for (int x = 45; x < 150; ++x)
                accesi += (s.immagine.pixelColor(x, y).*pieno)() > 200 && s.immagine.pixelColor(x, y).blue() < 120;
        EXPECT_GT(accesi, 20) << colore;
    }
}

TEST(Dispositivo, ArcsAnticlockwise) {
    Schermo s;
    paint::DispositivoQt d(s.pittore, Supporto::Schermo, s.posa);
    d.Cerchio(200, 200, 100, QB(10), -1, 0.2, 1.4, 1);
    d.Cerchio(200, 200, 150, QB(10), -1, 0, 0, 0.5);  // a whole flat ellipse
    d.Cerchio(60, 340, 30, QB(12), QB(12), 0, 0, 1);
    d.vuota();
    EXPECT_GE(s.luce(200 + 100 * std::cos(0.8), 200 - 100 * std::sin(0.8)), ACCESO);
    EXPECT_LT(s.luce(200 + 100 * std::cos(-0.9), 200 + 100 * std::sin(0.9)), ACCESO);
    EXPECT_GE(s.luce(350, 200), ACCESO);
    EXPECT_GE(s.luce(200, 125), ACCESO);
    EXPECT_LT(s.luce(200, 50), ACCESO);
    EXPECT_GE(s.luce(60, 340), ACCESO);
}

}  // namespace
}  // namespace ombrelia
