#include "core/workflow/Ampliacion.h"

namespace vanta {

namespace {

struct Papeles {
    LugarDiagrama GeometriaDiagramas::*principal, GeometriaDiagramas::*arriba, GeometriaDiagramas::*abajo,
        GeometriaDiagramas::*recuadro;
    double recuadroLeft, recuadroHeight, recuadroWidth;  // factors of the main surface
};

Papeles PapelesDe(DiagramaAmpliable d) {
    using G = GeometriaDiagramas;
    switch (d) {
        case DiagramaAmpliable::PV:
            return {&G::pctPV, &G::pctTS, &G::pctTV, &G::pctHS, 0.8, 0.2, 0.2};
        case DiagramaAmpliable::TV:
            return {&G::pctTV, &G::pctTS, &G::pctPV, &G::pctHS, 0.8, 0.2, 0.2};
        case DiagramaAmpliable::TS:
            return {&G::pctTS, &G::pctPV, &G::pctTV, &G::pctHS, 0.4, 0.4, 0.55};
        case DiagramaAmpliable::HS:
            return {&G::pctHS, &G::pctPV, &G::pctTV, &G::pctTS, 0.6, 0.2, 0.3};
    }
    return {};
}

}  // namespace

bool DebeAmpliar(DiagramaAmpliable d, const GeometriaDiagramas& g, double dosTwips) {
    const double setentaPorCiento = static_cast<float>(0.7 * g.W);
    switch (d) {
        case DiagramaAmpliable::PV:
            return setentaPorCiento > g.pctPV.Width;
        case DiagramaAmpliable::TV:
            return setentaPorCiento > g.pctTV.Width;
        case DiagramaAmpliable::TS:
            return g.pctTS.Left > dosTwips;
        case DiagramaAmpliable::HS:
            return setentaPorCiento > g.pctHS.Width;
    }
    return false;
}

GeometriaDiagramas DistribucionAmpliada(DiagramaAmpliable d, double W, double H) {
    GeometriaDiagramas g;
    g.W = W, g.H = H;
    const Papeles p = PapelesDe(d);
    g.*p.principal = {0, 0, 0.7 * W, 0.8 * H};
    g.*p.arriba = {0.7 * W, 0, 0.3 * W, 0.4 * H};
    g.*p.abajo = {0.7 * W, 0.4 * H, 0.3 * W, 0.4 * H};
    const LugarDiagrama& principal = g.*p.principal;
    g.*p.recuadro = {p.recuadroLeft * principal.Width, 0, p.recuadroWidth * principal.Width,
                     p.recuadroHeight * principal.Height};
    return g;
}

}  // namespace vanta
