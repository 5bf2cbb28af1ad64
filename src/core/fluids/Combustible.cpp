#include "core/fluids/Combustible.h"

#include <cmath>
#include <initializer_list>
#include <string>

#include "core/fluids/Graficas.h"
#include "core/services/Fallos.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {
constexpr std::string_view kMensajeSinComponentes =
    "Introduzca la proporciones de los componentes del combustible o su fórmula química";
constexpr std::string_view kMensajeElijaOtros = "Elija Otros de la lista de combustible";
constexpr std::string_view kMensajeSuperaCien =
    "Las proporciones en masa de combustible superan el 100%, revise los valores";
constexpr std::string_view kMensajeSinCarbonoNiHidrogeno =
    "La suma de las proporciones en masa de carbono e Hidrógeno debe ser > 0, revise los valores";
constexpr std::string_view kCausaMasaFormula =
    "la masa molecular que resulta de la fórmula es nula o negativa; revise el número de átomos";
constexpr std::string_view kCausaMasaMolecular = "la masa molecular del combustible ha de ser mayor que cero";
constexpr std::string_view kCausaFueraDeRango =
    "los valores del combustible salen del intervalo de los números del programa";

// A box left empty reads as "0".
void CeroSiVacia(std::initializer_list<CajaTexto*> cajas) {
    for (CajaTexto* caja : cajas)
        if (caja->Text().empty()) caja->SetText("0");
}

void Mostrar(const Estado& e, CajaTexto& caja, double x, int decimales) {
    caja.SetText(TextoGeneral(Round(x, decimales), e.SeparadorDecimal));
}

void GraficaYOcultar(Estado& e, ControlesCombustible& c) {
    GraficaCombustible(e, c.pct2, c.cboTipCom.Text());
    if (c.chkOcultar.Value()) c.ventana.Hide();
}
}  // namespace

const CombustibleDeLista* BuscarCombustible(std::string_view nombre) {
    for (const auto& combustible : kBibliotecaCombustibles)
        if (combustible.nombre == nombre) return &combustible;
    return nullptr;
}

void optFOR_Click(ControlesCombustible& c) {
    c.optFOR.SetValue(true);
    c.optMasa.SetValue(false);
    c.formulario.BloquearCajas(true);
}

void optMasa_Click(ControlesCombustible& c) {
    c.optMasa.SetValue(true);
    c.optFOR.SetValue(false);
    c.formulario.BloquearCajas(false);
}

void cboTipCom_Click(Estado& e, Dialogos& dlg, ControlesCombustible& c) {
    const std::string entrada = c.cboTipCom.Text();
    const CombustibleDeLista* combustible = BuscarCombustible(entrada);
    const bool otros = entrada == kOtrosCombustibles;
    if (!combustible && !otros) return;  // nothing chosen

    e.ErrorCalculo = Falso;
    c.formulario.HabilitarEntradaPropia(otros);
    c.formulario.PonerTituloOtros(entrada);
    if (otros) {
        optMasa_Click(c);
        return;
    }
    c.txtEntPro.SetText(TextoGeneral(combustible->EntalpiaFormacion, e.SeparadorDecimal));
    CombustibleTipo(e, dlg, c, combustible->C, combustible->H, combustible->N, combustible->O,
                    combustible->S);
    GraficaYOcultar(e, c);
}

void CombustibleTipo(Estado& e, Dialogos& dlg, ControlesCombustible& c, double C, double H, double N,
                     double O, double S) {
    optFOR_Click(c);
    c.txtMolC.SetText(TextoGeneral(C, e.SeparadorDecimal));
    c.txtMolH.SetText(TextoGeneral(H, e.SeparadorDecimal));
    c.txtMolN.SetText(TextoGeneral(N, e.SeparadorDecimal));
    c.txtMolO.SetText(TextoGeneral(O, e.SeparadorDecimal));
    c.txtMolS.SetText(TextoGeneral(S, e.SeparadorDecimal));
    CalCien(e, dlg, c);
    if (!e.ErrorCalculo) Calcular(e, dlg, c);
}

