#include "web/Pagina.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "core/comparison/Calculos.h"
#include "core/comparison/Figura.h"
#include "core/comparison/TablaComparacion.h"
#include "core/cycle/Ciclo.h"
#include "core/cycle/DibujoDiagramas.h"
#include "core/diagrams/LecturaRaton.h"
#include "core/equilibrium/CurvasDisociacion.h"
#include "core/equilibrium/InformeDisociacion.h"
#include "core/reports/ArchivosInforme.h"
#include "core/reports/Informes.h"
#include "core/services/JSON.h"
#include "core/studies/TablaEstudio.h"
#include "core/validation/Validacion.h"
#include "core/warnings/Avisos.h"
#include "core/warnings/CicloIdeal.h"

namespace vanta::web {

namespace {

// ---- JSON ------------------------------------------------------------------------

// A text as a JSON string. The pictures are long texts: those with nothing
// to escape go across whole.
std::string Cadena(std::string_view t) {
    std::string s;
    s.reserve(t.size() + 2);
    s += '"';
    size_t desde = 0;
    for (size_t i = 0; i < t.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(t[i]);
        if (c >= 0x20 && c != '"' && c != '\\') continue;
        s.append(t, desde, i - desde);
        desde = i + 1;
        if (c == '"' || c == '\\') {
            s += '\\';
            s += static_cast<char>(c);
        } else {
            char u[8];
            std::snprintf(u, sizeof u, "\\u%04x", c);
            s += u;
        }
    }
    s.append(t, desde, t.size() - desde);
    s += '"';
    return s;
}

template <class Contenedor, class Valor>
std::string Lista(const Contenedor& lista, Valor valor) {
    std::string s = "[";
    for (const auto& x : lista) s += (s.size() > 1 ? "," : "") + valor(x);
    return s + "]";
}

std::string Textos(const std::vector<std::string>& textos) {
    return Lista(textos, [](const std::string& t) { return Cadena(t); });
}

// An object written member by member.
class Objeto {
public:
    Objeto& Crudo(std::string_view clave, const std::string& json) {
        s_ += (s_.size() > 1 ? "," : "") + Cadena(clave) + ":" + json;
        return *this;
    }
    Objeto& Texto(std::string_view clave, std::string_view t) { return Crudo(clave, Cadena(t)); }
    Objeto& Numero(std::string_view clave, double v) { return Crudo(clave, TextoNumeroJSON(v)); }
    Objeto& Logico(std::string_view clave, bool v) { return Crudo(clave, v ? "true" : "false"); }
    std::string Cerrar() const { return s_ + "}"; }

private:
    std::string s_ = "{";
};

// ---- The inputs -------------------------------------------------------------------

// The name of each stage on the page.
std::string_view NombreEtapa(EtapaEntrada etapa) {
    constexpr std::string_view kNombres[] = {"aire", "combustible", "combustion", "ciclo", "potencia"};
    return kNombres[static_cast<size_t>(etapa)];
}

// Of inputs that exclude each other, the one the calculation takes when none
// of them is given: the first of its group.
bool ElegidaSinDar(const DefinicionEntrada& d) {
    for (const DefinicionEntrada& otra : TablaEntradas())
        if (!d.grupo.empty() && otra.grupo == d.grupo) return &otra == &d;
    return false;
}

// Inputs that only mean something with another's value: the forms show them
// apart otherwise (they are still read, as the windows read their boxes).
constexpr std::array<std::string_view, 3> kSoloCon[] = {
    {"n-compresion", "compresion", "politropica"},
    {"n-expansion", "expansion", "politropica"},
    {"proporcion-vcte", "ciclo", "Mixto"},
    {"pmax", "ciclo", "Mixto"},
};

std::string SoloCon(std::string_view nombre) {
    for (const auto& [entrada, otra, valor] : kSoloCon)
        if (entrada == nombre) return std::string(otra) + "=" + std::string(valor);
    return {};
}

std::string_view EtapaDe(std::string_view nombre) {
    const DefinicionEntrada* d = BuscarEntrada(nombre);
    return NombreEtapa(d ? d->etapa : EtapaEntrada::Aire);
}

// The input whose text an input takes when it is not given: with every other
// input given its own name as text, the text it reads is that name.
std::string Sigue(std::string_view nombre) {
    OpcionesCalculo marcas;
    for (const EntradaEstudio& otra : EntradasEstudio())
        if (otra.nombre != nombre) marcas.valores[std::string(otra.nombre)] = std::string(otra.nombre);
    const std::string valor = marcas.Valor(std::string(nombre));
    return BuscarEntradaEstudio(valor) ? valor : "";
}

// The inputs that choosing this one drops, as a click on its option does.
std::vector<std::string> Excluidas(std::string_view nombre) {
    OpcionesCalculo todas;
    for (const EntradaEstudio& e : EntradasEstudio()) todas.valores[std::string(e.nombre)] = "x";
    OpcionesCalculo quedan = todas;
    QuitarExcluidas(quedan, nombre);
    std::vector<std::string> fuera;
    for (const auto& [n, v] : todas.valores)
        if (!quedan.Tiene(n)) fuera.push_back(n);
    return fuera;
}

// The inputs that are lists of numbers, and how many each has: the boxes of
// the formula and of the mass composition.
constexpr std::pair<std::string_view, size_t> kCamposLista[] = {{"formula", 5}, {"masa", 4}};
constexpr const char* kCuantos[] = {"", "un", "dos", "tres", "cuatro", "cinco"};

}  // namespace

std::string EntradasJSON() {
    std::string entradas = Lista(EntradasEstudio(), [](const EntradaEstudio& en) {
        const std::string sigue = Sigue(en.nombre);
        return Objeto()
            .Texto("nombre", en.nombre)
            .Texto("titulo", en.titulo)
            .Texto("unidad", en.unidad)
            .Logico("numerica", en.Numerica())
            .Texto("defecto", sigue.empty() ? OpcionesCalculo{}.Valor(std::string(en.nombre)) : "")
            .Texto("sigue", sigue)
            .Crudo("valores", Textos(ValoresEleccion(en.nombre)))
            .Crudo("excluye", Textos(Excluidas(en.nombre)))
            .Logico("elegidaSinDar", ElegidaSinDar(en))
            .Texto("soloCon", SoloCon(en.nombre))
            .Texto("etapa", EtapaDe(en.nombre))
            .Cerrar();
    });
    std::string salidas = Lista(SalidasEstudio(), [](const SalidaEstudio& s) {
        return Objeto()
            .Texto("nombre", s.nombre)
            .Texto("titulo", s.titulo)
            .Texto("unidad", s.unidad)
            .Logico("conRegimen", s.conRegimen)
            .Cerrar();
    });
    return Objeto()
        .Crudo("entradas", entradas)
        .Crudo("salidas", salidas)
        .Texto("nombrePagina", NombreConExtension(kDialogoPaginaPrincipal))
        .Crudo("imagenesPagina",
               Lista(kImagenesPagina, [](const ImagenPagina& i) { return Cadena(ImagenEnPagina(i)); }))
        .Cerrar();
}

std::string ComprobarEntradas(const std::string& lineas, OpcionesCalculo& o, std::string* entrada) {
    const std::optional<OpcionesCalculo> leidas = LeerEntradas(lineas);
    if (!leidas) {
        std::string_view resto = lineas;
        while (!resto.empty()) {
            const std::string_view linea = resto.substr(0, resto.find('\n'));
            resto.remove_prefix(std::min(linea.size() + 1, resto.size()));
            const std::string nombre(linea.substr(0, linea.find('=')));
            if (!linea.empty() && !BuscarEntrada(nombre))
                return "«" + nombre + "» no es una entrada del cálculo";
        }
        return "las entradas se escriben nombre=valor, una por línea";
    }
    for (const auto& [nombre, cuantos] : kCamposLista) {
        if (!leidas->Tiene(std::string(nombre)) ||
            SepararLista(leidas->Valor(std::string(nombre))).size() == cuantos)
            continue;
        if (entrada) *entrada = nombre;
        return std::string(BuscarEntradaEstudio(nombre)->titulo) + " lleva " + kCuantos[cuantos] +
               " números separados por comas";
    }
    for (const auto& [nombre, valor] : leidas->valores) {
        const std::vector<std::string> lista = ValoresEleccion(nombre);
        if (lista.empty() || std::find(lista.begin(), lista.end(), valor) != lista.end()) continue;
        if (entrada) *entrada = nombre;
        std::string valores;
        for (const std::string& v : lista) valores += (valores.empty() ? "" : ", ") + v;
        return std::string(BuscarEntradaEstudio(nombre)->titulo) + ": «" + valor + "» no es ninguno de " +
               valores;
    }
    o = *leidas;
    return {};
}

// ---- One calculation -------------------------------------------------------------------

namespace {

// The pictures: the charts as wide as half the main window of 1024 × 768 and
// a quarter of its height; the four diagrams alike, so that each shows whole.
constexpr int kAnchoGrafica = 510, kAltoGrafica = 190;
constexpr int kAnchoDiagrama = 430, kAltoDiagrama = 300;

std::string TextosResultadosJSON(const TextosResultados& t) {
    auto cinco = [](const std::string(&v)[5]) { return Textos({v, v + 5}); };
    return Objeto()
        .Crudo("p", cinco(t.lblP))
        .Crudo("V", cinco(t.lblV))
        .Crudo("T", cinco(t.lblT))
        .Crudo("h", cinco(t.lblH))
        .Crudo("s", cinco(t.lblS))
        .Texto("W12", t.lblW12)
        .Texto("W34", t.lblW34)
        .Texto("W45", t.lblW45)
        .Texto("Q23", t.lblQ23)
        .Texto("Q34", t.lblQ34)
        .Texto("Wciclo", t.lblWciclo)
        .Texto("Qciclo", t.lblQciclo)
        .Texto("Rendimiento", t.lblRen)
        .Texto("G12", t.lblG12)
        .Texto("G2", t.lblG2)
        .Texto("G45", t.lblG45)
        .Texto("G5", t.lblG5)
        .Texto("ConsumoMJ", t.txtConsumoMJ)
        .Texto("ConsumoKwh", t.txtConsumoKwh)
        .Texto("Cilindrada", t.txtCilindrada)
        .Cerrar();
}

std::string IdealJSON(const Estado& e) {
    const DistanciaIdeal d = DistanciaAlIdeal(e);
    Objeto o;
    o.Numero("gammaAireEstandar", kGammaAireEstandar).Numero("rendimiento", d.rendimiento);
    o.Texto("nombre", NombreCicloIdeal(e)).Texto("explicacion", ExplicacionCicloIdeal(e, '.'));
    if (d.aireEstandar.valido) o.Numero("aireEstandar", d.aireEstandar.rendimiento);
    if (d.exponentes.valido) o.Numero("exponentes", d.exponentes.rendimiento);
    return o.Cerrar();
}

}  // namespace

// The last calculation: its inputs, its state, its seven pictures. The state
// is that of a run on surfaces that write SVG; the JSON comes from a run on
// surfaces that draw nothing, as `vanta calcular` runs it, for the text
// position of the charts is part of the state.
struct Calculadora::Calculo {
    OpcionesCalculo opciones;
    Estado e;
    SuperficieSVG pct1{kAnchoGrafica, kAltoGrafica, kFondoBlanco};
    SuperficieSVG pct2{kAnchoGrafica, kAltoGrafica, kFondoBlanco};
    SuperficieSVG pct3{kAnchoGrafica, kAltoGrafica, kFondoBlanco};
    SuperficieSVG pv{kAnchoDiagrama, kAltoDiagrama, kFondoBlanco};
    SuperficieSVG tv{kAnchoDiagrama, kAltoDiagrama, kFondoBlanco};
    SuperficieSVG ts{kAnchoDiagrama, kAltoDiagrama, kFondoGris};
    SuperficieSVG hs{kAnchoDiagrama, kAltoDiagrama, kFondoGris};
    std::string tipoCombustible, informe;
    bool leida = false;  // the inputs were read
    bool bien = false;

