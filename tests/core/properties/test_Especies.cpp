#include <gtest/gtest.h>

#include <cmath>

#include "core/properties/Especies.h"

using namespace vanta;

namespace {
Estado A(double T) {
    Estado e;
    e.Temperatura = T;
    return e;
}
}  // namespace

TEST(CalcularEspeciesTest, WorkedValuesAt1000KUseTheLowSet) {
    Estado e = A(1000);
    DialogosGrabados dlg;
    CalcularEspecies(e, dlg);
    EXPECT_DOUBLE_EQ(e.CpH2OBaja, 41.21461889908898);
    EXPECT_DOUBLE_EQ(e.hCO2Baja, 33396.5287976818);
    EXPECT_DOUBLE_EQ(e.S0N2Baja, 228.0573293267753);
    EXPECT_EQ(e.CpH2OAlta, 0);  // the other range is untouched
}

TEST(CalcularEspeciesTest, RangeSwitchIsJustAbove1000K) {
    Estado e = A(1000.0000001);
    DialogosGrabados dlg;
    CalcularEspecies(e, dlg);
    EXPECT_NE(e.CpH2OAlta, 0);
    EXPECT_EQ(e.CpH2OBaja, 0);
    // The jump of CO at 1000 K belongs to the data: about 0.0008 J/(mol·K).
    Estado b = A(1000);
    CalcularEspecies(b, dlg);
    EXPECT_NEAR(e.CpCOAlta - b.CpCOBaja, 0.0008, 0.0003);
    EXPECT_NEAR(e.hCOAlta, b.hCOBaja, 0.01);
}

TEST(CalcularEspeciesTest, EnthalpiesAreSensibleFrom298K) {
    Estado e = A(298.15);
    DialogosGrabados dlg;
    CalcularEspecies(e, dlg);
    for (double h : {e.hArBaja, e.hCOBaja, e.hCO2Baja, e.hH2OBaja, e.hN2Baja, e.hO2Baja})
        EXPECT_LT(std::fabs(h), 0.00023);
    EXPECT_DOUBLE_EQ(e.CpArBaja, 20.78575);
    Estado alta = A(3000);
    CalcularEspecies(alta, dlg);
    EXPECT_DOUBLE_EQ(alta.CpArAlta, 20.78575);
}

TEST(CalcularEspeciesTest, LimitOf7500KTestsTheTemperatureBeforeTheFlag) {
    DialogosGrabados dlg;
    Estado ok = A(7500);
    CalcularEspecies(ok, dlg);
    EXPECT_TRUE(dlg.mensajes.empty());
    EXPECT_EQ(ok.ErrorCalculo, 0);
    EXPECT_NE(ok.CpN2Alta, 0);

    Estado e = A(7500.01);
    CalcularEspecies(e, dlg);
    ASSERT_EQ(dlg.mensajes.size(), 1u);
    EXPECT_EQ(
        dlg.mensajes[0],
        "Se ha superado la temperatura máxima que admite el programa 5000 K, Temperatura que provocó el "
        "error =     7 500 K");
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.CpN2Alta, 0);  // nothing evaluated
    CalcularEspecies(e, dlg);  // a direct second call tells it again
    EXPECT_EQ(dlg.mensajes.size(), 2u);
}

TEST(CalcularEspeciesTest, FlagSetStopsEvaluation) {
    Estado e = A(500);
    e.ErrorCalculo = Verdadero;
    DialogosGrabados dlg;
    CalcularEspecies(e, dlg);
    EXPECT_EQ(e.CpN2Baja, 0);
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST(CalcularEspeciesTest, TemperatureNotPositiveIsAFailureNotANaN) {
    for (double T : {0.0, -10.0, std::nan("")}) {
        Estado e = A(T);
        DialogosGrabados dlg;
        CalcularEspecies(e, dlg);
        EXPECT_EQ(e.ErrorCalculo, Verdadero);
        EXPECT_EQ(dlg.mensajes.size(), 1u);
        EXPECT_EQ(e.hN2Baja, 0);
    }
}

TEST(PolinomiosTest, SameNumbersAsTheSpeciesEvaluation) {
    Estado e = A(1500);
    DialogosGrabados dlg;
    CalcularEspecies(e, dlg);
    const Coeficientes& c = kCoeficientesAlta[O2];
    EXPECT_EQ(PolinomioCp(e, c.a1, c.a2, c.a3, c.a4, c.a5), e.CpO2Alta);
    EXPECT_EQ(PolinomioEntalpia(e, c.a1, c.a2, c.a3, c.a4, c.a5, c.a6), e.hO2Alta);
    EXPECT_EQ(PolinomioEntropia(e, c.a1, c.a2, c.a3, c.a4, c.a5, c.a7), e.S0O2Alta);
    // The odd low-range values stand as they are.
    EXPECT_EQ(kCoeficientesBaja[CO].a1, 3.71);
    EXPECT_EQ(kCoeficientesBaja[CO2].a3, -6.607878e-06);
}
