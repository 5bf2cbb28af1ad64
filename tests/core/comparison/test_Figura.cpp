// The curves kept from a calculation, the figures drawn from them on common
// axes, and the table of a comparison.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>

#include "core/comparison/Figura.h"
#include "core/comparison/TablaComparacion.h"
#include "tests/Dorados.h"

using namespace vanta;

namespace {

CalculoComparado Calcular(std::string nombre, std::map<std::string, std::string> valores) {
    CalculoComparado c = CalcularComparado(std::move(nombre), OpcionesCalculo{std::move(valores)});
    EXPECT_TRUE(c.Hay()) << c.mensaje;
    return c;
}

// The lines of one colour a recording surface kept, without the colour.
std::vector<std::string> LineasDe(const SuperficieGrabada& s, const std::string& color) {
    std::vector<std::string> lineas;
    for (const std::string& l : s.llamadas)
        if (l.rfind("Line ", 0) == 0 && l.size() > 7 && l.substr(l.size() - 7) == color)
            lineas.push_back(l.substr(0, l.size() - 7));
    return lineas;
}

std::string Hex(int32_t c) {
    char b[16];
    std::snprintf(b, sizeof b, "#%02X%02X%02X", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
    return b;
}

}  // namespace

TEST(Trazos, CadaProcesoEsUnTrazoDeSuColorYElCicloSeCierraEnElEstadoUno) {
    Estado pens;
    GuardarColoresDiagramas(pens);
    const struct {
        const char* ciclo;
        std::vector<int32_t> colores;
    } casos[] = {
        {"Otto", {pens.ColorCompresion, pens.ColorCombustionV, pens.ColorExpansion, pens.ColorEscape}},
        {"Diesel", {pens.ColorCompresion, pens.ColorCombustionP, pens.ColorExpansion, pens.ColorEscape}},
        {"Mixto",
         {pens.ColorCompresion, pens.ColorCombustionV, pens.ColorCombustionP, pens.ColorExpansion,
          pens.ColorEscape}},
    };
    for (const auto& caso : casos) {
        const CalculoComparado c = Calcular(caso.ciclo, {{"ciclo", caso.ciclo}});
        const Estado& e = *c.estado;
        for (Diagrama d : {Diagrama::PV, Diagrama::TV}) {
            const auto& trazos = c.curvas.De(d);
            std::vector<int32_t> colores;
            for (const Trazo& t : trazos) colores.push_back(t.color);
            EXPECT_EQ(colores, caso.colores) << caso.ciclo;
            const double y1 = d == Diagrama::PV ? e.p1 : e.T1, y3 = d == Diagrama::PV ? e.p3 : e.T3;
            EXPECT_FLOAT_EQ(trazos.front().puntos.front().x, static_cast<float>(e.V1));
            EXPECT_FLOAT_EQ(trazos.front().puntos.front().y, static_cast<float>(y1));
            EXPECT_FLOAT_EQ(trazos[1].puntos.front().y, trazos[0].puntos.back().y);
            EXPECT_FLOAT_EQ(trazos[1].puntos.front().x, static_cast<float>(e.V2));
            EXPECT_FLOAT_EQ(trazos.back().puntos.back().y, static_cast<float>(y1));
            if (caso.ciclo != std::string("Diesel")) {
                EXPECT_FLOAT_EQ(trazos[1].puntos.back().y, static_cast<float>(y3));
            }
        }
    }
}

TEST(Figura, UnCalculoComparadoConsigoMismoDaLaMismaCurvaEnLosMismosPixeles) {
    const CalculoComparado a = Calcular("A", {});
    const CalculoComparado b = Calcular("B", {{"ciclo", "Diesel"}});
    const auto dibujar = [](const CalculoComparado& x, const CalculoComparado& y, Diagrama d) {
        SuperficieGrabada s;
        s.anchoCaracter = 7;
        s.altoTexto = 14;
        DibujarFigura(s, 800, 600, d,
                      {{x.nombre, &x.curvas, x.estado.get(), true, ColorComparacion(0)},
                       {y.nombre, &y.curvas, y.estado.get(), true, ColorComparacion(1)}},
                      {});
        return s;
    };
    for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS}) {
        const SuperficieGrabada mismo = dibujar(a, a, d);
        auto primera = LineasDe(mismo, Hex(ColorComparacion(0))),
             segunda = LineasDe(mismo, Hex(ColorComparacion(1)));
        // Each legend's sample stands at its own place; the curves are the same.
        ASSERT_GT(primera.size(), 100u);
        EXPECT_NE(primera.front(), segunda.front());
        primera.erase(primera.begin());
        segunda.erase(segunda.begin());
        EXPECT_EQ(primera, segunda);
        const SuperficieGrabada otro = dibujar(a, b, d);
        EXPECT_NE(LineasDe(otro, Hex(ColorComparacion(0))), LineasDe(otro, Hex(ColorComparacion(1))));
    }
}

