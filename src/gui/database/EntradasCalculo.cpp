#include "gui/database/EntradasCalculo.h"

#include "core/comparison/Calculos.h"

namespace vanta {

std::optional<std::string> EntradasDe(const Estado& e, std::string_view tipoCombustible) {
    const CalculoComparado c = CalculoDeEstado("", e, tipoCombustible);
    if (!c.Hay()) return std::nullopt;
    return EscribirEntradas(c.entradas);
}

std::optional<std::string> EntradasGuardadas(AlmacenResultados& almacen, qint64 id) {
    return almacen.LeerEntradas(id);
}

}  // namespace vanta
