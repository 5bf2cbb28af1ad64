#include "app/LineaEstudio.h"

#include <charconv>
#include <chrono>
#include <fstream>
#include <ostream>

#include "app/LineaComandos.h"

namespace vanta::cli {

namespace {

constexpr const char* kSalidasPorDefecto = "rendimiento";

// A whole number in [minimo, maximo] written alone.
std::optional<size_t> Entero(std::string_view t, size_t minimo, size_t maximo) {
    size_t n = 0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), n);
    if (r.ec != std::errc() || r.ptr != t.data() + t.size() || n < minimo || n > maximo) return std::nullopt;
    return n;
}

std::string Nombres(auto lista) {
    std::string t;
    for (const auto& x : lista) t += (t.empty() ? "" : ", ") + std::string(x.nombre);
    return t;
}

}  // namespace

ParseoEstudio ParsearEstudio(const std::vector<std::string>& argumentos) {
    OpcionesEstudio o;
    Estudio& estudio = o.estudio;
    std::vector<std::string> base;
    std::string salidas = kSalidasPorDefecto;
    bool conCsv = false;
    auto fallo = [](std::string error) { return ParseoEstudio{std::nullopt, std::move(error)}; };
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& a = argumentos[i];
        if (a == "--json") {
            o.json = true;
            continue;
        }
        if (a == "--csv-es") {
            o.dialecto = DialectoCSV::Espanol;
            continue;
        }
        const bool propia =
            a == "--variar" || a == "--salidas" || a == "--csv" || a == "--hilos" || a == "--parte";
        if (!propia) {
            base.push_back(a);
            continue;
        }
        if (i + 1 >= argumentos.size()) return fallo("falta el valor de " + a);
        const std::string& valor = argumentos[++i];
        if (a == "--variar") {
            const auto igual = valor.find('=');
            if (igual == std::string::npos) return fallo("--variar se escribe NOMBRE=VALORES: " + valor);
            Variacion v;
            v.nombre = valor.substr(0, igual);
            const EntradaEstudio* entrada = BuscarEntradaEstudio(v.nombre);
            if (!entrada)
                return fallo("no se puede variar " + v.nombre +
                             " (se pueden variar: " + Nombres(EntradasEstudio()) + ")");
            if (std::string error = LeerValores(valor.substr(igual + 1), entrada->Numerica(), v);
                !error.empty())
                return fallo("--variar " + v.nombre + ": " + error);
            estudio.variaciones.push_back(std::move(v));
        } else if (a == "--salidas") {
            salidas = valor;
        } else if (a == "--csv") {
            o.csv = valor;
            conCsv = true;
        } else if (a == "--hilos") {
            const auto n = Entero(valor, 1, 1024);
            if (!n) return fallo("--hilos lleva un número entero de 1 a 1024: " + valor);
            o.hilos = static_cast<unsigned>(*n);
        } else {
            const auto barra = valor.find('/');
            const auto n = barra == std::string::npos ? std::nullopt
                                                      : Entero(valor.substr(barra + 1), 1, kPuntosMaximos);
            const auto k = n ? Entero(valor.substr(0, barra), 1, *n) : std::nullopt;
            if (!k) return fallo("--parte se escribe K/N, con 1 <= K <= N: " + valor);
            o.parte = {*k, *n};
        }
    }
    const Parseo p = ParsearCalcular(base);
    if (!p.opciones) return fallo(p.error);
    if (p.opciones->json || !p.opciones->html.empty() || !p.opciones->guardar.empty())
        return fallo("--html y --guardar son de calcular, no de estudio");
    estudio.base = *p.opciones;
    for (const std::string& nombre : SepararLista(salidas)) {
        const SalidaEstudio* s = BuscarSalidaEstudio(nombre);
        if (!s)
            return fallo("salida desconocida: " + nombre + " (las salidas: " + Nombres(SalidasEstudio()) +
                         ")");
        estudio.salidas.push_back(s);
    }
    if (std::string error = ComprobarEstudio(estudio); !error.empty()) return fallo(error);
    if (o.parte.n > NumeroPuntos(estudio))
        return fallo("--parte " + std::to_string(o.parte.k) + "/" + std::to_string(o.parte.n) +
                     ": hay más partes que puntos");
    if (o.json && !conCsv) o.csv.clear();
    if (o.json && o.csv == "-") return fallo("--json y --csv - escriben los dos en la salida estándar");
    return {o, {}};
}

namespace {

// The names of the inputs, in lines for the help.
std::string NombresEntradas() {
    std::string t, linea;
    for (const EntradaEstudio& e : EntradasEstudio()) {
        const std::string nombre(e.nombre);
        if (!linea.empty() && linea.size() + nombre.size() + 2 > 72) {
            t += linea + ",\n       ";
            linea.clear();
        }
        linea += (linea.empty() ? "" : ", ") + nombre;
    }
    return t + linea;
}

}  // namespace

