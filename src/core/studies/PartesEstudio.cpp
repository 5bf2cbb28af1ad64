#include "core/studies/PartesEstudio.h"

#include <charconv>
#include <fstream>
#include <functional>
#include <map>
#include <ostream>
#include <tuple>

#include "core/services/JSON.h"

namespace vanta {

namespace {

constexpr std::string_view kInicioLinea = "#vanta estudio, parte ";
constexpr std::string_view kInicioClave = "{\"parte\":{\"k\":";
constexpr std::string_view kIncompleta = "#vanta estudio: incompleto";

std::string Numero(size_t n) {
    return std::to_string(n);
}

// Takes `literal` off the front of t; false when t does not start with it.
bool Tomar(std::string_view& t, std::string_view literal) {
    if (t.substr(0, literal.size()) != literal) return false;
    t.remove_prefix(literal.size());
    return true;
}

std::optional<size_t> TomarEntero(std::string_view& t) {
    size_t n = 0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), n);
    if (r.ec != std::errc() || r.ptr == t.data()) return std::nullopt;
    t.remove_prefix(static_cast<size_t>(r.ptr - t.data()));
    return n;
}

// A JSON array of strings at the front of t, taken whole as its text.
std::optional<std::string> TomarArrayCadenas(std::string_view& t) {
    if (t.empty() || t[0] != '[') return std::nullopt;
    size_t i = 1;
    bool primera = true;
    while (i < t.size() && t[i] != ']') {
        if (!primera && t[i++] != ',') return std::nullopt;
        primera = false;
        if (i >= t.size() || t[i++] != '"') return std::nullopt;
        while (i < t.size() && t[i] != '"') i += t[i] == '\\' ? 2 : 1;
        if (i++ >= t.size()) return std::nullopt;
    }
    if (i >= t.size()) return std::nullopt;
    std::string texto(t.substr(0, i + 1));
    t.remove_prefix(i + 1);
    return texto;
}

// The mark after its opening text: K, N, the points and the study, with the
// words between them.
std::optional<MarcaParte> TomarMarca(std::string_view& t, std::string_view entreKN, std::string_view entreNP,
                                     std::string_view entrePE) {
    MarcaParte m;
    const auto k = TomarEntero(t);
    if (!k || !Tomar(t, entreKN)) return std::nullopt;
    const auto n = TomarEntero(t);
    if (!n || !Tomar(t, entreNP)) return std::nullopt;
    const auto puntos = TomarEntero(t);
    if (!puntos || !Tomar(t, entrePE)) return std::nullopt;
    auto estudio = TomarArrayCadenas(t);
    if (!estudio || *k < 1 || *k > *n || *n > *puntos) return std::nullopt;
    m.parte = {*k, *n};
    m.puntos = *puntos;
    m.estudio = std::move(*estudio);
    return m;
}

// What a share holds, read line by line; written on `out` as the whole
// table's piece when it is given.
struct Lectura {
    std::optional<MarcaParte> marca;
    std::string error;
    size_t cabecera = 0;  // JSON: a digest of the inputs and outputs that open the document
};

size_t Esperados(const MarcaParte& m) {
    const auto [desde, hasta] = PuntosDeLaParte(m.puntos, m.parte);
    return hasta - desde;
}

std::string Cortada(size_t tiene, size_t esperados) {
    return "está cortada: tiene " + Numero(tiene) + " de sus " + Numero(esperados) + " puntos";
}

// CSV: the mark's line, then the rows (the table's header too in the first
// share), each ended by CR LF; a row may hold line ends inside quotes.
Lectura LeerParteCSV(std::istream& in, std::ostream* out) {
    Lectura l;
    std::string linea;
    std::string_view t;
    if (std::getline(in, linea) && !in.eof() && !linea.empty() && linea.back() == '\r') {
        t = linea;
        t.remove_suffix(1);
        if (Tomar(t, kInicioLinea)) l.marca = TomarMarca(t, " de ", ", ", " puntos: ");
    }
    if (!l.marca || !t.empty()) {
        l.marca.reset();
        l.error = "no es una parte de un estudio (le falta la primera línea, que la nombra)";
        return l;
    }
    const size_t esperados = Esperados(*l.marca);
    const size_t cabeceras = l.marca->parte.k == 1 ? 1 : 0;
    size_t filas = 0, comillas = 0;
    std::string registro;
    while (l.error.empty() && std::getline(in, linea)) {
        if (in.eof()) break;
        for (char c : linea) comillas += c == '"';
        registro += linea;
        registro += '\n';
        if (comillas % 2) continue;
        if (registro.size() < 2 || registro[registro.size() - 2] != '\r')
            l.error = "tiene una fila que no acaba en CR LF";
        else if (registro.starts_with(kIncompleta))
            l.error = "está incompleta: su cálculo se interrumpió";
        else if (registro[0] == '#')
            l.error = "tiene una fila que no es del estudio";
        else if (out)
            *out << registro;
        ++filas;
        registro.clear();
    }
    if (!l.error.empty()) return l;
    if (!registro.empty() || (in.eof() && !linea.empty()))
        l.error = "está cortada a mitad de una fila";
    else if (filas < cabeceras || filas - cabeceras != esperados)
        l.error = Cortada(filas >= cabeceras ? filas - cabeceras : 0, esperados);
    return l;
}

