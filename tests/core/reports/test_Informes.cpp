#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "core/reports/Informes.h"
#include "core/services/Numeros.h"

using namespace vanta;

namespace {

struct InformesTest : ::testing::Test {
    void SetUp() override {}
    void TearDown() override {}
};

const std::string kRaya = " " + std::string(114, '*');

std::vector<std::string> Lineas(const std::string& texto) {
    std::vector<std::string> lineas;
    size_t inicio = 0;
    for (size_t fin; (fin = texto.find("\r\n", inicio)) != std::string::npos; inicio = fin + 2)
        lineas.push_back(texto.substr(inicio, fin - inicio));
    lineas.push_back(texto.substr(inicio));
    return lineas;
}

// Compares a whole report with its expected lines, CR LF between them and none
// after the last; a difference names its line.
void CompararLineas(const std::string& informe, const std::vector<std::string>& esperadas) {
    const std::vector<std::string> lineas = Lineas(informe);
    for (size_t i = 0; i < std::min(lineas.size(), esperadas.size()); ++i)
        EXPECT_EQ(lineas[i], esperadas[i]) << "line " << i + 1;
    EXPECT_EQ(lineas.size(), esperadas.size());
    // Every line end is CR LF: no lone CR or LF inside a line.
    const auto contar = [&](char c) { return std::count(informe.begin(), informe.end(), c); };
    EXPECT_EQ(contar('\r'), static_cast<long>(lineas.size() - 1));
    EXPECT_EQ(contar('\n'), static_cast<long>(lineas.size() - 1));
}

// A word of the report that holds "inf" is no infinity.
bool MuestraNoFinito(std::string informe) {
    for (size_t i; (i = informe.find("inferior")) != std::string::npos;) informe.erase(i, 8);
    return informe.find("inf") != std::string::npos || informe.find("nan") != std::string::npos;
}

// An Otto cycle as a calculation leaves it: all the heat at constant volume,
// so that state 4 is state 3 and the work of 3-4 is 0.
Estado Otto() {
    Estado e;
    e.TipoCiclo = "Otto";
    e.Fr = 1;
    e.Humedad = 45.678912345;
    e.Pambiente = 101325;
    e.Tambiente = 293.15;
    e.Psaturacion = 2338.8;
    e.MasaMolecularAire = 0.028851;
    e.AtomosC = 8;
    e.AtomosH = 18;
    e.CienC = 84.1172;
    e.CienH = 15.8828;
    e.HCS = 47300000;
    e.HCI = 44300000;
    e.CalorVap = 349000;
    e.MasaMolecularCombustible = 0.114232;
    e.Fe = 0.0664;
    e.HCShumos = 47312345.6;
    e.HCIhumos = 44287654.4;
    e.MasaMolecularHumos = 0.0285123;
    e.Rc = 8;
    e.MasaAire = 0.00057702;
    e.MolesAire = 0.02;
    e.MasaCombustible = 0.0000383;
    e.MasaHumos = 0.00061532;
    e.p1 = 98000, e.V1 = 0.0005, e.T1 = 320.5, e.h1 = 653.21, e.S1 = 198.4567;
    e.p2 = 1650000, e.V2 = 0.0000625, e.T2 = 675.25, e.h2 = 11234.567, e.S2 = 199.1234;
    e.p3 = 6200000, e.V3 = 0.0000625, e.T3 = 2520.75, e.h3 = 76543.219, e.S3 = 268.9012;
    e.p4 = e.p3, e.V4 = e.V3, e.T4 = e.T3, e.h4 = e.h3, e.S4 = e.S3;
    e.p5 = 420000, e.V5 = 0.0005, e.T5 = 1365.4, e.h5 = 35678.9, e.S5 = 270.1357;
    e.gamma1 = 1.39871;
    e.Gamma2 = 1.3512345;
    e.Gamma4 = 1.2498765;
    e.Gamma5 = 1.3123456;
    e.W12acumulado = -142.3456789;
    e.W12 = -142.3;
    e.W34acumulado = 0;
    e.W34 = 0;
    e.W45acumulado = 801.23456;
    e.W45 = 801.2;
    e.Qciclo = 1696.21714;
    e.Q23 = e.Qciclo;
    e.Rendimiento = 0.388;
    return e;
}

// A Diesel cycle: no heat at constant volume, so state 3 is state 2; a fuel
// with no higher heating value and a trace of sulphur, a lean mixture, dry air.
Estado Diesel() {
    Estado e;
    e.TipoCiclo = "Diesel";
    e.Fr = 0.6;
    e.Humedad = 0;
    e.Pambiente = 100000;
    e.Tambiente = 300;
    e.Psaturacion = 3535.7;
    e.MasaMolecularAire = 0.0289688;
    e.AtomosC = 12.3;
    e.AtomosH = 23.456789;
    e.AtomosO = 0.0004;
    e.AtomosS = 0.01234;
    e.CienC = 86;
    e.CienH = 13.5;
    e.CienO = 0.25;
    e.CienS = 0.25;
    e.HCS = 0;
    e.HCI = 42700000;
    e.CalorVap = 250000;
    e.MasaMolecularCombustible = 0.1698765432;
    e.Fe = 0.06851;
    e.HCShumos = 45600000.4;
    e.HCIhumos = 42650000.6;
    e.MasaMolecularHumos = 0.028712;
    e.Rc = 18.5;
    e.MasaAire = 0.00072422;
    e.MolesAire = 0.025;
    e.MasaCombustible = 0.00002977;
    e.MasaHumos = 0.00075399;
    e.p1 = 100000, e.V1 = 0.00053, e.T1 = 300, e.h1 = 50.12, e.S1 = 191.2;
    e.p2 = 5400000, e.V2 = 0.00002865, e.T2 = 930.4, e.h2 = 19345.678, e.S2 = 192.0004;
    e.p3 = e.p2, e.V3 = e.V2, e.T3 = e.T2, e.h3 = e.h2, e.S3 = e.S2;
    e.p4 = 5400000, e.V4 = 0.0000612, e.T4 = 2150.6, e.h4 = 63210.987, e.S4 = 240.5;
    e.p5 = 285000, e.V5 = 0.00053, e.T5 = 980.25, e.h5 = 21987.654, e.S5 = 246.75;
    // Exact ties in the fourth decimal: gamma 1 is rounded (ties to even)
    // before its mask, gamma 5 goes to the mask (half away from zero) as it is.
    e.gamma1 = 1.3125;
    e.Gamma2 = 1.36;
    e.Gamma4 = 1.28;
    e.Gamma5 = 1.3125;
    e.W12acumulado = -245.67891;
    e.W12 = -245.7;
    e.W34acumulado = 175.77;
    e.W34 = 175.8;
    e.W45acumulado = 598.123456;
    e.W45 = 598.1;
    e.Qciclo = 1269.6908;
    e.Q23 = 0;
    e.Rendimiento = 0.416;
    return e;
}

}  // namespace

