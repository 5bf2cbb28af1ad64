#include "core/properties/Especies.h"

#include <cmath>
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

// T and its powers, each power taken once by the general power function.
struct Potencias {
    double T, T2, T3, T4, lnT;
    explicit Potencias(double t)
        : T(t), T2(std::pow(t, 2.0)), T3(std::pow(t, 3.0)), T4(std::pow(t, 4.0)), lnT(std::log(t)) {}
};

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

// Where each range keeps its values, by species.
struct CamposRango {
    double Estado::*cp[kNumeroEspecies];
    double Estado::*h[kNumeroEspecies];
    double Estado::*s0[kNumeroEspecies];
};
const CamposRango kCamposBaja = {
    {&Estado::CpArBaja, &Estado::CpCOBaja, &Estado::CpCO2Baja, &Estado::CpH2OBaja, &Estado::CpN2Baja,
     &Estado::CpO2Baja},
    {&Estado::hArBaja, &Estado::hCOBaja, &Estado::hCO2Baja, &Estado::hH2OBaja, &Estado::hN2Baja,
     &Estado::hO2Baja},
    {&Estado::S0ArBaja, &Estado::S0COBaja, &Estado::S0CO2Baja, &Estado::S0H2OBaja, &Estado::S0N2Baja,
     &Estado::S0O2Baja},
};
const CamposRango kCamposAlta = {
    {&Estado::CpArAlta, &Estado::CpCOAlta, &Estado::CpCO2Alta, &Estado::CpH2OAlta, &Estado::CpN2Alta,
     &Estado::CpO2Alta},
    {&Estado::hArAlta, &Estado::hCOAlta, &Estado::hCO2Alta, &Estado::hH2OAlta, &Estado::hN2Alta,
     &Estado::hO2Alta},
    {&Estado::S0ArAlta, &Estado::S0COAlta, &Estado::S0CO2Alta, &Estado::S0H2OAlta, &Estado::S0N2Alta,
     &Estado::S0O2Alta},
};

// The order of evaluation of the program: Ar, H2O, O2, CO, CO2, N2.
constexpr Especie kOrden[kNumeroEspecies] = {Ar, H2O, O2, CO, CO2, N2};

}  // namespace

double PolinomioCp(const Estado& e, double a1, double a2, double a3, double a4, double a5) {
    return Cp(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, 0, 0});
}
double PolinomioEntalpia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a6) {
    return Entalpia(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, a6, 0});
}
double PolinomioEntropia(const Estado& e, double a1, double a2, double a3, double a4, double a5, double a7) {
    return Entropia(Potencias(e.Temperatura), {a1, a2, a3, a4, a5, 0, a7});
}

void CalcularEspecies(Estado& e, Dialogos& dlg) {
    if (e.Temperatura > kTemperaturaLimite) {
        e.ErrorCalculo = Verdadero;
        dlg.MsgBox(std::string(kMensajeLimite) +
                   Format(e.Temperatura, "### ### ### ### ### ###", e.SeparadorDecimal) + " K");
    }
    if (e.ErrorCalculo) return;
    // Below zero the logarithm and the enthalpy's a6/T have no value.
    if (!(e.Temperatura > 0)) {
        FalloAritmetico(e, dlg, kCausaTemperaturaNoPositiva);
        return;
    }
    const bool baja = RangoBajo(e.Temperatura);
    const Coeficientes* coef = baja ? kCoeficientesBaja : kCoeficientesAlta;
    const CamposRango& campos = baja ? kCamposBaja : kCamposAlta;
    const Potencias p(e.Temperatura);
    // A temperature a hair above zero takes a6/T of the enthalpy beyond the
    // doubles; nothing is stored then.
    double h[kNumeroEspecies], sumaH = 0;
    for (Especie s : kOrden) sumaH += h[s] = Entalpia(p, coef[s]);
    if (!std::isfinite(sumaH)) {
        FalloAritmetico(e, dlg, kCausaTemperaturaFueraDeRango);
        return;
    }
    for (Especie s : kOrden) e.*campos.cp[s] = Cp(p, coef[s]);
    for (Especie s : kOrden) e.*campos.h[s] = h[s];
    for (Especie s : kOrden) e.*campos.s0[s] = Entropia(p, coef[s]);
}

ValoresEspecies LeerEspecies(const Estado& e, bool rangoBajo) {
    const CamposRango& campos = rangoBajo ? kCamposBaja : kCamposAlta;
    ValoresEspecies v;
    for (int s = 0; s < kNumeroEspecies; ++s) {
        v.cp[s] = e.*campos.cp[s];
        v.h[s] = e.*campos.h[s];
        v.s0[s] = e.*campos.s0[s];
    }
    return v;
}

}  // namespace vanta
