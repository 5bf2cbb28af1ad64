// The fuels of the list: the choices of the fuel input, with the formula and
// the enthalpy of formation that each stands for.
#pragma once

#include <array>
#include <string_view>

namespace vanta {

// A named fuel of the list: its formula and enthalpy of formation (J/mol).
struct CombustibleDeLista {
    std::string_view nombre;
    double C, H, N, O, S;
    double EntalpiaFormacion;
};

// The library, in the order of the list.
inline constexpr std::array<CombustibleDeLista, 7> kBibliotecaCombustibles{{
    {"Etanol", 2, 6, 0, 1, 0, -277000},
    {"Gasolina", 8, 15, 0, 0, 0, -305630},
    {"Gasoil", 11, 19, 0.073, 0.063, 0.032, -174080},
    {"GLP-Etano", 2, 6, 0, 0, 0, -93638},
    {"GLP-Butano", 4, 10, 0, 0, 0, -36921},
    {"GLP-Propano", 3, 8, 0, 0, 0, -53404},
    {"Metanol", 1, 4, 0, 1, 0, -238600},
}};
// The last entry of the list: the user's own fuel.
inline constexpr std::string_view kOtrosCombustibles = "Otros combustibles";
// What the list shows before a choice.
inline constexpr std::string_view kElijaCombustible = "Elija combustible";

// The named fuel of that list text, or nullptr (for "Otros combustibles" too).
inline const CombustibleDeLista* BuscarCombustible(std::string_view nombre) {
    for (const auto& combustible : kBibliotecaCombustibles)
        if (combustible.nombre == nombre) return &combustible;
    return nullptr;
}

}  // namespace vanta
