// The inputs of the current calculation as the stage windows hold them: the
// texts of their boxes and the options chosen, under the command line's option
// names, so that a study starts from what the user sees.
#pragma once

#include <QWidget>
#include <string>

#include "core/sequence/Secuencia.h"

namespace vanta {

// The four stage windows and the main window (for the speed box).
struct VentanasEtapas {
    const QWidget* aire;
    const QWidget* combustible;
    const QWidget* combustion;
    const QWidget* ciclo;
    const QWidget* principal;
};

// ciclo: the cycle picked in the cycle window (TipoCiclo); until one is, the
// cycle's inputs are those the screens start with.
OpcionesCalculo OpcionesDeLasVentanas(const VentanasEtapas& v, const std::string& ciclo);

}  // namespace vanta
