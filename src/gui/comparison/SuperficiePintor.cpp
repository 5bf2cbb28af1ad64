#include "gui/comparison/SuperficiePintor.h"

#include <QFontMetricsF>
#include <cmath>

#include "gui/services/PuertosQt.h"
#include "gui/services/SuperficieImagen.h"

namespace vanta {

SuperficiePintor::SuperficiePintor(QPainter& pintor, QSizeF tamano, int32_t fondo)
    : pintor_(pintor), tamano_(tamano), fondo_(fondo) {}

SuperficiePintor::~SuperficiePintor() {
    Terminar();
}

QPointF SuperficiePintor::APixel(double x, double y) const {
    return {(x - ScaleLeft()) * tamano_.width() / ScaleWidth(),
            (y - ScaleTop()) * tamano_.height() / ScaleHeight()};
}

QPen SuperficiePintor::Pluma() const {
    return QPen(ColorQt(ForeColor()), DrawWidth(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

float SuperficiePintor::TextWidth(std::string_view texto) const {
    const QFontMetricsF m(pintor_.font(), pintor_.device());
    return static_cast<float>(m.horizontalAdvance(ATexto(texto)) * std::fabs(ScaleWidth()) / tamano_.width());
}

float SuperficiePintor::TextHeight(std::string_view) const {
    const QFontMetricsF m(pintor_.font(), pintor_.device());
    return static_cast<float>(m.height() * std::fabs(ScaleHeight()) / tamano_.height());
}

void SuperficiePintor::Terminar() {
    if (pendiente_.size() > 1) {
        pintor_.setPen(
            QPen(ColorQt(colorPendiente_), grosorPendiente_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pintor_.setBrush(Qt::NoBrush);
        pintor_.drawPolyline(pendiente_);
    }
    pendiente_.clear();
}

void SuperficiePintor::AlLimpiar() {
    pendiente_.clear();
    pintor_.fillRect(QRectF(QPointF(0, 0), tamano_), ColorQt(fondo_));
}

void SuperficiePintor::AlPunto(float x, float y) {
    Terminar();
    pintor_.setPen(Pluma());
    pintor_.drawPoint(APixel(x, y));
}

void SuperficiePintor::AlLinea(float x1, float y1, float x2, float y2) {
    const QPointF p = APixel(x1, y1), q = APixel(x2, y2);
    if (!std::isfinite(p.x() + p.y() + q.x() + q.y())) return;
    if (pendiente_.isEmpty() || pendiente_.last() != p || colorPendiente_ != ForeColor() ||
        grosorPendiente_ != DrawWidth()) {
        Terminar();
        pendiente_ << p;
        colorPendiente_ = ForeColor();
        grosorPendiente_ = DrawWidth();
    }
    pendiente_ << q;
}

void SuperficiePintor::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
    Terminar();
    const QRectF caja = QRectF(APixel(x1, y1), APixel(x2, y2)).normalized();
    pintor_.setPen(QPen(ColorQt(color), 1));
    pintor_.setBrush(ColorQt(color));
    pintor_.drawRect(caja);
    pintor_.setBrush(Qt::NoBrush);
}

void SuperficiePintor::AlTexto(float x, float y, std::string_view texto) {
    Terminar();
    const QPointF p = APixel(x, y);
    if (!std::isfinite(p.x() + p.y()) || texto.empty()) return;
    pintor_.setPen(Pluma());
    const QFontMetricsF m(pintor_.font(), pintor_.device());
    pintor_.drawText(QPointF(p.x(), p.y() + m.ascent()), ATexto(texto));
}

}  // namespace vanta