void CalCien(Estado& e, Dialogos& dlg, ControlesCombustible& c) {
    CeroSiVacia({&c.txtMolC, &c.txtMolH, &c.txtMolN, &c.txtMolO, &c.txtMolS});
    ValidarNumero(e, dlg, c.txtMolC, e.AtomosC, " Nº de moles de C ");
    ValidarNumero(e, dlg, c.txtMolH, e.AtomosH, " Nº de moles de H ");
    ValidarNumero(e, dlg, c.txtMolN, e.AtomosN, " Nº de moles de N ");
    ValidarNumero(e, dlg, c.txtMolO, e.AtomosO, " Nº de moles de O ");
    ValidarNumero(e, dlg, c.txtMolS, e.AtomosS, " Nº de moles de S ");

    if (e.AtomosC + e.AtomosH + e.AtomosN + e.AtomosO + e.AtomosS == 0) {
        dlg.MsgBox(kMensajeSinComponentes);
        e.ErrorCalculo = Verdadero;
    }
    if (!e.ErrorCalculo) {
        const double mC = e.AtomosC * kMasaAtomicaC, mH = e.AtomosH * kMasaAtomicaH,
                     mN = e.AtomosN * kMasaAtomicaN, mO = e.AtomosO * kMasaAtomicaO,
                     mS = e.AtomosS * kMasaAtomicaS;
        const double masa = mC + mH + mN + mO + mS;
        // Only negative counts can bring the molar mass to zero or below.
        if (!(masa > 0)) {
            FalloAritmetico(e, dlg, std::isfinite(masa) ? kCausaMasaFormula : kCausaFueraDeRango);
            return;
        }
        const double cC = mC * 100 / masa, cH = mH * 100 / masa, cN = mN * 100 / masa, cO = mO * 100 / masa,
                     cS = mS * 100 / masa;
        if (!SonFinitos({masa, cC, cH, cN, cO, cS})) {
            FalloAritmetico(e, dlg, kCausaFueraDeRango);
            return;
        }
        e.MasaMolecularCombustible = masa;
        e.CienC = cC, e.CienH = cH, e.CienN = cN, e.CienO = cO, e.CienS = cS;
    }
    Mostrar(e, c.txtC, e.CienC, 3);
    Mostrar(e, c.txtH, e.CienH, 3);
    Mostrar(e, c.txtN, e.CienN, 3);
    Mostrar(e, c.txtO, e.CienO, 3);
    Mostrar(e, c.txtS, e.CienS, 3);
}

void CalAto(Estado& e, Dialogos& dlg, ControlesCombustible& c) {
    CeroSiVacia({&c.txtC, &c.txtN, &c.txtO, &c.txtS});
    ValidarNumero(e, dlg, c.txtC, e.CienC, " % de C ");
    ValidarNumero(e, dlg, c.txtN, e.CienN, " % de N ");
    ValidarNumero(e, dlg, c.txtO, e.CienO, " % de O ");
    ValidarNumero(e, dlg, c.txtS, e.CienS, " % de S ");
    // Hydrogen is always the remainder; one that leaves the doubles (two
    // percentages near the largest double) is refused before it is stored.
    const double cienH = 100.0 - e.CienC - e.CienN - e.CienO - e.CienS;
    if (!std::isfinite(cienH)) {
        FalloAritmetico(e, dlg, kCausaFueraDeRango);
        return;
    }
    e.CienH = cienH;
    Mostrar(e, c.txtH, e.CienH, 3);

    // A molar mass of zero or below is refused and the last one stays.
    double masa = e.MasaMolecularCombustible;
    ValidarNumero(e, dlg, c.txtmmComb, masa, " Masa molecular ");
    if (!(masa > 0)) {
        FalloAritmetico(e, dlg, kCausaMasaMolecular);
        return;
    }
    e.MasaMolecularCombustible = masa;

    const double aC = e.CienC * 0.01 * masa / kMasaAtomicaC, aH = e.CienH * 0.01 * masa / kMasaAtomicaH,
                 aN = e.CienN * 0.01 * masa / kMasaAtomicaN, aO = e.CienO * 0.01 * masa / kMasaAtomicaO,
                 aS = e.CienS * 0.01 * masa / kMasaAtomicaS;
    if (!SonFinitos({aC, aH, aN, aO, aS})) {
        FalloAritmetico(e, dlg, kCausaFueraDeRango);
        return;
    }
    e.AtomosC = aC, e.AtomosH = aH, e.AtomosN = aN, e.AtomosO = aO, e.AtomosS = aS;
    Mostrar(e, c.txtMolC, e.AtomosC, 3);
    Mostrar(e, c.txtMolH, e.AtomosH, 3);
    Mostrar(e, c.txtMolN, e.AtomosN, 3);
    Mostrar(e, c.txtMolO, e.AtomosO, 3);
    Mostrar(e, c.txtMolS, e.AtomosS, 3);
}

