#include <gtest/gtest.h>

#include <algorithm>

#include "Etapas.h"

using namespace vanta;
using prueba::EtapaCombustible;

namespace {
constexpr const char* kSuperaCien = "Las proporciones en masa de combustible superan el 100%, revise los valores";

struct CombustibleTest : ::testing::Test {
    void SetUp() override { FijarSeparadorDecimal('.'); }
    Estado e;
    DialogosGrabados dlg;
    EtapaCombustible f{e, dlg};
};

bool Dibujada(const SuperficieGrabada& s, const std::string& titulo) {
    return std::any_of(s.llamadas.begin(), s.llamadas.end(),
                       [&](const std::string& l) { return l.find(titulo) != std::string::npos; });
}
}  // namespace

TEST(BibliotecaCombustiblesTest, SevenNamedFuelsThenTheUsersOwn) {
    std::vector<std::string_view> nombres;
    for (const auto& c : kBibliotecaCombustibles) nombres.push_back(c.nombre);
    EXPECT_EQ(nombres, (std::vector<std::string_view>{"Etanol", "Gasolina", "Gasoil", "GLP-Etano", "GLP-Butano",
                                                      "GLP-Propano", "Metanol"}));
    EXPECT_TRUE(EsEntradaListaCombustible("Otros combustibles"));
    EXPECT_EQ(BuscarCombustible("Otros combustibles"), nullptr);
    EXPECT_FALSE(EsEntradaListaCombustible("Elija combustible"));
    EXPECT_FALSE(EsEntradaListaCombustible("gasolina"));
    const CombustibleDeLista* gasoil = BuscarCombustible("Gasoil");
    ASSERT_NE(gasoil, nullptr);
    EXPECT_EQ(gasoil->N, 0.073);
    EXPECT_EQ(gasoil->EntalpiaFormacion, -174080);
}

TEST_F(CombustibleTest, MethanolFromTheListFillsTheScreenAndHidesIt) {
    e.ErrorCalculo = Verdadero;  // a choice starts clean
    f.Elegir("Metanol");
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_TRUE(dlg.mensajes.empty());
    EXPECT_NEAR(e.MasaMolecularCombustible, 0.032043, 1e-15);
    EXPECT_NEAR(e.CienH, 12.583, 0.001);
    EXPECT_EQ(e.EntalpiaFormacion, -238600);
    EXPECT_EQ(f.p.txtEntPro.Text(), "-238600");
    EXPECT_EQ(f.p.txtMolH.Text(), "4");
    EXPECT_EQ(f.p.txtH.Text(), "12.583");
    EXPECT_EQ(f.p.txtmmComb.Text(), "0.032043");
    EXPECT_EQ(f.p.txtHcs.Text(), TextoGeneral(Round(e.HCS, 0)));
    // A named fuel closes the user's input and shows the formula mode.
    EXPECT_FALSE(f.p.formulario.entradaPropia);
    EXPECT_EQ(f.p.formulario.tituloOtros, "Metanol");
    EXPECT_TRUE(f.p.optFOR.Value());
    EXPECT_FALSE(f.p.optMasa.Value());
    EXPECT_EQ(f.p.formulario.bloqueo, 1);
    EXPECT_TRUE(Dibujada(f.pct2, "Metanol"));
    EXPECT_TRUE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, GasolineHeatingValuesCountLiquidWaterAndCO2) {
    f.Elegir("Gasolina");
    const double masa = 8 * 0.012011 + 15 * 0.001008;
    const double productos = 7.5 * (-286021.0) + 8 * (-391904.0);
    EXPECT_EQ(e.MasaMolecularCombustible, masa);
    EXPECT_EQ(e.HCS, (productos + 305630) / (-masa));
    EXPECT_GT(e.HCS, 4.4e7);
    EXPECT_LT(e.HCS, 4.8e7);
    EXPECT_EQ(e.CalorVap, 7.5 * 44037.0 / masa);
    EXPECT_EQ(e.HCI, e.HCS - e.CalorVap);
    EXPECT_EQ(f.p.txtHci.Text(), TextoGeneral(Round(e.HCI, 0)));
}

