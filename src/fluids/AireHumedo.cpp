#include "fluids/AireHumedo.h"

#include <cmath>

#include "fluids/Graficas.h"
#include "services/Fallos.h"
#include "services/Numeros.h"

namespace vanta {

namespace {
// The test stands at 250 K although the text says 300 K: kept as it is.
constexpr double kTemperaturaMinima = 250.0;
constexpr double kTemperaturaMaxima = 5000.0;
constexpr std::string_view kMensajeTemperaturaBaja = " La temperatura ha de ser mayor a 300 K ";
constexpr std::string_view kMensajeTemperaturaAlta = " La temperatura ha de ser menor a 5 000 K ";
constexpr std::string_view kMensajeSuma = "Se ha producido el siguiente error: La suma de las fracciones molares del aire = ";
constexpr std::string_view kCausaPresionNula = "la presión ambiente es cero y la fracción de vapor de agua no se puede calcular";
constexpr std::string_view kCausaFueraDeRango = "la composición del aire sale del intervalo de los números del programa";
}  // namespace

bool CalcularAire(Estado& e, Dialogos& dlg, ControlesAire& c) {
    // A rejected text has been told by the validator; the calculation goes on.
    ValidarNumero(e, dlg, c.txtPreAmb, e.Pambiente, "presión ambiente");
    ValidarNumero(e, dlg, c.txtTemAmb, e.Tambiente, "temperatura ambiente");
    ValidarNumero(e, dlg, c.txtHum, e.Humedad, "humedad relativa");

    if (e.Tambiente < kTemperaturaMinima) {
        dlg.MsgBox(kMensajeTemperaturaBaja);
        return false;
    }
    if (e.Tambiente > kTemperaturaMaxima) {
        dlg.MsgBox(kMensajeTemperaturaAlta);
        return false;
    }
    if (e.Pambiente == 0) {
        FalloAritmetico(e, dlg, kCausaPresionNula);
        return false;
    }

    e.Psaturacion = std::exp(19.1 - 0.008 * e.Tambiente - 6012.0 / e.Tambiente) * 100000.0;
    e.xH2OAire = e.Humedad * e.Psaturacion / (e.Pambiente * 100.0);
    e.xN2Aire = kAireSecoN2 - e.xH2OAire * kAireSecoN2;
    e.xO2Aire = kAireSecoO2 - e.xH2OAire * kAireSecoO2;
    e.xArAire = kAireSecoAr - e.xH2OAire * kAireSecoAr;
    e.xCO2Aire = kAireSecoCO2 - e.xH2OAire * kAireSecoCO2;
    e.MasaMolecularAire = e.xO2Aire * 0.032 + e.xN2Aire * 0.028018 + e.xCO2Aire * 0.044011 + e.xArAire * 0.039948 +
                          e.xH2OAire * 0.018016;

    if (!std::isfinite(e.MasaMolecularAire)) {
        FalloAritmetico(e, dlg, kCausaFueraDeRango);
        return false;
    }

    const double suma = e.xO2Aire + e.xN2Aire + e.xCO2Aire + e.xArAire + e.xH2OAire;
    if (Round(suma, 2) != 1) dlg.MsgBox(std::string(kMensajeSuma) + TextoGeneral(suma));

    GraficaAire(e, c.pct1);
    if (c.chkOcultar.Value()) c.ventana.Hide();
    return true;
}

}  // namespace vanta
