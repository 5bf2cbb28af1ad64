#include "core/tables/TablasPropiedades.h"

#include <cmath>
#include <initializer_list>
#include <optional>

#include "core/properties/Especies.h"
#include "core/properties/Mezclas.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

constexpr std::string_view kFinLinea = "\r\n";
// What ends every heading and row: with the " " and the line end that open the
// next row, a line of five blanks stands between two rows.
constexpr std::string_view kCierre = "\r\n    ";

constexpr std::string_view kCabeceraMezclaMol =
    "   T (K)            cp (J/mol)             h Total (J/mol)          S0 (J/(mol·K))             Gamma";
constexpr std::string_view kCabeceraMezclaKg =
    "   T (K)            cp (J/kg)             h Total (J/kg)          S0 (J/(kg·K))             Gamma";
constexpr std::string_view kCabeceraEspecieMol =
    "   T (K)            cp (J/mol)            cv (J/mol)             h Total (J/mol)          S0 "
    "(J/(mol·K))  "
    "           Gamma";
constexpr std::string_view kCabeceraEspecieKg =
    "   T (K)            cp (J/kg)              cv (J/kg)             h Total (J/kg)          S0 (J/(kg·K))  "
    "  "
    "         Gamma";

// The field names of the three boxes in the validator's message.
constexpr std::string_view kNombreIncremento = " incremento de T ";
constexpr std::string_view kNombreTinicial = " Temperatura inicial";
constexpr std::string_view kNombreTfinal = " temperatura final ";

constexpr std::string_view kMascara2 = "### ### ##0.00";
constexpr std::string_view kMascara3 = "### ### ##0.000";
constexpr std::string_view kMascara4 = "### ### ##0.0000";

// Refusals of a range that the tables cannot walk.
constexpr std::string_view kLimitesNoFinitos =
    "Las temperaturas inicial y final y el incremento de temperatura han de ser números finitos.";
constexpr std::string_view kPasoNoPositivo =
    "El incremento de temperatura ha de ser mayor que 0 K: con él la tabla no llegaría nunca a la "
    "temperatura final.";
constexpr std::string_view kPrimeraNoPositiva = "La primera temperatura de la tabla ha de ser mayor que 0 K.";

std::string DemasiadasFilas() {
    // A whole number: the mask has no decimal places, and no separator.
    return "La tabla tendría más de " + Format(kFilasMaximas, "### ### ###", '.') +
           " filas: aumente el incremento de temperatura o acorte el intervalo.";
}

std::string FueraDeRango(const Estado& e, double temperatura) {
    return "Las propiedades salen del intervalo de los números del programa a " +
           TextoGeneral(temperatura, e.SeparadorDecimal) + " K; la tabla se detiene en esa temperatura.";
}

// A refusal of the tool: its message, the flag, and no table.
bool Rechazar(Estado& e, Mensajes& msj, VisorTablas& v, std::string_view mensaje) {
    msj.MsgBox(mensaje);
    e.ErrorCalculo = true;
    v.Ocultar();
    return false;
}

// The three boxes into the window's members; false when one was refused.
bool LeerLimites(Estado& e, Mensajes& msj, const EntradasHerramientas& c, MiembrosHerramientas& m) {
    const size_t antes = msj.lista.size();
    ValidarNumero(e, msj, c.incremento, m.AT, kNombreIncremento, {std::string(kCampoIncremento)});
    ValidarNumero(e, msj, c.tInicial, m.Tinicial, kNombreTinicial, {std::string(kCampoTinicial)});
    ValidarNumero(e, msj, c.tFinal, m.Tfinal, kNombreTfinal, {std::string(kCampoTfinal)});
    return msj.lista.size() == antes;
}

// Where the walk starts: the first row's temperature less one step, taken in
// single precision as the members are.
double TemperaturaPrevia(const MiembrosHerramientas& m) {
    return m.Tinicial - m.AT;
}

// The walk ends when the temperature, taken to single precision, is not below
// the last one.
bool Sigue(double temperatura, const MiembrosHerramientas& m) {
    return static_cast<float>(temperatura) < m.Tfinal;
}

