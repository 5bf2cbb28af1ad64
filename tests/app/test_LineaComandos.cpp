// End to end: the vanta binary as a script would run it.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "app/LineaComandos.h"

namespace {

struct Salida {
    int estado = -1;
    std::string out, err;
};

Salida Ejecutar(const std::string& argumentos) {
    // ctest runs tests side by side: one file per process and call.
    static int llamada = 0;
    const std::string errores =
        ::testing::TempDir() + "vanta_stderr_" + std::to_string(getpid()) + "_" + std::to_string(++llamada) + ".txt";
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
    for (const char* clave : {"\"Psaturacion\":", "\"xN2Aire\":", "\"xO2Aire\":", "\"xArAire\":", "\"xCO2Aire\":",
                              "\"xH2OAire\":", "\"MasaMolecularAire\":", "\"ErrorCalculo\":0", "\"Tambiente\":320",
                              "\"Humedad\":60"})
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
