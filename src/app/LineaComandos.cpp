#include "app/LineaComandos.h"

#include <charconv>
#include <cmath>
#include <ostream>
#include <set>
#include <sstream>

#include "core/database/Direccion.h"
#include "core/equilibrium/InformeDisociacion.h"
#include "core/services/Numeros.h"

namespace vanta::cli {

namespace {

// The options with a value that are not inputs of the calculation.
const char* kOpcionesSalida[] = {"html", "guardar", "base-datos", "figuras", "formato", "tamano"};

bool EsOpcion(const std::string& nombre) {
    for (const char* o : kOpcionesSalida)
        if (nombre == o) return true;
    return BuscarEntrada(nombre) != nullptr;
}

std::string Comprobar(const OpcionesCalcular& o) {
    OpcionesCalculo entradas;
    for (const auto& [nombre, valor] : o.valores)
        if (BuscarEntrada(nombre)) entradas.valores[nombre] = valor;
    if (std::string error = ComprobarOpciones(entradas); !error.empty()) return error;
    if ((o.Tiene("formato") || o.Tiene("tamano")) && !o.Tiene("figuras"))
        return "--formato y --tamano van con --figuras";
    if (o.Tiene("formato") && !std::set<std::string>{"png", "svg", "pdf"}.count(o.Valor("formato")))
        return "formato de figura desconocido: " + o.Valor("formato") + " (png, svg o pdf)";
    if (o.Tiene("base-datos")) {
        if (!o.Tiene("guardar")) return "--base-datos va con --guardar";
        if (const auto d = bd::LeerDireccion(o.Valor("base-datos")); !d.direccion)
            return "--base-datos: " + d.error;
    }
    return {};
}

// "ANCHOxALTO" in whole pixels, each from 100 to 10000.
bool LeerTamano(const std::string& texto, int& ancho, int& alto) {
    const auto x = texto.find('x');
    if (x == std::string::npos) return false;
    const auto a = LeerNumero(texto.substr(0, x)), b = LeerNumero(texto.substr(x + 1));
    const auto valido = [](const std::optional<double>& v) {
        return v && *v >= 100 && *v <= 10000 && *v == std::floor(*v);
    };
    if (!valido(a) || !valido(b)) return false;
    ancho = static_cast<int>(*a);
    alto = static_cast<int>(*b);
    return true;
}

}  // namespace

std::vector<std::string> SepararIgual(const std::vector<std::string>& argumentos) {
    std::vector<std::string> palabras;
    for (const std::string& a : argumentos) {
        const size_t igual = a.find('=');
        if (a.rfind("--", 0) == 0 && igual != std::string::npos) {
            palabras.push_back(a.substr(0, igual));
            palabras.push_back(a.substr(igual + 1));
        } else {
            palabras.push_back(a);
        }
    }
    return palabras;
}

Parseo ParsearCalcular(const std::vector<std::string>& argumentos) {
    OpcionesCalcular o;
    const std::vector<std::string> palabras = SepararIgual(argumentos);
    for (size_t i = 0; i < palabras.size(); ++i) {
        const std::string& a = palabras[i];
        if (bool* interruptor = a == "--json" ? &o.json : a == "--disociacion" ? &o.disociacion : nullptr) {
            if (*interruptor) return {std::nullopt, a + kDadaDosVeces};
            *interruptor = true;
            continue;
        }
        if (a.rfind("--", 0) != 0) return {std::nullopt, "argumento inesperado: " + a};
        const std::string nombre = a.substr(2);
        if (!EsOpcion(nombre)) return {std::nullopt, "opción desconocida: " + a};
        if (i + 1 >= palabras.size()) return {std::nullopt, "falta el valor de " + a};
        if (o.Tiene(nombre)) return {std::nullopt, a + kDadaDosVeces};
        o.valores[nombre] = palabras[++i];
    }
    if (std::string error = Comprobar(o); !error.empty()) return {std::nullopt, error};
    if (o.Tiene("html") && o.Valor("html").empty()) return {std::nullopt, "--html necesita una carpeta"};
    if (o.Tiene("guardar") && o.Valor("guardar").empty())
        return {std::nullopt, "--guardar necesita el nombre del registro"};
    if (o.Tiene("tamano") && !LeerTamano(o.Valor("tamano"), o.ancho, o.alto))
        return {std::nullopt, "--tamano lleva ANCHOxALTO en píxeles, cada uno de 100 a 10000"};
    if (o.Tiene("figuras") && o.Valor("figuras").empty())
        return {std::nullopt, "--figuras necesita una carpeta"};
    o.html = o.Valor("html");
    o.guardar = o.Valor("guardar");
    o.baseDatos = o.Valor("base-datos");
    o.figuras = o.Valor("figuras");
    if (o.Tiene("formato")) o.formato = o.Valor("formato");
    for (const char* salida : kOpcionesSalida) o.valores.erase(salida);
    return {o, {}};
}

std::string TextoUso() {
    return "Uso: vanta                              la ventana principal\n"
           "     vanta --carpeta-datos              la ventana principal, con los datos (BD.sqlite) en\n"
           "                                        ~/.local/share/vanta; así la abre el menú del "
           "escritorio\n"
           "     vanta calcular [opciones]          el cálculo completo sin ventana; escribe el informe\n"
           "     vanta tablas [opciones]            las tablas de propiedades como texto\n"
           "     vanta estudio [opciones]           un estudio paramétrico (vanta estudio --help)\n"
           "     vanta validar                      la tabla de validación del modelo (sale con 1 si algo no "
           "cumple)\n"
           "     vanta llama [opciones]             la temperatura de llama adiabática (vanta llama --help)\n"
           "     vanta --version                    la versión del programa\n"
           "\n"
           "Opciones de calcular:\n"
           "  --json                          en lugar del informe, todas las variables del cálculo en JSON\n"
           "  --disociacion                   también el ciclo con disociación (equilibrio químico) y con\n"
           "                                  productos de combustión completa, tras el informe o en el "
           "JSON\n"
           "  --html CARPETA                  escribe también la página HTML y sus siete imágenes\n"
           "  --guardar NOMBRE                guarda también el resultado en la base de datos\n"
           "  --base-datos RUTA|DIRECCIÓN     dónde la guarda: un archivo SQLite (por defecto BD.sqlite\n"
           "                                  en la carpeta actual) o un servidor PostgreSQL,\n"
           "                                  "
           "postgresql://usuario@servidor:5432/basedatos[?sslmode=require];\n"
           "                                  la contraseña, en PGPASSFILE (~/.pgpass) o PGPASSWORD\n"
           "  --figuras CARPETA               escribe también los cuatro diagramas, con escalas, y las tres\n"
           "                                  gráficas, como figuras: --formato png|svg|pdf (png)\n"
           "                                  --tamano ANCHOxALTO (1200x900)\n"
           "Los datos del cálculo (por defecto, lo que muestran las pantallas al abrirse; --p1 y --t1, los\n"
           "del ambiente; --rpm escribe también la potencia a ese régimen):\n" +
           AyudaEntradas() +
           "Los números se escriben como en las casillas: \"1,39\" y \"1.39\" valen lo mismo.\n"
           "Una opción se escribe \"--opción valor\" o \"--opción=valor\", una vez.\n";
}

bool NecesitaVentanas(const OpcionesCalcular& o) {
    return !o.html.empty() || !o.guardar.empty() || !o.figuras.empty();
}

int EscribirCalculo(const ResultadoCalculo& r, const OpcionesCalcular& o, std::ostream& out,
                    std::ostream& err) {
    for (const MensajeCalculo& m : r.mensajes) err << "vanta calcular: " << m.texto << '\n';
    const auto disociacion = o.disociacion && r.CicloCalculado()
                                 ? std::optional(equilibrio::CicloConDisociacion(*r.estado))
                                 : std::nullopt;
    if (o.json) {
        std::string json = ResultadoJSON(r);
        // The two cycles join the object as its last members.
        if (disociacion)
            json.insert(json.size() - 1, "," + equilibrio::CicloConDisociacionJSON(*disociacion));
        out << json << '\n';
    } else if (r.CicloCalculado()) {
        // The report as the program keeps it, CR LF, closed by one more line end.
        out << r.informe << "\r\n";
        if (r.potencia)
            out << "r.p.m. = " << r.entradas.rpm.value_or("") << "\r\n"
                << "Potencia = " << r.potencia->potencia << " W = " << r.potencia->potenciaCV << " CV\r\n"
                << "Consumo = " << r.textos.txtConsumoMJ << " g / MJ = " << r.textos.txtConsumoKwh
                << " g / (kW·h)\r\n";
        if (disociacion) out << "\r\n" << equilibrio::TextoDisociacion(*r.estado, *disociacion, "\r\n");
        for (const Aviso& a : r.avisos) err << "aviso: " << a.texto << '\n';
    }
    return r.bien ? kSalidaBien : kSalidaFallo;
}

Entradas EntradasDeCalcular(const OpcionesCalcular& o) {
    Entradas x = EntradasDeOpciones(o);
    // The JSON holds no power: the speed plays no part there.
    if (o.json) x.rpm.reset();
    return x;
}

int EjecutarCalcular(const OpcionesCalcular& o, std::ostream& out, std::ostream& err) {
    return EscribirCalculo(Calcular(EntradasDeCalcular(o)), o, out, err);
}

}  // namespace vanta::cli
