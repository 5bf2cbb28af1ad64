#include "core/fluids/AireHumedo.h"

#include <cmath>

#include "core/fluids/Graficas.h"
#include "core/services/Fallos.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {
constexpr std::string_view kMensajeSuma =
    "Se ha producido el siguiente error: La suma de las fracciones molares del aire = ";
constexpr std::string_view kCausaFueraDeRango =
    "la composición del aire sale del intervalo de los números del programa";
}  // namespace

double PresionSaturacion(double T) {
    return std::exp(19.1 - 0.008 * T - 6012.0 / T) * 100000.0;
}

bool CalcularAire(Estado& e, Mensajes& msj, const Entradas& x, Superficie& pct1) {
    const DefinicionEntrada& presion = Entrada("presion-ambiente");
    const DefinicionEntrada& temperatura = Entrada("temperatura-ambiente");
    const DefinicionEntrada& humedad = Entrada("humedad");
    LeerEntrada(e, msj, presion, x.presionAmbiente, e.Pambiente);
    LeerEntrada(e, msj, temperatura, x.temperaturaAmbiente, e.Tambiente);
    LeerEntrada(e, msj, humedad, x.humedad, e.Humedad);

    // The temperature's range is tested whatever the texts were; a refused
    // text then stops the air, which stays as it was; and last, what no air
    // can be: a pressure of zero or below, a humidity outside 0 to 100 %.
    auto fuera = [&](const DefinicionEntrada& d, double valor) {
        const std::string_view mensaje = d.Fuera(valor);
        if (!mensaje.empty()) msj.MsgBox(mensaje, Campo(d));
        return !mensaje.empty();
    };
    if (fuera(temperatura, e.Tambiente) || msj.Rechaza()) return false;
    if (fuera(presion, e.Pambiente) || fuera(humedad, e.Humedad)) return false;

    // Worked out first and kept only when the molar mass, which sums them
    // all, and the percentage of water that the chart shows are finite
    // numbers: a humidity or a pressure at the edge of the doubles leaves the
    // previous air in place.
    const double psat = PresionSaturacion(e.Tambiente);
    const double xH2O = e.Humedad * psat / (e.Pambiente * 100.0);
    const double xN2 = kAireSecoN2 - xH2O * kAireSecoN2;
    const double xO2 = kAireSecoO2 - xH2O * kAireSecoO2;
    const double xAr = kAireSecoAr - xH2O * kAireSecoAr;
    const double xCO2 = kAireSecoCO2 - xH2O * kAireSecoCO2;
    const double masaMolecular =
        xO2 * 0.032 + xN2 * 0.028018 + xCO2 * 0.044011 + xAr * 0.039948 + xH2O * 0.018016;
    if (!std::isfinite(masaMolecular) || !std::isfinite(xH2O * 100)) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return false;
    }
    e.Psaturacion = psat;
    e.xH2OAire = xH2O, e.xN2Aire = xN2, e.xO2Aire = xO2, e.xArAire = xAr, e.xCO2Aire = xCO2;
    e.MasaMolecularAire = masaMolecular;

    const double suma = e.xO2Aire + e.xN2Aire + e.xCO2Aire + e.xArAire + e.xH2OAire;
    if (Round(suma, 2) != 1) msj.MsgBox(std::string(kMensajeSuma) + TextoGeneral(suma, e.SeparadorDecimal));

    GraficaAire(e, pct1);
    return true;
}

}  // namespace vanta
