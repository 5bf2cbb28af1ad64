#include "core/cycle/Ciclo.h"

#include <cmath>
#include <string_view>

#include "core/cycle/DibujoDiagramas.h"
#include "core/cycle/Transformaciones.h"
#include "core/properties/Busquedas.h"
#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "core/reports/Informes.h"
#include "core/services/Fallos.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

constexpr std::string_view kMensajeImposible =
    "Imposible realizar el ciclo, Aumente la presión máxima que soporta el motor o disminuya la relación de "
    "compresión";
constexpr std::string_view kMensajeSinCiclo = "Debe especificar un ciclo";
constexpr std::string_view kMensajeErrorCalculo =
    "Se ha producido un error de cálculo, corrija el error y pulse el botón \"CALCULAR\" otra vez";
constexpr std::string_view kCausaMasas =
    "las masas o el calor del ciclo salen del intervalo de los números del programa";
constexpr std::string_view kCausaVolumenNulo =
    "el volumen al final de la compresión es tan pequeño que no se distingue de cero; revise la cilindrada y "
    "la "
    "relación de compresión";
constexpr std::string_view kCausaDiagramas =
    "los valores del ciclo no caben en las escalas de los diagramas, o el ciclo no tiene extensión en alguno "
    "de "
    "ellos";
constexpr std::string_view kCausaPotencia =
    "la potencia a ese régimen sale del intervalo de los números del programa";
constexpr std::string_view kCausaCierre =
    "el trabajo o el combustible del ciclo son cero y el consumo no se puede calcular";

// The frames of Otto and Diesel: everything but the mixed cycle's options.
constexpr Marcos kMarcosOttoDiesel{.compresion = true,
                                   .expansion = true,
                                   .aire = true,
                                   .opcion = false,
                                   .datos = true,
                                   .seleccionar = false};

// With Rc above this the focus goes to the compression ratio instead of Pmax.
constexpr double kRcFocoPmax = 30;
constexpr double kPmaxOtto = 9e9;

const std::string kCicloOtto(NombreCiclo(TipoCiclo::Otto));
const std::string kCicloDiesel(NombreCiclo(TipoCiclo::Diesel));
const std::string kCicloMixto(NombreCiclo(TipoCiclo::Mixto));

// Masks of the result labels.
constexpr std::string_view kMascaraPresion = "### ### ### ### ###";
constexpr std::string_view kMascaraVolumen = "### ### ##0.00";
constexpr std::string_view kMascaraTemperatura = "### ##0.00";
constexpr std::string_view kMascaraEntalpia = "### ### ### ##0.0";
constexpr std::string_view kMascaraEntropia = "### ### ### ##0.000";
constexpr std::string_view kMascaraEnergia = "### ### ### ### ##0.0";
constexpr std::string_view kMascaraGamma = "### ### ### ##0.000";
constexpr std::string_view kMascaraConsumo = "### ### ### ##0.0";
constexpr std::string_view kMascaraPotencia = "### ### ### ##0.0";

void Fallo(Estado& e, Mensajes& msj, std::string_view mensaje, CampoEntrada entrada = {}) {
    msj.MsgBox(mensaje, std::move(entrada));
    e.ErrorCalculo = true;
}

// The boxes, each through the validator with its name.
void LeerEntradas(Estado& e, Mensajes& msj, const Entradas& x) {
    LeerEntrada(e, msj, Entrada("pmax"), x.pmax, e.Pmax);
    LeerEntrada(e, msj, Entrada("rc"), x.rc, e.Rc);
    LeerEntrada(e, msj, Entrada("cilindrada"), x.cilindrada, e.V1);
    e.V1 = e.V1 / 1e6;
    LeerEntrada(e, msj, Entrada("n-expansion"), x.nExpansion, e.nExpansion);
    LeerEntrada(e, msj, Entrada("p1"), x.p1.value_or(""), e.p1);
    LeerEntrada(e, msj, Entrada("t1"), x.t1.value_or(""), e.T1);
    LeerEntrada(e, msj, Entrada("proporcion-vcte"), x.proporcionVcte, e.PropVcte);
}

