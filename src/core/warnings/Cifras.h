// Figures of the validation and the warnings as text, by the program's masks.
#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "core/services/Numeros.h"

namespace vanta {

// A figure by a mask, without the mask's leading blanks; the sign, when there
// is one, before the digits.
inline std::string Cifra(double x, std::string_view mascara, char separador) {
    std::string s = Format(std::fabs(x), mascara, separador);
    s.erase(0, s.find_first_not_of(' '));
    const bool cero = s.find_first_not_of("0.,") == std::string::npos;
    return (x < 0 && !cero ? "-" : "") + s;
}

// A difference with its sign always written: "+0.12", "-3.40".
inline std::string CifraConSigno(double x, std::string_view mascara, char separador) {
    const std::string s = Cifra(x, mascara, separador);
    return s[0] == '-' ? s : "+" + s;
}

// A share as a percentage, with the decimals it needs: "1 %", "0.5 %".
inline std::string Porcentaje(double fraccion, char separador) {
    const double p = fraccion * 100.0;
    return Cifra(p, p == std::round(p) ? "##0" : "##0.0##", separador) + " %";
}

}  // namespace vanta
