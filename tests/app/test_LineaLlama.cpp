// vanta llama: a table of command lines, each one's exit status, messages and
// whole output (text or JSON) against the golden file; and the flame
// temperatures of the combustion textbooks as the command line gives them.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "app/LineaComandos.h"
#include "app/LineaLlama.h"
#include "core/services/Numeros.h"
#include "tests/Dorados.h"

using namespace vanta;

namespace {

struct Salida {
    int estado;
    std::string out, err;
};

Salida Llama(const std::string& linea) {
    std::vector<std::string> argumentos;
    std::istringstream palabras(linea);
    for (std::string p; palabras >> p;) argumentos.push_back(p);
    std::ostringstream out, err;
    const int estado = cli::EjecutarLlama(argumentos, out, err);
    return {estado, out.str(), err.str()};
}

// Stoichiometric with O2 + 3.76 N2 from 298.15 K and 1 atm.
std::string Publicada(const std::string& formula, const std::string& entalpia) {
    return "--formula " + formula + " --entalpia-formacion " + entalpia +
           " --aire-o2-n2 --temperatura-ambiente 298.15 --presion-ambiente 101325";
}

}  // namespace

TEST(LineaLlama, CadaOrdenContraSuArchivo) {
    const std::string ordenes[] = {
        "",
        Publicada("1,4,0,0,0", "-74850"),
        Publicada("1,4,0,0,0", "-74850") + " --json",
        "--combustible Gasoil --lambda 0,8 --humedad 60 --volumen-constante --json",
        "--combustible Metanol --fr 1.5 --sin-disociacion",
        "--fr=2",
        "--desconocida 1",
        "--json --json",
        "--aire-o2-n2 --humedad 50",
        "suelto",
        "--fr",
        "--fr 0",
        "--lambda -1",
        "--fr abc",
        "--temperatura-ambiente 200",
        "--formula 0,0,0,2,0",
    };
    std::string s;
    for (const std::string& orden : ordenes) {
        const Salida r = Llama(orden);
        s += "$ vanta llama " + orden + "\n[" + std::to_string(r.estado) + "]\n" + r.err + "--\n" + r.out +
             "\n";
    }
    EXPECT_EQ(pruebas::CompararDorado("llama/ordenes.txt", s), "");
    const Salida ayuda = Llama("--help");
    EXPECT_EQ(ayuda.estado, cli::kSalidaBien);
    EXPECT_EQ(ayuda.out, cli::TextoUsoLlama());
}

TEST(LineaLlama, LasTemperaturasDeLosLibros) {
    const std::tuple<std::string, std::string, double> publicadas[] = {
        {"1,4,0,0,0", "-74850", 2226}, {"3,8,0,0,0", "-103850", 2267}, {"0,2,0,0,0", "0", 2383}};
    for (const auto& [formula, entalpia, T] : publicadas) {
        const Salida r = Llama(Publicada(formula, entalpia) + " --json");
        ASSERT_EQ(r.estado, cli::kSalidaBien) << r.err;
        const std::string clave = "{\"Temperatura\":";
        ASSERT_EQ(r.out.rfind(clave, 0), 0u) << r.out;
        const auto obtenida = LeerNumero(r.out.substr(clave.size(), r.out.find(',') - clave.size()));
        ASSERT_TRUE(obtenida);
        EXPECT_NEAR(*obtenida, T, 5) << formula;
    }
}
