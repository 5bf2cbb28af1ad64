#include <gtest/gtest.h>

#include <algorithm>

#include "core/fluids/Graficas.h"
#include "core/services/Numeros.h"

using namespace vanta;

namespace {
bool Contiene(const std::vector<std::string>& v, const std::string& s) {
    return std::find(v.begin(), v.end(), s) != v.end();
}
}  // namespace

TEST(GraficaAireTest, BarsValuesAndFiguresStandWhereTold) {
    Estado e;
    e.xN2Aire = 0.78087, e.xO2Aire = 0.20946, e.xArAire = 0.00934, e.xCO2Aire = 0.00033;
    e.Humedad = 0, e.MasaMolecularAire = 0.0289652, e.Tambiente = 300, e.Pambiente = 100000,
    e.Psaturacion = 3543.6;
    SuperficieGrabada s;  // text 1 unit high, 0.1 a character
    GraficaAire(e, s);
    const auto& l = s.llamadas;
    EXPECT_EQ(l[0], "Cls");
    EXPECT_EQ(l[1], "Scale 0 0 7 115");
    // The dry air's H2O bar has no height and still shows its value and label.
    EXPECT_TRUE(Contiene(l, "Box 1.7 99 2.48 99 #C0C0FF"));
    EXPECT_TRUE(Contiene(l, "Print 1.7 97.8 \"0 %\""));
    EXPECT_TRUE(Contiene(l, "Print 1.7 99.5 \"H2O\""));
    EXPECT_TRUE(Contiene(l, "Print 0.9 19.713 \"78.09 %\""));
    EXPECT_TRUE(Contiene(
        l, "Print 0.08 0.1 \" AIRE (ISA)   0 % humedad relativa   (valores gráfica en fracción molar)\""));
    EXPECT_TRUE(Contiene(l, "Print 3.4 1.58 \"Masa molecular = 0.02897 kg/mol\""));
    EXPECT_TRUE(Contiene(l, "Print 3.4 3.08 \"Temperatura ambiente = 300   K\""));
    EXPECT_TRUE(Contiene(l, "Print 3.4 4.58 \"Presión ambiente 100000 Pa\""));
    EXPECT_TRUE(Contiene(l, "Print 3.4 6.08 \"Presión de saturación del H2O = 3544 Pa\""));
}

TEST(GraficaCombustibleTest, NitrogenBarIsAHundredfoldAndTheFormulaStepsByTheHydrogenCount) {
    Estado e;
    e.CienC = 86.0, e.CienH = 13.2, e.CienN = 0.5, e.CienO = 0.2, e.CienS = 0.1;
    e.AtomosC = 11, e.AtomosH = 19, e.AtomosN = 0.073, e.AtomosO = 0.063, e.AtomosS = 0.032;
    e.HCI = 42900000, e.MasaMolecularCombustible = 0.15448;
    SuperficieGrabada s;
    GraficaCombustible(e, s, "Gasoil");
    const auto& l = s.llamadas;
    EXPECT_TRUE(Contiene(l, "Print 2.5 68.8 \"50 %\""));  // 0.5 % shown as 50 %
    EXPECT_TRUE(Contiene(l, "Print 0.08 0.1 \" COMBUSTIBLE  (valores gráfica en % masa)       Gasoil\""));
    EXPECT_TRUE(Contiene(l, "Print 5.8 20 \"C\""));
    EXPECT_TRUE(Contiene(l, "Print 5.9 21 \"11\""));  // the count one line lower
    // PosicionFormula = 5.8 + width(" C ") + width("11") = 6.3; then "  H" there.
    EXPECT_TRUE(Contiene(l, "Print 6.3 20 \"  H\""));
    EXPECT_TRUE(Contiene(l, "Print 6.4 21 \"19\""));
    EXPECT_TRUE(Contiene(l, "Print 6.6 20 \"   N\""));
    EXPECT_TRUE(Contiene(l, "Print 6.9 21 \"0.07\""));
    // After N the step is the width of "19", not of "0.07".
    EXPECT_TRUE(Contiene(l, "Print 7.1 20 \"  O\""));
    EXPECT_TRUE(Contiene(l, "Print 5.8 50 \"HCI =   42 900 000   J / kg\""));
    EXPECT_TRUE(Contiene(l, "Print 5.8 51.5 \"Mcombustible = 0.15448 kg / mol \""));
}

TEST(GraficaHumosTest, ScalesBySizeAndComputesLambdaItself) {
    Estado e;
    e.Fr = 0.8, e.xN2Humos = 0.75, e.HCIhumos = 44000000, e.MasaMolecularHumos = 0.0288, e.Fe = 0.0667;
    SuperficieGrabada s;
    s.Scale(1, 2, 3, 4);
    GraficaHumos(e, s);
    EXPECT_FLOAT_EQ(s.ScaleLeft(), 1);  // origin untouched
    EXPECT_FLOAT_EQ(s.ScaleHeight(), 115);
    EXPECT_FLOAT_EQ(s.ScaleWidth(), 12);
    const auto& l = s.llamadas;
    EXPECT_TRUE(Contiene(l, "Print 4.08 102.5 \" N2\""));
    EXPECT_TRUE(Contiene(l, "Print 6.5 1.58 \"Fr = 0.8     Lambda = 1.25\""));
    EXPECT_TRUE(Contiene(l, "Print 6.5 3.08 \"HCI (humos) =   44 000 000   J / kg\""));
    EXPECT_TRUE(Contiene(l, "Print 6.5 6.08 \"Fe = 0.0667 kg combustible / kg aire  \""));
}
