// A drawing made ready for a machine: paths in the order of cutting, and what was done to get them. Millimetres, origin
// at the foot of the gnomon, x to the right, y upward, as seen on the screen with its mirrors.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "officina/genere.h"
#include "plot/tavolo.h"

namespace ombrelia::officina {

// Plane vectors. Given, gives: millimetres, products square millimetres; Croce is positive where b lies to the left of a. Source:
// plane geometry. Faults: none.
struct P2 {
    double x = 0, y = 0;
    bool operator==(const P2 &) const = default;
};
inline P2 operator+(P2 a, P2 b) { return {a.x + b.x, a.y + b.y}; }
inline P2 operator-(P2 a, P2 b) { return {a.x - b.x, a.y - b.y}; }
inline P2 operator*(double k, P2 a) { return {k * a.x, k * a.y}; }
inline double Scalare(P2 a, P2 b) { return a.x * b.x + a.y * b.y; }
inline double Croce(P2 a, P2 b) { return a.x * b.y - a.y * b.x; }
double Lungo(P2 a);
inline double Distanza(P2 a, P2 b) { return Lungo(a - b); }

struct Riquadro {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;  // low and high
    [[nodiscard]] bool contiene(P2 p) const { return x0 <= p.x && p.x <= x1 && y0 <= p.y && p.y <= y1; }
    void allarga(P2 p);
};

// One stroke of the tool: a path of two points or more, a circle or arc, a single point, or a text. Given, gives: millimetres, as
// said. Source: plane geometry. Faults: none.
struct Cammino {
    enum class Tipo : std::uint8_t { Linea, Cerchio, Arco, Punto, Testo };
    Genere genere = Genere::Altro;
    Tipo tipo = Tipo::Linea;
    bool chiuso = false;              // of a line: the last point is joined to the first
    int linea = -1;                   // number of the drawing's line it comes from; paths of one line share it
    Specie specie = Specie::Nessuna;  // what that line claims to be, and its value
    double valore = 0;
    std::vector<P2> punti{};      // of a circle or arc its centre, of a point or text its place (left end of the base line)
    double raggio = 0;            // of a circle or arc; height of a text's capitals
    double inizio = 0, fine = 0;  // of an arc, radians from the right, counter-clockwise
    std::string testo{};

    [[nodiscard]] P2 capo() const;  // where the tool goes down
    [[nodiscard]] P2 coda() const;  // and where it comes up
    [[nodiscard]] double lunghezza() const;
    void rovescia();
};

enum class Ritaglio : std::uint8_t { Cornice, Foglio };
enum class Testi : std::uint8_t { Tratti, Testo, Niente };

struct ComePreparare {
    double tolleranza = 0.01;  // mm, above 0
    Ritaglio ritaglio = Ritaglio::Cornice;
    Testi testi = Testi::Niente;
    double raggioPunti = 0;  // mm: single points become circles; 0 leaves them points
};

// A line that lies on another of a different name, which is cut for both; how much of it, mm, to the sixtieth of its length.
struct Coincidenza {
    Specie specie;
    double valore;
    Specie con;
    double valoreCon;
    double lunga;
};

// What was done. Lengths in mm.
struct Resoconto {
    std::size_t corde = 0, puntini = 0, cerchi = 0, scritte = 0;  // of the list
    std::size_t cammini = 0, punti = 0, vertici = 0;              // of the drawing made ready
    std::size_t curve = 0, puntiUniti = 0;                        // paths made of points, and of how many
    double lunga = 0;                                             // of the paths
    double fuori = 0;                                             // outside, cut off
    std::size_t puntiFuori = 0, figureFuori = 0, scritteFuori = 0;
    double doppia = 0;  // drawn on something already there, left out
    std::size_t puntiDoppi = 0;
    std::vector<Coincidenza> coincidono{};
    double scarto = 0;                     // largest departure of a vertex of the list from the paths
    double persa = 0;                      // inside, but farther from every path than can be: 0 unless this room is at fault
    double viaggio = 0, viaggioPrima = 0;  // of the head between cuts, in the order here and in the list's
};

struct Disegno {
    std::vector<Cammino> cammini;  // in the order of cutting
    Riquadro campo;                // frame or sheet that it was clipped to
    Riquadro estensione;           // of what is drawn
    Resoconto resoconto;
    bool senzaCornice = false;  // asked for the frame, and there was none: the sheet served
};

// errore tells why there is no drawing: nothing drawn, nothing inside, strokes without their font.
[[nodiscard]] Disegno Prepara(const Tavolo &tavolo, const ComePreparare &opzioni, std::string &errore);

// What was done, in sentences for people.
[[nodiscard]] std::string Racconto(const Disegno &d, const ComePreparare &opzioni);

}  // namespace ombrelia::officina
