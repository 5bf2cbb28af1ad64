#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "tests/core/cycle/Calculo.h"

using namespace vanta;
using prueba::Calculo;

namespace {

// The five states and the closing figures, which must agree to the bit.
void EsperarMismoCiclo(const Estado& a, const Estado& b) {
    const double va[] = {a.p1,     a.p2,     a.p3,     a.p4,    a.p5,  a.V1,     a.V2,     a.V3,
                         a.V4,     a.V5,     a.T1,     a.T2,    a.T3,  a.T4,     a.T5,     a.h1,
                         a.h2,     a.h3,     a.h4,     a.h5,    a.S1,  a.S2,     a.S3,     a.S4,
                         a.S5,     a.W12,    a.W34,    a.W45,   a.Q23, a.Qciclo, a.Wciclo, a.Rendimiento,
                         a.gamma1, a.Gamma2, a.Gamma4, a.Gamma5};
    const double vb[] = {b.p1,     b.p2,     b.p3,     b.p4,    b.p5,  b.V1,     b.V2,     b.V3,
                         b.V4,     b.V5,     b.T1,     b.T2,    b.T3,  b.T4,     b.T5,     b.h1,
                         b.h2,     b.h3,     b.h4,     b.h5,    b.S1,  b.S2,     b.S3,     b.S4,
                         b.S5,     b.W12,    b.W34,    b.W45,   b.Q23, b.Qciclo, b.Wciclo, b.Rendimiento,
                         b.gamma1, b.Gamma2, b.Gamma4, b.Gamma5};
    for (size_t i = 0; i < std::size(va); ++i) EXPECT_EQ(va[i], vb[i]) << "figura " << i;
}

size_t Contar(const std::vector<std::string>& llamadas, const std::string& prefijo,
              const std::string& sufijo) {
    return std::count_if(llamadas.begin(), llamadas.end(), [&](const std::string& l) {
        return l.rfind(prefijo, 0) == 0 && l.size() >= sufijo.size() &&
               l.compare(l.size() - sufijo.size(), sufijo.size(), sufijo) == 0;
    });
}

std::string Leer(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

}  // namespace

TEST(CalcularCicloTest, DefaultOttoGivesTheKnownReport) {
    Calculo c;
    c.Ejecutar({});
    ASSERT_EQ(c.estado, 0);
    EXPECT_TRUE(c.dlg.mensajes.empty());
    // The report as a whole, CR LF and the blanks of every mask.
    EXPECT_EQ(c.salida, Leer(VANTA_DATOS_PRUEBA "/ciclo/otto_por_defecto.txt"));
    // A plausible engine: about 3200 K after combustion, efficiency 0.45.
    EXPECT_NEAR(c.e.T3, 3187, 5);
    EXPECT_EQ(c.e.Rendimiento, 0.45);
    EXPECT_EQ(c.e.Wciclo, c.e.W34acumulado + c.e.W45acumulado + c.e.W12);
    EXPECT_EQ(c.e.W12, Round(c.e.W12acumulado, 1));
}

TEST(CalcularCicloTest, MixtoWithAllHeatAtConstantVolumeIsOttoExactly) {
    Calculo otto, mixto;
    otto.Ejecutar({});
    mixto.Ejecutar({"--ciclo", "Mixto", "--proporcion-vcte", "100"});
    ASSERT_EQ(mixto.estado, 0);
    EXPECT_EQ(mixto.e.Q23, mixto.e.Qciclo);  // the share is taken first
    EsperarMismoCiclo(otto.e, mixto.e);
    // Same report but for the banner's cycle name.
    std::string informe = mixto.salida;
    informe.replace(informe.find("Mixto"), 5, "Otto");
    EXPECT_EQ(informe, otto.salida);
}

TEST(CalcularCicloTest, MixtoWithPmaxAboveTheConstantVolumeHeatSkipsTheIsobar) {
    Calculo otto, mixto;
    otto.Ejecutar({});
    mixto.Ejecutar({"--ciclo", "Mixto", "--pmax", "50000000"});
    ASSERT_EQ(mixto.estado, 0);
    EXPECT_EQ(mixto.e.Q23, mixto.e.Qciclo);
    EXPECT_EQ(mixto.e.T4, mixto.e.T3);
    EXPECT_EQ(mixto.e.V4, mixto.e.V3);
    EXPECT_EQ(mixto.e.W34, 0);
    // All burnt: the end of 2-3 is pure gases, the same figures as Otto's.
    EXPECT_NEAR(mixto.e.p3, otto.e.p3, 1e-6 * otto.e.p3);
}

TEST(CalcularCicloTest, MixtoReachesPmaxExactlyAndBurnsTheRestAtConstantPressure) {
    Calculo c;
    c.Ejecutar({"--ciclo", "Mixto", "--pmax", "6000000"});
    ASSERT_EQ(c.estado, 0);
    EXPECT_EQ(c.e.p3, 6000000);  // the snap of the bisection
    EXPECT_EQ(c.e.p4, 6000000);
    EXPECT_GT(c.e.Q23, 0);
    EXPECT_LT(c.e.Q23, c.e.Qciclo);
    EXPECT_GT(c.e.V4, c.e.V3);
    EXPECT_GT(c.e.T4, c.e.T3);
}

TEST(CalcularCicloTest, DieselStateThreeIsStateTwo) {
    Calculo c;
    c.Ejecutar({"--ciclo", "Diesel", "--rc", "18"});
    ASSERT_EQ(c.estado, 0);
    EXPECT_EQ(c.e.Q23, 0);
    EXPECT_EQ(c.e.p3, c.e.p2);
    EXPECT_EQ(c.e.V3, c.e.V2);
    EXPECT_EQ(c.e.T3, c.e.T2);
    EXPECT_EQ(c.e.h3, c.e.h2);
    EXPECT_EQ(c.e.S3, c.e.S2);
    EXPECT_EQ(c.e.p4, c.e.p3);  // isobar
    EXPECT_GT(c.e.W34, 0);
    const auto l = c.Lineas();
    EXPECT_NE(std::find(l.begin(), l.end(), " Q 2-3 =   0.0 J      Q 2-3 molar =   0.0 J/(mol aire)"),
              l.end());
    EXPECT_NE(std::find(l.begin(), l.end(), " h3-h2 =    0.00  J/mol      "), l.end());
}

TEST(CalcularCicloTest, OttoShowsNoHeatAtConstantPressureButTheWholeMolarHeat) {
    Calculo c;
    c.Ejecutar({});
    const auto l = c.Lineas();
    const std::string molar = Format(Round(c.e.Qciclo / c.e.MolesAire, 1), "### ### ##00", '.');
    EXPECT_NE(std::find(l.begin(), l.end(), " Q 3-4 =   0.0 J      Q molar 3-4 = " + molar + " J/(mol aire)"),
              l.end());
    EXPECT_NE(std::find(l.begin(), l.end(), " Trabajo 3-4 = 0      Trabajo molar 3-4 =   0.0 J/(mol aire)"),
              l.end());
}

TEST(CalcularCicloTest, EachModelOfCompressionAndExpansionRuns) {
    for (const char* compresion : {"medio", "politropica", "variable"}) {
        for (const char* expansion : {"medio", "politropica", "variable"}) {
            Calculo c;
            c.Ejecutar({"--compresion", compresion, "--expansion", expansion});
            EXPECT_EQ(c.estado, 0) << compresion << " " << expansion;
            EXPECT_TRUE(c.dlg.mensajes.empty());
            EXPECT_GT(c.e.Rendimiento, 0.4);
            EXPECT_LT(c.e.Rendimiento, 0.5);
        }
    }
    // The polytropic exponent is the one typed, in the box's own form.
    Calculo p;
    p.Ejecutar({"--compresion", "politropica", "--n-compresion", "1.3"});
    EXPECT_NEAR(p.e.p2, 100000 * std::pow(10.0, 1.3), 1e-6);
    EXPECT_EQ(p.e.gamma1, 1.3);
    EXPECT_EQ(p.e.TextoExponente, Variante(" N.D."));  // the mean expansion writes last
    Calculo q;
    q.Ejecutar({"--expansion", "politropica"});
    EXPECT_EQ(q.e.TextoExponente, Variante(1.23));
    EXPECT_EQ(q.e.Gamma4, 1.23);
}

TEST(CalcularCicloTest, MeanExponentsAreFoundAndKept) {
    Calculo c;
    c.Ejecutar({});
    EXPECT_GT(c.e.GammaMedioCompresion, 1.35);
    EXPECT_LT(c.e.GammaMedioCompresion, 1.4);
    EXPECT_GT(c.e.GammaMedioExpansion, 1.2);
    EXPECT_LT(c.e.GammaMedioExpansion, 1.3);
    EXPECT_EQ(c.e.gamma1, c.e.GammaMedioCompresion);
    EXPECT_EQ(c.e.Gamma5, c.e.GammaMedioExpansion);
}

TEST(CalcularCicloTest, EntropyAndEnthalpyMaximaAreKeptBetweenCalculations) {
    Calculo c;
    c.Ejecutar({"--fr", "1"});
    const float s = c.e.EntropiaMaxima, h = c.e.EntalpiaMaxima, t = c.e.TemperaturaMaxima;
    c.Ejecutar({"--fr", "0.6"});
    ASSERT_EQ(c.estado, 0);
    EXPECT_LT(c.e.TemperaturaMaxima, t);  // reset every calculation
    EXPECT_EQ(c.e.EntalpiaMaxima, h);     // never reset
    EXPECT_GE(c.e.EntropiaMaxima, s);
}

TEST(CalcularCicloTest, DiagramsAreScaledTitledDrawnAndNumbered) {
    Calculo c;
    c.Ejecutar({});
    const auto& pv = c.pv.llamadas;
    // Cleared, scaled with an 8 % margin, titled.
    EXPECT_EQ(pv[0], "Cls");
    const double dV = c.e.V1 - c.e.V2, dP = c.e.PresionMaxima - c.e.p1;
    char escala[200];
    std::snprintf(escala, sizeof escala, "Scale %g %g %g %g", double(float(c.e.V2 - 0.08 * dV)),
                  double(float(-c.e.PresionMaxima - 0.08 * dP)), double(float(c.e.V1 + 0.08 * dV)),
                  double(float(-c.e.p1 + 0.08 * dP)));
    EXPECT_EQ(pv[1], escala);
    EXPECT_NE(pv[2].find("\"DIAGRAMA PV\""), std::string::npos);
    EXPECT_NE(c.tv.llamadas[2].find("\"  DIAGRAMA TV\""), std::string::npos);
    // The stroke in about 1000 lines in the compression pen (999 or 1000 steps
    // as the sums of the step fall, and the line to the end), from a point at
    // state 1.
    EXPECT_EQ(Contar(pv, "PSet", "#0100FF"), 1u);
    EXPECT_NEAR(Contar(pv, "Line", "#0100FF"), 1000.5, 0.5);
    EXPECT_NEAR(Contar(pv, "Line", "#323232"), 1000.5, 0.5);  // expansion
    EXPECT_EQ(Contar(pv, "Line", "#7D007D"), 1u);             // 2-3, one straight line
    EXPECT_EQ(Contar(pv, "Line", "#00FF00"), 1u);             // exhaust
    EXPECT_EQ(Contar(pv, "Line", "#FF0000"), 0u);             // Otto has no isobar
    // The numbers of the states, in the expansion pen, on p-V and T-V only.
    EXPECT_EQ(Contar(pv, "Print", "\"1\""), 1u);
    EXPECT_EQ(Contar(pv, "Print", "\"5\""), 1u);
    EXPECT_EQ(Contar(c.ts.llamadas, "Print", "\"1\""), 0u);
    EXPECT_EQ(c.pv.ForeColor(), c.e.ColorExpansion);
}

TEST(CalcularCicloTest, RejectedInputsStopTheRunWithTheirMessages) {
    Calculo texto;
    texto.Ejecutar({"--rc", "diez"});
    EXPECT_EQ(texto.estado, 1);
    EXPECT_EQ(texto.dlg.mensajes, std::vector<std::string>{" Relación de compresión no es un número"});
    EXPECT_TRUE(texto.salida.empty());

    Calculo pmax;
    pmax.Ejecutar({"--ciclo", "Mixto", "--pmax", "2000000"});
    EXPECT_EQ(pmax.estado, 1);
    EXPECT_EQ(pmax.dlg.mensajes,
              std::vector<std::string>{
                  "Imposible realizar el ciclo, Aumente la presión máxima que soporta el motor o "
                  "disminuya la relación de compresión"});

    Calculo volumen;
    volumen.Ejecutar({"--ciclo", "Diesel", "--rc", "2"});
    EXPECT_EQ(volumen.estado, 1);
    // Told once, though every level of the search unwinds through it.
    EXPECT_EQ(volumen.dlg.mensajes,
              std::vector<std::string>{
                  "No es posible este ciclo, el volumen final, sin sobrepasar la presión máxima, "
                  "es excesivamente grande"});
}

TEST(CalcularCicloTest, AbsurdInputsGetAClearMessageAndNoNaN) {
    const std::vector<std::vector<std::string>> casos = {
        {"--rc", "1"},
        {"--rc", "0"},
        {"--rc", "-3"},
        {"--cilindrada", "0"},
        {"--t1", "-20"},
        {"--p1", "0"},
        {"--t1", "0,001"},
        {"--cilindrada", "1e308"},
        {"--compresion", "politropica", "--n-compresion", "1"},
        {"--expansion", "politropica", "--n-expansion", "0.5"},
        {"--ciclo", "Diesel", "--t1", "2500"},  // heat carries the gases past the limits
        {"--t1", "4000"},
    };
    for (const auto& caso : casos) {
        Calculo c;
        c.Ejecutar(caso);
        EXPECT_EQ(c.estado, 1) << caso[1];
        EXPECT_FALSE(c.dlg.mensajes.empty()) << caso[1];
        EXPECT_EQ(c.e.ErrorCalculo, Verdadero);
        const std::string json = EstadoJSON(c.e);
        EXPECT_EQ(json.find("null"), std::string::npos) << caso[1] << json;
    }
}
