// The adiabatic flame: the published temperatures of the combustion
// textbooks, the energy of the products equal to that of the reactants, the
// air per mole of fuel, and what is refused.
#include <gtest/gtest.h>

#include <cmath>

#include "core/equilibrium/Llama.h"
#include "core/properties/Especies.h"

using namespace vanta::equilibrio;

namespace {

DatosLlama Estequiometrica(Combustible f) {
    DatosLlama d;
    d.combustible = f;
    d.aire = AireO2N2();
    d.T = 298.15;
    d.p = 101325;
    return d;
}

const Combustible kMetano{.C = 1, .H = 4, .entalpiaFormacion = -74850};

}  // namespace

TEST(Llama, LasTemperaturasPublicadasConSuBalanceDeEnergia) {
    const std::pair<Combustible, double> publicadas[] = {
        {kMetano, 2226}, {{.C = 3, .H = 8, .entalpiaFormacion = -103850}, 2267}, {{.H = 2}, 2383}};
    for (const auto& [f, T] : publicadas) {
        const DatosLlama d = Estequiometrica(f);
        const ResultadoLlama r = LlamaAdiabatica(d);
        ASSERT_TRUE(r.bien) << r.mensaje;
        EXPECT_NEAR(r.productos.T, T, 5);
        EXPECT_EQ(r.productos.p, 101325);
        // The oxygen to burn it all, and 3.76 times as much nitrogen.
        EXPECT_NEAR(r.aire[O2], f.C + f.H / 4, 1e-12);
        EXPECT_NEAR(r.aire[N2], 3.76 * r.aire[O2], 1e-12);
        EXPECT_NEAR(r.entalpiaReactivos, f.entalpiaFormacion, 0.01);
        EXPECT_NEAR(Evaluar(r.productos.n, r.productos.T, d.p, true).H, r.entalpiaReactivos, 1e-6);

        // Closed in a volume, hotter, and its internal energy kept.
        DatosLlama v = d;
        v.volumenConstante = true;
        const ResultadoLlama rv = LlamaAdiabatica(v);
        ASSERT_TRUE(rv.bien) << rv.mensaje;
        const double moles = 1 + r.aire[O2] + r.aire[N2], V = moles * vanta::kR * d.T / d.p;
        EXPECT_NEAR(rv.productos.V, V, 1e-15);
        EXPECT_NEAR(rv.productos.U, r.entalpiaReactivos - moles * vanta::kR * d.T, 1e-6);
        EXPECT_GT(rv.productos.T, r.productos.T + 300);
        EXPECT_NEAR(rv.productos.p, rv.productos.Total() * vanta::kR * rv.productos.T / V, 1e-6);

        // Without dissociation, hotter still, and only the products of
        // complete combustion.
        DatosLlama s = d;
        s.sinDisociacion = true;
        const ResultadoLlama rs = LlamaAdiabatica(s);
        ASSERT_TRUE(rs.bien) << rs.mensaje;
        EXPECT_GT(rs.productos.T, r.productos.T + 100);
        EXPECT_NEAR(rs.productos.H, r.entalpiaReactivos, 1e-6);
        EXPECT_EQ(rs.productos.n[NO] + rs.productos.n[OH] + rs.productos.n[CO] + rs.productos.n[O2], 0);
        EXPECT_NEAR(rs.productos.n[H2O], f.H / 2, 1e-12);
    }
}

