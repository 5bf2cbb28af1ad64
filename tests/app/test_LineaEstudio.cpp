// `vanta estudio` as a script runs it: every row is what `vanta calcular
// --json` gives for the same inputs, the shares of --parte put together are
// the whole table byte for byte, and words that are off exit with 2.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "app/LineaEstudio.h"

namespace {

struct Salida {
    int estado = -1;
    std::string out, err;
};

std::string Leer(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::stringstream ss;
    ss << f.rdbuf();
    return ss.str();
}

std::string Temporal(const std::string& nombre) {
    static int llamada = 0;
    return ::testing::TempDir() + "vanta_estudio_" + std::to_string(getpid()) + "_" +
           std::to_string(++llamada) + nombre;
}

Salida Ejecutar(const std::string& argumentos) {
    const std::string errores = Temporal(".err");
    const std::string orden = std::string(VANTA_BINARIO) + " " + argumentos + " 2>" + errores;
    Salida s;
    FILE* p = popen(orden.c_str(), "r");
    char buf[4096];
    size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) s.out.append(buf, n);
    const int w = pclose(p);
    s.estado = WIFEXITED(w) ? WEXITSTATUS(w) : -1;
    s.err = Leer(errores);
    std::remove(errores.c_str());
    return s;
}

// The lines of a CSV and their fields, quotes undone.
std::vector<std::vector<std::string>> FilasCSV(const std::string& csv) {
    std::vector<std::vector<std::string>> filas(1, std::vector<std::string>(1));
    bool comillas = false;
    for (size_t i = 0; i < csv.size(); ++i) {
        const char c = csv[i];
        if (comillas) {
            if (c == '"' && i + 1 < csv.size() && csv[i + 1] == '"')
                filas.back().back() += csv[++i];
            else if (c == '"')
                comillas = false;
            else
                filas.back().back() += c;
        } else if (c == '"') {
            comillas = true;
        } else if (c == ',') {
            filas.back().emplace_back();
        } else if (c == '\r' && i + 1 < csv.size() && csv[i + 1] == '\n') {
            ++i;
            if (i + 1 < csv.size()) filas.emplace_back(1);
        } else {
            filas.back().back() += c;
        }
    }
    return filas;
}

// The text of a number of the state in the JSON of `vanta calcular`.
std::string ValorJSON(const std::string& json, const std::string& campo) {
    const std::string clave = "\"" + campo + "\":";
    const size_t i = json.find(clave);
    if (i == std::string::npos) return "(no está " + campo + ")";
    const size_t desde = i + clave.size();
    return json.substr(desde, json.find_first_of(",}", desde) - desde);
}

}  // namespace

TEST(LineaEstudio, CadaFilaEsLaDeCalcularJsonConLasMismasEntradas) {
    // Every output that is a figure of the state, on a mixed cycle: the third
    // compression ratio is refused by the cycle, the fourth by Pmax.
    std::string salidas;
    for (const vanta::SalidaEstudio& s : vanta::SalidasEstudio())
        if (*s.campo) salidas += (salidas.empty() ? "" : ",") + std::string(s.nombre);
    const std::string comunes = "--ciclo Mixto --pmax 6000000 --compresion variable";
    const Salida estudio = Ejecutar("estudio --variar rc=9,12.5,1,40 --variar combustible=Gasolina,Gasoil " +
                                    comunes + " --salidas " + salidas);
    EXPECT_EQ(estudio.estado, 1);
    EXPECT_EQ(estudio.err, "");  // no terminal, no progress
    const auto filas = FilasCSV(estudio.out);
    ASSERT_EQ(filas.size(), 9u);
    const std::vector<std::string>& cabecera = filas[0];
    int fallidos = 0;
    for (size_t f = 1; f < filas.size(); ++f) {
        const std::vector<std::string>& fila = filas[f];
        ASSERT_EQ(fila.size(), cabecera.size());
        const Salida calculo =
            Ejecutar("calcular --json --rc " + fila[0] + " --combustible " + fila[1] + " " + comunes);
        // The row keeps the messages without the prefix that names the order.
        const std::string prefijo = "vanta calcular: ";
        std::string mensajes;
        for (size_t i = 0; i < calculo.err.size();) {
            const size_t fin = calculo.err.find('\n', i);
            std::string linea = calculo.err.substr(i, fin - i);
            if (linea.rfind(prefijo, 0) == 0) linea.erase(0, prefijo.size());
            mensajes += (mensajes.empty() ? "" : " | ") + linea;
            i = fin + 1;
        }
        EXPECT_EQ(fila.back(), mensajes) << f;
        fallidos += calculo.estado != 0;
        for (size_t c = 2; c + 1 < fila.size(); ++c) {
            const vanta::SalidaEstudio* s =
                vanta::BuscarSalidaEstudio(cabecera[c].substr(0, cabecera[c].find(' ')));
            ASSERT_NE(s, nullptr) << cabecera[c];
            EXPECT_EQ(fila[c], calculo.estado == 0 ? ValorJSON(calculo.out, s->campo) : "")
                << "fila " << f << ", " << s->nombre;
        }
    }
    EXPECT_EQ(fallidos, 4);
}

