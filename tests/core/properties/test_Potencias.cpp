// The powers of the temperature are the general power function's own doubles,
// whatever way they are reached: every figure of the program rests on them.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/properties/Especies.h"

using namespace vanta;

namespace {

void Comparar(double T) {
    double T2, T3, T4;
    PotenciasComoPow(T, T2, T3, T4);
    ASSERT_EQ(T2, std::pow(T, 2.0)) << "T = " << T;
    ASSERT_EQ(T3, std::pow(T, 3.0)) << "T = " << T;
    ASSERT_EQ(T4, std::pow(T, 4.0)) << "T = " << T;
}

TEST(PotenciasComoPow, SonLasDeLaFuncionPotencia) {
    // Random temperatures of the calculation's whole range, the whole
    // Kelvins and the steps of a tenth, the range switch, and the edges where
    // the powers cross a power of two or leave the usual magnitudes.
    std::mt19937_64 azar(17);
    std::uniform_real_distribution<double> temperatura(1.0, 8000.0);
    for (int i = 0; i < 2'000'000; ++i) Comparar(temperatura(azar));
    for (int k = 1; k <= 8000; ++k) {
        Comparar(k);
        Comparar(k + 0.1 * (k % 10));
    }
    for (double T : {1000.0, std::nextafter(1000.0, 2000.0), std::nextafter(1000.0, 0.0), 1024.0, 2048.0,
                     std::sqrt(2048.0), std::cbrt(4096.0), 1e-3, 1e-200, 1e-320, 1e30, 1e80, 1e200})
        Comparar(T);
}

}  // namespace
