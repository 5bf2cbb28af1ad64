// The property tables: whole texts against the notation of their rows, the
// walk of the temperatures in single precision, the species ranges, and the
// refusals that keep a table from running away.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "core/services/Numeros.h"
#include "core/tables/TablasPropiedades.h"

using namespace vanta;

namespace {

// The tool's window with plain controls, as it starts.
struct Herramienta {
    Estado e;
    DialogosGrabados dlg;
    CajaTextoSimple txtAT{kTextoIncremento}, txtTinicial{kTextoTinicial}, txtTfinal{kTextoTfinal};
    CajaTextoSimple cboElemento{kTextoElegir};
    InterruptorSimple optMol{true}, optKg{false}, optAire{true}, optHumos{false};
    ControlesHerramientas c{.txtAT = txtAT,
                            .txtTinicial = txtTinicial,
                            .txtTfinal = txtTfinal,
                            .optMol = optMol,
                            .optKg = optKg,
                            .optAire = optAire,
                            .optHumos = optHumos,
                            .cboElemento = cboElemento};
    MiembrosHerramientas m;
    VisorTablasTexto v;

    Herramienta() {}

    void Rango(const char* desde, const char* hasta, const char* paso) {
        txtTinicial.SetText(desde), txtTfinal.SetText(hasta), txtAT.SetText(paso);
    }
    void PorKg() { optMol.SetValue(false), optKg.SetValue(true); }
    void Gases() { optAire.SetValue(false), optHumos.SetValue(true); }

    // The comburent, the fuel and the gases of the screens' first values.
    void FluidoDeLasPantallas() {
        SuperficieNula pct1, pct2, pct3;
        DiagramasNulos d;
        SuperficiesCalculo s{pct1, pct2, pct3, d.Todos()};
        ASSERT_TRUE(DefinirFluido(e, *cli::ParsearCalcular({}).opciones, dlg, s, true));
    }

    bool Mezcla() { return cmdTablas_Click(e, dlg, c, m, v, "Gasolina"); }
    bool Especie(const char* nombre) {
        cboElemento.SetText(nombre);
        return cmdTab_Click(e, dlg, c, m, v);
    }
    std::vector<std::string> Filas() const;
};

// The data lines of a text: each the line after a " ".
std::vector<std::string> Filas(const std::string& texto) {
    std::vector<std::string> filas;
    size_t i = 0;
    while ((i = texto.find(" \r\n", i)) != std::string::npos) {
        i += 3;
        filas.push_back(texto.substr(i, texto.find("\r\n", i) - i));
    }
    return filas;
}
std::vector<std::string> Herramienta::Filas() const {
    return ::Filas(v.texto);
}

// The first figure of a row: its temperature.
std::string Temperatura(const std::string& fila) {
    const size_t i = fila.find_first_not_of(' ');
    return fila.substr(i, fila.find(' ', i) - i);
}

// The figures of a row after its temperature. Two blanks or more part them;
// a single blank is a blank of a mask, inside a figure.
std::vector<double> Cifras(const std::string& fila) {
    std::vector<double> cifras;
    size_t i = fila.find(' ', fila.find_first_not_of(' '));
    while ((i = fila.find_first_not_of(' ', i)) != std::string::npos) {
        const size_t fin = std::min(fila.find("  ", i), fila.size());
        std::string cifra;
        for (char ch : fila.substr(i, fin - i))
            if (ch != ' ') cifra += ch;
        cifras.push_back(std::stod(cifra));
        i = fin;
    }
    return cifras;
}

std::string B(int n) {
    return std::string(static_cast<size_t>(n), ' ');
}
std::string V(double x, int d, const char* mascara) {
    return Format(Round(x, d), mascara, '.');
}

// A mixture row told piece by piece as the notation gives it.
std::string FilaMezcla(double T, double cp, int dcp, const char* mcp, double h, double s0, const char* ms0,
                       double gamma) {
    return " \r\n" + B(10) + TextoGeneral(T, '.') + B(10) + V(cp, dcp, mcp) + B(13) +
           V(h, 2, "### ### ##0.00") + B(18) + V(s0, 3, ms0) + B(18) + V(gamma, 4, "### ### ##0.0000") +
           "\r\n" + B(4);
}

// Cp, h and s0 of a species by its polynomials, written here in Horner form.
struct Propiedades {
    double cp, h, s0;
};
Propiedades Polinomios(const Coeficientes& k, double T) {
    const double cp = kR * (k.a1 + T * (k.a2 + T * (k.a3 + T * (k.a4 + T * k.a5))));
    const double h =
        kR * (T * (k.a1 + T * (k.a2 / 2 + T * (k.a3 / 3 + T * (k.a4 / 4 + T * k.a5 / 5)))) + k.a6);
    const double s0 =
        kR * (k.a1 * std::log(T) + T * (k.a2 + T * (k.a3 / 2 + T * (k.a4 / 3 + T * k.a5 / 4))) + k.a7);
    return {cp, h, s0};
}

const std::string kCabeceraMol =
    "   T (K)            cp (J/mol)             h Total (J/mol)          S0 (J/(mol·K))             "
    "Gamma\r\n    ";

}  // namespace

