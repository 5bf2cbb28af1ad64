// The cycles with dissociation: their JSON against the golden file, their
// balances on a randomized set of calculations, the shares of Mixto at its
// ends and at Pmax, and a state that was not calculated.
#include <gtest/gtest.h>

#include <random>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/sequence/Calculo.h"
#include "core/validation/ValidacionEquilibrio.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::equilibrio;

namespace {

Estado Calculado(const std::map<std::string, std::string>& opciones) {
    OpcionesCalculo o;
    o.valores = opciones;
    return *Calcular(EntradasDeOpciones(o)).estado;
}

}  // namespace

TEST(CicloEquilibrio, LosCiclosSeEscribenComoSuArchivo) {
    const std::map<std::string, std::string> ciclos[] = {
        {},
        {{"ciclo", "Diesel"}, {"combustible", "Gasoil"}, {"fr", "0.8"}, {"rc", "18"}},
        {{"ciclo", "Mixto"}, {"pmax", "6000000"}},
        {{"ciclo", "Mixto"}, {"proporcion-vcte", "30"}, {"humedad", "60"}},
        {{"combustible", "Metanol"}, {"fr", "1.2"}, {"compresion", "variable"}, {"expansion", "variable"}},
    };
    std::string texto;
    for (const auto& o : ciclos) {
        for (const auto& [nombre, valor] : o) texto += "--" + nombre + " " + valor + " ";
        texto += "\n{" + CicloConDisociacionJSON(CicloConDisociacion(Calculado(o))) + "}\n";
    }
    EXPECT_EQ(pruebas::CompararDorado("equilibrio/ciclos.txt", texto), "");
}

TEST(CicloEquilibrio, AlAzarCierranSusBalances) {
    std::mt19937 azar(7);
    std::uniform_real_distribution<double> u(0, 1);
    const char* combustibles[] = {"Gasolina", "Gasoil", "Metanol", "Etanol", "GLP-Propano"};
    int calculados = 0;
    for (int k = 0; k < 24; ++k) {
        std::map<std::string, std::string> o = {
            {"combustible", combustibles[k % 5]},
            {"fr", std::to_string(0.3 + 1.1 * u(azar))},
            {"rc", std::to_string(6 + 14 * u(azar))},
            {"t1", std::to_string(280 + 80 * u(azar))},
            {"ciclo", k % 4 == 0   ? "Otto"
                      : k % 4 == 1 ? "Diesel"
                                   : "Mixto"},
        };
        if (k % 4 == 2) o["proporcion-vcte"] = std::to_string(100 * u(azar));
        if (k % 4 == 3) o["pmax"] = std::to_string(4e6 + 8e6 * u(azar));
        const Estado e = Calculado(o);
        if (e.ErrorCalculo) continue;
        ++calculados;
        const CiclosConDisociacion c = CicloConDisociacion(e);
        for (const CicloEquilibrio* ciclo : {&c.equilibrio, &c.sinDisociacion}) {
            ASSERT_TRUE(ciclo->bien) << ciclo->mensaje;
            const ResiduosCiclo r = Residuos(*ciclo);
            EXPECT_LE(r.atomos, kToleranciaEquilibrio);
            EXPECT_LE(r.energia, kToleranciaEquilibrio);
            EXPECT_EQ(ciclo->estado3.V, e.V2);
            EXPECT_EQ(ciclo->estado5.V, e.V1);
            EXPECT_EQ(ciclo->estado4.p, ciclo->estado3.p);
            EXPECT_NEAR(ciclo->trabajo, ciclo->W12 + ciclo->W34 + ciclo->W45, 1e-12);
            EXPECT_EQ(ciclo->calor, e.MasaCombustible * e.HCI);
            EXPECT_GT(ciclo->rendimiento, 0.2);
            EXPECT_LT(ciclo->rendimiento, 0.75);
            if (e.TipoCiclo == "Mixto" && !e.OpcionProporcion && ciclo->fraccionVolumenConstante < 1) {
                EXPECT_NEAR(ciclo->estado3.p, e.Pmax, 1e-9 * e.Pmax);
            }
        }
        // Dissociation takes heat at the highest temperature (rich, the
        // water-gas equilibrium may give more than the products held).
        if (e.Fr <= 1) {
            EXPECT_LT(c.equilibrio.estado4.T, c.sinDisociacion.estado4.T);
        }
    }
    EXPECT_GT(calculados, 15);
}