    Diagramas Todos() { return {pv, tv, ts, hs}; }
    const SuperficieSVG* Imagen(int i) const {
        const SuperficieSVG* imagenes[] = {&pct1, &pct2, &pct3, &pv, &tv, &ts, &hs};
        return i >= 0 && i < 7 ? imagenes[i] : nullptr;
    }
};

Calculadora::Calculadora() = default;
Calculadora::~Calculadora() = default;

std::string Calculadora::Calcular(const std::string& lineas) {
    c_ = std::make_unique<Calculo>();
    Calculo& k = *c_;
    Objeto r;
    std::string entrada;
    if (const std::string error = ComprobarEntradas(lineas, k.opciones, &entrada); !error.empty()) {
        r.Logico("bien", false).Crudo("mensajes", Textos({error}));
        if (!entrada.empty()) r.Texto("entrada", entrada).Texto("etapa", EtapaDe(entrada));
        return r.Cerrar();
    }
    k.leida = true;
    SuperficiesCalculo svg{k.pct1, k.pct2, k.pct3, k.Todos()};
    const ResultadoCalculo c = vanta::Calcular(EntradasDeOpciones(k.opciones), svg);
    k.e = *c.estado;
    k.bien = c.CicloCalculado();
    k.tipoCombustible = c.tipoCombustible;
    k.informe = c.informe;
    r.Logico("bien", k.bien).Texto("tipoCombustible", k.tipoCombustible);
    if (k.bien) {
        std::vector<std::string> avisos;
        for (const Aviso& a : c.avisos) avisos.push_back(a.texto);
        r.Texto("informe", c.informe + std::string(kFinLinea))
            .Crudo("resultados", TextosResultadosJSON(c.textos))
            .Crudo("avisos", Textos(avisos))
            .Crudo("ideal", IdealJSON(k.e));
        if (c.potencia)
            r.Crudo("potencia", Objeto()
                                    .Texto("rpm", c.entradas.rpm.value_or(""))
                                    .Texto("W", c.potencia->potencia)
                                    .Texto("CV", c.potencia->potenciaCV)
                                    .Cerrar());
    }
    r.Crudo("mensajes", Textos(c.TextosMensajes()));
    if (c.parada) r.Texto("etapa", NombreEtapa(*c.parada));
    if (!c.mensajes.empty() && !c.mensajes.back().entrada.Vacio())
        r.Texto("entrada", c.mensajes.back().entrada.nombre);
    std::vector<std::string> imagenes;
    for (int i = 0; i < 7; ++i)
        imagenes.push_back(k.Imagen(i)->Dibujada() ? k.Imagen(i)->SVG() : std::string());
    return r.Crudo("imagenes", Textos(imagenes)).Cerrar();
}

std::string Calculadora::JSON() const {
    if (!c_ || !c_->leida) return {};
    // As `vanta calcular --json`: no speed, nothing drawn.
    Entradas x = EntradasDeOpciones(c_->opciones);
    x.rpm.reset();
    return ResultadoJSON(vanta::Calcular(x)) + "\n";
}

std::string Calculadora::Leer(int diagrama, float px, float py) {
    if (!c_ || !c_->bien || (diagrama != 0 && diagrama != 1)) return "{}";
    Calculo& k = *c_;
    const SuperficieSVG& s = diagrama == 0 ? k.pv : k.tv;
    Mensajes dlg;
    Diagramas g = k.Todos();
    LecturaEstado l;
    const float X = s.XUsuario(px), Y = s.YUsuario(py);
    if (diagrama == 0)
        pctPV_MouseMove(k.e, dlg, g, true, X, Y, l);
    else
        pctTV_MouseMove(k.e, dlg, g, true, X, Y, l);
    return Objeto()
        .Texto("transformacion", l.txtTransformacion)
        .Texto("T", l.lblTmouseVal)
        .Texto("V", l.lblVmouseVal)
        .Texto("p", l.lblPmouseVal)
        .Texto("h", l.lblhmouseVal)
        .Texto("s", l.lblSmouseVal)
        .Crudo("mensajes", Textos(dlg.Textos()))
        .Crudo("transitorias",
               Textos({k.pv.Transitoria(), k.tv.Transitoria(), k.ts.Transitoria(), k.hs.Transitoria()}))
        .Cerrar();
}

std::string Calculadora::PaginaHTML() const {
    if (!c_ || !c_->bien) return {};
    return BytesPagina(HTMLInforme(c_->e, c_->tipoCombustible));
}

std::string Calculadora::InformeArchivo() const {
    if (!c_ || !c_->bien) return {};
    return BytesInformeTexto(c_->informe);
}

std::string Calculadora::Imagen(int i) const {
    const SuperficieSVG* s = c_ ? c_->Imagen(i) : nullptr;
    return s ? s->SVG(false) : std::string();
}

// ---- Studies ----------------------------------------------------------------------------

namespace {
// The page keeps every line of its table in memory: a study of the page stops
// well short of what the command line runs.
constexpr size_t kPuntosPagina = 200'000;
}  // namespace

std::string EstudioWeb::Preparar(const std::string& base,
                                 const std::vector<std::pair<std::string, std::string>>& variar,
                                 const std::string& salidas, bool espanol) {
    auto fallo = [](const std::string& error) { return Objeto().Texto("error", error).Cerrar(); };
    estudio_ = Estudio{};
    espanol_ = espanol;
    if (const std::string error = ComprobarEntradas(base, estudio_.base); !error.empty()) return fallo(error);
    std::vector<std::string> variadas;
    for (const auto& [nombre, texto] : variar) {
        const EntradaEstudio* entrada = BuscarEntradaEstudio(nombre);
        if (!entrada) return fallo("«" + nombre + "» no es una entrada del cálculo");
        Variacion v;
        v.nombre = nombre;
        if (const std::string error = LeerValores(texto, entrada->Numerica(), v); !error.empty())
            return fallo(std::string(entrada->titulo) + ": " + error);
        variadas.push_back(nombre);
        estudio_.variaciones.push_back(std::move(v));
    }
    for (const std::string& nombre : SepararLista(salidas)) {
        const SalidaEstudio* s = BuscarSalidaEstudio(nombre);
        if (!s) return fallo("«" + nombre + "» no es una salida del estudio");
        estudio_.salidas.push_back(s);
    }
    // The page holds every input, as the windows do: the varied ones lead.
    estudio_.base = BaseDeVentanas(EntradasDeOpciones(estudio_.base), variadas);
    if (std::string error = ComprobarEstudio(estudio_); !error.empty()) return fallo(error);
    if (NumeroPuntos(estudio_) > kPuntosPagina)
        return fallo("el estudio tiene " + std::to_string(NumeroPuntos(estudio_)) +
                     " puntos; en la página llega a " + std::to_string(kPuntosPagina) +
                     " (más, con «vanta estudio» en un ordenador o un clúster)");

    const std::string entradas = Lista(estudio_.variaciones, [](const Variacion& v) {
        const EntradaEstudio* en = BuscarEntradaEstudio(v.nombre);
        return Objeto()
            .Texto("nombre", v.nombre)
            .Texto("titulo", en->titulo)
            .Texto("unidad", en->unidad)
            .Logico("numerica", en->Numerica())
            .Numero("cuenta", static_cast<double>(v.Cuenta()))
            .Cerrar();
    });
    const std::string columnas = Lista(estudio_.salidas, [](const SalidaEstudio* s) {
        return Objeto()
            .Texto("nombre", s->nombre)
            .Texto("titulo", s->titulo)
            .Texto("unidad", s->unidad)
            .Cerrar();
    });
    return Objeto()
        .Numero("puntos", static_cast<double>(NumeroPuntos(estudio_)))
        .Texto("cabecera", CabeceraCSV(estudio_, espanol_ ? DialectoCSV::Espanol : DialectoCSV::Rfc4180))
        .Crudo("entradas", entradas)
        .Crudo("salidas", columnas)
        .Cerrar();
}

std::string EstudioWeb::Punto(size_t i) const {
    if (i >= NumeroPuntos(estudio_)) return "{}";
    const ResultadoPunto r = CalcularPunto(estudio_, i);
    std::vector<std::string> entradas;
    for (size_t k = 0; k < estudio_.variaciones.size(); ++k) entradas.push_back(TextoEntrada(estudio_, k, i));
    return Objeto()
        .Texto("fila", FilaCSV(estudio_, i, r, espanol_ ? DialectoCSV::Espanol : DialectoCSV::Rfc4180))
        .Logico("bien", r.bien)
        .Crudo("entradas", Textos(entradas))
        .Crudo("valores", Lista(r.valores, [](double v) { return TextoNumeroJSON(v); }))
        .Crudo("mensajes", Textos(r.mensajes))
        .Cerrar();
}

// ---- Comparisons ------------------------------------------------------------------------

namespace {
constexpr int kAnchoFigura = 560, kAltoFigura = 420;
constexpr float kLetraFigura = 12;
}  // namespace

std::string DisociacionJSON(const std::string& lineas) {
    OpcionesCalculo o;
    if (const std::string error = ComprobarEntradas(lineas, o); !error.empty())
        return Objeto().Logico("bien", false).Texto("mensaje", error).Cerrar();
    const CalculoComparado c = CalcularComparado(kCalculoActual, o);
    if (!c.Hay()) return Objeto().Logico("bien", false).Texto("mensaje", c.mensaje).Cerrar();
    const equilibrio::CiclosConDisociacion ciclos = equilibrio::CicloConDisociacion(*c.estado);
    const CurvasCiclo curvas =
        equilibrio::CurvasDisociacion(*c.estado, ciclos.equilibrio, true, ColorComparacion(1));
    const std::vector<SerieFigura> series = {
        {c.nombre, &c.curvas, c.estado.get(), true, ColorComparacion(0)},
        {equilibrio::kSerieEquilibrio, &curvas, nullptr, true, ColorComparacion(1), true}};
    std::vector<std::string> figuras;
    for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS}) {
        SuperficieSVG s(kAnchoFigura, kAltoFigura, kFondoBlanco, kLetraFigura);
        DibujarFigura(s, kAnchoFigura, kAltoFigura, d, series, {});
        figuras.push_back(s.SVG());
    }
    return Objeto()
        .Logico("bien", true)
        .Texto("texto", equilibrio::TextoDisociacion(*c.estado, ciclos, "\n"))
        .Crudo("figuras", Textos(figuras))
        .Cerrar();
}