TEST_F(CombustibleTest, GasoilFractionalAtomsEnterTheMolarMassAndPercentagesSumTo100) {
    f.Elegir("Gasoil");
    EXPECT_EQ(e.MasaMolecularCombustible, 11 * 0.012011 + 19 * 0.001008 + 0.073 * 0.014009 + 0.063 * 0.016 +
                                              0.032 * 0.03206);
    EXPECT_NEAR(e.CienC + e.CienH + e.CienN + e.CienO + e.CienS, 100, 1e-12);
    EXPECT_GT(e.CienN, 0);
    EXPECT_GT(e.CienS, 0);
}

TEST_F(CombustibleTest, OthersOpensTheUsersInputWithoutCalculating) {
    f.Elegir("Gasolina");
    f.pct2.llamadas.clear();
    f.p.ventana.oculta = false;
    f.Elegir("Otros combustibles");
    EXPECT_TRUE(f.p.formulario.entradaPropia);
    EXPECT_EQ(f.p.formulario.tituloOtros, "Otros combustibles");
    EXPECT_TRUE(f.p.optMasa.Value());
    EXPECT_FALSE(f.p.optFOR.Value());
    EXPECT_EQ(f.p.formulario.bloqueo, 2);
    EXPECT_EQ(e.AtomosC, 8);  // the last fuel stays
    EXPECT_TRUE(f.pct2.llamadas.empty());
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, ButtonWithANamedFuelAsksForOthersYetDrawsAndHides) {
    f.Elegir("Etanol");
    f.p.ventana.oculta = false;
    f.pct2.llamadas.clear();
    cmdCal_Click(e, dlg, f.c);
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{"Elija Otros de la lista de combustible"});
    EXPECT_EQ(f.p.cboTipCom.focos, 1);
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_TRUE(Dibujada(f.pct2, "Etanol"));
    EXPECT_TRUE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, FormulaTypedByTheUserIsTheSameFuelAsTheLibrarys) {
    f.Formula("1", "4", "", "1", "0,0");
    EXPECT_EQ(e.ErrorCalculo, Falso) << (dlg.mensajes.empty() ? "" : dlg.mensajes[0]);
    EXPECT_EQ(f.p.txtMolN.Text(), "0");  // an empty box reads as 0
    EXPECT_TRUE(f.p.formulario.marcoOtros);
    EXPECT_TRUE(f.p.ventana.oculta);
    const double hcs = e.HCS;
    EXPECT_EQ(e.EntalpiaFormacion, 0);  // the box's starting text
    Estado otro;
    DialogosGrabados dlg2;
    EtapaCombustible biblioteca{otro, dlg2};
    biblioteca.Elegir("Metanol");
    EXPECT_EQ(otro.MasaMolecularCombustible, e.MasaMolecularCombustible);
    EXPECT_EQ(otro.CienH, e.CienH);
    EXPECT_LT(otro.HCS, hcs);  // the library's enthalpy of formation is below zero
}

TEST_F(CombustibleTest, EmptyOrZeroFormulaIsRefusedWithItsMessage) {
    for (const char* cero : {"", "0"}) {
        Estado e2;
        DialogosGrabados d;
        EtapaCombustible g{e2, d};
        g.Formula(cero, cero, cero, cero, cero);
        for (CajaTextoSimple* caja : {&g.p.txtMolC, &g.p.txtMolH, &g.p.txtMolN, &g.p.txtMolO, &g.p.txtMolS})
            EXPECT_EQ(caja->Text(), "0");
        EXPECT_EQ(d.mensajes,
                  std::vector<std::string>{
                      "Introduzca la proporciones de los componentes del combustible o su fórmula química"});
        EXPECT_EQ(e2.ErrorCalculo, Verdadero);
        EXPECT_EQ(e2.MasaMolecularCombustible, 0);
        EXPECT_FALSE(g.p.ventana.oculta);
    }
}

