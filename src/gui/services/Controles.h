// Making the controls of the windows: each gets the program's name as its
// object name (the window tests find it by that name) and its caption.
#pragma once

#include <QLabel>
#include <QString>
#include <string_view>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace vanta {

QLabel* NuevaEtiqueta(QWidget* padre, const char* nombre, const char* texto);
QLineEdit* NuevaCaja(QWidget* padre, const char* nombre, const char* texto, bool soloLectura = false);
// The box of number i of an input of the calculation, by the input's name:
// its name and the text it starts with come from the table of inputs.
QLineEdit* NuevaCajaEntrada(QWidget* padre, std::string_view entrada, int i = 0);
QGroupBox* NuevoMarco(QWidget* padre, const char* nombre, const char* titulo = "");
QCheckBox* NuevaCasilla(QWidget* padre, const char* nombre, const char* texto, bool marcada);
QPushButton* NuevoBoton(QWidget* padre, const char* nombre, const char* texto);
QRadioButton* NuevaOpcion(QWidget* padre, const char* nombre, const char* texto);

// The CALCULAR of a stage window, its default button: Return in any of the
// window's boxes presses it.
QPushButton* NuevoBotonCalcular(QWidget* padre, const char* nombre);

// Makes the control's own letter smaller, never below a legible size, until
// its caption fits the width given (pixels). The windows keep their fonts;
// only a caption longer than its place in the design shrinks. Says whether
// the caption fits at the letter it ends with.
bool AjustarLetra(QWidget* control, const QString& texto, int ancho);

// A cell of a table of results: the figure as Format wrote it, blanks and
// all, at the right. A figure wider than the cell takes a smaller letter; one
// that does not fit even then says so, and shows whole as the cell's tip.
class CeldaCifra : public QLabel {
public:
    CeldaCifra(QWidget* padre, const QString& nombre);
    void PonerCifra(const QString& cifra);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void Ajustar();
    QString cifra_;
};

}  // namespace vanta
