// The stage screens without a window: each event on plain boxes and options,
// and what it leaves in them, in the screen and in the messages, against the
// golden file. The air, the fuel list and the user's fuel, the combustion's
// two leading boxes, the cycle's pictures and options, and the power block.
#include <gtest/gtest.h>

#include "core/cycle/PantallaCiclo.h"
#include "core/fluids/AireHumedo.h"
#include "core/fluids/Combustible.h"
#include "core/fluids/Combustion.h"
#include "core/sequence/Secuencia.h"
#include "core/services/Numeros.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

struct Registro {
    std::string s;
    DialogosGrabados dlg;
    void operator()(const std::string& evento,
                    std::initializer_list<std::pair<const char*, std::string>> vistos) {
        s += evento + ":";
        for (auto [que, valor] : vistos) s += " " + std::string(que) + "[" + valor + "]";
        s += "\n";
        for (const std::string& m : dlg.mensajes) s += "  mensaje: " + m + "\n";
        dlg.mensajes.clear();
    }
};

std::string Si(bool b) {
    return b ? "1" : "0";
}

// The cycle window's frames and pictures, as the logic sets them.
struct FormularioCicloGrabado : FormularioCiclo {
    std::string marcos, resaltado;
    void MostrarMarcos(const Marcos& m) override {
        marcos =
            Si(m.compresion) + Si(m.expansion) + Si(m.aire) + Si(m.opcion) + Si(m.datos) + Si(m.seleccionar);
    }
    void ResaltarCiclo(const CiclosResaltados& c) override {
        resaltado = Si(c.otto) + Si(c.diesel) + Si(c.mixto);
    }
};

}  // namespace

