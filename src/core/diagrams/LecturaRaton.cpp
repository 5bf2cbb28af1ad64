#include "core/diagrams/LecturaRaton.h"

#include <cmath>
#include <string_view>

#include "core/cycle/Transformaciones.h"
#include "core/properties/Busquedas.h"
#include "core/properties/Mezclas.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

constexpr std::string_view kCompresionMedio = "Compresión adiabática";
constexpr std::string_view kCompresionPolitropica = "Compresión politrópica";
constexpr std::string_view kCompresionVariable = "Compresión adiabática con gamma variable";
constexpr std::string_view kCombustionV = "Combustión a v = cte.";
constexpr std::string_view kCombustionP = "Combustión p = cte.";
constexpr std::string_view kExpansionMedio = "Expansión adiabática";
constexpr std::string_view kExpansionPolitropica = "Expansión politrópica";
constexpr std::string_view kExpansionVariable = "Expansión adiabática con gamma variable";
constexpr std::string_view kEscape = "Escape y admisión";

std::string_view TextoModelo(Modelo modelo, std::string_view medio, std::string_view politropico,
                             std::string_view variable) {
    if (modelo == Modelo::GammaMedio) return medio;
    if (modelo == Modelo::Politropico) return politropico;
    return variable;
}

// A state value as the comparisons with the pointer take it: single precision.
float S(double v) {
    return static_cast<float>(v);
}

// The state the pointer means.
struct Punto {
    std::string_view texto;
    double T = 0, p = 0;
    Fluido fluido{};
    double x = 0;  // share of gases for the blend
};

// Which diagram the pointer is on: its quantity is p or T.
struct Diagrama {
    bool esPV;
    double Q(double p, double T) const { return esPV ? p : T; }
};

// The burnt share at constant volume for a temperature T of 2-3.
double FraccionIsocora(const Estado& e, double T) {
    if (e.PresionMolFresco == 0) return 1;
    return (T * e.p2 / e.T2 - e.MolesHumos * e.PresionMolFresco) /
           ((e.PresionMolQuemado - e.PresionMolFresco) * e.MolesHumos);
}

// Branch A: left of V2, the heat at constant volume.
Punto RamaIsocora(const Estado& e, Diagrama d, float Y) {
    Punto r{kCombustionV};
    if (-S(d.Q(e.p2, e.T2)) < Y) {
        r.T = e.T2, r.p = e.p2, r.fluido = Fluido::Aire;
    } else if (-S(d.Q(e.p3, e.T3)) > Y) {
        r.T = e.T3, r.p = e.p3;
        if (e.T3 == e.T4)
            r.fluido = Fluido::Humos, r.x = 1;
        else if (e.Q23 == 0)
            r.fluido = Fluido::Aire, r.x = 0;
        else
            r.fluido = Fluido::AireHumos, r.x = FraccionIsocora(e, e.T3);
        if (e.PresionMolFresco == 0) r.x = 1;
    } else {
        if (d.esPV)
            r.p = -Y, r.T = e.T2 * r.p / e.p2;
        else
            r.T = -Y, r.p = e.p2 * r.T / e.T2;
        r.fluido = Fluido::AireHumos;
        r.x = FraccionIsocora(e, r.T);
    }
    return r;
}

// Branch C: right of V1, the exhaust and intake line.
Punto RamaEscape(const Estado& e, Diagrama d, float Y) {
    Punto r{kEscape};
    if (-S(d.Q(e.p1, e.T1)) <= Y) {
        r.T = e.T1, r.p = e.p1, r.fluido = Fluido::Aire;
    } else if (-S(d.Q(e.p5, e.T5)) >= Y) {
        r.T = e.T5, r.p = e.p5, r.fluido = Fluido::Humos;
    } else {
        if (d.esPV)
            r.p = -Y, r.T = e.T1 * r.p / e.p1;
        else
            r.T = -Y, r.p = e.p1 * r.T / e.T1;
        r.fluido = Fluido::AireHumos;
    }
    return r;
}

