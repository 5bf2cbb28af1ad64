// Pictures of the windows for the documentation: writes into the folder given
// the main window at each stage and each stage window as the user sees it.
// Built on demand (`cmake --build build --target vanta_capturas`), run as
// `build/tools/vanta_capturas docs`.
#include <QApplication>
#include <QDir>
#include <QTest>
#include <clocale>
#include <cstdio>

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

void QVERIFY(bool cierto) {
    if (!cierto) {
        std::fprintf(stderr, "vanta_capturas: la ventana no respondió como se esperaba\n");
        bien = false;
    }
}

void LasVentanasDelCiclo() {
    Programa p;
    Guardar(&p.f, "ventana-principal-inicio.png");
    QVERIFY(p.Pulsar("cmdElegirComburente"));
    Guardar(p.f.AireHumedad(), "aire.png");
    QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.AireHumedad(), "cmdCal")));
    QVERIFY(p.Pulsar("cmdCombustible"));
    Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Gasolina"));
    QVERIFY(p.Pulsar("cmdCarCombustion"));
    Guardar(p.f.GasesCombustion(), "gases.png");
    QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.GasesCombustion(), "cmdCalcular")));
    Guardar(&p.f, "ventana-principal-combustion.png");
    QVERIFY(p.Pulsar("cmdCarCiclo"));
    Guardar(p.f.Otto_Diesel(), "ciclo-elegir.png");
    QTest::mouseClick(Hijo<QLabel>(p.f.Otto_Diesel(), "imgMixto"), Qt::LeftButton);
    Programa::Elegir(Hijo<QRadioButton>(p.f.Otto_Diesel(), "optProporcion"));
    Guardar(p.f.Otto_Diesel(), "ciclo.png");
    QVERIFY(p.Calcular());
    Hijo<QLineEdit>(&p.f, "txtRpm")->setText(QStringLiteral("3000"));
    Guardar(&p.f, "ventana-principal.png");

    // The fuel button waits for a new cycle; the window is the same.
    p.f.Combustible()->show();
    Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Otros combustibles"));
    Guardar(p.f.Combustible(), "combustible.png");
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
    QDir().mkpath(QString::fromLocal8Bit(argv[1]));
    carpeta = QDir(QString::fromLocal8Bit(argv[1]));
    LasVentanasDelCiclo();
    return bien ? 0 : 1;
}
