// End to end: the vanta binary as a script would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "app/LineaComandos.h"

namespace {

struct Salida {
    int estado = -1;
    std::string out, err;
};

Salida Ejecutar(const std::string& argumentos) {
    // ctest runs tests side by side: one file per process and call.
    static int llamada = 0;
    const std::string errores = ::testing::TempDir() + "vanta_stderr_" + std::to_string(getpid()) + "_" +
                                std::to_string(++llamada) + ".txt";
    const std::string orden = std::string(VANTA_BINARIO) + " " + argumentos + " 2>" + errores;
    Salida s;
    FILE* p = popen(orden.c_str(), "r");
    char buf[4096];
    size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) s.out.append(buf, n);
    const int w = pclose(p);
    s.estado = WIFEXITED(w) ? WEXITSTATUS(w) : -1;
    std::ifstream f(errores);
    std::stringstream ss;
    ss << f.rdbuf();
    s.err = ss.str();
    std::remove(errores.c_str());
    return s;
}

}  // namespace

TEST(LineaComandosTest, UsageErrorsExitWithTwoAndTheUsageText) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    for (const char* malos : {"calcular --desconocida 1", "calcular --humedad", "calcular --ciclo Wankel",
                              "calcular --formula 1,2,3", "calcular --fr 1 --lambda 1", "calcular suelto",
                              "calcular --compresion isoterma", "calcular --masa 80,0,0,0",
                              "calcular --combustible Metanol --formula 1,4,0,1,0"}) {
        const Salida s = Ejecutar(malos);
        EXPECT_EQ(s.estado, 2) << malos;
        EXPECT_NE(s.err.find("Uso: vanta"), std::string::npos) << malos;
        EXPECT_TRUE(s.out.empty()) << malos;
    }
}

TEST(LineaComandosTest, JsonCarriesTheAirFigures) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const Salida s = Ejecutar("calcular --json --temperatura-ambiente 320 --humedad 60");
    EXPECT_EQ(s.estado, 0) << s.err;
    for (const char* clave : {"\"Psaturacion\":", "\"xN2Aire\":", "\"xO2Aire\":", "\"xArAire\":",
                              "\"xCO2Aire\":", "\"xH2OAire\":", "\"MasaMolecularAire\":",
                              "\"ErrorCalculo\":0", "\"Tambiente\":320", "\"Humedad\":60"})
        EXPECT_NE(s.out.find(clave), std::string::npos) << clave;
    EXPECT_EQ(s.out.find("null"), std::string::npos);
}

TEST(LineaComandosTest, RejectedAirTextEndsTheRunWithItsMessage) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const Salida s = Ejecutar("calcular --json --humedad mucha");
    EXPECT_EQ(s.estado, 1);
    EXPECT_EQ(s.err, "humedad relativano es un número\n");
    EXPECT_NE(s.out.find("\"ErrorCalculo\":-1"), std::string::npos);

    const Salida fria = Ejecutar("calcular --temperatura-ambiente 200");
    EXPECT_EQ(fria.estado, 1);
    EXPECT_EQ(fria.err, " La temperatura ha de ser mayor a 300 K \n");
}

TEST(LineaComandosTest, OptionsDefaultToWhatTheScreensStartWith) {
    const auto p = vanta::cli::ParsearCalcular({"--presion-ambiente", "90000"});
    ASSERT_TRUE(p.opciones);
    EXPECT_EQ(p.opciones->Valor("p1"), "90000");  // the cycle window loads the ambient pressure
    EXPECT_EQ(p.opciones->Valor("t1"), "300");
    EXPECT_EQ(p.opciones->Valor("n-compresion"), "1,39");
    EXPECT_EQ(p.opciones->Valor("combustible"), "Gasolina");
    EXPECT_EQ(p.opciones->Valor("ciclo"), "Otto");
}

TEST(LineaComandosTest, RpmAddsThePowerAndARefusedSpeedEndsWithOne) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const std::string consumo = "Consumo =    53.2 g / MJ =    191.4 g / (kW·h)\r\n";
    Salida s = Ejecutar("calcular --rpm 3000");
    EXPECT_EQ(s.estado, 0) << s.err;
    const std::string potencia = "\r\nr.p.m. = 3000\r\nPotencia =   3 736.7 W =    5.1 CV\r\n" + consumo;
    EXPECT_EQ(s.out.substr(s.out.size() - potencia.size()), potencia);
    // The report stands; the speed's message goes to the error output.
    s = Ejecutar("calcular --rpm abc");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.err.find("rpm no es un número"), std::string::npos) << s.err;
    EXPECT_NE(s.out.find("RENDIMIENTO = 0.45\r\n"), std::string::npos);
    EXPECT_NE(s.out.find("Potencia =    0.0 W =    0.0 CV\r\n"), std::string::npos);
}

