#include "core/services/JSON.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace vanta {

namespace {

template <class T>
std::string Numero(T v) {
    if (!std::isfinite(v)) return "null";
    char b[64];
    auto r = std::to_chars(b, b + sizeof b, v);
    return std::string(b, r.ptr);
}

}  // namespace

std::string TextoNumeroJSON(double v) {
    return Numero(v);
}

std::string TextoNumeroJSON(float v) {
    return Numero(v);
}

std::string TextoCadenaJSON(const std::string& t) {
    std::string s = "\"";
    for (unsigned char c : t) {
        if (c == '"' || c == '\\') {
            s += '\\';
            s += static_cast<char>(c);
        } else if (c < 0x20) {
            char b[8];
            std::snprintf(b, sizeof b, "\\u%04x", c);
            s += b;
        } else {
            s += static_cast<char>(c);
        }
    }
    return s + "\"";
}

}  // namespace vanta
