#include "core/services/Numeros.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace vanta {

namespace {
inline constexpr std::string_view kNoEsNumero = "no es un número";
// What a number that is not finite prints as: the last guard, so that no text
// of the program ever shows NaN or infinity.
const std::string kNoDefinido = "N.D.";

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

// Exact decimal digits of |x| with n decimals, rounded half away from zero.
// Returns the integer digits (no leading zeros; empty for 0) and n decimals.
void DigitosRedondeados(double x, int n, std::string& enteros, std::string& decimales) {
    // Enough decimals beyond n that a tie can be told from a near-tie.
    char buf[1200];
    const int precision = n + 40;
    auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(x), std::chars_format::fixed, precision);
    std::string s(buf, r.ptr);
    const auto punto = s.find('.');
    std::string ent = s.substr(0, punto);
    std::string dec = s.substr(punto + 1);
    bool subir = dec[static_cast<size_t>(n)] >= '5';
    std::string cifras = ent + dec.substr(0, static_cast<size_t>(n));
    if (subir) {
        int i = static_cast<int>(cifras.size()) - 1;
        while (i >= 0 && cifras[static_cast<size_t>(i)] == '9') cifras[static_cast<size_t>(i--)] = '0';
        if (i < 0)
            cifras.insert(cifras.begin(), '1');
        else
            ++cifras[static_cast<size_t>(i)];
    }
    enteros = cifras.substr(0, cifras.size() - static_cast<size_t>(n));
    decimales = cifras.substr(cifras.size() - static_cast<size_t>(n));
    const auto primera = enteros.find_first_not_of('0');
    enteros = primera == std::string::npos ? std::string() : enteros.substr(primera);
}

bool EsLugar(char c) {
    return c == '#' || c == '0';
}

// The largest double as the general conversion writes it: its 15 digits are
// rounded up, beyond the range of the doubles.
constexpr long double kMayorEscrito = 1.79769313486232e308L;

std::optional<double> Convertir(std::string_view s) {
    double v = 0;
    const char* fin = s.data() + s.size();
    auto r = std::from_chars(s.data(), fin, v, std::chars_format::general);
    if (r.ec == std::errc::result_out_of_range && r.ptr == fin) {
        // What the program writes it can read: a text beyond the largest
        // double by no more than that rounding is the largest double.
        long double l = 0;
        std::from_chars(s.data(), fin, l, std::chars_format::general);
        if (std::fabs(l) > std::numeric_limits<double>::max() && std::fabs(l) <= kMayorEscrito)
            return std::copysign(std::numeric_limits<double>::max(), static_cast<double>(l));
    }
    if (r.ec != std::errc() || r.ptr != fin || !std::isfinite(v)) return std::nullopt;
    return v;
}

// Digits, then optionally an exponent, from position i; returns the end.
size_t SaltarDigitos(std::string_view s, size_t i) {
    while (i < s.size() && EsDigito(s[i])) ++i;
    return i;
}

size_t SaltarExponente(std::string_view s, size_t i) {
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        size_t k = SaltarDigitos(s, j);
        if (k > j) return k;
    }
    return i;
}

// A plain decimal with at most one separator, "." or ",", and an exponent.
bool EsDecimalSimple(std::string_view s) {
    size_t i = SaltarDigitos(s, 0);
    size_t digitos = i;
    if (i < s.size() && (s[i] == '.' || s[i] == ',')) {
        size_t j = SaltarDigitos(s, i + 1);
        digitos += j - i - 1;
        i = j;
    }
    if (digitos == 0) return false;
    return SaltarExponente(s, i) == s.size();
}

// Thousands grouped by points, the Spanish way, with comma decimals: 1.234.567,89
bool EsAgrupadoConPuntos(std::string_view s) {
    size_t i = SaltarDigitos(s, 0);
    if (i == 0 || i > 3) return false;
    int grupos = 0;
    while (i < s.size() && s[i] == '.') {
        size_t j = SaltarDigitos(s, i + 1);
        if (j - i - 1 != 3) return false;
        i = j;
        ++grupos;
    }
    if (grupos == 0) return false;
    if (i < s.size() && s[i] == ',') i = SaltarDigitos(s, i + 1);
    return SaltarExponente(s, i) == s.size();
}

// The longest number at the head of the text, with the point as decimal
// separator: what the point rule reads ("1.234,5" gives 1.234).
std::optional<double> LeerConPunto(std::string_view s) {
    size_t i = SaltarDigitos(s, 0);
    if (i < s.size() && s[i] == '.') i = SaltarDigitos(s, i + 1);
    i = SaltarExponente(s, i);
    return Convertir(s.substr(0, i));
}

}  // namespace

double Round(double x, int d) {
    if (!std::isfinite(x)) return x;
    // The shortest fixed text of x at d decimals rounds the exact binary value,
    // ties to even; reading it back gives the nearest double.
    char buf[1200];
    auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed, d);
    double v = 0;
    std::from_chars(buf, r.ptr, v);
    return v == 0 ? 0.0 : v;
}

