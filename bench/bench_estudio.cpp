// A study of 1000 points of the default Otto (the speed varied, which the
// cycle does not read) on 1 and 2 threads, wall time: targets at most 0.8 s
// with 2 threads, and 2 threads at least 1.8 times faster than 1. And one point
// alone: the four stages on a fresh state, as every point runs them.
#include <benchmark/benchmark.h>

#include "core/studies/Estudio.h"

using namespace vanta;

namespace {

Estudio MilPuntos() {
    Estudio e;
    Variacion rpm{"rpm", {}, {}};
    LeerValores("1:1000:1", true, rpm);
    e.variaciones = {rpm};
    e.salidas = {BuscarSalidaEstudio("rendimiento"), BuscarSalidaEstudio("wciclo")};
    return e;
}

void Estudio1000(benchmark::State& estado) {
    const Estudio e = MilPuntos();
    const unsigned hilos = static_cast<unsigned>(estado.range(0));
    for (auto _ : estado) {
        double suma = 0;
        EjecutarEstudio(e, 0, NumeroPuntos(e), hilos,
                        [&](size_t, ResultadoPunto& r) { suma += r.valores[0]; });
        benchmark::DoNotOptimize(suma);
    }
    estado.SetLabel(std::to_string(hilos) + (hilos == 1 ? " hilo" : " hilos"));
}

void UnPunto(benchmark::State& estado) {
    const Estudio e = MilPuntos();
    for (auto _ : estado) benchmark::DoNotOptimize(CalcularPunto(e, 0));
}

}  // namespace

BENCHMARK(Estudio1000)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3);
BENCHMARK(UnPunto)->Unit(benchmark::kMicrosecond);
