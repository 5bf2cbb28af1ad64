// Chemical equilibrium of an ideal-gas mixture of the gases of Gases.h: the
// composition that minimises the Gibbs energy for the atoms given, found by
// Newton's method on the element potentials, with the temperature as one more
// unknown when the energy or the entropy is what is given. Six problems: the
// temperature with the pressure or the volume, the enthalpy with the
// pressure, the internal energy with the volume, the entropy with the
// pressure or the volume. Also the same problems with the composition held
// fixed, and the products of complete combustion.
//
// Nothing here throws: a problem that cannot be solved comes back with its
// reason in Spanish.
#pragma once

#include <string>

#include "core/equilibrium/Gases.h"

namespace vanta::equilibrio {

// Where the species data hold, K.
inline constexpr double kTemperaturaMinima = 250.0;
inline constexpr double kTemperaturaMaxima = 6000.0;
// Newton steps before the search gives up.
inline constexpr int kIteracionesMaximas = 200;
// What the balances of a solution keep: the atoms of each element, and the
// energy or entropy given, relative.
inline constexpr double kToleranciaEquilibrio = 1e-9;

// A mixture in a state, its extensive properties for the moles it holds.
struct Mezcla {
    double T = 0;   // K
    double p = 0;   // Pa
    double V = 0;   // m³
    Moles n{};      // mol of each gas
    double H = 0;   // J, absolute
    double U = 0;   // J
    double S = 0;   // J/K
    double Cp = 0;  // J/K, with the composition held fixed

    double Total() const;
    double Fraccion(Gas j) const { return n[j] / Total(); }
};

// The properties of the moles n at T with p given (conPresion) or V given.
Mezcla Evaluar(const Moles& n, double T, double presionOVolumen, bool conPresion);

enum class Dato {
    TemperaturaPresion,  // T, p
    EntalpiaPresion,     // H, p
    EntropiaPresion,     // S, p
    TemperaturaVolumen,  // T, V
    EnergiaVolumen,      // U, V
    EntropiaVolumen,     // S, V
};
struct Problema {
    Dato dato;
    double T = 0;                // given, or for the others where to start (0: the solver's own guess)
    double p = 0;                // Pa, with the pressure
    double V = 0;                // m³, with the volume
    double H = 0, U = 0, S = 0;  // J, J, J/K: the one the problem gives
};

struct Resultado {
    bool bien = false;
    std::string mensaje;  // why not, when not
    Mezcla mezcla;
    int iteraciones = 0;
};

// Equilibrium of the atoms b. inicio, when given, is a composition to start
// from (a neighbouring solution).
Resultado Equilibrar(const Elementos& b, const Problema& c, const Moles* inicio = nullptr);

// The same problem with the composition held as it is: only the temperature
// is sought.
Resultado Congelar(const Moles& n, const Problema& c);

// The products of complete combustion of the atoms b: sulphur to SO2, each
// carbon to CO, hydrogen to water, then CO to CO2, and the oxygen left as O2;
// with too little oxygen for water, the hydrogen left as H2. Empty when done;
// the reason when there is not oxygen enough for the carbon to CO.
std::string CombustionCompleta(const Elementos& b, Moles& productos);

}  // namespace vanta::equilibrio
