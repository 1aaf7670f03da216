// A projected point and a full dial of the direct engine, beside a floor measured in the same run: the sine, cosine and
// tangent of each point's own angles and the storing of what is drawn, with nothing computed twice taken out.
#include <benchmark/benchmark.h>

#include <vector>

#include "core/conteggio.h"
#include "gnomonica/proiezione.h"
#include "plot/dxf.h"
#include "quadrante_pieno.h"
#include "sessione/muto.h"

namespace {

using namespace ombrelia;

void prepara(Sessione &s) {
    QuadrantePieno(s);
    s.in.TxtInizio = "0";
    s.in.TxtFine = "24";
    s.in.ckFunzione = 1;
}

void esegui(Sessione &s) {
    s.in.ckAz = 1;
    app::cmdRun(s);
}

// Points that the full dial projects: (13 + 14 + 53) hour lines, 97 and 97 of Italic and Babylonian hours of which about
// half lie in the day, 49 temporary, 13 azimuths of 938 declinations; 7 sweeps of 2401 hour angles; analemma, substyle,
// Asr, Qibla; and the almucantars that reach their altitude.
constexpr int PUNTI = (80 + 97 + 49 + 13) * 938 + 7 * 2401 + 3653 + 2001 + 938 + 9379 + 9000;

void Pavimento(benchmark::State &stato) {
    std::vector<RecLinea> linee;
    for (auto _ : stato) {
        linee.clear();
        double t = -2, D = -0.4;
        for (int i = 0; i < PUNTI; ++i) {
            t += 4.0 / PUNTI;
            D += 0.8 / PUNTI;
            const double s = std::sin(t), c = std::cos(t), g = std::tan(D);
            linee.push_back({s, c, g, t, 0, 1, 0});
        }
        benchmark::DoNotOptimize(linee.data());
    }
    stato.SetItemsProcessed(stato.iterations() * PUNTI);
}
BENCHMARK(Pavimento)->Unit(benchmark::kMillisecond);

void QuadranteIntero(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s);
    for (auto _ : stato) {
        s.tavolo.Clear();
        esegui(s);
    }
    stato.SetItemsProcessed(stato.iterations() * PUNTI);
    stato.counters["records"] = static_cast<double>(s.tavolo.lista().Ordine.size());
}
BENCHMARK(QuadranteIntero)->Unit(benchmark::kMillisecond);

// As above, each time at another latitude: nothing of the run before can be used again.
void QuadranteDiAltroLuogo(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s);
    int n = 0;
    for (auto _ : stato) {
        s.in.txtLAT = std::to_string(40 + ++n % 100 * 0.1);
        s.tavolo.Clear();
        esegui(s);
    }
    stato.SetItemsProcessed(stato.iterations() * PUNTI);
}
BENCHMARK(QuadranteDiAltroLuogo)->Unit(benchmark::kMillisecond);

// The arithmetic that keeps old values against plain doubles, over the same formula.
void PuntoConReale(benchmark::State &stato) {
    Variabili v;
    v.latR = 0.8;
    v.decR = -0.35;
    v.incR = 0.44;
    v.gn = 0.195;
    v.unita = 1;
    const Proiezione proietta{Piano(v)};
    const SenCos t(0.5);
    Reale x, y;
    double D = -0.4;
    for (auto _ : stato) {
        proietta(t, D, x, y);
        D += 1e-9;
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(y);
    }
}
BENCHMARK(PuntoConReale);

void PuntoConDouble(benchmark::State &stato) {
    const double sg = std::sin(-0.35), cg = std::cos(-0.35), sp = std::sin(0.8), cp = std::cos(0.8), sz = std::sin(1.13),
                 cz = std::cos(1.13);
    const double st = std::sin(0.5), ct = std::cos(0.5), a = sg * sz, b = cp * cz + sp * sz * cg, c1 = sp * cz - cp * sz * cg;
    const double e = cz * sg, f = cp * sz - sp * cz * cg, g = sp * sz + cp * cz * cg;
    double D = -0.4;
    for (auto _ : stato) {
        const double den = a * st + b * ct + c1 * D;
        double x = 0.195 * (cg * st - (sp * ct - cp * D) * sg) / den;
        double y = 0.195 * (e * st - f * ct - g * D) / den;
        D += 1e-9;
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(y);
    }
}
BENCHMARK(PuntoConDouble);

}  // namespace
