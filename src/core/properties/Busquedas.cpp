#include "core/properties/Busquedas.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "core/services/Fallos.h"

namespace vanta {

namespace {

// The mean-gamma search converges in a handful of passes; far more means the
// exponent does not settle.
constexpr int kPasosMaximosGammaMedio = 1000;
constexpr double kToleranciaGammaMedio = 0.001;

constexpr std::string_view kMensajeNoConverge =
    "No se ha podido hallar el exponente adiabático medio: la búsqueda no converge. Revise los datos del "
    "ciclo.";
constexpr std::string_view kCausaSinSalto =
    "el volumen final es igual al inicial y el exponente medio no se puede hallar";
constexpr std::string_view kCausaExponente =
    "el exponente adiabático medio sale del intervalo de los números del programa";

// The fluid of TipoFluido, evaluated: cp, h, cv and s. False for a kind that
// is none of the three.
struct Propiedades {
    double cp, h, cv, s;
    bool conCv;  // the blend has no cv of its own
};

bool Evaluar(Estado& e, Mensajes& msj, Propiedades& f) {
    switch (e.TipoFluido) {
        case Fluido::Aire:
            PropiedadesAire(e, msj);
            f = {e.CpAire, e.hAire, e.CvAire, e.SAire, true};
            return true;
        case Fluido::Humos:
            PropiedadesHumos(e, msj);
            f = {e.CpHumos, e.hHumos, e.CvHumos, e.SHumos, true};
            return true;
        case Fluido::AireHumos:
            PropiedadesAireHumos(e, msj);
            f = {e.CpMezcla, e.hMezcla, 0, e.SMezcla, false};
            return true;
        default:
            return false;
    }
}

}  // namespace

bool CalcularTemperaturaPolitropica(Estado& e, double T1, double V1, double V2, double n) {
    const double T = T1 * std::pow(V1 / V2, n - 1);
    if (!std::isfinite(T)) return false;
    e.TemperaturaPolitropica = T;
    return true;
}

bool CalcularPresionPolitropica(Estado& e, double p1, double V1, double V2, double n) {
    const double p = p1 * std::pow(V1 / V2, n);
    const double trabajo = (p1 * V1 - p * V2) / (n - 1);
    if (!std::isfinite(p) || !std::isfinite(trabajo)) return false;
    e.PresionPolitropica = p;
    e.TrabajoTransformacion = trabajo;
    return true;
}

void TrabajoIsobarico(Estado& e, double p, double V1, double V2) {
    e.TrabajoTransformacion = p * (V2 - V1);
}

void VolumenIsobarico(Estado& e, double V1, double T1, double T2) {
    e.VolumenProporcional = V1 * T2 / T1;
}

void PropiedadesInicio(Estado& e, Mensajes& msj) {
    if (e.ErrorCalculo) return;
    e.Qtransformacion = 0;
    Propiedades f{};
    if (Evaluar(e, msj, f)) {
        e.CpInicial = f.cp;
        e.hInicial = f.h;
        if (f.conCv) e.uInicial = f.cv * e.TemperaturaInicial;
        e.SInicial = f.s;
    } else {
        msj.MsgBox(kMensajeFluidoInicio);
    }
    e.GammaInicial = e.Gamma;
}

void PropiedadesFin(Estado& e, Mensajes& msj, double Calor, double Trabajo) {
    if (e.ErrorCalculo) return;
    e.Temperatura = e.TemperaturaFinal;
    Propiedades f{};
    if (Evaluar(e, msj, f)) {
        e.CpFinal = f.cp;
        e.hFinal = f.h;
        if (f.conCv) e.uFinal = f.cv * e.TemperaturaFinal;
        e.SFinal = f.s;
    } else {
        msj.MsgBox(kMensajeFluidoFin);
    }
    e.TrabajoPaso = 0;
    e.GammaFinal = e.Gamma;
    // Wciclo holds the work of the last transformation until the closing sums.
    e.Wciclo = Trabajo;
    e.Qtransformacion = Calor;
}

void PonerEstadoInicial(Estado& e, Mensajes& msj, double p, double V, double T, double h, double s) {
    e.PresionInicial = p;
    e.VolumenInicial = V;
    e.TemperaturaInicial = T;
    e.EntalpiaInicial = h;
    e.EntropiaInicial = s;
    e.Presion = p;
    e.Volumen = V;
    e.Temperatura = T;
    PropiedadesInicio(e, msj);
}

void PonerEstadoFinal(Estado& e, Mensajes& msj, double Calor, double Trabajo, double p, double V, double T) {
    e.PresionFinal = p;
    e.VolumenFinal = V;
    e.TemperaturaFinal = T;
    e.Presion = p;
    e.Volumen = V;
    e.Temperatura = T;
    PropiedadesFin(e, msj, Calor, Trabajo);
    e.EntalpiaFinal = e.hFinal;
    e.EntropiaFinal = e.SFinal;
}

void FinalAInicial(Estado& e) {
    e.PresionInicial = e.PresionFinal;
    e.VolumenInicial = e.VolumenFinal;
    e.TemperaturaInicial = e.TemperaturaFinal;
}

void LeerEstadoFinal(const Estado& e, double& p, double& V, double& T, double& h, double& s) {
    p = e.PresionFinal;
    V = e.VolumenFinal;
    T = e.TemperaturaFinal;
    h = e.EntalpiaFinal;
    s = e.EntropiaFinal;
}

void CopiarCincoValores(double& d1, double s1, double& d2, double s2, double& d3, double s3, double& d4,
                        double s4, double& d5, double s5) {
    d1 = s1;
    d2 = s2;
    d3 = s3;
    d4 = s4;
    d5 = s5;
}

void BuscarGammaMedio(Estado& e, Mensajes& msj, double p1, double V1, double V2, double T1, Fluido fluido) {
    if (e.ErrorCalculo) return;
    PropiedadesInicio(e, msj);
    e.hInicioBusqueda = e.hInicial;
    // The first estimate starts from the record, the later ones from T1, V1.
    if (!CalcularTemperaturaPolitropica(e, e.TemperaturaInicial, e.VolumenInicial, V2, e.Gamma))
        return FalloAritmetico(e, msj, kCausaPolitropicaFueraDeRango);
    e.Temperatura = e.TemperaturaPolitropica;
    e.TemperaturaAnterior = e.TemperaturaPolitropica + 10.0;
    double gammaMedio = e.GammaMedio.Numero();
    int& pasos = fluido == Fluido::Aire ? e.pasadas.aire : e.pasadas.humos;
    pasos = 0;
    while (std::fabs(e.TemperaturaAnterior - e.TemperaturaPolitropica) > kToleranciaGammaMedio) {
        if (++pasos > kPasosMaximosGammaMedio || !std::isfinite(e.TemperaturaPolitropica)) {
            if (!e.ErrorCalculo) msj.MsgBox(kMensajeNoConverge);
            e.ErrorCalculo = true;
            return;
        }
        e.TemperaturaAnterior = e.TemperaturaPolitropica;
        if (fluido == Fluido::Aire) {
            PropiedadesAire(e, msj);
            e.hBusqueda = e.hAire;
        } else if (fluido == Fluido::Humos) {
            PropiedadesHumos(e, msj);
            e.hBusqueda = e.hHumos;
        }
        if (e.Temperatura == T1) {
            FalloAritmetico(e, msj, kCausaSinSalto);
            return;
        }
        e.CpMedio = (e.hBusqueda - e.hInicioBusqueda) / (e.Temperatura - T1);
        gammaMedio = e.CpMedio / (e.CpMedio - kR);
        if (!std::isfinite(gammaMedio)) {
            FalloAritmetico(e, msj, kCausaExponente);
            return;
        }
        e.GammaMedio = gammaMedio;
        if (!CalcularTemperaturaPolitropica(e, T1, V1, V2, gammaMedio))
            return FalloAritmetico(e, msj, kCausaPolitropicaFueraDeRango);
        e.Temperatura = e.TemperaturaPolitropica;
    }
    if (!CalcularPresionPolitropica(e, p1, V1, V2, gammaMedio))
        return FalloAritmetico(e, msj, kCausaPolitropicaFueraDeRango);
    e.Temperatura = e.TemperaturaPolitropica;
    PropiedadesFin(e, msj, 0, e.W45acumulado);
}

void ActualizarMaximos(Estado& e) {
    // Compared in single precision. A figure beyond its range counts as the
    // largest single: converting it as it stands is undefined.
    auto subir = [](float& maximo, double valor) {
        constexpr double kMayor = std::numeric_limits<float>::max();
        const float v = static_cast<float>(std::clamp(valor, -kMayor, kMayor));
        if (v > maximo) maximo = v;
    };
    subir(e.PresionMaxima, e.PresionInicial);
    subir(e.PresionMaxima, e.PresionFinal);
    subir(e.TemperaturaMaxima, e.TemperaturaInicial);
    subir(e.TemperaturaMaxima, e.TemperaturaFinal);
    subir(e.EntalpiaMaxima, e.hInicial);
    subir(e.EntalpiaMaxima, e.hFinal);
    subir(e.EntropiaMaxima, e.SInicial);
    subir(e.EntropiaMaxima, e.SFinal);
}

}  // namespace vanta
