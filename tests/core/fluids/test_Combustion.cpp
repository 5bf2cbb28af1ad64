#include <gtest/gtest.h>

#include "tests/core/fluids/Etapas.h"

using namespace vanta;

namespace {
using Mensajes = std::vector<std::string>;

struct CombustionTest : ::testing::Test {
    void SetUp() override { prueba::AireSecoCalculado(e); }
    Estado e;
    DialogosGrabados dlg;
    prueba::EtapaCombustible fuel{e, dlg};
    prueba::EtapaCombustion gases{e, dlg};
    VariablesCombustion& v = gases.p.variables;

    // A formula loaded as the list loads one, with none of the button's checks.
    void Formula(double C, double H, double N, double O, double S) {
        CombustibleTipo(e, dlg, fuel.c, C, H, N, O, S);
    }
    double SumaFracciones() const {
        return e.xArHumos + e.xCOHumos + e.xCO2Humos + e.xH2OHumos + e.xN2Humos + e.xO2Humos + e.xSHumos +
               e.xSO2Humos;
    }
};
}  // namespace

TEST_F(CombustionTest, RichGasolineLeavesCOAndNoOxygen) {
    fuel.Elegir("Gasolina");
    ASSERT_TRUE(gases.ConFr("1.25"));
    // c = 10, h = 18.75: R = 23.5 - 10 - 9.375, all exact.
    EXPECT_EQ(v.nCO2, 4.125);
    EXPECT_EQ(v.nCO, 5.875);
    EXPECT_EQ(e.xO2Humos, 0);
    EXPECT_EQ(e.EntalpiaProductos, (4.125 * -391904.0 + 5.875 * -110074.0 + 9.375 * -286021.0) / 1.25);
    EXPECT_LT(e.HCIhumos, e.HCI);
    EXPECT_NEAR(SumaFracciones(), 1, 1e-15);
    EXPECT_NEAR(1 / e.Fe, 14.61, 0.01);  // the air does not change with Fr
    EXPECT_TRUE(gases.p.ventana.oculta);
    EXPECT_FALSE(gases.pct3.llamadas.empty());
}

TEST_F(CombustionTest, StoichiometricAndLeanMixturesHaveNoCO) {
    fuel.Elegir("Gasolina");
    ASSERT_TRUE(gases.ConFr("1"));
    EXPECT_EQ(e.xCOHumos, 0);  // R = c exactly for this formula
    EXPECT_EQ(e.xO2Humos, 0);
    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_EQ(e.xCOHumos, 0);
    EXPECT_NEAR(v.OxigenoSobrante, 23.5 - 6.4 - 6 - 6.4, 1e-12);
    EXPECT_NEAR(e.HCIhumos, e.HCI, 1e-6);

    fuel.Elegir("Gasoil");
    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_EQ(e.xSHumos, 0);
    EXPECT_EQ(v.nSO2, 0.8 * 0.032);  // the sulphur burns whole
    EXPECT_NEAR(SumaFracciones(), 1, 1e-15);
}

// The sulphur tests compare the fuel's own AtomosS with the oxygen left, not
// the sulphur at this ratio. With more oxygen in the fuel than its carbon
// takes, the oxygen left falls between the two: more sulphur burns than there
// is, and S goes negative.
TEST_F(CombustionTest, SulphurTestOnTheFuelsOwnAtomsIsKept) {
    Formula(1, 0, 0, 3, 1);
    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_NEAR(v.nSO2, 0.9, 1e-12);
    EXPECT_NEAR(v.nS, -0.1, 1e-12);
    EXPECT_EQ(v.OxigenoSobrante, 0);
    EXPECT_LT(e.xSHumos, 0);
}

TEST_F(CombustionTest, WhenNoSulphurTestHoldsTheLastSulphurStays) {
    Formula(1, 0, 0, 2, 1);  // the oxygen left is 2 = 2·AtomosS at any ratio
    ASSERT_TRUE(gases.ConFr("1"));
    EXPECT_EQ(v.nSO2, 1);
    ASSERT_TRUE(gases.ConFr("0.5"));
    EXPECT_EQ(v.nSO2, 1);  // not the 0.5 of sulphur this ratio brings
    EXPECT_EQ(v.nS, 0);
    EXPECT_EQ(v.OxigenoSobrante, 2);
}

