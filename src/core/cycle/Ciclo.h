// The fourth stage: the cycle window's inputs and events, and CalcularCiclo,
// which solves Otto, Diesel and Mixto from end to end.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/inputs/Entradas.h"
#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "core/workflow/Flujo.h"

namespace vanta {

// The texts of the result labels of the main window, in the order they are
// written at the end of a calculation.
struct TextosResultados {
    std::string lblP[5], lblV[5], lblT[5], lblH[5], lblS[5];
    std::string lblW12, lblW34, lblW45, lblQ23, lblQ34, lblWciclo, lblQciclo, lblRen;
    std::string lblG12, lblG2, lblG45, lblG5;
    std::string txtConsumoMJ, txtConsumoKwh, txtCilindrada;
};

// The frames of the cycle window that choosing a cycle shows or hides: those
// of compression, expansion, the air, the mixed cycle's options and the
// engine data, and the picture shown until a cycle is chosen. CALCULAR is
// shown with the frame of compression.
struct Marcos {
    bool compresion, expansion, aire, opcion, datos, seleccionar;
};

// Which of the three pictures of cycles is highlighted.
struct CiclosResaltados {
    bool otto, diesel, mixto;
};

// What choosing a cycle changes on its window.
struct VistaCiclo {
    Marcos marcos;
    CiclosResaltados resaltados;
};

// ---- Events of the cycle window ----------------------------------------------

// Load: the models 1, and the boxes of state 1 filled with the ambient.
void FormCiclo_Load(Estado& e, Entradas& x);
// Activation clears the flag of failure.
void FormCiclo_Activate(Estado& e);
// A cycle's picture clicked.
VistaCiclo ElegirCiclo(Estado& e, TipoCiclo ciclo);
// The models of compression and expansion: 1 mean exponent, 2 polytropic,
// 3 variable exponent.
void ElegirModeloCompresion(Estado& e, Modelo modelo);
void ElegirModeloExpansion(Estado& e, Modelo modelo);
void optProporcion_Click(Estado& e);
void optPmax_Click(Estado& e);
// The share of heat at constant volume changed: checks it (a share above 100
// becomes "100" in the inputs) and gives the text of the share at constant
// pressure.
std::string txtPropVcte_Change(Estado& e, Mensajes& msj, Entradas& x);

// ---- The calculation -----------------------------------------------------------

// How CALCULAR ended, and what it leaves on the windows.
struct ResultadoCiclo {
    bool bien = false;
    // The workflow's calls, in order: on entry, and when it fails after the
    // processes (the diagrams then cleared).
    std::vector<Botones> botones;
    // The mean exponents found, as the cycle window's boxes show them; empty
    // where the calculation did not write them.
    std::optional<std::string> gammaMedioCompresion, gammaMedioExpansion;
    // After a success: the text report and the labels.
    std::string informe;
    TextosResultados textos;
};

// Solves the cycle with the cycle window's inputs: a silent pass for the
// maxima, then the drawing pass that keeps the results; the closing figures,
// the text report (tipoCombustible, the text of the fuel list) and the labels.
ResultadoCiclo CalcularCiclo(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g,
                             std::string_view tipoCombustible);

// The texts of the result labels from the state, with their masks.
TextosResultados TextosDeResultados(const Estado& e);

// W of one CV.
inline constexpr double kVatiosCV = 735.49875;

// The power in W of the cycle work at the speed typed (read with
// ValidarNumero, which tells a text that is not a number and leaves the speed
// at 0): one power stroke in two revolutions. NaN, with the calculation
// stopped, when it leaves the doubles.
double Potencia(Estado& e, Mensajes& msj, double Wciclo, std::string_view rpm);

// The power boxes, in W and in CV.
struct TextosPotencia {
    std::string potencia, potenciaCV;
};
TextosPotencia TextosDePotencia(const Estado& e, double potencia);
// The power boxes when the text of the speed changes, from the cycle work of
// the figures on screen (Wciclo as the calculation that showed them closed
// it: a later calculation that failed leaves other work in the state).
// Nothing for an empty text, or when the speed was refused.
std::optional<TextosPotencia> txtRpm_Change(Estado& e, Mensajes& msj, double Wciclo, std::string_view rpm);

}  // namespace vanta