// ---- Mixture tables ----------------------------------------------------------

TEST(TablasMezclaTest, AirPerMoleIsTheHeadingAndOneRowPerTemperatureFromTheState) {
    Herramienta t;
    t.FluidoDeLasPantallas();
    t.Rango("900", "1100", "100");
    Herramienta r;  // the same evaluations, replayed
    r.FluidoDeLasPantallas();
    ASSERT_TRUE(t.Mezcla());
    EXPECT_TRUE(t.v.visible);

    std::string esperado = "     Aire con 0 % de humedad\r\n\r\n" + kCabeceraMol;
    for (double T : {900.0, 1000.0, 1100.0}) {
        r.e.Temperatura = T;
        PropiedadesAire(r.e, r.dlg);
        esperado += FilaMezcla(T, r.e.CpAire, 4, "### ### ##0.0000", r.e.hAire, r.e.S0Aire, "### ### ##0.000",
                               r.e.Gamma);
    }
    EXPECT_EQ(t.v.texto, esperado);
    // The heading, then one piece per row, so that the viewer shows it growing.
    EXPECT_EQ(t.v.piezas, 4);
    EXPECT_TRUE(t.dlg.mensajes.empty());

    // The last row stays in the state for whoever reads it next.
    EXPECT_EQ(t.e.Temperatura, 1100.0);
    EXPECT_EQ(t.e.CpAire, r.e.CpAire);
    EXPECT_EQ(t.e.hAire, r.e.hAire);
    EXPECT_EQ(t.e.S0Aire, r.e.S0Aire);
}

TEST(TablasMezclaTest, OneAirRowAsTheUserReadsIt) {
    Herramienta t;
    t.FluidoDeLasPantallas();
    t.Rango("300", "300", "100");
    ASSERT_TRUE(t.Mezcla());
    EXPECT_EQ(t.v.texto,
              "     Aire con 0 % de humedad\r\n\r\n" + kCabeceraMol +
                  " \r\n          300            29.0979               53.83                    198.893     "
                  "               1.4000\r\n    ");
}

TEST(TablasMezclaTest, GasesPerKilogramDivideByTheAirsMassAndShowTheEntropyWithTwoDecimals) {
    Herramienta t;
    t.FluidoDeLasPantallas();
    t.Gases();
    t.PorKg();
    t.Rango("900", "1100", "100");
    ASSERT_NE(t.e.MasaMolecularHumos, t.e.MasaMolecularAire);
    Herramienta r;
    r.FluidoDeLasPantallas();
    ASSERT_TRUE(t.Mezcla());

    std::string esperado =
        "     Aire con 0 % de humedad      Combustible: Gasolina      Fr = 1\r\n\r\n"
        "   T (K)            cp (J/kg)             h Total (J/kg)          S0 (J/(kg·K))             "
        "Gamma\r\n    ";
    const double M = r.e.MasaMolecularAire;
    for (double T : {900.0, 1000.0, 1100.0}) {
        r.e.Temperatura = T;
        PropiedadesHumos(r.e, r.dlg);
        esperado += FilaMezcla(T, r.e.CpHumos / M, 2, "### ### ##0.00", r.e.hHumos / M, r.e.S0Humos / M,
                               "### ### ##0.00", r.e.Gamma);
    }
    EXPECT_EQ(t.v.texto, esperado);
}

