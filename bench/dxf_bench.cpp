// Speed of recording lines and of writing them, a million of them in twenty layers: chords that follow each other, as a
// dial has them, and lines that share no end.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "plot/dxf.h"
#include "plot/lista_testo.h"
#include "plot/svg.h"

namespace {

using namespace ombrelia;

constexpr int LINEE = 1000000;

void riempi(Tavolo &t, bool seguite = true) {
    for (int strato = 0; strato < 20; ++strato) {
        const IdNome id = t.nome("Ora " + std::to_string(strato) + "°");
        double x = 0, y = strato * 0.01;
        for (int i = 0; i < LINEE / 20; ++i) {
            const double x2 = std::sin(i * 0.001) * 0.7, y2 = std::cos(i * 0.0013 + strato) * 0.4;
            t.xLine(x, y, x2, y2, QB(strato % 16), id);
            x = seguite ? x2 : x2 * 0.9;
            y = seguite ? y2 : y2 * 1.1;
        }
    }
}

void Registra(benchmark::State &stato) {
    for (auto _ : stato) {
        Tavolo t;
        riempi(t);
        benchmark::DoNotOptimize(t.lista().Linee.data());
    }
    stato.SetItemsProcessed(stato.iterations() * LINEE);
}
BENCHMARK(Registra)->Unit(benchmark::kMillisecond);

// Storing alone: ends worked out before, in the room of the run before.
void RegistraAncora(benchmark::State &stato) {
    Tavolo t;
    riempi(t);
    const std::vector<RecLinea> linee = t.lista().Linee;
    for (auto _ : stato) {
        t.Clear();
        for (const RecLinea &l : linee) t.xLine(l.X1, l.Y1, l.X2, l.Y2, l.colore, l.Id);
        benchmark::DoNotOptimize(t.lista().Linee.data());
    }
    stato.SetItemsProcessed(stato.iterations() * LINEE);
}
BENCHMARK(RegistraAncora)->Unit(benchmark::kMillisecond);

template <class F>
void scrivi(benchmark::State &stato, F forma, bool seguite = true) {
    Tavolo t;
    riempi(t, seguite);
    std::size_t byte = 0;
    for (auto _ : stato) {
        const std::string testo = forma(t);
        benchmark::DoNotOptimize(testo.data());
        byte = testo.size();
    }
    stato.SetItemsProcessed(stato.iterations() * LINEE);
    stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(byte));
}

void Dxf(benchmark::State &stato) {
    scrivi(stato, [](const Tavolo &t) { return DXF_Generate(t); });
}
BENCHMARK(Dxf)->Unit(benchmark::kMillisecond);

void DxfSparse(benchmark::State &stato) {
    scrivi(
        stato, [](const Tavolo &t) { return DXF_Generate(t); }, false);
}
BENCHMARK(DxfSparse)->Unit(benchmark::kMillisecond);

void Svg(benchmark::State &stato) {
    scrivi(stato, [](const Tavolo &t) { return SVG_Generate(t); });
}
BENCHMARK(Svg)->Unit(benchmark::kMillisecond);

void Elenco(benchmark::State &stato) {
    scrivi(stato, [](const Tavolo &t) { return ListaTesto(t.lista()); });
}
BENCHMARK(Elenco)->Unit(benchmark::kMillisecond);

}  // namespace
