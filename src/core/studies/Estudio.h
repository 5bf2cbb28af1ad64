// Parametric studies: a base calculation (every input that `vanta calcular`
// takes) with one or two inputs varied over a range or a list, and a choice of
// figures of the state as outputs. Each point is a whole calculation on a
// state of its own, the one `vanta calcular` makes from the same inputs, so
// points run side by side on every core; a point that fails stays in the
// study with its messages.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/sequence/Calculo.h"
#include "core/state/Estado.h"

namespace vanta {

// An input a study may vary: any input of the calculation, by its name, its
// unit (empty for a choice such as the fuel or the cycle) and its caption.
using EntradaEstudio = DefinicionEntrada;
std::span<const EntradaEstudio> EntradasEstudio();
const EntradaEstudio* BuscarEntradaEstudio(std::string_view nombre);

// An output: a figure of the state (campo, its name in the state and in the
// JSON of the state), one worked out from it and from the power at the
// point's speed (campo empty), or one of the cycles with dissociation
// calculated from the point's state (valor empty), by its name, unit and
// caption.
struct SalidaEstudio {
    const char* nombre;
    const char* unidad;
    const char* titulo;
    const char* campo;
    double (*valor)(const Estado& e, double potencia);
    bool sencilla;    // single precision in the state
    bool conRegimen;  // needs the speed (rpm)
    double (*deDisociacion)(const equilibrio::CiclosConDisociacion& c) = nullptr;
};
std::span<const SalidaEstudio> SalidasEstudio();
const SalidaEstudio* BuscarSalidaEstudio(std::string_view nombre);

// The values a choice takes (the fuels of the list, the cycles, the models);
// empty for a number or a fuel's own formula.
std::vector<std::string> ValoresEleccion(std::string_view nombre);

// A varied input and its values, texts as typed into its box: a list, or a
// range whose values are worked out when they are asked for, so that a range
// of millions of values takes no room.
struct Variacion {
    std::string nombre;
    std::vector<std::string> valores;  // a list; empty for a range
    struct Intervalo {
        double inicio = 0, paso = 0;
        size_t cuenta = 0;
        int decimales = 0;  // of the texts; -1 for the shortest
    } intervalo;

    size_t Cuenta() const { return valores.empty() ? intervalo.cuenta : valores.size(); }
    // The text of value i (i < Cuenta()).
    std::string Valor(size_t i) const;
};

// The values of a varied input: "INICIO:FIN:PASO" (start + i·step, written
// with the decimals typed, up to the end) or a list "A,B,C" (";" between the
// values when they carry decimal commas). Empty on success, else why the text
// is refused.
std::string LeerValores(std::string_view texto, bool numerica, Variacion& v);

// Beyond this a study is refused.
inline constexpr size_t kPuntosMaximos = 10'000'000;

struct Estudio {
    // The inputs given for every point; the rest are as the screens start.
    OpcionesCalculo base;
    std::vector<Variacion> variaciones;  // one or two
    std::vector<const SalidaEstudio*> salidas;
    char separador = '.';  // of the numbers in the messages
};

// The points: every value of the first input for the first value of the
// second, then for the next, so that each line of a plot is one block.
size_t NumeroPuntos(const Estudio& estudio);
// The index of each input's value at a point.
std::vector<size_t> IndicesPunto(const Estudio& estudio, size_t punto);
// The inputs of a point: the base with the varied values.
OpcionesCalculo OpcionesPunto(const Estudio& estudio, size_t punto);
Entradas EntradasPunto(const Estudio& estudio, size_t punto);

// Why a study cannot run.
inline constexpr std::string_view kMensajeSinVariar = "Falta la entrada que varía el estudio";
inline constexpr std::string_view kMensajeDemasiadas = "Un estudio varía una entrada o dos, no más";
inline constexpr std::string_view kMensajeMismaEntrada = "Las dos entradas variadas han de ser distintas";
inline constexpr std::string_view kMensajeDadaYVariada =
    ": se da a la vez en el cálculo de partida y variada";
inline constexpr std::string_view kMensajeSinRegimen =
    " necesita el régimen: escríbalo (rpm) o varíelo en el estudio";

// Why a study cannot run, or empty: one input or two, each varied once, over
// values its input takes (a name of the fuel list, a cycle, a model), none
// given in the base as well or excluding an input of the base, and the speed
// given or varied for the outputs that need it. The same rules for the window
// and the command line.
std::string ComprobarEstudio(const Estudio& estudio);
// The base of a study from the inputs as the windows hold them: each varied
// input leads, as choosing it on its window would make it, and is taken off
// the base with the inputs it excludes.
OpcionesCalculo BaseDeVentanas(const Entradas& ventanas, const std::vector<std::string>& variadas);

struct ResultadoPunto {
    bool bien = false;
    std::vector<double> valores;  // one per output; NaN where the point failed
    std::vector<std::string> mensajes;
};

// The whole calculation of a point on a state of its own, its messages
// recorded.
ResultadoPunto CalcularPunto(const Estudio& estudio, size_t punto);

// Runs the points desde to hasta (excluded) on `hilos` threads (0: one per
// core; 1: on the calling thread) and hands every result to `entregar` on the
// calling thread, in the order of the points. Whatever the number of threads,
// the results are the same. A set `cancelar` stops the run between points.
// Memory does not grow with the number of points: only a few results wait
// for their turn.
void EjecutarEstudio(const Estudio& estudio, size_t desde, size_t hasta, unsigned hilos,
                     const std::function<void(size_t punto, ResultadoPunto& resultado)>& entregar,
                     const std::atomic<bool>* cancelar = nullptr);

// The share K of N (1 <= K <= N) of the points: a block of consecutive points,
// so that the shares in order are the whole study.
struct Parte {
    size_t k = 1, n = 1;
};
std::pair<size_t, size_t> PuntosDeLaParte(size_t puntos, Parte parte);

}  // namespace vanta
