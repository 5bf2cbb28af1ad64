#include "core/sequence/Calculo.h"

#include <cmath>
#include <sstream>

#include "core/fluids/AireHumedo.h"
#include "core/fluids/Combustible.h"
#include "core/services/Fallos.h"
#include "core/services/JSON.h"
#include "core/warnings/CicloIdeal.h"

namespace vanta {

namespace {

constexpr std::string_view kCausaLambdaCero = "Lambda es cero y el dosado relativo Fr = 1/Lambda no existe";

// The air screen's CALCULAR on the texts of the ambient.
bool EtapaAire(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s) {
    return CalcularAire(e, msj, x, s.pct1) && !e.ErrorCalculo;
}

// The fuel screen as it opens (nothing chosen, no option selected): the list
// entry chosen; for the user's own fuel, the option clicked, the boxes typed
// and CALCULAR pressed.
bool EtapaCombustible(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s) {
    Entradas cajas = x;
    VistaCombustible vista;
    SalidasCombustible salidas;
    const std::string lista = TextoListaCombustible(x);
    ElegirEntradaLista(e, msj, lista, cajas, vista, salidas, s.pct2);
    if (x.formaCombustible == FormaCombustible::Lista) return !e.ErrorCalculo;
    ElegirFormaPropia(vista, x.formaCombustible);
    CalcularCombustiblePropio(e, msj, lista, cajas, vista, salidas, s.pct2);
    return !e.ErrorCalculo;
}

// The combustion screen: Fr typed with its box leading, or Lambda, whose
// change puts Fr rounded to 3 decimals into the box of Fr; then CALCULAR.
bool EtapaCombustion(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s) {
    Entradas cajas = x;
    VariablesCombustion variables;
    FormGases_Load(e, variables);
    if (x.formaDosado == FormaDosado::Lambda) {
        txtLambda_Change(e, msj, cajas, variables);
        // A Lambda of 0 changes nothing on the screen; here it would leave Fr
        // at the box's 1 without a word.
        if (!e.ErrorCalculo && variables.Lambda == 0) FalloAritmetico(e, msj, kCausaLambdaCero);
    } else {
        txtFr_Change(e, msj, cajas, variables);
    }
    if (e.ErrorCalculo) return false;
    return CalcularHumos(e, msj, cajas, variables, s.pct3);
}

// The cycle window: loaded (its boxes of state 1 take the ambient unless
// typed), the cycle chosen by its picture, the models and the Mixto option
// clicked, then CALCULAR.
bool EtapaCiclo(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s, ResultadoCalculo& r) {
    Entradas cajas = x;
    Entradas cargada = x;
    FormCiclo_Load(e, cargada);
    if (!x.p1) cajas.p1 = cargada.p1;
    if (!x.t1) cajas.t1 = cargada.t1;
    FormCiclo_Activate(e);
    ElegirCiclo(e, x.ciclo);
    ElegirModeloCompresion(e, x.compresion);
    ElegirModeloExpansion(e, x.expansion);
    if (x.reparto == RepartoMixto::Proporcion) {
        optProporcion_Click(e);
        txtPropVcte_Change(e, msj, cajas);
    } else if (x.ciclo == TipoCiclo::Mixto) {
        optPmax_Click(e);
    }
    if (e.ErrorCalculo) return false;
    ResultadoCiclo ciclo = CalcularCiclo(e, msj, cajas, s.diagramas, r.tipoCombustible);
    r.informe = std::move(ciclo.informe);
    r.textos = std::move(ciclo.textos);
    return ciclo.bien;
}

ResultadoCalculo CalcularEnEstado(const Entradas& x, SuperficiesCalculo& s, char separador) {
    auto e = std::make_shared<Estado>();
    GuardarColoresDiagramas(*e);
    e->SeparadorDecimal = separador;
    Mensajes msj;
    ResultadoCalculo r;
    r.entradas = x;
    r.tipoCombustible = TextoListaCombustible(x);
    if (!EtapaAire(*e, msj, x, s))
        r.parada = EtapaEntrada::Aire;
    else if (!EtapaCombustible(*e, msj, x, s))
        r.parada = EtapaEntrada::Combustible;
    else if (!EtapaCombustion(*e, msj, x, s))
        r.parada = EtapaEntrada::Combustion;
    else if (!EtapaCiclo(*e, msj, x, s, r))
        r.parada = EtapaEntrada::Ciclo;
    r.bien = !r.parada;
    if (r.bien) {
        r.avisos = AvisosValidez(*e, r.tipoCombustible);
        // The speed on a copy: the state stays the calculation's.
        // An empty speed leaves the power boxes empty.
        if (x.rpm && x.rpm->empty()) r.potencia.emplace();
        if (x.rpm && !x.rpm->empty()) {
            Estado regimen = *e;
            const double vatios = Potencia(regimen, msj, regimen.Wciclo, *x.rpm);
            if (regimen.ErrorCalculo) {
                r.bien = false;
                r.parada = EtapaEntrada::Regimen;
            } else {
                r.vatios = vatios;
                r.potencia = TextosDePotencia(regimen, vatios);
            }
        }
    }
    r.estado = std::move(e);
    r.mensajes = std::move(msj.lista);
    r.foco = std::move(msj.foco);
    return r;
}

// ---- JSON of the state ---------------------------------------------------------

struct EscritorJSON {
    std::string& s;
    bool primero = true;
    void Clave(const char* nombre) {
        s += primero ? "{\"" : ",\"";
        s += nombre;
        s += "\":";
        primero = false;
    }
    void operator()(const char* nombre, double v) { Clave(nombre), s += TextoNumeroJSON(v); }
    void operator()(const char* nombre, float v) { Clave(nombre), s += TextoNumeroJSON(v); }
    // The program's flags are written as it keeps them: True -1, False 0.
    void operator()(const char* nombre, bool v) { Clave(nombre), s += v ? "-1" : "0"; }
    void operator()(const char* nombre, int32_t v) { Clave(nombre), s += std::to_string(v); }
    void operator()(const char* nombre, Fluido v) { Clave(nombre), s += std::to_string(static_cast<int>(v)); }
    void operator()(const char* nombre, Modelo v) { Clave(nombre), s += std::to_string(static_cast<int>(v)); }
    void operator()(const char* nombre, const std::string& v) { Clave(nombre), s += TextoCadenaJSON(v); }
    void operator()(const char* nombre, const Variante& v) {
        Clave(nombre);
        if (const std::string* t = v.Texto())
            s += TextoCadenaJSON(*t);
        else if (v.EsNumero())
            s += TextoNumeroJSON(v.Numero());
        else
            s += "\"\"";  // an empty variant reads as the empty text
    }
};

}  // namespace

std::vector<std::string> ResultadoCalculo::TextosMensajes() const {
    std::vector<std::string> t;
    for (const MensajeCalculo& m : mensajes) t.push_back(m.texto);
    return t;
}

ResultadoCalculo Calcular(const Entradas& x, SuperficiesCalculo& s, char separador) {
    return CalcularEnEstado(x, s, separador);
}

ResultadoCalculo Calcular(const Entradas& x, char separador) {
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    return CalcularEnEstado(x, s, separador);
}

bool DefinirFluido(Estado& e, Mensajes& msj, const Entradas& x, SuperficiesCalculo& s, bool conGases) {
    if (!EtapaAire(e, msj, x, s)) return false;
    return !conGases || (EtapaCombustible(e, msj, x, s) && EtapaCombustion(e, msj, x, s));
}

bool DibujarGraficas(Estado& e, const Entradas& x, SuperficiesCalculo& s, int etapas) {
    Mensajes msj;
    return EtapaAire(e, msj, x, s) && (etapas < 2 || EtapaCombustible(e, msj, x, s)) &&
           (etapas < 3 || EtapaCombustion(e, msj, x, s));
}

std::string EstadoJSON(const Estado& e) {
    std::string s;
    s.reserve(8192);
    EscritorJSON escritor{s};
    VisitarCampos(e, escritor);
    return s + "}";
}

std::string ResultadoJSON(const ResultadoCalculo& r) {
    const Estado& e = *r.estado;
    const bool bien = r.CicloCalculado();
    std::string json = EstadoJSON(e);
    json.pop_back();  // the closing brace
    json += ",\"avisos\":[";
    bool primero = true;
    for (const Aviso& a : r.avisos) {
        json += (primero ? "" : ",") + TextoCadenaJSON(a.texto);
        primero = false;
    }
    json += "]";
    if (bien) {
        const DistanciaIdeal d = DistanciaAlIdeal(e);
        if (d.aireEstandar.valido)
            json += ",\"RendimientoIdealAireEstandar\":" + TextoNumeroJSON(d.aireEstandar.rendimiento);
        if (d.exponentes.valido) {
            json += ",\"RendimientoIdealExponentes\":" + TextoNumeroJSON(d.exponentes.rendimiento);
            json += ",\"ExponenteMedioCompresion\":" + TextoNumeroJSON(d.exponentes.gammaCompresion);
            json += ",\"ExponenteMedioExpansion\":" + TextoNumeroJSON(d.exponentes.gammaExpansion);
        }
    }
    return json + "}";
}

}  // namespace vanta