std::string TextoUsoEstudio() {
    return "Uso: vanta estudio --variar NOMBRE=VALORES [--variar NOMBRE=VALORES] [opciones de calcular]\n"
           "                   [--salidas S1,S2,…] [--csv ARCHIVO|-] [--csv-es] [--json] [--hilos N] "
           "[--parte K/N]\n"
           "\n"
           "Un estudio paramétrico: el cálculo completo de calcular en cada punto, con una o dos entradas\n"
           "variadas; los puntos se calculan en todos los núcleos.\n"
           "  --variar NOMBRE=INICIO:FIN:PASO   una entrada numérica en un intervalo (rc=8:14:0.5)\n"
           "  --variar NOMBRE=A,B,C             una lista de valores (fr=0.8,0.9,1 o "
           "combustible=Gasolina,Gasoil;\n"
           "                                    \";\" entre valores con coma decimal: "
           "n-compresion=1,3;1,35)\n"
           "       Las entradas: " +
           NombresEntradas() +
           ".\n"
           "       Con dos, las filas recorren la primera para cada valor de la segunda.\n"
           "  --salidas S1,S2,…   las cifras de cada punto (rendimiento): rendimiento, wciclo, qciclo, q23,\n"
           "                      q34, w12, w34, w45, p1…p5, v1…v5, t1…t5, h1…h5, s1…s5, presion-maxima,\n"
           "                      temperatura-maxima, consumo-kwh, consumo-mj, potencia y potencia-cv (con\n"
           "                      --rpm), gamma-medio-compresion, gamma-medio-expansion, gamma1, gamma2,\n"
           "                      gamma4, gamma5, masa-aire, masa-combustible\n"
           "  --csv ARCHIVO|-     la tabla en CSV (RFC 4180), en el archivo o en la salida estándar (-, por\n"
           "                      defecto): una columna por entrada y por salida, con su unidad, y los "
           "mensajes\n"
           "  --csv-es            el CSV de las hojas de cálculo en español: \";\" entre campos y coma "
           "decimal\n"
           "  --json              un documento JSON en la salida estándar\n"
           "  --hilos N           los hilos de cálculo (por defecto, uno por núcleo)\n"
           "  --parte K/N         solo la parte K de N: las salidas de las N partes, unidas en orden, son\n"
           "                      la del estudio entero\n"
           "Un punto que falla queda en la tabla, sin cifras y con sus mensajes. Estado de salida: 0 si "
           "todos\n"
           "los puntos terminan bien, 1 si alguno falla, 2 por un error de uso.\n";
}

int EjecutarLineaEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err,
                         std::ostream* progreso) {
    const Estudio& estudio = o.estudio;
    std::ofstream archivo;
    std::ostream* csv = nullptr;
    if (o.csv == "-") {
        csv = &out;
    } else if (!o.csv.empty()) {
        archivo.open(o.csv, std::ios::binary);
        if (!archivo) {
            err << "vanta estudio: no se puede escribir " << o.csv << '\n';
            return kSalidaFallo;
        }
        csv = &archivo;
    }
    std::optional<EscritorJSONEstudio> json;
    if (o.json) json.emplace(out, estudio);

    const size_t total = NumeroPuntos(estudio);
    const auto [desde, hasta] = PuntosDeLaParte(total, o.parte);
    // The header goes with the first share only, so that the shares together
    // are the whole table.
    if (csv && o.parte.k == 1) *csv << CabeceraCSV(estudio, o.dialecto);
    bool todosBien = true;
    size_t hechos = 0;
    auto ultimo = std::chrono::steady_clock::now();
    auto avisar = [&](bool fin) {
        const auto ahora = std::chrono::steady_clock::now();
        if (!progreso || (!fin && ahora - ultimo < std::chrono::milliseconds(200))) return;
        ultimo = ahora;
        *progreso << "\rvanta estudio: " << hechos << " de " << (hasta - desde) << " puntos"
                  << (fin ? "\n" : "") << std::flush;
    };
    EjecutarEstudio(estudio, desde, hasta, o.hilos, [&](size_t punto, ResultadoPunto& r) {
        todosBien = todosBien && r.bien;
        if (csv) *csv << FilaCSV(estudio, punto, r, o.dialecto);
        if (json) json->Punto(punto, r);
        ++hechos;
        avisar(false);
    });
    avisar(true);
    if (json) json->Cerrar();
    if (csv) csv->flush();
    if (archivo.is_open() && !archivo) {
        err << "vanta estudio: no se puede escribir " << o.csv << '\n';
        return kSalidaFallo;
    }
    return todosBien ? kSalidaBien : kSalidaFallo;
}

}  // namespace vanta::cli
