// Judges the lines of a list.
#include <algorithm>
#include <map>

#include "certificato/certificato.h"
#include "certificato/cielo.h"
#include "plot/percorso.h"
#include "plot/specie.h"

namespace ombrelia {

using ombra::Punto;

namespace {

constexpr double MM = 1000;
constexpr double PASSO_PUNTI = 0.002;   // dots no further apart make a line
constexpr double MEZZO_PUNTO = 0.0005;  // what a lone dot covers to either side
constexpr double SCARTO_MASSIMO = 1e9;  // mm; a larger deviation is written as this one
// Of the verdict: shares of a line, and what a raster of half a millimetre leaves undecided.
constexpr double SUPERFLUO = 0.005, MANCANTE = 0.02, RASTER_MM = 0.5;

class Giudice {
public:
    Giudice(const DatiCertificato &dati, Specie specie, double valore, double tolleranza)
        : dati_(dati), vera_(dati, specie, valore), tolleranza_(tolleranza / MM) {
        riga_.specie = specie;
        riga_.valore = valore;
        if (vera_.forma() == LineaVera::Andamento::Curva) coperte_.assign(vera_.campioni().size() + 1, 0), sole_ = coperte_;
    }

    // The layer is that of the first records that have one.
    void strato(const std::string &nome) {
        if (riga_.strato.empty()) riga_.strato = nome;
    }
    void corda(const Punto &a, const Punto &b) {
        const double l = std::hypot(b.x - a.x, b.y - a.y);
        const LineaVera::Esame ea = esamina(a), eb = esamina(b);
        const Punto m{(a.x + b.x) / 2, (a.y + b.y) / 2};
        ++riga_.corde;
        const bool stilo = vera_.forma() == LineaVera::Andamento::Stilo;  // only its corners say something
        const LineaVera::Esame em = stilo || vera_.forma() == LineaVera::Andamento::Retta ? ea : esamina(m);
        if (vera_.forma() == LineaVera::Andamento::Retta) esamina(m);
        conta(a, b, l, ea, em, eb);
    }

    // prima: the dot before in the same bracket.
    void punto(const Punto &p, const Punto *prima) {
        ++riga_.punti;
        const LineaVera::Esame e = esamina(p);
        const double l = prima ? std::hypot(p.x - prima->x, p.y - prima->y) : PASSO_PUNTI + 1;
        if (l <= PASSO_PUNTI) {
            const LineaVera::Esame ea = ultimo_;
            conta(*prima, p, l, ea, e, e);
        } else if (e.distanza <= tolleranza_) {
            if (vera_.forma() == LineaVera::Andamento::Retta)
                soli_.emplace_back(e.parametro - MEZZO_PUNTO, e.parametro + MEZZO_PUNTO);
            else if (vera_.forma() == LineaVera::Andamento::Curva) copri(sole_, e.parametro, e.parametro, 1);
        }
        ultimo_ = e;
    }

