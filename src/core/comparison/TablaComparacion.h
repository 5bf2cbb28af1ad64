// The table beside the diagrams of a comparison: the main figures of each
// calculation side by side, with their differences to the first. The inputs
// that differ come first, then the results, then the inputs they share.
#pragma once

#include <string>
#include <vector>

#include "core/comparison/Calculos.h"
#include "core/comparison/Figura.h"

namespace vanta {

struct FilaComparacion {
    std::string magnitud;                  // with its unit: "T3 (K)"
    std::vector<std::string> valores;      // one per calculation, "" where it has none
    std::vector<std::string> diferencias;  // to the first calculation; "" for inputs and the first
    bool entrada = false;
    bool distinta = false;  // an input whose value is not the same for all
};

// The first calculation that has one is the reference of the differences.
// A row "Aviso" leads when a calculation has none, with its message.
std::vector<FilaComparacion> TablaComparacion(const std::vector<CalculoComparado>& calculos,
                                              UnidadPresion presion, char separador);

inline constexpr std::string_view kFilaAviso = "Aviso";

}  // namespace vanta
