// A drawing surface that writes SVG: a picture of a fixed size in pixels
// whose persistent picture and transient layer are kept as SVG elements, so
// that the page shows the charts and diagrams the calculation draws, and the
// cross of the readout over them. Lines that go on from one another in the
// same pen are joined into one path; points closer than the picture's
// resolution to the last one add nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/services/Superficie.h"

namespace vanta::web {

class SuperficieSVG : public Superficie {
public:
    // ancho × alto pixels on a background (0xBBGGRR); letra, the height of
    // the font in pixels.
    SuperficieSVG(int ancho, int alto, int32_t fondo, float letra = kLetraPorDefecto);

    static constexpr float kLetraPorDefecto = 11;

    float TextWidth(std::string_view texto) const override;
    float TextHeight(std::string_view texto) const override;
    void Refresh() override;

    // The whole picture: the background, the persistent picture, and a group
    // of class "transitoria" with the transient layer (left empty without
    // conTransitoria).
    std::string SVG(bool conTransitoria = true) const;
    // The elements of the transient layer.
    std::string Transitoria() const;
    // Whether anything has been drawn on the persistent picture since the last
    // Cls.
    bool Dibujada() const { return !persistente_.elementos.empty() || !persistente_.trazo.empty(); }

    // A pixel of the picture in the surface's user coordinates.
    float XUsuario(float px) const;
    float YUsuario(float py) const;

    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }

protected:
    void AlLimpiar() override;
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;

private:
    // One layer: its finished elements and the path being drawn, with the
    // pen it is drawn in, the point where its last line ends and the last
    // point written into it (tenths of a pixel); pendiente when they differ.
    struct Capa {
        std::string elementos;
        std::string trazo;
        int32_t color = 0;
        int grosor = 1;
        long finX = 0, finY = 0, escritoX = 0, escritoY = 0;
        bool pendiente = false;

        void Escribir();
        void CerrarTrazo();
        std::string Texto() const;
    };

    Capa& CapaActual() { return AutoRedraw() ? persistente_ : transitoria_; }
    // User coordinates to tenths of a pixel, kept inside a band around the
    // picture; false when not finite.
    bool APixeles(float x, float y, long& px, long& py) const;

    int ancho_, alto_;
    int32_t fondo_;
    float letra_;
    Capa persistente_, transitoria_;
};

// A colour of the surfaces (0xBBGGRR) as SVG writes it: "#RRGGBB".
std::string ColorSVG(int32_t color);

}  // namespace vanta::web
