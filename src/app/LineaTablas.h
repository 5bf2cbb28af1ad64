// `vanta tablas`: the property tables tool headless. The fluid is defined by
// the options of `vanta calcular` through the same stages as there, and the
// table is the text that the viewer would show.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vanta::cli {

std::string TextoUsoTablas();

// Whether the name is one of the options of `calcular` that define the fluid
// (the air, the fuel, Fr or Lambda).
bool EsOpcionFluido(const std::string& nombre);

// The help lines of those options, as `calcular --help` writes them.
std::string AyudaEntradasFluido();

// Writes the table on out and the messages on err; returns the exit status:
// 0 for a whole table, 1 when the fluid, a number or the range was refused or
// the calculation stopped, 2 for a usage error (with the usage text on err).
int EjecutarTablas(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err);

}  // namespace vanta::cli
