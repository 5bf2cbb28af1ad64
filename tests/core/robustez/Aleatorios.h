// Texts for the boxes of the program, drawn at random from a seed: plausible
// numbers written in every way a user may write them (points, commas,
// exponents, blanks, signs), the boundaries of each quantity, and garbage.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vanta::prueba {

// The seed of the randomized runs unless VANTA_SEMILLA gives another.
inline constexpr uint64_t kSemillaFija = 20240611;

// One seed per case, so that any case can be replayed alone from its number.
uint64_t SemillaDelCaso(uint64_t semilla, uint64_t caso);

// How a box's quantity is drawn.
struct Magnitud {
    double minimo, maximo;              // the usual values
    double minimoAmplio, maximoAmplio;  // still meaningful, drawn now and then
    bool logaritmica;                   // drawn evenly in the logarithm
    std::vector<std::string> bordes;    // boundaries of this quantity
    double probabilidadCero = 0;        // how often a plain "0" (atoms, humidity)
};

class Azar {
public:
    explicit Azar(uint64_t semilla) : motor_(semilla) {}

    double Uniforme(double a, double b);
    double LogUniforme(double a, double b);  // a, b > 0
    bool Moneda(double p);
    size_t Indice(size_t n);
    template <class T>
    const T& Uno(const std::vector<T>& v) {
        return v[Indice(v.size())];
    }

    // A value written as a user might write it: plain, fixed decimals with a
    // point or a comma, an exponent, with blanks or a sign around it. Always
    // a text that reads back as (about) the value; garbage for a value that
    // is not finite.
    std::string Escribir(double v);
    // A text that is not a number, or is one at the edge of the doubles.
    std::string Basura();
    // A number text with a point or a comma put in, a character dropped or
    // doubled: some of these are numbers still, most are not.
    std::string Mutar(std::string texto);

    // The text of a box: mostly the usual values; with probability
    // perturbacion a boundary, garbage or a mutation; and a boundary now and
    // then whatever the perturbation.
    std::string Texto(const Magnitud& m, double perturbacion);
    // A plausible value alone.
    double Valor(const Magnitud& m);

private:
    std::mt19937_64 motor_;
};

}  // namespace vanta::prueba
