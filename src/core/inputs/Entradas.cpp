#include "core/inputs/Entradas.h"

#include <algorithm>
#include <cmath>

#include "core/inputs/BibliotecaCombustibles.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

// The checks of the inputs beyond their numeric form.
constexpr std::string_view kMensajeTemperaturaBaja = " La temperatura ha de ser mayor a 300 K ";
constexpr std::string_view kMensajeTemperaturaAlta = " La temperatura ha de ser menor a 5 000 K ";
constexpr std::string_view kMensajeRc = "La relación de compresión debe ser mayor que 1";
constexpr std::string_view kMensajeCilindrada = "La cilindrada debe ser mayor que cero";
constexpr std::string_view kMensajeP1 = "La presión al final de la admisión debe ser mayor que cero";
constexpr std::string_view kMensajeT1 = "La temperatura al final de la admisión debe ser mayor que cero";
constexpr std::string_view kMensajeExponente = "El exponente politrópico n debe ser mayor que 1";
constexpr std::string_view kMensajePropNegativa = "El % de calor a volumen constante no puede ser negativo";
constexpr std::string_view kMensajePropMayor = " % no puede ser superior a 100";
constexpr std::string_view kMensajePresionAmbiente = "La presión ambiente debe ser mayor que cero";
constexpr std::string_view kMensajeHumedad = "La humedad relativa debe estar entre 0 y 100 %";

constexpr std::pair<Modelo, std::string_view> kNombresModelos[] = {
    {Modelo::GammaMedio, "medio"}, {Modelo::Politropico, "politropica"}, {Modelo::GammaVariable, "variable"}};
constexpr std::string_view kNombresCiclos[] = {"Otto", "Diesel", "Mixto"};

std::vector<std::string_view> NombresCombustibles() {
    std::vector<std::string_view> v;
    for (const auto& c : kBibliotecaCombustibles) v.push_back(c.nombre);
    return v;
}

template <size_t N>
int Indice(const std::string_view (&nombres)[N], std::string_view valor) {
    for (size_t i = 0; i < N; ++i)
        if (nombres[i] == valor) return static_cast<int>(i);
    return -1;
}

// The accessors of an input held in one text of Entradas.
#define VANTA_UN_TEXTO(campo)                                                    \
    .leer = [](const Entradas& x) { return std::vector<std::string>{x.campo}; }, \
    .texto = [](Entradas& x, int) -> std::string* { return &x.campo; }, .elegir = nullptr

// One of the group whose form is chosen by `forma`.
#define VANTA_DE_FORMA(campoForma, valorForma)    \
    .elegir = [](Entradas& x, std::string_view) { \
        x.campoForma = valorForma;                \
        return true;                              \
    }

