// The fuel: a pseudo-molecule C, H, N, O, S with real atom counts, its mass
// composition, its molar mass and its heating values. It comes from the
// library of seven named fuels or from the user, as a formula or as a mass
// composition, on the screen "Combustible".
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Atomic masses of the fuel's elements, kg/mol.
inline constexpr double kMasaAtomicaC = 0.012011;
inline constexpr double kMasaAtomicaH = 0.001008;
inline constexpr double kMasaAtomicaN = 0.014009;
inline constexpr double kMasaAtomicaO = 0.016;
inline constexpr double kMasaAtomicaS = 0.03206;

// Enthalpies of formation of the products, J/mol (water liquid), and the heat
// of vaporisation of water, J/mol.
inline constexpr double kEntalpiaFormacionCO2 = -391904.0;
inline constexpr double kEntalpiaFormacionCO = -110074.0;
inline constexpr double kEntalpiaFormacionH2O = -286021.0;
inline constexpr double kCalorVaporizacionH2O = 44037.0;

// Whether every value is a finite number: results are written only then.
inline bool SonFinitos(std::initializer_list<double> valores) {
    for (double v : valores)
        if (!std::isfinite(v)) return false;
    return true;
}

// A named fuel of the list: its formula and enthalpy of formation (J/mol).
struct CombustibleDeLista {
    std::string_view nombre;
    double C, H, N, O, S;
    double EntalpiaFormacion;
};

// The library, in the order of the list.
inline constexpr std::array<CombustibleDeLista, 7> kBibliotecaCombustibles{{
    {"Etanol", 2, 6, 0, 1, 0, -277000},
    {"Gasolina", 8, 15, 0, 0, 0, -305630},
    {"Gasoil", 11, 19, 0.073, 0.063, 0.032, -174080},
    {"GLP-Etano", 2, 6, 0, 0, 0, -93638},
    {"GLP-Butano", 4, 10, 0, 0, 0, -36921},
    {"GLP-Propano", 3, 8, 0, 0, 0, -53404},
    {"Metanol", 1, 4, 0, 1, 0, -238600},
}};
// The last entry of the list: the user's own fuel.
inline constexpr std::string_view kOtrosCombustibles = "Otros combustibles";
// What the list shows before a choice.
inline constexpr std::string_view kElijaCombustible = "Elija combustible";

// The named fuel of that list text, or nullptr (for "Otros combustibles" too).
const CombustibleDeLista* BuscarCombustible(std::string_view nombre);

// Background of a locked box of the fuel screen (0xBBGGRR).
inline constexpr int32_t kColorCajaBloqueada = 0xC0FFC0;

// What the fuel screen does to itself, beside its boxes and options.
class FormularioCombustible {
public:
    virtual ~FormularioCombustible() = default;
    // Enables (or disables) cmdCal, optMasa and optFOR together.
    virtual void HabilitarEntradaPropia(bool habilitar) = 0;
    // Sets the caption of fraOtrosCombustibles.
    virtual void PonerTituloOtros(std::string_view titulo) = 0;
    // Enables fraOtrosCombustibles.
    virtual void HabilitarMarcoOtros() = 0;
    // formula true: txtC, txtN, txtO, txtS and txtmmComb locked with the
    // background kColorCajaBloqueada, txtMolC…txtMolS unlocked with the window
    // background; false: the reverse.
    virtual void BloquearCajas(bool formula) = 0;
};

// Keeps what the logic asked of the form, for the command line and the tests.
class FormularioCombustibleSimple : public FormularioCombustible {
public:
    bool entradaPropia = false;
    std::string tituloOtros{kOtrosCombustibles};
    bool marcoOtros = false;
    int bloqueo = 0;  // 0 never asked, 1 formula boxes open, 2 mass boxes open

    void HabilitarEntradaPropia(bool habilitar) override { entradaPropia = habilitar; }
    void PonerTituloOtros(std::string_view titulo) override { tituloOtros = titulo; }
    void HabilitarMarcoOtros() override { marcoOtros = true; }
    void BloquearCajas(bool formula) override { bloqueo = formula ? 1 : 2; }
};

