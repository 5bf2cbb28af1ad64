#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/services/Numeros.h"

using namespace vanta;

namespace {
struct SeparadorPunto : ::testing::Test {
    void SetUp() override {}
};
}  // namespace

using FormatTest = SeparadorPunto;

TEST_F(FormatTest, WorkedCasesKeepTheirBlanks) {
    EXPECT_EQ(Format(101325, "### ### ### ### ###", '.'), "   101 325");
    EXPECT_EQ(Format(293.15, "### ### ### ### ##0.00", '.'), "    293.15");
    EXPECT_EQ(Format(21.5, "##0.00", '.'), "21.50");
    EXPECT_EQ(Format(0.028964, "# ##0.0## ###", '.'), " 0.028 964");
    EXPECT_EQ(Format(0, "### ### ### ### ###", '.'), "    ");
    EXPECT_EQ(Format(1234567.8, "### ### ##0.0", '.'), "1 234 567.8");
    EXPECT_EQ(Format(Round(14.96, 1), "### ### ##00", '.'), "  15");
}

TEST_F(FormatTest, DigitPlacesAndTrailingHashes) {
    EXPECT_EQ(Format(1, "0.0##", '.'), "1.0");
    EXPECT_EQ(Format(0.833, "0.0##", '.'), "0.833");
    EXPECT_EQ(Format(0.12, "0.0##", '.'), "0.12");
    EXPECT_EQ(Format(0, "### ### ##0.0##", '.'), "  0.0");
    // A blank between trailing '#' places stays.
    EXPECT_EQ(Format(0.5, "# ##0.0## ###", '.'), " 0.5 ");
    EXPECT_EQ(Format(0.0000037, "### ### ##0.0## ### ###", '.'), "  0.000 003 7");
    EXPECT_EQ(Format(1.4, "0.000", '.'), "1.400");
}

TEST_F(FormatTest, RoundsHalfAwayFromZeroAndOverflowsToTheLeft) {
    EXPECT_EQ(Format(0.125, "0.00", '.'), "0.13");  // an exact tie goes up
    EXPECT_EQ(Format(-0.125, "0.00", '.'), "-0.13");
    EXPECT_EQ(Format(2.5, "##0", '.'), "3");
    EXPECT_EQ(Format(9.9996, "##0.000", '.'), "10.000");
    EXPECT_EQ(Format(12345678901.0, "### ### ##0", '.'), "12345 678 901");
}

TEST_F(FormatTest, MinusSignStandsBeforeTheMaskBlanks) {
    EXPECT_EQ(Format(-5.3, "### ##0.00", '.'), "- 5.30");
    EXPECT_EQ(Format(-20.15, "### ### ### ##0.00", '.'), "-   20.15");
    EXPECT_EQ(Format(-0.001, "0.00", '.'), "0.00");  // no sign on a zero
}

TEST_F(FormatTest, FollowsTheDecimalSeparatorSetting) {
    EXPECT_EQ(Format(293.15, "##0.00", ','), "293,15");
    EXPECT_EQ(TextoGeneral(8.5, ','), "8,5");
}

TEST_F(FormatTest, NeverPrintsNaNOrInfinity) {
    EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), "##0.00", '.'), "N.D.");
    EXPECT_EQ(TextoGeneral(std::numeric_limits<double>::infinity(), '.'), "N.D.");
}

using RoundTest = SeparadorPunto;

TEST_F(RoundTest, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(Round(2.5), 2);
    EXPECT_EQ(Round(3.5), 4);
    EXPECT_EQ(Round(-2.5), -2);
    EXPECT_EQ(Round(0.125, 2), 0.12);
    EXPECT_EQ(Round(0.375, 2), 0.38);
    // 2.675 is 2.67499999… in binary: no tie.
    EXPECT_EQ(Round(2.675, 2), 2.67);
    EXPECT_EQ(Round(1.0 / 3, 3), 0.333);
    EXPECT_EQ(Round(-1234.5678, 1), -1234.6);
}

using TextoGeneralTest = SeparadorPunto;

