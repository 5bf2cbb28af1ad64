// What the web page asks of the core as the user types: one calculation with
// its seven pictures written as SVG, its JSON apart, and the readout with its
// cross. The page runs the same code compiled to WebAssembly, some times
// slower; `node web/medir.mjs` measures it there.
#include <benchmark/benchmark.h>

#include "web/Pagina.h"

namespace {

const char* const kEntradas[] = {"", "ciclo=Diesel\nrc=18\ncombustible=Gasoil\nfr=0.8\n",
                                 "ciclo=Mixto\ncompresion=variable\nexpansion=variable\n"};

// range(0): the inputs (0 Otto, 1 Diesel, 2 Mixto with variable exponents).
void CalculoConImagenes(benchmark::State& estado) {
    vanta::web::Calculadora c;
    for (auto _ : estado) benchmark::DoNotOptimize(c.Calcular(kEntradas[estado.range(0)]));
}
BENCHMARK(CalculoConImagenes)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void JSONDelCalculo(benchmark::State& estado) {
    vanta::web::Calculadora c;
    c.Calcular(kEntradas[estado.range(0)]);
    for (auto _ : estado) benchmark::DoNotOptimize(c.JSON());
}
BENCHMARK(JSONDelCalculo)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// The pointer at the middle of p-V.
void Lectura(benchmark::State& estado) {
    vanta::web::Calculadora c;
    c.Calcular(kEntradas[estado.range(0)]);
    for (auto _ : estado) benchmark::DoNotOptimize(c.Leer(0, 215, 250));
}
BENCHMARK(Lectura)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

}  // namespace
