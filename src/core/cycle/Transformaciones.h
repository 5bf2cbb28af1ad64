// The processes of the cycle: compression 1-2, heat at constant volume 2-3,
// heat at constant pressure 3-4, expansion 4-5 and the exhaust line 5-1, which
// is only drawn. Each starts from the end of the one before in the record and
// leaves its end there, drawing itself step by step on the diagrams.
#pragma once

#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Draw flag of the processes: the silent pass of the maxima, or the drawing
// pass.
enum class Dibujo : int { Dibujar = 1, SinDibujar = 2 };

// Kinds of the constant-volume heat: heat up to Pmax, or Q23 given.
enum class TipoCalorIsocoro : int { HastaPmax = 1, Dado = 2 };

void PonerColorDiagramas(Diagramas& g, int32_t color);

void CalcularMolesCiclo(Estado& e, Mensajes& msj);
void Compresion(Estado& e, Mensajes& msj, Diagramas& g, Modelo modelo, double volumenFinal, double paso,
                double exponente, Dibujo dibujar);
// Always draws.
void Expansion(Estado& e, Mensajes& msj, Diagramas& g, Modelo modelo, double volumenFinal, double paso,
               double exponente);
// presionMaxima is not used: the limit is read from Pmax.
void CombustionVolumenConstante(Estado& e, Mensajes& msj, Diagramas& g, TipoCalorIsocoro tipo,
                                double presionMaxima, Dibujo dibujar);
void CombustionPresionConstante(Estado& e, Mensajes& msj, Diagramas& g, double volumenLimite, double calor,
                                Dibujo dibujar);
void TrazarEscape(Estado& e, Mensajes& msj, Diagramas& g);

}  // namespace vanta
