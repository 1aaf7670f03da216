// The world on a dial: reading the file and drawing 100,000 points, beside the floor of the latter: the trigonometry that
// its points need and keeping their chords.
#include <benchmark/benchmark.h>

#include <cmath>

#include "core/file.h"
#include "core/percorsi.h"
#include "map/mappa.h"
#include "sessione/muto.h"

using namespace ombrelia;

namespace {

// A horizontal dial at latitude 45 wide enough for all that its plane can see.
void prepara(Sessione &s) {
    s.in.txtLAT = "45";
    s.in.txtInc = "90";
    s.in.txtLonG = "-12";
    s.in.TxtStilo = ".05";
    s.in.txtX0 = s.in.txtY1 = "-1000";
    s.in.txtX1 = s.in.txtY0 = "1000";
    s.in.Filtertxt = "1000";
    s.in.ck_inv = 1;
}

// 100,000 points in runs of 1000, over the whole globe.
Mondo centomila() {
    Mondo m;
    m.paesi = {MONDO_INTERO, "Giro"};
    for (std::size_t i = 0; i < 100000; ++i) {
        if (i % 1000 == 0) m.tratti.push_back({i, 1});
        m.punti.push_back(
            {std::remainder(static_cast<double>(i) * 0.36, 360), std::remainder(static_cast<double>(i) * 0.0018, 180)});
    }
    return m;
}

void mondo(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s);
    s.mondo = centomila();
    s.in.cmbStati = MONDO_INTERO;
    for (auto _ : stato) {
        s.tavolo.Clear();
        DisegnaMondo(s);
    }
    stato.counters["corde"] = static_cast<double>(s.tavolo.lista().Linee.size());
}
BENCHMARK(mondo)->Unit(benchmark::kMillisecond);

// The floor. Each point: sine, cosine and tangent of H and D, azimuth and zenith distance with theirs; each point in
// sight: a chord kept.
void fondo(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    const Mondo m = centomila();
    const double sphi = std::sin(PI * 45 / 180), cphi = std::cos(PI * 45 / 180);
    for (auto _ : stato) {
        s.tavolo.Clear();
        double px = 0, py = 0;
        for (const Mondo::PuntoTerra &p : m.punti) {
            const double H = PI * p.X / 180, D = -PI * p.Y / 180;
            const double sh = std::sin(H), ch = std::cos(H), td = std::tan(D);
            double A = std::atan(sh / (sphi * ch - cphi * td));
            if (A * sh < 0) A -= PI;
            const double q = sphi * std::sin(D) + cphi * std::cos(D) * ch;
            const double z = PI / 2 - std::atan(q / std::sqrt(1 - q * q));
            double a = std::sin(z) * std::cos(A), b = std::sin(z) * std::sin(A), c = std::cos(z);
            benchmark::DoNotOptimize(a);
            benchmark::DoNotOptimize(b);
            if (!(c > 0)) continue;
            const double x = b / c, y = a / c;
            s.tavolo.xLine(x, -y, px, -py, QB(11), IdNome{0});
            px = x;
            py = y;
        }
    }
    stato.counters["corde"] = static_cast<double>(s.tavolo.lista().Linee.size());
}
BENCHMARK(fondo)->Unit(benchmark::kMillisecond);

void carica(benchmark::State &stato) {
    const auto percorso = TrovaDato("mondo.csv");
    if (!percorso) return stato.SkipWithError("mondo.csv is not here: run in the folder data");
    Muto utente;
    Sessione s(utente);
    for (auto _ : stato) CaricaMondo(s);
    stato.counters["punti"] = static_cast<double>(s.mondo.punti.size());
}
BENCHMARK(carica)->Unit(benchmark::kMillisecond);

}  // namespace
