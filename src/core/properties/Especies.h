// The lowest level of the property model: cp, sensible enthalpy and standard
// entropy of the six species (Ar, CO, CO2, H2O, N2, O2) from seven-coefficient
// polynomials, at the record's Temperatura. Also the program's one hard limit
// of temperature.
#pragma once

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

// Gas constant of the whole program, J/(mol·K).
inline constexpr double kR = 8.3143;

enum Especie { Ar, CO, CO2, H2O, N2, O2 };
inline constexpr int kNumeroEspecies = 6;
inline constexpr const char* kNombresEspecies[kNumeroEspecies] = {"Ar", "CO", "CO2", "H2O", "N2", "O2"};
// Molar masses of the species tables, kg/mol.
inline constexpr double kMasasMolaresEspecies[kNumeroEspecies] = {0.039948, 0.028011, 0.044011,
                                                                  0.018016, 0.028018, 0.032};

// a1..a5 heat capacity, a6 enthalpy constant, a7 entropy constant.
struct Coeficientes {
    double a1, a2, a3, a4, a5, a6, a7;
};
// Up to 1000 K (inclusive), and above.
extern const Coeficientes kCoeficientesBaja[kNumeroEspecies];
extern const Coeficientes kCoeficientesAlta[kNumeroEspecies];

inline constexpr double kLimiteRangos = 1000.0;
inline constexpr double kTemperaturaLimite = 7500.0;

inline bool RangoBajo(double temperatura) {
    return temperatura <= kLimiteRangos;
}
inline const Coeficientes& CoeficientesDe(Especie s, double temperatura) {
    return RangoBajo(temperatura) ? kCoeficientesBaja[s] : kCoeficientesAlta[s];
}

// x², x³ and x⁴, each the very double that std::pow(x, n) gives, at a
// fraction of its cost.
void PotenciasComoPow(double x, double& x2, double& x3, double& x4);

// At the record's Temperatura.
double PolinomioCp(const Estado& e, double a1, double a2, double a3, double a4, double a5);
double PolinomioEntalpia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a6);
double PolinomioEntropia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a7);

// The limit test, then cp, h and s0 of the six species into the variables of
// the range of Temperatura (CpArBaja … S0O2Alta). Does nothing while
// ErrorCalculo is set; the limit is tested first.
void CalcularEspecies(Estado& e, Mensajes& msj);

// The species values of one range, as the mixtures read them: those of the
// variables of that range, by species.
using ValoresEspecies = EspeciesEvaluadas::Rango;
static_assert(sizeof(ValoresEspecies::cp) / sizeof(double) == kNumeroEspecies);
const ValoresEspecies& LeerEspecies(const Estado& e, bool rangoBajo);

}  // namespace vanta
