#include "gui/studies/OpcionesVentanas.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>

#include "core/fluids/Combustible.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

std::string Texto(const QWidget* ventana, const char* caja) {
    const auto* c = ventana->findChild<const QLineEdit*>(QString::fromLatin1(caja));
    return c ? c->text().toStdString() : std::string();
}

bool Marcada(const QWidget* ventana, const char* opcion) {
    const auto* o = ventana->findChild<const QAbstractButton*>(QString::fromLatin1(opcion));
    return o && o->isChecked();
}

// Numbers of a formula or a composition joined by commas: a decimal comma
// typed in a box becomes a point, which the boxes read alike.
std::string Lista(const QWidget* ventana, std::initializer_list<const char*> cajas) {
    std::string lista;
    for (const char* caja : cajas) {
        std::string t = Texto(ventana, caja);
        std::replace(t.begin(), t.end(), ',', '.');
        if (!lista.empty()) lista += ',';
        lista += t.empty() ? std::string("0") : t;
    }
    return lista;
}

}  // namespace

OpcionesCalculo OpcionesDeLasVentanas(const VentanasEtapas& v, const std::string& ciclo) {
    OpcionesCalculo o;
    auto poner = [&o](const char* nombre, std::string valor) { o.valores[nombre] = std::move(valor); };
    poner("presion-ambiente", Texto(v.aire, "txtPreAmb"));
    poner("temperatura-ambiente", Texto(v.aire, "txtTemAmb"));
    poner("humedad", Texto(v.aire, "txtHum"));

    const auto* lista = v.combustible->findChild<const QComboBox*>(QStringLiteral("cboTipCom"));
    const std::string combustible = lista ? lista->currentText().toStdString() : std::string();
    if (BuscarCombustible(combustible)) {
        poner("combustible", combustible);
    } else if (combustible == kOtrosCombustibles) {
        if (Marcada(v.combustible, "optFOR")) {
            poner("formula", Lista(v.combustible, {"txtMolC", "txtMolH", "txtMolN", "txtMolO", "txtMolS"}));
        } else {
            poner("masa", Lista(v.combustible, {"txtC", "txtN", "txtO", "txtS"}));
            poner("masa-molecular", Texto(v.combustible, "txtmmComb"));
        }
        poner("entalpia-formacion", Texto(v.combustible, "txtEntPro"));
    }

    if (Marcada(v.combustion, "optLambda"))
        poner("lambda", Texto(v.combustion, "txtLambda"));
    else
        poner("fr", Texto(v.combustion, "txtFr"));

    if (!ciclo.empty()) {
        const QWidget* c = v.ciclo;
        poner("ciclo", ciclo);
        poner("cilindrada", Texto(c, "txtCilindrada"));
        poner("rc", Texto(c, "txtRc"));
        poner("p1", Texto(c, "txtP1"));
        poner("t1", Texto(c, "txtT1"));
        poner("compresion",
              std::string(NombreModelo(Marcada(c, "optGvariable")        ? Modelo::GammaVariable
                                       : Marcada(c, "optPolitropicaCom") ? Modelo::Politropico
                                                                         : Modelo::GammaMedio)));
        poner("n-compresion", Texto(c, "txt_nCom"));
        poner("expansion", std::string(NombreModelo(Marcada(c, "optGvariableExp")  ? Modelo::GammaVariable
                                                    : Marcada(c, "optPolitropica") ? Modelo::Politropico
                                                                                   : Modelo::GammaMedio)));
        poner("n-expansion", Texto(c, "txt_nExp"));
        // Every cycle reads the box of Pmax; Mixto uses it or the share of heat.
        if (ciclo == "Mixto" && Marcada(c, "optProporcion"))
            poner("proporcion-vcte", Texto(c, "txtPropVcte"));
        else
            poner("pmax", Texto(c, "txtPMax"));
    }
    if (const std::string rpm = Texto(v.principal, "txtRpm"); LeerNumero(rpm)) poner("rpm", rpm);
    return o;
}

}  // namespace vanta
