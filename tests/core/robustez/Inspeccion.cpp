#include "tests/core/robustez/Inspeccion.h"

#include <cctype>
#include <cmath>
#include <type_traits>

namespace vanta::prueba {

std::vector<std::string> VariablesNoFinitas(const Estado& e) {
    std::vector<std::string> nombres;
    VisitarCampos(e, [&](const char* nombre, const auto& v) {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_floating_point_v<T>) {
            if (!std::isfinite(v)) nombres.emplace_back(nombre);
        } else if constexpr (std::is_same_v<T, Variante>) {
            if (v.EsNumero() && !std::isfinite(v.Numero())) nombres.emplace_back(nombre);
        }
    });
    return nombres;
}

std::string DefectoDePalabras(std::string_view texto) {
    std::string palabra;
    auto revisar = [&]() -> std::string {
        std::string baja;
        for (char c : palabra) baja += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        palabra.clear();
        if (baja == "nan" || baja == "inf" || baja == "infinity") return "la palabra \"" + baja + "\"";
        return {};
    };
    for (char c : texto) {
        if (std::isalnum(static_cast<unsigned char>(c))) {
            palabra += c;
        } else if (!palabra.empty()) {
            if (std::string d = revisar(); !d.empty()) return d;
        }
    }
    return palabra.empty() ? std::string() : revisar();
}

std::string DefectoDeTexto(std::string_view texto) {
    if (texto.find("N.D.") != std::string_view::npos) return "\"N.D.\" (un número no finito)";
    return DefectoDePalabras(texto);
}

void SuperficieVigilada::Reiniciar() {
    defectos.clear();
    textos.clear();
    llamadas.clear();
    trazos = 0;
}

void SuperficieVigilada::Defecto(std::string que) {
    if (defectos.size() < 5) defectos.push_back(std::move(que));
}

void SuperficieVigilada::Coordenadas(const char* operacion, std::initializer_list<float> valores) {
    ++trazos;
    for (float v : valores)
        if (!std::isfinite(v)) return Defecto(std::string(operacion) + " con una coordenada no finita");
}

void SuperficieVigilada::AlPunto(float x, float y) {
    Coordenadas("PSet", {x, y});
    if (grabar_) SuperficieGrabada::AlPunto(x, y);
}

void SuperficieVigilada::AlLinea(float x1, float y1, float x2, float y2) {
    Coordenadas("Line", {x1, y1, x2, y2});
    if (grabar_) SuperficieGrabada::AlLinea(x1, y1, x2, y2);
}

void SuperficieVigilada::AlCaja(float x1, float y1, float x2, float y2, int32_t color) {
    Coordenadas("Box", {x1, y1, x2, y2});
    if (grabar_) SuperficieGrabada::AlCaja(x1, y1, x2, y2, color);
}

void SuperficieVigilada::AlTexto(float x, float y, std::string_view texto) {
    if (!std::isfinite(x) || !std::isfinite(y))
        Defecto("Print \"" + std::string(texto) + "\" en un punto no finito");
    if (std::string d = DefectoDeTexto(texto); !d.empty())
        Defecto("Print \"" + std::string(texto) + "\": " + d);
    textos.emplace_back(texto);
    SuperficieGrabada::AlTexto(x, y, texto);
}

void SuperficieVigilada::CambioEscala() {
    const float valores[] = {ScaleLeft(), ScaleTop(), ScaleWidth(), ScaleHeight()};
    for (float v : valores)
        if (!std::isfinite(v)) Defecto("Scale con un valor no finito");
    if (ScaleWidth() == 0 || ScaleHeight() == 0) Defecto("Scale sin anchura o sin altura");
    SuperficieGrabada::CambioEscala();
}

}  // namespace vanta::prueba
