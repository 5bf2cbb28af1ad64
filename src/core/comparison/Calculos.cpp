#include "core/comparison/Calculos.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <map>

#include "core/inputs/BibliotecaCombustibles.h"
#include "core/reports/TextosInforme.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

// A number as an input text that reads back to the same value: the general
// conversion keeps the 15 digits a typed number can have.
std::string Texto(double x) {
    return TextoGeneral(x, '.');
}

std::string Lista(std::initializer_list<double> valores) {
    std::string t;
    for (double v : valores) t += (t.empty() ? "" : ",") + Texto(v);
    return t;
}

// One run of the four stages, whatever its end: a failed run still holds the
// states it reached.
struct Ejecucion {
    std::shared_ptr<const Estado> estado;
    bool bien = false;
    CurvasCiclo curvas;
    std::string mensajes;
};

Ejecucion Ejecutar(const OpcionesCalculo& o) {
    Ejecucion x;
    SuperficieNula pct1, pct2, pct3;
    DiagramasTrazos g;
    SuperficiesCalculo s{pct1, pct2, pct3, g.Todos()};
    const ResultadoCalculo r = Calcular(EntradasDeOpciones(o), s);
    x.estado = r.estado;
    x.bien = r.CicloCalculado();
    x.curvas = CurvasDe(g);
    for (const std::string& m : r.TextosMensajes()) x.mensajes += (x.mensajes.empty() ? "" : " ") + m;
    return x;
}

CalculoComparado Comparado(std::string nombre, const OpcionesCalculo& o, const Ejecucion& x) {
    CalculoComparado c;
    c.nombre = std::move(nombre);
    c.entradas = o;
    c.tipoCombustible = TextoListaCombustible(EntradasDeOpciones(o));
    if (x.bien) {
        c.estado = x.estado;
        c.curvas = x.curvas;
    } else {
        c.mensaje = x.mensajes.empty() ? std::string(kMsgCalculoFallido) : x.mensajes;
    }
    return c;
}

// ---- Figures of a record -----------------------------------------------------------

size_t Columna(std::string_view nombre) {
    for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i)
        if (bd::kColumnasTexto[i].nombre == nombre) return i;
    return bd::kColumnaNombre;  // not reached: every name below is a column
}

// Two figures as a save writes them, whatever the decimal separator.
bool MismoTexto(std::string a, std::string b) {
    for (std::string* t : {&a, &b})
        for (char& c : *t)
            if (c == ',') c = '.';
    return a == b;
}

bool Coinciden(const bd::TextosRegistro& calculo, const bd::TextosRegistro& t,
               const std::vector<std::string_view>& nombres) {
    for (std::string_view n : nombres)
        if (!MismoTexto(calculo[Columna(n)], t[Columna(n)])) return false;
    return true;
}

bool EsColumnaDeCifras(size_t i) {
    return i != bd::kColumnaNombre && i != bd::kColumnaInforme && i != Columna("TipoCombustible");
}

// The figures that the compression settles, those of the heat processes
// (both reached by the silent pass, before anything that may fail later) and
// those of the expansion and the closing sums.
const std::vector<std::string_view> kCifrasCompresion = {
    "Atomos de C", "Atomos de H", "Atomos de N", "Atomos de O", "Atomos de S", "Cien C",      "Cien H",
    "Cien N",      "Cien O",      "Cien S",      "HCS",         "HCI",         "Calor vap",   "Lambda",
    "Fr",          "HCIhumos",    "Fe",          "Humedad",     "Pambiente",   "Psaturacion", "Tambiente",
    "p1",          "p2",          "V1",          "V2",          "T1",          "T2",          "h1",
    "h2",          "S1",          "S2",          "gamma1",      "Gamma2"};
const std::vector<std::string_view> kCifrasCalor = {"p3", "p4", "V3", "V4",  "T3",  "T4",    "h3",
                                                    "h4", "S3", "S4", "Q23", "Q34", "Qciclo"};

const std::vector<std::string_view> kCifrasExpansion = {
    "p5", "V5", "T5", "h5", "S5", "W12", "W34", "W45", "Wciclo", "Rendimiento", "Gamma4", "Gamma5"};

