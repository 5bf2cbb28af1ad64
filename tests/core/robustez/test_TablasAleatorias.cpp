// The property tables on random inputs: the three temperature boxes (step,
// first and last), the options, the species list and the fluid, with usual
// values, boundaries and garbage. Each table must end, whole or with a
// message, with no number that is not finite in the state or the viewer.
//
// VANTA_ALEATORIOS_TABLAS sets the number of cases (2 000, or 100 under the
// sanitizers), VANTA_SEMILLA the seed, VANTA_CASO_TABLAS runs that case alone.
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "core/properties/Especies.h"
#include "core/services/Numeros.h"
#include "core/tables/TablasPropiedades.h"
#include "tests/core/robustez/Aleatorios.h"
#include "tests/core/robustez/Inspeccion.h"
#include "tests/core/robustez/Vigilancia.h"

namespace vanta::prueba {
namespace {

// clang-format off
const Magnitud kIncremento{10, 500, 1, 5000, true, {"0", "-100", "1e-30", "1e30", "1e300", "0.0001", "3.4e38"}};
const Magnitud kTinicial{200, 1500, 1, 8000, true, {"0", "-300", "1e-310", "1e-45", "7500", "7500.01", "1e30", "3.5e38"}};
const Magnitud kTfinal{1000, 7000, 100, 20000, true, {"0", "-1", "7500", "7500.01", "1e30", "1e300", "3.4e38"}};
// clang-format on
const std::vector<std::string> kFluidos = {"--humedad", "--combustible", "--fr"};

struct CasoTablas {
    std::vector<std::string> fluido;  // options of `vanta calcular` for the fluid; empty: none defined
    struct Tabla {
        bool especies, aire, humos, mol, kg;
        std::string elemento, incremento, inicial, final;
    };
    std::vector<Tabla> tablas;  // on the same window, one after the other
};

CasoTablas GenerarCaso(uint64_t semilla, uint64_t numero) {
    Azar a(SemillaDelCaso(semilla, numero));
    CasoTablas c;
    if (a.Moneda(0.9)) {
        c.fluido = {"--humedad", a.Escribir(a.Uniforme(0, 100)), "--fr", a.Escribir(a.Uniforme(0.5, 1.2))};
        if (a.Moneda(0.5)) {
            c.fluido.push_back("--combustible");
            c.fluido.push_back(a.Moneda(0.5) ? "Gasoil" : "Metanol");
        }
    }
    const double q = a.Uno(std::vector<double>{0, 0.1, 0.4});
    const size_t n = 1 + a.Indice(3);
    for (size_t k = 0; k < n; ++k) {
        CasoTablas::Tabla t;
        t.especies = a.Moneda(0.4);
        // The option pairs as the window may leave them: one of each, or
        // neither, or now and then both.
        t.aire = a.Moneda(0.6), t.humos = !t.aire || a.Moneda(0.1);
        t.mol = a.Moneda(0.5), t.kg = !t.mol || a.Moneda(0.1);
        if (a.Moneda(0.05)) t.mol = t.kg = false;
        t.elemento = a.Moneda(0.85) ? std::string(a.Uno(std::vector<const char*>(std::begin(kNombresEspecies),
                                                                                 std::end(kNombresEspecies))))
                                    : a.Uno(std::vector<std::string>{kTextoElegir, "", "Xe", "o2"});
        t.incremento = a.Texto(kIncremento, q);
        t.inicial = a.Texto(kTinicial, q);
        t.final = a.Texto(kTfinal, q);
        c.tablas.push_back(t);
    }
    return c;
}

std::string Describir(uint64_t semilla, uint64_t numero, const CasoTablas& c) {
    std::ostringstream os;
    os << "caso " << numero << " de las tablas, semilla " << semilla << " (VANTA_SEMILLA=" << semilla
       << " VANTA_CASO_TABLAS=" << numero << "):\n  fluido:";
    for (const std::string& a : c.fluido) os << " " << a;
    for (const auto& t : c.tablas)
        os << "\n  "
           << (t.especies          ? "especie '" + t.elemento + "'"
               : t.aire && t.humos ? "aire y humos"
               : t.aire            ? "aire"
                                   : "humos")
           << (t.mol ? " mol" : "") << (t.kg ? " kg" : "") << "  incremento '" << t.incremento << "' desde '"
           << t.inicial << "' hasta '" << t.final << "'";
    return os.str();
}

// A table with more pieces than rows allowed would be a walk that did not
// stop: a row a step for each fluid chosen, and the headings.
constexpr double kPiezasMaximas = 2 * kFilasMaximas + 10;

std::vector<std::string> Ejecutar(const CasoTablas& c, int& enteras) {
    std::vector<std::string> fallos;
    Estado e;
    DialogosGrabados dlg;
    SuperficieVigilada pct1, pct2, pct3, pv, tv, ts, hs;
    if (!c.fluido.empty()) {
        const cli::Parseo p = cli::ParsearCalcular(c.fluido);
        SuperficiesCalculo s{pct1, pct2, pct3, Diagramas{pv, tv, ts, hs}};
        if (!p.opciones || !DefinirFluido(e, *p.opciones, dlg, s, true)) {
            fallos.push_back("el fluido no se pudo definir");
            return fallos;
        }
    }
    MiembrosHerramientas m;
    for (const auto& t : c.tablas) {
        dlg.mensajes.clear();
        e.ErrorCalculo = Falso;  // as the calculation that came before left it
        CajaTextoSimple txtAT(t.incremento), txtTinicial(t.inicial), txtTfinal(t.final),
            cboElemento(t.elemento);
        InterruptorSimple optMol(t.mol), optKg(t.kg), optAire(t.aire), optHumos(t.humos);
        ControlesHerramientas controles{.txtAT = txtAT,
                                        .txtTinicial = txtTinicial,
                                        .txtTfinal = txtTfinal,
                                        .optMol = optMol,
                                        .optKg = optKg,
                                        .optAire = optAire,
                                        .optHumos = optHumos,
                                        .cboElemento = cboElemento};
        VisorTablasTexto visor;
        const bool entera = t.especies ? cmdTab_Click(e, dlg, controles, m, visor)
                                       : cmdTablas_Click(e, dlg, controles, m, visor, "Gasoil");
        enteras += entera;
        for (const std::string& v : VariablesNoFinitas(e)) fallos.push_back("variable no finita: " + v);
        if (std::string d = DefectoDeTexto(visor.texto); !d.empty()) fallos.push_back("tabla con " + d);
        for (const std::string& msg : dlg.mensajes)
            if (std::string d = DefectoDeTexto(msg); !d.empty())
                fallos.push_back("mensaje \"" + msg + "\" con " + d);
        if (!entera && dlg.mensajes.empty()) fallos.push_back("la tabla se detuvo sin ningún mensaje");
        if (e.ErrorCalculo && dlg.mensajes.empty())
            fallos.push_back("ErrorCalculo puesto sin ningún mensaje");
        if (visor.piezas > kPiezasMaximas) fallos.push_back(std::to_string(visor.piezas) + " piezas");
        if (!std::isfinite(m.AT) || !std::isfinite(m.Tinicial) || !std::isfinite(m.Tfinal)) {
            // The members may hold what was typed, refused or not, as the
            // window's do; the walk must not have run on them.
            if (entera) fallos.push_back("una tabla entera con límites no finitos");
        }
    }
    return fallos;
}

TEST(TablasAleatoriasTest, EveryRangeEndsWholeOrWithAMessageAndNothingThatIsNotFinite) {
    const uint64_t semilla = static_cast<uint64_t>(NumeroDelEntorno("VANTA_SEMILLA", kSemillaFija));
    const long long total = NumeroDelEntorno("VANTA_ALEATORIOS_TABLAS", kConSanitizadores ? 100 : 2000);
    const long long solo = NumeroDelEntorno("VANTA_CASO_TABLAS", -1);
    Vigilante vigilante(std::chrono::seconds(kConSanitizadores ? 600 : 120));
    int fallidos = 0, enteras = 0;
    for (long long n = solo >= 0 ? solo : 0; n < (solo >= 0 ? solo + 1 : total); ++n) {
        const CasoTablas caso = GenerarCaso(semilla, static_cast<uint64_t>(n));
        const std::string descripcion = Describir(semilla, static_cast<uint64_t>(n), caso);
        if (solo >= 0) std::printf("%s\n", descripcion.c_str());

        vigilante.Empezar(descripcion);
        const std::vector<std::string> fallos = Ejecutar(caso, enteras);
        vigilante.Terminar();
        if (!fallos.empty()) {
            std::string texto;
            for (const std::string& f : fallos) texto += "\n    " + f;
            ADD_FAILURE() << descripcion << texto;
            if (++fallidos >= 10) break;
        }
    }

    std::printf("%d tablas enteras\n", enteras);
}

}  // namespace
}  // namespace vanta::prueba
