#include "gui/database/ControlImagen.h"

#include <QMouseEvent>
#include <QPainter>

namespace vanta {

ControlImagen::ControlImagen(QWidget* padre) : QFrame(padre) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setCursor(Qt::PointingHandCursor);
}

void ControlImagen::SetPicture(const QImage& imagen) {
    imagen_ = imagen;
    escalada_ = QPixmap();
    update();
}

void ControlImagen::resizeEvent(QResizeEvent* evento) {
    escalada_ = QPixmap();
    QFrame::resizeEvent(evento);
}

void ControlImagen::paintEvent(QPaintEvent* evento) {
    QFrame::paintEvent(evento);
    if (imagen_.isNull()) return;
    const QRect dentro = contentsRect();
    if (escalada_.isNull() && !dentro.isEmpty()) {
        const qreal escala = devicePixelRatioF();
        QImage i = imagen_.scaled(dentro.size() * escala, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        i.setDevicePixelRatio(escala);
        escalada_ = QPixmap::fromImage(i);
    }
    if (escalada_.isNull()) return;
    const QSize tam = escalada_.deviceIndependentSize().toSize();
    QPainter p(this);
    p.drawPixmap(dentro.x() + (dentro.width() - tam.width()) / 2,
                 dentro.y() + (dentro.height() - tam.height()) / 2, escalada_);
}

void ControlImagen::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint())) emit Click();
    QFrame::mouseReleaseEvent(evento);
}

}  // namespace vanta
