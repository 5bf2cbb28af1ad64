#include "core/fluids/Graficas.h"

#include <algorithm>
#include <limits>

#include "core/services/Numeros.h"

namespace vanta {

namespace {
// Colours of the series, blue in the high byte.
constexpr int32_t kColorAr = 0xFF8080;
constexpr int32_t kColorCO = 0x0000FF;
constexpr int32_t kColorCO2 = 0x80C0FF;  // also C of the fuel
constexpr int32_t kColorH2O = 0xFFC0C0;  // also H
constexpr int32_t kColorN2 = 0xC0C0C0;   // also N
constexpr int32_t kColorO2 = 0xFFFFC0;   // also O
constexpr int32_t kColorS = 0x00FF00;
constexpr int32_t kColorSO2 = 0x008000;
constexpr int kRellenoSolido = 0;

// Coordinates in single precision. A bar beyond its range (a humidity far
// above 100 %) is drawn at the edge of the singles: converting it as it
// stands is undefined, and would reach the picture as infinity.
float F(double v) {
    constexpr double kMayor = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(v, -kMayor, kMayor));
}

void Imprimir(Superficie& sup, double x, double y, std::string_view texto) {
    sup.SetCurrentX(F(x));
    sup.SetCurrentY(F(y));
    sup.Print(texto);
}

// A line of a chart's right-hand column starts early enough to end inside
// the chart, though never left of its left edge: a long figure is not cut.
void ImprimirDentro(Superficie& sup, double x, double y, std::string_view texto) {
    const std::string_view visible = texto.substr(0, texto.find_last_not_of(' ') + 1);
    const double fin = static_cast<double>(sup.ScaleLeft()) + sup.ScaleWidth() - sup.TextWidth(visible);
    Imprimir(sup, std::max<double>(sup.ScaleLeft(), std::min(x, fin)), y, texto);
}

// The text position one line and a half lower, as the charts step it.
void SiguienteLinea(Estado& e, Superficie& sup) {
    e.CursorGrafica += sup.TextHeight("C") * 1.5;
}

std::string Redondeado(const Estado& e, double x, int d) {
    return TextoGeneral(Round(x, d), e.SeparadorDecimal);
}
}  // namespace

void DibujarBarra(const Estado& e, Superficie& sup, double X, double Y, double Ancho, double Alto,
                  double Valor, int Decimales, std::string_view Sufijo, std::string_view Etiqueta,
                  int32_t Color) {
    sup.SetFillColor(Color);
    sup.LineBox(F(X), F(Y), F(X + Ancho), F(Y - Alto), Color);
    Imprimir(sup, X, Y - Alto - 1.2 * sup.TextHeight(Etiqueta),
             Redondeado(e, Valor, Decimales) + std::string(Sufijo));
    Imprimir(sup, X, Y + 0.5 * sup.TextHeight(Etiqueta), Etiqueta);
}

void GraficaAire(Estado& e, Superficie& pct1) {
    pct1.Cls();
    pct1.Scale(0, 0, 7, 115);
    pct1.SetFillStyle(kRellenoSolido);
    const struct {
        const char* etiqueta;
        double fraccion;
        double x;
        int32_t color;
    } barras[] = {
        {"Ar", e.xArAire, 3.3, kColorAr},    {"CO2", e.xCO2Aire, 2.5, kColorCO2},
        {"H2O", e.xH2OAire, 1.7, kColorH2O}, {"N2", e.xN2Aire, 0.9, kColorN2},
        {"O2", e.xO2Aire, 0.1, kColorO2},
    };
    for (const auto& b : barras)
        DibujarBarra(e, pct1, b.x, 99, 0.78, b.fraccion * 100, b.fraccion * 100, 2, " %", b.etiqueta,
                     b.color);

    Imprimir(pct1, 0.08, 0.1,
             " AIRE (ISA)   " + TextoGeneral(e.Humedad, e.SeparadorDecimal) +
                 " % humedad relativa   (valores gráfica en fracción molar)");
    e.CursorGrafica = pct1.TextHeight("C") * 1.5 + 0.08;
    ImprimirDentro(pct1, 3.4, e.CursorGrafica,
                   "Masa molecular = " + Redondeado(e, e.MasaMolecularAire, 5) + " kg/mol");
    SiguienteLinea(e, pct1);
    ImprimirDentro(pct1, 3.4, e.CursorGrafica,
                   "Temperatura ambiente = " + TextoGeneral(e.Tambiente, e.SeparadorDecimal) + "   K");
    SiguienteLinea(e, pct1);
    ImprimirDentro(pct1, 3.4, e.CursorGrafica,
                   "Presión ambiente " + TextoGeneral(e.Pambiente, e.SeparadorDecimal) + " Pa");
    SiguienteLinea(e, pct1);
    ImprimirDentro(pct1, 3.4, e.CursorGrafica,
                   "Presión de saturación del H2O = " + Redondeado(e, e.Psaturacion, 0) + " Pa");
}

