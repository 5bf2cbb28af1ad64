#include "core/equilibrium/InformeDisociacion.h"

#include <algorithm>

#include "core/warnings/CicloIdeal.h"
#include "core/warnings/Cifras.h"

namespace vanta::equilibrio {

namespace {

constexpr std::string_view kMascaraTemperatura = "### ##0.0";
constexpr std::string_view kMascaraPresion = "### ### ##0";
constexpr std::string_view kMascaraEnergia = "### ##0.00";
constexpr std::string_view kMascaraPorcentaje = "##0.00";
constexpr std::string_view kMascaraPpm = "### ##0";

// A figure of both cycles with dissociation.
using Figura = double (*)(const CicloEquilibrio&);

struct DefinicionFila {
    const char* titulo;
    std::string_view mascara;
    double (*programa)(const Estado&);  // none: the program has no such figure
    Figura figura;
};

constexpr double kPorCiento = 100;

const DefinicionFila kFilas[] = {
    {"Temperatura en 3 (K)", kMascaraTemperatura, [](const Estado& e) { return e.T3; },
     [](const CicloEquilibrio& c) { return c.estado3.T; }},
    {"Presión en 3 (Pa)", kMascaraPresion, [](const Estado& e) { return e.p3; },
     [](const CicloEquilibrio& c) { return c.estado3.p; }},
    {"Temperatura en 4 (K)", kMascaraTemperatura, [](const Estado& e) { return e.T4; },
     [](const CicloEquilibrio& c) { return c.estado4.T; }},
    {"Presión en 4 (Pa)", kMascaraPresion, [](const Estado& e) { return e.p4; },
     [](const CicloEquilibrio& c) { return c.estado4.p; }},
    {"Temperatura en 5 (K)", kMascaraTemperatura, [](const Estado& e) { return e.T5; },
     [](const CicloEquilibrio& c) { return c.estado5.T; }},
    {"Presión en 5 (Pa)", kMascaraPresion, [](const Estado& e) { return e.p5; },
     [](const CicloEquilibrio& c) { return c.estado5.p; }},
    {"Calor aportado (J)", kMascaraEnergia, [](const Estado& e) { return e.Qciclo; },
     [](const CicloEquilibrio& c) { return c.calor; }},
    // The report's work: the three strokes summed afresh.
    {"Trabajo del ciclo (J)", kMascaraEnergia,
     [](const Estado& e) { return e.W12acumulado + e.W34acumulado + e.W45acumulado; },
     [](const CicloEquilibrio& c) { return c.trabajo; }},
    {"Rendimiento (%)", kMascaraPorcentaje, [](const Estado& e) { return e.Rendimiento * kPorCiento; },
     [](const CicloEquilibrio& c) { return c.rendimiento * kPorCiento; }},
    {"NO en 4 (ppm)", kMascaraPpm, nullptr,
     [](const CicloEquilibrio& c) { return c.estado4.Fraccion(NO) * kPartesPorMillon; }},
};

std::string Columna(const CicloEquilibrio& c, const DefinicionFila& f, char sep) {
    return c.bien ? Cifra(f.figura(c), f.mascara, sep) : std::string();
}

// The width of a text in characters, not in the bytes of their UTF-8.
size_t Caracteres(const std::string& texto) {
    return static_cast<size_t>(
        std::count_if(texto.begin(), texto.end(), [](char ch) { return (ch & 0xC0) != 0x80; }));
}

std::string Blancos(const std::string& texto, size_t ancho) {
    const size_t largo = Caracteres(texto);
    return std::string(ancho > largo ? ancho - largo : 0, ' ');
}

std::string ADerecha(const std::string& texto, size_t ancho) {
    return Blancos(texto, ancho) + texto;
}

std::string AIzquierda(const std::string& texto, size_t ancho) {
    return texto + Blancos(texto, ancho);
}

constexpr size_t kAnchoTitulo = 36;
constexpr size_t kAnchoColumna = 17;

}  // namespace

std::vector<FilaDisociacion> FilasDisociacion(const Estado& e, const CiclosConDisociacion& c) {
    const char sep = e.SeparadorDecimal;
    std::vector<FilaDisociacion> filas;
    for (const DefinicionFila& f : kFilas)
        filas.push_back({f.titulo, f.programa ? Cifra(f.programa(e), f.mascara, sep) : "-",
                         Columna(c.sinDisociacion, f, sep), Columna(c.equilibrio, f, sep)});
    return filas;
}

std::vector<std::string> MensajesDisociacion(const CiclosConDisociacion& c) {
    std::vector<std::string> mensajes;
    if (!c.sinDisociacion.bien)
        mensajes.push_back(std::string(kColumnasDisociacion[1]) + ": " + c.sinDisociacion.mensaje);
    if (!c.equilibrio.bien)
        mensajes.push_back(std::string(kColumnasDisociacion[2]) + ": " + c.equilibrio.mensaje);
    return mensajes;
}

std::string RendimientoIdealTexto(const Estado& e) {
    const CicloIdeal ideal = CalcularCicloIdeal(e, kGammaAireEstandar, kGammaAireEstandar);
    if (!ideal.valido) return {};
    return Cifra(ideal.rendimiento * kPorCiento, kMascaraPorcentaje, e.SeparadorDecimal);
}

std::string TextoDisociacion(const Estado& e, const CiclosConDisociacion& c, const char* fin) {
    std::string t = std::string(kTituloDisociacion) + fin;
    t += "Desde el estado 2 del ciclo calculado: la combustión con su balance de energía y la expansión "
         "isentrópica";
    t += fin;
    t += AIzquierda("", kAnchoTitulo);
    for (const char* columna : kColumnasDisociacion) t += ADerecha(columna, kAnchoColumna);
    t += fin;
    for (const FilaDisociacion& f : FilasDisociacion(e, c))
        t += AIzquierda(f.titulo, kAnchoTitulo) + ADerecha(f.programa, kAnchoColumna) +
             ADerecha(f.sinDisociacion, kAnchoColumna) + ADerecha(f.equilibrio, kAnchoColumna) + fin;
    if (const std::string ideal = RendimientoIdealTexto(e); !ideal.empty())
        t += kTextoRendimientoIdeal + ideal + " %" + fin;
    for (const std::string& m : MensajesDisociacion(c)) t += m + fin;
    return t;
}

double TemperaturaMaximaEquilibrio(const CiclosConDisociacion& c) {
    if (!c.equilibrio.bien) return 0;
    return std::max({c.equilibrio.estado3.T, c.equilibrio.estado4.T, c.equilibrio.estado5.T});
}

bool AvisaDisociacion(const std::vector<Aviso>& avisos) {
    return std::any_of(avisos.begin(), avisos.end(),
                       [](const Aviso& a) { return a.tipo == TipoAviso::Disociacion; });
}

void CompletarAvisoDisociacion(std::vector<Aviso>& avisos, const CiclosConDisociacion& c, char separador) {
    const double T = TemperaturaMaximaEquilibrio(c);
    if (!(T > 0)) return;
    for (Aviso& a : avisos)
        if (a.tipo == TipoAviso::Disociacion)
            a.texto += " En equilibrio químico, con disociación, la máxima sería de " +
                       Cifra(T, "### ##0", separador) + " K.";
}

}  // namespace vanta::equilibrio
