// Pictures of the windows for the documentation: writes into the folder given
// the main window at each stage and each stage window as the user sees it.
// Built on demand (`cmake --build build --target vanta_capturas`), run as
// `build/tools/vanta_capturas docs`.
#include <QApplication>
#include <QDir>
#include <QInputDialog>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <clocale>
#include <cstdio>

#include "core/database/Registro.h"
#include "gui/services/PuertosQt.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

QDir carpeta;
bool bien = true;

void Guardar(QWidget* w, const char* nombre) {
    if (!w->grab().save(carpeta.filePath(QString::fromLatin1(nombre)))) {
        std::fprintf(stderr, "vanta_capturas: no se ha podido escribir %s\n", nombre);
        bien = false;
    }
}

void Comprobar(bool cierto) {
    if (!cierto) {
        std::fprintf(stderr, "vanta_capturas: la ventana no respondió como se esperaba\n");
        bien = false;
    }
}

void LasVentanasDelCiclo() {
    Programa p{QSize()};  // the size the program starts with on this screen
    Guardar(&p.f, "ventana-principal-inicio.png");
    Comprobar(p.Pulsar("cmdElegirComburente"));
    Guardar(p.f.Aire(), "aire.png");
    Comprobar(p.Pulsar(Hijo<QPushButton>(p.f.Aire(), "cmdCal")));
    Comprobar(p.Pulsar("cmdCombustible"));
    Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Gasolina"));
    Comprobar(p.Pulsar("cmdCarCombustion"));
    Guardar(p.f.Combustion(), "gases.png");
    Comprobar(p.Pulsar(Hijo<QPushButton>(p.f.Combustion(), "cmdCalcular")));
    Guardar(&p.f, "ventana-principal-combustion.png");
    Comprobar(p.Pulsar("cmdCarCiclo"));
    Guardar(p.f.Ciclo(), "ciclo-elegir.png");
    QTest::mouseClick(Hijo<QLabel>(p.f.Ciclo(), "imgMixto"), Qt::LeftButton);
    Programa::Elegir(Hijo<QRadioButton>(p.f.Ciclo(), "optProporcion"));
    Guardar(p.f.Ciclo(), "ciclo.png");
    Comprobar(p.Calcular());
    Hijo<QLineEdit>(&p.f, "txtRpm")->setText(QStringLiteral("3000"));
    Guardar(&p.f, "ventana-principal.png");

    // The fuel button waits for a new cycle; the window is the same.
    p.f.Combustible()->show();
    Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Otros combustibles"));
    Guardar(p.f.Combustible(), "combustible.png");
}

// A fuel of long figures and an engine of huge ones: the chart's lines end
// inside it and the cells show each figure whole or say that it does not fit.
void LasCifrasGrandes() {
    Programa p{QSize()};
    Comprobar(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3() && p.AbrirCiclo("imgDiesel"));
    Hijo<QLineEdit>(p.f.Ciclo(), "txtCilindrada")->setText(QStringLiteral("900000000"));
    Hijo<QLineEdit>(p.f.Ciclo(), "txtRc")->setText(QStringLiteral("18"));
    Comprobar(p.Calcular());
    Hijo<QLineEdit>(&p.f, "txtRpm")->setText(QStringLiteral("3000"));
    Guardar(&p.f, "ventana-principal-cifras-grandes.png");
}

// The main window with a Mixto cycle at the sizes of three screens: every
// control in the same proportions, the diagrams drawn at the size shown.
void LasTresMedidas() {
    Programa p;
    Comprobar(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3() && p.AbrirCiclo("imgMixto"));
    Comprobar(p.Calcular());
    for (const QSize tamano : {QSize(1024, 768), QSize(1600, 900), QSize(2560, 1440)}) {
        p.f.resize(tamano);
        // The pictures are drawn again once the size settles.
        QTest::qWait(400);
        const QByteArray nombre =
            QStringLiteral("ventana-%1x%2.png").arg(tamano.width()).arg(tamano.height()).toLatin1();
        Guardar(&p.f, nombre.constData());
    }
}

// The name asked for a save, its suggestion whole and selected.
void ElNombreAlGuardar() {
    Programa p{QSize()};
    Comprobar(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3() && p.Etapa4("imgDiesel"));
    QTimer::singleShot(500, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<QInputDialog*>(w); d && d->isVisible()) {
                Guardar(d, "guardar-nombre.png");
                d->reject();
            }
    });
    DialogosQt(&p.f).InputBox(bd::kPromptGuardar, bd::NombrePorDefecto(p.e, "Gasoil"));
}

// The Mixto of the README with its cycle in chemical equilibrium laid over
// it, as the cycle window's check box shows it after CALCULAR.
void LaDisociacion() {
    Programa p{QSize()};
    Comprobar(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3() && p.AbrirCiclo("imgMixto"));
    Hijo<QCheckBox>(p.f.Ciclo(), "chkDisociacion")->setChecked(true);
    Hijo<QLineEdit>(p.f.Ciclo(), "txtRc")->setText(QStringLiteral("18"));
    Comprobar(p.Calcular());
    QWidget* v = Hijo<QWidget>(&p.f, "VentanaDisociacion");
    Comprobar(QTest::qWaitForWindowExposed(v));
    v->resize(1280, 760);
    QTest::qWait(50);
    Guardar(v, "disociacion.png");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "Uso: vanta_capturas CARPETA\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    // The windows' remembered sizes stay out of the pictures.
    QStandardPaths::setTestModeEnabled(true);
    QDir().mkpath(QString::fromLocal8Bit(argv[1]));
    carpeta = QDir(QString::fromLocal8Bit(argv[1]));
    LasVentanasDelCiclo();
    LasCifrasGrandes();
    ElNombreAlGuardar();
    LaDisociacion();
    LasTresMedidas();
    return bien ? 0 : 1;
}
