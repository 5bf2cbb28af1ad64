#include "core/warnings/Referencias.h"

#include "core/services/Numeros.h"
#include "core/warnings/DatosReferencia.h"

namespace vanta {

namespace {

// A number of the tables; an empty field is 0.
double Numero(const std::string& campo) {
    return LeerNumero(campo).value_or(0.0);
}

constexpr double kJulioPorKilojulio = 1000.0;
constexpr double kJulioPorMegajulio = 1.0e6;
constexpr double kPorCiento = 0.01;

std::vector<ReferenciaCombustible> LeerCombustibles(std::string_view csv) {
    std::vector<ReferenciaCombustible> filas;
    for (const auto& c : LeerCSV(csv)) {
        std::optional<double> entalpia = LeerNumero(c[3]);
        if (entalpia) *entalpia *= kJulioPorKilojulio;
        filas.push_back({c[0], c[1], c[2], entalpia, Numero(c[4]) * kJulioPorMegajulio,
                         Numero(c[5]) * kJulioPorMegajulio, c[6]});
    }
    return filas;
}

}  // namespace

std::vector<std::vector<std::string>> LeerCSV(std::string_view texto) {
    std::vector<std::vector<std::string>> filas;
    std::vector<std::string> campos(1);
    bool entreComillas = false, cabecera = true;
    for (char c : texto) {
        if (c == '"') {
            entreComillas = !entreComillas;
        } else if (c == ',' && !entreComillas) {
            campos.emplace_back();
        } else if (c == '\n' && !entreComillas) {
            if (!cabecera) filas.push_back(std::move(campos));
            cabecera = false;
            campos.assign(1, {});
        } else {
            campos.back() += c;
        }
    }
    return filas;
}

const std::vector<ReferenciaJANAF>& ReferenciasJANAF() {
    static const std::vector<ReferenciaJANAF> filas = [] {
        std::vector<ReferenciaJANAF> f;
        for (const auto& c : LeerCSV(kCsvJANAF))
            f.push_back(
                {c[0], Numero(c[1]), Numero(c[2]), Numero(c[3]), Numero(c[4]) * kJulioPorKilojulio, c[5]});
        return f;
    }();
    return filas;
}

const std::vector<ReferenciaCombustible>& ReferenciasCombustibles() {
    static const std::vector<ReferenciaCombustible> filas = [] {
        auto f = LeerCombustibles(kCsvCombustibles);
        for (auto& adicional : LeerCombustibles(kCsvCombustiblesAdicionales))
            f.push_back(std::move(adicional));
        return f;
    }();
    return filas;
}

const std::vector<ReferenciaInflamabilidad>& ReferenciasInflamabilidad() {
    static const std::vector<ReferenciaInflamabilidad> filas = [] {
        std::vector<ReferenciaInflamabilidad> f;
        for (const auto& c : LeerCSV(kCsvInflamabilidad))
            f.push_back({c[0], c[1], Numero(c[2]) * kPorCiento, Numero(c[3]) * kPorCiento, c[4]});
        return f;
    }();
    return filas;
}

const ReferenciaCombustible* BuscarReferenciaCombustible(std::string_view nombre) {
    for (const auto& r : ReferenciasCombustibles())
        if (r.nombre == nombre) return &r;
    return nullptr;
}

const ReferenciaInflamabilidad* BuscarInflamabilidad(std::string_view combustible) {
    for (const auto& r : ReferenciasInflamabilidad())
        if (r.combustible == combustible) return &r;
    return nullptr;
}

}  // namespace vanta