std::string CasillaDisociacion() {
    return equilibrio::kCasillaDisociacion;
}

std::string CompararJSON(const std::vector<std::pair<std::string, std::string>>& calculos, bool enBar) {
    std::vector<CalculoComparado> comparados;
    for (const auto& [nombre, lineas] : calculos) {
        OpcionesCalculo o;
        if (const std::string error = ComprobarEntradas(lineas, o); !error.empty()) {
            CalculoComparado c;
            c.nombre = nombre;
            c.mensaje = error;
            comparados.push_back(std::move(c));
            continue;
        }
        comparados.push_back(CalcularComparado(nombre, o));
    }
    std::vector<SerieFigura> series;
    for (size_t i = 0; i < comparados.size(); ++i)
        if (comparados[i].Hay())
            series.push_back({.nombre = comparados[i].nombre,
                              .curvas = &comparados[i].curvas,
                              .estado = comparados[i].estado.get(),
                              .colorPropio = true,
                              .color = ColorComparacion(i)});
    const OpcionesFigura opciones{.presion = enBar ? UnidadPresion::bar : UnidadPresion::Pa};
    std::vector<std::string> figuras;
    for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS}) {
        SuperficieSVG s(kAnchoFigura, kAltoFigura, kFondoBlanco, kLetraFigura);
        if (!series.empty()) DibujarFigura(s, kAnchoFigura, kAltoFigura, d, series, opciones);
        figuras.push_back(series.empty() ? std::string() : s.SVG());
    }
    const std::string filas = Lista(TablaComparacion(comparados, opciones.presion, '.'), [](const auto& f) {
        return Objeto()
            .Texto("magnitud", f.magnitud)
            .Crudo("valores", Textos(f.valores))
            .Crudo("diferencias", Textos(f.diferencias))
            .Logico("entrada", f.entrada)
            .Logico("distinta", f.distinta)
            .Cerrar();
    });
    std::string lista = "[";
    for (size_t i = 0; i < comparados.size(); ++i)
        lista += (i ? "," : "") + Objeto()
                                      .Texto("nombre", comparados[i].nombre)
                                      .Logico("hay", comparados[i].Hay())
                                      .Texto("mensaje", comparados[i].mensaje)
                                      .Texto("color", ColorSVG(ColorComparacion(i)))
                                      .Cerrar();
    return Objeto()
        .Crudo("figuras", Textos(figuras))
        .Crudo("tabla", filas)
        .Crudo("calculos", lista + "]")
        .Cerrar();
}

