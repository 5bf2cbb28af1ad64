// The drawing surface as a picture box of the main window: a sunken frame that
// shows the surface's persistent picture and then its transient overlay, so a
// pointer move never redraws the persistent picture, and that reports the
// pointer in user coordinates. A hidden box is drawn all the same and shows
// its whole picture when it appears.
#pragma once

#include <QFrame>

#include "core/workflow/Distribucion.h"
#include "gui/services/SuperficieImagen.h"

namespace vanta {

// The picture inside a box placed at l: the box's sunken border is one pixel.
QSize DentroDe(const Lugar& l);

class SuperficieQt : public QFrame, public SuperficieImagen {
    Q_OBJECT

public:
    explicit SuperficieQt(QWidget* padre = nullptr, int32_t fondo = kFondoBlanco);

signals:
    // Buttons and shift keys as the program counts them: left 1, right 2,
    // middle 4; shift 1, control 2, alt 4. Positions in user coordinates.
    void MouseMove(int boton, int mayusculas, float x, float y);
    void MouseDown(int boton, int mayusculas, float x, float y);
    void MouseUp(int boton, int mayusculas, float x, float y);
    void Click();
    void DblClick();
    // The character of the key pressed.
    void KeyPress(int caracter);

protected:
    const Medida& Medir(bool otraVez = false) const override;
    void Repintar() override;
    QFontMetricsF Metricas() const override;

    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void DatosRaton(const QMouseEvent* evento, int& boton, int& mayusculas, float& x, float& y) const;

    // The box's inside and the screen's pixel ratio, measured again only when
    // the box's size changes or when asked: the drawing asks at every point.
    mutable QSize medidoCon_;
    mutable Medida medida_;
    bool repintoPendiente_ = false;
    bool pulsado_ = false;
};

}  // namespace vanta
