// The page's numbers to text and back against the standard library's own
// <charconv>: the WebAssembly build uses them in its place, and the reports
// and the JSON must come out in the same characters.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <random>
#include <string>

#include "web/Conversiones.h"

using namespace vanta::web;

namespace {

template <class T>
std::string Estandar(T v) {
    char b[512];
    return {b, std::to_chars(b, b + sizeof b, v).ptr};
}

template <class T>
std::string Nuestro(T v) {
    char b[512];
    return {b, EscribirCorto(b, b + sizeof b, v).ptr};
}

std::string EstandarFijo(double v, int decimales = -1) {
    char b[2000];
    auto r = decimales < 0 ? std::to_chars(b, b + sizeof b, v, std::chars_format::fixed)
                           : std::to_chars(b, b + sizeof b, v, std::chars_format::fixed, decimales);
    return {b, r.ptr};
}

std::string NuestroFijo(double v, int decimales = -1) {
    char b[2000];
    auto r = decimales < 0 ? EscribirCorto(b, b + sizeof b, v, true)
                           : EscribirConDecimales(b, b + sizeof b, v, true, decimales);
    return {b, r.ptr};
}

}  // namespace

TEST(Conversiones, ElTextoMasCortoEsElDeLaBibliotecaEstandar) {
    // Every kind of double and float: random bits, the figures of a
    // calculation, whole numbers beyond 2^53 written plain, powers of ten and
    // of two, where the decimals below and above are not as close.
    std::mt19937_64 azar(27);
    for (int i = 0; i < 5000; ++i) {
        const uint64_t bits = azar();
        double d;
        std::memcpy(&d, &bits, sizeof d);
        float f;
        const uint32_t bits32 = static_cast<uint32_t>(bits >> 11);
        std::memcpy(&f, &bits32, sizeof f);
        const double x =
            std::ldexp(static_cast<double>(azar() % 1000000), static_cast<int>(azar() % 90) - 45);
        for (double v : {d, x, static_cast<double>(azar() % 100000) / 1000.0})
            if (std::isfinite(v)) {
                ASSERT_EQ(Nuestro(v), Estandar(v)) << v;
            }
        for (float v : {f, static_cast<float>(x)})
            if (std::isfinite(v)) {
                ASSERT_EQ(Nuestro(v), Estandar(v)) << v;
            }
        ASSERT_EQ(NuestroFijo(x), EstandarFijo(x));
        ASSERT_EQ(NuestroFijo(x, i % 45), EstandarFijo(x, i % 45));
    }
    for (double v :
         {0.0, -0.0, 1e23, 9007199254740993.0, 123456789012345680.0, 5e-324, 1.7976931348623157e308, 0.1,
          100.0, 1e15, 1e16, 0.0001, 0.001, 1e-5, 8.5, 300.0, 0x1p-1022, 0x1p60,
          // Powers of two whose shortest decimal lies above them, in the wider gap.
          0x1p-1017, 0x1p-957, 0x1p-808})
        EXPECT_EQ(Nuestro(v), Estandar(v)) << v;
    for (float v : {16777216.0f, 0x1p87f, 0x1p-96f}) EXPECT_EQ(Nuestro(v), Estandar(v)) << v;
    EXPECT_EQ(NuestroFijo(1e23), EstandarFijo(1e23));

    char corto[3];
    EXPECT_EQ(EscribirCorto(corto, corto + sizeof corto, 1234.5).ec, std::errc::value_too_large);
}

TEST(Conversiones, ConExponenteYDecimalesDados) {
    for (double v : {1.0, -2.5e-7, 6.02214076e23, 0.0, 1.7976931348623157e308}) {
        char a[64], b[64];
        const auto ra = std::to_chars(a, a + sizeof a, v, std::chars_format::scientific, 14);
        const auto rb = EscribirConDecimales(b, b + sizeof b, v, false, 14);
        EXPECT_EQ(std::string(b, rb.ptr), std::string(a, ra.ptr));
    }
}

TEST(Conversiones, LeeLoQueLeeLaBibliotecaEstandar) {
    const char* textos[] = {"1",     "-2.5",  ".5",        "5.",     "1e3",   "1E-3",   "1e",
                            "1e+",   "-",     ".",         "",       "+1",    " 1",     "1,5",
                            "0x10",  "inf",   "-Infinity", "nan",    "1e400", "-1e400", "1e-400",
                            "0e999", "0.000", "4.9e-324",  "123abc", "00012"};
    for (const char* t : textos) {
        const char* fin = t + std::strlen(t);
        double a = 7, b = 7;
        const auto ra = std::from_chars(t, fin, a, std::chars_format::general);
        const auto rb = LeerNumeroCompleto(t, fin, b);
        EXPECT_EQ(rb.ec, ra.ec) << t;
        EXPECT_EQ(rb.ptr - t, ra.ptr - t) << t;
        if (!std::isnan(a)) {
            EXPECT_EQ(b, a) << t;
        }
        long double la = 7, lb = 7;
        std::from_chars(t, fin, la, std::chars_format::general);
        LeerNumeroCompleto(t, fin, lb);
        if (!std::isnan(la)) {
            EXPECT_EQ(lb, la) << t;
        }
    }
}
