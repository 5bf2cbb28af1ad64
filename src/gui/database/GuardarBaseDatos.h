// Saving a calculation as a record of the results database: from the main
// window, with the name asked and the browser shown on the new record; and
// from the command line, with the name given.
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "core/sequence/Calculo.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/services/Dialogos.h"

namespace vanta {

class VentanaBaseDatos;

// The seven pictures of the main window, indexed by CuadroImagen: pct1, pct2,
// pct3, pctPV, pctTV, pctTS, pctHS (each surface's Imagen()).
using ImagenesPrincipal = std::array<QImage, 7>;

// The picture columns of a record from the main window's pictures, crossed
// as the record keeps them (the column imgDTV takes pctPV).
ImagenesRegistro ImagenesDeColumnas(const ImagenesPrincipal& imagenes);

// The main window's save: asks the name with the default one; an empty answer
// writes nothing and opens nothing. Otherwise the pictures pass one by one
// through the system clipboard (which is left holding pctHS), the record is
// added in one transaction, and the browser shows it modally as the last
// record. informe: the report as its viewer holds it. Returns whether a
// record was added; a failure has shown its message.
bool GuardarBaseDatos(const ResultadoCalculo& r, Dialogos& dlg, std::string_view informe,
                      const ImagenesPrincipal& imagenes, VentanaBaseDatos& navegador);

// The command line's save: one record with the name given, in the file BD.sqlite
// of the current folder, or in the file or on the server that baseDatos names;
// made when missing. No clipboard, no window. It waits longer than the window
// for another program holding a file, since scripts start several at once.
// antesDeGuardar runs once the store is open, before the record goes in; when
// it fails, nothing is saved. Returns whether the record was added; a failure
// of the store goes through dlg.
bool GuardarRegistro(const ResultadoCalculo& r, std::string_view nombre, const ImagenesPrincipal& imagenes,
                     Dialogos& dlg, const QString& baseDatos = {},
                     const std::function<bool()>& antesDeGuardar = {});

// A file or an address as the user wrote it, made ready for the store: empty
// is BD.sqlite, and a relative file is taken from the current folder.
bd::LecturaDireccion ResolverDireccion(const QString& texto);

}  // namespace vanta
