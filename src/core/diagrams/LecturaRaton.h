// The readout that follows the pointer over the p-V and T-V diagrams: the
// state of the cycle under the pointer, recomputed from its volume (and, for
// the variable exponent, by running the process again up to it), the process
// it lies on, and a cross at that state on all four diagrams.
#pragma once

#include <string>

#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// The boxes of fraEstadoActual.
struct LecturaEstado {
    std::string lblTmouseVal, lblVmouseVal, lblPmouseVal, lblhmouseVal, lblSmouseVal;
    std::string txtTransformacion;
};

// X and Y in the surface's user coordinates, single precision: X a volume,
// Y the negative of p (pctPV) or of T (pctTV). Nothing happens unless a cycle
// is on show (cmdInforme visible). Draws on the transient layer of the four
// diagrams and leaves Temperatura, Presion and TipoFluido of the last move.
void pctPV_MouseMove(Estado& e, Mensajes& msj, Diagramas& g, bool cmdInformeVisible, float X, float Y,
                     LecturaEstado& lectura);
void pctTV_MouseMove(Estado& e, Mensajes& msj, Diagramas& g, bool cmdInformeVisible, float X, float Y,
                     LecturaEstado& lectura);

}  // namespace vanta