// Format: '#' is a digit place that prints only a digit the number has there;
// '0' always prints, a zero if need be; '.' is the decimal separator; a blank
// is a literal that always prints. The number is rounded half away from zero
// to the decimal places; integer digits beyond the leftmost place still print,
// left of it. A minus sign goes first, before the mask's blanks.
std::string Format(double x, std::string_view mascara, char separador) {
    if (!std::isfinite(x)) return kNoDefinido;
    const auto punto = mascara.find('.');
    const std::string_view mEnt = mascara.substr(0, punto);
    const std::string_view mDec =
        punto == std::string_view::npos ? std::string_view() : mascara.substr(punto + 1);
    int lugaresDec = 0;
    for (char c : mDec) lugaresDec += EsLugar(c);

    std::string enteros, decimales;
    DigitosRedondeados(x, lugaresDec, enteros, decimales);
    const bool negativo =
        x < 0 && (!enteros.empty() || decimales.find_first_not_of('0') != std::string::npos);

    // Integer part, laid from the right.
    std::string parteEntera;
    size_t usados = 0;
    size_t ultimoLugar = mEnt.find_first_of("#0");
    for (size_t k = mEnt.size(); k-- > 0;) {
        const char c = mEnt[k];
        if (!EsLugar(c)) {
            parteEntera.insert(parteEntera.begin(), c);
            continue;
        }
        std::string pieza;
        if (usados < enteros.size())
            pieza = enteros[enteros.size() - 1 - usados++];
        else if (c == '0')
            pieza = "0";
        if (k == ultimoLugar && usados < enteros.size()) {
            pieza.insert(0, enteros.substr(0, enteros.size() - usados));
            usados = enteros.size();
        }
        parteEntera.insert(0, pieza);
    }
    if (ultimoLugar == std::string_view::npos) parteEntera.insert(0, enteros);

    // Decimal part, laid from the left; '#' places stop at the last digit
    // that is not a trailing zero.
    std::string parteDecimal;
    const auto ultimaCifra = decimales.find_last_not_of('0');
    const size_t significativas = ultimaCifra == std::string::npos ? 0 : ultimaCifra + 1;
    size_t i = 0;
    for (char c : mDec) {
        if (!EsLugar(c)) {
            parteDecimal += c;
            continue;
        }
        if (c == '0' || i < significativas) parteDecimal += decimales[i];
        ++i;
    }

    std::string salida = negativo ? "-" : "";
    salida += parteEntera;
    if (punto != std::string_view::npos) salida += separador + parteDecimal;
    return salida;
}

std::string TextoGeneral(double x, char separador) {
    if (!std::isfinite(x)) return kNoDefinido;
    if (x == 0) return "0";
    char buf[64];
    auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific, 14);
    std::string s(buf, r.ptr);
    const bool negativo = s[0] == '-';
    if (negativo) s.erase(0, 1);
    const auto e = s.find('e');
    const int exponente = std::atoi(s.c_str() + e + 1);
    std::string cifras = s.substr(0, 1) + s.substr(2, e - 2);
    cifras.erase(cifras.find_last_not_of('0') + 1);

    std::string salida = negativo ? "-" : "";
    if (exponente < -5 || exponente >= 15) {
        salida += cifras[0];
        if (cifras.size() > 1) salida += separador + cifras.substr(1);
        char exp[16];
        std::snprintf(exp, sizeof exp, "E%c%02d", exponente < 0 ? '-' : '+', std::abs(exponente));
        return salida + exp;
    }
    if (exponente < 0) {
        salida += "0";
        salida += separador;
        salida += std::string(static_cast<size_t>(-exponente - 1), '0') + cifras;
        return salida;
    }
    const size_t enteros = static_cast<size_t>(exponente) + 1;
    if (cifras.size() <= enteros) return salida + cifras + std::string(enteros - cifras.size(), '0');
    return salida + cifras.substr(0, enteros) + separador + cifras.substr(enteros);
}

std::string TextoGeneral(const Variante& v, char separador) {
    if (const std::string* t = v.Texto()) return *t;
    if (v.EsVacio()) return "";
    return TextoGeneral(v.Numero(), separador);
}

// The numeric test accepts, around optional blanks and an optional sign: a
// plain decimal with one separator, "." or "," ("1.39", "1,39", ",5", "2."),
// thousands grouped by points with comma decimals ("1.234,5"), each with an
// optional exponent ("1e5"). A text with a point is read by the point rule, the
// longest number at its head with the point as decimal separator ("1.234,5" is
// 1.234); a text without one reads its comma as the decimal separator. Values
// beyond the range of a double are not numbers.
std::optional<double> LeerNumero(std::string_view texto) {
    const auto inicio = texto.find_first_not_of(" \t");
    if (inicio == std::string_view::npos) return std::nullopt;
    std::string_view s = texto.substr(inicio, texto.find_last_not_of(" \t") - inicio + 1);
    bool negativo = false;
    if (s[0] == '+' || s[0] == '-') {
        negativo = s[0] == '-';
        s.remove_prefix(1);
    }
    if (!EsDecimalSimple(s) && !EsAgrupadoConPuntos(s)) return std::nullopt;
    std::optional<double> v;
    if (s.find('.') != std::string_view::npos) {
        v = LeerConPunto(s);
    } else {
        std::string conPunto(s);
        for (char& c : conPunto)
            if (c == ',') c = '.';
        v = Convertir(conPunto);
    }
    if (!v) return std::nullopt;
    return negativo ? -*v : *v;
}

void ValidarNumero(Estado& e, Mensajes& msj, std::string_view texto, double& destino, std::string_view nombre,
                   const CampoEntrada& entrada) {
    if (auto v = LeerNumero(texto)) {
        destino = *v;
        return;
    }
    msj.MsgBox(std::string(nombre) + std::string(kNoEsNumero), entrada);
    msj.Foco(entrada);
    e.ErrorCalculo = true;
}

void ValidarNumero(Estado& e, Mensajes& msj, std::string_view texto, float& destino, std::string_view nombre,
                   const CampoEntrada& entrada) {
    double v = destino;
    ValidarNumero(e, msj, texto, v, nombre, entrada);
    destino = static_cast<float>(v);
}

}  // namespace vanta
