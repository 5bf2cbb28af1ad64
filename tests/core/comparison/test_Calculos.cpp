// A calculation run again for a comparison: from the main window's state, and
// from a saved record with or without its inputs, every figure the same.
#include <gtest/gtest.h>

#include "core/comparison/Calculos.h"

using namespace vanta;

namespace {

struct Original {
    Estado e;
    std::string tipo, informe;
    bool bien = false;

    // The calculation as a window of that decimal separator runs it: its
    // report writes the separator too.
    explicit Original(std::map<std::string, std::string> valores, char separador = '.') {
        const ResultadoCalculo r =
            Calcular(EntradasDeOpciones(OpcionesCalculo{std::move(valores)}), separador);
        e = *r.estado;
        bien = r.CicloCalculado();
        tipo = r.tipoCombustible;
        informe = r.informe;
    }
    bd::TextosRegistro Registro() const { return bd::ValoresRegistro(e, "registro", tipo, informe); }
};

size_t Columna(std::string_view nombre) {
    for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i)
        if (bd::kColumnasTexto[i].nombre == nombre) return i;
    return 0;
}

// Cases whose inputs the record's figures and report tell, once the models
// and the Mixto option are tried.
const std::vector<std::map<std::string, std::string>> kCasos = {
    {},
    {{"ciclo", "Diesel"}, {"combustible", "Gasoil"}, {"fr", "0.8"}, {"rc", "18"}},
    {{"ciclo", "Mixto"}, {"pmax", "6000000"}},
    {{"ciclo", "Mixto"}, {"proporcion-vcte", "30"}, {"compresion", "variable"}},
    // A share with three decimals: only a large engine's heats tell it.
    {{"ciclo", "Mixto"}, {"proporcion-vcte", "37.125"}, {"cilindrada", "20000"}, {"rc", "14"}},
    {{"compresion", "politropica"},
     {"n-compresion", "1,35"},
     {"expansion", "politropica"},
     {"n-expansion", "1.3"}},
    {{"ciclo", "Diesel"}, {"expansion", "variable"}, {"rc", "20"}, {"temperatura-ambiente", "298.15"}},
    {{"combustible", "Metanol"}, {"lambda", "1.2"}, {"humedad", "60"}},
    {{"combustible", "GLP-Butano"}, {"cilindrada", "1998.5"}, {"rc", "8.5"}, {"p1", "90000"}, {"t1", "330"}},
};

}  // namespace

TEST(Calculos, ElCalculoDelEstadoSeRepiteIgualHastaElUltimoBit) {
    auto casos = kCasos;
    casos.push_back({{"formula", "7,16,0,0,0"}, {"entalpia-formacion", "-187800"}, {"fr", "1.1"}});
    casos.push_back({{"masa", "85,0,0,0"}, {"masa-molecular", "0.1"}, {"entalpia-formacion", "-200000"}});
    for (const auto& caso : casos) {
        const Original a(caso);
        ASSERT_TRUE(a.bien);
        const CalculoComparado c = CalculoDeEstado("actual", a.e, a.tipo);
        ASSERT_TRUE(c.Hay()) << c.mensaje;
        EXPECT_EQ(EstadoJSON(*c.estado), EstadoJSON(a.e)) << EscribirEntradas(c.entradas);
        EXPECT_EQ(c.tipoCombustible, a.tipo);
    }
}

TEST(Calculos, UnRegistroSinSusEntradasSeRehaceDeSusCifrasYSuInforme) {
    for (const auto& caso : kCasos) {
        for (char separador : {'.', ','}) {
            const Original a(caso, separador);
            ASSERT_TRUE(a.bien);
            const CalculoComparado c = CalculoDeRegistro(a.Registro(), nullptr);
            ASSERT_TRUE(c.Hay()) << c.mensaje;
            EXPECT_EQ(EstadoJSON(*c.estado), EstadoJSON(a.e)) << EscribirEntradas(c.entradas);
            EXPECT_EQ(c.nombre, "registro");
        }
    }
    // A compression ratio of three decimals comes from the report: the ratio
    // of the record's volumes is rounded to two.
    for (char separador : {'.', ','}) {
        const Original fino({{"rc", "8.125"}}, separador);
        const CalculoComparado c = CalculoDeRegistro(fino.Registro(), nullptr);
        ASSERT_TRUE(c.Hay()) << c.mensaje;
        EXPECT_EQ(EstadoJSON(*c.estado), EstadoJSON(fino.e)) << separador;
    }
}

TEST(Calculos, UnRegistroSinEntradasQueNadaReproduceLoDice) {
    // A fuel of the user's own: the record lacks its enthalpy of formation.
    const Original propio({{"formula", "7,16,0,0,0"}, {"entalpia-formacion", "-187800"}});
    EXPECT_EQ(CalculoDeRegistro(propio.Registro(), nullptr).mensaje, kMsgCombustiblePropio);
    // With its inputs saved, it is calculated again.
    const auto entradas = EscribirEntradas(EntradasDeEstado(propio.e, propio.tipo).front());
    EXPECT_TRUE(CalculoDeRegistro(propio.Registro(), &entradas).Hay());

    // A figure that no calculation gives, and a report that names no cycle.
    const Original otto({});
    bd::TextosRegistro t = otto.Registro();
    t[Columna("T3")] = "3000.5";
    EXPECT_EQ(CalculoDeRegistro(t, nullptr).mensaje, kMsgNoSeReproduce);
    t = otto.Registro();
    t[bd::kColumnaInforme] = "";
    EXPECT_TRUE(CalculoDeRegistro(t, nullptr).Hay());
    t[Columna("TipoCombustible")] = "Queroseno";
    EXPECT_FALSE(CalculoDeRegistro(t, nullptr).Hay());
}

TEST(Calculos, LasEntradasGuardadasSoloValenSiDanLasCifrasDelRegistro) {
    const Original diesel({{"ciclo", "Diesel"}, {"rc", "18"}});
    // Inputs of another calculation under the record's id: the record's own
    // figures decide, and the record is rebuilt from them.
    const std::string ajenas = EscribirEntradas(OpcionesCalculo{{{"ciclo", "Otto"}}});
    const CalculoComparado c = CalculoDeRegistro(diesel.Registro(), &ajenas);
    ASSERT_TRUE(c.Hay());
    EXPECT_EQ(c.estado->TipoCiclo, "Diesel");

    // Inputs that no longer give a calculation, on a record that its figures
    // cannot rebuild either: the calculation's own message.
    bd::TextosRegistro t = diesel.Registro();
    t[Columna("TipoCombustible")] = "Otros combustibles";
    const std::string fallidas = EscribirEntradas(OpcionesCalculo{{{"rc", "abc"}}});
    EXPECT_EQ(CalculoDeRegistro(t, &fallidas).mensaje, " Relación de compresión no es un número");
}

TEST(Calculos, LasEntradasSeEscribenYSeLeen) {
    const OpcionesCalculo o{{{"ciclo", "Mixto"}, {"pmax", "6e6"}, {"formula", "7,16,0,0,0"}}};
    const auto leidas = LeerEntradas(EscribirEntradas(o));
    ASSERT_TRUE(leidas);
    EXPECT_EQ(leidas->valores, o.valores);
    EXPECT_FALSE(LeerEntradas("ciclo=Otto\nvelocidad=3\n"));
    EXPECT_FALSE(LeerEntradas("ciclo Otto\n"));
}
