// The composition charts of the main window: the air on pct1, the fuel on
// pct2, the gases on pct3. Bars with their value above and their label below,
// and the key figures beside them.
#pragma once

#include <string>
#include <string_view>

#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

void DibujarBarra(const Estado& e, Superficie& sup, double X, double Y, double Ancho, double Alto,
                  double Valor, int Decimales, std::string_view Sufijo, std::string_view Etiqueta,
                  int32_t Color);

void GraficaAire(Estado& e, Superficie& pct1);
// tipoCombustible: the text of the fuel list.
void GraficaCombustible(Estado& e, Superficie& pct2, std::string_view tipoCombustible);
void GraficaHumos(Estado& e, Superficie& pct3);

}  // namespace vanta
