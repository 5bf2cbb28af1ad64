// Validity warnings: where a calculation that ended well leaves the ground on
// which the model stands. They change no figure: they are read from the state
// after the calculation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/state/Estado.h"

namespace vanta {

enum class TipoAviso {
    Disociacion,     // a temperature past which dissociation matters
    FueraDeAjuste,   // a temperature past the fitted range of the polynomials
    PuntoRocio,      // a state of the exhaust below the dew point of its water
    Inflamabilidad,  // Fr outside the usual flammability range of the fuel
    PasadasGamma,    // a mean-exponent search that needed many passes
    Ambiente,        // an ambient temperature no air on Earth has
};

struct Aviso {
    TipoAviso tipo;
    std::string texto;
};

// Above it the real gases dissociate noticeably; the model ignores it.
inline constexpr double kTemperaturaDisociacion = 2500.0;
// The polynomials of the species are fitted up to it.
inline constexpr double kTemperaturaAjuste = 5000.0;
// The mean-exponent search usually ends within a dozen passes.
inline constexpr int kPasadasGammaMuchas = 20;
// The ambient temperatures of the Earth's air, with a margin (records: 184 K
// and 330 K). Outside them the program calculates all the same.
inline constexpr double kAmbienteMinimo = 180.0, kAmbienteMaximo = 340.0;

// The warnings of a calculation that ended well; combustible is the text of
// the fuel list (the flammability range is known for the library's fuels).
std::vector<Aviso> AvisosValidez(const Estado& e, std::string_view combustible);

// Dew point of water at the partial pressure given (Pa), by the comburent's
// saturation formula, K.
double PuntoRocio(double presionParcial);

}  // namespace vanta