std::vector<DefinicionEntrada> CrearTabla() {
    using E = EtapaEntrada;
    using T = TipoEntrada;
    std::vector<DefinicionEntrada> t;
    t.push_back({.nombre = "presion-ambiente",
                 .titulo = "Presión ambiente",
                 .unidad = "Pa",
                 .metavariable = "PA",
                 .etapa = E::Aire,
                 .tipo = T::Numero,
                 .porDefecto = "100000",
                 .controles = {"txtPreAmb"},
                 .nombresMensaje = {"presión ambiente"},
                 .limites = {.minimo = 0, .minimoIncluido = false, .mensajeMinimo = kMensajePresionAmbiente},
                 VANTA_UN_TEXTO(presionAmbiente)});
    t.push_back({.nombre = "temperatura-ambiente",
                 .titulo = "Temperatura ambiente",
                 .unidad = "K",
                 .metavariable = "K",
                 .etapa = E::Aire,
                 .tipo = T::Numero,
                 .porDefecto = "300",
                 .controles = {"txtTemAmb"},
                 .nombresMensaje = {"temperatura ambiente"},
                 // The test stands at 250 K although the text says 300 K.
                 .limites = {250, true, kMensajeTemperaturaBaja, 5000, true, kMensajeTemperaturaAlta},
                 VANTA_UN_TEXTO(temperaturaAmbiente)});
    t.push_back({.nombre = "humedad",
                 .titulo = "Humedad relativa",
                 .unidad = "%",
                 .metavariable = "PCT",
                 .etapa = E::Aire,
                 .tipo = T::Numero,
                 .porDefecto = "0",
                 .controles = {"txtHum"},
                 .nombresMensaje = {"humedad relativa"},
                 .limites = {0, true, kMensajeHumedad, 100, true, kMensajeHumedad},
                 VANTA_UN_TEXTO(humedad)});
    t.push_back({
        .nombre = "combustible",
        .titulo = "Combustible",
        .metavariable = "NOMBRE",
        .etapa = E::Combustible,
        .tipo = T::Eleccion,
        .porDefecto = "Gasolina",
        .controles = {"cboTipCom"},
        .valores = NombresCombustibles(),
        .rechazo = "combustible desconocido",
        .grupo = "combustible",
        .leer =
            [](const Entradas& x) {
                return x.formaCombustible == FormaCombustible::Lista ? std::vector<std::string>{x.combustible}
                                                                     : std::vector<std::string>{};
            },
        .texto = nullptr,
        .elegir =
            [](Entradas& x, std::string_view valor) {
                if (!BuscarCombustible(valor)) return false;
                x.formaCombustible = FormaCombustible::Lista;
                x.combustible = valor;
                return true;
            },
    });
    t.push_back({
        .nombre = "formula",
        .titulo = "Fórmula del combustible (C,H,N,O,S)",
        .metavariable = "C,H,N,O,S",
        .etapa = E::Combustible,
        .tipo = T::Numeros,
        .controles = {"txtMolC", "txtMolH", "txtMolN", "txtMolO", "txtMolS"},
        .nombresMensaje = {" Nº de moles de C ", " Nº de moles de H ", " Nº de moles de N ",
                           " Nº de moles de O ", " Nº de moles de S "},
        .rechazo = "lleva cinco números: C,H,N,O,S",
        .grupo = "combustible",
        .leer =
            [](const Entradas& x) {
                if (x.formaCombustible != FormaCombustible::Formula) return std::vector<std::string>{};
                return std::vector<std::string>{x.atomosC, x.atomosH, x.atomosN, x.atomosO, x.atomosS};
            },
        .texto = [](Entradas& x, int i) -> std::string* {
            std::string* cajas[] = {&x.atomosC, &x.atomosH, &x.atomosN, &x.atomosO, &x.atomosS};
            return cajas[i];
        },
        VANTA_DE_FORMA(formaCombustible, FormaCombustible::Formula),
    });
    t.push_back({
        .nombre = "masa",
        .titulo = "Composición en masa del combustible (C,N,O,S)",
        .metavariable = "C,N,O,S",
        .etapa = E::Combustible,
        .tipo = T::Numeros,
        .controles = {"txtC", "txtN", "txtO", "txtS"},
        .nombresMensaje = {" % de C ", " % de N ", " % de O ", " % de S "},
        .rechazo = "lleva cuatro porcentajes: C,N,O,S",
        .grupo = "combustible",
        .necesita = {"masa-molecular"},
        .leer =
            [](const Entradas& x) {
                if (x.formaCombustible != FormaCombustible::Masa) return std::vector<std::string>{};
                return std::vector<std::string>{x.cienC, x.cienN, x.cienO, x.cienS};
            },
        .texto = [](Entradas& x, int i) -> std::string* {
            std::string* cajas[] = {&x.cienC, &x.cienN, &x.cienO, &x.cienS};
            return cajas[i];
        },
        VANTA_DE_FORMA(formaCombustible, FormaCombustible::Masa),
    });
    t.push_back({
        .nombre = "masa-molecular",
        .titulo = "Masa molecular del combustible",
        .unidad = "kg/mol",
        .metavariable = "KG_MOL",
        .etapa = E::Combustible,
        .tipo = T::Numero,
        .porDefecto = "0.1",
        .controles = {"txtmmComb"},
        .nombresMensaje = {" Masa molecular "},
        .acompana = {"masa"},
        .leer =
            [](const Entradas& x) {
                return x.formaCombustible == FormaCombustible::Masa
                           ? std::vector<std::string>{x.masaMolecular}
                           : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.masaMolecular; },
        .elegir = nullptr,
    });
    t.push_back({
        .nombre = "entalpia-formacion",
        .titulo = "Entalpía de formación del combustible",
        .unidad = "J/mol",
        .metavariable = "J_MOL",
        .etapa = E::Combustible,
        .tipo = T::Numero,
        .porDefecto = "0",
        .controles = {"txtEntPro"},
        // The message names the products although the box holds the fuel's.
        .nombresMensaje = {" La entalpía de formación de los productos "},
        .acompana = {"formula", "masa"},
        .leer =
            [](const Entradas& x) {
                return x.formaCombustible != FormaCombustible::Lista
                           ? std::vector<std::string>{x.entalpiaFormacion}
                           : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.entalpiaFormacion; },
        .elegir = nullptr,
    });
    t.push_back({
        .nombre = "fr",
        .titulo = "Dosado relativo Fr",
        .unidad = "-",
        .metavariable = "X",
        .etapa = E::Combustion,
        .tipo = T::Numero,
        .porDefecto = "1",
        .controles = {"txtFr"},
        .nombresMensaje = {" Dosado Fr "},
        .grupo = "dosado",
        .leer =
            [](const Entradas& x) {
                return x.formaDosado == FormaDosado::Fr ? std::vector<std::string>{x.fr}
                                                        : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.fr; },
        VANTA_DE_FORMA(formaDosado, FormaDosado::Fr),
    });
    t.push_back({
        .nombre = "lambda",
        .titulo = "Lambda",
        .unidad = "-",
        .metavariable = "X",
        .etapa = E::Combustion,
        .tipo = T::Numero,
        .porDefecto = "1",
        .controles = {"txtLambda"},
        .nombresMensaje = {"Dosado relativo Lambda"},
        .grupo = "dosado",
        .leer =
            [](const Entradas& x) {
                return x.formaDosado == FormaDosado::Lambda ? std::vector<std::string>{x.lambda}
                                                            : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.lambda; },
        VANTA_DE_FORMA(formaDosado, FormaDosado::Lambda),
    });
    t.push_back({
        .nombre = "ciclo",
        .titulo = "Ciclo",
        .metavariable = "Otto|Diesel|Mixto",
        .etapa = E::Ciclo,
        .tipo = T::Eleccion,
        .porDefecto = "Otto",
        .controles = {"imgOtto", "imgDiesel", "imgMixto"},
        .valores = {std::begin(kNombresCiclos), std::end(kNombresCiclos)},
        .rechazo = "ciclo desconocido",
        .leer = [](const Entradas& x) { return std::vector<std::string>{std::string(NombreCiclo(x.ciclo))}; },
        .texto = nullptr,
        .elegir =
            [](Entradas& x, std::string_view valor) {
                const int i = Indice(kNombresCiclos, valor);
                if (i < 0) return false;
                x.ciclo = static_cast<TipoCiclo>(i);
                return true;
            },
    });
    t.push_back({.nombre = "cilindrada",
                 .titulo = "Cilindrada",
                 .unidad = "c.c.",
                 .metavariable = "CC",
                 .etapa = E::Ciclo,
                 .tipo = T::Numero,
                 .porDefecto = "100",
                 .controles = {"txtCilindrada"},
                 .nombresMensaje = {"Cilindrada"},
                 .limites = {.minimo = 0, .minimoIncluido = false, .mensajeMinimo = kMensajeCilindrada},
                 VANTA_UN_TEXTO(cilindrada)});
    t.push_back({.nombre = "rc",
                 .titulo = "Relación de compresión",
                 .unidad = "-",
                 .metavariable = "X",
                 .etapa = E::Ciclo,
                 .tipo = T::Numero,
                 .porDefecto = "10",
                 .controles = {"txtRc"},
                 .nombresMensaje = {" Relación de compresión "},
                 .limites = {.minimo = 1, .minimoIncluido = false, .mensajeMinimo = kMensajeRc},
                 VANTA_UN_TEXTO(rc)});
    t.push_back({
        .nombre = "p1",
        .titulo = "Presión al final de la admisión",
        .unidad = "Pa",
        .metavariable = "PA",
        .etapa = E::Ciclo,
        .tipo = T::Numero,
        .controles = {"txtP1"},
        .nombresMensaje = {" Presión al final de la admisión "},
        .limites = {.minimo = 0, .minimoIncluido = false, .mensajeMinimo = kMensajeP1},
        .leer =
            [](const Entradas& x) {
                return x.p1 ? std::vector<std::string>{*x.p1} : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &(x.p1 ? *x.p1 : x.p1.emplace()); },
        .elegir = nullptr,
    });
    t.push_back({
        .nombre = "t1",
        .titulo = "Temperatura al final de la admisión",
        .unidad = "K",
        .metavariable = "K",
        .etapa = E::Ciclo,
        .tipo = T::Numero,
        .controles = {"txtT1"},
        .nombresMensaje = {" Temperatura al final de la admisión "},
        .limites = {.minimo = 0, .minimoIncluido = false, .mensajeMinimo = kMensajeT1},
        .leer =
            [](const Entradas& x) {
                return x.t1 ? std::vector<std::string>{*x.t1} : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &(x.t1 ? *x.t1 : x.t1.emplace()); },
        .elegir = nullptr,
    });
    t.push_back({
        .nombre = "compresion",
        .titulo = "Modelo de la compresión",
        .metavariable = "medio|politropica|variable",
        .etapa = E::Ciclo,
        .tipo = T::Eleccion,
        .porDefecto = "medio",
        .controles = {"optGmedioCom", "optPolitropicaCom", "optGvariable"},
        .valores = {"medio", "politropica", "variable"},
        .rechazo = "modelo de compresion desconocido",
        .leer =
            [](const Entradas& x) {
                return std::vector<std::string>{std::string(NombreModelo(x.compresion))};
            },
        .texto = nullptr,
        .elegir =
            [](Entradas& x, std::string_view valor) {
                const auto m = ModeloDeNombre(valor);
                if (m) x.compresion = *m;
                return m.has_value();
            },
    });
    t.push_back({.nombre = "n-compresion",
                 .titulo = "Exponente politrópico de la compresión",
                 .unidad = "-",
                 .metavariable = "X",
                 .etapa = E::Ciclo,
                 .tipo = T::Numero,
                 .porDefecto = "1,39",
                 .controles = {"txt_nCom"},
                 .nombresMensaje = {" n "},
                 .limites = {.minimo = 1, .minimoIncluido = false, .mensajeMinimo = kMensajeExponente},
                 VANTA_UN_TEXTO(nCompresion)});
    t.push_back({
        .nombre = "expansion",
        .titulo = "Modelo de la expansión",
        .metavariable = "medio|politropica|variable",
        .etapa = E::Ciclo,
        .tipo = T::Eleccion,
        .porDefecto = "medio",
        .controles = {"optGmedioExp", "optPolitropica", "optGvariableExp"},
        .valores = {"medio", "politropica", "variable"},
        .rechazo = "modelo de expansion desconocido",
        .leer =
            [](const Entradas& x) {
                return std::vector<std::string>{std::string(NombreModelo(x.expansion))};
            },
        .texto = nullptr,
        .elegir =
            [](Entradas& x, std::string_view valor) {
                const auto m = ModeloDeNombre(valor);
                if (m) x.expansion = *m;
                return m.has_value();
            },
    });
    t.push_back({.nombre = "n-expansion",
                 .titulo = "Exponente politrópico de la expansión",
                 .unidad = "-",
                 .metavariable = "X",
                 .etapa = E::Ciclo,
                 .tipo = T::Numero,
                 .porDefecto = "1,23",
                 .controles = {"txt_nExp"},
                 .nombresMensaje = {" n "},
                 .limites = {.minimo = 1, .minimoIncluido = false, .mensajeMinimo = kMensajeExponente},
                 VANTA_UN_TEXTO(nExpansion)});
    t.push_back({
        .nombre = "pmax",
        .titulo = "Presión máxima",
        .unidad = "Pa",
        .metavariable = "PA",
        .etapa = E::Ciclo,
        .tipo = T::Numero,
        .porDefecto = "10000000",
        .controles = {"txtPMax"},
        .nombresMensaje = {" Presión máxima "},
        .grupo = "reparto",
        // Every cycle reads the box; only the mixed one works with it.
        .leer =
            [](const Entradas& x) {
                return x.reparto == RepartoMixto::PresionMaxima ? std::vector<std::string>{x.pmax}
                                                                : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.pmax; },
        VANTA_DE_FORMA(reparto, RepartoMixto::PresionMaxima),
    });
    t.push_back({
        .nombre = "proporcion-vcte",
        .titulo = "Calor a volumen constante",
        .unidad = "%",
        .metavariable = "PCT",
        .etapa = E::Ciclo,
        .tipo = T::Numero,
        .porDefecto = "50",
        .controles = {"txtPropVcte"},
        .nombresMensaje = {"%"},
        .grupo = "reparto",
        .limites = {0, true, kMensajePropNegativa, 100, true, kMensajePropMayor},
        .leer =
            [](const Entradas& x) {
                return x.reparto == RepartoMixto::Proporcion ? std::vector<std::string>{x.proporcionVcte}
                                                             : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &x.proporcionVcte; },
        VANTA_DE_FORMA(reparto, RepartoMixto::Proporcion),
    });
    t.push_back({
        .nombre = "rpm",
        .titulo = "Régimen",
        .unidad = "rpm",
        .metavariable = "N",
        .etapa = E::Regimen,
        .tipo = T::Numero,
        .controles = {"txtRpm"},
        .nombresMensaje = {" rpm "},
        .leer =
            [](const Entradas& x) {
                return x.rpm ? std::vector<std::string>{*x.rpm} : std::vector<std::string>{};
            },
        .texto = [](Entradas& x, int) -> std::string* { return &(x.rpm ? *x.rpm : x.rpm.emplace()); },
        .elegir = nullptr,
    });
    return t;
}

