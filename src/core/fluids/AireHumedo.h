// The comburent: humid air from ambient pressure, temperature and relative
// humidity. Gives the saturation pressure of water, the mole fractions of the
// five species and the molar mass.
#pragma once

#include "core/inputs/Entradas.h"
#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Dry air, in mole fraction.
inline constexpr double kAireSecoN2 = 0.78087;
inline constexpr double kAireSecoO2 = 0.20946;
inline constexpr double kAireSecoAr = 0.00934;
inline constexpr double kAireSecoCO2 = 0.00033;

// Saturation pressure of water at T (K), Pa: the comburent's formula.
double PresionSaturacion(double T);

// The button CALCULAR of the air screen, on the texts typed for the ambient.
// Returns false when a text was refused or a value is out of its range (the
// air stays as it was), or when an arithmetic failure set ErrorCalculo.
bool CalcularAire(Estado& e, Mensajes& msj, const Entradas& x, Superficie& pct1);

}  // namespace vanta
