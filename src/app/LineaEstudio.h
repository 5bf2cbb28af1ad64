// `vanta estudio`: a parametric study headless. The options of `vanta
// calcular` give the base calculation; --variar gives one or two inputs with
// their values; the points run on every core and are written as they come, as
// CSV or JSON.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "core/studies/Estudio.h"
#include "core/studies/TablaEstudio.h"

namespace vanta::cli {

struct OpcionesEstudio {
    Estudio estudio;
    std::string csv = "-";  // file of the CSV, "-" for standard output, empty for none
    DialectoCSV dialecto = DialectoCSV::Rfc4180;
    bool json = false;   // the JSON document on standard output
    unsigned hilos = 0;  // 0: one a core
    Parte parte;
};

struct ParseoEstudio {
    std::optional<OpcionesEstudio> opciones;
    std::string error;  // why the words are off, when opciones is empty
};

ParseoEstudio ParsearEstudio(const std::vector<std::string>& argumentos);
std::string TextoUsoEstudio();

// Runs the study's share, writing its table on out (or into the file) and, when
// progreso is given, the count of points done on it. Returns 0 when every point
// ended well, 1 when one failed or the file could not be written.
int EjecutarLineaEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err,
                         std::ostream* progreso);

}  // namespace vanta::cli
