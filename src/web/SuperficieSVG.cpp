#include "web/SuperficieSVG.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vanta::web {

namespace {

// The font the pictures ask for, and its advance widths in thousandths of its
// height for the printable ASCII characters (Arial and the fonts metrically
// alike); any other character takes the width of a digit.
constexpr const char* kFamiliaLetra = "Arial,'Liberation Sans',Helvetica,sans-serif";
constexpr short kAnchos[95] = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  // space to /
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // 0 to ?
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // @ to O
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // P to _
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // ` to o
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};      // p to ~
constexpr short kAnchoOtro = 556;
// A line of text, and where its baseline stands below its top, in heights of
// the font.
constexpr float kAltoLinea = 1.15f;
constexpr float kLineaBase = 0.93f;
// How far outside the picture a point is still placed, in pictures: a curve
// gone far off its scale is cut there, never handed on as a huge number.
constexpr float kBanda = 4;
// Points of a path closer than this to the last one written add nothing
// (tenths of a pixel, in x plus y).
constexpr long kResolucion = 4;

// Tenths of a pixel as SVG reads them: "12.3", "12", "-0.5".
void AgregarDecimas(std::string& s, long v) {
    if (v < 0) {
        s += '-';
        v = -v;
    }
    s += std::to_string(v / 10);
    if (v % 10) {
        s += '.';
        s += static_cast<char>('0' + v % 10);
    }
}

void AgregarPunto(std::string& s, long x, long y) {
    AgregarDecimas(s, x);
    s += ' ';
    AgregarDecimas(s, y);
}

std::string Escapar(std::string_view t) {
    std::string s;
    s.reserve(t.size());
    for (char c : t) {
        switch (c) {
            case '&':
                s += "&amp;";
                break;
            case '<':
                s += "&lt;";
                break;
            case '>':
                s += "&gt;";
                break;
            case '\'':
                s += "&#39;";
                break;
            default:
                s += c;
        }
    }
    return s;
}

std::string Trazado(const std::string& d, int32_t color, int grosor) {
    std::string s = "<path fill='none' stroke='" + ColorSVG(color) + "'";
    if (grosor != 1) s += " stroke-width='" + std::to_string(grosor) + "'";
    return s + " d='" + d + "'/>";
}

}  // namespace

