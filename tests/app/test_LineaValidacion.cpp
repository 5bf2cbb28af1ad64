// vanta validar, and what calcular adds for the user's trust: the warnings
// after the report, the warnings and the ideal cycle in the JSON.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "app/LineaComandos.h"
#include "app/LineaValidacion.h"

using namespace vanta;

namespace {

struct Salida {
    int estado;
    std::string out, avisos;  // avisos: standard error, the messages and the warnings
};

Salida Calcular(const std::vector<std::string>& opciones) {
    const cli::Parseo p = cli::ParsearCalcular(opciones);
    EXPECT_TRUE(p.opciones) << p.error;
    std::ostringstream out, avisos;
    const int estado = cli::EjecutarCalcular(*p.opciones, out, avisos);
    return {estado, out.str(), avisos.str()};
}

}  // namespace

TEST(Validar, EscribeLaTablaYNoLlevaOpciones) {
    std::ostringstream out, err;
    EXPECT_EQ(cli::EjecutarValidar({}, out, err), cli::kSalidaBien);
    EXPECT_EQ(out.str().rfind("VALIDACIÓN DE VANTA\n", 0), 0u);
    EXPECT_NE(out.str().find(" 0 no cumplen.\n"), std::string::npos);
    EXPECT_EQ(err.str(), "");
    std::ostringstream out2, err2;
    EXPECT_EQ(cli::EjecutarValidar({"--todo"}, out2, err2), cli::kSalidaUso);
    EXPECT_EQ(err2.str(), "vanta validar: no lleva opciones\nLas opciones, con vanta --help\n");
    EXPECT_EQ(out2.str(), "");
}

TEST(Validar, LosAvisosSiguenAlInformeOVanEnElJson) {
    const std::string disociacion =
        "La temperatura máxima del ciclo (3 187 K) supera 2 500 K: el modelo no tiene en cuenta la "
        "disociación "
        "de los gases, y la temperatura real sería menor.";
    const Salida informe = Calcular(std::vector<std::string>{});
    EXPECT_EQ(informe.estado, cli::kSalidaBien);
    EXPECT_EQ(informe.avisos, "aviso: " + disociacion + "\n");

    const Salida json = Calcular({"--json"});
    EXPECT_EQ(json.avisos, "");
    for (const std::string& clave : {",\"avisos\":[\"" + disociacion + "\"],",
                                     std::string("\"RendimientoIdealAireEstandar\":0.6018928294465"),
                                     std::string("\"RendimientoIdealExponentes\":0.45"),
                                     std::string("\"ExponenteMedioCompresion\":1.3834686"),
                                     std::string("\"ExponenteMedioExpansion\":1.24756931")})
        EXPECT_NE(json.out.find(clave), std::string::npos) << clave;
    EXPECT_EQ(json.out.substr(json.out.size() - 2), "}\n");

    // A calculation that failed has no warnings and no ideal cycle.
    const Salida fallida = Calcular({"--json", "--fr", "2"});
    EXPECT_EQ(fallida.estado, cli::kSalidaFallo);
    EXPECT_EQ(fallida.out.substr(fallida.out.size() - 14), ",\"avisos\":[]}\n");
    EXPECT_EQ(fallida.out.find("RendimientoIdeal"), std::string::npos);
    EXPECT_EQ(Calcular({"--fr", "2"}).avisos, "vanta calcular: Exceso de combustible-Cambie el dosado\n");
}
