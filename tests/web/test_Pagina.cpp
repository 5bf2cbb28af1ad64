// What the web page gets from the core, against what the command line gives
// for the same inputs: the report, the JSON, a study's table; and what the
// page adds of its own: the inputs it builds its forms from, the stage a
// refusal belongs to, the readout, the comparison.
#include <gtest/gtest.h>

#include <sstream>

#include "app/LineaComandos.h"
#include "app/LineaEstudio.h"
#include "core/studies/Estudio.h"
#include "web/Pagina.h"

using namespace vanta;
using namespace vanta::web;

namespace {

using Palabras = std::vector<std::string>;

// The text of a member of a JSON object that is a string, "" when there is
// none; enough of JSON for the page's answers.
std::string Campo(const std::string& json, const std::string& clave, size_t desde = 0) {
    size_t i = json.find("\"" + clave + "\":\"", desde);
    if (i == std::string::npos) return {};
    std::string t;
    for (i += clave.size() + 4; i < json.size() && json[i] != '"'; ++i) {
        if (json[i] != '\\') {
            t += json[i];
            continue;
        }
        const char c = json[++i];
        if (c == 'u') {
            t += static_cast<char>(std::stoi(json.substr(i + 1, 4), nullptr, 16));
            i += 4;
        } else {
            t += c;
        }
    }
    return t;
}

bool Tiene(const std::string& json, const std::string& parte) {
    return json.find(parte) != std::string::npos;
}

// "--ciclo Diesel" as the page's line "ciclo=Diesel".
std::string Lineas(const Palabras& palabras) {
    std::string t;
    for (size_t i = 0; i + 1 < palabras.size(); i += 2)
        t += palabras[i].substr(2) + "=" + palabras[i + 1] + "\n";
    return t;
}

// What `vanta calcular` writes on its standard output, and its messages.
std::pair<std::string, std::vector<std::string>> Linea(Palabras palabras, bool json) {
    if (json) palabras.push_back("--json");
    const cli::Parseo p = cli::ParsearCalcular(palabras);
    EXPECT_TRUE(p.opciones) << p.error;
    const ResultadoCalculo r = Calcular(cli::EntradasDeCalcular(*p.opciones));
    std::ostringstream out, err;
    cli::EscribirCalculo(r, *p.opciones, out, err);
    return {out.str(), r.TextosMensajes()};
}

}  // namespace

TEST(Pagina, ElInformeYElJSONSonLosDeVantaCalcular) {
    const Palabras casos[] = {
        {},
        {"--ciclo", "Diesel", "--combustible", "Gasoil", "--fr", "0.8", "--rc", "18"},
        {"--ciclo", "Mixto", "--proporcion-vcte", "30", "--compresion", "variable", "--humedad", "47,5"},
        {"--formula", "7,16,0,0,0", "--entalpia-formacion", "-187800", "--lambda", "0.9", "--expansion",
         "politropica", "--n-expansion", "1.3"},
        {"--rc", "abc"},
        {"--ciclo", "Mixto", "--pmax", "1000"},
    };
    Calculadora c;
    for (const Palabras& caso : casos) {
        const std::string r = c.Calcular(Lineas(caso));
        const auto [informe, mensajes] = Linea(caso, false);
        EXPECT_EQ(Campo(r, "informe"), informe) << Lineas(caso);
        EXPECT_EQ(c.JSON(), Linea(caso, true).first) << Lineas(caso);
        EXPECT_EQ(Tiene(r, "\"bien\":true"), !informe.empty());
        for (const std::string& m : mensajes) EXPECT_TRUE(Tiene(r, m)) << m;
    }
}

TEST(Pagina, LaPotenciaEsLaDeLaLineaDeOrdenes) {
    const std::string r = Calculadora().Calcular("rpm=3000\nciclo=Diesel\nrc=18\n");
    const std::string salida = Linea({"--rpm", "3000", "--ciclo", "Diesel", "--rc", "18"}, false).first;
    EXPECT_TRUE(Tiene(salida, "Potencia = " + Campo(r, "W") + " W = " + Campo(r, "CV") + " CV")) << r;
    // A speed refused: no power, the message.
    const std::string rechazada = Calculadora().Calcular("rpm=deprisa\n");
    EXPECT_FALSE(Tiene(rechazada, "\"potencia\":{"));
    EXPECT_TRUE(Tiene(rechazada, "\"etapa\":\"potencia\""));
    EXPECT_TRUE(Tiene(rechazada, "rpm no es un número"));
}

