// Arithmetic failures that the program has no message of its own for: a
// division by zero, a logarithm of a number that is not positive, a value that
// leaves the range of a double. They stop the calculation like any other
// failure: a message in Spanish and ErrorCalculo set. A failure that follows
// one already told (the flag is set) adds no second message.
#pragma once

#include <string>
#include <string_view>

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

inline void FalloAritmetico(Estado& e, Mensajes& msj, std::string_view causa) {
    if (!e.ErrorCalculo)
        msj.MsgBox("Error de cálculo: " + std::string(causa) +
                   ". Revise los datos y pulse el botón \"CALCULAR\" otra vez.");
    e.ErrorCalculo = true;
}

}  // namespace vanta
