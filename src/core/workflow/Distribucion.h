// Where the controls of the main window stand: each is placed in proportion
// to the window's size at the moment of the call, on the design of a window
// filling a 1024 × 768 screen, in the overview with all the results or in the
// enlarged view of one diagram. Places are whole pixels of the window.
#pragma once

namespace vanta {

// The diagrams that can be enlarged.
enum class Diagrama { PV, TV, TS, HS };

// A control's place: its left and top edges, width and height, in pixels.
struct Lugar {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    bool operator==(const Lugar&) const = default;
};

// The places that the workflow moves, in the window's inside; the stage
// buttons' in their frame's.
struct Lugares {
    Lugar pct1, pct2, pct3, pctPV, pctTV, pctTS, pctHS;
    Lugar fraBotonera, fraPuntos, fraPotencia, fraTransformaciones;
    Lugar cmdElegirComburente, cmdCombustible, cmdCarCombustion, cmdCarCiclo;
    Lugar cmdInforme, cmdEnvBaseDatos, chkVerHs, fraEstadoActual;
    bool operator==(const Lugares&) const = default;
};

// The size of the window, and two twips of the design's unit in its pixels:
// the T-s diagram enlarges while its Left is beyond them.
struct TamanoVentana {
    int W = 0, H = 0;
    double dosTwips = 0;
};

// The overview: the charts across the top, p-V with T-s as its inset and T-V
// below, the stage buttons, the tables of states and processes, the power;
// then CambiarTamaño.
void ColocarTodos(Lugares& l, const TamanoVentana& v);
// The report and database buttons, the h-s box and the readout.
void ColocarCambiarTamaño(Lugares& l, const TamanoVentana& v);
// pctHS at the start, until an enlarged view places it: an inset at the top
// left of T-V, as T-s is on p-V.
void ColocarHSInicial(Lugares& l);

// A place of a window of size antes, in the same proportions of one of size
// ahora.
Lugar Escalado(const Lugar& l, const TamanoVentana& antes, const TamanoVentana& ahora);

// Whether the switch of diagram d enlarges it (true) or returns to the
// overview, read from the current places: 0.7 W, rounded to single, against
// the width of the diagram; T-s tests its Left against two twips.
bool DebeAmpliar(Diagrama d, const Lugares& l, const TamanoVentana& v);
// The enlarged view of d: d on the left, two diagrams on the right, the
// fourth as an inset of d. In whole pixels d may fall a hair short of 0.7 W
// and a second click would enlarge it again instead of returning: it then
// takes the next pixel.
void ColocarAmpliado(Diagrama d, Lugares& l, const TamanoVentana& v);
// The inset of the enlarged view of d, which stands over d.
Diagrama RecuadroDe(Diagrama d);

}  // namespace vanta
