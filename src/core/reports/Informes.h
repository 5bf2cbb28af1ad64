// The two reports of a calculated cycle: the plain text that the main window
// keeps (CR LF line ends, none after the last line) and the web page, which
// lays the same figures out with the seven pictures of the main window beside
// it. Both are built from the calculation state alone; neither has a branch on
// the cycle, and neither has error paths of its own: a figure that is not
// finite prints as the number services print it.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/state/Estado.h"

namespace vanta {

// ---- The figures ---------------------------------------------------------------

// One state of the cycle as its pair of report lines shows it.
struct CifrasEstadoCiclo {
    std::string presion, presionBar;
    std::string volumen;        // c.c.
    std::string volumenMasico;  // m3 / kg of comburent
    std::string volumenMolar;   // m3 / mol of comburent
    std::string temperatura, temperaturaCelsius;
    std::string entalpia, entropia;
};

// Every figure of the reports already turned into text, with its rounding and
// mask: the text and the page print the same figures, so they are made here
// once. Where the lines read an odd quantity (the whole Qciclo beside Q 3-4, the
// unrounded work of 1-2 in its molar line), so do these fields.
struct CifrasInforme {
    // Banner and air.
    std::string tipoCiclo, tipoCombustible, frBanner, humedadBanner;
    std::string pambiente, tambiente, humedad, psaturacion, masaMolecularAire;
    // Fuel.
    std::string atomosC, atomosH, atomosN, atomosO, atomosS;
    std::string cienC, cienH, cienN, cienO, cienS;
    std::string hcs, hci, calorVap, masaMolecularCombustible;
    // Combustion.
    std::string fr, lambda, fe, hcsHumos, hciHumos, masaMolecularHumos;
    // Cycle.
    std::string cilindrada, rc, masaAire, masaCombustible, masaHumos;
    std::array<CifrasEstadoCiclo, 5> estados;
    // Processes.
    std::string gamma1, gamma2, trabajo12, trabajoMolar12, salto21;
    std::string q23, qMolar23, salto32;
    std::string q34, qMolar34, trabajo34, trabajoMolar34, salto43;
    std::string gamma4, gamma5, trabajo45, trabajoMolar45, salto54;
    // Totals.
    std::string calorIdeal, calorIdealMolar, calorCiclo, calorCicloMolar;
    std::string trabajoCiclo, trabajoCicloMolar, rendimiento;
};

// tipoCombustible: the text of the fuel list.
CifrasInforme CalcularCifrasInforme(const Estado& e, std::string_view tipoCombustible);

// ---- Lines -----------------------------------------------------------------------

inline constexpr std::string_view kFinLinea = "\r\n";

// Appends pieces of a line, with no line end.
template <class... Piezas>
void Agregar(std::string& s, const Piezas&... piezas) {
    (s.append(piezas), ...);
}

// Appends one line of a report: its pieces, then the line end.
template <class... Piezas>
void AgregarLinea(std::string& s, const Piezas&... piezas) {
    Agregar(s, piezas...);
    s.append(kFinLinea);
}

// ---- The text report -------------------------------------------------------------

// The whole text report, its six sections in order.
std::string InformeTexto(const Estado& e, std::string_view tipoCombustible);

// The banner and the air replace the text; every other section appends its own.
void InformeTextoCabeceraAire(std::string& informe, const CifrasInforme& c);
void InformeTextoCombustible(std::string& informe, const CifrasInforme& c);
void InformeTextoCombustion(std::string& informe, const CifrasInforme& c);
void InformeTextoCiclo(std::string& informe, const CifrasInforme& c);
void InformeTextoProcesos(std::string& informe, const CifrasInforme& c);
void InformeTextoTotales(std::string& informe, const CifrasInforme& c);

// ---- The web page ------------------------------------------------------------------

// The picture boxes of the main window that a saved page shows.
enum class CuadroImagen { pct1, pct2, pct3, pctPV, pctTV, pctTS, pctHS };

// A picture of the page: its bare name and the box it is taken from.
struct ImagenPagina {
    std::string_view nombre;
    CuadroImagen cuadro;
};

// The seven pictures, in the order in which they are written beside the page.
inline constexpr std::array<ImagenPagina, 7> kImagenesPagina{{
    {"BMPAIRE", CuadroImagen::pct1},
    {"BMPCOMBUSTIBLE", CuadroImagen::pct2},
    {"BMPCOMBUSTION", CuadroImagen::pct3},
    {"BMPPV", CuadroImagen::pctPV},
    {"BMPTV", CuadroImagen::pctTV},
    {"BMPTS", CuadroImagen::pctTS},
    {"BMPHS", CuadroImagen::pctHS},
}};

// The file a picture is written to ("BMPAIRE.bmp") and the name by which the
// page refers to it ("BMPAIRE.BMP"): they differ in the case of the extension.
std::string ArchivoImagen(const ImagenPagina& imagen);
std::string ImagenEnPagina(const ImagenPagina& imagen);

// The whole page, its seven pieces in order; the last line, "</HTML>", has no
// line end.
std::string HTMLInforme(const Estado& e, std::string_view tipoCombustible);

// The head, banner and air replace the text; every other piece appends its own.
void InformeHTMLCabeceraAire(std::string& pagina, const CifrasInforme& c);
void InformeHTMLCombustible(std::string& pagina, const CifrasInforme& c);
void InformeHTMLCombustion(std::string& pagina, const CifrasInforme& c);
void InformeHTMLCiclo(std::string& pagina, const CifrasInforme& c);
void InformeHTMLProcesos(std::string& pagina, const CifrasInforme& c);
void InformeHTMLTotales(std::string& pagina, const CifrasInforme& c);
void InformeHTMLDiagramas(std::string& pagina);

}  // namespace vanta
