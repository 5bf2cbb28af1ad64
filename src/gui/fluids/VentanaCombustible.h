// The window "Combustible": a fuel of the library, or the user's own as a
// formula or as a mass composition, with its molar mass and heating values.
// Draws the chart of the fuel on pct2 of the main window.
#pragma once

#include <QDialog>
#include <QPalette>
#include <memory>
#include <string>

#include "core/fluids/Combustible.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "gui/services/PuertosQt.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vanta {

class VentanaCombustible : public QDialog {
    Q_OBJECT

public:
    VentanaCombustible(Estado& e, Dialogos& dlg, Superficie& pct2, QWidget* padre = nullptr);
    ~VentanaCombustible() override;

    // The text of the list: an entry, or "Elija combustible" before a choice.
    std::string TipoCombustible() const;
    // The fuel as the window holds it: the entry of the list, or the user's
    // own by the way of input selected, and the texts of the boxes.
    void LeerEntradas(Entradas& x) const;

public slots:
    void cboTipCom_Click();
    void cmdCal_Click();
    void optFOR_Click();
    void optMasa_Click();

signals:
    // A fuel was defined from these inputs.
    void Calculado(const Entradas& x);
    // An input was refused or the calculation failed: the window stays
    // open with the focus on the box concerned.
    void NoCalculado();

private:
    // Shows what the logic left: the texts of the boxes, the figures, what
    // may be used and which boxes are locked.
    void Mostrar(const Entradas& x);
    // The messages of an event, the focus, and what follows a fuel defined
    // or refused.
    void Terminar(const Mensajes& msj, const Entradas& x, bool ocultar, bool definido, bool fallido);

    Estado& e_;
    Dialogos& dlg_;
    Superficie& pct2_;

    QComboBox* cboTipCom_;
    QGroupBox* fraOtrosCombustibles_;
    QRadioButton *optMasa_, *optFOR_;
    QLineEdit *txtC_, *txtN_, *txtO_, *txtS_, *txtH_;
    QLineEdit* txtMol_[5];  // txtMolC(1) … txtMolS(5)
    QLineEdit *txtmmComb_, *txtEntPro_, *txtHcs_, *txtHci_, *txtQvap_;
    QCheckBox* chkOcultar_;
    QPushButton* cmdCal_;

    QPalette paletaCaja_;  // a box's own colours, for unlocking
    VistaCombustible vista_;
    SalidasCombustible salidas_;
};

}  // namespace vanta
