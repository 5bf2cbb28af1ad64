#include "core/reports/Informes.h"
#include "core/reports/TextosInforme.h"
#include "core/services/Numeros.h"

namespace vanta {

using namespace informe;

namespace {

// The masks of the reports.
constexpr std::string_view kMascaraEntera = "### ### ### ### ###";
constexpr std::string_view kMascaraTambiente = "### ### ### ### ##0.00";
constexpr std::string_view kMascaraHumedad = "##0.00";
constexpr std::string_view kMascaraMolecular6 = "# ##0.0## ###";
constexpr std::string_view kMascaraMolecular9 = "# ##0.0## ### ###";
constexpr std::string_view kMascaraDosado = "0.0##";
constexpr std::string_view kMascaraMolecularHumos = "### ##0.0## ###";
constexpr std::string_view kMascaraDosDecimales = "### ### ### ##0.00";
constexpr std::string_view kMascaraTresDecimales = "### ### ### ##0.000";
constexpr std::string_view kMascaraMasa9 = "### ### ##0.0## ### ###";
constexpr std::string_view kMascaraMasa6 = "### ### ##0.0## ###";
constexpr std::string_view kMascaraEnergia = "### ### ##0.0##";
constexpr std::string_view kMascaraMolar = "### ### ##0.0";
constexpr std::string_view kMascaraQMolar34 = "### ### ##00";
constexpr std::string_view kMascaraRendimiento = "##0.0##";

// The rules of the banner: one blank and 114 asterisks.
const std::string kRaya = " " + std::string(114, '*');

// The notation of the report lines, with the state's decimal separator.
struct Notacion {
    char separador;
    // [x, d, mask]: rounded to d decimals, then through the mask.
    std::string Enmascarado(double x, int d, std::string_view mascara) const {
        return Format(Round(x, d), mascara, separador);
    }
    // [x, -, mask]: straight through the mask.
    std::string Enmascarado(double x, std::string_view mascara) const {
        return Format(x, mascara, separador);
    }
    // [x, d]: rounded to d decimals, then the general conversion.
    std::string Redondeado(double x, int d) const { return TextoGeneral(Round(x, d), separador); }
    // [x]: the general conversion.
    std::string General(double x) const { return TextoGeneral(x, separador); }
};

// The quantities of state k, 1 to 5.
struct CamposEstado {
    double Estado::*p;
    double Estado::*V;
    double Estado::*T;
    double Estado::*h;
    double Estado::*S;
};
constexpr CamposEstado kCamposEstado[5] = {
    {&Estado::p1, &Estado::V1, &Estado::T1, &Estado::h1, &Estado::S1},
    {&Estado::p2, &Estado::V2, &Estado::T2, &Estado::h2, &Estado::S2},
    {&Estado::p3, &Estado::V3, &Estado::T3, &Estado::h3, &Estado::S3},
    {&Estado::p4, &Estado::V4, &Estado::T4, &Estado::h4, &Estado::S4},
    {&Estado::p5, &Estado::V5, &Estado::T5, &Estado::h5, &Estado::S5},
};

CifrasEstadoCiclo CifrasEstado(const Estado& e, const CamposEstado& k) {
    const double p = e.*k.p, V = e.*k.V, T = e.*k.T;
    const Notacion n{e.SeparadorDecimal};
    CifrasEstadoCiclo c;
    c.presion = n.Enmascarado(p, 0, kMascaraEntera);
    c.presionBar = n.Enmascarado(p / 100000, 2, kMascaraDosDecimales);
    c.volumen = n.Redondeado(V * 1000000, 2);
    c.volumenMasico = n.Redondeado(V / e.MasaAire, 3);
    c.volumenMolar = n.Enmascarado(e.MasaMolecularAire * V / e.MasaAire, 6, kMascaraMasa6);
    c.temperatura = n.Enmascarado(T, 2, kMascaraDosDecimales);
    c.temperaturaCelsius = n.Enmascarado(T - 273.15, 2, kMascaraDosDecimales);
    c.entalpia = n.Enmascarado(e.*k.h, 2, kMascaraDosDecimales);
    c.entropia = n.Redondeado(e.*k.S, 3);
    return c;
}

// The digit of state k in the captions ("p1 = ", "T 1 = ").
std::string Digito(int k) {
    return std::string(1, static_cast<char>('0' + k));
}

}  // namespace

CifrasInforme CalcularCifrasInforme(const Estado& e, std::string_view tipoCombustible) {
    const Notacion n{e.SeparadorDecimal};
    CifrasInforme c;
    c.tipoCiclo = e.TipoCiclo;
    c.tipoCombustible = tipoCombustible;
    c.frBanner = n.General(e.Fr);
    c.humedadBanner = n.General(e.Humedad);

    c.pambiente = n.Enmascarado(e.Pambiente, 0, kMascaraEntera);
    c.tambiente = n.Enmascarado(e.Tambiente, 2, kMascaraTambiente);
    c.humedad = n.Enmascarado(e.Humedad, 2, kMascaraHumedad);
    c.psaturacion = n.Enmascarado(e.Psaturacion, 0, kMascaraEntera);
    c.masaMolecularAire = n.Enmascarado(e.MasaMolecularAire, 6, kMascaraMolecular6);

    c.atomosC = n.Redondeado(e.AtomosC, 3);
    c.atomosH = n.Redondeado(e.AtomosH, 3);
    c.atomosN = n.Redondeado(e.AtomosN, 3);
    c.atomosO = n.Redondeado(e.AtomosO, 3);
    c.atomosS = n.Redondeado(e.AtomosS, 4);
    c.cienC = n.Redondeado(e.CienC, 3);
    c.cienH = n.Redondeado(e.CienH, 3);
    c.cienN = n.Redondeado(e.CienN, 3);
    c.cienO = n.Redondeado(e.CienO, 3);
    c.cienS = n.Redondeado(e.CienS, 4);
    c.hcs = n.Enmascarado(e.HCS, 0, kMascaraEntera);
    c.hci = n.Enmascarado(e.HCI, 0, kMascaraEntera);
    c.calorVap = n.Enmascarado(e.CalorVap, 0, kMascaraEntera);
    c.masaMolecularCombustible = n.Enmascarado(e.MasaMolecularCombustible, 9, kMascaraMolecular9);

    c.fr = n.Enmascarado(e.Fr, 3, kMascaraDosado);
    // Lambda alone has no mask: 1 prints as "1".
    c.lambda = n.Redondeado(1 / e.Fr, 3);
    c.fe = n.Enmascarado(e.Fe, 3, kMascaraDosado);
    c.hcsHumos = n.Enmascarado(e.HCShumos, 0, kMascaraEntera);
    c.hciHumos = n.Enmascarado(e.HCIhumos, 0, kMascaraEntera);
    c.masaMolecularHumos = n.Enmascarado(e.MasaMolecularHumos, 6, kMascaraMolecularHumos);

    // The displacement shown is V1 itself, the same figure as state 1's volume.
    c.cilindrada = n.Enmascarado(e.V1 * 1000000, 0, kMascaraEntera);
    c.rc = n.General(e.Rc);
    c.masaAire = n.Enmascarado(e.MasaAire, 6, kMascaraMolecular6);
    c.masaCombustible = n.Enmascarado(e.MasaCombustible, 9, kMascaraMasa9);
    c.masaHumos = n.Enmascarado(e.MasaHumos, 6, kMascaraMasa6);
    for (size_t k = 0; k < c.estados.size(); ++k) c.estados[k] = CifrasEstado(e, kCamposEstado[k]);

    // Compression: the work as the calculation rounded it, its molar figure
    // from the unrounded sum; gamma 1 alone is rounded before its mask.
    c.gamma1 = n.Enmascarado(e.gamma1, 3, kMascaraTresDecimales);
    c.gamma2 = n.Enmascarado(e.Gamma2, kMascaraTresDecimales);
    c.trabajo12 = n.General(e.W12);
    c.trabajoMolar12 = n.Enmascarado(e.W12acumulado / e.MolesAire, kMascaraTresDecimales);
    c.salto21 = n.Enmascarado(e.h2 - e.h1, 2, kMascaraDosDecimales);

    c.q23 = n.Enmascarado(e.Q23, 3, kMascaraEnergia);
    c.qMolar23 = n.Enmascarado(e.Q23 / e.MolesAire, 1, kMascaraMolar);
    c.salto32 = n.Enmascarado(e.h3 - e.h2, 2, kMascaraDosDecimales);

    // The molar heat of 3-4 is the whole heat of the cycle, nothing subtracted.
    c.q34 = n.Enmascarado(e.Qciclo - e.Q23, 3, kMascaraEnergia);
    c.qMolar34 = n.Enmascarado(e.Qciclo / e.MolesAire, 1, kMascaraQMolar34);
    c.trabajo34 = n.General(e.W34);
    c.trabajoMolar34 = n.Enmascarado(e.W34 / e.MolesAire, 1, kMascaraMolar);
    c.salto43 = n.Enmascarado(e.h4 - e.h3, 2, kMascaraDosDecimales);

    c.gamma4 = n.Enmascarado(e.Gamma4, kMascaraTresDecimales);
    c.gamma5 = n.Enmascarado(e.Gamma5, kMascaraTresDecimales);
    c.trabajo45 = n.Enmascarado(e.W45, 3, kMascaraEnergia);
    c.trabajoMolar45 = n.Enmascarado(e.W45 / e.MolesAire, 3, kMascaraEnergia);
    c.salto54 = n.Enmascarado(e.h5 - e.h4, 2, kMascaraDosDecimales);

    // The ideal heat is the fuel's lower heating value; the heat of the cycle
    // came from the gases'. The work is summed afresh from the unrounded three.
    const double calorIdeal = e.MasaCombustible * e.HCI;
    const double trabajo = e.W34acumulado + e.W12acumulado + e.W45acumulado;
    c.calorIdeal = n.Enmascarado(calorIdeal, 3, kMascaraEnergia);
    c.calorIdealMolar = n.Enmascarado(calorIdeal / e.MolesAire, 1, kMascaraMolar);
    c.calorCiclo = n.Enmascarado(e.Qciclo, 3, kMascaraEnergia);
    c.calorCicloMolar = n.Enmascarado(e.Qciclo / e.MolesAire, 1, kMascaraMolar);
    c.trabajoCiclo = n.Enmascarado(trabajo, 3, kMascaraEnergia);
    c.trabajoCicloMolar = n.Enmascarado(trabajo / e.MolesAire, 1, kMascaraMolar);
    c.rendimiento = n.Enmascarado(e.Rendimiento, kMascaraRendimiento);
    return c;
}

namespace informe {

std::string LineaPresionVolumen(const CifrasInforme& c, int k, std::string_view antes) {
    const CifrasEstadoCiclo& s = c.estados[static_cast<size_t>(k - 1)];
    const std::string n = Digito(k);
    std::string linea;
    Agregar(linea, "p", n, " = ", s.presion, " Pa", "  (", s.presionBar, " bar )      ");
    Agregar(linea, antes, "V", n, " = ", s.volumen, " c.c.  ", "(", s.volumenMasico, " m3 / kg ", " )  (",
            s.volumenMolar, "  m3 / mol)      ");
    Agregar(linea, antes, "T ", n, " = ", s.temperatura, " K  ", "(", s.temperaturaCelsius, " ºC)");
    return linea;
}

std::string LineaEntalpiaEntropia(const CifrasInforme& c, int k, std::string_view antes) {
    const CifrasEstadoCiclo& s = c.estados[static_cast<size_t>(k - 1)];
    const std::string n = Digito(k);
    std::string linea;
    Agregar(linea, "h", n, " = ", s.entalpia, kJPorMol, "      ", antes, "s", n, " = ", s.entropia,
            "  J/(mol·K)");
    return linea;
}

}  // namespace informe

// ---- The six sections --------------------------------------------------------------

void InformeTextoCabeceraAire(std::string& s, const CifrasInforme& c) {
    s.clear();
    AgregarLinea(s);
    AgregarLinea(s, kRaya);
    AgregarLinea(s, kCiclo, c.tipoCiclo, "      ", kCombustibleBanner, c.tipoCombustible, "      ", kFrBanner,
                 c.frBanner, "      ", kAireBanner, c.humedadBanner, kDeHumedad);
    AgregarLinea(s, kRaya);
    AgregarLinea(s);
    AgregarLinea(s, " AIRE");
    AgregarLinea(s, kPresionAmbiente, c.pambiente, " Pa");
    AgregarLinea(s, kTemperaturaAmbiente, c.tambiente, " K");
    AgregarLinea(s, kHumedadRelativa, c.humedad, " %");
    AgregarLinea(s, kPresionSaturacion, c.psaturacion, " Pa");
    AgregarLinea(s, kMasaMolecularAire, c.masaMolecularAire, kKgPorMol);
    AgregarLinea(s);
}

void InformeTextoCombustible(std::string& s, const CifrasInforme& c) {
    AgregarLinea(s);
    AgregarLinea(s, " COMBUSTIBLE");
    AgregarLinea(s, kCombustible, c.tipoCombustible);
    AgregarLinea(s, kFormulaQuimica, " C ", c.atomosC, "     H ", c.atomosH, "     N ", c.atomosN, "     O  ",
                 c.atomosO, "     S ", c.atomosS);
    AgregarLinea(s, kPorcentajeEnMasa, kPorcientoC, c.cienC, kPorciento, "     ", kPorcientoH, c.cienH,
                 kPorciento, "     ", kPorcientoN, c.cienN, kPorciento, "     ", kPorcientoO, c.cienO,
                 kPorciento, "     ", kPorcientoS, c.cienS, kPorciento);
    AgregarLinea(s, kPoderSuperior, kIgual, c.hcs, kJPorKg);
    AgregarLinea(s, kPoderInferior, kIgual, c.hci, kJPorKg);
    AgregarLinea(s, kCalorVaporizacion, c.calorVap, kJPorKg);
    AgregarLinea(s, kMasaMolecularCombustible, c.masaMolecularCombustible, kKgPorMol);
    AgregarLinea(s);
}

void InformeTextoCombustion(std::string& s, const CifrasInforme& c) {
    AgregarLinea(s);
    AgregarLinea(s, " COMBUSTIÓN");
    AgregarLinea(s, kDosadoRelativo, c.fr);
    AgregarLinea(s, kLambda, c.lambda);
    AgregarLinea(s, kDosadoEstequiometrico, c.fe);
    AgregarLinea(s, kPoderSuperior, " ", kConFe, c.fe, ")", kIgual, c.hcsHumos, kJPorKgCombustible);
    AgregarLinea(s, kPoderInferior, " ", kConFe, c.fe, ")", kIgual, c.hciHumos, kJPorKgCombustible);
    AgregarLinea(s, kMasaMolecularHumos, c.masaMolecularHumos, kKgPorMol);
    AgregarLinea(s);
}

void InformeTextoCiclo(std::string& s, const CifrasInforme& c) {
    AgregarLinea(s);
    AgregarLinea(s, " CICLO");
    AgregarLinea(s, kCilindrada, c.cilindrada, kCC);
    AgregarLinea(s, kRelacionCompresion, c.rc);
    AgregarLinea(s, kMasaAire, c.masaAire, kKg);
    AgregarLinea(s, kMasaCombustible, c.masaCombustible, kKg);
    AgregarLinea(s, kMasaHumos, c.masaHumos, kKg);
    for (int k = 1; k <= 5; ++k) {
        AgregarLinea(s, LineaPresionVolumen(c, k, ""));
        AgregarLinea(s, LineaEntalpiaEntropia(c, k, ""));
    }
    AgregarLinea(s);
}

void InformeTextoProcesos(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kHueco = "      ";
    AgregarLinea(s);
    AgregarLinea(s, kProceso12, " ");
    AgregarLinea(s, kGamma1, c.gamma1);
    AgregarLinea(s, kGamma2, c.gamma2);
    AgregarLinea(s, kTrabajo12, c.trabajo12, kJ, kHueco, kTrabajoMolar12, c.trabajoMolar12, kJPorMolAire);
    AgregarLinea(s, kSalto21, c.salto21, kJPorMol, kHueco);
    AgregarLinea(s);
    AgregarLinea(s, kProceso23, " ");
    AgregarLinea(s, kQ23, c.q23, kJ, kHueco, kQMolar23, c.qMolar23, kJPorMolAire);
    AgregarLinea(s, kSalto32, c.salto32, kJPorMol, kHueco);
    AgregarLinea(s);
    AgregarLinea(s, kProceso34, " ");
    AgregarLinea(s, kQ34, c.q34, kJ, kHueco, kQMolar34, c.qMolar34, kJPorMolAire);
    AgregarLinea(s, kTrabajo34, c.trabajo34, kHueco, kTrabajoMolar34, c.trabajoMolar34, kJPorMolAire);
    AgregarLinea(s, kSalto43, c.salto43, kJPorMol, kHueco);
    AgregarLinea(s);
    AgregarLinea(s, kProceso45);
    AgregarLinea(s, kGamma4, c.gamma4);
    AgregarLinea(s, kGamma5, c.gamma5);
    AgregarLinea(s, kTrabajo45, c.trabajo45, kHueco, kTrabajoMolar45, c.trabajoMolar45, kJPorMolAire);
    AgregarLinea(s, kSalto54, c.salto54, kJPorMol, kHueco);
    AgregarLinea(s);
}

void InformeTextoTotales(std::string& s, const CifrasInforme& c) {
    constexpr std::string_view kJHueco = " J   ";
    constexpr std::string_view kPorMolAire = " J / mol de aire";
    AgregarLinea(s);
    AgregarLinea(s, "CALOR IDEAL QUE APORTARÍA EL COMBUSTIBLE AL CICLO = ", c.calorIdeal, kJHueco,
                 c.calorIdealMolar, kPorMolAire);
    AgregarLinea(s, kCalorAportado, c.calorCiclo, kJHueco, c.calorCicloMolar, kPorMolAire);
    AgregarLinea(s, kTrabajoCiclo, c.trabajoCiclo, kJHueco, c.trabajoCicloMolar, kPorMolAire);
    // The last line of the report has no line end.
    Agregar(s, kRendimiento, c.rendimiento);
}

std::string InformeTexto(const Estado& e, std::string_view tipoCombustible) {
    const CifrasInforme c = CalcularCifrasInforme(e, tipoCombustible);
    std::string informe;
    InformeTextoCabeceraAire(informe, c);
    InformeTextoCombustible(informe, c);
    InformeTextoCombustion(informe, c);
    InformeTextoCiclo(informe, c);
    InformeTextoProcesos(informe, c);
    InformeTextoTotales(informe, c);
    return informe;
}

}  // namespace vanta
