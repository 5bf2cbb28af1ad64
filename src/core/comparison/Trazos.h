// The curves of a calculation as lines, kept instead of painted: the cycle
// draws itself on the four diagrams while it computes, and surfaces that
// remember every line give back its curves, exact, in the units of the state
// (m³, Pa, K, J/mol, J/(mol·K)), ready to be laid on common axes.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/services/Superficie.h"
#include "core/workflow/Distribucion.h"

namespace vanta {

struct Punto {
    float x = 0, y = 0;
};

// A run of joined lines of one colour, in the surface's coordinates.
struct Trazo {
    int32_t color = 0;
    std::vector<Punto> puntos;
};

// Remembers the lines and points drawn on the persistent picture, joining a
// line that goes on from the end of the last one in the same colour. Text
// has no size and is not kept; Cls forgets everything.
class SuperficieTrazos : public Superficie {
public:
    std::vector<Trazo> trazos;

    float TextWidth(std::string_view) const override { return 0; }
    float TextHeight(std::string_view) const override { return 0; }

protected:
    void AlLimpiar() override { trazos.clear(); }
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
};

// The four diagrams drawn on remembering surfaces.
struct DiagramasTrazos {
    SuperficieTrazos pv, tv, ts, hs;
    Diagramas Todos() { return {pv, tv, ts, hs}; }
};

// The curves of the four diagrams with the quantity upwards (the surfaces
// hold y = −p, −T, −h), indexed by Diagrama.
struct CurvasCiclo {
    std::array<std::vector<Trazo>, 4> diagramas;

    const std::vector<Trazo>& De(Diagrama d) const { return diagramas[static_cast<size_t>(d)]; }
};

CurvasCiclo CurvasDe(const DiagramasTrazos& g);

}  // namespace vanta
