// The distance to the ideal cycle: the efficiency of the ideal cycle of the
// same kind and inputs as a calculation (compression ratio, state 1, the heat
// supplied and its split), its gas a perfect gas of constant exponents, beside
// the program's own efficiency.
#pragma once

#include <string>

#include "core/state/Estado.h"

namespace vanta {

// The exponent of the air-standard cycle.
inline constexpr double kGammaAireEstandar = 1.4;

// The efficiency of the ideal cycle: compression with one exponent, the heat
// and the expansion with the other (the gases'). Not valid when the cycle has
// no such ideal (no heat, a stroke the heat at constant pressure overruns, a
// maximum pressure below the end of compression).
struct CicloIdeal {
    bool valido = false;
    double gammaCompresion = 0, gammaExpansion = 0;
    double rendimiento = 0;
};

// The three efficiencies the window draws as bars and the JSON gives.
struct DistanciaIdeal {
    CicloIdeal aireEstandar;  // gamma 1.4 throughout
    CicloIdeal exponentes;    // the calculation's own mean exponents
    double rendimiento = 0;   // the program's: Rendimiento
};

// 1 − Rc^(1 − gamma): the ideal Otto cycle, the most efficient of the three
// kinds at a given compression ratio.
double RendimientoOttoIdeal(double Rc, double gamma);

// The ideal cycle of the calculation's kind and inputs with the exponents
// given.
CicloIdeal CalcularCicloIdeal(const Estado& e, double gammaCompresion, double gammaExpansion);

// The mean exponents of the calculation's strokes, from its states:
// ln(p2/p1)/ln(V1/V2) and ln(p4/p5)/ln(V5/V4). They are the mean exponents
// found by the search, the polytropic exponents given, or what the variable
// exponent amounts to.
double ExponenteMedioCompresion(const Estado& e);
double ExponenteMedioExpansion(const Estado& e);

// For a calculation that ended well.
DistanciaIdeal DistanciaAlIdeal(const Estado& e);

// The ideal cycle that the window's strip and the validation both compare
// with: "Diesel ideal" for a Diesel.
std::string NombreCicloIdeal(const Estado& e);
// Which ideal cycle that is and why it is the one, in a sentence.
std::string ExplicacionCicloIdeal(const Estado& e, char separador);

}  // namespace vanta