TEST(TablasMezclaTest, TheHeadingCarriesHumidityFuelAndFrUnrounded) {
    Herramienta t;
    t.e.Humedad = 62.5;
    t.e.Fr = 1.0 / 1.2;
    t.Gases();
    t.Rango("300", "200", "100");  // the first temperature less a step is past the end: no rows
    ASSERT_TRUE(t.Mezcla());
    EXPECT_EQ(
        t.v.texto,
        "     Aire con 62.5 % de humedad      Combustible: Gasolina      Fr = 0.833333333333333\r\n\r\n" +
            kCabeceraMol);
}

TEST(TablasMezclaTest, PastTheLimitOfTheModelTheRowsRepeatTheLastValues) {
    Herramienta t;
    t.FluidoDeLasPantallas();
    t.Rango("7400", "7700", "100");
    ASSERT_TRUE(t.Mezcla());
    const auto filas = t.Filas();
    ASSERT_EQ(filas.size(), 4u);
    // 7500 passes; 7600 trips the limit once, and the walk goes on with the
    // values of 7500.
    ASSERT_EQ(t.dlg.mensajes.size(), 1u);
    EXPECT_NE(t.dlg.mensajes[0].find("5000 K"), std::string::npos);
    EXPECT_EQ(t.e.ErrorCalculo, Verdadero);
    EXPECT_EQ(Temperatura(filas[3]), "7700");
    EXPECT_EQ(Cifras(filas[2]), Cifras(filas[1]));
    EXPECT_EQ(Cifras(filas[3]), Cifras(filas[1]));
    EXPECT_NE(Cifras(filas[1]), Cifras(filas[0]));
}

TEST(TablasMezclaTest, AnAirNeverCalculatedIsToldAndNeverPrintsNaN) {
    Herramienta t;  // the comburent button pressed, its window closed unused
    t.PorKg();
    t.Rango("300", "500", "100");
    EXPECT_FALSE(t.Mezcla());
    ASSERT_FALSE(t.dlg.mensajes.empty());
    EXPECT_EQ(t.e.ErrorCalculo, Verdadero);
    for (const std::string& f : t.Filas()) {
        EXPECT_EQ(f.find("nan"), std::string::npos);
        EXPECT_EQ(f.find("inf"), std::string::npos);
    }
}

// ---- The walk of the temperatures --------------------------------------------

TEST(TablasRecorridoTest, TheLastRowIsTheFirstTemperatureToReachTheEnd) {
    struct Caso {
        const char *desde, *hasta, *paso;
        size_t filas;
        const char *primera, *ultima;
    };
    for (const Caso& caso :
         {Caso{"300", "5000", "100", 48, "300", "5000"}, Caso{"300", "5000", "150", 33, "300", "5100"},
          Caso{"500", "500", "100", 1, "500", "500"}, Caso{"2000", "1000", "100", 0, "", ""},
          Caso{"300", "5000", "1000", 6, "300", "5300"}}) {
        Herramienta t;
        t.Rango(caso.desde, caso.hasta, caso.paso);
        ASSERT_TRUE(t.Especie("N2")) << caso.paso;
        const auto filas = t.Filas();
        ASSERT_EQ(filas.size(), caso.filas) << caso.desde << " " << caso.hasta << " " << caso.paso;
        if (filas.empty()) continue;
        EXPECT_EQ(Temperatura(filas.front()), caso.primera);
        EXPECT_EQ(Temperatura(filas.back()), caso.ultima);
    }
}

