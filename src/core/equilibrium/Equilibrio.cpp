#include "core/equilibrium/Equilibrio.h"

#include <algorithm>
#include <cmath>

#include "core/properties/Especies.h"

namespace vanta::equilibrio {

namespace {

constexpr std::string_view kSinAtomos = "Los gases no tienen átomos: no hay equilibrio que buscar";
constexpr std::string_view kAtomosNoValidos =
    "Los moles de cada elemento de los gases han de ser números positivos o cero";
constexpr std::string_view kPresionNoValida = "La presión de los gases ha de ser un número positivo";
constexpr std::string_view kVolumenNoValido = "El volumen de los gases ha de ser un número positivo";
constexpr std::string_view kTemperaturaNoValida =
    "La temperatura de los gases ha de estar entre 250 y 6 000 K, donde valen los datos de las especies";
constexpr std::string_view kEnergiaNoValida = "La energía o la entropía dada de los gases no es un número";
constexpr std::string_view kPocoOxigeno =
    "No hay oxígeno bastante para quemar el carbono ni siquiera a CO: la mezcla es demasiado rica";
constexpr std::string_view kDemasiadoCaliente =
    "La temperatura de los gases pasaría de 6 000 K, el límite de los datos de las especies";
constexpr std::string_view kDemasiadoFria =
    "La temperatura de los gases bajaría de 250 K, el límite de los datos de las especies";
constexpr std::string_view kNoConverge =
    "El cálculo del equilibrio químico no converge en 200 iteraciones de Newton";
constexpr std::string_view kSinPrecision =
    "El equilibrio químico hallado no guarda los átomos o la energía con la precisión debida (una parte en "
    "mil "
    "millones): algún elemento está en cantidad ínfima frente a los demás";
constexpr std::string_view kComposicionNoValida =
    "La composición dada de los gases ha de tener moles positivos o cero, y alguno positivo";

// ln(x) below which a gas is a trace, and where a trace may rise to in one
// step (x = 1e-8 and 1e-4).
constexpr double kLnTraza = -18.420680743952367;
constexpr double kLnTechoTraza = -9.210340371976184;
// Newton's corrections at which the solution stands.
constexpr double kCorreccionFinal = 1e-11;
// Where a composition starts from: no gas of the system below this share.
constexpr double kSueloInicial = 1e-4;
// Pushed against a limit of temperature this many steps in a row, with the
// composition settled, the solution lies beyond it.
constexpr int kPasosEnElLimite = 3;

enum class Energia { Ninguna, Entalpia, Entropia };

bool ConPresion(Dato d) {
    return d == Dato::TemperaturaPresion || d == Dato::EntalpiaPresion || d == Dato::EntropiaPresion;
}

Energia EnergiaDe(Dato d) {
    switch (d) {
        case Dato::EntalpiaPresion:
        case Dato::EnergiaVolumen:
            return Energia::Entalpia;
        case Dato::EntropiaPresion:
        case Dato::EntropiaVolumen:
            return Energia::Entropia;
        default:
            return Energia::Ninguna;
    }
}

// The energy the problem gives: H at constant pressure, U at constant volume,
// or S.
double Objetivo(const Problema& c) {
    switch (c.dato) {
        case Dato::EntalpiaPresion:
            return c.H;
        case Dato::EnergiaVolumen:
            return c.U;
        default:
            return c.S;
    }
}

double Valor(const Mezcla& m, Dato d) {
    switch (d) {
        case Dato::EntalpiaPresion:
            return m.H;
        case Dato::EnergiaVolumen:
            return m.U;
        default:
            return m.S;
    }
}

bool Positivo(double x) {
    return std::isfinite(x) && x > 0;
}

// What is wrong with the data of a problem, empty when nothing.
std::string_view ComprobarProblema(const Problema& c) {
    if (ConPresion(c.dato) ? !Positivo(c.p) : !Positivo(c.V))
        return ConPresion(c.dato) ? kPresionNoValida : kVolumenNoValido;
    const Energia energia = EnergiaDe(c.dato);
    if (energia == Energia::Ninguna && !(c.T >= kTemperaturaMinima && c.T <= kTemperaturaMaxima))
        return kTemperaturaNoValida;
    if (energia != Energia::Ninguna && (!std::isfinite(Objetivo(c)) || !std::isfinite(c.T)))
        return kEnergiaNoValida;
    return {};
}

// The energy row's residual against its scale: the energy the problem gives
// or, when that is near zero, the mixture's own N·R·T (N·R for an entropy).
bool CumpleEnergia(const Mezcla& m, const Problema& c) {
    if (EnergiaDe(c.dato) == Energia::Ninguna) return true;
    const double escala =
        std::max(std::fabs(Objetivo(c)), m.Total() * kR * (EnergiaDe(c.dato) == Energia::Entropia ? 1 : m.T));
    return std::fabs(Valor(m, c.dato) - Objetivo(c)) <= kToleranciaEquilibrio * escala;
}

bool CumpleElementos(const Moles& n, const Elementos& b) {
    const Elementos r = ElementosDe(n);
    for (int i = 0; i < kElementos; ++i)
        if (!(std::fabs(r[i] - b[i]) <= kToleranciaEquilibrio * b[i])) return false;
    return true;
}

// Solves the m equations of A (m rows of m coefficients and the right-hand
// side) in place, the solution left in the last column; by Gauss with the
// pivot of largest size relative to its row. False when singular.
constexpr int kMaximoEcuaciones = kElementos + 2;
using Matriz = double[kMaximoEcuaciones][kMaximoEcuaciones + 1];

bool ResolverLineal(int m, Matriz A) {
    double escala[kMaximoEcuaciones];
    for (int i = 0; i < m; ++i) {
        escala[i] = 0;
        for (int k = 0; k < m; ++k) escala[i] = std::max(escala[i], std::fabs(A[i][k]));
        if (!(escala[i] > 0) || !std::isfinite(escala[i])) return false;
    }
    for (int k = 0; k < m; ++k) {
        int p = k;
        for (int i = k + 1; i < m; ++i)
            if (std::fabs(A[i][k]) / escala[i] > std::fabs(A[p][k]) / escala[p]) p = i;
        if (A[p][k] == 0) return false;
        if (p != k) {
            std::swap_ranges(A[p], A[p] + m + 1, A[k]);
            std::swap(escala[p], escala[k]);
        }
        for (int i = k + 1; i < m; ++i) {
            const double f = A[i][k] / A[k][k];
            for (int c = k; c <= m; ++c) A[i][c] -= f * A[k][c];
        }
    }
    for (int k = m - 1; k >= 0; --k) {
        double s = A[k][m];
        for (int c = k + 1; c < m; ++c) s -= A[k][c] * A[c][m];
        A[k][m] = s / A[k][k];
        if (!std::isfinite(A[k][m])) return false;
    }
    return true;
}

Mezcla EvaluarCon(const PropiedadesGases& g, const Moles& n, double presionOVolumen, bool conPresion) {
    Mezcla m;
    m.T = g.T;
    m.n = n;
    const double N = m.Total();
    const double RT = kR * g.T;
    if (conPresion) {
        m.p = presionOVolumen;
        m.V = N * RT / m.p;
    } else {
        m.V = presionOVolumen;
        m.p = N * RT / m.V;
    }
    const double lnP = std::log(m.p / kPresionReferencia);
    for (int j = 0; j < kGases; ++j) {
        if (!(n[j] > 0)) continue;
        m.H += n[j] * g.h[j] * RT;
        m.Cp += n[j] * g.cp[j] * kR;
        m.S += n[j] * kR * (g.s0[j] - std::log(n[j] / N) - lnP);
    }
    m.U = m.H - N * RT;
    return m;
}

// The temperature where the guess stands: within the data.
double Acotar(double T) {
    return std::clamp(T, kTemperaturaMinima, kTemperaturaMaxima);
}

}  // namespace

double Mezcla::Total() const {
    double s = 0;
    for (double x : n) s += x;
    return s;
}

Mezcla Evaluar(const Moles& n, double T, double presionOVolumen, bool conPresion) {
    PropiedadesGases g;
    EvaluarGases(T, g);
    return EvaluarCon(g, n, presionOVolumen, conPresion);
}

std::string CombustionCompleta(const Elementos& b, Moles& n) {
    n = {};
    double oxigeno = b[eO] - 2 * b[eS];
    if (oxigeno < b[eC]) return std::string(kPocoOxigeno);
    n[SO2] = b[eS];
    n[CO] = b[eC];
    oxigeno -= b[eC];
    n[H2O] = std::min(b[eH] / 2, oxigeno);
    n[H2] = b[eH] / 2 - n[H2O];
    oxigeno -= n[H2O];
    const double aCO2 = std::min(b[eC], oxigeno);
    n[CO2] = aCO2;
    n[CO] -= aCO2;
    oxigeno -= aCO2;
    n[O2] = std::max(oxigeno, 0.0) / 2;
    n[N2] = b[eN] / 2;
    n[Ar] = b[eAr];
    return {};
}

Resultado Congelar(const Moles& n, const Problema& c) {
    Resultado r;
    if (const auto error = ComprobarProblema(c); !error.empty()) {
        r.mensaje = error;
        return r;
    }
    double total = 0;
    for (double x : n) {
        if (!(x >= 0) || !std::isfinite(x)) total = -1;
        if (total >= 0) total += x;
    }
    if (!(total > 0)) {
        r.mensaje = kComposicionNoValida;
        return r;
    }
    const bool conPresion = ConPresion(c.dato);
    const double pv = conPresion ? c.p : c.V;
    PropiedadesGases g;
    auto en = [&](double T) {
        EvaluarGases(T, g);
        return EvaluarCon(g, n, pv, conPresion);
    };
    if (EnergiaDe(c.dato) == Energia::Ninguna) {
        r.mezcla = en(c.T);
        r.bien = true;
        return r;
    }
    // The energy and the entropy grow with the temperature: a bracket kept
    // round Newton's steps.
    const double objetivo = Objetivo(c);
    double bajo = kTemperaturaMinima, alto = kTemperaturaMaxima;
    if (Valor(en(alto), c.dato) < objetivo) {
        r.mensaje = kDemasiadoCaliente;
        return r;
    }
    if (Valor(en(bajo), c.dato) > objetivo) {
        r.mensaje = kDemasiadoFria;
        return r;
    }
    double T = c.T > 0 ? Acotar(c.T) : 0.5 * (bajo + alto);
    for (r.iteraciones = 1; r.iteraciones <= kIteracionesMaximas; ++r.iteraciones) {
        const Mezcla m = en(T);
        const double f = Valor(m, c.dato) - objetivo;
        if (f > 0) alto = T;
        if (f < 0) bajo = T;
        // dH/dT = Cp, dU/dT = Cv; dS/dT = Cp/T at constant pressure and Cv/T
        // at constant volume.
        double derivada = conPresion ? m.Cp : m.Cp - m.Total() * kR;
        if (EnergiaDe(c.dato) == Energia::Entropia) derivada /= T;
        double siguiente = T - f / derivada;
        if (!(siguiente > bajo && siguiente < alto)) siguiente = 0.5 * (bajo + alto);
        const bool fin = std::fabs(siguiente - T) <= kCorreccionFinal * T || f == 0;
        T = siguiente;
        if (fin) {
            r.mezcla = en(T);
            r.bien = CumpleEnergia(r.mezcla, c);
            break;
        }
    }
    if (!r.bien) r.mensaje = kNoConverge;
    return r;
}

Resultado Equilibrar(const Elementos& b, const Problema& c, const Moles* inicio) {
    Resultado r;
    double atomos = 0;
    for (double x : b) {
        if (!(x >= 0) || !std::isfinite(x)) {
            r.mensaje = kAtomosNoValidos;
            return r;
        }
        atomos += x;
    }
    if (!(atomos > 0)) {
        r.mensaje = kSinAtomos;
        return r;
    }
    if (const auto error = ComprobarProblema(c); !error.empty()) {
        r.mensaje = error;
        return r;
    }
    Moles completa;
    if (std::string error = CombustionCompleta(b, completa); !error.empty()) {
        r.mensaje = std::move(error);
        return r;
    }
    const bool conPresion = ConPresion(c.dato);
    const Energia energia = EnergiaDe(c.dato);

    // The elements present, and the gases made of them only.
    int elementos[kElementos], ne = 0;
    for (int i = 0; i < kElementos; ++i)
        if (b[i] > 0) elementos[ne++] = i;
    int gases[kGases], ng = 0;
    for (int j = 0; j < kGases; ++j) {
        bool presente = true;
        for (int i = 0; i < kElementos; ++i) presente = presente && (kAtomos[j][i] == 0 || b[i] > 0);
        if (presente) gases[ng++] = j;
    }

    // Where to start: the composition given or that of complete combustion,
    // no gas below a small share so that each has a say from the first step.
    Moles n0 = completa;
    if (inicio) {
        double total = 0;
        for (int k = 0; k < ng; ++k) total += (*inicio)[gases[k]];
        if (std::isfinite(total) && total > 0) n0 = *inicio;
    }
    double N0 = 0;
    for (int k = 0; k < ng; ++k) N0 += n0[gases[k]];
    double lnn[kGases] = {};
    for (int k = 0; k < ng; ++k) {
        const int j = gases[k];
        lnn[j] = std::log(std::max(n0[j], (inicio ? 1e-30 : kSueloInicial) * N0));
    }
    double lnN = std::log(N0);
    double T = c.T;
    if (energia != Energia::Ninguna) {
        if (!(T > 0)) {
            const Resultado congelada = Congelar(completa, c);
            T = congelada.bien ? congelada.mezcla.T : 2000.0;
        }
        T = Acotar(T);
    }
    double lnT = std::log(T);
    const double lnTmin = std::log(kTemperaturaMinima), lnTmax = std::log(kTemperaturaMaxima);

    const int columnaN = ne, columnaT = ne + (conPresion ? 1 : 0);
    const int m = columnaT + (energia != Energia::Ninguna ? 1 : 0);
    const double objetivo = energia == Energia::Ninguna ? 0 : Objetivo(c);
    PropiedadesGases g;
    g.T = -1;
    int enElLimite = 0;
    for (r.iteraciones = 1; r.iteraciones <= kIteracionesMaximas; ++r.iteraciones) {
        // A temperature given stays exactly as given.
        if (energia != Energia::Ninguna) T = std::exp(lnT);
        if (T != g.T) EvaluarGases(T, g);
        double n[kGases] = {}, suma = 0;
        for (int k = 0; k < ng; ++k) suma += n[gases[k]] = std::exp(lnn[gases[k]]);
        const double N = conPresion ? std::exp(lnN) : suma;
        const double lnNref = conPresion ? lnN : std::log(suma);
        // ln(x·p/p°) = ln n − ζ'; ζ the part common to every gas.
        const double zeta = conPresion ? std::log(c.p / kPresionReferencia) - lnN
                                       : std::log(kR * T / (c.V * kPresionReferencia));

        double mu[kGases], E[kGases], q[kGases];
        Matriz A = {};
        double sumaE = 0, sumaQ = 0, sumaC = 0, sumaQE = 0, sumaMu = 0, sumaQMu = 0, energiaActual = 0;
        for (int k = 0; k < ng; ++k) {
            const int j = gases[k];
            const double nj = n[j];
            mu[j] = g.h[j] - g.s0[j] + lnn[j] + zeta;
            E[j] = conPresion ? g.h[j] : g.h[j] - 1;
            const double Cj = conPresion ? g.cp[j] : g.cp[j] - 1;
            const double sigma = g.s0[j] - lnn[j] - zeta;
            q[j] = energia == Energia::Entropia ? sigma - 1 : E[j];
            energiaActual += nj * (energia == Energia::Entropia ? sigma : E[j]);
            sumaE += nj * E[j];
            sumaQ += nj * q[j];
            sumaC += nj * Cj;
            sumaQE += nj * q[j] * E[j];
            sumaMu += nj * mu[j];
            sumaQMu += nj * q[j] * mu[j];
            for (int a = 0; a < ne; ++a) {
                const double aij = kAtomos[j][elementos[a]];
                if (aij == 0) continue;
                const double w = aij * nj;
                for (int k2 = 0; k2 < ne; ++k2) A[a][k2] += w * kAtomos[j][elementos[k2]];
                if (conPresion) A[a][columnaN] += w, A[columnaN][a] += w;
                if (energia != Energia::Ninguna) A[a][columnaT] += w * E[j];
                A[a][m] += w * (mu[j] - 1);  // − b_i is added below, with b°
                if (energia != Energia::Ninguna) A[columnaT][a] += w * q[j];
            }
        }
        for (int a = 0; a < ne; ++a) A[a][m] += b[elementos[a]];
        if (conPresion) {
            A[columnaN][columnaN] = suma - N;
            if (energia != Energia::Ninguna) A[columnaN][columnaT] = sumaE;
            A[columnaN][m] = N - suma + sumaMu;
        }
        if (energia != Energia::Ninguna) {
            if (conPresion) A[columnaT][columnaN] = sumaQ + (energia == Energia::Entropia ? suma : 0);
            A[columnaT][columnaT] = sumaC + sumaQE;
            const double dado = energia == Energia::Entropia ? objetivo / kR : objetivo / (kR * T);
            A[columnaT][m] = dado - energiaActual + sumaQMu;
        }
        if (!ResolverLineal(m, A)) break;

        const double dN = conPresion ? A[columnaN][m] : 0;
        const double dT = energia != Energia::Ninguna ? A[columnaT][m] : 0;
        double d[kGases] = {};
        double mayor = 5 * std::max(std::fabs(dN), std::fabs(dT)), lambda2 = 1, correccion = 0;
        for (int k = 0; k < ng; ++k) {
            const int j = gases[k];
            double dj = -mu[j] + dN + E[j] * dT;
            for (int a = 0; a < ne; ++a) dj += kAtomos[j][elementos[a]] * A[a][m];
            d[j] = dj;
            const double lnx = lnn[j] - lnNref;
            if (lnx > kLnTraza) {
                if (dj > 0) mayor = std::max(mayor, dj);
            } else if (dj - dN > 0) {
                lambda2 = std::min(lambda2, std::fabs((-lnx + kLnTechoTraza) / (dj - dN)));
            }
            correccion = std::max(correccion, n[j] / suma * std::fabs(dj));
        }
        const double lambda = std::min({1.0, mayor > 2 ? 2 / mayor : 1.0, lambda2});
        for (int k = 0; k < ng; ++k) lnn[gases[k]] += lambda * d[gases[k]];
        lnN += lambda * dN;
        const double lnTsin = lnT + lambda * dT;
        lnT = std::clamp(lnTsin, lnTmin, lnTmax);

        // Held at a limit of the data for some steps: the solution lies beyond
        // it when the equilibrium at the limit falls short of (or passes) the
        // energy given, as the energy and the entropy grow with T.
        enElLimite = lnT != lnTsin ? enElLimite + 1 : 0;
        if (enElLimite >= kPasosEnElLimite) {
            const bool arriba = lnTsin > lnTmax;
            Problema fijo = c;
            fijo.dato = conPresion ? Dato::TemperaturaPresion : Dato::TemperaturaVolumen;
            fijo.T = arriba ? kTemperaturaMaxima : kTemperaturaMinima;
            const Resultado limite = Equilibrar(b, fijo);
            const double falta = objetivo - Valor(limite.mezcla, c.dato);
            if (limite.bien && (arriba ? falta > 0 : falta < 0)) {
                r.mensaje = arriba ? kDemasiadoCaliente : kDemasiadoFria;
                return r;
            }
            enElLimite = 0;
        }
        if (lambda == 1 && correccion <= kCorreccionFinal && std::fabs(dN) <= kCorreccionFinal &&
            std::fabs(dT) <= kCorreccionFinal) {
            Moles final{};
            for (int k = 0; k < ng; ++k) final[gases[k]] = std::exp(lnn[gases[k]]);
            if (energia != Energia::Ninguna) EvaluarGases(std::exp(lnT), g);
            r.mezcla = EvaluarCon(g, final, conPresion ? c.p : c.V, conPresion);
            r.bien = CumpleElementos(final, b) && CumpleEnergia(r.mezcla, c);
            if (!r.bien) r.mensaje = kSinPrecision;
            return r;
        }
    }
    r.mensaje = kNoConverge;
    return r;
}

}  // namespace vanta::equilibrio