// A range the walk can end in reasonable time: finite limits, a positive step,
// not too many rows, and a first temperature that the polynomials take.
std::optional<std::string> RangoRechazado(const MiembrosHerramientas& m) {
    if (!std::isfinite(m.AT) || !std::isfinite(m.Tinicial) || !std::isfinite(m.Tfinal))
        return std::string(kLimitesNoFinitos);
    if (!(m.AT > 0)) return std::string(kPasoNoPositivo);
    const double previa = TemperaturaPrevia(m);
    if (!Sigue(previa, m)) return std::nullopt;  // heading and no rows
    const double filas = (static_cast<double>(m.Tfinal) - previa) / m.AT;
    if (!(filas <= kFilasMaximas)) return DemasiadasFilas();
    if (!(previa + m.AT > 0)) return std::string(kPrimeraNoPositiva);
    return std::nullopt;
}

// One value of a row: the blanks before it, then the value rounded and masked.
struct Columna {
    std::string_view antes;
    double valor;
    int decimales;
    std::string_view mascara;
};

// A row: " ", the line end, the indent, the temperature by the general
// conversion, the columns, and the closing. Nothing when a value is not finite.
std::optional<std::string> Fila(const Estado& e, std::string_view sangria, double temperatura,
                                std::initializer_list<Columna> columnas) {
    for (const Columna& c : columnas)
        if (!std::isfinite(c.valor)) return std::nullopt;
    std::string fila = " ";
    fila += kFinLinea;
    fila += sangria;
    fila += TextoGeneral(temperatura, e.SeparadorDecimal);
    for (const Columna& c : columnas) {
        fila += c.antes;
        fila += Format(Round(c.valor, c.decimales), c.mascara, e.SeparadorDecimal);
    }
    fila += kCierre;
    return fila;
}

// Walks the range: Temperatura from the first row on, in steps of AT, each
// round calling fila(), which appends its row; stops early when fila() says
// so. A count of rounds stands guard over the row limit whatever the sums do.
template <class F>
bool Recorrer(Estado& e, const MiembrosHerramientas& m, F&& fila) {
    e.Temperatura = TemperaturaPrevia(m);
    double rondas = 0;
    while (Sigue(e.Temperatura, m) && rondas++ <= kFilasMaximas) {
        e.Temperatura += m.AT;
        if (!fila()) return false;
    }
    return true;
}

void AnadirCabecera(VisorTablas& v, std::string_view cabecera) {
    std::string t(cabecera);
    t += kCierre;
    v.Anadir(t);
}

// Which species the list's text names, or nothing.
std::optional<Especie> EspecieDe(std::string_view texto) {
    for (int s = 0; s < kNumeroEspecies; ++s)
        if (texto == kNombresEspecies[s]) return static_cast<Especie>(s);
    return std::nullopt;
}

}  // namespace

