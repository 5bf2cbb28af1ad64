// The program of the windows (vanta-ventanas), which `vanta` becomes for
// what needs Qt: the main window, and a calculation that writes the page and
// its bitmaps, a record of the results database or figures.
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
#include "core/files/EscribirArchivos.h"
#include "core/services/Numeros.h"
#include "gui/comparison/Figuras.h"
#include "gui/database/CarpetaDatos.h"
#include "gui/database/GuardarBaseDatos.h"
#include "gui/database/VentanaElegirBaseDatos.h"
#include "gui/mainwindow/VentanaPrincipal.h"
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
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) {
        std::cerr << "vanta calcular: " << p.error << "\n" << cli::kVerAyuda << "vanta calcular --help\n";
        return cli::kSalidaUso;
    }
    const cli::OpcionesCalcular& o = *p.opciones;
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
    const ResultadoCalculo r = Calcular(cli::EntradasDeCalcular(o), s);
    const int salida = cli::EscribirCalculo(r, o, std::cout, std::cerr);
    if (salida != cli::kSalidaBien) return salida;
    const std::array<QImage, 7> imagenes = cajas.Imagenes();
    // The folders are checked and the store opened before anything is
    // written, and the record goes in last: a failure leaves no record, so
    // that the exit status says whether one was kept.
    const auto bien = [](const char* que, const std::string& carpeta,
                         const std::optional<std::string>& causa) {
        if (causa)
            std::cerr << "vanta calcular: no se ha podido escribir " << que << " en " << carpeta << ": "
                      << *causa << '\n';
        return !causa;
    };
    constexpr const char* kPagina = "la página";
    constexpr const char* kFiguras = "las figuras";
    if ((!o.html.empty() && !bien(kPagina, o.html, ComprobarCarpeta(o.html))) ||
        (!o.figuras.empty() && !bien(kFiguras, o.figuras, ComprobarCarpeta(o.figuras))))
        return cli::kSalidaFallo;
    const auto escribir = [&] {
        return (o.html.empty() ||
                bien(kPagina, o.html,
                     EscribirPaginaEnCarpeta(QString::fromStdString(o.html), r, imagenes))) &&
               (o.figuras.empty() ||
                bien(kFiguras, o.figuras,
                     EscribirFiguras(CalcularComparado(r.tipoCombustible, OpcionesDeEntradas(r.entradas)),
                                     QString::fromStdString(o.figuras),
                                     *FormatoDe(QString::fromStdString(o.formato)), {o.ancho, o.alto},
                                     UnidadPresion::Pa)));
    };
    DialogosConsola dlg("vanta calcular: ");
    const bool hecho = o.guardar.empty() ? escribir()
                                         : GuardarRegistro(r, o.guardar, imagenes, dlg,
                                                           QString::fromStdString(o.baseDatos), escribir);
    return hecho ? cli::kSalidaBien : cli::kSalidaFallo;
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
    vanta::VentanaPrincipal principal(e);
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
    if (argumentos[0] == "calcular") return Calcular({argumentos.begin() + 1, argumentos.end()});
    std::cerr << "vanta: orden desconocida: " << argumentos[0] << "\n"
              << vanta::cli::kVerAyuda << "vanta --help\n";
    return vanta::cli::kSalidaUso;
}
