// The drawing surface on a Qt widget: a picture box of the main window.
//
// Two layers: the persistent picture, a QImage kept at the widget's size, to
// which drawing goes while AutoRedraw is on, and a transient overlay that
// Refresh wipes (the hover cross and trace). paintEvent paints the cached
// persistent picture and then the overlay, so a pointer move never redraws the
// persistent picture. A hidden surface is drawn all the same and shows its
// whole picture when it appears.
#pragma once

#include <QColor>
#include <QFrame>
#include <QImage>
#include <QPainter>
#include <memory>

#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// The grounds of the surfaces: white for the charts, p-V and T-V; light grey
// for T-s and h-s.
inline constexpr int32_t kFondoBlanco = RGB(255, 255, 255);
inline constexpr int32_t kFondoGris = RGB(245, 245, 245);

// A colour of the program (red in the low byte) as Qt's.
QColor ColorQt(int32_t color);

class SuperficieQt : public QFrame, public Superficie {
    Q_OBJECT

public:
    explicit SuperficieQt(QWidget* padre = nullptr, int32_t fondo = kFondoBlanco);
    ~SuperficieQt() override;

    int32_t Fondo() const { return fondo_; }

    // The persistent picture, at the widget's size in device pixels (for the
    // bitmaps, the database and the clipboard).
    QImage Imagen();

    float TextWidth(std::string_view texto) const override;
    float TextHeight(std::string_view texto) const override;
    void Refresh() override;

    // Pixel of the widget's inside (logical pixels) for a point in user
    // coordinates, and back.
    QPointF APixel(double x, double y) const;
    QPointF AUsuario(QPointF pixel) const;

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
    void AlLimpiar() override;
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;

    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    // The image of the layer that AutoRedraw names, with a painter open on it,
    // or null when the widget has no inside yet.
    QPainter* Pintor();
    // Ends the open painter, so the images can be read or replaced.
    void CerrarPintor();
    // Brings both images to the widget's size (a new size starts clear).
    void AjustarImagenes();
    // The widget's inside (logical pixels) and the screen's pixel ratio,
    // measured again only when the widget's size changes or when asked: the
    // drawing asks for them at every point.
    struct Medida {
        QSize widget, dentro;
        qreal dpr = 1;
    };
    const Medida& Medir(bool otraVez = false) const;
    QSize TamanoDispositivo() const;
    // Sets the painter's pen to the fore colour when it is not already.
    void Pluma(QPainter* pintor);
    void Repintar();
    void DatosRaton(const QMouseEvent* evento, int& boton, int& mayusculas, float& x, float& y) const;

    int32_t fondo_;
    QImage imagen_;  // persistent picture
    QImage capa_;    // transient overlay, transparent where nothing is drawn
    bool capaVacia_ = true;
    std::unique_ptr<QPainter> pintor_;
    QImage* destinoPintor_ = nullptr;
    bool repintoPendiente_ = false;
    mutable Medida medida_;
    int64_t colorPluma_ = -1;  // the open painter's pen colour; -1 none set
    bool pulsado_ = false;
};

}  // namespace vanta
