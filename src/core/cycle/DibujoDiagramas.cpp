#include "core/cycle/DibujoDiagramas.h"

#include <cmath>
#include <limits>

namespace vanta {

namespace {

constexpr double kMargen = 0.08;
constexpr int32_t kNegro = 0;

float F(double v) {
    return static_cast<float>(v);
}

// Text with its top-left corner at (x, y).
void ImprimirEn(Superficie& s, double x, double y, std::string_view texto) {
    s.SetCurrentX(F(x));
    s.SetCurrentY(F(y));
    s.Print(texto);
}

// The corners of a scale in single precision. Poner is false when a corner
// does not fit a single or the two corners fall on the same value, as they do
// for a cycle with no extent on an axis: such a scale has no size.
struct Esquinas {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    bool Poner(double a1, double b1, double a2, double b2) {
        constexpr double kMayor = std::numeric_limits<float>::max();
        for (double v : {a1, b1, a2, b2})
            if (!(std::fabs(v) <= kMayor)) return false;
        x1 = F(a1), y1 = F(b1), x2 = F(a2), y2 = F(b2);
        return x1 != x2 && y1 != y2;
    }
    void Aplicar(Superficie& s) const { s.Scale(x1, y1, x2, y2); }
};

}  // namespace

void PrepararDiagramas(Diagramas& g) {
    for (Superficie* s : {&g.pctTV, &g.pctPV, &g.pctTS, &g.pctHS}) {
        s->SetForeColor(kNegro);
        s->SetAutoRedraw(true);
        s->Cls();
    }
}

bool EscalarDiagramas(const Estado& e, Diagramas& g) {
    const double TM = e.TemperaturaMaxima, PM = e.PresionMaxima, SM = e.EntropiaMaxima, HM = e.EntalpiaMaxima;
    const double dV = e.V1 - e.V2, dT = TM - e.T1, dP = PM - e.p1, dS = SM - e.S1, dH = HM - e.h1;
    const double V2 = e.V1 / e.Rc;

    // The corners in single precision, checked before any surface takes them.
    // The top margin of T-s takes h1, an enthalpy, where T1 would be expected.
    Esquinas tv, pv, hs, ts;
    if (!tv.Poner(V2 - kMargen * dV, -TM - kMargen * dT, e.V1 + kMargen * dV, -e.T1 + kMargen * dT) ||
        !pv.Poner(V2 - kMargen * dV, -PM - kMargen * dP, e.V1 + kMargen * dV, -e.p1 + kMargen * dP) ||
        !hs.Poner(e.S1 - kMargen * dS, -HM - kMargen * dH, SM + kMargen * dS, -e.h1 + kMargen * dH) ||
        !ts.Poner(e.S1 - kMargen * dS, -TM + kMargen * (e.h1 - TM), SM + kMargen * dS, -e.T1 + kMargen * dT))
        return false;

    tv.Aplicar(g.pctTV);
    ImprimirEn(g.pctTV, V2 - 0.05 * dV, -e.T1 - 0.05 * dT + 0.6 * g.pctTV.TextHeight("DIAGRAMA TV"),
               "  DIAGRAMA TV");

    pv.Aplicar(g.pctPV);
    ImprimirEn(g.pctPV, V2 - 0.05 * dV, -e.p1 - 0.05 * dP + 0.6 * g.pctPV.TextHeight("DIAGRAMA PV"),
               "DIAGRAMA PV");

    hs.Aplicar(g.pctHS);
    ImprimirEn(g.pctHS, e.S1 - kMargen * dS, -HM - kMargen * dH, "DIAGRAMA h-s");

    ts.Aplicar(g.pctTS);
    ImprimirEn(g.pctTS, e.S1 - kMargen * dS, -TM - kMargen * dT, "DIAGRAMA T-s");
    return true;
}

void NumerarPuntos(const Estado& e, Diagramas& g) {
    Superficie& tv = g.pctTV;
    ImprimirEn(tv, e.V1, -e.T1, "1");
    ImprimirEn(tv, e.V2 - tv.TextWidth("1"), -e.T2, "2");
    ImprimirEn(tv, e.V2 - tv.TextWidth("3    "), -e.T3, "3");
    ImprimirEn(tv, e.V4, -e.T4 - tv.TextHeight("3"), "4");
    ImprimirEn(tv, e.V1, -e.T5 - tv.TextHeight("5"), "5");

    Superficie& pv = g.pctPV;
    ImprimirEn(pv, e.V1, -e.p1, "1");
    ImprimirEn(pv, e.V2 - pv.TextWidth(" 2"), -e.p2, "2");
    ImprimirEn(pv, e.V2 - pv.TextWidth("3    "), -e.p3, "3");
    ImprimirEn(pv, e.V4 + pv.TextWidth("3"), -e.p4 - pv.TextHeight("3"), "4");
    ImprimirEn(pv, e.V1, -e.p5 - pv.TextHeight("5"), "5");
}

}  // namespace vanta
