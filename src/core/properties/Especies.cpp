#include "core/properties/Especies.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "core/services/Fallos.h"
#include "core/services/Numeros.h"

namespace vanta {

// The a6 column makes every h zero at 298.15 K; the jumps of CO and CO2 at
// 1000 K belong to the data.
const Coeficientes kCoeficientesBaja[kNumeroEspecies] = {
    {2.5, 0, 0, 0, 0, -745.374984741201, 4.3660006},
    {3.71, -0.0016190964, 3.6923594e-06, -2.0319674e-09, 2.3953344e-13, -1062.89190417216, 2.9555351},
    {2.4007797, 0.0087350957, -6.607878e-06, 2.0021861e-09, 6.3274039e-16, -1049.6168927, 9.6951457},
    {4.0701275, -0.0011084499, 4.152118e-06, -2.9637404e-09, 8.0702103e-13, -1195.4488936521, -0.32270046},
    {3.6748261, -0.00120815, 2.3240102e-06, -6.3217559e-10, -2.2577253e-13, -1061.12735851, 2.3580424},
    {3.6255985, -0.0018782184, 7.0554544e-06, -6.7635137e-09, 2.1555993e-12, -1047.47745171574, 4.3052778},
};
const Coeficientes kCoeficientesAlta[kNumeroEspecies] = {
    {2.5, 0, 0, 0, 0, -745.3751, 4.3660006},
    {2.9840696, 0.001489139, -5.7899684e-07, 1.0364577e-10, -6.935355e-15, -951.903274, 6.3479156},
    {4.4608041, 0.0030981719, -1.2392571e-06, 2.2741325e-10, -1.5525954e-14, -1633.7948335374, -0.98635982},
    {2.7167633, 0.0029451374, -8.0224374e-07, 1.0226682e-10, -4.8472145e-15, -821.5526023, 6.6305671},
    {2.8963194, 0.0015154866, -5.7235277e-07, 9.9807393e-11, -6.5223555e-15, -905.830422164224, 6.1615148},
    {3.6219535, 0.00073618244, -1.9652228e-07, 3.6201558e-11, -2.8945627e-15, -1201.93735858701, 3.615096},
};

namespace {

constexpr std::string_view kMensajeLimite =
    "Se ha superado la temperatura máxima que admite el programa 5000 K, Temperatura que provocó el error = ";
constexpr std::string_view kCausaTemperaturaNoPositiva = "la temperatura del gas no es positiva";
constexpr std::string_view kCausaTemperaturaFueraDeRango =
    "la temperatura del gas es tan próxima a cero que su entalpía sale del intervalo de los números del "
    "programa";

// T and its powers, each taken once, as the general power function gives them.
struct Potencias {
    double T, T2, T3, T4, lnT;
    explicit Potencias(double t) : T(t), lnT(std::log(t)) { PotenciasComoPow(t, T2, T3, T4); }
};

// The double nearest to hi + lo (lo small beside hi) when it is certainly
// what pow returns for the exact value hi + lo, 0 when it is not certain.
// pow is within 0.509 ulp (its exponential) plus y·ln x·2^-15 ulp (its
// logarithm) of the exact power: below 0.512 ulp for these powers of any
// temperature up to 10^9 K. So when the exact value lies within 0.45 ulp of a
// double that is not a power of two (whose neighbours are then a whole ulp
// away on both sides, at least 0.55 ulp from the exact value), pow gives that
// double.
double Redondeo(double hi, double lo) {
    const double r = hi + lo;
    if (!(r > 0x1p-900 && r < 0x1p120)) return 0;
    const auto bits = std::bit_cast<std::uint64_t>(r);
    constexpr std::uint64_t kExponente = 0x7FF0000000000000, kMantisa = 0x000FFFFFFFFFFFFF;
    if ((bits & kMantisa) == 0) return 0;
    const double ulp = std::bit_cast<double>(bits & kExponente) * 0x1p-52;
    const double resto = (hi - r) + lo;  // hi - r is exact: r is within an ulp of hi
    return std::fabs(resto) <= 0.45 * ulp ? r : 0;
}

inline double Cp(const Potencias& p, const Coeficientes& c) {
    return kR * (c.a1 + c.a2 * p.T + c.a3 * p.T2 + c.a4 * p.T3 + c.a5 * p.T4);
}
inline double Entalpia(const Potencias& p, const Coeficientes& c) {
    return (kR * p.T) *
           (c.a1 + c.a2 * p.T / 2 + c.a3 * p.T2 / 3 + c.a4 * p.T3 / 4 + c.a5 * p.T4 / 5 + c.a6 / p.T);
}
inline double Entropia(const Potencias& p, const Coeficientes& c) {
    return kR * (c.a1 * p.lnT + c.a2 * p.T + c.a3 * p.T2 / 2 + c.a4 * p.T3 / 3 + c.a5 * p.T4 / 4 + c.a7);
}

// The values of a range into the state's variables of that range.
#define VANTA_GUARDAR_RANGO(R)                                                                      \
    void GuardarVariables##R(Estado& e, const EspeciesEvaluadas::Rango& v) {                        \
        e.CpAr##R = v.cp[Ar], e.CpCO##R = v.cp[CO], e.CpCO2##R = v.cp[CO2], e.CpH2O##R = v.cp[H2O]; \
        e.CpN2##R = v.cp[N2], e.CpO2##R = v.cp[O2];                                                 \
        e.hAr##R = v.h[Ar], e.hCO##R = v.h[CO], e.hCO2##R = v.h[CO2], e.hH2O##R = v.h[H2O];         \
        e.hN2##R = v.h[N2], e.hO2##R = v.h[O2];                                                     \
        e.S0Ar##R = v.s0[Ar], e.S0CO##R = v.s0[CO], e.S0CO2##R = v.s0[CO2], e.S0H2O##R = v.s0[H2O]; \
        e.S0N2##R = v.s0[N2], e.S0O2##R = v.s0[O2];                                                 \
    }
VANTA_GUARDAR_RANGO(Baja)
VANTA_GUARDAR_RANGO(Alta)
#undef VANTA_GUARDAR_RANGO

// The order of evaluation of the program: Ar, H2O, O2, CO, CO2, N2.
constexpr Especie kOrden[kNumeroEspecies] = {Ar, H2O, O2, CO, CO2, N2};

}  // namespace

