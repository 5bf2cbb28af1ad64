#include "core/fluids/Combustion.h"

#include <cmath>
#include <initializer_list>
#include <string_view>

#include "core/fluids/Graficas.h"
#include "core/services/Fallos.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {
constexpr std::string_view kMensajeExceso = "Exceso de combustible-Cambie el dosado";
constexpr std::string_view kMensajeFrNegativo = "Fr no puede ser negativo";
constexpr std::string_view kMensajeLambdaNegativo = "Lambda no puede ser negativo";
// The name the change of the box of Fr gives it; CALCULAR gives it another.
constexpr std::string_view kNombreCambioFr = "Dosado relativo";
constexpr std::string_view kCausaSinCombustible =
    "no hay un combustible definido (su masa molecular es nula o negativa); elija antes el combustible";
constexpr std::string_view kCausaSinDemandaOxigeno =
    "el combustible no necesita oxígeno para quemarse (oxígeno estequiométrico nulo o negativo), así que no "
    "hay dosado posible";
constexpr std::string_view kCausaAireSinOxigeno =
    "el aire no tiene oxígeno (fracción molar de O2 nula o negativa); revise el comburente";
constexpr std::string_view kCausaFrCero = "el dosado relativo Fr es cero: no hay combustible que quemar";
constexpr std::string_view kCausaInversoInfinito =
    "el dosado es tan pequeño que su inverso sale del intervalo de los números del programa";
constexpr std::string_view kCausaFueraDeRango =
    "la composición de los gases sale del intervalo de los números del programa";

// Why the air per mole of fuel cannot be found, or empty when it can.
std::string_view CausaSinAire(const Estado& e) {
    if (!(e.MasaMolecularCombustible > 0)) return kCausaSinCombustible;
    if (!(e.OxigenoEstequiometrico > 0)) return kCausaSinDemandaOxigeno;
    if (!(e.xO2Aire > 0)) return kCausaAireSinOxigeno;
    return {};
}

// The inverse of the leading value, rounded to 3 decimals, into the other
// box; false when it leaves the range of a double.
bool MostrarInverso(Estado& e, Mensajes& msj, double valor, double& destino, std::string& caja) {
    const double inverso = Round(1 / valor, 3);
    if (!std::isfinite(inverso)) {
        FalloAritmetico(e, msj, kCausaInversoInfinito);
        return false;
    }
    destino = inverso;
    caja = TextoGeneral(inverso, e.SeparadorDecimal);
    return true;
}
}  // namespace

void FormGases_Load(Estado& e, VariablesCombustion& v) {
    if (e.Fr < 0.001 && v.Lambda < 0.001) {
        e.Fr = 1;
        v.Lambda = 1;
    }
}

void txtFr_Change(Estado& e, Mensajes& msj, Entradas& x, VariablesCombustion& v) {
    if (x.formaDosado != FormaDosado::Fr) return;
    const CampoEntrada fr = Campo(Entrada("fr"));
    ValidarNumero(e, msj, x.fr, e.Fr, kNombreCambioFr, fr);
    if (e.Fr < 0) {
        msj.MsgBox(kMensajeFrNegativo, fr);
        e.ErrorCalculo = true;
    } else if (e.Fr > 0) {
        MostrarInverso(e, msj, e.Fr, v.Lambda, x.lambda);
    }
}

void txtLambda_Change(Estado& e, Mensajes& msj, Entradas& x, VariablesCombustion& v) {
    if (x.formaDosado != FormaDosado::Lambda) return;
    const DefinicionEntrada& lambda = Entrada("lambda");
    LeerEntrada(e, msj, lambda, x.lambda, v.Lambda);
    if (v.Lambda < 0) {
        msj.MsgBox(kMensajeLambdaNegativo, Campo(lambda));
        e.ErrorCalculo = true;
    } else if (v.Lambda > 0) {
        // The calculation then works with this rounded Fr.
        MostrarInverso(e, msj, v.Lambda, e.Fr, x.fr);
    }
}

