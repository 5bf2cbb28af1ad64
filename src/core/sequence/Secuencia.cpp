#include "core/sequence/Secuencia.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <sstream>

#include "core/cycle/PantallaCiclo.h"
#include "core/cycle/Transformaciones.h"
#include "core/fluids/AireHumedo.h"
#include "core/fluids/Combustible.h"
#include "core/fluids/Combustion.h"
#include "core/services/Fallos.h"

namespace vanta {

namespace {

struct Opcion {
    const char* nombre;
    const char* porDefecto;  // nullptr: no default (depends on other options or unused)
};

// The options with a value, and the defaults the screens start with.
const Opcion kOpciones[] = {
    {"presion-ambiente", kTextoPresionAmbiente},
    {"temperatura-ambiente", kTextoTemperaturaAmbiente},
    {"humedad", kTextoHumedad},
    {"combustible", "Gasolina"},
    {"formula", nullptr},
    {"masa", nullptr},
    {"masa-molecular", nullptr},
    {"entalpia-formacion", nullptr},
    {"fr", kTextoInicialDosado.data()},
    {"lambda", nullptr},
    {"ciclo", "Otto"},
    {"cilindrada", kTextoCilindrada},
    {"rc", kTextoRc},
    {"p1", nullptr},  // the ambient pressure, as the cycle window loads it
    {"t1", nullptr},  // the ambient temperature
    {"compresion", "medio"},
    {"n-compresion", kTextoNCompresion},
    {"expansion", "medio"},
    {"n-expansion", kTextoNExpansion},
    {"proporcion-vcte", kTextoPropVcte},
    {"pmax", kTextoPMax},
    {"rpm", nullptr},
};

const Opcion* BuscarOpcion(const std::string& nombre) {
    for (const auto& o : kOpciones)
        if (nombre == o.nombre) return &o;
    return nullptr;
}

}  // namespace

std::string OpcionesCalculo::Valor(const std::string& nombre) const {
    if (auto it = valores.find(nombre); it != valores.end()) return it->second;
    if (nombre == "p1") return Valor("presion-ambiente");
    if (nombre == "t1") return Valor("temperatura-ambiente");
    const Opcion* op = BuscarOpcion(nombre);
    return op && op->porDefecto ? op->porDefecto : "";
}

bool EsOpcionCalculo(const std::string& nombre) {
    return BuscarOpcion(nombre) != nullptr;
}

std::vector<std::string> SepararLista(const std::string& lista) {
    std::vector<std::string> campos(1);
    for (char c : lista) {
        if (c == ',')
            campos.emplace_back();
        else
            campos.back() += c;
    }
    return campos;
}

namespace {

// The air screen with the option texts in its boxes.
bool EtapaAire(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s) {
    CajaTextoSimple txtPreAmb(o.Valor("presion-ambiente")), txtTemAmb(o.Valor("temperatura-ambiente")),
        txtHum(o.Valor("humedad"));
    InterruptorSimple chkOcultar(true);
    VentanaSimple ventana;
    ControlesAire c{.txtPreAmb = txtPreAmb,
                    .txtTemAmb = txtTemAmb,
                    .txtHum = txtHum,
                    .chkOcultar = chkOcultar,
                    .ventana = ventana,
                    .pct1 = s.pct1};
    return CalcularAire(e, dlg, c) && !e.ErrorCalculo;
}

// The fuel screen: the list entry chosen; for the user's own fuel, the option
// clicked, the boxes typed and CALCULAR pressed.
bool EtapaCombustible(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s) {
    PantallaCombustibleSimple p;
    ControlesCombustible c = p.Controles(s.pct2);
    p.cboTipCom.SetText(TextoListaCombustible(o));
    cboTipCom_Click(e, dlg, c);
    if (o.Tiene("formula")) {
        optFOR_Click(c);
        const auto n = SepararLista(o.Valor("formula"));
        CajaTexto* cajas[] = {&p.txtMolC, &p.txtMolH, &p.txtMolN, &p.txtMolO, &p.txtMolS};
        for (size_t i = 0; i < n.size(); ++i) cajas[i]->SetText(n[i]);
    } else if (o.Tiene("masa")) {
        optMasa_Click(c);
        const auto n = SepararLista(o.Valor("masa"));
        CajaTexto* cajas[] = {&p.txtC, &p.txtN, &p.txtO, &p.txtS};
        for (size_t i = 0; i < n.size(); ++i) cajas[i]->SetText(n[i]);
        p.txtmmComb.SetText(o.Valor("masa-molecular"));
    }
    if (o.Tiene("entalpia-formacion")) p.txtEntPro.SetText(o.Valor("entalpia-formacion"));
    if (o.Tiene("formula") || o.Tiene("masa")) cmdCal_Click(e, dlg, c);
    return !e.ErrorCalculo;
}

// The combustion screen: Fr typed with its option leading, or Lambda, whose
// change puts Fr rounded to 3 decimals into txtFr; then CALCULAR.
bool EtapaCombustion(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s) {
    PantallaCombustionSimple p;
    ControlesCombustion c = p.Controles(s.pct3);
    FormGases_Load(e, c);
    if (o.Tiene("lambda")) {
        txtLambda_Click(c);
        p.txtLambda.SetText(o.Valor("lambda"));
        txtLambda_Change(e, dlg, c);
        // A Lambda of 0 changes nothing on the screen; here it would leave Fr
        // at the box's 1 without a word.
        if (!e.ErrorCalculo && p.variables.Lambda == 0)
            FalloAritmetico(e, dlg, "Lambda es cero y el dosado relativo Fr = 1/Lambda no existe");
    } else {
        txtFr_Click(c);
        p.txtFr.SetText(o.Valor("fr"));
        txtFr_Change(e, dlg, c);
    }
    if (e.ErrorCalculo) return false;
    return CalcularHumos(e, dlg, c);
}

// Selects one of three options, as a click on it does.
void Elegir(Interruptor& elegida, std::initializer_list<Interruptor*> todas) {
    for (Interruptor* o : todas) o->SetValue(o == &elegida);
}

// The cycle window: the cycle chosen by its picture, the boxes typed, the
// models and the Mixto option clicked, then CALCULAR.
bool EtapaCiclo(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s,
                VentanaPrincipal& v) {
    PantallaCicloSimple p;
    ControlesCiclo c = p.Controles();
    FormCiclo_Load(e, c);
    FormCiclo_Activate(e);
    const std::string ciclo = o.Valor("ciclo");
    if (ciclo == "Otto") imgOtto_Click(e, p.formulario);
    if (ciclo == "Diesel") imgDiesel_Click(e, p.formulario);
    if (ciclo == "Mixto") imgMixto_Click(e, p.formulario);

    p.txtCilindrada.SetText(o.Valor("cilindrada"));
    p.txtRc.SetText(o.Valor("rc"));
    if (o.Tiene("p1")) p.txtP1.SetText(o.Valor("p1"));
    if (o.Tiene("t1")) p.txtT1.SetText(o.Valor("t1"));

    const Modelo compresion = ModeloDeNombre(o.Valor("compresion")).value_or(Modelo::GammaMedio);
    const Modelo expansion = ModeloDeNombre(o.Valor("expansion")).value_or(Modelo::GammaMedio);
    Elegir(compresion == Modelo::Politropico     ? p.optPolitropicaCom
           : compresion == Modelo::GammaVariable ? p.optGvariable
                                                 : p.optGmedioCom,
           {&p.optPolitropicaCom, &p.optGvariable, &p.optGmedioCom});
    ElegirModeloCompresion(e, compresion);
    p.txt_nCom.SetText(o.Valor("n-compresion"));
    Elegir(expansion == Modelo::Politropico     ? p.optPolitropica
           : expansion == Modelo::GammaVariable ? p.optGvariableExp
                                                : p.optGmedioExp,
           {&p.optPolitropica, &p.optGvariableExp, &p.optGmedioExp});
    ElegirModeloExpansion(e, expansion);
    p.txt_nExp.SetText(o.Valor("n-expansion"));

    if (o.Tiene("proporcion-vcte")) {
        Elegir(p.optProporcion, {&p.optProporcion, &p.optPmax});
        optProporcion_Click(e);
        p.txtPropVcte.SetText(o.Valor("proporcion-vcte"));
        txtPropVcte_Change(e, dlg, c);
    } else if (ciclo == "Mixto") {
        optPmax_Click(e);
    }
    p.txtPMax.SetText(o.Valor("pmax"));
    if (e.ErrorCalculo) return false;
    CalcularCiclo(e, dlg, c, s.diagramas, v);
    return !e.ErrorCalculo;
}

}  // namespace

namespace {
constexpr std::pair<Modelo, std::string_view> kNombresModelos[] = {
    {Modelo::GammaMedio, "medio"}, {Modelo::Politropico, "politropica"}, {Modelo::GammaVariable, "variable"}};
}  // namespace

std::string_view NombreModelo(Modelo m) {
    for (const auto& [modelo, nombre] : kNombresModelos)
        if (modelo == m) return nombre;
    return kNombresModelos[0].second;
}

std::optional<Modelo> ModeloDeNombre(std::string_view nombre) {
    for (const auto& [modelo, n] : kNombresModelos)
        if (n == nombre) return modelo;
    return std::nullopt;
}

std::string TextoListaCombustible(const OpcionesCalculo& o) {
    return o.Tiene("formula") || o.Tiene("masa") ? std::string(kOtrosCombustibles) : o.Valor("combustible");
}

bool DefinirFluido(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s, bool conGases) {
    if (!EtapaAire(e, o, dlg, s)) return false;
    return !conGases || (EtapaCombustible(e, o, dlg, s) && EtapaCombustion(e, o, dlg, s));
}

bool CalcularTodo(Estado& e, const OpcionesCalculo& o, Dialogos& dlg, SuperficiesCalculo& s,
                  VentanaPrincipalSimple& v) {
    v.tipoCombustible = TextoListaCombustible(o);
    return DefinirFluido(e, o, dlg, s, true) && EtapaCiclo(e, o, dlg, s, v);
}

// ---- JSON ----------------------------------------------------------------------

namespace {

void EscribirTexto(std::ostream& os, const std::string& t) {
    os << '"';
    for (unsigned char c : t) {
        if (c == '"' || c == '\\')
            os << '\\' << c;
        else if (c < 0x20) {
            char b[8];
            std::snprintf(b, sizeof b, "\\u%04x", c);
            os << b;
        } else
            os << c;
    }
    os << '"';
}

template <class T>
void EscribirNumero(std::ostream& os, T v) {
    if (!std::isfinite(v)) {
        os << "null";
        return;
    }
    char b[64];
    auto r = std::to_chars(b, b + sizeof b, v);
    os.write(b, r.ptr - b);
}

struct EscritorJSON {
    std::ostream& os;
    bool primero = true;
    void Clave(const char* nombre) {
        os << (primero ? "{" : ",") << '"' << nombre << "\":";
        primero = false;
    }
    void operator()(const char* nombre, double v) { Clave(nombre), EscribirNumero(os, v); }
    void operator()(const char* nombre, float v) { Clave(nombre), EscribirNumero(os, v); }
    void operator()(const char* nombre, int16_t v) { Clave(nombre), os << v; }
    void operator()(const char* nombre, int32_t v) { Clave(nombre), os << v; }
    void operator()(const char* nombre, Fluido v) { Clave(nombre), os << static_cast<int>(v); }
    void operator()(const char* nombre, Modelo v) { Clave(nombre), os << static_cast<int>(v); }
    void operator()(const char* nombre, const std::string& v) { Clave(nombre), EscribirTexto(os, v); }
    void operator()(const char* nombre, const Variante& v) {
        Clave(nombre);
        if (const std::string* t = v.Texto())
            EscribirTexto(os, *t);
        else if (v.EsNumero())
            EscribirNumero(os, v.Numero());
        else
            os << "\"\"";  // an empty variant reads as the empty text
    }
};

}  // namespace

std::string TextoNumeroJSON(double v) {
    std::ostringstream os;
    EscribirNumero(os, v);
    return os.str();
}

std::string TextoNumeroJSON(float v) {
    std::ostringstream os;
    EscribirNumero(os, v);
    return os.str();
}

std::string TextoCadenaJSON(const std::string& t) {
    std::ostringstream os;
    EscribirTexto(os, t);
    return os.str();
}

std::string EstadoJSON(const Estado& e) {
    std::ostringstream os;
    EscritorJSON escritor{os};
    VisitarCampos(e, escritor);
    os << '}';
    return os.str();
}

}  // namespace vanta
