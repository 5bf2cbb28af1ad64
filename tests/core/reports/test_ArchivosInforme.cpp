// Reports as files: the dialogs' filters in the form a file dialog reads, the
// bytes of a saved page and text, reading a saved text back, and the whole-file
// write.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "core/reports/ArchivosInforme.h"

using namespace vanta;
namespace fs = std::filesystem;

namespace {

std::vector<std::string> Etiquetas(const std::vector<FiltroArchivo>& filtros) {
    std::vector<std::string> e;
    for (const FiltroArchivo& f : filtros) e.push_back(f.etiqueta);
    return e;
}

// A fresh folder of its own for one test, removed afterwards.
struct CarpetaTest : ::testing::Test {
    fs::path carpeta;
    void SetUp() override {
        carpeta = fs::temp_directory_path() /
                  ("vanta-archivos-" +
                   std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(carpeta);
        fs::create_directories(carpeta);
    }
    void TearDown() override { fs::remove_all(carpeta); }
    size_t Archivos() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()));
    }
};

}  // namespace

TEST(FiltrosDialogo, LasEtiquetasLlevanSuPatronYLosBlancosDelFinalNoSonFiltro) {
    // The page filter: its label names the extensions without the pattern, so
    // the pattern is appended; the leading blank of the second label stays.
    const auto pagina = FiltrosDialogo(kFiltroPagina);
    ASSERT_EQ(pagina.size(), 2u);
    EXPECT_EQ(pagina[0].extension, "htm");
    EXPECT_EQ(pagina[1].extension, "");

    // The text filters: the labels that already end in their pattern keep it;
    // the viewer's Wordpad label without its point gets the real one.
    EXPECT_EQ(
        Etiquetas(FiltrosDialogo(kFiltroTexto)),
        (std::vector<std::string>{"Documento de texto  (*.txt)", "Documento de texto enriquecido (*.rtf)",
                                  "Documento de Lotus Word Pro 9 (*.lwp)", "Documento de Wordpad(*.DOC)",
                                  "Todos los archivos (*.*)"}));
    const auto mostrar = FiltrosDialogo(kFiltroTextoMostrar);
    ASSERT_EQ(mostrar.size(), 5u);
    EXPECT_EQ(mostrar[3].etiqueta, "Documento de Wordpad(*DOC) (*.DOC)");
    EXPECT_EQ(mostrar[3].extension, "DOC");

    EXPECT_TRUE(FiltrosDialogo("").empty());
    EXPECT_TRUE(FiltrosDialogo("|||   ").empty());
}

TEST(FiltrosDialogo, ElFiltroInicialYElNombreQueOfreceCadaDialogo) {
    EXPECT_EQ(FiltroInicial(kDialogoTexto, 5), 0u);
    EXPECT_EQ(FiltroInicial(kDialogoAbrirTexto, 5), 4u);  // all files
    EXPECT_EQ(FiltroInicial(kDialogoAbrirPagina, 2), 0u);
    EXPECT_EQ(FiltroInicial({kFiltroPagina, "", 9}, 2), 1u);
    EXPECT_EQ(FiltroInicial({kFiltroPagina, "", -3}, 2), 0u);
    EXPECT_EQ(FiltroInicial(kDialogoTexto, 0), 0u);

    EXPECT_EQ(NombreConExtension(kDialogoPaginaPrincipal), "Index.htm");
    EXPECT_EQ(NombreConExtension(kDialogoPaginaInforme), "Ciclo.htm");
    EXPECT_EQ(NombreConExtension({kFiltroPagina, "Index", 2}), "Index");
}

TEST(BytesArchivos, LaPaginaLlevaLaMarcaUtf8YElTextoFinesCRLF) {
    const std::string pagina = "\r\n<HTML>\r\nPresión</HTML>";
    EXPECT_EQ(BytesPagina(pagina), "\xEF\xBB\xBF" + pagina);

    // Whatever the line ends of the buffer, the file has CR LF and nothing
    // else; a text with them already stays as it is.
    EXPECT_EQ(BytesInformeTexto("a\nb\r\nc\rd\n\ne"), "a\r\nb\r\nc\r\nd\r\n\r\ne");
    EXPECT_EQ(BytesInformeTexto("uno\r\ndos"), "uno\r\ndos");
    EXPECT_EQ(BytesInformeTexto("\r\r\n"), "\r\n\r\n");
}

