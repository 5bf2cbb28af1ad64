#include "core/equilibrium/Gases.h"

#include <algorithm>
#include <cmath>

#include "core/equilibrium/DatosJANAF.h"
#include "core/properties/Especies.h"

namespace vanta::equilibrio {

static_assert(int{Ar} == int{vanta::Ar} && int{CO} == int{vanta::CO} && int{CO2} == int{vanta::CO2} &&
              int{H2O} == int{vanta::H2O} && int{N2} == int{vanta::N2} && int{O2} == int{vanta::O2});

namespace {

// Formation enthalpies of the program's six species over R (its polynomials
// give sensible enthalpies, zero at 298.15 K).
constexpr double kFormacion[kNumeroEspecies] = {0, kFormacionCO, kFormacionCO2, kFormacionH2O, 0, 0};

// The program's two sets of CO and CO2 differ at 1000 K by a step (some
// 0.005 J/(mol·K) in entropy), and a step in the properties leaves an energy
// or an entropy within it without a temperature that gives it. The
// equilibrium takes the low set up to 1000 K and the high one from 1002 K on,
// as the program does, and goes from one to the other in between.
constexpr double kTransicion = 2.0;

}  // namespace

void EvaluarGases(double T, PropiedadesGases& g) {
    g.T = T;
    const double T2 = T * T, T3 = T2 * T, T4 = T3 * T, lnT = std::log(T);
    auto evaluar = [&](const Coeficientes& c, double formacion, double peso, int j) {
        g.cp[j] += peso * (c.a1 + c.a2 * T + c.a3 * T2 + c.a4 * T3 + c.a5 * T4);
        g.h[j] += peso * (c.a1 + c.a2 * T / 2 + c.a3 * T2 / 3 + c.a4 * T3 / 4 + c.a5 * T4 / 5 + c.a6 / T +
                          formacion / (kR * T));
        g.s0[j] += peso * (c.a1 * lnT + c.a2 * T + c.a3 * T2 / 2 + c.a4 * T3 / 3 + c.a5 * T4 / 4 + c.a7);
    };
    auto juego = [&](const Coeficientes* programa, const Coeficientes* janaf, double peso) {
        for (int j = 0; j < kNumeroEspecies; ++j) evaluar(programa[j], kFormacion[j], peso, j);
        for (int j = 0; j < kEspeciesJANAF; ++j) evaluar(janaf[j], 0, peso, H2 + j);
        evaluar(programa[vanta::CO2], 0, peso, SO2);
    };
    for (int j = 0; j < kGases; ++j) g.cp[j] = g.h[j] = g.s0[j] = 0;
    // The share of the high set: none up to 1000 K, as in the program, all
    // from 1000 K + kTransicion on, and in between a straight line.
    const double alta = std::clamp((T - kLimiteRangos) / kTransicion, 0.0, 1.0);
    if (alta < 1) juego(kCoeficientesBaja, kCoeficientesJANAFBaja, 1 - alta);
    if (alta > 0) juego(kCoeficientesAlta, kCoeficientesJANAFAlta, alta);
}

Elementos ElementosDe(const Moles& n) {
    Elementos b{};
    for (int j = 0; j < kGases; ++j)
        for (int i = 0; i < kElementos; ++i) b[i] += kAtomos[j][i] * n[j];
    return b;
}

}  // namespace vanta::equilibrio
