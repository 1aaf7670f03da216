// Numerals: from the tables of strokes to the sheet.
#include "glyphs/numeri.h"

#include <algorithm>
#include <optional>
#include <string>

#include "core/conteggio.h"
#include "core/testo.h"
#include "glyphs/punto_parete.h"
#include "glyphs/tratti.h"
#include "gnomonica/longitudine.h"

namespace ombrelia {

namespace {

constexpr Colore COLORE_NUMERI = ARGENTO;
constexpr int PESO_ARABI = 2;
// The most a chord of a round part may fall short of the round, in units of the cell.
constexpr double FRECCIA = 0.1;

// The frame of a glyph laid on the plane: units of the cell along the baseline and upward from it.
// Where it is to be seen in a mirror, it lies the other way round about an abscissa.
class Telaio {
public:
    Telaio(Tavolo &tavolo, Valore X, Valore Y, Valore angolo, Valore altezza, std::optional<Valore> specchio)
        : tavolo_(tavolo),
          x_(X),
          y_(Y),
          sen_(sin(angolo)),
          cos_(cos(angolo)),
          scala_(altezza / ALTEZZA_CELLA),
          specchio_(specchio) {}

    void linea(double a1, double b1, double a2, double b2, int peso) const {
        tavolo_.TracciaLinea(x(a1, b1), y(a1, b1), x(a2, b2), y(a2, b2), COLORE_NUMERI, IdNome{}, peso);
    }

private:
    [[nodiscard]] Valore x(double a, double b) const {
        const Valore dritta = x_ + scala_ * (a * sen_ + b * cos_);
        return specchio_ ? 2 * *specchio_ - dritta : dritta;
    }
    [[nodiscard]] Valore y(double a, double b) const { return y_ + scala_ * (b * sen_ - a * cos_); }

    Tavolo &tavolo_;
    Valore x_, y_, sen_, cos_, scala_;
    std::optional<Valore> specchio_;
};

int cordeDi(const Tratto &t) {
    if (t.forma == Forma::Linea) return 1;
    const Valore passo = 2 * ArcCos(1 - FRECCIA / std::max(t.c, t.d));
    return static_cast<int>(std::ceil(std::fabs(Radianti(t.fine - t.inizio).v) / passo.v));
}

// Zone, declination and day of choice as typed, and the longitude from the zone's meridian: of 15 West, and in degrees, where the
// vertical engine keeps radians. Meant; other zones count as they must, and so do true lines.
void lasciaCampi(Variabili &v, const Lettura &letto, bool corretta) {
    v.oraFuso = letto.fuso ? 1 : 0;
    v.decGradi = letto.dec;
    v.meridiano = letto.meridiano;
    v.angOraLong = AltroMeridiano(v) || corretta ? DalMeridiano(letto.lon, v.meridiano) : 15 - Abs(letto.lon);
    v.deltaOpz = letto.delta;
}

// Lower left of the middle line of a number's last cell, where the frame's corner stood.
void lasciaCella(Variabili &v, Valore x, Valore y) {
    v.x1 = x;
    v.y1 = y;
}

void posiziona(Sessione &s, bool romani) {
    const Variabili &v = s.v;
    const Lettura letto(s.in);
    if (!(letto.inc == 0) || v.unita == 0) return;
    lasciaCampi(s.v, letto, s.in.ckCorretta == 1);
    const OmbreVere ombre = s.ombreVere();
    const Reale D = PI * v.deltaOpz / 180;
    PuntoParete p;
    Reale H;
    for (const double V : Conteggio(-90, 90, 15)) {
        H = PI * (V - v.angOraLong * v.oraFuso) / 180;
        p.azimut(v, H, D);
        if (p.quadranteErrato(H)) p.A = p.A + PI;  // always plus, unlike the signs of the zodiac
        if (v.segnoLatPiana == -1 && p.A == 0 && H == 0) p.A = PI;
        p.proietta(v, H, D);
        if (!ombre.sposta(H, D, p.x, p.y)) continue;
        const int ora = 12 + static_cast<int>(V) / 15;
        const int numero = ora > 12 ? ora - 12 : ora;
        if (romani) DisegnaNumeroRomano(s, letto.romani * v.unita, p.x, p.y, PI / 2, numero);
        else DisegnaNumero(s, letto.arabi * v.unita, p.x, p.y, 90, numero);
    }
}

}  // namespace

void DisegnaNumero(Sessione &s, Reale altezza, Valore X, Valore Y, Valore Angolo, int Numero) {
    Reale passoX, passoY, x = s.v.x1, y = s.v.y1;
    const Valore angolo = Angolo * (PI / 180);
    passoX = altezza * LARGHEZZA_CELLA / ALTEZZA_CELLA * sin(angolo);
    passoY = altezza * LARGHEZZA_CELLA / ALTEZZA_CELLA * cos(angolo);
    const std::string cifre = std::to_string(Numero);
    std::optional<Valore> specchio;
    if (s.visteAlloSpecchio()) specchio = Numero <= 9 ? X - passoX / 2 : X;  // the number's middle

    x = X - passoX;
    y = Y + passoY;
    DisegnaCifra(s, altezza, x, y, Angolo, cifre.front() - '0', PESO_ARABI, specchio);
    if (Numero > 9) {
        x = x + passoX;
        y = y - passoY;
        DisegnaCifra(s, altezza, x, y, Angolo, cifre.back() - '0', PESO_ARABI, specchio);
    }
    lasciaCella(s.v, x, y);
}

void DisegnaCifra(Sessione &s, Reale altezza, Valore X, Valore Y, Valore Angolo, int Cifra, int Peso,
                  std::optional<Valore> specchio) {
    const Telaio telaio(s.tavolo, X, Y, Angolo * (PI / 180), altezza, specchio);
    constexpr double mezza = ALTEZZA_CELLA / 2;
    for (const Tratto &t : TrattiCifra(Cifra))
        t.percorri(cordeDi(t),
                   [&](double a1, double b1, double a2, double b2) { telaio.linea(a1, b1 - mezza, a2, b2 - mezza, Peso); });
}

void DisegnaNumeroRomano(Sessione &s, Reale altezza, Valore x, Valore y, Valore rotazione, int ora) {
    const std::string lettere = NumeroRomano(ora);
    double larghezza = 0;
    for (const char c : lettere) larghezza += LetteraRomana(c).larghezza;

    const Telaio telaio(s.tavolo, x, y, rotazione, altezza, s.visteAlloSpecchio() ? std::optional(x) : std::nullopt);
    double a = -larghezza / 2;
    const double b = -ALTEZZA_CELLA / 2;
    for (const char c : lettere) {
        const Lettera lettera = LetteraRomana(c);
        const Vertice *prima = &lettera.contorno.back();
        for (const Vertice &punto : lettera.contorno) {
            telaio.linea(a + prima->a, b + prima->b, a + punto.a, b + punto.b, s.tavolo.Penna());
            prima = &punto;
        }
        a += lettera.larghezza;
    }
}

void PosizionaRomani(Sessione &s) { posiziona(s, s.in.ckRomani == 1); }

void PosizionaArabi(Sessione &s) { posiziona(s, false); }

}  // namespace ombrelia
