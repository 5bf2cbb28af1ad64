#include "gui/database/VentanaAmpliador.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "gui/database/ControlImagen.h"

namespace vanta {

VentanaAmpliador::VentanaAmpliador(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("VentanaAmpliador"));
    setWindowTitle(QStringLiteral("Base de datos: Ampliador de imágenes"));
    imgAmpliada_ = new ControlImagen(this);
    imgAmpliada_->setObjectName(QStringLiteral("imgAmpliada"));
    imgAmpliada_->setFrameStyle(QFrame::NoFrame);
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(imgAmpliada_);
    connect(imgAmpliada_, &ControlImagen::Click, this, &VentanaAmpliador::imgAmpliada_Click);
}

void VentanaAmpliador::PonerImagen(const QImage& imagen) {
    imgAmpliada_->SetPicture(imagen);
    QSize tam = imagen.isNull() ? QSize(320, 240) : imagen.deviceIndependentSize().toSize();
    const QScreen* pantalla = screen() ? screen() : QGuiApplication::primaryScreen();
    if (pantalla) tam = tam.boundedTo(pantalla->availableSize() * 0.9);
    resize(tam);
}

void VentanaAmpliador::imgAmpliada_Click() {
    hide();
}

}  // namespace vanta