// Values that pass the numeric test but leave the cycle without meaning.
void ComprobarEntradas(Estado& e, Mensajes& msj, const Entradas& x) {
    if (e.ErrorCalculo) return;
    const bool politropica = x.expansion == Modelo::Politropico;
    const bool proporcion = e.TipoCiclo == kCicloMixto && x.reparto == RepartoMixto::Proporcion;
    const std::pair<const char*, std::string_view> reglas[] = {
        {"rc", Entrada("rc").Bajo(e.Rc)},
        {"cilindrada", Entrada("cilindrada").Bajo(e.V1)},
        {"p1", Entrada("p1").Bajo(e.p1)},
        {"t1", Entrada("t1").Bajo(e.T1)},
        {"n-expansion", politropica ? Entrada("n-expansion").Bajo(e.nExpansion) : std::string_view()},
        {"proporcion-vcte", proporcion ? Entrada("proporcion-vcte").Bajo(e.PropVcte) : std::string_view()},
    };
    for (const auto& [nombre, mensaje] : reglas) {
        if (!mensaje.empty()) {
            const CampoEntrada campo = Campo(Entrada(nombre));
            Fallo(e, msj, mensaje, campo);
            msj.Foco(campo);
            return;
        }
    }
}

// Volumes, masses, heat, step and moles. Worked out first and
// stored only when every figure is a finite number.
void MasasYVolumenes(Estado& e, Mensajes& msj) {
    const double V2 = e.V1 / e.Rc;
    const double masaAire = (e.MasaMolecularAire * e.p1 / (e.T1 * kR)) * e.V1;
    const double masaCombustible = e.Fe * masaAire * e.Fr;
    const double masaHumos = masaCombustible + masaAire;
    const double qCiclo = e.HCIhumos * masaCombustible;
    const double paso = (e.V1 - e.V1 / e.Rc) / 1000;
    for (double v : {V2, masaAire, masaCombustible, masaHumos, qCiclo, paso}) {
        if (!std::isfinite(v)) {
            FalloAritmetico(e, msj, kCausaMasas);
            return;
        }
    }
    // V1 near the smallest double over a large Rc: V2 or the step is lost to zero.
    if (!(V2 > 0 && paso > 0)) {
        FalloAritmetico(e, msj, kCausaVolumenNulo);
        return;
    }
    e.V2 = V2;
    e.V3 = V2;
    e.MasaAire = masaAire;
    e.MasaCombustible = masaCombustible;
    e.MasaHumos = masaHumos;
    e.Qciclo = qCiclo;
    e.PasoVolumen = paso;
    CalcularMolesCiclo(e, msj);
    e.GammaMedio = 0.0;
}

// State 1 in the record's end, before each of the two passes.
void EstadoUno(Estado& e, Mensajes& msj) {
    e.Presion = e.p1;
    e.Temperatura = e.T1;
    PropiedadesAire(e, msj);
    e.PresionFinal = e.p1;
    e.VolumenFinal = e.V1;
    e.TemperaturaFinal = e.T1;
    e.EntalpiaFinal = e.hAire;
    e.EntropiaFinal = e.SAire;
    LeerEstadoFinal(e, e.p1, e.V1, e.T1, e.h1, e.S1);
}

void LeerEstado2(Estado& e) {
    LeerEstadoFinal(e, e.p2, e.V2, e.T2, e.h2, e.S2);
}
void LeerEstado3(Estado& e) {
    LeerEstadoFinal(e, e.p3, e.V3, e.T3, e.h3, e.S3);
}
void LeerEstado4(Estado& e) {
    LeerEstadoFinal(e, e.p4, e.V4, e.T4, e.h4, e.S4);
}
void LeerEstado5(Estado& e) {
    LeerEstadoFinal(e, e.p5, e.V5, e.T5, e.h5, e.S5);
}

// The share of the heat released at constant volume, taken first, so that
// 100 % gives Qciclo itself.
double CalorVolumenConstanteMixto(const Estado& e) {
    return e.PropVcte / 100 * e.Qciclo;
}

