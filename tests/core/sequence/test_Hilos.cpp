// Calculations side by side: each thread on its own state gives, bit for bit,
// what the same calculation gives alone, whatever the others do meanwhile.
#include <gtest/gtest.h>

#include <thread>

#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

TEST(Hilos, DosCalculosALaVezDanLoMismoQueSolos) {
    const std::vector<std::string> casos[] = {
        {},
        {"--ciclo", "Diesel", "--combustible", "Gasoil", "--compresion", "variable", "--expansion",
         "variable"},
        {"--ciclo", "Mixto", "--pmax", "6000000", "--humedad", "60"},
        {"--fr", "1.2", "--compresion", "politropica"},
    };
    std::vector<std::string> solos;
    for (const auto& c : casos) solos.push_back(EstadoJSON(Calcular(c, false)->e));
    std::vector<std::string> juntos(std::size(casos) * 3);
    {
        std::vector<std::jthread> hilos;
        for (size_t i = 0; i < juntos.size(); ++i)
            hilos.emplace_back(
                [&, i] { juntos[i] = EstadoJSON(Calcular(casos[i % std::size(casos)], false)->e); });
    }
    for (size_t i = 0; i < juntos.size(); ++i) EXPECT_EQ(juntos[i], solos[i % std::size(casos)]) << i;
}
