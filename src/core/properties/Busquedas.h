// Between the property evaluations and the processes: the start and end of a
// transformation in the record, the closed polytropic and isobaric relations,
// the mean-gamma search and the running maxima of the diagrams.
#pragma once

#include <string_view>

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

inline constexpr std::string_view kMensajeFluidoInicio =
    " Debe especificar si al comienzo de la transformación es aire, humo o aire con humos";
inline constexpr std::string_view kMensajeFluidoFin =
    " Debe especificar si al final de la transformación es aire, humo o aire con humos";

// TemperaturaPolitropica = T1·(V1/V2)^(n − 1).
// Both relations are false, and leave their results as they were, when a
// result leaves the doubles (an exponent or a ratio of volumes far too large).
bool CalcularTemperaturaPolitropica(Estado& e, double T1, double V1, double V2, double n);
// PresionPolitropica = p1·(V1/V2)^n, and the work of the change in
// TrabajoTransformacion.
bool CalcularPresionPolitropica(Estado& e, double p1, double V1, double V2, double n);
// What the user is told when they are false.
inline constexpr std::string_view kCausaPolitropicaFueraDeRango =
    "la temperatura o la presión de la transformación salen del intervalo de los números del programa; "
    "revise la "
    "relación de compresión y el exponente";
// TrabajoTransformacion = p·(V2 − V1).
void TrabajoIsobarico(Estado& e, double p, double V1, double V2);
// VolumenProporcional = V1·T2/T1.
void VolumenIsobarico(Estado& e, double V1, double T1, double T2);

// Evaluates the fluid of TipoFluido at the start / at TemperaturaFinal.
void PropiedadesInicio(Estado& e, Mensajes& msj);
void PropiedadesFin(Estado& e, Mensajes& msj, double Calor, double Trabajo);

void PonerEstadoInicial(Estado& e, Mensajes& msj, double p, double V, double T, double h, double s);
void PonerEstadoFinal(Estado& e, Mensajes& msj, double Calor, double Trabajo, double p, double V, double T);
void FinalAInicial(Estado& e);
void LeerEstadoFinal(const Estado& e, double& p, double& V, double& T, double& h, double& s);
void CopiarCincoValores(double& d1, double s1, double& d2, double s2, double& d3, double s3, double& d4,
                        double s4, double& d5, double s5);

// The mean adiabatic exponent between the start of the record and V2, by
// fixed-point iteration on the mean cp, of air or of the gases.
void BuscarGammaMedio(Estado& e, Mensajes& msj, double p1, double V1, double V2, double T1, Fluido fluido);

// Raises the maxima of p, T, h and s (single precision, strictly) with the
// start and the end of the transformation.
void ActualizarMaximos(Estado& e);

}  // namespace vanta
