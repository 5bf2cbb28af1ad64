#include "gui/fluids/frmGasesCombustion.h"

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
#include "gui/services/TextosVentanas.h"

namespace vanta {

struct frmGasesCombustion::Puertos {
    explicit Puertos(frmGasesCombustion& f)
        : txtFr(f.txtFr_),
          txtLambda(f.txtLambda_),
          optFr(f.optFr_),
          optLambda(f.optLambda_),
          chkOcultar(f.chkOcultar_),
          ventana(&f),
          controles{.txtFr = txtFr,
                    .txtLambda = txtLambda,
                    .optFr = optFr,
                    .optLambda = optLambda,
                    .chkOcultar = chkOcultar,
                    .ventana = ventana,
                    .pct3 = f.pct3_,
                    .variables = f.variables_} {}

    CajaTextoQt txtFr, txtLambda;
    InterruptorQt optFr, optLambda, chkOcultar;
    VentanaQt ventana;
    ControlesCombustion controles;
};

frmGasesCombustion::frmGasesCombustion(Estado& e, Dialogos& dlg, Superficie& pct3, QWidget* padre)
    : QDialog(padre), e_(e), dlg_(dlg), pct3_(pct3) {
    setObjectName(QStringLiteral("frmGasesCombustion"));
    setWindowTitle(QString::fromUtf8("Gases de combustión"));
    setModal(true);

    // Which of the two boxes leads; neither at first.
    Frame1_ = NuevoMarco(this, "Frame1");
    optFr_ = NuevaOpcion(Frame1_, "optFr", "Fr");
    optLambda_ = NuevaOpcion(Frame1_, "optLambda", "Lambda");
    txtFr_ = NuevaCaja(Frame1_, "txtFr", kTextoInicialDosado.data());
    txtLambda_ = NuevaCaja(Frame1_, "txtLambda", kTextoInicialDosado.data());
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

    puertos_ = std::make_unique<Puertos>(*this);
    connect(cmdCalcular_, &QPushButton::clicked, this, &frmGasesCombustion::cmdCalcular_Click);
    // A change runs the event also when the logic writes the other box; the
    // event itself acts only on the box that leads.
    connect(txtFr_, &QLineEdit::textChanged, this, &frmGasesCombustion::txtFr_Change);
    connect(txtLambda_, &QLineEdit::textChanged, this, &frmGasesCombustion::txtLambda_Change);
    txtFr_->installEventFilter(this);
    txtLambda_->installEventFilter(this);
}

frmGasesCombustion::~frmGasesCombustion() = default;

void frmGasesCombustion::showEvent(QShowEvent* evento) {
    // The window is loaded once, at its first opening.
    if (!cargada_) {
        cargada_ = true;
        FormGases_Load(e_, puertos_->controles);
    }
    QDialog::showEvent(evento);
}

bool frmGasesCombustion::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonRelease) {
        if (objeto == txtFr_) txtFr_Click(puertos_->controles);
        if (objeto == txtLambda_) txtLambda_Click(puertos_->controles);
    }
    return QDialog::eventFilter(objeto, evento);
}

void frmGasesCombustion::cmdCalcular_Click() {
    CalcularHumos(e_, dlg_, puertos_->controles);
}
void frmGasesCombustion::txtFr_Change() {
    vanta::txtFr_Change(e_, dlg_, puertos_->controles);
}
void frmGasesCombustion::txtLambda_Change() {
    vanta::txtLambda_Change(e_, dlg_, puertos_->controles);
}

}  // namespace vanta
