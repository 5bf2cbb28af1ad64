// The whole calculation of typed inputs for each cycle and model: headless
// (the walks' drawing steps skipped, as the command line and the studies run
// it) and on recording surfaces (as a window draws while it computes).
#include <benchmark/benchmark.h>

#include "core/sequence/Calculo.h"

using namespace vanta;

namespace {

Entradas EntradasCaso(benchmark::State& estado) {
    const TipoCiclo ciclos[] = {TipoCiclo::Otto, TipoCiclo::Diesel, TipoCiclo::Mixto};
    Entradas x;
    x.ciclo = ciclos[estado.range(0)];
    x.compresion = x.expansion = static_cast<Modelo>(estado.range(1));
    if (x.ciclo == TipoCiclo::Diesel) x.rc = "18";
    if (x.ciclo == TipoCiclo::Mixto) x.pmax = "6000000";
    const int modelo = static_cast<int>(estado.range(1));
    estado.SetLabel(std::string(NombreCiclo(x.ciclo)) + (modelo == 1   ? " medio"
                                                         : modelo == 2 ? " politrópico"
                                                                       : " variable"));
    return x;
}

void SinDibujo(benchmark::State& estado) {
    const Entradas x = EntradasCaso(estado);
    for (auto _ : estado) {
        const ResultadoCalculo r = Calcular(x);
        benchmark::DoNotOptimize(r.estado->Wciclo);
        if (!r.CicloCalculado()) estado.SkipWithError("el ciclo no se calculó");
    }
}

void Grabadas(benchmark::State& estado) {
    const Entradas x = EntradasCaso(estado);
    for (auto _ : estado) {
        SuperficieGrabada a, b, c, pv, tv, ts, hs;
        SuperficiesCalculo s{a, b, c, {pv, tv, ts, hs}};
        const ResultadoCalculo r = Calcular(x, s);
        benchmark::DoNotOptimize(r.estado->Wciclo);
        if (!r.CicloCalculado()) estado.SkipWithError("el ciclo no se calculó");
    }
}

void Argumentos(benchmark::internal::Benchmark* b) {
    for (int ciclo = 0; ciclo < 3; ++ciclo)
        for (int modelo = 1; modelo <= 3; ++modelo) b->Args({ciclo, modelo});
    b->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(SinDibujo)->Name("Calcular/sin-dibujo")->Apply(Argumentos);
BENCHMARK(Grabadas)->Name("Calcular/grabadas")->Apply(Argumentos);
