// What the web page asks of the core, and every call the page makes into it:
// the inputs of a calculation with their captions, units, defaults and
// choices; a whole calculation with its pictures as SVG, its report, its JSON
// and its messages; the readout under the pointer; studies point by point;
// comparisons; the validation. Inputs come as lines "nombre=valor" (the long
// names of the command line's options); answers go back as JSON texts, so
// that the page's scripts deal in plain maps and know nothing of the core's
// types.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/inputs/Entradas.h"
#include "core/sequence/Calculo.h"
#include "core/state/Estado.h"
#include "core/studies/Estudio.h"
#include "web/SuperficieSVG.h"

namespace vanta::web {

// The inputs in the order of the stages: for each its name, caption, unit,
// whether it is a number, its default text ("" for one that is not given
// unless the user gives it), the input whose text it takes when not given
// (p1 and t1 take the ambient's), the values of a choice, the inputs its
// choice drops, whether it is the one of its group taken when none is given,
// the choice it only means something with ("ciclo=Mixto"), and its stage
// ("aire", "combustible", "combustion", "ciclo", "potencia"). Then the
// outputs a study may ask for, and the names of the saved page and of its
// pictures as the desktop writes them.
std::string EntradasJSON();

// Reads the input lines into o. Why they cannot be used as they stand ("" when
// they can): a line that is not "nombre=valor" of an input, or a choice whose
// value is not one of its list (its name then goes to entrada).
std::string ComprobarEntradas(const std::string& lineas, OpcionesCalculo& o, std::string* entrada = nullptr);

// One calculation at a time, with its state kept for the readout and the
// reports asked for afterwards.
class Calculadora {
public:
    Calculadora();
    ~Calculadora();

    // The four stages on the inputs given. JSON: "bien", "mensajes" (in
    // order), "etapa" (of a failure: the first stage that does not pass),
    // "entrada" (when the failure is known to concern one input),
    // "informe" (as `vanta calcular` writes it), "resultados" (the texts of
    // the result labels), "potencia" (when the speed is given), "avisos",
    // "ideal", and the seven pictures as SVG in "imagenes" (pct1, pct2, pct3,
    // pctPV, pctTV, pctTS, pctHS).
    std::string Calcular(const std::string& lineas);

    // Every variable of the last calculation as `vanta calcular --json`
    // writes it ("" when its inputs were refused): asked apart, for it takes
    // a calculation of its own.
    std::string JSON() const;

    // The pointer at pixel (px, py) of the p-V (diagrama 0) or T-V (1)
    // picture. JSON: the readout's texts and the transient layer of the four
    // diagrams; nothing when no calculation ended well.
    std::string Leer(int diagrama, float px, float py);

    // The page of the last calculation that ended well, as the program saves
    // it (its pictures beside it, by ArchivosImagenes).
    std::string PaginaHTML() const;
    // The text report as the program saves it.
    std::string InformeArchivo() const;
    // The persistent picture of a picture box of the last calculation as SVG
    // (0 to 6, as in "imagenes").
    std::string Imagen(int i) const;

private:
    struct Calculo;
    std::unique_ptr<Calculo> c_;
};

// A study point by point, as the page's worker runs it.
class EstudioWeb {
public:
    // The base inputs, one or two varied inputs with the text of their values
    // (a list or INICIO:FIN:PASO), the outputs by name separated by commas,
    // and the CSV's dialect (false: RFC 4180; true: ";" and decimal comma).
    // JSON: "error", or "puntos", "cabecera" (the CSV's first line), the
    // inputs and outputs with their captions and units.
    std::string Preparar(const std::string& base,
                         const std::vector<std::pair<std::string, std::string>>& variar,
                         const std::string& salidas, bool espanol);
    // Point i: JSON with "fila" (its CSV line), "bien", "entradas" (the
    // varied values as the table writes them), "valores" (one per output,
    // null where it failed) and "mensajes".
    std::string Punto(size_t i) const;

private:
    Estudio estudio_;
    bool espanol_ = false;
};

// Up to six calculations by name and input lines, on common axes: JSON with
// the four figures as SVG ("figuras"), the table of figures ("tabla") and the
// message of each that gives no calculation ("calculos").
// The cycle with dissociation of the inputs given, beside the program's:
// "bien", "mensaje" (why not), "texto" (the section `vanta calcular
// --disociacion` writes after the report, lines ended by "\n") and the four
// diagrams with both cycles as SVG in "figuras".
std::string DisociacionJSON(const std::string& lineas);
// The caption of the check box that asks for it.
std::string CasillaDisociacion();

std::string CompararJSON(const std::vector<std::pair<std::string, std::string>>& calculos, bool enBar);

// The validation tables: the groups with their titles and explanations, and
// every check.
std::string ValidacionJSON();

}  // namespace vanta::web