void PuntoEn(Diagramas& g, double V, double T, double p, double s, double h) {
    g.pctTV.PSet(S(V), S(-T));
    g.pctPV.PSet(S(V), S(-p));
    g.pctTS.PSet(S(s), S(-T));
    g.pctHS.PSet(S(s), S(-h));
}

// The process run again from a state up to the pointer's volume, drawing.
void Recorrer(Estado& e, Mensajes& msj, Diagramas& g, bool compresion, double X) {
    if (compresion) {
        PuntoEn(g, e.V1, e.T1, e.p1, e.S1, e.h1);
        CopiarCincoValores(e.PresionFinal, e.p1, e.VolumenFinal, e.V1, e.TemperaturaFinal, e.T1,
                           e.EntalpiaFinal, e.h1, e.EntropiaFinal, e.S1);
        Compresion(e, msj, g, e.ModeloCompresion, X, e.PasoVolumen, 1, Dibujo::Dibujar);
    } else {
        PuntoEn(g, e.V4, e.T4, e.p4, e.S4, e.h4);
        CopiarCincoValores(e.PresionFinal, e.p4, e.VolumenFinal, e.V4, e.TemperaturaFinal, e.T4,
                           e.EntalpiaFinal, e.h4, e.EntropiaFinal, e.S4);
        Expansion(e, msj, g, e.ModeloExpansion, X, e.PasoVolumen, 1);
    }
}

// Branch B: between the strokes, the nearer of the compression and of the
// expansion or the isobar, on the ordinate only; a tie goes to compression.
Punto RamaCarreras(Estado& e, Mensajes& msj, Diagramas& g, Diagrama d, float X, float Y) {
    const double x = X;
    Punto c{TextoModelo(e.ModeloCompresion, kCompresionMedio, kCompresionPolitropica, kCompresionVariable)};
    c.fluido = Fluido::Aire;
    if (e.ModeloCompresion == Modelo::GammaVariable) {
        Recorrer(e, msj, g, true, x);
        c.T = e.TemperaturaFinal, c.p = e.PresionFinal;
    } else {
        const double n = e.ModeloCompresion == Modelo::GammaMedio ? e.GammaMedioCompresion : e.nCompresion;
        c.T = e.T1 * std::pow(e.V1 / x, n - 1), c.p = e.p1 * std::pow(e.V1 / x, n);
    }
    const double d1 = std::fabs(Y + d.Q(c.p, c.T));

    e.Presion = e.p4;
    Punto x2;
    if (S(e.V4) <= X) {
        x2.texto = TextoModelo(e.ModeloExpansion, kExpansionMedio, kExpansionPolitropica, kExpansionVariable);
        x2.fluido = Fluido::Humos;
        if (e.ModeloExpansion == Modelo::GammaVariable) {
            Recorrer(e, msj, g, false, x);
            x2.T = e.TemperaturaFinal, x2.p = e.PresionFinal;
        } else {
            const double n = e.ModeloExpansion == Modelo::GammaMedio ? e.GammaMedioExpansion : e.nExpansion;
            x2.T = e.T4 * std::pow(e.V4 / x, n - 1), x2.p = e.p4 * std::pow(e.V4 / x, n);
        }
    } else {
        x2.texto = kCombustionP;
        x2.fluido = Fluido::AireHumos;
        x2.T = x * e.T3 / e.V3, x2.p = e.p3;
        x2.x = e.T4 == e.T3 ? 1 : (x2.T - e.T3) * (1 - e.FraccionQuemada) / (e.T4 - e.T3) + e.FraccionQuemada;
    }
    const double d2 = std::fabs(Y + d.Q(x2.p, x2.T));
    return d1 <= d2 ? c : x2;
}

// A cross through (x, y), each line from edge to edge of the scale.
void Cruz(Superficie& s, double x, double y) {
    s.Line(S(x), s.ScaleTop(), S(x), s.ScaleTop() + s.ScaleHeight());
    s.Line(s.ScaleLeft(), S(y), s.ScaleLeft() + s.ScaleWidth(), S(y));
}

