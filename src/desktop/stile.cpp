// The looks.
#include "desktop/stile.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <cmath>
#include <numbers>

namespace ombrelia::desktop {

namespace {

// Colours of a theme by name; the sheet of style names them with a $.
struct Tinte {
    const char *finestra, *testo, *base, *pannello, *bordo, *filo, *spento, *fondoSpento, *titolo, *accento, *accentoScuro,
        *suAccento, *premuto, *barra, *testata, *avviso, *fondoAvviso, *legame;
};
constexpr Tinte CHIARO{"#f4f5f5", "#22272c", "#ffffff", "#fcfcfb", "#8b939b", "#d5d9de", "#6f767d", "#eceeef", "#6b4e0b",
                       "#8a5a00", "#6f4800", "#ffffff", "#f3ead6", "#f4f5f5", "#e9ebec", "#7c2d0c", "#fff6df", "#7a4f00"};
constexpr Tinte SCURO{"#20262d", "#e4e8ec", "#171c22", "#262d35", "#7b858f", "#3a434c", "#8f98a1", "#2a3038", "#e3b85a",
                      "#e0a63a", "#f0bd5c", "#1a1408", "#3b3424", "#20262d", "#2a3139", "#ffc69e", "#3a3220", "#f0bd5c"};

constexpr auto FOGLIO = R"(
QWidget#piega { background: transparent; }
QToolButton#testaPiega { border: 0; border-radius: 4px; padding: 4px 4px; font-weight: 600; color: $titolo; background: transparent; text-align: left; }
QToolButton#testaPiega:hover { background: $premuto; }
QToolButton#testaPiega:focus { border: 1px solid $accento; }
QFrame#corpoPiega { border: 1px solid $filo; border-radius: 6px; background: $pannello; }
QGroupBox { border: 1px solid $filo; border-radius: 6px; margin-top: 19px; background: $pannello; font-weight: 600; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 3px; padding: 0 2px; color: $titolo; }
QGroupBox QWidget { font-weight: normal; }
QLineEdit { padding: 2px 5px; border: 1px solid $bordo; border-radius: 4px; background: $base; color: $testo; selection-background-color: $accento; selection-color: $suAccento; }
QLineEdit:focus { border: 2px solid $accento; padding: 1px 4px; }
QLineEdit[dubbio="true"] { border: 2px solid $avviso; padding: 1px 4px; }
QLabel#nota { color: $testo; }
QLabel#nota[dubbio="true"], QLabel#dubbio { color: $avviso; }
QLineEdit[fuori="true"] { border: 2px solid #c0261c; padding: 1px 4px; }
QLineEdit:disabled { background: $fondoSpento; color: $spento; border-color: $filo; }
QPushButton { padding: 4px 10px; border: 1px solid $bordo; border-radius: 4px; background: $base; color: $testo; }
QPushButton:hover { border-color: $accento; }
QPushButton:pressed { background: $premuto; }
QPushButton:focus { border: 2px solid $accento; padding: 3px 9px; }
QPushButton:disabled { color: $spento; background: $fondoSpento; border-color: $filo; }
QPushButton[principale="true"] { background: $accento; border-color: $accentoScuro; color: $suAccento; font-weight: 600; padding: 4px 18px; }
QPushButton[principale="true"]:hover { background: $accentoScuro; }
QPushButton[principale="true"]:focus { border: 2px solid $testo; padding: 3px 17px; }
QCheckBox:focus, QRadioButton:focus { color: $accento; }
QCheckBox::indicator:unchecked, QRadioButton::indicator:unchecked { border: 1px solid $bordo; background: $base; }
QCheckBox::indicator:unchecked { width: 12px; height: 12px; border-radius: 3px; }
QRadioButton::indicator:unchecked { width: 12px; height: 12px; border-radius: 7px; }
QToolTip { color: $testo; background: $fondoAvviso; border: 1px solid $bordo; padding: 3px; }
QToolBar { border: 0; border-bottom: 1px solid $filo; spacing: 5px; padding: 4px 8px; background: $barra; }
QDockWidget { font-weight: 600; }
QDockWidget::title { background: $testata; padding: 5px 9px; }
#passi { background: $testata; border-bottom: 1px solid $filo; }
#passi QToolButton { border: 1px solid transparent; border-radius: 4px; padding: 3px 4px; color: $testo; font-weight: 600; }
#passi QToolButton:hover { background: $premuto; }
#passi QToolButton:focus { border: 1px solid $accento; }
#picHead, #piede { background: $barra; }
#picHead QPushButton { padding: 3px 7px; }
#picHead QPushButton:focus { padding: 2px 6px; }
#PicAssi, #picDimensioni, #picPrint { margin-top: 0; padding-top: 20px; border: 1px solid $bordo; background: $pannello; }
#PicAssi::title, #picDimensioni::title, #picPrint::title { subcontrol-origin: border; left: 9px; top: 5px; }
#avvisoCornice { color: $avviso; background: $fondoAvviso; border-top: 1px solid $filo; }
)";

bool scuroInVigore = false;

QString foglioDi(const Tinte &t) {
    QString f = QString::fromLatin1(FOGLIO);
    // The longer name of two goes first.
    for (const auto &[nome, tinta] : {std::pair{"$accentoScuro", t.accentoScuro},
                                      {"$accento", t.accento},
                                      {"$suAccento", t.suAccento},
                                      {"$fondoSpento", t.fondoSpento},
                                      {"$fondoAvviso", t.fondoAvviso},
                                      {"$finestra", t.finestra},
                                      {"$testata", t.testata},
                                      {"$testo", t.testo},
                                      {"$base", t.base},
                                      {"$pannello", t.pannello},
                                      {"$bordo", t.bordo},
                                      {"$filo", t.filo},
                                      {"$spento", t.spento},
                                      {"$titolo", t.titolo},
                                      {"$premuto", t.premuto},
                                      {"$barra", t.barra},
                                      {"$avviso", t.avviso}})
        f.replace(QLatin1String(nome), QLatin1String(tinta));
    return f;
}

}  // namespace

bool TemaScuro() { return scuroInVigore; }

void VestiApplicazione(QApplication &a, Tema tema) {
    static const bool sistemaScuro = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;  // before ours
    scuroInVigore = tema == Tema::Scuro || (tema == Tema::Sistema && sistemaScuro);
    const Tinte &t = scuroInVigore ? SCURO : CHIARO;
    const auto c = [](const char *tinta) { return QColor(QLatin1String(tinta)); };
    a.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette p;
    for (const auto &[ruolo, tinta] : {std::pair{QPalette::Window, t.finestra},
                                       {QPalette::WindowText, t.testo},
                                       {QPalette::Base, t.base},
                                       {QPalette::AlternateBase, t.pannello},
                                       {QPalette::Text, t.testo},
                                       {QPalette::Button, t.testata},
                                       {QPalette::ButtonText, t.testo},
                                       {QPalette::BrightText, t.suAccento},
                                       {QPalette::Highlight, t.accento},
                                       {QPalette::HighlightedText, t.suAccento},
                                       {QPalette::Link, t.legame},
                                       {QPalette::LinkVisited, t.legame},
                                       {QPalette::ToolTipBase, t.fondoAvviso},
                                       {QPalette::ToolTipText, t.testo},
                                       {QPalette::PlaceholderText, t.spento}})
        p.setColor(ruolo, c(tinta));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, ruolo, c(t.spento));
    a.setPalette(p);
    a.setStyleSheet(foglioDi(t));
    a.setWindowIcon(Icona());
}