bool Calcular(Estado& e, Dialogos& dlg, ControlesCombustible& c) {
    // Products counted: liquid water and CO2 only; nitrogen and sulphur add nothing.
    const double entalpiaProductos =
        e.AtomosH * 0.5 * kEntalpiaFormacionH2O + e.AtomosC * kEntalpiaFormacionCO2;
    // The message names the products although the box holds the fuel's enthalpy.
    ValidarNumero(e, dlg, c.txtEntPro, e.EntalpiaFormacion, " La entalpía de formación de los productos ");
    if (!(e.MasaMolecularCombustible > 0)) {
        FalloAritmetico(e, dlg, kCausaMasaMolecular);
        return false;
    }
    const double hcs = (entalpiaProductos - e.EntalpiaFormacion) / (-e.MasaMolecularCombustible);
    const double calorVap = (e.AtomosH * 0.5 * (-kCalorVaporizacionH2O)) / (-e.MasaMolecularCombustible);
    const double hci = hcs - calorVap;
    if (!SonFinitos({hcs, calorVap, hci})) {
        FalloAritmetico(e, dlg, kCausaFueraDeRango);
        return false;
    }
    e.HCS = hcs, e.CalorVap = calorVap, e.HCI = hci;
    Mostrar(e, c.txtHci, e.HCI, 0);
    Mostrar(e, c.txtHcs, e.HCS, 0);
    Mostrar(e, c.txtQvap, e.CalorVap, 0);
    Mostrar(e, c.txtmmComb, e.MasaMolecularCombustible, 6);
    return true;
}

void cmdCal_Click(Estado& e, Dialogos& dlg, ControlesCombustible& c) {
    e.ErrorCalculo = Falso;
    if (c.cboTipCom.Text() != kOtrosCombustibles) {
        dlg.MsgBox(kMensajeElijaOtros);
        c.cboTipCom.SetFocus();
        GraficaYOcultar(e, c);
        return;
    }
    c.formulario.HabilitarMarcoOtros();
    if (c.optFOR.Value())
        CalCien(e, dlg, c);
    else
        CalAto(e, dlg, c);
    if (e.ErrorCalculo) return;
    if (!Calcular(e, dlg, c)) return;

    // These checks come after the heating values: a refused fuel keeps what
    // the steps before wrote.
    if (e.CienN + e.CienC + e.CienO + e.CienS > 100.0) {
        dlg.MsgBox(kMensajeSuperaCien);
        c.txtC.SetFocus();
        e.ErrorCalculo = Verdadero;
        return;
    }
    if (e.CienH + e.CienC == 0) {
        dlg.MsgBox(kMensajeSinCarbonoNiHidrogeno);
        c.txtC.SetFocus();
        e.ErrorCalculo = Verdadero;
        return;
    }
    GraficaYOcultar(e, c);
}

}  // namespace vanta
