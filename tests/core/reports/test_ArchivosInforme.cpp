// Reports as files: the dialogs' filters in the form a file dialog reads, the
// bytes of a saved page and text, and reading a saved text back.
#include <gtest/gtest.h>

#include <string>

#include "core/reports/ArchivosInforme.h"

using namespace vanta;

namespace {

std::vector<std::string> Etiquetas(const std::vector<FiltroArchivo>& filtros) {
    std::vector<std::string> e;
    for (const FiltroArchivo& f : filtros) e.push_back(f.etiqueta);
    return e;
}

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
