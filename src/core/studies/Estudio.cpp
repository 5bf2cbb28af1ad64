#include "core/studies/Estudio.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "core/cycle/Ciclo.h"
#include "core/equilibrium/InformeDisociacion.h"
#include "core/fluids/Combustible.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

#define VANTA_CAMPO(nombre, unidad, titulo, campo)                                             \
    {                                                                                          \
        nombre, unidad, titulo, #campo,                                                        \
            [](const Estado& e, double) { return static_cast<double>(e.campo); }, false, false \
    }
#define VANTA_ESTADOS(n)                                                                                  \
    VANTA_CAMPO("p" #n, "Pa", "Presión en " #n, p##n), VANTA_CAMPO("v" #n, "m³", "Volumen en " #n, V##n), \
        VANTA_CAMPO("t" #n, "K", "Temperatura en " #n, T##n),                                             \
        VANTA_CAMPO("h" #n, "J/mol", "Entalpía en " #n, h##n),                                            \
        VANTA_CAMPO("s" #n, "J/(mol·K)", "Entropía en " #n, S##n)

// A figure of a cycle with dissociation; none where that cycle failed.
double Figura(const equilibrio::CicloEquilibrio& ciclo, double valor) {
    return ciclo.bien ? valor : std::nan("");
}

#define VANTA_EQUILIBRIO(nombre, unidad, titulo, modelo, figura)                                        \
    {                                                                                                   \
        nombre, unidad, titulo, "", nullptr, false, false,                                              \
            [](const equilibrio::CiclosConDisociacion& c) { return Figura(c.modelo, c.modelo.figura); } \
    }

const SalidaEstudio kSalidas[] = {
    VANTA_CAMPO("rendimiento", "-", "Rendimiento", Rendimiento),
    VANTA_CAMPO("wciclo", "J", "Trabajo del ciclo", Wciclo),
    VANTA_CAMPO("qciclo", "J", "Calor aportado al ciclo", Qciclo),
    VANTA_CAMPO("q23", "J", "Calor a volumen constante (2-3)", Q23),
    {"q34", "J", "Calor a presión constante (3-4)", "",
     [](const Estado& e, double) { return e.Qciclo - e.Q23; }, false, false},
    VANTA_CAMPO("w12", "J", "Trabajo de la compresión (1-2)", W12),
    VANTA_CAMPO("w34", "J", "Trabajo a presión constante (3-4)", W34),
    VANTA_CAMPO("w45", "J", "Trabajo de la expansión (4-5)", W45),
    VANTA_ESTADOS(1),
    VANTA_ESTADOS(2),
    VANTA_ESTADOS(3),
    VANTA_ESTADOS(4),
    VANTA_ESTADOS(5),
    {"presion-maxima", "Pa", "Presión máxima del ciclo", "PresionMaxima",
     [](const Estado& e, double) { return static_cast<double>(e.PresionMaxima); }, true, false},
    {"temperatura-maxima", "K", "Temperatura máxima del ciclo", "TemperaturaMaxima",
     [](const Estado& e, double) { return static_cast<double>(e.TemperaturaMaxima); }, true, false},
    VANTA_CAMPO("consumo-kwh", "g/(kW·h)", "Consumo específico", ConsumoKWh),
    VANTA_CAMPO("consumo-mj", "g/MJ", "Consumo específico", ConsumoMJ),
    {"potencia", "W", "Potencia", "", [](const Estado&, double potencia) { return potencia; }, false, true},
    {"potencia-cv", "CV", "Potencia", "", [](const Estado&, double potencia) { return potencia / kVatiosCV; },
     false, true},
    VANTA_CAMPO("gamma-medio-compresion", "-", "Exponente adiabático medio de la compresión",
                GammaMedioCompresion),
    VANTA_CAMPO("gamma-medio-expansion", "-", "Exponente adiabático medio de la expansión",
                GammaMedioExpansion),
    VANTA_CAMPO("gamma1", "-", "Gamma en 1", gamma1),
    VANTA_CAMPO("gamma2", "-", "Gamma en 2", Gamma2),
    VANTA_CAMPO("gamma4", "-", "Gamma en 4", Gamma4),
    VANTA_CAMPO("gamma5", "-", "Gamma en 5", Gamma5),
    VANTA_CAMPO("masa-aire", "kg", "Masa de aire", MasaAire),
    VANTA_CAMPO("masa-combustible", "kg", "Masa de combustible", MasaCombustible),
    VANTA_EQUILIBRIO("t3-equilibrio", "K", "Temperatura en 3, en equilibrio químico", equilibrio, estado3.T),
    VANTA_EQUILIBRIO("p3-equilibrio", "Pa", "Presión en 3, en equilibrio químico", equilibrio, estado3.p),
    VANTA_EQUILIBRIO("t4-equilibrio", "K", "Temperatura en 4, en equilibrio químico", equilibrio, estado4.T),
    VANTA_EQUILIBRIO("p4-equilibrio", "Pa", "Presión en 4, en equilibrio químico", equilibrio, estado4.p),
    VANTA_EQUILIBRIO("t5-equilibrio", "K", "Temperatura en 5, en equilibrio químico", equilibrio, estado5.T),
    VANTA_EQUILIBRIO("wciclo-equilibrio", "J", "Trabajo del ciclo en equilibrio químico", equilibrio,
                     trabajo),
    VANTA_EQUILIBRIO("rendimiento-equilibrio", "-", "Rendimiento del ciclo en equilibrio químico", equilibrio,
                     rendimiento),
    {"no-ppm", "ppm", "NO al final de la combustión, en equilibrio químico", "", nullptr, false, false,
     [](const equilibrio::CiclosConDisociacion& c) {
         return Figura(c.equilibrio,
                       c.equilibrio.estado4.Fraccion(equilibrio::NO) * equilibrio::kPartesPorMillon);
     }},
    VANTA_EQUILIBRIO("t4-sin-disociacion", "K", "Temperatura en 4, sin disociación", sinDisociacion,
                     estado4.T),
    VANTA_EQUILIBRIO("rendimiento-sin-disociacion", "-", "Rendimiento del ciclo sin disociación",
                     sinDisociacion, rendimiento),
};
#undef VANTA_EQUILIBRIO
#undef VANTA_ESTADOS
#undef VANTA_CAMPO

}  // namespace

std::span<const EntradaEstudio> EntradasEstudio() {
    return TablaEntradas();
}

const EntradaEstudio* BuscarEntradaEstudio(std::string_view nombre) {
    return BuscarEntrada(nombre);
}

std::span<const SalidaEstudio> SalidasEstudio() {
    return kSalidas;
}

const SalidaEstudio* BuscarSalidaEstudio(std::string_view nombre) {
    for (const auto& salida : kSalidas)
        if (nombre == salida.nombre) return &salida;
    return nullptr;
}

std::vector<std::string> ValoresEleccion(std::string_view nombre) {
    std::vector<std::string> v;
    if (const DefinicionEntrada* d = BuscarEntrada(nombre))
        for (std::string_view valor : d->valores) v.emplace_back(valor);
    return v;
}

// ---- Values of a varied input ---------------------------------------------------

namespace {

// The decimals written in a number's text; -1 when it has an exponent.
int Decimales(std::string_view texto) {
    if (texto.find_first_of("eE") != std::string_view::npos) return -1;
    const auto separador = texto.find_first_of(".,");
    if (separador == std::string_view::npos) return 0;
    const auto fin = texto.find_last_not_of(" \t");
    return static_cast<int>(fin - separador);
}

// x with the decimals given, without trailing zeros ("8.50" is "8.5"), or the
// shortest plain decimal that reads back to x when decimales is -1.
std::string TextoValor(double x, int decimales) {
    if (x == 0) x = 0;  // no "-0"
    char b[400];
    const auto r = decimales < 0 ? std::to_chars(b, b + sizeof b, x, std::chars_format::fixed)
                                 : std::to_chars(b, b + sizeof b, x, std::chars_format::fixed, decimales);
    std::string t(b, r.ptr);
    if (decimales > 0) {
        t.erase(t.find_last_not_of('0') + 1);
        if (t.back() == '.') t.pop_back();
    }
    return t == "-0" ? "0" : t;
}

std::string Recortar(std::string_view t) {
    const auto inicio = t.find_first_not_of(" \t");
    if (inicio == std::string_view::npos) return {};
    return std::string(t.substr(inicio, t.find_last_not_of(" \t") - inicio + 1));
}

std::vector<std::string> Partir(std::string_view texto, char separador) {
    std::vector<std::string> partes(1);
    for (char c : texto) {
        if (c == separador)
            partes.emplace_back();
        else
            partes.back() += c;
    }
    return partes;
}

}  // namespace

std::string Variacion::Valor(size_t i) const {
    if (!valores.empty()) return valores[i];
    return TextoValor(intervalo.inicio + static_cast<double>(i) * intervalo.paso, intervalo.decimales);
}

std::string LeerValores(std::string_view texto, bool numerica, Variacion& v) {
    v.valores.clear();
    v.intervalo = {};
    if (texto.find(':') != std::string_view::npos) {
        const std::vector<std::string> partes = Partir(texto, ':');
        if (!numerica) return "solo una entrada numérica se recorre como INICIO:FIN:PASO";
        std::optional<double> n[3];
        for (size_t i = 0; i < partes.size() && i < 3; ++i) n[i] = LeerNumero(partes[i]);
        if (partes.size() != 3 || !n[0] || !n[1] || !n[2])
            return "un intervalo se escribe INICIO:FIN:PASO, con tres números: " + std::string(texto);
        const double inicio = *n[0], fin = *n[1], paso = *n[2];
        if (paso == 0) return "el paso del intervalo no puede ser cero: " + std::string(texto);
        const double pasos = (fin - inicio) / paso;
        if (!std::isfinite(pasos) || pasos < -1e-9)
            return "el paso no lleva del inicio al fin del intervalo: " + std::string(texto);
        // A hair of slack, so that 8:14:0.1 ends at 14 although 6/0.1 falls
        // just short of 60 in doubles.
        const double cuenta = std::floor(pasos + 1e-9) + 1;
        if (cuenta > static_cast<double>(kPuntosMaximos))
            return "el intervalo tiene demasiados valores: " + std::string(texto);
        int decimales = 0;
        for (const std::string& p : partes) {
            const int d = Decimales(Recortar(p));
            decimales = d < 0 || decimales < 0 ? -1 : std::max(decimales, d);
        }
        v.intervalo = {inicio, paso, static_cast<size_t>(cuenta), decimales};
        return {};
    }
    const char separador = texto.find(';') != std::string_view::npos ? ';' : ',';
    for (const std::string& parte : Partir(texto, separador)) {
        std::string valor = Recortar(parte);
        if (valor.empty()) return "falta un valor en la lista: " + std::string(texto);
        if (numerica && !LeerNumero(valor)) return "no es un número: " + valor;
        v.valores.push_back(std::move(valor));
    }
    return {};
}

// ---- The points ------------------------------------------------------------------

size_t NumeroPuntos(const Estudio& estudio) {
    if (estudio.variaciones.empty()) return 0;
    size_t puntos = 1;
    for (const Variacion& v : estudio.variaciones) puntos *= v.Cuenta();
    return puntos;
}

std::vector<size_t> IndicesPunto(const Estudio& estudio, size_t punto) {
    std::vector<size_t> indices;
    for (const Variacion& v : estudio.variaciones) {
        indices.push_back(punto % v.Cuenta());
        punto /= v.Cuenta();
    }
    return indices;
}

OpcionesCalculo OpcionesPunto(const Estudio& estudio, size_t punto) {
    OpcionesCalculo o = estudio.base;
    const std::vector<size_t> indices = IndicesPunto(estudio, punto);
    for (size_t i = 0; i < indices.size(); ++i)
        o.valores[estudio.variaciones[i].nombre] = estudio.variaciones[i].Valor(indices[i]);
    return o;
}

Entradas EntradasPunto(const Estudio& estudio, size_t punto) {
    return EntradasDeOpciones(OpcionesPunto(estudio, punto));
}

ResultadoPunto CalcularPunto(const Estudio& estudio, size_t punto) {
    Entradas x = EntradasPunto(estudio, punto);
    const bool conRegimen =
        std::any_of(estudio.salidas.begin(), estudio.salidas.end(), [](auto* s) { return s->conRegimen; });
    // The speed only where an output needs the power.
    if (!conRegimen) x.rpm.reset();
    const ResultadoCalculo c = Calcular(x, estudio.separador);
    ResultadoPunto r;
    r.bien = c.bien;
    r.mensajes = c.TextosMensajes();
    // The cycles with dissociation once a point, where an output asks for them.
    std::optional<equilibrio::CiclosConDisociacion> disociacion;
    if (r.bien && std::any_of(estudio.salidas.begin(), estudio.salidas.end(),
                              [](auto* s) { return s->deDisociacion != nullptr; })) {
        disociacion = equilibrio::CicloConDisociacion(*c.estado);
        for (const std::string& m : equilibrio::MensajesDisociacion(*disociacion)) r.mensajes.push_back(m);
    }
    for (const SalidaEstudio* salida : estudio.salidas)
        r.valores.push_back(!r.bien                  ? std::nan("")
                            : !salida->deDisociacion ? salida->valor(*c.estado, c.vatios)
                                                     : salida->deDisociacion(*disociacion));
    return r;
}

std::string ComprobarEstudio(const Estudio& estudio) {
    if (estudio.variaciones.empty()) return std::string(kMensajeSinVariar);
    if (estudio.variaciones.size() > 2) return std::string(kMensajeDemasiadas);
    for (size_t i = 0; i < estudio.variaciones.size(); ++i) {
        const Variacion& v = estudio.variaciones[i];
        const DefinicionEntrada* d = BuscarEntrada(v.nombre);
        if (!d) return "no se puede variar " + v.nombre;
        if (i == 1 && estudio.variaciones[0].nombre == v.nombre) return std::string(kMensajeMismaEntrada);
        const std::string titulo(d->titulo);
        if (estudio.base.Tiene(v.nombre)) return titulo + std::string(kMensajeDadaYVariada);
        // Every value of a choice, with the first value of the other input,
        // passes the checks of the inputs; those read no number, so the first
        // value of a number stands for all.
        const size_t valores = d->Numerica() ? 1 : v.Cuenta();
        for (size_t k = 0; k < valores; ++k) {
            OpcionesCalculo o = estudio.base;
            for (const Variacion& otra : estudio.variaciones) o.valores[otra.nombre] = otra.Valor(0);
            o.valores[v.nombre] = v.Valor(k);
            if (std::string error = ComprobarOpciones(o); !error.empty()) return titulo + ": " + error;
        }
    }
    const bool regimen =
        estudio.base.Tiene("rpm") || std::any_of(estudio.variaciones.begin(), estudio.variaciones.end(),
                                                 [](const Variacion& v) { return v.nombre == "rpm"; });
    for (const SalidaEstudio* s : estudio.salidas)
        if (s->conRegimen && !regimen)
            return "La salida " + std::string(s->nombre) + std::string(kMensajeSinRegimen);
    if (NumeroPuntos(estudio) > kPuntosMaximos)
        return "el estudio tiene demasiados puntos: " + std::to_string(NumeroPuntos(estudio));
    return {};
}

OpcionesCalculo BaseDeVentanas(const Entradas& ventanas, const std::vector<std::string>& variadas) {
    OpcionesCalculo base = OpcionesDeEntradas(ventanas);
    for (const std::string& nombre : variadas) {
        QuitarExcluidas(base, nombre);
        base.valores.erase(nombre);
    }
    return base;
}

std::pair<size_t, size_t> PuntosDeLaParte(size_t puntos, Parte parte) {
    return {puntos * (parte.k - 1) / parte.n, puntos * parte.k / parte.n};
}

// ---- The run on every core ---------------------------------------------------------

void EjecutarEstudio(const Estudio& estudio, size_t desde, size_t hasta, unsigned hilos,
                     const std::function<void(size_t punto, ResultadoPunto& resultado)>& entregar,
                     const std::atomic<bool>* cancelar) {
    auto cancelado = [cancelar] { return cancelar && cancelar->load(std::memory_order_relaxed); };
    if (hilos == 0) hilos = std::max(1u, std::thread::hardware_concurrency());
    hilos = static_cast<unsigned>(std::min<size_t>(hilos, hasta > desde ? hasta - desde : 1));
    if (hilos <= 1) {
        for (size_t p = desde; p < hasta && !cancelado(); ++p) {
            ResultadoPunto r = CalcularPunto(estudio, p);
            entregar(p, r);
        }
        return;
    }

    // The threads take the points in turn; a finished point waits in a ring
    // of a few slots until the calling thread hands it over in order. A thread
    // does not take a point beyond the ring, so memory stays flat.
    const size_t ventana = 4 * static_cast<size_t>(hilos);
    struct Hueco {
        bool listo = false;
        ResultadoPunto resultado;
    };
    std::vector<Hueco> anillo(ventana);
    std::mutex m;
    std::condition_variable cambio;
    size_t siguiente = desde, entregados = desde;
    bool parar = false;

    auto trabajar = [&] {
        for (;;) {
            size_t p;
            {
                std::unique_lock l(m);
                cambio.wait(l,
                            [&] { return parar || siguiente >= hasta || siguiente < entregados + ventana; });
                if (parar || siguiente >= hasta) return;
                p = siguiente++;
            }
            ResultadoPunto r = CalcularPunto(estudio, p);
            {
                std::lock_guard l(m);
                Hueco& h = anillo[p % ventana];
                h.resultado = std::move(r);
                h.listo = true;
            }
            cambio.notify_all();
        }
    };
    std::vector<std::thread> trabajadores;
    for (unsigned i = 0; i < hilos; ++i) trabajadores.emplace_back(trabajar);

    for (size_t p = desde; p < hasta; ++p) {
        ResultadoPunto r;
        {
            std::unique_lock l(m);
            Hueco& h = anillo[p % ventana];
            // A cancel is noticed within a point's time: the wait wakes at
            // least as each point ends.
            cambio.wait(l, [&] { return h.listo || cancelado(); });
            if (!h.listo) break;
            r = std::move(h.resultado);
            h.listo = false;
            ++entregados;
        }
        cambio.notify_all();
        entregar(p, r);
        if (cancelado()) break;
    }
    {
        std::lock_guard l(m);
        parar = true;
    }
    cambio.notify_all();
    for (std::thread& t : trabajadores) t.join();
}

}  // namespace vanta
