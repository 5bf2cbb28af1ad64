// The gates between numbers and text: the masks, the rounding to even, the
// general conversion and the numeric test of the boxes, as tables of cases.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/services/Numeros.h"

using namespace vanta;

TEST(Numeros, LasMascarasDejanSusBlancosYRedondeanLejosDelCero) {
    const struct {
        double x;
        const char* mascara;
        char separador;
        const char* texto;
    } casos[] = {
        {101325, "### ### ### ### ###", '.', "   101 325"},
        {293.15, "### ### ### ### ##0.00", '.', "    293.15"},
        {21.5, "##0.00", '.', "21.50"},
        {0.028964, "# ##0.0## ###", '.', " 0.028 964"},
        {0, "### ### ### ### ###", '.', "    "},
        {1234567.8, "### ### ##0.0", '.', "1 234 567.8"},
        {1, "0.0##", '.', "1.0"},
        {0.833, "0.0##", '.', "0.833"},
        {0, "### ### ##0.0##", '.', "  0.0"},
        {0.5, "# ##0.0## ###", '.', " 0.5 "},
        {0.0000037, "### ### ##0.0## ### ###", '.', "  0.000 003 7"},
        {0.125, "0.00", '.', "0.13"},
        {-0.125, "0.00", '.', "-0.13"},
        {9.9996, "##0.000", '.', "10.000"},
        {12345678901.0, "### ### ##0", '.', "12345 678 901"},
        {-5.3, "### ##0.00", '.', "- 5.30"},
        {-20.15, "### ### ### ##0.00", '.', "-   20.15"},
        {-0.001, "0.00", '.', "0.00"},
        {293.15, "##0.00", ',', "293,15"},
        {14.96, "### ### ##00", '.', "  15"},
        {std::numeric_limits<double>::quiet_NaN(), "##0.00", '.', "N.D."},
        {-std::numeric_limits<double>::infinity(), "##0", '.', "N.D."},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Format(c.x, c.mascara, c.separador), c.texto) << c.x << " " << c.mascara;
}

TEST(Numeros, RoundLlevaLosEmpatesAlVecinoPar) {
    const struct {
        double x;
        int d;
        double r;
    } casos[] = {{2.5, 0, 2},      {3.5, 0, 4},           {-2.5, 0, -2},       {0.125, 2, 0.12},
                 {0.375, 2, 0.38}, {2.675, 2, 2.67},      {1.0 / 3, 3, 0.333}, {-1234.5678, 1, -1234.6},
                 {14.96, 1, 15},   {100001.5, 0, 100002}, {298.5, 0, 298}};
    for (const auto& c : casos) EXPECT_EQ(Round(c.x, c.d), c.r) << c.x << " " << c.d;
}

TEST(Numeros, LaConversionGeneralDaQuinceCifrasYPasaAExponente) {
    const struct {
        double x;
        char separador;
        const char* texto;
    } casos[] = {
        {1.0, '.', "1"},
        {8.5, ',', "8,5"},
        {-0.25, '.', "-0.25"},
        {0.1 + 0.2, '.', "0.3"},
        {1.0 / 3, '.', "0.333333333333333"},
        {0.00001, '.', "0.00001"},
        {0.000001, '.', "1E-06"},
        {0.0000015, ',', "1,5E-06"},
        {1.5e15, '.', "1.5E+15"},
        {999999999999999.0, '.', "999999999999999"},
        {1e15, '.', "1E+15"},
        {9e9, '.', "9000000000"},
        {-1e-300, '.', "-1E-300"},
        {-0.0, '.', "0"},
        {std::numeric_limits<double>::infinity(), '.', "N.D."},
    };
    for (const auto& c : casos) EXPECT_EQ(TextoGeneral(c.x, c.separador), c.texto) << c.x;
    EXPECT_EQ(TextoGeneral(Variante(" N.D."), '.'), " N.D.");
    EXPECT_EQ(TextoGeneral(Variante(1.25), ','), "1,25");
    EXPECT_EQ(TextoGeneral(Variante(), '.'), "");
}

TEST(Numeros, LasCajasLeenConPuntoOConComaYRechazanLoDemas) {
    const struct {
        const char* texto;
        double valor;
    } leidos[] = {{"1.39", 1.39},   {"1,39", 1.39},  {"1.234,5", 1.234}, {"1.234.567", 1.234},
                  {" -300 ", -300}, {"+7", 7},       {",5", 0.5},        {"2.", 2},
                  {"1e5", 1e5},     {"1,5E3", 1500}, {"1e308", 1e308}};
    for (const auto& c : leidos) EXPECT_EQ(LeerNumero(c.texto), c.valor) << c.texto;
    for (const char* t : {"", "   ", "-", "abc", "1a", "nan", "inf", "1,2,3", "1..2", "1.2.3,4,5", "1e",
                          "1e400", "1,234.5", "12.34.56", "--1", "1 2", "0x10"})
        EXPECT_FALSE(LeerNumero(t).has_value()) << '"' << t << '"';
}

TEST(Numeros, ValidarNumeroDiceElNombreGuardaElValorYNuncaBorraElFallo) {
    Estado e;
    Mensajes m;
    double destino = 7;
    ValidarNumero(e, m, "doce", destino, "Cilindrada", {"cilindrada"});
    ValidarNumero(e, m, "doce", destino, " Presión máxima ", {"pmax"});
    EXPECT_EQ(m.Textos(),
              (std::vector<std::string>{"Cilindradano es un número", " Presión máxima no es un número"}));
    EXPECT_EQ(m.lista[0].entrada.nombre, "cilindrada");
    EXPECT_EQ(destino, 7);
    EXPECT_EQ(m.foco.nombre, "pmax");
    ValidarNumero(e, m, "1,23", destino, " n ", {"n-expansion"});
    EXPECT_EQ(destino, 1.23);
    EXPECT_EQ(m.foco.nombre, "pmax");
    EXPECT_EQ(e.ErrorCalculo, true);
    EXPECT_EQ(m.lista.size(), 2u);
}
