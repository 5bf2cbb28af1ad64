// Files written whole where they were asked: links planted in the folder, a
// kill or a failure at each call of a set's writing (strace), a full tmpfs,
// two writers of one folder at once.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "core/files/EscribirArchivos.h"
#include "core/reports/ArchivosInforme.h"

using namespace vanta;
namespace fs = std::filesystem;

namespace {

constexpr const char* kNombres[] = {"Index.htm", "BMPAIRE.BMP", "BMPPV.BMP"};

std::vector<ArchivoDeConjunto> Conjunto(const fs::path& carpeta, const std::string& version) {
    std::vector<ArchivoDeConjunto> c;
    for (const char* n : kNombres) c.push_back({carpeta / n, n + (" " + version)});
    return c;
}

// Each file's text, and how many names the folder holds in all.
std::string Contenido(const fs::path& carpeta) {
    std::string s;
    for (const char* n : kNombres) s += LeerArchivoEntero(carpeta / n).value_or("FALTA") + "|";
    return s + std::to_string(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()));
}

std::string Esperado(const std::string& version) {
    return "Index.htm " + version + "|BMPAIRE.BMP " + version + "|BMPPV.BMP " + version + "|3";
}

// Run as a writer by the tests below: writes the set the environment names
// and ends, before any test starts.
[[maybe_unused]] const bool kEscritor = [] {
    const char* carpeta = std::getenv("VANTA_ESCRITOR");
    if (!carpeta) return false;
    const auto fallo = EscribirConjunto(Conjunto(carpeta, std::getenv("VANTA_VERSION")));
    if (fallo) std::fputs(fallo->c_str(), stderr);
    std::_Exit(fallo ? 1 : 0);
}();

// AddressSanitizer's runtime writes too: a write that fails may be its own.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kEscriturasAjenas = true;
#else
constexpr bool kEscriturasAjenas = false;
#endif

struct Salida {
    int estado;
    std::string err;
};

// This program run again as that writer, behind the words of prefijo.
Salida Escritor(const std::string& prefijo, const fs::path& carpeta, const std::string& version) {
    const fs::path err = carpeta.parent_path() / "err";
    const int w =
        std::system((prefijo + " env VANTA_ESCRITOR=" + carpeta.string() + " VANTA_VERSION=" + version + " " +
                     fs::read_symlink("/proc/self/exe").string() + " 2>" + err.string())
                        .c_str());
    return {WIFEXITED(w) ? WEXITSTATUS(w) : -1, LeerArchivoEntero(err).value_or("")};
}

struct EscribirArchivos : ::testing::Test {
    // In memory where there is a tmpfs for it: the writers sync every file.
    fs::path raiz = (fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
                    ("vanta-escribir-" + std::to_string(getpid()));
    fs::path pagina = raiz / "pagina";
    void SetUp() override { fs::create_directories(raiz); }
    void TearDown() override { fs::remove_all(raiz); }
};

}  // namespace

