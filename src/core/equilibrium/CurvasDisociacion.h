// The cycle in chemical equilibrium as curves on the four diagrams, to be
// laid over the program's own cycle: from state 2, which both share, the
// combustion at V2 (2-3) and at p3 (3-4), the expansion along its isentrope
// in shifting equilibrium (4-5) and the exhaust back to state 1.
//
// The equilibrium's enthalpy and entropy are on the absolute scale of its
// gases, the program's on the scale of its polynomials: the curves are moved
// so that state 2 falls where the program draws it, and per mole of the
// gases at each point, as the program's are.
#pragma once

#include "core/comparison/Trazos.h"
#include "core/equilibrium/CicloEquilibrio.h"
#include "core/state/Estado.h"

namespace vanta::equilibrio {

// Points of the expansion's isentrope between 4 and 5.
inline constexpr int kPuntosExpansion = 40;

// The enthalpy of a mixture without that of the formation of its gases (J),
// zero at 298.15 K: the program's gases carry no chemical energy, their heat
// of combustion is added as heat.
double EntalpiaSensible(const Mezcla& m);

// The curves of a cycle that ended well, in the units of the state, with the
// colour given; equilibrio: the cycle in equilibrium (else its products are
// those of complete combustion, held along the expansion).
CurvasCiclo CurvasDisociacion(const Estado& e, const CicloEquilibrio& c, bool equilibrio, int32_t color);

}  // namespace vanta::equilibrio
