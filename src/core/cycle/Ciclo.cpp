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
constexpr std::string_view kMensajePropVcte = " % no puede ser superior a 100";
// The checks of the inputs that the program makes beyond their numeric form,
// where a value would leave the calculation without meaning.
constexpr std::string_view kMensajeRc = "La relación de compresión debe ser mayor que 1";
constexpr std::string_view kMensajeCilindrada = "La cilindrada debe ser mayor que cero";
constexpr std::string_view kMensajeP1 = "La presión al final de la admisión debe ser mayor que cero";
constexpr std::string_view kMensajeT1 = "La temperatura al final de la admisión debe ser mayor que cero";
constexpr std::string_view kMensajeExponente = "El exponente politrópico n debe ser mayor que 1";
constexpr std::string_view kMensajePropNegativa = "El % de calor a volumen constante no puede ser negativo";
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

constexpr std::string_view kCicloOtto = "Otto";
constexpr std::string_view kCicloDiesel = "Diesel";
constexpr std::string_view kCicloMixto = "Mixto";

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

void Fallo(Estado& e, Dialogos& dlg, std::string_view mensaje) {
    dlg.MsgBox(mensaje);
    e.ErrorCalculo = Verdadero;
}

// The boxes, each through the validator with its name.
void LeerEntradas(Estado& e, Dialogos& dlg, ControlesCiclo& c) {
    ValidarNumero(e, dlg, c.txtPMax, e.Pmax, " Presión máxima ");
    ValidarNumero(e, dlg, c.txtRc, e.Rc, " Relación de compresión ");
    ValidarNumero(e, dlg, c.txtCilindrada, e.V1, "Cilindrada");
    e.V1 = e.V1 / 1e6;
    ValidarNumero(e, dlg, c.txt_nExp, e.nExpansion, " n ");
    ValidarNumero(e, dlg, c.txtP1, e.p1, " Presión al final de la admisión ");
    ValidarNumero(e, dlg, c.txtT1, e.T1, " Temperatura al final de la admisión ");
    ValidarNumero(e, dlg, c.txtPropVcte, e.PropVcte, "%");
}

// Values that pass the numeric test but leave the cycle without meaning.
void ComprobarEntradas(Estado& e, Dialogos& dlg, ControlesCiclo& c) {
    if (e.ErrorCalculo) return;
    struct Regla {
        bool falla;
        std::string_view mensaje;
        CajaTexto& caja;
    };
    const Regla reglas[] = {
        {!(e.Rc > 1), kMensajeRc, c.txtRc},
        {!(e.V1 > 0), kMensajeCilindrada, c.txtCilindrada},
        {!(e.p1 > 0), kMensajeP1, c.txtP1},
        {!(e.T1 > 0), kMensajeT1, c.txtT1},
        {c.optPolitropica.Value() && !(e.nExpansion > 1), kMensajeExponente, c.txt_nExp},
        {e.TipoCiclo == kCicloMixto && c.optProporcion.Value() && e.PropVcte < 0, kMensajePropNegativa,
         c.txtPropVcte},
    };
    for (const Regla& r : reglas) {
        if (r.falla) {
            Fallo(e, dlg, r.mensaje);
            r.caja.SetFocus();
            return;
        }
    }
}

// Volumes, masses, heat, step and moles. Worked out first and
// stored only when every figure is a finite number.
void MasasYVolumenes(Estado& e, Dialogos& dlg) {
    const double V2 = e.V1 / e.Rc;
    const double masaAire = (e.MasaMolecularAire * e.p1 / (e.T1 * kR)) * e.V1;
    const double masaCombustible = e.Fe * masaAire * e.Fr;
    const double masaHumos = masaCombustible + masaAire;
    const double qCiclo = e.HCIhumos * masaCombustible;
    const double paso = (e.V1 - e.V1 / e.Rc) / 1000;
    for (double v : {V2, masaAire, masaCombustible, masaHumos, qCiclo, paso}) {
        if (!std::isfinite(v)) {
            FalloAritmetico(e, dlg, kCausaMasas);
            return;
        }
    }
    // V1 near the smallest double over a large Rc: V2 or the step is lost to zero.
    if (!(V2 > 0 && paso > 0)) {
        FalloAritmetico(e, dlg, kCausaVolumenNulo);
        return;
    }
    e.V2 = V2;
    e.V3 = V2;
    e.MasaAire = masaAire;
    e.MasaCombustible = masaCombustible;
    e.MasaHumos = masaHumos;
    e.Qciclo = qCiclo;
    e.PasoVolumen = paso;
    CalcularMolesCiclo(e, dlg);
    e.GammaMedio = 0.0;
}

