// The command line as a script runs it: a table of command lines, each one's
// exit status, its messages and what it printed (whole, or for a report its
// closing lines), against the golden file; and the page that --html writes.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/Dorados.h"

namespace {

struct Salida {
    int estado = -1;
    std::string out, err;
};

Salida Ejecutar(const std::string& argumentos, const std::string& entorno = "") {
    // ctest runs tests side by side: one file per process and call.
    static int llamada = 0;
    const std::string errores = ::testing::TempDir() + "vanta_stderr_" + std::to_string(getpid()) + "_" +
                                std::to_string(++llamada) + ".txt";
    const std::string orden = entorno + " " + VANTA_BINARIO + " " + argumentos + " 2>" + errores;
    Salida s;
    FILE* p = popen(orden.c_str(), "r");
    char buf[4096];
    for (size_t n; (n = fread(buf, 1, sizeof buf, p)) > 0;) s.out.append(buf, n);
    const int w = pclose(p);
    s.estado = WIFEXITED(w) ? WEXITSTATUS(w) : -1;
    s.err = vanta::pruebas::LeerArchivo(errores);
    std::remove(errores.c_str());
    return s;
}

// The last lines of a long output: a report ends with its totals and power.
std::string Final(const std::string& texto, int lineas) {
    size_t i = texto.size();
    for (int n = 0; n <= lineas && i != std::string::npos && i > 0; ++n) i = texto.rfind('\n', i - 1);
    return i == std::string::npos || i == 0 ? texto : "…" + texto.substr(i);
}

const char* const kOrdenes[] = {
    "--help",
    "--version",
    "sin-orden",
    "calcular --desconocida 1",
    "calcular --humedad",
    "calcular --ciclo Wankel",
    "calcular --formula 1,2,3",
    "calcular --fr 1 --lambda 1",
    "calcular --fr 1 --fr 2",
    "calcular --json --json",
    "calcular suelto",
    "calcular --masa 80,0,0,0",
    "calcular --combustible Queroseno",
    "calcular --entalpia-formacion -1000",
    "calcular --html ''",
    "calcular --guardar ''",
    "calcular --rpm=3000 --rc=9",
    "calcular --rpm abc",
    "calcular --rpm=-inf",
    "calcular --rpm NaN",
    "calcular --humedad mucha",
    "calcular --temperatura-ambiente 200",
    "calcular --fr 2 --json",
    "calcular --lambda 1,2 --masa 85,0,0,0 --masa-molecular 0.1 --ciclo Diesel --rc 17",
    "calcular --disociacion --ciclo Mixto --combustible Gasoil --fr 0.8 --rc 18 --pmax 9000000",
    "calcular --disociacion --disociacion",
    "tablas --fluido humos --combustible Gasoil --fr=0.8 --desde 300 --hasta 1300 --paso 500",
    "tablas --fluido CO2 --por kg --desde 900 --hasta 1100 --paso 100",
    "tablas --fluido agua",
    "tablas --paso 0",
    "tablas --desde 300 --desde 400",
    "tablas --humedad x",
    "llama --lambda 1,25 --aire-o2-n2 --json",
    "llama --temperatura-ambiente",
};

}  // namespace

TEST(Linea, CadaOrdenContraSuArchivo) {
    std::string s;
    for (const char* orden : kOrdenes) {
        const Salida r = Ejecutar(orden);
        s += std::string("$ vanta ") + orden + "\n[" + std::to_string(r.estado) + "]\n" + r.err + "--\n" +
             Final(r.out, 8) + "\n";
    }
    EXPECT_EQ(vanta::pruebas::CompararDorado("linea.txt", s), "");
}

TEST(Linea, LaVentanaSinPantallaLoDiceYLaPaginaSeEscribeEntera) {
    const Salida sin = Ejecutar("", "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM");
    EXPECT_EQ(sin.estado, 1);
    EXPECT_NE(sin.err.find("«vanta calcular»"), std::string::npos) << sin.err;

    namespace fs = std::filesystem;
    const fs::path carpeta = fs::path(::testing::TempDir()) / ("vanta_pagina_" + std::to_string(getpid()));
    fs::remove_all(carpeta);
    const Salida pagina = Ejecutar("calcular --ciclo Diesel --html=" + carpeta.string());
    EXPECT_EQ(pagina.estado, 0) << pagina.err;
    // Standard error holds the calculation's warnings and nothing else.
    std::istringstream lineas(pagina.err);
    for (std::string l; std::getline(lineas, l);) EXPECT_EQ(l.rfind("aviso: ", 0), 0u) << l;
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()), 8);
    EXPECT_NE(vanta::pruebas::LeerArchivo((carpeta / "Index.htm").string()).find("CICLO: Diesel"),
              std::string::npos);
    // A folder that is a file: why, and nothing written.
    const Salida archivo = Ejecutar("calcular --html " + (carpeta / "Index.htm").string());
    EXPECT_EQ(archivo.estado, 1);
    EXPECT_NE(archivo.err.find("es un archivo, no una carpeta"), std::string::npos) << archivo.err;
    fs::remove_all(carpeta);
}
