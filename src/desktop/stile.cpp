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

constexpr auto FOGLIO = R"(
QGroupBox { border: 1px solid #d5d9de; border-radius: 6px; margin-top: 19px; background: #fcfcfb; font-weight: 600; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 3px; padding: 0 2px; color: #7a5a10; }
QGroupBox QWidget { font-weight: normal; }
QLineEdit { padding: 2px 5px; border: 1px solid #c3c9d0; border-radius: 4px; background: #ffffff; }
QLineEdit:focus { border: 1px solid #c08a1e; }
QLineEdit:disabled { background: #eceeef; color: #8a9097; }
QPushButton { padding: 4px 10px; border: 1px solid #c3c9d0; border-radius: 4px; background: #ffffff; }
QPushButton:hover { border-color: #c08a1e; }
QPushButton:pressed { background: #f3ead6; }
QPushButton:focus { border-color: #c08a1e; }
QPushButton:disabled { color: #a5abb1; background: #f1f2f3; }
QPushButton[principale="true"] { background: #b9801a; border-color: #99690f; color: #ffffff; font-weight: 600; padding: 4px 18px; }
QPushButton[principale="true"]:hover { background: #c98f27; }
QPushButton[principale="true"]:pressed { background: #99690f; }
QToolTip { color: #202428; background: #fff8e6; border: 1px solid #d9c48d; padding: 3px; }
QToolBar { border: 0; border-bottom: 1px solid #d5d9de; spacing: 6px; padding: 5px 8px; background: #f4f5f5; }
QDockWidget { font-weight: 600; }
QDockWidget::title { background: #e9ebec; padding: 5px 9px; }
#picHead, #piede { background: #f4f5f5; }
#picHead QPushButton { padding: 3px 7px; }
#PicAssi, #picDimensioni, #picPrint { margin-top: 0; padding-top: 20px; border: 1px solid #9aa3ad; background: #fcfcfb; }
#PicAssi::title, #picDimensioni::title, #picPrint::title { subcontrol-origin: border; left: 9px; top: 5px; }
#avvisoCornice { color: #9a3b12; }
)";

}  // namespace

void VestiApplicazione(QApplication &a) {
    a.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette p;
    p.setColor(QPalette::Window, QColor(0xF4, 0xF5, 0xF5));
    p.setColor(QPalette::WindowText, QColor(0x22, 0x27, 0x2C));
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, QColor(0x22, 0x27, 0x2C));
    p.setColor(QPalette::Button, QColor(0xF0, 0xF1, 0xF2));
    p.setColor(QPalette::ButtonText, QColor(0x22, 0x27, 0x2C));
    p.setColor(QPalette::Highlight, QColor(0xB9, 0x80, 0x1A));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(0x8A, 0x5A, 0x00));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) p.setColor(QPalette::Disabled, ruolo, QColor(0xA0, 0xA6, 0xAC));
    a.setPalette(p);
    a.setStyleSheet(QString::fromLatin1(FOGLIO));
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