// State 1 in the record's end, before each of the two passes.
void EstadoUno(Estado& e, Dialogos& dlg) {
    e.Presion = e.p1;
    e.Temperatura = e.T1;
    PropiedadesAire(e, dlg);
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
void CompresionSilenciosa(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g) {
    if (c.optGvariable.Value())
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, 1, Dibujo::SinDibujar);
    if (c.optGmedioCom.Value()) {
        c.txtGammaMedioComp.SetText(TextoGeneral(e.GammaMedio, e.SeparadorDecimal));
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.GammaMedio.Numero(),
                   Dibujo::SinDibujar);
    }
    if (c.optPolitropicaCom.Value()) {
        ValidarNumero(e, dlg, c.txt_nCom, e.nCompresion, " n ");
        if (!e.ErrorCalculo && !(e.nCompresion > 1)) {
            Fallo(e, dlg, kMensajeExponente);
            c.txt_nCom.SetFocus();
        }
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.nCompresion, Dibujo::SinDibujar);
    }
}

// The drawing pass's compression: drawing, and what it shows.
void CompresionDibujada(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g) {
    if (c.optGvariable.Value()) {
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, 1, Dibujo::Dibujar);
        e.GammaMedio = " N.D.";
    }
    if (c.optGmedioCom.Value()) {
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.GammaMedio.Numero(),
                   Dibujo::Dibujar);
        c.txtGammaMedioComp.SetText(TextoGeneral(e.GammaMedio, e.SeparadorDecimal));
        e.TextoExponente = " N.D.";
        e.GammaMedioCompresion = e.GammaMedio.Numero();
    }
    if (c.optPolitropicaCom.Value()) {
        ValidarNumero(e, dlg, c.txt_nCom, e.nCompresion, " n ");
        e.TextoExponente = e.nCompresion;
        Compresion(e, dlg, g, e.ModeloCompresion, e.V2, e.PasoVolumen, e.nCompresion, Dibujo::Dibujar);
        e.GammaMedio = "N.D.";
    }
}

// The heat at constant volume by the cycle, in each pass. The first pass
// tests Pmax against p2 and moves the focus; the drawing pass tests it
// against the start of compression, p1, and does not.
void CalorIsocoro(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g, Dibujo dibujar) {
    const bool primeraPasada = dibujar != Dibujo::Dibujar;
    if (e.TipoCiclo == kCicloOtto) {
        e.Q23 = e.Qciclo;
        CombustionVolumenConstante(e, dlg, g, TipoCalorIsocoro::Dado, e.Pmax, dibujar);
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
        if (c.optProporcion.Value()) {
            e.Q23 = CalorVolumenConstanteMixto(e);
            CombustionVolumenConstante(e, dlg, g, TipoCalorIsocoro::Dado, e.Pmax, dibujar);
        }
        if (c.optPmax.Value()) {
            const double presionPrueba = primeraPasada ? e.PresionFinal : e.PresionInicial;
            if (e.Pmax >= presionPrueba) {
                CombustionVolumenConstante(e, dlg, g, TipoCalorIsocoro::HastaPmax, e.Pmax, dibujar);
            } else {
                Fallo(e, dlg, kMensajeImposible);
                if (primeraPasada) (e.Rc <= kRcFocoPmax ? c.txtPMax : c.txtRc).SetFocus();
            }
        }
        LeerEstado3(e);
    } else {
        Fallo(e, dlg, kMensajeSinCiclo);
    }
}

// The expansion down to V1, by the option selected.
void ExpansionDibujada(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g) {
    if (c.optGvariableExp.Value()) {
        Expansion(e, dlg, g, Modelo::GammaVariable, e.V1, e.PasoVolumen, e.Gamma);
        e.GammaMedio = " N.D.";
    }
    if (c.optGmedioExp.Value()) {
        Expansion(e, dlg, g, Modelo::GammaMedio, e.V1, e.PasoVolumen, e.GammaMedio.Numero());
        c.txtGMedioExp.SetText(TextoGeneral(e.GammaMedio, e.SeparadorDecimal));
        e.TextoExponente = " N.D.";
        e.GammaMedioExpansion = e.GammaMedio.Numero();
    }
    if (c.optPolitropica.Value()) {
        Expansion(e, dlg, g, Modelo::Politropico, e.V1, e.PasoVolumen, e.nExpansion);
        e.GammaMedio = " N.D.";
        e.TextoExponente = e.nExpansion;
    }
}

