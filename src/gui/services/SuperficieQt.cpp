#include "gui/services/SuperficieQt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

namespace vanta {

namespace {
constexpr int kBorde = 1;
}  // namespace

QSize DentroDe(const Lugar& l) {
    return {l.Width - 2 * kBorde, l.Height - 2 * kBorde};
}

SuperficieQt::SuperficieQt(QWidget* padre, int32_t fondo) : QFrame(padre), SuperficieImagen(fondo) {
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(kBorde);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFont(LetraSuperficie(font()));
    PonerLetra(font());
}

const Medida& SuperficieQt::Medir(bool otraVez) const {
    if (otraVez || size() != medidoCon_) {
        medidoCon_ = size();
        medida_ = {contentsRect().size(), devicePixelRatioF(), logicalDpiX(), logicalDpiY()};
    }
    return medida_;
}

QFontMetricsF SuperficieQt::Metricas() const {
    return QFontMetricsF(font(), this);
}

void SuperficieQt::Repintar() {
    if (repintoPendiente_) return;
    repintoPendiente_ = true;
    update();
}

void SuperficieQt::paintEvent(QPaintEvent* evento) {
    repintoPendiente_ = false;
    Medir(true);
    AjustarImagenes();
    CerrarPintor();
    QFrame::paintEvent(evento);
    QPainter p(this);
    const QPoint origen = contentsRect().topLeft();
    if (Persistente().isNull()) return;
    p.drawImage(origen, Persistente());
    if (!TransitoriaVacia()) p.drawImage(origen, Transitoria());
}

void SuperficieQt::resizeEvent(QResizeEvent* evento) {
    QFrame::resizeEvent(evento);
    Medir(true);
    AjustarImagenes();
}

void SuperficieQt::changeEvent(QEvent* evento) {
    QFrame::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) PonerLetra(font());
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
