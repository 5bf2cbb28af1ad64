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
void CeroSiVacia(std::initializer_list<std::string*> cajas) {
    for (std::string* caja : cajas)
        if (caja->empty()) *caja = "0";
}

std::string Mostrar(const Estado& e, double x, int decimales) {
    return TextoGeneral(Round(x, decimales), e.SeparadorDecimal);
}

void MostrarFormula(const Estado& e, Entradas& x, double C, double H, double N, double O, double S,
                    int decimales) {
    x.atomosC = Mostrar(e, C, decimales), x.atomosH = Mostrar(e, H, decimales),
    x.atomosN = Mostrar(e, N, decimales), x.atomosO = Mostrar(e, O, decimales),
    x.atomosS = Mostrar(e, S, decimales);
}

// The five counts of the formula as the general conversion writes them.
void PonerFormula(const Estado& e, Entradas& x, const CombustibleDeLista& c) {
    const char s = e.SeparadorDecimal;
    x.atomosC = TextoGeneral(c.C, s), x.atomosH = TextoGeneral(c.H, s), x.atomosN = TextoGeneral(c.N, s),
    x.atomosO = TextoGeneral(c.O, s), x.atomosS = TextoGeneral(c.S, s);
}

// Mass composition and molar mass from the formula boxes.
void CalCien(Estado& e, Mensajes& msj, Entradas& x, SalidasCombustible& s) {
    CeroSiVacia({&x.atomosC, &x.atomosH, &x.atomosN, &x.atomosO, &x.atomosS});
    const DefinicionEntrada& formula = Entrada("formula");
    double* atomos[] = {&e.AtomosC, &e.AtomosH, &e.AtomosN, &e.AtomosO, &e.AtomosS};
    for (int i = 0; i < formula.Campos(); ++i)
        LeerEntrada(e, msj, formula, *formula.texto(x, i), *atomos[i], i);

    if (e.AtomosC + e.AtomosH + e.AtomosN + e.AtomosO + e.AtomosS == 0) {
        msj.MsgBox(kMensajeSinComponentes);
        e.ErrorCalculo = true;
    }
    if (!e.ErrorCalculo) {
        const double mC = e.AtomosC * kMasaAtomicaC, mH = e.AtomosH * kMasaAtomicaH,
                     mN = e.AtomosN * kMasaAtomicaN, mO = e.AtomosO * kMasaAtomicaO,
                     mS = e.AtomosS * kMasaAtomicaS;
        const double masa = mC + mH + mN + mO + mS;
        // Only negative counts can bring the molar mass to zero or below.
        if (!(masa > 0)) {
            FalloAritmetico(e, msj, std::isfinite(masa) ? kCausaMasaFormula : kCausaFueraDeRango);
            return;
        }
        const double cC = mC * 100 / masa, cH = mH * 100 / masa, cN = mN * 100 / masa, cO = mO * 100 / masa,
                     cS = mS * 100 / masa;
        if (!SonFinitos({masa, cC, cH, cN, cO, cS})) {
            FalloAritmetico(e, msj, kCausaFueraDeRango);
            return;
        }
        e.MasaMolecularCombustible = masa;
        e.CienC = cC, e.CienH = cH, e.CienN = cN, e.CienO = cO, e.CienS = cS;
    }
    x.cienC = Mostrar(e, e.CienC, 3);
    s.cienH = Mostrar(e, e.CienH, 3);
    x.cienN = Mostrar(e, e.CienN, 3);
    x.cienO = Mostrar(e, e.CienO, 3);
    x.cienS = Mostrar(e, e.CienS, 3);
}

// Formula from the mass boxes and the molar mass; hydrogen is the remainder.
void CalAto(Estado& e, Mensajes& msj, Entradas& x, SalidasCombustible& s) {
    CeroSiVacia({&x.cienC, &x.cienN, &x.cienO, &x.cienS});
    const DefinicionEntrada& masas = Entrada("masa");
    double* cien[] = {&e.CienC, &e.CienN, &e.CienO, &e.CienS};
    for (int i = 0; i < masas.Campos(); ++i) LeerEntrada(e, msj, masas, *masas.texto(x, i), *cien[i], i);
    // Hydrogen is always the remainder; one that leaves the doubles (two
    // percentages near the largest double) is refused before it is stored.
    const double cienH = 100.0 - e.CienC - e.CienN - e.CienO - e.CienS;
    if (!std::isfinite(cienH)) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return;
    }
    e.CienH = cienH;
    s.cienH = Mostrar(e, e.CienH, 3);

    // A molar mass of zero or below is refused and the last one stays.
    double masa = e.MasaMolecularCombustible;
    LeerEntrada(e, msj, Entrada("masa-molecular"), x.masaMolecular, masa);
    if (!(masa > 0)) {
        FalloAritmetico(e, msj, kCausaMasaMolecular);
        return;
    }
    e.MasaMolecularCombustible = masa;

    const double aC = e.CienC * 0.01 * masa / kMasaAtomicaC, aH = e.CienH * 0.01 * masa / kMasaAtomicaH,
                 aN = e.CienN * 0.01 * masa / kMasaAtomicaN, aO = e.CienO * 0.01 * masa / kMasaAtomicaO,
                 aS = e.CienS * 0.01 * masa / kMasaAtomicaS;
    if (!SonFinitos({aC, aH, aN, aO, aS})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return;
    }
    e.AtomosC = aC, e.AtomosH = aH, e.AtomosN = aN, e.AtomosO = aO, e.AtomosS = aS;
    MostrarFormula(e, x, e.AtomosC, e.AtomosH, e.AtomosN, e.AtomosO, e.AtomosS, 3);
}

