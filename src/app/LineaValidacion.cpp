#include "app/LineaValidacion.h"

#include <ostream>

#include "app/LineaComandos.h"
#include "core/validation/Validacion.h"

namespace vanta::cli {

int EjecutarValidar(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err) {
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        out << TextoUso();
        return kSalidaBien;
    }
    if (!argumentos.empty()) {
        err << "vanta validar: no lleva opciones\n" << kVerAyuda << "vanta --help\n";
        return kSalidaUso;
    }
    const TablaValidacion tabla = Validar('.');
    out << TextoValidacion(tabla, '.');
    return tabla.Correcta() ? kSalidaBien : kSalidaFallo;
}

}  // namespace vanta::cli
