#include "gui/services/SuperficieImagen.h"

#include <algorithm>
#include <cmath>

#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

// How far outside the picture a line is still drawn, in pixels. Lines are cut
// to this margin first, so that a curve gone far off the scale (a failed
// calculation) never hands the painter coordinates beyond what it can raster.
constexpr double kMargenRecorte = 16.0;

// Cuts the segment p-q to the rectangle r (Liang-Barsky). False when nothing
// of it lies inside.
bool Recortar(QPointF& p, QPointF& q, const QRectF& r) {
    double t0 = 0, t1 = 1;
    const double dx = q.x() - p.x(), dy = q.y() - p.y();
    const double lados[4][2] = {
        {-dx, p.x() - r.left()}, {dx, r.right() - p.x()}, {-dy, p.y() - r.top()}, {dy, r.bottom() - p.y()}};
    for (const auto& [a, b] : lados) {
        if (a == 0) {
            if (b < 0) return false;
            continue;
        }
        const double t = b / a;
        if (a < 0) {
            if (t > t1) return false;
            t0 = std::max(t0, t);
        } else {
            if (t < t0) return false;
            t1 = std::min(t1, t);
        }
    }
    const QPointF inicio = p;
    p = inicio + t0 * QPointF(dx, dy);
    q = inicio + t1 * QPointF(dx, dy);
    return true;
}

bool Finito(QPointF p) {
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

}  // namespace

