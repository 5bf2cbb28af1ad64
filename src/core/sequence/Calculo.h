// A whole calculation as a function of its inputs: the air, the fuel, the
// combustion and the cycle, each stage as its window runs it (the same checks
// and messages, in the same order), then the power at the speed given. The
// command line, the studies, the validation, the comparisons and the web page
// all calculate through it; the windows run the same stages one at a time.
#pragma once

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/cycle/Ciclo.h"
#include "core/fluids/Combustion.h"
#include "core/inputs/Entradas.h"
#include "core/services/Mensajes.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "core/warnings/Avisos.h"

namespace vanta {

// The seven pictures of the main window.
struct SuperficiesCalculo {
    Superficie& pct1;
    Superficie& pct2;
    Superficie& pct3;
    Diagramas diagramas;
};

// Seven surfaces that draw nothing.
struct SuperficiesNulas {
    SuperficieNula pct1, pct2, pct3;
    DiagramasNulos diagramas;
    SuperficiesCalculo Todas() { return {pct1, pct2, pct3, diagramas.Todos()}; }
};

// What a calculation gives. Every output (the text report, the JSON, the
// page, the record, the warnings) is made from this one value.
struct ResultadoCalculo {
    Entradas entradas;
    std::string tipoCombustible;  // the text of the fuel list
    bool bien = false;
    // Where a calculation that failed stopped: the stage whose window told
    // the last message (Regimen: the speed was refused after a calculation
    // that ended well).
    std::optional<EtapaEntrada> parada;
    std::vector<MensajeCalculo> mensajes;
    CampoEntrada foco;  // the box that ends with the focus
    // Every variable of the calculation as the cycle left it, also after a
    // failure (the states it reached).
    std::shared_ptr<const Estado> estado;
    // After a calculation that ended well.
    std::string informe;
    TextosResultados textos;
    std::vector<Aviso> avisos;
    // The power at the speed given, when it was accepted: in W, and as the
    // main window shows it.
    double vatios = std::numeric_limits<double>::quiet_NaN();
    std::optional<TextosPotencia> potencia;

    // Whether the cycle ended well, whatever the speed.
    bool CicloCalculado() const { return bien || parada == EtapaEntrada::Regimen; }
    std::vector<std::string> TextosMensajes() const;
};

// The whole calculation on a fresh state (the pens of the main window, the
// decimal separator given), drawing on the surfaces given.
ResultadoCalculo Calcular(const Entradas& x, SuperficiesCalculo& s, char separador = '.');
// The same where nothing is drawn: the steps of the walks that only feed the
// drawing are not taken, with the same results.
ResultadoCalculo Calcular(const Entradas& x, char separador = '.');

// The first stages on a state, as their windows run them: the air, then, with
// conGases, the fuel and the combustion. False when a stage failed.
bool DefinirFluido(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s, bool conGases);

// The composition charts of the first `etapas` stages (1 the air, 2 also the
// fuel, 3 also the gases) drawn again on a state, as their windows draw them;
// false when a stage failed.
bool DibujarGraficas(Estado& e, const Entradas& x, SuperficiesCalculo& s, int etapas);

// Every variable of the state as one JSON object, full precision (the
// shortest text that reads back to the same number), keyed by the state's
// own names.
std::string EstadoJSON(const Estado& e);

// The JSON of `vanta calcular --json`: EstadoJSON with, after the state's own
// keys, "avisos" (the texts of the validity warnings, empty unless the cycle
// ended well), and, when it ended well and each ideal cycle exists,
// "RendimientoIdealAireEstandar" (gamma 1.4), "RendimientoIdealExponentes"
// (the calculation's own mean exponents), "ExponenteMedioCompresion" and
// "ExponenteMedioExpansion".
std::string ResultadoJSON(const ResultadoCalculo& r);

}  // namespace vanta
