#include "core/equilibrium/Llama.h"

#include <cmath>

#include "core/properties/Especies.h"

namespace vanta::equilibrio {

namespace {

constexpr std::string_view kFrNoValido = "El dosado relativo Fr ha de ser un número positivo";
constexpr std::string_view kCombustibleNoValido =
    "Los átomos del combustible han de ser números positivos o cero, y su entalpía de formación un número";
constexpr std::string_view kSinDemanda =
    "El combustible no necesita oxígeno para quemarse: no hay aire que mezclarle";
constexpr std::string_view kAireNoValido =
    "Las fracciones molares del aire han de ser números positivos o cero, con algo de O2";
constexpr std::string_view kReactivosNoValidos =
    "La temperatura de los reactivos ha de estar entre 250 y 6 000 K, y su presión ha de ser positiva";

}  // namespace

Moles AireO2N2() {
    Moles x{};
    x[O2] = 1 / (1 + kNitrogenoPorOxigeno);
    x[N2] = kNitrogenoPorOxigeno / (1 + kNitrogenoPorOxigeno);
    return x;
}

double MolesAirePorMol(const Combustible& f, const Moles& aire, double Fr, std::string& error) {
    for (double a : {f.C, f.H, f.N, f.O, f.S, f.entalpiaFormacion})
        if (!std::isfinite(a)) error = kCombustibleNoValido;
    for (double a : {f.C, f.H, f.N, f.O, f.S})
        if (a < 0) error = kCombustibleNoValido;
    for (double x : aire)
        if (!(x >= 0) || !std::isfinite(x)) error = kAireNoValido;
    if (!error.empty()) return 0;
    if (!(aire[O2] > 0)) {
        error = kAireNoValido;
        return 0;
    }
    if (!(Fr > 0) || !std::isfinite(Fr)) {
        error = kFrNoValido;
        return 0;
    }
    // Atoms of oxygen for CO2, water and SO2, less the fuel's own.
    const double oxigeno = 0.5 * f.H + 2 * f.C + 2 * f.S - f.O;
    if (!(oxigeno > 0)) {
        error = kSinDemanda;
        return 0;
    }
    return oxigeno / (2 * aire[O2]) / Fr;
}

ResultadoLlama LlamaAdiabatica(const DatosLlama& d) {
    ResultadoLlama r;
    const double A = MolesAirePorMol(d.combustible, d.aire, d.Fr, r.mensaje);
    if (!r.mensaje.empty()) return r;
    if (!(d.T >= kTemperaturaMinima && d.T <= kTemperaturaMaxima) || !(d.p > 0) || !std::isfinite(d.p)) {
        r.mensaje = kReactivosNoValidos;
        return r;
    }
    for (int j = 0; j < kGases; ++j) r.aire[j] = A * d.aire[j];
    const Combustible& f = d.combustible;
    Elementos b = ElementosDe(r.aire);
    b[eC] += f.C, b[eH] += f.H, b[eN] += f.N, b[eO] += f.O, b[eS] += f.S;

    // The reactants: the air at T and p, and the fuel, a gas beside it.
    const Mezcla aire = Evaluar(r.aire, d.T, d.p, true);
    r.entalpiaReactivos = f.entalpiaFormacion + aire.H;
    const double molesReactivos = 1 + aire.Total();
    Problema c;
    if (d.volumenConstante) {
        c.dato = Dato::EnergiaVolumen;
        c.V = molesReactivos * kR * d.T / d.p;
        c.U = r.entalpiaReactivos - molesReactivos * kR * d.T;
    } else {
        c.dato = Dato::EntalpiaPresion;
        c.p = d.p;
        c.H = r.entalpiaReactivos;
    }
    Resultado s;
    if (d.sinDisociacion) {
        Moles completa;
        if (std::string error = CombustionCompleta(b, completa); !error.empty()) {
            r.mensaje = std::move(error);
            return r;
        }
        s = Congelar(completa, c);
    } else {
        s = Equilibrar(b, c);
    }
    r.bien = s.bien;
    r.mensaje = s.mensaje;
    r.productos = s.mezcla;
    return r;
}

}  // namespace vanta::equilibrio