// The expected reports keep each line whole, as the report prints it.
// clang-format off
TEST_F(InformesTest, OttoTextReportLineByLine) {
    CompararLineas(
        InformeTexto(Otto(), "Gasolina"),
        {
            "",
            kRaya,
            // The banner's humidity is unrounded; its own line has 2 decimals.
            "   CICLO: Otto      COMBUSTIBLE: Gasolina      Fr = 1      AIRE: 45.678912345 % de humedad",
            kRaya,
            "",
            " AIRE",
            "Presión ambiente  =    101 325 Pa",
            "Temperatura ambiente  =     293.15 K",
            "Humedad relativa  = 45.68 %",
            "Presión de saturación  =    2 339 Pa",
            "Masa molecular aire =  0.028 851 kg/mol",
            "",
            "",
            " COMBUSTIBLE",
            "Combustible = Gasolina",
            "Fórmula química:  C 8     H 18     N 0     O  0     S 0",
            "Porcentaje en masa :  C =  84.117 %      H = 15.883 %      N = 0 %      O = 0 %      S = 0 % ",
            "Poder calorífico superior =   47 300 000 J/kg",
            "Poder calorífico inferior =   44 300 000 J/kg",
            "Calor de vaporización =    349 000 J/kg",
            // The blank between empty trailing places of the mask stays.
            "Masa molecular combustible =  0.114 232  kg/mol",
            "",
            "",
            " COMBUSTIÓN",
            "Dosado relativo (Fr) = 1.0",
            "Lambda  = 1",
            "Dosado estequiométrico (Fe) = 0.066",
            "Poder calorífico superior (con Fe = 0.066) =   47 312 346 J/kg de combustible",
            "Poder calorífico inferior (con Fe = 0.066) =   44 287 654 J/kg de combustible",
            "Masa molecular de humos  =  0.028 512 kg/mol",
            "",
            "",
            " CICLO",
            "Cilindrada  =     500 c.c.",
            "Relación de compresión  = 8",
            "Masa aire húmedo ( o seco ) =  0.000 577 kg",
            "Masa combustible =   0.000 038 3 kg",
            "Masa de humos  =   0.000 615 kg",
            "p1 =    98 000 Pa  (   0.98 bar )      V1 = 500 c.c.  (0.867 m3 / kg  )  (  0.025   m3 / mol)      "
            "T 1 =    320.50 K  (   47.35 ºC)",
            "h1 =    653.21  J/mol      s1 = 198.457  J/(mol·K)",
            "p2 =   1 650 000 Pa  (   16.50 bar )      V2 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)      "
            "T 2 =    675.25 K  (   402.10 ºC)",
            "h2 =   11 234.57  J/mol      s2 = 199.123  J/(mol·K)",
            "p3 =   6 200 000 Pa  (   62.00 bar )      V3 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)      "
            "T 3 =   2 520.75 K  (  2 247.60 ºC)",
            "h3 =   76 543.22  J/mol      s3 = 268.901  J/(mol·K)",
            "p4 =   6 200 000 Pa  (   62.00 bar )      V4 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)      "
            "T 4 =   2 520.75 K  (  2 247.60 ºC)",
            "h4 =   76 543.22  J/mol      s4 = 268.901  J/(mol·K)",
            "p5 =    420 000 Pa  (   4.20 bar )      V5 = 500 c.c.  (0.867 m3 / kg  )  (  0.025   m3 / mol)      "
            "T 5 =   1 365.40 K  (  1 092.25 ºC)",
            "h5 =   35 678.90  J/mol      s5 = 270.136  J/(mol·K)",
            "",
            "",
            "PROCESO 1-2 (COMPRESIÓN) ",
            " gamma 1 =    1.399",
            " gamma 2 =    1.351",
            // The rounded work by the general conversion; the molar figure from
            // the unrounded one, its sign before the mask's blanks.
            " Trabajo 1-2 = -142.3 J      Trabajo molar 1-2 = -  7 117.284 J/(mol aire)",
            " h2-h1 =   10 581.36  J/mol      ",
            "",
            "PROCESO 2-3 (COMBUSTIÓN V = Cte.) ",
            " Q 2-3 =  1 696.217 J      Q 2-3 molar =  84 810.9 J/(mol aire)",
            " h3-h2 =   65 308.65  J/mol      ",
            "",
            "PROCESO 3-4 (COMBUSTIÓN p = Cte.) ",
            // No heat at constant pressure, yet the molar figure is the whole
            // heat; its mask ends in four places, so the blank falls after 8.
            " Q 3-4 =   0.0 J      Q molar 3-4 =  8 4811 J/(mol aire)",
            " Trabajo 3-4 = 0      Trabajo molar 3-4 =   0.0 J/(mol aire)",
            " h4-h3 =    0.00  J/mol      ",
            "",
            "PROCESO 4-5 (EXPANSIÓN)",
            " gamma 4 =    1.250",
            " gamma 5 =    1.312",
            " Trabajo 4-5 =   801.2      Trabajo molar 4-5 =  40 060.0 J/(mol aire)",
            " h5-h4 = -  40 864.32  J/mol      ",
            "",
            "",
            "CALOR IDEAL QUE APORTARÍA EL COMBUSTIBLE AL CICLO =  1 696.69 J    84 834.5 J / mol de aire",
            "CALOR APORTADO AL CICLO =  1 696.217 J    84 810.9 J / mol de aire",
            "TRABAJO DEL CICLO =   658.889 J    32 944.4 J / mol de aire",
            "RENDIMIENTO = 0.388",
        });
}

