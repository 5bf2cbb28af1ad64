#include <gtest/gtest.h>

#include <cmath>

#include "core/properties/Busquedas.h"
#include "core/properties/Mezclas.h"
#include "tests/core/properties/Fluidos.h"

using namespace vanta;

namespace {
struct Busquedas : ::testing::Test {
    Estado e;
    DialogosGrabados dlg;
    void SetUp() override {
        prueba::AireSeco(e);
        prueba::HumosPobres(e);
    }
};
}  // namespace

TEST_F(Busquedas, MeanGammaOfAnAirCompressionLiesBetweenTheEndRatios) {
    e.TipoFluido = Fluido::Aire;
    e.TemperaturaFinal = 300;
    PonerEstadoInicial(e, dlg, 100000, 0.001, 300, 0, 0);
    const double gammaInicio = e.Gamma;
    BuscarGammaMedio(e, dlg, 100000, 0.001, 0.0001, 300, Fluido::Aire);
    const double g = e.GammaMedio.Numero();
    EXPECT_TRUE(e.GammaMedio.EsNumero());
    EXPECT_LE(std::fabs(e.TemperaturaAnterior - e.TemperaturaPolitropica), 0.001);
    EXPECT_EQ(e.PresionPolitropica, 100000 * std::pow(0.001 / 0.0001, g));
    EXPECT_EQ(e.TemperaturaPolitropica, 300 * std::pow(10.0, g - 1));
    // The ratio falls with temperature: the mean is between start and end.
    e.Temperatura = e.TemperaturaPolitropica;
    PropiedadesAire(e, dlg);
    EXPECT_LT(g, gammaInicio);
    EXPECT_GT(g, e.Gamma);
    EXPECT_NEAR(e.TemperaturaPolitropica, 740, 20);
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST_F(Busquedas, SearchEndsByEvaluatingTheRecordsOldFinalTemperature) {
    e.TipoFluido = Fluido::Aire;
    e.TemperaturaFinal = 450;
    PonerEstadoInicial(e, dlg, 100000, 0.001, 300, 0, 0);
    BuscarGammaMedio(e, dlg, 100000, 0.001, 0.0001, 300, Fluido::Aire);
    EXPECT_EQ(e.Temperatura, 450);  // PropiedadesFin worked at the old TemperaturaFinal
}

TEST_F(Busquedas, EqualVolumesAreAClearFailure) {
    e.TipoFluido = Fluido::Aire;
    e.TemperaturaFinal = 300;
    PonerEstadoInicial(e, dlg, 100000, 0.001, 300, 0, 0);
    BuscarGammaMedio(e, dlg, 100000, 0.001, 0.001, 300, Fluido::Aire);
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(dlg.mensajes.size(), 1u);
    EXPECT_TRUE(std::isfinite(e.GammaMedio.Numero()));
}

TEST_F(Busquedas, ClosedRelations) {
    CalcularPresionPolitropica(e, 100000, 0.001, 0.0005, 1.4);
    EXPECT_EQ(e.PresionPolitropica, 100000 * std::pow(2.0, 1.4));
    EXPECT_EQ(e.TrabajoTransformacion, (100000 * 0.001 - e.PresionPolitropica * 0.0005) / (1.4 - 1));
    EXPECT_LT(e.TrabajoTransformacion, 0);  // compression: work done on the gas
    TrabajoIsobarico(e, 5e6, 0.0001, 0.0002);
    EXPECT_EQ(e.TrabajoTransformacion, 5e6 * (0.0002 - 0.0001));
    VolumenIsobarico(e, 0.0001, 2000, 3000);
    EXPECT_EQ(e.VolumenProporcional, 0.0001 * 3000 / 2000);
}

TEST_F(Busquedas, StartAndEndOfATransformation) {
    e.TipoFluido = Fluido::Humos;
    PonerEstadoInicial(e, dlg, 5e6, 0.0001, 2500, 11, 22);
    EXPECT_EQ(e.Presion, 5e6);
    EXPECT_EQ(e.Temperatura, 2500);
    EXPECT_EQ(e.hInicial, e.hHumos);
    EXPECT_EQ(e.uInicial, e.CvHumos * 2500);
    EXPECT_EQ(e.GammaInicial.Numero(), e.Gamma);
    PonerEstadoFinal(e, dlg, 7, 8, 4e5, 0.001, 1200);
    EXPECT_EQ(e.EntalpiaFinal, e.hHumos);
    EXPECT_EQ(e.EntropiaFinal, e.SHumos);
    EXPECT_EQ(e.Wciclo, 8);
    EXPECT_EQ(e.Qtransformacion, 7);
    FinalAInicial(e);
    EXPECT_EQ(e.PresionInicial, 4e5);
    EXPECT_EQ(e.EntalpiaInicial, 11);  // h and s are not copied
    double p, V, T, h, s;
    LeerEstadoFinal(e, p, V, T, h, s);
    EXPECT_EQ(T, 1200);
    EXPECT_EQ(h, e.EntalpiaFinal);

    // The blend has no cv: uFinal stays.
    e.TipoFluido = Fluido::AireHumos;
    e.Q23 = 1, e.Qciclo = 2;
    e.uFinal = 123;
    PonerEstadoFinal(e, dlg, 0, 0, 4e5, 0.001, 1100);
    EXPECT_EQ(e.uFinal, 123);
    EXPECT_EQ(e.hFinal, e.hMezcla);
}

TEST_F(Busquedas, UnknownFluidIsToldAtStartAndEnd) {
    e.TipoFluido = static_cast<Fluido>(7);
    PonerEstadoInicial(e, dlg, 1e5, 0.001, 300, 0, 0);
    PonerEstadoFinal(e, dlg, 0, 0, 1e5, 0.001, 300);
    ASSERT_EQ(dlg.mensajes.size(), 2u);
    EXPECT_EQ(dlg.mensajes[0],
              " Debe especificar si al comienzo de la transformación es aire, humo o aire con humos");
    EXPECT_EQ(dlg.mensajes[1],
              " Debe especificar si al final de la transformación es aire, humo o aire con humos");
    EXPECT_EQ(e.ErrorCalculo, 0);
}

TEST_F(Busquedas, MaximaRiseStrictlyInSinglePrecision) {
    e.PresionInicial = 1e5, e.PresionFinal = 2e6, e.TemperaturaInicial = 300, e.TemperaturaFinal = 700;
    e.hInicial = 50, e.hFinal = 12000, e.SInicial = 190, e.SFinal = 191;
    ActualizarMaximos(e);
    EXPECT_EQ(e.PresionMaxima, 2e6f);
    EXPECT_EQ(e.TemperaturaMaxima, 700.0f);
    EXPECT_EQ(e.EntalpiaMaxima, 12000.0f);
    EXPECT_EQ(e.EntropiaMaxima, 191.0f);
    // A value that equals the maximum in single precision does not raise it.
    e.PresionFinal = 2e6 + 0.01;
    ActualizarMaximos(e);
    EXPECT_EQ(e.PresionMaxima, 2e6f);
    e.SFinal = 150;  // never lowered
    ActualizarMaximos(e);
    EXPECT_EQ(e.EntropiaMaxima, 191.0f);
}
