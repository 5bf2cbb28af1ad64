// Working fluids for the property tests: dry air and the gases of a lean
// hydrocarbon flame.
#pragma once

#include "core/state/Estado.h"

namespace vanta::prueba {

inline void AireSeco(Estado& e) {
    e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033, e.xH2OAire = 0;
}

inline void HumosPobres(Estado& e) {
    e.xArHumos = 0.0087, e.xCOHumos = 0, e.xCO2Humos = 0.1, e.xH2OHumos = 0.11, e.xN2Humos = 0.7313,
    e.xO2Humos = 0.05, e.xSHumos = 0, e.xSO2Humos = 0;
}

}  // namespace vanta::prueba