std::vector<std::string_view> Unir(std::vector<std::string_view> a, const std::vector<std::string_view>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// ---- The report of a record --------------------------------------------------------

// What follows a label at the start of a line of the report.
std::optional<std::string> TrasRotulo(const std::string& informe, std::string_view rotulo) {
    size_t inicio = 0;
    while (inicio < informe.size()) {
        size_t fin = informe.find('\n', inicio);
        if (fin == std::string::npos) fin = informe.size();
        std::string_view linea(informe.data() + inicio, fin - inicio);
        if (!linea.empty() && linea.back() == '\r') linea.remove_suffix(1);
        if (linea.substr(0, rotulo.size()) == rotulo) return std::string(linea.substr(rotulo.size()));
        inicio = fin + 1;
    }
    return std::nullopt;
}

// A figure of the report as an input text: the blanks that group its
// thousands go, and it ends where the unit begins.
std::optional<std::string> NumeroDelInforme(const std::string& informe, std::string_view rotulo) {
    const auto resto = TrasRotulo(informe, rotulo);
    if (!resto) return std::nullopt;
    std::string cifra;
    for (char c : *resto) {
        if (c == ' ' && cifra.empty()) continue;
        if (c == ' ') continue;
        if ((c >= '0' && c <= '9') || c == '.' || c == ',' || c == '-' || c == '+')
            cifra += c;
        else
            break;
    }
    const auto v = LeerNumero(cifra);
    if (!v) return std::nullopt;
    return Texto(*v);
}

using Cambios = std::map<std::string, std::string>;

OpcionesCalculo Con(OpcionesCalculo o, const Cambios& cambios) {
    for (const auto& [nombre, valor] : cambios) {
        if (valor.empty())
            o.valores.erase(nombre);
        else
            o.valores[nombre] = valor;
    }
    return o;
}

// The runs of one rebuilding, each made once.
class Reconstruccion {
public:
    explicit Reconstruccion(const bd::TextosRegistro& t) : t_(t) {}

    const Ejecucion& Correr(const OpcionesCalculo& o) {
        const std::string clave = EscribirEntradas(o);
        auto it = corridas_.find(clave);
        if (it == corridas_.end()) it = corridas_.emplace(clave, Ejecutar(o)).first;
        return it->second;
    }

    // The first variant whose run gives the figures of this step and of the
    // steps before it; false when none does.
    bool Elegir(OpcionesCalculo& actual, const std::vector<Cambios>& variantes,
                const std::vector<std::string_view>& cifras) {
        for (const Cambios& v : variantes) {
            const OpcionesCalculo o = Con(actual, v);
            const Ejecucion& x = Correr(o);
            const bd::TextosRegistro calculo = bd::ValoresRegistro(*x.estado, "", "", "");
            if (Coinciden(calculo, t_, cifras)) {
                actual = o;
                return true;
            }
        }
        return false;
    }

private:
    const bd::TextosRegistro& t_;
    std::map<std::string, Ejecucion> corridas_;
};

CalculoComparado SinCalculo(std::string nombre, std::string_view mensaje) {
    CalculoComparado c;
    c.nombre = std::move(nombre);
    c.mensaje = mensaje;
    return c;
}

CalculoComparado Reconstruir(const bd::TextosRegistro& t) {
    const std::string& nombre = t[bd::kColumnaNombre];
    const std::string& textoInforme = t[bd::kColumnaInforme];
    const std::string& tipo = t[Columna("TipoCombustible")];
    if (!BuscarCombustible(tipo)) return SinCalculo(nombre, kMsgCombustiblePropio);
    const auto columna = [&t](std::string_view n) { return t[Columna(n)]; };

    OpcionesCalculo base;
    base.valores = {
        {"combustible", tipo},
        {"presion-ambiente", columna("Pambiente")},
        {"temperatura-ambiente",
         NumeroDelInforme(textoInforme, informe::kTemperaturaAmbiente).value_or(columna("Tambiente"))},
        {"humedad", columna("Humedad")},
        {"fr", columna("Fr")},
        {"cilindrada", columna("V1")},
        {"p1", columna("p1")},
        {"t1", columna("T1")}};

    // The compression ratio: the report's, or the volumes' of the record.
    std::vector<std::string> relaciones;
    if (auto rc = NumeroDelInforme(textoInforme, informe::kRelacionCompresion)) relaciones.push_back(*rc);
    const auto v1 = LeerNumero(columna("V1")), v2 = LeerNumero(columna("V2"));
    if (v1 && v2 && *v2 != 0) relaciones.push_back(Texto(Round(*v1 / *v2, 2)));
    std::vector<Cambios> compresiones;
    for (const std::string& rc : relaciones) {
        compresiones.push_back({{"rc", rc}, {"compresion", "medio"}});
        compresiones.push_back({{"rc", rc}, {"compresion", "variable"}});
        compresiones.push_back(
            {{"rc", rc}, {"compresion", "politropica"}, {"n-compresion", columna("gamma1")}});
    }

    // The cycle: the report's first, then the others; for Mixto the share of
    // heat at constant volume that the heats give, or the maximum pressure.
    std::vector<std::string> ciclos;
    if (auto banner = TrasRotulo(textoInforme, informe::kCiclo))
        ciclos.push_back(banner->substr(0, banner->find(' ')));
    for (const char* c : {"Otto", "Diesel", "Mixto"})
        if (ciclos.empty() || ciclos.front() != c) ciclos.emplace_back(c);
    std::vector<Cambios> calores;
    for (const std::string& ciclo : ciclos) {
        if (ciclo != "Mixto") {
            calores.push_back({{"ciclo", ciclo}, {"proporcion-vcte", ""}, {"pmax", ""}});
            continue;
        }
        const auto q23 = LeerNumero(columna("Q23")), q = LeerNumero(columna("Qciclo"));
        if (q23 && q && *q != 0)
            for (int d = 0; d <= 3; ++d)
                calores.push_back(
                    {{"ciclo", ciclo}, {"proporcion-vcte", Texto(Round(100 * *q23 / *q, d))}, {"pmax", ""}});
        calores.push_back({{"ciclo", ciclo}, {"proporcion-vcte", ""}, {"pmax", columna("p3")}});
    }

    const std::vector<Cambios> expansiones = {
        {{"expansion", "medio"}},
        {{"expansion", "variable"}},
        {{"expansion", "politropica"}, {"n-expansion", columna("Gamma4")}}};

    Reconstruccion r(t);
    OpcionesCalculo o = Con(Con(Con(base, compresiones.front()), calores.front()), expansiones.front());
    const auto hastaCalor = Unir(kCifrasCompresion, kCifrasCalor);
    if (!r.Elegir(o, compresiones, kCifrasCompresion) || !r.Elegir(o, calores, hastaCalor) ||
        !r.Elegir(o, expansiones, Unir(hastaCalor, kCifrasExpansion)))
        return SinCalculo(nombre, kMsgNoSeReproduce);
    const Ejecucion& x = r.Correr(o);
    if (!x.bien || !MismasCifras(*x.estado, t)) return SinCalculo(nombre, kMsgNoSeReproduce);
    return Comparado(nombre, o, x);
}

// The figures of two states that a calculation sets, to the last bit.
bool MismoCalculo(const Estado& a, const Estado& b) {
    constexpr double Estado::*kCifras[] = {
        &Estado::p1,     &Estado::p2,     &Estado::p3,     &Estado::p4,          &Estado::p5,
        &Estado::V1,     &Estado::V2,     &Estado::V3,     &Estado::V4,          &Estado::V5,
        &Estado::T1,     &Estado::T2,     &Estado::T3,     &Estado::T4,          &Estado::T5,
        &Estado::h1,     &Estado::h2,     &Estado::h3,     &Estado::h4,          &Estado::h5,
        &Estado::S1,     &Estado::S2,     &Estado::S3,     &Estado::S4,          &Estado::S5,
        &Estado::Q23,    &Estado::Qciclo, &Estado::Wciclo, &Estado::Rendimiento, &Estado::MasaCombustible,
        &Estado::Gamma4, &Estado::gamma1, &Estado::HCS,    &Estado::Fe,          &Estado::ConsumoMJ};
    for (auto campo : kCifras)
        if (a.*campo != b.*campo) return false;
    return a.TipoCiclo == b.TipoCiclo;
}

}  // namespace

