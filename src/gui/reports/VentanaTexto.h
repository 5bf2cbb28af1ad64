// What the two report windows have in common: a menu "&Archivo", a text box
// in a fixed-pitch font so the report's columns read, and no resize handler:
// the box is fitted to the window, in fixed shares of its inside, whenever
// the pointer moves over the window or over the box.
#pragma once

#include <QMainWindow>

class QAction;
class QMenu;
class QPlainTextEdit;

namespace vanta {

class VentanaTexto : public QMainWindow {
    Q_OBJECT

protected:
    // alto, ancho: the box's shares of the inside; arriba: the pixels the box
    // leaves free at the top.
    VentanaTexto(QWidget* padre, const QString& titulo, QSize tamano, double alto, double ancho, int arriba);

    QWidget* Interior() const { return interior_; }
    QMenu* Archivo() const { return mnuArchivo_; }
    // The window's text box, watched for the pointer.
    QPlainTextEdit* CrearCaja(const char* nombre);
    QAction* Entrada(const char* nombre, const QString& texto);

    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void AjustarCaja();

    QWidget* interior_;
    QMenu* mnuArchivo_;
    QPlainTextEdit* caja_ = nullptr;
    double alto_, ancho_;
    int arriba_;
};

// The text selected in a box, lines ending in LF; empty when none is.
QString TextoSeleccionado(const QPlainTextEdit* caja);

}  // namespace vanta
