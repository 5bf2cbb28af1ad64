#include "gui/reports/PaginaWeb.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

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

bool EscribirBitmap(const QString& archivo, const QImage& imagen) {
    QSaveFile salida(archivo);
    if (!salida.open(QIODevice::WriteOnly)) return false;
    QImageWriter escritor(&salida, kFormatoBitmap);
    if (!escritor.write(ImagenOpaca(imagen))) {
        salida.cancelWriting();
        return false;
    }
    return salida.commit();
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

bool EscribirImagenesPagina(const QString& carpeta, const ImagenesPagina& imagenes) {
    for (size_t i = 0; i < kImagenesPagina.size(); ++i)
        if (!EscribirBitmap(ArchivoImagenEn(carpeta, kImagenesPagina[i]), imagenes[i])) return false;
    return true;
}

bool EscribirPaginaWeb(const QString& archivo, std::string_view pagina, const ImagenesPagina& imagenes) {
    if (!EscribirArchivoEntero(RutaArchivo(archivo), BytesPagina(pagina))) return false;
    return EscribirImagenesPagina(QFileInfo(archivo).absolutePath(), imagenes);
}

bool EscribirPaginaEnCarpeta(const QString& carpeta, const Estado& e, std::string_view tipoCombustible,
                             const ImagenesPagina& imagenes) {
    if (!QDir().mkpath(carpeta)) return false;
    const QString archivo = QDir(carpeta).filePath(ATexto(NombreConExtension(kDialogoPaginaPrincipal)));
    return EscribirPaginaWeb(archivo, HTMLInforme(e, tipoCombustible), imagenes);
}

}  // namespace vanta
