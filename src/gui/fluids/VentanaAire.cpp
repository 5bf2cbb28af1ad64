#include "gui/fluids/VentanaAire.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/fluids/AireHumedo.h"
#include "gui/services/Controles.h"
#include "gui/services/EnlaceEntradas.h"
#include "gui/services/TextosVentanas.h"

namespace vanta {

VentanaAire::VentanaAire(Estado& e, Dialogos& dlg, Superficie& pct1, QWidget* padre)
    : QDialog(padre),
      e_(e),
      dlg_(dlg),
      pct1_(pct1),
      Frame1_(NuevoMarco(this, "Frame1", "Ambiente")),
      txtTemAmb_(NuevaCajaEntrada(Frame1_, "temperatura-ambiente")),
      txtPreAmb_(NuevaCajaEntrada(Frame1_, "presion-ambiente")),
      txtHum_(NuevaCajaEntrada(Frame1_, "humedad")),
      Label1_(NuevaEtiqueta(Frame1_, "Label1", "Humedad  relativa")),
      Label2_(NuevaEtiqueta(Frame1_, "Label2", "%")),
      Label3_(NuevaEtiqueta(Frame1_, "Label3", "Temperatura")),
      Label4_(NuevaEtiqueta(Frame1_, "Label4", "K")),
      Label5_(NuevaEtiqueta(Frame1_, "Label5", "Presión ")),
      Label6_(NuevaEtiqueta(Frame1_, "Label6", "Pa")),
      chkOcultar_(NuevaCasilla(this, "chkOcultar", kOcultarAutomaticamente, true)),
      cmdCal_(NuevoBotonCalcular(this, "cmdCal")) {
    setObjectName(QStringLiteral("VentanaAire"));
    setWindowTitle(QString::fromUtf8("Aire húmedo"));
    setModal(true);
    txtPreAmb_->setToolTip(QString::fromUtf8(kPresionAbsoluta));

    auto* rejilla = new QGridLayout(Frame1_);
    rejilla->addWidget(Label3_, 0, 0);
    rejilla->addWidget(txtTemAmb_, 0, 1);
    rejilla->addWidget(Label4_, 0, 2);
    rejilla->addWidget(Label5_, 1, 0);
    rejilla->addWidget(txtPreAmb_, 1, 1);
    rejilla->addWidget(Label6_, 1, 2);
    rejilla->addWidget(Label1_, 2, 0);
    rejilla->addWidget(txtHum_, 2, 1);
    rejilla->addWidget(Label2_, 2, 2);

    auto* abajo = new QHBoxLayout;
    abajo->addWidget(chkOcultar_);
    abajo->addStretch(1);
    abajo->addWidget(cmdCal_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(Frame1_);
    columna->addLayout(abajo);
    connect(cmdCal_, &QPushButton::clicked, this, &VentanaAire::cmdCal_Click);
}

void VentanaAire::LeerEntradas(Entradas& x) const {
    LeerCajas(*this, EtapaEntrada::Aire, x);
}

void VentanaAire::cmdCal_Click() {
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const bool bien = CalcularAire(e_, msj, x, pct1_);
    MostrarMensajes(dlg_, msj.lista);
    Enfocar(*this, msj.Enfocado());
    if (bien)
        emit Calculado(x);
    else
        emit NoCalculado();
    if (bien && chkOcultar_->isChecked()) hide();
}

}  // namespace vanta
