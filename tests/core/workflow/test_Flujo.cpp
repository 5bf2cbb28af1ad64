// The workflow of the main window: scripted runs of the window's events, the
// whole value after each (stage, view, what is enabled, in view and marked,
// the places) and the calls each made, against the golden file. The scripts
// walk the stages, a calculation that ends well and one that fails, the
// tables opened for a fluid of their own, and every enlarged view with its
// return, at the design's size and at one where whole pixels fall short.
#include <gtest/gtest.h>

#include <functional>

#include "core/workflow/Flujo.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

std::string Nombres(const BanderasNombradas& campos) {
    std::string s;
    for (auto [nombre, si] : campos)
        if (si) s += std::string(s.empty() ? "" : " ") + nombre;
    return s;
}

std::string Volcado(const Flujo& f) {
    const Habilitados& h = f.habilitado;
    const Visibles& v = f.visible;
    const Marcas& m = f.marcado;
    const char* etapas[] = {"Inicio",         "Comburente",   "Combustible", "Combustion",
                            "CicloCalculado", "ErrorDeCiclo", "SoloTablas"};
    const char* vistas[] = {"General", "PV", "TV", "TS", "HS"};
    const char* diagramas[] = {"pctPV", "pctTV", "pctTS", "pctHS"};
    std::string s = std::string("  etapa ") + etapas[static_cast<int>(f.etapa)] + ", vista " +
                    vistas[static_cast<int>(f.vista)] + ", encima " + diagramas[static_cast<int>(f.encima)] +
                    "\n";
    s += "  habilitados: " + Nombres(PorNombre(h)) + "\n";
    s += "  visibles: " + Nombres(PorNombre(v)) + "\n";
    s += "  marcas: " + Nombres(PorNombre(m)) + "\n  lugares:";
    const Lugares& l = f.lugar;
    const std::pair<const char*, const Lugar*> lugares[] = {{"pct1", &l.pct1},
                                                            {"pct2", &l.pct2},
                                                            {"pct3", &l.pct3},
                                                            {"pctPV", &l.pctPV},
                                                            {"pctTV", &l.pctTV},
                                                            {"pctTS", &l.pctTS},
                                                            {"pctHS", &l.pctHS},
                                                            {"fraBotonera", &l.fraBotonera},
                                                            {"fraPuntos", &l.fraPuntos},
                                                            {"fraPotencia", &l.fraPotencia},
                                                            {"fraTransformaciones", &l.fraTransformaciones},
                                                            {"cmdElegirComburente", &l.cmdElegirComburente},
                                                            {"cmdCombustible", &l.cmdCombustible},
                                                            {"cmdCarCombustion", &l.cmdCarCombustion},
                                                            {"cmdCarCiclo", &l.cmdCarCiclo},
                                                            {"cmdInforme", &l.cmdInforme},
                                                            {"cmdEnvBaseDatos", &l.cmdEnvBaseDatos},
                                                            {"chkVerHs", &l.chkVerHs},
                                                            {"fraEstadoActual", &l.fraEstadoActual}};
    for (auto [nombre, p] : lugares)
        s += std::string(" ") + nombre + "(" + std::to_string(p->Left) + "," + std::to_string(p->Top) + "," +
             std::to_string(p->Width) + "," + std::to_string(p->Height) + ")";
    return s + "\n";
}

// A run of events on one window: each event's calls and the value after it.
struct Guion {
    Flujo f;
    std::string texto;
    std::string llamadas;
    bool calculoBien = true;
    bool fallaAlDibujar = true;  // else in the first pass, with the results in view

    Guion(int W, int H) {
        f = Form_Load({.W = W, .H = H, .dosTwips = 2.0 * 96 / 1440});
        f.alLlamar = [this](const std::string& l) { llamadas += " " + l; };
        texto = "Form_Load " + std::to_string(W) + "x" + std::to_string(H) + "\n" + Volcado(f);
    }
    // What the driver tells the window during a calculation.
    CalculoCiclo Calcular() {
        return [this] {
            Ocultabotones(f, kAlCalcular);
            if (!calculoBien && fallaAlDibujar) Ocultabotones(f, kAlFallarCalculo);
            CalculoTerminado(f, calculoBien);
        };
    }
    void operator()(const std::string& evento, const std::function<void(Flujo&)>& hacer) {
        llamadas.clear();
        hacer(f);
        texto += evento + ":" + llamadas + "\n" + Volcado(f);
    }
};

}  // namespace