TEST(Pagina, UnRechazoDiceLaEtapaQueNoPasa) {
    Calculadora c;
    EXPECT_EQ(Campo(c.Calcular("temperatura-ambiente=frio\n"), "etapa"), "aire");
    EXPECT_EQ(Campo(c.Calcular("formula=7,x,0,0,0\nfr=abc\n"), "etapa"), "combustible");
    EXPECT_EQ(Campo(c.Calcular("fr=abc\n"), "etapa"), "combustion");
    EXPECT_EQ(Campo(c.Calcular("lambda=0\n"), "etapa"), "combustion");
    EXPECT_EQ(Campo(c.Calcular("rc=1\n"), "etapa"), "ciclo");
    EXPECT_EQ(Campo(c.Calcular(""), "etapa"), "");
    // What the page refuses before the calculation: a choice not on its list
    // (with the input), a name that is no input.
    const std::string ciclo = c.Calcular("rc=12\nciclo=Wankel\n");
    EXPECT_EQ(Campo(ciclo, "entrada"), "ciclo");
    EXPECT_EQ(Campo(ciclo, "etapa"), "ciclo");
    EXPECT_TRUE(Tiene(ciclo, "Ciclo: «Wankel» no es ninguno de Otto, Diesel, Mixto"));
    EXPECT_TRUE(Tiene(c.Calcular("color=rojo\n"), "«color» no es una entrada del cálculo"));
    EXPECT_TRUE(Tiene(c.Calcular("rc\n"), "nombre=valor"));
    EXPECT_EQ(c.PaginaHTML(), "");
    EXPECT_EQ(c.JSON(), "");
    EXPECT_EQ(c.Leer(0, 10, 10), "{}");
}

TEST(Pagina, LasEntradasSonLasDelNucleo) {
    const std::string j = EntradasJSON();
    for (const EntradaEstudio& e : EntradasEstudio())
        EXPECT_TRUE(Tiene(j, "\"nombre\":\"" + std::string(e.nombre)));
    auto de = [&](const std::string& nombre) { return j.substr(j.find("{\"nombre\":\"" + nombre + "\"")); };
    EXPECT_EQ(Campo(de("rc"), "defecto"), "10");
    EXPECT_EQ(Campo(de("n-compresion"), "defecto"), "1,39");
    EXPECT_EQ(Campo(de("n-compresion"), "soloCon"), "compresion=politropica");
    EXPECT_EQ(Campo(de("entalpia-formacion"), "defecto"), "0");
    EXPECT_EQ(Campo(de("masa-molecular"), "defecto"), "0.1");
    EXPECT_EQ(Campo(de("p1"), "sigue"), "presion-ambiente");
    EXPECT_EQ(Campo(de("p1"), "defecto"), "");
    EXPECT_EQ(Campo(de("t1"), "sigue"), "temperatura-ambiente");
    EXPECT_EQ(Campo(de("rc"), "sigue"), "");
    EXPECT_TRUE(Tiene(de("fr"), "\"excluye\":[\"lambda\"],\"elegidaSinDar\":true"));
    EXPECT_TRUE(Tiene(de("lambda"), "\"excluye\":[\"fr\"],\"elegidaSinDar\":false"));
    EXPECT_TRUE(Tiene(de("combustible"),
                      "\"excluye\":[\"entalpia-formacion\",\"formula\",\"masa\",\"masa-molecular\"]"));
    EXPECT_TRUE(Tiene(de("pmax"), "\"elegidaSinDar\":true,\"soloCon\":\"ciclo=Mixto\",\"etapa\":\"ciclo\""));
    EXPECT_TRUE(Tiene(de("ciclo"), "\"valores\":[\"Otto\",\"Diesel\",\"Mixto\"]"));
    EXPECT_EQ(Campo(de("humedad"), "etapa"), "aire");
    EXPECT_EQ(Campo(de("masa"), "etapa"), "combustible");
    EXPECT_EQ(Campo(de("lambda"), "etapa"), "combustion");
    EXPECT_EQ(Campo(de("t1"), "etapa"), "ciclo");
    EXPECT_EQ(Campo(de("rpm"), "etapa"), "potencia");
    EXPECT_EQ(Campo(j, "nombrePagina"), "Index.htm");
    EXPECT_TRUE(Tiene(j,
                      "\"imagenesPagina\":[\"BMPAIRE.BMP\",\"BMPCOMBUSTIBLE.BMP\",\"BMPCOMBUSTION.BMP\","
                      "\"BMPPV.BMP\",\"BMPTV.BMP\",\"BMPTS.BMP\",\"BMPHS.BMP\"]"));
}

