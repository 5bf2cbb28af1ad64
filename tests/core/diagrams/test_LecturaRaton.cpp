#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/diagrams/LecturaRaton.h"
#include "core/properties/Busquedas.h"
#include "tests/core/cycle/Calculo.h"

using namespace vanta;
using prueba::Calculo;

namespace {

struct Lectura : ::testing::Test {
    Calculo c;
    LecturaEstado l;
    Diagramas g{c.pv, c.tv, c.ts, c.hs};

    void PV(double X, double Y) { pctPV_MouseMove(c.e, c.dlg, g, true, float(X), float(Y), l); }
    void TV(double X, double Y) { pctTV_MouseMove(c.e, c.dlg, g, true, float(X), float(Y), l); }
    std::string P(double p) { return Format(p, "### ### ### ###", '.'); }
    std::string T(double t) { return Format(t, "### ### ### ##0.00", '.'); }
    std::string V(double v) { return Format(v * 1e6, "0.000", '.'); }
};

}  // namespace

TEST_F(Lectura, LeftOfV2IsTheIsochoreWithTheVolumeOfState2) {
    c.Ejecutar({});
    PV(c.e.V2 * 0.5, -c.e.p1);  // below state 2: state 2 exactly
    EXPECT_EQ(l.txtTransformacion, "Combustión a v = cte.");
    EXPECT_EQ(l.lblVmouseVal, V(c.e.V2));
    EXPECT_EQ(l.lblPmouseVal, P(c.e.p2));
    EXPECT_EQ(l.lblTmouseVal, T(c.e.T2));
    EXPECT_EQ(c.e.TipoFluido, Fluido::Aire);
    PV(c.e.V2 * 0.5, -2 * c.e.p3);  // above state 3: state 3, all burnt in Otto
    EXPECT_EQ(l.lblPmouseVal, P(c.e.p3));
    EXPECT_EQ(c.e.TipoFluido, Fluido::Humos);
    PV(c.e.V2 * 0.5, -5e6);  // between: the pressure under the pointer
    EXPECT_EQ(l.lblPmouseVal, P(5e6));
    EXPECT_EQ(l.lblTmouseVal, T(c.e.T2 * 5e6 / c.e.p2));
    EXPECT_EQ(c.e.TipoFluido, Fluido::AireHumos);
}

TEST_F(Lectura, VolumesV2AndV1ExactlyBelongToTheLinesAtTheEnds) {
    c.Ejecutar({});
    TV(float(c.e.V2), -c.e.T1);
    EXPECT_EQ(l.txtTransformacion, "Combustión a v = cte.");
    TV(float(c.e.V1), -c.e.T1);
    EXPECT_EQ(l.txtTransformacion, "Escape y admisión");
    EXPECT_EQ(l.lblVmouseVal, V(c.e.V1));
    EXPECT_EQ(l.lblTmouseVal, T(c.e.T1));
    TV(c.e.V1 * 2, -c.e.T5 - 100);  // above state 5: state 5
    EXPECT_EQ(l.lblTmouseVal, T(c.e.T5));
    EXPECT_EQ(c.e.TipoFluido, Fluido::Humos);
}

TEST_F(Lectura, BetweenTheStrokesTheNearerCurveWins) {
    c.Ejecutar({});
    const double X = (c.e.V1 + c.e.V2) / 2;
    const double r = c.e.V1 / X, g = c.e.GammaMedioCompresion;
    const double pCompresion = c.e.p1 * std::pow(r, g);
    PV(X, -pCompresion);
    EXPECT_EQ(l.txtTransformacion, "Compresión adiabática");
    EXPECT_EQ(l.lblVmouseVal, V(float(X)));
    const double pExpansion = c.e.p4 * std::pow(c.e.V4 / X, c.e.GammaMedioExpansion);
    PV(X, -(0.4 * pCompresion + 0.6 * pExpansion));
    EXPECT_EQ(l.txtTransformacion, "Expansión adiabática");
    EXPECT_EQ(l.lblPmouseVal, P(c.e.p4 * std::pow(c.e.V4 / double(float(X)), c.e.GammaMedioExpansion)));
    EXPECT_EQ(c.e.TipoFluido, Fluido::Humos);
}

