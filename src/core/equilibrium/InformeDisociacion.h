// The cycle with dissociation beside the program's own, as the command line
// writes it after the report and the window shows it: one row a figure, one
// column a model (the program's, complete combustion, chemical equilibrium),
// and the efficiency of the ideal cycle above them.
#pragma once

#include <string>
#include <vector>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/state/Estado.h"
#include "core/warnings/Avisos.h"

namespace vanta::equilibrio {

inline constexpr const char* kTituloDisociacion = "CICLO CON DISOCIACIÓN (EQUILIBRIO QUÍMICO)";
// The check box that asks for it with each calculation, and the name of its
// cycle on the diagrams.
inline constexpr const char* kCasillaDisociacion = "Calcular también con disociación (equilibrio químico)";
inline constexpr const char* kSerieEquilibrio = "Equilibrio químico";
inline constexpr const char* kTextoRendimientoIdeal =
    "Rendimiento del ciclo ideal de aire estándar (gamma 1.4): ";
inline constexpr const char* kColumnasDisociacion[3] = {"Programa", "Sin disociación", "Equilibrio"};

struct FilaDisociacion {
    std::string titulo;  // with its unit
    std::string programa, sinDisociacion, equilibrio;
};

// The rows for a calculation that ended well; a cycle that failed leaves its
// column empty (its reason is in MensajesDisociacion).
std::vector<FilaDisociacion> FilasDisociacion(const Estado& e, const CiclosConDisociacion& c);

// "Sin disociación: <why>" for each cycle that failed.
std::vector<std::string> MensajesDisociacion(const CiclosConDisociacion& c);

// The efficiency of the air-standard ideal cycle (gamma 1.4) of the same kind
// and inputs, as a row's text; empty where it has none.
std::string RendimientoIdealTexto(const Estado& e);

// The whole section as text, lines ended by fin.
std::string TextoDisociacion(const Estado& e, const CiclosConDisociacion& c, const char* fin);

// The greatest temperature of the cycle in equilibrium, or 0 when it failed.
double TemperaturaMaximaEquilibrio(const CiclosConDisociacion& c);

// Whether the warnings say that dissociation matters.
bool AvisaDisociacion(const std::vector<Aviso>& avisos);
// That warning, told the greatest temperature in equilibrium.
void CompletarAvisoDisociacion(std::vector<Aviso>& avisos, const CiclosConDisociacion& c, char separador);

}  // namespace vanta::equilibrio
