#include <gtest/gtest.h>

#include <cmath>

#include "core/fluids/AireHumedo.h"

using namespace vanta;

namespace {
// The air screen with its boxes.
struct PantallaAire {
    CajaTextoSimple txtPreAmb{"100000"}, txtTemAmb{"300"}, txtHum{"0"};
    InterruptorSimple chkOcultar{true};
    VentanaSimple ventana;
    SuperficieNula pct1;
    ControlesAire Controles() {
        return {.txtPreAmb = txtPreAmb,
                .txtTemAmb = txtTemAmb,
                .txtHum = txtHum,
                .chkOcultar = chkOcultar,
                .ventana = ventana,
                .pct1 = pct1};
    }

    Estado e;
    DialogosGrabados dlg;
    bool Calcular() {
        auto c = Controles();
        return CalcularAire(e, dlg, c);
    }
};
}  // namespace

TEST(CalcularAireTest, DryAirHasTheTableFractionsAndMolarMass) {
    PantallaAire p;
    ASSERT_TRUE(p.Calcular());
    EXPECT_TRUE(p.dlg.mensajes.empty());
    EXPECT_EQ(p.e.xH2OAire, 0);
    EXPECT_EQ(p.e.xN2Aire, 0.78087);
    EXPECT_EQ(p.e.xO2Aire, 0.20946);
    EXPECT_EQ(p.e.xArAire, 0.00934);
    EXPECT_EQ(p.e.xCO2Aire, 0.00033);
    EXPECT_EQ(p.e.MasaMolecularAire,
              0.20946 * 0.032 + 0.78087 * 0.028018 + 0.00033 * 0.044011 + 0.00934 * 0.039948);
    EXPECT_NEAR(p.e.MasaMolecularAire, 0.0289688, 1e-7);
    EXPECT_EQ(p.e.Psaturacion, std::exp(19.1 - 0.008 * 300 - 6012.0 / 300) * 100000.0);
    EXPECT_GT(p.e.Psaturacion, 3500);
    EXPECT_LT(p.e.Psaturacion, 3600);
    EXPECT_TRUE(p.ventana.oculta);
}

TEST(CalcularAireTest, HumidityScalesTheDryFractionsAndTheySumToOne) {
    PantallaAire p;
    p.txtTemAmb.SetText("320");
    p.txtHum.SetText("60");
    ASSERT_TRUE(p.Calcular());
    const double x = 60 * p.e.Psaturacion / (100000 * 100.0);
    EXPECT_EQ(p.e.xH2OAire, x);
    EXPECT_EQ(p.e.xN2Aire, 0.78087 - x * 0.78087);
    EXPECT_NEAR(p.e.xO2Aire + p.e.xN2Aire + p.e.xCO2Aire + p.e.xArAire + p.e.xH2OAire, 1, 1e-15);
    EXPECT_TRUE(p.dlg.mensajes.empty());
    EXPECT_LT(p.e.MasaMolecularAire, 0.0289688);
}

TEST(CalcularAireTest, TemperatureLimitsKeepTheGapBetween250And300) {
    for (const char* t : {"250", "280", "5000"}) {
        PantallaAire p;
        p.txtTemAmb.SetText(t);
        EXPECT_TRUE(p.Calcular()) << t;
        EXPECT_TRUE(p.dlg.mensajes.empty()) << t;
    }
    PantallaAire baja;
    baja.txtTemAmb.SetText("249,9");
    EXPECT_FALSE(baja.Calcular());
    EXPECT_EQ(baja.dlg.mensajes, std::vector<std::string>{" La temperatura ha de ser mayor a 300 K "});
    EXPECT_EQ(baja.e.MasaMolecularAire, 0);  // the air stays as it was
    EXPECT_FALSE(baja.ventana.oculta);

    PantallaAire alta;
    alta.txtTemAmb.SetText("5000.1");
    EXPECT_FALSE(alta.Calcular());
    EXPECT_EQ(alta.dlg.mensajes, std::vector<std::string>{" La temperatura ha de ser menor a 5 000 K "});
}

TEST(CalcularAireTest, RejectedTextIsToldAndTheCalculationGoesOn) {
    PantallaAire p;
    p.txtPreAmb.SetText("mucha");
    p.Calcular();
    ASSERT_FALSE(p.dlg.mensajes.empty());
    EXPECT_EQ(p.dlg.mensajes[0], "presión ambienteno es un número");
    EXPECT_EQ(p.e.ErrorCalculo, Verdadero);
    EXPECT_EQ(p.txtPreAmb.focos, 1);
}

TEST(CalcularAireTest, ZeroPressureIsAClearFailureNotANaN) {
    PantallaAire p;
    p.txtPreAmb.SetText("0");
    EXPECT_FALSE(p.Calcular());
    EXPECT_EQ(p.e.ErrorCalculo, Verdadero);
    ASSERT_EQ(p.dlg.mensajes.size(), 1u);
    EXPECT_NE(p.dlg.mensajes[0].find("presión ambiente es cero"), std::string::npos);
    EXPECT_TRUE(std::isfinite(p.e.xH2OAire));
}

TEST(CalcularAireTest, HumidityAboveSaturationGivesNegativeFractionsWithoutComplaint) {
    PantallaAire p;
    p.txtPreAmb.SetText("1000");
    p.txtHum.SetText("100");
    EXPECT_TRUE(p.Calcular());
    EXPECT_GT(p.e.xH2OAire, 1);
    EXPECT_LT(p.e.xN2Aire, 0);
    EXPECT_TRUE(p.dlg.mensajes.empty());
}
