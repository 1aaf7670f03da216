// The certificate: what was drawn, read back and held against what it claims. Nothing here draws.
#pragma once

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "certificato/istante.h"
#include "certificato/lineavera.h"
#include "plot/lista.h"

namespace ombrelia {

// Millimetres, and places as mounted: x right, y up from the foot.
struct RigaCertificato {
    std::string strato;
    Specie specie = Specie::Nessuna;
    double valore = 0;
    bool doppia = false;  // the row of what is drawn a second time; its only figure is the length
    // The row of a drawing that an earlier dial still speaks in: no figures, beside what is false of its lines.
    std::optional<QuadranteOriginale> originale;
    std::size_t corde = 0, punti = 0;
    double disegnati = 0;           // length of the chords, and of dots no further apart than two millimetres
    double massimo = 0, medio = 0;  // deviation
    double naturale = 0;            // the largest one in seconds of time or minutes of arc
    bool tempo = false;             // in seconds of time
    double mancanti = 0;            // of the true visible line inside the frame, no chord within the tolerance
    double visibili = 0;            // length of that line
    double superflui = 0;           // where no shadow of the claim ever falls
    double oltre = 0;               // beyond the frame: told, not condemned
    double xPeggiore = 0, yPeggiore = 0;
    bool vera = true;
    // Whether it has a deviation and a worst place.
    [[nodiscard]] bool misurata() const { return !doppia && !originale; }
};

struct Certificato {
    std::vector<RigaCertificato> righe;  // in the order of drawing
    double tolleranza = 0.1;             // mm
    double peggiore = 0;                 // the largest deviation, mm
    int false_ = 0;                      // lines that are not true
    std::size_t ignoti = 0;              // records without a claim that can be held against anything
    [[nodiscard]] bool vero() const { return false_ == 0; }
    // Whether there was a line that claims something; else nothing is true and nothing false.
    [[nodiscard]] bool esaminate() const {
        return std::any_of(righe.begin(), righe.end(), [](const RigaCertificato &r) { return r.misurata(); });
    }
};

// What the fields say of the dial that was drawn last. Cheap; to be called where the session lives.
[[nodiscard]] DatiCertificato DatiDelCertificato(const Sessione &s);
// Reads the list's claimed lines back. Touches nothing but its arguments: a copy of the list may be judged on any thread. Where
// fermo, asked now and then, says so, it ends with no row.
[[nodiscard]] Certificato Certifica(const DatiCertificato &dati, const Lista &lista, double tolleranza = 0.1,
                                    const std::function<bool()> &fermo = {});

// The claimed line nearest to a point (metres as mounted) within a distance: its row's specie and value, its records.
struct LineaVicina {
    Specie specie;
    double valore, distanza;
    std::size_t pretesa;  // index in Lista::pretese
};
[[nodiscard]] std::optional<LineaVicina> TrovaLinea(const DatiCertificato &dati, const Lista &lista, const ombra::Punto &p,
                                                    double entro);

// --- words ----------------------------------------------------------------------------------------------------------
// "hour 10.5", "declination 23.445": for files and the command line.
[[nodiscard]] std::string TestoPretesa(Specie specie, double valore);
// "ora vera 10.5", in the dictionary's language.
[[nodiscard]] std::string TestoPretesa(const Dizionario &d, Specie specie, double valore);
// Of a row: what it claims, or what else it tells.
[[nodiscard]] std::string TestoRiga(const RigaCertificato &r);
[[nodiscard]] std::string TestoRiga(const Dizionario &d, const RigaCertificato &r);
// "vero entro 0.03 mm", "3 linee non sono vere", "nessuna linea da certificare".
[[nodiscard]] std::string Verdetto(const Dizionario &d, const Certificato &c);
[[nodiscard]] std::string VerdettoInglese(const Certificato &c);

// --- forms ----------------------------------------------------------------------------------------------------------
[[nodiscard]] std::string CertificatoTesto(const DatiCertificato &dati, const Certificato &c);
[[nodiscard]] std::string CertificatoJson(const Certificato &c);
// A page to print and keep with the dial. With a dictionary in its language, else in English.
[[nodiscard]] std::string CertificatoHtml(const DatiCertificato &dati, const Certificato &c, const Dizionario *d = nullptr);

}  // namespace ombrelia