TEST(TablasRecorridoTest, ASmallStepShowsTheStrayDigitsOfSinglePrecision) {
    Herramienta t;
    t.Rango("300", "300.3", "0.1");
    ASSERT_TRUE(t.Especie("O2"));
    std::vector<std::string> temperaturas;
    for (const auto& f : t.Filas()) temperaturas.push_back(Temperatura(f));
    // 300 − 0.1 in single precision, then 0.1 in single precision added to a
    // double: the first row is not 300, and the walk ends on the first
    // temperature whose single value reaches 300.3.
    EXPECT_EQ(temperaturas, (std::vector<std::string>{"299.999993897974", "300.099993899465",
                                                      "300.199993900955", "300.299993902445"}));
    EXPECT_EQ(t.e.Temperatura, 299.899993896484375 + 4 * static_cast<double>(0.1f));
}

TEST(TablasEspeciesTest, At1000KTheLowSetGivesTheWorkedValues) {
    // cp of H2O, h of CO2 and s0 of N2 at 1000 K with the low coefficients.
    struct Caso {
        const char* especie;
        size_t columna;
        std::string valor;
    };
    for (const Caso& caso :
         {Caso{"H2O", 0, "41.2146"}, Caso{"CO2", 2, "33 396.53"}, Caso{"N2", 3, "228.057"}}) {
        Herramienta t;
        t.Rango("1000", "1000", "1");
        ASSERT_TRUE(t.Especie(caso.especie));
        const auto filas = t.Filas();
        ASSERT_EQ(filas.size(), 1u);
        EXPECT_NE(filas[0].find(caso.valor), std::string::npos) << filas[0];
        EXPECT_EQ(t.v.texto.substr(0, t.v.texto.find("\r\n")), caso.especie);
    }
}

TEST(TablasEspeciesTest, WholeTableOfCOAcrossTheRangesPerMoleAndPerKilogram) {
    // 999, 1000 (low set) and 1001 (high set): the jump of cp of CO shows.
    for (bool kg : {false, true}) {
        Herramienta t;
        if (kg) t.PorKg();
        t.Rango("999", "1001", "1");
        ASSERT_TRUE(t.Especie("CO"));
        std::string esperado =
            "CO\r\n    " +
            std::string(kg ? "   T (K)            cp (J/kg)              cv (J/kg)             h "
                             "Total (J/kg)          S0 (J/(kg·K))             Gamma"
                           : "   T (K)            cp (J/mol)            cv (J/mol)             h "
                             "Total (J/mol)          S0 (J/(mol·K))             Gamma") +
            "\r\n    ";
        const double M = kg ? 0.028011 : 1.0;
        for (double T : {999.0, 1000.0, 1001.0}) {
            const Propiedades p = Polinomios(T <= 1000 ? kCoeficientesBaja[CO] : kCoeficientesAlta[CO], T);
            const char* m = kg ? "### ### ##0.00" : "### ### ##0.0000";
            const int d = kg ? 2 : 4;
            esperado += " \r\n" + B(7) + TextoGeneral(T, '.') + B(10) + V(p.cp / M, d, m) + B(10) +
                        V((p.cp - 8.3143) / M, d, m) + B(14) + V(p.h / M, 2, "### ### ##0.00") + B(18) +
                        V(p.s0 / M, 3, "### ### ##0.000") + B(18) +
                        V(p.cp / (p.cp - 8.3143), 4, "### ### ##0.0000") + "\r\n" + B(4);
        }
        EXPECT_EQ(t.v.texto, esperado) << (kg ? "kg" : "mol");
        EXPECT_EQ(t.e.Temperatura, 1001.0);
    }
}

