// Writing a saved page: the page itself and, beside it, the seven pictures of
// the main window as Windows bitmaps at the pictures' size.
//
// The page names its pictures with an upper-case extension ("BMPAIRE.BMP").
// The bitmaps are written under exactly those names, so that the page finds
// them on a file system that tells the cases apart; on one that does not, the
// names are the same file as "BMPAIRE.bmp".
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/reports/Informes.h"
#include "core/sequence/Calculo.h"

namespace vanta {

// The seven pictures, in the order of kImagenesPagina.
using ImagenesPagina = std::array<QImage, kImagenesPagina.size()>;

// The seven pictures taken from their boxes.
ImagenesPagina ImagenesDe(const std::function<QImage(CuadroImagen)>& imagen);

// The file a picture is written to in a folder: the name the page uses.
QString ArchivoImagenEn(const QString& carpeta, const ImagenPagina& imagen);

// Writes the page to the file and its seven bitmaps beside it, the eight as
// one set: all of them, or none, the folder's earlier page and pictures then
// left as they were. A picture with no pixels is written as one white pixel,
// so that the page still finds a picture. Returns why it could not be
// written, in words for the user, or nothing.
std::optional<std::string> EscribirPaginaWeb(const QString& archivo, std::string_view pagina,
                                             const ImagenesPagina& imagenes);

// The page of a calculated cycle and its seven bitmaps in a folder (made when
// missing), the page under the main window's name for it, "Index.htm".
std::optional<std::string> EscribirPaginaEnCarpeta(const QString& carpeta, const ResultadoCalculo& r,
                                                   const ImagenesPagina& imagenes);

}  // namespace vanta
