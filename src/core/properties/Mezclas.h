// The three working fluids at the record's Temperatura and Presion: the air
// (comburent), the combustion gases, and their blend while combustion is under
// way. All molar: cp in J/(mol·K), h in J/mol, entropy in J/(mol·K).
#pragma once

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

// Reference pressure of the entropies, Pa.
inline constexpr double kPresionReferencia = 100000.0;

// CvActual = Cp − R; GammaActual = Cp / CvActual.
void CalcularCvGamma(Estado& e, double Cp);

void PropiedadesAire(Estado& e, Mensajes& msj);
void PropiedadesHumos(Estado& e, Mensajes& msj);
// The blend with FraccionHumos = Q23 / Qciclo.
void PropiedadesAireHumos(Estado& e, Mensajes& msj);
// The blend with the fraction given; FraccionHumos is left as it is.
void PropiedadesAireHumosFraccion(Estado& e, Mensajes& msj, double x);
// The blend with FraccionHumos = (Valor3 − Valor2) / (Valor1 − Valor2).
void PropiedadesAireHumosLineal(Estado& e, Mensajes& msj, double Valor1, double Valor2, double Valor3);

}  // namespace vanta