bool CalcularHumos(Estado& e, Mensajes& msj, const Entradas& x, VariablesCombustion& v, Superficie& pct3) {
    // The air that burns one mole of fuel at the stoichiometric ratio. It does
    // not change with Fr: Fr multiplies the fuel instead.
    e.OxigenoEstequiometrico = 0.5 * e.AtomosH + 2 * e.AtomosC + 2 * e.AtomosS - e.AtomosO;
    std::string_view causa = CausaSinAire(e);
    if (causa.empty()) {
        const double A = e.OxigenoEstequiometrico / (2 * e.xO2Aire);
        const double n2 = A * e.xN2Aire, o2 = e.xO2Aire * A, ar = e.xArAire * A, co2 = e.xCO2Aire * A,
                     h2o = e.xH2OAire * A;
        const double fe = e.MasaMolecularCombustible /
                          (o2 * kMasaMolecularO2 + n2 * kMasaMolecularN2 + ar * kMasaMolecularAr +
                           co2 * kMasaMolecularCO2 + h2o * kMasaMolecularH2O);
        if (SonFinitos({n2, o2, ar, co2, h2o, fe})) {
            e.MolesN2Aire = n2, e.MolesO2Aire = o2, e.MolesArAire = ar, e.MolesCO2Aire = co2,
            e.MolesH2OAire = h2o;
            e.Fe = fe;
        } else {
            causa = kCausaFueraDeRango;
        }
    }

    e.ErrorCalculo = false;
    const DefinicionEntrada& fr = Entrada("fr");
    LeerEntrada(e, msj, fr, x.fr, e.Fr);
    // Told once the flag is clear, so that the message is seen.
    if (!causa.empty()) {
        FalloAritmetico(e, msj, causa);
        return false;
    }
    if (e.Fr < 0) {
        msj.MsgBox(kMensajeFrNegativo, Campo(fr));
        e.ErrorCalculo = true;
        return false;
    }
    if (e.Fr == 0) {
        FalloAritmetico(e, msj, kCausaFrCero);
        return false;
    }

    // The fuel's atoms at this ratio; hydrogen always burns whole.
    const double Fr = e.Fr;
    const double cC = Fr * e.AtomosC, hH = Fr * e.AtomosH, nN = e.AtomosN * Fr, oO = Fr * e.AtomosO,
                 sS = Fr * e.AtomosS;
    const double w = hH / 2;
    // Oxygen left once every carbon has taken one O, as CO, and the hydrogen
    // has gone to water.
    const double R = (oO + e.OxigenoEstequiometrico) - cC - hH / 2;

    // Where no rule below sets a quantity it keeps what the last calculation
    // left, as the screen's variables do.
    VariablesCombustion d = v;
    if (R < 0) {
        msj.MsgBox(kMensajeExceso, Campo(fr));
        e.ErrorCalculo = true;
    } else if (R == cC) {
        d.nCO = 0, d.nCO2 = cC, d.nS = sS, d.nSO2 = 0, d.OxigenoSobrante = 0;
    } else if (R < cC) {
        d.nCO = cC - R, d.nCO2 = R, d.nS = sS, d.nSO2 = 0, d.OxigenoSobrante = 0;
    } else {
        d.nCO = 0, d.nCO2 = cC;
        const double L = R - cC;
        // The second and third tests compare the fuel's own AtomosS, not the
        // sulphur at this ratio: settled behaviour, to be kept.
        if (2 * sS == L) {
            d.nSO2 = sS, d.nS = 0, d.OxigenoSobrante = 0;
        } else if (2 * e.AtomosS < L) {
            d.nSO2 = sS, d.nS = 0, d.OxigenoSobrante = L - 2 * sS;
        } else if (2 * e.AtomosS > L) {
            d.nSO2 = L / 2, d.nS = sS - L / 2, d.OxigenoSobrante = 0;
        } else {
            d.OxigenoSobrante = L;  // nS and nSO2 stay as they were
        }
    }

    // The gases, per mole of fuel.
    const double N2 = nN / 2 + e.MolesN2Aire, H2O = e.MolesH2OAire + w, CO2 = e.MolesCO2Aire + d.nCO2,
                 CO = d.nCO, SO2 = d.nSO2, S = d.nS, Ar = e.MolesArAire, O2 = d.OxigenoSobrante / 2;
    const double total = CO + H2O + CO2 + SO2 + S + N2 + Ar + O2;
    const double xH2O = H2O / total, xCO = CO / total, xCO2 = CO2 / total, xSO2 = SO2 / total, xS = S / total,
                 xN2 = N2 / total, xAr = Ar / total, xO2 = O2 / total;
    const double masaHumos =
        (H2O * kMasaMolecularH2O + CO * kMasaMolecularCO + CO2 * kMasaMolecularCO2 + SO2 * kMasaMolecularSO2 +
         S * kMasaMolecularS + N2 * kMasaMolecularN2 + Ar * kMasaMolecularAr + O2 * kMasaMolecularO2) /
        total;
    // The CO2 of the air is no product of the fuel.
    const double entalpiaProductos =
        (d.nCO2 * kEntalpiaFormacionCO2 + d.nCO * kEntalpiaFormacionCO + w * kEntalpiaFormacionH2O) / Fr;
    const double entalpiaReaccion = entalpiaProductos - e.EntalpiaFormacion;
    const double hcs = -entalpiaReaccion / e.MasaMolecularCombustible;
    const double hci = (w * (-kCalorVaporizacionH2O)) / (Fr * e.MasaMolecularCombustible) + hcs;
    if (!SonFinitos({d.nCO, d.nCO2, d.nS, d.nSO2, d.OxigenoSobrante, xH2O, xCO, xCO2, xSO2, xS, xN2, xAr, xO2,
                     masaHumos, entalpiaProductos, entalpiaReaccion, hcs, hci})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return false;
    }
    v = d;
    e.xH2OHumos = xH2O, e.xCOHumos = xCO, e.xCO2Humos = xCO2, e.xSO2Humos = xSO2, e.xSHumos = xS;
    e.xN2Humos = xN2, e.xArHumos = xAr, e.xO2Humos = xO2;
    e.MasaMolecularHumos = masaHumos;
    e.EntalpiaProductos = entalpiaProductos;
    e.EntalpiaReaccion = entalpiaReaccion;
    e.HCShumos = hcs;
    e.HCIhumos = hci;

    // Drawn also after a refused mixture: the bars show what the variables hold.
    GraficaHumos(e, pct3);
    return !e.ErrorCalculo;
}

}  // namespace vanta
