// The searches and walks of the solver pushed to their edges: each must end,
// in results or in a message with ErrorCalculo set, and leave nothing that is
// not finite.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "core/cycle/Ciclo.h"
#include "core/properties/Busquedas.h"
#include "core/properties/Especies.h"
#include "core/services/Numeros.h"
#include "tests/core/robustez/Ejecucion.h"

namespace vanta::prueba {
namespace {

using Args = std::vector<std::string>;

Args Mas(Args a, const Args& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::string Unir(const Args& args) {
    std::string t;
    for (const std::string& a : args) t += " " + a;
    return t;
}

// A run that the program must refuse: ErrorCalculo set with a message, and
// nothing that is not finite left in the state or the pictures.
void EsperarRechazo(const Args& args) {
    Ejecucion r;
    r.Calcular(args);
    EXPECT_TRUE(r.Rechazado()) << Unir(args) << r.Mensajes();
    EXPECT_EQ(r.Defectos(), "") << Unir(args);
}

// A step of the stroke too small to move the volume: a compression ratio a
// hair above 1, or a displacement near the smallest double.
TEST(LimitesTest, StrokeWhoseStepCannotMoveTheVolumeIsRefused) {
    for (const char* modelo : {"medio", "politropica", "variable"}) {
        for (const Args& datos : {Args{"--rc", "1.0000000000000002"}, Args{"--rc", "1,000000000000001"},
                                  Args{"--cilindrada", "5e-318"}}) {
            EsperarRechazo(Mas({"--ciclo", "Diesel", "--compresion", modelo, "--expansion", modelo}, datos));
        }
    }
}

// The largest doubles as the general conversion writes them, 15 digits
// rounded up beyond the range, read back as the largest double; a text
// further out is no number.
TEST(LimitesTest, TheLargestDoubleAsWrittenReadsBack) {
    const double mayor = std::numeric_limits<double>::max();
    for (char separador : {'.', ','}) {
        EXPECT_EQ(LeerNumero(TextoGeneral(mayor, '.')), mayor) << TextoGeneral(mayor, '.');
        EXPECT_EQ(LeerNumero(TextoGeneral(-mayor, '.')), -mayor) << TextoGeneral(-mayor, '.');
    }

    EXPECT_FALSE(LeerNumero("1.79769313486233E+308"));
    EXPECT_FALSE(LeerNumero("1e309"));
}

// The running maxima are kept in single precision: a figure beyond its range
// counts as the largest single, never as infinity.
TEST(LimitesTest, MaximaBeyondSinglePrecisionStayFinite) {
    Estado e;
    e.PresionInicial = 1e300, e.PresionFinal = -1e300;
    e.TemperaturaInicial = std::nan(""), e.TemperaturaFinal = 1e39;
    e.hInicial = 1e39, e.SFinal = 3.5e38;
    ActualizarMaximos(e);
    EXPECT_EQ(e.PresionMaxima, std::numeric_limits<float>::max());
    EXPECT_EQ(e.TemperaturaMaxima, std::numeric_limits<float>::max());
    EXPECT_EQ(e.EntalpiaMaxima, std::numeric_limits<float>::max());
    EXPECT_EQ(e.EntropiaMaxima, std::numeric_limits<float>::max());
}

// Cycles whose figures the diagrams cannot hold: beyond single precision, or
// with no extent on an axis once in single precision. Refused before any
// surface is scaled.
TEST(LimitesTest, CycleThatTheDiagramsCannotHoldIsRefused) {
    for (const Args& datos :
         {Args{"--cilindrada", "1e300"}, Args{"--p1", "1e300"}, Args{"--cilindrada", "1e-40"},
          Args{"--cilindrada", "1e-300", "--rc", "1e300"}}) {
        for (const char* ciclo : {"Otto", "Diesel", "Mixto"}) EsperarRechazo(Mas({"--ciclo", ciclo}, datos));
    }
}

// Humid air at the edges of the doubles: a composition that is not finite is
// refused and leaves the air as it was; one that is finite but absurd is
// accepted, as the program accepts any humidity, charted within the singles,
// and refused later by the property sums.
TEST(LimitesTest, AirAtTheEdgeOfTheDoublesIsRefusedOrChartedWithinRange) {
    for (const Args& args :
         {Args{"--presion-ambiente", "1e-300", "--humedad", "11"},
          Args{"--presion-ambiente", "1e-300", "--humedad", "1000"},
          Args{"--presion-ambiente", "1e-300", "--temperatura-ambiente", "566", "--humedad", "53"},
          Args{"--humedad", "1e300"}, Args{"--humedad", "-1e300"}})
        EsperarRechazo(args);
}

// Fuels at the edges of the doubles: a mass composition whose remainder of
// hydrogen overflows, and a molar mass near the smallest double, whose moles
// overflow.
TEST(LimitesTest, FuelAtTheEdgeOfTheDoublesIsRefused) {
    EsperarRechazo({"--masa", "1e300,0,1.7976931348623157e308,0", "--masa-molecular", "0.1"});
    EsperarRechazo({"--masa", "50.2,0,0,0", "--masa-molecular", "4.9e-324"});
}

// A charge of a few molecules: the pressure and the heat per mole of the
// combustion at constant volume leave the doubles before anything is burnt.
TEST(LimitesTest, ChargeOfAFewMoleculesIsRefusedBeforeItBurns) {
    for (const Args& datos : {Args{"--ciclo", "Otto"}, Args{"--ciclo", "Mixto", "--pmax", "1e7"},
                              Args{"--ciclo", "Mixto", "--proporcion-vcte", "30"}})
        EsperarRechazo(Mas({"--cilindrada", "1e-300"}, datos));
}

// A temperature a hair above zero: the enthalpy's a6/T leaves the doubles.
// Refused with nothing stored, whether typed or reached by a walk.
TEST(LimitesTest, TemperatureAHairAboveZeroIsRefused) {
    Estado e;
    DialogosGrabados dlg;
    e.Temperatura = 1e-310;
    CalcularEspecies(e, dlg);
    EXPECT_TRUE(e.ErrorCalculo);
    EXPECT_EQ(dlg.mensajes.size(), 1u);
    EXPECT_EQ(VariablesNoFinitas(e), std::vector<std::string>{});
    EsperarRechazo({"--t1", "1e-310"});
}

// The polytropic relations on an exponent or a ratio of volumes far too
// large: the temperature, the pressure or the work leaves the doubles at the
// first step, and the walk stops there, as does the mean-exponent search.
TEST(LimitesTest, PolytropicChangeBeyondTheDoublesIsRefused) {
    for (const Args& datos : {Args{"--compresion", "politropica", "--n-compresion", "1e300"},
                              Args{"--expansion", "politropica", "--n-expansion", "1e300"},
                              Args{"--compresion", "politropica", "--rc", "1e200"},
                              Args{"--compresion", "medio", "--rc", "1e200"},
                              Args{"--compresion", "variable", "--rc", "1e200"}}) {
        for (const char* ciclo : {"Otto", "Diesel"}) EsperarRechazo(Mas({"--ciclo", ciclo}, datos));
    }
    Estado e;
    e.TemperaturaPolitropica = 300, e.PresionPolitropica = 1e5, e.TrabajoTransformacion = -7;
    EXPECT_FALSE(CalcularTemperaturaPolitropica(e, 300, 1, 1e-200, 3));
    EXPECT_FALSE(CalcularPresionPolitropica(e, 1e5, 1, 1e-200, 3));
    EXPECT_EQ(e.TemperaturaPolitropica, 300);
    EXPECT_EQ(e.PresionPolitropica, 1e5);
    EXPECT_EQ(e.TrabajoTransformacion, -7);
}

// The power at a speed: a figure beyond the doubles is told, and the boxes
// keep what they showed.
TEST(LimitesTest, PowerBeyondTheDoublesIsToldAndNotShown) {
    Estado e;
    e.Wciclo = 120;
    DialogosGrabados dlg;
    CajaTextoSimple txtRpm("1e308"), txtPotencia("antes"), txtPotenciaCV("antes");
    txtRpm_Change(e, dlg, txtRpm, txtPotencia, txtPotenciaCV);
    EXPECT_TRUE(e.ErrorCalculo);
    EXPECT_EQ(dlg.mensajes.size(), 1u);
    EXPECT_EQ(txtPotencia.Text(), "antes");
    EXPECT_EQ(txtPotenciaCV.Text(), "antes");
}

// The shortest text that reads back to the same double.
std::string Exacto(double v) {
    char b[64];
    return std::string(b, std::to_chars(b, b + sizeof b, v).ptr);
}

// The search for the share burnt up to Pmax, right at the pressure the
// compression reaches and a double either side of it: at or above p2 the
// cycle is solved with almost no heat at constant volume, below it the
// program's own message refuses it.
TEST(LimitesTest, PmaxAtTheEdgeOfTheCompressionsEndIsSolvedOrRefusedByTheProgram) {
    for (const char* modelo : {"medio", "politropica", "variable"}) {
        Ejecucion referencia;
        referencia.Calcular({"--ciclo", "Mixto", "--compresion", modelo, "--pmax", "1e20"});
        ASSERT_TRUE(referencia.Calculado()) << modelo << referencia.Mensajes();
        const double p2 = referencia.e.p2;
        for (double pmax : {p2, std::nextafter(p2, 1e300), std::nextafter(p2, 0.0), p2 * (1 + 1e-12),
                            p2 * (1 - 1e-12), p2 + 0.001, p2 - 0.001}) {
            Ejecucion r;
            r.Calcular({"--ciclo", "Mixto", "--compresion", modelo, "--pmax", Exacto(pmax)});
            EXPECT_EQ(r.Defectos(), "") << modelo << " " << Exacto(pmax);
            if (pmax >= p2) {
                EXPECT_TRUE(r.Calculado()) << modelo << " " << Exacto(pmax) << r.Mensajes();
                EXPECT_LT(r.e.Q23, r.e.Qciclo * 1e-3) << modelo << " " << Exacto(pmax);
            } else {
                EXPECT_TRUE(r.Rechazado()) << modelo << " " << Exacto(pmax);
                EXPECT_TRUE(
                    r.Dijo("Imposible realizar el ciclo, Aumente la presión máxima que soporta el motor o "
                           "disminuya la relación de compresión"))
                    << modelo << " " << Exacto(pmax) << r.Mensajes();
            }
        }
    }
}

// Heats that no temperature of the program can take: at constant volume the
// limit of the polynomials stops the fixed point, at constant pressure the
// bisection cannot pass its 5000 K and ends with the program's message
// instead of recursing for ever.
TEST(LimitesTest, HeatBeyondTheProgramsTemperaturesEndsWithItsMessages) {
    const Args calorEnorme = {"--formula", "8,18,0,0,0", "--entalpia-formacion", "1e9"};
    for (const char* ciclo : {"Otto", "Diesel", "Mixto"}) {
        Ejecucion r;
        r.Calcular(Mas({"--ciclo", ciclo}, calorEnorme));
        EXPECT_TRUE(r.Rechazado()) << ciclo << r.Mensajes();
        EXPECT_EQ(r.Defectos(), "") << ciclo;
        ASSERT_EQ(r.dlg.mensajes.size(), 1u) << ciclo << r.Mensajes();
        if (std::string(ciclo) == "Diesel")
            EXPECT_EQ(r.dlg.mensajes[0], " Ha superado la temperatura máxima admitida por el programa ");
        else
            EXPECT_EQ(r.dlg.mensajes[0].rfind(
                          "Se ha superado la temperatura máxima que admite el programa 5000 K", 0),
                      0u)
                << r.dlg.mensajes[0];
    }
}

// Volumes far from an engine's that the doubles and singles still hold: the
// cycle is the same, scaled. Beyond about 1e10 c.c. the heat at constant
// pressure is too large for the bisection's tolerance of 1e-5 J, and the
// search ends with its message rather than recursing for ever.
TEST(LimitesTest, VolumesFarFromAnEnginesAreSolvedOrEndWithAMessage) {
    for (const char* ciclo : {"Otto", "Diesel", "Mixto"}) {
        Ejecucion pequeno;
        pequeno.Calcular({"--ciclo", ciclo, "--cilindrada", "1e-20"});
        EXPECT_TRUE(pequeno.Calculado()) << ciclo << pequeno.Mensajes();
        EXPECT_EQ(pequeno.Defectos(), "") << ciclo;
        Ejecucion enorme;
        enorme.Calcular({"--ciclo", ciclo, "--cilindrada", "1e20"});
        EXPECT_TRUE(enorme.Calculado() || enorme.Rechazado()) << ciclo << enorme.Mensajes();
        EXPECT_EQ(enorme.Defectos(), "") << ciclo;
    }
}

}  // namespace
}  // namespace vanta::prueba
