// Hour lines of the direct engine and the hours counted from sunset, sunrise and by twelfths of the day: chains of
// chords over the declinations of the year, so that a line exists only between the solstices.
#include "direct/diretta.h"
#include "direct/sbarramento.h"
#include "sessione/limiti.h"

namespace ombrelia::direct {

void TracciaRetteOrarie(Sessione &s) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    TracciaCornice(s);
    const Reale c = Valore((PI * v.lonPiu15 / 180) * v.oraFuso * 1);
    const Sbarramento passa(cornice, v);
    const Proiezione proietta(v);
    Reale x, y;

    struct Famiglia {
        double inizio, passo;
        std::string_view strato;
        bool si;
        Colore colore;
    };
    // The quarters run over hours and halves too and overlie them: meant.
    const Famiglia famiglie[] = {
        {-90, 15, "hour", true, QB(14)},
        {-97.5, 15, "half", v.fraz > 1, QB(13)},
        {-97.5, 30.0 / 8.0, "quarter", v.fraz == 4, QB(3)},
    };
    for (const Famiglia &f : famiglie) {
        if (!f.si) continue;
        const bool ore = f.inizio == -90;
        Catena catena(s.tavolo, f.strato);
        for (const double A : Conteggio(f.inizio, -f.inizio, f.passo)) {
            const Colore colore = !ore ? f.colore : A == 0 ? QB(12) : std::fabs(A) == 90 ? QB(9) : f.colore;
            const SenCos t(PI * A / 180 - c);
            const Pretendi pretendi(s.tavolo, Specie::Ora, 12 + A / 15);
            for (const Declinazione &d : Anno()) {
                proietta(t, d.tanD, x, y);
                catena.punto(x, y, passa(x, y), colore);
            }
            catena.fine();
        }
        v.deltaOpz = Anno().back().d;
    }
}

namespace {

// Half day arc H0 over the year, at the original dial's latitude. In polar day and night the statement faults and the
// arc of the declination before stays; from the second line on the first declinations inherit the end of the line before.
class SemiArchi {
public:
    explicit SemiArchi(Valore latitudine) {
        Reale H0;
        riempi(prima_, H0, latitudine);
        riempi(poi_, H0, latitudine);
    }
    [[nodiscard]] const std::vector<double> &diLinea(bool prima) const { return prima ? prima_ : poi_; }

private:
    static void riempi(std::vector<double> &archi, Reale &H0, Valore latitudine) {
        const Valore tanLat = tan(latitudine);
        archi.reserve(Anno().size());
        for (const Declinazione &d : Anno()) {
            const Valore u = -tanLat * d.tanD;
            H0 = (PI / 2.0) - Atn(u / Sqr(-u * u + 1));
            archi.push_back(H0.numero());
        }
    }
    std::vector<double> prima_, poi_;
};

// The lines k of a range; angolo gives the hour angle from k and H0, dentro says whether it lies in the day.
template <typename Angolo, typename Dentro>
void tracciaOre(Sessione &s, const Conteggio &ore, Specie specie, std::string_view strato, Colore colore, Angolo angolo,
                Dentro dentro) {
    Variabili &v = s.v;
    const Cornice cornice = LeggiCornice(s);
    const Sbarramento passa(cornice, v);
    const Proiezione proietta(v);
    const SemiArchi archi(v.lat_o);
    Catena catena(s.tavolo, strato);
    Reale x, y;
    bool prima = true;
    for (const double k : ore) {
        const std::vector<double> &H0 = archi.diLinea(prima);
        const Pretendi pretendi(s.tavolo, specie, k);
        for (std::size_t i = 0; i < H0.size(); ++i) {
            const double t = angolo(k, H0[i]);
            if (!dentro(t, H0[i])) continue;
            proietta(SenCos(t), Anno()[i].tanD, x, y);
            catena.punto(x, y, passa(x, y), colore);
        }
        v.deltaOpz = Anno().back().d;
        catena.fine();
        prima = false;
    }
}

Valore frazione(const Sessione &s) {
    const Valore fr = Val(s.in.TxtFraz);
    return fr == 0 || !fr.esiste() ? Valore(1) : fr;
}

}  // namespace

void TracciaOreItaliche(Sessione &s) {
    const double diff = s.v.diffLong.numero();
    tracciaOre(
        s, Conteggio(Val(s.in.TxtInizio), Val(s.in.TxtFine), 1 / frazione(s)), Specie::Italica, "Ita", QB(12),
        [diff](double k, double H0) { return PI * k / 12 + H0 - 2 * PI + diff; },
        [](double t, double H0) { return std::fabs(t) <= H0; });
}

void TracciaOreBabiloniche(Sessione &s) {
    const double diff = s.v.diffLong.numero();
    tracciaOre(
        s, Conteggio(Val(s.in.TxtInizio), Val(s.in.TxtFine), 1 / frazione(s)), Specie::Babilonica, "Bab", QB(11),
        [diff](double k, double H0) { return PI * k / 12 - H0 + diff; },
        [](double t, double H0) { return std::fabs(t) <= H0; });
}

void TracciaOreTemporarie(Sessione &s) {
    const double diff = s.v.diffLong.numero();
    tracciaOre(
        s, Conteggio(0, 12, 1 / frazione(s)), Specie::Temporaria, "Temp", QB(3),
        [diff](double k, double H0) { return H0 * (k / 6 - 1) + diff; }, [](double, double) { return true; });
}

}  // namespace ombrelia::direct