TEST(Figura, LasEscalasCubrenTodasLasCurvasDeLaComparacion) {
    const CalculoComparado a = Calcular("A", {{"rc", "8"}});
    const CalculoComparado b = Calcular("B", {{"ciclo", "Diesel"}, {"rc", "20"}});
    const std::vector<SerieFigura> series = {{"A", &a.curvas, nullptr, true, ColorComparacion(0)},
                                             {"B", &b.curvas, nullptr, true, ColorComparacion(1)}};
    for (UnidadPresion u : {UnidadPresion::Pa, UnidadPresion::bar})
        for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS}) {
            SuperficieGrabada s;
            const OpcionesFigura o{.presion = u};
            const Disposicion p = Disponer(s, 640, 480, d, series, o);
            const EjeDiagrama ejes = EjesDe(d, u);
            for (const SerieFigura& serie : series)
                for (const Trazo& t : serie.curvas->De(d))
                    for (const Punto& q : t.puntos) {
                        const float x = p.X(q.x * ejes.factorX), y = p.Y(q.y * ejes.factorY);
                        ASSERT_TRUE(x >= p.izquierda && x <= p.derecha && y >= p.arriba && y <= p.abajo)
                            << TituloFigura(d) << " " << x << " " << y;
                    }
        }
}

TEST(Figura, UnaFiguraDemasiadoPequenaParaSusTextosGuardaUnaParcela) {
    const CalculoComparado a = Calcular("A", {});
    const std::vector<SerieFigura> series = {{"A", &a.curvas, nullptr, true, ColorComparacion(0)}};
    SuperficieGrabada s;
    const Disposicion p = Disponer(s, 1, 1, Diagrama::PV, series, OpcionesFigura{});
    EXPECT_GE(p.derecha - p.izquierda, 10);
    EXPECT_GE(p.abajo - p.arriba, 10);
}

TEST(Figura, MarcasDeLasEscalasYCifras) {
    const struct {
        double minimo, maximo;
        Eje eje;
    } casos[] = {
        {10, 100, {0, 120, 20, 0}},                     // a volume in c.c.: never below zero
        {100000, 10624600, {0, 12000000, 2000000, 0}},  // a pressure in Pa
        {198.75, 248.2, {190, 250, 10, 0}},             // an entropy
        {0, 1.3, {0, 1.5, 0.25, 2}},                    // steps of 2.5: one decimal more
        {-40, 12, {-50, 20, 10, 0}},                    // an enthalpy below zero
        {5, 5, {4.7, 5.3, 0.1, 1}},                     // one value: 5 % either side
    };
    for (const auto& c : casos) {
        const Eje e = EjeDe(c.minimo, c.maximo);
        EXPECT_NEAR(e.desde, c.eje.desde, 1e-9) << c.minimo;
        EXPECT_NEAR(e.hasta, c.eje.hasta, 1e-9) << c.minimo;
        EXPECT_NEAR(e.paso, c.eje.paso, 1e-9) << c.minimo;
        EXPECT_EQ(e.decimales, c.eje.decimales) << c.minimo;
    }
    EXPECT_EQ(TextoCifra(-1234.5, 1, '.'), "-1 234.5");
    EXPECT_EQ(TextoCifra(12345678, 0, ','), "12 345 678");
    EXPECT_EQ(TextoCifra(0.25, 2, ','), "0,25");
    EXPECT_EQ(TextoCifra(-0.04, 1, '.'), "0.0");
}