// The closing sums: cycle work with the rounded W12, consumption, efficiency
// on the heat the fuel would give if all burnt.
bool CerrarCiclo(Estado& e, Dialogos& dlg) {
    e.Wciclo = e.W34acumulado + e.W45acumulado + e.W12;
    const double trabajoEspecifico = e.Wciclo / e.MasaCombustible;
    const double rendimiento = e.Wciclo / (e.HCI * e.MasaCombustible);
    if (!std::isfinite(trabajoEspecifico) || trabajoEspecifico == 0 || !std::isfinite(rendimiento)) {
        FalloAritmetico(e, dlg, kCausaCierre);
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

void FormCiclo_Load(Estado& e, ControlesCiclo& c) {
    e.ModeloCompresion = Modelo::GammaMedio;
    e.ModeloExpansion = Modelo::GammaMedio;
    c.txtP1.SetText(TextoGeneral(e.Pambiente, e.SeparadorDecimal));
    c.txtT1.SetText(TextoGeneral(e.Tambiente, e.SeparadorDecimal));
}

void FormCiclo_Activate(Estado& e) {
    e.ErrorCalculo = Falso;
}

void imgOtto_Click(Estado& e, FormularioCiclo& f) {
    e.TipoCiclo = kCicloOtto;
    e.Pmax = kPmaxOtto;
    e.OpcionProporcion = Falso;
    f.MostrarMarcos(kMarcosOttoDiesel);
    f.ResaltarCiclo({.otto = true, .diesel = false, .mixto = false});
}

void imgDiesel_Click(Estado& e, FormularioCiclo& f) {
    e.TipoCiclo = kCicloDiesel;
    e.OpcionProporcion = Falso;
    f.MostrarMarcos(kMarcosOttoDiesel);
    f.ResaltarCiclo({.otto = false, .diesel = true, .mixto = false});
}

void imgMixto_Click(Estado& e, FormularioCiclo& f) {
    e.TipoCiclo = kCicloMixto;
    f.MostrarMarcos({.compresion = true,
                     .expansion = true,
                     .aire = true,
                     .opcion = true,
                     .datos = true,
                     .seleccionar = false});
    f.ResaltarCiclo({.otto = false, .diesel = false, .mixto = true});
}

void ElegirModeloCompresion(Estado& e, Modelo modelo) {
    e.ModeloCompresion = modelo;
}
void ElegirModeloExpansion(Estado& e, Modelo modelo) {
    e.ModeloExpansion = modelo;
}
void optProporcion_Click(Estado& e) {
    e.OpcionProporcion = Verdadero;
}
void optPmax_Click(Estado& e) {
    e.OpcionProporcion = Falso;
}

void txtPropVcte_Change(Estado& e, Dialogos& dlg, ControlesCiclo& c) {
    ValidarNumero(e, dlg, c.txtPropVcte, e.PropVcte, "%");
    if (e.PropVcte > 100) {
        dlg.MsgBox(kMensajePropVcte);
        // Setting the box runs this event again from the start.
        c.txtPropVcte.SetText("100");
        txtPropVcte_Change(e, dlg, c);
        c.txtPropVcte.SetFocus();
    }
    e.PropPcte = 100 - e.PropVcte;
    c.txtPropPcte.SetText(TextoGeneral(e.PropPcte, e.SeparadorDecimal));
}

void CalcularCiclo(Estado& e, Dialogos& dlg, ControlesCiclo& c, Diagramas& g, VentanaPrincipal& v) {
    // Preparation.
    v.Ocultabotones(kAlCalcular);
    e.ErrorCalculo = Falso;
    e.PresionMaxima = 0;
    e.TemperaturaMaxima = 0;
    e.FraccionQuemada = 0;
    e.PresionMolQuemado = 0;
    e.PresionMolFresco = 0;
    e.W12acumulado = 0;
    e.W45acumulado = 0;
    e.pasadas = {};
    LeerEntradas(e, dlg, c);
    ComprobarEntradas(e, dlg, c);
    // A refused text does not stop the steps up to state 1: the first test of
    // the flag comes after them (the maxima take p1 and T1 all the same).
    MasasYVolumenes(e, dlg);
    EstadoUno(e, dlg);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return;

    // First pass: no drawing; finds the maxima of states 1 to 4.
    CompresionSilenciosa(e, dlg, c, g);
    ActualizarMaximos(e);
    LeerEstado2(e);
    if (e.ErrorCalculo) return;
    CalorIsocoro(e, dlg, c, g, Dibujo::SinDibujar);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return;
    if (e.Q23 < e.Qciclo) CombustionPresionConstante(e, dlg, g, e.V1, e.Qciclo - e.Q23, Dibujo::SinDibujar);
    ActualizarMaximos(e);
    if (e.ErrorCalculo) return;

    // The diagrams, scaled from the maxima.
    PrepararDiagramas(g);
    e.TrabajoPaso = 0;
    e.Wciclo = 0;
    e.W12acumulado = 0;
    e.W45acumulado = 0;
    e.W34acumulado = 0;
    if (!EscalarDiagramas(e, g)) {
        FalloAritmetico(e, dlg, kCausaDiagramas);
        return;
    }

    // Second pass: the same, drawing; these results stand.
    EstadoUno(e, dlg);
    PonerColorDiagramas(g, e.ColorCompresion);
    e.TipoFluido = Fluido::Aire;
    PropiedadesInicio(e, dlg);
    e.TipoFluido = Fluido::Aire;
    CompresionDibujada(e, dlg, c, g);
    LeerEstado2(e);
    e.W12 = Round(e.W12acumulado, 1);
    PonerColorDiagramas(g, e.ColorCombustionV);
    CalorIsocoro(e, dlg, c, g, Dibujo::Dibujar);
    PonerColorDiagramas(g, e.ColorCombustionP);
    if (e.ErrorCalculo) return;
    if (e.Q23 < e.Qciclo)
        CombustionPresionConstante(e, dlg, g, e.V1, e.Qciclo - e.Q23, Dibujo::Dibujar);
    else
        e.Qtransformacion = 0;
    LeerEstado4(e);
    e.W34 = Round(e.W34acumulado, 1);
    if (e.ErrorCalculo) return;
    PonerColorDiagramas(g, e.ColorExpansion);
    e.TipoFluido = Fluido::Humos;
    ExpansionDibujada(e, dlg, c, g);
    LeerEstado5(e);
    e.W45 = Round(e.W45acumulado, 1);
    if (e.ErrorCalculo) {
        dlg.MsgBox(kMensajeErrorCalculo);
        v.Ocultabotones(kAlFallarCalculo);
        // pctHS keeps its old picture.
        g.pctTV.Cls();
        g.pctPV.Cls();
        g.pctTS.Cls();
        return;
    }
    PonerColorDiagramas(g, e.ColorEscape);
    TrazarEscape(e, dlg, g);
    PonerColorDiagramas(g, e.ColorExpansion);

    // Closing figures, the report, the labels, the point numbers.
    if (!CerrarCiclo(e, dlg)) return;
    v.PonerInforme(InformeTexto(e, v.TipoCombustible()));
    v.MostrarResultados(TextosDeResultados(e));
    NumerarPuntos(e, g);
    if (c.chkOcultar.Value()) c.ventana.Hide();
}

double Potencia(Estado& e, Dialogos& dlg, double Wciclo, CajaTexto& txtRpm) {
    double rpm = 0;
    ValidarNumero(e, dlg, txtRpm, rpm, " rpm ");
    // One power stroke in two revolutions.
    const double potencia = Wciclo * rpm * 0.5 / 60;
    if (std::isfinite(potencia)) return potencia;
    FalloAritmetico(e, dlg, kCausaPotencia);
    return std::nan("");
}

void txtRpm_Change(Estado& e, Dialogos& dlg, double Wciclo, CajaTexto& txtRpm, CajaTexto& txtPotencia,
                   CajaTexto& txtPotenciaCV) {
    if (txtRpm.Text().empty()) return;
    const double potencia = Potencia(e, dlg, Wciclo, txtRpm);
    if (!std::isfinite(potencia)) return;
    txtPotencia.SetText(Format(Round(potencia, 1), kMascaraPotencia, e.SeparadorDecimal));
    txtPotenciaCV.SetText(Format(Round(potencia / kVatiosCV, 1), kMascaraPotencia, e.SeparadorDecimal));
}

}  // namespace vanta