// What a move leaves in the state: the record's Temperatura and Presion, the
// kind of fluid, and what a run of the variable-exponent model adds to the
// work sums and writes into the gammas. Nothing else: the cycle's closing
// figures, Wciclo among them, stay as the calculation left them.
void DevolverLectura(const Estado& copia, Estado& e) {
    e.Temperatura = copia.Temperatura;
    e.Presion = copia.Presion;
    e.TipoFluido = copia.TipoFluido;
    e.W12acumulado = copia.W12acumulado;
    e.W45acumulado = copia.W45acumulado;
    e.gamma1 = copia.gamma1;
    e.Gamma2 = copia.Gamma2;
    e.Gamma4 = copia.Gamma4;
    e.Gamma5 = copia.Gamma5;
}

void Lectura(Estado& e, Mensajes& msj, Diagramas& g, Diagrama d, bool visible, float X, float Y,
             LecturaEstado& lectura) {
    if (!visible) return;
    for (Superficie* s : {&g.pctTV, &g.pctPV, &g.pctTS, &g.pctHS}) {
        s->SetAutoRedraw(false);
        s->Refresh();
    }
    // The move works on a scratch copy of the state.
    Estado c = e;
    Punto r;
    double volumen = X;
    if (X <= S(c.V2)) {
        r = RamaIsocora(c, d, Y);
        volumen = c.V2;
    } else if (X < S(c.V1)) {
        r = RamaCarreras(c, msj, g, d, X, Y);
    } else {
        r = RamaEscape(c, d, Y);
        volumen = c.V1;
    }
    c.TipoFluido = r.fluido;

    c.Temperatura = r.T;
    c.Presion = r.p;
    double h = 0, s = 0;
    switch (c.TipoFluido) {
        case Fluido::Aire:
            PropiedadesAire(c, msj);
            h = c.hAire, s = c.SAire;
            break;
        case Fluido::Humos:
            PropiedadesHumos(c, msj);
            h = c.hHumos, s = c.SHumos;
            break;
        case Fluido::AireHumos:
            if (X <= S(c.V2))
                PropiedadesAireHumosFraccion(c, msj, r.x);
            else if (S(c.V4) <= X)
                PropiedadesAireHumosLineal(c, msj, c.T5, c.T1, r.T);
            else
                PropiedadesAireHumosFraccion(c, msj, r.x);
            h = c.hMezcla, s = c.SMezcla;
            break;
        default:
            msj.MsgBox(kMensajeFluidoInicio);
    }
    // An evaluation stopped by the flag of failure left the values of an
    // earlier one: h and s are not shown, nor crossed.
    const bool evaluado = !c.ErrorCalculo;
    DevolverLectura(c, e);

    Cruz(g.pctTV, volumen, -r.T);
    Cruz(g.pctPV, volumen, -r.p);
    if (evaluado) {
        Cruz(g.pctTS, s, -r.T);
        Cruz(g.pctHS, s, -h);
    }

    const char sep = c.SeparadorDecimal;
    lectura.lblTmouseVal = Format(r.T, "### ### ### ##0.00", sep);
    lectura.lblVmouseVal = Format(volumen * 1e6, "0.000", sep);
    lectura.lblPmouseVal = Format(r.p, "### ### ### ###", sep);
    lectura.lblhmouseVal = evaluado ? Format(h, "### ### ### ##0.0", sep) : "";
    lectura.lblSmouseVal = evaluado ? Format(s, "### ### ### ##0.000", sep) : "";
    lectura.txtTransformacion = r.texto;
}

}  // namespace

void pctPV_MouseMove(Estado& e, Mensajes& msj, Diagramas& g, bool cmdInformeVisible, float X, float Y,
                     LecturaEstado& lectura) {
    Lectura(e, msj, g, {true}, cmdInformeVisible, X, Y, lectura);
}

void pctTV_MouseMove(Estado& e, Mensajes& msj, Diagramas& g, bool cmdInformeVisible, float X, float Y,
                     LecturaEstado& lectura) {
    Lectura(e, msj, g, {false}, cmdInformeVisible, X, Y, lectura);
}

}  // namespace vanta
