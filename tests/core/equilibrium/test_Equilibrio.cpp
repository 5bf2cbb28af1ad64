// The chemical equilibrium on a randomized set of mixtures (fuels, Fr 0.3 to
// 2, 300 to 6000 K, 0.1 to 200 bar): atoms kept, the law of mass action of
// every dissociation reaction met, and the problems of energy and entropy
// finding again the state they were taken from. Then what is refused, and
// complete combustion.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/equilibrium/Llama.h"
#include "core/properties/Especies.h"

using namespace vanta::equilibrio;

namespace {

struct Caso {
    Elementos b;
    double T, p;
};

// A fuel, its air (humid or O2 + 3.76 N2) at a random Fr, a state.
Caso CasoAlAzar(std::mt19937& azar) {
    std::uniform_real_distribution<double> u(0, 1);
    Combustible f{
        .C = 10 * u(azar), .H = 1 + 20 * u(azar), .N = 0.5 * u(azar), .O = u(azar), .S = 0.1 * u(azar)};
    Moles aire = AireO2N2();
    if (u(azar) < 0.5) {
        const double agua = 0.04 * u(azar);
        aire = {};
        aire[Ar] = 0.00934 * (1 - agua), aire[CO2] = 0.00033 * (1 - agua), aire[N2] = 0.78087 * (1 - agua),
        aire[O2] = 0.20946 * (1 - agua), aire[H2O] = agua;
    }
    std::string error;
    const double A = MolesAirePorMol(f, aire, 0.3 * std::pow(2 / 0.3, u(azar)), error);
    Moles n{};
    for (int j = 0; j < kGases; ++j) n[j] = A * aire[j];
    Elementos b = ElementosDe(n);
    b[eC] += f.C, b[eH] += f.H, b[eN] += f.N, b[eO] += f.O, b[eS] += f.S;
    return {b, 300 + 5700 * u(azar), 1e4 * std::pow(2000.0, u(azar))};
}

// ln of the equilibrium constant K_p from the gases' data, and of the
// quotient of the mixture's partial pressures, for Σ ν_j·gas_j.
struct Reaccion {
    std::vector<std::pair<Gas, double>> nu;
};
const Reaccion kReacciones[] = {{{{CO2, -1}, {CO, 1}, {O2, 0.5}}},
                                {{{H2O, -1}, {H2, 1}, {O2, 0.5}}},
                                {{{H2O, -1}, {OH, 1}, {H2, 0.5}}},
                                {{{H2, -1}, {H, 2}}},
                                {{{O2, -1}, {O, 2}}},
                                {{{N2, -1}, {N, 2}}},
                                {{{N2, -0.5}, {O2, -0.5}, {NO, 1}}}};

void CumpleAccionDeMasas(const Mezcla& m) {
    PropiedadesGases g;
    EvaluarGases(m.T, g);
    for (const Reaccion& r : kReacciones) {
        double lnK = 0, lnQ = 0;
        bool presentes = true;
        for (auto [gas, nu] : r.nu) {
            lnK -= nu * (g.h[gas] - g.s0[gas]);
            presentes = presentes && m.n[gas] > 1e-250;
            lnQ += nu * std::log(m.Fraccion(gas) * m.p / kPresionReferencia);
        }
        if (presentes) {
            EXPECT_NEAR(lnQ, lnK, 1e-6)
                << "T " << m.T << ", p " << m.p << ", " << kNombresGases[r.nu[0].first];
        }
    }
}

void CumpleAtomos(const Moles& n, const Elementos& b) {
    const Elementos r = ElementosDe(n);
    for (int i = 0; i < kElementos; ++i) EXPECT_NEAR(r[i], b[i], kToleranciaEquilibrio * b[i]) << i;
}

}  // namespace

