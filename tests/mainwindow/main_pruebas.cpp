// The window tests: offscreen unless a platform is given, numbers with the C
// library's point and the program's separator pinned to '.'.
#include <QApplication>
#include <QTest>
#include <clocale>
#include <memory>

#include "Pruebas.h"
#include "resources/Programa.h"
#include "services/Numeros.h"

namespace vanta::pruebas {
std::vector<Fabrica>& Registro() {
    static std::vector<Fabrica> registro;
    return registro;
}
}  // namespace vanta::pruebas

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(vanta::NombrePrograma());
    std::setlocale(LC_NUMERIC, "C");
    vanta::FijarSeparadorDecimal('.');
    int fallos = 0;
    for (const auto& fabrica : vanta::pruebas::Registro()) {
        std::unique_ptr<QObject> prueba(fabrica());
        fallos += QTest::qExec(prueba.get(), argc, argv);
    }
    return fallos == 0 ? 0 : 1;
}