#undef VANTA_UN_TEXTO
#undef VANTA_DE_FORMA

const std::vector<DefinicionEntrada>& Tabla() {
    static const std::vector<DefinicionEntrada> tabla = CrearTabla();
    return tabla;
}

// The inputs of a group, in the order of the table.
std::vector<const DefinicionEntrada*> DelGrupo(std::string_view grupo) {
    std::vector<const DefinicionEntrada*> v;
    for (const DefinicionEntrada& d : Tabla())
        if (!grupo.empty() && d.grupo == grupo) v.push_back(&d);
    return v;
}

// "--a", "--a y --b", "--a, --b y --c"; with "o" for alternatives.
std::string Enumerar(const std::vector<std::string_view>& nombres, std::string_view conjuncion) {
    std::string t;
    for (size_t i = 0; i < nombres.size(); ++i) {
        if (i > 0) t += i + 1 == nombres.size() ? " " + std::string(conjuncion) + " " : ", ";
        t += "--" + std::string(nombres[i]);
    }
    return t;
}

}  // namespace

Entradas::Entradas()
    : formaCombustible(FormaCombustible::Lista),
      formaDosado(FormaDosado::Fr),
      ciclo(TipoCiclo::Otto),
      compresion(Modelo::GammaMedio),
      expansion(Modelo::GammaMedio),
      reparto(RepartoMixto::PresionMaxima) {
    for (const DefinicionEntrada& d : Tabla()) {
        if (d.porDefecto.empty()) continue;
        if (d.tipo == TipoEntrada::Eleccion)
            d.elegir(*this, d.porDefecto);
        else
            *d.texto(*this, 0) = d.porDefecto;
    }
}

