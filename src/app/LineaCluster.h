// `vanta estudio --slurm` and `--unir`: a study on a Slurm cluster, each task
// of a job array a share of it, and the shares joined into the whole table.
#pragma once

#include <iosfwd>

#include "app/LineaEstudio.h"

namespace vanta::cli {

// Writes the script into the folder of --carpeta and the command that submits
// it on out; 0, or 1 when the folder or the script could not be written.
int EscribirGuionSlurm(const OpcionesEstudio& o, std::ostream& out, std::ostream& err);

// Joins the shares of the folder of --unir on out or into the file of --csv
// or --json; when a share is missing, cut, interrupted or of another study,
// names it and writes nothing (exit 1).
int UnirEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err);

}  // namespace vanta::cli
