// The processes of the cycle: compression 1-2, heat at constant volume 2-3,
// heat at constant pressure 3-4, expansion 4-5 and the exhaust line 5-1, which
// is only drawn. Each starts from the end of the one before in the record and
// leaves its end there, drawing itself step by step on the diagrams.
#pragma once

#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Draw flag of the processes: 1 draws, any other value does not.
inline constexpr int kDibujar = 1;
inline constexpr int kSinDibujar = 2;

// Models of compression and expansion.
inline constexpr int kModeloGammaMedio = 1;
inline constexpr int kModeloPolitropico = 2;
inline constexpr int kModeloGammaVariable = 3;

// Kinds of the constant-volume heat: heat up to Pmax, or Q23 given.
inline constexpr int kCalorHastaPmax = 1;
inline constexpr int kCalorDado = 2;

void PonerColorDiagramas(Diagramas& g, int32_t color);

void CalcularMolesCiclo(Estado& e, Dialogos& dlg);
void Compresion(Estado& e, Dialogos& dlg, Diagramas& g, double modelo, double volumenFinal, double paso,
                double exponente, int dibujar);
// Always draws.
void Expansion(Estado& e, Dialogos& dlg, Diagramas& g, double modelo, double volumenFinal, double paso,
               double exponente);
// presionMaxima is not used: the limit is read from Pmax.
void CombustionVolumenConstante(Estado& e, Dialogos& dlg, Diagramas& g, int tipo, double presionMaxima,
                                int dibujar);
void CombustionPresionConstante(Estado& e, Dialogos& dlg, Diagramas& g, double volumenLimite, double calor,
                                int dibujar);
void TrazarEscape(Estado& e, Dialogos& dlg, Diagramas& g);

}  // namespace vanta
