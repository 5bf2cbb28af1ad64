// The inputs of the calculation in the windows: each input lives in the boxes
// (or option buttons) that its entry of the table of inputs names, so that a
// window reads and writes its inputs through the table and never lists them
// again.
#pragma once

#include <QWidget>
#include <string>
#include <string_view>

#include "core/inputs/Entradas.h"

namespace vanta {

// The texts of the boxes of a stage's numbers into x (p1 and t1 as given).
void LeerCajas(const QWidget& ventana, EtapaEntrada etapa, Entradas& x);
// x's texts into the boxes of a stage's numbers, without running their change
// events: the logic that wrote them has already run what a change runs.
void PonerCajas(QWidget& ventana, EtapaEntrada etapa, const Entradas& x);

// A choice shown as option buttons, one a value: the value whose button is
// checked (the first when none is), and the button of a value checked.
std::string ValorElegido(const QWidget& ventana, const DefinicionEntrada& d);
void MarcarValor(QWidget& ventana, const DefinicionEntrada& d, std::string_view valor);

// The control that holds a number of an input (or the list or first button
// of a choice), when the window has it.
QWidget* ControlDe(const QWidget& ventana, const CampoEntrada& campo);
// The focus to that control, when the window has it.
void Enfocar(const QWidget& ventana, const CampoEntrada& campo);

}  // namespace vanta
