#include "core/properties/Mezclas.h"

#include <cmath>

#include "core/properties/Especies.h"
#include "core/services/Fallos.h"

namespace vanta {

namespace {

constexpr std::string_view kCausaFraccionAire =
    "una fracción molar del aire (O2, Ar, CO2 o N2) no es positiva; revise la humedad y la presión ambiente";
constexpr std::string_view kCausaFraccionHumos =
    "una fracción molar de los gases de combustión (CO2, Ar o N2) no es positiva";
constexpr std::string_view kCausaPresionNegativa = "la presión del gas es negativa";
constexpr std::string_view kCausaFueraDeRango =
    "las propiedades del gas salen del intervalo de los números del programa";
constexpr std::string_view kCausaSinCalor =
    "el calor del ciclo es cero y no se puede repartir entre aire y gases";
constexpr std::string_view kCausaLinealIgual =
    "los dos extremos del reparto lineal entre aire y gases coinciden";

// ln x of a fraction, taken again only when the fraction changed.
inline double Ln(LogaritmosFracciones::Entrada& memoria, double x) {
    if (x != memoria.x) {
        memoria.x = x;
        memoria.ln = std::log(x);
    }
    return memoria.ln;
}

// x·(s0 − R·ln x): the entropy of a species at 1 bar with its mixing term.
inline double TerminoS0(double x, double s0, LogaritmosFracciones::Entrada& memoria) {
    return x * (s0 - kR * Ln(memoria, x));
}
// The same at the pressure p.
inline double TerminoS(double x, double s0, double p) {
    return x * (s0 - kR * std::log(x * p / kPresionReferencia));
}

bool Finitos(std::initializer_list<double> valores) {
    for (double v : valores)
        if (!std::isfinite(v)) return false;
    return true;
}

// The species of the range of the record's temperature, after CalcularEspecies.
const ValoresEspecies& Especies(const Estado& e) {
    return LeerEspecies(e, RangoBajo(e.Temperatura));
}

// The blend as a linear weighting of molar properties by x.
void Mezclar(Estado& e, Mensajes& msj, double x) {
    const double cp = (1 - x) * e.CpAire + x * e.CpHumos;
    const double h = (1 - x) * e.hAire + x * e.hHumos;
    const double s0 = (1 - x) * e.S0Aire + x * e.S0Humos;
    const double s = (1 - x) * e.SAire + x * e.SHumos;
    if (!Finitos({cp, h, s0, s})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return;
    }
    e.CpMezcla = cp;
    e.hMezcla = h;
    e.S0Mezcla = s0;
    if (e.Presion != 0) e.SMezcla = s;
}

}  // namespace

void CalcularCvGamma(Estado& e, double Cp) {
    e.CvActual = Cp - kR;
    e.GammaActual = Cp / e.CvActual;
}

void PropiedadesAire(Estado& e, Mensajes& msj) {
    if (e.ErrorCalculo) return;
    CalcularEspecies(e, msj);
    // O2, Ar, CO2 and N2 come with the air and go to the logarithm unguarded:
    // a fraction that is not positive stops the calculation here.
    if (!(e.xO2Aire > 0 && e.xArAire > 0 && e.xCO2Aire > 0 && e.xN2Aire > 0)) {
        FalloAritmetico(e, msj, kCausaFraccionAire);
        return;
    }
    if (e.Presion < 0) {
        FalloAritmetico(e, msj, kCausaPresionNegativa);
        return;
    }
    const ValoresEspecies& v = Especies(e);
    const double P = e.Presion;
    const double cp = v.cp[H2O] * e.xH2OAire + v.cp[Ar] * e.xArAire + v.cp[O2] * e.xO2Aire +
                      v.cp[CO2] * e.xCO2Aire + v.cp[N2] * e.xN2Aire;
    const double h = v.h[H2O] * e.xH2OAire + v.h[Ar] * e.xArAire + v.h[O2] * e.xO2Aire +
                     v.h[CO2] * e.xCO2Aire + v.h[N2] * e.xN2Aire;
    auto* ln = e.logaritmos.aire;
    double s0 = TerminoS0(e.xO2Aire, v.s0[O2], ln[0]) + TerminoS0(e.xArAire, v.s0[Ar], ln[1]) +
                TerminoS0(e.xCO2Aire, v.s0[CO2], ln[2]) + TerminoS0(e.xN2Aire, v.s0[N2], ln[3]);
    // Dry air has no water term, and no logarithm of zero.
    if (e.xH2OAire > 0) s0 += (v.s0[H2O] - kR * Ln(ln[4], e.xH2OAire)) * e.xH2OAire;
    double s = e.SAire;
    if (P != 0) {
        s = TerminoS(e.xO2Aire, v.s0[O2], P) + TerminoS(e.xArAire, v.s0[Ar], P) +
            TerminoS(e.xCO2Aire, v.s0[CO2], P) + TerminoS(e.xN2Aire, v.s0[N2], P);
        if (e.xH2OAire > 0) s += TerminoS(e.xH2OAire, v.s0[H2O], P);
    }
    if (!Finitos({cp, h, s0, s, cp / (cp - kR)})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return;
    }
    e.CpAire = cp;
    CalcularCvGamma(e, cp);
    e.CvAire = e.CvActual;
    e.Gamma = e.GammaActual;
    e.hAire = h;
    e.S0Aire = s0;
    e.SAire = s;  // with Presion exactly 0 it keeps its old value
}

void PropiedadesHumos(Estado& e, Mensajes& msj) {
    if (e.ErrorCalculo) return;
    CalcularEspecies(e, msj);
    if (!(e.xCO2Humos > 0 && e.xArHumos > 0 && e.xN2Humos > 0)) {
        FalloAritmetico(e, msj, kCausaFraccionHumos);
        return;
    }
    if (e.Presion < 0) {
        FalloAritmetico(e, msj, kCausaPresionNegativa);
        return;
    }
    const bool baja = RangoBajo(e.Temperatura);
    const ValoresEspecies& v = Especies(e);
    const double P = e.Presion;
    const double cp = v.cp[O2] * e.xO2Humos + v.cp[Ar] * e.xArHumos + v.cp[H2O] * e.xH2OHumos +
                      v.cp[CO] * e.xCOHumos + v.cp[CO2] * e.xCO2Humos + v.cp[N2] * e.xN2Humos;
    // Above 1000 K the O2 term is absent from the enthalpy: the searches live
    // with that step, and so does every result.
    const double h = baja ? v.h[H2O] * e.xH2OHumos + v.h[O2] * e.xO2Humos + v.h[CO] * e.xCOHumos +
                                v.h[CO2] * e.xCO2Humos + v.h[N2] * e.xN2Humos + v.h[Ar] * e.xArHumos
                          : v.h[H2O] * e.xH2OHumos + v.h[Ar] * e.xArHumos + v.h[CO] * e.xCOHumos +
                                v.h[CO2] * e.xCO2Humos + v.h[N2] * e.xN2Humos;
    auto* ln = e.logaritmos.humos;
    double s0 = TerminoS0(e.xCO2Humos, v.s0[CO2], ln[0]) + TerminoS0(e.xArHumos, v.s0[Ar], ln[1]) +
                TerminoS0(e.xN2Humos, v.s0[N2], ln[2]);
    if (e.xH2OHumos > 0) s0 += TerminoS0(e.xH2OHumos, v.s0[H2O], ln[3]);
    if (e.xCOHumos > 0) s0 += TerminoS0(e.xCOHumos, v.s0[CO], ln[4]);
    if (e.xO2Humos > 0) s0 += TerminoS0(e.xO2Humos, v.s0[O2], ln[5]);
    double s = e.SHumos;
    if (P != 0) {
        s = TerminoS(e.xCO2Humos, v.s0[CO2], P) + TerminoS(e.xArHumos, v.s0[Ar], P) +
            TerminoS(e.xN2Humos, v.s0[N2], P);
        if (e.xH2OHumos > 0) s += TerminoS(e.xH2OHumos, v.s0[H2O], P);
        if (e.xCOHumos > 0) s += TerminoS(e.xCOHumos, v.s0[CO], P);
        if (e.xO2Humos > 0) s += TerminoS(e.xO2Humos, v.s0[O2], P);
    }
    if (!Finitos({cp, h, s0, s, cp / (cp - kR)})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return;
    }
    if (baja) {
        // Below 1000 K the gases keep the cv and the ratio of the latest
        // evaluation that computed them: the air's, or the gases' above 1000 K.
        e.Gamma = e.GammaActual;
        e.CvHumos = e.CvActual;
    }
    e.CpHumos = cp;
    if (!baja) {
        CalcularCvGamma(e, cp);
        e.CvHumos = e.CvActual;
        e.Gamma = e.GammaActual;
    }
    e.hHumos = h;
    e.S0Humos = s0;
    e.SHumos = s;
}

void PropiedadesAireHumos(Estado& e, Mensajes& msj) {
    if (e.ErrorCalculo) return;
    PropiedadesAire(e, msj);
    PropiedadesHumos(e, msj);
    if (e.Qciclo == 0) {
        FalloAritmetico(e, msj, kCausaSinCalor);
        return;
    }
    e.FraccionHumos = e.Q23 / e.Qciclo;
    Mezclar(e, msj, e.FraccionHumos);
}

void PropiedadesAireHumosFraccion(Estado& e, Mensajes& msj, double x) {
    if (e.ErrorCalculo) return;
    PropiedadesAire(e, msj);
    PropiedadesHumos(e, msj);
    Mezclar(e, msj, x);
}

void PropiedadesAireHumosLineal(Estado& e, Mensajes& msj, double Valor1, double Valor2, double Valor3) {
    if (e.ErrorCalculo) return;
    PropiedadesAire(e, msj);
    PropiedadesHumos(e, msj);
    if (Valor1 == Valor2) {
        FalloAritmetico(e, msj, kCausaLinealIgual);
        return;
    }
    e.FraccionHumos = (Valor3 - Valor2) / (Valor1 - Valor2);
    Mezclar(e, msj, e.FraccionHumos);
}

}  // namespace vanta
