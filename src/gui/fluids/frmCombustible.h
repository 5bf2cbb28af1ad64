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

// The fuel list as the logic sees a box: its text is the entry shown.
class CajaListaQt : public CajaTexto {
public:
    explicit CajaListaQt(QComboBox* lista) : lista_(lista) {}
    std::string Text() const override;
    void SetText(std::string_view texto) override;
    void SetFocus() override;
    void SetSelStart(int) override {}

private:
    QComboBox* lista_;
};

class frmCombustible : public QDialog, public FormularioCombustible {
    Q_OBJECT

public:
    frmCombustible(Estado& e, Dialogos& dlg, Superficie& pct2, QWidget* padre = nullptr);
    ~frmCombustible() override;

    // The text of the list: an entry, or "Elija combustible" before a choice.
    std::string TipoCombustible() const { return lista_.Text(); }

    void HabilitarEntradaPropia(bool habilitar) override;
    void PonerTituloOtros(std::string_view titulo) override;
    void HabilitarMarcoOtros() override;
    void BloquearCajas(bool formula) override;

public slots:
    void cboTipCom_Click();
    void cmdCal_Click();
    void optFOR_Click();
    void optMasa_Click();

private:
    ControlesCombustible& Controles();

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

    CajaListaQt lista_;
    QPalette paletaCaja_;  // a box's own colours, for unlocking
    struct Puertos;
    std::unique_ptr<Puertos> puertos_;
};

}  // namespace vanta