CalculoComparado CalcularComparado(std::string nombre, const OpcionesCalculo& o) {
    return Comparado(std::move(nombre), o, Ejecutar(o));
}

std::vector<OpcionesCalculo> EntradasDeEstado(const Estado& e, std::string_view tipoCombustible) {
    OpcionesCalculo o;
    o.valores = {{"presion-ambiente", Texto(e.Pambiente)},
                 {"temperatura-ambiente", Texto(e.Tambiente)},
                 {"humedad", Texto(e.Humedad)},
                 {"fr", Texto(e.Fr)},
                 {"ciclo", e.TipoCiclo},
                 {"cilindrada", Texto(e.V1 * 1000000)},
                 {"rc", Texto(e.Rc)},
                 {"p1", Texto(e.p1)},
                 {"t1", Texto(e.T1)},
                 {"compresion", std::string(NombreModelo(e.ModeloCompresion))},
                 {"expansion", std::string(NombreModelo(e.ModeloExpansion))}};
    if (e.ModeloCompresion == Modelo::Politropico) o.valores["n-compresion"] = Texto(e.nCompresion);
    if (e.ModeloExpansion == Modelo::Politropico) o.valores["n-expansion"] = Texto(e.nExpansion);
    if (e.TipoCiclo == "Mixto") {
        if (e.OpcionProporcion)
            o.valores["proporcion-vcte"] = Texto(e.PropVcte);
        else
            o.valores["pmax"] = Texto(e.Pmax);
    }
    if (BuscarCombustible(tipoCombustible)) {
        o.valores["combustible"] = std::string(tipoCombustible);
        return {o};
    }
    o.valores["entalpia-formacion"] = Texto(e.EntalpiaFormacion);
    OpcionesCalculo formula = o, masa = o;
    formula.valores["formula"] = Lista({e.AtomosC, e.AtomosH, e.AtomosN, e.AtomosO, e.AtomosS});
    masa.valores["masa"] = Lista({e.CienC, e.CienN, e.CienO, e.CienS});
    masa.valores["masa-molecular"] = Texto(e.MasaMolecularCombustible);
    return {formula, masa};
}

