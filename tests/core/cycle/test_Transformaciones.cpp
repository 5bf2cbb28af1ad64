#include <gtest/gtest.h>

#include <cmath>

#include "core/cycle/Transformaciones.h"
#include "core/properties/Busquedas.h"
#include "core/properties/Mezclas.h"
#include "tests/core/properties/Fluidos.h"

using namespace vanta;

namespace {

// A charge at the end of compression, about to burn at constant pressure.
struct Carga {
    Estado e;
    DialogosGrabados dlg;
    SuperficieGrabada pv, tv, ts, hs;
    Diagramas g{pv, tv, ts, hs};

    Carga() {
        prueba::AireSeco(e);
        prueba::HumosPobres(e);
        e.MasaHumos = 1.2e-4, e.MasaMolecularHumos = 0.029;
        e.PresionFinal = 5e6, e.VolumenFinal = 5.6e-6, e.TemperaturaFinal = 950, e.T3 = 950;
        e.MolesAire = 4e-3;
    }

    // The search as the program wrote it: a recursion whose every level ends
    // with the tail, and whose levels that raised the lower bound call it a
    // second time.
    void Recursion(double volumenLimite, double calor) {
        e.Temperatura = (e.TemperaturaInferior + e.TemperaturaSuperior) / 2;
        e.TemperaturaFinal = e.Temperatura;
        PropiedadesFin(e, dlg, calor, e.W34acumulado);
        e.hBusqueda = e.hFinal;
        e.SaltoEntalpia = e.hFinal - e.hInicioBusqueda;
        e.CalorIsobaro = e.MasaHumos * e.SaltoEntalpia / e.MasaMolecularHumos;
        if (std::fabs(calor - e.CalorIsobaro) < 1e-5) e.CalorIsobaro = calor;
        if (calor < e.CalorIsobaro) {
            e.TemperaturaSuperior = e.Temperatura;
            Recursion(volumenLimite, calor);
        } else if (calor > e.CalorIsobaro) {
            e.TemperaturaInferior = e.Temperatura;
            Recursion(volumenLimite, calor);
            Recursion(volumenLimite, calor);
        }
        VolumenIsobarico(e, e.VolumenInicial, e.TemperaturaInicial, e.Temperatura);
        e.VolumenIsobaro = e.VolumenProporcional;
        TrabajoIsobarico(e, e.PresionInicial, e.VolumenInicial, e.VolumenIsobaro);
        e.W34acumulado = e.TrabajoTransformacion;
        PonerEstadoFinal(e, dlg, calor, e.W34acumulado, e.PresionInicial, e.VolumenIsobaro, e.Temperatura);
        tv.Line(static_cast<float>(e.VolumenFinal), static_cast<float>(-e.TemperaturaFinal));
    }
};

struct Isobara : ::testing::Test, Carga {};

}  // namespace

TEST_F(Isobara, LoopedSearchGivesTheRecursionsValuesAndDrawCalls) {
    Estado inicio = e;
    CombustionPresionConstante(e, dlg, g, 1e-4, 150, Dibujo::Dibujar);
    ASSERT_EQ(e.ErrorCalculo, 0);

    Carga referencia;
    Estado& r = referencia.e;
    r = inicio;
    r.TipoFluido = Fluido::Humos;
    PonerEstadoInicial(r, referencia.dlg, r.PresionFinal, r.VolumenFinal, r.TemperaturaFinal, r.EntalpiaFinal,
                       r.EntropiaFinal);
    r.TemperaturaSuperior = 5000, r.TemperaturaInferior = r.TemperaturaInicial,
    r.hInicioBusqueda = r.hInicial;
    referencia.Recursion(1e-4, 150);

    EXPECT_EQ(e.TemperaturaFinal, r.TemperaturaFinal);
    EXPECT_EQ(e.VolumenFinal, r.VolumenFinal);
    EXPECT_EQ(e.W34acumulado, r.W34acumulado);
    EXPECT_EQ(e.EntalpiaFinal, r.EntalpiaFinal);
    EXPECT_EQ(e.EntropiaFinal, r.EntropiaFinal);
    EXPECT_EQ(tv.llamadas, referencia.tv.llamadas);
    // The heat balance closes on the enthalpy of the gases.
    EXPECT_NEAR(e.MasaHumos * (e.hFinal - e.hInicial) / e.MasaMolecularHumos, 150, 1e-5);
    EXPECT_EQ(e.W34acumulado, e.PresionInicial * (e.VolumenFinal - e.VolumenInicial));
}

TEST_F(Isobara, HeatBeyond5000KEndsWithTheTemperatureMessage) {
    CombustionPresionConstante(e, dlg, g, 1, 1e6, Dibujo::SinDibujar);
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(dlg.mensajes,
              std::vector<std::string>{" Ha superado la temperatura máxima admitida por el programa "});
}

TEST_F(Isobara, FlagSetOnEntryChangesNothing) {
    e.ErrorCalculo = Verdadero;
    const double antes = e.TemperaturaFinal;
    CombustionPresionConstante(e, dlg, g, 1e-4, 150, Dibujo::Dibujar);
    Compresion(e, dlg, g, Modelo::GammaMedio, 1e-6, 1e-7, 1.4, Dibujo::Dibujar);
    Expansion(e, dlg, g, Modelo::GammaMedio, 1e-4, 1e-7, 1.3);
    CombustionVolumenConstante(e, dlg, g, TipoCalorIsocoro::Dado, 0, Dibujo::Dibujar);
    EXPECT_EQ(e.TemperaturaFinal, antes);
    EXPECT_TRUE(tv.llamadas.empty());
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST(CompresionTest, ExactStrokeEndsWithAFullStepTakenAsTheShortOne) {
    Estado e;
    prueba::AireSeco(e);
    DialogosGrabados dlg;
    SuperficieGrabada pv, tv, ts, hs;
    Diagramas g{pv, tv, ts, hs};
    e.PresionFinal = 1e5, e.VolumenFinal = 1e-4, e.TemperaturaFinal = 300;
    const double paso = (1e-4 - 1e-5) / 1000;
    Compresion(e, dlg, g, Modelo::Politropico, 1e-5, paso, 1.4, Dibujo::Dibujar);
    // With a constant exponent the walk changes nothing but the work.
    EXPECT_NEAR(e.PresionFinal, 1e5 * std::pow(10.0, 1.4), 1e-6);
    EXPECT_NEAR(e.W12acumulado, (1e5 * 1e-4 - e.PresionFinal * 1e-5) / 0.4, 1e-9);
    EXPECT_EQ(e.gamma1, 1.4);
    EXPECT_EQ(e.GammaInicial, Variante(" N.D."));
    // The point, 999 or 1000 steps as the sums of the step fall, the end.
    EXPECT_NEAR(tv.llamadas.size(), 1001.5, 0.5);
    EXPECT_EQ(e.VolumenFinal, 1e-5);
}

TEST(CompresionTest, UnknownModelIsToldAndTheWalkGoesOn) {
    Estado e;
    prueba::AireSeco(e);
    DialogosGrabados dlg;
    DiagramasNulos nulos;
    Diagramas g = nulos.Todos();
    e.PresionFinal = 1e5, e.VolumenFinal = 1e-4, e.TemperaturaFinal = 300;
    Compresion(e, dlg, g, static_cast<Modelo>(4), 1e-5, 9e-8, 0, Dibujo::SinDibujar);
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{"Error interno Vanta:  Gmedio_1_Poli_2_Gvariable_3"});
    EXPECT_EQ(e.ErrorCalculo, 0);
    EXPECT_GT(e.TemperaturaFinal, 300);
}
