// The page's entry points into the WebAssembly module: the calls of Pagina.h
// under the names the scripts use. Texts and JSON only cross the boundary.
#include <emscripten/bind.h>
#include <emscripten/val.h>

#include "web/Pagina.h"

namespace {

using emscripten::val;

// A list of pairs from the page: [[nombre, texto], …].
std::vector<std::pair<std::string, std::string>> Pares(const val& lista) {
    std::vector<std::pair<std::string, std::string>> pares;
    const unsigned n = lista["length"].as<unsigned>();
    for (unsigned i = 0; i < n; ++i)
        pares.emplace_back(lista[i][0].as<std::string>(), lista[i][1].as<std::string>());
    return pares;
}

std::string Preparar(vanta::web::EstudioWeb& estudio, const std::string& base, const val& variar,
                     const std::string& salidas, bool espanol) {
    return estudio.Preparar(base, Pares(variar), salidas, espanol);
}

std::string Punto(const vanta::web::EstudioWeb& estudio, double i) {
    return estudio.Punto(static_cast<size_t>(i));
}

std::string Comparar(const val& calculos, bool enBar) {
    return vanta::web::CompararJSON(Pares(calculos), enBar);
}

// Bytes as they are, in a Uint8Array of their own: a text would lose the
// page's byte-order mark on its way to the page.
val Bytes(const std::string& bytes) {
    return val::global("Uint8Array")
        .new_(val(emscripten::typed_memory_view(bytes.size(),
                                                reinterpret_cast<const unsigned char*>(bytes.data()))));
}

val PaginaHTML(const vanta::web::Calculadora& c) {
    return Bytes(c.PaginaHTML());
}

val InformeArchivo(const vanta::web::Calculadora& c) {
    return Bytes(c.InformeArchivo());
}

}  // namespace

EMSCRIPTEN_BINDINGS(vanta) {
    using namespace emscripten;
    using vanta::web::Calculadora;
    using vanta::web::EstudioWeb;
    function("entradas", &vanta::web::EntradasJSON);
    function("comparar", &Comparar);
    function("disociacion", &vanta::web::DisociacionJSON);
    function("casillaDisociacion", &vanta::web::CasillaDisociacion);
    function("validacion", &vanta::web::ValidacionJSON);
    class_<Calculadora>("Calculadora")
        .constructor<>()
        .function("calcular", &Calculadora::Calcular)
        .function("json", &Calculadora::JSON)
        .function("leer", &Calculadora::Leer)
        .function("paginaHTML", &PaginaHTML)
        .function("informeArchivo", &InformeArchivo)
        .function("imagen", &Calculadora::Imagen);
    class_<EstudioWeb>("Estudio").constructor<>().function("preparar", &Preparar).function("punto", &Punto);
}
