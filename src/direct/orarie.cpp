// Hour lines of the direct engine and the hours counted from sunset, sunrise and by twelfths of the day: chains of
// chords over the declinations of the year, so that a line exists only between the solstices.
#include "direct/corsa.h"
#include "gnomonica/longitudine.h"
#include "gnomonica/ricordo.h"

namespace ombrelia::direct {

void LineeOrarie(const Corsa &c, LineeAttese &linee) {
    const Variabili &v = c.v;
    struct Famiglia {
        double inizio, passo;
        std::string_view strato;
        bool si;
        Colore colore;
    };
    // The quarters run over hours and halves too and overlie them: meant.
    const Famiglia famiglie[] = {
        {-90, 15, "hour", true, GIALLO},
        {-97.5, 15, "half", v.fraz > 1, MAGENTA},
        {-97.5, 30.0 / 8.0, "quarter", v.fraz == 4, ACQUA},
    };
    for (const Famiglia &f : famiglie) {
        if (!f.si) continue;
        const bool ore = f.inizio == -90;
        for (const double A : Conteggio(f.inizio, -f.inizio, f.passo)) {
            const Colore colore = !ore ? f.colore : A == 0 ? ROSSO : std::fabs(A) == 90 ? BLU : f.colore;
            linee.push_back({A, 12 + A / 15, f.strato, colore});
        }
    }
}

void TracciaRetteOrarie(Corsa &c, const LineeAttese &linee) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Reale scarto = CorrezioneFuso(v);
    const Sbarramento passa(c.cornice, v);
    const Proiezione proietta(c.piano());
    Reale x, y;
    for (const LineaAttesa &l : linee) {
        Catena catena(s.tavolo, l.strato);
        const SenCos t(PI * l.parametro / 180 - scarto);
        const Pretendi pretendi(s.tavolo, Specie::Ora, l.valore);
        for (const Declinazione &d : Anno()) {
            proietta(t, d.tanD, x, y);
            catena.punto(x, y, passa(x, y), l.colore);
        }
    }
    LasciaFine(s.v, Anno());
}

SemiArchi::SemiArchi(Valore latitudine) {
    Reale H0;
    const Valore tanLat = tan(latitudine);
    bool manca = false;
    const auto riempi = [&](std::vector<double> &archi) {
        archi.reserve(Anno().size());
        for (const Declinazione &d : Anno()) {
            const Valore u = -tanLat * d.tanD;
            const Valore arco = (PI / 2.0) - Atn(u / Sqr(-u * u + 1));
            manca = manca || !arco.esiste();
            H0 = arco;
            archi.push_back(H0.numero());
        }
    };
    riempi(prima_);
    if (manca) riempi(poi_);
}

namespace {

void conta(const Conteggio &ore, std::string_view strato, Colore colore, LineeAttese &linee) {
    for (const double k : ore) linee.push_back({k, k, strato, colore});
}

Valore frazione(const Corsa &c) {
    const Valore fr = c.letto.fraz;
    return fr == 0 || !fr.esiste() ? Valore(1) : fr;
}

// angolo gives the hour angle from the hour and the half day arc, dentro says whether it lies in the day.
template <typename Angolo, typename Dentro>
void tracciaOre(Corsa &c, const LineeAttese &linee, Specie specie, std::string_view strato, Angolo angolo, Dentro dentro) {
    Sessione &s = c.s;
    const Variabili &v = c.v;
    const Sbarramento passa(c.cornice, v);
    const Proiezione proietta(c.piano());
    const SemiArchi &archi = c.semiArchi();
    Catena catena(s.tavolo, strato);
    static thread_local SenCosRicordati seni;
    Reale x, y;
    bool prima = true;
    std::size_t posto = 0;
    for (const LineaAttesa &l : linee) {
        const std::vector<double> &H0 = archi.diLinea(prima);
        const Pretendi pretendi(s.tavolo, specie, l.valore);
        for (std::size_t i = 0; i < H0.size(); ++i, ++posto) {
            const double t = angolo(l.parametro, H0[i]);
            if (!dentro(t, H0[i])) continue;
            proietta(seni(posto, t), Anno()[i].tanD, x, y);
            catena.punto(x, y, passa(x, y), l.colore);
        }
        catena.fine();
        prima = false;
    }
    if (!linee.empty()) LasciaFine(s.v, Anno());
}

bool diGiorno(double t, double H0) { return std::fabs(t) <= H0; }

}  // namespace

void LineeItaliche(const Corsa &c, LineeAttese &linee) {
    conta({c.letto.inizio, c.letto.fine, 1 / frazione(c)}, "Ita", ROSSO, linee);
}
void LineeBabiloniche(const Corsa &c, LineeAttese &linee) {
    conta({c.letto.inizio, c.letto.fine, 1 / frazione(c)}, "Bab", CIANO, linee);
}
void LineeTemporarie(const Corsa &c, LineeAttese &linee) { conta({0, 12, 1 / frazione(c)}, "Temp", ACQUA, linee); }

void TracciaOreItaliche(Corsa &c, const LineeAttese &linee) {
    const double diff = c.v.diffLong.numero();
    tracciaOre(
        c, linee, Specie::Italica, "Ita", [diff](double k, double H0) { return PI * k / 12 + H0 - 2 * PI + diff; }, diGiorno);
}

void TracciaOreBabiloniche(Corsa &c, const LineeAttese &linee) {
    const double diff = c.v.diffLong.numero();
    tracciaOre(
        c, linee, Specie::Babilonica, "Bab", [diff](double k, double H0) { return PI * k / 12 - H0 + diff; }, diGiorno);
}

void TracciaOreTemporarie(Corsa &c, const LineeAttese &linee) {
    const double diff = c.v.diffLong.numero();
    tracciaOre(
        c, linee, Specie::Temporaria, "Temp", [diff](double k, double H0) { return H0 * (k / 6 - 1) + diff; },
        [](double, double) { return true; });
}

}  // namespace ombrelia::direct
