// The fourth stage: the cycle window's inputs and events, and CalcularCiclo,
// which solves Otto, Diesel and Mixto from end to end.
#pragma once

#include <string>
#include <string_view>

#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "core/workflow/Flujo.h"

namespace vanta {

// What the cycle window "Ciclo" gives the logic: its boxes and options.
struct ControlesCiclo {
    CajaTexto& txtCilindrada;
    CajaTexto& txtRc;
    CajaTexto& txtP1;
    CajaTexto& txtT1;
    CajaTexto& txtPropVcte;
    CajaTexto& txtPMax;
    CajaTexto& txtPropPcte;
    CajaTexto& txt_nExp;
    CajaTexto& txt_nCom;
    CajaTexto& txtGammaMedioComp;  // shows the mean exponent found for 1-2
    CajaTexto& txtGMedioExp;       // and for 4-5
    Interruptor& optProporcion;
    Interruptor& optPmax;
    Interruptor& optGvariable;
    Interruptor& optGmedioCom;
    Interruptor& optPolitropicaCom;
    Interruptor& optGvariableExp;
    Interruptor& optGmedioExp;
    Interruptor& optPolitropica;
    Interruptor& chkOcultar;
    Ventana& ventana;
};

// The texts of the result labels of the main window, in the order they are
// written at the end of a calculation.
struct TextosResultados {
    std::string lblP[5], lblV[5], lblT[5], lblH[5], lblS[5];
    std::string lblW12, lblW34, lblW45, lblQ23, lblQ34, lblWciclo, lblQciclo, lblRen;
    std::string lblG12, lblG2, lblG45, lblG5;
    std::string txtConsumoMJ, txtConsumoKwh, txtCilindrada;
};

// What CalcularCiclo reaches in the main window.
class VentanaPrincipal {
public:
    virtual ~VentanaPrincipal() = default;
    virtual void Ocultabotones(const Botones& b) = 0;
    // How a calculation ended (the workflow's stage), after it.
    virtual void CalculoTerminado(bool bien) = 0;
    // The text of the fuel list of the fuel window (the report's TipoCombustible).
    virtual std::string TipoCombustible() const = 0;
    // The report's working buffer: the text report of the last success.
    virtual void PonerInforme(const std::string& texto) = 0;
    virtual void MostrarResultados(const TextosResultados& textos) = 0;
};

// A main window with no screen: keeps what it is given, for the command line
// and the tests.
class VentanaPrincipalSimple : public VentanaPrincipal {
public:
    std::string tipoCombustible = "Gasolina";
    std::string informe;
    TextosResultados resultados;
    Botones botones{.comburente = true,
                    .combustible = false,
                    .combustion = false,
                    .ciclo = false,
                    .resultados = false,
                    .informe = false};
    int llamadasOcultabotones = 0;

    void Ocultabotones(const Botones& b) override {
        botones = b;
        ++llamadasOcultabotones;
    }
    void CalculoTerminado(bool) override {}
    std::string TipoCombustible() const override { return tipoCombustible; }
    void PonerInforme(const std::string& texto) override { informe = texto; }
    void MostrarResultados(const TextosResultados& textos) override { resultados = textos; }
};

// The frames of the cycle window that MostrarMarcos shows or hides.
struct Marcos {
    bool compresion, expansion, aire, opcion, datos, seleccionar;
};

// Which of the three pictures of cycles is highlighted.
struct CiclosResaltados {
    bool otto, diesel, mixto;
};

// The pictures the cycle window shows (variant 1 idle, variant 2 chosen) and
// the visibility of its frames: what the events change beside the state.
class FormularioCiclo {
public:
    virtual ~FormularioCiclo() = default;
    // Sets the visibility of fraCompresion, fraExpansion, fraAire, fraOpcion,
    // fraDTecnicos and imgSeleccinar, and of cmdCal as that of fraCompresion.
    virtual void MostrarMarcos(const Marcos& m) = 0;
    // Highlights the frame of the chosen cycle and shows its chosen picture.
    virtual void ResaltarCiclo(const CiclosResaltados& c) = 0;
};

// ---- Events of the cycle window ----------------------------------------------

// Load: the models 1 and the boxes of state 1 filled from the ambient.
void FormCiclo_Load(Estado& e, ControlesCiclo& c);
// Activation clears the flag of failure.
void FormCiclo_Activate(Estado& e);
void imgOtto_Click(Estado& e, FormularioCiclo& f);
void imgDiesel_Click(Estado& e, FormularioCiclo& f);
void imgMixto_Click(Estado& e, FormularioCiclo& f);
// The models of compression and expansion: 1 mean exponent, 2 polytropic,
// 3 variable exponent.
void ElegirModeloCompresion(Estado& e, Modelo modelo);
void ElegirModeloExpansion(Estado& e, Modelo modelo);
void optProporcion_Click(Estado& e);
void optPmax_Click(Estado& e);
// The share of heat at constant volume changed: checks it and fills the share
// at constant pressure.
void txtPropVcte_Change(Estado& e, Dialogos& dlg, ControlesCiclo& c);

// ---- The calculation -----------------------------------------------------------

// Solves the cycle: a silent pass for the maxima, then the drawing pass that
// keeps the results; the closing figures, the text report and the labels.
void CalcularCiclo(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g, VentanaPrincipal& v);

// The texts of the result labels from the state, with their masks.
TextosResultados TextosDeResultados(const Estado& e);

// The power boxes, when the text of txtRpm changes, from the cycle work of
// the figures on screen (Wciclo as the calculation that showed them closed
// it: a later calculation that failed leaves other work in the state).
void txtRpm_Change(Estado& e, Dialogos& dlg, double Wciclo, CajaTexto& txtRpm, CajaTexto& txtPotencia,
                   CajaTexto& txtPotenciaCV);

}  // namespace vanta
