// The inputs of a calculation: one typed value (Entradas) for the air, the
// fuel, the combustion, the cycle and the speed, and one table that declares
// each input once: its name (the command line's option --name, the study's
// variable, the web page's address parameter and the key of the inputs saved
// beside a record), its caption and unit, the text the screens start with,
// the boxes of the window that hold it, the name its messages give it, its
// checks, and the inputs it excludes or needs. The command line, the studies,
// the windows, the web page and the saved inputs are all made from the table.
//
// A number is kept as the text typed for it: text becomes a number only
// through ValidarNumero, in the calculation, so "1,39" and "1.39" read alike
// everywhere and a refused text gets the same message wherever it was typed.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

// The stage whose window holds an input.
enum class EtapaEntrada { Aire, Combustible, Combustion, Ciclo, Regimen };

// How the fuel is given: a fuel of the list, or the user's own by its formula
// or by its composition in mass.
enum class FormaCombustible { Lista, Formula, Masa };
// Which of Fr and Lambda leads.
enum class FormaDosado { Fr, Lambda };
// How the heat of the mixed cycle is split: up to a maximum pressure, or a
// share at constant volume.
enum class RepartoMixto { PresionMaxima, Proporcion };
enum class TipoCiclo { Otto, Diesel, Mixto };

struct Entradas {
    Entradas();  // every input as the screens start

    // The air.
    std::string presionAmbiente, temperaturaAmbiente, humedad;
    // The fuel.
    FormaCombustible formaCombustible;
    std::string combustible;                                  // a name of the list
    std::string atomosC, atomosH, atomosN, atomosO, atomosS;  // the formula
    std::string cienC, cienN, cienO, cienS;                   // % in mass; hydrogen is the rest
    std::string masaMolecular, entalpiaFormacion;
    // The combustion.
    FormaDosado formaDosado;
    std::string fr, lambda;
    // The cycle.
    TipoCiclo ciclo;
    std::string cilindrada, rc;
    // The state at the end of admission; none: the ambient, as the cycle
    // window fills its boxes when it opens.
    std::optional<std::string> p1, t1;
    Modelo compresion, expansion;
    std::string nCompresion, nExpansion;
    RepartoMixto reparto;
    std::string proporcionVcte, pmax;
    // The speed; none: no power.
    std::optional<std::string> rpm;
};

// ---- The table -------------------------------------------------------------------

enum class TipoEntrada {
    Numero,    // one number
    Numeros,   // several numbers, "C,H,N,O,S"
    Eleccion,  // one of a list of names
};

// A range that an input's value must keep, checked by the stage that reads
// it; an empty message: no bound on that side.
struct LimitesEntrada {
    double minimo = 0;
    bool minimoIncluido = true;
    std::string_view mensajeMinimo = {};
    double maximo = 0;
    bool maximoIncluido = true;
    std::string_view mensajeMaximo = {};
};

struct DefinicionEntrada {
    std::string_view nombre = {};
    std::string_view titulo = {};
    std::string_view unidad = {};        // empty for a choice
    std::string_view metavariable = {};  // the value in the help: "PA", "C,H,N,O,S"
    EtapaEntrada etapa = {};
    TipoEntrada tipo = {};
    // The text as the screens start; empty: none (the ambient for p1 and t1,
    // no power for rpm, the user's own fuel).
    std::string_view porDefecto = {};
    // The boxes of its window, one a number; for a choice, the control of
    // each value in the order of the values, or the one list that holds them.
    std::vector<std::string_view> controles = {};
    // The name each number is given in the messages of ValidarNumero.
    std::vector<std::string_view> nombresMensaje = {};
    // The values of a choice, as written on the command line.
    std::vector<std::string_view> valores = {};
    // What the command line says of a value it cannot take: of a choice,
    // "ciclo desconocido" (and the value); of several numbers, how many.
    std::string_view rechazo = {};
    // Inputs of one group exclude each other; the first of the group in the
    // table is what the screens start with. Empty: none.
    std::string_view grupo = {};
    // The inputs it is given with (one of them) and those it needs.
    std::vector<std::string_view> acompana = {}, necesita = {};
    LimitesEntrada limites = {};