QColor ColorQt(int32_t color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

QFont LetraSuperficie(QFont base) {
    constexpr qreal kPuntosLetra = 8;
    base.setPointSizeF(kPuntosLetra);
    return base;
}

SuperficieImagen::SuperficieImagen(int32_t fondo, QFont letra) : fondo_(fondo), letra_(std::move(letra)) {}

SuperficieImagen::~SuperficieImagen() {
    CerrarPintor();
}

void SuperficieImagen::PonerLetra(const QFont& letra) {
    letra_ = letra;
    CerrarPintor();
}

const Medida& SuperficieImagen::Medir(bool) const {
    return medidaFija_;
}

QFontMetricsF SuperficieImagen::Metricas() const {
    // A device of the picture's dots per inch, to measure text as it is drawn.
    QImage muestra(1, 1, QImage::Format_RGB32);
    muestra.setDotsPerMeterX(qRound(Medir().dpiX / 0.0254));
    muestra.setDotsPerMeterY(qRound(Medir().dpiY / 0.0254));
    return QFontMetricsF(letra_, &muestra);
}

QSize SuperficieImagen::TamanoDispositivo() const {
    const Medida& m = Medir();
    if (m.dentro.isEmpty()) return {};
    return {qMax(1, qRound(m.dentro.width() * m.dpr)), qMax(1, qRound(m.dentro.height() * m.dpr))};
}

void SuperficieImagen::AjustarImagenes() {
    const QSize tamano = TamanoDispositivo();
    const Medida& m = Medir();
    const qreal dpr = m.dpr;
    if (imagen_.size() == tamano && imagen_.devicePixelRatio() == dpr) return;
    CerrarPintor();
    capa_ = QImage();
    capaVacia_ = true;
    // Only the screen's pixel ratio changed (the window went to another
    // screen): the same picture, at the new density.
    if (!imagen_.isNull() && !tamano.isEmpty() && imagen_.deviceIndependentSize().toSize() == m.dentro) {
        imagen_ = imagen_.scaled(tamano, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        imagen_.setDevicePixelRatio(dpr);
        return;
    }
    if (tamano.isEmpty()) {
        imagen_ = QImage();
        return;
    }
    QImage nueva(tamano, QImage::Format_RGB32);
    nueva.setDevicePixelRatio(dpr);
    // The picture measures text as the surface does.
    nueva.setDotsPerMeterX(qRound(m.dpiX / 0.0254));
    nueva.setDotsPerMeterY(qRound(m.dpiY / 0.0254));
    nueva.fill(ColorQt(fondo_));
    // A new size keeps what was drawn for the old one, from the top left,
    // until the next drawing clears it: after the return from an enlarged
    // view without a calculation the diagrams show a part of their large
    // pictures.
    if (!imagen_.isNull() && imagen_.devicePixelRatio() == dpr) {
        QPainter pintor(&nueva);
        pintor.drawImage(QPointF(0, 0), imagen_);
    }
    imagen_ = std::move(nueva);
}

void SuperficieImagen::CerrarPintor() {
    pintor_.reset();
    destinoPintor_ = nullptr;
    colorPluma_ = -1;
}

void SuperficieImagen::Pluma(QPainter* pintor) {
    if (colorPluma_ == ForeColor()) return;
    pintor->setPen(QPen(ColorQt(ForeColor()), 1));
    colorPluma_ = ForeColor();
}

QPainter* SuperficieImagen::Pintor() {
    AjustarImagenes();
    if (imagen_.isNull()) return nullptr;
    QImage* destino = &imagen_;
    if (!AutoRedraw()) {
        if (capa_.isNull()) {
            capa_ = QImage(imagen_.size(), QImage::Format_ARGB32_Premultiplied);
            capa_.setDevicePixelRatio(imagen_.devicePixelRatio());
            capa_.setDotsPerMeterX(imagen_.dotsPerMeterX());
            capa_.setDotsPerMeterY(imagen_.dotsPerMeterY());
            capa_.fill(Qt::transparent);
        }
        capaVacia_ = false;
        destino = &capa_;
    }
    if (destinoPintor_ != destino) {
        CerrarPintor();
        pintor_ = std::make_unique<QPainter>(destino);
        pintor_->setFont(letra_);
        destinoPintor_ = destino;
    }
    Repintar();
    return pintor_.get();
}

QImage SuperficieImagen::Imagen() {
    AjustarImagenes();
    CerrarPintor();
    return imagen_;
}

QPointF SuperficieImagen::APixel(double x, double y) const {
    const QSizeF t = Medir().dentro;
    return {(x - ScaleLeft()) * t.width() / ScaleWidth(), (y - ScaleTop()) * t.height() / ScaleHeight()};
}

QPointF SuperficieImagen::AUsuario(QPointF pixel) const {
    const QSizeF t = Medir().dentro;
    if (t.isEmpty()) return {ScaleLeft(), ScaleTop()};
    return {ScaleLeft() + pixel.x() * ScaleWidth() / t.width(),
            ScaleTop() + pixel.y() * ScaleHeight() / t.height()};
}

float SuperficieImagen::TextWidth(std::string_view texto) const {
    const int ancho = Medir().dentro.width();
    if (ancho <= 0) return 0;
    return static_cast<float>(Metricas().horizontalAdvance(ATexto(texto)) * std::fabs(ScaleWidth()) / ancho);
}

float SuperficieImagen::TextHeight(std::string_view) const {
    const int alto = Medir().dentro.height();
    if (alto <= 0) return 0;
    return static_cast<float>(Metricas().height() * std::fabs(ScaleHeight()) / alto);
}

void SuperficieImagen::AlLimpiar() {
    Medir(true);
    AjustarImagenes();
    CerrarPintor();
    // Clearing the persistent picture wipes what was shown over it as well;
    // with AutoRedraw off only the overlay goes.
    if (AutoRedraw() && !imagen_.isNull()) imagen_.fill(ColorQt(fondo_));
    if (!capa_.isNull()) capa_.fill(Qt::transparent);
    capaVacia_ = true;
    Repintar();
}

void SuperficieImagen::Refresh() {
    if (!capaVacia_) {
        if (destinoPintor_ == &capa_) CerrarPintor();
        capa_.fill(Qt::transparent);
        capaVacia_ = true;
    }
    Repintar();
}

void SuperficieImagen::AlPunto(float x, float y) {
    const QPointF p = APixel(x, y);
    const QSizeF t = Medir().dentro;
    if (!Finito(p) || p.x() < -1 || p.y() < -1 || p.x() > t.width() + 1 || p.y() > t.height() + 1) return;
    if (QPainter* pintor = Pintor()) {
        Pluma(pintor);
        pintor->drawPoint(p);
    }
}

void SuperficieImagen::AlLinea(float x1, float y1, float x2, float y2) {
    QPointF p = APixel(x1, y1), q = APixel(x2, y2);
    if (!Finito(p) || !Finito(q)) return;
    const QRectF limite = QRectF(QPointF(0, 0), QSizeF(Medir().dentro))
                              .adjusted(-kMargenRecorte, -kMargenRecorte, kMargenRecorte, kMargenRecorte);
    if (!Recortar(p, q, limite)) return;
    if (QPainter* pintor = Pintor()) {
        Pluma(pintor);
        pintor->drawLine(p, q);
    }
}

void SuperficieImagen::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
    const QPointF p = APixel(x1, y1), q = APixel(x2, y2);
    if (!Finito(p) || !Finito(q)) return;
    const QRectF limite = QRectF(QPointF(0, 0), QSizeF(Medir().dentro))
                              .adjusted(-kMargenRecorte, -kMargenRecorte, kMargenRecorte, kMargenRecorte);
    const QRectF caja = QRectF(p, q).normalized().intersected(limite);
    if (caja.isEmpty() && caja.width() <= 0 && caja.height() <= 0) return;
    if (QPainter* pintor = Pintor()) {
        // The box takes its edge in its own colour, so a box of no height is
        // still a line.
        pintor->setPen(QPen(ColorQt(color), 1));
        pintor->setBrush(ColorQt(color));
        pintor->drawRect(caja);
        pintor->setBrush(Qt::NoBrush);
        colorPluma_ = -1;
    }
}

void SuperficieImagen::AlTexto(float x, float y, std::string_view texto) {
    const QPointF p = APixel(x, y);
    if (!Finito(p) || texto.empty()) return;
    const QSizeF t = Medir().dentro;
    // Text that starts far outside the picture cannot reach into it.
    if (std::fabs(p.x()) > 4 * t.width() + 1000 || std::fabs(p.y()) > 4 * t.height() + 1000) return;
    if (QPainter* pintor = Pintor()) {
        Pluma(pintor);
        const QFontMetricsF medidas(letra_, pintor->device());
        pintor->drawText(QPointF(p.x(), p.y() + medidas.ascent()), ATexto(texto));
    }
}

}  // namespace vanta