std::string_view DefinicionEntrada::Bajo(double valor) const {
    const LimitesEntrada& l = limites;
    const bool fuera = l.minimoIncluido ? !(valor >= l.minimo) : !(valor > l.minimo);
    return l.mensajeMinimo.empty() || !fuera ? std::string_view() : l.mensajeMinimo;
}

std::string_view DefinicionEntrada::Alto(double valor) const {
    const LimitesEntrada& l = limites;
    const bool fuera = l.maximoIncluido ? valor > l.maximo : valor >= l.maximo;
    return l.mensajeMaximo.empty() || !fuera ? std::string_view() : l.mensajeMaximo;
}

std::string_view DefinicionEntrada::Fuera(double valor) const {
    const std::string_view bajo = Bajo(valor);
    return bajo.empty() ? Alto(valor) : bajo;
}

std::span<const DefinicionEntrada> TablaEntradas() {
    return Tabla();
}

const DefinicionEntrada* BuscarEntrada(std::string_view nombre) {
    for (const DefinicionEntrada& d : Tabla())
        if (d.nombre == nombre) return &d;
    return nullptr;
}

const DefinicionEntrada& Entrada(std::string_view nombre) {
    return *BuscarEntrada(nombre);
}

CampoEntrada Campo(const DefinicionEntrada& d, int i) {
    return {std::string(d.nombre), i};
}

