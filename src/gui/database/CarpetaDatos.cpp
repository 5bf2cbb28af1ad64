#include "gui/database/CarpetaDatos.h"

#include <QDir>
#include <QStandardPaths>

namespace vanta {

QString CarpetaDatosUsuario() {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("vanta"));
}

bool EntrarEnCarpetaDatos(QString& error) {
    const QString carpeta = CarpetaDatosUsuario();
    if (!QDir().mkpath(carpeta) || !QDir::setCurrent(carpeta)) {
        error = QStringLiteral("no se puede crear ni usar la carpeta ") + carpeta;
        return false;
    }
    return true;
}

}  // namespace vanta