    // doppi: mm drawn once more; opposti: mm that lie where the opposite Sun's shadow falls.
    RigaCertificato finisci(double &doppi, double &opposti) {
        RigaCertificato &r = riga_;
        doppi = 0;
        opposti = opposti_;
        if (vera_.forma() == LineaVera::Andamento::Retta) {
            const double somma = Lunghezza(tratti_) + Lunghezza(soli_);
            UnisciIntervalli(tratti_);
            UnisciIntervalli(soli_);
            doppi = (somma - Lunghezza(tratti_) - Lunghezza(soli_)) * MM;
            tratti_.insert(tratti_.end(), soli_.begin(), soli_.end());
            UnisciIntervalli(tratti_);
            r.visibili = Lunghezza(vera_.visibili()) * MM;
            r.mancanti = r.visibili - Lunghezza(Intersezione(vera_.visibili(), tratti_)) * MM;
        } else if (vera_.forma() == LineaVera::Andamento::Curva) {
            const auto &c = vera_.campioni();
            int quante = 0, sole = 0;
            for (std::size_t i = 0; i + 1 < c.size(); ++i) {
                quante += coperte_[i];
                sole += sole_[i];
                const double l = std::hypot(c[i + 1].p.x - c[i].p.x, c[i + 1].p.y - c[i].p.y) * MM;
                if (l < SCARTO_MASSIMO) doppi += (std::max(quante - 1, 0) + std::max(sole - 1, 0)) * l;
                if (!c[i].visibile || !c[i + 1].visibile) continue;
                r.visibili += l;
                if (quante == 0 && sole == 0) r.mancanti += l;
            }
        }
        if (vera_.costruzione()) r.superflui = 0;
        if (vera_.costruzione() || vera_.frammento()) r.visibili = r.mancanti = 0;
        r.mancanti = std::max(r.mancanti, 0.0);
        r.medio = lette_ > 0 ? somma_ / static_cast<double>(lette_) : 0;
        // The worst one as time or angle.
        r.tempo = DellaSpecie(r.specie).ore;
        if (r.massimo > 1e-6) {
            const ombra::PianoMontato piano(dati_.posa.quadrante);
            const ombra::SoleLetto l = piano.leggi(Punto{r.xPeggiore / MM, r.yPeggiore / MM});
            const ombra::Moto m = piano.moto(l.t, l.delta);
            const double perT = std::hypot(m.perT.x, m.perT.y), perDelta = std::hypot(m.perDelta.x, m.perDelta.y);
            const double radianti = r.massimo / MM / (r.tempo ? perT : perDelta);
            r.naturale = std::min(radianti * ombra::GRADI * (r.tempo ? 240 : 60), 43200.0);
        }
        r.vera = r.massimo <= tolleranza_ * MM && r.superflui <= std::max(SUPERFLUO * r.disegnati, RASTER_MM) &&
                 r.mancanti <= std::max(MANCANTE * r.visibili, RASTER_MM);
        return r;
    }

private:
    LineaVera::Esame esamina(const Punto &p) {
        const LineaVera::Esame e = vera_.esamina(p);
        const double mm = e.distanza * MM < SCARTO_MASSIMO ? e.distanza * MM : SCARTO_MASSIMO;  // no number too
        if (mm > riga_.massimo || lette_ == 0) riga_.massimo = mm, riga_.xPeggiore = p.x * MM, riga_.yPeggiore = p.y * MM;
        somma_ += mm;
        ++lette_;
        return e;
    }
    [[nodiscard]] bool fuori(const Punto &p) const {
        return p.x < dati_.xMin - tolleranza_ || p.x > dati_.xMax + tolleranza_ || p.y < dati_.yMin - tolleranza_ ||
               p.y > dati_.yMax + tolleranza_;
    }
    void conta(const Punto &a, const Punto &b, double l, const LineaVera::Esame &ea, const LineaVera::Esame &em,
               const LineaVera::Esame &eb) {
        riga_.disegnati += l * MM;
        riga_.oltre += l * MM * (fuori(a) + fuori(b)) / 2;
        const bool sta = ea.distanza <= tolleranza_ && eb.distanza <= tolleranza_ && em.distanza <= tolleranza_;
        if (vera_.forma() == LineaVera::Andamento::Retta) {
            const Intervallo t = std::minmax(ea.parametro, eb.parametro);
            riga_.superflui += std::max(0.0, t.second - t.first - Lunghezza(Intersezione({t}, vera_.lucenti()))) * MM;
            opposti_ += Lunghezza(Intersezione({t}, vera_.opposti())) * MM;
            if (!sta || t.first == t.second) return;
            // A chord that goes on where the last one ended lengthens its stretch; one that lies on it is drawn twice.
            if (!tratti_.empty() && std::fabs(tratti_.back().second - t.first) < 1e-9) tratti_.back().second = t.second;
            else if (!tratti_.empty() && std::fabs(tratti_.back().first - t.second) < 1e-9) tratti_.back().first = t.first;
            else tratti_.emplace_back(t);
        } else if (vera_.forma() == LineaVera::Andamento::Curva) {
            riga_.superflui += l * MM * (ea.buia + 2 * em.buia + eb.buia) / 4;
            if (sta) copri(coperte_, ea.parametro, eb.parametro, 0);
        }
    }
    // Marks the samples between two parameters as drawn once more; piu to either side.
    void copri(std::vector<int> &dove, double u1, double u2, std::size_t piu) {
        if (u1 > u2) std::swap(u1, u2);
        const auto &c = vera_.campioni();
        const auto minore = [](const LineaVera::Campione &x, double u) { return x.u < u; };
        // Across the end of a closed parameter the chord is short and its two ends far apart.
        const double giro = c.back().u - c.front().u;
        const auto segna = [&](double da, double a) {
            auto i = static_cast<std::size_t>(std::lower_bound(c.begin(), c.end(), da, minore) - c.begin());
            auto k = static_cast<std::size_t>(std::lower_bound(c.begin(), c.end(), a, minore) - c.begin());
            i -= std::min(i, piu + (piu > 0 ? 1 : 0));
            k = std::min(k + piu, c.size() - 1);
            if (i >= k) return;
            ++dove[i];
            --dove[k];
        };
        if (u2 - u1 > giro / 2) segna(c.front().u, u1), segna(u2, c.back().u);
        else segna(u1, u2);
    }

