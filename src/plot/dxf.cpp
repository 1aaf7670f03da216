// The DXF writer. Entities are in millimetres; the extents of the header are in metres and start at x 20, which is meant.
#include "plot/dxf.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "core/angoli.h"
#include "core/testo.h"
#include "plot/percorso.h"

namespace ombrelia {

namespace {

using namespace std::string_view_literals;

constexpr double MILLIMETRI = 1000;

// Group codes and other whole numbers stand as a line printer prints them: a place for the sign, a blank behind.
void aggiungiStampato(std::string &t, int n) {
    if (n >= 0) t += ' ';
    t += std::to_string(n);
    t += " \r\n"sv;
}

class ScrittoreDxf {
public:
    ScrittoreDxf(const Lista &l, const Specchio &s)
        : lista(l), specchio(s), F(s.FattoreX), G(s.FattoreY), strati(l.nomi.quanti()) {
        testo.reserve(512 + l.Linee.size() * 176 + l.Punti.size() * 96 + l.Figure.size() * 192);
    }

    void intestazione(double L, double H) {
        testo += " 999 \r\nDXF creato da Tavolo Varno production\r\n 0 \r\nSECTION\r\n 2 \r\nHEADER\r\n 9 \r\n$EXTMAX\r\n"sv;
        coordinata(" 10 \r\n"sv, L);
        coordinata(" 20 \r\n"sv, H);
        testo += " 30 \r\n0\r\n 9 \r\n$EXTMIN\r\n 10 \r\n20\r\n 20 \r\n0\r\n 30 \r\n0\r\n 0 \r\nENDSEC\r\n"sv;
        testo += " 0 \r\nSECTION\r\n 2 \r\nENTITIES\r\n"sv;
    }

    void punto(const RecPunto &r) { DXF_Point(r.X, r.Y, r.Id, r.colore); }
    void linea(const RecLinea &r) { DXF_Line(F * r.X1, G * r.Y1, F * r.X2, G * r.Y2, r.Id, r.colore); }
    // The format counts on its own: a polyline moves the counter to its end, over whatever lies between.
    void figura(std::size_t quale) {
        const char tipo = lista.Figure[quale].Tipo;
        if (tipo == 'V') return polilinea(contatore);
        if (contatore >= lista.Figure.size() || lista.Figure[contatore].Tipo != tipo) return;
        const RecFigura &r = lista.Figure[contatore++];
        if (tipo == 'B') DXF_Box(r.X1, r.Y1, r.X2, r.Y2, r.Id, r.colore);
        else DXF_Circle(r);
    }

    void chiusura() { testo += " 0 \r\nENDSEC\r\n 0 \r\nEOF\r\n"sv; }

    std::string testo;

private:
    void coordinata(std::string_view gruppo, double valore) {
        testo += gruppo;
        AggiungiNumero(testo, valore);
        testo += "\r\n"sv;
    }

