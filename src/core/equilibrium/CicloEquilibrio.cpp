#include "core/equilibrium/CicloEquilibrio.h"

#include <cmath>

#include "core/properties/Especies.h"
#include "core/sequence/Calculo.h"
#include "core/services/JSON.h"

namespace vanta::equilibrio {

namespace {

constexpr std::string_view kSinCalculo =
    "El ciclo con disociación parte del estado 2 de un cálculo que haya terminado bien, y no lo hay";
constexpr std::string_view kRepartoNoConverge =
    "No se ha encontrado la parte del combustible que lleva la presión hasta la máxima del motor";
// The search of the share burnt at V2 that reaches Pmax.
constexpr int kPasosReparto = 100;
constexpr double kToleranciaReparto = 1e-12;

// What the cycle starts from, read off the program's state.
struct Carga {
    Moles aire{};                    // mol of each gas of the charge at 2
    Elementos atomosCombustible{};   // atoms of all the fuel, mol
    double entalpiaCombustible = 0;  // J, all the fuel
    Mezcla estado2;
};

bool Valida(const Estado& e) {
    for (double x : {e.T2, e.V2, e.p2, e.V1, e.MolesAire, e.MolesCombustible, e.MasaCombustible, e.HCI})
        if (!std::isfinite(x) || !(x > 0)) return false;
    return !e.ErrorCalculo && std::isfinite(e.W12acumulado) &&
           (e.TipoCiclo == "Otto" || e.TipoCiclo == "Diesel" || e.TipoCiclo == "Mixto");
}

Carga LeerCarga(const Estado& e) {
    Carga c;
    c.aire[Ar] = e.xArAire, c.aire[CO2] = e.xCO2Aire, c.aire[H2O] = e.xH2OAire, c.aire[N2] = e.xN2Aire,
    c.aire[O2] = e.xO2Aire;
    for (double& x : c.aire) x *= e.MolesAire;
    const double n = e.MolesCombustible;
    c.atomosCombustible[eC] = n * e.AtomosC, c.atomosCombustible[eH] = n * e.AtomosH,
    c.atomosCombustible[eN] = n * e.AtomosN, c.atomosCombustible[eO] = n * e.AtomosO,
    c.atomosCombustible[eS] = n * e.AtomosS;
    // Complete combustion to CO2, water vapour and SO2 (whose formation is
    // not counted) gives HCI per kilogram.
    const double porMol =
        e.AtomosC * kFormacionCO2 + e.AtomosH / 2 * kFormacionH2O + e.HCI * e.MasaMolecularCombustible;
    c.entalpiaCombustible = n * porMol;
    c.estado2 = Evaluar(c.aire, e.T2, e.V2, false);
    return c;
}

// The atoms of the charge with a share of the fuel.
Elementos Atomos(const Carga& c, double fraccion) {
    Elementos b = ElementosDe(c.aire);
    for (int i = 0; i < kElementos; ++i) b[i] += fraccion * c.atomosCombustible[i];
    return b;
}

// A problem solved in equilibrium, or with the products of complete
// combustion held fixed.
Resultado Resolver(const Elementos& b, const Problema& p, bool equilibrio, const Moles* inicio) {
    if (equilibrio) return Equilibrar(b, p, inicio);
    Moles completa;
    if (std::string error = CombustionCompleta(b, completa); !error.empty()) {
        Resultado r;
        r.mensaje = std::move(error);
        return r;
    }
    return Congelar(completa, p);
}

// A share of the fuel burnt at V2.
Resultado QuemarVolumenConstante(const Carga& c, double fraccion, bool equilibrio, const Moles* inicio) {
    Problema p{.dato = Dato::EnergiaVolumen, .T = 0, .p = 0, .V = c.estado2.V};
    p.U = c.estado2.U + fraccion * c.entalpiaCombustible;
    return Resolver(Atomos(c, fraccion), p, equilibrio, inicio);
}

// The share burnt at V2 that brings the pressure to Pmax: all of it when that
// stays below, none when p2 is already above. Regula falsi on the pressure,
// with the bracket halved when one end stays put (Illinois).
double RepartoHastaPmax(const Carga& c, double pmax, bool equilibrio, Resultado& r) {
    r = QuemarVolumenConstante(c, 1, equilibrio, nullptr);
    if (!r.bien || r.mezcla.p <= pmax) return 1;
    if (c.estado2.p >= pmax) return 0;
    double fa = 0, ga = c.estado2.p - pmax, fb = 1, gb = r.mezcla.p - pmax;
    int lado = 0;
    Moles inicio = r.mezcla.n;
    for (int paso = 0; paso < kPasosReparto; ++paso) {
        const double f = fb - gb * (fb - fa) / (gb - ga);
        r = QuemarVolumenConstante(c, f, equilibrio, &inicio);
        if (!r.bien) return f;
        inicio = r.mezcla.n;
        const double g = r.mezcla.p - pmax;
        if (std::fabs(g) <= kToleranciaReparto * pmax || fb - fa <= kToleranciaReparto) return f;
        if (g > 0) {
            fb = f, gb = g;
            if (lado == 1) ga /= 2;
            lado = 1;
        } else {
            fa = f, ga = g;
            if (lado == -1) gb /= 2;
            lado = -1;
        }
    }
    r.bien = false;
    r.mensaje = kRepartoNoConverge;
    return 0;
}

CicloEquilibrio Calcular(const Estado& e, bool equilibrio) {
    CicloEquilibrio ciclo;
    if (!Valida(e)) {
        ciclo.mensaje = kSinCalculo;
        return ciclo;
    }
    const Carga c = LeerCarga(e);
    ciclo.estado2 = c.estado2;
    ciclo.atomosAire = ElementosDe(c.aire);
    ciclo.atomosCombustible = c.atomosCombustible;
    ciclo.entalpiaCombustible = c.entalpiaCombustible;
    Resultado r;
    // The share of the fuel burnt at V2; the search up to Pmax leaves its
    // last combustion in r.
    double f = 0;
    bool quemado = false;
    if (e.TipoCiclo == "Otto") f = 1;
    if (e.TipoCiclo == "Mixto" && e.OpcionProporcion) f = e.PropVcte / 100;
    if (e.TipoCiclo == "Mixto" && !e.OpcionProporcion) {
        f = RepartoHastaPmax(c, e.Pmax, equilibrio, r);
        quemado = true;
    }
    ciclo.fraccionVolumenConstante = f;
    if (f > 0 && !quemado) r = QuemarVolumenConstante(c, f, equilibrio, nullptr);
    if (f > 0 && !r.bien) {
        ciclo.mensaje = r.mensaje;
        return ciclo;
    }
    ciclo.estado3 = f > 0 ? r.mezcla : c.estado2;
    ciclo.estado4 = ciclo.estado3;
    if (f < 1) {
        // The rest of the fuel at the pressure of 3.
        Problema p{.dato = Dato::EntalpiaPresion, .T = ciclo.estado3.T, .p = ciclo.estado3.p};
        p.H = ciclo.estado3.H + (1 - f) * c.entalpiaCombustible;
        r = Resolver(Atomos(c, 1), p, equilibrio, f > 0 ? &ciclo.estado3.n : nullptr);
        if (!r.bien) {
            ciclo.mensaje = r.mensaje;
            return ciclo;
        }
        ciclo.estado4 = r.mezcla;
    }
    // The expansion: the isentrope of state 4 down to V1.
    Problema p{.dato = Dato::EntropiaVolumen, .T = ciclo.estado4.T, .p = 0, .V = e.V1};
    p.S = ciclo.estado4.S;
    r = equilibrio ? Equilibrar(Atomos(c, 1), p, &ciclo.estado4.n) : Congelar(ciclo.estado4.n, p);
    if (!r.bien) {
        ciclo.mensaje = r.mensaje;
        return ciclo;
    }
    ciclo.estado5 = r.mezcla;
    ciclo.W12 = e.W12acumulado;
    ciclo.W34 = ciclo.estado3.p * (ciclo.estado4.V - ciclo.estado3.V);
    ciclo.W45 = ciclo.estado4.U - ciclo.estado5.U;
    ciclo.trabajo = ciclo.W12 + ciclo.W34 + ciclo.W45;
    ciclo.calor = e.MasaCombustible * e.HCI;
    ciclo.rendimiento = ciclo.trabajo / ciclo.calor;
    ciclo.bien = true;
    return ciclo;
}

void Miembro(std::string& s, const char* clave, const std::string& valor) {
    s += (s.back() == '{' ? "\"" : ",\"") + std::string(clave) + "\":" + valor;
}

std::string CicloJSON(const CicloEquilibrio& c) {
    std::string s = "{";
    if (!c.bien) {
        Miembro(s, "Error", TextoCadenaJSON(c.mensaje));
        return s + "}";
    }
    const Mezcla* estados[3] = {&c.estado3, &c.estado4, &c.estado5};
    const char* claves[3][3] = {{"T3", "p3", "V3"}, {"T4", "p4", "V4"}, {"T5", "p5", nullptr}};
    for (int k = 0; k < 3; ++k) {
        Miembro(s, claves[k][0], TextoNumeroJSON(estados[k]->T));
        Miembro(s, claves[k][1], TextoNumeroJSON(estados[k]->p));
        if (claves[k][2]) Miembro(s, claves[k][2], TextoNumeroJSON(estados[k]->V));
    }
    Miembro(s, "Trabajo", TextoNumeroJSON(c.trabajo));
    Miembro(s, "Rendimiento", TextoNumeroJSON(c.rendimiento));
    Miembro(s, "FraccionesMolares3", FraccionesJSON(c.estado3));
    Miembro(s, "NOppm3", TextoNumeroJSON(c.estado3.Fraccion(NO) * kPartesPorMillon));
    Miembro(s, "FraccionesMolares4", FraccionesJSON(c.estado4));
    Miembro(s, "NOppm4", TextoNumeroJSON(c.estado4.Fraccion(NO) * kPartesPorMillon));
    return s + "}";
}

}  // namespace

CiclosConDisociacion CicloConDisociacion(const Estado& e) {
    return {Calcular(e, true), Calcular(e, false)};
}

std::string FraccionesJSON(const Mezcla& m) {
    std::string s = "{";
    for (int j = 0; j < kGases; ++j) {
        const double x = m.Fraccion(static_cast<Gas>(j));
        if (x > kFraccionVisible) Miembro(s, kNombresGases[j], TextoNumeroJSON(x));
    }
    return s + "}";
}

std::string CicloConDisociacionJSON(const CiclosConDisociacion& c) {
    return "\"Equilibrio\":" + CicloJSON(c.equilibrio) + ",\"SinDisociacion\":" + CicloJSON(c.sinDisociacion);
}

}  // namespace vanta::equilibrio
