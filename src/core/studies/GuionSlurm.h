// A study on a Slurm cluster: the batch script of a job array whose task K
// runs share K of N of the study into the study's folder, where
// `vanta estudio --unir` joins the shares.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/studies/PartesEstudio.h"

namespace vanta {

struct PeticionSlurm {
    std::string programa;               // vanta, by its absolute path
    std::vector<std::string> palabras;  // the words that define the study
    size_t tareas = 1;                  // N
    std::string carpeta;                // absolute: the shares, the script and Slurm's logs
    FormatoParte formato = FormatoParte::CSV;
    unsigned hilos = 1;                      // CPUs of each task
    std::string particion, tiempo, memoria;  // empty: the cluster's own
};

// The name of the script in the folder.
inline constexpr const char* kNombreGuion = "estudio.sbatch";

// t as one word of the shell, whatever it holds: in single quotes, each of
// its own quotes written '\''.
std::string ComillasShell(std::string_view t);

// Why a value cannot go into its #SBATCH line, or empty: a folder with a line
// end or a backslash (Slurm does not read them in a file name), a time that is
// none of Slurm's forms (minutes, M:S, H:M:S, D-H, D-H:M, D-H:M:S), a memory
// that is not a whole number with K, M, G or T, a partition that is not a
// list of plain names.
std::string ComprobarCarpetaSlurm(std::string_view carpeta);
std::string ComprobarTiempoSlurm(std::string_view tiempo);
std::string ComprobarMemoriaSlurm(std::string_view memoria);
std::string ComprobarParticionSlurm(std::string_view particion);

std::string GuionSlurm(const PeticionSlurm& p);

}  // namespace vanta
