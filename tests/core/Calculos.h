// Whole calculations for the core tests: the program's own sequence of the
// four stages run headless from the command line's option texts, every
// message kept and every picture recorded; and the text of everything a
// calculation shows, for the golden files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/cycle/Ciclo.h"
#include "core/sequence/Calculo.h"

namespace vanta::pruebas {

struct Calculo {
    SuperficieGrabada pct1, pct2, pct3, pctPV, pctTV, pctTS, pctHS;
    ResultadoCalculo r;
    bool bien = false;
    // A copy of the state the calculation left, for what works on it after
    // (the readout), and the messages of that.
    Estado e;
    Mensajes dlg;

    Calculo();
    Diagramas Diagramas4() { return {pctPV, pctTV, pctTS, pctHS}; }
    SuperficiesCalculo Superficies() { return {pct1, pct2, pct3, Diagramas4()}; }
};

// The options as the command line takes them: {"--ciclo", "Diesel", ...}.
OpcionesCalculo Opciones(const std::vector<std::string>& palabras);

// Runs the four stages on a fresh state; without drawing, on surfaces that
// keep nothing (the recording of a whole cycle is thousands of calls).
std::unique_ptr<Calculo> Calcular(const std::vector<std::string>& opciones, bool dibujar = true,
                                  char separador = '.');

// A digest of the calls a surface received: how many, a hash of them all, and
// every call but the lines in full (scales, texts, points, boxes).
std::string Dibujo(const SuperficieGrabada& s);

// Everything the calculation shows, section by section: the messages, the
// state (one variable a line), the labels of the main window, the text
// report, the page, the record, the three charts and the four diagrams.
std::string Volcado(Calculo& c);

// The variables of the state that are NaN or infinite.
std::vector<std::string> NoFinitas(const Estado& e);

// The lines of a text that ends its lines in CR LF.
std::vector<std::string> Lineas(const std::string& texto);

}  // namespace vanta::pruebas
