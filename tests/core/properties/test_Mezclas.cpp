#include <gtest/gtest.h>

#include <cmath>

#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "tests/core/properties/Fluidos.h"

using namespace vanta;

namespace {
struct Mezclas : ::testing::Test {
    Estado e;
    DialogosGrabados dlg;
    void SetUp() override {
        prueba::AireSeco(e);
        prueba::HumosPobres(e);
        e.Presion = 100000;
    }
    void En(double T, double p) { e.Temperatura = T, e.Presion = p; }
};
}  // namespace

TEST_F(Mezclas, DryAirSumsFourEntropyTermsAndMatchesAtReferencePressure) {
    En(300, 100000);
    PropiedadesAire(e, dlg);
    const double esperado =
        0.20946 * (e.S0O2Baja - kR * std::log(0.20946)) + 0.00934 * (e.S0ArBaja - kR * std::log(0.00934)) +
        0.00033 * (e.S0CO2Baja - kR * std::log(0.00033)) + 0.78087 * (e.S0N2Baja - kR * std::log(0.78087));
    EXPECT_EQ(e.S0Aire, esperado);
    EXPECT_NEAR(e.SAire, e.S0Aire, 1e-12);
    EXPECT_EQ(e.CvAire, e.CpAire - 8.3143);
    EXPECT_EQ(e.Gamma, e.CpAire / e.CvAire);
    EXPECT_NEAR(e.Gamma, 1.4, 0.002);
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST_F(Mezclas, ZeroPressureKeepsTheEntropiesAtPressure) {
    En(500, 200000);
    PropiedadesAire(e, dlg);
    PropiedadesHumos(e, dlg);
    const double sAire = e.SAire, sHumos = e.SHumos;
    En(900, 0);
    PropiedadesAire(e, dlg);
    PropiedadesHumos(e, dlg);
    EXPECT_EQ(e.SAire, sAire);
    EXPECT_EQ(e.SHumos, sHumos);
    EXPECT_NE(e.S0Aire, 0);
    EXPECT_GT(e.hAire, 0);
}

TEST_F(Mezclas, GasesBelow1000KKeepTheRatioOfTheLastEvaluationThatComputedIt) {
    En(300, 100000);
    PropiedadesAire(e, dlg);
    const double gammaAire = e.Gamma, cvAire = e.CvAire;
    En(900, 100000);
    PropiedadesHumos(e, dlg);
    EXPECT_EQ(e.Gamma, gammaAire);
    EXPECT_EQ(e.CvHumos, cvAire);
    // Above 1000 K the gases compute their own.
    En(1200, 100000);
    PropiedadesHumos(e, dlg);
    EXPECT_EQ(e.CvHumos, e.CpHumos - 8.3143);
    EXPECT_EQ(e.Gamma, e.CpHumos / e.CvHumos);
}

TEST_F(Mezclas, GasEnthalpyLosesTheOxygenTermAbove1000K) {
    En(1000, 100000);
    PropiedadesHumos(e, dlg);
    const double h1000 = e.hHumos;
    En(1000.1, 100000);
    PropiedadesHumos(e, dlg);
    // About xO2·22707 J/mol less, less the small rise of 0.1 K.
    EXPECT_NEAR(h1000 - e.hHumos, 0.05 * 22707, 15);
    // Without excess oxygen there is no step.
    e.xO2Humos = 0;
    En(1000, 100000);
    PropiedadesHumos(e, dlg);
    const double sinO2 = e.hHumos;
    En(1000.1, 100000);
    PropiedadesHumos(e, dlg);
    EXPECT_NEAR(e.hHumos - sinO2, 3.5, 1);
}

TEST_F(Mezclas, BlendIsALinearWeightingAndLeavesGammaAlone) {
    En(1500, 300000);
    PropiedadesAireHumosFraccion(e, dlg, 0);
    EXPECT_EQ(e.hMezcla, e.hAire);
    EXPECT_EQ(e.CpMezcla, e.CpAire);
    EXPECT_EQ(e.S0Mezcla, e.S0Aire);
    EXPECT_EQ(e.SMezcla, e.SAire);
    const double gamma = e.Gamma;
    PropiedadesAireHumosFraccion(e, dlg, 1);
    EXPECT_EQ(e.hMezcla, e.hHumos);
    EXPECT_EQ(e.SMezcla, e.SHumos);
    EXPECT_EQ(e.Gamma, gamma);  // what the gases left
    e.FraccionHumos = 0.25;
    PropiedadesAireHumosFraccion(e, dlg, 0.5);
    EXPECT_EQ(e.FraccionHumos, 0.25);  // the given fraction is not stored
    EXPECT_EQ(e.hMezcla, 0.5 * e.hAire + 0.5 * e.hHumos);

    e.Q23 = 1, e.Qciclo = 4;
    PropiedadesAireHumos(e, dlg);
    EXPECT_EQ(e.FraccionHumos, 0.25);
    PropiedadesAireHumosLineal(e, dlg, 2000, 1000, 1500);
    EXPECT_EQ(e.FraccionHumos, 0.5);
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST_F(Mezclas, LimitTripReturnsOnOldSpeciesValuesThenStopsEverything) {
    En(3000, 100000);
    PropiedadesAire(e, dlg);
    const double h3000 = e.hAire;
    En(8000, 100000);
    PropiedadesAire(e, dlg);  // trips the limit, sums on the values of 3000 K
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.hAire, h3000);
    EXPECT_EQ(dlg.mensajes.size(), 1u);
    En(500, 100000);
    PropiedadesAire(e, dlg);
    EXPECT_EQ(e.hAire, h3000);  // later evaluations do nothing
}

TEST_F(Mezclas, ArithmeticFailuresSetTheFlagAndLeaveNoNaN) {
    // Humidity that drives the dry fractions negative.
    e.xH2OAire = 1.2, e.xN2Aire = -0.156, e.xO2Aire = -0.04, e.xArAire = -0.0018, e.xCO2Aire = -0.00007;
    En(300, 100000);
    PropiedadesAire(e, dlg);
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.SAire, 0);
    ASSERT_EQ(dlg.mensajes.size(), 1u);

    Estado n;
    prueba::AireSeco(n);
    prueba::HumosPobres(n);
    n.Temperatura = 800, n.Presion = -5;
    PropiedadesHumos(n, dlg);
    EXPECT_EQ(n.ErrorCalculo, Verdadero);

    Estado q;
    prueba::AireSeco(q);
    prueba::HumosPobres(q);
    q.Temperatura = 800, q.Presion = 1e5, q.Qciclo = 0;
    PropiedadesAireHumos(q, dlg);
    EXPECT_EQ(q.ErrorCalculo, Verdadero);
    EXPECT_TRUE(std::isfinite(q.FraccionHumos));
}
