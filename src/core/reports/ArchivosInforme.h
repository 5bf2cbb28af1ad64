// Reports as files: the file dialogs of the report windows (their filters and
// default names), the bytes a saved page and a saved text report are written
// as, and the reading back of a saved text.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vanta {

// The advice shown before a page is saved: its pictures overwrite those of an
// earlier page in the same folder.
inline constexpr std::string_view kConsejoCarpetaNueva =
    "Se aconseja guardar siempre en una carpeta nueva, ya que las imágenes reemplazarán las existentes";
// Said when a page could not be saved, before why.
inline constexpr std::string_view kPaginaNoGuardada = "No se ha podido guardar la página: ";

// ---- File dialogs ------------------------------------------------------------------

// A file dialog as the windows declare it: the filter in the program's form
// ("label|pattern|label|pattern|", trailing blanks included), the name it
// offers, and the filter it starts on (counted from 1; 0 also means the first).
struct DialogoArchivo {
    std::string_view filtro;
    std::string_view nombre;
    int indiceFiltro;
};

inline constexpr std::string_view kFiltroTexto =
    "Documento de texto  (*.txt)|*.txt|Documento de texto enriquecido (*.rtf)|*.rtf|Documento de Lotus Word "
    "Pro "
    "9 (*.lwp)|*.lwp|Documento de Wordpad(*.DOC)|*.DOC|Todos los archivos (*.*)|*.*|       ";
// The viewer of saved reports spells the Wordpad label without its point.
inline constexpr std::string_view kFiltroTextoMostrar =
    "Documento de texto  (*.txt)|*.txt|Documento de texto enriquecido (*.rtf)|*.rtf|Documento de Lotus Word "
    "Pro "
    "9 (*.lwp)|*.lwp|Documento de Wordpad(*DOC)|*.DOC|Todos los archivos (*.*)|*.*|       ";
inline constexpr std::string_view kFiltroPagina =
    "Página Web (html, htm)|*.htm| Todos los archivos (*.*)|*.*|    ";

// Saving the text report (main window and report window).
inline constexpr DialogoArchivo kDialogoTexto{kFiltroTexto, "", 0};
// Saving the page from the main window and from the report window.
inline constexpr DialogoArchivo kDialogoPaginaPrincipal{kFiltroPagina, "Index", 0};
inline constexpr DialogoArchivo kDialogoPaginaInforme{kFiltroPagina, "Ciclo", 0};
// Opening saved reports: a text starts on all files, a page on pages.
inline constexpr DialogoArchivo kDialogoAbrirTexto{kFiltroTextoMostrar, "", 5};
inline constexpr DialogoArchivo kDialogoAbrirPagina{kFiltroPagina, "", 1};

// One filter of a dialog.
struct FiltroArchivo {
    std::string etiqueta;   // as the dialog lists it, its pattern between brackets at the end
    std::string patron;     // "*.htm"
    std::string extension;  // "htm"; empty for a pattern that names no extension ("*.*")
};

// The filters of a dialog, in order. A label that does not already end in its
// pattern between brackets gets it appended, so that a dialog which reads the
// pattern from the label ("Página Web (html, htm)") filters by the real one.
std::vector<FiltroArchivo> FiltrosDialogo(std::string_view filtro);

// The filter a dialog starts on, counted from 0 and kept inside the list.
size_t FiltroInicial(const DialogoArchivo& d, size_t cuantos);

// The dialog's name with the extension of its starting filter: "Index.htm".
std::string NombreConExtension(const DialogoArchivo& d);

// ---- Bytes of the saved files ---------------------------------------------------------

// The page as written: UTF-8 behind a byte-order mark. The page declares no
// character set; the mark is what every browser honours before any guess, so
// the accented letters read right whatever the browser's language.
std::string BytesPagina(std::string_view pagina);

// A text report as written: UTF-8 with every line end CR LF, whichever
// extension the name has.
std::string BytesInformeTexto(std::string_view informe);

// A report (the bytes of a saved file, or the buffer) as a text box shows it:
// UTF-8 as it comes (a leading byte-order mark dropped), or Windows-1252 when
// the bytes are not valid UTF-8 (a report written in the system's 8-bit code
// page); every line end, CR LF, CR or LF, becomes LF.
std::string TextoEnCaja(std::string_view bytes);

// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates,
// nothing past U+10FFFF).
bool EsUtf8Valido(std::string_view bytes);

// Windows-1252 bytes as UTF-8; the five bytes the code page leaves undefined
// stand for the control characters of the same number.
std::string Windows1252AUtf8(std::string_view bytes);

// ---- Files ----------------------------------------------------------------------------

// The bytes of a file; nothing when it cannot be read.
std::optional<std::string> LeerArchivoEntero(const std::filesystem::path& ruta);

}  // namespace vanta