std::string MensajeCifraMayor(const DefinicionEntrada& d, int i) {
    std::string nombre(d.titulo);
    if (d.Campos() > 1) {
        const std::string_view n = d.nombresMensaje[static_cast<size_t>(i)];
        const size_t desde = n.find_first_not_of(' ');
        nombre += " (" + std::string(n.substr(desde, n.find_last_not_of(' ') - desde + 1)) + ")";
    }
    const std::string limite = TextoGeneral(kCifraMayor, '.');
    const std::string unidad = d.unidad.empty() || d.unidad == "-" ? "" : " " + std::string(d.unidad);
    return nombre + ": la cifra es demasiado grande; ha de estar entre -" + limite + " y " + limite + unidad;
}

void LeerEntrada(Estado& e, Mensajes& msj, const DefinicionEntrada& d, std::string_view texto,
                 double& destino, int i) {
    const CampoEntrada campo = Campo(d, i);
    if (const auto v = LeerNumero(texto); v && std::fabs(*v) > kCifraMayor) {
        msj.MsgBox(MensajeCifraMayor(d, i), campo);
        msj.Foco(campo);
        e.ErrorCalculo = true;
        return;
    }
    ValidarNumero(e, msj, texto, destino, d.nombresMensaje[static_cast<size_t>(i)], campo);
}