// The first pass's compression, drawn nowhere, by the option selected.
void CompresionSilenciosa(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g, ResultadoCiclo& r) {
    switch (x.compresion) {
        case Modelo::GammaVariable:
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, 1, Dibujo::SinDibujar);
            break;
        case Modelo::GammaMedio:
            r.gammaMedioCompresion = TextoGeneral(e.GammaMedio, e.SeparadorDecimal);
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.GammaMedio.Numero(),
                       Dibujo::SinDibujar);
            break;
        case Modelo::Politropico: {
            const DefinicionEntrada& n = Entrada("n-compresion");
            LeerEntrada(e, msj, n, x.nCompresion, e.nCompresion);
            if (const std::string_view bajo = n.Bajo(e.nCompresion); !e.ErrorCalculo && !bajo.empty()) {
                Fallo(e, msj, bajo, Campo(n));
                msj.Foco(Campo(n));
            }
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.nCompresion, Dibujo::SinDibujar);
            break;
        }
    }
}

// The drawing pass's compression: drawing, and what it shows.
void CompresionDibujada(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g, ResultadoCiclo& r) {
    switch (x.compresion) {
        case Modelo::GammaVariable:
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, 1, Dibujo::Dibujar);
            e.GammaMedio = " N.D.";
            break;
        case Modelo::GammaMedio:
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.GammaMedio.Numero(),
                       Dibujo::Dibujar);
            r.gammaMedioCompresion = TextoGeneral(e.GammaMedio, e.SeparadorDecimal);
            e.TextoExponente = " N.D.";
            e.GammaMedioCompresion = e.GammaMedio.Numero();
            break;
        case Modelo::Politropico:
            LeerEntrada(e, msj, Entrada("n-compresion"), x.nCompresion, e.nCompresion);
            e.TextoExponente = e.nCompresion;
            Compresion(e, msj, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.nCompresion, Dibujo::Dibujar);
            e.GammaMedio = "N.D.";
            break;
    }
}

// The heat at constant volume by the cycle, in each pass. The first pass
// tests Pmax against p2 and moves the focus; the drawing pass tests it
// against the start of compression, p1, and does not.
void CalorIsocoro(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g, Dibujo dibujar) {
    const bool primeraPasada = dibujar != Dibujo::Dibujar;
    if (e.TipoCiclo == kCicloOtto) {
        e.Q23 = e.Qciclo;
        CombustionVolumenConstante(e, msj, g, TipoCalorIsocoro::Dado, e.Pmax, dibujar);
        if (primeraPasada) {
            e.p3 = e.PresionFinal;
            e.T3 = e.TemperaturaFinal;
            e.h3 = e.hFinal;
            e.S3 = e.SFinal;
        } else {
            LeerEstado3(e);
        }
    } else if (e.TipoCiclo == kCicloDiesel) {
        e.Q23 = 0;
        e.TipoFluido = Fluido::Aire;
        LeerEstado3(e);
    } else if (e.TipoCiclo == kCicloMixto) {
        if (x.reparto == RepartoMixto::Proporcion) {
            e.Q23 = CalorVolumenConstanteMixto(e);
            CombustionVolumenConstante(e, msj, g, TipoCalorIsocoro::Dado, e.Pmax, dibujar);
        } else {
            const double presionPrueba = primeraPasada ? e.PresionFinal : e.PresionInicial;
            if (e.Pmax >= presionPrueba) {
                CombustionVolumenConstante(e, msj, g, TipoCalorIsocoro::HastaPmax, e.Pmax, dibujar);
            } else {
                Fallo(e, msj, kMensajeImposible);
                if (primeraPasada) msj.Foco(Campo(Entrada(e.Rc <= kRcFocoPmax ? "pmax" : "rc")));
            }
        }
        LeerEstado3(e);
    } else {
        Fallo(e, msj, kMensajeSinCiclo);
    }
}

