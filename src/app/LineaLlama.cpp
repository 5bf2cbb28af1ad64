#include "app/LineaLlama.h"

#include <algorithm>
#include <ostream>

#include "app/LineaComandos.h"
#include "app/LineaTablas.h"
#include "core/equilibrium/CicloEquilibrio.h"
#include "core/equilibrium/Llama.h"
#include "core/fluids/Combustion.h"
#include "core/inputs/Entradas.h"
#include "core/sequence/Calculo.h"
#include "core/services/JSON.h"
#include "core/services/Numeros.h"
#include "core/warnings/Cifras.h"

namespace vanta::cli {

namespace {

using equilibrio::DatosLlama;
using equilibrio::ResultadoLlama;

constexpr const char* kPrefijo = "vanta llama: ";

struct OpcionesLlama {
    bool json = false;
    bool volumenConstante = false;
    bool sinDisociacion = false;
    bool aireO2N2 = false;
    OpcionesCalcular fluido;  // the air, the fuel, Fr
};

// Why the words are off, or empty.
std::string Parsear(const std::vector<std::string>& palabras, OpcionesLlama& o) {
    const std::pair<const char*, bool*> interruptores[] = {{"--json", &o.json},
                                                           {"--volumen-constante", &o.volumenConstante},
                                                           {"--sin-disociacion", &o.sinDisociacion},
                                                           {"--aire-o2-n2", &o.aireO2N2}};
    const std::vector<std::string> argumentos = SepararIgual(palabras);
    std::vector<std::string> delFluido;
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& a = argumentos[i];
        auto interruptor = std::find_if(std::begin(interruptores), std::end(interruptores),
                                        [&](const auto& par) { return a == par.first; });
        if (interruptor != std::end(interruptores)) {
            if (*interruptor->second) return a + " se ha dado dos veces";
            *interruptor->second = true;
            continue;
        }
        if (a.rfind("--", 0) != 0) return "argumento inesperado: " + a;
        if (!EsOpcionFluido(a.substr(2))) return "opción desconocida: " + a;
        if (i + 1 >= argumentos.size()) return "falta el valor de " + a;
        delFluido.push_back(a);
        delFluido.push_back(argumentos[++i]);
    }
    Parseo p = ParsearCalcular(delFluido);
    if (!p.opciones) return p.error;
    o.fluido = *p.opciones;
    if (o.aireO2N2 && o.fluido.Tiene("humedad")) return "--aire-o2-n2 y --humedad se excluyen entre sí";
    return {};
}

// The fuel, the air and Fr as `calcular` reads them: the stages of the air
// and of the fuel, then the boxes of the combustion screen (Fr, or Lambda with
// Fr rounded to 3 decimals). The mixture is defined at Fr 1, since the
// program's combustion refuses what is too rich to burn the carbon to CO
// with the hydrogen to water, and a flame in equilibrium goes further.
bool LeerReactivos(const OpcionesCalculo& o, Mensajes& msj, DatosLlama& d) {
    Estado e;
    Entradas x = EntradasDeOpciones(o);
    Entradas estequiometrica = x;
    estequiometrica.formaDosado = FormaDosado::Fr;
    estequiometrica.fr = "1";
    SuperficiesNulas nulas;
    SuperficiesCalculo s = nulas.Todas();
    if (!DefinirFluido(e, msj, estequiometrica, s, true)) return false;
    VariablesCombustion variables;
    FormGases_Load(e, variables);
    if (x.formaDosado == FormaDosado::Lambda)
        txtLambda_Change(e, msj, x, variables);
    else
        txtFr_Change(e, msj, x, variables);
    if (e.ErrorCalculo) return false;
    d.combustible = {e.AtomosC, e.AtomosH, e.AtomosN, e.AtomosO, e.AtomosS, e.EntalpiaFormacion};
    d.aire = {};
    d.aire[equilibrio::Ar] = e.xArAire, d.aire[equilibrio::CO2] = e.xCO2Aire,
    d.aire[equilibrio::H2O] = e.xH2OAire, d.aire[equilibrio::N2] = e.xN2Aire,
    d.aire[equilibrio::O2] = e.xO2Aire;
    // A Lambda that is not positive leaves Fr as it stood: there is none.
    d.Fr = x.formaDosado == FormaDosado::Lambda && !(variables.Lambda > 0) ? 0 : e.Fr;
    d.T = e.Tambiente;
    d.p = e.Pambiente;
    return true;
}

std::string Numero(double x, std::string_view mascara) {
    return Cifra(x, mascara, '.');
}

std::string Formula(const equilibrio::Combustible& f) {
    std::string s;
    const std::pair<const char*, double> atomos[] = {
        {"C", f.C}, {"H", f.H}, {"N", f.N}, {"O", f.O}, {"S", f.S}};
    for (auto [elemento, n] : atomos)
        if (n != 0) s += elemento + (n == 1 ? std::string() : TextoGeneral(n, '.'));
    return s;
}

// One line of a table: the name, then the figure right-aligned.
std::string Fila(const std::string& nombre, const std::string& cifra) {
    return "  " + nombre + std::string(nombre.size() < 12 ? 12 - nombre.size() : 1, ' ') +
           std::string(cifra.size() < 14 ? 14 - cifra.size() : 0, ' ') + cifra + "\n";
}

std::string Texto(const DatosLlama& d, const ResultadoLlama& r, const std::string& combustible,
                  bool aireO2N2) {
    std::string t = "LLAMA ADIABÁTICA\n\n";
    t += "Combustible: " + combustible + " (" + Formula(d.combustible) + "), entalpía de formación " +
         Numero(d.combustible.entalpiaFormacion, "### ### ### ##0") + " J/mol\n";
    t += "Aire: " +
         (aireO2N2 ? "O2 + " + TextoGeneral(equilibrio::kNitrogenoPorOxigeno, '.') + " N2"
                   : "el aire húmedo del programa") +
         "\n";
    t += "Dosado relativo Fr = " + TextoGeneral(d.Fr, '.') + "\n";
    t += "Reactivos a " + Numero(d.T, "### ##0.00") + " K y " + Numero(d.p, "### ### ### ##0") +
         " Pa, en moles por mol de combustible:\n";
    t += Fila("combustible", Numero(1, "##0.000000"));
    for (int j = 0; j < equilibrio::kGases; ++j)
        if (r.aire[j] > 0) t += Fila(equilibrio::kNombresGases[j], Numero(r.aire[j], "### ##0.000000"));
    t += "Entalpía de los reactivos: " + Numero(r.entalpiaReactivos, "### ### ### ##0.0") +
         " J por mol de combustible\n\n";
    t += std::string("Combustión ") + (d.volumenConstante ? "a volumen constante" : "a presión constante") +
         (d.sinDisociacion ? ", productos de combustión completa (sin disociación)"
                           : ", productos en equilibrio químico") +
         "\n";
    t += "Temperatura de llama: " + Numero(r.productos.T, "### ##0.00") + " K\n";
    t += "Presión: " + Numero(r.productos.p, "### ### ### ##0") + " Pa\n";
    t += "Fracciones molares de los productos (las mayores que 1E-06):\n";
    std::vector<int> orden;
    for (int j = 0; j < equilibrio::kGases; ++j)
        if (r.productos.Fraccion(static_cast<equilibrio::Gas>(j)) > equilibrio::kFraccionVisible)
            orden.push_back(j);
    std::stable_sort(orden.begin(), orden.end(),
                     [&](int a, int b) { return r.productos.n[a] > r.productos.n[b]; });
    for (int j : orden)
        t += Fila(equilibrio::kNombresGases[j],
                  Numero(r.productos.Fraccion(static_cast<equilibrio::Gas>(j)), "0.000000"));
    t += "NO: " + Numero(r.productos.Fraccion(equilibrio::NO) * equilibrio::kPartesPorMillon, "### ##0.0") +
         " ppm\n";
    return t;
}

std::string JSON(const ResultadoLlama& r) {
    std::string reactivos = "{\"combustible\":" + TextoNumeroJSON(1.0);
    for (int j = 0; j < equilibrio::kGases; ++j)
        if (r.aire[j] > 0)
            reactivos +=
                ",\"" + std::string(equilibrio::kNombresGases[j]) + "\":" + TextoNumeroJSON(r.aire[j]);
    return "{\"Temperatura\":" + TextoNumeroJSON(r.productos.T) +
           ",\"Presion\":" + TextoNumeroJSON(r.productos.p) +
           ",\"FraccionesMolares\":" + equilibrio::FraccionesJSON(r.productos) +
           ",\"Reactivos\":" + reactivos + "},\"EntalpiaReactivos\":" + TextoNumeroJSON(r.entalpiaReactivos) +
           "}\n";
}

}  // namespace