TEST_F(EscribirArchivos, UnEnlaceSeReemplazaSinSeguirloYNadaSeEscribeFuera) {
    fs::create_directories(pagina);
    std::ofstream(raiz / "privado") << "mío";
    fs::permissions(raiz / "privado", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(raiz / "privado", pagina / "Index.htm");
    fs::create_symlink(raiz / "nada", pagina / "BMPAIRE.BMP");
    std::ofstream(pagina / "BMPPV.BMP") << "antes";
    fs::permissions(pagina / "BMPPV.BMP", fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_EQ(EscribirConjunto(Conjunto(pagina, "nueva")), std::nullopt);
    EXPECT_EQ(Contenido(pagina), Esperado("nueva"));
    EXPECT_FALSE(fs::is_symlink(pagina / "Index.htm"));
    EXPECT_EQ(LeerArchivoEntero(raiz / "privado"), "mío");
    EXPECT_FALSE(fs::exists(fs::symlink_status(raiz / "nada")));
    // A file replaced keeps who may read it.
    EXPECT_EQ(fs::status(pagina / "BMPPV.BMP").permissions(), fs::perms::owner_read | fs::perms::owner_write);

    // What is not a file of the folder, with the reason.
    fs::create_directory(pagina / "sub");
    EXPECT_EQ(EscribirArchivo(pagina / "sub", "x"),
              (pagina / "sub").string() + " es una carpeta, no un archivo");
    EXPECT_EQ(EscribirArchivo(pagina / "Index.htm" / "x", "x"),
              (pagina / "Index.htm").string() + " es un archivo, no una carpeta");
    EXPECT_FALSE(EscribirArchivoEntero(pagina / ".vanta-diario", "x"));
    EXPECT_TRUE(EscribirConjunto({{pagina / "a", "1"}, {raiz / "b", "2"}}));
    EXPECT_EQ(ComprobarCarpeta(pagina / "Index.htm"),
              (pagina / "Index.htm").string() + " es un archivo, no una carpeta");
    EXPECT_EQ(ComprobarCarpeta(raiz / "nueva"), std::nullopt);
    EXPECT_TRUE(fs::is_empty(raiz / "nueva"));

    // A journal planted by someone else, a name short and all, moves nothing
    // into or out of the folder.
    std::ofstream(pagina / ".vanta-diario")
        << std::string("../privado\0\0BMPPV.BMP\0../privado\0Index.htm\0", 43);
    EXPECT_EQ(RecuperarCarpeta(pagina), std::nullopt);
    EXPECT_EQ(LeerArchivoEntero(raiz / "privado"), "mío");
    EXPECT_EQ(Contenido(pagina), "Index.htm nueva|BMPAIRE.BMP nueva|BMPPV.BMP nueva|4");
}

TEST_F(EscribirArchivos, UnaMuerteOUnFalloEnCadaLlamadaDejaElConjuntoViejoOElNuevoEntero) {
    if (std::system("strace -o /dev/null true >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "strace falta o no puede seguir procesos aquí (./vanta lo instala)";
    ASSERT_EQ(EscribirConjunto(Conjunto(pagina, "0")), std::nullopt);
    std::string actual = "0";
    int muertes = 0;
    for (const std::string llamada : {"openat", "write", "fsync", "linkat", "renameat", "unlinkat"}) {
        for (int n = 1;; ++n) {
            ASSERT_LT(n, 200) << "el escritor no llega al final con strace";
            const std::string nueva = llamada + std::to_string(n);
            const Salida s = Escritor("strace -f -o /dev/null -e trace=" + llamada + " -e inject=" + llamada +
                                          ":signal=SIGKILL:when=" + std::to_string(n),
                                      pagina, nueva);
            // The next writer puts right what the kill left.
            ASSERT_EQ(RecuperarCarpeta(pagina), std::nullopt);
            const std::string hay = Contenido(pagina);
            if (s.estado == 0) {
                ASSERT_EQ(hay, Esperado(nueva)) << nueva;
                actual = nueva;
                break;
            }
            ++muertes;
            ASSERT_TRUE(hay == Esperado(actual) || hay == Esperado(nueva)) << nueva << ": " << hay;
            if (hay == Esperado(nueva)) actual = nueva;
        }
    }
    EXPECT_GT(muertes, 20);

    // A file system without hard links: the earlier files are moved aside.
    const std::string sinEnlaces = "strace -f -o /dev/null -e trace=linkat -e inject=linkat:error=EPERM";
    ASSERT_EQ(Escritor(sinEnlaces, pagina, "movida").estado, 0);
    EXPECT_EQ(Contenido(pagina), Esperado(actual = "movida"));

    // A write or a rename that fails: the reason, and the earlier set whole
    // at once, with nothing left behind.
    for (const auto& [llamada, error, causa] :
         {std::tuple<std::string, std::string, std::string>{"write", "ENOSPC", "el disco está lleno"},
          {"renameat", "EIO", "no se ha podido escribir " + pagina.string() + "/"}}) {
        for (int n = 1; n <= 4 && !(llamada == "write" && kEscriturasAjenas); ++n) {
            const Salida s = Escritor("strace -f -o /dev/null -e trace=" + llamada + " -e inject=" + llamada +
                                          ":error=" + error + ":when=" + std::to_string(n),
                                      pagina, "fallida");
            EXPECT_EQ(s.estado, 1) << llamada << n;
            EXPECT_EQ(s.err.substr(0, causa.size()), causa) << llamada << n;
            EXPECT_EQ(Contenido(pagina), Esperado(actual)) << llamada << n;
        }
    }
}

TEST_F(EscribirArchivos, UnDiscoLlenoDejaElConjuntoAnteriorYDiceElPorQue) {
    fs::create_directories(raiz / "tmpfs");
    // A small tmpfs of its own, in namespaces of a child process.
    const pid_t hijo = fork();
    if (hijo == 0) {
        const std::string uid = std::to_string(getuid()), gid = std::to_string(getgid());
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) std::_Exit(77);
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << "0 " + uid + " 1";
        std::ofstream("/proc/self/gid_map") << "0 " + gid + " 1";
        if (mount("tmpfs", (raiz / "tmpfs").c_str(), "tmpfs", 0, "size=64k") != 0) std::_Exit(77);
        const fs::path p = raiz / "tmpfs" / "pagina";
        if (EscribirConjunto(Conjunto(p, "vieja")) || Contenido(p) != Esperado("vieja")) std::_Exit(1);
        std::ofstream(raiz / "tmpfs" / "relleno") << std::string(60 * 1024, 'x');
        if (EscribirConjunto(Conjunto(p, std::string(8 * 1024, 'n'))) != "el disco está lleno") std::_Exit(2);
        if (Contenido(p) != Esperado("vieja")) std::_Exit(3);
        fs::remove(raiz / "tmpfs" / "relleno");
        std::_Exit(EscribirConjunto(Conjunto(p, "nueva")) || Contenido(p) != Esperado("nueva") ? 4 : 0);
    }
    int estado = -1;
    ASSERT_EQ(waitpid(hijo, &estado, 0), hijo);
    if (WEXITSTATUS(estado) == 77) GTEST_SKIP() << "no se puede montar un tmpfs aquí";
    EXPECT_EQ(WEXITSTATUS(estado), 0);
}

TEST_F(EscribirArchivos, DosEscritoresDeUnaCarpetaSeTurnanYQuedaUnConjuntoEntero) {
    for (int vuelta = 0; vuelta < 50; ++vuelta) {
        const fs::path p = raiz / std::to_string(vuelta) / "pagina";
        std::optional<std::string> a, b;
        std::thread otro([&] { b = EscribirConjunto(Conjunto(p, "b")); });
        a = EscribirConjunto(Conjunto(p, "a"));
        otro.join();
        ASSERT_EQ(a, std::nullopt);
        ASSERT_EQ(b, std::nullopt);
        const std::string hay = Contenido(p);
        ASSERT_TRUE(hay == Esperado("a") || hay == Esperado("b")) << hay;
    }
}