// The expansion down to V1, by the option selected.
void ExpansionDibujada(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g, ResultadoCiclo& r) {
    switch (x.expansion) {
        case Modelo::GammaVariable:
            Expansion(e, msj, g, Modelo::GammaVariable, e.V1, e.PasoVolumen, e.Gamma);
            e.GammaMedio = " N.D.";
            break;
        case Modelo::GammaMedio:
            Expansion(e, msj, g, Modelo::GammaMedio, e.V1, e.PasoVolumen, e.GammaMedio.Numero());
            r.gammaMedioExpansion = TextoGeneral(e.GammaMedio, e.SeparadorDecimal);
            e.TextoExponente = " N.D.";
            e.GammaMedioExpansion = e.GammaMedio.Numero();
            break;
        case Modelo::Politropico:
            Expansion(e, msj, g, Modelo::Politropico, e.V1, e.PasoVolumen, e.nExpansion);
            e.GammaMedio = " N.D.";
            e.TextoExponente = e.nExpansion;
            break;
    }
}

// The closing sums: cycle work with the rounded W12, consumption, efficiency
// on the heat the fuel would give if all burnt.
bool CerrarCiclo(Estado& e, Mensajes& msj) {
    e.Wciclo = e.W34acumulado + e.W45acumulado + e.W12;
    const double trabajoEspecifico = e.Wciclo / e.MasaCombustible;
    const double rendimiento = e.Wciclo / (e.HCI * e.MasaCombustible);
    if (!std::isfinite(trabajoEspecifico) || trabajoEspecifico == 0 || !std::isfinite(rendimiento)) {
        FalloAritmetico(e, msj, kCausaCierre);
        return false;
    }
    e.ConsumoKWh = 3.6e9 / trabajoEspecifico;
    e.ConsumoMJ = 1e9 / trabajoEspecifico;
    e.Rendimiento = Round(rendimiento, 3);
    return true;
}

}  // namespace

TextosResultados TextosDeResultados(const Estado& e) {
    TextosResultados t;
    const double p[5] = {e.p1, e.p2, e.p3, e.p4, e.p5}, V[5] = {e.V1, e.V2, e.V3, e.V4, e.V5},
                 T[5] = {e.T1, e.T2, e.T3, e.T4, e.T5}, h[5] = {e.h1, e.h2, e.h3, e.h4, e.h5},
                 S[5] = {e.S1, e.S2, e.S3, e.S4, e.S5};
    for (int k = 0; k < 5; ++k) {
        t.lblP[k] = Format(p[k], kMascaraPresion, e.SeparadorDecimal);
        t.lblV[k] = Format(V[k] * 1e6, kMascaraVolumen, e.SeparadorDecimal);
        t.lblT[k] = Format(T[k], kMascaraTemperatura, e.SeparadorDecimal);
        t.lblH[k] = Format(h[k], kMascaraEntalpia, e.SeparadorDecimal);
        t.lblS[k] = Format(S[k], kMascaraEntropia, e.SeparadorDecimal);
    }
    t.lblW12 = Format(e.W12, kMascaraEnergia, e.SeparadorDecimal);
    t.lblW34 = Format(e.W34, kMascaraEnergia, e.SeparadorDecimal);
    t.lblW45 = Format(e.W45, kMascaraEnergia, e.SeparadorDecimal);
    t.lblQ23 = Format(Round(e.Q23, 1), kMascaraEnergia, e.SeparadorDecimal);
    t.lblQ34 = Format(Round(e.Qciclo - e.Q23, 1), kMascaraEnergia, e.SeparadorDecimal);
    t.lblWciclo = Format(Round(e.Wciclo, 1), kMascaraEnergia, e.SeparadorDecimal);
    t.lblQciclo = Format(Round(e.Qciclo, 1), kMascaraEnergia, e.SeparadorDecimal);
    t.lblRen = TextoGeneral(e.Rendimiento, e.SeparadorDecimal);
    t.lblG12 = Format(e.gamma1, kMascaraGamma, e.SeparadorDecimal);
    t.lblG2 = Format(e.Gamma2, kMascaraGamma, e.SeparadorDecimal);
    t.lblG45 = Format(e.Gamma4, kMascaraGamma, e.SeparadorDecimal);
    t.lblG5 = Format(e.Gamma5, kMascaraGamma, e.SeparadorDecimal);
    t.txtConsumoMJ = Format(Round(e.ConsumoMJ, 1), kMascaraConsumo, e.SeparadorDecimal);
    t.txtConsumoKwh = Format(Round(e.ConsumoKWh, 1), kMascaraConsumo, e.SeparadorDecimal);
    t.txtCilindrada = TextoGeneral(e.V1 * 1e6, e.SeparadorDecimal);
    return t;
}

