#include "core/equilibrium/CurvasDisociacion.h"

#include <cmath>
#include <vector>

#include "core/properties/Especies.h"

namespace vanta::equilibrio {

namespace {

constexpr double kTemperaturaFormacion = 298.15;  // K

// A point of the cycle in the diagrams' quantities.
struct PuntoCiclo {
    double V, p, T, h, s;
};

// The program's state 2 and the equilibrium's, to carry h and s across.
struct Escalas {
    double h2, s2;        // the program's, J/mol and J/(mol·K)
    double H2mol, S2mol;  // the equilibrium's, per mole
    PuntoCiclo De(const Mezcla& m) const {
        const double n = m.Total();
        return {m.V, m.p, m.T, h2 + EntalpiaSensible(m) / n - H2mol, s2 + m.S / n - S2mol};
    }
};

std::vector<PuntoCiclo> Recorrido(const Estado& e, const CicloEquilibrio& c, bool equilibrio) {
    const double n2 = c.estado2.Total();
    const Escalas escalas{e.h2, e.S2, EntalpiaSensible(c.estado2) / n2, c.estado2.S / n2};
    std::vector<PuntoCiclo> puntos = {escalas.De(c.estado2), escalas.De(c.estado3), escalas.De(c.estado4)};
    // The isentrope of 4 at volumes evenly spaced up to V5, in equilibrium
    // each solved from the last, or with the composition of 4 held.
    Elementos atomos;
    for (size_t k = 0; k < atomos.size(); ++k) atomos[k] = c.atomosAire[k] + c.atomosCombustible[k];
    Moles anterior = c.estado4.n;
    for (int i = 1; i < kPuntosExpansion; ++i) {
        const double V = c.estado4.V + (c.estado5.V - c.estado4.V) * i / kPuntosExpansion;
        Problema p{.dato = Dato::EntropiaVolumen, .T = puntos.back().T, .p = 0, .V = V};
        p.S = c.estado4.S;
        const Resultado r = equilibrio ? Equilibrar(atomos, p, &anterior) : Congelar(c.estado4.n, p);
        if (!r.bien) continue;
        anterior = r.mezcla.n;
        puntos.push_back(escalas.De(r.mezcla));
    }
    puntos.push_back(escalas.De(c.estado5));
    puntos.push_back({e.V1, e.p1, e.T1, e.h1, e.S1});
    return puntos;
}

}  // namespace

double EntalpiaSensible(const Mezcla& m) {
    static const Moles formacion = [] {
        PropiedadesGases g;
        EvaluarGases(kTemperaturaFormacion, g);
        Moles h{};
        for (int j = 0; j < kGases; ++j) h[j] = g.h[j] * kR * kTemperaturaFormacion;
        return h;
    }();
    double H = m.H;
    for (int j = 0; j < kGases; ++j) H -= m.n[j] * formacion[j];
    return H;
}

CurvasCiclo CurvasDisociacion(const Estado& e, const CicloEquilibrio& c, bool equilibrio, int32_t color) {
    CurvasCiclo curvas;
    if (!c.bien) return curvas;
    const std::vector<PuntoCiclo> recorrido = Recorrido(e, c, equilibrio);
    // x and y of each diagram, indexed by Diagrama: p-V, T-V, T-s, h-s.
    double PuntoCiclo::*const ejes[4][2] = {{&PuntoCiclo::V, &PuntoCiclo::p},
                                            {&PuntoCiclo::V, &PuntoCiclo::T},
                                            {&PuntoCiclo::s, &PuntoCiclo::T},
                                            {&PuntoCiclo::s, &PuntoCiclo::h}};
    for (size_t d = 0; d < 4; ++d) {
        Trazo t{color, {}};
        for (const PuntoCiclo& p : recorrido)
            t.puntos.push_back({static_cast<float>(p.*ejes[d][0]), static_cast<float>(p.*ejes[d][1])});
        curvas.diagramas[d].push_back(std::move(t));
    }
    return curvas;
}

}  // namespace vanta::equilibrio
