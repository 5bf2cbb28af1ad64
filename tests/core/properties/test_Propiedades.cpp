// The property model: the worked values of the species, and a probe of the
// three fluids in the order the solver calls them (the gases below 1000 K keep
// the ratio of the last evaluation that computed one, so the order matters)
// against its golden file, across the range switch, the limit of 7500 K, a
// pressure of zero and the blend's fractions.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "core/properties/Busquedas.h"
#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::pruebas;

TEST(Propiedades, LasEspeciesDanSusValoresConocidos) {
    Estado e;
    Mensajes dlg;
    e.Temperatura = 1000;
    CalcularEspecies(e, dlg);
    EXPECT_DOUBLE_EQ(e.CpH2OBaja, 41.21461889908898);
    EXPECT_DOUBLE_EQ(e.hCO2Baja, 33396.5287976818);
    EXPECT_DOUBLE_EQ(e.S0N2Baja, 228.0573293267753);
    EXPECT_EQ(e.CpH2OAlta, 0);  // the other range untouched
    e.Temperatura = 298.15;
    CalcularEspecies(e, dlg);
    for (double h : {e.hArBaja, e.hCOBaja, e.hCO2Baja, e.hH2OBaja, e.hN2Baja, e.hO2Baja})
        EXPECT_LT(std::fabs(h), 0.00023);
    EXPECT_DOUBLE_EQ(e.CpArBaja, 20.78575);
    EXPECT_TRUE(dlg.lista.empty());
}

TEST(Propiedades, ElLimiteSeMiraAntesQueElFalloYLaEvaluacionQueLoPasaSumaLoAnterior) {
    Estado e;
    Mensajes dlg;
    e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033;
    e.Temperatura = 7500;
    PropiedadesAire(e, dlg);
    EXPECT_TRUE(dlg.lista.empty());
    const double h7500 = e.hAire;
    e.Temperatura = 7500.01;
    PropiedadesAire(e, dlg);
    EXPECT_EQ(e.hAire, h7500);  // the sums ran on the species of 7500 K
    CalcularEspecies(e, dlg);   // a direct call tells it again
    EXPECT_EQ(dlg.Textos(),
              std::vector<std::string>(2,
                                       "Se ha superado la temperatura máxima que admite el programa 5000 K, "
                                       "Temperatura que provocó el error =     7 500 K"));
    e.Temperatura = 500;
    PropiedadesAire(e, dlg);
    EXPECT_EQ(e.hAire, h7500);  // stopped while the flag stands
}

TEST(Propiedades, UnosGasesQueLosLogaritmosNoAdmitenSeRechazan) {
    for (int caso = 0; caso < 4; ++caso) {
        Estado e;
        Mensajes dlg;
        e.xArHumos = 0.01, e.xCO2Humos = 0.1, e.xN2Humos = 0.89, e.Temperatura = 500, e.Presion = 1e5;
        if (caso == 0) e.xCO2Humos = 0;
        if (caso == 1) e.xArHumos = 0;
        if (caso == 2) e.xN2Humos = 0;
        if (caso == 3) e.Presion = -1;
        PropiedadesHumos(e, dlg);
        ASSERT_EQ(dlg.lista.size(), 1u) << caso;
        EXPECT_NE(dlg.lista[0].texto.find(caso == 3 ? "negativa" : "fracción"), std::string::npos)
            << dlg.lista[0].texto;
        EXPECT_EQ(e.hHumos, 0);
    }
}

namespace {

std::string Cifras(const char* que, std::initializer_list<double> v) {
    std::string s = que;
    for (double x : v) {
        char b[40];
        std::snprintf(b, sizeof b, " %.17g", x);
        s += b;
    }
    return s + "\n";
}

}  // namespace

