// Whole calculations against their golden files: for each case everything it
// shows (messages, every variable of the state, the labels, the text report,
// the page, the record, the charts and the diagrams as drawing calls). The
// cases cover the three cycles, the nine pairs of models, the seven fuels of
// the list, a formula and a mass composition, humid air, Lambda leading, a
// rich mixture and the mixed cycle by share and by maximum pressure.
#include <gtest/gtest.h>

#include "tests/Dorados.h"
#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

struct Caso {
    const char* nombre;
    std::vector<std::string> opciones;
    char separador = '.';
};

const Caso kCasos[] = {
    {"otto", {}},
    {"diesel_gasoil", {"--ciclo", "Diesel", "--combustible", "Gasoil", "--fr", "0.8", "--rc", "18"}},
    {"mixto_pmax", {"--ciclo", "Mixto", "--pmax", "6000000", "--combustible", "GLP-Propano"}},
    {"mixto_pmax_alta", {"--ciclo", "Mixto", "--pmax", "50000000"}},
    {"mixto_proporcion", {"--ciclo", "Mixto", "--proporcion-vcte", "30", "--combustible", "Etanol"}},
    {"mixto_cien", {"--ciclo", "Mixto", "--proporcion-vcte", "100", "--combustible", "Metanol"}},
    {"otto_politropica_variable",
     {"--compresion", "politropica", "--expansion", "variable", "--humedad", "60", "--temperatura-ambiente",
      "320", "--n-compresion", "1,35"}},
    {"otto_variable_medio", {"--compresion", "variable", "--combustible", "GLP-Etano", "--rc", "8.5"}},
    {"diesel_variable_politropica",
     {"--ciclo", "Diesel", "--compresion", "variable", "--expansion", "politropica", "--combustible",
      "Metanol", "--lambda", "1.2", "--rc", "20", "--n-expansion", "1.3"}},
    {"diesel_medio_variable",
     {"--ciclo", "Diesel", "--expansion", "variable", "--combustible", "GLP-Butano"}},
    {"mixto_politropicas",
     {"--ciclo", "Mixto", "--compresion", "politropica", "--expansion", "politropica", "--pmax", "7000000"}},
    {"rico", {"--fr", "1.25", "--combustible", "GLP-Butano", "--humedad", "100"}},
    {"formula",
     {"--formula", "7,16,0,0,0", "--entalpia-formacion", "-187800", "--fr", "1.1", "--cilindrada", "500",
      "--p1", "90000", "--t1", "330"}},
    {"masa",
     {"--masa", "84,0.5,1,0.3", "--masa-molecular", "0.2", "--entalpia-formacion", "-250000", "--ciclo",
      "Mixto", "--proporcion-vcte", "60", "--presion-ambiente", "95000"}},
    {"coma", {"--ciclo", "Diesel", "--humedad", "47,5", "--fr", "0,7", "--rc", "16,5"}, ','},
};

void PrintTo(const Caso& c, std::ostream* os) {
    *os << c.nombre;
}

class Calculos : public ::testing::TestWithParam<Caso> {};

}  // namespace

TEST_P(Calculos, MuestranLoQueGuardaSuArchivo) {
    auto c = Calcular(GetParam().opciones, true, GetParam().separador);
    EXPECT_TRUE(c->bien);
    EXPECT_EQ(CompararDorado(std::string("calculos/") + GetParam().nombre + ".txt", Volcado(*c)), "");
}

INSTANTIATE_TEST_SUITE_P(Casos, Calculos, ::testing::ValuesIn(kCasos),
                         [](const auto& info) { return std::string(info.param.nombre); });
