// A full wall of the vertical engine beside a floor measured in the same run: the sines, cosines, tangents, arc tangents
// and roots that its points need, each once, and the storing of what is drawn.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "core/conteggio.h"
#include "quadrante_pieno.h"
#include "sessione/muto.h"
#include "vertical/piana.h"

namespace {

using namespace ombrelia;

void prepara(Sessione &s) {
    QuadrantePieno(s);
    s.in.txtInc = std::string("0");
    s.in.CkUNI = s.in.ckAz = 1;
}

// Points of the wall's sweeps at the default latitude and declination.
struct Conti {
    // 73 and 73 lines of Italic and Babylonian hours, 49 of temporary ones, on 938 days. Behind the wall or with the Sun
    // down a point needs its azimuth alone; the others need their abscissa, and the rest within the frame.
    static constexpr int STAGIONI = (73 + 73 + 49) * 938, SOPRA = 112690;
    // 25, 24 and 95 hour lines of 48 points, five sweeps of 721 hour angles, two of 361, the equinoctial, the lemniscate.
    static constexpr int ORE = (25 + 24 + 95) * 48 + 5 * 721 + 2 * 361 + 721 + 447;
    static constexpr int SUSTILARE = 9388;
    // The general formula: azimuths, Qibla, almucantars, Asr.
    static constexpr int GENERALI = 13 * 938 + 9379 + 2 * 6 * 939 + 939;
    static constexpr int TUTTI = STAGIONI + ORE + SUSTILARE + GENERALI;
};

void Pavimento(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s);
    app::cmdRun(s);
    const std::size_t corde = s.tavolo.lista().Linee.size(), punti = s.tavolo.lista().Punti.size();
    std::size_t disegnati = 0;
    for (const RecLinea &l : s.tavolo.lista().Linee)
        for (const char *strato : {"Ita", "Bab", "Temp"}) disegnati += s.tavolo.lista().nomi.testo(l.Id) == strato;

    std::vector<RecLinea> linee;
    std::vector<RecPunto> pset;
    std::string ordine;
    double somma = 0;
    const auto altezza = [](double h) { return std::tan(std::atan(h / std::sqrt(1 - h * h))); };
    const auto punto = [&](double a, double h) { somma += altezza(h) + std::tan(a) / std::cos(a); };
    for (auto _ : stato) {
        linee.clear();
        pset.clear();
        ordine.clear();
        double t = -2, h = 0.01;
        const auto passo = [&](int quanti) {
            t = -2;
            h = 0.01;
            return std::pair{4.0 / quanti, 0.9 / quanti};
        };
        {
            const auto [dt, dh] = passo(Conti::STAGIONI);
            const std::size_t dietro = Conti::STAGIONI - Conti::SOPRA, fuori = Conti::STAGIONI - disegnati;
            for (std::size_t i = 0; i < Conti::STAGIONI; ++i, t += dt, h += dh) {
                const double a = std::atan(std::sin(t) / (std::cos(t) + h));
                if (i < dietro) somma += a;
                else if (i < fuori) somma += std::tan(a);
                else punto(a, h);
            }
        }
        {
            const auto [dt, dh] = passo(Conti::ORE);
            for (int i = 0; i < Conti::ORE; ++i, t += dt, h += dh) punto(std::atan(t), h);
        }
        {
            const auto [dt, dh] = passo(Conti::SUSTILARE);
            for (int i = 0; i < Conti::SUSTILARE; ++i, t += dt, h += dh)
                punto(std::atan(std::tan(h) + std::sin(h) + std::cos(h)), h);
        }
        {
            const auto [dt, dh] = passo(Conti::GENERALI);
            for (int i = 0; i < Conti::GENERALI; ++i, t += dt, h += dh) {
                const double H = std::atan(h / std::sqrt(1 - h * h));
                somma += std::sin(H) + std::cos(H) + std::tan(h);
            }
        }
        for (std::size_t i = 0; i < corde; ++i) {
            linee.push_back({t, h, t, h, 0, 1, 0});
            ordine.push_back('L');
        }
        for (std::size_t i = 0; i < punti; ++i) {
            pset.push_back({t, h, 0, 0});
            ordine.push_back('P');
        }
        benchmark::DoNotOptimize(somma);
        benchmark::DoNotOptimize(linee.data());
        benchmark::DoNotOptimize(pset.data());
    }
    stato.SetItemsProcessed(stato.iterations() * Conti::TUTTI);
}
BENCHMARK(Pavimento)->Name("PareteIntera/pavimento")->Unit(benchmark::kMillisecond);

void PareteIntera(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s);
    for (auto _ : stato) {
        s.tavolo.Clear();
        app::cmdRun(s);
    }
    stato.SetItemsProcessed(stato.iterations() * Conti::TUTTI);
    stato.counters["records"] = static_cast<double>(s.tavolo.lista().Ordine.size());
}
BENCHMARK(PareteIntera)->Name("PareteIntera/motore")->Unit(benchmark::kMillisecond);

}  // namespace
