// The combustion: from the fuel, the air and the relative fuel/air ratio Fr,
// the stoichiometric ratio, the composition of the gases in eight mole
// fractions, their molar mass and the heating values of the actual reaction.
// A one-step balance of atoms with no dissociation: oxygen goes to hydrogen
// and to carbon as far as CO, then CO to CO2, then sulphur to SO2, and what is
// left stays as O2. The screen is "Gases de combustión".
#pragma once

#include <string>
#include <string_view>

#include "core/fluids/Combustible.h"
#include "core/inputs/Entradas.h"
#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Molar masses of the gases of this calculation, kg/mol.
inline constexpr double kMasaMolecularN2 = 0.028018;
inline constexpr double kMasaMolecularO2 = 0.032;
inline constexpr double kMasaMolecularAr = 0.039948;
inline constexpr double kMasaMolecularCO2 = 0.044011;
inline constexpr double kMasaMolecularH2O = 0.018016;
inline constexpr double kMasaMolecularCO = 0.028011;
inline constexpr double kMasaMolecularSO2 = 0.06406;
inline constexpr double kMasaMolecularS = kMasaAtomicaS;

// The screen's own variables. They outlive one calculation: a refused mixture
// computes the gases from the distribution that the last one left here.
struct VariablesCombustion {
    double Lambda = 0;  // inverse of Fr, kept in step with it by the change events
    // Distribution of the oxygen, per mole of fuel.
    double nCO = 0;              // carbon left as CO
    double nCO2 = 0;             // carbon burnt to CO2
    double nS = 0;               // sulphur unburnt
    double nSO2 = 0;             // sulphur burnt to SO2
    double OxigenoSobrante = 0;  // atoms of O left, which stay as O2
};

// ---- Events of the combustion screen ------------------------------------------------
// Which of Fr and Lambda leads is the inputs' formaDosado: a click in a box
// makes it lead.

// Loading the screen: on a first opening (Fr and Lambda both below 0.001)
// both become 1.
void FormGases_Load(Estado& e, VariablesCombustion& v);
// A change of the leading box reads it and writes the other, rounded to 3
// decimals, into the inputs. A change of the box that does not lead does
// nothing.
void txtFr_Change(Estado& e, Mensajes& msj, Entradas& x, VariablesCombustion& v);
void txtLambda_Change(Estado& e, Mensajes& msj, Entradas& x, VariablesCombustion& v);

// The button CALCULAR: reads Fr and fills Fe, the gases, their molar mass
// and HCShumos, HCIhumos; draws pct3. True when ErrorCalculo is clear at the
// end: the screen then hides.
bool CalcularHumos(Estado& e, Mensajes& msj, const Entradas& x, VariablesCombustion& v, Superficie& pct3);

}  // namespace vanta
