// A drawing surface on any Qt painter: a window being painted, an image, an
// SVG generator or a PDF page. User coordinates map onto a rectangle of the
// painter's own coordinates from its top left. Runs of joined lines of one
// pen go to the painter as one polyline, so that a curve of a thousand steps
// is one path of an SVG or a PDF.
#pragma once

#include <QPainter>
#include <QPolygonF>

#include "core/services/Superficie.h"

namespace vanta {

class SuperficiePintor : public Superficie {
public:
    // The painter must outlive the surface; its font is the surface's letter.
    SuperficiePintor(QPainter& pintor, QSizeF tamano, int32_t fondo);
    ~SuperficiePintor() override;

    float TextWidth(std::string_view texto) const override;
    float TextHeight(std::string_view texto) const override;

    // Draws the polyline still pending.
    void Terminar();

protected:
    void AlLimpiar() override;
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;

private:
    QPointF APixel(double x, double y) const;
    QPen Pluma() const;

    QPainter& pintor_;
    QSizeF tamano_;
    int32_t fondo_;
    QPolygonF pendiente_;
    int32_t colorPendiente_ = 0;
    int grosorPendiente_ = 1;
};

}  // namespace vanta
