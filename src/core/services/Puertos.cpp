#include "core/services/Puertos.h"

#include <iostream>

namespace vanta {

void DialogosConsola::MsgBox(std::string_view mensaje) {
    ++cuenta;
    std::cerr << prefijo_ << mensaje << '\n';
}

std::string DialogosConsola::InputBox(std::string_view, std::string_view porDefecto) {
    return std::string(porDefecto);
}

}  // namespace vanta