    // The texts of the input: one a number, or the choice's name; none when
    // it is not given (its form not chosen, p1 and t1 left to the ambient,
    // no speed).
    std::vector<std::string> (*leer)(const Entradas&) = nullptr;
    // The text of number i, for writing (a number's input only).
    std::string* (*texto)(Entradas&, int i) = nullptr;
    // Chooses a value of a choice, or the input's form in its group; false
    // for a value not in the list.
    bool (*elegir)(Entradas&, std::string_view valor) = nullptr;

    int Campos() const { return static_cast<int>(nombresMensaje.size()); }
    bool Numerica() const { return tipo == TipoEntrada::Numero; }
    // The message of the bound that the value passes, or empty: below the
    // least, above the greatest, either.
    std::string_view Bajo(double valor) const;
    std::string_view Alto(double valor) const;
    std::string_view Fuera(double valor) const;
};

// Every input, in the order of the stages.
std::span<const DefinicionEntrada> TablaEntradas();
const DefinicionEntrada* BuscarEntrada(std::string_view nombre);
// The input by its name, which must be in the table.
const DefinicionEntrada& Entrada(std::string_view nombre);

// The place of a number of an input, as messages name it.
CampoEntrada Campo(const DefinicionEntrada& d, int i = 0);

// The largest figure an input takes, either sign: beyond it the steps of the
// calculation would overflow (its single-precision figures end near 3E+38, and
// a pressure is multiplied by the compression and divided by volumes); no
// engine comes near it.
inline constexpr double kCifraMayor = 1e15;
// What a figure beyond it is told, naming the box and the range.
std::string MensajeCifraMayor(const DefinicionEntrada& d, int i = 0);

// Reads number i of an input through ValidarNumero, with its name in the
// messages and its place for the focus. A figure beyond kCifraMayor is
// refused as a text that is not a number is: told, with the focus on its box,
// ErrorCalculo set and the value left as it was.
void LeerEntrada(Estado& e, Mensajes& msj, const DefinicionEntrada& d, std::string_view texto,
                 double& destino, int i = 0);

// ---- The inputs as names and texts ----------------------------------------------------

// The inputs as the command line, the address of the web page and the saved
// inputs give them: the texts of those given, by name (a list of numbers
// joined by commas). An input not given is what the screens start with.
struct OpcionesCalculo {
    std::map<std::string, std::string> valores;

    bool Tiene(const std::string& nombre) const { return valores.count(nombre) != 0; }
    // The text given, or the one the screens start with.
    std::string Valor(const std::string& nombre) const;
};

// The texts of a list of numbers separated by commas.
std::vector<std::string> SepararLista(const std::string& lista);

// Why the options cannot be the inputs of a calculation (an unknown name or
// choice, a wrong count of numbers, two inputs that exclude each other, an
// input without the one it needs), or empty when they can.
std::string ComprobarOpciones(const OpcionesCalculo& o);
// The typed inputs of options that ComprobarOpciones accepts.
Entradas EntradasDeOpciones(const OpcionesCalculo& o);
// The options that give these inputs: those of the forms chosen (the fuel of
// the list or the user's own, Fr or Lambda, the share of heat or Pmax), with
// p1, t1 and rpm when given.
OpcionesCalculo OpcionesDeEntradas(const Entradas& e);

// Drops from the options those that exclude the one named, as choosing it on
// its screen does: Fr and Lambda, the share of heat and Pmax, a fuel of the
// list and one's own (with what goes with the other form).
void QuitarExcluidas(OpcionesCalculo& o, std::string_view nombre);

// The text of the fuel list for these inputs: the fuel's name, or "Otros
// combustibles" for the user's own.
std::string TextoListaCombustible(const Entradas& e);

// The names the options give the models and the cycles.
std::string_view NombreModelo(Modelo m);
std::optional<Modelo> ModeloDeNombre(std::string_view nombre);
std::string_view NombreCiclo(TipoCiclo c);

// The inputs as the help of the command line shows them, one a line: all,
// or those the filter takes.
std::string AyudaEntradas(bool (*filtro)(const DefinicionEntrada&) = nullptr);

}  // namespace vanta
