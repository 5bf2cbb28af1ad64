// The window "Gases de combustión": the relative fuel/air ratio Fr or its
// inverse Lambda, and the calculation of the gases. Draws the chart of the
// gases on pct3 of the main window.
#pragma once

#include <QDialog>
#include <memory>

#include "core/fluids/Combustion.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "gui/services/PuertosQt.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vanta {

class VentanaCombustion : public QDialog {
    Q_OBJECT

public:
    VentanaCombustion(Estado& e, Dialogos& dlg, Superficie& pct3, QWidget* padre = nullptr);
    ~VentanaCombustion() override;

    const VariablesCombustion& Variables() const { return variables_; }
    // Fr and Lambda as the boxes hold them, and which leads.
    void LeerEntradas(Entradas& x) const;

public slots:
    void cmdCalcular_Click();
    void txtFr_Change();
    void txtLambda_Change();

signals:
    // The gases were calculated from these inputs.
    void Calculado(const Entradas& x);
    // An input was refused or the calculation failed: the window stays
    // open with the focus on the box concerned.
    void NoCalculado();

protected:
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    Estado& e_;
    Dialogos& dlg_;
    Superficie& pct3_;
    VariablesCombustion variables_;
    bool cargada_ = false;

    QGroupBox* Frame1_;
    QRadioButton *optFr_, *optLambda_;
    QLineEdit *txtFr_, *txtLambda_;
    QCheckBox* chkOcultar_;
    QPushButton* cmdCalcular_;

    void Mostrar(const Mensajes& msj, const Entradas& x);
};

}  // namespace vanta
