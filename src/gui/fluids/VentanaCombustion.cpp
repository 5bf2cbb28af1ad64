#include "gui/fluids/VentanaCombustion.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/services/Controles.h"
#include "gui/services/EnlaceEntradas.h"
#include "gui/services/Escritorio.h"
#include "gui/services/TextosVentanas.h"

namespace vanta {

VentanaCombustion::VentanaCombustion(Estado& e, Dialogos& dlg, Superficie& pct3, QWidget* padre)
    : QDialog(padre), e_(e), dlg_(dlg), pct3_(pct3) {
    setObjectName(QStringLiteral("VentanaCombustion"));
    setWindowTitle(QString::fromUtf8("Gases de combustión"));
    setModal(true);

    // Which of the two boxes leads; neither at first.
    Frame1_ = NuevoMarco(this, "Frame1");
    optFr_ = NuevaOpcion(Frame1_, "optFr", "Fr");
    optLambda_ = NuevaOpcion(Frame1_, "optLambda", "Lambda");
    txtFr_ = NuevaCajaEntrada(Frame1_, "fr");
    txtLambda_ = NuevaCajaEntrada(Frame1_, "lambda");
    auto* rejilla = new QGridLayout(Frame1_);
    rejilla->addWidget(optFr_, 0, 0);
    rejilla->addWidget(optLambda_, 0, 2);
    rejilla->addWidget(NuevaEtiqueta(Frame1_, "Label2", "Fr"), 1, 0);
    rejilla->addWidget(txtFr_, 1, 1);
    rejilla->addWidget(NuevaEtiqueta(Frame1_, "Label1", "Lambda"), 1, 2);
    rejilla->addWidget(txtLambda_, 1, 3);

    chkOcultar_ = NuevaCasilla(this, "chkOcultar", kOcultarAutomaticamente, true);
    cmdCalcular_ = NuevoBotonCalcular(this, "cmdCalcular");
    auto* abajo = new QHBoxLayout;
    abajo->addWidget(chkOcultar_);
    abajo->addStretch(1);
    abajo->addWidget(cmdCalcular_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(Frame1_);
    columna->addLayout(abajo);

    connect(cmdCalcular_, &QPushButton::clicked, this, &VentanaCombustion::cmdCalcular_Click);
    // A change runs the event also when the logic writes the other box; the
    // event itself acts only on the box that leads.
    connect(txtFr_, &QLineEdit::textChanged, this, &VentanaCombustion::txtFr_Change);
    connect(txtLambda_, &QLineEdit::textChanged, this, &VentanaCombustion::txtLambda_Change);
    txtFr_->installEventFilter(this);
    txtLambda_->installEventFilter(this);
    NombrarControles(this);
}

VentanaCombustion::~VentanaCombustion() = default;

void VentanaCombustion::showEvent(QShowEvent* evento) {
    // The window is loaded once, at its first opening.
    if (!cargada_) {
        cargada_ = true;
        FormGases_Load(e_, variables_);
    }
    QDialog::showEvent(evento);
}

bool VentanaCombustion::eventFilter(QObject* objeto, QEvent* evento) {
    // A click in a box makes it lead.
    if (evento->type() == QEvent::MouseButtonRelease) {
        if (objeto == txtFr_) optFr_->setChecked(true);
        if (objeto == txtLambda_) optLambda_->setChecked(true);
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaCombustion::LeerEntradas(Entradas& x) const {
    LeerCajas(*this, EtapaEntrada::Combustion, x);
    x.formaDosado = optLambda_->isChecked() ? FormaDosado::Lambda : FormaDosado::Fr;
}

void VentanaCombustion::Mostrar(const Mensajes& msj, const Entradas& x) {
    PonerCajas(*this, EtapaEntrada::Combustion, x);
    MostrarMensajes(dlg_, msj.lista);
    Enfocar(*this, msj.Enfocado());
}

void VentanaCombustion::cmdCalcular_Click() {
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const bool bien = CalcularHumos(e_, msj, x, variables_, pct3_) && !msj.Rechaza();
    Mostrar(msj, x);
    if (bien)
        emit Calculado(x);
    else
        emit NoCalculado();
    if (bien && chkOcultar_->isChecked()) hide();
}

// A change runs when the logic writes the other box too; the events act only
// on the box that leads.
void VentanaCombustion::txtFr_Change() {
    if (!optFr_->isChecked()) return;
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    vanta::txtFr_Change(e_, msj, x, variables_);
    Mostrar(msj, x);
}

void VentanaCombustion::txtLambda_Change() {
    if (!optLambda_->isChecked()) return;
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    vanta::txtLambda_Change(e_, msj, x, variables_);
    Mostrar(msj, x);
}

}  // namespace vanta