std::string ColorSVG(int32_t color) {
    char b[8];
    std::snprintf(b, sizeof b, "#%02x%02x%02x", color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
    return b;
}

SuperficieSVG::SuperficieSVG(int ancho, int alto, int32_t fondo, float letra)
    : ancho_(ancho), alto_(alto), fondo_(fondo), letra_(letra) {}

float SuperficieSVG::TextWidth(std::string_view texto) const {
    long milesimas = 0;
    for (unsigned char c : texto) {
        if ((c & 0xC0) == 0x80) continue;  // the rest of a character of UTF-8
        milesimas += c >= 32 && c < 127 ? kAnchos[c - 32] : kAnchoOtro;
    }
    return static_cast<float>(milesimas) / 1000.0f * letra_ * std::fabs(ScaleWidth()) /
           static_cast<float>(ancho_);
}

float SuperficieSVG::TextHeight(std::string_view) const {
    return kAltoLinea * letra_ * std::fabs(ScaleHeight()) / static_cast<float>(alto_);
}

void SuperficieSVG::Refresh() {
    transitoria_ = Capa{};
}

float SuperficieSVG::XUsuario(float px) const {
    return ScaleLeft() + px / static_cast<float>(ancho_) * ScaleWidth();
}

float SuperficieSVG::YUsuario(float py) const {
    return ScaleTop() + py / static_cast<float>(alto_) * ScaleHeight();
}

bool SuperficieSVG::APixeles(float x, float y, long& px, long& py) const {
    const double fx = (static_cast<double>(x) - ScaleLeft()) / ScaleWidth() * ancho_;
    const double fy = (static_cast<double>(y) - ScaleTop()) / ScaleHeight() * alto_;
    if (!std::isfinite(fx) || !std::isfinite(fy)) return false;
    const double bx = kBanda * ancho_, by = kBanda * alto_;
    px = std::lround(10 * std::fmin(std::fmax(fx, -bx), bx + ancho_));
    py = std::lround(10 * std::fmin(std::fmax(fy, -by), by + alto_));
    return true;
}

void SuperficieSVG::AlLimpiar() {
    persistente_ = Capa{};
    transitoria_ = Capa{};
}

void SuperficieSVG::AlPunto(float x, float y) {
    long px, py;
    if (!APixeles(x, y, px, py)) return;
    Capa& capa = CapaActual();
    capa.CerrarTrazo();
    capa.elementos += "<rect x='";
    AgregarDecimas(capa.elementos, px);
    capa.elementos += "' y='";
    AgregarDecimas(capa.elementos, py);
    capa.elementos += "' width='1' height='1' fill='" + ColorSVG(ForeColor()) + "'/>";
}

void SuperficieSVG::AlLinea(float x1, float y1, float x2, float y2) {
    long ax, ay, bx, by;
    if (!APixeles(x1, y1, ax, ay) || !APixeles(x2, y2, bx, by)) return;
    Capa& capa = CapaActual();
    const bool sigue = !capa.trazo.empty() && capa.color == ForeColor() && capa.grosor == DrawWidth() &&
                       capa.finX == ax && capa.finY == ay;
    if (!sigue) {
        capa.CerrarTrazo();
        capa.color = ForeColor();
        capa.grosor = DrawWidth();
        capa.trazo = "M";
        AgregarPunto(capa.trazo, ax, ay);
        capa.escritoX = ax;
        capa.escritoY = ay;
    }
    capa.finX = bx;
    capa.finY = by;
    // A point too close to the last one written waits: the next one far
    // enough, or the end of the path, takes its place.
    capa.pendiente = std::labs(bx - capa.escritoX) + std::labs(by - capa.escritoY) < kResolucion;
    if (!capa.pendiente) capa.Escribir();
}

void SuperficieSVG::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
    long ax, ay, bx, by;
    if (!APixeles(x1, y1, ax, ay) || !APixeles(x2, y2, bx, by)) return;
    Capa& capa = CapaActual();
    capa.CerrarTrazo();
    std::string& s = capa.elementos;
    s += "<rect x='";
    AgregarDecimas(s, std::min(ax, bx));
    s += "' y='";
    AgregarDecimas(s, std::min(ay, by));
    s += "' width='";
    AgregarDecimas(s, std::labs(bx - ax));
    s += "' height='";
    AgregarDecimas(s, std::labs(by - ay));
    s += "' fill='" + ColorSVG(color) + "'/>";
}

void SuperficieSVG::AlTexto(float x, float y, std::string_view texto) {
    long px, py;
    if (texto.empty() || !APixeles(x, y, px, py)) return;
    Capa& capa = CapaActual();
    capa.CerrarTrazo();
    std::string& s = capa.elementos;
    s += "<text x='";
    AgregarDecimas(s, px);
    s += "' y='";
    AgregarDecimas(s, py + std::lround(10 * kLineaBase * letra_));
    s += "' fill='" + ColorSVG(ForeColor()) + "'>" + Escapar(texto) + "</text>";
}

void SuperficieSVG::Capa::Escribir() {
    trazo += " L";
    AgregarPunto(trazo, finX, finY);
    escritoX = finX;
    escritoY = finY;
    pendiente = false;
}

void SuperficieSVG::Capa::CerrarTrazo() {
    if (trazo.empty()) return;
    if (pendiente) Escribir();
    elementos += Trazado(trazo, color, grosor);
    trazo.clear();
}

std::string SuperficieSVG::Capa::Texto() const {
    Capa copia = *this;
    copia.CerrarTrazo();
    return copia.elementos;
}

std::string SuperficieSVG::SVG(bool conTransitoria) const {
    char cabecera[400];
    std::snprintf(cabecera, sizeof cabecera,
                  "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 %d %d' width='%d' height='%d' "
                  "font-family=\"%s\" font-size='%g' xml:space='preserve' style='white-space:pre'>"
                  "<rect width='100%%' height='100%%' fill='%s'/>",
                  ancho_, alto_, ancho_, alto_, kFamiliaLetra, static_cast<double>(letra_),
                  ColorSVG(fondo_).c_str());
    return cabecera + persistente_.Texto() + "<g class='transitoria'>" +
           (conTransitoria ? transitoria_.Texto() : "") + "</g></svg>";
}

std::string SuperficieSVG::Transitoria() const {
    return transitoria_.Texto();
}

}  // namespace vanta::web
