// The workflow of the main window as one value: which stage the user is in,
// which buttons and menu entries may be used, which panels are in view, the
// places of the controls and the current view (the overview, or one diagram
// enlarged). The transitions are the events of the window; the window only
// renders the value after each. Ocultabotones, PonerGraficosTodos,
// CambiarTamaño and the calculations that a transition runs are told, in
// their order, to whoever listens (the tests).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/workflow/Distribucion.h"

namespace vanta {

// The stage the user is in. A stage counts as reached when its window is
// opened, not when it is completed.
enum class Etapa {
    Inicio,          // the splash, only the first stage button
    Comburente,      // stage 1 opened (or "Nuevo ciclo")
    Combustible,     // stage 2
    Combustion,      // stage 3: the cycle may be calculated
    CicloCalculado,  // a calculation ended well: results in view
    ErrorDeCiclo,    // a calculation failed
    SoloTablas,      // the tables tool opened to define its own fluid
};

// What is on show: the overview or one diagram enlarged.
enum class Vista { General, PV, TV, TS, HS };

// The six flags of Ocultabotones, by name: the four stage buttons, the
// results and the report.
struct Botones {
    bool comburente, combustible, combustion, ciclo, resultados, informe;
};

// What the calculation tells the window on entry, and when it fails after the
// processes (the diagrams then cleared).
inline constexpr Botones kAlCalcular{.comburente = true,
                                     .combustible = false,
                                     .combustion = true,
                                     .ciclo = true,
                                     .resultados = true,
                                     .informe = true};
inline constexpr Botones kAlFallarCalculo{.comburente = true,
                                          .combustible = true,
                                          .combustion = true,
                                          .ciclo = true,
                                          .resultados = false,
                                          .informe = false};

struct Habilitados {
    bool cmdElegirComburente = true, cmdCombustible = false, cmdCarCombustion = false, cmdCarCiclo = false;
    bool mnuInforme = false, mnuBDatos = false, mnuGuardar = false, mnuTablasActual = false;
    bool mnuCalcular = false, mnuVerTodo = false, mnuVerCiclo = false;
    bool operator==(const Habilitados&) const = default;
};

struct Visibles {
    bool imgPresentacion = true, fraBotonera = true;
    bool pct1 = false, pct2 = false, pct3 = false, pctPV = false, pctTV = false, pctTS = false, pctHS = false;
    bool fraPuntos = false, fraTransformaciones = false, fraPotencia = false, fraEstadoActual = false;
    bool cmdInforme = false, cmdEnvBaseDatos = false, chkVerHs = false;
    bool operator==(const Visibles&) const = default;
};

// The stage windows that did not calculate (an input refused, a failure)
// since they were last opened: the stage after each stays disabled, whatever
// the transitions say, until that window calculates.
struct SinCalcular {
    bool comburente = false, combustible = false, combustion = false;
    bool operator==(const SinCalcular&) const = default;
};

// The menu's marks of the view and the value of the h-s box.
struct Marcas {
    bool mnuVerTodo = false, mnuPV = false, mnuTV = false, mnuTS = false, mnuHS = false;
    bool chkVerHs = false;
    bool operator==(const Marcas&) const = default;
};

struct Flujo {
    Etapa etapa = Etapa::Inicio;
    Vista vista = Vista::General;
    Habilitados habilitado;
    Visibles visible;
    Marcas marcado;
    TamanoVentana ventana;
    Lugares lugar;
    // The view whose places the controls have, from the moment they take them
    // (a switch calculates in its new places before its view is on show).
    Vista lugaresDe = Vista::General;
    // The diagram that stands over the others: the inset of the view.
    Diagrama encima = Diagrama::TS;
    SinCalcular sinCalcular;
    // The flags of the last Ocultabotones.
    Botones botones{};
    // The last calculation failed: the figures on screen are those of the one
    // before, and they are neither saved nor exported (mnuBDatos off).
    bool intentoFallido = false;
    // Told each call of the workflow, as "Ocultabotones(1 0 1 1 1 1)",
    // "PonerGraficosTodos", "CambiarTamaño", "CalcularCiclo".
    std::function<void(const std::string&)> alLlamar;
};

// What the window's events need to run the cycle: a calculation with the
// cycle window's inputs as they stand, after the window shows the places.
using CalculoCiclo = std::function<void()>;

// ---- The calls that show and place the panels ----------------------------------

void Ocultabotones(Flujo& f, const Botones& b);
void PonerGraficosTodos(Flujo& f);
void CambiarTamaño(Flujo& f);

// ---- Transitions -------------------------------------------------------------

// The window opens at this size: the overview placed, the results hidden, only
// the first stage button, the splash.
Flujo Form_Load(const TamanoVentana& ventana);
void cmdElegirComburente_Click(Flujo& f);
void mnuNuevo_Click(Flujo& f);
void cmdCombustible_Click(Flujo& f);
void cmdCarCombustion_Click(Flujo& f);
void mnuTablas_Click(Flujo& f);
// How a calculation ended, whatever it told the window on the way (its calls
// of Ocultabotones are kAlCalcular and kAlFallarCalculo). After a failure the
// save stays disabled until a calculation ends well.
void CalculoTerminado(Flujo& f, bool bien);
// A stage window (Comburente, Combustible or Combustion) refused an input or
// failed: the stage after it is disabled until the window calculates.
void EtapaNoCalculada(Flujo& f, Etapa etapa);
// The stage window calculated: the stage after it is as the last transition
// made it.
void EtapaCalculada(Flujo& f, Etapa etapa);
void chkVerHs_Click(Flujo& f, bool marcada);
// The switch of a diagram: enlarged, or back to the overview, by the
// diagram's own test on the current places; each ends in a calculation.
void PonerGraficos(Flujo& f, Diagrama d, const CalculoCiclo& calcular);
// A click on a diagram: a calculation when the cycle stage is open, then the
// switch. The menu's marks follow the view whatever switched it: "Todos los
// gráficos" in the overview, the diagram's entry when it is enlarged.
void ClickDiagrama(Flujo& f, Diagrama d, const CalculoCiclo& calcular);
// A menu entry of a diagram: the switch.
void MenuDiagrama(Flujo& f, Diagrama d, const CalculoCiclo& calcular);
// The overview again, with no calculation: the pictures stay as drawn.
void mnuVerTodo_Click(Flujo& f);
// The window took another size: every control in view stands again in
// proportion to it, in the view on show, with nothing calculated (the window
// draws its pictures again at their new sizes). The hidden h-s diagram of the
// overview keeps its share of the window.
void NuevoTamano(Flujo& f, const TamanoVentana& ventana);

// What the main window says over the results while the last calculation
// failed: the figures are the last complete calculation's, and why the
// attempt failed (its messages, trimmed, in order).
std::string TextoIntentoFallido(const std::vector<std::string>& mensajes);

// ---- What other parts read back ---------------------------------------------

// A cycle is on show: the readout follows the pointer.
inline bool CicloEnPantalla(const Flujo& f) {
    return f.visible.cmdInforme;
}
// The cycle stage is open: a click on a diagram calculates, a double click
// opens the cycle window.
inline bool EtapaCicloAbierta(const Flujo& f) {
    return f.habilitado.cmdCarCiclo;
}

// Each flag by the name of the control it governs, in the order of its
// struct: what the window shows, and what the tests compare.
using BanderasNombradas = std::vector<std::pair<const char*, bool>>;
BanderasNombradas PorNombre(const Habilitados& h);
BanderasNombradas PorNombre(const Visibles& v);
BanderasNombradas PorNombre(const Marcas& m);

}  // namespace vanta
