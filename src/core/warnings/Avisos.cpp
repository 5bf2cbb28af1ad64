#include "core/warnings/Avisos.h"

#include <algorithm>
#include <cmath>

#include "core/fluids/AireHumedo.h"
#include "core/services/Numeros.h"
#include "core/warnings/Cifras.h"
#include "core/warnings/Referencias.h"

namespace vanta {

namespace {

// Above the critical temperature of water nothing condenses.
constexpr double kTemperaturaCriticaAgua = 647.096;
// Where the dew point is sought.
constexpr double kRocioMinimo = 150.0;
// A partial pressure counts as above saturation past this share: a comburent
// of humidity 100 % is saturated, not below its dew point.
constexpr double kMargenSaturacion = 1e-6;
// The exhaust line is drawn in steps of 2 K from T5 down to T1.
constexpr double kPasoEscape = 2.0;

std::string Kelvin(double T, char sep) {
    return Cifra(Round(T), "### ##0", sep) + " K";
}

// Water below its dew point: the partial pressure above saturation at T.
bool Condensa(double T, double presionParcial) {
    return T < kTemperaturaCriticaAgua && presionParcial > PresionSaturacion(T) * (1 + kMargenSaturacion);
}

std::string TextoRocio(const std::string& sujeto, double T, double presionParcial, char sep) {
    return sujeto + ", a " + Kelvin(T, sep) + ", está por debajo del punto de rocío de su agua (" +
           Kelvin(PuntoRocio(presionParcial), sep) +
           "): parte del agua condensaría, y el modelo la trata como vapor.";
}

void AvisosTemperatura(const Estado& e, std::vector<Aviso>& avisos) {
    const double maxima = std::max({e.T1, e.T2, e.T3, e.T4, e.T5});
    const std::string texto =
        "La temperatura máxima del ciclo (" + (Kelvin(maxima, e.SeparadorDecimal)) + ")";
    if (maxima > kTemperaturaDisociacion)
        avisos.push_back({TipoAviso::Disociacion,
                          texto + " supera " + (Kelvin(kTemperaturaDisociacion, e.SeparadorDecimal)) +
                              ": el modelo no tiene en cuenta la disociación de los gases, y la temperatura "
                              "real sería menor."});
    if (maxima > kTemperaturaAjuste)
        avisos.push_back({TipoAviso::FueraDeAjuste,
                          texto + " supera " + (Kelvin(kTemperaturaAjuste, e.SeparadorDecimal)) +
                              ", el límite de ajuste de los polinomios de las especies: sus propiedades "
                              "están extrapoladas."});
}

// State 5, all gases; then the exhaust line as it is drawn: from T5 down to
// T1 in steps of 2 K, the gases turning into comburent in proportion to the
// temperature, at the pressure p1·T/T1, closing at state 1.
void AvisosRocio(const Estado& e, std::vector<Aviso>& avisos) {
    const char sep = e.SeparadorDecimal;
    if (Condensa(e.T5, e.xH2OHumos * e.p5)) {
        avisos.push_back(
            {TipoAviso::PuntoRocio, TextoRocio("El gas del estado 5", e.T5, e.xH2OHumos * e.p5, sep)});
        return;
    }
    if (!(e.T5 > e.T1) || !(e.T1 > 0)) return;
    for (double T = e.T5;; T -= kPasoEscape) {
        T = std::max(T, e.T1);
        const double humos = (T - e.T1) / (e.T5 - e.T1);
        const double agua = (1 - humos) * e.xH2OAire + humos * e.xH2OHumos;
        const double presionParcial = agua * e.p1 * T / e.T1;
        if (Condensa(T, presionParcial)) {
            const char* sujeto = T == e.T1 ? "El final de la línea de escape" : "La línea de escape";
            avisos.push_back({TipoAviso::PuntoRocio, TextoRocio(sujeto, T, presionParcial, sep)});
            return;
        }
        if (T == e.T1) return;
    }
}

// The fuel's share in volume at Fr, against the limits of the table: the air
// of one mole of fuel is that of the stoichiometric mixture over Fr.
void AvisoInflamabilidad(const Estado& e, std::string_view combustible, std::vector<Aviso>& avisos) {
    const ReferenciaInflamabilidad* r = BuscarInflamabilidad(combustible);
    if (!r || !(e.xO2Aire > 0)) return;
    const double aireEstequiometrico = e.OxigenoEstequiometrico / (2 * e.xO2Aire);
    auto frLimite = [&](double fraccion) { return aireEstequiometrico * fraccion / (1 - fraccion); };
    const double inferior = frLimite(r->inferior), superior = frLimite(r->superior);
    if (e.Fr >= inferior && e.Fr <= superior) return;
    const char sep = e.SeparadorDecimal;
    avisos.push_back({TipoAviso::Inflamabilidad,
                      "Fr = " + Cifra(e.Fr, "##0.0##", sep) +
                          " está fuera del intervalo de inflamabilidad habitual de " +
                          std::string(combustible) + " (Fr de " + Cifra(Round(inferior, 2), "##0.00", sep) +
                          " a " + Cifra(Round(superior, 2), "##0.00", sep) + ", límites en aire a 20 °C de " +
                          Porcentaje(r->inferior, sep) + " a " + Porcentaje(r->superior, sep) +
                          " en volumen): la mezcla quizá no arda como el modelo supone."});
}

void AvisosPasadas(const Estado& e, std::vector<Aviso>& avisos) {
    const std::pair<int, const char*> busquedas[] = {{e.pasadas.aire, "la compresión"},
                                                     {e.pasadas.humos, "la expansión"}};
    for (auto [pasadas, proceso] : busquedas)
        if (pasadas > kPasadasGammaMuchas)
            avisos.push_back({TipoAviso::PasadasGamma,
                              "La búsqueda del exponente adiabático medio de " + std::string(proceso) +
                                  " necesitó " + TextoGeneral(pasadas, e.SeparadorDecimal) +
                                  " pasadas (lo habitual es una docena como mucho): el exponente hallado "
                                  "puede ser poco fiable."});
}

void AvisoAmbiente(const Estado& e, std::vector<Aviso>& avisos) {
    if (e.Tambiente >= kAmbienteMinimo && e.Tambiente <= kAmbienteMaximo) return;
    const char sep = e.SeparadorDecimal;
    avisos.push_back({TipoAviso::Ambiente, "La temperatura ambiente (" + Kelvin(e.Tambiente, sep) +
                                               ") está fuera de las del aire de la Tierra (de " +
                                               Kelvin(kAmbienteMinimo, sep) + " a " +
                                               Kelvin(kAmbienteMaximo, sep) +
                                               "): el cálculo la toma tal como se ha dado."});
}

}  // namespace

double PuntoRocio(double presionParcial) {
    double bajo = kRocioMinimo, alto = kTemperaturaCriticaAgua;
    for (int i = 0; i < 60; ++i) {
        const double medio = (bajo + alto) / 2;
        (PresionSaturacion(medio) < presionParcial ? bajo : alto) = medio;
    }
    return (bajo + alto) / 2;
}

std::vector<Aviso> AvisosValidez(const Estado& e, std::string_view combustible) {
    std::vector<Aviso> avisos;
    AvisoAmbiente(e, avisos);
    AvisosTemperatura(e, avisos);
    AvisosRocio(e, avisos);
    AvisoInflamabilidad(e, combustible, avisos);
    AvisosPasadas(e, avisos);
    return avisos;
}

}  // namespace vanta
