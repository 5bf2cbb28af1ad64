// The stage screens without a window: each event on plain boxes and options,
// and what it leaves in them, in the screen and in the messages, against the
// golden file. The air, the fuel list and the user's fuel, the combustion's
// two leading boxes, the cycle's pictures and options, and the power block.
#include <gtest/gtest.h>

#include "core/fluids/AireHumedo.h"
#include "core/fluids/Combustible.h"
#include "core/fluids/Combustion.h"
#include "core/sequence/Calculo.h"
#include "core/services/Numeros.h"
#include "tests/Dorados.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

struct Registro {
    std::string s;
    Mensajes msj;
    void operator()(const std::string& evento,
                    std::initializer_list<std::pair<const char*, std::string>> vistos) {
        s += evento + ":";
        for (auto [que, valor] : vistos) s += " " + std::string(que) + "[" + valor + "]";
        s += "\n";
        for (const std::string& m : msj.Textos()) s += "  mensaje: " + m + "\n";
        msj = {};
    }
};

std::string Si(bool b) {
    return b ? "1" : "0";
}

// A flag of the state as the program writes it: True -1.
std::string Bandera(bool b) {
    return b ? "-1" : "0";
}

}  // namespace

TEST(Pantallas, CadaEventoContraSuArchivo) {
    Estado e;
    Registro r;
    SuperficieNula pct;

    // The air. An ambient temperature out of range keeps the window open.
    Entradas aire;
    aire.presionAmbiente = "101325", aire.temperaturaAmbiente = "288", aire.humedad = "50";
    for (const char* t : {"249.9", "5000.1"}) {
        aire.temperaturaAmbiente = t;
        const bool bien = CalcularAire(e, r.msj, aire, pct);
        r(std::string("CalcularAire ") + t, {{"bien", Si(bien)}, {"oculta", Si(bien)}});
    }
    aire.temperaturaAmbiente = "288";
    const bool aireBien = CalcularAire(e, r.msj, aire, pct);
    r("CalcularAire",
      {{"bien", Si(aireBien)}, {"oculta", Si(aireBien)}, {"Psaturacion", TextoGeneral(e.Psaturacion, '.')}});

    // The fuel: each entry of the list, then the user's own, on the boxes as
    // the screen opens (the window stays: no hiding).
    Entradas f;
    f.masaMolecular = "0.1", f.entalpiaFormacion = "0";
    VistaCombustible vf;
    SalidasCombustible sf;
    auto combustible = [&](const std::string& evento) {
        const int bloqueo = !vf.opcion ? 0 : *vf.opcion == FormaCombustible::Formula ? 1 : 2;
        r(evento, {{"txtC", f.cienC},
                   {"txtH", sf.cienH},
                   {"txtN", f.cienN},
                   {"txtO", f.cienO},
                   {"txtS", f.cienS},
                   {"Mol", f.atomosC + " " + f.atomosH + " " + f.atomosN + " " + f.atomosO + " " + f.atomosS},
                   {"mm", f.masaMolecular},
                   {"EntPro", f.entalpiaFormacion},
                   {"Hcs", sf.hcs},
                   {"Hci", sf.hci},
                   {"Qvap", sf.calorVap},
                   {"opt", Si(bloqueo == 2) + Si(bloqueo == 1)},
                   {"form", Si(vf.entradaPropia) + " " + vf.tituloOtros + " " + Si(vf.marcoOtros) + " " +
                                std::to_string(bloqueo)},
                   {"oculta", "0"},
                   {"Error", Bandera(e.ErrorCalculo)}});
    };
    CalcularCombustiblePropio(e, r.msj, kElijaCombustible, f, vf, sf, pct);
    combustible("cmdCal sin Otros");
    for (const auto& c : kBibliotecaCombustibles) {
        ElegirEntradaLista(e, r.msj, c.nombre, f, vf, sf, pct);
        combustible(std::string("cboTipCom ") + std::string(c.nombre));
    }
    ElegirEntradaLista(e, r.msj, kOtrosCombustibles, f, vf, sf, pct);
    combustible("cboTipCom Otros");
    f.cienC = "84,5", f.cienN = "", f.cienO = "1.2", f.cienS = "0.3", f.masaMolecular = "0,15",
    f.entalpiaFormacion = "-200000";
    CalcularCombustiblePropio(e, r.msj, kOtrosCombustibles, f, vf, sf, pct);
    combustible("cmdCal por masa");
    ElegirFormaPropia(vf, FormaCombustible::Formula);
    f.atomosC = "7", f.atomosH = "16", f.atomosN = "", f.atomosO = "", f.atomosS = "";
    CalcularCombustiblePropio(e, r.msj, kOtrosCombustibles, f, vf, sf, pct);
    combustible("cmdCal por formula");
    ElegirFormaPropia(vf, FormaCombustible::Masa);
    f.cienC = "60", f.cienO = "45";
    CalcularCombustiblePropio(e, r.msj, kOtrosCombustibles, f, vf, sf, pct);
    combustible("cmdCal por masa de mas de 100");

    // The combustion: neither box leads until one is clicked.
    ElegirEntradaLista(e, r.msj, "Gasolina", f, vf, sf, pct);
    Entradas g;
    VariablesCombustion vg;
    std::optional<FormaDosado> lider;
    auto gases = [&](const std::string& evento) {
        r(evento, {{"txtFr", g.fr},
                   {"txtLambda", g.lambda},
                   {"opt", Si(lider == FormaDosado::Fr) + Si(lider == FormaDosado::Lambda)},
                   {"Fr", TextoGeneral(e.Fr, '.')},
                   {"Lambda", TextoGeneral(vg.Lambda, '.')},
                   {"Error", Bandera(e.ErrorCalculo)}});
    };
    auto cambia = [&](FormaDosado caja) {
        if (lider != caja) return;
        g.formaDosado = caja;
        (caja == FormaDosado::Fr ? txtFr_Change : txtLambda_Change)(e, r.msj, g, vg);
    };
    FormGases_Load(e, vg);
    gases("FormGases_Load");
    g.fr = "0,9";
    cambia(FormaDosado::Fr);
    gases("txtFr_Change sin optFr");
    lider = FormaDosado::Fr;
    cambia(FormaDosado::Fr);
    gases("txtFr_Change 0,9");
    for (const char* t : {"-1", "0", "x"}) {
        g.fr = t;
        cambia(FormaDosado::Fr);
        gases(std::string("txtFr_Change ") + t);
    }
    lider = FormaDosado::Lambda;
    for (const char* t : {"1.2", "-2", "3"}) {
        g.lambda = t;
        cambia(FormaDosado::Lambda);
        gases(std::string("txtLambda_Change ") + t);
    }
    e.ErrorCalculo = false;
    const bool humosBien = CalcularHumos(e, r.msj, g, vg, pct);
    gases(std::string("CalcularHumos ") + Si(humosBien));

    // The cycle window.
    Entradas c;
    FormCiclo_Load(e, c);
    r("FormCiclo_Load", {{"txtP1", *c.p1},
                         {"txtT1", *c.t1},
                         {"modelos", std::to_string(static_cast<int>(e.ModeloCompresion)) +
                                         std::to_string(static_cast<int>(e.ModeloExpansion))}});
    VistaCiclo vista{};
    std::string propPcte = "50";
    auto ciclo = [&](const std::string& evento) {
        const Marcos& m = vista.marcos;
        const CiclosResaltados& h = vista.resaltados;
        r(evento, {{"TipoCiclo", e.TipoCiclo},
                   {"Pmax", TextoGeneral(e.Pmax, '.')},
                   {"marcos", Si(m.compresion) + Si(m.expansion) + Si(m.aire) + Si(m.opcion) + Si(m.datos) +
                                  Si(m.seleccionar)},
                   {"resaltado", Si(h.otto) + Si(h.diesel) + Si(h.mixto)},
                   {"OpcionProporcion", Bandera(e.OpcionProporcion)},
                   {"PropVcte", c.proporcionVcte},
                   {"PropPcte", propPcte}});
    };
    vista = ElegirCiclo(e, TipoCiclo::Mixto);
    optProporcion_Click(e);
    ciclo("imgMixto optProporcion");
    vista = ElegirCiclo(e, TipoCiclo::Otto);
    ciclo("imgOtto");
    e.Pmax = 1;
    vista = ElegirCiclo(e, TipoCiclo::Diesel);
    ciclo("imgDiesel");
    for (const char* t : {"30", "101", "", "100"}) {
        c.proporcionVcte = t;
        propPcte = txtPropVcte_Change(e, r.msj, c);
        ciclo(std::string("txtPropVcte_Change ") + t);
    }
    optPmax_Click(e);
    ciclo("optPmax");

    // A maximum pressure below the compression's: the focus goes to the
    // pressure up to a compression ratio of 30, beyond it to the ratio.
    for (const char* rc : {"30", "30.0001"}) {
        OpcionesCalculo o;
        o.valores = {{"ciclo", "Mixto"}, {"pmax", "1000"}, {"rc", rc}};
        const Entradas x = EntradasDeOpciones(o);
        const ResultadoCalculo todo = Calcular(x);
        for (const MensajeCalculo& texto : todo.mensajes) r.msj.MsgBox(texto.texto);
        // CALCULAR again on a cycle window that was never loaded (its boxes of
        // state 1 as designed), with the state the stages left.
        Estado m = *todo.estado;
        Entradas ventana = x;
        ventana.p1 = "100000", ventana.t1 = "298";
        Mensajes otra;
        DiagramasNulos g;
        Diagramas d = g.Todos();
        CalcularCiclo(m, otra, ventana, d, todo.tipoCombustible);
        for (const MensajeCalculo& texto : otra.lista) r.msj.MsgBox(texto.texto);
        r(std::string("CalcularCiclo Mixto Pmax 1000 Rc ") + rc,
          {{"foco Pmax", Si(otra.foco.nombre == "pmax")}, {"foco Rc", Si(otra.foco.nombre == "rc")}});
    }

    // The power block, on a calculated cycle's work.
    e.Wciclo = 149.4567;
    for (const char* t : {"3000", "", "rpm", "-1200", "1e306"}) {
        e.ErrorCalculo = false;
        const auto p = txtRpm_Change(e, r.msj, e.Wciclo, t);
        r(std::string("txtRpm_Change ") + t,
          {{"W", p ? p->potencia : "antes"}, {"CV", p ? p->potenciaCV : "antes"}});
    }
    EXPECT_EQ(CompararDorado("pantallas.txt", r.s), "");
}
