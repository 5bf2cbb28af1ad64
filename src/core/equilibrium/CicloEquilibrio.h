// The cycle with the combustion in chemical equilibrium, beside the one the
// program calculates, from the same inputs and from its state 2: the fuel's
// energy enters as the enthalpy of the fuel on the absolute scale of
// Gases.h, set so that its complete combustion at 298.15 K gives the
// program's lower heating value HCI. Otto burns it all at V2 (the internal
// energy kept), Diesel all at p2 (the enthalpy kept), Mixto a share at V2
// (PropVcte % of the fuel, or as much as keeps the pressure to Pmax) and the
// rest at the pressure reached. The expansion follows the isentrope to V1
// with the composition in equilibrium at every volume. Beside it, the same
// cycle with the products of complete combustion and the same energy
// equations, so that what dissociation takes is told apart from what the
// program's way of sharing the heat gives.
//
// As in the program, the charge compressed is air alone; the fuel joins it at
// the combustion, bringing its enthalpy.
#pragma once

#include <string>

#include "core/equilibrium/Equilibrio.h"
#include "core/state/Estado.h"

namespace vanta::equilibrio {

struct CicloEquilibrio {
    bool bien = false;
    std::string mensaje;
    // The program's numbering: 3 the end of the heat at constant volume (2
    // itself in Diesel), 4 the end of the heat at constant pressure (3 itself
    // in Otto), 5 the end of the expansion, at V1.
    Mezcla estado2, estado3, estado4, estado5;
    // What the combustion has to work with: the atoms of the air at 2, those
    // of all the fuel, and the fuel's enthalpy (J, all of it); and the share
    // of the fuel burnt at V2.
    Elementos atomosAire{}, atomosCombustible{};
    double entalpiaCombustible = 0;
    double fraccionVolumenConstante = 0;
    double W12 = 0, W34 = 0, W45 = 0;  // J, done by the gas
    double trabajo = 0;                // J
    double calor = 0;                  // J: MasaCombustible · HCI
    double rendimiento = 0;
};

struct CiclosConDisociacion {
    CicloEquilibrio equilibrio;      // products in chemical equilibrium
    CicloEquilibrio sinDisociacion;  // products of complete combustion
};

// From the state of a calculation that ended well (its state 2, moles, fuel,
// air and cycle).
CiclosConDisociacion CicloConDisociacion(const Estado& e);

// Mole fractions of a mixture's gases, in parts per million for NO.
inline constexpr double kPartesPorMillon = 1e6;
// The gases a listing of fractions shows: those above this share.
inline constexpr double kFraccionVisible = 1e-6;

// The two cycles as members of a JSON object: "Equilibrio":{…},"SinDisociacion":{…}
// with T3, p3, V3, T4, p4, V4, T5, p5 (K, Pa, m³), Trabajo (J), Rendimiento,
// FraccionesMolares3 and NOppm3, FraccionesMolares4 and NOppm4; a cycle that
// failed holds its Error.
std::string CicloConDisociacionJSON(const CiclosConDisociacion& c);
// The fractions above kFraccionVisible as a JSON object, gas → fraction.
std::string FraccionesJSON(const Mezcla& m);

}  // namespace vanta::equilibrio