TEST(TablasEspeciesTest, JustAbove1000TheHighSetIsUsed) {
    Herramienta t;
    t.Rango("1000", "1000", "0.001");  // one row, at 1000 plus the stray digits of the step
    ASSERT_TRUE(t.Especie("CO"));
    const auto filas = t.Filas();
    ASSERT_EQ(filas.size(), 1u);
    EXPECT_EQ(Temperatura(filas[0]), "1000.00002343755");
    const double T = t.e.Temperatura;
    ASSERT_GT(T, 1000.0);
    const double alta = Polinomios(kCoeficientesAlta[CO], T).cp,
                 baja = Polinomios(kCoeficientesBaja[CO], T).cp;
    ASSERT_NE(V(alta, 4, "0.0000"), V(baja, 4, "0.0000"));
    EXPECT_EQ(Cifras(filas[0])[0], std::stod(V(alta, 4, "0.0000")));
}

TEST(TablasEspeciesTest, ATextThatIsNoSpeciesIsToldWhenTheFirstRowIsDue) {
    for (const char* texto : {"Elegir", "n2", "Helio", ""}) {
        Herramienta t;
        EXPECT_FALSE(t.Especie(texto));
        EXPECT_EQ(t.dlg.mensajes, std::vector<std::string>{"Elija un elemento de la lista"}) << texto;
        EXPECT_FALSE(t.v.visible);
        EXPECT_TRUE(t.Filas().empty());
    }
    // With no row due, the heading stands under the text, and nothing is said.
    Herramienta t;
    t.Rango("600", "500", "100");
    EXPECT_TRUE(t.Especie("Elegir"));
    EXPECT_TRUE(t.dlg.mensajes.empty());
    EXPECT_EQ(t.v.texto.substr(0, 10), "Elegir\r\n  ");
}

// ---- Refusals ------------------------------------------------------------------

TEST(TablasRechazosTest, ARangeThatNeverEndsOrCannotBeWalkedIsRefusedWithNoRows) {
    struct Caso {
        const char *desde, *hasta, *paso, *mensaje;
    };
    const std::string muchos(40, '9');
    for (const Caso& caso :
         {Caso{"300", "5000", "0", "mayor que 0 K"}, Caso{"300", "5000", "-100", "mayor que 0 K"},
          Caso{"300", "5000", "0.000001", "1 000 000 filas"}, Caso{"300", muchos.c_str(), "100", "finitos"},
          Caso{"0", "500", "100", "primera temperatura"},
          Caso{"-300", "500", "100", "primera temperatura"}}) {
        for (bool especie : {false, true}) {
            Herramienta t;
            t.FluidoDeLasPantallas();
            t.Rango(caso.desde, caso.hasta, caso.paso);
            EXPECT_FALSE(especie ? t.Especie("N2") : t.Mezcla());
            ASSERT_EQ(t.dlg.mensajes.size(), 1u) << caso.paso;
            EXPECT_NE(t.dlg.mensajes[0].find(caso.mensaje), std::string::npos) << t.dlg.mensajes[0];
            EXPECT_EQ(t.e.ErrorCalculo, Verdadero);
            EXPECT_TRUE(t.Filas().empty());
            EXPECT_FALSE(t.v.visible);
        }
    }
}

TEST(TablasRechazosTest, ARefusedNumberIsToldByItsFieldNameAndMakesNoTable) {
    Herramienta t;
    t.FluidoDeLasPantallas();
    t.Rango("trescientos", "", "1O0");
    EXPECT_FALSE(t.Mezcla());
    EXPECT_EQ(t.dlg.mensajes, (std::vector<std::string>{" incremento de T no es un número",
                                                        " Temperatura inicialno es un número",
                                                        " temperatura final no es un número"}));
    EXPECT_EQ(t.txtAT.focos, 1);
    EXPECT_TRUE(t.Filas().empty());
    EXPECT_FALSE(t.v.visible);

    // The members keep what they last read.
    Herramienta u;
    u.Rango("300", "400", "100");
    ASSERT_TRUE(u.Especie("O2"));
    u.txtAT.SetText("x");
    EXPECT_FALSE(u.Especie("O2"));
    EXPECT_EQ(u.m.AT, 100.0f);
}
