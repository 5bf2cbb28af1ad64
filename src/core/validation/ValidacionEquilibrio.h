// The validation of the chemical equilibrium: the constants of the
// dissociation reactions against the NIST-JANAF tables, published adiabatic
// flame temperatures, and the balances of atoms, energy and entropy of the
// states of the cycles with dissociation.
#pragma once

#include <string>
#include <vector>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/validation/Validacion.h"

namespace vanta {

// Tolerances: log10 K of a reaction, the flame temperature in K.
inline constexpr double kToleranciaLogK = 0.02;
inline constexpr double kToleranciaLlama = 5.0;

DescripcionGrupo DescripcionEquilibrio(char separador);

std::vector<Comprobacion> ComprobarConstantesEquilibrio(char separador);
std::vector<Comprobacion> ComprobarLlamas(char separador);

// The largest residual of the states of a cycle, relative: the atoms of each
// element at 3, 4 and 5 against those of the charge; and the energy of the
// combustion at 3 and 4, the entropy at 5 and the pressure of each state
// against what the cycle gives them (each state's properties evaluated again
// from its moles, temperature and volume).
struct ResiduosCiclo {
    double atomos = 0;
    double energia = 0;
};
ResiduosCiclo Residuos(const equilibrio::CicloEquilibrio& c);

// A residual as the validation shows it: "< 1E-12" below that, as it nearly
// always is; above, with two significant figures.
std::string TextoResiduo(double r, char separador);

// The balances of both cycles of a calculation.
std::vector<Comprobacion> ComprobarBalancesEquilibrio(const std::string& nombre,
                                                      const OpcionesCalculo& opciones, char separador);

// The whole group.
std::vector<Comprobacion> ComprobarEquilibrio(char separador);

}  // namespace vanta
