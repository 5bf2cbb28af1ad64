#include "gui/services/Controles.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace vanta {

namespace {
template <class T>
T* Nombrar(T* control, const char* nombre) {
    control->setObjectName(QString::fromLatin1(nombre));
    return control;
}
}  // namespace

QLabel* NuevaEtiqueta(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrar(new QLabel(QString::fromUtf8(texto), padre), nombre);
}

QLineEdit* NuevaCaja(QWidget* padre, const char* nombre, const char* texto, bool soloLectura) {
    auto* c = Nombrar(new QLineEdit(QString::fromUtf8(texto), padre), nombre);
    c->setReadOnly(soloLectura);
    return c;
}

QGroupBox* NuevoMarco(QWidget* padre, const char* nombre, const char* titulo) {
    return Nombrar(new QGroupBox(QString::fromUtf8(titulo), padre), nombre);
}

QCheckBox* NuevaCasilla(QWidget* padre, const char* nombre, const char* texto, bool marcada) {
    auto* c = Nombrar(new QCheckBox(QString::fromUtf8(texto), padre), nombre);
    c->setChecked(marcada);
    return c;
}

QPushButton* NuevoBoton(QWidget* padre, const char* nombre, const char* texto) {
    auto* b = Nombrar(new QPushButton(QString::fromUtf8(texto), padre), nombre);
    // Enter in a box does not press the button: the windows have no default
    // button.
    b->setAutoDefault(false);
    return b;
}

QRadioButton* NuevaOpcion(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrar(new QRadioButton(QString::fromUtf8(texto), padre), nombre);
}

void AjustarLetra(QWidget* control, const QString& texto, int ancho) {
    constexpr qreal kPuntosMinimos = 6.0;
    QFont letra = control->parentWidget() ? control->parentWidget()->font() : control->font();
    while (QFontMetrics(letra).horizontalAdvance(texto) > ancho && letra.pointSizeF() > kPuntosMinimos)
        letra.setPointSizeF(letra.pointSizeF() - 0.5);
    control->setFont(letra);
}

}  // namespace vanta
