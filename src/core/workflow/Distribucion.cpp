#include "core/workflow/Distribucion.h"

namespace vanta {

namespace {

// A place as fractions: Left and Width of the width given, Top and Height of
// the height given.
struct Proporcion {
    double izquierda, arriba, alto, ancho;
};

// Half away from zero, as the window rounds a place to its pixels.
int Pixeles(double x) {
    return x >= 0 ? static_cast<int>(x + 0.5) : -static_cast<int>(-x + 0.5);
}

Lugar En(const Proporcion& p, double W, double H) {
    return {Pixeles(p.izquierda * W), Pixeles(p.arriba * H), Pixeles(p.ancho * W), Pixeles(p.alto * H)};
}

// The overview.
constexpr Proporcion kPct1{0.001, 0, 0.25, 0.499};
constexpr Proporcion kPct2{0.501, 0, 0.25, 0.4995};
constexpr Proporcion kPct3{0.501, 0.251, 0.25, 0.4995};
constexpr Proporcion kPctPV{0.001, 0.529, 0.32, 0.345};
constexpr Proporcion kPctTV{0.65, 0.529, 0.32, 0.35};
// T-s is an inset at the top right of p-V (and h-s, at the start, at the top
// left of T-V), by fractions of that diagram.
constexpr double kRecuadroIzquierda = 0.65, kRecuadroAlto = 0.3, kRecuadroAncho = 0.3;

constexpr Proporcion kFraBotonera{0.00391, 0.23958, 0.21484, 0.106445};
constexpr Proporcion kFraPuntos{0.109375, 0.23958, 0.21484, 0.38378906};
constexpr Proporcion kFraPotencia{0.00391, 0.453125, 0.069, 0.489258};
constexpr Proporcion kFraTransformaciones{0.351562, 0.52083, 0.28776, 0.301758};

// The stage buttons, in fraBotonera's own coordinates: Left is the frame's
// Left, and Top a factor of the frame's Top (not of its Height); the factors
// were derived so that the buttons stay inside the frame.
constexpr double kBotonAlto = 0.2, kBotonAncho = 0.91743;
constexpr double kBotonArriba[4] = {0.0652174, 0.266304, 0.472826, 0.673913};

// CambiarTamaño.
constexpr Proporcion kCmdInforme{0.351562, 0.8125, 0.03776, 0.137695};
constexpr Proporcion kCmdEnvBaseDatos{0.515625, 0.8125, 0.03776, 0.137695};
constexpr Proporcion kChkVerHs{0.703125, 0.822917, 0.0221354, 0.204101};
constexpr Proporcion kFraEstadoActual{0.00390625, 0.84986, 0.05868, 0.985351};

// The enlarged view: the main diagram, the two on the right, as fractions of
// the window; the inset by fractions of the main diagram.
constexpr Proporcion kPrincipal{0, 0, 0.8, 0.7};
constexpr Proporcion kArriba{0.7, 0, 0.4, 0.3};
constexpr Proporcion kAbajo{0.7, 0.4, 0.4, 0.3};

struct Papeles {
    Lugar Lugares::*principal, Lugares::*arriba, Lugares::*abajo, Lugares::*recuadro;
    double recuadroIzquierda, recuadroAlto, recuadroAncho;  // fractions of the main diagram
};

Papeles PapelesDe(Diagrama d) {
    using L = Lugares;
    switch (d) {
        case Diagrama::PV:
            return {&L::pctPV, &L::pctTS, &L::pctTV, &L::pctHS, 0.8, 0.2, 0.2};
        case Diagrama::TV:
            return {&L::pctTV, &L::pctTS, &L::pctPV, &L::pctHS, 0.8, 0.2, 0.2};
        case Diagrama::TS:
            return {&L::pctTS, &L::pctPV, &L::pctTV, &L::pctHS, 0.4, 0.4, 0.55};
        case Diagrama::HS:
            return {&L::pctHS, &L::pctPV, &L::pctTV, &L::pctTS, 0.6, 0.2, 0.3};
    }
    return {};
}

Lugar& DeDiagrama(Lugares& l, Diagrama d) {
    return l.*PapelesDe(d).principal;
}

}  // namespace

void ColocarTodos(Lugares& l, const TamanoVentana& v) {
    const double W = v.W, H = v.H;
    l.pct1 = En(kPct1, W, H);
    l.pct2 = En(kPct2, W, H);
    l.pct3 = En(kPct3, W, H);
    l.pctPV = En(kPctPV, W, H);
    l.pctTV = En(kPctTV, W, H);
    const Lugar& pv = l.pctPV;
    l.pctTS = {pv.Left + Pixeles(kRecuadroIzquierda * pv.Width), pv.Top, Pixeles(kRecuadroAncho * pv.Width),
               Pixeles(kRecuadroAlto * pv.Height)};
    l.fraBotonera = En(kFraBotonera, W, H);
    l.fraPuntos = En(kFraPuntos, W, H);
    l.fraPotencia = En(kFraPotencia, W, H);
    l.fraTransformaciones = En(kFraTransformaciones, W, H);
    const Lugar& b = l.fraBotonera;
    Lugar* botones[4] = {&l.cmdElegirComburente, &l.cmdCombustible, &l.cmdCarCombustion, &l.cmdCarCiclo};
    for (int i = 0; i < 4; ++i)
        *botones[i] = {b.Left, Pixeles(kBotonArriba[i] * b.Top), Pixeles(kBotonAncho * b.Width),
                       Pixeles(kBotonAlto * b.Height)};
    ColocarCambiarTamaño(l, v);
}

void ColocarCambiarTamaño(Lugares& l, const TamanoVentana& v) {
    const double W = v.W, H = v.H;
    l.cmdInforme = En(kCmdInforme, W, H);
    l.cmdEnvBaseDatos = En(kCmdEnvBaseDatos, W, H);
    l.chkVerHs = En(kChkVerHs, W, H);
    l.fraEstadoActual = En(kFraEstadoActual, W, H);
}

void ColocarHSInicial(Lugares& l) {
    const Lugar& tv = l.pctTV;
    l.pctHS = {tv.Left, tv.Top, Pixeles(kRecuadroAncho * tv.Width), Pixeles(kRecuadroAlto * tv.Height)};
}

Lugar Escalado(const Lugar& l, const TamanoVentana& antes, const TamanoVentana& ahora) {
    if (antes.W <= 0 || antes.H <= 0) return l;
    const double x = static_cast<double>(ahora.W) / antes.W, y = static_cast<double>(ahora.H) / antes.H;
    return {Pixeles(l.Left * x), Pixeles(l.Top * y), Pixeles(l.Width * x), Pixeles(l.Height * y)};
}

bool DebeAmpliar(Diagrama d, const Lugares& l, const TamanoVentana& v) {
    const double setentaPorCiento = static_cast<float>(0.7 * v.W);
    switch (d) {
        case Diagrama::PV:
            return setentaPorCiento > l.pctPV.Width;
        case Diagrama::TV:
            return setentaPorCiento > l.pctTV.Width;
        case Diagrama::TS:
            return l.pctTS.Left > v.dosTwips;
        case Diagrama::HS:
            return setentaPorCiento > l.pctHS.Width;
    }
    return false;
}

void ColocarAmpliado(Diagrama d, Lugares& l, const TamanoVentana& v) {
    const double W = v.W, H = v.H;
    const Papeles p = PapelesDe(d);
    l.*p.principal = En(kPrincipal, W, H);
    l.*p.arriba = En(kArriba, W, H);
    l.*p.abajo = En(kAbajo, W, H);
    // The inset by the main diagram's unrounded size.
    const double anchoPrincipal = kPrincipal.ancho * W, altoPrincipal = kPrincipal.alto * H;
    l.*p.recuadro = {Pixeles(p.recuadroIzquierda * anchoPrincipal), 0,
                     Pixeles(p.recuadroAncho * anchoPrincipal), Pixeles(p.recuadroAlto * altoPrincipal)};
    if (DebeAmpliar(d, l, v)) ++DeDiagrama(l, d).Width;
}

Diagrama RecuadroDe(Diagrama d) {
    return d == Diagrama::HS ? Diagrama::TS : Diagrama::HS;
}

}  // namespace vanta
