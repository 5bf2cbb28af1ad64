// The inputs that the program refuses, and those at the edge that it takes,
// in one table for the whole calculation: each row's messages, in their
// order and to the letter, and whether the run ended well, against the
// golden file. A refused run leaves no number that is not finite.
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/Dorados.h"
#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

const std::vector<std::vector<std::string>> kFilas = {
    // The air.
    {"--temperatura-ambiente", "249.9"},
    {"--temperatura-ambiente", "250"},
    {"--temperatura-ambiente", "5000.1"},
    {"--temperatura-ambiente", "5000"},
    {"--temperatura-ambiente", "calor"},
    {"--presion-ambiente", "abc"},
    {"--presion-ambiente", "0"},
    {"--humedad", "x"},
    {"--humedad", "100", "--temperatura-ambiente", "380"},
    {"--humedad", "-10"},
    {"--humedad", "100.01"},
    {"--humedad", "0", "--presion-ambiente", "-100000"},
    {"--presion-ambiente", "3.5e-304", "--humedad", "100"},
    // Figures that would overflow the steps after them, and the largest taken.
    {"--presion-ambiente", "1E+308"},
    {"--formula", "1,4,1e16,0,0", "--entalpia-formacion", "0"},
    {"--rpm", "-1e300"},
    {"--cilindrada", "1e15"},
    // The fuel.
    {"--formula", "0,0,0,0,0", "--entalpia-formacion", "-100000"},
    {"--formula", ",,,,", "--entalpia-formacion", "0"},
    {"--formula", "a,1,0,0,0", "--entalpia-formacion", "0"},
    {"--formula", "1,4,0,0,0", "--entalpia-formacion", "x"},
    {"--formula", "0,0,2,0,0", "--entalpia-formacion", "0"},
    {"--masa", "85,0,20,0", "--masa-molecular", "0.1"},
    {"--masa", "85,0,15,0", "--masa-molecular", "0.1"},
    {"--masa", "0,0,100,0", "--masa-molecular", "0.1"},
    {"--masa", "a,0,0,0", "--masa-molecular", "0.1"},
    {"--masa", "80,0,0,0", "--masa-molecular", "0"},
    {"--masa", "80,0,0,0", "--masa-molecular", "peso"},
    {"--formula", "0,2,0,0,0", "--entalpia-formacion", "-241984"},
    // Formulas whose counts cancel if one of them were subtracted.
    {"--formula", "2,2,0,0,0", "--entalpia-formacion", "226730"},
    {"--formula", "0,1,1,0,0", "--entalpia-formacion", "0"},
    {"--formula", "1,0,0,1,0", "--entalpia-formacion", "-110530"},
    {"--formula", "1,0,0,0,1", "--entalpia-formacion", "0"},
    // The combustion.
    {"--fr", "-1"},
    {"--fr", "0"},
    {"--fr", "x"},
    {"--fr", "3"},
    {"--fr", "1.6", "--combustible", "Metanol"},
    {"--lambda", "0"},
    {"--lambda", "-2"},
    {"--lambda", "y"},
    {"--lambda", "0.5"},
    // The cycle's boxes.
    {"--cilindrada", "abc"},
    {"--cilindrada", "0"},
    {"--cilindrada", "1e-300"},
    {"--cilindrada", "5e-318"},
    {"--rc", "1"},
    {"--rc", "0.5"},
    {"--rc", "x"},
    {"--p1", "0"},
    {"--p1", "p"},
    {"--t1", "-5"},
    {"--t1", "t"},
    {"--pmax", "x"},
    {"--compresion", "politropica", "--n-compresion", "1"},
    {"--compresion", "politropica", "--n-compresion", "n"},
    {"--n-compresion", "n"},
    {"--expansion", "politropica", "--n-expansion", "0.9"},
    {"--expansion", "politropica", "--n-expansion", "n"},
    {"--n-expansion", "n"},
    // The mixed cycle.
    {"--ciclo", "Mixto", "--pmax", "1000"},
    {"--ciclo", "Mixto", "--pmax", "1000", "--rc", "40"},
    {"--ciclo", "Mixto", "--pmax", "2511886.4"},
    {"--ciclo", "Mixto", "--proporcion-vcte", "101"},
    {"--ciclo", "Mixto", "--proporcion-vcte", "-5"},
    {"--ciclo", "Mixto", "--proporcion-vcte", "x"},
    {"--ciclo", "Mixto", "--proporcion-vcte", "0"},
    // Cycles the processes cannot close.
    {"--ciclo", "Diesel", "--rc", "2"},
    {"--ciclo", "Diesel", "--rc", "1.05"},
    {"--rc", "300"},
    {"--rc", "60", "--temperatura-ambiente", "1500"},
    {"--ciclo", "Diesel", "--t1", "4000"},
    {"--t1", "2500"},
    {"--compresion", "politropica", "--n-compresion", "1e300"},
};

std::string Fila(const std::vector<std::string>& opciones) {
    auto c = Calcular(opciones);
    std::string s;
    for (const std::string& o : opciones) s += o + " ";
    s += c->bien ? "-> bien\n" : "-> falla\n";
    for (const std::string& m : c->r.TextosMensajes()) s += "  " + m + "\n";
    const Estado& e = c->e;
    for (const std::string& v : NoFinitas(e)) s += "  NO FINITA: " + v + "\n";
    // Where a refused run leaves the record and the maxima.
    char b[200];
    std::snprintf(b, sizeof b, "  T=%.17g p=%.17g x=%.17g pmax=%.9g Tmax=%.9g\n", e.Temperatura, e.Presion,
                  e.FraccionQuemada, e.PresionMaxima, e.TemperaturaMaxima);
    return c->bien ? s : s + b;
}

}  // namespace

TEST(Rechazos, CadaEntradaTieneSusMensajesYSuFin) {
    std::string s;
    for (const auto& fila : kFilas) s += Fila(fila);
    EXPECT_EQ(CompararDorado("rechazos.txt", s), "");
}
