// The drawing surface on images: the persistent picture, a QImage to which
// drawing goes while AutoRedraw is on, and a transient overlay that Refresh
// wipes (the hover cross and trace). The main window's picture boxes show
// it; the command line draws on it offscreen, with no window, at the sizes
// the boxes have.
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <memory>

#include "core/cycle/DibujoDiagramas.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// A colour of the program (red in the low byte) as Qt's.
QColor ColorQt(int32_t color);

// The letter of the charts and diagrams: they were laid out for a small
// letter of 8 points, their texts standing at fixed places in the scale.
QFont LetraSuperficie(QFont base);

// The size of a picture: its inside in logical pixels, the pixel ratio of
// the screen and the logical dots per inch that text is measured with.
struct Medida {
    QSize dentro;
    qreal dpr = 1;
    int dpiX = 96, dpiY = 96;
};

class SuperficieImagen : public Superficie {
public:
    explicit SuperficieImagen(int32_t fondo = kFondoBlanco, QFont letra = LetraSuperficie(QFont()));
    ~SuperficieImagen() override;

    int32_t Fondo() const { return fondo_; }
    const QFont& Letra() const { return letra_; }
    void PonerLetra(const QFont& letra);
    // A picture of its own size, for a surface with no window.
    void Dimensionar(const Medida& medida) { medidaFija_ = medida; }

    // The persistent picture, at its size in device pixels (for the bitmaps,
    // the database and the clipboard).
    QImage Imagen();

    float TextWidth(std::string_view texto) const override;
    float TextHeight(std::string_view texto) const override;
    void Refresh() override;

    // Pixel of the picture (logical pixels) for a point in user coordinates,
    // and back.
    QPointF APixel(double x, double y) const;
    QPointF AUsuario(QPointF pixel) const;

protected:
    void AlLimpiar() override;
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;

    // The size the picture has now: the fixed one, or, on a picture box, the
    // box's inside, measured again when asked.
    virtual const Medida& Medir(bool otraVez = false) const;
    // The picture changed: a picture box shows it again.
    virtual void Repintar() {}
    // Text metrics as the picture's device takes them.
    virtual QFontMetricsF Metricas() const;

    // Brings both images to the picture's size (a new size keeps what was
    // drawn, from the top left, until the next drawing clears it).
    void AjustarImagenes();
    // Ends the open painter, so the images can be read or replaced.
    void CerrarPintor();
    const QImage& Persistente() const { return imagen_; }
    const QImage& Transitoria() const { return capa_; }
    bool TransitoriaVacia() const { return capaVacia_; }

private:
    // The image of the layer that AutoRedraw names, with a painter open on it,
    // or null when the picture has no inside yet.
    QPainter* Pintor();
    QSize TamanoDispositivo() const;
    // Sets the painter's pen to the fore colour when it is not already.
    void Pluma(QPainter* pintor);

    int32_t fondo_;
    QFont letra_;
    Medida medidaFija_;
    QImage imagen_;  // persistent picture
    QImage capa_;    // transient overlay, transparent where nothing is drawn
    bool capaVacia_ = true;
    std::unique_ptr<QPainter> pintor_;
    QImage* destinoPintor_ = nullptr;
    int64_t colorPluma_ = -1;  // the open painter's pen colour; -1 none set
};

}  // namespace vanta