TEST_F(InformesTest, DieselTextReportLineByLine) {
    CompararLineas(
        InformeTexto(Diesel(), "Gasóleo"),
        {
            "",
            kRaya,
            "   CICLO: Diesel      COMBUSTIBLE: Gasóleo      Fr = 0.6      AIRE: 0 % de humedad",
            kRaya,
            "",
            " AIRE",
            "Presión ambiente  =    100 000 Pa",
            "Temperatura ambiente  =     300.00 K",
            "Humedad relativa  = 0.00 %",
            "Presión de saturación  =    3 536 Pa",
            "Masa molecular aire =  0.028 969 kg/mol",
            "",
            "",
            " COMBUSTIBLE",
            "Combustible = Gasóleo",
            "Fórmula química:  C 12.3     H 23.457     N 0     O  0     S 0.0123",
            "Porcentaje en masa :  C =  86 %      H = 13.5 %      N = 0 %      O = 0.25 %      S = 0.25 % ",
            // 0 under a mask of '#' only: the mask's four blanks, no digit.
            "Poder calorífico superior =      J/kg",
            "Poder calorífico inferior =   42 700 000 J/kg",
            "Calor de vaporización =    250 000 J/kg",
            "Masa molecular combustible =  0.169 876 543 kg/mol",
            "",
            "",
            " COMBUSTIÓN",
            "Dosado relativo (Fr) = 0.6",
            "Lambda  = 1.667",
            "Dosado estequiométrico (Fe) = 0.069",
            "Poder calorífico superior (con Fe = 0.069) =   45 600 000 J/kg de combustible",
            "Poder calorífico inferior (con Fe = 0.069) =   42 650 001 J/kg de combustible",
            "Masa molecular de humos  =  0.028 712 kg/mol",
            "",
            "",
            " CICLO",
            "Cilindrada  =     530 c.c.",
            "Relación de compresión  = 18.5",
            "Masa aire húmedo ( o seco ) =  0.000 724 kg",
            "Masa combustible =   0.000 029 77 kg",
            "Masa de humos  =   0.000 754 kg",
            "p1 =    100 000 Pa  (   1.00 bar )      V1 = 530 c.c.  (0.732 m3 / kg  )  (  0.021 2  m3 / mol)      "
            "T 1 =    300.00 K  (   26.85 ºC)",
            "h1 =    50.12  J/mol      s1 = 191.2  J/(mol·K)",
            "p2 =   5 400 000 Pa  (   54.00 bar )      V2 = 28.65 c.c.  (0.04 m3 / kg  )  (  0.001 146  m3 / mol)      "
            "T 2 =    930.40 K  (   657.25 ºC)",
            "h2 =   19 345.68  J/mol      s2 = 192  J/(mol·K)",
            "p3 =   5 400 000 Pa  (   54.00 bar )      V3 = 28.65 c.c.  (0.04 m3 / kg  )  (  0.001 146  m3 / mol)      "
            "T 3 =    930.40 K  (   657.25 ºC)",
            "h3 =   19 345.68  J/mol      s3 = 192  J/(mol·K)",
            "p4 =   5 400 000 Pa  (   54.00 bar )      V4 = 61.2 c.c.  (0.085 m3 / kg  )  (  0.002 448  m3 / mol)      "
            "T 4 =   2 150.60 K  (  1 877.45 ºC)",
            "h4 =   63 210.99  J/mol      s4 = 240.5  J/(mol·K)",
            "p5 =    285 000 Pa  (   2.85 bar )      V5 = 530 c.c.  (0.732 m3 / kg  )  (  0.021 2  m3 / mol)      "
            "T 5 =    980.25 K  (   707.10 ºC)",
            "h5 =   21 987.65  J/mol      s5 = 246.75  J/(mol·K)",
            "",
            "",
            "PROCESO 1-2 (COMPRESIÓN) ",
            " gamma 1 =    1.312",
            " gamma 2 =    1.360",
            " Trabajo 1-2 = -245.7 J      Trabajo molar 1-2 = -  9 827.156 J/(mol aire)",
            " h2-h1 =   19 295.56  J/mol      ",
            "",
            "PROCESO 2-3 (COMBUSTIÓN V = Cte.) ",
            " Q 2-3 =   0.0 J      Q 2-3 molar =   0.0 J/(mol aire)",
            " h3-h2 =    0.00  J/mol      ",
            "",
            "PROCESO 3-4 (COMBUSTIÓN p = Cte.) ",
            " Q 3-4 =  1 269.691 J      Q molar 3-4 =  5 0788 J/(mol aire)",
            " Trabajo 3-4 = 175.8      Trabajo molar 3-4 =  7 032.0 J/(mol aire)",
            " h4-h3 =   43 865.31  J/mol      ",
            "",
            "PROCESO 4-5 (EXPANSIÓN)",
            " gamma 4 =    1.280",
            " gamma 5 =    1.313",
            " Trabajo 4-5 =   598.1      Trabajo molar 4-5 =  23 924.0 J/(mol aire)",
            " h5-h4 = -  41 223.33  J/mol      ",
            "",
            "",
            "CALOR IDEAL QUE APORTARÍA EL COMBUSTIBLE AL CICLO =  1 271.179 J    50 847.2 J / mol de aire",
            "CALOR APORTADO AL CICLO =  1 269.691 J    50 787.6 J / mol de aire",
            // Summed afresh from the three unrounded works.
            "TRABAJO DEL CICLO =   528.215 J    21 128.6 J / mol de aire",
            "RENDIMIENTO = 0.416",
        });
}

