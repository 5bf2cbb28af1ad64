// The chemical equilibrium: one state from nothing (a new temperature each
// call, 1500 to 3500 K), one adiabatic flame, and the two cycles with
// dissociation of a calculated cycle (Otto, and Mixto up to its maximum
// pressure, whose share burnt at V2 is a search).
#include <benchmark/benchmark.h>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/equilibrium/Llama.h"
#include "core/sequence/Calculo.h"

using namespace vanta;
using namespace vanta::equilibrio;

namespace {

// The atoms of gasoline (C8H15) with its stoichiometric air.
Elementos GasolinaConAire() {
    Moles aire{};
    aire[O2] = 11.75, aire[N2] = 11.75 * 3.76;
    Elementos b = ElementosDe(aire);
    b[eC] += 8, b[eH] += 15;
    return b;
}

void EstadoTemperaturaPresion(benchmark::State& estado) {
    const Elementos b = GasolinaConAire();
    double T = 1500;
    for (auto _ : estado) {
        T += 7.3;
        if (T > 3500) T = 1500;
        benchmark::DoNotOptimize(Equilibrar(b, {.dato = Dato::TemperaturaPresion, .T = T, .p = 5e6}));
    }
}

void EstadoEnergiaVolumen(benchmark::State& estado) {
    const Elementos b = GasolinaConAire();
    const Mezcla m = Equilibrar(b, {.dato = Dato::TemperaturaPresion, .T = 2800, .p = 5e6}).mezcla;
    for (auto _ : estado)
        benchmark::DoNotOptimize(Equilibrar(b, {.dato = Dato::EnergiaVolumen, .V = m.V, .U = m.U}));
}

void LlamaGasolina(benchmark::State& estado) {
    DatosLlama d;
    d.combustible = {.C = 8, .H = 15, .entalpiaFormacion = -305630};
    d.aire = AireO2N2();
    for (auto _ : estado) benchmark::DoNotOptimize(LlamaAdiabatica(d));
}

Estado Calculado(const std::map<std::string, std::string>& opciones) {
    OpcionesCalculo o;
    o.valores = opciones;
    return *Calcular(EntradasDeOpciones(o)).estado;
}

void Ciclos(benchmark::State& estado, std::map<std::string, std::string> opciones) {
    const Estado e = Calculado(opciones);
    for (auto _ : estado) benchmark::DoNotOptimize(CicloConDisociacion(e));
}

}  // namespace

BENCHMARK(EstadoTemperaturaPresion)->Name("Equilibrio/T,p");
BENCHMARK(EstadoEnergiaVolumen)->Name("Equilibrio/u,v");
BENCHMARK(LlamaGasolina)->Name("LlamaAdiabatica");
BENCHMARK_CAPTURE(Ciclos, otto, {})->Name("CicloConDisociacion/Otto")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Ciclos, mixto_pmax, {{"ciclo", "Mixto"}, {"pmax", "6000000"}})
    ->Name("CicloConDisociacion/MixtoPmax")
    ->Unit(benchmark::kMicrosecond);
