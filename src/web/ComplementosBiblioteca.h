// What the standard library of Debian's emscripten lacks of C++20 and the
// core uses: std::bit_cast, and the floating-point overloads of <charconv>,
// given by Conversiones.h. The WebAssembly build puts this header before
// every source file (-include), so that the core compiles unchanged; the
// native build never sees it.
#pragma once

#include <bit>
#include <charconv>

#include "web/Conversiones.h"

namespace std {

#ifndef __cpp_lib_bit_cast
template <class A, class De>
constexpr A bit_cast(const De& de) noexcept {
    return __builtin_bit_cast(A, de);
}
#endif

inline to_chars_result to_chars(char* primero, char* ultimo, double v) {
    return vanta::web::EscribirCorto(primero, ultimo, v);
}
inline to_chars_result to_chars(char* primero, char* ultimo, float v) {
    return vanta::web::EscribirCorto(primero, ultimo, v);
}
inline to_chars_result to_chars(char* primero, char* ultimo, double v, chars_format formato) {
    return vanta::web::EscribirCorto(primero, ultimo, v, formato == chars_format::fixed);
}
inline to_chars_result to_chars(char* primero, char* ultimo, double v, chars_format formato, int decimales) {
    return vanta::web::EscribirConDecimales(primero, ultimo, v, formato == chars_format::fixed, decimales);
}
inline from_chars_result from_chars(const char* primero, const char* ultimo, double& v,
                                    chars_format = chars_format::general) {
    return vanta::web::LeerNumeroCompleto(primero, ultimo, v);
}
inline from_chars_result from_chars(const char* primero, const char* ultimo, long double& v,
                                    chars_format = chars_format::general) {
    return vanta::web::LeerNumeroCompleto(primero, ultimo, v);
}

}  // namespace std