CalculoComparado CalculoDeEstado(std::string nombre, const Estado& e, std::string_view tipoCombustible) {
    for (const OpcionesCalculo& o : EntradasDeEstado(e, tipoCombustible)) {
        const Ejecucion x = Ejecutar(o);
        if (x.bien && MismoCalculo(*x.estado, e)) return Comparado(std::move(nombre), o, x);
    }
    return SinCalculo(std::move(nombre), kMsgSinCalculoActual);
}

CalculoComparado CalculoDeResultado(std::string nombre, const ResultadoCalculo& r) {
    const OpcionesCalculo o = OpcionesDeEntradas(r.entradas);
    const Ejecucion x = Ejecutar(o);
    if (x.bien && MismoCalculo(*x.estado, *r.estado)) return Comparado(std::move(nombre), o, x);
    return CalculoDeEstado(std::move(nombre), *r.estado, r.tipoCombustible);
}

CalculoComparado CalculoDeRegistro(const bd::TextosRegistro& t, const std::string* entradas) {
    const std::string& nombre = t[bd::kColumnaNombre];
    std::string motivo;
    if (entradas) {
        if (const auto o = LeerEntradas(*entradas)) {
            const Ejecucion x = Ejecutar(*o);
            if (x.bien && MismasCifras(*x.estado, t)) return Comparado(nombre, *o, x);
            if (!x.bien) motivo = Comparado(nombre, *o, x).mensaje;
        }
    }
    CalculoComparado c = Reconstruir(t);
    if (!c.Hay() && !motivo.empty()) c.mensaje = motivo;
    return c;
}

std::string EscribirEntradas(const OpcionesCalculo& o) {
    std::string t;
    for (const auto& [nombre, valor] : o.valores) t += nombre + "=" + valor + "\n";
    return t;
}

std::optional<OpcionesCalculo> LeerEntradas(std::string_view texto) {
    OpcionesCalculo o;
    while (!texto.empty()) {
        const size_t fin = std::min(texto.find('\n'), texto.size());
        const std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        if (linea.empty()) continue;
        const size_t igual = linea.find('=');
        if (igual == std::string_view::npos) return std::nullopt;
        const std::string nombre(linea.substr(0, igual));
        if (!BuscarEntrada(nombre)) return std::nullopt;
        o.valores[nombre] = std::string(linea.substr(igual + 1));
    }
    return o;
}

bool MismasCifras(const Estado& e, const bd::TextosRegistro& t) {
    const bd::TextosRegistro calculo = bd::ValoresRegistro(e, "", "", "");
    for (size_t i = 0; i < t.size(); ++i)
        if (EsColumnaDeCifras(i) && !MismoTexto(calculo[i], t[i])) return false;
    return true;
}

}  // namespace vanta