void FormCiclo_Load(Estado& e, Entradas& x) {
    e.ModeloCompresion = Modelo::GammaMedio;
    e.ModeloExpansion = Modelo::GammaMedio;
    x.p1 = TextoGeneral(e.Pambiente, e.SeparadorDecimal);
    x.t1 = TextoGeneral(e.Tambiente, e.SeparadorDecimal);
}

void FormCiclo_Activate(Estado& e) {
    e.ErrorCalculo = false;
}

VistaCiclo ElegirCiclo(Estado& e, TipoCiclo ciclo) {
    e.TipoCiclo = NombreCiclo(ciclo);
    switch (ciclo) {
        case TipoCiclo::Otto:
            e.Pmax = kPmaxOtto;
            e.OpcionProporcion = false;
            return {kMarcosOttoDiesel, {.otto = true, .diesel = false, .mixto = false}};
        case TipoCiclo::Diesel:
            e.OpcionProporcion = false;
            return {kMarcosOttoDiesel, {.otto = false, .diesel = true, .mixto = false}};
        case TipoCiclo::Mixto:
            break;
    }
    return {{.compresion = true,
             .expansion = true,
             .aire = true,
             .opcion = true,
             .datos = true,
             .seleccionar = false},
            {.otto = false, .diesel = false, .mixto = true}};
}

void ElegirModeloCompresion(Estado& e, Modelo modelo) {
    e.ModeloCompresion = modelo;
}
void ElegirModeloExpansion(Estado& e, Modelo modelo) {
    e.ModeloExpansion = modelo;
}
void optProporcion_Click(Estado& e) {
    e.OpcionProporcion = true;
}
void optPmax_Click(Estado& e) {
    e.OpcionProporcion = false;
}

std::string txtPropVcte_Change(Estado& e, Mensajes& msj, Entradas& x) {
    const DefinicionEntrada& proporcion = Entrada("proporcion-vcte");
    LeerEntrada(e, msj, proporcion, x.proporcionVcte, e.PropVcte);
    if (const std::string_view alto = proporcion.Alto(e.PropVcte); !alto.empty()) {
        msj.MsgBox(alto, Campo(proporcion));
        // Setting the box runs this event again from the start.
        x.proporcionVcte = TextoGeneral(proporcion.limites.maximo, e.SeparadorDecimal);
        txtPropVcte_Change(e, msj, x);
        msj.Foco(Campo(proporcion));
    }
    e.PropPcte = 100 - e.PropVcte;
    return TextoGeneral(e.PropPcte, e.SeparadorDecimal);
}

