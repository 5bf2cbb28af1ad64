#include "app/LineaEstudio.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <ostream>
#include <set>
#include <span>

#include "app/LineaCluster.h"
#include "app/LineaComandos.h"
#include "core/studies/GuionSlurm.h"
#include "core/studies/PartesEstudio.h"

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

// The options of --slurm together; the folder made absolute, as the tasks
// see it wherever they start.
std::string ComprobarSlurm(OpcionesEstudio& o, const std::set<std::string>& dadas) {
    const bool deSlurm = dadas.count("--carpeta") || dadas.count("--particion") || dadas.count("--tiempo") ||
                         dadas.count("--memoria");
    if (!o.slurm) return deSlurm ? "--carpeta, --particion, --tiempo y --memoria van con --slurm" : "";
    if (o.conParte) return "--slurm reparte el estudio en partes: no lleva --parte";
    if (dadas.count("--csv") || !o.archivoJson.empty())
        return "con --slurm, las partes van a la carpeta de --carpeta, y --unir escribe la tabla entera";
    if (o.carpeta.empty())
        return "--slurm necesita --carpeta: la carpeta de las partes, en un disco que vean los nodos";
    std::error_code ec;
    std::filesystem::path carpeta = std::filesystem::absolute(o.carpeta, ec).lexically_normal();
    if (ec) return "--carpeta: " + ec.message();
    if (!carpeta.has_filename() && carpeta.has_parent_path() && carpeta != carpeta.root_path())
        carpeta = carpeta.parent_path();
    o.carpeta = carpeta.string();
    return ComprobarCarpetaSlurm(o.carpeta);
}

// The study's own options with a value; --json and --csv-es have none.
bool EsPropiaConValor(const std::string& a) {
    for (const char* propia : {"--variar", "--salidas", "--csv", "--hilos", "--parte", "--slurm", "--carpeta",
                               "--particion", "--tiempo", "--memoria", "--unir"})
        if (a == propia) return true;
    return false;
}

// --unir takes where the whole table goes, and nothing else.
ParseoEstudio ParsearUnir(OpcionesEstudio o, const std::set<std::string>& dadas, bool otras) {
    for (const std::string& a : dadas) otras = otras || (a != "--unir" && a != "--csv" && a != "--json");
    if (otras) return {std::nullopt, "--unir solo lleva --csv o --json: dónde se escribe la tabla entera"};
    if (o.json && dadas.count("--csv"))
        return {std::nullopt,
                "--unir escribe la tabla entera en CSV (--csv) o en JSON (--json), no en los dos"};
    if (!dadas.count("--csv")) o.csv.clear();
    return {o, {}};
}

}  // namespace