TEST_F(InformesTest, OttoPageLineByLine) {
    CompararLineas(
        HTMLInforme(Otto(), "Gasolina"),
        {
            "",
            "<HTML>",
            "<HEAD>",
            "<TITLE>Vanta</TITLE>",
            "</HEAD>",
            "<BODY>",
            "<HR>",
            "<B>   CICLO: Otto &nbsp; &nbsp; &nbsp;      COMBUSTIBLE: Gasolina&nbsp &nbsp &nbsp Fr = 1&nbsp; &nbsp; &nbsp; "
            "AIRE: 45.678912345 % de humedad</B><BR>",
            "<HR>",
            "",
            "<P><LI><U> AIRE: </U></LI><BR>",
            "Presión ambiente  =    101 325 Pa<BR>",
            "Temperatura ambiente  =     293.15 K <BR>",
            "Humedad relativa  = 45.68 % <BR>",
            "Presión de saturación  =    2 339 Pa <BR>",
            "Masa molecular aire =  0.028 851 kg/mol </P>",
            "<IMG SRC = \"BMPAIRE.BMP\">",
            "",
            "",
            " <P><LI><U> COMBUSTIBLE: </U></LI> <BR>",
            "Combustible = Gasolina <BR>",
            "Fórmula química:  C <FONT SIZE = -4>8 </FONT>    H<FONT SIZE = -4> 18</FONT>     N<FONT SIZE = -4> 0</FONT>"
            "     O<FONT SIZE = -4>  0</FONT>     S<FONT SIZE = -4> 0</FONT> <BR>",
            "Porcentaje en masa :  C =  84.117 %    &nbsp;    H = 15.883 %   &nbsp;     N = 0 %    &nbsp;    O = 0 %"
            "    &nbsp;    S = 0 %  <BR>",
            "Poder calorífico superior =   47 300 000 J/kg <BR>",
            "Poder calorífico inferior =   44 300 000 J/kg <BR>",
            "Calor de vaporización =    349 000 J/kg <BR>",
            "Masa molecular combustible =  0.114 232  kg/mol </P>",
            "<IMG SRC = \"BMPCOMBUSTIBLE.BMP\">",
            "",
            "",
            "<P><LI><U> COMBUSTIÓN: </U></LI><BR>",
            "Dosado relativo (Fr) = 1.0<BR>",
            "Lambda  = 1<BR>",
            "Dosado estequiométrico (Fe) = 0.066<BR>",
            "Poder calorífico superior <FONT SIZE =-1>(con Fe = 0.066)</FONT> =   47 312 346 J/kg de combustible <BR>",
            "Poder calorífico inferior <FONT SIZE =-1> (con Fe = 0.066)</FONT> =   44 287 654 J/kg de combustible <BR>",
            "Masa molecular de humos  =  0.028 512 kg/mol </P>",
            "<IMG SRC = \"BMPCOMBUSTION.BMP\">",
            // A single line end after the combustion picture.
            "",
            "<P><LI><U> CICLO:</U></LI><BR>",
            "Cilindrada  =     500 c.c.<BR>",
            "Relación de compresión  = 8<BR>",
            "Masa aire húmedo ( o seco ) =  0.000 577 kg <BR>",
            "Masa combustible =   0.000 038 3 kg <BR>",
            "Masa de humos  =   0.000 615 kg <BR>",
            "p1 =    98 000 Pa  (   0.98 bar )       &nbsp; V1 = 500 c.c.  (0.867 m3 / kg  )  (  0.025   m3 / mol)"
            "       &nbsp; T 1 =    320.50 K  (   47.35 ºC)<BR>",
            "h1 =    653.21  J/mol       &nbsp; s1 = 198.457  J/(mol·K)<BR>",
            "p2 =   1 650 000 Pa  (   16.50 bar )       &nbsp; V2 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)"
            "       &nbsp; T 2 =    675.25 K  (   402.10 ºC)<BR>",
            "h2 =   11 234.57  J/mol       &nbsp; s2 = 199.123  J/(mol·K)<BR>",
            "p3 =   6 200 000 Pa  (   62.00 bar )       &nbsp; V3 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)"
            "       &nbsp; T 3 =   2 520.75 K  (  2 247.60 ºC)<BR>",
            "h3 =   76 543.22  J/mol       &nbsp; s3 = 268.901  J/(mol·K)<BR>",
            "p4 =   6 200 000 Pa  (   62.00 bar )       &nbsp; V4 = 62.5 c.c.  (0.108 m3 / kg  )  (  0.003 125  m3 / mol)"
            "       &nbsp; T 4 =   2 520.75 K  (  2 247.60 ºC)<BR>",
            "h4 =   76 543.22  J/mol       &nbsp; s4 = 268.901  J/(mol·K)<BR>",
            "p5 =    420 000 Pa  (   4.20 bar )       &nbsp; V5 = 500 c.c.  (0.867 m3 / kg  )  (  0.025   m3 / mol)"
            "       &nbsp; T 5 =   1 365.40 K  (  1 092.25 ºC)<BR>",
            // The last state closes the paragraph.
            "h5 =   35 678.90  J/mol       &nbsp; s5 = 270.136  J/(mol·K)</P>",
            "",
            "",
            "<P><LI><U>PROCESO 1-2 (COMPRESIÓN):</U></LI><BR>",
            " gamma 1 =    1.399<BR>",
            " gamma 2 =    1.351<BR>",
            " Trabajo 1-2 = -142.3 J  &nbsp;     Trabajo molar 1-2 = -  7 117.284 J/(mol aire)<BR>",
            " h2-h1 =   10 581.36  J/mol      </P>",
            "<P><LI><U>PROCESO 2-3 (COMBUSTIÓN V = Cte.): </U></LI><BR>",
            " Q 2-3 =  1 696.217 J  &nbsp;      Q 2-3 molar =  84 810.9 J/(mol aire)<BR>",
            " h3-h2 =   65 308.65  J/mol  </P>    ",
            "<P><LI><U>PROCESO 3-4 (COMBUSTIÓN p = Cte.): </U></LI><BR>",
            " Q 3-4 =   0.0 J   &nbsp;     Q molar 3-4 =  8 4811 J/(mol aire)<BR>",
            " Trabajo 3-4 = 0   &nbsp;     Trabajo molar 3-4 =   0.0 J/(mol aire)<BR>",
            " h4-h3 =    0.00  J/mol   </P>   ",
            "<P><LI><U>PROCESO 4-5 (EXPANSIÓN):</U></LI><BR>",
            " gamma 4 =    1.250<BR>",
            " gamma 5 =    1.312<BR>",
            " Trabajo 4-5 =   801.2   &nbsp;     Trabajo molar 4-5 =  40 060.0 J/(mol aire)<BR>",
            " h5-h4 = -  40 864.32  J/mol   </P>   ",
            // The page's heat of the cycle is the fuel's ideal heat.
            "<P><LI>CALOR APORTADO AL CICLO =  1 696.69 J  &nbsp;    84 834.5 J / mol de comburente</LI></P>",
            "<P><LI>TRABAJO DEL CICLO =   658.889 J  &nbsp;    32 944.4 J / mol de comburente</LI></P>",
            "<P><LI>RENDIMIENTO = 0.388</LI></P>",
            "<IMG SRC = \"BMPPV.BMP\">",
            "<IMG SRC = \"BMPTV.BMP\">",
            "<IMG SRC = \"BMPTS.BMP\">",
            "<IMG SRC = \"BMPHS.BMP\">",
            " </BODY>",
            "</HTML>",
        });
}