TEST(BytesArchivos, UnTextoGuardadoSeLeeEnUtf8OEnWindows1252) {
    // UTF-8 as it comes, its mark dropped, lines ending in LF.
    EXPECT_EQ(TextoEnCaja("\xEF\xBB\xBFPresión ambiente\r\nT = 26.85 ºC\r\n"),
              "Presión ambiente\nT = 26.85 ºC\n");
    // A report in the 8-bit code page: ó, º, and the bytes 0x80-0x9F that
    // are not Latin-1 (euro, dash, curly quotes).
    EXPECT_EQ(TextoEnCaja("Presi\xF3n \xBA\r\n\x80 \x96 \x93x\x94"), "Presión º\n€ – “x”");
    // The undefined bytes of the code page keep their number.
    EXPECT_EQ(TextoEnCaja("\x81\x8D"), "\xC2\x81\xC2\x8D");

    // Malformed UTF-8 of every kind falls back to the code page.
    for (const std::string malo : {"\xC3", "\xC3(", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                                   "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\x80"})
        EXPECT_FALSE(EsUtf8Valido(malo)) << ::testing::PrintToString(malo);
    for (const std::string bueno :
         {"", "abc", "ñ", "€", "\xF0\x9F\x98\x80", "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(EsUtf8Valido(bueno)) << ::testing::PrintToString(bueno);
    EXPECT_EQ(TextoEnCaja("\xC3("), "Ã(");
}

TEST_F(CarpetaTest, EscribirArchivoEnteroEscribeReemplazaYNoDejaTemporal) {
    const fs::path ruta = carpeta / "Index.htm";
    ASSERT_TRUE(EscribirArchivoEntero(ruta, "primera"));
    ASSERT_TRUE(EscribirArchivoEntero(ruta, std::string("segunda\0con nulo", 16)));
    EXPECT_EQ(LeerArchivoEntero(ruta), std::string("segunda\0con nulo", 16));
    EXPECT_EQ(Archivos(), 1u);
    EXPECT_EQ(RutaTemporal(ruta), carpeta / ".Index.htm.tmp");

    ASSERT_TRUE(EscribirArchivoEntero(carpeta / "vacio.txt", ""));
    EXPECT_EQ(LeerArchivoEntero(carpeta / "vacio.txt"), "");
}

TEST_F(CarpetaTest, UnaEscrituraQueFallaNoDejaNadaYUnaLecturaImposibleNoDaNada) {
    // Into a folder that is not there, onto a folder, with no file name.
    EXPECT_FALSE(EscribirArchivoEntero(carpeta / "no" / "Index.htm", "x"));
    fs::create_directory(carpeta / "sub");
    fs::create_directory(carpeta / "sub" / "Index.htm");
    EXPECT_FALSE(EscribirArchivoEntero(carpeta / "sub" / "Index.htm", "x"));
    EXPECT_FALSE(fs::exists(RutaTemporal(carpeta / "sub" / "Index.htm")));
    EXPECT_FALSE(EscribirArchivoEntero(carpeta / "", "x"));
    EXPECT_EQ(Archivos(), 1u);

    EXPECT_FALSE(LeerArchivoEntero(carpeta / "falta.txt"));
    EXPECT_FALSE(LeerArchivoEntero(carpeta / "sub"));
}

namespace {

// The disk, but for one write or one rename that fails with the error given.
struct DiscoQueFalla : SistemaArchivos {
    int escribir = -1, renombrar = -1;  // which call fails, from 0; -1 none
    std::errc error = std::errc::no_space_on_device;
    int escritos = 0, renombrados = 0;
    std::error_code Escribir(const fs::path& r, std::string_view b) override {
        return escritos++ == escribir ? std::make_error_code(error) : Disco().Escribir(r, b);
    }
    std::error_code Renombrar(const fs::path& a, const fs::path& b) override {
        return renombrados++ == renombrar ? std::make_error_code(error) : Disco().Renombrar(a, b);
    }
    void Borrar(const fs::path& r) override { Disco().Borrar(r); }
    bool Existe(const fs::path& r) override { return Disco().Existe(r); }
    std::error_code CrearCarpeta(const fs::path& c) override { return Disco().CrearCarpeta(c); }
};

std::vector<ArchivoDeConjunto> Conjunto(const fs::path& carpeta, const std::string& version) {
    std::vector<ArchivoDeConjunto> c;
    for (const char* nombre : {"Index.htm", "BMPAIRE.BMP", "BMPPV.BMP", "BMPHS.BMP"})
        c.push_back({carpeta / nombre, std::string(nombre) + " " + version});
    return c;
}

}  // namespace

TEST_F(CarpetaTest, UnConjuntoSeEscribeEnteroONadaYDiceElPorQue) {
    const fs::path destino = carpeta / "pagina";
    ASSERT_EQ(EscribirConjunto(Conjunto(destino, "primera")), std::nullopt);
    auto Contenido = [&] {
        std::string s;
        for (const auto& a : Conjunto(destino, "")) s += LeerArchivoEntero(a.ruta).value_or("FALTA") + "|";
        return s + std::to_string(std::distance(fs::directory_iterator(destino), fs::directory_iterator()));
    };
    const std::string primera = Contenido();
    EXPECT_EQ(primera, "Index.htm primera|BMPAIRE.BMP primera|BMPPV.BMP primera|BMPHS.BMP primera|4");

    // A write or a rename that fails anywhere leaves the first set whole.
    const struct {
        int escribir, renombrar;
        std::errc error;
        std::string causa;
    } fallos[] = {
        {0, -1, std::errc::no_space_on_device, "el disco está lleno"},
        {3, -1, std::errc::no_space_on_device, "el disco está lleno"},
        {2, -1, std::errc::permission_denied, "no tiene permiso de escritura en " + destino.string()},
        {-1, 0, std::errc::permission_denied, "no tiene permiso de escritura en " + destino.string()},
        {-1, 3, std::errc::is_a_directory,
         (destino / "BMPHS.BMP").string() + " es una carpeta, no un archivo"},
        {-1, 6, std::errc::io_error, "no se ha podido escribir " + (destino / "BMPPV.BMP").string()},
    };
    for (const auto& f : fallos) {
        DiscoQueFalla disco;
        disco.escribir = f.escribir, disco.renombrar = f.renombrar, disco.error = f.error;
        EXPECT_EQ(EscribirConjunto(Conjunto(destino, "segunda"), disco), f.causa);
        EXPECT_EQ(Contenido(), primera) << f.causa;
    }
    ASSERT_EQ(EscribirConjunto(Conjunto(destino, "segunda")), std::nullopt);
    EXPECT_EQ(Contenido(), "Index.htm segunda|BMPAIRE.BMP segunda|BMPPV.BMP segunda|BMPHS.BMP segunda|4");

    // A folder that is a file.
    std::ofstream(carpeta / "archivo") << "x";
    EXPECT_EQ(EscribirConjunto(Conjunto(carpeta / "archivo", "x")),
              (carpeta / "archivo").string() + " es un archivo, no una carpeta");
}