TEST(Equilibrio, AlAzarGuardaLosAtomosCumpleLaAccionDeMasasYRecuperaElEstado) {
    std::mt19937 azar(2024);
    for (int k = 0; k < 150; ++k) {
        const Caso c = CasoAlAzar(azar);
        const Resultado tp = Equilibrar(c.b, {.dato = Dato::TemperaturaPresion, .T = c.T, .p = c.p});
        ASSERT_TRUE(tp.bien) << tp.mensaje << " T " << c.T << " p " << c.p;
        const Mezcla& m = tp.mezcla;
        EXPECT_EQ(m.T, c.T);
        EXPECT_EQ(m.p, c.p);
        EXPECT_NEAR(m.p * m.V, m.Total() * vanta::kR * m.T, 1e-12 * m.p * m.V);
        CumpleAtomos(m.n, c.b);
        CumpleAccionDeMasas(m);
        EXPECT_LT(tp.iteraciones, 40);

        // From the energy or the entropy with p or V, back to the same state.
        const Problema problemas[] = {{.dato = Dato::EntalpiaPresion, .p = m.p, .H = m.H},
                                      {.dato = Dato::EntropiaPresion, .p = m.p, .S = m.S},
                                      {.dato = Dato::EnergiaVolumen, .V = m.V, .U = m.U},
                                      {.dato = Dato::EntropiaVolumen, .V = m.V, .S = m.S},
                                      {.dato = Dato::TemperaturaVolumen, .T = m.T, .V = m.V}};
        for (const Problema& p : problemas) {
            const Resultado r = Equilibrar(c.b, p);
            ASSERT_TRUE(r.bien) << r.mensaje << " T " << c.T << " p " << c.p << " dato " << int(p.dato);
            EXPECT_NEAR(r.mezcla.T, m.T, 1e-7 * m.T) << int(p.dato);
            EXPECT_NEAR(r.mezcla.p, m.p, 1e-7 * m.p) << int(p.dato);
            EXPECT_NEAR(r.mezcla.Fraccion(N2), m.Fraccion(N2), 1e-7) << int(p.dato);
            EXPECT_NEAR(r.mezcla.Fraccion(H2O), m.Fraccion(H2O), 1e-7) << int(p.dato);
            CumpleAtomos(r.mezcla.n, c.b);
        }
        // A start from the solution of a neighbouring state lands on the same.
        const Resultado vecino =
            Equilibrar(c.b, {.dato = Dato::TemperaturaPresion, .T = c.T, .p = c.p}, &tp.mezcla.n);
        EXPECT_NEAR(vecino.mezcla.Fraccion(CO2), m.Fraccion(CO2), 1e-9);
        EXPECT_LE(vecino.iteraciones, 3);
    }
}

TEST(Equilibrio, CalienteSeRompeYFrioQuedaLaCombustionCompleta) {
    Elementos b = ElementosDe(Moles{0, 0, 0, 0, 7.52, 2});
    b[eC] += 1, b[eH] += 4;
    // Hot enough, the molecules come apart.
    const Mezcla m = Equilibrar(b, {.dato = Dato::TemperaturaPresion, .T = 6000, .p = 1e4}).mezcla;
    EXPECT_GT(m.Fraccion(O) + m.Fraccion(H) + m.Fraccion(N), 0.5);
    // Cold, only the complete-combustion products, every trace finite.
    const Mezcla frio = Equilibrar(b, {.dato = Dato::TemperaturaPresion, .T = 300, .p = 1e5}).mezcla;
    EXPECT_NEAR(frio.n[CO2], 1, 1e-12);
    EXPECT_NEAR(frio.n[H2O], 2, 1e-12);
    for (double x : frio.n) EXPECT_TRUE(std::isfinite(x) && x >= 0);
}

