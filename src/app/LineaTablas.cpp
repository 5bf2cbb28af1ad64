#include "app/LineaTablas.h"

#include <algorithm>
#include <ostream>

#include "app/LineaComandos.h"
#include "core/properties/Especies.h"
#include "core/tables/TablasPropiedades.h"

namespace vanta::cli {

namespace {

constexpr const char* kFluidoAire = "aire";
constexpr const char* kFluidoHumos = "humos";
constexpr const char* kPorMol = "mol";
constexpr const char* kPorKg = "kg";

// The tool's own options, with what the window starts with.
struct OpcionesTablas {
    std::string fluido = kFluidoAire;
    std::string por = kPorMol;
    std::string desde = kTextoTinicial;
    std::string hasta = kTextoTfinal;
    std::string paso = kTextoIncremento;
    OpcionesCalcular fluidoDefinido;  // the options of the air, the fuel and the combustion
};

// The inputs that define the fluid: those of the air, the fuel and the
// combustion; the cycle's have no place in a table.
bool DelFluido(const DefinicionEntrada& d) {
    return d.etapa == EtapaEntrada::Aire || d.etapa == EtapaEntrada::Combustible ||
           d.etapa == EtapaEntrada::Combustion;
}

bool EsEspecie(const std::string& fluido) {
    for (const char* s : kNombresEspecies)
        if (fluido == s) return true;
    return false;
}

// Why the words are off, or empty.
std::string Parsear(const std::vector<std::string>& palabras, OpcionesTablas& o) {
    const std::vector<std::string> argumentos = SepararIgual(palabras);
    std::vector<std::string> delFluido;
    std::vector<std::string> dadas;
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& a = argumentos[i];
        if (a.rfind("--", 0) != 0) return "argumento inesperado: " + a;
        const std::string nombre = a.substr(2);
        std::string* propia = nombre == "fluido"  ? &o.fluido
                              : nombre == "por"   ? &o.por
                              : nombre == "desde" ? &o.desde
                              : nombre == "hasta" ? &o.hasta
                              : nombre == "paso"  ? &o.paso
                                                  : nullptr;
        if (!propia && !EsOpcionFluido(nombre)) return "opción desconocida: " + a;
        if (i + 1 >= argumentos.size()) return "falta el valor de " + a;
        if (std::find(dadas.begin(), dadas.end(), nombre) != dadas.end()) return a + kDadaDosVeces;
        dadas.push_back(nombre);
        if (propia) {
            *propia = argumentos[++i];
        } else {
            delFluido.push_back(a);
            delFluido.push_back(argumentos[++i]);
        }
    }
    if (o.fluido != kFluidoAire && o.fluido != kFluidoHumos && !EsEspecie(o.fluido))
        return "fluido desconocido: " + o.fluido;
    if (o.por != kPorMol && o.por != kPorKg) return "--por es mol o kg, no " + o.por;
    Parseo p = ParsearCalcular(delFluido);
    if (!p.opciones) return p.error;
    o.fluidoDefinido = *p.opciones;
    return {};
}

// The viewer on standard output. The text goes out in blocks as rows arrive,
// so that a long table needs no memory; what comes before the rows is held
// back, so that a refused number or range leaves nothing on the output.
class VisorFlujo : public VisorTablas {
public:
    explicit VisorFlujo(std::ostream& out) : out_(out) {}
    void Mostrar() override { visible_ = true; }
    void Ocultar() override {
        visible_ = false;
        pendiente_.clear();
    }
    void PonerTexto(std::string_view t) override { pendiente_ = t; }
    void Anadir(std::string_view pieza) override {
        pendiente_ += pieza;
        if (pendiente_.size() >= kBloque) Vaciar();
    }
    // The rest of the text, closed by one more line end.
    void Terminar() {
        if (!visible_) return;
        pendiente_ += "\r\n";
        Vaciar();
    }

private:
    static constexpr size_t kBloque = 1 << 16;
    void Vaciar() {
        out_ << pendiente_;
        pendiente_.clear();
    }
    std::ostream& out_;
    std::string pendiente_;
    bool visible_ = false;
};

}  // namespace

bool EsOpcionFluido(const std::string& nombre) {
    const DefinicionEntrada* d = BuscarEntrada(nombre);
    return d && DelFluido(*d);
}

std::string AyudaEntradasFluido() {
    return AyudaEntradas(DelFluido);
}

std::string TextoUsoTablas() {
    return "Uso: vanta tablas [opciones]   las tablas de propiedades como texto\n"
           "  --fluido aire|humos|Ar|CO|CO2|H2O|N2|O2 (aire)   el comburente, los gases de combustión o una "
           "especie\n"
           "  --por mol|kg (mol)               resultados por mol o por kilogramo\n"
           "  --desde K (300)  --hasta K (5000)  --paso K (100)\n"
           "El fluido se define con las opciones de calcular:\n" +
           AyudaEntradasFluido() +
           "Los números se escriben como en las casillas: \"0,5\" y \"0.5\" valen lo mismo.\n"
           "Una opción se escribe \"--opción valor\" o \"--opción=valor\", una vez.\n";
}

int EjecutarTablas(const std::vector<std::string>& argumentos, std::ostream& out, std::ostream& err) {
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        out << TextoUsoTablas();
        return kSalidaBien;
    }
    OpcionesTablas o;
    if (std::string error = Parsear(argumentos, o); !error.empty()) {
        err << "vanta tablas: " << error << "\n" << kVerAyuda << "vanta tablas --help\n";
        return kSalidaUso;
    }

    Estado e;
    Mensajes msj;
    const auto decir = [&] {
        for (const MensajeCalculo& m : msj.lista) err << "vanta tablas: " << m.texto << '\n';
    };
    const bool aire = o.fluido == kFluidoAire, humos = o.fluido == kFluidoHumos;
    const Entradas fluido = EntradasDeOpciones(o.fluidoDefinido);
    if (aire || humos) {
        SuperficiesNulas nulas;
        SuperficiesCalculo s = nulas.Todas();
        if (!DefinirFluido(e, msj, fluido, s, humos)) {
            decir();
            return kSalidaFallo;
        }
    }

    EntradasHerramientas c{.incremento = o.paso,
                           .tInicial = o.desde,
                           .tFinal = o.hasta,
                           .porMol = o.por == kPorMol,
                           .porKg = o.por == kPorKg,
                           .aire = aire,
                           .humos = humos,
                           .elemento = aire || humos ? kTextoElegir : o.fluido};
    MiembrosHerramientas m;
    VisorFlujo visor(out);
    const bool bien = aire || humos ? cmdTablas_Click(e, msj, c, m, visor, TextoListaCombustible(fluido))
                                    : cmdTab_Click(e, msj, c, m, visor);
    decir();
    visor.Terminar();
    return bien && !e.ErrorCalculo && msj.lista.empty() ? kSalidaBien : kSalidaFallo;
}

}  // namespace vanta::cli
