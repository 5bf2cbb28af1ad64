// The shares of a study and their join: shares written as `vanta estudio
// --parte` writes them join into the whole table byte for byte; a share that
// is missing, cut, interrupted, misplaced or of another study is named and
// nothing is joined. The Slurm script runs the share of its task with the
// study's words as they were, whatever they hold.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/LineaEstudio.h"
#include "core/studies/GuionSlurm.h"
#include "core/studies/PartesEstudio.h"
#include "tests/Dorados.h"

using namespace vanta;
namespace fs = std::filesystem;

namespace {

using Textos = std::vector<std::string>;

// The words of a study of eight points, two of which fail (rc 1).
const Textos kEstudio = {"--variar",          "rc=1,8,9.5,12", "--variar",
                         "ciclo=Otto,Diesel", "--salidas",     "rendimiento,t3"};

std::string Ejecutar(Textos palabras) {
    const auto p = cli::ParsearEstudio(palabras);
    EXPECT_TRUE(p.opciones) << p.error;
    std::ostringstream out, err;
    cli::EjecutarLineaEstudio(*p.opciones, out, err, nullptr);
    return out.str();
}

fs::path CarpetaNueva(const std::string& nombre) {
    const fs::path c = fs::path(::testing::TempDir()) / ("vanta_partes_" + std::to_string(getpid())) / nombre;
    fs::remove_all(c);
    fs::create_directories(c);
    return c;
}

void Escribir(const fs::path& ruta, const std::string& texto) {
    std::ofstream(ruta, std::ios::binary) << texto;
}

// Share k of n of a study, in the folder under its name.
void EscribirParte(const fs::path& carpeta, Textos palabras, size_t k, size_t n, bool json) {
    palabras.insert(palabras.end(), {"--parte", std::to_string(k) + "/" + std::to_string(n)});
    if (json) palabras.push_back("--json");
    Escribir(carpeta / NombreParte(k, json ? FormatoParte::JSON : FormatoParte::CSV), Ejecutar(palabras));
}

std::string Errores(const fs::path& carpeta) {
    const PartesComprobadas p = ComprobarPartes(carpeta);
    EXPECT_TRUE(p.errores.empty() || p.archivos.empty());
    std::string t;
    for (const std::string& e : p.errores) t += e + "\n";
    return t;
}

TEST(PartesEstudio, LasPartesUnidasSonElEstudioEnteroByteAByte) {
    Textos espanol = kEstudio;
    espanol.push_back("--csv-es");
    for (const auto& [palabras, json] : {std::pair{kEstudio, false}, {espanol, false}, {kEstudio, true}}) {
        const fs::path carpeta = CarpetaNueva("enteras");
        for (size_t k = 1; k <= 3; ++k) EscribirParte(carpeta, palabras, k, 3, json);
        const PartesComprobadas partes = ComprobarPartes(carpeta);
        ASSERT_EQ(partes.errores, Textos{}) << palabras.size() << json;
        std::ostringstream unido;
        EXPECT_TRUE(UnirPartes(partes, unido));
        Textos entero = palabras;
        if (json) entero.push_back("--json");
        EXPECT_EQ(unido.str(), Ejecutar(entero)) << palabras.size() << json;
    }
}

TEST(PartesEstudio, UnaParteQueFaltaSobraOEstaCortadaSeNombraYNoSeUne) {
    const std::string incompleta = LineaIncompleta(1, 3);
    Textos otro = kEstudio;
    otro.back() = "rendimiento";
    struct Caso {
        const char* que;
        std::function<void(const fs::path&)> estropear;
        std::string errores;  // the start of each line
    };
    auto leer = [](const fs::path& r) { return pruebas::LeerArchivo(r.string()); };
    const Caso casos[] = {
        {"falta", [](const fs::path& c) { fs::remove(c / "parte-2.csv"); },
         "faltan 1 de las 3 partes: parte-2.csv\n"},
        {"otro estudio", [&](const fs::path& c) { EscribirParte(c, otro, 2, 3, false); },
         "parte-2.csv: es de otro estudio: [\"--variar\""},
        {"otro reparto", [](const fs::path& c) { EscribirParte(c, kEstudio, 2, 4, false); },
         "parte-2.csv: es la parte 2 de 4, de otro reparto del estudio en 3 partes\n"},
        {"fuera de su sitio", [](const fs::path& c) { fs::rename(c / "parte-3.csv", c / "parte-4.csv"); },
         "parte-4.csv: es la parte 3 de 3\nfaltan 1 de las 3 partes: parte-3.csv\n"},
        {"cortada en una fila",
         [&](const fs::path& c) {
             const std::string t = leer(c / "parte-2.csv");
             Escribir(c / "parte-2.csv", t.substr(0, t.size() - 3));
         },
         "parte-2.csv: está cortada a mitad de una fila\n"},
        {"sin su última fila",
         [&](const fs::path& c) {
             const std::string t = leer(c / "parte-3.csv");
             Escribir(c / "parte-3.csv", t.substr(0, t.rfind('\n', t.size() - 2) + 1));
         },
         "parte-3.csv: está cortada: tiene 2 de sus 3 puntos\n"},
        {"una fila de más",
         [&](const fs::path& c) { Escribir(c / "parte-1.csv", leer(c / "parte-1.csv") + "8,1,2,\r\n"); },
         "parte-1.csv: está cortada: tiene 3 de sus 2 puntos\n"},
        {"incompleta",
         [&](const fs::path& c) { Escribir(c / "parte-1.csv", leer(c / "parte-1.csv") + incompleta); },
         "parte-1.csv: está incompleta: su cálculo se interrumpió\n"},
        {"sin marca",
         [&](const fs::path& c) {
             const std::string t = leer(c / "parte-1.csv");
             Escribir(c / "parte-1.csv", t.substr(t.find('\n') + 1));
         },
         "parte-1.csv: no es una parte de un estudio (le falta la primera línea, que la nombra)\n"},
        {"solo la marca, sin fin de línea",
         [&](const fs::path& c) {
             const std::string t = leer(c / "parte-1.csv");
             Escribir(c / "parte-1.csv", t.substr(0, t.find('\n')));
         },
         "parte-1.csv: no es una parte de un estudio"},
        {"CSV y JSON", [](const fs::path& c) { EscribirParte(c, kEstudio, 1, 3, true); }, "la carpeta "},
    };
    for (const Caso& c : casos) {
        const fs::path carpeta = CarpetaNueva("estropeadas");
        for (size_t k = 1; k <= 3; ++k) EscribirParte(carpeta, kEstudio, k, 3, false);
        c.estropear(carpeta);
        const std::string errores = Errores(carpeta);
        EXPECT_EQ(errores.substr(0, c.errores.size()), c.errores) << c.que;
        EXPECT_EQ(std::count(errores.begin(), errores.end(), '\n'),
                  std::count(c.errores.begin(), c.errores.end(), '\n') + (c.errores.back() != '\n'))
            << c.que << ": " << errores;
    }
    EXPECT_NE(Errores(CarpetaNueva("vacia")).find(" no tiene partes (parte-1.csv, parte-1.json…)"),
              std::string::npos);
    EXPECT_NE(Errores(CarpetaNueva("vacia") / "no").find(" no existe"), std::string::npos);
    const fs::path vacia = CarpetaNueva("vacia");
    Escribir(vacia / "parte-01.csv", "");
    EXPECT_FALSE(TienePartes(vacia));
    // Twenty shares missing are all named; beyond, the list ends in "…".
    const fs::path carpeta = CarpetaNueva("muchas");
    for (size_t k : {1, 2}) EscribirParte(carpeta, {"--variar", "rc=8:10.2:0.1"}, k, 22, false);
    EXPECT_TRUE(TienePartes(carpeta));
    EXPECT_TRUE(Errores(carpeta).ends_with("parte-21.csv, parte-22.csv\n")) << Errores(carpeta);
}

TEST(PartesEstudio, UnDocumentoJSONCortadoOAlargadoNoSeUne) {
    const std::vector<std::pair<std::function<std::string(std::string)>, std::string>> casos = {
        {[](std::string t) { return t.substr(0, t.size() - 3); }, "está cortada o incompleta"},
        {[](std::string t) { return t + "{}\n"; }, "sigue tras el final de su documento"},
        {[](std::string t) { return t + "x"; }, "sigue tras el final de su documento"},
        {[](std::string t) {
             return t.erase(t.find("\n{") + 1, t.find("\n{", t.find("\n{") + 1) - t.find("\n{"));
         },
         "está cortada: tiene 2 de sus 3 puntos"},
        {[](std::string t) { return t.replace(t.rfind("}\n]}"), 1, "},"); }, "está cortada o incompleta"},
        {[](std::string t) { return t.replace(0, 9, "{\"parto\""); }, "no es una parte de un estudio"},
        {[](std::string t) { return t.replace(t.find("},\"entradas\""), 3, "},\"salidas"); },
         "no es una parte de un estudio"},
        {[](std::string t) { return t.erase(t.find("\"puntos\":[\n") + 9, 1); },
         "no es una parte de un estudio"},
    };
    for (const auto& [estropear, error] : casos) {
        const fs::path carpeta = CarpetaNueva("json");
        for (size_t k = 1; k <= 3; ++k) EscribirParte(carpeta, kEstudio, k, 3, true);
        Escribir(carpeta / "parte-3.json",
                 estropear(pruebas::LeerArchivo((carpeta / "parte-3.json").string())));
        const std::string errores = Errores(carpeta);
        EXPECT_EQ(errores.find("parte-3.json: " + error), 0u) << errores;
        EXPECT_EQ(std::count(errores.begin(), errores.end(), '\n'), 1) << errores;
    }
}

TEST(GuionSlurm, CadaTareaEjecutaSuParteConLasPalabrasTalCual) {
    const fs::path raiz = CarpetaNueva("slurm");
    const fs::path programa = raiz / "el programa de l'aula";
    fs::create_directories(programa.parent_path());
    // A stand-in for vanta that keeps its words, one after a NUL each.
    Escribir(programa, "#!/bin/sh\nprintf '%s\\0' \"$@\" > \"$(dirname \"$0\")/palabras\"\n");
    fs::permissions(programa, fs::perms::owner_all);
    PeticionSlurm p;
    p.programa = programa.string();
    p.palabras = {"--variar", "rc=8,9", "--formula", "a b\"c'd$(x)`y`\n\\z", "--csv-es"};
    p.tareas = 4;
    p.carpeta = (raiz / "l'estudio \"50%\" $HOME").string();
    p.formato = FormatoParte::JSON;
    p.hilos = 2;
    p.particion = "p1,p2";
    p.tiempo = "1-02:00";
    p.memoria = "4G";
    const std::string guion = GuionSlurm(p);
    const std::string sbatch =
        "#SBATCH --array=1-4\n#SBATCH --ntasks=1\n#SBATCH --cpus-per-task=2\n"
        "#SBATCH --output=\"" +
        (raiz / "l'estudio \\\"50%%\\\" $HOME").string() +
        "/slurm-%A_%a.out\"\n#SBATCH --partition=p1,p2\n#SBATCH --time=1-02:00\n"
        "#SBATCH --mem=4G\n";
    EXPECT_NE(guion.find(sbatch), std::string::npos) << guion;
    EXPECT_TRUE(guion.starts_with("#!/bin/bash\n"));
    Escribir(raiz / kNombreGuion, guion);

    const std::string orden = "bash " + ComillasShell((raiz / kNombreGuion).string()) + " 2>/dev/null";
    EXPECT_NE(std::system(orden.c_str()), 0);  // not a task of an array
    EXPECT_FALSE(fs::exists(raiz / "palabras"));
    ASSERT_EQ(std::system(("SLURM_ARRAY_TASK_ID=3 " + orden).c_str()), 0);
    Textos palabras;
    std::istringstream leidas(pruebas::LeerArchivo((raiz / "palabras").string()));
    for (std::string w; std::getline(leidas, w, '\0');) palabras.push_back(w);
    Textos esperadas = {"estudio"};
    esperadas.insert(esperadas.end(), p.palabras.begin(), p.palabras.end());
    esperadas.insert(esperadas.end(),
                     {"--hilos", "2", "--parte", "3/4", "--json", p.carpeta + "/parte-3.json"});
    EXPECT_EQ(palabras, esperadas);

    p.particion = p.tiempo = p.memoria = "";
    p.formato = FormatoParte::CSV;
    EXPECT_EQ(GuionSlurm(p).find("--partition"), std::string::npos);
    EXPECT_EQ(GuionSlurm(p).find("--mem"), std::string::npos);
    EXPECT_NE(GuionSlurm(p).find("--csv '" + p.carpeta.substr(0, 10)), std::string::npos);
}

TEST(GuionSlurm, LoQueNoCabeEnUnaLineaSbatchSeRechaza) {
    for (const char* t : {"10", "10:00", "1:00:00", "2-0", "2-12:30", "2-12:30:00"})
        EXPECT_EQ(ComprobarTiempoSlurm(t), "") << t;
    for (const char* t : {"", "1:2:3:4", "1-", "-1", "1h", "1-2:3:4:5", "1::2"})
        EXPECT_NE(ComprobarTiempoSlurm(t), "") << t;
    for (const char* m : {"4000", "4G", "512M", "1T", "64K"}) EXPECT_EQ(ComprobarMemoriaSlurm(m), "") << m;
    for (const char* m : {"", "G", "4GB", "-1", "1.5G"}) EXPECT_NE(ComprobarMemoriaSlurm(m), "") << m;
    for (const char* p : {"normal", "a_b-c.d", "x,y"}) EXPECT_EQ(ComprobarParticionSlurm(p), "") << p;
    for (const char* p : {"", "a b", "x,", "a;b", "a\n#SBATCH"})
        EXPECT_NE(ComprobarParticionSlurm(p), "") << p;
    EXPECT_EQ(ComprobarCarpetaSlurm("/a b'\"%$#"), "");
    for (const char* c : {"/a\\b", "/a\nb", "/a\rb", "/a\tb"}) EXPECT_NE(ComprobarCarpetaSlurm(c), "") << c;
}

}  // namespace