TEST(CicloEquilibrio, ElMixtoEnSusExtremosYHastaLaPresionMaxima) {
    const Estado otto = Calculado({});
    const CicloEquilibrio o = CicloConDisociacion(otto).equilibrio;
    EXPECT_EQ(o.fraccionVolumenConstante, 1);
    EXPECT_EQ(o.estado4.T, o.estado3.T);
    EXPECT_EQ(o.W34, 0);
    EXPECT_EQ(o.W12, otto.W12acumulado);
    // All of the fuel at constant volume is Otto.
    const CicloEquilibrio cien =
        CicloConDisociacion(Calculado({{"ciclo", "Mixto"}, {"proporcion-vcte", "100"}})).equilibrio;
    EXPECT_NEAR(cien.estado3.T, o.estado3.T, 1e-6);
    EXPECT_NEAR(cien.rendimiento, o.rendimiento, 1e-9);
    // None of it is Diesel: state 3 is state 2, the charge of air.
    const Estado diesel = Calculado({{"ciclo", "Diesel"}});
    const CicloEquilibrio d = CicloConDisociacion(diesel).equilibrio;
    const CicloEquilibrio cero =
        CicloConDisociacion(Calculado({{"ciclo", "Mixto"}, {"proporcion-vcte", "0"}})).equilibrio;
    EXPECT_EQ(d.fraccionVolumenConstante, 0);
    EXPECT_EQ(d.estado3.T, diesel.T2);
    EXPECT_NEAR(d.estado3.p, diesel.p2, 1e-6 * diesel.p2);
    EXPECT_EQ(d.estado3.n[NO], 0);
    EXPECT_NEAR(cero.estado4.T, d.estado4.T, 1e-6);
    EXPECT_GT(d.W34, 0);
    // A maximum pressure above what all the fuel reaches at V2: Otto again;
    // below p2: Diesel again.
    const CicloEquilibrio alta =
        CicloConDisociacion(Calculado({{"ciclo", "Mixto"}, {"pmax", "2e7"}})).equilibrio;
    EXPECT_EQ(alta.fraccionVolumenConstante, 1);
    EXPECT_NEAR(alta.estado3.T, o.estado3.T, 1e-6);
    Estado baja = Calculado({{"ciclo", "Mixto"}, {"pmax", "6000000"}});
    baja.Pmax = baja.p2 / 2;
    EXPECT_EQ(CicloConDisociacion(baja).equilibrio.fraccionVolumenConstante, 0);
}

TEST(CicloEquilibrio, SinUnCalculoTerminadoNoHayCiclo) {
    Estado e = Calculado({{"fr", "2"}});
    ASSERT_TRUE(e.ErrorCalculo);
    const CiclosConDisociacion c = CicloConDisociacion(e);
    EXPECT_FALSE(c.equilibrio.bien);
    const std::string mensaje =
        "El ciclo con disociación parte del estado 2 de un cálculo que haya terminado bien, y no lo hay";
    EXPECT_EQ(c.sinDisociacion.mensaje, mensaje);
    EXPECT_EQ(CicloConDisociacionJSON(c), "\"Equilibrio\":{\"Error\":\"" + mensaje +
                                              "\"},\"SinDisociacion\":{\"Error\":\"" + mensaje + "\"}");
    e = Calculado({});
    e.TipoCiclo = "Wankel";
    EXPECT_FALSE(CicloConDisociacion(e).equilibrio.bien);
    e = Calculado({});
    e.HCI = 0;
    EXPECT_FALSE(CicloConDisociacion(e).equilibrio.bien);
}

TEST(CicloEquilibrio, LosResiduosVenUnEstadoQueNoCierra) {
    const CicloEquilibrio c =
        CicloConDisociacion(Calculado({{"ciclo", "Mixto"}, {"proporcion-vcte", "40"}})).equilibrio;
    CicloEquilibrio t = c, n = c, p = c;
    t.estado3.T *= 1 + 1e-6;
    n.estado4.n[equilibrio::N2] *= 1 + 1e-6;
    p.estado5.p *= 1.001;
    EXPECT_GT(Residuos(t).energia, 1e-8);
    EXPECT_GT(Residuos(n).atomos, 1e-7);
    EXPECT_NEAR(Residuos(p).energia, 1e-3, 1e-6);
    EXPECT_EQ(TextoResiduo(Residuos(c).energia, '.'), "< 1E-12");
    EXPECT_EQ(TextoResiduo(3.46e-7, ','), "3,5E-07");
    EXPECT_EQ(TextoResiduo(0.0123, '.'), "0.012");
    EXPECT_EQ(TextoResiduo(NAN, '.'), "no es un número");
}
