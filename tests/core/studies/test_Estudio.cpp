// Parametric studies: the values of a varied input, the order of the points,
// the run on any number of threads, and the table as CSV and JSON (golden
// files of a small study with a failing point).
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <sstream>
#include <type_traits>

#include "core/services/JSON.h"
#include "core/studies/Estudio.h"
#include "core/studies/TablaEstudio.h"
#include "tests/Dorados.h"

using namespace vanta;

namespace {

std::vector<std::string> Valores(const char* texto, bool numerica = true) {
    Variacion v;
    const std::string error = LeerValores(texto, numerica, v);
    if (!error.empty()) return {"error: " + error};
    std::vector<std::string> valores;
    for (size_t i = 0; i < v.Cuenta(); ++i) valores.push_back(v.Valor(i));
    return valores;
}

Variacion Lista(const char* nombre, std::vector<std::string> valores) {
    Variacion v;
    v.nombre = nombre;
    v.valores = std::move(valores);
    return v;
}

using Textos = std::vector<std::string>;

TEST(LeerValores, IntervalosYListas) {
    struct Caso {
        const char* texto;
        bool numerica;
        Textos esperados;
    };
    const Caso casos[] = {
        {"8:10:0.5", true, {"8", "8.5", "9", "9.5", "10"}},
        {"10:8:-1", true, {"10", "9", "8"}},
        {"0,8:1:0,1", true, {"0.8", "0.9", "1"}},               // decimal commas; 1 is reached
        {"1e5:3e5:1e5", true, {"100000", "200000", "300000"}},  // exponents: shortest decimal
        {"-1:1:1", true, {"-1", "0", "1"}},                     // no "-0"
        {"7:7:1", true, {"7"}},
        {"8:9:0.3", true, {"8", "8.3", "8.6", "8.9"}},  // the end need not be reached
        {"0.8, 0.9 ,1", true, {"0.8", "0.9", "1"}},
        {"1,3;1,35", true, {"1,3", "1,35"}},  // ";" keeps decimal commas
        {"Gasolina,Gasoil", false, {"Gasolina", "Gasoil"}},
    };
    for (const Caso& c : casos) EXPECT_EQ(Valores(c.texto, c.numerica), c.esperados) << c.texto;
    // The slack of a range's count: 60 steps of a tenth end at 14.
    const Textos decimas = Valores("8:14:0.1");
    ASSERT_EQ(decimas.size(), 61u);
    EXPECT_EQ(decimas[30], "11");
    EXPECT_EQ(decimas.back(), "14");

    for (const char* malo : {"8:14", "8:14:0", "14:8:1", "a:b:c", "1,,2", "1,x", "8:14:1:2", "0:1e9:1"})
        EXPECT_EQ(Valores(malo).front().rfind("error: ", 0), 0u) << malo;
    EXPECT_EQ(Valores("Gasolina:Gasoil", false).front().rfind("error: ", 0), 0u);
}

TEST(Estudio, LasSalidasYLasEntradasSeBuscanPorSuNombre) {
    // Each output of the state reads the field whose name it gives.
    Estado e;
    int n = 0;
    VisitarCampos(e, [&](const char* nombre, auto& campo) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(campo)>>) campo = static_cast<float>(++n);
        for (const SalidaEstudio& s : SalidasEstudio()) {
            if (std::string_view(s.campo) == nombre) {
                EXPECT_EQ(s.valor(e, 0), n) << s.nombre;
            }
        }
    });
    for (const SalidaEstudio& s : SalidasEstudio()) EXPECT_EQ(BuscarSalidaEstudio(s.nombre), &s);
    // An input with a unit is a number; a choice (fuel, cycle, model) has none.
    for (const EntradaEstudio& en : EntradasEstudio()) {
        EXPECT_EQ(BuscarEntrada(en.nombre), &en) << en.nombre;
        EXPECT_EQ(en.Numerica(), !en.unidad.empty()) << en.nombre;
    }
    EXPECT_EQ(BuscarSalidaEstudio("nada"), nullptr);
    e.Qciclo = 10, e.Q23 = 4;
    EXPECT_EQ(BuscarSalidaEstudio("q34")->valor(e, 0), 6);
    EXPECT_EQ(BuscarSalidaEstudio("potencia")->valor(e, 735.49875), 735.49875);
    EXPECT_EQ(BuscarSalidaEstudio("potencia-cv")->valor(e, 735.49875), 1);
}