TEST(LineaComandosTest, JsonCarriesTheFuelAndGasFigures) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const Salida gasoil = Ejecutar("calcular --json --combustible Gasoil --fr 0.8");
    const Salida heptano =
        Ejecutar("calcular --json --formula 7,16,0,0,0 --entalpia-formacion -187800 --fr 1.1");
    for (const Salida* s : {&gasoil, &heptano}) {
        EXPECT_EQ(s->estado, 0) << s->err;
        EXPECT_EQ(s->err, "");
        for (const char* clave : {"\"MasaMolecularCombustible\":", "\"HCS\":", "\"HCI\":", "\"CienC\":",
                                  "\"Fe\":", "\"xCO2Humos\":", "\"xN2Humos\":", "\"MasaMolecularHumos\":",
                                  "\"HCIhumos\":", "\"ErrorCalculo\":0"})
            EXPECT_NE(s->out.find(clave), std::string::npos) << clave;
        EXPECT_EQ(s->out.find("null"), std::string::npos);
    }
    for (const char* clave : {"\"AtomosS\":0.032", "\"Fr\":0.8,", "\"xSHumos\":0,", "\"xCOHumos\":0,"})
        EXPECT_NE(gasoil.out.find(clave), std::string::npos) << clave;
    for (const char* clave :
         {"\"AtomosC\":7,", "\"AtomosH\":16,", "\"EntalpiaFormacion\":-187800,", "\"Fr\":1.1,"})
        EXPECT_NE(heptano.out.find(clave), std::string::npos) << clave;
    EXPECT_EQ(heptano.out.find("\"xCOHumos\":0,"), std::string::npos);  // rich: CO in the gases
}

TEST(LineaComandosTest, LambdaLeadsWithFrRoundedTo3Decimals) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const Salida s = Ejecutar("calcular --json --lambda 1,2 --masa 85,0,0,0 --masa-molecular 0.1");
    EXPECT_EQ(s.estado, 0) << s.err;
    EXPECT_NE(s.out.find("\"Fr\":0.833,"), std::string::npos);
    EXPECT_NE(s.out.find("\"CienH\":15,"), std::string::npos);
}

TEST(LineaComandosTest, RefusedFuelOrMixtureEndsTheRunWithOne) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    const struct {
        const char* orden;
        const char* mensaje;  // the first line of stderr
    } casos[] = {
        {"--masa 85,0,20,0 --masa-molecular 0.1",
         "Las proporciones en masa de combustible superan el 100%, revise los valores"},
        {"--formula 0,0,0,0,0",
         "Introduzca la proporciones de los componentes del combustible o su fórmula química"},
        {"--formula 8,x,0,0,0", " Nº de moles de H no es un número"},
        {"--fr 2", "Exceso de combustible-Cambie el dosado"},
        {"--fr -1", "Fr no puede ser negativo"},
        {"--lambda mucho", "Dosado relativo Lambdano es un número"},
        {"--fr 0", "Error de cálculo: "},
        {"--lambda 0", "Error de cálculo: "},
    };
    for (const auto& caso : casos) {
        const Salida s = Ejecutar(std::string("calcular --json ") + caso.orden);
        EXPECT_EQ(s.estado, 1) << caso.orden;
        EXPECT_EQ(s.err.substr(0, s.err.find('\n')).rfind(caso.mensaje, 0), 0u)
            << caso.orden << ": " << s.err;
        EXPECT_NE(s.out.find("\"ErrorCalculo\":-1"), std::string::npos) << caso.orden;
        EXPECT_EQ(s.out.find("null"), std::string::npos) << caso.orden;
    }
}

TEST(LineaComandosTest, FuelOptionsThatDoNotFitAreUsageErrors) {
    if (std::string(VANTA_BINARIO).empty()) GTEST_SKIP() << "sin binario";
    for (const char* malos :
         {"calcular --combustible Queroseno", "calcular --combustible \"Otros combustibles\"",
          "calcular --entalpia-formacion -1000", "calcular --masa-molecular 0.1"}) {
        const Salida s = Ejecutar(malos);
        EXPECT_EQ(s.estado, 2) << malos;
        EXPECT_NE(s.err.find("Uso: vanta"), std::string::npos) << malos;
    }
    const auto p = vanta::cli::ParsearCalcular({"--combustible", "Queroseno"});
    EXPECT_FALSE(p.opciones);
    EXPECT_NE(p.error.find("Etanol, Gasolina, Gasoil, GLP-Etano, GLP-Butano, GLP-Propano, Metanol"),
              std::string::npos);
}
