#include "gui/reports/VentanaTexto.h"

#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <algorithm>
#include <cmath>

#include "gui/reports/DialogosInforme.h"
#include "gui/services/Escritorio.h"

namespace vanta {

VentanaTexto::VentanaTexto(QWidget* padre, const QString& titulo, QSize tamano, double alto, double ancho,
                           int arriba)
    : QMainWindow(padre, Qt::Window),
      interior_(new QWidget(this)),
      alto_(alto),
      ancho_(ancho),
      arriba_(arriba) {
    setWindowTitle(titulo);
    setCentralWidget(interior_);
    interior_->setMouseTracking(true);
    interior_->installEventFilter(this);
    mnuArchivo_ = menuBar()->addMenu(QStringLiteral("&Archivo"));
    mnuArchivo_->setObjectName(QStringLiteral("mnuArchivo"));
    resize(tamano);
}

QPlainTextEdit* VentanaTexto::CrearCaja(const char* nombre) {
    caja_ = new QPlainTextEdit(interior_);
    caja_->setObjectName(QString::fromLatin1(nombre));
    caja_->setAccessibleName(windowTitle());
    caja_->setFont(FuenteInforme());
    caja_->setLineWrapMode(QPlainTextEdit::NoWrap);
    caja_->setMouseTracking(true);
    caja_->viewport()->setMouseTracking(true);
    caja_->installEventFilter(this);
    caja_->viewport()->installEventFilter(this);
    return caja_;
}

QAction* VentanaTexto::Entrada(const char* nombre, const QString& texto) {
    QAction* accion = mnuArchivo_->addAction(texto);
    accion->setObjectName(QString::fromLatin1(nombre));
    return accion;
}

void VentanaTexto::AjustarCaja() {
    if (!caja_) return;
    const QSize interior = interior_->size();
    const int ancho = static_cast<int>(std::lround(interior.width() * ancho_));
    const int alto = static_cast<int>(std::lround(interior.height() * alto_));
    const int izquierda = (interior.width() - ancho) / 2;
    const int arriba = std::max(arriba_, (interior.height() - alto) / 2);
    caja_->setGeometry(izquierda, arriba, ancho, alto);
}

bool VentanaTexto::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseMove) AjustarCaja();
    return QMainWindow::eventFilter(objeto, evento);
}

// The box also follows a resize at once, in the same proportions.
void VentanaTexto::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    AjustarCaja();
}

void VentanaTexto::showEvent(QShowEvent* evento) {
    QMainWindow::showEvent(evento);
    AjustarCaja();
}

QString TextoSeleccionado(const QPlainTextEdit* caja) {
    QString seleccion = caja->textCursor().selectedText();
    seleccion.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return seleccion;
}

}  // namespace vanta
