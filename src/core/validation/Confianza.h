// What the command line adds to a calculation for the user's trust: the
// validity warnings and the distance to the ideal cycle, as members of the
// JSON of the state.
#pragma once

#include <string>
#include <string_view>

#include "core/state/Estado.h"

namespace vanta {

// EstadoJSON with, after the state's own keys, "avisos" (the texts of the
// validity warnings, empty unless the calculation ended well), and, when it
// ended well and each ideal cycle exists, "RendimientoIdealAireEstandar" (gamma
// 1.4), "RendimientoIdealExponentes" (the calculation's own mean exponents),
// "ExponenteMedioCompresion" and "ExponenteMedioExpansion".
std::string EstadoJSONConfianza(const Estado& e, std::string_view combustible, bool bien);

}  // namespace vanta
