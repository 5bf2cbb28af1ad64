// The drawing surface: the operations of a picture box, in user coordinates
// passed in single precision. The charts, the diagrams and the hover readout
// draw through it alone, so the calculation runs with surfaces that draw
// nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vanta {

class Superficie {
public:
    virtual ~Superficie() = default;

    // User coordinates of the top-left and bottom-right corners.
    void Scale(float x1, float y1, float x2, float y2);
    float ScaleLeft() const { return escalaIzquierda_; }
    float ScaleTop() const { return escalaArriba_; }
    float ScaleWidth() const { return escalaAncho_; }
    float ScaleHeight() const { return escalaAlto_; }
    // Setting height or width keeps the origin at the top left.
    void SetScaleWidth(float ancho) {
        escalaAncho_ = ancho;
        CambioEscala();
    }
    void SetScaleHeight(float alto) {
        escalaAlto_ = alto;
        CambioEscala();
    }

    int32_t ForeColor() const { return colorTrazo_; }
    void SetForeColor(int32_t color) { colorTrazo_ = color; }
    int32_t FillColor() const { return colorRelleno_; }
    void SetFillColor(int32_t color) { colorRelleno_ = color; }
    // 0: solid, 1: transparent.
    int FillStyle() const { return estiloRelleno_; }
    void SetFillStyle(int estilo) { estiloRelleno_ = estilo; }

    bool AutoRedraw() const { return autoRedraw_; }
    void SetAutoRedraw(bool valor) { autoRedraw_ = valor; }

    // Width of lines in pixels. The program's own pictures keep the default
    // of 1; a surface that cannot draw wider lines ignores it.
    int DrawWidth() const { return grosor_; }
    void SetDrawWidth(int grosor) { grosor_ = grosor; }

    float CurrentX() const { return actualX_; }
    float CurrentY() const { return actualY_; }
    void SetCurrentX(float x) { actualX_ = x; }
    void SetCurrentY(float y) { actualY_ = y; }

    // Whether its points and lines go anywhere.
    bool Dibuja() const { return dibuja_; }

    // Clears the picture and puts the current point at the top left.
    void Cls();
    // Wipes the transient layer and shows the persistent picture again.
    virtual void Refresh() {}

    void PSet(float x, float y) {
        actualX_ = x;
        actualY_ = y;
        if (dibuja_) AlPunto(x, y);
    }
    // A line from the current point, which moves to its end.
    void Line(float x, float y) {
        if (dibuja_) AlLinea(actualX_, actualY_, x, y);
        actualX_ = x;
        actualY_ = y;
    }
    void Line(float x1, float y1, float x2, float y2) {
        if (dibuja_) AlLinea(x1, y1, x2, y2);
        actualX_ = x2;
        actualY_ = y2;
    }
    // A box from the corner (x1, y1) to (x2, y2), filled with color.
    void LineBox(float x1, float y1, float x2, float y2, int32_t color);

    // Text with its top-left corner at the current point. Ends the line: the
    // current point goes back to the left edge, one line of text lower.
    void Print(std::string_view texto);
    virtual float TextWidth(std::string_view texto) const = 0;
    virtual float TextHeight(std::string_view texto) const = 0;

protected:
    // False for a surface whose points and lines go nowhere: the calculation
    // then makes no call for each of them.
    bool dibuja_ = true;

    // Drawing hooks, in user coordinates, onto the layer AutoRedraw names.
    virtual void AlLimpiar() {}
    virtual void AlPunto(float, float) {}
    virtual void AlLinea(float, float, float, float) {}
    virtual void AlCaja(float, float, float, float, int32_t) {}
    virtual void AlTexto(float, float, std::string_view) {}
    virtual void CambioEscala() {}

private:
    float escalaIzquierda_ = 0, escalaArriba_ = 0, escalaAncho_ = 1, escalaAlto_ = 1;
    int32_t colorTrazo_ = 0, colorRelleno_ = 0;
    int estiloRelleno_ = 1;
    bool autoRedraw_ = true;
    int grosor_ = 1;
    float actualX_ = 0, actualY_ = 0;
};

// Draws nothing; text has no size.
class SuperficieNula : public Superficie {
public:
    SuperficieNula() { dibuja_ = false; }
    float TextWidth(std::string_view) const override { return 0; }
    float TextHeight(std::string_view) const override { return 0; }
};

// Keeps every call as a line of text, for the tests: "Line 1 2 3 4 #RRGGBB"
// ("Line 1 2 3 4 w2 #RRGGBB" for a line 2 pixels wide), with the layer ("T"
// transient) where AutoRedraw is off. Text metrics are fixed per character so
// that placements can be checked.
class SuperficieGrabada : public Superficie {
public:
    std::vector<std::string> llamadas;
    float anchoCaracter = 0.1f;
    float altoTexto = 1.0f;

    float TextWidth(std::string_view texto) const override;
    float TextHeight(std::string_view) const override { return altoTexto; }
    void Refresh() override { llamadas.emplace_back("Refresh"); }

protected:
    void AlLimpiar() override { llamadas.emplace_back("Cls"); }
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;
    void CambioEscala() override;

private:
    std::string Capa() const;
};

// The four diagrams of the main window.
struct Diagramas {
    Superficie& pctPV;
    Superficie& pctTV;
    Superficie& pctTS;
    Superficie& pctHS;

    // Whether a line drawn goes anywhere.
    bool Dibujan() const { return pctPV.Dibuja() || pctTV.Dibuja() || pctTS.Dibuja() || pctHS.Dibuja(); }
};

// Four surfaces that draw nothing, for a headless calculation.
struct DiagramasNulos {
    SuperficieNula pv, tv, ts, hs;
    Diagramas Todos() { return {pv, tv, ts, hs}; }
};

}  // namespace vanta
