// The window tests: offscreen unless a platform is given, numbers with the C
// library's point and the program's separator pinned to '.'.
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <clocale>
#include <memory>

#include "core/services/Numeros.h"
#include "gui/resources/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

namespace vanta::pruebas {
std::vector<Fabrica>& Registro() {
    static std::vector<Fabrica> registro;
    return registro;
}
}  // namespace vanta::pruebas

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the windows remember goes to a folder of this run: never the
    // user's settings, and none left from an earlier run.
    QTemporaryDir configuracion;
    qputenv("XDG_CONFIG_HOME", configuracion.path().toLocal8Bit());
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(vanta::NombrePrograma());
    std::setlocale(LC_NUMERIC, "C");

    std::vector<std::unique_ptr<QObject>> pruebas;
    for (const auto& fabrica : vanta::pruebas::Registro()) pruebas.emplace_back(fabrica());
    // A first argument that names a test class runs that class alone, with
    // the arguments that follow it.
    const QString clase = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    auto esLaClase = [&](const std::unique_ptr<QObject>& p) {
        return clase == QLatin1String(p->metaObject()->className());
    };
    const bool unaClase = std::any_of(pruebas.begin(), pruebas.end(), esLaClase);
    if (unaClase) argv[1] = argv[0];
    int fallos = 0;
    for (const auto& prueba : pruebas) {
        if (!unaClase)
            fallos += QTest::qExec(prueba.get(), argc, argv);
        else if (esLaClase(prueba))
            fallos += QTest::qExec(prueba.get(), argc - 1, argv + 1);
    }
    return fallos == 0 ? 0 : 1;
}
