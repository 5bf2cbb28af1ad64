// The command line: `vanta calcular` runs the program's own sequence of the
// four stages headless, with the options put into the boxes as text, so that
// every value goes through the same checks and messages as in the windows.
#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/services/Puertos.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta::cli {

// Exit status of the command line.
inline constexpr int kSalidaBien = 0;
inline constexpr int kSalidaFallo = 1;
inline constexpr int kSalidaUso = 2;

struct OpcionesCalcular {
    std::map<std::string, std::string> valores;  // option name without "--" -> text given
    bool json = false;
    std::string html;     // folder for the page and its bitmaps, empty for none
    std::string guardar;  // record name for the results database, empty for none

    bool Tiene(const std::string& nombre) const { return valores.count(nombre) != 0; }
    // The text given, or the default the screens start with.
    std::string Valor(const std::string& nombre) const;
};

struct Parseo {
    std::optional<OpcionesCalcular> opciones;
    std::string error;  // why the words are off, when opciones is empty
};

Parseo ParsearCalcular(const std::vector<std::string>& argumentos);
std::string TextoUso();

// The seven pictures of the main window.
struct SuperficiesCalculo {
    Superficie& pct1;
    Superficie& pct2;
    Superficie& pct3;
    Diagramas diagramas;
};

// The first stages of the run, as the screens run them: the air, then, with
// conGases, the fuel and the combustion. False when a stage failed.
bool DefinirFluido(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, SuperficiesCalculo& s, bool conGases);

// The text the fuel list shows: the named fuel, or the user's own.
std::string TextoListaCombustible(const OpcionesCalcular& o);

// Runs the stages in order; writes the report (or the JSON) on out and returns
// the exit status. Messages go through dlg.
int EjecutarCalcular(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, SuperficiesCalculo& s,
                     std::ostream& out);
// The same, keeping the text report of a calculation that ended well.
int EjecutarCalcular(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, SuperficiesCalculo& s,
                     std::ostream& out, std::string& informe);

// Every variable of the state as one JSON object, full precision.
std::string EstadoJSON(const Estado& e);

}  // namespace vanta::cli
