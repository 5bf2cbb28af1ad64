#include "core/comparison/Trazos.h"

namespace vanta {

void SuperficieTrazos::AlPunto(float x, float y) {
    if (!AutoRedraw()) return;
    trazos.push_back({ForeColor(), {{x, y}}});
}

void SuperficieTrazos::AlLinea(float x1, float y1, float x2, float y2) {
    if (!AutoRedraw()) return;
    if (trazos.empty() || trazos.back().color != ForeColor() || trazos.back().puntos.back().x != x1 ||
        trazos.back().puntos.back().y != y1)
        trazos.push_back({ForeColor(), {{x1, y1}}});
    trazos.back().puntos.push_back({x2, y2});
}

CurvasCiclo CurvasDe(const DiagramasTrazos& g) {
    CurvasCiclo c;
    const SuperficieTrazos* superficies[] = {&g.pv, &g.tv, &g.ts, &g.hs};
    for (size_t i = 0; i < 4; ++i) {
        c.diagramas[i] = superficies[i]->trazos;
        for (Trazo& t : c.diagramas[i])
            for (Punto& p : t.puntos) p.y = -p.y;
    }
    return c;
}

}  // namespace vanta
