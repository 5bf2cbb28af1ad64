// Calculations laid side by side. Nothing of a curve is stored anywhere: a
// calculation to compare is run again from its inputs, with surfaces that
// keep its curves, and checked against the figures it is meant to give.
//
// The inputs of a record saved with them are read back as they were saved.
// A record saved without them keeps only rounded figures and its report; its
// inputs are rebuilt from those (the ambient, the fuel of the list, Fr, the
// cycle, the displacement and the compression ratio), and what they do not
// say (the models of compression and expansion, the share of heat or the
// maximum pressure of a Mixto cycle) is tried until every figure of the
// record comes out the same. A record that no calculation reproduces is shown
// with the reason.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/comparison/Trazos.h"
#include "core/database/Registro.h"
#include "core/sequence/Calculo.h"
#include "core/state/Estado.h"

namespace vanta {

// The name of the calculation on screen beside saved ones.
inline constexpr const char* kCalculoActual = "Cálculo actual";

struct CalculoComparado {
    std::string nombre;
    OpcionesCalculo entradas;
    std::string tipoCombustible;           // the text of the fuel list
    std::shared_ptr<const Estado> estado;  // null: there is no calculation
    CurvasCiclo curvas;
    std::string mensaje;  // why there is none

    bool Hay() const { return estado != nullptr; }
};

// Runs the inputs through the four stages, with the pens of the main window,
// on surfaces that keep the curves. When a stage fails, its messages become
// the message and there is no calculation.
CalculoComparado CalcularComparado(std::string nombre, const OpcionesCalculo& o);

// The inputs that give a state's calculation again, most likely first: the
// values as the boxes read them, written so that they read back the same. A
// fuel of the user's own is tried as a formula and as a mass composition.
std::vector<OpcionesCalculo> EntradasDeEstado(const Estado& e, std::string_view tipoCombustible);

// The main window's calculation run again; its message when no inputs give
// the same figures (the state no longer holds one calculation).
CalculoComparado CalculoDeEstado(std::string nombre, const Estado& e, std::string_view tipoCombustible);

// A calculation that ended well, run again from its inputs; from its state
// when they no longer give the same figures.
CalculoComparado CalculoDeResultado(std::string nombre, const ResultadoCalculo& r);

// A saved record run again: from the inputs saved with it (entradas, as
// EscribirEntradas wrote them; null when there are none) or from its figures
// and report; in either case only when every figure of the record comes out
// the same.
CalculoComparado CalculoDeRegistro(const bd::TextosRegistro& t, const std::string* entradas);

// The inputs as lines "name=value", and back (nothing when a line is not an
// input of the calculation).
std::string EscribirEntradas(const OpcionesCalculo& o);
std::optional<OpcionesCalculo> LeerEntradas(std::string_view texto);

// Whether the figures of a calculation are those of a record: every column of
// figures (the fuel, the combustion, the ambient, the states, work, heat,
// efficiency and exponents) as a save would write them, whatever the decimal
// separator of either.
bool MismasCifras(const Estado& e, const bd::TextosRegistro& t);

// Why a record gives no calculation.
inline constexpr std::string_view kMsgCombustiblePropio =
    "se calculó con un combustible propio y el registro no guarda sus datos de entrada (se guardó "
    "con una versión anterior del programa): no se puede volver a calcular";
inline constexpr std::string_view kMsgNoSeReproduce =
    "sus cifras no salen de ningún cálculo con los datos que guarda el registro: no se puede volver "
    "a calcular";
inline constexpr std::string_view kMsgSinCalculoActual =
    "el estado del programa ya no corresponde a un solo cálculo: pulse \"CALCULAR\" otra vez";
inline constexpr std::string_view kMsgCalculoFallido = "el cálculo no termina";

}  // namespace vanta
