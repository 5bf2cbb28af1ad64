#include "core/services/Superficie.h"

#include <cstdio>

namespace vanta {

void Superficie::Scale(float x1, float y1, float x2, float y2) {
    escalaIzquierda_ = x1;
    escalaArriba_ = y1;
    escalaAncho_ = x2 - x1;
    escalaAlto_ = y2 - y1;
    CambioEscala();
}

void Superficie::Cls() {
    actualX_ = 0;
    actualY_ = 0;
    AlLimpiar();
}

void Superficie::LineBox(float x1, float y1, float x2, float y2, int32_t color) {
    AlCaja(x1, y1, x2, y2, color);
    actualX_ = x2;
    actualY_ = y2;
}

void Superficie::Print(std::string_view texto) {
    AlTexto(actualX_, actualY_, texto);
    actualY_ += TextHeight(texto);
    actualX_ = escalaIzquierda_;
}

// ---- SuperficieGrabada ---------------------------------------------------------

namespace {
std::string Numero(float v) {
    char b[32];
    std::snprintf(b, sizeof b, "%g", static_cast<double>(v));
    return b;
}
std::string Color(int32_t c) {
    char b[16];
    std::snprintf(b, sizeof b, "#%02X%02X%02X", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
    return b;
}
}  // namespace

float SuperficieGrabada::TextWidth(std::string_view texto) const {
    // Characters, not bytes: continuation bytes of UTF-8 do not count.
    int n = 0;
    for (unsigned char c : texto)
        if ((c & 0xC0) != 0x80) ++n;
    return static_cast<float>(n) * anchoCaracter;
}

std::string SuperficieGrabada::Capa() const {
    return AutoRedraw() ? "" : "T ";
}

void SuperficieGrabada::AlPunto(float x, float y) {
    llamadas.push_back(Capa() + "PSet " + Numero(x) + " " + Numero(y) + " " + Color(ForeColor()));
}

void SuperficieGrabada::AlLinea(float x1, float y1, float x2, float y2) {
    // A width other than 1 is told before the colour: "w2".
    const std::string grosor = DrawWidth() == 1 ? "" : " w" + std::to_string(DrawWidth());
    llamadas.push_back(Capa() + "Line " + Numero(x1) + " " + Numero(y1) + " " + Numero(x2) + " " +
                       Numero(y2) + grosor + " " + Color(ForeColor()));
}

void SuperficieGrabada::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
    llamadas.push_back(Capa() + "Box " + Numero(x1) + " " + Numero(y1) + " " + Numero(x2) + " " + Numero(y2) +
                       " " + Color(color));
}

void SuperficieGrabada::AlTexto(float x, float y, std::string_view texto) {
    llamadas.push_back(Capa() + "Print " + Numero(x) + " " + Numero(y) + " \"" + std::string(texto) + "\"");
}

void SuperficieGrabada::CambioEscala() {
    llamadas.push_back("Scale " + Numero(ScaleLeft()) + " " + Numero(ScaleTop()) + " " +
                       Numero(ScaleLeft() + ScaleWidth()) + " " + Numero(ScaleTop() + ScaleHeight()));
}

}  // namespace vanta
