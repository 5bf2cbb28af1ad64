// The command line: `vanta calcular` makes the typed inputs from its options
// (the table of inputs), runs the calculation headless and writes the report,
// the JSON of the state, the page or a record.
#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/inputs/Entradas.h"
#include "core/sequence/Calculo.h"

namespace vanta::cli {

// Exit status of the command line.
inline constexpr int kSalidaBien = 0;
inline constexpr int kSalidaFallo = 1;
inline constexpr int kSalidaUso = 2;

// After a usage error: where the options are told (followed by the command).
inline constexpr const char* kVerAyuda = "Las opciones, con ";
// After an option given twice.
inline constexpr const char* kDadaDosVeces = " se ha dado dos veces";

// The inputs of the calculation, and what to write besides the report.
struct OpcionesCalcular : OpcionesCalculo {
    bool json = false;
    // Also the cycle with dissociation: after the report, or in the JSON.
    bool disociacion = false;
    std::string html;     // folder for the page and its bitmaps, empty for none
    std::string guardar;  // record name for the results database, empty for none
    // The results database: a file, or a postgresql:// address; empty for
    // BD.sqlite in the current folder.
    std::string baseDatos;
    std::string figuras;           // folder for the diagrams and charts as figures, empty for none
    std::string formato = "png";   // of the figures: png, svg or pdf
    int ancho = 1200, alto = 900;  // of the figures, in pixels
};

struct Parseo {
    std::optional<OpcionesCalcular> opciones;
    std::string error;  // why the words are off, when opciones is empty
};

Parseo ParsearCalcular(const std::vector<std::string>& argumentos);

// The words of a subcommand with "--name=value" split in two, as
// "--name value".
std::vector<std::string> SepararIgual(const std::vector<std::string>& argumentos);
std::string TextoUso();

// Writes what a calculation gave: its messages on err (one a line after
// "vanta calcular: "), the report (or the JSON) on out, the power when a speed
// was given, and after the report of a calculation that ended well its
// validity warnings on err (one a line after "aviso: "; with --json they are
// in the JSON instead). Returns the exit status.
int EscribirCalculo(const ResultadoCalculo& r, const OpcionesCalcular& o, std::ostream& out,
                    std::ostream& err);

// The typed inputs of the options; with --json, no speed (the JSON holds no
// power).
Entradas EntradasDeCalcular(const OpcionesCalcular& o);
// The calculation headless, as `vanta calcular` runs it without pictures.
int EjecutarCalcular(const OpcionesCalcular& o, std::ostream& out, std::ostream& err);

// Whether the options need the windows' libraries: a page, a record or figures.
bool NecesitaVentanas(const OpcionesCalcular& o);

}  // namespace vanta::cli