void GraficaCombustible(Estado& e, Superficie& pct2, std::string_view tipoCombustible) {
    pct2.Cls();
    pct2.Scale(0, 0, 10, 140);
    pct2.SetFillStyle(kRellenoSolido);
    // The N bar alone shows its percentage times 100, in height and in value.
    const struct {
        const char* etiqueta;
        double x;
        double valor;
        int32_t color;
    } barras[] = {
        {"C", 0.5, e.CienC, kColorCO2}, {"H", 1.5, e.CienH, kColorH2O}, {"N", 2.5, e.CienN * 100, kColorN2},
        {"O", 3.5, e.CienO, kColorO2},  {"S", 4.5, e.CienS, kColorS},
    };
    for (const auto& b : barras)
        DibujarBarra(e, pct2, b.x, 120, 1, b.valor, b.valor, 2, " %", b.etiqueta, b.color);

    Imprimir(
        pct2, 0.08, 0.1,
        " COMBUSTIBLE  (valores gráfica en % masa)" + std::string(7, ' ') + std::string(tipoCombustible));

    // The formula: each count printed with only CurrentX set, one line lower,
    // as a subscript. The step after N adds the width of the H count.
    const std::string vC = Redondeado(e, e.AtomosC, 2), vH = Redondeado(e, e.AtomosH, 2),
                      vN = Redondeado(e, e.AtomosN, 2), vO = Redondeado(e, e.AtomosO, 2),
                      vS = Redondeado(e, e.AtomosS, 2);
    auto subindice = [&](double x, const std::string& v) {
        pct2.SetCurrentX(F(x));
        pct2.Print(v);
    };
    Imprimir(pct2, 5.8, 20, "C");
    subindice(5.8 + pct2.TextWidth("C"), vC);
    e.PosicionFormula = 5.8 + pct2.TextWidth(" C ") + pct2.TextWidth(vC);

    Imprimir(pct2, e.PosicionFormula, 20, "  H");
    e.PosicionFormula += pct2.TextWidth("H");
    subindice(e.PosicionFormula, vH);
    e.PosicionFormula += pct2.TextWidth(vH);

    Imprimir(pct2, e.PosicionFormula, 20, "   N");
    e.PosicionFormula += pct2.TextWidth("  N");
    subindice(e.PosicionFormula, vN);
    e.PosicionFormula += pct2.TextWidth(vH);

    Imprimir(pct2, e.PosicionFormula, 20, "  O");
    e.PosicionFormula += pct2.TextWidth(" O");
    subindice(e.PosicionFormula, vO);
    e.PosicionFormula += pct2.TextWidth(vO);

    Imprimir(pct2, e.PosicionFormula, 20, "  S");
    e.PosicionFormula += pct2.TextWidth(" S");
    subindice(e.PosicionFormula, vS);

    ImprimirDentro(pct2, 5.8, 50,
                   "HCI = " + Format(e.HCI, "### ### ### ### ###", e.SeparadorDecimal) + "   J / kg");
    ImprimirDentro(
        pct2, 5.8, pct2.TextHeight("HCI") * 1.5 + 50,
        "Mcombustible = " + TextoGeneral(e.MasaMolecularCombustible, e.SeparadorDecimal) + " kg / mol ");
}

void GraficaHumos(Estado& e, Superficie& pct3) {
    pct3.Cls();
    pct3.SetScaleHeight(115);
    pct3.SetScaleWidth(12);
    pct3.SetFillStyle(kRellenoSolido);
    const struct {
        const char* etiqueta;
        double fraccion;
        double x;
        int32_t color;
    } barras[] = {
        {" Ar", e.xArHumos, 0.08, kColorAr},    {" CO", e.xCOHumos, 1.08, kColorCO},
        {" CO2", e.xCO2Humos, 2.08, kColorCO2}, {" H2O", e.xH2OHumos, 3.08, kColorH2O},
        {" N2", e.xN2Humos, 4.08, kColorN2},    {" O2", e.xO2Humos, 5.08, kColorO2},
        {" S", e.xSHumos, 6.08, kColorS},       {" SO2", e.xSO2Humos, 7.08, kColorSO2},
    };
    for (const auto& b : barras)
        DibujarBarra(e, pct3, b.x, 102, 1, b.fraccion * 100, b.fraccion * 100, 1, " %", b.etiqueta, b.color);

    Imprimir(pct3, 0.08, 0.1, "  GASES DE COMBUSTIÓN  (valores gráfica en fracción molar)");
    e.CursorGrafica = pct3.TextHeight("C") * 1.5 + 0.08;
    ImprimirDentro(pct3, 6.5, e.CursorGrafica,
                   "Fr = " + Redondeado(e, e.Fr, 2) + "     Lambda = " + Redondeado(e, 1 / e.Fr, 2));
    SiguienteLinea(e, pct3);
    ImprimirDentro(
        pct3, 6.5, e.CursorGrafica,
        "HCI (humos) = " + Format(e.HCIhumos, "### ### ### ### ###", e.SeparadorDecimal) + "   J / kg");
    SiguienteLinea(e, pct3);
    ImprimirDentro(pct3, 6.5, e.CursorGrafica,
                   "M humos = " + Redondeado(e, e.MasaMolecularHumos, 5) + " kg / mol  ");
    SiguienteLinea(e, pct3);
    ImprimirDentro(pct3, 6.5, e.CursorGrafica,
                   "Fe = " + Redondeado(e, e.Fe, 6) + " kg combustible / kg aire  ");
}

}  // namespace vanta