// clang-format on

TEST_F(InformesTest, BothReportsFollowTheDecimalSeparatorSetting) {
    Estado e = Otto();
    e.SeparadorDecimal = ',';
    e.Rc = 8.5;
    const auto texto = Lineas(InformeTexto(e, "Gasolina"));
    EXPECT_EQ(texto[2],
              "   CICLO: Otto      COMBUSTIBLE: Gasolina      Fr = 1      AIRE: 45,678912345 % de humedad");
    EXPECT_EQ(texto[7], "Temperatura ambiente  =     293,15 K");
    EXPECT_EQ(texto[24], "Dosado relativo (Fr) = 1,0");
    EXPECT_EQ(texto[34], "Relación de compresión  = 8,5");
    // Literal points stay: "c.c." and the mask's digits are not the separator.
    EXPECT_EQ(
        texto[38],
        "p1 =    98 000 Pa  (   0,98 bar )      V1 = 500 c.c.  (0,867 m3 / kg  )  (  0,025   m3 / mol)      "
        "T 1 =    320,50 K  (   47,35 ºC)");
    EXPECT_EQ(texto.back(), "RENDIMIENTO = 0,388");

    const auto pagina = Lineas(HTMLInforme(e, "Gasolina"));
    EXPECT_EQ(pagina[41], "Relación de compresión  = 8,5<BR>");
    EXPECT_EQ(pagina[pagina.size() - 7], "<P><LI>RENDIMIENTO = 0,388</LI></P>");
}

