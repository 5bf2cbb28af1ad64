// The tables tool on the offscreen platform: the air from 300 to 5000 K in
// steps of 0.1 K (47 001 rows) made into the viewer as the TABLAS button does
// it, growing in view (target 1 s in Release); and the same table as text
// only, the share of the core.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <clocale>

#include "core/sequence/Calculo.h"
#include "core/services/Numeros.h"
#include "core/tables/TablasPropiedades.h"
#include "gui/tables/VentanaHerramientas.h"
#include "gui/tables/VentanaTablas.h"

namespace {

using namespace vanta;

// The application lives as long as the process: destroyed among the static
// objects at exit, after Qt's own, it would crash the run that went well.
QApplication& Aplicacion() {
    static int argc = 1;
    static char nombre[] = "bench_gui_tablas";
    static char* argv[] = {nombre, nullptr};
    static QApplication* app = [] {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        auto* a = new QApplication(argc, argv);
        std::setlocale(LC_NUMERIC, "C");
        return a;
    }();
    return *app;
}

// The air, the fuel and the combustion as the screens start.
void FluidoDeLasPantallas(Estado& e) {
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    Mensajes msj;
    DefinirFluido(e, msj, Entradas(), s, true);
}

constexpr int kFilas = 47001;

void BM_TablaAireEnElVisor(benchmark::State& estado) {
    Aplicacion();
    Estado e;
    DialogosGrabados dlg;
    FluidoDeLasPantallas(e);
    VentanaHerramientas f(e, dlg, {});
    f.MostrarCicloActual();
    f.findChild<QLineEdit*>(QStringLiteral("txtAT"))->setText(QStringLiteral("0.1"));
    auto* tablas = f.findChild<QPushButton*>(QStringLiteral("cmdTablas"));
    auto* caja = f.Tablas()->findChild<QPlainTextEdit*>(QStringLiteral("rtfTablas"));
    for (auto _ : estado) {
        tablas->click();
        QCoreApplication::processEvents();  // the last batch painted
        if (caja->document()->blockCount() != 2 * kFilas + 4) estado.SkipWithError("la tabla no está entera");
    }
    estado.counters["filas"] = kFilas;
}
BENCHMARK(BM_TablaAireEnElVisor)->Unit(benchmark::kMillisecond)->MinTime(3);

void BM_TablaAireComoTexto(benchmark::State& estado) {
    Estado e;
    FluidoDeLasPantallas(e);
    EntradasHerramientas c;
    c.incremento = "0.1";
    c.porMol = c.aire = true;
    MiembrosHerramientas m;
    Mensajes msj;
    for (auto _ : estado) {
        VisorTablasTexto v;
        cmdTablas_Click(e, msj, c, m, v, "Gasolina");
        benchmark::DoNotOptimize(v.texto.data());
    }
}
BENCHMARK(BM_TablaAireComoTexto)->Unit(benchmark::kMillisecond);

}  // namespace
