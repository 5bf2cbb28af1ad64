// Vanta: with no arguments the main window; `vanta calcular …`,
// `vanta estudio …`, `vanta tablas …` and `vanta validar` the same logic
// headless.
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <clocale>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "app/LineaEstudio.h"
#include "app/LineaLlama.h"
#include "app/LineaTablas.h"
#include "app/LineaValidacion.h"
#include "core/services/Numeros.h"
#include "gui/comparison/Figuras.h"
#include "gui/database/CarpetaDatos.h"
#include "gui/database/GuardarBaseDatos.h"
#include "gui/database/frmElegirBaseDatos.h"
#include "gui/mainwindow/frmFase1.h"
#include "gui/reports/PaginaWeb.h"
#include "gui/resources/Programa.h"
#include "gui/services/SuperficiesSinVentana.h"

namespace {

// Qt's own notes (a folder of the runtime it made up, a font it fell back
// from) are not messages of the program: the command line keeps to its own.
void SoloMensajesGraves(QtMsgType tipo, const QMessageLogContext&, const QString& mensaje) {
    if (tipo == QtCriticalMsg || tipo == QtFatalMsg) std::cerr << "vanta: " << mensaje.toStdString() << '\n';
}

// A window needs a screen: on a system with none, Qt would end the program
// with its own words.
bool HayPantalla() {
    for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(variable)) return true;
    return false;
}

int Calcular(const std::vector<std::string>& argumentos) {
    using namespace vanta;
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        std::cout << cli::TextoUso();
        return cli::kSalidaBien;
    }
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) {
        std::cerr << "vanta calcular: " << p.error << "\n" << cli::kVerAyuda << "vanta calcular --help\n";
        return cli::kSalidaUso;
    }
    const cli::OpcionesCalcular& o = *p.opciones;
    Estado e;
    GuardarColoresDiagramas(e);
    DialogosConsola dlg("vanta calcular: ");
    if (o.html.empty() && o.guardar.empty() && o.figuras.empty()) {
        SuperficiesNulas nulas;
        SuperficiesCalculo s = nulas.Todas();
        return cli::EjecutarCalcular(e, o, dlg, s, std::cout, &std::cerr);
    }
    // The pictures are drawn offscreen, at the sizes of the main window's
    // boxes in the overview of a 1024 x 768 screen, the size the layout was
    // made for.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc = 1;
    char nombre[] = "vanta";
    char* argv[] = {nombre, nullptr};
    QGuiApplication aplicacion(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    SuperficiesSinVentana cajas;
    SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
    std::string informe;
    const int salida = cli::EjecutarCalcular(e, o, dlg, s, std::cout, informe, &std::cerr);
    if (salida != cli::kSalidaBien) return salida;
    const std::string tipo = TextoListaCombustible(o);
    const std::array<QImage, 7> imagenes = cajas.Imagenes();
    if (!o.html.empty()) {
        if (const auto fallo = EscribirPaginaEnCarpeta(QString::fromStdString(o.html), e, tipo, imagenes)) {
            std::cerr << "vanta calcular: no se ha podido escribir la página en " << o.html << ": " << *fallo
                      << '\n';
            return cli::kSalidaFallo;
        }
    }
    if (!o.guardar.empty()) {
        if (!GuardarRegistro(e, o.guardar, tipo, informe, imagenes, dlg, QString::fromStdString(o.baseDatos)))
            return cli::kSalidaFallo;
    }
    if (!o.figuras.empty()) {
        const std::string error = EscribirFiguras(
            CalcularComparado(tipo, o), QString::fromStdString(o.figuras),
            *FormatoDe(QString::fromStdString(o.formato)), {o.ancho, o.alto}, UnidadPresion::Pa);
        if (!error.empty()) {
            std::cerr << "vanta calcular: " << error << '\n';
            return cli::kSalidaFallo;
        }
    }
    return cli::kSalidaBien;
}

// A parametric study headless, with its progress on the terminal.
int Estudio(const std::vector<std::string>& argumentos) {
    using namespace vanta;
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        std::cout << cli::TextoUsoEstudio();
        return cli::kSalidaBien;
    }
    const cli::ParseoEstudio p = cli::ParsearEstudio(argumentos);
    if (!p.opciones) {
        std::cerr << "vanta estudio: " << p.error << "\n" << cli::kVerAyuda << "vanta estudio --help\n";
        return cli::kSalidaUso;
    }
    return cli::EjecutarLineaEstudio(*p.opciones, std::cout, std::cerr,
                                     isatty(fileno(stderr)) ? &std::cerr : nullptr);
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
    if (!HayPantalla()) {
        std::cerr << "vanta: la ventana del programa necesita una pantalla, y este sistema no tiene ninguna "
                     "(ni DISPLAY ni WAYLAND_DISPLAY).\n"
                     "«vanta calcular» y «vanta tablas» funcionan sin ella; «vanta --help» dice cómo.\n";
        return vanta::cli::kSalidaFallo;
    }
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

    vanta::Estado e;
    e.SeparadorDecimal = SeparadorDelSistema();
    vanta::frmFase1 principal(e);
    principal.FijarDireccionBaseDatos(vanta::DireccionRecordada());
    principal.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    if (argumentos.empty()) return Ventanas(argc, argv);
    // The desktop entry's start: the data in the user's folder.
    if (argumentos.size() == 1 && argumentos[0] == "--carpeta-datos") {
        QString error;
        if (!vanta::EntrarEnCarpetaDatos(error)) std::cerr << "vanta: " << error.toStdString() << '\n';
        return Ventanas(argc, argv);
    }
    qInstallMessageHandler(SoloMensajesGraves);
    const std::string orden = argumentos[0];
    const std::vector<std::string> resto(argumentos.begin() + 1, argumentos.end());
    if (orden == "calcular") return Calcular(resto);
    if (orden == "estudio") return Estudio(resto);
    if (orden == "tablas") return vanta::cli::EjecutarTablas(resto, std::cout, std::cerr);
    if (orden == "validar") return vanta::cli::EjecutarValidar(resto, std::cout, std::cerr);
    if (orden == "llama") return vanta::cli::EjecutarLlama(resto, std::cout, std::cerr);
    if (orden == "--help" || orden == "-h") {
        std::cout << vanta::cli::TextoUso();
        return vanta::cli::kSalidaBien;
    }
    if (orden == "--version") {
        std::cout << "vanta " << vanta::VersionPrograma().toStdString() << '\n';
        return vanta::cli::kSalidaBien;
    }
    std::cerr << "vanta: orden desconocida: " << orden << "\n" << vanta::cli::kVerAyuda << "vanta --help\n";
    return vanta::cli::kSalidaUso;
}
