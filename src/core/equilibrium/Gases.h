// The gases of the chemical equilibrium and their properties on one absolute
// scale of enthalpy: the enthalpy of formation at 298.15 K plus the sensible
// part. The program's six species (Ar, CO, CO2, H2O, N2, O2) keep its own
// polynomials, with the formation enthalpies of the NIST-JANAF tables added;
// H2, H, O, N, OH and NO take the polynomials fitted to the same tables. SO2,
// the sulphur's one product, is held out of the dissociation: it has the cp and
// entropy of CO2 and no enthalpy of formation, as the program's heating values
// count no heat from sulphur.
#pragma once

#include <array>

namespace vanta::equilibrio {

// The first six in the order and with the indices of the program's species.
enum Gas : int { Ar, CO, CO2, H2O, N2, O2, H2, H, O, N, OH, NO, SO2 };
inline constexpr int kGases = 13;
inline constexpr const char* kNombresGases[kGases] = {"Ar", "CO", "CO2", "H2O", "N2", "O2", "H2",
                                                      "H",  "O",  "N",   "OH",  "NO", "SO2"};

enum Elemento : int { eC, eH, eO, eN, eAr, eS };
inline constexpr int kElementos = 6;

// Atoms of each element in a molecule of each gas.
inline constexpr double kAtomos[kGases][kElementos] = {
    {0, 0, 0, 0, 1, 0},  // Ar
    {1, 0, 1, 0, 0, 0},  // CO
    {1, 0, 2, 0, 0, 0},  // CO2
    {0, 2, 1, 0, 0, 0},  // H2O
    {0, 0, 0, 2, 0, 0},  // N2
    {0, 0, 2, 0, 0, 0},  // O2
    {0, 2, 0, 0, 0, 0},  // H2
    {0, 1, 0, 0, 0, 0},  // H
    {0, 0, 1, 0, 0, 0},  // O
    {0, 0, 0, 1, 0, 0},  // N
    {0, 1, 1, 0, 0, 0},  // OH
    {0, 0, 1, 1, 0, 0},  // NO
    {0, 0, 2, 0, 0, 1},  // SO2
};

// Enthalpies of formation at 298.15 K of CO2 and of water vapour, J/mol
// (NIST-JANAF), the ones the absolute scale gives them.
inline constexpr double kFormacionCO2 = -393522.0;
inline constexpr double kFormacionCO = -110527.0;
inline constexpr double kFormacionH2O = -241826.0;

// Reference pressure of the standard entropies, Pa.
inline constexpr double kPresionReferencia = 100000.0;

using Moles = std::array<double, kGases>;
using Elementos = std::array<double, kElementos>;

// The gases at one temperature, without dimensions: cp/R, h/(R·T) and s0/R.
struct PropiedadesGases {
    double T = 0;
    double cp[kGases], h[kGases], s0[kGases];
};
void EvaluarGases(double T, PropiedadesGases& g);

// The atoms of a mixture.
Elementos ElementosDe(const Moles& n);

}  // namespace vanta::equilibrio
