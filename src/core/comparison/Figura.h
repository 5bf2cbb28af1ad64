// Figures: a diagram of one calculation or of several on common axes, with
// scales, axis titles in units, a title and a legend of the names. Drawn
// through a surface whose coordinates are the picture's pixels, so that the
// same figure goes to a window, a bitmap, an SVG or a PDF page.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/comparison/Trazos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "core/workflow/Distribucion.h"

namespace vanta {

enum class UnidadPresion { Pa, bar };

// One calculation on a figure.
struct SerieFigura {
    std::string nombre;
    const CurvasCiclo* curvas = nullptr;
    const Estado* estado = nullptr;  // for the numbers of the five states
    // The series' own colour; with none, each process keeps the pen of the
    // main window's diagrams.
    bool colorPropio = true;
    int32_t color = 0;
    // Drawn in dashes, as a second model laid over a calculation.
    bool discontinua = false;
};

struct OpcionesFigura {
    UnidadPresion presion = UnidadPresion::Pa;
    char separador = '.';
    bool leyenda = true;  // the names of the series
    bool numerar = true;  // the five states, on a figure of one calculation
};

// The colour of the i-th calculation of a comparison (six, then again).
int32_t ColorComparacion(size_t i);

// A scale: from, to, the step of its marks and the decimals they print with.
struct Eje {
    double desde = 0, hasta = 1, paso = 1;
    int decimales = 0;
};

// Marks at 1, 2, 2.5 or 5 times a power of ten, about six of them, over a
// range a little wider than the values.
Eje EjeDe(double minimo, double maximo);

// Where things fall on a figure of a size: the plot's edges in pixels and
// its two scales, in the units the axes show.
struct Disposicion {
    float izquierda = 0, arriba = 0, derecha = 0, abajo = 0;
    Eje x, y;
    // Pixel of a value in the axes' units.
    float X(double v) const;
    float Y(double v) const;
};

// The quantity on each axis of a diagram, the factor from the state's units
// to the axis' (m³ to c.c., Pa to bar) and the axis title ("V (c.c.)").
struct EjeDiagrama {
    double factorX, factorY;
    std::string tituloX, tituloY;
};
EjeDiagrama EjesDe(Diagrama d, UnidadPresion presion);

// "Diagrama p-V", …
std::string TituloFigura(Diagrama d);

Disposicion Disponer(const Superficie& s, float ancho, float alto, Diagrama d,
                     const std::vector<SerieFigura>& series, const OpcionesFigura& o);

// Clears the surface, scales it to pixels (ancho × alto) and draws the figure.
void DibujarFigura(Superficie& s, float ancho, float alto, Diagrama d, const std::vector<SerieFigura>& series,
                   const OpcionesFigura& o);

// A figure as text: rounded to its decimals, thousands grouped by blanks,
// with the separator given.
std::string TextoCifra(double x, int decimales, char separador);

}  // namespace vanta
