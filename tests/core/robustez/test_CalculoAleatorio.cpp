// Whole calculations on random inputs: every box of the four stages, every
// option, cycle and model, with values drawn from their usual ranges, their
// boundaries and garbage. Each case must end, in results or in a message,
// with no number that is not finite in the state, the report, the labels, the
// saved record or the pictures.
//
// VANTA_ALEATORIOS sets the number of cases (20 000, or 1 000 under the
// sanitizers), VANTA_SEMILLA the seed, VANTA_CASO runs that case alone and
// prints it. A failing case is printed as the `vanta calcular` line(s) that
// replay it.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "core/cycle/Ciclo.h"
#include "core/database/Registro.h"
#include "core/fluids/Combustible.h"
#include "core/reports/Informes.h"
#include "core/services/Numeros.h"
#include "tests/core/robustez/Aleatorios.h"
#include "tests/core/robustez/Inspeccion.h"
#include "tests/core/robustez/Vigilancia.h"

namespace vanta::prueba {
namespace {

// ---- The boxes and what is drawn in them ----------------------------------------

// Usual range, wider range, drawn in the logarithm or not, boundaries, and
// how often a plain "0".
// clang-format off
const Magnitud kPresionAmbiente{60000, 120000, 1000, 1e7, true, {"0", "1", "1e-300", "1e308", "-100000", "100000"}};
const Magnitud kTemperaturaAmbiente{260, 330, 250, 5000, true, {"250", "249.99", "249,999999", "5000", "5000.0001"}};
const Magnitud kHumedad{0, 100, 0, 100, false, {"0", "100", "100.0001", "-0.0001", "-50", "1000", "1e6"}, 0.3};
const std::vector<std::string> kBordesAtomos = {"0", "-1", "1e-300", "1e300", "0.000001", "-0.5"};
const Magnitud kAtomosC{1, 20, 0.01, 100, true, kBordesAtomos, 0.05};
const Magnitud kAtomosH{1, 40, 0.01, 200, true, kBordesAtomos, 0.05};
const Magnitud kAtomosN{0.01, 1, 0.001, 5, true, kBordesAtomos, 0.6};
const Magnitud kAtomosO{0.1, 3, 0.01, 20, true, kBordesAtomos, 0.5};
const Magnitud kAtomosS{0.001, 0.1, 0.0001, 2, true, kBordesAtomos, 0.7};
const std::vector<std::string> kBordesPorcentaje = {"0", "100", "100.0001", "-1", "50", "1e300",
                                                    "1.7976931348623157e308"};
const Magnitud kCienC{40, 90, 0, 100, false, kBordesPorcentaje};
const Magnitud kCienN{0, 5, 0, 30, false, kBordesPorcentaje, 0.5};
const Magnitud kCienO{0, 40, 0, 60, false, kBordesPorcentaje, 0.4};
const Magnitud kCienS{0, 3, 0, 10, false, kBordesPorcentaje, 0.6};
const Magnitud kMasaMolecular{0.02, 0.3, 0.001, 10, true, {"0", "-0.1", "1e-300", "4.9e-324", "1e300"}};
const Magnitud kEntalpiaFormacion{-500000, 100000, -5e6, 5e6, false, {"0", "-1e12", "1e12", "1e300", "-1e300"}};
const Magnitud kFr{0.4, 1.3, 0.01, 3, true,
                   {"0", "1", "0.001", "1e-300", "4.9e-324", "1e300", "-1", "1.3", "1.35", "0,0001"}};
const Magnitud kLambda{0.8, 2.5, 0.3, 100, true,
                       {"0", "1", "1e-300", "1e300", "-1", "0,0004999", "0.0005", "0.0004", "1000"}};
const Magnitud kCilindrada{50, 3000, 1e-3, 1e6, true,
                           {"0", "-100", "1e-300", "5e-318", "1e-310", "1e-40", "1e300", "1e308", "0.000001"}};
const Magnitud kRc{4, 25, 1.01, 100, true,
                   {"1", "1.0000000000000002", "1,000000000000001", "1.0000000001", "0.5", "-10", "30", "30.0001",
                    "1e6", "1e200", "1e300", "1.7976931348623157e308"}};
const Magnitud kP1{50000, 300000, 100, 1e7, true, {"0", "1e-300", "1", "1e300", "-1"}};
const Magnitud kT1{260, 450, 50, 3000, true, {"0", "1e-310", "1e-300", "1", "7500", "7500.01", "1e300", "-300"}};
const std::vector<std::string> kBordesExponente = {"1", "1.0000000000000002", "0.9", "0", "-1.3", "10", "1e300"};
const Magnitud kNCompresion{1.2, 1.45, 1.001, 3, false, kBordesExponente};
const Magnitud kNExpansion{1.15, 1.4, 1.001, 3, false, kBordesExponente};
const Magnitud kPropVcte{0, 100, 0, 100, false, {"0", "100", "100.0000001", "-0.0001", "-0", "1e-300"}};
const Magnitud kPmax{3e6, 2e7, 1e5, 1e9, true, {"0", "-1", "1e-300", "1e300", "9e9"}};
const Magnitud kRpm{500, 8000, 1, 30000, true, {"0", "-1", "1e300", "1e308", "rpm"}};
// clang-format on

const std::vector<std::string> kCiclos = {"Otto", "Diesel", "Mixto"};
const std::vector<std::string> kModelos = {"medio", "politropica", "variable"};
// How much a case strays from the usual values: many cases stray not at all,
// so that the solver's own ranges are searched as deeply as its refusals.
const std::vector<double> kPerturbaciones = {0, 0, 0, 0.03, 0.08, 0.25, 0.6};

// A list of numbers for --formula or --masa: the command line splits it at
// commas, so its numbers are written with points.
std::string Lista(Azar& a, std::initializer_list<const Magnitud*> magnitudes, double q) {
    std::string lista;
    for (const Magnitud* m : magnitudes) {
        std::string t = a.Texto(*m, q);
        for (char& c : t)
            if (c == ',') c = '.';
        lista += (lista.empty() ? "" : ",") + t;
    }
    return lista;
}

// The arguments of one `vanta calcular`.
std::vector<std::string> UnaEjecucion(Azar& a) {
    const double q = a.Uno(kPerturbaciones);
    std::vector<std::string> args;
    auto opcion = [&](const char* nombre, const std::string& valor) {
        args.push_back(std::string("--") + nombre);
        args.push_back(valor);
    };
    auto quizas = [&](double p, const char* nombre, const Magnitud& m) {
        if (a.Moneda(p)) opcion(nombre, a.Texto(m, q));
    };

    quizas(0.7, "presion-ambiente", kPresionAmbiente);
    quizas(0.7, "temperatura-ambiente", kTemperaturaAmbiente);
    quizas(0.7, "humedad", kHumedad);

    const double combustible = a.Uniforme(0, 1);
    if (combustible < 0.01) {
        opcion("combustible", "Hidrógeno");  // no entry of the list: a usage error
    } else if (combustible < 0.55) {
        opcion("combustible",
               std::string(a.Uno(std::vector<CombustibleDeLista>(kBibliotecaCombustibles.begin(),
                                                                 kBibliotecaCombustibles.end()))
                               .nombre));
    } else if (combustible < 0.8) {
        opcion("formula", Lista(a, {&kAtomosC, &kAtomosH, &kAtomosN, &kAtomosO, &kAtomosS}, q));
        quizas(0.8, "entalpia-formacion", kEntalpiaFormacion);
    } else if (combustible < 0.97) {
        opcion("masa", Lista(a, {&kCienC, &kCienN, &kCienO, &kCienS}, q));
        opcion("masa-molecular", a.Texto(kMasaMolecular, q));
        quizas(0.8, "entalpia-formacion", kEntalpiaFormacion);
    }  // else the default fuel

    const double dosado = a.Uniforme(0, 1);
    if (dosado < 0.75)
        opcion("fr", a.Texto(kFr, q));
    else if (dosado < 0.95)
        opcion("lambda", a.Texto(kLambda, q));

    const std::string ciclo = a.Uno(kCiclos);
    opcion("ciclo", ciclo);
    quizas(0.8, "cilindrada", kCilindrada);
    std::string rc = a.Texto(kRc, q), p1;
    opcion("rc", rc);
    if (a.Moneda(0.5)) opcion("p1", p1 = a.Texto(kP1, q));
    quizas(0.5, "t1", kT1);
    for (const char* proceso : {"compresion", "expansion"}) {
        const std::string modelo = a.Uno(kModelos);
        if (modelo != "medio" || a.Moneda(0.5)) opcion(proceso, modelo);
        const bool compresion = std::string(proceso) == "compresion";
        if (a.Moneda(modelo == "politropica" ? 0.9 : 0.3))
            opcion(compresion ? "n-compresion" : "n-expansion",
                   a.Texto(compresion ? kNCompresion : kNExpansion, q));
    }

    const double mixto = a.Uniforme(0, 1);
    if (mixto < (ciclo == "Mixto" ? 0.45 : 0.1)) {
        opcion("proporcion-vcte", a.Texto(kPropVcte, q));
    } else if (mixto < (ciclo == "Mixto" ? 0.9 : 0.2)) {
        // Now and then right at the pressure the compression reaches: p1
        // times Rc to a power near the exponent of compression.
        const auto valorP1 = LeerNumero(p1.empty() ? "100000" : p1), valorRc = LeerNumero(rc);
        if (a.Moneda(0.4) && valorP1 && valorRc && *valorRc > 1)
            opcion("pmax", a.Escribir(*valorP1 * std::pow(*valorRc, a.Uniforme(1.0, 1.5))));
        else
            opcion("pmax", a.Texto(kPmax, q));
    }
    quizas(0.3, "rpm", kRpm);
    return args;
}

// A case is one or two calculations on the same state, as a user calculates
// again with other figures.
struct Caso {
    uint64_t numero;
    std::vector<std::vector<std::string>> ejecuciones;
};

Caso GenerarCaso(uint64_t semilla, uint64_t numero) {
    Azar a(SemillaDelCaso(semilla, numero));
    Caso c{numero, {UnaEjecucion(a)}};
    if (a.Moneda(0.2)) c.ejecuciones.push_back(UnaEjecucion(a));
    return c;
}

std::string Citar(const std::string& s) {
    std::string q = "'";
    for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return q + "'";
}

std::string Describir(uint64_t semilla, const Caso& c) {
    std::ostringstream os;
    os << "caso " << c.numero << " de la semilla " << semilla << " (VANTA_SEMILLA=" << semilla
       << " VANTA_CASO=" << c.numero << "):";
    for (const auto& args : c.ejecuciones) {
        os << "\n  vanta calcular";
        for (const auto& a : args) os << ' ' << (a.rfind("--", 0) == 0 ? a : Citar(a));
    }
    return os.str();
}

// ---- One case ---------------------------------------------------------------

// Lines, points and boxes that one calculation may draw on a diagram: the
// walks of 1 and 2 K a step up to the 7500 K limit and the 1000 volume steps.
constexpr size_t kTrazosMaximos = 60000;

struct Recuento {
    int calculados = 0, rechazados = 0, usoIncorrecto = 0;
};

// The faults of one calculation; empty when it behaved.
std::vector<std::string> Ejecutar(Estado& e, const std::vector<std::string>& args, Recuento& r) {
    std::vector<std::string> fallos;
    const cli::Parseo p = cli::ParsearCalcular(args);
    if (!p.opciones) {
        ++r.usoIncorrecto;
        if (p.error.empty()) fallos.push_back("un uso incorrecto sin explicación");
        return fallos;
    }
    DialogosGrabados dlg;
    SuperficieVigilada pct1, pct2, pct3, pv(false), tv(false), ts(false), hs(false);
    SuperficiesCalculo s{pct1, pct2, pct3, Diagramas{pv, tv, ts, hs}};
    std::ostringstream out;
    const int estado = cli::EjecutarCalcular(e, *p.opciones, dlg, s, out);
    // What was printed, less the line that shows the speed as it was typed;
    // the report alone is what precedes the power lines.
    std::string salida = out.str(), informe = salida;
    if (const size_t eco = salida.rfind("r.p.m. = "); p.opciones->Tiene("rpm") && eco != std::string::npos) {
        informe = salida.substr(0, eco);
        salida.erase(eco, salida.find("\r\n", eco) - eco);
    }

    for (const std::string& nombre : VariablesNoFinitas(e)) fallos.push_back("variable no finita: " + nombre);
    for (const std::string& m : dlg.mensajes) {
        if (m.empty()) fallos.push_back("un mensaje vacío");
        if (std::string d = DefectoDeTexto(m); !d.empty()) fallos.push_back("mensaje \"" + m + "\" con " + d);
    }
    const char* nombres[] = {"pct1", "pct2", "pct3", "pctPV", "pctTV", "pctTS", "pctHS"};
    SuperficieVigilada* superficies[] = {&pct1, &pct2, &pct3, &pv, &tv, &ts, &hs};
    for (int k = 0; k < 7; ++k) {
        for (const std::string& d : superficies[k]->defectos)
            fallos.push_back(std::string(nombres[k]) + ": " + d);
        if (superficies[k]->trazos > kTrazosMaximos)
            fallos.push_back(std::string(nombres[k]) + ": " + std::to_string(superficies[k]->trazos) +
                             " trazos");
    }

    if (estado == cli::kSalidaBien) {
        ++r.calculados;
        // The power block reads its speed after the calculation, as the main
        // window does: a speed that is not a number, or a power beyond the
        // doubles, sets the flag then, with its message.
        const bool conPotencia = !p.opciones->Valor("rpm").empty();
        if (e.ErrorCalculo && !conPotencia) fallos.push_back("estado 0 con ErrorCalculo puesto");
        if (salida.empty()) fallos.push_back("estado 0 sin informe");
        if (std::string d = DefectoDeTexto(salida); !d.empty()) fallos.push_back("informe con " + d);
        const std::string tipo = TextoListaCombustible(*p.opciones);
        if (std::string d = DefectoDeTexto(HTMLInforme(e, tipo)); !d.empty())
            fallos.push_back("página con " + d);
        const TextosResultados t = TextosDeResultados(e);
        for (const std::string* l :
             {&t.lblW12, &t.lblW34, &t.lblW45, &t.lblQ23, &t.lblQ34, &t.lblWciclo, &t.lblQciclo, &t.lblRen,
              &t.lblG12, &t.lblG2, &t.lblG45, &t.lblG5, &t.txtConsumoMJ, &t.txtConsumoKwh, &t.txtCilindrada})
            if (std::string d = DefectoDeTexto(*l); !d.empty())
                fallos.push_back("etiqueta \"" + *l + "\" con " + d);
        for (int k = 0; k < 5; ++k)
            for (const std::string* l : {&t.lblP[k], &t.lblV[k], &t.lblT[k], &t.lblH[k], &t.lblS[k]})
                if (std::string d = DefectoDeTexto(*l); !d.empty())
                    fallos.push_back("etiqueta \"" + *l + "\" con " + d);
        for (const std::string& columna :
             bd::ValoresRegistro(e, bd::NombrePorDefecto(e, tipo), tipo, informe))
            if (std::string d = DefectoDeTexto(columna); !d.empty())
                fallos.push_back("registro \"" + columna.substr(0, 60) + "\" con " + d);
        // A cycle that is reported is a cycle of gas: every state has a
        // volume, a pressure and a temperature above zero.
        const double positivos[] = {e.p1, e.p2, e.p3, e.p4, e.p5, e.V1, e.V2, e.V3,
                                    e.V4, e.V5, e.T1, e.T2, e.T3, e.T4, e.T5};
        for (double v : positivos)
            if (!(v > 0))
                fallos.push_back("un estado del ciclo con p, V o T no positivo: " + TextoGeneral(v, '.'));
    } else if (estado == cli::kSalidaFallo) {
        ++r.rechazados;
        if (dlg.mensajes.empty()) fallos.push_back("el cálculo se detuvo sin ningún mensaje");
    } else {
        fallos.push_back("estado de salida " + std::to_string(estado));
    }
    if (e.ErrorCalculo && dlg.mensajes.empty()) fallos.push_back("ErrorCalculo puesto sin ningún mensaje");
    return fallos;
}

class CalculoAleatorio : public ::testing::TestWithParam<int> {};
constexpr int kTrozos = 4;

TEST_P(CalculoAleatorio, EndsInResultsOrAMessageWithNothingThatIsNotFinite) {
    const uint64_t semilla = static_cast<uint64_t>(NumeroDelEntorno("VANTA_SEMILLA", kSemillaFija));
    const long long total = NumeroDelEntorno("VANTA_ALEATORIOS", kConSanitizadores ? 1000 : 20000);
    const long long solo = NumeroDelEntorno("VANTA_CASO", -1);
    // A case takes milliseconds; these are for a machine under heavy load.
    const auto limite = std::chrono::seconds(kConSanitizadores ? 120 : 20);
    Vigilante vigilante(limite * 3);
    Recuento recuento;
    int casosFallidos = 0;
    double peor = 0;
    const auto inicio = std::chrono::steady_clock::now();

    for (long long n = GetParam(); n < total || solo >= 0; n += kTrozos) {
        if (solo >= 0) {
            if (GetParam() != solo % kTrozos) break;
            n = solo;
        }
        PonerCasoEnCurso("caso " + std::to_string(n) + " de la semilla " + std::to_string(semilla) +
                         " (VANTA_SEMILLA=" + std::to_string(semilla) + " VANTA_CASO=" + std::to_string(n) +
                         "), al generarlo");
        const Caso caso = GenerarCaso(semilla, static_cast<uint64_t>(n));
        const std::string descripcion = Describir(semilla, caso);
        if (solo >= 0) std::printf("%s\n", descripcion.c_str());

        Estado e;
        GuardarColoresDiagramas(e);
        std::vector<std::string> fallos;
        const auto antes = std::chrono::steady_clock::now();
        vigilante.Empezar(descripcion);
        for (const auto& args : caso.ejecuciones) {
            // Calculating again starts clear, as the stage windows clear the
            // flag of the last failure when the user takes them up again.
            e.ErrorCalculo = Falso;
            for (std::string& f : Ejecutar(e, args, recuento)) fallos.push_back(std::move(f));
        }
        vigilante.Terminar();
        const double segundos =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
        peor = std::max(peor, segundos);
        if (segundos > static_cast<double>(limite.count()))
            fallos.push_back("tardó " + std::to_string(segundos) + " s");
        if (!fallos.empty()) {
            std::string texto;
            for (const std::string& f : fallos) texto += "\n    " + f;
            ADD_FAILURE() << descripcion << texto;
            if (++casosFallidos >= 10) break;
        }
        if (solo >= 0) break;
    }

    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    std::printf("%d calculados, %d rechazados, %d usos incorrectos en %.1f s (el más lento %.3f s)\n",
                recuento.calculados, recuento.rechazados, recuento.usoIncorrecto, segundos, peor);
}

INSTANTIATE_TEST_SUITE_P(Trozos, CalculoAleatorio, ::testing::Range(0, kTrozos));

}  // namespace
}  // namespace vanta::prueba
