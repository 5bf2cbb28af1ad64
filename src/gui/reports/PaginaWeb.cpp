#include "gui/reports/PaginaWeb.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

#include "core/files/EscribirArchivos.h"
#include "core/reports/ArchivosInforme.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

constexpr const char* kFormatoBitmap = "BMP";

// The picture as a bitmap holds it: opaque, a white ground under anything
// transparent, and at least one pixel.
QImage ImagenOpaca(const QImage& imagen) {
    if (imagen.isNull()) {
        QImage blanca(1, 1, QImage::Format_RGB32);
        blanca.fill(Qt::white);
        return blanca;
    }
    if (!imagen.hasAlphaChannel()) return imagen.convertToFormat(QImage::Format_RGB32);
    QImage opaca(imagen.size(), QImage::Format_RGB32);
    opaca.fill(Qt::white);
    QPainter pintor(&opaca);
    pintor.drawImage(0, 0, imagen);
    return opaca;
}

std::string Bitmap(const QImage& imagen) {
    QByteArray bytes;
    QBuffer memoria(&bytes);
    memoria.open(QIODevice::WriteOnly);
    QImageWriter(&memoria, kFormatoBitmap).write(ImagenOpaca(imagen));
    return bytes.toStdString();
}

}  // namespace

ImagenesPagina ImagenesDe(const std::function<QImage(CuadroImagen)>& imagen) {
    ImagenesPagina imagenes;
    for (size_t i = 0; i < kImagenesPagina.size(); ++i) imagenes[i] = imagen(kImagenesPagina[i].cuadro);
    return imagenes;
}

QString ArchivoImagenEn(const QString& carpeta, const ImagenPagina& imagen) {
    return QDir(carpeta).filePath(ATexto(ImagenEnPagina(imagen)));
}

std::optional<std::string> EscribirPaginaWeb(const QString& archivo, std::string_view pagina,
                                             const ImagenesPagina& imagenes) {
    std::vector<ArchivoDeConjunto> conjunto{{RutaArchivo(archivo), BytesPagina(pagina)}};
    const QString carpeta = QFileInfo(archivo).absolutePath();
    for (size_t i = 0; i < kImagenesPagina.size(); ++i)
        conjunto.push_back({RutaArchivo(ArchivoImagenEn(carpeta, kImagenesPagina[i])), Bitmap(imagenes[i])});
    return EscribirConjunto(conjunto);
}

std::optional<std::string> EscribirPaginaEnCarpeta(const QString& carpeta, const ResultadoCalculo& r,
                                                   const ImagenesPagina& imagenes) {
    const QString archivo = QDir(carpeta).filePath(ATexto(NombreConExtension(kDialogoPaginaPrincipal)));
    return EscribirPaginaWeb(archivo, HTMLInforme(*r.estado, r.tipoCombustible), imagenes);
}

}  // namespace vanta
