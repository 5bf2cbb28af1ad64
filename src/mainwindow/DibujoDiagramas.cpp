#include "mainwindow/DibujoDiagramas.h"

namespace vanta {

namespace {

constexpr double kMargen = 0.08;
constexpr int32_t kNegro = 0;

float F(double v) { return static_cast<float>(v); }

// Text with its top-left corner at (x, y).
void ImprimirEn(Superficie& s, double x, double y, std::string_view texto) {
    s.SetCurrentX(F(x));
    s.SetCurrentY(F(y));
    s.Print(texto);
}

}  // namespace

void PrepararDiagramas(Diagramas& g) {
    for (Superficie* s : {&g.pctTV, &g.pctPV, &g.pctTS, &g.pctHS}) {
        s->SetForeColor(kNegro);
        s->SetAutoRedraw(true);
        s->Cls();
    }
}

void EscalarDiagramas(const Estado& e, Diagramas& g) {
    const double TM = e.TemperaturaMaxima, PM = e.PresionMaxima, SM = e.EntropiaMaxima, HM = e.EntalpiaMaxima;
    const double dV = e.V1 - e.V2, dT = TM - e.T1, dP = PM - e.p1, dS = SM - e.S1, dH = HM - e.h1;
    const double V2 = e.V1 / e.Rc;

    g.pctTV.Scale(F(V2 - kMargen * dV), F(-TM - kMargen * dT), F(e.V1 + kMargen * dV), F(-e.T1 + kMargen * dT));
    ImprimirEn(g.pctTV, V2 - 0.05 * dV, -e.T1 - 0.05 * dT + 0.6 * g.pctTV.TextHeight("DIAGRAMA TV"), "  DIAGRAMA TV");

    g.pctPV.Scale(F(V2 - kMargen * dV), F(-PM - kMargen * dP), F(e.V1 + kMargen * dV), F(-e.p1 + kMargen * dP));
    ImprimirEn(g.pctPV, V2 - 0.05 * dV, -e.p1 - 0.05 * dP + 0.6 * g.pctPV.TextHeight("DIAGRAMA PV"), "DIAGRAMA PV");

    g.pctHS.Scale(F(e.S1 - kMargen * dS), F(-HM - kMargen * dH), F(SM + kMargen * dS), F(-e.h1 + kMargen * dH));
    ImprimirEn(g.pctHS, e.S1 - kMargen * dS, -HM - kMargen * dH, "DIAGRAMA h-s");

    // The top margin of T-s takes h1, an enthalpy, where T1 would be expected.
    g.pctTS.Scale(F(e.S1 - kMargen * dS), F(-TM + kMargen * (e.h1 - TM)), F(SM + kMargen * dS),
                  F(-e.T1 + kMargen * dT));
    ImprimirEn(g.pctTS, e.S1 - kMargen * dS, -TM - kMargen * dT, "DIAGRAMA T-s");
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