TEST_F(CombustibleTest, TextInAFormulaBoxIsToldAndStopsTheButton) {
    f.Formula("siete", "16", "0", "0", "0");
    ASSERT_FALSE(dlg.mensajes.empty());
    EXPECT_EQ(dlg.mensajes[0], " Nº de moles de C no es un número");
    EXPECT_EQ(f.p.txtMolC.focos, 1);
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.HCS, 0);
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, NegativeCountsThatCancelTheMolarMassAreAFailureNotANaN) {
    f.Formula("1", "-20", "0", "0", "0");
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    ASSERT_EQ(dlg.mensajes.size(), 1u);
    EXPECT_NE(dlg.mensajes[0].find("masa molecular"), std::string::npos);
    EXPECT_TRUE(prueba::NoFinitos(e).empty());
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, MassModeInvertsTheFormulaWithHydrogenAsTheRemainder) {
    // Methanol by mass: C 37.484 %, O 49.933 %, the rest hydrogen.
    const double masa = 0.012011 + 4 * 0.001008 + 0.016;
    f.Masa(TextoGeneral(0.012011 * 100 / masa), "", TextoGeneral(0.016 * 100 / masa), "", "0.032043");
    EXPECT_EQ(e.ErrorCalculo, Falso) << (dlg.mensajes.empty() ? "" : dlg.mensajes[0]);
    EXPECT_NEAR(e.AtomosC, 1, 1e-12);
    EXPECT_NEAR(e.AtomosH, 4, 1e-12);
    EXPECT_NEAR(e.AtomosO, 1, 1e-12);
    EXPECT_EQ(f.p.txtMolH.Text(), "4");
    EXPECT_EQ(f.p.txtN.Text(), "0");
    EXPECT_EQ(f.p.txtH.Text(), "12.583");
    EXPECT_TRUE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, PercentagesAbove100AreRefusedAfterTheHeatingValues) {
    f.Masa("85", "0", "20", "0", "0.1");
    EXPECT_EQ(e.CienH, -5);
    EXPECT_EQ(f.p.txtH.Text(), "-5");
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{kSuperaCien});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(f.p.txtC.focos, 1);
    // The check runs after Calcular: what the steps wrote stays.
    EXPECT_LT(e.AtomosH, 0);
    EXPECT_NE(e.HCS, 0);
    EXPECT_NE(f.p.txtHcs.Text(), "");
    EXPECT_TRUE(f.pct2.llamadas.empty());
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, PercentagesOfExactly100PassWithNoHydrogen) {
    f.Masa("80", "5", "10", "5", "0.2");
    EXPECT_EQ(e.CienH, 0);
    EXPECT_TRUE(dlg.mensajes.empty());
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_EQ(e.AtomosH, 0);
    EXPECT_TRUE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, NoCarbonNorHydrogenIsRefused) {
    f.Masa("0", "50", "50", "0", "0.1");
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{
                                "La suma de las proporciones en masa de carbono e Hidrógeno debe ser > 0, revise los "
                                "valores"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(f.p.txtC.focos, 1);
}

TEST_F(CombustibleTest, MolarMassOfZeroOrNegativeIsRefusedAndTheLastOneStays) {
    f.Elegir("Gasolina");
    const double masa = e.MasaMolecularCombustible;
    f.p.ventana.oculta = false;
    for (const char* mala : {"0", "-0.1"}) {
        dlg.mensajes.clear();
        f.Masa("85", "0", "0", "0", mala);
        EXPECT_EQ(e.ErrorCalculo, Verdadero) << mala;
        ASSERT_EQ(dlg.mensajes.size(), 1u) << mala;
        EXPECT_NE(dlg.mensajes[0].find("masa molecular del combustible ha de ser mayor que cero"), std::string::npos);
        EXPECT_EQ(e.MasaMolecularCombustible, masa) << mala;
        EXPECT_EQ(e.AtomosC, 8) << mala;
        EXPECT_TRUE(prueba::NoFinitos(e).empty()) << mala;
    }
    // A rejected text is told and the formula follows from the last molar mass.
    dlg.mensajes.clear();
    f.Masa("85", "0", "0", "0", "mucha");
    EXPECT_EQ(dlg.mensajes, std::vector<std::string>{" Masa molecular no es un número"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.MasaMolecularCombustible, masa);
    EXPECT_EQ(e.AtomosC, 85 * 0.01 * masa / 0.012011);
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, RejectedEnthalpyIsToldAndFlagged) {
    f.Elegir("Otros combustibles");
    optFOR_Click(f.c);
    f.p.txtMolC.SetText("8"), f.p.txtMolH.SetText("18");
    f.p.txtEntPro.SetText("-249 950");
    cmdCal_Click(e, dlg, f.c);
    ASSERT_FALSE(dlg.mensajes.empty());
    EXPECT_EQ(dlg.mensajes[0], " La entalpía de formación de los productos no es un número");
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(f.p.txtEntPro.focos, 1);
}