TEST_F(Lectura, AnExactTieBetweenTheCandidatesGoesToTheCompression) {
    c.Ejecutar({});
    // Volumes that singles hold exactly, so that both candidates are round:
    // the compression gives 4·p1 at half the stroke, the expansion p4 there.
    c.e.V1 = std::ldexp(1.0, -13);
    c.e.V2 = c.e.V1 / 8;
    c.e.V4 = c.e.V1 / 2;
    c.e.GammaMedioCompresion = 2;
    c.e.p1 = 1e5;
    c.e.p4 = 5e5;
    PV(c.e.V1 / 2, -4.5e5);
    EXPECT_EQ(l.txtTransformacion, "Compresión adiabática");
    EXPECT_EQ(l.lblPmouseVal, P(4e5));
    PV(c.e.V1 / 2, -4.5e5 - 64);
    EXPECT_EQ(l.txtTransformacion, "Expansión adiabática");
    EXPECT_EQ(l.lblPmouseVal, P(5e5));
}

TEST_F(Lectura, DieselIsochoreAboveState3IsAirAtState3AndTheIsobarCanWin) {
    c.Ejecutar({"--ciclo", "Diesel", "--rc", "18"});
    TV(c.e.V2 / 2, -c.e.T3 - 50);
    EXPECT_EQ(l.lblTmouseVal, T(c.e.T3));
    EXPECT_EQ(c.e.TipoFluido, Fluido::Aire);  // Q23 = 0
    // Between V2 and V4 the second candidate is the isobar.
    const double X = (c.e.V2 + c.e.V4) / 2;
    PV(X, -c.e.p3);
    EXPECT_EQ(l.txtTransformacion, "Combustión p = cte.");
    EXPECT_EQ(l.lblPmouseVal, P(c.e.p3));
    EXPECT_EQ(c.e.TipoFluido, Fluido::AireHumos);
}

TEST_F(Lectura, CrossesOnAllFourSurfacesOnTheTransientLayer) {
    c.Ejecutar({});
    for (auto* s : {&c.pv, &c.tv, &c.ts, &c.hs}) s->llamadas.clear();
    TV(c.e.V1 * 0.6, -c.e.T1 * 2);
    for (auto* s : {&c.pv, &c.tv, &c.ts, &c.hs}) {
        ASSERT_EQ(s->llamadas.size(), 3u);
        EXPECT_EQ(s->llamadas[0], "Refresh");
        EXPECT_EQ(s->llamadas[1].rfind("T Line", 0), 0u);
        EXPECT_EQ(s->llamadas[2].rfind("T Line", 0), 0u);
        EXPECT_FALSE(s->AutoRedraw());
    }
    // The vertical line of p-V stands at the volume shown, edge to edge.
    char vertical[120];
    std::snprintf(vertical, sizeof vertical, "T Line %g %g %g %g", double(float(c.e.V1 * 0.6)),
                  double(c.pv.ScaleTop()), double(float(c.e.V1 * 0.6)),
                  double(c.pv.ScaleTop() + c.pv.ScaleHeight()));
    EXPECT_EQ(c.pv.llamadas[1].substr(0, std::string(vertical).size()), vertical);
}

TEST_F(Lectura, VariableExponentRerunsTheStrokeAndInflatesTheWork) {
    c.Ejecutar({"--compresion", "variable"});
    const double w12 = c.e.W12acumulado, W12 = c.e.W12;
    PV(c.e.V1 * 0.5, -c.e.p1 * 2);
    EXPECT_EQ(l.txtTransformacion, "Compresión adiabática con gamma variable");
    EXPECT_LT(c.e.W12acumulado, w12);  // more compression work added, not reset
    EXPECT_EQ(c.e.W12, W12);
    EXPECT_GT(std::count_if(c.pv.llamadas.begin(), c.pv.llamadas.end(),
                            [](const std::string& s) { return s.rfind("T Line", 0) == 0; }),
              100);
}

TEST_F(Lectura, NothingWithoutACycleOnShow) {
    c.Ejecutar({});
    c.pv.llamadas.clear();
    pctPV_MouseMove(c.e, c.dlg, g, false, float(c.e.V2), 0, l);
    EXPECT_TRUE(c.pv.llamadas.empty());
    EXPECT_TRUE(l.txtTransformacion.empty());
}