TEST(Propiedades, SondaDeLosFluidosContraSuArchivo) {
    Estado e;
    Mensajes dlg;
    // Humid air and lean gases with every species.
    e.xH2OAire = 0.02, e.xN2Aire = 0.78087 * 0.98, e.xO2Aire = 0.20946 * 0.98, e.xArAire = 0.00934 * 0.98,
    e.xCO2Aire = 0.00033 * 0.98;
    e.xArHumos = 0.0087, e.xCOHumos = 0.01, e.xCO2Humos = 0.1, e.xH2OHumos = 0.11, e.xN2Humos = 0.7213,
    e.xO2Humos = 0.05;
    std::string s;
    const double presiones[] = {100000, 2e6, 0};
    for (double T : {250.0, 298.15, 600.0, 999.999, 1000.0, 1000.0000001, 1800.0, 3000.0, 5000.0}) {
        for (double p : presiones) {
            e.Temperatura = T, e.Presion = p;
            PropiedadesAire(e, dlg);
            s += Cifras("aire", {T, p, e.CpAire, e.CvAire, e.hAire, e.S0Aire, e.SAire, e.Gamma});
            PropiedadesHumos(e, dlg);
            s += Cifras("humos", {T, p, e.CpHumos, e.CvHumos, e.hHumos, e.S0Humos, e.SHumos, e.Gamma});
        }
        e.Presion = 3e5;
        for (double x : {0.0, 0.3, 1.0}) {
            PropiedadesAireHumosFraccion(e, dlg, x);
            s += Cifras("mezcla",
                        {T, x, e.CpMezcla, e.hMezcla, e.S0Mezcla, e.SMezcla, e.Gamma, e.FraccionHumos});
        }
        e.Q23 = 1, e.Qciclo = 4;
        PropiedadesAireHumos(e, dlg);
        s += Cifras("mezcla Q23/Qciclo", {e.FraccionHumos, e.hMezcla});
        PropiedadesAireHumosLineal(e, dlg, 2000, 1000, T);
        s += Cifras("mezcla lineal", {e.FraccionHumos, e.hMezcla});
    }
    // Dry air and gases without water, CO or oxygen: the guarded terms.
    e.xH2OAire = 0, e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033;
    e.xCOHumos = 0, e.xH2OHumos = 0, e.xO2Humos = 0, e.xN2Humos = 0.8913;
    for (double T : {400.0, 2500.0}) {
        e.Temperatura = T, e.Presion = 150000;
        PropiedadesAire(e, dlg);
        s += Cifras("aire seco", {T, e.S0Aire, e.SAire});
        PropiedadesHumos(e, dlg);
        s += Cifras("humos sin H2O, CO ni O2", {T, e.hHumos, e.S0Humos, e.SHumos});
    }
    EXPECT_TRUE(dlg.lista.empty());
    EXPECT_EQ(CompararDorado("propiedades.txt", s), "");
}

TEST(Propiedades, LasBusquedasCierranSobreElRegistro) {
    Estado e;
    Mensajes dlg;
    e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033;
    e.TipoFluido = Fluido::Aire;
    e.TemperaturaFinal = 300;  // the search ends with an evaluation at the record's former end
    PonerEstadoInicial(e, dlg, 100000, 0.001, 300, 0, 0);
    BuscarGammaMedio(e, dlg, 100000, 0.001, 0.0001, 300, Fluido::Aire);
    const double gm = e.GammaMedio.Numero();
    EXPECT_GT(gm, 1.35);
    EXPECT_LT(gm, 1.4);
    EXPECT_DOUBLE_EQ(e.PresionPolitropica, 100000 * std::pow(10.0, gm));
    EXPECT_NEAR(e.TemperaturaPolitropica, 300 * std::pow(10.0, gm - 1), 1e-9);
    // The start and the end: FinalAInicial copies p, V, T and nothing more.
    PonerEstadoFinal(e, dlg, 5, 7, 200000, 0.0002, 400);
    EXPECT_EQ(e.Wciclo, 7);
    EXPECT_EQ(e.Qtransformacion, 5);
    e.EntalpiaInicial = 1, e.EntropiaInicial = 2;
    FinalAInicial(e);
    EXPECT_EQ(e.PresionInicial, 200000);
    EXPECT_EQ(e.VolumenInicial, 0.0002);
    EXPECT_EQ(e.TemperaturaInicial, 400);
    EXPECT_EQ(e.EntalpiaInicial, 1);
    EXPECT_EQ(e.EntropiaInicial, 2);
    // The maxima rise strictly, in single precision.
    e.PresionMaxima = 200000, e.TemperaturaMaxima = 500;
    ActualizarMaximos(e);
    EXPECT_EQ(e.PresionMaxima, 200000);
    EXPECT_EQ(e.TemperaturaMaxima, 500);
    e.TipoFluido = static_cast<Fluido>(7);
    PropiedadesInicio(e, dlg);
    PropiedadesFin(e, dlg, 0, 0);
    EXPECT_EQ(dlg.Textos(),
              (std::vector<std::string>{std::string(kMensajeFluidoInicio), std::string(kMensajeFluidoFin)}));
}
