// A whole calculation headless, as the screens run it: the air, the fuel, the
// combustion and the cycle, with the inputs put into the boxes as the texts a
// user types (so every value goes through ValidarNumero and the same messages
// as in the windows) and the choices made as a user makes them. The command
// line, the studies and the validation run calculations through it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/cycle/Ciclo.h"
#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta {

// The inputs by the command line's option names (without "--"): the text of a
// box, or a choice ("ciclo" Otto|Diesel|Mixto, "compresion" and "expansion"
// medio|politropica|variable, "combustible" a name of the list, "formula"
// C,H,N,O,S, "masa" C,N,O,S). An input not given is what the screens start
// with.
struct OpcionesCalculo {
    std::map<std::string, std::string> valores;

    bool Tiene(const std::string& nombre) const { return valores.count(nombre) != 0; }
    // The text given, or the default the screens start with.
    std::string Valor(const std::string& nombre) const;
};

// Whether the name is one of the inputs.
bool EsOpcionCalculo(const std::string& nombre);

// The texts of a list of numbers separated by commas.
std::vector<std::string> SepararLista(const std::string& lista);

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

// The first stages, as the screens run them: the air, then, with conGases,
// the fuel and the combustion. False when a stage failed.
bool DefinirFluido(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s, bool conGases);

// The four stages in order, the cycle's CALCULAR last; v keeps the report and
// the result labels. False when a stage failed.
bool CalcularTodo(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s,
                  VentanaPrincipalSimple& v);

// The text the fuel list shows: the named fuel, or the user's own.
std::string TextoListaCombustible(const OpcionesCalculo& o);

// The models of compression and expansion by the names the options give
// them: "medio", "politropica", "variable".
std::string_view NombreModelo(Modelo m);
std::optional<Modelo> ModeloDeNombre(std::string_view nombre);

// A number as that JSON writes it: the shortest text that reads back to the
// same number (of single precision for a float), "null" for one that is not
// finite.
std::string TextoNumeroJSON(double v);
std::string TextoNumeroJSON(float v);
// A text as that JSON writes it, quoted and escaped.
std::string TextoCadenaJSON(const std::string& t);

// Every variable of the state as one JSON object, full precision (the
// shortest text that reads back to the same number), keyed by the state's
// own names.
std::string EstadoJSON(const Estado& e);

}  // namespace vanta
