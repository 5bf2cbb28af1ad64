// Golden outputs: a test's whole output (a report, a table, a transcript of
// drawing calls, a JSON document) against the file kept for it under
// tests/datos. With VANTA_REESCRIBIR_DATOS=1 in the environment the files are
// written anew from the outputs instead, for review in the diff before they
// are committed.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace vanta::pruebas {

inline bool ReescribirDorados() {
    const char* v = std::getenv("VANTA_REESCRIBIR_DATOS");
    return v && std::string(v) == "1";
}

inline std::string RutaDorado(const std::string& nombre) {
    return std::string(VANTA_DATOS_PRUEBA) + "/" + nombre;
}

inline std::string LeerArchivo(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

// Empty when texto equals the golden file `nombre` (a path under tests/datos);
// otherwise where the two first differ. Rewrites the file when asked to.
inline std::string CompararDorado(const std::string& nombre, const std::string& texto) {
    const std::string ruta = RutaDorado(nombre);
    if (ReescribirDorados()) {
        std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
        std::ofstream(ruta, std::ios::binary) << texto;
        return {};
    }
    if (!std::filesystem::exists(ruta)) return "no existe " + ruta + " (VANTA_REESCRIBIR_DATOS=1 lo escribe)";
    const std::string esperado = LeerArchivo(ruta);
    if (esperado == texto) return {};
    size_t i = 0;
    while (i < esperado.size() && i < texto.size() && esperado[i] == texto[i]) ++i;
    const size_t linea =
        1 + static_cast<size_t>(std::count(texto.begin(), texto.begin() + static_cast<long>(i), '\n'));
    auto fragmento = [i](const std::string& s) {
        const size_t desde = s.rfind('\n', i == 0 ? 0 : i - 1);
        const size_t inicio = desde == std::string::npos ? 0 : desde + 1;
        return s.substr(inicio, std::min<size_t>(s.find('\n', i) - inicio, 300));
    };
    return nombre + ": difiere en la línea " + std::to_string(linea) +
           "\n  esperado: " + fragmento(esperado) + "\n  obtenido: " + fragmento(texto);
}

}  // namespace vanta::pruebas
