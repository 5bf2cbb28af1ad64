#include "gui/services/SuperficieQt.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
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

constexpr qreal kPuntosLetra = 8;

bool Finito(QPointF p) {
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

}  // namespace

QColor ColorQt(int32_t color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

SuperficieQt::SuperficieQt(QWidget* padre, int32_t fondo) : QFrame(padre), fondo_(fondo) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(1);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // The charts and diagrams were laid out for a small letter of 8 points:
    // their texts stand at fixed places in the scale and longer ones would
    // run past the edge.
    QFont letra = font();
    letra.setPointSizeF(kPuntosLetra);
    setFont(letra);
}

SuperficieQt::~SuperficieQt() {
    CerrarPintor();
}

const SuperficieQt::Medida& SuperficieQt::Medir(bool otraVez) const {
    if (otraVez || size() != medida_.widget) medida_ = {size(), contentsRect().size(), devicePixelRatioF()};
    return medida_;
}

QSize SuperficieQt::TamanoDispositivo() const {
    const Medida& m = Medir();
    if (m.dentro.isEmpty()) return {};
    return {qMax(1, qRound(m.dentro.width() * m.dpr)), qMax(1, qRound(m.dentro.height() * m.dpr))};
}

void SuperficieQt::AjustarImagenes() {
    const QSize tamano = TamanoDispositivo();
    const qreal dpr = Medir().dpr;
    if (imagen_.size() == tamano && imagen_.devicePixelRatio() == dpr) return;
    CerrarPintor();
    capa_ = QImage();
    capaVacia_ = true;
    // Only the screen's pixel ratio changed (the window went to another
    // screen): the same picture, at the new density.
    if (!imagen_.isNull() && !tamano.isEmpty() &&
        imagen_.deviceIndependentSize().toSize() == Medir().dentro) {
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
    // The picture measures text as the widget does.
    nueva.setDotsPerMeterX(qRound(logicalDpiX() / 0.0254));
    nueva.setDotsPerMeterY(qRound(logicalDpiY() / 0.0254));
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

void SuperficieQt::CerrarPintor() {
    pintor_.reset();
    destinoPintor_ = nullptr;
    colorPluma_ = -1;
}

void SuperficieQt::Pluma(QPainter* pintor) {
    if (colorPluma_ == ForeColor()) return;
    pintor->setPen(QPen(ColorQt(ForeColor()), 1));
    colorPluma_ = ForeColor();
}

QPainter* SuperficieQt::Pintor() {
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
        pintor_->setFont(font());
        destinoPintor_ = destino;
    }
    Repintar();
    return pintor_.get();
}

void SuperficieQt::Repintar() {
    if (repintoPendiente_) return;
    repintoPendiente_ = true;
    update();
}

QImage SuperficieQt::Imagen() {
    AjustarImagenes();
    CerrarPintor();
    return imagen_;
}

QPointF SuperficieQt::APixel(double x, double y) const {
    const QSizeF t = Medir().dentro;
    return {(x - ScaleLeft()) * t.width() / ScaleWidth(), (y - ScaleTop()) * t.height() / ScaleHeight()};
}

QPointF SuperficieQt::AUsuario(QPointF pixel) const {
    const QSizeF t = Medir().dentro;
    if (t.isEmpty()) return {ScaleLeft(), ScaleTop()};
    return {ScaleLeft() + pixel.x() * ScaleWidth() / t.width(),
            ScaleTop() + pixel.y() * ScaleHeight() / t.height()};
}

float SuperficieQt::TextWidth(std::string_view texto) const {
    const int ancho = Medir().dentro.width();
    if (ancho <= 0) return 0;
    const QFontMetricsF medidas(font(), this);
    return static_cast<float>(medidas.horizontalAdvance(ATexto(texto)) * std::fabs(ScaleWidth()) / ancho);
}

float SuperficieQt::TextHeight(std::string_view) const {
    const int alto = Medir().dentro.height();
    if (alto <= 0) return 0;
    const QFontMetricsF medidas(font(), this);
    return static_cast<float>(medidas.height() * std::fabs(ScaleHeight()) / alto);
}

void SuperficieQt::AlLimpiar() {
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

void SuperficieQt::Refresh() {
    if (!capaVacia_) {
        if (destinoPintor_ == &capa_) CerrarPintor();
        capa_.fill(Qt::transparent);
        capaVacia_ = true;
    }
    Repintar();
}

void SuperficieQt::AlPunto(float x, float y) {
    const QPointF p = APixel(x, y);
    const QSizeF t = Medir().dentro;
    if (!Finito(p) || p.x() < -1 || p.y() < -1 || p.x() > t.width() + 1 || p.y() > t.height() + 1) return;
    if (QPainter* pintor = Pintor()) {
        Pluma(pintor);
        pintor->drawPoint(p);
    }
}

void SuperficieQt::AlLinea(float x1, float y1, float x2, float y2) {
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

void SuperficieQt::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
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

void SuperficieQt::AlTexto(float x, float y, std::string_view texto) {
    const QPointF p = APixel(x, y);
    if (!Finito(p) || texto.empty()) return;
    const QSizeF t = Medir().dentro;
    // Text that starts far outside the picture cannot reach into it.
    if (std::fabs(p.x()) > 4 * t.width() + 1000 || std::fabs(p.y()) > 4 * t.height() + 1000) return;
    if (QPainter* pintor = Pintor()) {
        Pluma(pintor);
        const QFontMetricsF medidas(pintor->font(), pintor->device());
        pintor->drawText(QPointF(p.x(), p.y() + medidas.ascent()), ATexto(texto));
    }
}

void SuperficieQt::paintEvent(QPaintEvent* evento) {
    repintoPendiente_ = false;
    Medir(true);
    AjustarImagenes();
    CerrarPintor();
    QFrame::paintEvent(evento);
    QPainter p(this);
    const QPoint origen = contentsRect().topLeft();
    if (imagen_.isNull()) return;
    p.drawImage(origen, imagen_);
    if (!capaVacia_) p.drawImage(origen, capa_);
}

void SuperficieQt::resizeEvent(QResizeEvent* evento) {
    QFrame::resizeEvent(evento);
    Medir(true);
    AjustarImagenes();
}

void SuperficieQt::changeEvent(QEvent* evento) {
    QFrame::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) CerrarPintor();
}

void SuperficieQt::DatosRaton(const QMouseEvent* evento, int& boton, int& mayusculas, float& x,
                              float& y) const {
    const Qt::MouseButtons b = evento->buttons() | evento->button();
    boton = (b & Qt::LeftButton ? 1 : 0) | (b & Qt::RightButton ? 2 : 0) | (b & Qt::MiddleButton ? 4 : 0);
    const Qt::KeyboardModifiers m = evento->modifiers();
    mayusculas =
        (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) | (m & Qt::AltModifier ? 4 : 0);
    const QPointF u = AUsuario(evento->position() - contentsRect().topLeft());
    x = static_cast<float>(u.x());
    y = static_cast<float>(u.y());
}

void SuperficieQt::mouseMoveEvent(QMouseEvent* evento) {
    int boton, mayusculas;
    float x, y;
    DatosRaton(evento, boton, mayusculas, x, y);
    emit MouseMove(boton, mayusculas, x, y);
}

void SuperficieQt::mousePressEvent(QMouseEvent* evento) {
    int boton, mayusculas;
    float x, y;
    DatosRaton(evento, boton, mayusculas, x, y);
    pulsado_ = evento->button() == Qt::LeftButton;
    emit MouseDown(boton, mayusculas, x, y);
}

void SuperficieQt::mouseReleaseEvent(QMouseEvent* evento) {
    int boton, mayusculas;
    float x, y;
    DatosRaton(evento, boton, mayusculas, x, y);
    emit MouseUp(boton, mayusculas, x, y);
    const bool click =
        pulsado_ && evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint());
    pulsado_ = false;
    if (click) emit Click();
}

void SuperficieQt::mouseDoubleClickEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton) emit DblClick();
}

void SuperficieQt::keyPressEvent(QKeyEvent* evento) {
    if (!evento->text().isEmpty()) {
        emit KeyPress(evento->text().at(0).unicode());
        return;
    }
    QFrame::keyPressEvent(evento);
}

}  // namespace vanta
