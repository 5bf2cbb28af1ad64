// Vanta: `vanta calcular …`, `vanta estudio …`, `vanta tablas …` and `vanta
// validar` headless, with the standard library alone, so that a command
// starts in a few milliseconds; the main window, and a calculation that
// writes a page, a record or figures, run in the program of the windows
// (vanta-ventanas), which this one becomes with the same words.
#include <limits.h>
#include <unistd.h>

#include <cerrno>
#include <clocale>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "app/LineaEstudio.h"
#include "app/LineaLlama.h"
#include "app/LineaTablas.h"
#include "app/LineaValidacion.h"
#include "app/SalidaSegura.h"

#ifndef VANTA_VERSION
#define VANTA_VERSION "0.0.0"
#endif
// Where the program of the windows is, from this program's folder: beside it
// in the build, and as it is installed.
#ifndef VANTA_RUTA_VENTANAS
#define VANTA_RUTA_VENTANAS "../lib/vanta/vanta-ventanas"
#endif

namespace {

constexpr const char* kProgramaVentanas = "vanta-ventanas";

std::string CarpetaDelPrograma() {
    char ruta[PATH_MAX];
    const ssize_t n = readlink("/proc/self/exe", ruta, sizeof ruta - 1);
    if (n <= 0) return ".";
    std::string r(ruta, static_cast<size_t>(n));
    return r.substr(0, r.rfind('/'));
}

// Becomes the program of the windows with the same words; returns only when
// it cannot be found or started.
int Ventanas(char** argv) {
    const std::string carpeta = CarpetaDelPrograma();
    for (const std::string& ruta : {carpeta + "/" + kProgramaVentanas, carpeta + "/" + VANTA_RUTA_VENTANAS}) {
        if (access(ruta.c_str(), X_OK) != 0) continue;
        execv(ruta.c_str(), argv);
        std::cerr << "vanta: no se ha podido abrir " << ruta << ": " << std::strerror(errno) << '\n';
        return vanta::cli::kSalidaFallo;
    }
    std::cerr << "vanta: falta el programa de las ventanas (" << kProgramaVentanas << ") junto a " << carpeta
              << "; la línea de órdenes sin --html, --guardar ni --figuras funciona sin él.\n";
    return vanta::cli::kSalidaFallo;
}

int Calcular(const std::vector<std::string>& argumentos, char** argv) {
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
    if (cli::NecesitaVentanas(*p.opciones)) return Ventanas(argv);
    return cli::EjecutarCalcular(*p.opciones, std::cout, std::cerr);
}

// A parametric study, with its progress on the terminal.
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
    // A run stops between points on SIGINT or SIGTERM; a join or a script is
    // ended by them at once.
    const bool corrida = p.opciones->unir.empty() && !p.opciones->slurm;
    return cli::EjecutarLineaEstudio(*p.opciones, std::cout, std::cerr,
                                     isatty(fileno(stderr)) ? &std::cerr : nullptr,
                                     corrida ? &cli::PararConSenales() : nullptr);
}

// A subcommand, or the help, or the version.
int Orden(const std::string& orden, const std::vector<std::string>& resto, char** argv) {
    if (orden == "calcular") return Calcular(resto, argv);
    if (orden == "estudio") return Estudio(resto);
    if (orden == "tablas") return vanta::cli::EjecutarTablas(resto, std::cout, std::cerr);
    if (orden == "validar") return vanta::cli::EjecutarValidar(resto, std::cout, std::cerr);
    if (orden == "llama") return vanta::cli::EjecutarLlama(resto, std::cout, std::cerr);
    if (orden == "--help" || orden == "-h") {
        std::cout << vanta::cli::TextoUso();
        return vanta::cli::kSalidaBien;
    }
    if (orden == "--version") {
        std::cout << "vanta " << VANTA_VERSION << '\n';
        return vanta::cli::kSalidaBien;
    }
    std::cerr << "vanta: orden desconocida: " << orden << "\n" << vanta::cli::kVerAyuda << "vanta --help\n";
    return vanta::cli::kSalidaUso;
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    if (argumentos.empty() || argumentos[0] == "--carpeta-datos") return Ventanas(argv);
    const std::string orden = argumentos[0];
    const std::vector<std::string> resto(argumentos.begin() + 1, argumentos.end());
    vanta::cli::SalidaEstandar salida;
    return salida.Terminar(orden, Orden(orden, resto, argv));
}