TEST(LineaEstudio, LasPartesUnidasSonElEstudioEnteroByteAByte) {
    const std::string orden = "estudio --variar fr=0.8:1.2:0.1 --variar rc=8,10 --salidas rendimiento,t3,q23";
    for (const std::string dialecto : {"", " --csv-es"}) {
        const Salida entero = Ejecutar(orden + dialecto + " --hilos 1");
        ASSERT_EQ(entero.estado, 0) << entero.err;
        EXPECT_EQ(Ejecutar(orden + dialecto + " --hilos 2").out, entero.out);
        for (int n : {2, 3}) {
            std::string unidas;
            for (int k = 1; k <= n; ++k)
                unidas +=
                    Ejecutar(orden + dialecto + " --parte " + std::to_string(k) + "/" + std::to_string(n))
                        .out;
            EXPECT_EQ(unidas, entero.out) << n << dialecto;
        }
    }
    // Into a file, the same bytes; the JSON document has one object a point.
    const std::string archivo = Temporal(".csv");
    const Salida a = Ejecutar(orden + " --parte 2/3 --csv " + archivo + " --json");
    EXPECT_EQ(a.estado, 0);
    EXPECT_EQ(Leer(archivo), Ejecutar(orden + " --parte 2/3").out);
    EXPECT_NE(a.out.find("\"puntos\":["), std::string::npos);
    EXPECT_EQ(FilasCSV(Leer(archivo)).size(), 3u);
    std::remove(archivo.c_str());
}

TEST(LineaEstudio, PalabrasQueNoValen) {
    const std::vector<std::vector<std::string>> malas = {
        {},
        {"--variar"},
        {"--variar", "rc"},
        {"--variar", "tamano=1,2"},
        {"--variar", "rc=8:14"},
        {"--variar", "rc=1,2", "--variar", "rc=3"},
        {"--variar", "rc=1,2", "--variar", "fr=1", "--variar", "t1=300"},
        {"--variar", "rc=1,2", "--rc", "3"},
        {"--variar", "fr=1,2", "--lambda", "1"},
        {"--variar", "combustible=Gasolina,Queroseno"},
        {"--variar", "ciclo=Otto,Wankel"},
        {"--variar", "rc=1,2", "--salidas", "rendimiento,nada"},
        {"--variar", "rc=1,2", "--salidas", "potencia"},
        {"--variar", "rc=1,2", "--parte", "3/2"},
        {"--variar", "rc=1,2", "--parte", "0/2"},
        {"--variar", "rc=1,2,3", "--parte", "1/4"},
        {"--variar", "rc=1,2", "--hilos", "0"},
        {"--variar", "rc=1,2", "--json", "--csv", "-"},
        {"--variar", "rc=1,2", "--html", "x"},
        {"--variar", "rc=1,2", "--ciclo", "Wankel"},
    };
    for (const auto& palabras : malas) {
        const auto p = vanta::cli::ParsearEstudio(palabras);
        std::string todas;
        for (const auto& w : palabras) todas += w + " ";
        EXPECT_FALSE(p.opciones) << todas;
        EXPECT_FALSE(p.error.empty()) << todas;
    }
    const auto bien = vanta::cli::ParsearEstudio({"--variar", "rpm=1000:2000:500", "--salidas",
                                                  "potencia,rendimiento", "--parte", "2/3", "--hilos", "2"});
    ASSERT_TRUE(bien.opciones) << bien.error;
    EXPECT_EQ(bien.opciones->estudio.salidas.size(), 2u);
    EXPECT_EQ(bien.opciones->parte.k, 2u);
    EXPECT_EQ(bien.opciones->hilos, 2u);

    const Salida s = Ejecutar("estudio --variar rc=8:14");
    EXPECT_EQ(s.estado, 2);
    EXPECT_EQ(s.err.rfind("vanta estudio: ", 0), 0u) << s.err;
    EXPECT_NE(s.err.find("Las opciones, con vanta estudio --help"), std::string::npos) << s.err;
    EXPECT_TRUE(s.out.empty());
}
