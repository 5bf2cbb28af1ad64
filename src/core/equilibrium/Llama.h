// The adiabatic flame: a fuel and its air at a relative fuel/air ratio, from
// the state of the reactants, burnt at constant pressure or at constant
// volume to products in chemical equilibrium or of complete combustion, with
// the same energy equation for both: the enthalpy (or the internal energy) of
// the products equals that of the reactants, on the absolute scale of Gases.h.
// The fuel enters at its enthalpy of formation, with no sensible part.
#pragma once

#include <string>

#include "core/equilibrium/Equilibrio.h"

namespace vanta::equilibrio {

// A fuel as the program defines it: atoms per molecule and its enthalpy of
// formation, J/mol.
struct Combustible {
    double C = 0, H = 0, N = 0, O = 0, S = 0;
    double entalpiaFormacion = 0;
};

// The air as mole fractions of its gases: O2 + 3.76 N2, as combustion tables
// take it.
inline constexpr double kNitrogenoPorOxigeno = 3.76;
Moles AireO2N2();

struct DatosLlama {
    Combustible combustible;
    Moles aire{};  // mole fractions
    double Fr = 1;
    double T = 298.15, p = 101325;  // of the reactants: K, Pa
    bool volumenConstante = false;
    bool sinDisociacion = false;
};

struct ResultadoLlama {
    bool bien = false;
    std::string mensaje;
    Mezcla productos;              // per mole of fuel
    Moles aire{};                  // moles of each gas of the air per mole of fuel
    double entalpiaReactivos = 0;  // J per mole of fuel
};

// Moles of air per mole of fuel at Fr: the oxygen the fuel needs to burn
// completely (its sulphur to SO2) over the share of O2 in the air, over Fr.
// Zero when it cannot be had (the reason in error).
double MolesAirePorMol(const Combustible& f, const Moles& aire, double Fr, std::string& error);

ResultadoLlama LlamaAdiabatica(const DatosLlama& d);

}  // namespace vanta::equilibrio
