// Layers, their looks, and the line under a point.
#include "desktop/strati.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "certificato/istante.h"
#include "desktop/dialoghi.h"
#include "plot/percorso.h"

namespace ombrelia::desktop {

namespace {

constexpr Colore coloreDi(std::uint32_t rgb) {
    return static_cast<Colore>(((rgb & 0xFF) << 16) | (rgb & 0xFF00) | ((rgb >> 16) & 0xFF));
}

// Walks the records in their order with the claim that each belongs to. f(kind, index in its array, claim or null).
template <class F>
void percorri(const Lista &l, const F &f) {
    struct {
        const Lista &l;
        const F &f;
        const Pretesa *mia = nullptr;

        void pretesa(const Pretesa *p) { mia = p; }
        void linea(const RecLinea &r) const { f('L', static_cast<std::size_t>(&r - l.Linee.data()), mia); }
        void punto(const RecPunto &r) const { f('P', static_cast<std::size_t>(&r - l.Punti.data()), mia); }
        void figura(std::size_t k) const { f(l.Figure[k].Tipo, k, mia); }
    } visita{l, f};
    Percorri(l, visita);
}

std::pair<std::size_t, double> chiave(const Pretesa *p) {
    if (!p) return {Strato(Specie::Nessuna), 0};
    return {Strato(p->specie), p->valore};
}

double lontano(const QPointF &p, const QPointF &a, const QPointF &b) {
    const QPointF d = b - a, v = p - a;
    const double q = QPointF::dotProduct(d, d), t = q > 0 ? std::clamp(QPointF::dotProduct(v, d) / q, 0.0, 1.0) : 0;
    const QPointF resto = v - t * d;
    return std::hypot(resto.x(), resto.y());
}

QString gradi(double x) { return QString::number(std::round(x * 100) / 100, 'g', 6) + QStringLiteral("°"); }

QString oreMinuti(double ore) {
    const int minuti = static_cast<int>(std::lround(ore * 60));
    return QStringLiteral("%1:%2").arg(minuti / 60).arg(minuti % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

std::uint8_t TrattiniDi(std::size_t strato) { return SPECIE[strato].trattini; }

QColor TintaDi(Colore c) { return {c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF}; }

StileFoglio StileDi(bool scuro) {
    StileFoglio s;
    s.scuro = scuro;
    for (std::size_t i = 0; i < STRATI; ++i) s.strati[i].colore = coloreDi(scuro ? SPECIE[i].scuro : SPECIE[i].chiaro);
    return s;
}

bool Ritoccato(const StileFoglio &stile) {
    return stile.trattini || !stile.nascoste.empty() || !stile.sue.empty() ||
           std::any_of(stile.strati.begin(), stile.strati.end(),
                       [](const StileFoglio::AspettoLinea &t) { return t.nascosto || t.mio || t.spessore > 0; });
}

Tavolo::DisegnoTenuto Vesti(const Tavolo &t, const StileFoglio &stile, bool perCarta) {
    Tavolo::DisegnoTenuto d = t.CopiaDisegno();
    const Lista &l = t.lista();
    d.lista.Linee.clear();
    d.lista.Punti.clear();
    d.lista.Ordine.clear();
    d.lista.pretese.clear();
    d.lista.trattini.clear();
    d.lista.Linee.reserve(l.Linee.size());
    d.lista.Punti.reserve(l.Punti.size());
    d.lista.Ordine.reserve(l.Ordine.size());
    constexpr int GROSSA = 3;
    const Pretesa *aperta = nullptr;
    std::size_t figure = 0;
    // Records keep their claims: what is made of the copy goes by them.
    const auto tieni = [&](char tipo, const Pretesa *p) {
        std::vector<Pretesa> &pretese = d.lista.pretese;
        const std::size_t qui = d.lista.Ordine.size();
        if (p != aperta && p)
            pretese.push_back({p->specie, p->valore, qui, qui, d.lista.Linee.size(), d.lista.Punti.size(), figure});
        aperta = p;
        d.lista.Ordine += tipo;
        if (p) pretese.back().a = qui + 1;
    };
    percorri(l, [&](char tipo, std::size_t k, const Pretesa *p) {
        const auto chi = chiave(p);
        const StileFoglio::AspettoLinea &tratto = stile.tratto(chi);
        const bool via = stile.strati[chi.first].nascosto || (!stile.nascoste.empty() && stile.nascoste.contains(chi));
        const bool scelta = !perCarta && stile.scelta == chi, tinge = !perCarta || tratto.mio;
        if (tipo == 'L') {
            if (via) return;
            RecLinea r = l.Linee[k];
            if (tinge) r.colore = tratto.colore;
            if (tratto.spessore > 0) r.Spessore = tratto.spessore;
            if (scelta) r.Spessore = GROSSA;
            tieni(tipo, p);
            d.lista.Linee.push_back(r);
            if (perCarta && stile.trattini) d.lista.trattini.push_back(TrattiniDi(chi.first));
        } else if (tipo == 'P') {
            if (via) return;
            RecPunto r = l.Punti[k];
            if (tinge) r.colore = tratto.colore;
            tieni(tipo, p);
            d.lista.Punti.push_back(r);
        } else {
            figure = k;
            tieni(tipo, p);
            // A polyline's vertices and its end stand behind it, with its name.
            for (std::size_t i = k; tinge && i < d.lista.Figure.size(); ++i) {
                RecFigura &r = d.lista.Figure[i];
                const bool sua = r.Tipo == 'V' && r.Id == l.Figure[k].Id;
                if (i == k || sua) r.colore = tratto.colore;
                if (tipo != 'V' || (sua && r.voce == Voce::END)) break;
            }
            figure = k + 1;
        }
    });
    return d;
}

std::vector<Linea> LineeDi(const Tavolo &t) {
    const Lista &l = t.lista();
    std::map<std::pair<std::size_t, double>, Linea> trovate;
    // Dots so close to the one before are a line to the eye; metres.
    constexpr double UNITI = 0.002;
    std::map<std::pair<std::size_t, double>, QPointF> ultimi;
    percorri(l, [&](char tipo, std::size_t k, const Pretesa *p) {
        const auto chi = chiave(p);
        Linea &linea = trovate.try_emplace(chi, Linea{chi.first, chi.second, 0, {}}).first->second;
        if (tipo == 'L') {
            const RecLinea &r = l.Linee[k];
            const QPointF a(r.X1, r.Y1), b(r.X2, r.Y2);
            linea.metri += std::hypot(b.x() - a.x(), b.y() - a.y());
            const QRectF qui = QRectF(a, b).normalized().adjusted(0, 0, 1e-9, 1e-9);
            linea.dove = linea.dove.isNull() ? qui : linea.dove.united(qui);
        } else if (tipo == 'P') {
            const RecPunto &r = l.Punti[k];
            const QRectF qui(r.X, r.Y, 1e-9, 1e-9);
            const auto [prima, primo] = ultimi.try_emplace(chi, qui.topLeft());
            const QPointF passo = qui.topLeft() - std::exchange(prima->second, qui.topLeft());
            if (const double lungo = std::hypot(passo.x(), passo.y()); !primo && lungo <= UNITI) linea.metri += lungo;
            linea.dove = linea.dove.isNull() ? qui : linea.dove.united(qui);
        }
    });
    std::vector<Linea> linee;
    for (auto &[chi, linea] : trovate) linee.push_back(linea);
    return linee;
}

std::optional<Linea> LineaSotto(const Tavolo &t, const StileFoglio &stile, const QPointF &qui, double raggio) {
    const Lista &l = t.lista();
    double vicino = raggio;
    std::optional<std::pair<std::size_t, double>> chi;
    percorri(l, [&](char tipo, std::size_t k, const Pretesa *p) {
        if (!p || p->specie == Specie::Nessuna || (tipo != 'L' && tipo != 'P')) return;
        double d = vicino;
        if (tipo == 'L') {
            const RecLinea &r = l.Linee[k];
            if (std::min(r.X1, r.X2) > qui.x() + vicino || std::max(r.X1, r.X2) < qui.x() - vicino ||
                std::min(r.Y1, r.Y2) > qui.y() + vicino || std::max(r.Y1, r.Y2) < qui.y() - vicino)
                return;
            d = lontano(qui, {r.X1, r.Y1}, {r.X2, r.Y2});
        } else {
            const RecPunto &r = l.Punti[k];
            d = std::hypot(r.X - qui.x(), r.Y - qui.y());
        }
        if (d >= vicino || stile.strati[Strato(p->specie)].nascosto || stile.nascoste.contains(chiave(p))) return;
        vicino = d;
        chi = chiave(p);
    });
    if (!chi) return {};
    return Linea{chi->first, chi->second, 0, {}};
}

QString NomeStrato(const Sessione &s, std::size_t strato) { return Q(s.Traduci(SPECIE[strato].famiglia)); }

QString NomeLinea(const Sessione &s, std::size_t strato, double valore) {
    const QString nome = Q(s.Traduci(SPECIE[strato].una));
    switch (SPECIE[strato].valore) {
        case ValoreDi::Niente:
            break;
        case ValoreDi::Orologio:
            return nome + QLatin1Char(' ') + oreMinuti(valore);
        case ValoreDi::Ore:
            return nome + QLatin1Char(' ') + QString::number(valore);
        case ValoreDi::Gradi:
            return nome + QLatin1Char(' ') + gradi(valore);
    }
    return nome;
}

QString LetturaDi(const Sessione &s, const QPointF &punto) {
    const Posa posa = PosaDelDisegno(s);
    if (!(std::fabs(posa.quadrante.gnomone) > 0)) return {};
    // The list of a southern dial is its mirror image; the surface's mirror shows it as it is mounted.
    const LetturaPunto l = LeggiPunto(posa, {punto.x() * posa.verso(), punto.y()}, Oggi(posa.fuso()).anno);
    if (l.sole.luce != ombra::Luce::Si) return {};
    const auto t = [&s](std::string_view testo) { return Q(s.Traduci(testo)); };
    QString testo = t("ora vera"_it) + QLatin1Char(' ') + oreMinuti(l.oraVera);
    QStringList date;
    for (const ombra::Data &d : l.date) date << QStringLiteral("%1/%2").arg(d.giorno).arg(d.mese);
    if (!date.isEmpty()) testo += QStringLiteral("   ") + t("giorni"_it) + QLatin1Char(' ') + date.join(QStringLiteral(", "));
    testo += QStringLiteral("   δ ") + gradi(l.sole.delta * ombra::GRADI) + QStringLiteral("   ") + t("altezza"_it) +
             QLatin1Char(' ') + gradi(l.sole.altezza * ombra::GRADI) + QStringLiteral("   ") + t("azimut"_it) + QLatin1Char(' ') +
             gradi(l.sole.azimut * ombra::GRADI);
    return testo;
}

}  // namespace ombrelia::desktop
