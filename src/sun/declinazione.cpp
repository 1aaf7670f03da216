// The declination board's sums and its report.
#include "sun/declinazione.h"

#include "core/angoli.h"
#include "core/testo.h"

namespace ombrelia::sun {

namespace {

// Sine of 50' below the horizon, near enough: the Sun's upper limb on a horizon with refraction.
constexpr double SENO_ORIZZONTE = -0.01454;

struct Fault {
    std::string_view motivo;
};

// A quantity without a value ends the calculation.
Valore preteso(Valore v, std::string_view motivo) {
    if (!v.esiste()) throw Fault{motivo};
    return v;
}

void leggi(const DatiDeclinazione &d) {
    for (const Valore v : {d.lat, d.lon, d.giorno, d.mese, d.anno, d.ore, d.minuti, d.secondi, d.angolo, d.fuso})
        (void)preteso(v, "un numero è troppo grande."_it);
}

// Azimuth from South in degrees, West positive, for the hour angle and declination in radians.
Valore azimut(Valore lat, Valore phi, Valore Hd, Valore delta) {
    const Valore A0 = Arco2(sin(Hd), sin(phi) * cos(Hd) - cos(phi) * tan(delta));
    Valore Az = 180 * A0 / PI;
    // The two branches subtract in opposite directions; both are meant.
    if (lat > 0) {
        if (Az > 180) Az = Az - 360;
    } else {
        Az = Az + 180;
        if (Az > 180) Az = 360 - Az;
    }
    return Az;
}

Valore orarioDelSorgere(Valore x) {
    // The ten digits of PI leave the cosine of 90 degrees just below 0, so that at the poles x is large with its sign turned.
    if (Abs(x) >= 1) return x > 0 ? Valore(0) : Valore(PI);
    return ArcCos(x);
}

// The report as it grows: labels through the dictionary, numbers in the form for people.
class Verbale {
public:
    explicit Verbale(const Dizionario &d) : dizionario_(d) {}
    Verbale &etichetta(std::string_view t) { return testo(dizionario_.Traduci(t)); }
    Verbale &testo(std::string_view t) {
        t_ += t;
        return *this;
    }
    Verbale &numero(Valore v) { return testo(TestoNumero(v.v)); }
    Verbale &quattro(Valore v) { return testo(Formato(v, "0.0000")); }
    Verbale &tre(const Sessagesimale &s, std::string_view tra) {
        return numero(s.gradi).testo(tra).numero(s.primi).testo(tra).numero(s.secondi);
    }
    // Line end; twice leaves a blank line.
    Verbale &aCapo(int volte = 1) {
        for (; volte > 0; --volte) t_ += "\r\n";
        return *this;
    }
    [[nodiscard]] std::string preso() { return std::move(t_); }

private:
    const Dizionario &dizionario_;
    std::string t_;
};

constexpr std::string_view segno(Valore v) { return v >= 0 ? " " : "-"; }

std::string componi(const DatiDeclinazione &d, const EsitoDeclinazione &e, Valore segnoLat, const Dizionario &dizionario,
                    Valore oraSolare) {
    constexpr std::string_view TRE = "   ", DUE = "  ";
    const auto orologio = [&d](Valore ore) {
        Sessagesimale s = OreMinutiSecondi(ore);
        if (d.dst) s.gradi = 1 + s.gradi;
        return s;
    };
    Sessagesimale lat = OreMinutiSecondi(Abs(d.lat));
    lat = {segnoLat * lat.gradi, segnoLat * lat.primi, segnoLat * lat.secondi};
    Sessagesimale ascensione = GradiDecToSex(e.sole.ascensione);
    ascensione.secondi = Int(ascensione.secondi);

    Verbale r(dizionario);
    r.etichetta("Azimut del Sole:  "_it).quattro(e.azimut).aCapo();
    r.etichetta("Declinazione del quadrante solare: "_it).quattro(e.declinazione).testo("    ");
    r.etichetta(e.declinazione < 0 ? "East"_it : "West"_it).aCapo();
    r.etichetta("Equazione del tempo: "_it).testo(segno(e.equazione)).numero(Abs(e.sole.minuti)).testo(DUE);
    r.testo(Formato(60 * Abs(e.sole.resto), "0.00")).testo("       ").quattro(e.equazione).aCapo(2);
    r.etichetta("Latitudine:   "_it).tre(lat, TRE).aCapo();
    r.etichetta("Longitudine: "_it).testo(segno(d.lon)).tre(OreMinutiSecondi(Abs(d.lon)), TRE).aCapo(2);
    r.etichetta("Longitudine del meridiano del fuso:  "_it).numero(15 * d.fuso).aCapo();
    r.etichetta("Locale longitudine in h m s:  "_it).testo(segno(d.lon)).tre(OreMinutiSecondi(Abs(d.lon) / 15), " : ").aCapo(2);
    r.etichetta("ora del quadrante solare:  "_it).tre(OreMinutiSecondi(oraSolare), TRE).aCapo();
    r.etichetta("mezzodì:  "_it).tre(orologio(e.mezzodi), TRE).aCapo();
    r.etichetta("angolo orario:   "_it).quattro(e.oraAngolo).aCapo(2);
    r.etichetta("Ascensione Retta : "_it).tre(ascensione, TRE).aCapo();
    r.etichetta("declinazione del Sole:  "_it).quattro(180 * e.sole.delta / PI).aCapo(2);
    r.etichetta("Altezza del Sole: "_it).quattro(e.altezza).aCapo(2);
    r.etichetta("Julian Day: "_it).testo(NumeroGenerale(e.sole.giuliano.v)).aCapo(2);
    r.etichetta("Arco diurno:      "_it).tre(OreMinutiSecondi(e.arco), TRE).aCapo();
    if (e.arco == 0) return r.etichetta("Il sole non sorge  "_it).preso();
    if (e.arco == 24) return r.etichetta("Il sole non tramonta  "_it).preso();
    r.etichetta("Il Sole sorge:   "_it).tre(orologio(e.mezzodi - e.arco / 2), DUE).aCapo();
    return r.etichetta("Il sole tramonta:   "_it).tre(orologio(e.mezzodi + e.arco / 2), DUE).preso();
}

void calcola(const DatiDeclinazione &d, const Dizionario &dizionario, EsitoDeclinazione &e) {
    constexpr std::string_view SERIE = "la data porta le serie del Sole fuori dai numeri."_it;
    leggi(d);
    const Valore segnoLat = SegnoLatitudine(d.lat);
    const Valore c = preteso(d.ore + d.minuti / 60 + d.secondi / 3600, SERIE);

    std::string mese = TestoNumero(d.mese.v), giorno = TestoNumero(d.giorno.v);
    e.equazione = preteso(EqTempo(TestoNumero(d.anno.v), mese, giorno, d.ore, d.minuti, d.secondi, e.sole), SERIE);
    const Valore delta = preteso(e.sole.delta, SERIE);
    e.deltaOpz = delta;
    (void)preteso(e.sole.ascensione, SERIE);

    const Valore phi = PI * d.lat / 180;
    const Valore lonOre = -(4 * d.lon) / 60;  // hours, East positive
    e.txtDelta = TestoNumero(Round(180 * delta / PI, 3).v);

    Valore s = c + lonOre + e.equazione / 60;
    if (s > 24) s = s - 24;
    if (s < 0) s = s + 24;
    const Valore H = preteso(15 * (s - 12), "la longitudine è troppo grande."_it);
    e.oraAngolo = H;
    e.txtAO = TestoNumero(H.v);
    const Valore Hd = PI * H / 180;

    e.azimut =
        preteso(azimut(d.lat, phi, Hd, delta), "il Sole è allo zenit o sul primo verticale, e il suo azimut divide per zero."_it);
    const Valore h = ArcSin(sin(phi) * sin(delta) + cos(phi) * cos(delta) * cos(Hd));
    e.altezza = 180 * preteso(h, "il Sole è allo zenit o al nadir, e la sua altezza divide per zero."_it) / PI;
    e.declinazione = preteso(e.azimut - segnoLat * d.angolo, "l'angolo è troppo grande."_it);
    e.corrLong = e.declinazione > 0;

    e.mezzodi = preteso(12 - (e.equazione / 60 + lonOre) - d.fuso, "il fuso è troppo grande."_it);
    const Valore x = (SENO_ORIZZONTE - sin(phi) * sin(delta)) / (cos(phi) * cos(delta));
    e.arco = 24 * orarioDelSorgere(preteso(x, "al polo l'arco diurno divide per zero."_it)) / PI;
    e.rapporto = componi(d, e, segnoLat, dizionario, s);
}

}  // namespace

EsitoDeclinazione Declinazione(const DatiDeclinazione &dati, const Dizionario &dizionario) {
    EsitoDeclinazione e;
    try {
        calcola(dati, dizionario, e);
    } catch (const Fault &f) {
        e.errore = std::string(dizionario.Traduci("Il calcolo si ferma:")) + " " + dizionario.Traduci(f.motivo);
    }
    return e;
}

}  // namespace ombrelia::sun
