#include "app/LineaComandos.h"

#include <charconv>
#include <cmath>
#include <ostream>
#include <set>
#include <sstream>

#include "core/database/Direccion.h"
#include "core/fluids/Combustible.h"
#include "core/services/Numeros.h"
#include "core/validation/Avisos.h"
#include "core/validation/Confianza.h"

namespace vanta::cli {

namespace {

// The options with a value that are not inputs of the calculation.
const char* kOpcionesSalida[] = {"html", "guardar", "base-datos", "figuras", "formato", "tamano"};

bool EsOpcion(const std::string& nombre) {
    for (const char* o : kOpcionesSalida)
        if (nombre == o) return true;
    return EsOpcionCalculo(nombre);
}

size_t Campos(const std::string& lista) {
    return SepararLista(lista).size();
}

std::string NombresCombustibles() {
    std::string nombres;
    for (const auto& combustible : kBibliotecaCombustibles)
        nombres += (nombres.empty() ? "" : ", ") + std::string(combustible.nombre);
    return nombres;
}

std::string Comprobar(const OpcionesCalcular& o) {
    const std::set<std::string> ciclos{"Otto", "Diesel", "Mixto"};
    if (o.Tiene("ciclo") && !ciclos.count(o.Valor("ciclo"))) return "ciclo desconocido: " + o.Valor("ciclo");
    for (const char* m : {"compresion", "expansion"})
        if (o.Tiene(m) && !ModeloDeNombre(o.Valor(m)))
            return std::string("modelo de ") + m + " desconocido: " + o.Valor(m);
    if (o.Tiene("formula") && Campos(o.Valor("formula")) != 5)
        return "--formula lleva cinco números: C,H,N,O,S";
    if (o.Tiene("masa") && Campos(o.Valor("masa")) != 4) return "--masa lleva cuatro porcentajes: C,N,O,S";
    const int definiciones = o.Tiene("combustible") + o.Tiene("formula") + o.Tiene("masa");
    if (definiciones > 1) return "--combustible, --formula y --masa se excluyen entre sí";
    if (o.Tiene("masa") && !o.Tiene("masa-molecular")) return "--masa necesita --masa-molecular";
    if (o.Tiene("masa-molecular") && !o.Tiene("masa")) return "--masa-molecular va con --masa";
    if (o.Tiene("entalpia-formacion") && !o.Tiene("formula") && !o.Tiene("masa"))
        return "--entalpia-formacion va con --formula o --masa";
    if (o.Tiene("combustible") && !BuscarCombustible(o.Valor("combustible")))
        return "combustible desconocido: " + o.Valor("combustible") +
               " (los de la lista: " + NombresCombustibles() + ")";
    if (o.Tiene("fr") && o.Tiene("lambda")) return "--fr y --lambda se excluyen entre sí";
    if (o.Tiene("proporcion-vcte") && o.Tiene("pmax"))
        return "--proporcion-vcte y --pmax se excluyen entre sí";
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
        if (a == "--json") {
            if (o.json) return {std::nullopt, "--json se ha dado dos veces"};
            o.json = true;
            continue;
        }
        if (a.rfind("--", 0) != 0) return {std::nullopt, "argumento inesperado: " + a};
        const std::string nombre = a.substr(2);
        if (!EsOpcion(nombre)) return {std::nullopt, "opción desconocida: " + a};
        if (i + 1 >= palabras.size()) return {std::nullopt, "falta el valor de " + a};
        if (o.Tiene(nombre)) return {std::nullopt, a + " se ha dado dos veces"};
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
           "Opciones de calcular (por defecto, lo que muestran las pantallas al abrirse):\n"
           "  --json                          en lugar del informe, todas las variables del cálculo en JSON\n"
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
           "  --presion-ambiente PA (100000)  --temperatura-ambiente K (300)  --humedad PCT (0)\n"
           "  --combustible NOMBRE (Gasolina) | --formula C,H,N,O,S --entalpia-formacion J_MOL\n"
           "                                  | --masa C,N,O,S --masa-molecular KG_MOL --entalpia-formacion "
           "J_MOL\n"
           "  --fr X (1) | --lambda X\n"
           "  --ciclo Otto|Diesel|Mixto (Otto)  --cilindrada CC (100)  --rc X (10)  --p1 PA  --t1 K\n"
           "  --compresion medio|politropica|variable (medio)  --n-compresion X (1,39)\n"
           "  --expansion medio|politropica|variable (medio)   --n-expansion X (1,23)\n"
           "  --proporcion-vcte PCT (50) | --pmax PA (10000000)   ciclo Mixto: reparto del calor o presión "
           "máxima\n"
           "  --rpm N                         escribe también la potencia a ese régimen\n"
           "Los números se escriben como en las casillas: \"1,39\" y \"1.39\" valen lo mismo.\n"
           "Una opción se escribe \"--opción valor\" o \"--opción=valor\", una vez.\n";
}

namespace {

// The power block of the main window at the speed given; false when the
// speed was refused (its message is told and the power stays empty).
bool EscribirPotencia(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, const TextosResultados& r,
                      std::ostream& out) {
    CajaTextoSimple txtRpm(o.Valor("rpm")), txtPotencia, txtPotenciaCV;
    txtRpm_Change(e, dlg, e.Wciclo, txtRpm, txtPotencia, txtPotenciaCV);
    // A refused speed is told, and not written into the report.
    if (e.ErrorCalculo) return false;
    out << "r.p.m. = " << txtRpm.Text() << "\r\n"
        << "Potencia = " << txtPotencia.Text() << " W = " << txtPotenciaCV.Text() << " CV\r\n"
        << "Consumo = " << r.txtConsumoMJ << " g / MJ = " << r.txtConsumoKwh << " g / (kW·h)\r\n";
    return !e.ErrorCalculo;
}

}  // namespace

int EjecutarCalcular(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, SuperficiesCalculo& s,
                     std::ostream& out, std::ostream* avisos) {
    std::string informe;
    return EjecutarCalcular(e, o, dlg, s, out, informe, avisos);
}

int EjecutarCalcular(Estado& e, const OpcionesCalcular& o, Dialogos& dlg, SuperficiesCalculo& s,
                     std::ostream& out, std::string& informe, std::ostream* avisos) {
    VentanaPrincipalSimple v;
    const bool calculado = CalcularTodo(e, o, dlg, s, v);
    bool bien = calculado;
    if (o.json) {
        out << EstadoJSONConfianza(e, TextoListaCombustible(o), calculado) << '\n';
    } else if (bien) {
        // The report as the program keeps it, CR LF, closed by one more line end.
        out << v.informe << "\r\n";
        if (o.Tiene("rpm")) bien = EscribirPotencia(e, o, dlg, v.resultados, out);
        if (avisos)
            for (const Aviso& a : AvisosValidez(e, TextoListaCombustible(o)))
                *avisos << "aviso: " << a.texto << '\n';
    }
    informe = v.informe;
    return bien ? kSalidaBien : kSalidaFallo;
}

}  // namespace vanta::cli