    // Layer names are converted once each. A line end in a name would break the file.
    const std::string &strato(IdNome id) {
        std::string &s = strati[id];
        if (s.empty()) {
            AggiungiCp1252(s, lista.nomi.testo(id));
            std::replace_if(
                s.begin(), s.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
            s += "\r\n"sv;
        }
        return s;
    }

    void inizio(std::string_view entita, IdNome id) {
        testo += entita;
        testo += strato(id);
    }

    void inizio(std::string_view entita, IdNome id, Colore rgb) {
        inizio(entita, id);
        testo += " 62 \r\n"sv;
        const int colore = DXF_QbColorConverter(rgb);
        aggiungiStampato(testo, colore > 255 ? 1 : colore);
    }

    void DXF_Point(double x, double y, IdNome id, Colore colore) {
        inizio(" 0 \r\nPOINT\r\n 8 \r\n"sv, id, colore);
        coordinata(" 10 \r\n"sv, x * F * MILLIMETRI);
        coordinata(" 20 \r\n"sv, y * G * MILLIMETRI);
        testo += " 30 \r\n0\r\n"sv;
    }

    // Coordinates already mirrored.
    void DXF_Line(double x1, double y1, double x2, double y2, IdNome id, Colore colore) {
        inizio(" 0 \r\nLINE\r\n 8 \r\n"sv, id, colore);
        const auto prima = capi;
        capi[0] = capo(" 10 \r\n"sv, x1 * MILLIMETRI, prima[2], prima[0]);
        capi[1] = capo(" 20 \r\n"sv, y1 * MILLIMETRI, prima[3], prima[1]);
        capi[2] = capo(" 30 \r\n0\r\n 11 \r\n"sv, x2 * MILLIMETRI, prima[0], prima[2]);
        capi[3] = capo(" 21 \r\n"sv, y2 * MILLIMETRI, prima[1], prima[3]);
        testo += " 31 \r\n0\r\n"sv;
    }

    // A number of the line before: chords follow each other, so most ends are in the text already.
    struct Capo {
        double valore = 0;
        std::size_t da = 0, lungo = 0;
    };

    Capo capo(std::string_view gruppo, double valore, const Capo &forse, const Capo &oppure) {
        testo += gruppo;
        const Capo &noto = forse.valore == valore ? forse : oppure;
        Capo scritto{valore, testo.size(), noto.lungo};
        if (noto.valore == valore && noto.lungo != 0) {
            testo.append(testo, noto.da, noto.lungo);
        } else {
            AggiungiNumero(testo, valore);
            testo += "\r\n"sv;
            scritto.lungo = testo.size() - scritto.da;
        }
        return scritto;
    }

    // The sides of a mirrored box lie apart, each with signs of its own. It is meant.
    void DXF_Box(double x1, double y1, double x2, double y2, IdNome id, Colore colore) {
        DXF_Line(x1, G * y1, x2, G * y1, id, colore);
        DXF_Line(x2, y1, x2, y2, id, colore);
        DXF_Line(F * x2, y2, F * x1, y2, id, colore);
        DXF_Line(F * x1, G * y2, F * x1, G * y1, id, colore);
    }

    // A whole circle when the end is 0, whatever the start. Aspect and fill are not carried.
    void DXF_Circle(const RecFigura &r) {
        const bool intero = r.B == 0;
        inizio(intero ? " 0 \r\nCIRCLE\r\n 8 \r\n"sv : " 0 \r\nARC\r\n 8 \r\n"sv, r.Id, r.colore);
        coordinata(" 10 \r\n"sv, r.X1 * F * MILLIMETRI);
        coordinata(" 20 \r\n"sv, r.Y1 * G * MILLIMETRI);
        coordinata(" 30 \r\n0\r\n 40 \r\n"sv, r.X2 * MILLIMETRI);
        if (intero) return;
        double da = r.A, a = r.B;
        specchio.arco(da, a);
        coordinata(" 50 \r\n"sv, 180 * da / PI);
        coordinata(" 51 \r\n"sv, 180 * a / PI);
    }

    // One polyline of the order. A name shared by two polylines writes the later one twice: the first takes the counter
    // behind it, and the second, finding no entry of its own there, still has the name read last.
    void polilinea(std::size_t &contatore) {
        const auto &f = lista.Figure;
        const auto corrente = [&](Voce voce) {
            return contatore < f.size() && f[contatore].Tipo == 'V' && f[contatore].voce == voce;
        };
        if (corrente(Voce::START)) ultima = f[contatore].Id;
        if (!ultima) return;
        contatore = std::max(contatore, DXF_PolyLine_Generate(*ultima) + 1);
    }

    std::size_t DXF_PolyLine_Generate(IdNome id) {
        const auto &f = lista.Figure;
        const auto start = lista.TrovaStart(id);
        if (!start) return 0;
        inizio(" 0 \r\nPOLYLINE\r\n 8 \r\n"sv, id, f[*start].colore);
        testo += " 70 \r\n 0 \r\n 10 \r\n0\r\n 20 \r\n0\r\n 30 \r\n0\r\n"sv;
        std::size_t i = *start + 1;
        for (; i < f.size(); ++i) {
            if (f[i].Tipo != 'V' || f[i].Id != id) continue;
            if (f[i].voce == Voce::END) break;
            inizio(" 0 \r\nVERTEX\r\n 8 \r\n"sv, id);
            coordinata(" 10 \r\n"sv, f[i].X1 * F * MILLIMETRI);
            coordinata(" 20 \r\n"sv, f[i].Y1 * G * MILLIMETRI);
        }
        // A polyline that was never ended is closed at the array's end.
        inizio(" 0 \r\nSEQEND\r\n 8 \r\n"sv, id);
        return i;
    }

    const Lista &lista;
    const Specchio specchio;
    const double F, G;          // its factors
    std::size_t contatore = 0;  // in Figure
    std::vector<std::string> strati;
    std::optional<IdNome> ultima;
    std::array<Capo, 4> capi{};
};

}  // namespace

int DXF_QbColorConverter(Colore colore) {
    switch (colore) {
        case 0x000080:
        case 0x0000FF:
            return 1;
        case 0x008080:
        case 0x00FFFF:
            return 2;
        case 0x008000:
            return 3;
        case 0x808000:
        case 0xFFFF00:
            return 4;
        case 0x800000:
        case 0xFF0000:
            return 5;
        case 0x800080:
        case 0xFF00FF:
            return 6;
        // Bright green is 7, not 3; the third is no RGB colour. Both are meant.
        case 0x00FF00:
        case 0xC0C0C0:
        case 0x0A0013BF:
            return 7;
        case 0x808080:
            return 8;
        default:
            return colore;
    }
}

std::string DXF_Generate(const Lista &lista, double QuadranteL, double QuadranteH, const Specchio &specchio) {
    ScrittoreDxf s(lista, specchio);
    s.intestazione(QuadranteL, QuadranteH);
    Percorri(lista, s);
    s.chiusura();
    return std::move(s.testo);
}

std::string DXF_Generate(const Tavolo &t) { return DXF_Generate(t.lista(), t.QuadranteL(), t.QuadranteH(), t.specchio()); }

}  // namespace ombrelia