TEST(Pagina, LaLecturaSigueAlPunteroYCruzaLosCuatroDiagramas) {
    Calculadora c;
    c.Calcular("");
    // Left of state 2 and below it on p-V: the heat at constant volume.
    std::string r = c.Leer(0, 2, 298);
    EXPECT_EQ(Campo(r, "transformacion"), "Combustión a v = cte.");
    EXPECT_EQ(Campo(r, "V"), "10.000");
    // The cross: two lines on each of the four diagrams.
    for (size_t i = r.find("\"transitorias\":[\""), n = 0; n < 4; ++n) {
        const size_t fin = r.find("\",\"", i + 16);
        const std::string capa = r.substr(i, fin - i);
        EXPECT_EQ(std::count(capa.begin(), capa.end(), 'M'), 2) << capa;
        i = fin + 1;
    }
    // On T-V, right of state 1: the exhaust and the intake.
    r = c.Leer(1, 429, 150);
    EXPECT_EQ(Campo(r, "transformacion"), "Escape y admisión");
    EXPECT_EQ(Campo(r, "V"), "100.000");
    EXPECT_EQ(c.Leer(2, 10, 10), "{}");  // T-s reads nothing
    // The pictures of the page show no cross.
    EXPECT_FALSE(Tiene(c.Imagen(3), "<g class='transitoria'><path"));
    EXPECT_EQ(c.Imagen(7), "");
    EXPECT_EQ(c.PaginaHTML().rfind("\xEF\xBB\xBF\r\n<HTML>", 0), 0u);
    EXPECT_FALSE(Tiene(c.InformeArchivo().substr(c.InformeArchivo().size() - 2), "\r\n"));
}

TEST(Pagina, ElEstudioDaLaTablaDeVantaEstudio) {
    EstudioWeb e;
    const std::string base = "ciclo=Diesel\ncombustible=Gasoil\nrc=22\nlambda=1.1\n";
    const std::string info =
        e.Preparar(base, {{"rc", "14:20:2"}, {"fr", "0.7;0,8"}}, "rendimiento,p3,t3", true);
    std::string tabla = Campo(info, "cabecera");
    for (size_t i = 0; i < 8; ++i) tabla += Campo(e.Punto(i), "fila");
    const cli::ParseoEstudio p = cli::ParsearEstudio(
        {"--ciclo", "Diesel", "--combustible", "Gasoil", "--variar", "rc=14:20:2", "--variar", "fr=0.7;0,8",
         "--salidas", "rendimiento,p3,t3", "--csv-es", "--hilos", "1"});
    ASSERT_TRUE(p.opciones) << p.error;
    std::ostringstream csv, err;
    cli::EjecutarLineaEstudio(*p.opciones, csv, err, nullptr);
    EXPECT_EQ(tabla, csv.str());
    EXPECT_TRUE(Tiene(info, "\"puntos\":8"));
    EXPECT_EQ(e.Punto(8), "{}");
    EXPECT_TRUE(Tiene(e.Punto(1), "\"entradas\":[\"16\",\"0.7\"]"));

    // The study's checks are the core's, with their messages.
    EXPECT_TRUE(Tiene(e.Preparar("", {}, "rendimiento", false), std::string(kMensajeSinVariar)));
    EXPECT_TRUE(Tiene(e.Preparar("", {{"rc", "8"}, {"rc", "9"}}, "rendimiento", false),
                      std::string(kMensajeMismaEntrada)));
    EXPECT_TRUE(Tiene(e.Preparar("", {{"rc", "8:x:1"}}, "rendimiento", false), "INICIO:FIN:PASO"));
    EXPECT_TRUE(
        Tiene(e.Preparar("", {{"combustible", "Gasolina,Queroseno"}}, "rendimiento", false), "Queroseno"));
    EXPECT_TRUE(Tiene(e.Preparar("", {{"rc", "8"}}, "rendimiento,potencia", false), "necesita el régimen"));
    EXPECT_TRUE(
        Tiene(e.Preparar("", {{"rc", "8"}}, "rendimiento,gloria", false), "«gloria» no es una salida"));
    EXPECT_TRUE(Tiene(e.Preparar("", {{"rc", "8"}, {"rpm", "1000"}}, "potencia", false), "\"puntos\":1"));
    EXPECT_TRUE(
        Tiene(e.Preparar("", {{"rc", "1:1000:0.001"}}, "rendimiento", false), "en la página llega a"));
}

TEST(Pagina, LaComparacionPoneLosCalculosEnLosMismosEjes) {
    const std::string r = CompararJSON(
        {{"Otto", ""}, {"Diesel", "ciclo=Diesel\nrc=18\n"}, {"Roto", "rc=0.5\n"}, {"Mal", "x=1\n"}}, true);
    EXPECT_EQ(std::count(r.begin(), r.end(), '<') > 100, true);
    EXPECT_TRUE(Tiene(r, "\"nombre\":\"Diesel\",\"hay\":true"));
    EXPECT_TRUE(Tiene(r, "\"nombre\":\"Roto\",\"hay\":false,\"mensaje\":\"La relación de compresión"));
    EXPECT_TRUE(Tiene(r, "\"nombre\":\"Mal\",\"hay\":false,\"mensaje\":\"«x» no es una entrada"));
    EXPECT_TRUE(Tiene(r, "p (bar)"));
    EXPECT_TRUE(Tiene(r, "\"magnitud\":\"Ciclo\",\"valores\":[\"Otto\",\"Diesel\",\"\",\"\"]"));
    EXPECT_EQ(CompararJSON({{"Mal", "x=1\n"}}, false).find("\"figuras\":[\"\",\"\",\"\",\"\"]"), 1u);
}
