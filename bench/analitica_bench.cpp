// The analytic engine, whole dials of nearly two hundred thousand points with their tangents, beside the floor: the
// arithmetic that each point needs, in bare doubles, and keeping it.
#include <benchmark/benchmark.h>

#include <cmath>

#include "analytic/analitica.h"
#include "core/conteggio.h"
#include "gnomonica/proiezione.h"
#include "sessione/muto.h"

using namespace ombrelia;

namespace {

void prepara(Sessione &s, double lato) {
    s.in.txtLAT = "45.74805";
    s.in.txtDec = "-20";
    s.in.txtInc = std::string("0");
    for (int DialInputs::*c :
         {&DialInputs::chkOreAstronomiche, &DialInputs::Ck_DayLightCurves, &DialInputs::ck_Sustilare, &DialInputs::ck_Equinoziale,
          &DialInputs::ck_Italiche, &DialInputs::ck_babiloniche, &DialInputs::ck_Lemniscate})
        s.in.*c = 1;
    s.tavolo.QuadranteL(lato);
    s.tavolo.QuadranteH(lato);
    s.tavolo.ShiftX(lato / 2);
    s.tavolo.ShiftY(lato / 2);
}

// All of the dial on a sheet that keeps every point, and on one of an ordinary size that drops most.
void analitica(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s, static_cast<double>(stato.range(0)));
    for (auto _ : stato) {
        s.tavolo.Clear();
        analytic::EseguiGraficaAnalitica(s, Lettura(s.in));
    }
    stato.counters["punti"] = static_cast<double>(s.tavolo.lista().Punti.size());
}
BENCHMARK(analitica)->Arg(15)->Arg(1)->Unit(benchmark::kMillisecond);

// The floor draws no readable dial: the same sweeps with any constants.
void fondo(benchmark::State &stato) {
    Muto utente;
    Sessione s(utente);
    prepara(s, static_cast<double>(stato.range(0)));
    Tavolo &t = s.tavolo;
    analytic::EseguiGraficaAnalitica(s, Lettura(s.in));
    const double e = s.v.altStilo.numero(), sigma = s.v.angSustilare.numero(), gn = s.v.gn.numero(), y0 = s.v.y0.numero();
    const double ss = std::sin(sigma), cs = std::cos(sigma), se = std::sin(e), ce = std::cos(e);
    for (auto _ : stato) {
        t.Clear();
        for (const double delta : {23.445, 23.45, 20.0, 11.5}) {
            const double td = std::tan(PI * delta / 180), A = se * se - ce * ce / (td * td);
            const double R = 1 / A, Q = -2 * gn * (se / ce) / A, P = gn * gn / (ce * ce) / A;
            const double a = cs * cs + R * ss * ss;
            for (const double x : Conteggio(-1, 1, 0.005)) {
                const double b = 2 * y0 * cs - 2 * x * cs * ss + 2 * R * ss * x * cs + Q * cs;
                const double c = y0 * y0 + x * x * ss * ss - 2 * y0 * x * ss + R * x * cs * (x * cs) + Q * y0 - Q * x * ss + P;
                const double d = b * b - 4 * a * c;
                if (!(d >= 0)) continue;
                const double q = std::sqrt(d);
                t.xPset(x, (b + q) / (2 * a), QB(9), IdNome{0});
                t.xPset(x, (b - q) / (2 * a), QB(9), IdNome{0});
            }
        }
        for (const double i : Conteggio(-1, 1, 0.002)) t.xPset(i, i / (ss / cs), QB(14), IdNome{0});
        for (const double x : Conteggio(-3, 3, 0.001)) t.xPset(x, -(x * (ss / cs) - y0 / cs), QB(10), IdNome{0});
        for (int giro = 0; giro < 2; ++giro) {
            const double A = se * se - ce * ce * 1.05, R = 1 / A, Q = -2 * gn * (se / ce) / A, P = gn * gn / (ce * ce) / A;
            const auto punto = [&](double u, double v, Colore colore) {
                t.xPset(u * cs - (v - y0) * ss, -(u * ss + (v - y0) * cs), colore, IdNome{0});
            };
            for (const double u : Conteggio(-0.5, 0.5, 0.00005)) {
                const double d = Q * Q / 4 - P - R * (u * u);
                if (!(d >= 0)) continue;
                const double q = std::sqrt(d);
                punto(u, -Q / 2 + q, QB(5));
                punto(u, -Q / 2 - q, QB(10));
            }
            for (const double h : Conteggio(-90, 90, 15)) {
                const double g = std::tan(h * 0.01);
                for (const double u : Conteggio(-1, 1, 0.0005)) punto(u, g * (u - 0.01 * h), QB(15));
            }
        }
        for (const double l : Conteggio(-80, 360, 2 * (360 / 365.2422))) {
            const SoleMedio sole = SoleAllaLongitudine(PI * l / 180);
            t.xPset(std::tan(sole.Et), std::tan(sole.D), QB(12), IdNome{0});
        }
    }
    stato.counters["punti"] = static_cast<double>(t.lista().Punti.size());
}
BENCHMARK(fondo)->Arg(15)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