// What the fuel screen gives the logic.
struct ControlesCombustible {
    CajaTexto& cboTipCom;               // the list: its current text; SetFocus gives it the focus
    CajaTexto& txtC;                    // % by mass of C
    CajaTexto& txtN;                    // % by mass of N
    CajaTexto& txtO;                    // % by mass of O
    CajaTexto& txtS;                    // % by mass of S
    CajaTexto& txtH;                    // % by mass of H, always computed
    CajaTexto& txtMolC;                 // atoms of C in the formula
    CajaTexto& txtMolH;                 // atoms of H
    CajaTexto& txtMolN;                 // atoms of N
    CajaTexto& txtMolO;                 // atoms of O
    CajaTexto& txtMolS;                 // atoms of S
    CajaTexto& txtmmComb;               // molar mass, kg/mol (starts "0.1")
    CajaTexto& txtEntPro;               // enthalpy of formation of the fuel, J/mol (starts "0")
    CajaTexto& txtHcs;                  // higher heating value shown, J/kg
    CajaTexto& txtHci;                  // lower heating value shown, J/kg
    CajaTexto& txtQvap;                 // heat of vaporisation of the water formed, J/kg
    Interruptor& optMasa;               // input as mass percentages
    Interruptor& optFOR;                // input as a formula
    Interruptor& chkOcultar;            // hide the screen after a calculation
    Ventana& ventana;                   // the screen, to hide
    Superficie& pct2;                   // the fuel chart of the main window
    FormularioCombustible& formulario;  // enabling, captions and locks of the screen
};

// Starting texts of the boxes that do not start empty.
inline constexpr std::string_view kTextoInicialMasaMolecular = "0.1";
inline constexpr std::string_view kTextoInicialEntalpia = "0";

// The fuel screen with plain boxes at their starting texts, nothing chosen in
// the list and neither option selected: the command line and the tests.
struct PantallaCombustibleSimple {
    CajaTextoSimple cboTipCom{std::string(kElijaCombustible)};
    CajaTextoSimple txtC, txtN, txtO, txtS, txtH;
    CajaTextoSimple txtMolC, txtMolH, txtMolN, txtMolO, txtMolS;
    CajaTextoSimple txtmmComb{std::string(kTextoInicialMasaMolecular)};
    CajaTextoSimple txtEntPro{std::string(kTextoInicialEntalpia)};
    CajaTextoSimple txtHcs, txtHci, txtQvap;
    InterruptorSimple optMasa, optFOR, chkOcultar{true};
    VentanaSimple ventana;
    FormularioCombustibleSimple formulario;

    ControlesCombustible Controles(Superficie& pct2) {
        return {.cboTipCom = cboTipCom,
                .txtC = txtC,
                .txtN = txtN,
                .txtO = txtO,
                .txtS = txtS,
                .txtH = txtH,
                .txtMolC = txtMolC,
                .txtMolH = txtMolH,
                .txtMolN = txtMolN,
                .txtMolO = txtMolO,
                .txtMolS = txtMolS,
                .txtmmComb = txtmmComb,
                .txtEntPro = txtEntPro,
                .txtHcs = txtHcs,
                .txtHci = txtHci,
                .txtQvap = txtQvap,
                .optMasa = optMasa,
                .optFOR = optFOR,
                .chkOcultar = chkOcultar,
                .ventana = ventana,
                .pct2 = pct2,
                .formulario = formulario};
    }
};

// ---- Events of the fuel screen --------------------------------------------------

// An entry of the list chosen: a named fuel is loaded and calculated at once;
// "Otros combustibles" opens the user's input in mass mode. The window calls
// it with the new text already in cboTipCom, and not for "Elija combustible".
void cboTipCom_Click(Estado& e, Dialogos& dlg, ControlesCombustible& c);
// The button CALCULAR: the user's fuel, by formula or by mass, with its checks.
void cmdCal_Click(Estado& e, Dialogos& dlg, ControlesCombustible& c);
// An option clicked: it is selected (the other one cleared) and the boxes of
// the other way of input are locked. The logic calls them when it selects an
// option itself.
void optFOR_Click(ControlesCombustible& c);
void optMasa_Click(ControlesCombustible& c);

// ---- Operations of the screen ---------------------------------------------------

// Loads a formula into the boxes (formula mode) and runs CalCien and Calcular.
void CombustibleTipo(Estado& e, Dialogos& dlg, ControlesCombustible& c, double C, double H, double N,
                     double O, double S);
// Mass composition and molar mass from the formula boxes.
void CalCien(Estado& e, Dialogos& dlg, ControlesCombustible& c);
// Formula from the mass boxes and the molar mass; hydrogen is the remainder.
void CalAto(Estado& e, Dialogos& dlg, ControlesCombustible& c);
// Heating values from the formula, the molar mass and the enthalpy box.
// Returns false when an arithmetic failure stopped it.
bool Calcular(Estado& e, Dialogos& dlg, ControlesCombustible& c);

}  // namespace vanta
