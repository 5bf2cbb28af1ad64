// The window "Aire húmedo": ambient pressure, temperature and relative
// humidity of the comburent. Its button runs CalcularAire and draws the chart
// of the air on pct1 of the main window.
#pragma once

#include <QDialog>

#include "core/inputs/Entradas.h"
#include "core/services/Superficie.h"
#include "core/state/Estado.h"
#include "gui/services/PuertosQt.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vanta {

class VentanaAire : public QDialog {
    Q_OBJECT

public:
    VentanaAire(Estado& e, Dialogos& dlg, Superficie& pct1, QWidget* padre = nullptr);

    // The ambient as the boxes hold it.
    void LeerEntradas(Entradas& x) const;

public slots:
    void cmdCal_Click();

signals:
    // The air was calculated from these inputs.
    void Calculado(const Entradas& x);
    // An input was refused or the calculation failed: the window stays
    // open with the focus on the box concerned.
    void NoCalculado();

private:
    Estado& e_;
    Dialogos& dlg_;
    Superficie& pct1_;

    QGroupBox* Frame1_;
    QLineEdit *txtTemAmb_, *txtPreAmb_, *txtHum_;
    QLabel *Label1_, *Label2_, *Label3_, *Label4_, *Label5_, *Label6_;
    QCheckBox* chkOcultar_;
    QPushButton* cmdCal_;
};

}  // namespace vanta
