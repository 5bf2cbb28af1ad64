// A value that holds a number at one moment and a text such as " N.D." at
// another, as the exponents and the mean gamma do. Reports print it as it
// stands: a number by the general conversion, a text unchanged.
#pragma once

#include <string>
#include <variant>

namespace vanta {

class Variante {
public:
    Variante() = default;
    Variante(double v) : valor_(v) {}
    Variante(const char* t) : valor_(std::string(t)) {}
    Variante(std::string t) : valor_(std::move(t)) {}

    Variante& operator=(double v) {
        valor_ = v;
        return *this;
    }
    Variante& operator=(const char* t) {
        valor_ = std::string(t);
        return *this;
    }
    Variante& operator=(std::string t) {
        valor_ = std::move(t);
        return *this;
    }

    bool EsNumero() const { return std::holds_alternative<double>(valor_); }
    bool EsTexto() const { return std::holds_alternative<std::string>(valor_); }
    bool EsVacio() const { return std::holds_alternative<std::monostate>(valor_); }

    // The number it holds; an empty variant counts as 0, and so does a text,
    // which no calculation path of the cycle reads as a number.
    double Numero() const {
        if (const double* v = std::get_if<double>(&valor_)) return *v;
        return 0.0;
    }
    const std::string* Texto() const { return std::get_if<std::string>(&valor_); }

    bool operator==(const Variante&) const = default;

private:
    std::variant<std::monostate, double, std::string> valor_;
};

}  // namespace vanta
