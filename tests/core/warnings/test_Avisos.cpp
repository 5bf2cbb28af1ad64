// The validity warnings: each where the model leaves its ground, and none
// where it does not.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/fluids/AireHumedo.h"
#include "core/sequence/Calculo.h"
#include "core/warnings/Avisos.h"
#include "tests/core/Calculos.h"

using namespace vanta;

namespace {

using Tipos = std::multiset<TipoAviso>;
constexpr TipoAviso D = TipoAviso::Disociacion, F = TipoAviso::FueraDeAjuste, R = TipoAviso::PuntoRocio,
                    I = TipoAviso::Inflamabilidad, P = TipoAviso::PasadasGamma, A = TipoAviso::Ambiente;

// A whole calculation, and the fuel as its list names it.
Estado Calcular(const std::vector<std::string>& opciones, std::string& combustible) {
    const auto c = pruebas::Calcular(opciones, false);
    EXPECT_TRUE(c->bien);
    combustible = c->r.tipoCombustible;
    return c->e;
}

Tipos TiposDe(const std::vector<Aviso>& avisos) {
    Tipos t;
    for (const auto& a : avisos) t.insert(a.tipo);
    return t;
}

}  // namespace

TEST(Avisos, CadaUnoDondeElModeloSaleDeSuTerrenoYNingunoFuera) {
    const struct {
        std::vector<std::string> opciones;
        Tipos esperados;
    } casos[] = {
        // On the model's ground: lean enough to stay under 2500 K, within the
        // flammability range, humid but not saturated air.
        {{"--combustible", "Metanol", "--fr", "0.6"}, {}},
        {{"--ciclo", "Diesel", "--combustible", "Gasoil", "--fr", "0.6", "--rc", "18"}, {}},
        {{"--combustible", "Metanol", "--fr", "0.6", "--humedad", "100"}, {}},
        {{"--combustible", "Metanol", "--fr", "0.6", "--humedad", "90", "--temperatura-ambiente", "320"}, {}},
        // A user's fuel has no known flammability range.
        {{"--formula", "7,16,0,0,0", "--entalpia-formacion", "-187800", "--fr", "0.3"}, {}},
        // The stoichiometric gasoline of the screens burns past 2500 K.
        {{}, {D}},
        {{"--t1", "1400"}, {D, F}},
        // Lean beyond the flammability limit of gasoline (Fr 0.80), and of
        // methanol (Fr 0.51); rich beyond that of ethane (Fr 2.36) is refused
        // by the combustion itself, so only the lean side can be seen.
        {{"--fr", "0.7"}, {D, I}},
        {{"--fr", "0.5", "--combustible", "Metanol"}, {I}},
        // Saturated air compressed before admission, or admitted colder than
        // the ambient: its water condenses at the end of the exhaust line.
        {{"--combustible", "Metanol", "--fr", "0.6", "--humedad", "100", "--p1", "150000"}, {R}},
        {{"--combustible", "Metanol", "--fr", "0.6", "--humedad", "100", "--t1", "290"}, {R}},
        // An ambient no air on Earth has is calculated, and told.
        {{"--combustible", "Metanol", "--fr", "0.6", "--temperatura-ambiente", "450"}, {A, D}},
    };
    for (const auto& caso : casos) {
        std::string combustible;
        const Estado e = Calcular(caso.opciones, combustible);
        const std::vector<Aviso> avisos = AvisosValidez(e, combustible);
        std::string textos;
        for (const auto& a : avisos) textos += "\n  " + a.texto;
        EXPECT_EQ(TiposDe(avisos), caso.esperados) << textos;
    }
}

TEST(Avisos, LosTextosDanLasCifrasQueLosDisparan) {
    std::string combustible;
    const Estado e = Calcular({"--fr", "0.7", "--humedad", "100", "--p1", "150000"}, combustible);
    std::string todos;
    for (const auto& a : AvisosValidez(e, combustible)) todos += a.texto + "\n";
    EXPECT_EQ(todos,
              "La línea de escape, a 307 K, está por debajo del punto de rocío de su agua (308 K): parte del "
              "agua condensaría, y el modelo la trata como vapor.\n"
              "Fr = 0.7 está fuera del intervalo de inflamabilidad habitual de Gasolina (Fr de 0.83 a 4.78, "
              "límites en aire a 20 °C de 1.4 % a 7.6 % en volumen): la mezcla quizá no arda como el modelo "
              "supone.\n");
}

TEST(Avisos, TemperaturasMasAllaDeLosLimitesNoEnEllos) {
    Estado e;
    e.T1 = 300, e.T2 = 700, e.T5 = 1500, e.Tambiente = 300;
    const struct {
        double T3;
        Tipos esperados;
    } casos[] = {{2500, {}}, {2500.5, {D}}, {5000, {D}}, {5000.5, {D, F}}};
    for (const auto& caso : casos) {
        e.T3 = e.T4 = caso.T3;
        EXPECT_EQ(TiposDe(AvisosValidez(e, "")), caso.esperados) << caso.T3;
    }
    e.T3 = e.T4 = 2000;
    const std::pair<double, Tipos> ambientes[] = {{180, {}}, {179.5, {A}}, {340, {}}, {340.5, {A}}};
    for (const auto& [ambiente, esperados] : ambientes) {
        e.Tambiente = ambiente;
        EXPECT_EQ(TiposDe(AvisosValidez(e, "")), esperados) << ambiente;
    }
}

TEST(Avisos, EstadoCincoBajoSuRocioYBusquedasDeMuchasPasadas) {
    // A state written by hand: the gases of state 5 cold and wet.
    Estado e;
    e.T1 = 300, e.T5 = 320, e.p1 = 100000, e.p5 = 100000, e.xH2OHumos = 0.2, e.xO2Aire = 0.2,
    e.Tambiente = 300;
    e.pasadas = {.aire = 20, .humos = 21};
    const std::vector<Aviso> avisos = AvisosValidez(e, "Otros combustibles");
    ASSERT_EQ(TiposDe(avisos), (Tipos{R, P}));
    EXPECT_EQ(avisos[0].texto.rfind("El gas del estado 5, a 320 K,", 0), 0u) << avisos[0].texto;
    EXPECT_NE(avisos[1].texto.find("de la expansión necesitó 21 pasadas"), std::string::npos)
        << avisos[1].texto;
    e.pasadas = {.aire = 21, .humos = 0};
    EXPECT_NE(AvisosValidez(e, "").back().texto.find("de la compresión necesitó 21"), std::string::npos);
    // An exhaust line with no length (T5 not above T1) is not walked, however
    // wet the air.
    e = Estado{};
    e.T1 = 300, e.T5 = 290, e.p1 = 100000, e.p5 = 100000, e.xH2OAire = 0.2, e.Tambiente = 300;
    EXPECT_EQ(TiposDe(AvisosValidez(e, "")), Tipos{});
}

TEST(Avisos, ElPuntoDeRocioEsDondeElAguaSatura) {
    for (double T : {280.0, 320.0, 360.0}) EXPECT_NEAR(PuntoRocio(PresionSaturacion(T)), T, 1e-6) << T;
}
