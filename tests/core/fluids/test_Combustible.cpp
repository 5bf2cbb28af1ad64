#include <gtest/gtest.h>

#include "tests/core/fluids/Etapas.h"

using namespace vanta;

namespace {
using Mensajes = std::vector<std::string>;

struct CombustibleTest : ::testing::Test {
    void SetUp() override {}
    Estado e;
    DialogosGrabados dlg;
    prueba::EtapaCombustible f{e, dlg};
};
}  // namespace

TEST_F(CombustibleTest, EveryLibraryFuelIsWholeAndMethanolHasItsWorkedValues) {
    for (const auto& combustible : kBibliotecaCombustibles) {
        f.Elegir(std::string(combustible.nombre));
        EXPECT_NEAR(e.CienC + e.CienH + e.CienN + e.CienO + e.CienS, 100, 1e-12) << combustible.nombre;
        EXPECT_GT(e.HCI, 0) << combustible.nombre;
        EXPECT_EQ(f.p.formulario.tituloOtros, combustible.nombre);
    }
    EXPECT_TRUE(dlg.mensajes.empty());
    // The last one is Metanol: 0.012011 + 4·0.001008 + 0.016.
    EXPECT_NEAR(e.MasaMolecularCombustible, 0.032043, 1e-15);
    EXPECT_EQ(f.p.txtmmComb.Text(), "0.032043");
    EXPECT_EQ(f.p.txtH.Text(), "12.583");
    EXPECT_EQ(f.p.txtEntPro.Text(), "-238600");
    EXPECT_TRUE(f.p.optFOR.Value() && !f.p.optMasa.Value() && !f.p.formulario.entradaPropia);
    EXPECT_EQ(f.p.formulario.bloqueo, 1);
    EXPECT_TRUE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, GasolineHeatingValuesCountLiquidWaterAndCO2) {
    f.Elegir("Gasolina");
    const double masa = 8 * 0.012011 + 15 * 0.001008;
    EXPECT_EQ(e.MasaMolecularCombustible, masa);
    EXPECT_EQ(e.HCS, (7.5 * -286021.0 + 8 * -391904.0 + 305630) / (-masa));
    EXPECT_EQ(e.HCI, e.HCS - 7.5 * 44037.0 / masa);
    EXPECT_EQ(f.p.txtHcs.Text(), TextoGeneral(Round(e.HCS, 0), '.'));
}

TEST_F(CombustibleTest, OthersOpensTheUsersInputAndTheButtonWantsIt) {
    f.Elegir("Etanol");
    f.p.ventana.oculta = false;
    f.pct2.llamadas.clear();
    // The button with a named fuel: a message, and still the chart and the hiding.
    cmdCal_Click(e, dlg, f.c);
    EXPECT_EQ(dlg.mensajes, Mensajes{"Elija Otros de la lista de combustible"});
    EXPECT_EQ(f.p.cboTipCom.focos, 1);
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_FALSE(f.pct2.llamadas.empty());
    EXPECT_TRUE(f.p.ventana.oculta);

    f.p.ventana.oculta = false;
    f.pct2.llamadas.clear();
    f.Elegir("Otros combustibles");
    EXPECT_TRUE(f.p.formulario.entradaPropia);
    EXPECT_TRUE(f.p.optMasa.Value() && !f.p.optFOR.Value());
    EXPECT_EQ(f.p.formulario.bloqueo, 2);
    EXPECT_EQ(e.AtomosC, 2);  // no calculation, no chart
    EXPECT_TRUE(f.pct2.llamadas.empty());
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, TypedFormulaAndMassCompositionGiveTheLibrarysMethanol) {
    f.Formula("1", "4", "", "1", "0,0");
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_EQ(f.p.txtMolN.Text(), "0");  // an empty box reads as 0
    EXPECT_NEAR(e.MasaMolecularCombustible, 0.032043, 1e-15);

    const double masa = e.MasaMolecularCombustible;
    f.Masa(TextoGeneral(e.CienC, '.'), "", TextoGeneral(e.CienO, '.'), "", "0.032043");
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_EQ(e.MasaMolecularCombustible, masa);
    EXPECT_NEAR(e.AtomosC, 1, 1e-12);
    EXPECT_NEAR(e.AtomosH, 4, 1e-12);
    EXPECT_NEAR(e.AtomosO, 1, 1e-12);
    EXPECT_EQ(f.p.txtMolH.Text(), "4");
    EXPECT_TRUE(dlg.mensajes.empty());
}

