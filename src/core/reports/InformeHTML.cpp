#include "core/reports/Informes.h"
#include "core/reports/TextosInforme.h"

namespace vanta {

using namespace informe;

namespace {

constexpr std::string_view kExtensionArchivo = ".bmp";
constexpr std::string_view kExtensionPagina = ".BMP";

// The line of the page that shows the picture of a box.
void LineaImagen(std::string& s, CuadroImagen cuadro) {
    for (const ImagenPagina& imagen : kImagenesPagina)
        if (imagen.cuadro == cuadro) AgregarLinea(s, "<IMG SRC = ", "\"", ImagenEnPagina(imagen), "\"", ">");
}

}  // namespace

std::string ArchivoImagen(const ImagenPagina& imagen) {
    return std::string(imagen.nombre) + std::string(kExtensionArchivo);
}

std::string ImagenEnPagina(const ImagenPagina& imagen) {
    return std::string(imagen.nombre) + std::string(kExtensionPagina);
}

// ---- The seven pieces ---------------------------------------------------------------

void InformeHTMLCabeceraAire(std::string& s, const CifrasInforme& c) {
    s.clear();
    AgregarLinea(s);
    AgregarLinea(s, "<HTML>");
    AgregarLinea(s, "<HEAD>");
    AgregarLinea(s, "<TITLE>Vanta</TITLE>");
    AgregarLinea(s, "</HEAD>");
    AgregarLinea(s, "<BODY>");
    AgregarLinea(s, "<HR>");
    // The banner's non-breaking blanks are spelt both with and without their
    // semicolon, as the page has always had them.
    AgregarLinea(s, "<B>", kCiclo, c.tipoCiclo, " &nbsp; &nbsp; &nbsp;      ", kCombustibleBanner,
                 c.tipoCombustible, "&nbsp &nbsp &nbsp ", kFrBanner, c.frBanner, "&nbsp; &nbsp; &nbsp; ",
                 kAireBanner, c.humedadBanner, kDeHumedad, "</B><BR>");
    AgregarLinea(s, "<HR>");
    AgregarLinea(s);
    AgregarLinea(s, "<P><LI><U> AIRE: </U></LI><BR>");
    AgregarLinea(s, kPresionAmbiente, c.pambiente, " Pa<BR>");
    AgregarLinea(s, kTemperaturaAmbiente, c.tambiente, " K <BR>");
    AgregarLinea(s, kHumedadRelativa, c.humedad, " % <BR>");
    AgregarLinea(s, kPresionSaturacion, c.psaturacion, " Pa <BR>");
    AgregarLinea(s, kMasaMolecularAire, c.masaMolecularAire, kKgPorMol, " </P>");
    LineaImagen(s, CuadroImagen::pct1);
    AgregarLinea(s);
}

void InformeHTMLCombustible(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kBR = " <BR>";
    AgregarLinea(s);
    AgregarLinea(s, " <P><LI><U> COMBUSTIBLE: </U></LI>", kBR);
    AgregarLinea(s, kCombustible, c.tipoCombustible, kBR);
    // The atoms of the formula as subscripts, with the spacing the page has.
    AgregarLinea(s, kFormulaQuimica, " C <FONT SIZE = -4>", c.atomosC, " </FONT>    H<FONT SIZE = -4> ",
                 c.atomosH, "</FONT>     N<FONT SIZE = -4> ", c.atomosN, "</FONT>     O<FONT SIZE = -4>  ",
                 c.atomosO, "</FONT>     S<FONT SIZE = -4> ", c.atomosS, "</FONT> <BR>");
    AgregarLinea(s, kPorcentajeEnMasa, kPorcientoC, c.cienC, kPorciento, "   &nbsp;    ", kPorcientoH,
                 c.cienH, kPorciento, "  &nbsp;     ", kPorcientoN, c.cienN, kPorciento, "   &nbsp;    ",
                 kPorcientoO, c.cienO, kPorciento, "   &nbsp;    ", kPorcientoS, c.cienS, kPorciento, kBR);
    AgregarLinea(s, kPoderSuperior, kIgual, c.hcs, kJPorKg, kBR);
    AgregarLinea(s, kPoderInferior, kIgual, c.hci, kJPorKg, kBR);
    AgregarLinea(s, kCalorVaporizacion, c.calorVap, kJPorKg, kBR);
    AgregarLinea(s, kMasaMolecularCombustible, c.masaMolecularCombustible, kKgPorMol, " </P>");
    LineaImagen(s, CuadroImagen::pct2);
    AgregarLinea(s);
}

// The one piece that ends with a single line end, right after its picture.
void InformeHTMLCombustion(std::string& s, const CifrasInforme& c) {
    AgregarLinea(s);
    AgregarLinea(s, "<P><LI><U> COMBUSTIÓN: </U></LI><BR>");
    AgregarLinea(s, kDosadoRelativo, c.fr, "<BR>");
    AgregarLinea(s, kLambda, c.lambda, "<BR>");
    AgregarLinea(s, kDosadoEstequiometrico, c.fe, "<BR>");
    AgregarLinea(s, kPoderSuperior, " <FONT SIZE =-1>", kConFe, c.fe, ")</FONT>", kIgual, c.hcsHumos,
                 kJPorKgCombustible, " <BR>");
    AgregarLinea(s, kPoderInferior, " <FONT SIZE =-1> ", kConFe, c.fe, ")</FONT>", kIgual, c.hciHumos,
                 kJPorKgCombustible, " <BR>");
    AgregarLinea(s, kMasaMolecularHumos, c.masaMolecularHumos, kKgPorMol, " </P>");
    LineaImagen(s, CuadroImagen::pct3);
}

void InformeHTMLCiclo(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kNbsp = " &nbsp; ";
    AgregarLinea(s);
    AgregarLinea(s, "<P><LI><U> CICLO:</U></LI><BR>");
    AgregarLinea(s, kCilindrada, c.cilindrada, kCC, "<BR>");
    AgregarLinea(s, kRelacionCompresion, c.rc, "<BR>");
    AgregarLinea(s, kMasaAire, c.masaAire, kKg, " <BR>");
    AgregarLinea(s, kMasaCombustible, c.masaCombustible, kKg, " <BR>");
    AgregarLinea(s, kMasaHumos, c.masaHumos, kKg, " <BR>");
    for (int k = 1; k <= 5; ++k) {
        AgregarLinea(s, LineaPresionVolumen(c, k, kNbsp), "<BR>");
        // The last state closes the paragraph.
        AgregarLinea(s, LineaEntalpiaEntropia(c, k, kNbsp), k == 5 ? "</P>" : "<BR>");
    }
    AgregarLinea(s);
}

// No empty lines between the processes; the last line has no line end, the
// totals close it.
void InformeHTMLProcesos(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kBR = "<BR>";
    constexpr std::string_view kJPorMolAireBR = " J/(mol aire)<BR>";
    constexpr std::string_view kHueco = "   &nbsp;     ";
    AgregarLinea(s);
    AgregarLinea(s, "<P><LI><U>", kProceso12, ":</U></LI><BR>");
    AgregarLinea(s, kGamma1, c.gamma1, kBR);
    AgregarLinea(s, kGamma2, c.gamma2, kBR);
    AgregarLinea(s, kTrabajo12, c.trabajo12, kJ, "  &nbsp;     ", kTrabajoMolar12, c.trabajoMolar12,
                 kJPorMolAireBR);
    AgregarLinea(s, kSalto21, c.salto21, kJPorMol, "      </P>");
    AgregarLinea(s, "<P><LI><U>", kProceso23, ": </U></LI><BR>");
    AgregarLinea(s, kQ23, c.q23, kJ, "  &nbsp;      ", kQMolar23, c.qMolar23, kJPorMolAireBR);
    AgregarLinea(s, kSalto32, c.salto32, kJPorMol, "  </P>    ");
    AgregarLinea(s, "<P><LI><U>", kProceso34, ": </U></LI><BR>");
    AgregarLinea(s, kQ34, c.q34, kJ, kHueco, kQMolar34, c.qMolar34, kJPorMolAireBR);
    AgregarLinea(s, kTrabajo34, c.trabajo34, kHueco, kTrabajoMolar34, c.trabajoMolar34, kJPorMolAireBR);
    AgregarLinea(s, kSalto43, c.salto43, kJPorMol, "   </P>   ");
    AgregarLinea(s, "<P><LI><U>", kProceso45, ":</U></LI><BR>");
    AgregarLinea(s, kGamma4, c.gamma4, kBR);
    AgregarLinea(s, kGamma5, c.gamma5, kBR);
    AgregarLinea(s, kTrabajo45, c.trabajo45, kHueco, kTrabajoMolar45, c.trabajoMolar45, kJPorMolAireBR);
    Agregar(s, kSalto54, c.salto54, kJPorMol, "   </P>   ");
}

// The heat shown here is the ideal heat of the fuel, per mole of comburent; the
// last paragraph has no line end.
void InformeHTMLTotales(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kJHueco = " J  &nbsp;   ";
    constexpr std::string_view kPorMolComburente = " J / mol de comburente</LI></P>";
    AgregarLinea(s);
    AgregarLinea(s, "<P><LI>", kCalorAportado, c.calorIdeal, kJHueco, c.calorIdealMolar, kPorMolComburente);
    AgregarLinea(s, "<P><LI>", kTrabajoCiclo, c.trabajoCiclo, kJHueco, c.trabajoCicloMolar,
                 kPorMolComburente);
    Agregar(s, "<P><LI>", kRendimiento, c.rendimiento, "</LI></P>");
}

void InformeHTMLDiagramas(std::string& s) {
    AgregarLinea(s);
    for (CuadroImagen cuadro :
         {CuadroImagen::pctPV, CuadroImagen::pctTV, CuadroImagen::pctTS, CuadroImagen::pctHS})
        LineaImagen(s, cuadro);
    AgregarLinea(s, " </BODY>");
    Agregar(s, "</HTML>");
}

std::string HTMLInforme(const Estado& e, std::string_view tipoCombustible) {
    const CifrasInforme c = CalcularCifrasInforme(e, tipoCombustible);
    std::string pagina;
    InformeHTMLCabeceraAire(pagina, c);
    InformeHTMLCombustible(pagina, c);
    InformeHTMLCombustion(pagina, c);
    InformeHTMLCiclo(pagina, c);
    InformeHTMLProcesos(pagina, c);
    InformeHTMLTotales(pagina, c);
    InformeHTMLDiagramas(pagina);
    return pagina;
}

}  // namespace vanta
