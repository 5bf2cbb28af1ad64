// One pointer move over the p-V diagram in each branch and model; the worst is
// the variable exponent run again near the far end of the stroke.
#include <benchmark/benchmark.h>

#include "core/diagrams/LecturaRaton.h"
#include "core/sequence/Calculo.h"

using namespace vanta;

namespace {

Estado Calculado(const char* modelo) {
    Entradas x;
    x.compresion = x.expansion = *ModeloDeNombre(modelo);
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    return *Calcular(x, s).estado;
}

// range(0): model (0 mean, 1 polytropic, 2 variable); range(1): where the
// pointer is as a share of the way from V2 to V1 (in thousandths).
void Movimiento(benchmark::State& estado) {
    const char* modelos[] = {"medio", "politropica", "variable"};
    Estado e = Calculado(modelos[estado.range(0)]);
    const double X = e.V2 + (e.V1 - e.V2) * estado.range(1) / 1000.0;
    Mensajes dlg;
    DiagramasNulos d;
    Diagramas g = d.Todos();
    LecturaEstado l;
    for (auto _ : estado) {
        pctPV_MouseMove(e, dlg, g, true, float(X), float(-2 * e.p1), l);
        benchmark::DoNotOptimize(l);
    }
    estado.SetLabel(std::string(modelos[estado.range(0)]) + " " + l.txtTransformacion);
}

}  // namespace

BENCHMARK(Movimiento)->ArgsProduct({{0, 1, 2}, {-100, 5, 500, 995, 1100}})->Unit(benchmark::kMicrosecond);