TEST(Pantallas, CadaEventoContraSuArchivo) {
    Estado e;
    Registro r;
    SuperficieNula pct;

    // The air.
    CajaTextoSimple txtPreAmb("101325"), txtTemAmb("288"), txtHum("50");
    InterruptorSimple chkAire(true);
    VentanaSimple vAire;
    ControlesAire aire{.txtPreAmb = txtPreAmb,
                       .txtTemAmb = txtTemAmb,
                       .txtHum = txtHum,
                       .chkOcultar = chkAire,
                       .ventana = vAire,
                       .pct1 = pct};
    // An ambient temperature out of range keeps the window open.
    for (const char* t : {"249.9", "5000.1"}) {
        txtTemAmb.SetText(t);
        const bool bien = CalcularAire(e, r.dlg, aire);
        r(std::string("CalcularAire ") + t, {{"bien", Si(bien)}, {"oculta", Si(vAire.oculta)}});
    }
    txtTemAmb.SetText("288");
    const bool aireBien = CalcularAire(e, r.dlg, aire);
    r("CalcularAire", {{"bien", Si(aireBien)},
                       {"oculta", Si(vAire.oculta)},
                       {"Psaturacion", TextoGeneral(e.Psaturacion, '.')}});

    // The fuel: each entry of the list, then the user's own.
    PantallaCombustibleSimple f;
    ControlesCombustible cf = f.Controles(pct);
    auto combustible = [&](const std::string& evento) {
        r(evento, {{"txtC", f.txtC.Text()},
                   {"txtH", f.txtH.Text()},
                   {"txtN", f.txtN.Text()},
                   {"txtO", f.txtO.Text()},
                   {"txtS", f.txtS.Text()},
                   {"Mol", f.txtMolC.Text() + " " + f.txtMolH.Text() + " " + f.txtMolN.Text() + " " +
                               f.txtMolO.Text() + " " + f.txtMolS.Text()},
                   {"mm", f.txtmmComb.Text()},
                   {"EntPro", f.txtEntPro.Text()},
                   {"Hcs", f.txtHcs.Text()},
                   {"Hci", f.txtHci.Text()},
                   {"Qvap", f.txtQvap.Text()},
                   {"opt", Si(f.optMasa.Value()) + Si(f.optFOR.Value())},
                   {"form", Si(f.formulario.entradaPropia) + " " + f.formulario.tituloOtros + " " +
                                Si(f.formulario.marcoOtros) + " " + std::to_string(f.formulario.bloqueo)},
                   {"oculta", Si(f.ventana.oculta)},
                   {"Error", std::to_string(e.ErrorCalculo)}});
    };
    f.chkOcultar.SetValue(false);
    cmdCal_Click(e, r.dlg, cf);
    combustible("cmdCal sin Otros");
    for (const auto& c : kBibliotecaCombustibles) {
        f.cboTipCom.SetText(c.nombre);
        cboTipCom_Click(e, r.dlg, cf);
        combustible(std::string("cboTipCom ") + std::string(c.nombre));
    }
    f.cboTipCom.SetText(kOtrosCombustibles);
    cboTipCom_Click(e, r.dlg, cf);
    combustible("cboTipCom Otros");
    f.txtC.SetText("84,5"), f.txtN.SetText(""), f.txtO.SetText("1.2"), f.txtS.SetText("0.3"),
        f.txtmmComb.SetText("0,15"), f.txtEntPro.SetText("-200000");
    cmdCal_Click(e, r.dlg, cf);
    combustible("cmdCal por masa");
    optFOR_Click(cf);
    f.txtMolC.SetText("7"), f.txtMolH.SetText("16"), f.txtMolN.SetText(""), f.txtMolO.SetText(""),
        f.txtMolS.SetText("");
    cmdCal_Click(e, r.dlg, cf);
    combustible("cmdCal por formula");
    optMasa_Click(cf);
    f.txtC.SetText("60"), f.txtO.SetText("45");
    cmdCal_Click(e, r.dlg, cf);
    combustible("cmdCal por masa de mas de 100");

    // The combustion.
    f.cboTipCom.SetText("Gasolina");
    cboTipCom_Click(e, r.dlg, cf);
    PantallaCombustionSimple g;
    ControlesCombustion cg = g.Controles(pct);
    auto gases = [&](const std::string& evento) {
        r(evento, {{"txtFr", g.txtFr.Text()},
                   {"txtLambda", g.txtLambda.Text()},
                   {"opt", Si(g.optFr.Value()) + Si(g.optLambda.Value())},
                   {"Fr", TextoGeneral(e.Fr, '.')},
                   {"Lambda", TextoGeneral(g.variables.Lambda, '.')},
                   {"Error", std::to_string(e.ErrorCalculo)}});
    };
    FormGases_Load(e, cg);
    gases("FormGases_Load");
    g.txtFr.SetText("0,9");
    txtFr_Change(e, r.dlg, cg);
    gases("txtFr_Change sin optFr");
    txtFr_Click(cg);
    txtFr_Change(e, r.dlg, cg);
    gases("txtFr_Change 0,9");
    for (const char* t : {"-1", "0", "x"}) {
        g.txtFr.SetText(t);
        txtFr_Change(e, r.dlg, cg);
        gases(std::string("txtFr_Change ") + t);
    }
    txtLambda_Click(cg);
    for (const char* t : {"1.2", "-2", "3"}) {
        g.txtLambda.SetText(t);
        txtLambda_Change(e, r.dlg, cg);
        gases(std::string("txtLambda_Change ") + t);
    }
    e.ErrorCalculo = Falso;
    const bool humosBien = CalcularHumos(e, r.dlg, cg);
    gases(std::string("CalcularHumos ") + Si(humosBien));

    // The cycle window.
    PantallaCicloSimple p;
    ControlesCiclo cc = p.Controles();
    FormularioCicloGrabado fc;
    FormCiclo_Load(e, cc);
    r("FormCiclo_Load", {{"txtP1", p.txtP1.Text()},
                         {"txtT1", p.txtT1.Text()},
                         {"modelos", std::to_string(static_cast<int>(e.ModeloCompresion)) +
                                         std::to_string(static_cast<int>(e.ModeloExpansion))}});
    auto ciclo = [&](const std::string& evento) {
        r(evento, {{"TipoCiclo", e.TipoCiclo},
                   {"Pmax", TextoGeneral(e.Pmax, '.')},
                   {"marcos", fc.marcos},
                   {"resaltado", fc.resaltado},
                   {"OpcionProporcion", std::to_string(e.OpcionProporcion)},
                   {"PropVcte", p.txtPropVcte.Text()},
                   {"PropPcte", p.txtPropPcte.Text()}});
    };
    imgMixto_Click(e, fc);
    optProporcion_Click(e);
    ciclo("imgMixto optProporcion");
    imgOtto_Click(e, fc);
    ciclo("imgOtto");
    e.Pmax = 1;
    imgDiesel_Click(e, fc);
    ciclo("imgDiesel");
    for (const char* t : {"30", "101", "", "100"}) {
        p.txtPropVcte.SetText(t);
        txtPropVcte_Change(e, r.dlg, cc);
        ciclo(std::string("txtPropVcte_Change ") + t);
    }
    optPmax_Click(e);
    ciclo("optPmax");

    // A maximum pressure below the compression's: the focus goes to the
    // pressure up to a compression ratio of 30, beyond it to the ratio.
    for (const char* rc : {"30", "30.0001"}) {
        Estado m;
        SuperficiesNulas nulas;
        SuperficiesCalculo s = nulas.Todas();
        VentanaPrincipalSimple v;
        OpcionesCalculo o;
        o.valores = {{"ciclo", "Mixto"}, {"pmax", "1000"}, {"rc", rc}};
        CalcularTodo(m, o, r.dlg, s, v);
        PantallaCicloSimple q;
        ControlesCiclo cq = q.Controles();
        imgMixto_Click(m, q.formulario);
        q.optProporcion.SetValue(false), q.optPmax.SetValue(true), q.txtPMax.SetText("1000"),
            q.txtRc.SetText(rc);
        CalcularCiclo(m, r.dlg, cq, s.diagramas, v);
        r(std::string("CalcularCiclo Mixto Pmax 1000 Rc ") + rc,
          {{"foco Pmax", std::to_string(q.txtPMax.focos)}, {"foco Rc", std::to_string(q.txtRc.focos)}});
    }

    // The power block, on a calculated cycle's work.
    e.Wciclo = 149.4567;
    for (const char* t : {"3000", "", "rpm", "-1200", "1e306"}) {
        CajaTextoSimple rpm(t), w("antes"), cv("antes");
        e.ErrorCalculo = Falso;
        txtRpm_Change(e, r.dlg, e.Wciclo, rpm, w, cv);
        r(std::string("txtRpm_Change ") + t, {{"W", w.Text()}, {"CV", cv.Text()}});
    }
    EXPECT_EQ(CompararDorado("pantallas.txt", r.s), "");
}