TEST_F(CombustionTest, TooRichIsRefusedButDrawnFromTheLastDistribution) {
    fuel.Elegir("Gasolina");
    ASSERT_TRUE(gases.ConFr("0.8"));
    const VariablesCombustion antes = v;
    gases.p.ventana.oculta = false;
    gases.pct3.llamadas.clear();
    EXPECT_FALSE(gases.ConFr("2"));
    EXPECT_EQ(dlg.mensajes, Mensajes{"Exceso de combustible-Cambie el dosado"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(v.nCO2, antes.nCO2);
    EXPECT_EQ(v.OxigenoSobrante, antes.OxigenoSobrante);
    EXPECT_FALSE(gases.pct3.llamadas.empty());
    EXPECT_FALSE(gases.p.ventana.oculta);
}

TEST_F(CombustionTest, LeadingBoxGivesTheOtherRoundedTo3Decimals) {
    FormGases_Load(e, gases.c);  // a first opening: both 1
    EXPECT_EQ(e.Fr, 1);
    EXPECT_EQ(v.Lambda, 1);
    fuel.Elegir("Gasolina");
    txtLambda_Click(gases.c);
    gases.p.txtLambda.SetText("1,2");
    txtLambda_Change(e, dlg, gases.c);
    EXPECT_EQ(gases.p.txtFr.Text(), "0.833");
    txtFr_Change(e, dlg, gases.c);  // the box that does not lead changes nothing
    EXPECT_EQ(v.Lambda, 1.2);
    ASSERT_TRUE(CalcularHumos(e, dlg, gases.c));
    EXPECT_EQ(e.Fr, 0.833);

    txtFr_Click(gases.c);
    EXPECT_TRUE(gases.p.optFr.Value() && !gases.p.optLambda.Value());
    gases.p.txtFr.SetText("0.8");
    txtFr_Change(e, dlg, gases.c);
    EXPECT_EQ(gases.p.txtLambda.Text(), "1.25");
    e.Fr = 0, v.Lambda = 1.25;
    FormGases_Load(e, gases.c);
    EXPECT_EQ(e.Fr, 0);  // not a first opening
}

TEST_F(CombustionTest, NegativeZeroOrTextInTheChangeEvents) {
    FormGases_Load(e, gases.c);
    txtFr_Click(gases.c);
    for (const char* fr : {"0", "-1", "rico"}) {
        gases.p.txtFr.SetText(fr);
        txtFr_Change(e, dlg, gases.c);
    }
    EXPECT_EQ(gases.p.txtLambda.Text(), "1");
    txtLambda_Click(gases.c);
    for (const char* lambda : {"-2", "0"}) {
        gases.p.txtLambda.SetText(lambda);
        txtLambda_Change(e, dlg, gases.c);
    }
    // A rejected text leaves the last Fr, which is tested again; zeros say nothing.
    EXPECT_EQ(dlg.mensajes, (Mensajes{"Fr no puede ser negativo", "Dosado relativono es un número",
                                      "Fr no puede ser negativo", "Lambda no puede ser negativo"}));
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(gases.p.txtFr.Text(), "rico");
}

TEST_F(CombustionTest, BadFrIsRefusedOrGoesOnWithTheLastOne) {
    fuel.Elegir("Gasolina");
    FormGases_Load(e, gases.c);
    for (const char* fr : {"0", "-2", "1e308"}) {
        dlg.mensajes.clear();
        gases.p.txtFr.SetText(fr);
        EXPECT_FALSE(CalcularHumos(e, dlg, gases.c)) << fr;
        EXPECT_EQ(e.ErrorCalculo, Verdadero) << fr;
        ASSERT_EQ(dlg.mensajes.size(), 1u) << fr;
        EXPECT_TRUE(gases.pct3.llamadas.empty()) << fr;
        EXPECT_TRUE(prueba::NoFinitos(e).empty()) << fr;
    }
    EXPECT_EQ(dlg.mensajes[0], "Exceso de combustible-Cambie el dosado");

    dlg.mensajes.clear();
    e.Fr = 1;
    gases.p.txtFr.SetText("uno");
    EXPECT_FALSE(CalcularHumos(e, dlg, gases.c));
    EXPECT_EQ(dlg.mensajes, Mensajes{" Dosado Fr no es un número"});
    EXPECT_GT(e.xCO2Humos, 0);
    EXPECT_FALSE(gases.pct3.llamadas.empty());
    EXPECT_FALSE(gases.p.ventana.oculta);
}

TEST_F(CombustionTest, FuelsAndAirsThatCannotBurnAreClearFailures) {
    const struct {
        void (*preparar)(CombustionTest&);
        const char* causa;
    } casos[] = {
        {[](CombustionTest&) {}, "no hay un combustible definido"},
        {[](CombustionTest& t) { t.Formula(0, 2, 0, 1, 0); }, "no necesita oxígeno"},  // water
        {[](CombustionTest& t) { t.fuel.Elegir("Metanol"), t.e.xO2Aire = 0; }, "el aire no tiene oxígeno"},
    };
    for (const auto& caso : casos) {
        e = Estado{};
        prueba::AireSecoCalculado(e);
        dlg.mensajes.clear();
        caso.preparar(*this);
        e.ErrorCalculo = Verdadero;  // a failure before does not hide this one's message
        EXPECT_FALSE(gases.ConFr("1")) << caso.causa;
        ASSERT_EQ(dlg.mensajes.size(), 1u) << caso.causa;
        EXPECT_NE(dlg.mensajes[0].find(caso.causa), std::string::npos) << dlg.mensajes[0];
        EXPECT_EQ(e.ErrorCalculo, Verdadero);
        EXPECT_TRUE(gases.pct3.llamadas.empty());
        EXPECT_TRUE(prueba::NoFinitos(e).empty());
        EXPECT_FALSE(gases.p.ventana.oculta);
    }
}