TEST(Figura, TresFigurasComoSeDibujan) {
    // One calculation numbered, in Pa; three on common axes in bar, with a
    // legend in two lines; states 3 and 4 of Otto on one point of T-s.
    const CalculoComparado otto = Calcular("Otto", {{"rc", "16"}});
    const CalculoComparado diesel =
        Calcular("Diesel con la misma relación", {{"ciclo", "Diesel"}, {"rc", "16"}});
    const CalculoComparado mixto = Calcular("Mixto hasta 60 bar", {{"ciclo", "Mixto"}, {"pmax", "6000000"}});
    const auto serie = [](const CalculoComparado& c, size_t i, bool propio) {
        return SerieFigura{c.nombre, &c.curvas, c.estado.get(), propio, ColorComparacion(i)};
    };
    const struct {
        Diagrama d;
        std::vector<SerieFigura> series;
        OpcionesFigura o;
        float ancho, alto;
    } casos[] = {
        {Diagrama::PV, {serie(otto, 0, false)}, {.leyenda = false}, 640, 480},
        {Diagrama::PV,
         {serie(otto, 0, true), serie(diesel, 1, true), serie(mixto, 2, true)},
         {.presion = UnidadPresion::bar, .separador = ','},
         400,
         300},
        {Diagrama::TS, {serie(otto, 0, false)}, {.leyenda = false}, 640, 480},
    };
    std::string transcripcion;
    for (const auto& c : casos) {
        SuperficieGrabada s;
        s.anchoCaracter = 7;
        s.altoTexto = 14;
        DibujarFigura(s, c.ancho, c.alto, c.d, c.series, c.o);
        // The curves' lines one in twenty, and their count.
        size_t curva = 0;
        for (const std::string& l : s.llamadas) {
            if (l.find(" w2 ") == std::string::npos || l.rfind("Line ", 0) != 0) {
                transcripcion += l + "\n";
            } else if (curva++ % 20 == 0) {
                transcripcion += l + "\n";
            }
        }
        transcripcion += "lineas de las curvas: " + std::to_string(curva) + "\n\n";
    }
    EXPECT_EQ(pruebas::CompararDorado("comparacion/figuras.txt", transcripcion), "");
}

TEST(TablaComparacion, LasCifrasJuntasConSusDiferenciasYLosAvisos) {
    const std::vector<CalculoComparado> c = {
        Calcular("Otto", {{"rc", "16"}}), Calcular("Diesel", {{"ciclo", "Diesel"}, {"rc", "16"}}),
        Calcular("Mixto", {{"ciclo", "Mixto"}, {"pmax", "6000000"}, {"compresion", "politropica"}}),
        CalcularComparado("Roto", OpcionesCalculo{{{"rc", "0.5"}}}),
        Calcular("Mixto 37,5 %", {{"ciclo", "Mixto"}, {"proporcion-vcte", "37.5"}})};
    ASSERT_FALSE(c[3].Hay());
    std::string tabla;
    for (UnidadPresion u : {UnidadPresion::bar, UnidadPresion::Pa}) {
        for (const FilaComparacion& f : TablaComparacion(c, u, u == UnidadPresion::bar ? ',' : '.')) {
            tabla += f.magnitud + (f.entrada ? " [entrada]" : "") + (f.distinta ? " [distinta]" : "");
            for (size_t i = 0; i < c.size(); ++i) tabla += " | " + f.valores[i] + " | " + f.diferencias[i];
            tabla += "\n";
        }
        tabla += "\n";
    }
    EXPECT_EQ(pruebas::CompararDorado("comparacion/tabla.txt", tabla), "");
}

TEST(Figura, UnaSerieDiscontinuaVaATrazosSobreSuLinea) {
    // One straight curve from corner to corner of its own scales.
    CurvasCiclo recta;
    recta.diagramas[0] = {{0, {{1e-5F, 1e5F}, {1e-4F, 1e6F}}}};
    SuperficieGrabada s;
    s.anchoCaracter = 7;
    s.altoTexto = 14;
    const int32_t color = ColorComparacion(2);
    DibujarFigura(s, 800, 600, Diagrama::PV, {{"recta", &recta, nullptr, true, color, true}},
                  {.leyenda = false});
    struct Tramo {
        float x1, y1, x2, y2;
    };
    std::vector<Tramo> tramos;
    for (const std::string& l : LineasDe(s, Hex(color))) {
        Tramo t{};
        ASSERT_EQ(std::sscanf(l.c_str(), "Line %f %f %f %f", &t.x1, &t.y1, &t.x2, &t.y2), 4) << l;
        tramos.push_back(t);
    }
    ASSERT_GT(tramos.size(), 20u);
    const Tramo& a = tramos.front();
    const Tramo& b = tramos.back();
    const float largo = std::hypot(b.x2 - a.x1, b.y2 - a.y1);
    float trazado = 0;
    for (size_t i = 0; i < tramos.size(); ++i) {
        const Tramo& t = tramos[i];
        const float l = std::hypot(t.x2 - t.x1, t.y2 - t.y1);
        trazado += l;
        EXPECT_LE(l, 9.01F) << i;
        // Each dash on the line, after the one before with a gap of 5 px.
        const float lado = (t.x2 - a.x1) * (b.y2 - a.y1) - (t.y2 - a.y1) * (b.x2 - a.x1);
        EXPECT_NEAR(lado / largo, 0, 0.05) << i;
        if (i > 0) {
            EXPECT_NEAR(std::hypot(t.x1 - tramos[i - 1].x2, t.y1 - tramos[i - 1].y2), 5, 0.05) << i;
        }
    }
    EXPECT_NEAR(trazado / largo, 9.0 / 14.0, 0.02);
}
