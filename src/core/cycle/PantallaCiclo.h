// The cycle window with no screen: its boxes with their default texts and its
// options as they stand when it opens, for the command line and the tests.
#pragma once

#include "core/cycle/Ciclo.h"

namespace vanta {

// Default texts of the cycle window's boxes.
inline constexpr const char* kTextoCilindrada = "100";
inline constexpr const char* kTextoRc = "10";
inline constexpr const char* kTextoP1 = "100000";
inline constexpr const char* kTextoT1 = "298";
inline constexpr const char* kTextoPropVcte = "50";
inline constexpr const char* kTextoPMax = "10000000";
inline constexpr const char* kTextoPropPcte = "50";
inline constexpr const char* kTextoNExpansion = "1,23";
inline constexpr const char* kTextoNCompresion = "1,39";
inline constexpr const char* kTextoGammaMedioComp = "Gamma medio";
inline constexpr const char* kTextoGammaMedioExp = "Gamma medioExp";

// The frames and pictures do nothing without a screen.
class FormularioCicloNulo : public FormularioCiclo {
public:
    void MostrarMarcos(const Marcos&) override {}
    void ResaltarCiclo(const CiclosResaltados&) override {}
};

struct PantallaCicloSimple {
    CajaTextoSimple txtCilindrada{kTextoCilindrada}, txtRc{kTextoRc}, txtP1{kTextoP1}, txtT1{kTextoT1},
        txtPropVcte{kTextoPropVcte}, txtPMax{kTextoPMax}, txtPropPcte{kTextoPropPcte},
        txt_nExp{kTextoNExpansion}, txt_nCom{kTextoNCompresion}, txtGammaMedioComp{kTextoGammaMedioComp},
        txtGMedioExp{kTextoGammaMedioExp};
    // As the window opens: mean exponents, maximum pressure, hide after a success.
    InterruptorSimple optProporcion, optPmax{true}, optGvariable, optGmedioCom{true}, optPolitropicaCom,
        optGvariableExp, optGmedioExp{true}, optPolitropica, chkOcultar{true};
    VentanaSimple ventana;
    FormularioCicloNulo formulario;

    ControlesCiclo Controles() {
        return {.txtCilindrada = txtCilindrada,
                .txtRc = txtRc,
                .txtP1 = txtP1,
                .txtT1 = txtT1,
                .txtPropVcte = txtPropVcte,
                .txtPMax = txtPMax,
                .txtPropPcte = txtPropPcte,
                .txt_nExp = txt_nExp,
                .txt_nCom = txt_nCom,
                .txtGammaMedioComp = txtGammaMedioComp,
                .txtGMedioExp = txtGMedioExp,
                .optProporcion = optProporcion,
                .optPmax = optPmax,
                .optGvariable = optGvariable,
                .optGmedioCom = optGmedioCom,
                .optPolitropicaCom = optPolitropicaCom,
                .optGvariableExp = optGvariableExp,
                .optGmedioExp = optGmedioExp,
                .optPolitropica = optPolitropica,
                .chkOcultar = chkOcultar,
                .ventana = ventana};
    }
};

}  // namespace vanta
