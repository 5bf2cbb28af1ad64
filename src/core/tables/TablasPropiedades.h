// The property tables tool: tables of the comburent, of the combustion gases
// or of one species over a range of temperatures, as text appended row by row
// to the viewer "Tablas del aire y gases de combustión". The window and the
// command line share this logic through the controls below.
#pragma once

#include <string>
#include <string_view>

#include "core/reports/ArchivosInforme.h"
#include "core/services/Mensajes.h"
#include "core/state/Estado.h"

namespace vanta {

// ---- Texts of the tool's window --------------------------------------------

inline constexpr const char* kTituloHerramientas = "Tablas del aire seco o húmedo y Gases de combustión";
inline constexpr const char* kTituloTablas = "Tablas del aire y gases de combustión";

// What the three temperature boxes and the species list start with.
inline constexpr const char* kTextoIncremento = "100";
inline constexpr const char* kTextoTinicial = "300";
inline constexpr const char* kTextoTfinal = "5000";
inline constexpr const char* kTextoElegir = "Elegir";

// The message of a species text that is not one of the list.
inline constexpr std::string_view kElijaElemento = "Elija un elemento de la lista";

// The most rows a table may have: beyond it the table would take minutes and
// gigabytes, and the tool refuses it with a message.
inline constexpr double kFilasMaximas = 1000000;

// ---- Ports -----------------------------------------------------------------

// The viewer's text box as the tables fill it: the text is set, then grows by
// pieces (one call per heading and per row), so that a window can show it
// growing.
class VisorTablas {
public:
    virtual ~VisorTablas() = default;
    virtual void Mostrar() = 0;
    virtual void Ocultar() = 0;
    virtual void PonerTexto(std::string_view texto) = 0;
    virtual void Anadir(std::string_view pieza) = 0;
};

// A viewer that only keeps the text, for the tests.
class VisorTablasTexto : public VisorTablas {
public:
    void Mostrar() override { visible = true; }
    void Ocultar() override { visible = false; }
    void PonerTexto(std::string_view t) override { texto = t; }
    void Anadir(std::string_view pieza) override {
        texto += pieza;
        ++piezas;
    }

    std::string texto;
    int piezas = 0;  // pieces appended since the start
    bool visible = false;
};

// What the tool's window gives the tables: the texts of the three
// temperature boxes, the two pairs of options and the species list (its
// text, typed or chosen).
struct EntradasHerramientas {
    std::string incremento{kTextoIncremento}, tInicial{kTextoTinicial}, tFinal{kTextoTfinal};
    bool porMol = false, porKg = false;
    bool aire = false, humos = false;
    std::string elemento{kTextoElegir};
};

// The boxes of the three temperatures as messages name them, for the focus.
inline constexpr std::string_view kCampoIncremento = "incremento";
inline constexpr std::string_view kCampoTinicial = "temperatura-inicial";
inline constexpr std::string_view kCampoTfinal = "temperatura-final";

// The window's single-precision members that the three boxes are read into;
// they keep their values from one table to the next.
struct MiembrosHerramientas {
    float AT = 0;
    float Tinicial = 0;
    float Tfinal = 0;
};

// ---- The two tables --------------------------------------------------------

// The table of the comburent (optAire) or of the combustion gases (optHumos),
// per mole or per kilogram. tipoCombustible is the text of the fuel list, for
// the heading of the gases. Leaves Temperatura and the properties of the last
// row in the state. Returns false when a number was refused, the range was
// refused or a value left the numbers of the program; the message is told and
// the viewer hidden.
bool cmdTablas_Click(Estado& e, Mensajes& msj, const EntradasHerramientas& c, MiembrosHerramientas& m,
                     VisorTablas& v, std::string_view tipoCombustible);

// The table of the species named by the list's text. Returns false as above,
// and for a text that is not a species of the list.
bool cmdTab_Click(Estado& e, Mensajes& msj, const EntradasHerramientas& c, MiembrosHerramientas& m,
                  VisorTablas& v);

}  // namespace vanta
