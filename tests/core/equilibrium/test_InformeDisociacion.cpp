// The cycles with dissociation as the user sees them: the table of the three
// models against its golden file, the warning told the temperature in
// equilibrium, and the curves laid over the program's diagrams, which share
// its states 2 and 1 and keep the enthalpy of complete combustion on the
// program's scale.
#include <gtest/gtest.h>

#include <cmath>

#include "core/equilibrium/CurvasDisociacion.h"
#include "core/equilibrium/InformeDisociacion.h"
#include "core/sequence/Calculo.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::equilibrio;

namespace {

ResultadoCalculo Calculado(const std::map<std::string, std::string>& opciones) {
    OpcionesCalculo o;
    o.valores = opciones;
    return Calcular(EntradasDeOpciones(o));
}

const std::map<std::string, std::string> kDiesel = {
    {"ciclo", "Diesel"}, {"combustible", "Gasoil"}, {"fr", "0.8"}, {"rc", "18"}};

}  // namespace

TEST(InformeDisociacion, LasTablasSonLasDeSuArchivo) {
    std::string texto;
    for (const auto& o :
         {std::map<std::string, std::string>{}, kDiesel,
          std::map<std::string, std::string>{{"ciclo", "Mixto"}, {"proporcion-vcte", "30"}}}) {
        const ResultadoCalculo r = Calculado(o);
        texto += TextoDisociacion(*r.estado, CicloConDisociacion(*r.estado), "\n") + "\n";
    }
    // A state never calculated: both columns empty, with their reasons.
    const Estado vacio;
    texto += TextoDisociacion(vacio, CicloConDisociacion(vacio), "\n");
    EXPECT_EQ(pruebas::CompararDorado("equilibrio/informe.txt", texto), "");
}

TEST(InformeDisociacion, ElAvisoDiceLaMaximaEnEquilibrio) {
    const ResultadoCalculo r = Calculado({});
    const CiclosConDisociacion c = CicloConDisociacion(*r.estado);
    ASSERT_TRUE(AvisaDisociacion(r.avisos));
    std::vector<Aviso> avisos = r.avisos;
    avisos.insert(avisos.begin(), {TipoAviso::PuntoRocio, "otro"});
    CompletarAvisoDisociacion(avisos, c, ',');
    EXPECT_EQ(avisos[0].texto, "otro");
    EXPECT_EQ(avisos[1].texto,
              r.avisos[0].texto + " En equilibrio químico, con disociación, la máxima sería de 2 859 K.");
    EXPECT_FALSE(AvisaDisociacion({{TipoAviso::PuntoRocio, "otro"}}));
    // A cycle that failed tells nothing.
    std::vector<Aviso> sin = r.avisos;
    CompletarAvisoDisociacion(sin, CicloConDisociacion(Estado()), '.');
    EXPECT_EQ(sin[0].texto, r.avisos[0].texto);
}

TEST(CurvasDisociacion, ParteDelEstado2YVuelveAl1EnLaEscalaDelPrograma) {
    const ResultadoCalculo r = Calculado(kDiesel);
    const Estado& e = *r.estado;
    const CiclosConDisociacion c = CicloConDisociacion(e);
    for (const CicloEquilibrio* ciclo : {&c.equilibrio, &c.sinDisociacion}) {
        const CurvasCiclo curvas = CurvasDisociacion(e, *ciclo, ciclo == &c.equilibrio, 7);
        const auto& pv = curvas.De(Diagrama::PV).at(0).puntos;
        const auto& hs = curvas.De(Diagrama::HS).at(0).puntos;
        const auto& ts = curvas.De(Diagrama::TS).at(0).puntos;
        ASSERT_EQ(pv.size(), size_t(kPuntosExpansion) + 4);
        EXPECT_EQ(curvas.De(Diagrama::TV).at(0).color, 7);
        // State 2, which both share, where the program puts it; then 3 and 4.
        EXPECT_FLOAT_EQ(pv[0].x, float(e.V2));
        EXPECT_FLOAT_EQ(pv[0].y, float(e.p2));
        EXPECT_FLOAT_EQ(hs[0].x, float(e.S2));
        EXPECT_FLOAT_EQ(hs[0].y, float(e.h2));
        EXPECT_FLOAT_EQ(ts[0].y, float(ciclo->estado2.T));
        EXPECT_FLOAT_EQ(pv[2].x, float(ciclo->estado4.V));
        EXPECT_FLOAT_EQ(ts[2].y, float(ciclo->estado4.T));
        // The expansion goes down to 5 and the exhaust back to the program's 1.
        for (size_t i = 3; i < pv.size() - 1; ++i) EXPECT_LT(pv[i].y, pv[i - 1].y) << i;
        EXPECT_FLOAT_EQ(pv[pv.size() - 2].y, float(ciclo->estado5.p));
        EXPECT_FLOAT_EQ(pv.back().x, float(e.V1));
        EXPECT_FLOAT_EQ(hs.back().y, float(e.h1));
    }
    // Complete combustion ends its heat near the program's state 4: the
    // formation enthalpies are off the program's scale.
    const CurvasCiclo completa = CurvasDisociacion(e, c.sinDisociacion, false, 0);
    EXPECT_NEAR(completa.De(Diagrama::HS)[0].puntos[2].y, e.h4, 0.05 * e.h4);
    // Frozen, the expansion keeps its entropy per mole.
    const auto& ts = completa.De(Diagrama::TS)[0].puntos;
    EXPECT_NEAR(ts[3].x, ts[2].x, 1e-3);
    EXPECT_TRUE(
        CurvasDisociacion(e, CicloConDisociacion(Estado()).equilibrio, true, 0).De(Diagrama::PV).empty());
}

TEST(CurvasDisociacion, LaEntalpiaSensibleEmpiezaA29815K) {
    Moles n{};
    n[CO2] = 1, n[H2O] = 2, n[OH] = 0.1, n[NO] = 0.05, n[N2] = 7;
    EXPECT_NEAR(EntalpiaSensible(Evaluar(n, 298.15, 1e5, true)), 0, 1e-6);
    // N2 from 298.15 to 1000 K: 21.460 kJ/mol in the NIST-JANAF tables.
    Moles nitrogeno{};
    nitrogeno[N2] = 1;
    EXPECT_NEAR(EntalpiaSensible(Evaluar(nitrogeno, 1000, 1e5, true)), 21460, 30);
}
