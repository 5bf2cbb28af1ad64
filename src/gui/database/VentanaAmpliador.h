// "Base de datos: Ampliador de imágenes": one picture of a record at its own
// size (or as large as the screen allows); a click on it hides the window.
#pragma once

#include <QDialog>

namespace vanta {

class ControlImagen;

class VentanaAmpliador : public QDialog {
    Q_OBJECT

public:
    explicit VentanaAmpliador(QWidget* padre = nullptr);

    ControlImagen* imgAmpliada() const { return imgAmpliada_; }
    // Shows the picture and fits the window to it.
    void PonerImagen(const QImage& imagen);

public slots:
    void imgAmpliada_Click();

private:
    ControlImagen* imgAmpliada_;
};

}  // namespace vanta
