// The readout that follows the pointer, on random positions over calculated
// cycles: in the picture, on the states, just off them, far outside, and at
// the edges of the singles (the window gives finite floats only). Each move
// must end with the readout, the crosses and the state free of numbers that
// are not finite, and a message whenever it sets ErrorCalculo.
//
// VANTA_ALEATORIOS_LECTURA sets the number of cycles (1 000, or 100 under the
// sanitizers; 25 moves each), VANTA_SEMILLA the seed, VANTA_CASO_LECTURA runs
// that cycle alone.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "core/diagrams/LecturaRaton.h"
#include "core/fluids/Combustible.h"
#include "core/services/Numeros.h"
#include "tests/core/robustez/Aleatorios.h"
#include "tests/core/robustez/Ejecucion.h"
#include "tests/core/robustez/Vigilancia.h"

namespace vanta::prueba {
namespace {

constexpr int kMovimientos = 25;

// A cycle that calculates, as `vanta calcular` options: mostly usual
// figures, now and then far from them.
std::vector<std::string> Ciclo(Azar& a) {
    const std::vector<std::string> modelos = {"medio", "politropica", "variable"};
    const std::string ciclo = a.Uno(std::vector<std::string>{"Otto", "Diesel", "Mixto"});
    const bool lejos = a.Moneda(0.2);
    const double rcMin = ciclo == "Diesel" ? 12 : 5, rcMax = ciclo == "Diesel" ? 24 : 14;
    // In order of drawing: a braced list is evaluated left to right.
    // clang-format off
    std::vector<std::string> args = {
        "--combustible", std::string(kBibliotecaCombustibles[a.Indice(kBibliotecaCombustibles.size())].nombre),
        "--humedad", a.Escribir(a.Uniforme(0, 100)),
        "--fr", a.Escribir(lejos ? a.LogUniforme(0.01, 1.3) : a.Uniforme(0.5, 1.25)),
        "--ciclo", ciclo,
        "--cilindrada", a.Escribir(lejos ? a.LogUniforme(1e-3, 1e6) : a.LogUniforme(50, 3000)),
        "--rc", a.Escribir(lejos ? a.LogUniforme(1.01, 100) : a.Uniforme(rcMin, rcMax)),
        "--t1", a.Escribir(lejos ? a.LogUniforme(50, 3000) : a.Uniforme(270, 400)),
        "--compresion", a.Uno(modelos),
        "--n-compresion", a.Escribir(lejos ? a.Uniforme(1.001, 3) : a.Uniforme(1.25, 1.4)),
        "--expansion", a.Uno(modelos),
        "--n-expansion", a.Escribir(lejos ? a.Uniforme(1.001, 3) : a.Uniforme(1.2, 1.35))};
    // clang-format on
    if (ciclo == "Mixto") {
        if (a.Moneda(0.5))
            args.insert(args.end(), {"--proporcion-vcte", a.Escribir(a.Uniforme(0, 100))});
        else
            args.insert(args.end(), {"--pmax", a.Escribir(a.LogUniforme(3e6, 2e7))});
    }
    return args;
}

struct Movimiento {
    bool pv;  // on pctPV, else on pctTV
    float X, Y;
};

// A coordinate near a value: on it, a single or two away, or a little off.
float Cerca(Azar& a, double v) {
    const float f = static_cast<float>(v);
    switch (a.Indice(4)) {
        case 0:
            return f;
        case 1:
            return std::nextafter(f, std::numeric_limits<float>::max());
        case 2:
            return std::nextafter(f, -std::numeric_limits<float>::max());
        default:
            return static_cast<float>(v * a.Uniforme(0.9, 1.1));
    }
}

// Where the pointer may be on the surface of scale s, on a cycle e.
float Coordenada(Azar& a, const Superficie& s, bool horizontal, const Estado& e, bool pv) {
    const float inicio = horizontal ? s.ScaleLeft() : s.ScaleTop();
    const float tamano = horizontal ? s.ScaleWidth() : s.ScaleHeight();
    const double r = a.Uniforme(0, 1);
    if (r < 0.5) return inicio + tamano * static_cast<float>(a.Uniforme(0, 1));
    if (r < 0.8) {
        const double estados[] = {horizontal ? e.V1
                                  : pv       ? -e.p1
                                             : -e.T1,
                                  horizontal ? e.V2
                                  : pv       ? -e.p2
                                             : -e.T2,
                                  horizontal ? e.V3
                                  : pv       ? -e.p3
                                             : -e.T3,
                                  horizontal ? e.V4
                                  : pv       ? -e.p4
                                             : -e.T4,
                                  horizontal ? e.V5
                                  : pv       ? -e.p5
                                             : -e.T5};
        return Cerca(a, estados[a.Indice(5)]);
    }
    if (r < 0.9) return inicio + tamano * static_cast<float>(a.Uniforme(-20, 20));
    const float extremos[] = {0.0f,
                              -0.0f,
                              std::numeric_limits<float>::max(),
                              -std::numeric_limits<float>::max(),
                              std::numeric_limits<float>::denorm_min(),
                              -std::numeric_limits<float>::denorm_min(),
                              std::numeric_limits<float>::min(),
                              1e30f,
                              -1e30f};
    return a.Uno(std::vector<float>(std::begin(extremos), std::end(extremos)));
}

std::string Describir(uint64_t semilla, uint64_t numero, const std::vector<std::string>& args,
                      const std::vector<Movimiento>& movimientos) {
    std::ostringstream os;
    os << "ciclo " << numero << " de la lectura, semilla " << semilla << " (VANTA_SEMILLA=" << semilla
       << " VANTA_CASO_LECTURA=" << numero << "):\n  vanta calcular";
    for (const std::string& a : args) os << " " << a;
    os.precision(9);
    for (const Movimiento& m : movimientos)
        os << "\n  " << (m.pv ? "pctPV" : "pctTV") << " " << m.X << " " << m.Y;
    return os.str();
}

TEST(LecturaAleatoriaTest, EveryPointerPositionGivesAFiniteReadout) {
    const uint64_t semilla = static_cast<uint64_t>(NumeroDelEntorno("VANTA_SEMILLA", kSemillaFija));
    const long long total = NumeroDelEntorno("VANTA_ALEATORIOS_LECTURA", kConSanitizadores ? 100 : 1000);
    const long long solo = NumeroDelEntorno("VANTA_CASO_LECTURA", -1);
    Vigilante vigilante(std::chrono::seconds(kConSanitizadores ? 600 : 120));
    int fallidos = 0, calculados = 0;
    for (long long n = solo >= 0 ? solo : 0; n < (solo >= 0 ? solo + 1 : total); ++n) {
        Azar a(SemillaDelCaso(semilla ^ 0x4C45435455524Full, static_cast<uint64_t>(n)));
        const std::vector<std::string> args = Ciclo(a);
        Ejecucion r;
        r.Calcular(args);
        if (!r.Calculado()) continue;
        ++calculados;
        Diagramas g{r.pv, r.tv, r.ts, r.hs};
        std::vector<Movimiento> movimientos;
        for (int k = 0; k < kMovimientos; ++k) {
            const bool pv = a.Moneda(0.5);
            const Superficie& s = pv ? r.pv : r.tv;
            movimientos.push_back({pv, Coordenada(a, s, true, r.e, pv), Coordenada(a, s, false, r.e, pv)});
        }
        const std::string descripcion = Describir(semilla, static_cast<uint64_t>(n), args, movimientos);
        if (solo >= 0) std::printf("%s\n", descripcion.c_str());
        vigilante.Empezar(descripcion);

        std::vector<std::string> fallos;
        for (const Movimiento& m : movimientos) {
            for (SuperficieVigilada* sup : {&r.pv, &r.tv, &r.ts, &r.hs}) sup->defectos.clear();
            const size_t mensajes = r.dlg.mensajes.size();
            LecturaEstado lectura;
            (m.pv ? pctPV_MouseMove : pctTV_MouseMove)(r.e, r.dlg, g, true, m.X, m.Y, lectura);
            std::string en;
            {
                std::ostringstream os;
                os.precision(9);
                os << (m.pv ? " en pctPV " : " en pctTV ") << m.X << " " << m.Y;
                en = os.str();
            }
            for (const std::string& v : VariablesNoFinitas(r.e))
                fallos.push_back("variable no finita " + v + en);
            for (const std::string* t : {&lectura.lblTmouseVal, &lectura.lblVmouseVal, &lectura.lblPmouseVal,
                                         &lectura.lblhmouseVal, &lectura.lblSmouseVal})
                if (std::string d = DefectoDeTexto(*t); !d.empty())
                    fallos.push_back("lectura \"" + *t + "\" con " + d + en);
            if (lectura.txtTransformacion.empty()) fallos.push_back("lectura sin proceso" + en);
            for (const SuperficieVigilada* sup : {&r.pv, &r.tv, &r.ts, &r.hs})
                for (const std::string& d : sup->defectos) fallos.push_back(d + en);
            if (r.e.ErrorCalculo && r.dlg.mensajes.size() == mensajes && mensajes == 0)
                fallos.push_back("ErrorCalculo puesto sin ningún mensaje" + en);
            for (size_t k = mensajes; k < r.dlg.mensajes.size(); ++k)
                if (std::string d = DefectoDeTexto(r.dlg.mensajes[k]); !d.empty())
                    fallos.push_back("mensaje \"" + r.dlg.mensajes[k] + "\" con " + d + en);
        }
        vigilante.Terminar();
        if (!fallos.empty()) {
            std::string texto;
            for (size_t k = 0; k < fallos.size() && k < 12; ++k) texto += "\n    " + fallos[k];
            ADD_FAILURE() << descripcion << texto;
            if (++fallidos >= 10) break;
        }
    }
    std::printf("%d ciclos calculados, %d movimientos cada uno\n", calculados, kMovimientos);
    EXPECT_GT(calculados, 0);
}

}  // namespace
}  // namespace vanta::prueba
