#include "tests/core/robustez/Aleatorios.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace vanta::prueba {

namespace {

// Texts that are no numbers, or numbers at the edges of the doubles, or
// numbers in forms that the boxes must tell apart.
// clang-format off
const std::vector<std::string> kBasura = {
    "", " ", "   ", "\n", "abc", "\xE2\x88\x9E", "\xC2\xBD", "\xD9\xA1", "1/2", "10%", "$5", "5 K", "1_000",
    "nan", "NaN", "-nan", "inf", "-inf", "Infinity", "0x10",
    "1e308", "-1e308", "1e309", "-1e309", "1e99999", "-1e99999", "99999999999999999999999",
    "1.7976931348623157e308", "1.79769313486232E+308", "2.2250738585072014e-308",
    "1e-320", "4.9e-324", "-4.9e-324", "1e-400", "1e-5",
    "0", "-0", "+0", "00000", "0,0", "-1", "--1", "+-1", "-", "+", ",", ".",
    "1,2,3", "1.2.3", "1..2", "12,34.5", "1.234,5", "1.234.567,8", "1 2", "\t7\t", "1\n",
    "1e", "e5", "1e+", "1,5e3", "1E5", ".5", ",5", "5.", "5,", "1,",
};
// clang-format on

std::string Fijo(double v, int decimales, char separador) {
    char b[512];
    auto r = std::to_chars(b, b + sizeof b, v, std::chars_format::fixed, decimales);
    std::string s(b, r.ptr);
    for (char& c : s)
        if (c == '.') c = separador;
    return s;
}

}  // namespace

uint64_t SemillaDelCaso(uint64_t semilla, uint64_t caso) {
    // splitmix64 of the pair: neighbouring cases get unrelated streams.
    uint64_t z = semilla + 0x9E3779B97F4A7C15ull * (caso + 1);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

double Azar::Uniforme(double a, double b) {
    return std::uniform_real_distribution<double>(a, b)(motor_);
}

double Azar::LogUniforme(double a, double b) {
    return std::exp(Uniforme(std::log(a), std::log(b)));
}

bool Azar::Moneda(double p) {
    return Uniforme(0, 1) < p;
}

size_t Azar::Indice(size_t n) {
    return std::uniform_int_distribution<size_t>(0, n - 1)(motor_);
}

std::string Azar::Escribir(double v) {
    std::string s;
    const char separador = Moneda(0.5) ? '.' : ',';
    if (!std::isfinite(v)) return Basura();
    // Decimals enough for three significant digits: "1,39" must not become "1".
    const int minimo = v != 0 ? std::max(0, 2 - static_cast<int>(std::floor(std::log10(std::fabs(v))))) : 0;
    switch (Indice(5)) {
        case 0: {  // shortest text that reads back to the double
            char b[64];
            auto r = std::to_chars(b, b + sizeof b, v);
            s.assign(b, r.ptr);
            for (char& c : s)
                if (c == '.') c = separador;
            break;
        }
        case 1:
        case 2:
            s = Fijo(v, minimo + static_cast<int>(Indice(5)), separador);
            break;
        case 3: {
            char b[64];
            std::snprintf(b, sizeof b, Moneda(0.5) ? "%.*e" : "%.*E", 2 + static_cast<int>(Indice(8)), v);
            s = b;
            for (char& c : s)
                if (c == '.') c = separador;
            break;
        }
        default:
            s = Fijo(minimo == 0 ? std::round(v) : v, minimo, separador);
            break;
    }
    if (Moneda(0.05) && s[0] != '-') s.insert(0, "+");
    if (Moneda(0.05)) s.insert(0, " ");
    if (Moneda(0.05)) s += " ";
    return s;
}

std::string Azar::Basura() {
    return Uno(kBasura);
}

std::string Azar::Mutar(std::string texto) {
    const size_t posicion = Indice(texto.size() + 1);
    switch (Indice(4)) {
        case 0:
            texto.insert(posicion, ".");
            break;
        case 1:
            texto.insert(posicion, ",");
            break;
        case 2:
            if (!texto.empty()) texto.erase(std::min(posicion, texto.size() - 1), 1);
            break;
        default:
            if (!texto.empty()) {
                const size_t i = std::min(posicion, texto.size() - 1);
                texto.insert(i, 1, texto[i]);
            }
            break;
    }
    return texto;
}

double Azar::Valor(const Magnitud& m) {
    const bool amplio = Moneda(0.2);
    const double a = amplio ? m.minimoAmplio : m.minimo, b = amplio ? m.maximoAmplio : m.maximo;
    return m.logaritmica && a > 0 ? LogUniforme(a, b) : Uniforme(a, b);
}

std::string Azar::Texto(const Magnitud& m, double perturbacion) {
    if (!m.bordes.empty() && Moneda(0.03)) return Uno(m.bordes);
    if (Moneda(perturbacion)) {
        const double r = Uniforme(0, 1);
        if (r < 0.4 && !m.bordes.empty()) return Uno(m.bordes);
        if (r < 0.75) return Basura();
        return Mutar(Escribir(Valor(m)));
    }
    if (Moneda(m.probabilidadCero)) return "0";
    return Escribir(Valor(m));
}

}  // namespace vanta::prueba
