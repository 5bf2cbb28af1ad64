// `vanta estudio` as a script runs it: every row is what `vanta calcular
// --json` gives for the same inputs, the shares of --parte joined by --unir
// are the whole table byte for byte, an output that cannot be written or a
// signal leaves no table that looks whole, and words that are off exit with 2.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
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

// A line of the shell, its standard error kept apart.
Salida Shell(const std::string& linea) {
    const std::string errores = Temporal(".err");
    const std::string orden = "{ " + linea + "; } 2>" + errores;
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

Salida Ejecutar(const std::string& argumentos) {
    return Shell(std::string(VANTA_BINARIO) + " " + argumentos);
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
    const Salida entero = Ejecutar(orden + " --hilos 1");
    ASSERT_EQ(entero.estado, 0) << entero.err;
    EXPECT_EQ(Ejecutar(orden + " --hilos 2").out, entero.out);
    // Each share opens with its mark, in CSV or in JSON; --unir joins them,
    // on standard output or into a file.
    const std::string carpeta = Temporal("partes");
    std::filesystem::create_directories(carpeta + "/json");
    for (int k = 1; k <= 3; ++k) {
        const std::string parte = " --parte " + std::to_string(k) + "/3";
        const Salida csv = Ejecutar(orden + parte);
        EXPECT_EQ(csv.out.rfind("#vanta estudio, parte " + std::to_string(k) + " de 3, 10 puntos: [", 0), 0u);
        std::ofstream(carpeta + "/parte-" + std::to_string(k) + ".csv", std::ios::binary) << csv.out;
        Ejecutar(orden + parte + " --json " + carpeta + "/json/parte-" + std::to_string(k) + ".json");
    }
    EXPECT_EQ(Ejecutar("estudio --unir " + carpeta).out, entero.out);
    const Salida json = Ejecutar("estudio --unir " + carpeta + "/json --json " + carpeta + "/unido.json");
    EXPECT_EQ(json.estado, 0) << json.err;
    EXPECT_EQ(Leer(carpeta + "/unido.json"), Ejecutar(orden + " --json").out);
    // A share missing: it is named, and nothing is written.
    std::filesystem::remove(carpeta + "/parte-2.csv");
    const Salida falta = Ejecutar("estudio --unir " + carpeta + " --csv " + carpeta + "/unido.csv");
    EXPECT_EQ(falta.estado, 1);
    EXPECT_NE(falta.err.find("parte-2.csv"), std::string::npos) << falta.err;
    EXPECT_FALSE(std::filesystem::exists(carpeta + "/unido.csv"));
    std::filesystem::remove_all(carpeta);
}

TEST(LineaEstudio, UnaSalidaQueNoSePuedeEscribirEsUnErrorYNoDejaMedioArchivo) {
    for (const char* orden : {"calcular", "tablas", "validar", "estudio --variar rc=8:14:0.5"}) {
        const Salida s = Ejecutar(std::string(orden) + " >/dev/full");
        EXPECT_EQ(s.estado, 1) << orden;
        EXPECT_NE(s.err.find("no se ha podido escribir la salida estándar: no queda espacio en el disco"),
                  std::string::npos)
            << orden << ": " << s.err;
    }
    // A disk that fills up: the file is not left half written, nor its
    // temporary file. (The document's first line, every value of the input,
    // fills it at once.)
    const std::string disco = Temporal("disco");
    std::filesystem::create_directories(disco);
    const Salida lleno =
        Shell("unshare -m sh -c 'mount -t tmpfs -o size=16k none " + disco + " && " + VANTA_BINARIO +
              " estudio --variar rc=8:14:0.0001 --json " + disco + "/e.json; echo $?; ls -A " + disco + "'");
    if (lleno.out.empty()) GTEST_SKIP() << "no se puede montar un tmpfs: " << lleno.err;
    EXPECT_EQ(lleno.out, "1\n");
    EXPECT_NE(lleno.err.find("no se puede escribir " + disco + "/e.json: no queda espacio en el disco"),
              std::string::npos)
        << lleno.err;
    // A reader that stops reading (| head) ends the study quietly, by SIGPIPE
    // as a filter of the shell, and the file it was writing is not left.
    const Salida cerrada =
        Shell("bash -c '" + std::string(VANTA_BINARIO) + " estudio --variar rc=8:14:0.001 --json --csv " +
              disco + "/e.csv | head -c 10 >/dev/null; echo ${PIPESTATUS[0]}; ls -A " + disco + "'");
    EXPECT_EQ(cerrada.out, "141\n");
    EXPECT_EQ(cerrada.err, "");
}

TEST(LineaEstudio, UnaSenalDetieneElEstudioSinDejarSuArchivoComoEntero) {
    namespace fs = std::filesystem;
    const std::string carpeta = Temporal("senal");
    fs::create_directories(carpeta);
    std::ofstream(carpeta + "/e.csv") << "anterior\n";
    struct Caso {
        int senal, estado;
        std::string salida;
    };
    for (const Caso& c :
         {Caso{SIGTERM, 143, "--csv " + carpeta + "/e.csv"}, Caso{SIGINT, 130, ">" + carpeta + "/out.csv"}}) {
        const std::string orden =
            std::string("exec ") + VANTA_BINARIO +
            " estudio --variar rc=8:14:0.0001 --salidas p1,p2,p3,p4,p5,t1,t2,t3,t4,t5 " + c.salida + " 2>" +
            carpeta + "/err";
        const pid_t pid = fork();
        if (pid == 0) {
            execl("/bin/sh", "sh", "-c", orden.c_str(), nullptr);
            _exit(127);
        }
        // Once the run writes: its temporary file is there, or its first rows.
        auto escribe = [&] {
            for (const auto& f : fs::directory_iterator(carpeta))
                if (f.path().filename().string().starts_with(".e.csv.") ||
                    (f.path().filename() == "out.csv" && f.file_size() > 0))
                    return true;
            return false;
        };
        for (int i = 0; i < 1000 && !escribe(); ++i) usleep(10000);
        kill(pid, c.senal);
        int w = 0;
        waitpid(pid, &w, 0);
        EXPECT_TRUE(WIFEXITED(w) && WEXITSTATUS(w) == c.estado) << c.senal << ": " << w;
        EXPECT_NE(Leer(carpeta + "/err").find("vanta estudio: interrumpido por SIG"), std::string::npos);
    }
    EXPECT_EQ(Leer(carpeta + "/e.csv"), "anterior\n");
    const std::string out = Leer(carpeta + "/out.csv");
    EXPECT_NE(out.find("\r\n#vanta estudio: incompleto, interrumpido tras "), std::string::npos)
        << out.substr(0, 200);
    for (const char* f : {"/err", "/out.csv", "/e.csv"}) fs::remove(carpeta + f);
    EXPECT_TRUE(fs::is_empty(carpeta));  // no temporary file left
    fs::remove(carpeta);
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
        {"--variar", "rc=1,2", "--csv", "a", "--csv", "b"},
        {"--variar", "rc=1,2", "--salidas", "t3", "--salidas=p3"},
        {"--variar", "rc=1,2", "--json", "--json"},
        {"--variar", "rc=1,2", "--json", "a", "--csv", "a"},
        {"--variar", "rc=1,2", "--csv-es", "--csv-es"},
        {"--variar", "rc=1,2", "--hilos", "1", "--hilos", "2"},
        {"--variar", "rc=1,2", "--slurm", "2"},
        {"--variar", "rc=1,2", "--slurm", "3", "--carpeta", "c"},
        {"--variar", "rc=1,2", "--slurm", "2", "--carpeta", "c", "--parte", "1/2"},
        {"--variar", "rc=1,2", "--slurm", "2", "--carpeta", "c", "--csv", "x"},
        {"--variar", "rc=1,2", "--slurm", "2", "--carpeta", "c", "--tiempo", "1h"},
        {"--variar", "rc=1,2", "--carpeta", "c"},
        {"--unir", "c", "--variar", "rc=1,2"},
        {"--unir", "c", "--csv", "a", "--json"},
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