// ---- Options ----------------------------------------------------------------------------

std::string OpcionesCalculo::Valor(const std::string& nombre) const {
    if (auto it = valores.find(nombre); it != valores.end()) return it->second;
    if (nombre == "p1") return Valor("presion-ambiente");
    if (nombre == "t1") return Valor("temperatura-ambiente");
    const DefinicionEntrada* d = BuscarEntrada(nombre);
    return d ? std::string(d->porDefecto) : std::string();
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

std::string ComprobarOpciones(const OpcionesCalculo& o) {
    for (const auto& [nombre, valor] : o.valores) {
        const DefinicionEntrada* d = BuscarEntrada(nombre);
        if (!d) return "opción desconocida: --" + nombre;
        if (d->tipo == TipoEntrada::Eleccion) {
            Entradas prueba;
            if (!d->elegir(prueba, valor)) {
                std::string t = std::string(d->rechazo) + ": " + valor;
                if (d->nombre == "combustible") {
                    std::string nombres;
                    for (std::string_view v : d->valores)
                        nombres += (nombres.empty() ? "" : ", ") + std::string(v);
                    t += " (los de la lista: " + nombres + ")";
                }
                return t;
            }
        }
        if (d->tipo == TipoEntrada::Numeros && static_cast<int>(SepararLista(valor).size()) != d->Campos())
            return "--" + nombre + " " + std::string(d->rechazo);
    }
    for (const DefinicionEntrada& d : Tabla()) {
        if (!o.Tiene(std::string(d.nombre))) continue;
        std::vector<std::string_view> dados;
        for (const DefinicionEntrada* otro : DelGrupo(d.grupo))
            if (o.Tiene(std::string(otro->nombre))) dados.push_back(otro->nombre);
        if (dados.size() > 1) return Enumerar(dados, "y") + " se excluyen entre sí";
        for (std::string_view n : d.necesita)
            if (!o.Tiene(std::string(n)))
                return "--" + std::string(d.nombre) + " necesita --" + std::string(n);
        if (!d.acompana.empty() && std::none_of(d.acompana.begin(), d.acompana.end(),
                                                [&](std::string_view n) { return o.Tiene(std::string(n)); }))
            return "--" + std::string(d.nombre) + " va con " + Enumerar(d.acompana, "o");
    }
    return {};
}

Entradas EntradasDeOpciones(const OpcionesCalculo& o) {
    Entradas x;
    for (const DefinicionEntrada& d : Tabla()) {
        const auto it = o.valores.find(std::string(d.nombre));
        if (it == o.valores.end()) continue;
        if (d.elegir) d.elegir(x, it->second);
        if (d.tipo == TipoEntrada::Eleccion) continue;
        const std::vector<std::string> campos =
            d.tipo == TipoEntrada::Numeros ? SepararLista(it->second) : std::vector<std::string>{it->second};
        for (int i = 0; i < d.Campos() && i < static_cast<int>(campos.size()); ++i)
            *d.texto(x, i) = campos[i];
    }
    return x;
}

OpcionesCalculo OpcionesDeEntradas(const Entradas& e) {
    OpcionesCalculo o;
    for (const DefinicionEntrada& d : Tabla()) {
        const std::vector<std::string> textos = d.leer(e);
        if (textos.empty()) continue;
        std::string valor;
        for (const std::string& t : textos) valor += (valor.empty() ? "" : ",") + t;
        o.valores[std::string(d.nombre)] = valor;
    }
    return o;
}

void QuitarExcluidas(OpcionesCalculo& o, std::string_view nombre) {
    const DefinicionEntrada* d = BuscarEntrada(nombre);
    if (!d) return;
    for (const DefinicionEntrada* otro : DelGrupo(d->grupo)) {
        if (otro == d) continue;
        o.valores.erase(std::string(otro->nombre));
        // What goes only with the excluded form goes with it.
        for (const DefinicionEntrada& a : Tabla()) {
            const bool conOtro =
                std::find(a.acompana.begin(), a.acompana.end(), otro->nombre) != a.acompana.end();
            const bool conEste =
                std::find(a.acompana.begin(), a.acompana.end(), d->nombre) != a.acompana.end();
            if (conOtro && !conEste) o.valores.erase(std::string(a.nombre));
        }
    }
}

std::string TextoListaCombustible(const Entradas& e) {
    return e.formaCombustible == FormaCombustible::Lista ? e.combustible : std::string(kOtrosCombustibles);
}

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

std::string_view NombreCiclo(TipoCiclo c) {
    return kNombresCiclos[static_cast<size_t>(c)];
}

std::string AyudaEntradas(bool (*filtro)(const DefinicionEntrada&)) {
    std::string t;
    for (const DefinicionEntrada& d : Tabla()) {
        if (filtro && !filtro(d)) continue;
        std::string linea = "  --" + std::string(d.nombre) + " " + std::string(d.metavariable);
        if (!d.porDefecto.empty()) linea += " (" + std::string(d.porDefecto) + ")";
        if (linea.size() < 34)
            linea.resize(34, ' ');
        else
            linea += "  ";
        linea += std::string(d.titulo);
        if (!d.unidad.empty() && d.unidad != "-") linea += ", " + std::string(d.unidad);
        t += linea + "\n";
    }
    // Of each group, one.
    std::vector<std::string_view> grupos;
    for (const DefinicionEntrada& d : Tabla()) {
        if (d.grupo.empty() || (filtro && !filtro(d)) ||
            std::find(grupos.begin(), grupos.end(), d.grupo) != grupos.end())
            continue;
        grupos.push_back(d.grupo);
        std::vector<std::string_view> nombres;
        for (const DefinicionEntrada* otro : DelGrupo(d.grupo)) nombres.push_back(otro->nombre);
        t += std::string(grupos.size() == 1 ? "De " : "; de ") + Enumerar(nombres, "y") + ", una";
    }
    return grupos.empty() ? t : t + ".\n";
}

}  // namespace vanta