TEST(Llama, ElDosadoYElAireCambianLaLlama) {
    DatosLlama d = Estequiometrica(kMetano);
    d.Fr = 0.5;
    const ResultadoLlama pobre = LlamaAdiabatica(d);
    EXPECT_NEAR(pobre.aire[O2], 4, 1e-12);
    EXPECT_NEAR(pobre.productos.T, 1480, 10);
    d.Fr = 1.5;
    d.sinDisociacion = true;
    const ResultadoLlama rica = LlamaAdiabatica(d);
    ASSERT_TRUE(rica.bien) << rica.mensaje;
    EXPECT_GT(rica.productos.n[CO], 0.3);
    EXPECT_NEAR(rica.productos.n[CO] + rica.productos.n[CO2], 1, 1e-12);
    // Humid air carries its water, argon and CO2 per mole of fuel, and takes
    // heat that the flame does not reach.
    DatosLlama h = Estequiometrica(kMetano);
    h.aire = {};
    h.aire[O2] = 0.2, h.aire[N2] = 0.75, h.aire[Ar] = 0.01, h.aire[CO2] = 0.01, h.aire[H2O] = 0.03;
    const ResultadoLlama humeda = LlamaAdiabatica(h);
    ASSERT_TRUE(humeda.bien) << humeda.mensaje;
    EXPECT_NEAR(humeda.aire[H2O], 0.3, 1e-12);
    EXPECT_NEAR(humeda.aire[Ar], 0.1, 1e-12);
    EXPECT_LT(humeda.productos.T, LlamaAdiabatica(Estequiometrica(kMetano)).productos.T - 20);
    // Hot reactants, a hotter flame; every atom of the fuel in the products,
    // its sulphur as SO2.
    const Combustible f{.C = 1, .H = 4, .N = 0.2, .O = 0.5, .S = 0.1, .entalpiaFormacion = -150000};
    DatosLlama caliente = Estequiometrica(f);
    caliente.T = 800;
    const ResultadoLlama rc = LlamaAdiabatica(caliente);
    EXPECT_GT(rc.productos.T, 2300);
    EXPECT_NEAR(rc.productos.n[SO2], 0.1, 1e-12);
    EXPECT_NEAR(rc.aire[O2], 1.85, 1e-12);
    const Elementos productos = ElementosDe(rc.productos.n), aire = ElementosDe(rc.aire);
    const double atomos[kElementos] = {f.C, f.H, f.O, f.N, 0, f.S};
    for (int i = 0; i < kElementos; ++i) EXPECT_NEAR(productos[i], aire[i] + atomos[i], 1e-12) << i;
}

TEST(Llama, LoQueNoEsUnaLlamaDiceSuRazon) {
    auto mensaje = [](DatosLlama d) {
        const ResultadoLlama r = LlamaAdiabatica(d);
        EXPECT_FALSE(r.bien);
        return r.mensaje;
    };
    DatosLlama d = Estequiometrica(kMetano);
    d.Fr = 0;
    EXPECT_EQ(mensaje(d), "El dosado relativo Fr ha de ser un número positivo");
    d.Fr = NAN;
    EXPECT_EQ(mensaje(d), "El dosado relativo Fr ha de ser un número positivo");
    const std::string combustible =
        "Los átomos del combustible han de ser números positivos o cero, y su entalpía de formación un "
        "número";
    EXPECT_EQ(mensaje(Estequiometrica({.C = 1, .H = -4})), combustible);
    EXPECT_EQ(mensaje(Estequiometrica({.C = 1, .H = 4, .entalpiaFormacion = INFINITY})), combustible);
    EXPECT_EQ(mensaje(Estequiometrica({.C = 1, .O = 2})),
              "El combustible no necesita oxígeno para quemarse: no hay aire que mezclarle");
    const std::string aire =
        "Las fracciones molares del aire han de ser números positivos o cero, con algo de O2";
    d = Estequiometrica(kMetano);
    d.aire[O2] = 0;
    EXPECT_EQ(mensaje(d), aire);
    d.aire[O2] = 0.21, d.aire[N2] = -0.1;
    EXPECT_EQ(mensaje(d), aire);
    const std::string reactivos =
        "La temperatura de los reactivos ha de estar entre 250 y 6 000 K, y su presión ha de ser positiva";
    d = Estequiometrica(kMetano);
    d.T = 249;
    EXPECT_EQ(mensaje(d), reactivos);
    d.T = 250;
    EXPECT_TRUE(LlamaAdiabatica(d).bien);
    d.T = 6000;
    EXPECT_NE(LlamaAdiabatica(d).mensaje, reactivos);
    d.T = 300, d.p = 0;
    EXPECT_EQ(mensaje(d), reactivos);
    // Richer than the carbon to CO allows, with or without dissociation.
    d = Estequiometrica({.C = 1});
    d.Fr = 2.5;
    EXPECT_NE(mensaje(d).find("demasiado rica"), std::string::npos);
    d.sinDisociacion = true;
    EXPECT_NE(mensaje(d).find("demasiado rica"), std::string::npos);
}