// A wall dial at a glance: plate, hour lines from the style's foot, the style and its shadow. The same drawing stands in
// data/ombrelia.svg for the desktop's menus.
QIcon Icona() {
    constexpr int LATO = 256;
    QPixmap q(LATO, LATO);
    q.fill(Qt::transparent);
    QPainter p(&q);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x16, 0x1D, 0x26));
    p.drawRoundedRect(QRectF(8, 8, 240, 240), 44, 44);
    const QPointF centro(128, 62);
    p.setPen(QPen(QColor(0x7C, 0x8B, 0x9B), 6, Qt::SolidLine, Qt::RoundCap));
    for (int i = -3; i <= 3; ++i) {
        const double t = i * 22 * std::numbers::pi / 180, lungo = 140 - 12 * std::abs(i);
        p.drawLine(centro + 40 * QPointF(std::sin(t), std::cos(t)), centro + lungo * QPointF(std::sin(t), std::cos(t)));
    }
    p.setPen(QPen(QColor(0x3B, 0x6E, 0xA8), 9, Qt::SolidLine, Qt::RoundCap));
    p.drawArc(QRectF(28, 20, 200, 160), 16 * 205, 16 * 130);
    p.setPen(QPen(QColor(0xF2, 0xB5, 0x3A), 12, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(centro, QPointF(176, 196));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xF2, 0xB5, 0x3A));
    p.drawEllipse(centro, 18, 18);
    p.end();
    return QIcon(q);
}

}  // namespace ombrelia::desktop
