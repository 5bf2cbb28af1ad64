// The validation of the program against published tables and against itself:
// the six species against NIST-JANAF, the fuels of the library against
// published heating values, the energy balance of each process of a set of
// calculated cycles, and their efficiency against the ideal cycle; and the
// chemical equilibrium of the combustion with dissociation
// (ValidacionEquilibrio.h). Each check
// has the program's value, the reference, the difference and its result
// against a stated tolerance.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/inputs/Entradas.h"
#include "core/properties/Especies.h"
#include "core/state/Estado.h"

namespace vanta {

// Within the tolerance of the reference; beyond it for a stated reason of the
// model, but within the wider bound that reason allows; beyond everything.
enum class Resultado { Cumple, Explicada, NoCumple };

enum class GrupoValidacion { Especies, Combustibles, Balance, Rendimiento, Equilibrio };

struct Comprobacion {
    GrupoValidacion grupo;
    std::string nombre;
    // As shown, with the units in the name or beside the figure.
    std::string programa, referencia, diferencia, tolerancia;
    Resultado resultado;
    std::string nota;  // why a difference is the model's, when it is
};

struct TablaValidacion {
    std::vector<Comprobacion> filas;
    // No check beyond its tolerances.
    bool Correcta() const;
    int Cuenta(Resultado r) const;
};

// A group's title and what its checks mean.
struct DescripcionGrupo {
    GrupoValidacion grupo;
    std::string titulo;
    std::string explicacion;
};
std::array<DescripcionGrupo, 5> GruposValidacion(char separador);

// Tolerances.
inline constexpr double kToleranciaCp = 0.01;
inline constexpr double kToleranciaS = 0.005;
inline constexpr double kToleranciaH = 0.01;
inline constexpr double kToleranciaHAbsoluta = 500.0;  // J/mol
inline constexpr double kToleranciaPoderCalorifico = 0.01;
inline constexpr double kCotaPoderCalorificoModelo = 0.10;
inline constexpr double kToleranciaBalance = 0.001;  // of the heat supplied
inline constexpr double kCotaBalanceCombustion = 0.25;

// The species' cp, h and s0 at T, as an evaluation of the calculation gets
// them.
using EvaluadorEspecies = std::function<ValoresEspecies(double T)>;
ValoresEspecies EspeciesDelPrograma(double T);

std::vector<Comprobacion> ComprobarEspecies(const EvaluadorEspecies& especies, char separador);
std::vector<Comprobacion> ComprobarCombustibles(char separador);

// The energy balance of one process of a calculated cycle, closed system: the
// gas of every state is the ideal gas of n = p·V/(R·T) moles (the moles the
// states carry), and its internal energy U = n·(h − R·T) = n·h − p·V, with the
// program's sensible molar enthalpy h of the state's fluid.
struct BalanceProceso {
    const char* nombre;                     // "1-2" …
    double calor, trabajo, energiaInterna;  // Q, W done by the gas, ΔU; J
    bool combustion;
};
// The processes the cycle has: 2-3 only with heat at constant volume, 3-4
// only with heat at constant pressure.
std::vector<BalanceProceso> BalancesProcesos(const Estado& e);

// A calculated cycle: the balance of its processes and its efficiency against
// the ideal Otto cycle of the same compression ratio.
std::vector<Comprobacion> ComprobarCiclo(const std::string& nombre, const OpcionesCalculo& opciones,
                                         char separador);
// The same for the cycles of the validation.
std::vector<Comprobacion> ComprobarCiclos(char separador);

TablaValidacion Validar(char separador);

std::string TextoResultado(Resultado r);
// The whole table as text: each group with its title, explanation and rows,
// the notes, and a summary.
std::string TextoValidacion(const TablaValidacion& t, char separador);

}  // namespace vanta
