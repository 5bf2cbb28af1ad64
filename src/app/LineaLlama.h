// `vanta llama`: the adiabatic flame of a fuel with its air, the fuel and the
// air defined by the options of `vanta calcular`, the reactants at the
// ambient temperature and pressure, as text or JSON.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vanta::cli {

std::string TextoUsoLlama();

// Writes the flame on out and the messages on err; returns the exit status:
// 0 for a flame found, 1 when the fluid was refused or the flame has no
// solution, 2 for a usage error.
int EjecutarLlama(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err);

}  // namespace vanta::cli