// ---- Validation ---------------------------------------------------------------------------

std::string ValidacionJSON() {
    const TablaValidacion tabla = Validar('.');
    const std::string grupos = Lista(GruposValidacion('.'), [&](const DescripcionGrupo& g) {
        std::vector<Comprobacion> filas;
        for (const Comprobacion& c : tabla.filas)
            if (c.grupo == g.grupo) filas.push_back(c);
        return Objeto()
            .Texto("titulo", g.titulo)
            .Texto("explicacion", g.explicacion)
            .Crudo("filas", Lista(filas,
                                  [](const Comprobacion& c) {
                                      return Objeto()
                                          .Texto("nombre", c.nombre)
                                          .Texto("programa", c.programa)
                                          .Texto("referencia", c.referencia)
                                          .Texto("diferencia", c.diferencia)
                                          .Texto("tolerancia", c.tolerancia)
                                          .Texto("resultado", TextoResultado(c.resultado))
                                          .Numero("codigo", static_cast<double>(c.resultado))
                                          .Texto("nota", c.nota)
                                          .Cerrar();
                                  }))
            .Cerrar();
    });
    return Objeto()
        .Crudo("grupos", grupos)
        .Logico("correcta", tabla.Correcta())
        .Numero("cumplen", tabla.Cuenta(Resultado::Cumple))
        .Numero("explicadas", tabla.Cuenta(Resultado::Explicada))
        .Numero("noCumplen", tabla.Cuenta(Resultado::NoCumple))
        .Texto("texto", TextoValidacion(tabla, '.'))
        .Cerrar();
}

}  // namespace vanta::web