TEST(Estudio, QuitarExcluidasDejaMandarALaVariada) {
    OpcionesCalculo o;
    for (const char* n : {"lambda", "pmax", "formula", "masa-molecular", "entalpia-formacion", "rc"})
        o.valores[n] = "1";
    QuitarExcluidas(o, "fr");
    QuitarExcluidas(o, "proporcion-vcte");
    EXPECT_EQ(o.valores.size(), 4u);
    QuitarExcluidas(o, "combustible");
    ASSERT_EQ(o.valores.size(), 1u);
    EXPECT_TRUE(o.Tiene("rc"));
    EXPECT_EQ(ValoresEleccion("ciclo"), (Textos{"Otto", "Diesel", "Mixto"}));
    EXPECT_EQ(ValoresEleccion("combustible").size(), 7u);
    EXPECT_TRUE(ValoresEleccion("rc").empty());
}

// A small study: rc over three values, one of which the cycle refuses, for two
// fuels, at a speed, with outputs of double and single precision.
Estudio Pequeno() {
    Estudio e;
    e.base.valores["rpm"] = "3000";
    e.variaciones = {Lista("rc", {"8", "1", "12"}), Lista("combustible", {"Gasolina", "Gasoil"})};
    for (const char* s : {"rendimiento", "p3", "presion-maxima", "potencia", "q34"})
        e.salidas.push_back(BuscarSalidaEstudio(s));
    return e;
}

TEST(Estudio, LosPuntosRecorrenLaPrimeraEntradaParaCadaValorDeLaSegunda) {
    const Estudio e = Pequeno();
    ASSERT_EQ(NumeroPuntos(e), 6u);
    EXPECT_EQ(IndicesPunto(e, 4), (std::vector<size_t>{1, 1}));
    const OpcionesCalculo o = OpcionesPunto(e, 5);
    EXPECT_EQ(o.Valor("rc"), "12");
    EXPECT_EQ(o.Valor("combustible"), "Gasoil");
    EXPECT_EQ(o.Valor("rpm"), "3000");
    EXPECT_EQ(NumeroPuntos(Estudio{}), 0u);
}

TEST(Estudio, LasPartesSonBloquesQueCubrenElEstudio) {
    for (size_t puntos : {1u, 7u, 10u, 1000u})
        for (size_t n = 1; n <= std::min<size_t>(puntos, 4); ++n) {
            size_t hasta = 0;
            for (size_t k = 1; k <= n; ++k) {
                const auto [a, b] = PuntosDeLaParte(puntos, {k, n});
                EXPECT_EQ(a, hasta);
                EXPECT_LE(b - a, puntos / n + 1);
                hasta = b;
            }
            EXPECT_EQ(hasta, puntos);
        }
}

// The whole table of a run, as CSV.
std::string Tabla(const Estudio& e, unsigned hilos, size_t desde, size_t hasta,
                  DialectoCSV d = DialectoCSV::Rfc4180) {
    std::string t;
    size_t siguiente = desde;
    EjecutarEstudio(e, desde, hasta, hilos, [&](size_t punto, ResultadoPunto& r) {
        EXPECT_EQ(punto, siguiente++);
        t += FilaCSV(e, punto, r, d);
    });
    EXPECT_EQ(siguiente, hasta);
    return t;
}

TEST(Estudio, LaTablaNoDependeDeLosHilosYUnPuntoFallidoQuedaConSusMensajes) {
    const Estudio e = Pequeno();
    const std::string uno = Tabla(e, 1, 0, 6);
    EXPECT_EQ(Tabla(e, 2, 0, 6), uno);
    EXPECT_EQ(Tabla(e, 5, 0, 6), uno);
    EXPECT_EQ(Tabla(e, 3, 2, 5), Tabla(e, 1, 2, 5));
    EXPECT_EQ(Tabla(e, 2, 3, 3), "");

    std::ostringstream json;
    EscritorJSONEstudio escritor(json, e);
    EjecutarEstudio(e, 0, 6, 2, [&](size_t punto, ResultadoPunto& r) { escritor.Punto(punto, r); });
    escritor.Cerrar();
    EXPECT_EQ(pruebas::CompararDorado("estudio/pequeno.csv", CabeceraCSV(e, DialectoCSV::Rfc4180) + uno), "");
    EXPECT_EQ(pruebas::CompararDorado("estudio/pequeno-es.csv", CabeceraCSV(e, DialectoCSV::Espanol) +
                                                                    Tabla(e, 2, 0, 6, DialectoCSV::Espanol)),
              "");
    EXPECT_EQ(pruebas::CompararDorado("estudio/pequeno.json", json.str()), "");
}

