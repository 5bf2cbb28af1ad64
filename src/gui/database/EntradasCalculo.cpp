#include "gui/database/EntradasCalculo.h"

#include "core/comparison/Calculos.h"

namespace vanta {

std::optional<std::string> EntradasDe(const ResultadoCalculo& r) {
    const CalculoComparado c = CalculoDeResultado("", r);
    if (!c.Hay()) return std::nullopt;
    return EscribirEntradas(c.entradas);
}

std::optional<std::string> EntradasGuardadas(AlmacenResultados& almacen, qint64 id) {
    return almacen.LeerEntradas(id);
}

}  // namespace vanta
