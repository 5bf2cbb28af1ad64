// The surface that writes the page's pictures as SVG: where its user
// coordinates fall in pixels, how it joins lines, its two layers, its text.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "web/SuperficieSVG.h"

using vanta::web::SuperficieSVG;

namespace {

int Cuenta(const std::string& s, const std::string& parte) {
    int n = 0;
    for (size_t i = s.find(parte); i != std::string::npos; i = s.find(parte, i + 1)) ++n;
    return n;
}

}  // namespace

TEST(SuperficieSVG, LasCoordenadasDeUsuarioCaenEnSusPixeles) {
    // A diagram's scale: y the negative of the quantity, growing downwards.
    SuperficieSVG s(200, 100, 0xFFFFFF);
    s.Scale(1, -50, 5, -10);
    s.SetForeColor(0x0000FF);
    s.Line(1, -50, 3, -30);
    EXPECT_NE(s.SVG().find("<path fill='none' stroke='#ff0000' d='M0 0 L100 50'/>"), std::string::npos);
    EXPECT_FLOAT_EQ(s.XUsuario(100), 3);
    EXPECT_FLOAT_EQ(s.YUsuario(50), -30);
    EXPECT_NE(s.SVG().find("viewBox='0 0 200 100'"), std::string::npos);
    EXPECT_NE(s.SVG().find("fill='#ffffff'"), std::string::npos);
}

TEST(SuperficieSVG, UneLasLineasQueSiguenYDejaLasQueNoAportan) {
    SuperficieSVG s(100, 100, 0);
    s.Scale(0, 0, 100, 100);
    s.PSet(10, 10);
    s.Line(20, 10);
    s.Line(20.1f, 10.1f);  // less than half a pixel from the last point written: waits
    s.Line(20.2f, 10.1f);  // still close: the end of the path, if it ends here
    EXPECT_NE(s.SVG().find("d='M10 10 L20 10 L20.2 10.1'"), std::string::npos);
    s.Line(30, 30);  // far enough: written
    s.SetForeColor(0x00FF00);
    s.Line(40, 40);  // another pen: another path from where the last ended
    s.SetDrawWidth(2);
    s.Line(50, 50);
    const std::string svg = s.SVG();
    EXPECT_NE(svg.find("d='M10 10 L20 10 L30 30'"), std::string::npos);
    EXPECT_NE(svg.find("stroke='#00ff00' d='M30 30 L40 40'"), std::string::npos);
    EXPECT_NE(svg.find("stroke-width='2' d='M40 40 L50 50'"), std::string::npos);
    EXPECT_EQ(Cuenta(svg, "<rect x='10' y='10' width='1' height='1'"), 1);  // the point itself
    s.Line(60, 60, 70, 70);  // not from the end: a path of its own
    s.Line(70, 75, 80, 80);  // nor from below it
    EXPECT_NE(s.SVG().find("d='M60 60 L70 70'/><path"), std::string::npos);
    EXPECT_NE(s.SVG().find("d='M70 75 L80 80'"), std::string::npos);
}

TEST(SuperficieSVG, LaCapaTransitoriaSeBorraSinTocarElDibujo) {
    SuperficieSVG s(100, 100, 0);
    s.Scale(0, 0, 100, 100);
    s.Line(0, 0, 10, 10);
    s.SetAutoRedraw(false);
    s.Line(0, 50, 100, 50);
    EXPECT_EQ(s.Transitoria(), "<path fill='none' stroke='#000000' d='M0 50 L100 50'/>");
    EXPECT_EQ(Cuenta(s.SVG(), "<path"), 2);
    EXPECT_EQ(Cuenta(s.SVG(false), "<path"), 1);
    s.Refresh();
    EXPECT_EQ(s.Transitoria(), "");
    EXPECT_EQ(Cuenta(s.SVG(), "<path"), 1);
    EXPECT_TRUE(s.Dibujada());
    s.Cls();
    EXPECT_FALSE(s.Dibujada());
}

TEST(SuperficieSVG, LosPuntosFueraDeEscalaSeRecortanYLosNoFinitosNoSeDibujan) {
    SuperficieSVG s(100, 100, 0);
    s.Scale(0, 0, 1, 1);
    s.Line(0, 0, 1e30f, 0.5f);
    EXPECT_NE(s.SVG().find("L500 50'"), std::string::npos);  // four pictures beyond the edge
    s.Cls();
    s.Line(0, 0, std::numeric_limits<float>::quiet_NaN(), 0);
    s.LineBox(0, 0, std::numeric_limits<float>::infinity(), 1, 0);
    EXPECT_FALSE(s.Dibujada());
    SuperficieSVG sinTamano(100, 100, 0);
    sinTamano.Scale(1, 1, 1, 1);  // a scale with no size places nothing
    sinTamano.Line(0, 0, 1, 1);
    EXPECT_FALSE(sinTamano.Dibujada());
}

TEST(SuperficieSVG, ElTextoSeMideEnUnidadesDeUsuarioYSeEscapa) {
    SuperficieSVG s(200, 100, 0, 10);
    s.Scale(0, 0, 20, -50);  // y upwards: the measures are sizes all the same
    // Ten digits of 0.556 em at 10 px are 55.6 px: 5.56 of a width of 20 in
    // 200 px. A line is 11.5 px: 5.75 of a height of 50 in 100 px.
    EXPECT_NEAR(s.TextWidth("0123456789"), 5.56, 1e-5);
    EXPECT_NEAR(s.TextWidth("ñ"), s.TextWidth("n") + 0.0, 0.01);  // a character, not its bytes
    EXPECT_NEAR(s.TextHeight("x"), 5.75, 1e-5);
    s.SetCurrentX(2);
    s.SetCurrentY(-10);
    s.Print("a<b & 'c'");
    EXPECT_NE(s.SVG().find("<text x='20' y='29.3' fill='#000000'>a&lt;b &amp; &#39;c&#39;</text>"),
              std::string::npos);
    s.LineBox(1, -1, 3, -6, 0x00FF00);
    EXPECT_NE(s.SVG().find("<rect x='10' y='2' width='20' height='10' fill='#00ff00'/>"), std::string::npos);
}
