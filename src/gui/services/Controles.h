// Making the controls of the windows: each gets the program's name as its
// object name (the window tests find it by that name) and its caption.
#pragma once

#include <QString>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace vanta {

QLabel* NuevaEtiqueta(QWidget* padre, const char* nombre, const char* texto);
QLineEdit* NuevaCaja(QWidget* padre, const char* nombre, const char* texto, bool soloLectura = false);
QGroupBox* NuevoMarco(QWidget* padre, const char* nombre, const char* titulo = "");
QCheckBox* NuevaCasilla(QWidget* padre, const char* nombre, const char* texto, bool marcada);
QPushButton* NuevoBoton(QWidget* padre, const char* nombre, const char* texto);
QRadioButton* NuevaOpcion(QWidget* padre, const char* nombre, const char* texto);

// Makes the control's own letter smaller, never below a legible size, until
// its caption fits the width given (pixels). The windows keep their fonts;
// only a caption longer than its place in the design shrinks.
void AjustarLetra(QWidget* control, const QString& texto, int ancho);

}  // namespace vanta
