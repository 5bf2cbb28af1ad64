// The folder of the user's data: ~/.local/share/vanta (under XDG_DATA_HOME
// when set). The desktop entry starts the program there, so that whoever
// opens it from the menu finds BD.sqlite in one place; from a terminal the
// program works in the current folder.
#pragma once

#include <QString>

namespace vanta {

QString CarpetaDatosUsuario();

// Makes the folder when missing and works in it from now on; false, with the
// reason in error, when it cannot (the program then stays where it is).
bool EntrarEnCarpetaDatos(QString& error);

}  // namespace vanta
