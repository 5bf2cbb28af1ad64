#include "gui/database/GuardarBaseDatos.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>

#include "core/database/Registro.h"
#include "gui/database/EntradasCalculo.h"
#include "gui/database/VentanaBaseDatos.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

// ms that a save of the command line waits for another program holding the file.
constexpr int kEsperaLineaOrdenes = 15000;

}  // namespace

ImagenesRegistro ImagenesDeColumnas(const ImagenesPrincipal& imagenes) {
    ImagenesRegistro columnas;
    for (size_t i = 0; i < columnas.size(); ++i)
        columnas[i] = imagenes[static_cast<size_t>(bd::kColumnasImagen[i].cuadro)];
    return columnas;
}

bool GuardarBaseDatos(const ResultadoCalculo& r, Dialogos& dlg, std::string_view informe,
                      const ImagenesPrincipal& imagenes, VentanaBaseDatos& navegador) {
    const Estado& e = *r.estado;
    const std::string& tipoCombustible = r.tipoCombustible;
    const std::string nombre = dlg.InputBox(bd::kPromptGuardar, bd::NombrePorDefecto(e, tipoCombustible));
    if (nombre.empty()) return false;
    if (!navegador.Cargar()) return false;

    // Each picture, in the order of the columns, goes through the clipboard as
    // the user's copy and paste would take it.
    ImagenesRegistro columnas = ImagenesDeColumnas(imagenes);
    QClipboard* portapapeles = QGuiApplication::clipboard();
    for (QImage& imagen : columnas) {
        portapapeles->clear();
        portapapeles->setImage(imagen);
        // A clipboard that gives nothing back (no system clipboard) does not
        // cost the record its picture.
        if (const QImage copia = portapapeles->image(); !copia.isNull()) imagen = copia;
    }
    if (!navegador.AgregarRegistro(bd::ValoresRegistro(e, nombre, tipoCombustible, informe), columnas,
                                   EntradasDe(r)))
        return false;
    navegador.MostrarModal();
    return true;
}

bd::LecturaDireccion ResolverDireccion(const QString& texto) {
    const QString archivo = texto.isEmpty() ? ATexto(bd::kArchivoBaseDatos) : texto;
    bd::LecturaDireccion l = bd::LeerDireccion(archivo.toStdString());
    if (l.direccion && l.direccion->motor == bd::Motor::SQLite)
        l.direccion->texto = l.direccion->ruta = QDir::current().absoluteFilePath(archivo).toStdString();
    return l;
}

bool GuardarRegistro(const ResultadoCalculo& r, std::string_view nombre, const ImagenesPrincipal& imagenes,
                     Dialogos& dlg, const QString& baseDatos, const std::function<bool()>& antesDeGuardar) {
    const Estado& e = *r.estado;
    const std::string& tipoCombustible = r.tipoCombustible;
    const std::string& informe = r.informe;
    const bd::LecturaDireccion direccion = ResolverDireccion(baseDatos);
    if (!direccion.direccion) {
        dlg.MsgBox(direccion.error);
        return false;
    }
    AlmacenResultados almacen(*direccion.direccion);
    almacen.FijarEspera(kEsperaLineaOrdenes);
    if (!almacen.Abrir()) {
        dlg.MsgBox(almacen.Error());
        return false;
    }
    if (antesDeGuardar && !antesDeGuardar()) return false;
    if (!almacen.Insertar(bd::ValoresRegistro(e, nombre, tipoCombustible, informe),
                          ImagenesDeColumnas(imagenes), EntradasDe(r))) {
        dlg.MsgBox(almacen.Error());
        return false;
    }
    return true;
}

}  // namespace vanta
