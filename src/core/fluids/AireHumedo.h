// The comburent: humid air from ambient pressure, temperature and relative
// humidity. Gives the saturation pressure of water, the mole fractions of the
// five species and the molar mass.
#pragma once

#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// Dry air, in mole fraction.
// Default texts of the air window's boxes.
inline constexpr const char* kTextoTemperaturaAmbiente = "300";
inline constexpr const char* kTextoPresionAmbiente = "100000";
inline constexpr const char* kTextoHumedad = "0";

inline constexpr double kAireSecoN2 = 0.78087;
inline constexpr double kAireSecoO2 = 0.20946;
inline constexpr double kAireSecoAr = 0.00934;
inline constexpr double kAireSecoCO2 = 0.00033;

// Saturation pressure of water at T (K), Pa: the comburent's formula.
double PresionSaturacion(double T);

// What the screen "Aire húmedo" gives the calculation.
struct ControlesAire {
    CajaTexto& txtPreAmb;
    CajaTexto& txtTemAmb;
    CajaTexto& txtHum;
    Interruptor& chkOcultar;
    Ventana& ventana;
    Superficie& pct1;
};

// The button CALCULAR of the air screen.
// Returns false when a temperature out of range stopped it (the air stays as
// it was) or an arithmetic failure set ErrorCalculo.
bool CalcularAire(Estado& e, Dialogos& dlg, ControlesAire& c);

}  // namespace vanta
