// The captions that the text report and the web page share, written once. What
// only one of them prints stays in its own builder, where it reads in line order.
#pragma once

#include <string>
#include <string_view>

#include "core/reports/Informes.h"

namespace vanta::informe {

// Banner.
inline constexpr std::string_view kCiclo = "   CICLO: ";
inline constexpr std::string_view kCombustibleBanner = "COMBUSTIBLE: ";
inline constexpr std::string_view kFrBanner = "Fr = ";
inline constexpr std::string_view kAireBanner = "AIRE: ";
inline constexpr std::string_view kDeHumedad = " % de humedad";

// Air.
inline constexpr std::string_view kPresionAmbiente = "Presión ambiente  = ";
inline constexpr std::string_view kTemperaturaAmbiente = "Temperatura ambiente  = ";
inline constexpr std::string_view kHumedadRelativa = "Humedad relativa  = ";
inline constexpr std::string_view kPresionSaturacion = "Presión de saturación  = ";
inline constexpr std::string_view kMasaMolecularAire = "Masa molecular aire = ";

// Fuel.
inline constexpr std::string_view kCombustible = "Combustible = ";
inline constexpr std::string_view kFormulaQuimica = "Fórmula química: ";
inline constexpr std::string_view kPorcentajeEnMasa = "Porcentaje en masa : ";
inline constexpr std::string_view kPorcientoC = " C =  ";
inline constexpr std::string_view kPorcientoH = "H = ";
inline constexpr std::string_view kPorcientoN = "N = ";
inline constexpr std::string_view kPorcientoO = "O = ";
inline constexpr std::string_view kPorcientoS = "S = ";
inline constexpr std::string_view kPorciento = " % ";
inline constexpr std::string_view kPoderSuperior = "Poder calorífico superior";
inline constexpr std::string_view kPoderInferior = "Poder calorífico inferior";
inline constexpr std::string_view kIgual = " = ";
inline constexpr std::string_view kCalorVaporizacion = "Calor de vaporización = ";
inline constexpr std::string_view kJPorKg = " J/kg";
inline constexpr std::string_view kMasaMolecularCombustible = "Masa molecular combustible = ";
inline constexpr std::string_view kKgPorMol = " kg/mol";

// Combustion.
inline constexpr std::string_view kDosadoRelativo = "Dosado relativo (Fr) = ";
inline constexpr std::string_view kLambda = "Lambda  = ";
inline constexpr std::string_view kDosadoEstequiometrico = "Dosado estequiométrico (Fe) = ";
inline constexpr std::string_view kConFe = "(con Fe = ";
inline constexpr std::string_view kJPorKgCombustible = " J/kg de combustible";
inline constexpr std::string_view kMasaMolecularHumos = "Masa molecular de humos  = ";

// Cycle.
inline constexpr std::string_view kCilindrada = "Cilindrada  = ";
inline constexpr std::string_view kCC = " c.c.";
inline constexpr std::string_view kRelacionCompresion = "Relación de compresión  = ";
inline constexpr std::string_view kMasaAire = "Masa aire húmedo ( o seco ) = ";
inline constexpr std::string_view kMasaCombustible = "Masa combustible = ";
inline constexpr std::string_view kMasaHumos = "Masa de humos  = ";
inline constexpr std::string_view kKg = " kg";

// Processes.
inline constexpr std::string_view kProceso12 = "PROCESO 1-2 (COMPRESIÓN)";
inline constexpr std::string_view kProceso23 = "PROCESO 2-3 (COMBUSTIÓN V = Cte.)";
inline constexpr std::string_view kProceso34 = "PROCESO 3-4 (COMBUSTIÓN p = Cte.)";
inline constexpr std::string_view kProceso45 = "PROCESO 4-5 (EXPANSIÓN)";
inline constexpr std::string_view kGamma1 = " gamma 1 = ";
inline constexpr std::string_view kGamma2 = " gamma 2 = ";
inline constexpr std::string_view kGamma4 = " gamma 4 = ";
inline constexpr std::string_view kGamma5 = " gamma 5 = ";
inline constexpr std::string_view kTrabajo12 = " Trabajo 1-2 = ";
inline constexpr std::string_view kTrabajoMolar12 = "Trabajo molar 1-2 = ";
inline constexpr std::string_view kTrabajo34 = " Trabajo 3-4 = ";
inline constexpr std::string_view kTrabajoMolar34 = "Trabajo molar 3-4 = ";
inline constexpr std::string_view kTrabajo45 = " Trabajo 4-5 = ";
inline constexpr std::string_view kTrabajoMolar45 = "Trabajo molar 4-5 = ";
inline constexpr std::string_view kQ23 = " Q 2-3 = ";
inline constexpr std::string_view kQMolar23 = "Q 2-3 molar = ";
inline constexpr std::string_view kQ34 = " Q 3-4 = ";
inline constexpr std::string_view kQMolar34 = "Q molar 3-4 = ";
inline constexpr std::string_view kSalto21 = " h2-h1 = ";
inline constexpr std::string_view kSalto32 = " h3-h2 = ";
inline constexpr std::string_view kSalto43 = " h4-h3 = ";
inline constexpr std::string_view kSalto54 = " h5-h4 = ";
inline constexpr std::string_view kJ = " J";
inline constexpr std::string_view kJPorMolAire = " J/(mol aire)";
inline constexpr std::string_view kJPorMol = "  J/mol";

// Totals.
inline constexpr std::string_view kCalorAportado = "CALOR APORTADO AL CICLO = ";
inline constexpr std::string_view kTrabajoCiclo = "TRABAJO DEL CICLO = ";
inline constexpr std::string_view kRendimiento = "RENDIMIENTO = ";

// The pair of lines of state k (1 to 5) up to their ends, "ºC)" and
// "J/(mol·K)": the page puts antes between the figures where the text has
// nothing (" &nbsp; ").
std::string LineaPresionVolumen(const CifrasInforme& c, int k, std::string_view antes);
std::string LineaEntalpiaEntropia(const CifrasInforme& c, int k, std::string_view antes);

}  // namespace vanta::informe
