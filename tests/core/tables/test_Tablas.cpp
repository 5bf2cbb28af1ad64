// The property tables: whole texts of the air, the gases and each species,
// per mole and per kilogram, the walk of the temperatures in single
// precision, past the limit of the model, and the ranges and texts that the
// tool refuses, against the golden file.
#include <gtest/gtest.h>

#include "core/tables/TablasPropiedades.h"
#include "tests/Dorados.h"
#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

struct Tabla {
    const char* que;  // "aire", "humos" or a species
    bool porKg;
    const char *desde, *hasta, *paso;  // the three boxes
    std::vector<std::string> fluido;   // the options that define the fluid; none: never defined
};

const Tabla kTablas[] = {
    {"aire", false, "300", "1300", "250", {"--humedad", "40"}},
    {"aire", true, "250", "3000", "500", {}},
    {"humos", false, "300", "2300", "400", {"--combustible", "Gasoil", "--fr", "0.8", "--humedad", "30"}},
    {"humos", true, "300", "2300", "400", {"--fr", "1.2"}},
    {"aire", false, "999.9", "1000.2", "0.1", {}},
    {"aire", false, "7000", "8000", "400", {}},
    {"humos", false, "300", "600", "100", {"--fr", "3"}},
    {"aire", false, "300", "600", "100", {"NUNCA"}},
    {"Ar", false, "300", "5000", "700", {}},
    {"CO", false, "300", "5000", "700", {}},
    {"CO2", false, "300", "5000", "700", {}},
    {"H2O", false, "300", "5000", "700", {}},
    {"N2", false, "300", "5000", "700", {}},
    {"O2", false, "300", "5000", "700", {}},
    {"CO2", true, "999", "1001", "1", {}},
    {"Elegir", false, "300", "500", "100", {}},
    {"aire", false, "300", "5000", "0", {}},
    {"aire", false, "300", "5000", "-50", {}},
    {"aire", false, "300", "1e39", "1", {}},
    {"aire", false, "1", "5", "1e-7", {}},
    {"aire", false, "-100", "300", "50", {}},
    {"aire", false, "5000", "300", "100", {}},
    {"aire", false, "300", "300", "10", {}},
    {"aire", false, "x", "300", "10", {}},
    {"N2", false, "300", "y", "10", {}},
};

// The tables window's boxes and options.
EntradasHerramientas Pantalla(const char* paso, const char* desde, const char* hasta, const char* que,
                              bool porKg, bool humos) {
    return {.incremento = paso,
            .tInicial = desde,
            .tFinal = hasta,
            .porMol = !porKg,
            .porKg = porKg,
            .aire = !humos,
            .humos = humos,
            .elemento = que};
}

std::string Hacer(const Tabla& t) {
    Estado e;
    Mensajes dlg;
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    const bool humos = std::string(t.que) == "humos";
    const Entradas fluido = EntradasDeOpciones(Opciones(t.fluido));
    if (t.fluido.empty() || t.fluido[0] != "NUNCA") DefinirFluido(e, dlg, fluido, s, humos);
    const EntradasHerramientas c = Pantalla(t.paso, t.desde, t.hasta, t.que, t.porKg, humos);
    MiembrosHerramientas m;
    VisorTablasTexto v;
    const bool mezcla = humos || std::string(t.que) == "aire";
    const bool bien = mezcla ? cmdTablas_Click(e, dlg, c, m, v, TextoListaCombustible(fluido))
                             : cmdTab_Click(e, dlg, c, m, v);
    std::string r = std::string("== ") + t.que + (t.porKg ? " por kg " : " por mol ") + t.desde + " " +
                    t.hasta + " " + t.paso + (bien ? " bien" : " falla") +
                    (v.visible ? " visible" : " oculto") + "\n";
    for (const std::string& msg : dlg.Textos()) r += "  " + msg + "\n";
    return r + v.texto + "\n";
}

}  // namespace

TEST(Tablas, UnaTablaRechazadaNoCallaLaSiguiente) {
    Estado e;
    Mensajes dlg;
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    ASSERT_TRUE(DefinirFluido(e, dlg, Entradas(), s, false));
    EntradasHerramientas c = Pantalla("100", "300", "5000", "Elegir", false, false);
    MiembrosHerramientas m;
    VisorTablasTexto v;
    c.tFinal = "5OOO";  // a typo: letters O
    EXPECT_FALSE(cmdTablas_Click(e, dlg, c, m, v, "Gasolina"));
    c.tFinal = "700";
    EXPECT_TRUE(cmdTablas_Click(e, dlg, c, m, v, "Gasolina"));
    // The figures of 700 K and of 600 K differ: none is a stale copy.
    const auto filas = Lineas(v.texto);
    ASSERT_GE(filas.size(), 4u);
    EXPECT_NE(filas[filas.size() - 2].substr(18), filas[filas.size() - 4].substr(18));
}

TEST(Tablas, CadaTablaContraSuArchivo) {
    std::string s;
    for (const Tabla& t : kTablas) s += Hacer(t);
    EXPECT_EQ(CompararDorado("tablas.txt", s), "");
}
