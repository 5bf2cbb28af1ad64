// `vanta validar`: the validation table as text.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace vanta::cli {

// Writes the table on out; returns 0 when every check passes, 1 when one does
// not, 2 for a usage error (its text on err).
int EjecutarValidar(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err);

}  // namespace vanta::cli
