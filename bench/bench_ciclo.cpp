// The whole CalcularCiclo (both passes) for each cycle and model, on surfaces
// that draw nothing and on recording surfaces.
#include <benchmark/benchmark.h>

#include <sstream>

#include "app/LineaComandos.h"
#include "core/cycle/PantallaCiclo.h"
#include "core/cycle/Transformaciones.h"

using namespace vanta;

namespace {

// The default air, fuel and combustion, as the command line defines them.
Estado FluidoPorDefecto() {
    Estado e;
    GuardarColoresDiagramas(e);
    DialogosGrabados dlg;
    SuperficieNula a, b, c;
    DiagramasNulos d;
    SuperficiesCalculo s{a, b, c, d.Todos()};
    std::ostringstream out;
    cli::EjecutarCalcular(e, *cli::ParsearCalcular({}).opciones, dlg, s, out);
    return e;
}

template <class Superficies>
void Ciclo(benchmark::State& estado) {
    const char* ciclos[] = {"Otto", "Diesel", "Mixto"};
    const std::string ciclo = ciclos[estado.range(0)];
    const int modelo = static_cast<int>(estado.range(1));
    Estado e = FluidoPorDefecto();
    PantallaCicloSimple p;
    p.chkOcultar.SetValue(false);
    InterruptorSimple* compresion[] = {&p.optGmedioCom, &p.optPolitropicaCom, &p.optGvariable};
    InterruptorSimple* expansion[] = {&p.optGmedioExp, &p.optPolitropica, &p.optGvariableExp};
    for (int m = 0; m < 3; ++m) {
        compresion[m]->SetValue(m + 1 == modelo);
        expansion[m]->SetValue(m + 1 == modelo);
    }
    ElegirModeloCompresion(e, static_cast<Modelo>(modelo));
    ElegirModeloExpansion(e, static_cast<Modelo>(modelo));
    e.TipoCiclo = ciclo;
    if (ciclo == "Diesel") p.txtRc.SetText("18");
    if (ciclo == "Mixto") p.txtPMax.SetText("6000000");
    ControlesCiclo c = p.Controles();
    DialogosGrabados dlg;
    VentanaPrincipalSimple v;
    for (auto _ : estado) {
        Superficies s;
        Diagramas g{s.pv, s.tv, s.ts, s.hs};
        CalcularCiclo(e, dlg, c, g, v);
        benchmark::DoNotOptimize(e.Wciclo);
    }
    if (e.ErrorCalculo) estado.SkipWithError("el ciclo no se calculó");
    estado.SetLabel(ciclo + (modelo == 1 ? " medio" : modelo == 2 ? " politrópico" : " variable"));
}

struct Nulas {
    SuperficieNula pv, tv, ts, hs;
};
struct Grabadas {
    SuperficieGrabada pv, tv, ts, hs;
};

void Argumentos(benchmark::internal::Benchmark* b) {
    for (int ciclo = 0; ciclo < 3; ++ciclo)
        for (int modelo = 1; modelo <= 3; ++modelo) b->Args({ciclo, modelo});
    b->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(Ciclo<Nulas>)->Name("CalcularCiclo/nulas")->Apply(Argumentos);
BENCHMARK(Ciclo<Grabadas>)->Name("CalcularCiclo/grabadas")->Apply(Argumentos);