ParseoEstudio ParsearEstudio(const std::vector<std::string>& argumentos) {
    OpcionesEstudio o;
    Estudio& estudio = o.estudio;
    std::vector<std::string> base;
    std::string salidas = kSalidasPorDefecto;
    std::set<std::string> dadas;  // the study's own options, each once but --variar
    auto fallo = [](std::string error) { return ParseoEstudio{std::nullopt, std::move(error)}; };
    const std::vector<std::string> palabras = SepararIgual(argumentos);
    for (size_t i = 0; i < palabras.size(); ++i) {
        const std::string& a = palabras[i];
        if (!EsPropiaConValor(a) && a != "--json" && a != "--csv-es") {
            base.push_back(a);
            o.palabras.push_back(a);
            continue;
        }
        if (a != "--variar" && !dadas.insert(a).second) return fallo(a + kDadaDosVeces);
        if (a == "--json") {
            o.json = true;
            // Its file, when the next word is no option.
            if (i + 1 < palabras.size() && !palabras[i + 1].starts_with("--")) {
                o.archivoJson = palabras[++i];
                if (o.archivoJson.empty())
                    return fallo("--json lleva un archivo, o - para la salida estándar");
                if (o.archivoJson == "-") o.archivoJson.clear();
            }
            continue;
        }
        if (a == "--csv-es") {
            o.dialecto = DialectoCSV::Espanol;
            o.palabras.push_back(a);
            continue;
        }
        if (i + 1 >= palabras.size()) return fallo("falta el valor de " + a);
        const std::string& valor = palabras[++i];
        if (valor.empty()) return fallo(a + " lleva un valor");
        if (a == "--variar" || a == "--salidas") {
            o.palabras.push_back(a);
            o.palabras.push_back(valor);
        }
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
        } else if (a == "--hilos") {
            const auto n = Entero(valor, 1, 1024);
            if (!n) return fallo("--hilos lleva un número entero de 1 a 1024: " + valor);
            o.hilos = static_cast<unsigned>(*n);
        } else if (a == "--parte") {
            const auto barra = valor.find('/');
            const auto n = barra == std::string::npos ? std::nullopt
                                                      : Entero(valor.substr(barra + 1), 1, kPuntosMaximos);
            const auto k = n ? Entero(valor.substr(0, barra), 1, *n) : std::nullopt;
            if (!k) return fallo("--parte se escribe K/N, con 1 <= K <= N: " + valor);
            o.parte = {*k, *n};
            o.conParte = true;
        } else if (a == "--slurm") {
            const auto n = Entero(valor, 1, kPuntosMaximos);
            if (!n) return fallo("--slurm lleva el número de partes, un entero de 1 en adelante: " + valor);
            o.slurm = *n;
        } else if (a == "--unir") {
            o.unir = valor;
        } else if (a == "--carpeta") {
            o.carpeta = valor;
        } else {
            // A line of the script, checked as Slurm reads it.
            const std::string error = a == "--particion" ? ComprobarParticionSlurm(valor)
                                      : a == "--tiempo"  ? ComprobarTiempoSlurm(valor)
                                                         : ComprobarMemoriaSlurm(valor);
            if (!error.empty()) return fallo(error);
            (a == "--particion" ? o.particion : a == "--tiempo" ? o.tiempo : o.memoria) = valor;
        }
    }
    if (!o.unir.empty()) {
        const bool conEstudio = !o.palabras.empty();
        return ParsearUnir(std::move(o), dadas, conEstudio);
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
    const size_t partes = o.slurm ? o.slurm : o.parte.n;
    if (partes > NumeroPuntos(estudio))
        return fallo((o.slurm ? "--slurm " + std::to_string(o.slurm)
                              : "--parte " + std::to_string(o.parte.k) + "/" + std::to_string(o.parte.n)) +
                     ": hay más partes que puntos");
    if (std::string error = ComprobarSlurm(o, dadas); !error.empty()) return fallo(error);
    if (o.json && !dadas.count("--csv")) o.csv.clear();
    if (o.json && o.archivoJson.empty() && o.csv == "-")
        return fallo("--json y --csv - escriben los dos en la salida estándar");
    if (!o.archivoJson.empty() && o.archivoJson == o.csv)
        return fallo("--json y --csv escriben el mismo archivo");
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

// The outputs as the help names them: the states' series as p1…p5, those
// that need the speed together.
std::string NombresSalidas() {
    const std::span<const SalidaEstudio> salidas = SalidasEstudio();
    std::string t;
    for (size_t i = 0; i < salidas.size(); ++i) {
        const std::string n = salidas[i].nombre;
        std::string nombre = n;
        if (n.size() == 2 && std::isdigit(static_cast<unsigned char>(n[1]))) {
            if (n[1] != '1') continue;
            nombre = n + "…" + n[0] + "5";
        } else if (salidas[i].conRegimen) {
            while (i + 1 < salidas.size() && salidas[i + 1].conRegimen)
                nombre += std::string(" y ") + salidas[++i].nombre;
            nombre += " (con --rpm)";
        }
        t += (t.empty() ? "" : ", ") + nombre;
    }
    return t;
}

// The help's lines are at most this wide, in characters; a line that goes
// on starts under the text of its option.
constexpr size_t kAnchoAyuda = 99;
constexpr size_t kSangriaAyuda = 22;

size_t Caracteres(const std::string& s) {
    return static_cast<size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// The text in lines of at most `ancho` characters, broken between words.
std::string Envolver(const std::string& texto, size_t ancho, size_t sangria) {
    std::string t, linea;
    size_t desde = 0;
    while (desde < texto.size()) {
        size_t hasta = texto.find(' ', desde + 1);
        if (hasta == std::string::npos) hasta = texto.size();
        const std::string palabra = texto.substr(desde, hasta - desde);
        if (!linea.empty() && Caracteres(linea + palabra) > ancho) {
            t += linea + "\n";
            linea = std::string(sangria, ' ') + palabra.substr(1);
        } else {
            linea += palabra;
        }
        desde = hasta;
    }
    return t + linea + "\n";
}

}  // namespace

std::string TextoUsoEstudio() {
    return "Uso: vanta estudio --variar NOMBRE=VALORES [--variar NOMBRE=VALORES] [opciones de calcular]\n"
           "                   [--salidas S1,S2,…] [--csv ARCHIVO|-] [--csv-es] [--json [ARCHIVO|-]]\n"
           "                   [--hilos N] [--parte K/N | --slurm N --carpeta CARPETA [--particion P]\n"
           "                   [--tiempo T] [--memoria M]]\n"
           "     vanta estudio --unir CARPETA [--csv ARCHIVO|- | --json [ARCHIVO|-]]\n"
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
           "       Con dos, las filas recorren la primera para cada valor de la segunda.\n" +
           Envolver("  --salidas S1,S2,…   las cifras de cada punto (rendimiento): " + NombresSalidas(),
                    kAnchoAyuda, kSangriaAyuda) +
           "  --csv ARCHIVO|-     la tabla en CSV (RFC 4180), en el archivo o en la salida estándar (-, por\n"
           "                      defecto): una columna por entrada y por salida, con su unidad, y los "
           "mensajes\n"
           "  --csv-es            el CSV de las hojas de cálculo en español: \";\" entre campos y coma "
           "decimal\n"
           "  --json [ARCHIVO|-]  un documento JSON, en el archivo o en la salida estándar (-, por defecto)\n"
           "  --hilos N           los hilos de cálculo (por defecto, uno por núcleo)\n"
           "  --parte K/N         solo la parte K de N, que empieza con una línea (CSV) o una clave "
           "\"parte\"\n"
           "                      (JSON) que nombra el estudio y la parte; --unir junta las N partes\n"
           "  --slurm N           en lugar del estudio, el guion de un array de Slurm de N tareas, una CPU\n"
           "                      cada una (o las de --hilos): la tarea K escribe parte-K.csv (o .json, con\n"
           "                      --json) en la carpeta; escribe la orden sbatch que lo lanza\n"
           "  --carpeta CARPETA   la carpeta del guion, de las partes y de los registros de Slurm, en un\n"
           "                      disco que vean todos los nodos\n"
           "  --particion P  --tiempo T  --memoria M   las líneas #SBATCH de la partición, del tiempo\n"
           "                      máximo de cada tarea (minutos, H:M:S o D-H:M:S) y de su memoria (4G)\n"
           "  --unir CARPETA      junta las partes parte-1 … parte-N de la carpeta en la tabla entera, "
           "igual\n"
           "                      byte a byte a la del estudio entero, si todas están, enteras y del mismo\n"
           "                      estudio; si no, dice cuáles faltan o sobran y no escribe nada\n"
           "Un punto que falla queda en la tabla, sin cifras y con sus mensajes. Un archivo se escribe "
           "entero\n"
           "o no se escribe. Ctrl+C (SIGINT) o SIGTERM detienen el estudio: sus archivos no se escriben, y "
           "una\n"
           "tabla CSV en la salida estándar acaba en una línea \"#vanta estudio: incompleto…\". Estado de\n"
           "salida: 0 si todos los puntos terminan bien, 1 si alguno falla o no se puede escribir una "
           "salida,\n"
           "2 por un error de uso, 130 o 143 si se ha detenido.\n";
}

namespace {

// An output of the run: standard output, or a file written whole or not at
// all.
struct Destino {
    std::ostream* flujo = nullptr;
    std::optional<ArchivoNuevo> archivo;
    std::string ruta;

    // Opens the file of ruta ("" or "-" for out); false, with why, when it
    // cannot be made.
    bool Abrir(const std::string& nombre, std::ostream& out, std::ostream& err) {
        if (nombre.empty() || nombre == "-") {
            flujo = &out;
            return true;
        }
        ruta = nombre;
        archivo.emplace(nombre);
        flujo = &archivo->Flujo();
        if (archivo->Error().empty()) return true;
        err << kPrefijoEstudio << NoSeEscribe(ruta, archivo->Error()) << '\n';
        return false;
    }
};

}  // namespace

int EjecutarLineaEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err,
                         std::ostream* progreso, Parada* parada) {
    if (!o.unir.empty()) return UnirEstudio(o, out, err);
    if (o.slurm) return EscribirGuionSlurm(o, out, err);
    Parada propia;
    Parada& p = parada ? *parada : propia;
    const Estudio& estudio = o.estudio;
    Destino csv, json;
    if (!o.csv.empty() && !csv.Abrir(o.csv, out, err)) return kSalidaFallo;
    if (o.json && !json.Abrir(o.archivoJson, out, err)) return kSalidaFallo;

    const size_t total = NumeroPuntos(estudio);
    const auto [desde, hasta] = PuntosDeLaParte(total, o.parte);
    // A share opens with its mark; the header goes with the first share only,
    // so that the shares together are the whole table.
    const MarcaParte marca{o.parte, total, EstudioDePalabras(o.palabras)};
    if (csv.flujo && o.conParte) *csv.flujo << LineaParte(marca);
    if (csv.flujo && o.parte.k == 1) *csv.flujo << CabeceraCSV(estudio, o.dialecto);
    std::optional<EscritorJSONEstudio> escritor;
    if (json.flujo) escritor.emplace(*json.flujo, estudio, o.conParte ? ClaveParte(marca) : std::string());
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
    // A failed write stops the run: the rest of the table has nowhere to go.
    auto escrito = [&] { return (!csv.flujo || *csv.flujo) && (!json.flujo || *json.flujo); };
    EjecutarEstudio(
        estudio, desde, hasta, o.hilos,
        [&](size_t punto, ResultadoPunto& r) {
            todosBien = todosBien && r.bien;
            if (csv.flujo) *csv.flujo << FilaCSV(estudio, punto, r, o.dialecto);
            if (escritor) escritor->Punto(punto, r);
            ++hechos;
            avisar(false);
            if (!escrito()) p.cancelar = true;
        },
        &p.cancelar);
    avisar(true);

    if (const int senal = p.senal.load()) {
        // Cut short: a table on standard output says so in its last line (a
        // JSON document stays open), a file is not written at all.
        if (csv.flujo == &out) out << LineaIncompleta(hechos, hasta - desde) << std::flush;
        err << kPrefijoEstudio << "interrumpido por " << NombreSenal(senal) << " tras " << hechos << " de "
            << (hasta - desde) << " puntos";
        for (const Destino* d : {&csv, &json})
            if (d->archivo) err << "; no se ha escrito " << d->ruta;
        err << '\n';
        return 128 + senal;
    }
    if (escritor) escritor->Cerrar();
    for (Destino* d : {&csv, &json}) {
        if (!d->archivo) continue;
        const std::string fallo = escrito() ? d->archivo->Confirmar() : d->archivo->FalloEscritura();
        if (fallo.empty()) continue;
        err << kPrefijoEstudio << NoSeEscribe(d->ruta, fallo) << '\n';
        return kSalidaFallo;
    }
    out.flush();
    // A failed standard output is told by the caller, which knows whether a
    // reader closed it.
    return todosBien && out ? kSalidaBien : kSalidaFallo;
}

}  // namespace vanta::cli