TEST(Flujo, LosGuionesDeLaVentanaContraSuArchivo) {
    std::string s;
    {
        Guion g(1024, 768);
        g("cmdElegirComburente_Click", [](Flujo& f) { cmdElegirComburente_Click(f); });
        // A stage window that refuses a box keeps the next stage shut, even
        // through its own button again, until it calculates.
        g("aire rechazado", [](Flujo& f) { EtapaNoCalculada(f, Etapa::Comburente); });
        g("cmdElegirComburente_Click", [](Flujo& f) { cmdElegirComburente_Click(f); });
        g("aire calculado", [](Flujo& f) { EtapaCalculada(f, Etapa::Comburente); });
        g("cmdCombustible_Click", [](Flujo& f) { cmdCombustible_Click(f); });
        g("combustible rechazado", [](Flujo& f) { EtapaNoCalculada(f, Etapa::Combustible); });
        g("combustible calculado", [](Flujo& f) { EtapaCalculada(f, Etapa::Combustible); });
        g("cmdCarCombustion_Click", [](Flujo& f) { cmdCarCombustion_Click(f); });
        g("combustion rechazada", [](Flujo& f) { EtapaNoCalculada(f, Etapa::Combustion); });
        g("combustion calculada", [](Flujo& f) { EtapaCalculada(f, Etapa::Combustion); });
        g("combustion calculada otra vez", [](Flujo& f) { EtapaCalculada(f, Etapa::Combustion); });
        g("CALCULAR", [&g](Flujo&) { g.Calcular()(); });
        g("chkVerHs_Click 1", [](Flujo& f) { chkVerHs_Click(f, true); });
        g("pctPV_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::PV, g.Calcular()); });
        g("chkVerHs_Click 1", [](Flujo& f) { chkVerHs_Click(f, true); });
        g("pctTS_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::TS, g.Calcular()); });
        g("pctHS_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::HS, g.Calcular()); });
        g("pctHS_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::HS, g.Calcular()); });
        g("mnuTV_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::TV, g.Calcular()); });
        g("mnuHS_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::HS, g.Calcular()); });
        g("mnuVerTodo_Click", [](Flujo& f) { mnuVerTodo_Click(f); });
        g("mnuTS_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::TS, g.Calcular()); });
        g("mnuTS_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::TS, g.Calcular()); });
        g.calculoBien = false;
        g.fallaAlDibujar = false;
        // The results stay in view, and the save goes until a calculation
        // ends well.
        g("CALCULAR que falla antes de dibujar", [&g](Flujo&) { g.Calcular()(); });
        g.calculoBien = true;
        g("CALCULAR", [&g](Flujo&) { g.Calcular()(); });
        g.calculoBien = false;
        g.fallaAlDibujar = true;
        g("CALCULAR que falla", [&g](Flujo&) { g.Calcular()(); });
        g("mnuTablas_Click", [](Flujo& f) { mnuTablas_Click(f); });
        g("pctTV_Click sin etapa del ciclo",
          [&g](Flujo& f) { ClickDiagrama(f, Diagrama::TV, g.Calcular()); });
        g("mnuNuevo_Click", [](Flujo& f) { mnuNuevo_Click(f); });
        s += g.texto;
    }
    {
        // Whole pixels where 0.7 W falls a hair short: 0.7 · 942 = 659.4.
        Guion g(942, 700);
        g("cmdElegirComburente_Click", [](Flujo& f) { cmdElegirComburente_Click(f); });
        g("pctPV_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::PV, g.Calcular()); });
        g("pctPV_Click", [&g](Flujo& f) { ClickDiagrama(f, Diagrama::PV, g.Calcular()); });
        g("mnuHS_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::HS, g.Calcular()); });
        g("mnuHS_Click", [&g](Flujo& f) { MenuDiagrama(f, Diagrama::HS, g.Calcular()); });
        s += g.texto;
    }
    // Every enlarged view and its return at other sizes of the window: the
    // proportions of each place, and where whole pixels fall.
    for (auto [W, H] : {std::pair{1499, 1001}, {1366, 705}, {800, 600}, {1920, 1080}}) {
        Guion g(W, H);
        g("cmdElegirComburente_Click", [](Flujo& f) { cmdElegirComburente_Click(f); });
        for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS})
            for (int vez = 0; vez < 2; ++vez)
                g("mnu " + std::to_string(static_cast<int>(d)),
                  [&g, d](Flujo& f) { MenuDiagrama(f, d, g.Calcular()); });
        s += g.texto;
    }
    EXPECT_EQ(CompararDorado("flujo.txt", s), "");
}

TEST(Flujo, ElAvisoDeUnIntentoFallidoDiceSusMensajes) {
    EXPECT_EQ(
        TextoIntentoFallido({" Ha superado la temperatura ", "", "Error de cálculo. "}),
        "Las cifras son del último cálculo completo; el último intento falló: Ha superado la temperatura / "
        "Error de cálculo.");
    EXPECT_EQ(TextoIntentoFallido({}),
              "Las cifras son del último cálculo completo; el último intento falló.");
}
