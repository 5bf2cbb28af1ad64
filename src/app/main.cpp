// Vanta: with no arguments the main window; `vanta calcular …` and
// `vanta tablas …` the same logic headless.
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "mainwindow/frmFase1.h"
#include "resources/Programa.h"
#include "services/Numeros.h"

namespace {

int Calcular(const std::vector<std::string>& argumentos) {
    using namespace vanta;
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        std::cout << cli::TextoUso();
        return cli::kSalidaBien;
    }
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) {
        std::cerr << "vanta calcular: " << p.error << "\n\n" << cli::TextoUso();
        return cli::kSalidaUso;
    }
    Estado e;
    GuardarColoresDiagramas(e);
    DialogosConsola dlg;
    SuperficieNula pct1, pct2, pct3;
    DiagramasNulos diagramas;
    cli::SuperficiesCalculo s{pct1, pct2, pct3, diagramas.Todos()};
    return cli::EjecutarCalcular(e, *p.opciones, dlg, s, std::cout);
}

// The decimal separator of the system's regional settings: a Spanish system
// writes and reads "8,5".
char SeparadorDelSistema() {
    const QString separador = QLocale::system().decimalPoint();
    if (separador == QLatin1String(",")) return ',';
    return '.';
}

// The desktop program: the main window until the user closes it.
int Ventanas(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    // Creating the application set the C library's numbers to the system's
    // locale; the program's own conversions follow the separator below.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(vanta::NombrePrograma());
    QApplication::setApplicationVersion(vanta::VersionPrograma());

    // Qt's own buttons and dialogs in Spanish ("&Sí", "Cancelar").
    QTranslator traductor;
    if (traductor.load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traductor);

    vanta::FijarSeparadorDecimal(SeparadorDelSistema());

    vanta::Estado e;
    vanta::frmFase1 principal(e);
    principal.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    if (argumentos.empty()) return Ventanas(argc, argv);
    if (!argumentos.empty() && argumentos[0] == "calcular")
        return Calcular({argumentos.begin() + 1, argumentos.end()});
    std::cerr << vanta::cli::TextoUso();
    return vanta::cli::kSalidaUso;
}
