#include "gui/services/Controles.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/inputs/Entradas.h"
#include "gui/services/TextosVentanas.h"

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

QLineEdit* NuevaCajaEntrada(QWidget* padre, std::string_view entrada, int i) {
    const DefinicionEntrada& d = Entrada(entrada);
    const std::string nombre(d.controles[static_cast<size_t>(i)]);
    const std::string texto = i == 0 ? std::string(d.porDefecto) : std::string();
    return NuevaCaja(padre, nombre.c_str(), texto.c_str());
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
    // Enter in a box presses no button but a window's default one
    // (NuevoBotonCalcular).
    b->setAutoDefault(false);
    return b;
}

QRadioButton* NuevaOpcion(QWidget* padre, const char* nombre, const char* texto) {
    return Nombrar(new QRadioButton(QString::fromUtf8(texto), padre), nombre);
}

QPushButton* NuevoBotonCalcular(QWidget* padre, const char* nombre) {
    QPushButton* b = NuevoBoton(padre, nombre, kCalcular);
    b->setDefault(true);
    return b;
}

bool AjustarLetra(QWidget* control, const QString& texto, int ancho) {
    constexpr qreal kPuntosMinimos = 6.0;
    QFont letra = control->parentWidget() ? control->parentWidget()->font() : control->font();
    auto cabe = [&] { return QFontMetrics(letra).horizontalAdvance(texto) <= ancho; };
    while (!cabe() && letra.pointSizeF() > kPuntosMinimos) letra.setPointSizeF(letra.pointSizeF() - 0.5);
    control->setFont(letra);
    return cabe();
}

CeldaCifra::CeldaCifra(QWidget* padre, const QString& nombre) : QLabel(padre) {
    setObjectName(nombre);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CeldaCifra::PonerCifra(const QString& cifra) {
    cifra_ = cifra;
    Ajustar();
}

void CeldaCifra::resizeEvent(QResizeEvent* evento) {
    QLabel::resizeEvent(evento);
    Ajustar();
}

void CeldaCifra::Ajustar() {
    // Before the window places it, a cell has no width to judge by.
    const int ancho = contentsRect().width();
    const QString visible = cifra_.trimmed();
    const bool cabe = ancho <= 0 || AjustarLetra(this, visible, ancho);
    setText(cabe ? cifra_ : QString::fromUtf8(kNoCabe));
    setToolTip(cabe ? QString() : visible);
    // A screen reader reads the figure whole, whether it fits or not.
    setAccessibleName(visible);
}

}  // namespace vanta