std::string TextoUsoLlama() {
    return "Uso: vanta llama [opciones]   la temperatura de llama adiabática de un combustible con su aire\n"
           "  --volumen-constante       la combustión a volumen constante (si no, a presión constante)\n"
           "  --sin-disociacion         productos de combustión completa (si no, en equilibrio químico)\n"
           "  --aire-o2-n2              el aire como O2 + 3.76 N2, el de las tablas de combustión (si no,\n"
           "                            el aire húmedo del programa)\n"
           "  --json                    en lugar del texto, el resultado en JSON\n"
           "El combustible, el aire y el estado de los reactivos, con las opciones de calcular:\n" +
           AyudaEntradasFluido() +
           "Los números se escriben como en las casillas: \"0,5\" y \"0.5\" valen lo mismo.\n"
           "Una opción se escribe \"--opción valor\" o \"--opción=valor\", una vez.\n";
}

int EjecutarLlama(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err) {
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        out << TextoUsoLlama();
        return kSalidaBien;
    }
    OpcionesLlama o;
    if (std::string error = Parsear(argumentos, o); !error.empty()) {
        err << kPrefijo << error << "\n" << kVerAyuda << "vanta llama --help\n";
        return kSalidaUso;
    }
    Mensajes msj;
    DatosLlama d;
    const bool leidos = LeerReactivos(o.fluido, msj, d);
    for (const MensajeCalculo& m : msj.lista) err << kPrefijo << m.texto << '\n';
    if (!leidos) return kSalidaFallo;
    if (o.aireO2N2) d.aire = equilibrio::AireO2N2();
    d.volumenConstante = o.volumenConstante;
    d.sinDisociacion = o.sinDisociacion;
    const ResultadoLlama r = equilibrio::LlamaAdiabatica(d);
    if (!r.bien) {
        err << kPrefijo << r.mensaje << '\n';
        return kSalidaFallo;
    }
    out << (o.json ? JSON(r) : Texto(d, r, TextoListaCombustible(EntradasDeOpciones(o.fluido)), o.aireO2N2));
    return kSalidaBien;
}

}  // namespace vanta::cli
