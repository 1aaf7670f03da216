// DXF of release 12, with every section that a strict reader asks for.
#include <cmath>
#include <numbers>

#include "core/testo.h"
#include "officina/scrittori.h"

namespace ombrelia::officina {

namespace {

using Tipo = Cammino::Tipo;

class ScrittoreDxf12 {
public:
    ScrittoreDxf12(const Disegno &d, const Intestazione &f)
        : d_(d), pollici_(f.unita == Unita::Pollici), k_(pollici_ ? 1 / 25.4 : 1) {}

    std::string scrivi() {
        intestazione();
        tavole();
        sezione("BLOCKS");
        fine();
        sezione("ENTITIES");
        for (const Cammino &c : d_.cammini) entita(c);
        fine();
        gruppo(0, "EOF");
        return std::move(t);
    }

private:
    void gruppo(int codice, std::string_view valore) {
        const std::string c = std::to_string(codice);
        t.append(c.size() < 3 ? 3 - c.size() : 0, ' ');
        ((t += c) += "\r\n") += valore;
        t += "\r\n";
    }
    void gruppo(int codice, int valore) { gruppo(codice, std::string_view(std::to_string(valore))); }
    void numero(int codice, double valore) {
        std::string n;
        AggiungiDecimali(n, valore, pollici_ ? 8 : 6);
        if (n.find('.') == std::string::npos) n += ".0";
        gruppo(codice, n);
    }
    void punto(P2 p, int codice = 10) {
        numero(codice, k_ * p.x);
        numero(codice + 10, k_ * p.y);
        numero(codice + 20, 0);
    }
    void sezione(std::string_view nome) {
        gruppo(0, "SECTION");
        gruppo(2, nome);
    }
    void fine() { gruppo(0, "ENDSEC"); }
    void variabile(std::string_view nome) { gruppo(9, nome); }

    void intestazione() {
        const Riquadro &e = d_.estensione;
        sezione("HEADER");
        variabile("$ACADVER");
        gruppo(1, "AC1009");
        variabile("$DWGCODEPAGE");
        gruppo(3, "ANSI_1252");
        variabile("$INSBASE");
        punto({0, 0});
        variabile("$EXTMIN");
        punto({e.x0, e.y0});
        variabile("$EXTMAX");
        punto({e.x1, e.y1});
        variabile("$LIMMIN");
        numero(10, k_ * e.x0);
        numero(20, k_ * e.y0);
        variabile("$LIMMAX");
        numero(10, k_ * e.x1);
        numero(20, k_ * e.y1);
        variabile("$LUNITS");
        gruppo(70, 2);
        variabile("$LUPREC");
        gruppo(70, 4);
        // Of later releases, but readers of this one look for their units here.
        variabile("$INSUNITS");
        gruppo(70, pollici_ ? 1 : 4);
        variabile("$MEASUREMENT");
        gruppo(70, pollici_ ? 0 : 1);
        fine();
    }

    void tavola(std::string_view nome, int voci) {
        gruppo(0, "TABLE");
        gruppo(2, nome);
        gruppo(70, voci);
    }
    void fineTavola() { gruppo(0, "ENDTAB"); }

    void tavole() {
        const Riquadro &e = d_.estensione;
        sezione("TABLES");
        tavola("VPORT", 1);
        gruppo(0, "VPORT");
        gruppo(2, "*ACTIVE");
        gruppo(70, 0);
        for (const auto &[codice, x, y] : {std::tuple{10, 0.0, 0.0},
                                           {11, 1.0, 1.0},
                                           {12, k_ * (e.x0 + e.x1) / 2, k_ * (e.y0 + e.y1) / 2},
                                           {13, 0.0, 0.0},
                                           {14, 10.0, 10.0},
                                           {15, 10.0, 10.0}}) {
            numero(codice, x);
            numero(codice + 10, y);
        }
        for (const auto &[codice, z] : {std::pair{16, 1.0}, {17, 0.0}}) {
            numero(codice, 0);
            numero(codice + 10, 0);
            numero(codice + 20, z);
        }
        const double l = e.x1 - e.x0, h = e.y1 - e.y0;
        numero(40, k_ * 1.05 * std::max({h, l / 1.5, 1.0}));
        numero(41, 1.5);
        numero(42, 50);
        for (const int codice : {43, 44, 50, 51}) numero(codice, 0);
        for (const auto &[codice, n] : {std::pair{71, 0}, {72, 1000}, {73, 1}, {74, 3}, {75, 0}, {76, 0}, {77, 0}, {78, 0}})
            gruppo(codice, n);
        fineTavola();
        tavola("LTYPE", 1);
        gruppo(0, "LTYPE");
        gruppo(2, "CONTINUOUS");
        gruppo(70, 0);
        gruppo(3, "Solid line");
        gruppo(72, 65);
        gruppo(73, 0);
        numero(40, 0);
        fineTavola();
        const auto generi = GeneriUsati(d_);
        tavola("LAYER", static_cast<int>(generi.size()) + 1);
        strato("0", 7);
        for (const Genere g : generi) strato(Riga(g).nome, Riga(g).aci);
        fineTavola();
        tavola("STYLE", 1);
        gruppo(0, "STYLE");
        gruppo(2, "STANDARD");
        gruppo(70, 0);
        numero(40, 0);
        numero(41, 1);
        numero(50, 0);
        gruppo(71, 0);
        numero(42, 2.5 * k_);
        gruppo(3, "txt");
        gruppo(4, "");
        fineTavola();
        fine();
    }

    void strato(std::string_view nome, int colore) {
        gruppo(0, "LAYER");
        gruppo(2, nome);
        gruppo(70, 0);
        gruppo(62, colore);
        gruppo(6, "CONTINUOUS");
    }

    void inizio(std::string_view entita, const Cammino &c) {
        gruppo(0, entita);
        gruppo(8, Riga(c.genere).nome);
    }

    void entita(const Cammino &c) {
        constexpr double GRADO = 180 / std::numbers::pi;
        switch (c.tipo) {
            case Tipo::Linea:
                inizio("POLYLINE", c);
                gruppo(66, 1);
                punto({0, 0});
                gruppo(70, c.chiuso ? 1 : 0);
                for (const P2 p : c.punti) {
                    inizio("VERTEX", c);
                    punto(p);
                }
                inizio("SEQEND", c);
                break;
            case Tipo::Cerchio:
            case Tipo::Arco:
                inizio(c.tipo == Tipo::Arco ? "ARC" : "CIRCLE", c);
                punto(c.punti[0]);
                numero(40, k_ * c.raggio);
                if (c.tipo == Tipo::Cerchio) break;
                numero(50, GRADO * c.inizio);
                numero(51, GRADO * c.fine);
                break;
            case Tipo::Punto:
                inizio("POINT", c);
                punto(c.punti[0]);
                break;
            case Tipo::Testo: {
                inizio("TEXT", c);
                punto(c.punti[0]);
                numero(40, k_ * c.raggio);
                std::string testo;
                for (const char ch : c.testo) testo += static_cast<unsigned char>(ch) < ' ' ? ' ' : ch;
                std::string scritto;
                AggiungiCp1252(scritto, testo);
                gruppo(1, scritto);
                gruppo(7, "STANDARD");
                break;
            }
        }
    }

    const Disegno &d_;
    const bool pollici_;
    const double k_;
    std::string t;
};

}  // namespace

std::string Dxf12(const Disegno &d, const Intestazione &f) { return ScrittoreDxf12(d, f).scrivi(); }

}  // namespace ombrelia::officina