// JSON: the document's first line (the mark, the inputs and the outputs, up to
// the list of points), a line a point (a comma after each but the last), and
// "]}".
Lectura LeerParteJSON(std::istream& in, std::ostream* out, bool& primerPunto) {
    Lectura l;
    std::string linea;
    std::string_view t;
    if (std::getline(in, linea) && !in.eof()) {
        t = linea;
        if (Tomar(t, kInicioClave)) l.marca = TomarMarca(t, ",\"n\":", ",\"puntos\":", ",\"estudio\":");
    }
    if (!l.marca || !Tomar(t, "},") || !t.starts_with("\"entradas\":") || !t.ends_with("\"puntos\":[")) {
        l.marca.reset();
        l.error = "no es una parte de un estudio (le falta la clave \"parte\", que la nombra)";
        return l;
    }
    l.cabecera = std::hash<std::string_view>{}(t);
    if (out && primerPunto) *out << '{' << t;
    const size_t esperados = Esperados(*l.marca);
    size_t puntos = 0;
    bool cerrado = false, conComa = true;
    while (std::getline(in, linea) && !in.eof()) {
        if (cerrado) {
            l.error = "sigue tras el final de su documento";
            return l;
        }
        if (linea == "]}") {
            cerrado = !conComa;
            if (!cerrado) break;
            continue;
        }
        std::string_view punto = linea;
        if (!conComa || !punto.starts_with("{\"entradas\":")) break;
        conComa = punto.ends_with("},");
        if (conComa) punto.remove_suffix(1);
        if (!punto.ends_with('}')) break;
        if (out) *out << (primerPunto ? "\n" : ",\n") << punto;
        primerPunto = false;
        ++puntos;
    }
    if (!cerrado)
        l.error = "está cortada o incompleta: su documento no se cierra";
    else if (!linea.empty())
        l.error = "sigue tras el final de su documento";
    else if (puntos != esperados)
        l.error = Cortada(puntos, esperados);
    return l;
}

Lectura LeerParte(const std::filesystem::path& ruta, FormatoParte formato, std::ostream* out,
                  bool& primerPunto) {
    std::ifstream in(ruta, std::ios::binary);
    if (!in) return {std::nullopt, "no se puede leer", 0};
    Lectura l = formato == FormatoParte::CSV ? LeerParteCSV(in, out) : LeerParteJSON(in, out, primerPunto);
    if (l.error.empty() && in.bad()) l.error = "no se puede leer";
    return l;
}

// K of a file named as a share, or 0.
size_t NumeroDeParte(const std::string& nombre, FormatoParte formato) {
    std::string_view t = nombre;
    if (!Tomar(t, kPrefijoParte)) return 0;
    const auto k = TomarEntero(t);
    return k && *k > 0 && nombre == NombreParte(*k, formato) ? *k : 0;
}

}  // namespace

std::string EstudioDePalabras(const std::vector<std::string>& palabras) {
    std::string t = "[";
    for (size_t i = 0; i < palabras.size(); ++i) t += (i ? "," : "") + TextoCadenaJSON(palabras[i]);
    return t + "]";
}

std::string LineaParte(const MarcaParte& m) {
    return std::string(kInicioLinea) + Numero(m.parte.k) + " de " + Numero(m.parte.n) + ", " +
           Numero(m.puntos) + " puntos: " + m.estudio + "\r\n";
}

std::string ClaveParte(const MarcaParte& m) {
    return "\"parte\":{\"k\":" + Numero(m.parte.k) + ",\"n\":" + Numero(m.parte.n) +
           ",\"puntos\":" + Numero(m.puntos) + ",\"estudio\":" + m.estudio + "},";
}

std::string LineaIncompleta(size_t hechos, size_t total) {
    return std::string(kIncompleta) + ", interrumpido tras " + Numero(hechos) + " de " + Numero(total) +
           " puntos\r\n";
}

std::string ExtensionParte(FormatoParte formato) {
    return formato == FormatoParte::CSV ? ".csv" : ".json";
}

std::string NombreParte(size_t k, FormatoParte formato) {
    return std::string(kPrefijoParte) + Numero(k) + ExtensionParte(formato);
}

