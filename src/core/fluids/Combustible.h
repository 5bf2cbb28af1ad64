// The fuel: a pseudo-molecule C, H, N, O, S with real atom counts, its mass
// composition, its molar mass and its heating values. It comes from the
// library of seven named fuels or from the user, as a formula or as a mass
// composition, on the screen "Combustible".
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "core/inputs/BibliotecaCombustibles.h"
#include "core/inputs/Entradas.h"
#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Atomic masses of the fuel's elements, kg/mol.
inline constexpr double kMasaAtomicaC = 0.012011;
inline constexpr double kMasaAtomicaH = 0.001008;
inline constexpr double kMasaAtomicaN = 0.014009;
inline constexpr double kMasaAtomicaO = 0.016;
inline constexpr double kMasaAtomicaS = 0.03206;

// Enthalpies of formation of the products, J/mol (water liquid), and the heat
// of vaporisation of water, J/mol.
inline constexpr double kEntalpiaFormacionCO2 = -391904.0;
inline constexpr double kEntalpiaFormacionCO = -110074.0;
inline constexpr double kEntalpiaFormacionH2O = -286021.0;
inline constexpr double kCalorVaporizacionH2O = 44037.0;

// Whether every value is a finite number: results are written only then.
inline bool SonFinitos(std::initializer_list<double> valores) {
    for (double v : valores)
        if (!std::isfinite(v)) return false;
    return true;
}

// What the fuel screen shows beside the texts of its inputs: which parts of
// it may be used, the caption of the frame of one's own fuel, and the way of
// input selected, which locks the boxes of the other way.
struct VistaCombustible {
    bool entradaPropia = false;  // CALCULAR and the two options enabled
    std::string tituloOtros{kOtrosCombustibles};
    bool marcoOtros = false;  // the frame of one's own fuel enabled
    // None selected at the start; the formula or the composition in mass
    // (never Lista).
    std::optional<FormaCombustible> opcion;
};

// Background of a locked box of the fuel screen (0xBBGGRR).
inline constexpr int32_t kColorCajaBloqueada = 0xC0FFC0;

// The figures the screen shows and never reads: hydrogen's share (always the
// rest), the heating values and the heat of vaporisation of the water.
struct SalidasCombustible {
    std::string cienH, hcs, hci, calorVap;
};

// ---- Events of the fuel screen --------------------------------------------------
// Each takes the texts of the inputs as the screen holds them and writes back
// those the screen rewrites (boxes left empty become "0", the formula of a
// fuel of the list, the composition worked out from the formula and the
// other way round, the molar mass).

// An entry of the list chosen (lista, its text; not "Elija combustible"): a
// named fuel is loaded and calculated at once; "Otros combustibles" opens the
// user's input in mass mode. True when a named fuel was calculated and its
// chart drawn: the screen then hides.
bool ElegirEntradaLista(Estado& e, Mensajes& msj, std::string_view lista, Entradas& x, VistaCombustible& v,
                        SalidasCombustible& s, Superficie& pct2);
// The button CALCULAR (lista, the text of the list): the user's fuel, by
// formula or by mass as the option selected says, with its checks. True when
// it ends drawing the chart: the screen then hides.
bool CalcularCombustiblePropio(Estado& e, Mensajes& msj, std::string_view lista, Entradas& x,
                               VistaCombustible& v, SalidasCombustible& s, Superficie& pct2);
// An option clicked: the way of input it names is selected.
void ElegirFormaPropia(VistaCombustible& v, FormaCombustible forma);

}  // namespace vanta
