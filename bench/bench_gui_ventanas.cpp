// The desktop program on the offscreen platform: from "CALCULAR" to the four
// diagrams drawn on their surfaces at the overview of a 1024 × 768 window
// (target 30 ms in Release), and from the main window's start to its first
// paint (target 500 ms).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <clocale>
#include <memory>

#include "core/services/Numeros.h"
#include "gui/cycle/VentanaCiclo.h"
#include "gui/fluids/VentanaAire.h"
#include "gui/fluids/VentanaCombustible.h"
#include "gui/fluids/VentanaCombustion.h"
#include "gui/mainwindow/VentanaPrincipal.h"
#include "gui/services/Dialogos.h"

namespace {

using namespace vanta;

const QSize kDiseno(1024, 768);

QApplication& Aplicacion() {
    static int argc = 1;
    static char nombre[] = "bench_gui_ventanas";
    static char* argv[] = {nombre, nullptr};
    // Made on first use and never destroyed: the benchmarks' main knows
    // nothing of Qt, and an application torn down among the static
    // destructors at exit would outlive the libraries it needs.
    static QApplication* app = [] {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        auto* a = new QApplication(argc, argv);
        std::setlocale(LC_NUMERIC, "C");

        return a;
    }();
    return *app;
}

template <class T>
T* Hijo(const QObject* raiz, const char* nombre) {
    return raiz->findChild<T*>(QString::fromLatin1(nombre));
}

// Waits for the first paint of a window.
class EsperaPintado : public QObject {
public:
    bool pintada = false;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) pintada = true;
        return false;
    }
};

// The program with the first three stages done and the Otto cycle chosen.
struct ProgramaListo {
    Estado e;
    DialogosGrabados dlg;
    VentanaPrincipal f{e, &dlg, kDiseno};
    QPushButton* calcular = nullptr;

    ProgramaListo() {
        f.FijarMostrarModal([](QDialog& d) { d.show(); });
        f.show();
        QApplication::processEvents();
        f.cmdElegirComburente_Click();
        Hijo<QPushButton>(f.Aire(), "cmdCal")->click();
        f.cmdCombustible_Click();
        auto* lista = Hijo<QComboBox>(f.Combustible(), "cboTipCom");
        lista->setCurrentIndex(lista->findText(QStringLiteral("Gasolina")));
        f.Combustible()->cboTipCom_Click();
        f.cmdCarCombustion_Click();
        Hijo<QPushButton>(f.Combustion(), "cmdCalcular")->click();
        f.cmdCarCiclo_Click();
        f.Ciclo()->imgOtto_Click();
        calcular = Hijo<QPushButton>(f.Ciclo(), "cmdCal");
        QApplication::processEvents();
    }
};

// A press of "CALCULAR": both passes of the cycle drawing on the Qt surfaces,
// then the window painting what changed.
void BM_CalcularHastaDiagramas(benchmark::State& estado) {
    Aplicacion();
    ProgramaListo p;
    for (auto _ : estado) {
        p.calcular->click();
        QApplication::processEvents();
        benchmark::DoNotOptimize(p.f.pctPV()->Imagen().constBits());
    }
    if (p.e.ErrorCalculo || !p.dlg.mensajes.empty()) estado.SkipWithError("el cálculo falló");
}
BENCHMARK(BM_CalcularHastaDiagramas)->Unit(benchmark::kMillisecond)->MinTime(2.0);

// The main window from nothing to its first paint: its controls, the stage
// windows and their pictures, the splash.
void BM_ArranqueHastaPrimerPintado(benchmark::State& estado) {
    Aplicacion();
    for (auto _ : estado) {
        Estado e;
        DialogosGrabados dlg;
        auto f = std::make_unique<VentanaPrincipal>(e, &dlg, kDiseno);
        EsperaPintado espera;
        Hijo<QLabel>(f.get(), "imgPresentacion")->installEventFilter(&espera);
        f->show();
        while (!espera.pintada) QApplication::processEvents(QEventLoop::AllEvents, 5);
        estado.PauseTiming();
        f.reset();
        QApplication::processEvents();
        estado.ResumeTiming();
    }
}
BENCHMARK(BM_ArranqueHastaPrimerPintado)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
