// Seven-coefficient polynomials of the gases of the chemical equilibrium that
// the program's six species do not cover (H2, H, O, N, OH, NO), fitted to the
// NIST-JANAF tables by tools/ajuste_janaf. Same form and ranges as the
// program's (up to 1000 K inclusive, and above), but with absolute enthalpies:
// a6 holds the enthalpy of formation at 298.15 K.
#pragma once

#include "core/properties/Especies.h"

namespace vanta::equilibrio {

inline constexpr int kEspeciesJANAF = 6;
extern const Coeficientes kCoeficientesJANAFBaja[kEspeciesJANAF];
extern const Coeficientes kCoeficientesJANAFAlta[kEspeciesJANAF];

}  // namespace vanta::equilibrio
