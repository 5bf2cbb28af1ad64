#include "core/warnings/CicloIdeal.h"

#include <cmath>

#include "core/properties/Especies.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

constexpr double kPorCiento = 0.01;

bool Positivo(double x) {
    return std::isfinite(x) && x > 0;
}

// ln(pa/pb)/ln(Vb/Va); 0 when it has no value.
double Exponente(double pa, double pb, double Va, double Vb) {
    if (!Positivo(pa) || !Positivo(pb) || !Positivo(Va) || !Positivo(Vb) || Va == Vb) return 0;
    const double n = std::log(pa / pb) / std::log(Vb / Va);
    return std::isfinite(n) ? n : 0;
}

}  // namespace

double RendimientoOttoIdeal(double Rc, double gamma) {
    return 1 - std::pow(Rc, 1 - gamma);
}

double ExponenteMedioCompresion(const Estado& e) {
    return Exponente(e.p2, e.p1, e.V2, e.V1);
}

double ExponenteMedioExpansion(const Estado& e) {
    return Exponente(e.p4, e.p5, e.V4, e.V5);
}

CicloIdeal CalcularCicloIdeal(const Estado& e, double gammaCompresion, double gammaExpansion) {
    CicloIdeal c{.valido = false, .gammaCompresion = gammaCompresion, .gammaExpansion = gammaExpansion};
    const double Q = e.Qciclo, Rc = e.Rc, T1 = e.T1, p1 = e.p1, V1 = e.V1;
    if (!Positivo(Q) || !(Rc > 1) || !Positivo(T1) || !Positivo(p1) || !Positivo(V1) ||
        !(gammaCompresion > 1) || !(gammaExpansion > 1))
        return c;
    // The moles of the charge, as the states of the calculation carry them.
    const double n = p1 * V1 / (kR * T1);
    const double cv = kR / (gammaExpansion - 1), cp = gammaExpansion * cv;

    const double V2 = V1 / Rc;
    const double T2 = T1 * std::pow(Rc, gammaCompresion - 1);
    const double p2 = p1 * std::pow(Rc, gammaCompresion);
    const double W12 = n * kR * (T1 - T2) / (gammaCompresion - 1);

    // The heat at constant volume, by the kind of cycle and its inputs.
    double Q23 = 0;
    if (e.TipoCiclo == "Otto") {
        Q23 = Q;
    } else if (e.TipoCiclo == "Mixto") {
        if (e.OpcionProporcion) {
            Q23 = e.PropVcte * kPorCiento * Q;
        } else {
            if (!(e.Pmax >= p2)) return c;
            Q23 = std::min(Q, n * cv * T2 * (e.Pmax / p2 - 1));
        }
    } else if (e.TipoCiclo != "Diesel") {
        return c;
    }
    const double T3 = T2 + Q23 / (n * cv);
    const double p3 = p2 * T3 / T2;
    const double T4 = T3 + (Q - Q23) / (n * cp);
    const double V4 = V2 * T4 / T3;
    if (V4 > V1) return c;
    const double W34 = p3 * (V4 - V2);
    const double T5 = T4 * std::pow(V4 / V1, gammaExpansion - 1);
    const double W45 = n * kR * (T4 - T5) / (gammaExpansion - 1);

    c.rendimiento = (W12 + W34 + W45) / Q;
    c.valido = std::isfinite(c.rendimiento);
    return c;
}

std::string NombreCicloIdeal(const Estado& e) {
    return e.TipoCiclo + " ideal";
}

std::string ExplicacionCicloIdeal(const Estado& e, char separador) {
    return "El ciclo " + NombreCicloIdeal(e) +
           " de aire estándar (γ = " + TextoGeneral(kGammaAireEstandar, separador) +
           "): el mismo tipo de ciclo con la misma relación de compresión, el mismo estado 1 y el mismo "
           "calor "
           "aportado (y su reparto), en un gas perfecto. Con esos datos ningún ciclo rinde más: es el que "
           "«Ayuda › Validación» compara con el del programa, que ha de ser menor.";
}

DistanciaIdeal DistanciaAlIdeal(const Estado& e) {
    return {.aireEstandar = CalcularCicloIdeal(e, kGammaAireEstandar, kGammaAireEstandar),
            .exponentes = CalcularCicloIdeal(e, ExponenteMedioCompresion(e), ExponenteMedioExpansion(e)),
            .rendimiento = e.Rendimiento};
}

}  // namespace vanta