ResultadoCiclo CalcularCiclo(Estado& e, Mensajes& msj, const Entradas& x, Diagramas& g,
                             std::string_view tipoCombustible) {
    ResultadoCiclo r;
    // Preparation.
    r.botones.push_back(kAlCalcular);
    e.ErrorCalculo = false;
    e.PresionMaxima = 0;
    e.TemperaturaMaxima = 0;
    e.FraccionQuemada = 0;
    e.PresionMolQuemado = 0;
    e.PresionMolFresco = 0;
    e.W12acumulado = 0;
    e.W45acumulado = 0;
    e.pasadas = {};
    LeerEntradas(e, msj, x);
    ComprobarEntradas(e, msj, x);
    // A refused text does not stop the steps up to state 1: the first test of
    // the flag comes after them (the maxima take p1 and T1 all the same).
    MasasYVolumenes(e, msj);
    EstadoUno(e, msj);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return r;

    // First pass: no drawing; finds the maxima of states 1 to 4.
    CompresionSilenciosa(e, msj, x, g, r);
    ActualizarMaximos(e);
    LeerEstado2(e);
    if (e.ErrorCalculo) return r;
    CalorIsocoro(e, msj, x, g, Dibujo::SinDibujar);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return r;
    if (e.Q23 < e.Qciclo) CombustionPresionConstante(e, msj, g, e.V1, e.Qciclo - e.Q23, Dibujo::SinDibujar);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return r;

    // The diagrams, scaled from the maxima.
    PrepararDiagramas(g);
    e.TrabajoPaso = 0;
    e.Wciclo = 0;
    e.W12acumulado = 0;
    e.W45acumulado = 0;
    e.W34acumulado = 0;
    if (!EscalarDiagramas(e, g)) {
        FalloAritmetico(e, msj, kCausaDiagramas);
        return r;
    }

    // Second pass: the same, drawing; these results stand.
    EstadoUno(e, msj);
    PonerColorDiagramas(g, e.ColorCompresion);
    e.TipoFluido = Fluido::Aire;
    PropiedadesInicio(e, msj);
    e.TipoFluido = Fluido::Aire;
    CompresionDibujada(e, msj, x, g, r);
    LeerEstado2(e);
    e.W12 = Round(e.W12acumulado, 1);
    PonerColorDiagramas(g, e.ColorCombustionV);
    CalorIsocoro(e, msj, x, g, Dibujo::Dibujar);
    PonerColorDiagramas(g, e.ColorCombustionP);
    if (e.ErrorCalculo) return r;
    if (e.Q23 < e.Qciclo)
        CombustionPresionConstante(e, msj, g, e.V1, e.Qciclo - e.Q23, Dibujo::Dibujar);
    else
        e.Qtransformacion = 0;
    LeerEstado4(e);
    e.W34 = Round(e.W34acumulado, 1);
    if (e.ErrorCalculo) return r;
    PonerColorDiagramas(g, e.ColorExpansion);
    e.TipoFluido = Fluido::Humos;
    ExpansionDibujada(e, msj, x, g, r);
    LeerEstado5(e);
    e.W45 = Round(e.W45acumulado, 1);
    if (e.ErrorCalculo) {
        msj.MsgBox(kMensajeErrorCalculo);
        r.botones.push_back(kAlFallarCalculo);
        // pctHS keeps its old picture.
        g.pctTV.Cls();
        g.pctPV.Cls();
        g.pctTS.Cls();
        return r;
    }
    PonerColorDiagramas(g, e.ColorEscape);
    TrazarEscape(e, msj, g);
    PonerColorDiagramas(g, e.ColorExpansion);

    // Closing figures, the report, the labels, the point numbers.
    if (!CerrarCiclo(e, msj)) return r;
    r.informe = InformeTexto(e, tipoCombustible);
    r.textos = TextosDeResultados(e);
    NumerarPuntos(e, g);
    r.bien = true;
    return r;
}

double Potencia(Estado& e, Mensajes& msj, double Wciclo, std::string_view textoRpm) {
    double rpm = 0;
    LeerEntrada(e, msj, Entrada("rpm"), textoRpm, rpm);
    // One power stroke in two revolutions.
    const double potencia = Wciclo * rpm * 0.5 / 60;
    if (std::isfinite(potencia)) return potencia;
    FalloAritmetico(e, msj, kCausaPotencia);
    return std::nan("");
}

std::optional<TextosPotencia> txtRpm_Change(Estado& e, Mensajes& msj, double Wciclo, std::string_view rpm) {
    if (rpm.empty()) return std::nullopt;
    const double potencia = Potencia(e, msj, Wciclo, rpm);
    if (!std::isfinite(potencia)) return std::nullopt;
    return TextosDePotencia(e, potencia);
}

TextosPotencia TextosDePotencia(const Estado& e, double potencia) {
    return {Format(Round(potencia, 1), kMascaraPotencia, e.SeparadorDecimal),
            Format(Round(potencia / kVatiosCV, 1), kMascaraPotencia, e.SeparadorDecimal)};
}

}  // namespace vanta
