// vanta tablas: the same text as the viewer, the fluid from the options of
// calcular, and the exit status of each kind of failure.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "app/LineaTablas.h"
#include "core/fluids/Combustible.h"
#include "core/services/Numeros.h"
#include "core/tables/TablasPropiedades.h"

using namespace vanta;

namespace {

struct Salida {
    int estado = -1;
    std::string out, err;
};

Salida Tablas(const std::vector<std::string>& argumentos) {
    std::ostringstream out, err;
    Salida s;
    s.estado = cli::EjecutarTablas(argumentos, out, err);
    s.out = out.str();
    s.err = err.str();
    return s;
}

}  // namespace

TEST(LineaTablasTest, UsageErrorsExitWithTwoAndTheUsageText) {
    for (const std::vector<std::string>& malos :
         std::vector<std::vector<std::string>>{{"--fluido", "agua"},
                                               {"--por", "litro"},
                                               {"--ciclo", "Otto"},
                                               {"--json"},
                                               {"--paso"},
                                               {"suelto"},
                                               {"--fr", "1", "--lambda", "1"},
                                               {"--fluido", "n2"}}) {
        const Salida s = Tablas(malos);
        EXPECT_EQ(s.estado, cli::kSalidaUso) << malos[0];
        EXPECT_NE(s.err.find("Uso: vanta tablas"), std::string::npos) << malos[0];
        EXPECT_TRUE(s.out.empty()) << malos[0];
    }
    const Salida ayuda = Tablas({"--help"});
    EXPECT_EQ(ayuda.estado, cli::kSalidaBien);
    EXPECT_NE(ayuda.out.find("--fluido aire|humos|Ar|CO|CO2|H2O|N2|O2"), std::string::npos);
}

TEST(LineaTablasTest, ASpeciesTableIsTheViewersTextClosedByALineEnd) {
    const Salida s =
        Tablas({"--fluido", "H2O", "--por", "kg", "--desde", "300", "--hasta", "1200", "--paso", "150,5"});
    ASSERT_EQ(s.estado, cli::kSalidaBien) << s.err;
    EXPECT_TRUE(s.err.empty());

    Estado e;
    DialogosGrabados dlg;
    CajaTextoSimple txtAT("150,5"), txtTinicial("300"), txtTfinal("1200"), cbo("H2O");
    InterruptorSimple mol(false), kg(true), aire(false), humos(false);
    ControlesHerramientas c{.txtAT = txtAT,
                            .txtTinicial = txtTinicial,
                            .txtTfinal = txtTfinal,
                            .optMol = mol,
                            .optKg = kg,
                            .optAire = aire,
                            .optHumos = humos,
                            .cboElemento = cbo};
    MiembrosHerramientas m;
    VisorTablasTexto v;
    ASSERT_TRUE(cmdTab_Click(e, dlg, c, m, v));
    EXPECT_EQ(s.out, v.texto + "\r\n");
}

TEST(LineaTablasTest, TheDefaultsAreThoseOfTheWindowAndTheAir) {
    const Salida s = Tablas({});
    ASSERT_EQ(s.estado, cli::kSalidaBien) << s.err;
    EXPECT_EQ(s.out.rfind("     Aire con 0 % de humedad\r\n\r\n   T (K)            cp (J/mol)", 0), 0u);
    EXPECT_NE(s.out.find("\r\n          5000   "), std::string::npos);
    EXPECT_EQ(s.out.find("\r\n          5100   "), std::string::npos);
}

TEST(LineaTablasTest, TheGasesTakeTheirFuelAndRatioFromTheOptionsOfCalcular) {
    const Salida s =
        Tablas({"--fluido", "humos", "--formula", "8,18,0,0,0", "--entalpia-formacion", "-250000", "--lambda",
                "1,25", "--humedad", "40", "--desde", "1000", "--hasta", "1000"});
    ASSERT_EQ(s.estado, cli::kSalidaBien) << s.err;
    const std::string cabecera =
        "     Aire con 40 % de humedad      Combustible: " + std::string(kOtrosCombustibles) +
        "      Fr = 0.8\r\n\r\n";
    EXPECT_EQ(s.out.substr(0, cabecera.size()), cabecera);
    EXPECT_NE(s.out.find(" \r\n          1000   "), std::string::npos);
}

TEST(LineaTablasTest, FailuresExitWithOneAndTheirMessagesOnStandardError) {
    struct Caso {
        std::vector<std::string> argumentos;
        const char* mensaje;
        bool conTabla;
    };
    for (const Caso& caso : {Caso{{"--humedad", "mucha"}, "no es un número", false},
                             Caso{{"--fluido", "humos", "--fr", "9"}, "", false},
                             Caso{{"--paso", "cien"}, " incremento de T no es un número", false},
                             Caso{{"--fluido", "O2", "--paso", "0"}, "mayor que 0 K", false},
                             Caso{{"--desde", "7400", "--hasta", "7600"}, "5000 K", true}}) {
        const Salida s = Tablas(caso.argumentos);
        EXPECT_EQ(s.estado, cli::kSalidaFallo) << caso.argumentos[0];
        EXPECT_NE(s.err.find(caso.mensaje), std::string::npos) << s.err;
        EXPECT_FALSE(s.err.empty());
        // A refusal leaves nothing on the output; past the model's limit the
        // table is written whole, as the viewer shows it.
        EXPECT_EQ(s.out.empty(), !caso.conTabla) << caso.argumentos[0];
    }
}
