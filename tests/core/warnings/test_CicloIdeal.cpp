// The ideal cycle of a calculation's kind and inputs, against the closed forms
// of the textbooks, and the mean exponents read from the states.
#include <gtest/gtest.h>

#include <cmath>

#include "core/properties/Especies.h"
#include "core/sequence/Calculo.h"
#include "core/warnings/CicloIdeal.h"
#include "tests/core/Calculos.h"

using namespace vanta;

namespace {

// State 1 and the heat of one cycle, as a calculation leaves them.
Estado Ciclo(const char* tipo, double Rc, double Q) {
    Estado e;
    e.TipoCiclo = tipo;
    e.Rc = Rc;
    e.T1 = 300, e.p1 = 100000, e.V1 = 1e-4;
    e.Qciclo = Q;
    return e;
}

}  // namespace

TEST(CicloIdeal, OttoYDieselSonLasFormasCerradasDeLosLibros) {
    constexpr double g = kGammaAireEstandar;
    for (double Rc : {8.0, 12.5}) {
        const CicloIdeal otto = CalcularCicloIdeal(Ciclo("Otto", Rc, 300), g, g);
        ASSERT_TRUE(otto.valido);
        EXPECT_NEAR(otto.rendimiento, 1 - std::pow(Rc, 1 - g), 1e-12) << Rc;
    }
    // Diesel: 1 − (ρ^γ − 1)/(γ·rc^(γ−1)·(ρ − 1)), the cut-off ratio ρ from the
    // heat at constant pressure.
    const Estado e = Ciclo("Diesel", 18, 300);
    const double n = e.p1 * e.V1 / (kR * e.T1), cp = g * kR / (g - 1), T2 = e.T1 * std::pow(18.0, g - 1);
    const double rho = 1 + e.Qciclo / (n * cp * T2);
    const CicloIdeal diesel = CalcularCicloIdeal(e, g, g);
    ASSERT_TRUE(diesel.valido);
    EXPECT_NEAR(diesel.rendimiento, 1 - (std::pow(rho, g) - 1) / (g * std::pow(18.0, g - 1) * (rho - 1)),
                1e-12);
}

TEST(CicloIdeal, MixtoReparteElCalorPorSuPropiaEntrada) {
    constexpr double g = kGammaAireEstandar;
    const double otto = CalcularCicloIdeal(Ciclo("Otto", 14, 300), g, g).rendimiento;
    const double diesel = CalcularCicloIdeal(Ciclo("Diesel", 14, 300), g, g).rendimiento;
    Estado mixto = Ciclo("Mixto", 14, 300);
    mixto.OpcionProporcion = true;
    auto conProporcion = [&](double vcte) {
        mixto.PropVcte = vcte;
        return CalcularCicloIdeal(mixto, g, g).rendimiento;
    };
    EXPECT_DOUBLE_EQ(conProporcion(0), diesel);
    EXPECT_DOUBLE_EQ(conProporcion(100), otto);
    EXPECT_GT(conProporcion(50), diesel);
    EXPECT_LT(conProporcion(50), otto);
    // Up to a maximum pressure: all of the heat at constant volume when the
    // limit is never reached; none at all with the limit at p2; no cycle
    // below it.
    mixto.OpcionProporcion = false;
    const double p2 = mixto.p1 * std::pow(14.0, g);
    mixto.Pmax = 1e12;
    EXPECT_DOUBLE_EQ(CalcularCicloIdeal(mixto, g, g).rendimiento, otto);
    mixto.Pmax = p2;
    EXPECT_NEAR(CalcularCicloIdeal(mixto, g, g).rendimiento, diesel, 1e-12);
    mixto.Pmax = p2 * 0.99;
    EXPECT_FALSE(CalcularCicloIdeal(mixto, g, g).valido);
}

TEST(CicloIdeal, NingunCicloIdealDondeNoPuedeHaberlo) {
    constexpr double g = kGammaAireEstandar;
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Otto", 10, 0), g, g).valido);          // no heat
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Otto", 1, 300), g, g).valido);         // no compression
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Otto", 10, 300), 1, g).valido);        // no exponent
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Diesel", 18, 5000), g, g).valido);     // heat past the stroke
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Rotativo", 10, 300), g, g).valido);    // no such kind
    EXPECT_TRUE(CalcularCicloIdeal(Ciclo("Diesel", 18, 300), 1.3, 1.25).valido);  // two exponents
    EXPECT_FALSE(CalcularCicloIdeal(Ciclo("Otto", 10, 300), g, 1).valido);        // no expansion exponent
    for (int k = 0; k < 3; ++k) {  // no charge: T1, p1 or V1 zero
        Estado e = Ciclo("Otto", 10, 300);
        (k == 0 ? e.T1 : k == 1 ? e.p1 : e.V1) = 0;
        EXPECT_FALSE(CalcularCicloIdeal(e, g, g).valido) << k;
    }
}

TEST(CicloIdeal, LosExponentesMediosSonLosDelCalculo) {
    auto calcular = [](const std::vector<std::string>& opciones) {
        const auto c = pruebas::Calcular(opciones, false);
        EXPECT_TRUE(c->bien);
        return c->e;
    };
    const Estado medio = calcular({"--ciclo", "Diesel", "--rc", "18"});
    EXPECT_NEAR(ExponenteMedioCompresion(medio), medio.GammaMedioCompresion, 1e-9);
    EXPECT_NEAR(ExponenteMedioExpansion(medio), medio.GammaMedioExpansion, 1e-9);
    const Estado politropico = calcular({"--compresion", "politropica", "--expansion", "politropica"});
    EXPECT_NEAR(ExponenteMedioCompresion(politropico), 1.39, 1e-9);
    EXPECT_NEAR(ExponenteMedioExpansion(politropico), 1.23, 1e-9);
    // The distance to the ideal: the program's efficiency below both ideals.
    const DistanciaIdeal d = DistanciaAlIdeal(medio);
    EXPECT_EQ(d.rendimiento, medio.Rendimiento);
    EXPECT_GT(d.aireEstandar.rendimiento, d.exponentes.rendimiento);
    EXPECT_GT(d.exponentes.rendimiento, d.rendimiento);
}