TEST_F(InformesTest, FiguresThatAreNotFinitePrintAsNotDefined) {
    // No comburent in the cycle: every per-mole and per-kilogram figure divides by 0.
    Estado e = Otto();
    e.MolesAire = 0;
    e.MasaAire = 0;
    e.Fr = std::numeric_limits<double>::quiet_NaN();
    for (const std::string& informe : {InformeTexto(e, "Gasolina"), HTMLInforme(e, "Gasolina")}) {
        EXPECT_FALSE(MuestraNoFinito(informe));
        EXPECT_NE(informe.find("Q molar 3-4 = N.D. J/(mol aire)"), std::string::npos);
        EXPECT_NE(informe.find("Trabajo molar 1-2 = N.D. J/(mol aire)"), std::string::npos);
        EXPECT_NE(informe.find("Lambda  = N.D."), std::string::npos);
    }
    const auto texto = Lineas(InformeTexto(e, "Gasolina"));
    EXPECT_EQ(texto[38],
              "p1 =    98 000 Pa  (   0.98 bar )      V1 = 500 c.c.  (N.D. m3 / kg  )  (N.D.  m3 / mol)      "
              "T 1 =    320.50 K  (   47.35 ºC)");
}

TEST_F(InformesTest, PageNamesItsSevenPicturesInTheOrderTheyAreWritten) {
    const std::string pagina = HTMLInforme(Otto(), "Gasolina");
    std::vector<std::string> enPagina;
    const std::string etiqueta = "<IMG SRC = \"";
    for (size_t i = pagina.find(etiqueta); i != std::string::npos; i = pagina.find(etiqueta, i + 1)) {
        const size_t inicio = i + etiqueta.size();
        enPagina.push_back(pagina.substr(inicio, pagina.find('"', inicio) - inicio));
    }
    std::vector<std::string> archivos, nombres;
    std::vector<CuadroImagen> cuadros;
    for (const ImagenPagina& imagen : kImagenesPagina) {
        archivos.push_back(ArchivoImagen(imagen));
        nombres.push_back(ImagenEnPagina(imagen));
        cuadros.push_back(imagen.cuadro);
    }
    EXPECT_EQ(enPagina, nombres);
    EXPECT_EQ(archivos, (std::vector<std::string>{"BMPAIRE.bmp", "BMPCOMBUSTIBLE.bmp", "BMPCOMBUSTION.bmp",
                                                  "BMPPV.bmp", "BMPTV.bmp", "BMPTS.bmp", "BMPHS.bmp"}));
    EXPECT_EQ(cuadros, (std::vector<CuadroImagen>{CuadroImagen::pct1, CuadroImagen::pct2, CuadroImagen::pct3,
                                                  CuadroImagen::pctPV, CuadroImagen::pctTV,
                                                  CuadroImagen::pctTS, CuadroImagen::pctHS}));
}
