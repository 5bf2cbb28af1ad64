#include "web/Conversiones.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

namespace vanta::web {

namespace {

std::to_chars_result Copiar(char* primero, char* ultimo, const std::string& t) {
    if (t.size() > static_cast<size_t>(ultimo - primero)) return {ultimo, std::errc::value_too_large};
    std::memcpy(primero, t.data(), t.size());
    return {primero + t.size(), std::errc()};
}

// The decimal digits of a number (no sign, no trailing zero but for 0
// itself) and the exponent of the first: 1.25e-3 is "125", -3.
struct Decimal {
    std::string cifras;
    int exponente = 0;
};

// p digits as printf rounds them.
Decimal Redondeado(double v, int p) {
    char b[64];
    std::snprintf(b, sizeof b, "%.*e", p - 1, v);
    Decimal d;
    const char* e = std::strchr(b, 'e');
    for (const char* c = b; c < e; ++c)
        if (*c != '.') d.cifras += *c;
    d.exponente = std::atoi(e + 1);
    return d;
}

std::string ConExponente(const Decimal& d) {
    std::string t = d.cifras.substr(0, 1);
    if (d.cifras.size() > 1) t += "." + d.cifras.substr(1);
    char e[16];
    std::snprintf(e, sizeof e, "e%c%02d", d.exponente < 0 ? '-' : '+', std::abs(d.exponente));
    return t + e;
}

// Plain: a whole number with all its digits (as long as the shortest digits
// padded with zeros, and exact), or the digits around the point.
std::string Plano(const Decimal& d, double v) {
    const int n = static_cast<int>(d.cifras.size());
    if (d.exponente < 0) return "0." + std::string(static_cast<size_t>(-d.exponente - 1), '0') + d.cifras;
    if (n - 1 <= d.exponente) {
        std::string t(static_cast<size_t>(std::snprintf(nullptr, 0, "%.0f", v)) + 1, '\0');
        std::snprintf(t.data(), t.size(), "%.0f", v);
        t.pop_back();
        return t;
    }
    return d.cifras.substr(0, static_cast<size_t>(d.exponente + 1)) + "." +
           d.cifras.substr(static_cast<size_t>(d.exponente + 1));
}

// The p-digit decimal one unit of its last digit above (arriba) or below.
Decimal Vecino(Decimal d, bool arriba) {
    std::string& c = d.cifras;
    int i = static_cast<int>(c.size()) - 1;
    if (arriba) {
        while (i >= 0 && c[static_cast<size_t>(i)] == '9') c[static_cast<size_t>(i--)] = '0';
        if (i < 0) {
            c.insert(c.begin(), '1');
            c.pop_back();
            ++d.exponente;
        } else {
            ++c[static_cast<size_t>(i)];
        }
    } else {
        while (i >= 0 && c[static_cast<size_t>(i)] == '0') c[static_cast<size_t>(i--)] = '9';
        --c[static_cast<size_t>(i)];
        if (c[0] == '0') {
            c.erase(c.begin());
            c.push_back('9');
            --d.exponente;
        }
    }
    return d;
}

template <class T>
T Leer(const std::string& t) {
    if constexpr (sizeof(T) == sizeof(float))
        return std::strtof(t.c_str(), nullptr);
    else
        return std::strtod(t.c_str(), nullptr);
}

// Whether p digits read back to v: those printf rounds to, or where the gap
// below a power of two is narrower than above, the next decimal on the other
// side (d then holds them). More digits never lose the way back.
template <class T>
bool Vuelve(T v, int p, Decimal& d) {
    d = Redondeado(static_cast<double>(v), p);
    const T leido = Leer<T>(ConExponente(d));
    if (leido == v) return true;
    d = Vecino(d, leido < v);
    return Leer<T>(ConExponente(d)) == v;
}

// The fewest digits that read back to v (positive, finite), the nearest of
// them. Most figures of a calculation need their last two or three digits:
// those are tried first, then the search halves below.
template <class T>
Decimal MasCorto(T v, int maximo) {
    Decimal d, mejor;
    int hasta = maximo - 2;
    if (!Vuelve(v, hasta, mejor)) {
        if (Vuelve(v, maximo - 1, mejor)) return mejor;
        return Redondeado(static_cast<double>(v), maximo);
    }
    int desde = 1;
    while (desde < hasta) {
        const int p = (desde + hasta) / 2;
        if (Vuelve(v, p, d)) {
            hasta = p;
            mejor = d;
        } else {
            desde = p + 1;
        }
    }
    return mejor;
}

template <class T>
std::to_chars_result Corto(char* primero, char* ultimo, T v, int maximo, bool fijo) {
    std::string signo = std::signbit(v) ? "-" : "";
    if (v == 0) return Copiar(primero, ultimo, signo + "0");
    Decimal d = MasCorto(std::fabs(v), maximo);
    d.cifras.erase(d.cifras.find_last_not_of('0') + 1);
    const std::string plano = Plano(d, std::fabs(static_cast<double>(v)));
    if (fijo) return Copiar(primero, ultimo, signo + plano);
    const std::string exponente = ConExponente(d);
    return Copiar(primero, ultimo, signo + (plano.size() <= exponente.size() ? plano : exponente));
}

bool Digito(char c) {
    return c >= '0' && c <= '9';
}

bool Empieza(const char* p, const char* ultimo, const char* palabra) {
    const size_t n = std::strlen(palabra);
    if (static_cast<size_t>(ultimo - p) < n) return false;
    for (size_t i = 0; i < n; ++i)
        if ((p[i] | 0x20) != palabra[i]) return false;
    return true;
}

template <class T>
std::from_chars_result LeerNumero(const char* primero, const char* ultimo, T& v) {
    const char* p = primero;
    const bool negativo = p < ultimo && *p == '-';
    if (negativo) ++p;
    if (Empieza(p, ultimo, "inf") || Empieza(p, ultimo, "nan")) {
        const bool esInf = (*p | 0x20) == 'i';
        const char* fin = p + 3;
        if (esInf && Empieza(p, ultimo, "infinity")) fin = p + 8;
        if (!esInf && fin < ultimo && *fin == '(') {
            const char* c = fin + 1;
            while (c < ultimo && (Digito(*c) || std::isalpha(static_cast<unsigned char>(*c)) || *c == '_'))
                ++c;
            if (c < ultimo && *c == ')') fin = c + 1;
        }
        const T x = esInf ? std::numeric_limits<T>::infinity() : std::numeric_limits<T>::quiet_NaN();
        v = negativo ? -x : x;
        return {fin, std::errc()};
    }
    const char* c = p;
    bool noCero = false;
    size_t cifras = 0;
    for (; c < ultimo && Digito(*c); ++c, ++cifras) noCero = noCero || *c != '0';
    if (c < ultimo && *c == '.')
        for (++c; c < ultimo && Digito(*c); ++c, ++cifras) noCero = noCero || *c != '0';
    if (cifras == 0) return {primero, std::errc::invalid_argument};
    if (c < ultimo && (*c == 'e' || *c == 'E')) {
        const char* e = c + 1;
        if (e < ultimo && (*e == '+' || *e == '-')) ++e;
        if (e < ultimo && Digito(*e)) {
            while (e < ultimo && Digito(*e)) ++e;
            c = e;
        }
    }
    const std::string texto(primero, c);
    T x;
    if constexpr (sizeof(T) == sizeof(double))
        x = std::strtod(texto.c_str(), nullptr);
    else
        x = std::strtold(texto.c_str(), nullptr);
    if (std::isinf(x) || (x == 0 && noCero)) return {c, std::errc::result_out_of_range};
    v = x;
    return {c, std::errc()};
}

}  // namespace

std::to_chars_result EscribirCorto(char* primero, char* ultimo, double v, bool fijo) {
    return Corto(primero, ultimo, v, 17, fijo);
}

std::to_chars_result EscribirCorto(char* primero, char* ultimo, float v) {
    return Corto(primero, ultimo, v, 9, false);
}

std::to_chars_result EscribirConDecimales(char* primero, char* ultimo, double v, bool fijo, int decimales) {
    const int n = std::snprintf(nullptr, 0, fijo ? "%.*f" : "%.*e", decimales, v);
    std::string t(static_cast<size_t>(n) + 1, '\0');
    std::snprintf(t.data(), t.size(), fijo ? "%.*f" : "%.*e", decimales, v);
    t.pop_back();
    return Copiar(primero, ultimo, t);
}

std::from_chars_result LeerNumeroCompleto(const char* primero, const char* ultimo, double& v) {
    return LeerNumero(primero, ultimo, v);
}

std::from_chars_result LeerNumeroCompleto(const char* primero, const char* ultimo, long double& v) {
    return LeerNumero(primero, ultimo, v);
}

}  // namespace vanta::web
