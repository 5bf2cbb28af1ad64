// What the program says about itself: its name, version, one line of what it
// does and its licence. The splash, the icon and the about window read them
// here.
#pragma once

#include <QString>

namespace vanta {

QString NombrePrograma();       // "Vanta"
QString VersionPrograma();      // the project's version, e.g. "1.0.0"
QString DescripcionPrograma();  // one line in Spanish
QString LicenciaPrograma();     // the SPDX name of the licence

}  // namespace vanta
