// The one device on a QPainter: screen, printer, PDF and pictures are all this class.
#pragma once

#include <QPainter>
#include <QPolygonF>
#include <QVector>
#include <array>
#include <vector>

#include "paint/tinte.h"
#include "plot/dispositivo.h"
#include "plot/tavolo.h"

namespace ombrelia::paint {

// How device units lie on a painter, in the painter's own units.
struct PosaDipinta {
    double fattore = 1;       // painter units of a device unit
    double x0 = 0, y0 = 0;    // where the sheet's top left corner lies
    double penna = 1;         // stroke of width 1
    double punto = 1.5;       // diameter of a point
    double corpo = 12;        // height of the letters
    double millimetro = 4;    // of the patterns of lines
    double tolleranza = 0.3;  // how far a line may be simplified
    QRectF vista{};           // what lies outside is not painted; empty: everything is
};

class DispositivoQt final : public Dispositivo {
public:
    // The painter is open and outlives the device; its transform is not touched.
    DispositivoQt(QPainter &pittore, Supporto supporto, const PosaDipinta &posa);
    ~DispositivoQt() override { vuota(); }
    DispositivoQt(const DispositivoQt &) = delete;
    DispositivoQt &operator=(const DispositivoQt &) = delete;

    // The window wipes its own sheet.
    void Cls() override { vuota(); }
    void Linea(double x1, double y1, double x2, double y2, Colore colore, int spessore) override;
    // An outline whether filled or not: boxes are stroked with the surface's fill style, which is transparent; a filled
    // frame would cover the dial.
    void Riquadro(double x1, double y1, double x2, double y2, Colore colore, bool pieno) override;
    void Punto(double x, double y, Colore colore) override;
    void Cerchio(double x, double y, double raggio, Colore colore, Colore riempimento, double inizio, double fine,
                 double aspetto) override;
    void Testo(double x, double y, std::string_view testo, Colore colore) override;
    void Tratteggio(bool si) override;
    void Trattini(std::uint8_t quali) override { trattini_ = quali; }

    // Puts out what is still held back.
    void vuota();

private:
    [[nodiscard]] QPointF porta(double x, double y) const { return {x * posa_.fattore + posa_.x0, y * posa_.fattore + posa_.y0}; }
    [[nodiscard]] bool fuori(const QPointF &a, const QPointF &b) const;
    // A line in hand: kept corners, the end that was held back, and what it is drawn with.
    struct LineaInMano {
        QPolygonF corsa;
        QPointF fine;
        double dirX = 0, dirY = 0, apertura = 0;  // of the run since the last kept corner; 0: none begun
        double lunga = 0;                         // how far it got
        Colore colore = 0;
        int spessore = 1;
        std::uint8_t trattini = 0;
        bool sola = false;  // one chord so far
    };
    void aggiungi(LineaInMano &c, const QPointF &p) const;
    void vuotaCatena(LineaInMano &c);
    void vuotaTratti();
    void vuotaPunti();
    // Whether a dot of the screen shows this colour's point already; it does from now on.
    [[nodiscard]] bool segnata(const QPointF &p, Colore colore);
    [[nodiscard]] QColor ink(Colore colore);
    [[nodiscard]] QPen matita(Colore colore, double larghezza, std::uint8_t trattini = 0);

    QPainter &pittore_;
    Supporto supporto_;
    PosaDipinta posa_;
    bool tratteggio_ = false;
    std::uint8_t trattini_ = 0;

    // Engines trace a few curves by turns. Lines and points in hand cross only where nobody can tell which came first.
    std::array<LineaInMano, 6> catene_;
    std::size_t turno_ = 0;  // the next to be put out when none is free
    // Lines that no other went on with, by pen.
    struct LineeSciolte {
        Colore colore;
        int spessore;
        std::uint8_t trattini;
        QVector<QLineF> linee;
    };
    std::vector<LineeSciolte> tratti_;
    QPolygonF punti_;
    Colore colorePunti_ = 0;
    std::vector<Colore> celle_;  // of the screen: the point painted last in each dot
    std::vector<std::pair<Colore, QColor>> inchiostri_;
};

// Paints a drawing from its list, without a wait cursor. The device the sheet had stays its own.
void Dipingi(Tavolo &t, Dispositivo &d);

}  // namespace ombrelia::paint
