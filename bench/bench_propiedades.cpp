// Property evaluations with a new temperature each call, sweeping 300 to 3000 K.
#include <benchmark/benchmark.h>

#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"

using namespace vanta;

namespace {

Estado Fluido() {
    Estado e;
    e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033, e.xH2OAire = 0.01;
    e.xArHumos = 0.0087, e.xCO2Humos = 0.1, e.xH2OHumos = 0.11, e.xN2Humos = 0.7313, e.xO2Humos = 0.05;
    e.Presion = 2e6;
    e.Q23 = 1, e.Qciclo = 2;
    return e;
}

template <void (*Evaluar)(Estado&, Mensajes&)>
void Barrido(benchmark::State& estado) {
    Estado e = Fluido();
    Mensajes dlg;
    double T = 300;
    for (auto _ : estado) {
        T += 0.77;
        if (T > 3000) T = 300;
        e.Temperatura = T;
        Evaluar(e, dlg);
        benchmark::DoNotOptimize(e);
    }
}

void CalcularEspeciesSolo(Estado& e, Mensajes& dlg) {
    CalcularEspecies(e, dlg);
}

}  // namespace

BENCHMARK(Barrido<CalcularEspeciesSolo>)->Name("CalcularEspecies");
BENCHMARK(Barrido<PropiedadesAire>)->Name("PropiedadesAire");
BENCHMARK(Barrido<PropiedadesHumos>)->Name("PropiedadesHumos");
BENCHMARK(Barrido<PropiedadesAireHumos>)->Name("PropiedadesAireHumos");
