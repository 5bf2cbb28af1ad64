// `vanta estudio`: a parametric study headless. The options of `vanta
// calcular` give the base calculation; --variar gives one or two inputs with
// their values; the points run on every core and are written as they come, as
// CSV or JSON.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "app/SalidaSegura.h"
#include "core/studies/Estudio.h"
#include "core/studies/TablaEstudio.h"

namespace vanta::cli {

// Before each of the study's messages.
inline constexpr const char* kPrefijoEstudio = "vanta estudio: ";

struct OpcionesEstudio {
    Estudio estudio;
    std::string csv = "-";  // file of the CSV, "-" for standard output, empty for none
    DialectoCSV dialecto = DialectoCSV::Rfc4180;
    bool json = false;        // the JSON document
    std::string archivoJson;  // its file; empty for standard output
    unsigned hilos = 0;       // 0: one a core
    Parte parte;
    bool conParte = false;  // --parte given: the output opens with the share's mark
    // The words that define the study (all but where and how it runs), which
    // the shares' mark names.
    std::vector<std::string> palabras;
    // --slurm N: instead of the run, the script of a Slurm job array of N
    // tasks into the folder, with what its #SBATCH lines ask of the cluster.
    size_t slurm = 0;
    std::string carpeta, particion, tiempo, memoria;
    // --unir CARPETA: instead of the run, the shares in the folder joined.
    std::string unir;
};

struct ParseoEstudio {
    std::optional<OpcionesEstudio> opciones;
    std::string error;  // why the words are off, when opciones is empty
};

ParseoEstudio ParsearEstudio(const std::vector<std::string>& argumentos);
std::string TextoUsoEstudio();

// Runs the study's share, writing its table on out (or into the files, whole
// or not at all) and, when progreso is given, the count of points done on it;
// or writes the script of --slurm, or joins the shares of --unir. Returns 0
// when every point ended well, 1 when one failed or an output could not be
// written (then the run stops), 128 + the signal when parada says one came.
int EjecutarLineaEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err,
                         std::ostream* progreso, Parada* parada = nullptr);

}  // namespace vanta::cli