// Heating values from the formula, the molar mass and the enthalpy box.
// False when an arithmetic failure stopped it.
bool Calcular(Estado& e, Mensajes& msj, Entradas& x, SalidasCombustible& s) {
    // Products counted: liquid water and CO2 only; nitrogen and sulphur add nothing.
    const double entalpiaProductos =
        e.AtomosH * 0.5 * kEntalpiaFormacionH2O + e.AtomosC * kEntalpiaFormacionCO2;
    LeerEntrada(e, msj, Entrada("entalpia-formacion"), x.entalpiaFormacion, e.EntalpiaFormacion);
    if (!(e.MasaMolecularCombustible > 0)) {
        FalloAritmetico(e, msj, kCausaMasaMolecular);
        return false;
    }
    const double hcs = (entalpiaProductos - e.EntalpiaFormacion) / (-e.MasaMolecularCombustible);
    const double calorVap = (e.AtomosH * 0.5 * (-kCalorVaporizacionH2O)) / (-e.MasaMolecularCombustible);
    const double hci = hcs - calorVap;
    if (!SonFinitos({hcs, calorVap, hci})) {
        FalloAritmetico(e, msj, kCausaFueraDeRango);
        return false;
    }
    e.HCS = hcs, e.CalorVap = calorVap, e.HCI = hci;
    s.hci = Mostrar(e, e.HCI, 0);
    s.hcs = Mostrar(e, e.HCS, 0);
    s.calorVap = Mostrar(e, e.CalorVap, 0);
    x.masaMolecular = Mostrar(e, e.MasaMolecularCombustible, 6);
    return true;
}

// Loads a formula of the list into the boxes (formula mode) and runs CalCien
// and Calcular.
void CombustibleTipo(Estado& e, Mensajes& msj, Entradas& x, VistaCombustible& v, SalidasCombustible& s,
                     const CombustibleDeLista& c) {
    ElegirFormaPropia(v, FormaCombustible::Formula);
    PonerFormula(e, x, c);
    CalCien(e, msj, x, s);
    if (!e.ErrorCalculo) Calcular(e, msj, x, s);
}

}  // namespace

void ElegirFormaPropia(VistaCombustible& v, FormaCombustible forma) {
    v.opcion = forma;
}

bool ElegirEntradaLista(Estado& e, Mensajes& msj, std::string_view lista, Entradas& x, VistaCombustible& v,
                        SalidasCombustible& s, Superficie& pct2) {
    const CombustibleDeLista* combustible = BuscarCombustible(lista);
    const bool otros = lista == kOtrosCombustibles;
    if (!combustible && !otros) return false;  // nothing chosen

    e.ErrorCalculo = false;
    v.entradaPropia = otros;
    v.tituloOtros = lista;
    if (otros) {
        ElegirFormaPropia(v, FormaCombustible::Masa);
        return false;
    }
    x.entalpiaFormacion = TextoGeneral(combustible->EntalpiaFormacion, e.SeparadorDecimal);
    CombustibleTipo(e, msj, x, v, s, *combustible);
    GraficaCombustible(e, pct2, lista);
    return true;
}

bool CalcularCombustiblePropio(Estado& e, Mensajes& msj, std::string_view lista, Entradas& x,
                               VistaCombustible& v, SalidasCombustible& s, Superficie& pct2) {
    e.ErrorCalculo = false;
    if (lista != kOtrosCombustibles) {
        msj.MsgBox(kMensajeElijaOtros, Campo(Entrada("combustible")));
        msj.Foco(Campo(Entrada("combustible")));
        GraficaCombustible(e, pct2, lista);
        return true;
    }
    v.marcoOtros = true;
    if (v.opcion == FormaCombustible::Formula)
        CalCien(e, msj, x, s);
    else
        CalAto(e, msj, x, s);
    if (e.ErrorCalculo) return false;
    if (!Calcular(e, msj, x, s)) return false;

    // These checks come after the heating values: a refused fuel keeps what
    // the steps before wrote.
    const CampoEntrada carbono = Campo(Entrada("masa"), 0);
    if (e.CienN + e.CienC + e.CienO + e.CienS > 100.0) {
        msj.MsgBox(kMensajeSuperaCien, carbono);
        msj.Foco(carbono);
        e.ErrorCalculo = true;
        return false;
    }
    if (e.CienH + e.CienC == 0) {
        msj.MsgBox(kMensajeSinCarbonoNiHidrogeno, carbono);
        msj.Foco(carbono);
        e.ErrorCalculo = true;
        return false;
    }
    GraficaCombustible(e, pct2, lista);
    return true;
}

}  // namespace vanta
