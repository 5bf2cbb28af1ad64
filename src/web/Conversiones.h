// Floating-point numbers to text and back as the standard library's
// <charconv> does it, for a standard library that lacks those overloads (the
// one that comes with Debian's emscripten has them only for integers). The
// core's numbers as text, its JSON and its reports must read exactly as the
// desktop's: these give the same characters as std::to_chars and
// std::from_chars do, built on printf and strtod, which round exactly.
#pragma once

#include <charconv>

namespace vanta::web {

// The shortest text that reads back to the same number: of the decimals
// that do, the fewest digits, the nearest to the number; written plain
// ("0.001", "123.5") or with an exponent ("1e-05", "1.5e+20"), whichever is
// shorter, plain on a tie. With fijo, always plain.
std::to_chars_result EscribirCorto(char* primero, char* ultimo, double v, bool fijo = false);
std::to_chars_result EscribirCorto(char* primero, char* ultimo, float v);

// With a given number of decimals: plain (fijo) or with an exponent.
std::to_chars_result EscribirConDecimales(char* primero, char* ultimo, double v, bool fijo, int decimales);

// A number at the head of the text: an optional minus, digits with an
// optional point, an optional exponent; "inf", "infinity" and "nan" in any
// case. Out of range when it overflows to infinity or underflows to zero from
// digits that are not all zero; the value is then left as it was.
std::from_chars_result LeerNumeroCompleto(const char* primero, const char* ultimo, double& v);
std::from_chars_result LeerNumeroCompleto(const char* primero, const char* ultimo, long double& v);

}  // namespace vanta::web
