#include "core/workflow/Flujo.h"

namespace vanta {

namespace {

void Contar(const Flujo& f, const std::string& llamada) {
    if (f.alLlamar) f.alLlamar(llamada);
}

void CalcularCiclo(Flujo& f, const CalculoCiclo& calcular) {
    Contar(f, "CalcularCiclo");
    calcular();
}

std::string Texto(const Botones& b) {
    std::string s = "Ocultabotones(";
    for (bool v : {b.comburente, b.combustible, b.combustion, b.ciclo, b.resultados, b.informe})
        s += s.back() == '(' ? (v ? "1" : "0") : (v ? " 1" : " 0");
    return s + ")";
}

Vista VistaDe(Diagrama d) {
    switch (d) {
        case Diagrama::PV:
            return Vista::PV;
        case Diagrama::TV:
            return Vista::TV;
        case Diagrama::TS:
            return Vista::TS;
        case Diagrama::HS:
            return Vista::HS;
    }
    return Vista::General;
}

void MostrarGraficas(Flujo& f, bool visibles) {
    f.visible.pct1 = f.visible.pct2 = f.visible.pct3 = visibles;
}

void MarcarVista(Flujo& f) {
    Marcas& m = f.marcado;
    m.mnuVerTodo = f.vista == Vista::General;
    m.mnuPV = f.vista == Vista::PV;
    m.mnuTV = f.vista == Vista::TV;
    m.mnuTS = f.vista == Vista::TS;
    m.mnuHS = f.vista == Vista::HS;
}

// What a stage that did not calculate keeps disabled: the next stage, and for
// the combustion the cycle's menu entries too.
void Bloquear(Flujo& f) {
    Habilitados& h = f.habilitado;
    if (f.sinCalcular.comburente) h.cmdCombustible = false;
    if (f.sinCalcular.combustible) h.cmdCarCombustion = false;
    if (f.sinCalcular.combustion) h.cmdCarCiclo = h.mnuCalcular = h.mnuTablasActual = false;
}

bool* Pendiente(Flujo& f, Etapa etapa) {
    switch (etapa) {
        case Etapa::Comburente:
            return &f.sinCalcular.comburente;
        case Etapa::Combustible:
            return &f.sinCalcular.combustible;
        case Etapa::Combustion:
            return &f.sinCalcular.combustion;
        default:
            return nullptr;
    }
}

}  // namespace

void Ocultabotones(Flujo& f, const Botones& b) {
    Contar(f, Texto(b));
    Habilitados& h = f.habilitado;
    Visibles& v = f.visible;
    v.imgPresentacion = false;
    h.cmdElegirComburente = b.comburente;
    h.cmdCombustible = b.combustible;
    h.cmdCarCombustion = b.combustion;
    h.cmdCarCiclo = b.ciclo;
    v.cmdEnvBaseDatos = b.resultados;
    v.cmdInforme = b.informe;
    h.mnuBDatos = b.resultados;
    h.mnuInforme = b.informe;
    h.mnuTablasActual = b.ciclo;
    v.fraPuntos = v.fraTransformaciones = v.fraEstadoActual = b.resultados;
    h.mnuCalcular = b.ciclo;
    h.mnuVerTodo = h.mnuVerCiclo = b.resultados;
    v.pct2 = b.combustion;
    v.pct3 = b.ciclo;
    v.pctTV = v.pctPV = v.pctTS = b.resultados;
    h.mnuGuardar = b.resultados;
    v.fraPotencia = b.resultados;
    f.botones = b;
    Bloquear(f);
}

void PonerGraficosTodos(Flujo& f) {
    Contar(f, "PonerGraficosTodos");
    ColocarTodos(f.lugar, f.ventana);
    f.encima = Diagrama::TS;
    f.vista = f.lugaresDe = Vista::General;
    Visibles& v = f.visible;
    MostrarGraficas(f, true);
    v.pctTV = v.pctTS = true;
    v.pctHS = false;
    v.fraBotonera = v.fraPuntos = v.fraPotencia = true;
    v.chkVerHs = false;
    chkVerHs_Click(f, false);
    CambiarTamaño(f);
    MarcarVista(f);
}

void CambiarTamaño(Flujo& f) {
    Contar(f, "CambiarTamaño");
    ColocarCambiarTamaño(f.lugar, f.ventana);
}

Flujo Form_Load(const TamanoVentana& ventana) {
    Flujo f;
    f.ventana = ventana;
    PonerGraficosTodos(f);
    ColocarHSInicial(f.lugar);
    Visibles& v = f.visible;
    v.fraPotencia = v.fraPuntos = v.fraTransformaciones = false;
    MostrarGraficas(f, false);
    v.pctPV = v.pctTV = v.pctTS = false;
    f.habilitado.mnuVerCiclo = f.habilitado.mnuVerTodo = f.habilitado.mnuCalcular = false;
    v.imgPresentacion = true;
    return f;
}

void cmdElegirComburente_Click(Flujo& f) {
    PonerGraficosTodos(f);
    f.visible.pct1 = true;
    Ocultabotones(f, {.comburente = true,
                      .combustible = true,
                      .combustion = false,
                      .ciclo = false,
                      .resultados = false,
                      .informe = false});
    f.etapa = Etapa::Comburente;
}

void mnuNuevo_Click(Flujo& f) {
    f.visible.pct1 = true;
    Ocultabotones(f, {.comburente = true,
                      .combustible = true,
                      .combustion = false,
                      .ciclo = false,
                      .resultados = false,
                      .informe = false});
    f.etapa = Etapa::Comburente;
}

void cmdCombustible_Click(Flujo& f) {
    Ocultabotones(f, {.comburente = true,
                      .combustible = true,
                      .combustion = true,
                      .ciclo = false,
                      .resultados = false,
                      .informe = false});
    f.etapa = Etapa::Combustible;
}

void cmdCarCombustion_Click(Flujo& f) {
    Ocultabotones(f, {.comburente = false,
                      .combustible = true,
                      .combustion = true,
                      .ciclo = true,
                      .resultados = false,
                      .informe = false});
    f.etapa = Etapa::Combustion;
}

void mnuTablas_Click(Flujo& f) {
    Ocultabotones(f, {.comburente = true,
                      .combustible = false,
                      .combustion = false,
                      .ciclo = false,
                      .resultados = false,
                      .informe = false});
    f.etapa = Etapa::SoloTablas;
}

void CalculoTerminado(Flujo& f, bool bien) {
    f.etapa = bien ? Etapa::CicloCalculado : Etapa::ErrorDeCiclo;
    f.intentoFallido = !bien;
    if (!bien) f.habilitado.mnuBDatos = false;
}

void EtapaNoCalculada(Flujo& f, Etapa etapa) {
    if (bool* p = Pendiente(f, etapa)) *p = true;
    Bloquear(f);
}

void EtapaCalculada(Flujo& f, Etapa etapa) {
    bool* p = Pendiente(f, etapa);
    if (!p || !*p) return;
    *p = false;
    Habilitados& h = f.habilitado;
    const Botones& b = f.botones;
    if (etapa == Etapa::Comburente) h.cmdCombustible = b.combustible;
    if (etapa == Etapa::Combustible) h.cmdCarCombustion = b.combustion;
    if (etapa == Etapa::Combustion) h.cmdCarCiclo = h.mnuCalcular = h.mnuTablasActual = b.ciclo;
    Bloquear(f);
}

void chkVerHs_Click(Flujo& f, bool marcada) {
    f.marcado.chkVerHs = marcada;
    f.visible.pctHS = marcada;
}

void PonerGraficos(Flujo& f, Diagrama d, const CalculoCiclo& calcular) {
    if (!DebeAmpliar(d, f.lugar, f.ventana)) {
        PonerGraficosTodos(f);
        CalcularCiclo(f, calcular);
        return;
    }
    ColocarAmpliado(d, f.lugar, f.ventana);
    f.lugaresDe = VistaDe(d);
    f.encima = RecuadroDe(d);
    Visibles& v = f.visible;
    MostrarGraficas(f, false);
    v.pctTS = true;
    if (d == Diagrama::HS) v.pctHS = true;
    v.fraBotonera = v.fraPotencia = false;
    CalcularCiclo(f, calcular);
    f.vista = VistaDe(d);
    MarcarVista(f);
    v.fraPotencia = false;
    v.chkVerHs = true;
    v.fraPuntos = false;
    CambiarTamaño(f);
    MostrarGraficas(f, false);
    v.fraPuntos = v.fraTransformaciones = false;
}

void ClickDiagrama(Flujo& f, Diagrama d, const CalculoCiclo& calcular) {
    if (EtapaCicloAbierta(f)) CalcularCiclo(f, calcular);
    PonerGraficos(f, d, calcular);
}

void MenuDiagrama(Flujo& f, Diagrama d, const CalculoCiclo& calcular) {
    PonerGraficos(f, d, calcular);
}

void mnuVerTodo_Click(Flujo& f) {
    PonerGraficosTodos(f);
}

std::string TextoIntentoFallido(const std::vector<std::string>& mensajes) {
    std::string causa;
    for (const std::string& m : mensajes) {
        const size_t desde = m.find_first_not_of(' ');
        if (desde == std::string::npos) continue;
        if (!causa.empty()) causa += " / ";
        causa += m.substr(desde, m.find_last_not_of(' ') - desde + 1);
    }
    return "Las cifras son del último cálculo completo; el último intento falló" +
           (causa.empty() ? std::string(".") : ": " + causa);
}

void NuevoTamano(Flujo& f, const TamanoVentana& ventana) {
    const TamanoVentana antes = f.ventana;
    f.ventana = ventana;
    Lugares& l = f.lugar;
    if (f.vista == Vista::General) {
        const Lugar hs = l.pctHS;
        ColocarTodos(l, ventana);
        l.pctHS = Escalado(hs, antes, ventana);
        return;
    }
    ColocarAmpliado(static_cast<Diagrama>(static_cast<int>(f.vista) - 1), l, ventana);
    ColocarCambiarTamaño(l, ventana);
}

BanderasNombradas PorNombre(const Habilitados& h) {
    return {{"cmdElegirComburente", h.cmdElegirComburente},
            {"cmdCombustible", h.cmdCombustible},
            {"cmdCarCombustion", h.cmdCarCombustion},
            {"cmdCarCiclo", h.cmdCarCiclo},
            {"mnuInforme", h.mnuInforme},
            {"mnuBDatos", h.mnuBDatos},
            {"mnuGuardar", h.mnuGuardar},
            {"mnuTablasActual", h.mnuTablasActual},
            {"mnuCalcular", h.mnuCalcular},
            {"mnuVerTodo", h.mnuVerTodo},
            {"mnuVerCiclo", h.mnuVerCiclo}};
}

BanderasNombradas PorNombre(const Visibles& v) {
    return {{"imgPresentacion", v.imgPresentacion},
            {"fraBotonera", v.fraBotonera},
            {"pct1", v.pct1},
            {"pct2", v.pct2},
            {"pct3", v.pct3},
            {"pctPV", v.pctPV},
            {"pctTV", v.pctTV},
            {"pctTS", v.pctTS},
            {"pctHS", v.pctHS},
            {"fraPuntos", v.fraPuntos},
            {"fraTransformaciones", v.fraTransformaciones},
            {"fraPotencia", v.fraPotencia},
            {"fraEstadoActual", v.fraEstadoActual},
            {"cmdInforme", v.cmdInforme},
            {"cmdEnvBaseDatos", v.cmdEnvBaseDatos},
            {"chkVerHs", v.chkVerHs}};
}

BanderasNombradas PorNombre(const Marcas& m) {
    return {{"mnuVerTodo", m.mnuVerTodo}, {"mnuPV", m.mnuPV}, {"mnuTV", m.mnuTV},
            {"mnuTS", m.mnuTS},           {"mnuHS", m.mnuHS}, {"chkVerHs", m.chkVerHs}};
}

}  // namespace vanta