TEST_F(CombustibleTest, PercentagesAbove100AreRefusedAfterTheHeatingValues) {
    f.Masa("85", "0", "20", "0", "0.1");
    EXPECT_EQ(f.p.txtH.Text(), "-5");
    EXPECT_EQ(dlg.mensajes,
              Mensajes{"Las proporciones en masa de combustible superan el 100%, revise los valores"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(f.p.txtC.focos, 1);
    EXPECT_LT(e.AtomosH, 0);  // what the steps before wrote stays
    EXPECT_NE(f.p.txtHcs.Text(), "");
    EXPECT_FALSE(f.p.ventana.oculta);
}

TEST_F(CombustibleTest, ExactlyHundredPassesUnlessThereIsNoCarbonNorHydrogen) {
    f.Masa("80", "5", "10", "5", "0.2");
    EXPECT_EQ(e.CienH, 0);
    EXPECT_EQ(e.ErrorCalculo, Falso);
    EXPECT_TRUE(dlg.mensajes.empty());

    f.Masa("0", "50", "50", "0", "0.1");
    EXPECT_EQ(dlg.mensajes,
              Mensajes{"La suma de las proporciones en masa de carbono e Hidrógeno debe ser > 0, "
                       "revise los valores"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
}

TEST_F(CombustibleTest, BadFormulasAreToldAndNeverLeaveANaN) {
    const struct {
        const char *C, *H;
        const char* mensaje;
    } casos[] = {
        {"", "", "Introduzca la proporciones de los componentes del combustible o su fórmula química"},
        {"0", "0", "Introduzca la proporciones de los componentes del combustible o su fórmula química"},
        {"siete", "16", " Nº de moles de C no es un número"},
        {"1", "-20", "la masa molecular que resulta de la fórmula es nula o negativa"},
    };
    for (const auto& caso : casos) {
        dlg.mensajes.clear();
        f.p.ventana.oculta = false;
        f.Formula(caso.C, caso.H, "", "", "");
        ASSERT_EQ(dlg.mensajes.size(), 1u) << caso.mensaje;
        EXPECT_NE(dlg.mensajes[0].find(caso.mensaje), std::string::npos) << dlg.mensajes[0];
        EXPECT_EQ(e.ErrorCalculo, Verdadero);
        EXPECT_EQ(e.MasaMolecularCombustible, 0);
        EXPECT_FALSE(f.p.ventana.oculta);
        EXPECT_TRUE(prueba::NoFinitos(e).empty());
    }
    EXPECT_EQ(f.p.txtMolC.Text(), "1");
}

TEST_F(CombustibleTest, BadMolarMassIsRefusedAndTheLastOneStays) {
    f.Elegir("Gasolina");
    const double masa = e.MasaMolecularCombustible;
    for (const char* mala : {"0", "-0.1"}) {
        dlg.mensajes.clear();
        f.Masa("85", "0", "0", "0", mala);
        ASSERT_EQ(dlg.mensajes.size(), 1u);
        EXPECT_NE(dlg.mensajes[0].find("la masa molecular del combustible ha de ser mayor que cero"),
                  std::string::npos);
        EXPECT_EQ(e.ErrorCalculo, Verdadero);
        EXPECT_EQ(e.MasaMolecularCombustible, masa);
        EXPECT_EQ(e.AtomosC, 8);
    }
    // A rejected text is told and the formula follows from the last molar mass.
    dlg.mensajes.clear();
    f.Masa("85", "0", "0", "0", "mucha");
    EXPECT_EQ(dlg.mensajes, Mensajes{" Masa molecular no es un número"});
    EXPECT_EQ(e.ErrorCalculo, Verdadero);
    EXPECT_EQ(e.AtomosC, 85 * 0.01 * masa / 0.012011);
}