    const DatiCertificato &dati_;
    LineaVera vera_;
    double tolleranza_;  // metres
    RigaCertificato riga_;
    Intervalli tratti_, soli_;
    // Differences: how often the stretch behind each sample was drawn. A dot with none before it covers a little to either
    // side: not twice where a run of dots begins, but twice where such a dot lies on another.
    std::vector<int> coperte_, sole_;
    LineaVera::Esame ultimo_{};
    double somma_ = 0, opposti_ = 0;
    std::size_t lette_ = 0;
};

// The records of one claim, before its judge.
struct VisitaGiudice {
    Giudice &giudice;
    const Nomi &nomi;
    double verso;  // of x: -1 mounts a southern dial
    bool nomina;   // the line's layer is not known yet
    std::size_t quanti = 0;
    std::optional<Punto> prima{};  // the dot before

    void linea(const RecLinea &l) {
        conta(l.Id);
        giudice.corda({verso * l.X1, l.Y1}, {verso * l.X2, l.Y2});
    }
    void punto(const RecPunto &r) {
        conta(r.Id);
        const Punto q{verso * r.X, r.Y};
        giudice.punto(q, prima ? &*prima : nullptr);
        prima = q;
    }
    static void figura(std::size_t) {}

private:
    void conta(IdNome id) {
        if (nomina) giudice.strato(nomi.testo(id));
        ++quanti;
    }
};

// The original dial where it is not the one of the fields: the next one of a session that keeps its first.
std::optional<QuadranteOriginale> altroOriginale(const Sessione &s, const Lettura &letto) {
    const Variabili &v = s.v;
    if (!(v.letture > 0) || v.flagVerticale == 1) return {};
    const auto gradi = [](const Reale &r) { return r.numero() * ombra::GRADI; };
    const QuadranteOriginale o{gradi(v.lat_o), gradi(v.dec_o), v.inc_o.numero()};
    const auto altro = [](double a, Reale campo) { return std::fabs(a - campo.numero()) > 1e-6; };
    const bool stesso = !altro(std::fabs(o.latitudine), letto.lat) || !altro(-std::fabs(o.latitudine), letto.lat);
    // A level plane's declination is put to 0 behind the first reading.
    const bool dec = altro(o.declinazione, letto.dec) && !(std::fabs(o.inclinazione) == 90 && !altro(o.inclinazione, letto.inc));
    if (stesso && !dec && !altro(o.inclinazione, letto.inc)) return {};
    return o;
}

}  // namespace

DatiCertificato DatiDelCertificato(const Sessione &s) {
    DatiCertificato d;
    const Lettura letto(s.in);
    d.posa = PosaDelDisegno(s, letto);
    const double u = d.posa.unita;
    d.xMin = NumeroDi(letto.x0) * u, d.xMax = NumeroDi(letto.x1) * u;
    d.yMin = NumeroDi(letto.y1) * u, d.yMax = NumeroDi(letto.y0) * u;
    if (d.posa.australe) {
        const double x = d.xMin;
        d.xMin = -d.xMax, d.xMax = -x;
    }
    // On an equivalent dial the longitude's field carries the shift of the plane.
    const double diffLong = s.v.flagVerticale == 1 ? s.v.diffLong.numero() : 0;
    d.delFuso = letto.fuso;
    d.scartoOra = d.delFuso ? NumeroDi(letto.lon) * ombra::RADIANTI - d.posa.meridiano + diffLong : 0;
    d.anno = AnnoDelSole(s);
    d.originale = altroOriginale(s, letto);
    d.qiblaLat = NumeroDi(letto.qLat) * ombra::RADIANTI;
    d.qiblaLon = NumeroDi(letto.qLon) * ombra::RADIANTI;
    return d;
}

Certificato Certifica(const DatiCertificato &dati, const Lista &lista, double tolleranza, const std::function<bool()> &fermo) {
    Certificato c;
    c.tolleranza = tolleranza;
    std::vector<Giudice> giudici;
    std::map<std::pair<Specie, long>, std::size_t> quale;
    std::size_t giudicati = 0;
    const double verso = dati.posa.verso();
    for (const Pretesa &p : lista.pretese) {
        if (!Giudicabile(p.specie)) continue;
        const auto [posto, nuovo] = quale.try_emplace({p.specie, std::lround(p.valore * 1e5)}, giudici.size());
        if (nuovo) giudici.emplace_back(dati, p.specie, p.valore, tolleranza);
        VisitaGiudice visita{giudici[posto->second], lista.nomi, verso, nuovo};
        constexpr std::size_t OGNI = 4096;
        const std::size_t fine = std::min(p.a, lista.Ordine.size());
        for (PostoLista qui{p.da, p.linea, p.punto, p.figura}; qui.ordine < fine;) {
            if (fermo && fermo()) return {};
            qui = Percorri(lista, qui, std::min(fine, qui.ordine + OGNI), visita);
        }
        giudicati += visita.quanti;
    }
    c.ignoti = lista.Ordine.size() - giudicati;
    const auto due = [&](const RigaCertificato &r, double mm) {
        RigaCertificato d;
        d.strato = r.strato, d.specie = r.specie, d.valore = r.valore, d.doppia = true, d.disegnati = mm;
        c.righe.push_back(d);
    };
    for (Giudice &g : giudici) {
        if (fermo && fermo()) return {};
        double doppi = 0, opposti = 0;
        RigaCertificato r = g.finisci(doppi, opposti);
        if (r.corde + r.punti == 0 && r.visibili == 0) continue;  // asked for, not to be seen and not drawn
        // An hour's chords at the hour across belong to that one, when it is claimed too.
        const double altra = r.valore < 12 ? r.valore + 12 : r.valore - 12;
        const bool ora = r.specie == Specie::Ora && opposti > 1 && quale.contains({Specie::Ora, std::lround(altra * 1e5)});
        if (!ora || r.visibili > 0 || r.disegnati - opposti > 1) {
            c.peggiore = std::max(c.peggiore, r.massimo);
            c.false_ += !r.vera;
            c.righe.push_back(r);
            if (doppi > 1) due(r, doppi);
        }
        if (!ora) continue;
        r.valore = altra;
        due(r, opposti);
    }
    if (dati.originale && !c.righe.empty()) {
        RigaCertificato r;
        r.originale = dati.originale;
        r.vera = c.vero();
        c.righe.push_back(r);
    }
    return c;
}

std::optional<LineaVicina> TrovaLinea(const DatiCertificato &dati, const Lista &lista, const Punto &p, double entro) {
    const double x = dati.posa.australe ? -p.x : p.x, y = p.y;
    std::optional<LineaVicina> migliore;
    const auto prova = [&](double d, std::size_t k) {
        if (d > entro || (migliore && d >= migliore->distanza)) return;
        migliore = LineaVicina{lista.pretese[k].specie, lista.pretese[k].valore, d, k};
    };
    for (std::size_t k = 0; k < lista.pretese.size(); ++k) {
        const Pretesa &q = lista.pretese[k];
        if (!Giudicabile(q.specie)) continue;
        const auto linea = [&](const RecLinea &l) {
            const double dx = l.X2 - l.X1, dy = l.Y2 - l.Y1, l2 = dx * dx + dy * dy;
            const double f = l2 > 0 ? std::clamp(((x - l.X1) * dx + (y - l.Y1) * dy) / l2, 0.0, 1.0) : 0;
            prova(std::hypot(x - l.X1 - f * dx, y - l.Y1 - f * dy), k);
        };
        Percorri(lista, q, TrattiEPunti{linea, [&](const RecPunto &r) { prova(std::hypot(x - r.X, y - r.Y), k); }});
    }
    return migliore;
}

}  // namespace ombrelia
