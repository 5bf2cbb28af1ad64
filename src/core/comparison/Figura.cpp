#include "core/comparison/Figura.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/services/Numeros.h"

namespace vanta {

namespace {

constexpr int32_t kNegro = RGB(0, 0, 0);
constexpr int32_t kRejilla = RGB(222, 222, 222);
constexpr int kGrosorCurva = 2;
// The letter's height when the surface measures none (a surface with no
// text): the figure keeps its shape.
constexpr float kAltoLetraSinMedida = 12;

float Alto(const Superficie& s) {
    const float h = s.TextHeight("0");
    return h > 0 ? h : kAltoLetraSinMedida;
}

void Texto(Superficie& s, float x, float y, std::string_view t) {
    s.SetCurrentX(x);
    s.SetCurrentY(y);
    s.Print(t);
}

// The marks of a scale, from its first to its last.
std::vector<double> Marcas(const Eje& e) {
    std::vector<double> m;
    const int n = static_cast<int>(std::lround((e.hasta - e.desde) / e.paso));
    for (int i = 0; i <= n; ++i) m.push_back(e.desde + i * e.paso);
    return m;
}

struct Rango {
    double minX = std::numeric_limits<double>::infinity(), maxX = -minX, minY = minX, maxY = -minX;
    void Con(double x, double y) {
        minX = std::min(minX, x), maxX = std::max(maxX, x);
        minY = std::min(minY, y), maxY = std::max(maxY, y);
    }
    bool Vacio() const { return !(minX <= maxX); }
};

Rango RangoDe(Diagrama d, const std::vector<SerieFigura>& series, const EjeDiagrama& ejes) {
    Rango r;
    for (const SerieFigura& serie : series)
        if (serie.curvas)
            for (const Trazo& t : serie.curvas->De(d))
                for (const Punto& p : t.puntos) r.Con(p.x * ejes.factorX, p.y * ejes.factorY);
    if (r.Vacio()) r = {0, 1, 0, 1};
    return r;
}

// The lines of the legend: the series, laid left to right and wrapped.
struct Entrada {
    size_t serie;
    float x, fila;
};

std::vector<Entrada> Leyenda(const Superficie& s, float anchoUtil, const std::vector<SerieFigura>& series,
                             float& filas) {
    std::vector<Entrada> entradas;
    const float h = Alto(s), muestra = 2 * h;
    float x = 0;
    filas = 0;
    for (size_t i = 0; i < series.size(); ++i) {
        const float ancho = muestra + 0.4f * h + s.TextWidth(series[i].nombre);
        if (x > 0 && x + ancho > anchoUtil) {
            x = 0;
            ++filas;
        }
        entradas.push_back({i, x, filas});
        x += ancho + 1.5f * h;
    }
    if (!entradas.empty()) ++filas;
    return entradas;
}

bool ConLeyenda(const std::vector<SerieFigura>& series, const OpcionesFigura& o) {
    return o.leyenda && !series.empty();
}

}  // namespace

int32_t ColorComparacion(size_t i) {
    constexpr int32_t kColores[] = {RGB(0, 90, 200),  RGB(210, 40, 40),  RGB(20, 150, 60),
                                    RGB(230, 140, 0), RGB(140, 60, 170), RGB(0, 150, 160)};
    return kColores[i % std::size(kColores)];
}

Eje EjeDe(double minimo, double maximo) {
    if (!(maximo > minimo)) {
        const double medio = minimo, holgura = medio != 0 ? std::fabs(medio) * 0.05 : 1;
        minimo = medio - holgura;
        maximo = medio + holgura;
    }
    // A little room, so that no curve runs along the frame; a scale of values
    // that are not negative does not go below zero for it.
    const double margen = 0.03 * (maximo - minimo);
    minimo = minimo >= 0 ? std::max(0.0, minimo - margen) : minimo - margen;
    maximo += margen;
    const double bruto = (maximo - minimo) / 6;
    const double potencia = std::pow(10.0, std::floor(std::log10(bruto)));
    const double r = bruto / potencia;
    const double factor = r <= 1 ? 1 : r <= 2 ? 2 : r <= 2.5 ? 2.5 : r <= 5 ? 5 : 10;
    Eje e;
    e.paso = factor * potencia;
    e.desde = std::floor(minimo / e.paso) * e.paso;
    e.hasta = std::ceil(maximo / e.paso) * e.paso;
    e.decimales =
        std::max(0, -static_cast<int>(std::floor(std::log10(e.paso) + 1e-9)) + (factor == 2.5 ? 1 : 0));
    return e;
}

float Disposicion::X(double v) const {
    return static_cast<float>(izquierda + (v - x.desde) / (x.hasta - x.desde) * (derecha - izquierda));
}

float Disposicion::Y(double v) const {
    return static_cast<float>(abajo - (v - y.desde) / (y.hasta - y.desde) * (abajo - arriba));
}

EjeDiagrama EjesDe(Diagrama d, UnidadPresion presion) {
    const bool bar = presion == UnidadPresion::bar;
    switch (d) {
        case Diagrama::PV:
            return {1e6, bar ? 1e-5 : 1, "V (c.c.)", bar ? "p (bar)" : "p (Pa)"};
        case Diagrama::TV:
            return {1e6, 1, "V (c.c.)", "T (K)"};
        case Diagrama::TS:
            return {1, 1, "s (J/(mol·K))", "T (K)"};
        case Diagrama::HS:
            break;
    }
    return {1, 1, "s (J/(mol·K))", "h (J/mol)"};
}

std::string TituloFigura(Diagrama d) {
    switch (d) {
        case Diagrama::PV:
            return "Diagrama p-V";
        case Diagrama::TV:
            return "Diagrama T-V";
        case Diagrama::TS:
            return "Diagrama T-s";
        case Diagrama::HS:
            break;
    }
    return "Diagrama h-s";
}

std::string TextoCifra(double x, int decimales, char separador) {
    std::string mascara = "### ### ### ### ##0";
    if (decimales > 0) mascara += "." + std::string(static_cast<size_t>(decimales), '0');
    std::string t = Format(std::fabs(x), mascara, separador);
    t.erase(0, t.find_first_not_of(' '));
    if (x < 0 && t.find_first_not_of("0., ") != std::string::npos) t.insert(0, "-");
    return t;
}

Disposicion Disponer(const Superficie& s, float ancho, float alto, Diagrama d,
                     const std::vector<SerieFigura>& series, const OpcionesFigura& o) {
    const Rango r = RangoDe(d, series, EjesDe(d, o.presion));
    Disposicion p;
    p.x = EjeDe(r.minX, r.maxX);
    p.y = EjeDe(r.minY, r.maxY);

    const float h = Alto(s), margen = 0.8f * h;
    float anchoMarcasY = 0;
    for (double v : Marcas(p.y))
        anchoMarcasY = std::max(anchoMarcasY, s.TextWidth(TextoCifra(v, p.y.decimales, o.separador)));
    const float anchoUltimaX = s.TextWidth(TextoCifra(p.x.hasta, p.x.decimales, o.separador));

    float filasLeyenda = 0;
    if (ConLeyenda(series, o)) Leyenda(s, ancho - 2 * margen, series, filasLeyenda);
    p.izquierda = margen + anchoMarcasY + 0.6f * h;
    p.derecha = ancho - margen - 0.5f * anchoUltimaX;
    // Title, legend, then the title of the vertical axis above the plot.
    p.arriba = margen + 1.5f * h + filasLeyenda * 1.4f * h + 2.2f * h;
    p.abajo = alto - margen - 2.8f * h;
    // A picture too small for its texts still keeps a plot of some size.
    p.derecha = std::max(p.derecha, p.izquierda + 10);
    p.abajo = std::max(p.abajo, p.arriba + 10);
    return p;
}

namespace {

// Dashes and gaps, in pixels.
constexpr float kTrazoGuion = 9, kHuecoGuion = 5;

// A line from the current point in dashes; fase: how far along its pattern
// the line starts, carried from one line to the next so that a curve of
// short lines keeps its dashes.
void LineaDiscontinua(Superficie& s, float x, float y, float& fase) {
    const float x0 = s.CurrentX(), y0 = s.CurrentY();
    const float largo = std::hypot(x - x0, y - y0);
    const float periodo = kTrazoGuion + kHuecoGuion;
    for (float a = 0; a < largo;) {
        const float enPeriodo = std::fmod(fase + a, periodo);
        const bool trazo = enPeriodo < kTrazoGuion;
        const float b = std::min(largo, a + (trazo ? kTrazoGuion : periodo) - enPeriodo);
        if (trazo)
            s.Line(x0 + (x - x0) * a / largo, y0 + (y - y0) * a / largo, x0 + (x - x0) * b / largo,
                   y0 + (y - y0) * b / largo);
        a = b;
    }
    fase = std::fmod(fase + largo, periodo);
    s.SetCurrentX(x);
    s.SetCurrentY(y);
}

}  // namespace

void DibujarFigura(Superficie& s, float ancho, float alto, Diagrama d, const std::vector<SerieFigura>& series,
                   const OpcionesFigura& o) {
    s.SetAutoRedraw(true);
    s.Scale(0, 0, ancho, alto);
    s.Cls();
    const Disposicion p = Disponer(s, ancho, alto, d, series, o);
    const EjeDiagrama ejes = EjesDe(d, o.presion);
    const float h = Alto(s), margen = 0.8f * h;

    // The grid and the marks' figures.
    s.SetDrawWidth(1);
    for (double v : Marcas(p.x)) {
        s.SetForeColor(kRejilla);
        s.Line(p.X(v), p.arriba, p.X(v), p.abajo);
        const std::string t = TextoCifra(v, p.x.decimales, o.separador);
        s.SetForeColor(kNegro);
        Texto(s, p.X(v) - s.TextWidth(t) / 2, p.abajo + 0.3f * h, t);
    }
    for (double v : Marcas(p.y)) {
        s.SetForeColor(kRejilla);
        s.Line(p.izquierda, p.Y(v), p.derecha, p.Y(v));
        const std::string t = TextoCifra(v, p.y.decimales, o.separador);
        s.SetForeColor(kNegro);
        Texto(s, p.izquierda - 0.4f * h - s.TextWidth(t), p.Y(v) - h / 2, t);
    }
    s.SetForeColor(kNegro);
    s.Line(p.izquierda, p.arriba, p.derecha, p.arriba);
    s.Line(p.derecha, p.abajo);
    s.Line(p.izquierda, p.abajo);
    s.Line(p.izquierda, p.arriba);

    // The axis titles, the figure's title and the legend.
    Texto(s, (p.izquierda + p.derecha - s.TextWidth(ejes.tituloX)) / 2, p.abajo + 1.5f * h, ejes.tituloX);
    Texto(s, margen, p.arriba - 2.0f * h, ejes.tituloY);
    Texto(s, margen, margen, TituloFigura(d));
    if (ConLeyenda(series, o)) {
        float filas = 0;
        for (const Entrada& en : Leyenda(s, ancho - 2 * margen, series, filas)) {
            const float x = margen + en.x, y = margen + 1.5f * h + en.fila * 1.4f * h;
            s.SetDrawWidth(kGrosorCurva + 1);
            s.SetForeColor(series[en.serie].color);
            s.SetCurrentX(x);
            s.SetCurrentY(y + 0.55f * h);
            float fase = 0;
            if (series[en.serie].discontinua)
                LineaDiscontinua(s, x + 2 * h, y + 0.55f * h, fase);
            else
                s.Line(x + 2 * h, y + 0.55f * h);
            s.SetForeColor(kNegro);
            Texto(s, x + 2.4f * h, y, series[en.serie].nombre);
        }
    }

    // The curves, each series over the ones before it. Points closer than a
    // fraction of a pixel to the last one drawn add nothing to the picture.
    s.SetDrawWidth(kGrosorCurva);
    for (const SerieFigura& serie : series) {
        if (!serie.curvas) continue;
        for (const Trazo& t : serie.curvas->De(d)) {
            s.SetForeColor(serie.colorPropio ? serie.color : t.color);
            const Punto& primero = t.puntos.front();
            float ux = p.X(primero.x * ejes.factorX), uy = p.Y(primero.y * ejes.factorY);
            if (t.puntos.size() == 1) {
                s.PSet(ux, uy);
                continue;
            }
            s.SetCurrentX(ux);
            s.SetCurrentY(uy);
            float fase = 0;
            for (size_t i = 1; i < t.puntos.size(); ++i) {
                const float x = p.X(t.puntos[i].x * ejes.factorX), y = p.Y(t.puntos[i].y * ejes.factorY);
                if (i + 1 < t.puntos.size() && std::fabs(x - ux) + std::fabs(y - uy) < 0.4f) continue;
                if (serie.discontinua)
                    LineaDiscontinua(s, x, y, fase);
                else
                    s.Line(x, y);
                ux = x, uy = y;
            }
        }
    }
    s.SetDrawWidth(1);

    // The numbers of the five states, on a figure of one calculation; states
    // that fall on the same point share one label ("3, 4").
    if (o.numerar && series.size() == 1 && series[0].estado) {
        const Estado& e = *series[0].estado;
        const double V[] = {e.V1, e.V2, e.V3, e.V4, e.V5}, P[] = {e.p1, e.p2, e.p3, e.p4, e.p5},
                     T[] = {e.T1, e.T2, e.T3, e.T4, e.T5}, S[] = {e.S1, e.S2, e.S3, e.S4, e.S5},
                     H[] = {e.h1, e.h2, e.h3, e.h4, e.h5};
        const bool volumen = d == Diagrama::PV || d == Diagrama::TV;
        struct Rotulo {
            float x, y;
            std::string texto;
            bool izquierda;
        };
        std::vector<Rotulo> rotulos;
        for (int k = 0; k < 5; ++k) {
            const double x = volumen ? V[k] : S[k];
            const double y = d == Diagrama::PV ? P[k] : d == Diagrama::HS ? H[k] : T[k];
            const float px = p.X(x * ejes.factorX), py = p.Y(y * ejes.factorY);
            const std::string n(1, static_cast<char>('1' + k));
            auto igual = std::find_if(rotulos.begin(), rotulos.end(), [&](const Rotulo& r) {
                return std::fabs(r.x - px) < 1 && std::fabs(r.y - py) < 1;
            });
            if (igual != rotulos.end())
                igual->texto += ", " + n;
            else
                // States 2 and 3 stand at the left edge of p-V and T-V: their
                // numbers go to the left of the point.
                rotulos.push_back({px, py, n, volumen && (k == 1 || k == 2)});
        }
        s.SetForeColor(kNegro);
        for (const Rotulo& r : rotulos) {
            const float x = r.izquierda ? r.x - 0.4f * h - s.TextWidth(r.texto) : r.x + 0.4f * h;
            Texto(s, x, r.y - 1.1f * h, r.texto);
        }
    }
}

}  // namespace vanta