bool TienePartes(const std::filesystem::path& carpeta) {
    std::error_code ec;
    for (std::filesystem::directory_iterator it(carpeta, ec), fin; !ec && it != fin; it.increment(ec))
        for (FormatoParte f : {FormatoParte::CSV, FormatoParte::JSON})
            if (NumeroDeParte(it->path().filename().string(), f)) return true;
    return false;
}

PartesComprobadas ComprobarPartes(const std::filesystem::path& carpeta) {
    namespace fs = std::filesystem;
    PartesComprobadas r;
    std::error_code ec;
    if (!fs::is_directory(carpeta, ec)) {
        r.errores.push_back("la carpeta " + carpeta.string() + " no existe");
        return r;
    }
    // The shares by K, and which formats there are.
    std::map<size_t, fs::path> porNumero;
    bool hay[2] = {false, false};
    for (fs::directory_iterator it(carpeta, ec), fin; !ec && it != fin; it.increment(ec)) {
        for (FormatoParte f : {FormatoParte::CSV, FormatoParte::JSON}) {
            if (const size_t k = NumeroDeParte(it->path().filename().string(), f)) {
                porNumero[k] = it->path();
                hay[static_cast<int>(f)] = true;
                r.formato = f;
            }
        }
    }
    if (ec) {
        r.errores.push_back("no se puede leer la carpeta " + carpeta.string());
        return r;
    }
    if (porNumero.empty()) {
        r.errores.push_back("la carpeta " + carpeta.string() + " no tiene partes (" +
                            NombreParte(1, FormatoParte::CSV) + ", " + NombreParte(1, FormatoParte::JSON) +
                            "…)");
        return r;
    }
    if (hay[0] && hay[1]) {
        r.errores.push_back("la carpeta " + carpeta.string() + " tiene partes CSV y partes JSON");
        return r;
    }

    // The study is the one most shares name; a tie goes to the lowest share.
    using Clave = std::tuple<size_t, size_t, std::string, size_t>;
    std::map<size_t, Lectura> lecturas;
    std::map<Clave, size_t> votos;
    std::optional<Clave> elegido;
    size_t mejor = 0;
    for (const auto& [k, ruta] : porNumero) {
        bool primero = true;
        Lectura& l = lecturas[k] = LeerParte(ruta, r.formato, nullptr, primero);
        if (!l.marca) continue;
        const Clave e{l.marca->parte.n, l.marca->puntos, l.marca->estudio, l.cabecera};
        if (const size_t v = ++votos[e]; v > mejor) {
            mejor = v;
            elegido = e;
        }
    }
    const size_t n = elegido ? std::get<0>(*elegido) : 0;
    for (const auto& [k, l] : lecturas) {
        const std::string nombre = NombreParte(k, r.formato);
        if (!l.marca) {
            r.errores.push_back(nombre + ": " + l.error);
            continue;
        }
        const Clave e{l.marca->parte.n, l.marca->puntos, l.marca->estudio, l.cabecera};
        if (std::get<0>(e) != n &&
            std::tie(std::get<1>(e), std::get<2>(e), std::get<3>(e)) ==
                std::tie(std::get<1>(*elegido), std::get<2>(*elegido), std::get<3>(*elegido)))
            r.errores.push_back(nombre + ": es la parte " + Numero(l.marca->parte.k) + " de " +
                                Numero(l.marca->parte.n) + ", de otro reparto del estudio en " + Numero(n) +
                                " partes");
        else if (e != *elegido)
            r.errores.push_back(nombre + ": es de otro estudio: " + l.marca->estudio);
        else if (l.marca->parte.k != k)
            r.errores.push_back(nombre + ": es la parte " + Numero(l.marca->parte.k) + " de " + Numero(n));
        else if (!l.error.empty())
            r.errores.push_back(nombre + ": " + l.error);
    }
    if (!elegido) return r;
    std::string faltan;
    size_t cuenta = 0;
    for (size_t k = 1; k <= n; ++k) {
        if (porNumero.count(k)) continue;
        if (++cuenta <= 20) faltan += (faltan.empty() ? "" : ", ") + NombreParte(k, r.formato);
    }
    if (cuenta)
        r.errores.push_back("faltan " + Numero(cuenta) + " de las " + Numero(n) + " partes: " + faltan +
                            (cuenta > 20 ? "…" : ""));
    if (!r.errores.empty()) return r;
    for (const auto& [k, ruta] : porNumero) r.archivos.push_back(ruta);
    return r;
}

bool UnirPartes(const PartesComprobadas& partes, std::ostream& out) {
    bool primerPunto = true;
    for (const auto& ruta : partes.archivos)
        if (!LeerParte(ruta, partes.formato, &out, primerPunto).error.empty()) return false;
    if (partes.formato == FormatoParte::JSON) out << "\n]}\n";
    return static_cast<bool>(out);
}

}  // namespace vanta
