#include <gtest/gtest.h>

#include "Etapas.h"

using namespace vanta;

namespace {
struct CombustionTest : ::testing::Test {
    void SetUp() override {
        FijarSeparadorDecimal('.');
        prueba::AireSecoCalculado(e);
    }
    Estado e;
    DialogosGrabados dlg;
    prueba::EtapaCombustible fuel{e, dlg};
    prueba::EtapaCombustion gases{e, dlg};
    VariablesCombustion& v = gases.p.variables;

    // A formula loaded as the list loads one, with none of the button's checks.
    void Formula(double C, double H, double N, double O, double S) {
        CombustibleTipo(e, dlg, fuel.c, C, H, N, O, S);
        ASSERT_EQ(e.ErrorCalculo, Falso);
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
    EXPECT_TRUE(dlg.mensajes.empty());
    // c = 10, h = 18.75: R = 23.5 - 10 - 9.375, all exact.
    EXPECT_EQ(e.OxigenoEstequiometrico, 23.5);
    EXPECT_EQ(v.nCO2, 4.125);
    EXPECT_EQ(v.nCO, 5.875);
    EXPECT_EQ(v.OxigenoSobrante, 0);
    EXPECT_GT(e.xCOHumos, 0);
    EXPECT_EQ(e.xO2Humos, 0);
    EXPECT_EQ(e.EntalpiaProductos, (4.125 * -391904.0 + 5.875 * -110074.0 + 9.375 * -286021.0) / 1.25);
    EXPECT_EQ(e.EntalpiaReaccion, e.EntalpiaProductos + 305630);
    EXPECT_LT(e.HCIhumos, e.HCI);
    EXPECT_LT(e.HCShumos, e.HCS);
    EXPECT_NEAR(SumaFracciones(), 1, 1e-15);
    // Air per mole of fuel at the stoichiometric ratio, whatever Fr.
    EXPECT_EQ(e.MolesO2Aire, 0.20946 * (23.5 / (2 * 0.20946)));
    EXPECT_NEAR(1 / e.Fe, 14.61, 0.01);
    EXPECT_TRUE(gases.p.ventana.oculta);
    EXPECT_FALSE(gases.pct3.llamadas.empty());
}

TEST_F(CombustionTest, StoichiometricAndLeanGasolineHaveNoCO) {
    fuel.Elegir("Gasolina");
    ASSERT_TRUE(gases.ConFr("1"));
    EXPECT_EQ(e.xCOHumos, 0);  // R = c exactly for this formula
    EXPECT_EQ(e.xO2Humos, 0);

    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_EQ(e.xCOHumos, 0);
    EXPECT_GT(e.xO2Humos, 0);
    EXPECT_NEAR(v.OxigenoSobrante, 23.5 - 6.4 - 6 - 6.4, 1e-12);
    // With all carbon as CO2 the actual reaction gives the fuel's heating values.
    EXPECT_NEAR(e.HCShumos, e.HCS, 1e-6);
    EXPECT_NEAR(e.HCIhumos, e.HCI, 1e-6);
    EXPECT_GT(e.MasaMolecularHumos, 0.028);
    EXPECT_LT(e.MasaMolecularHumos, 0.030);
}

TEST_F(CombustionTest, LeanGasoilBurnsItsSulphurWhole) {
    fuel.Elegir("Gasoil");
    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_EQ(e.xSHumos, 0);
    EXPECT_EQ(v.nSO2, 0.8 * 0.032);
    EXPECT_GT(e.xSO2Humos, 0);
    EXPECT_NEAR(SumaFracciones(), 1, 1e-15);
}

// The sulphur tests compare the fuel's AtomosS with the oxygen left, not the
// sulphur at this ratio. With more oxygen in the fuel than its C and H take,
// the left oxygen falls between the two: the quirk burns more sulphur than
// there is and leaves a negative S.
TEST_F(CombustionTest, SulphurTestOnTheFuelsOwnAtomsIsKept) {
    Formula(1, 0, 0, 3, 1);
    ASSERT_TRUE(gases.ConFr("0.8"));
    EXPECT_NEAR(v.nSO2, 0.9, 1e-12);
    EXPECT_NEAR(v.nS, -0.1, 1e-12);
    EXPECT_EQ(v.OxigenoSobrante, 0);
    EXPECT_LT(e.xSHumos, 0);
}

TEST_F(CombustionTest, WhenNoSulphurTestHoldsTheLastSulphurStays) {
    Formula(1, 0, 0, 2, 1);  // the oxygen left is always 2 = 2 AtomosS
    ASSERT_TRUE(gases.ConFr("1"));
    EXPECT_EQ(v.nSO2, 1);
    EXPECT_EQ(v.nS, 0);
    ASSERT_TRUE(gases.ConFr("0.5"));
    EXPECT_EQ(v.nSO2, 1);  // not the 0.5 of sulphur this ratio brings
    EXPECT_EQ(v.nS, 0);
    EXPECT_EQ(v.OxigenoSobrante, 2);
}

TEST_F(CombustionTest, TooRichIsRefusedButTheGasesAreStillDrawnFromTheLastDistribution) {
    fuel.Elegir("Gasolina");
    ASSERT_TRUE(gases.ConFr("0.8"));
    const VariablesCombustion antes = v;
    const double xH2O = e.xH2OHumos;
    gases.p.ventana.oculta = false;
    gases.pct3.llamadas.clear();

    EXPECT_FALSE(gases.ConFr("2"));
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{"Exceso de combustible-Cambie el dosado"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(v.nCO2, antes.nCO2);
    EXPECT_EQ(v.OxigenoSobrante, antes.OxigenoSobrante);
    EXPECT_GT(e.xH2OHumos, xH2O);  // the water of Fr 2 with the rest of Fr 0.8
    EXPECT_FALSE(gases.pct3.llamadas.empty());
    EXPECT_FALSE(gases.p.ventana.oculta);
    EXPECT_TRUE(prueba::NoFinitos(e).empty());
}

TEST_F(CombustionTest, LeadingBoxGivesTheOtherRoundedTo3Decimals) {
    fuel.Elegir("Gasolina");
    FormGases_Load(e, gases.c);
    txtLambda_Click(gases.c);
    EXPECT_TRUE(gases.p.optLambda.Value());
    EXPECT_FALSE(gases.p.optFr.Value());
    gases.p.txtLambda.SetText("1,2");
    txtLambda_Change(e, dlg, gases.c);
    EXPECT_EQ(e.Fr, 0.833);
    EXPECT_EQ(gases.p.txtFr.Text(), "0.833");
    // The box that does not lead changes nothing.
    txtFr_Change(e, dlg, gases.c);
    EXPECT_EQ(v.Lambda, 1.2);
    ASSERT_TRUE(CalcularHumos(e, dlg, gases.c));
    EXPECT_EQ(e.Fr, 0.833);

    txtFr_Click(gases.c);
    gases.p.txtFr.SetText("0.8");
    txtFr_Change(e, dlg, gases.c);
    EXPECT_EQ(v.Lambda, 1.25);
    EXPECT_EQ(gases.p.txtLambda.Text(), "1.25");
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST_F(CombustionTest, LoadSetsBothToOneOnlyOnAFirstOpening) {
    FormGases_Load(e, gases.c);
    EXPECT_EQ(e.Fr, 1);
    EXPECT_EQ(v.Lambda, 1);
    e.Fr = 0.8, v.Lambda = 0;
    FormGases_Load(e, gases.c);
    EXPECT_EQ(e.Fr, 0.8);
    e.Fr = 0, v.Lambda = 1.25;
    FormGases_Load(e, gases.c);
    EXPECT_EQ(e.Fr, 0);
}

TEST_F(CombustionTest, NegativeZeroOrTextInTheChangeEvents) {
    FormGases_Load(e, gases.c);
    txtFr_Click(gases.c);
    gases.p.txtFr.SetText("0");
    txtFr_Change(e, dlg, gases.c);
    EXPECT_TRUE(dlg.mensajes.empty());
    EXPECT_EQ(v.Lambda, 1);
    EXPECT_EQ(gases.p.txtLambda.Text(), "1");

    gases.p.txtFr.SetText("-1");
    txtFr_Change(e, dlg, gases.c);
    gases.p.txtFr.SetText("rico");
    txtFr_Change(e, dlg, gases.c);
    txtLambda_Click(gases.c);
    gases.p.txtLambda.SetText("-2");
    txtLambda_Change(e, dlg, gases.c);
    gases.p.txtLambda.SetText("0");
    txtLambda_Change(e, dlg, gases.c);
    // A rejected text leaves the last Fr, which is tested again.
    EXPECT_EQ(dlg.mensajes, (std::vector<std::string>{"Fr no puede ser negativo", "Dosado relativono es un número",
                                                      "Fr no puede ser negativo", "Lambda no puede ser negativo"}));
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(gases.p.txtFr.Text(), "rico");  // Lambda 0 leaves Fr alone
    EXPECT_EQ(gases.p.txtLambda.Text(), "0");
}

TEST_F(CombustionTest, ZeroOrNegativeFrIsRefusedBeforeAnyDivision) {
    fuel.Elegir("Gasolina");
    FormGases_Load(e, gases.c);
    for (const char* fr : {"0", "-2"}) {
        dlg.mensajes.clear();
        gases.p.txtFr.SetText(fr);
        EXPECT_FALSE(CalcularHumos(e, dlg, gases.c)) << fr;
        EXPECT_EQ(e.ErrorCalculo, Verdadero) << fr;
        ASSERT_EQ(dlg.mensajes.size(), 1u) << fr;
        EXPECT_TRUE(gases.pct3.llamadas.empty()) << fr;
        EXPECT_TRUE(prueba::NoFinitos(e).empty()) << fr;
    }
    EXPECT_EQ(dlg.mensajes[0], "Fr no puede ser negativo");
    EXPECT_FALSE(gases.p.ventana.oculta);
}

TEST_F(CombustionTest, RejectedFrTextGoesOnWithTheLastFrAndKeepsTheScreen) {
    fuel.Elegir("Gasolina");
    FormGases_Load(e, gases.c);
    gases.p.txtFr.SetText("uno");
    EXPECT_FALSE(CalcularHumos(e, dlg, gases.c));
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{" Dosado Fr no es un número"});
    EXPECT_EQ(e.Fr, 1);
    EXPECT_GT(e.xCO2Humos, 0);
    EXPECT_FALSE(gases.pct3.llamadas.empty());
    EXPECT_FALSE(gases.p.ventana.oculta);
}

TEST_F(CombustionTest, FuelsAndAirsThatCannotBurnAreClearFailures) {
    struct Caso {
        const char* nombre;
        void (*preparar)(CombustionTest&);
        const char* causa;
    };
    const Caso casos[] = {
        {"sin combustible", [](CombustionTest&) {}, "no hay un combustible definido"},
        {"agua", [](CombustionTest& t) { t.Formula(0, 2, 0, 1, 0); }, "no necesita oxígeno"},
        {"aire sin oxígeno",
         [](CombustionTest& t) {
             t.fuel.Elegir("Metanol");
             t.e.xO2Aire = 0;
         },
         "el aire no tiene oxígeno"},
    };
    for (const Caso& caso : casos) {
        Estado limpio;
        e = limpio;
        prueba::AireSecoCalculado(e);
        dlg.mensajes.clear();
        gases.pct3.llamadas.clear();
        caso.preparar(*this);
        e.ErrorCalculo = Verdadero;  // a failure before does not hide this one's message
        EXPECT_FALSE(gases.ConFr("1")) << caso.nombre;
        ASSERT_EQ(dlg.mensajes.size(), 1u) << caso.nombre;
        EXPECT_NE(dlg.mensajes[0].find(caso.causa), std::string::npos) << dlg.mensajes[0];
        EXPECT_EQ(e.ErrorCalculo, Verdadero) << caso.nombre;
        EXPECT_TRUE(gases.pct3.llamadas.empty()) << caso.nombre;
        EXPECT_TRUE(prueba::NoFinitos(e).empty()) << caso.nombre;
        EXPECT_FALSE(gases.p.ventana.oculta) << caso.nombre;
    }
}

TEST_F(CombustionTest, HugeFrNeverLeavesANaN) {
    fuel.Elegir("Gasolina");
    EXPECT_FALSE(gases.ConFr("1e308"));
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_TRUE(prueba::NoFinitos(e).empty());
}
