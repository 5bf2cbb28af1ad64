// The readout that follows the pointer: a grid of pointer positions over the
// p-V and T-V diagrams of calculated cycles, each move's texts, crosses and
// what it leaves in the state, against the golden file; the tie between the
// two candidates; and the closing figures, which no number of moves changes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/database/Registro.h"
#include "core/diagrams/LecturaRaton.h"
#include "core/services/Numeros.h"
#include "tests/Dorados.h"
#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// A move over p-V (or T-V), and what it showed and left.
std::string Mover(Calculo& c, bool pv, double X, double Y) {
    for (SuperficieGrabada* s : {&c.pctPV, &c.pctTV, &c.pctTS, &c.pctHS}) s->llamadas.clear();
    LecturaEstado l;
    Diagramas g = c.Diagramas4();
    (pv ? pctPV_MouseMove : pctTV_MouseMove)(c.e, c.dlg, g, true, float(X), float(Y), l);
    char b[600];
    std::snprintf(b, sizeof b,
                  "%s %.9g %.9g: [%s] p[%s] V[%s] T[%s] h[%s] s[%s] | T=%.17g p=%.17g %d W12=%.17g W45=%.17g "
                  "g=%.17g %.17g %.17g %.17g\n",
                  pv ? "PV" : "TV", X, Y, l.txtTransformacion.c_str(), l.lblPmouseVal.c_str(),
                  l.lblVmouseVal.c_str(), l.lblTmouseVal.c_str(), l.lblhmouseVal.c_str(),
                  l.lblSmouseVal.c_str(), c.e.Temperatura, c.e.Presion, static_cast<int>(c.e.TipoFluido),
                  c.e.W12acumulado, c.e.W45acumulado, c.e.gamma1, c.e.Gamma2, c.e.Gamma4, c.e.Gamma5);
    std::string s = b;
    for (SuperficieGrabada* sup : {&c.pctPV, &c.pctTV, &c.pctTS, &c.pctHS}) {
        const std::string d = Dibujo(*sup);
        s += "  " + d.substr(0, d.find('\n')) + "\n";
    }
    return s;
}

// The grid: left of V2, V2 itself, three volumes of the strokes, V1 itself and
// right of it; at heights below the cycle, at fractions of its height and
// above it.
std::string Rejilla(Calculo& c) {
    const Estado e = c.e;
    std::string s;
    const double dV = e.V1 - e.V2;
    const double volumenes[] = {e.V2 - 0.2 * dV, double(float(e.V2)), e.V2 + 0.05 * dV, (e.V2 + e.V1) / 2,
                                e.V1 - 0.1 * dV, double(float(e.V1)), e.V1 + 0.1 * dV};
    for (bool pv : {true, false}) {
        const double q1 = pv ? e.p1 : e.T1, qMax = pv ? std::max(e.p3, e.p4) : std::max(e.T3, e.T4);
        for (double X : volumenes)
            for (double f : {-0.5, 0.02, 0.3, 0.8, 1.5}) s += Mover(c, pv, X, -(q1 + f * (qMax - q1)));
    }
    return s;
}

}  // namespace

TEST(Lectura, LaRejillaDeCadaCicloContraSuArchivo) {
    const std::pair<const char*, std::vector<std::string>> ciclos[] = {
        {"otto", {}},
        {"otto_politropica_variable", {"--compresion", "politropica", "--expansion", "variable"}},
        {"diesel_variable_politropica",
         {"--ciclo", "Diesel", "--compresion", "variable", "--expansion", "politropica", "--rc", "18",
          "--combustible", "Gasoil"}},
        {"mixto_proporcion", {"--ciclo", "Mixto", "--proporcion-vcte", "40"}},
    };
    std::string s;
    for (const auto& [nombre, opciones] : ciclos) {
        auto c = Calcular(opciones);
        ASSERT_TRUE(c->bien) << nombre;
        s += std::string("== ") + nombre + "\n" + Rejilla(*c);
        EXPECT_TRUE(c->r.mensajes.empty());
    }
    EXPECT_EQ(CompararDorado("lectura.txt", s), "");
}

TEST(Lectura, UnEmpateExactoEsDeLaCompresionYSinCicloNoHayLectura) {
    auto c = Calcular(std::vector<std::string>{});
    Estado& e = c->e;
    // Volumes that singles hold exactly, so that both candidates are round:
    // the compression gives 4·p1 at half the stroke, the expansion p4 there.
    e.V1 = std::ldexp(1.0, -13), e.V2 = e.V1 / 8, e.V4 = e.V1 / 2;
    e.GammaMedioCompresion = 2, e.GammaMedioExpansion = 0, e.p1 = 1e5, e.p4 = 5e5;
    LecturaEstado l;
    Diagramas g = c->Diagramas4();
    pctPV_MouseMove(e, c->dlg, g, true, float(e.V1 / 2), -4.5e5f, l);
    EXPECT_EQ(l.txtTransformacion, "Compresión adiabática");
    pctPV_MouseMove(e, c->dlg, g, true, float(e.V1 / 2), -4.5e5f - 64, l);
    EXPECT_EQ(l.txtTransformacion, "Expansión adiabática");
    LecturaEstado nada;
    c->pctPV.llamadas.clear();
    pctPV_MouseMove(e, c->dlg, g, false, float(e.V2), 0, nada);
    EXPECT_TRUE(c->pctPV.llamadas.empty());
    EXPECT_TRUE(nada.txtTransformacion.empty());
}

TEST(Lectura, LasCifrasDelCierreNoCambianConLosMovimientos) {
    // The variable exponent runs the strokes again at every move, through the
    // same processes as the calculation, which leave their work in Wciclo.
    auto c = Calcular({"--compresion", "variable", "--expansion", "variable"});
    Estado& e = c->e;
    auto potencia = [&e] {
        Mensajes dlg;
        const auto p = txtRpm_Change(e, dlg, e.Wciclo, "3000");
        return p->potencia + " / " + p->potenciaCV;
    };
    const std::string antes = potencia();
    const auto registro = bd::ValoresRegistro(e, "r", "Gasolina", "");
    const double wciclo = e.Wciclo, w12 = e.W12acumulado;
    Diagramas g = c->Diagramas4();
    LecturaEstado l;
    for (int i = 1; i <= 9; ++i) {
        const float X = float(e.V2 + (e.V1 - e.V2) * i / 10.0);
        pctPV_MouseMove(e, c->dlg, g, true, X, float(-e.p1 * (1 + i)), l);
        pctTV_MouseMove(e, c->dlg, g, true, X, float(-e.T1 * (1 + i / 3.0)), l);
    }
    EXPECT_EQ(e.Wciclo, wciclo);
    EXPECT_EQ(potencia(), antes);
    // The record too, but for the gammas, which the runs of the strokes leave
    // in the state as the program does, with the work sums.
    auto sinGammas = [](bd::TextosRegistro t) {
        for (const char* g : {"gamma1", "Gamma2", "Gamma4", "Gamma5"})
            for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i)
                if (bd::kColumnasTexto[i].nombre == g) t[i].clear();
        return t;
    };
    EXPECT_EQ(sinGammas(bd::ValoresRegistro(e, "r", "Gasolina", "")), sinGammas(registro));
    EXPECT_LT(e.W12acumulado, w12);
}
