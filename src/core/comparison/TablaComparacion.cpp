#include "core/comparison/TablaComparacion.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "core/services/Numeros.h"

namespace vanta {

namespace {

std::string Modelo_(Modelo m, double n, char sep) {
    switch (m) {
        case Modelo::Politropico:
            return "Politrópica, n = " + TextoGeneral(n, sep);
        case Modelo::GammaVariable:
            return "Exponente adiabático variable";
        case Modelo::GammaMedio:
            break;
    }
    return "Exponente adiabático medio";
}

struct FilaEntrada {
    const char* magnitud;
    std::function<std::string(const CalculoComparado&, char)> valor;
};

std::string General(double x, char sep) {
    return TextoGeneral(x, sep);
}

const std::vector<FilaEntrada>& FilasEntradas() {
    static const std::vector<FilaEntrada> kEntradas = {
        {"Ciclo", [](const CalculoComparado& c, char) { return c.estado->TipoCiclo; }},
        {"Combustible",
         [](const CalculoComparado& c, char sep) {
             const Estado& e = *c.estado;
             if (c.entradas.Tiene("combustible") ||
                 !(c.entradas.Tiene("formula") || c.entradas.Tiene("masa")))
                 return c.tipoCombustible;
             return c.tipoCombustible + " (C " + General(Round(e.AtomosC, 3), sep) + " H " +
                    General(Round(e.AtomosH, 3), sep) + " N " + General(Round(e.AtomosN, 3), sep) + " O " +
                    General(Round(e.AtomosO, 3), sep) + " S " + General(Round(e.AtomosS, 3), sep) + ")";
         }},
        {"Fr", [](const CalculoComparado& c, char sep) { return General(c.estado->Fr, sep); }},
        {"Relación de compresión",
         [](const CalculoComparado& c, char sep) { return General(c.estado->Rc, sep); }},
        {"Cilindrada (c.c.)",
         [](const CalculoComparado& c, char sep) { return General(Round(c.estado->V1 * 1e6, 6), sep); }},
        {"Presión al final de la admisión (Pa)",
         [](const CalculoComparado& c, char sep) { return General(c.estado->p1, sep); }},
        {"Temperatura al final de la admisión (K)",
         [](const CalculoComparado& c, char sep) { return General(c.estado->T1, sep); }},
        {"Compresión",
         [](const CalculoComparado& c, char sep) {
             return Modelo_(c.estado->ModeloCompresion, c.estado->nCompresion, sep);
         }},
        {"Expansión", [](const CalculoComparado& c,
                         char sep) { return Modelo_(c.estado->ModeloExpansion, c.estado->nExpansion, sep); }},
        {"Calor a volumen constante (%)",
         [](const CalculoComparado& c, char sep) {
             const Estado& e = *c.estado;
             return e.TipoCiclo == "Mixto" && e.OpcionProporcion ? General(e.PropVcte, sep)
                                                                 : std::string("-");
         }},
        {"Presión máxima admitida (Pa)",
         [](const CalculoComparado& c, char sep) {
             const Estado& e = *c.estado;
             return e.TipoCiclo == "Mixto" && !e.OpcionProporcion ? General(e.Pmax, sep) : std::string("-");
         }},
        {"Presión ambiente (Pa)",
         [](const CalculoComparado& c, char sep) { return General(c.estado->Pambiente, sep); }},
        {"Temperatura ambiente (K)",
         [](const CalculoComparado& c, char sep) { return General(c.estado->Tambiente, sep); }},
        {"Humedad relativa (%)",
         [](const CalculoComparado& c, char sep) { return General(c.estado->Humedad, sep); }},
    };
    return kEntradas;
}

struct Resultado {
    std::string magnitud;
    std::function<double(const Estado&)> valor;
    int decimales;
};

std::vector<Resultado> Resultados(UnidadPresion presion) {
    const bool bar = presion == UnidadPresion::bar;
    const double fp = bar ? 1e-5 : 1;
    const int dp = bar ? 2 : 0;
    const std::string up = bar ? " (bar)" : " (Pa)";
    std::vector<Resultado> r = {
        {"Rendimiento", [](const Estado& e) { return e.Rendimiento; }, 3},
        {"Trabajo del ciclo (J)", [](const Estado& e) { return e.Wciclo; }, 1},
        {"Calor aportado (J)", [](const Estado& e) { return e.Qciclo; }, 1},
    };
    using Campo = double Estado::*;
    const Campo p[] = {&Estado::p1, &Estado::p2, &Estado::p3, &Estado::p4, &Estado::p5};
    const Campo T[] = {&Estado::T1, &Estado::T2, &Estado::T3, &Estado::T4, &Estado::T5};
    for (int k = 0; k < 5; ++k)
        r.push_back(
            {"p" + std::to_string(k + 1) + up, [c = p[k], fp](const Estado& e) { return e.*c * fp; }, dp});
    for (int k = 0; k < 5; ++k)
        r.push_back({"T" + std::to_string(k + 1) + " (K)", [c = T[k]](const Estado& e) { return e.*c; }, 2});
    r.push_back({"Presión máxima" + up,
                 [fp](const Estado& e) {
                     return std::max({e.p1, e.p2, e.p3, e.p4, e.p5}) * fp;
                 },
                 dp});
    r.push_back({"Temperatura máxima (K)",
                 [](const Estado& e) {
                     return std::max({e.T1, e.T2, e.T3, e.T4, e.T5});
                 },
                 2});
    r.push_back({"Consumo (g/MJ)", [](const Estado& e) { return e.ConsumoMJ; }, 1});
    r.push_back({"Consumo (g/(kW·h))", [](const Estado& e) { return e.ConsumoKWh; }, 1});
    return r;
}

// The difference to the reference, signed, and its share of it.
std::string Diferencia(double v, double referencia, int decimales, char sep) {
    const double d = Round(v - referencia, decimales);
    std::string t = TextoCifra(d, decimales, sep);
    if (d > 0) t.insert(0, "+");
    if (referencia != 0 && d != 0) {
        const double pct = Round(100 * (v - referencia) / std::fabs(referencia), 1);
        t += " (" + std::string(pct > 0 ? "+" : "") + TextoCifra(pct, 1, sep) + " %)";
    }
    return t;
}

}  // namespace

std::vector<FilaComparacion> TablaComparacion(const std::vector<CalculoComparado>& calculos,
                                              UnidadPresion presion, char separador) {
    const size_t n = calculos.size();
    const auto referencia =
        std::find_if(calculos.begin(), calculos.end(), [](const auto& c) { return c.Hay(); });
    std::vector<FilaComparacion> filas;

    if (std::any_of(calculos.begin(), calculos.end(), [](const auto& c) { return !c.Hay(); })) {
        FilaComparacion aviso{std::string(kFilaAviso), {}, std::vector<std::string>(n), false, false};
        for (const CalculoComparado& c : calculos) aviso.valores.push_back(c.Hay() ? "" : c.mensaje);
        filas.push_back(std::move(aviso));
    }

    std::vector<FilaComparacion> entradas;
    for (const FilaEntrada& en : FilasEntradas()) {
        FilaComparacion f{en.magnitud, {}, std::vector<std::string>(n), true, false};
        for (const CalculoComparado& c : calculos) {
            f.valores.push_back(c.Hay() ? en.valor(c, separador) : "");
            // Distinct among the calculations that have one.
            if (c.Hay() && f.valores.back() != f.valores[static_cast<size_t>(referencia - calculos.begin())])
                f.distinta = true;
        }
        entradas.push_back(std::move(f));
    }
    for (const FilaComparacion& f : entradas)
        if (f.distinta) filas.push_back(f);

    for (const Resultado& r : Resultados(presion)) {
        FilaComparacion f{r.magnitud, {}, {}, false, false};
        for (const CalculoComparado& c : calculos) {
            if (!c.Hay()) {
                f.valores.emplace_back();
                f.diferencias.emplace_back();
                continue;
            }
            const double v = r.valor(*c.estado);
            f.valores.push_back(TextoCifra(v, r.decimales, separador));
            f.diferencias.push_back(
                &c == &*referencia ? ""
                                   : Diferencia(v, r.valor(*referencia->estado), r.decimales, separador));
        }
        filas.push_back(std::move(f));
    }

    for (const FilaComparacion& f : entradas)
        if (!f.distinta) filas.push_back(f);
    return filas;
}

}  // namespace vanta