TEST(Estudio, UnaVelocidadQueNoEsNumeroHaceFallarElPunto) {
    Estudio e = Pequeno();
    e.base.valores["rpm"] = "deprisa";
    const ResultadoPunto r = CalcularPunto(e, 0);
    EXPECT_FALSE(r.bien);
    EXPECT_EQ(r.mensajes, Textos{" rpm no es un número"});
    EXPECT_TRUE(std::isnan(r.valores[0]));
    // Without an output of power the speed is not read.
    e.salidas = {BuscarSalidaEstudio("rendimiento")};
    EXPECT_TRUE(CalcularPunto(e, 0).bien);
}

TEST(Estudio, LasSalidasConDisociacionSonLasDeSusCiclos) {
    Estudio e = Pequeno();
    e.salidas.clear();
    for (const char* nombre : {"t3-equilibrio", "p3-equilibrio", "t4-equilibrio", "p4-equilibrio",
                               "t5-equilibrio", "wciclo-equilibrio", "rendimiento-equilibrio", "no-ppm",
                               "t4-sin-disociacion", "rendimiento-sin-disociacion"})
        e.salidas.push_back(BuscarSalidaEstudio(nombre));
    const ResultadoPunto r = CalcularPunto(e, 0);
    ASSERT_TRUE(r.bien);
    const auto c = equilibrio::CicloConDisociacion(*Calcular(EntradasPunto(e, 0)).estado);
    const auto& q = c.equilibrio;
    const std::vector<double> esperados = {q.estado3.T,
                                           q.estado3.p,
                                           q.estado4.T,
                                           q.estado4.p,
                                           q.estado5.T,
                                           q.trabajo,
                                           q.rendimiento,
                                           q.estado4.Fraccion(equilibrio::NO) * 1e6,
                                           c.sinDisociacion.estado4.T,
                                           c.sinDisociacion.rendimiento};
    EXPECT_EQ(r.valores, esperados);
}

TEST(Estudio, CancelarParaEntrePuntos) {
    Estudio e = Pequeno();
    ASSERT_EQ(LeerValores("8:12:0.1", true, e.variaciones[0]), "");
    for (unsigned hilos : {1u, 2u}) {
        std::atomic<bool> cancelar{false};
        size_t entregados = 0;
        EjecutarEstudio(
            e, 0, NumeroPuntos(e), hilos,
            [&](size_t, ResultadoPunto&) {
                if (++entregados == 3) cancelar = true;
            },
            &cancelar);
        EXPECT_EQ(entregados, 3u) << hilos;
    }
}

TEST(TablaEstudio, CamposEntreComillasYDecimalesDelDialecto) {
    Estudio e;
    e.variaciones = {Lista("rc", {"8,5"})};
    e.salidas = {BuscarSalidaEstudio("rendimiento"), BuscarSalidaEstudio("presion-maxima")};
    ResultadoPunto r{true, {0.25, 16777217.0}, {"dice \"sí\", y\notra"}};
    EXPECT_EQ(FilaCSV(e, 0, r, DialectoCSV::Rfc4180), "8.5,0.25,16777216,\"dice \"\"sí\"\", y\notra\"\r\n");
    EXPECT_EQ(FilaCSV(e, 0, r, DialectoCSV::Espanol), "8,5;0,25;16777216;\"dice \"\"sí\"\", y\notra\"\r\n");
    EXPECT_EQ(CabeceraCSV(e, DialectoCSV::Espanol),
              "rc [-];rendimiento [-];presion-maxima [Pa];mensajes\r\n");
    r = {false, {std::nan(""), std::nan("")}, {"a", "b"}};
    EXPECT_EQ(FilaCSV(e, 0, r, DialectoCSV::Rfc4180), "8.5,,,a | b\r\n");
    e.variaciones = {Lista("combustible", {"Gasoil"})};
    EXPECT_EQ(TextoEntrada(e, 0, 0, ','), "Gasoil");
    EXPECT_EQ(TituloConUnidad("Ciclo", ""), "Ciclo");
    // A message in the JSON keeps its quotes, backslashes and line ends.
    EXPECT_EQ(TextoCadenaJSON("dice \"sí\" \\ no\n"), "\"dice \\\"sí\\\" \\\\ no\\u000a\"");
}

}  // namespace
