// The four diagrams p-V, T-V, T-s and h-s as the calculation draws them: the
// scales from the running maxima, the titles and the point numbers. The
// curves themselves are drawn by the processes as they compute.
#pragma once

#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// The grounds of the surfaces: white for the charts, p-V and T-V; light grey
// for T-s and h-s.
inline constexpr int32_t kFondoBlanco = RGB(255, 255, 255);
inline constexpr int32_t kFondoGris = RGB(245, 245, 245);

// Black pen, drawing to the persistent picture, cleared.
void PrepararDiagramas(Diagramas& g);
// Scales every surface from the maxima with a margin of 8 % of each range
// (y is the negative of the quantity), and prints the four titles. False,
// with no surface touched, when a scale would not fit single precision or
// would have no size: the cycle cannot be drawn.
bool EscalarDiagramas(const Estado& e, Diagramas& g);
// The numbers of the five states on pctTV and pctPV.
void NumerarPuntos(const Estado& e, Diagramas& g);

}  // namespace vanta