void PotenciasComoPow(double x, double& x2, double& x3, double& x4) {
    // x² = a + ea exactly; x³ = x·a + x·ea, with x·a = b + eb exactly; x⁴ =
    // a² + 2·a·ea + ea², with a² = c + ec exactly. The terms left out are
    // some 2^-100 of the power, far below the margin of Redondeo.
    const double a = x * x, ea = std::fma(x, x, -a);
    const double b = x * a, eb = std::fma(x, a, -b);
    const double c = a * a, ec = std::fma(a, a, -c);
    x2 = Redondeo(a, ea);
    x3 = Redondeo(b, eb + x * ea);
    x4 = Redondeo(c, ec + 2 * a * ea);
    if (x2 == 0) x2 = std::pow(x, 2.0);
    if (x3 == 0) x3 = std::pow(x, 3.0);
    if (x4 == 0) x4 = std::pow(x, 4.0);
}

double PolinomioCp(const Estado& e, double a1, double a2, double a3, double a4, double a5) {
    return Cp(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, 0, 0});
}
double PolinomioEntalpia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a6) {
    return Entalpia(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, a6, 0});
}
double PolinomioEntropia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a7) {
    return Entropia(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, 0, a7});
}

void CalcularEspecies(Estado& e, Mensajes& msj) {
    if (e.Temperatura > kTemperaturaLimite) {
        e.ErrorCalculo = true;
        msj.MsgBox(std::string(kMensajeLimite) +
                   Format(e.Temperatura, "### ### ### ### ### ###", e.SeparadorDecimal) + " K");
    }
    if (e.ErrorCalculo) return;
    // Below zero the logarithm and the enthalpy's a6/T have no value.
    if (!(e.Temperatura > 0)) {
        FalloAritmetico(e, msj, kCausaTemperaturaNoPositiva);
        return;
    }
    // The last values stored were taken at this very temperature.
    if (e.Temperatura == e.especies.temperatura) return;
    const bool baja = RangoBajo(e.Temperatura);
    const Coeficientes* coef = baja ? kCoeficientesBaja : kCoeficientesAlta;
    const Potencias p(e.Temperatura);
    EspeciesEvaluadas::Rango v;
    // A temperature a hair above zero takes a6/T of the enthalpy beyond the
    // doubles; nothing is stored then.
    double sumaH = 0;
    for (Especie s : kOrden) sumaH += v.h[s] = Entalpia(p, coef[s]);
    if (!std::isfinite(sumaH)) {
        FalloAritmetico(e, msj, kCausaTemperaturaFueraDeRango);
        return;
    }
    for (Especie s : kOrden) v.cp[s] = Cp(p, coef[s]);
    for (Especie s : kOrden) v.s0[s] = Entropia(p, coef[s]);
    if (baja) {
        e.especies.baja = v;
        GuardarVariablesBaja(e, v);
    } else {
        e.especies.alta = v;
        GuardarVariablesAlta(e, v);
    }
    e.especies.temperatura = e.Temperatura;
}

const ValoresEspecies& LeerEspecies(const Estado& e, bool rangoBajo) {
    return rangoBajo ? e.especies.baja : e.especies.alta;
}

}  // namespace vanta
