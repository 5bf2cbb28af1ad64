#include "core/validation/Confianza.h"

#include "core/sequence/Secuencia.h"
#include "core/validation/Avisos.h"
#include "core/validation/CicloIdeal.h"

namespace vanta {

std::string EstadoJSONConfianza(const Estado& e, std::string_view combustible, bool bien) {
    std::string json = EstadoJSON(e);
    json.pop_back();  // the closing brace
    json += ",\"avisos\":[";
    if (bien) {
        bool primero = true;
        for (const Aviso& a : AvisosValidez(e, combustible)) {
            json += (primero ? "" : ",") + TextoCadenaJSON(a.texto);
            primero = false;
        }
    }
    json += "]";
    if (bien) {
        const DistanciaIdeal d = DistanciaAlIdeal(e);
        if (d.aireEstandar.valido)
            json += ",\"RendimientoIdealAireEstandar\":" + TextoNumeroJSON(d.aireEstandar.rendimiento);
        if (d.exponentes.valido) {
            json += ",\"RendimientoIdealExponentes\":" + TextoNumeroJSON(d.exponentes.rendimiento);
            json += ",\"ExponenteMedioCompresion\":" + TextoNumeroJSON(d.exponentes.gammaCompresion);
            json += ",\"ExponenteMedioExpansion\":" + TextoNumeroJSON(d.exponentes.gammaExpansion);
        }
    }
    return json + "}";
}

}  // namespace vanta