bool cmdTablas_Click(Estado& e, Mensajes& msj, const EntradasHerramientas& c, MiembrosHerramientas& m,
                     VisorTablas& v, std::string_view tipoCombustible) {
    // Each press starts clear, as CALCULAR does: a refused text of the last
    // table must not silence the evaluations of this one.
    e.ErrorCalculo = false;
    v.Mostrar();
    v.PonerTexto(" ");
    const bool aire = c.aire, humos = c.humos;
    const bool mol = c.porMol, kg = c.porKg;
    if (aire)
        v.PonerTexto("     Aire con " + TextoGeneral(e.Humedad, e.SeparadorDecimal) + " % de humedad" +
                     std::string(kFinLinea) + std::string(kFinLinea));
    if (humos)
        v.PonerTexto("     Aire con " + TextoGeneral(e.Humedad, e.SeparadorDecimal) +
                     " % de humedad      Combustible: " + std::string(tipoCombustible) +
                     "      Fr = " + TextoGeneral(e.Fr, e.SeparadorDecimal) + std::string(kFinLinea) +
                     std::string(kFinLinea));
    if (mol) AnadirCabecera(v, kCabeceraMezclaMol);
    if (kg) AnadirCabecera(v, kCabeceraMezclaKg);

    if (!LeerLimites(e, msj, c, m)) {
        v.Ocultar();
        return false;
    }
    if (auto rechazo = RangoRechazado(m)) return Rechazar(e, msj, v, *rechazo);

    // One fluid's row from its molar properties; the gases' entropy is shown
    // with two decimals although it is rounded to three, and both fluids go
    // per kilogram by the comburent's molecular mass.
    const auto filaFluido = [&](double cp, double h, double s0, std::string_view mascaraS0) -> bool {
        std::optional<std::string> fila;
        if (mol)
            fila = Fila(e, "          ", e.Temperatura,
                        {{"          ", cp, 4, kMascara4},
                         {"             ", h, 2, kMascara2},
                         {"                  ", s0, 3, mascaraS0},
                         {"                  ", e.Gamma, 4, kMascara4}});
        else if (kg)
            fila = Fila(e, "          ", e.Temperatura,
                        {{"          ", cp / e.MasaMolecularAire, 2, kMascara2},
                         {"             ", h / e.MasaMolecularAire, 2, kMascara2},
                         {"                  ", s0 / e.MasaMolecularAire, 3, mascaraS0},
                         {"                  ", e.Gamma, 4, kMascara4}});
        else
            return true;
        if (!fila) return Rechazar(e, msj, v, FueraDeRango(e, e.Temperatura));
        v.Anadir(*fila);
        return true;
    };

    // The loop does not test ErrorCalculo: past the limit of the evaluation it
    // goes on writing the values last evaluated.
    return Recorrer(e, m, [&] {
        if (aire) {
            PropiedadesAire(e, msj);
            if (!filaFluido(e.CpAire, e.hAire, e.S0Aire, kMascara3)) return false;
        }
        if (humos) {
            PropiedadesHumos(e, msj);
            if (!filaFluido(e.CpHumos, e.hHumos, e.S0Humos, kMascara2)) return false;
        }
        return true;
    });
}

bool cmdTab_Click(Estado& e, Mensajes& msj, const EntradasHerramientas& c, MiembrosHerramientas& m,
                  VisorTablas& v) {
    e.ErrorCalculo = false;
    v.Mostrar();
    if (!LeerLimites(e, msj, c, m)) {
        v.Ocultar();
        return false;
    }
    const std::string& nombre = c.elemento;
    const bool mol = c.porMol, kg = c.porKg;
    v.PonerTexto(nombre + std::string(kCierre));
    if (mol) AnadirCabecera(v, kCabeceraEspecieMol);
    if (kg) AnadirCabecera(v, kCabeceraEspecieKg);
    if (auto rechazo = RangoRechazado(m)) return Rechazar(e, msj, v, *rechazo);

    const std::optional<Especie> especie = EspecieDe(nombre);
    return Recorrer(e, m, [&] {
        // The text is told only when a row is due: a range with no rows shows
        // the heading under whatever the list says.
        if (!especie) {
            msj.MsgBox(kElijaElemento);
            v.Ocultar();
            return false;
        }
        const double M = kMasasMolaresEspecies[*especie];
        const Coeficientes& k =
            RangoBajo(e.Temperatura) ? kCoeficientesBaja[*especie] : kCoeficientesAlta[*especie];
        const double Cp = PolinomioCp(e, k.a1, k.a2, k.a3, k.a4, k.a5);
        const double h = PolinomioEntalpia(e, k.a1, k.a2, k.a3, k.a4, k.a5, k.a6);
        const double S0 = PolinomioEntropia(e, k.a1, k.a2, k.a3, k.a4, k.a5, k.a7);
        std::optional<std::string> fila;
        if (mol)
            fila = Fila(e, "       ", e.Temperatura,
                        {{"          ", Cp, 4, kMascara4},
                         {"          ", Cp - kR, 4, kMascara4},
                         {"              ", h, 2, kMascara2},
                         {"                  ", S0, 3, kMascara3},
                         {"                  ", Cp / (Cp - kR), 4, kMascara4}});
        else if (kg)
            fila = Fila(e, "       ", e.Temperatura,
                        {{"          ", Cp / M, 2, kMascara2},
                         {"          ", (Cp - kR) / M, 2, kMascara2},
                         {"              ", h / M, 2, kMascara2},
                         {"                  ", S0 / M, 3, kMascara3},
                         {"                  ", Cp / (Cp - kR), 4, kMascara4}});
        else
            return true;
        if (!fila) return Rechazar(e, msj, v, FueraDeRango(e, e.Temperatura));
        v.Anadir(*fila);
        return true;
    });
}

}  // namespace vanta
