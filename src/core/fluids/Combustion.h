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
#include "core/services/Puertos.h"
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

// What the combustion screen gives the logic.
struct ControlesCombustion {
    CajaTexto& txtFr;                // relative fuel/air ratio (starts "1")
    CajaTexto& txtLambda;            // its inverse (starts "1")
    Interruptor& optFr;              // txtFr leads
    Interruptor& optLambda;          // txtLambda leads
    Interruptor& chkOcultar;         // hide the screen after a calculation
    Ventana& ventana;                // the screen, to hide
    Superficie& pct3;                // the gases chart of the main window
    VariablesCombustion& variables;  // the screen's own variables, owned by the caller
};

// Starting text of both boxes.
inline constexpr std::string_view kTextoInicialDosado = "1";

// The combustion screen with plain boxes at their starting texts and neither
// option selected: the command line and the tests.
struct PantallaCombustionSimple {
    CajaTextoSimple txtFr{std::string(kTextoInicialDosado)}, txtLambda{std::string(kTextoInicialDosado)};
    InterruptorSimple optFr, optLambda, chkOcultar{true};
    VentanaSimple ventana;
    VariablesCombustion variables;

    ControlesCombustion Controles(Superficie& pct3) {
        return {.txtFr = txtFr,
                .txtLambda = txtLambda,
                .optFr = optFr,
                .optLambda = optLambda,
                .chkOcultar = chkOcultar,
                .ventana = ventana,
                .pct3 = pct3,
                .variables = variables};
    }
};

// ---- Events of the combustion screen ------------------------------------------------

// Loading the screen: on a first opening (Fr and Lambda both below 0.001)
// both become 1.
void FormGases_Load(Estado& e, ControlesCombustion& c);
// A click in a box makes it lead.
void txtFr_Click(ControlesCombustion& c);
void txtLambda_Click(ControlesCombustion& c);
// A change of the leading box reads it and shows the other rounded to 3
// decimals. A change of the box that does not lead does nothing.
void txtFr_Change(Estado& e, Dialogos& dlg, ControlesCombustion& c);
void txtLambda_Change(Estado& e, Dialogos& dlg, ControlesCombustion& c);

// The button CALCULAR: reads txtFr and fills Fe, the gases, their molar mass
// and HCShumos, HCIhumos; draws pct3; hides the screen after a success.
// Returns true when ErrorCalculo is clear at the end.
bool CalcularHumos(Estado& e, Dialogos& dlg, ControlesCombustion& c);

}  // namespace vanta