TEST(Equilibrio, LoQueNoTieneSolucionDiceSuRazon) {
    const Elementos aireMetano{1, 4, 4, 15.04, 0, 0};
    auto mensaje = [](const Elementos& b, const Problema& p) {
        const Resultado r = Equilibrar(b, p);
        EXPECT_FALSE(r.bien);
        return r.mensaje;
    };
    const Problema tp{.dato = Dato::TemperaturaPresion, .T = 2000, .p = 1e5};
    EXPECT_EQ(mensaje({}, tp), "Los gases no tienen átomos: no hay equilibrio que buscar");
    const std::string atomos = "Los moles de cada elemento de los gases han de ser números positivos o cero";
    EXPECT_EQ(mensaje({1, 4, -1, 15, 0, 0}, tp), atomos);
    EXPECT_EQ(mensaje({NAN, 4, 4, 15, 0, 0}, tp), atomos);
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::TemperaturaPresion, .T = 2000, .p = 0}),
              "La presión de los gases ha de ser un número positivo");
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::EnergiaVolumen, .V = -1, .U = 0}),
              "El volumen de los gases ha de ser un número positivo");
    const std::string temperatura =
        "La temperatura de los gases ha de estar entre 250 y 6 000 K, donde valen los datos de las especies";
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::TemperaturaPresion, .T = 249.9, .p = 1e5}), temperatura);
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::TemperaturaVolumen, .T = 6000.1, .V = 1}), temperatura);
    EXPECT_TRUE(Equilibrar(aireMetano, {.dato = Dato::TemperaturaPresion, .T = 250, .p = 1e5}).bien);
    EXPECT_TRUE(Equilibrar(aireMetano, {.dato = Dato::TemperaturaPresion, .T = 6000, .p = 1e5}).bien);
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::EntalpiaPresion, .p = 1e5, .H = NAN}),
              "La energía o la entropía dada de los gases no es un número");
    EXPECT_EQ(mensaje({2, 4, 1.9, 0, 0, 0}, tp),
              "No hay oxígeno bastante para quemar el carbono ni siquiera a CO: la mezcla es demasiado rica");
    // An energy beyond what the data reach, at either end, in equilibrium and
    // with the composition held.
    const std::string caliente =
        "La temperatura de los gases pasaría de 6 000 K, el límite de los datos de las especies";
    const std::string fria =
        "La temperatura de los gases bajaría de 250 K, el límite de los datos de las especies";
    const Mezcla m = Equilibrar(aireMetano, tp).mezcla;
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::EntalpiaPresion, .p = 1e5, .H = m.H + 1e8}), caliente);
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::EnergiaVolumen, .V = m.V, .U = m.U - 1e7}), fria);
    EXPECT_EQ(mensaje(aireMetano, {.dato = Dato::EntropiaVolumen, .V = m.V, .S = m.S - 1e4}), fria);
    EXPECT_EQ(
        mensaje({0, 0, 1e-300, 1, 0, 0}, tp),
        "El equilibrio químico hallado no guarda los átomos o la energía con la precisión debida (una parte "
        "en mil millones): algún elemento está en cantidad ínfima frente a los demás");
    EXPECT_EQ(Congelar(m.n, {.dato = Dato::EntalpiaPresion, .p = 1e5, .H = m.H + 1e8}).mensaje, caliente);
    EXPECT_EQ(Congelar(m.n, {.dato = Dato::EntropiaVolumen, .V = m.V, .S = m.S - 1e4}).mensaje, fria);
    EXPECT_EQ(Congelar(Moles{}, tp).mensaje,
              "La composición dada de los gases ha de tener moles positivos o cero, y alguno positivo");
    Moles negativa{};
    negativa[N2] = 1, negativa[O2] = -1e-3;
    EXPECT_FALSE(Congelar(negativa, tp).bien);
}

TEST(Equilibrio, LaComposicionCongeladaSoloBuscaLaTemperatura) {
    Moles n{};
    n[CO2] = 1, n[H2O] = 2, n[N2] = 7.52, n[O2] = 0.3;
    for (double T : {400.0, 999.0, 1001.0, 2500.0, 5500.0}) {
        const Mezcla m = Evaluar(n, T, 2e6, true);
        const Problema problemas[] = {{.dato = Dato::EntalpiaPresion, .p = m.p, .H = m.H},
                                      {.dato = Dato::EntropiaPresion, .p = m.p, .S = m.S},
                                      {.dato = Dato::EnergiaVolumen, .V = m.V, .U = m.U},
                                      {.dato = Dato::EntropiaVolumen, .T = 3000, .V = m.V, .S = m.S}};
        const Resultado dada = Congelar(n, {.dato = Dato::TemperaturaVolumen, .T = T, .V = m.V});
        EXPECT_TRUE(dada.bien);
        EXPECT_EQ(dada.mezcla.T, T);
        EXPECT_NEAR(dada.mezcla.p, m.p, 1e-9 * m.p);
        for (const Problema& p : problemas) {
            const Resultado r = Congelar(n, p);
            ASSERT_TRUE(r.bien) << r.mensaje;
            EXPECT_NEAR(r.mezcla.T, T, 1e-8 * T) << int(p.dato);
            EXPECT_EQ(r.mezcla.n, n);
        }
    }
    // The properties of the mixture: cp and h of its gases, the entropy with
    // the mixing term, U = H − N·R·T.
    const Mezcla m = Evaluar(n, 1500, 1e5, true);
    PropiedadesGases g;
    EvaluarGases(1500, g);
    double H = 0, Cp = 0;
    for (int j = 0; j < kGases; ++j) H += n[j] * g.h[j] * vanta::kR * 1500, Cp += n[j] * g.cp[j] * vanta::kR;
    EXPECT_DOUBLE_EQ(m.H, H);
    EXPECT_DOUBLE_EQ(m.Cp, Cp);
    EXPECT_DOUBLE_EQ(m.U, H - m.Total() * vanta::kR * 1500);
    const Mezcla doble = Evaluar(n, 1500, 2e5, true);
    EXPECT_NEAR(m.S - doble.S, m.Total() * vanta::kR * std::log(2.0), 1e-9);
}

