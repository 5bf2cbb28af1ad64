#include "core/cycle/Transformaciones.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include "core/properties/Busquedas.h"
#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "core/services/Fallos.h"

namespace vanta {

namespace {

constexpr std::string_view kMensajeModelo = "Error interno Vanta:  Gmedio_1_Poli_2_Gvariable_3";
constexpr std::string_view kMensajeTemperaturaIsobara =
    " Ha superado la temperatura máxima admitida por el programa ";
constexpr std::string_view kMensajeVolumenExcesivo =
    "No es posible este ciclo, el volumen final, sin sobrepasar la presión máxima, es excesivamente grande";
constexpr std::string_view kMensajeIsocoraNoConverge =
    "No se ha podido hallar la temperatura de la combustión a volumen constante: la búsqueda no converge. "
    "Revise los datos del ciclo.";
constexpr std::string_view kMensajePmaxNoConverge =
    "No se ha podido hallar el grado de combustión que alcanza la presión máxima: la búsqueda no converge. "
    "Revise la presión máxima.";
constexpr std::string_view kMensajeIsobaraNoConverge =
    "No se ha podido hallar la temperatura del final de la combustión a presión constante: la búsqueda no "
    "converge. Revise los datos del ciclo.";
constexpr std::string_view kCausaMoles = "una masa molecular del fluido es cero";
constexpr std::string_view kCausaMolesFueraDeRango =
    "los moles del ciclo salen del intervalo de los números del programa; revise la masa molecular del "
    "combustible";
constexpr std::string_view kCausaSinMoles = "el ciclo no tiene moles de gases";
constexpr std::string_view kCausaCvNulo = "el calor específico de los gases es cero";
constexpr std::string_view kCausaFraccionQuemada =
    "la presión del gas quemado es igual a la del gas fresco y el grado de combustión no se puede hallar";
constexpr std::string_view kCausaEstadoInicial = "el estado del comienzo de la combustión no es válido";
constexpr std::string_view kCausaCombustionFueraDeRango =
    "las presiones o el calor por mol de la combustión salen del intervalo de los números del programa; "
    "revise "
    "la cilindrada y el combustible";
constexpr std::string_view kCausaPasoNulo =
    "el paso de volumen es tan pequeño frente al volumen que la carrera no avanza; revise la cilindrada y la "
    "relación de compresión";

// Each search converges long before these bounds; beyond them it would never end.
constexpr int kPasosMaximosIsocora = 10000;
constexpr int kPasosMaximosPmax = 2000;
constexpr int kProfundidadMaximaIsobara = 200;
constexpr double kTemperaturaSuperiorIsobara = 5000;

float F(double v) {
    return static_cast<float>(v);
}

void PuntoEnDiagramas(Diagramas& g, double V, double T, double p, double s, double h) {
    g.pctTV.PSet(F(V), F(-T));
    g.pctPV.PSet(F(V), F(-p));
    g.pctTS.PSet(F(s), F(-T));
    g.pctHS.PSet(F(s), F(-h));
}

void LineaEnDiagramas(Diagramas& g, double V, double T, double p, double s, double h) {
    g.pctTV.Line(F(V), F(-T));
    g.pctPV.Line(F(V), F(-p));
    g.pctTS.Line(F(s), F(-T));
    g.pctHS.Line(F(s), F(-h));
}

void LineaEntropia(Diagramas& g, double s, double T, double h) {
    g.pctTS.Line(F(s), F(-T));
    g.pctHS.Line(F(s), F(-h));
}

void LineaVolumen(Diagramas& g, double V, double T, double p) {
    g.pctTV.Line(F(V), F(-T));
    g.pctPV.Line(F(V), F(-p));
}

// The exponent of the walk's next step by the model.
void ExponentePaso(Estado& e, Modelo modelo, double exponente) {
    if (modelo == Modelo::GammaMedio)
        e.Gamma = e.GammaMedio.Numero();
    else if (modelo == Modelo::Politropico)
        e.Gamma = exponente;
}

// The exponent at the start of a stroke, of air or of the gases.
void ExponenteInicial(Estado& e, Mensajes& msj, Modelo modelo, double volumenFinal, double exponente,
                      Fluido fluido) {
    if (modelo == Modelo::GammaMedio) {
        BuscarGammaMedio(e, msj, e.PresionInicial, e.VolumenInicial, volumenFinal, e.TemperaturaInicial,
                         fluido);
        e.Gamma = e.GammaMedio.Numero();
    } else if (modelo == Modelo::Politropico) {
        e.GammaInicial = " N.D.";
        e.Gamma = exponente;
    } else if (modelo != Modelo::GammaVariable) {
        msj.MsgBox(kMensajeModelo);
    }
}

void PonerInicioDesdeFinal(Estado& e, Mensajes& msj) {
    PonerEstadoInicial(e, msj, e.PresionFinal, e.VolumenFinal, e.TemperaturaFinal, e.EntalpiaFinal,
                       e.EntropiaFinal);
}

// A step below half the spacing of the doubles at the volume (a compression
// ratio a hair above 1, a volume near the smallest double) leaves the volume
// where it was, and the walk would never end.
bool AvanzaLaCarrera(Estado& e, Mensajes& msj) {
    if (e.VolumenProporcional != e.Volumen) return true;
    FalloAritmetico(e, msj, kCausaPasoNulo);
    return false;
}

// One polytropic step from the record's current state to V, with its work.
// False, with the calculation stopped, when a figure leaves the doubles.
bool PasoPolitropico(Estado& e, Mensajes& msj, double V, double& acumulado) {
    if (!CalcularTemperaturaPolitropica(e, e.Temperatura, e.Volumen, V, e.Gamma) ||
        !CalcularPresionPolitropica(e, e.Presion, e.Volumen, V, e.Gamma) ||
        !std::isfinite(acumulado + e.TrabajoTransformacion)) {
        FalloAritmetico(e, msj, kCausaPolitropicaFueraDeRango);
        return false;
    }
    acumulado += e.TrabajoTransformacion;
    e.TrabajoPaso = e.TrabajoTransformacion;
    return true;
}

// ---- Walks that feed the drawing -------------------------------------------------

// Where nothing is drawn, the steps of a walk in temperature whose evaluation
// leaves something in the state: the first (a failure that no temperature
// causes shows there and stops the walk), the last one in each range of the
// polynomials before the limit of temperature (the values of that range's
// species stay in the state; the last of all leaves the mixture's), and the
// first beyond the limit, whose message names its temperature and stops the
// walk. The other steps only feed the drawing.
std::vector<size_t> PasosQueCuentan(const std::vector<double>& temperaturas) {
    std::vector<size_t> pasos;
    if (temperaturas.empty()) return pasos;
    pasos.push_back(0);
    size_t hasta = temperaturas.size();
    for (size_t i = 0; i < temperaturas.size(); ++i)
        if (temperaturas[i] > kTemperaturaLimite) {
            hasta = i;
            break;
        }
    std::optional<size_t> baja, alta;
    for (size_t i = 0; i < hasta; ++i) (RangoBajo(temperaturas[i]) ? baja : alta) = i;
    for (std::optional<size_t> i :
         {baja, alta, hasta < temperaturas.size() ? std::optional(hasta) : std::nullopt})
        if (i && *i > 0) pasos.push_back(*i);
    std::sort(pasos.begin(), pasos.end());
    pasos.erase(std::unique(pasos.begin(), pasos.end()), pasos.end());
    return pasos;
}

// Runs a walk's steps at the temperatures given, as the walk's loop does (it
// stops at the first step that fails), all of them when the walk is drawn
// and only those that count when it is not.
template <class Paso>
void Recorrer(Estado& e, const std::vector<double>& temperaturas, bool dibuja, Paso&& paso) {
    auto dar = [&](size_t i) {
        e.Temperatura = temperaturas[i];
        paso();
        return !e.ErrorCalculo;
    };
    if (dibuja) {
        for (size_t i = 0; i < temperaturas.size() && dar(i);) ++i;
        return;
    }
    for (size_t i : PasosQueCuentan(temperaturas))
        if (!dar(i)) return;
}

// ---- Heat at constant volume ----------------------------------------------------

void TrazarVolumenConstante(Estado& e, Mensajes& msj, Diagramas& g, Dibujo dibujar) {
    e.Presion = e.PresionInicial;
    e.Temperatura = e.TemperaturaInicial;
    const double denominador = (e.PresionMolQuemado - e.PresionMolFresco) * e.MolesHumos;
    if (denominador == 0) {
        FalloAritmetico(e, msj, kCausaFraccionQuemada);
        return;
    }
    const bool dibuja = dibujar == Dibujo::Dibujar && g.Dibujan();
    auto paso = [&] {
        e.Presion = e.Temperatura * e.PresionInicial / e.TemperaturaInicial;
        e.FraccionQuemada = (e.Presion - e.MolesHumos * e.PresionMolFresco) / denominador;
        PropiedadesAireHumosFraccion(e, msj, e.FraccionQuemada);
        if (dibuja) LineaEntropia(g, e.SMezcla, e.Temperatura, e.hMezcla);
    };
    // One kelvin a step up to two short of the end.
    std::vector<double> temperaturas;
    for (double t = e.Temperatura; !e.ErrorCalculo && e.TemperaturaIsocora - 2 > t;)
        temperaturas.push_back(t += 1);
    Recorrer(e, temperaturas, dibuja, paso);
    if (e.Temperatura >= e.TemperaturaIsocora) return;
    // The walk has no test of the flag: once an evaluation has tripped the
    // limit, the rest of it evaluates nothing (and is never drawn: the flag
    // ends the calculation in its silent pass) and only takes Temperatura,
    // Presion and FraccionQuemada on to its last step, which is taken here at
    // once.
    e.Temperatura = e.TemperaturaIsocora;
    paso();
}

// Up to Pmax: bisection on the burnt moles.
void BuscarGradoCombustionPmax(Estado& e, Mensajes& msj) {
    for (int pasos = 0;; ++pasos) {
        if (e.ErrorCalculo) return;
        if (pasos > kPasosMaximosPmax) {
            msj.MsgBox(kMensajePmaxNoConverge);
            e.ErrorCalculo = true;
            return;
        }
        e.MolesQuemados = (e.MolesInferior + e.MolesSuperior) / 2;
        e.Presion =
            (e.MolesHumos - e.MolesQuemados) * e.PresionMolFresco + e.PresionMolQuemado * e.MolesQuemados;
        if (std::fabs(e.Presion - e.Pmax) < 0.001) {
            e.Presion = e.Pmax;
            e.TipoFluido = Fluido::AireHumos;
        }
        if (e.Presion < e.Pmax)
            e.MolesInferior = e.MolesQuemados;
        else if (e.Presion > e.Pmax)
            e.MolesSuperior = e.MolesQuemados;
        else
            break;
    }
    e.PresionIsocora = e.Presion;
    e.Q23 = e.CalorPorMol * e.MolesQuemados;
}

// A figure of the combustion that leaves the doubles (a charge of a few
// molecules, a heat of zero) stops it before it is stored.
bool Finito(Estado& e, Mensajes& msj, double v) {
    if (std::isfinite(v)) return true;
    FalloAritmetico(e, msj, kCausaCombustionFueraDeRango);
    return false;
}

void CalorVolumenConstante(Estado& e, Mensajes& msj, Diagramas& g, TipoCalorIsocoro tipo, Dibujo dibujar) {
    const double presionMolFresco = e.PresionInicial / e.MolesHumos, calorPorMol = e.Qciclo / e.MolesHumos;
    if (!Finito(e, msj, presionMolFresco) || !Finito(e, msj, calorPorMol)) return;
    e.PresionMolFresco = presionMolFresco;
    e.CalorPorMol = calorPorMol;
    e.TemperaturaIsocoraB = e.Temperatura;
    e.TemperaturaIsocoraA = e.Temperatura - 1;
    PropiedadesHumos(e, msj);
    // Fixed point on T = heat per mole / cv + T start, cv at the running mean.
    for (int pasos = 0; std::fabs(e.TemperaturaIsocoraA - e.TemperaturaIsocoraB) > 0.001; ++pasos) {
        if (e.CvHumos == 0) {
            FalloAritmetico(e, msj, kCausaCvNulo);
            return;
        }
        if (pasos > kPasosMaximosIsocora || !std::isfinite(e.TemperaturaIsocoraA)) {
            if (!e.ErrorCalculo) msj.MsgBox(kMensajeIsocoraNoConverge);
            e.ErrorCalculo = true;
            return;
        }
        e.TemperaturaIsocoraA = e.CalorPorMol / e.CvHumos + e.TemperaturaInicial;
        e.Temperatura = (e.TemperaturaIsocoraA + e.TemperaturaIsocoraB) / 2;
        PropiedadesHumos(e, msj);
        e.TemperaturaIsocoraB = e.CalorPorMol / e.CvHumos + e.TemperaturaInicial;
        e.Temperatura = (e.TemperaturaIsocoraA + e.TemperaturaIsocoraB) / 2;
        PropiedadesHumos(e, msj);
    }
    e.TemperaturaQuemado = e.Temperatura;
    const double presionMolQuemado = e.TemperaturaQuemado * kR / e.VolumenInicial;
    if (!Finito(e, msj, presionMolQuemado)) return;
    e.PresionMolQuemado = presionMolQuemado;
    if (tipo == TipoCalorIsocoro::Dado) {
        const double molesQuemados = e.Q23 / e.CalorPorMol;
        const double presionIsocora =
            (e.MolesHumos - molesQuemados) * e.PresionMolFresco + molesQuemados * e.PresionMolQuemado;
        if (!Finito(e, msj, molesQuemados) || !Finito(e, msj, presionIsocora)) return;
        e.MolesQuemados = molesQuemados;
        e.PresionIsocora = presionIsocora;
        e.Presion = e.PresionIsocora;
        e.TipoFluido = Fluido::AireHumos;
    }
    if (tipo == TipoCalorIsocoro::HastaPmax) {
        const double presion = e.PresionMolQuemado * e.MolesHumos;
        if (!Finito(e, msj, presion)) return;
        e.MolesSuperior = e.MolesHumos;
        e.MolesInferior = 0;
        e.Presion = presion;
        if (e.Presion <= e.Pmax) {
            e.PresionIsocora = e.Presion;
            e.MolesQuemados = e.MolesHumos;
            e.Q23 = e.Qciclo;
            e.TipoFluido = Fluido::Humos;
        } else {
            BuscarGradoCombustionPmax(e, msj);
        }
    }
    // The temperature of the whole gas by the ideal-gas rule at constant volume.
    const double temperaturaIsocora = e.PresionIsocora * e.TemperaturaInicial / e.PresionInicial;
    if (!Finito(e, msj, temperaturaIsocora)) return;
    e.TemperaturaIsocora = temperaturaIsocora;
    e.GammaFinal = " ND";
    PonerEstadoFinal(e, msj, e.Q23, 0, e.PresionIsocora, e.VolumenInicial, e.TemperaturaIsocora);
    if (dibujar == Dibujo::Dibujar) LineaVolumen(g, e.VolumenInicial, e.TemperaturaFinal, e.PresionFinal);
}

// ---- Heat at constant pressure ------------------------------------------------------

// One trial of the search at one level: the temperature between the
// bounds and the heat it takes at constant pressure.
void ProbarTemperaturaIsobara(Estado& e, Mensajes& msj, double calor) {
    e.Temperatura = (e.TemperaturaInferior + e.TemperaturaSuperior) / 2;
    e.TemperaturaFinal = e.Temperatura;
    PropiedadesFin(e, msj, calor, e.W34acumulado);
    e.hBusqueda = e.hFinal;
    e.SaltoEntalpia = e.hFinal - e.hInicioBusqueda;
    e.CalorIsobaro = e.MasaHumos * e.SaltoEntalpia / e.MasaMolecularHumos;
    if (std::fabs(calor - e.CalorIsobaro) < 1e-5) e.CalorIsobaro = calor;
}

// What every level of the search does as it unwinds, with the deepest state:
// the volume and work of the isobar, and its end.
void ColaIsobara(Estado& e, Mensajes& msj, Diagramas& g, double volumenLimite, double calor, Dibujo dibujar,
                 bool& volumenAvisado) {
    VolumenIsobarico(e, e.VolumenInicial, e.TemperaturaInicial, e.Temperatura);
    e.VolumenIsobaro = e.VolumenProporcional;
    TrabajoIsobarico(e, e.PresionInicial, e.VolumenInicial, e.VolumenIsobaro);
    e.W34acumulado = e.TrabajoTransformacion;
    e.GammaFinal = "ND";
    if (e.VolumenIsobaro > volumenLimite) {
        // Told once, not once a level.
        if (!volumenAvisado) msj.MsgBox(kMensajeVolumenExcesivo);
        volumenAvisado = true;
        e.ErrorCalculo = true;
    }
    PonerEstadoFinal(e, msj, calor, e.W34acumulado, e.PresionInicial, e.VolumenIsobaro, e.Temperatura);
    if (dibujar == Dibujo::Dibujar) LineaVolumen(g, e.VolumenFinal, e.TemperaturaFinal, e.PresionFinal);
}

// Bisection on the temperature of state 4 for the heat given. The program's
// search is a recursion: each level halves the bounds and calls itself; a
// level that raised the lower bound calls itself a second time once the first
// call returns, and every call ends with the tail. Here the descent is a loop
// that remembers which levels raised the lower bound, and the unwinding
// replays the second calls and the tails in the same order.
void CalorPresionConstante(Estado& e, Mensajes& msj, Diagramas& g, double volumenLimite, double calor,
                           Dibujo dibujar) {
    std::vector<bool> subioInferior;
    bool volumenAvisado = false;
    for (;;) {
        ProbarTemperaturaIsobara(e, msj, calor);
        if (calor == e.CalorIsobaro || !(calor < e.CalorIsobaro || calor > e.CalorIsobaro)) break;
        if (static_cast<int>(subioInferior.size()) >= kProfundidadMaximaIsobara) {
            // The bounds no longer part: the heat cannot be reached below 5000 K,
            // or the gases' enthalpy has no temperature for it.
            const bool techo = e.TemperaturaSuperior == kTemperaturaSuperiorIsobara;
            if (!e.ErrorCalculo) msj.MsgBox(techo ? kMensajeTemperaturaIsobara : kMensajeIsobaraNoConverge);
            e.ErrorCalculo = true;
            return;
        }
        const bool sube = calor > e.CalorIsobaro;
        if (sube)
            e.TemperaturaInferior = e.Temperatura;
        else
            e.TemperaturaSuperior = e.Temperatura;
        subioInferior.push_back(sube);
    }
    ColaIsobara(e, msj, g, volumenLimite, calor, dibujar, volumenAvisado);
    while (!subioInferior.empty()) {
        const bool sube = subioInferior.back();
        subioInferior.pop_back();
        if (sube) {
            if (e.TemperaturaInferior > kTemperaturaSuperiorIsobara) {
                msj.MsgBox(kMensajeTemperaturaIsobara);
                e.ErrorCalculo = true;
            }
            // The second call finds the bounds unchanged: one trial and the tail.
            ProbarTemperaturaIsobara(e, msj, calor);
            ColaIsobara(e, msj, g, volumenLimite, calor, dibujar, volumenAvisado);
        }
        ColaIsobara(e, msj, g, volumenLimite, calor, dibujar, volumenAvisado);
    }
}

void TrazarPresionConstante(Estado& e, Mensajes& msj, Diagramas& g, Dibujo dibujar) {
    e.Presion = e.PresionInicial;
    e.Temperatura = e.TemperaturaInicial;
    // The share of gases goes linearly in T from the share at state 3 to 1.
    auto fraccion = [&] {
        return e.FraccionQuemada +
               (1 - e.FraccionQuemada) * (e.Temperatura - e.T3) / (e.TemperaturaFinal - e.T3);
    };
    const bool dibuja = dibujar == Dibujo::Dibujar && g.Dibujan();
    std::vector<double> temperaturas;
    for (double t = e.Temperatura; !e.ErrorCalculo && e.TemperaturaFinal - 1 > t;)
        temperaturas.push_back(t += 1);
    Recorrer(e, temperaturas, dibuja, [&] {
        PropiedadesAireHumosFraccion(e, msj, fraccion());
        if (dibuja) LineaEntropia(g, e.SMezcla, e.Temperatura, e.hMezcla);
    });
    if (e.Temperatura < e.TemperaturaFinal && !e.ErrorCalculo) {
        e.Temperatura = e.TemperaturaFinal;
        PropiedadesAireHumosFraccion(e, msj, fraccion());
        if (dibuja) LineaEntropia(g, e.SHumos, e.Temperatura, e.hHumos);
    }
}

}  // namespace

void PonerColorDiagramas(Diagramas& g, int32_t color) {
    g.pctTS.SetForeColor(color);
    g.pctHS.SetForeColor(color);
    g.pctTV.SetForeColor(color);
    g.pctPV.SetForeColor(color);
}

void CalcularMolesCiclo(Estado& e, Mensajes& msj) {
    if (e.MasaMolecularCombustible == 0 || e.MasaMolecularAire == 0 || e.MasaMolecularHumos == 0) {
        FalloAritmetico(e, msj, kCausaMoles);
        return;
    }
    // A molar mass near the smallest double takes the moles beyond the
    // doubles: nothing is stored then.
    const double combustible = e.MasaCombustible / e.MasaMolecularCombustible;
    const double aire = e.MasaAire / e.MasaMolecularAire;
    const double humos = (e.MasaAire + e.MasaCombustible) / e.MasaMolecularHumos;
    const double reactivos = combustible + aire;
    for (double moles : {combustible, aire, humos, reactivos})
        if (!std::isfinite(moles)) return FalloAritmetico(e, msj, kCausaMolesFueraDeRango);
    e.MolesCombustible = combustible;
    e.MolesAire = aire;
    e.MolesHumos = humos;
    e.MolesReactivos = reactivos;
}

void Compresion(Estado& e, Mensajes& msj, Diagramas& g, Modelo modelo, double volumenFinal, double paso,
                double exponente, Dibujo dibujar) {
    if (e.ErrorCalculo) return;
    e.TipoFluido = Fluido::Aire;
    PonerInicioDesdeFinal(e, msj);
    ExponenteInicial(e, msj, modelo, volumenFinal, exponente, Fluido::Aire);
    e.gamma1 = e.Gamma;
    if (dibujar == Dibujo::Dibujar)
        PuntoEnDiagramas(g, e.VolumenInicial, e.TemperaturaInicial, e.PresionInicial, e.SAire, e.h1);
    // The record holds the state before each step, so the exponent and the
    // entropy lag one step behind T and p.
    while (e.Volumen - paso > volumenFinal) {
        e.VolumenProporcional = e.Volumen - paso;
        if (!AvanzaLaCarrera(e, msj)) return;
        if (!PasoPolitropico(e, msj, e.VolumenProporcional, e.W12acumulado)) return;
        PropiedadesAire(e, msj);
        ExponentePaso(e, modelo, exponente);
        if (dibujar == Dibujo::Dibujar)
            LineaEnDiagramas(g, e.VolumenProporcional, e.TemperaturaPolitropica, e.PresionPolitropica,
                             e.SAire, e.hAire);
        e.Volumen = e.VolumenProporcional;
        e.Temperatura = e.TemperaturaPolitropica;
        e.Presion = e.PresionPolitropica;
    }
    if (e.VolumenProporcional > volumenFinal) {
        PropiedadesAire(e, msj);
        ExponentePaso(e, modelo, exponente);
        if (!PasoPolitropico(e, msj, volumenFinal, e.W12acumulado)) return;
    }
    e.Gamma2 = e.Gamma;
    PonerEstadoFinal(e, msj, 0, e.W12acumulado, e.PresionPolitropica, volumenFinal, e.TemperaturaPolitropica);
    if (dibujar == Dibujo::Dibujar)
        LineaEnDiagramas(g, volumenFinal, e.TemperaturaFinal, e.PresionFinal, e.SAire, e.EntalpiaFinal);
}

void Expansion(Estado& e, Mensajes& msj, Diagramas& g, Modelo modelo, double volumenFinal, double paso,
               double exponente) {
    if (e.ErrorCalculo) return;
    e.TipoFluido = Fluido::Humos;
    PonerInicioDesdeFinal(e, msj);
    ExponenteInicial(e, msj, modelo, volumenFinal, exponente, Fluido::Humos);
    e.Gamma4 = e.Gamma;
    while (e.Volumen + paso < volumenFinal) {
        e.VolumenProporcional = e.Volumen + paso;
        if (!AvanzaLaCarrera(e, msj)) return;
        if (!PasoPolitropico(e, msj, e.VolumenProporcional, e.W45acumulado)) return;
        PropiedadesHumos(e, msj);
        ExponentePaso(e, modelo, exponente);
        LineaEnDiagramas(g, e.VolumenProporcional, e.TemperaturaPolitropica, e.PresionPolitropica, e.SHumos,
                         e.hHumos);
        e.Volumen = e.VolumenProporcional;
        e.Temperatura = e.TemperaturaPolitropica;
        e.Presion = e.PresionPolitropica;
    }
    if (e.VolumenProporcional < volumenFinal) {
        PropiedadesHumos(e, msj);
        ExponentePaso(e, modelo, exponente);
        if (modelo == Modelo::Politropico) e.GammaInicial = " N.D.";
        if (!PasoPolitropico(e, msj, volumenFinal, e.W45acumulado)) return;
    }
    e.Gamma5 = e.Gamma;
    PonerEstadoFinal(e, msj, 0, e.W45acumulado, e.PresionPolitropica, volumenFinal, e.TemperaturaPolitropica);
    LineaEnDiagramas(g, volumenFinal, e.TemperaturaFinal, e.PresionFinal, e.SHumos, e.EntalpiaFinal);
}

void CombustionVolumenConstante(Estado& e, Mensajes& msj, Diagramas& g, TipoCalorIsocoro tipo,
                                double /*presionMaxima*/, Dibujo dibujar) {
    if (e.ErrorCalculo) return;
    e.TipoFluido = Fluido::Aire;
    PonerInicioDesdeFinal(e, msj);
    CalcularMolesCiclo(e, msj);
    e.GammaInicial = " ND";
    if (e.ErrorCalculo) return;
    if (e.MolesHumos == 0 || e.VolumenInicial == 0 || e.PresionInicial == 0 || e.TemperaturaInicial == 0) {
        FalloAritmetico(e, msj, e.MolesHumos == 0 ? kCausaSinMoles : kCausaEstadoInicial);
        return;
    }
    CalorVolumenConstante(e, msj, g, tipo, dibujar);
    TrazarVolumenConstante(e, msj, g, dibujar);
}

void CombustionPresionConstante(Estado& e, Mensajes& msj, Diagramas& g, double volumenLimite, double calor,
                                Dibujo dibujar) {
    if (e.ErrorCalculo) return;
    e.TipoFluido = Fluido::Humos;
    PonerInicioDesdeFinal(e, msj);
    e.TemperaturaSuperior = kTemperaturaSuperiorIsobara;
    e.TemperaturaInferior = e.TemperaturaInicial;
    e.SaltoEntalpia = 0;
    e.GammaInicial = " ND";
    e.hInicioBusqueda = e.hInicial;
    if (e.MasaMolecularHumos == 0 || e.TemperaturaInicial == 0) {
        FalloAritmetico(e, msj, e.MasaMolecularHumos == 0 ? kCausaMoles : kCausaEstadoInicial);
        return;
    }
    CalorPresionConstante(e, msj, g, volumenLimite, calor, dibujar);
    TrazarPresionConstante(e, msj, g, dibujar);
}

void TrazarEscape(Estado& e, Mensajes& msj, Diagramas& g) {
    FinalAInicial(e);
    LineaVolumen(g, e.V1, e.T1, e.p1);
    e.Temperatura = e.T5;
    // Two kelvin a step down to state 1.
    std::vector<double> temperaturas;
    for (double t = e.T5; !e.ErrorCalculo && t > e.T1;) temperaturas.push_back(t -= 2);
    Recorrer(e, temperaturas, g.Dibujan(), [&] {
        e.Presion = e.p1 * e.Temperatura / e.T1;
        PropiedadesAireHumosLineal(e, msj, e.T5, e.T1, e.Temperatura);
        LineaEntropia(g, e.SMezcla, e.Temperatura, e.hMezcla);
    });
}

}  // namespace vanta
