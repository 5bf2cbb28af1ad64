#include "gui/resources/Programa.h"

#ifndef VANTA_VERSION
#define VANTA_VERSION "0.0.0"
#endif

namespace vanta {

QString NombrePrograma() {
    return QStringLiteral("Vanta");
}

QString VersionPrograma() {
    return QStringLiteral(VANTA_VERSION);
}

QString DescripcionPrograma() {
    return QStringLiteral("Ciclos termodinámicos de motores alternativos de cuatro tiempos");
}

QString LicenciaPrograma() {
    return QStringLiteral("GPL-3.0-or-later");
}

}  // namespace vanta