TEST(Equilibrio, LaCombustionCompletaRepartePrimeroElCarbonoACO) {
    auto productos = [](const Elementos& b) {
        Moles n;
        EXPECT_EQ(CombustionCompleta(b, n), "");
        CumpleAtomos(n, b);
        return n;
    };
    auto igual = [](const Moles& n, const Moles& esperado) {
        for (int j = 0; j < kGases; ++j) EXPECT_NEAR(n[j], esperado[j], 1e-15) << kNombresGases[j];
    };
    // Lean: CO2, water, SO2 and the oxygen left; rich: CO; richer still, H2.
    igual(productos({1, 4, 8, 30, 0.3, 0.1}), {0.3, 0, 1, 2, 15, 1.9, 0, 0, 0, 0, 0, 0, 0.1});
    igual(productos({2, 4, 5, 0, 0, 0}), {0, 1, 1, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    igual(productos({2, 4, 3, 0, 0, 0}), {0, 2, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0});
    Moles vacia;
    EXPECT_NE(CombustionCompleta({2, 4, 1.9, 0, 0, 0}, vacia), "");
    EXPECT_NE(CombustionCompleta({0, 4, 0.1, 0, 0, 0.1}, vacia), "");
}

TEST(Equilibrio, LosGasesPasanDeUnJuegoAlOtroSinSaltoEntre1000y1002K) {
    // The program's sets below 1000 K and from 1002 K, as they are; in
    // between, a straight line from one to the other.
    PropiedadesGases bajo, alto, medio, g;
    EvaluarGases(1000, bajo);
    EvaluarGases(1002, alto);
    EvaluarGases(1001, medio);
    vanta::Estado e;
    e.Temperatura = 1002;
    const vanta::Coeficientes& c = vanta::kCoeficientesAlta[vanta::CO2];
    EXPECT_NEAR(alto.cp[CO2] * vanta::kR, vanta::PolinomioCp(e, c.a1, c.a2, c.a3, c.a4, c.a5), 1e-12);
    e.Temperatura = 1000;
    const vanta::Coeficientes& b = vanta::kCoeficientesBaja[vanta::CO2];
    EXPECT_NEAR(bajo.s0[CO2] * vanta::kR, vanta::PolinomioEntropia(e, b.a1, b.a2, b.a3, b.a4, b.a5, b.a7),
                1e-12);
    for (int j = 0; j < kGases; ++j) {
        EvaluarGases(1000 + 1e-9, g);
        EXPECT_NEAR(g.s0[j], bajo.s0[j], 1e-9);
        EXPECT_NEAR(medio.h[j] * 1001, (bajo.h[j] * 1000 + alto.h[j] * 1002) / 2, 0.01);
    }
    // Absolute enthalpies: water vapour at 298.15 K is its formation.
    EvaluarGases(298.15, g);
    EXPECT_NEAR(g.h[H2O] * vanta::kR * 298.15, kFormacionH2O, 0.01);
    EXPECT_NEAR(g.h[NO] * vanta::kR * 298.15, 90291, 0.01);
    EXPECT_NEAR(g.h[SO2], 0, 1e-6);
}