TEST_F(TextoGeneralTest, FifteenDigitsAndExponentAtTheBounds) {
    EXPECT_EQ(TextoGeneral(1.0, '.'), "1");
    EXPECT_EQ(TextoGeneral(8.5, '.'), "8.5");
    EXPECT_EQ(TextoGeneral(0.5, '.'), "0.5");
    EXPECT_EQ(TextoGeneral(-0.25, '.'), "-0.25");
    EXPECT_EQ(TextoGeneral(0.1 + 0.2, '.'), "0.3");
    EXPECT_EQ(TextoGeneral(1.0 / 3, '.'), "0.333333333333333");
    EXPECT_EQ(TextoGeneral(0.00001, '.'), "0.00001");
    EXPECT_EQ(TextoGeneral(0.000001, '.'), "1E-06");
    EXPECT_EQ(TextoGeneral(0.0000015, '.'), "1.5E-06");
    EXPECT_EQ(TextoGeneral(1.5e15, '.'), "1.5E+15");
    EXPECT_EQ(TextoGeneral(999999999999999.0, '.'), "999999999999999");
    EXPECT_EQ(TextoGeneral(1e15, '.'), "1E+15");
    EXPECT_EQ(TextoGeneral(9e9, '.'), "9000000000");
    EXPECT_EQ(TextoGeneral(-1e-300, '.'), "-1E-300");
    EXPECT_EQ(TextoGeneral(0.0, '.'), "0");
    EXPECT_EQ(TextoGeneral(-0.0, '.'), "0");
}

TEST_F(TextoGeneralTest, VariantsPrintAsTheyStand) {
    EXPECT_EQ(TextoGeneral(Variante(" N.D."), '.'), " N.D.");
    EXPECT_EQ(TextoGeneral(Variante(1.25), '.'), "1.25");
    EXPECT_EQ(TextoGeneral(Variante(), '.'), "");
}

TEST(LeerNumeroTest, PointRuleAndCommaRule) {
    EXPECT_EQ(LeerNumero("1.39"), 1.39);
    EXPECT_EQ(LeerNumero("1,39"), 1.39);
    EXPECT_EQ(LeerNumero("1.234,5"), 1.234);  // a point: read by the point rule
    EXPECT_EQ(LeerNumero("1.234.567"), 1.234);
    EXPECT_EQ(LeerNumero(" -300 "), -300);
    EXPECT_EQ(LeerNumero("+7"), 7);
    EXPECT_EQ(LeerNumero(",5"), 0.5);
    EXPECT_EQ(LeerNumero("2."), 2);
    EXPECT_EQ(LeerNumero("1e5"), 1e5);
    EXPECT_EQ(LeerNumero("1,5E3"), 1500);
    EXPECT_EQ(LeerNumero("1e308"), 1e308);
}

TEST(LeerNumeroTest, RejectsWhatIsNotANumber) {
    for (const char* t : {"", "   ", "-", "abc", "1a", "nan", "inf", "1,2,3", "1..2", "1.2.3,4,5", "1e",
                          "1e400", "1,234.5", "12.34.56", "--1", "1 2", "0x10"})
        EXPECT_FALSE(LeerNumero(t).has_value()) << '"' << t << '"';
}

TEST(ValidarNumeroTest, RejectedTextTellsTheNameKeepsTheValueAndSetsTheFlag) {
    Estado e;
    DialogosGrabados dlg;
    CajaTextoSimple caja("doce");
    double destino = 7;
    ValidarNumero(e, dlg, caja, destino, "Cilindrada");
    ValidarNumero(e, dlg, caja, destino, " Presión máxima ");
    ASSERT_EQ(dlg.mensajes.size(), 2u);
    EXPECT_EQ(dlg.mensajes[0], "Cilindradano es un número");
    EXPECT_EQ(dlg.mensajes[1], " Presión máxima no es un número");
    EXPECT_EQ(destino, 7);
    EXPECT_EQ(caja.focos, 2);
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
}

TEST(ValidarNumeroTest, AcceptedTextNeverClearsTheFlag) {
    Estado e;
    e.ErrorCalculo = Verdadero;
    DialogosGrabados dlg;
    CajaTextoSimple caja("1,23");
    double destino = 0;
    ValidarNumero(e, dlg, caja, destino, " n ");
    EXPECT_EQ(destino, 1.23);
    EXPECT_EQ(caja.selStart, 50);
    EXPECT_TRUE(dlg.mensajes.empty());
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
}
