// Numbers as text: the one gate by which a typed number enters (ValidarNumero)
// and the three ways in which a number leaves (Round, Format, the general
// conversion). No other code turns text into numbers or numbers into text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

// x rounded to d decimals; an exact tie goes to the even neighbour.
double Round(double x, int d = 0);

// x rendered by a mask of '#', '0', '.' and blanks (see Numeros.cpp), with
// the decimal separator given (the state's SeparadorDecimal).
std::string Format(double x, std::string_view mascara, char separador);

// The general conversion: up to 15 significant digits, no padding, exponent
// form below 1E-05 and from 1E+15 on in magnitude.
std::string TextoGeneral(double x, char separador);
// A variant prints a number by the general conversion and a text as it stands.
std::string TextoGeneral(const Variante& v, char separador);

// The numeric test of the boxes and the value read, or nothing when the text
// is not a number.
std::optional<double> LeerNumero(std::string_view texto);

// Reads the text typed for an input into destino. A text that is not a number
// shows nombre followed by "no es un número", puts the focus on the input's
// box and sets ErrorCalculo; destino then keeps its value. Never clears
// ErrorCalculo.
void ValidarNumero(Estado& e, Mensajes& msj, std::string_view texto, double& destino, std::string_view nombre,
                   const CampoEntrada& entrada);

// The same for the single-precision members of the tables tool.
void ValidarNumero(Estado& e, Mensajes& msj, std::string_view texto, float& destino, std::string_view nombre,
                   const CampoEntrada& entrada);

}  // namespace vanta
