// The window "Ciclo": the user picks the cycle by its picture, gives the
// engine data, the state at the end of admission, the models of compression
// and expansion and, for the mixed cycle, how the heat is split. "CALCULAR"
// solves the cycle and draws the four diagrams of the main window.
#pragma once

#include <QColor>
#include <QDialog>
#include <QPixmap>
#include <memory>

#include "core/cycle/Ciclo.h"
#include "core/inputs/Entradas.h"
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

// A shape: a rectangle drawn with a border colour and width, round a picture.
class Forma : public QWidget {
public:
    explicit Forma(QWidget* padre = nullptr);
    QColor BorderColor() const { return color_; }
    int BorderWidth() const { return ancho_; }
    void SetBorderColor(const QColor& color);
    void SetBorderWidth(int ancho);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QColor color_ = Qt::black;
    int ancho_ = 1;
};

// What the cycle window reaches in the main window.
class EnlacePrincipal {
public:
    virtual ~EnlacePrincipal() = default;
    virtual void Ocultabotones(const Botones& b) = 0;
    // The text of the fuel list of the fuel window (the report's fuel).
    virtual std::string TipoCombustible() const = 0;
    // How CALCULAR ended, with the inputs it read and what it told.
    virtual void CicloTerminado(const ResultadoCiclo& r, const Entradas& x, const Mensajes& msj) = 0;
};

class VentanaCiclo : public QDialog {
    Q_OBJECT

public:
    VentanaCiclo(Estado& e, Dialogos& dlg, Diagramas& diagramas, EnlacePrincipal& principal,
                 QWidget* padre = nullptr);
    ~VentanaCiclo() override;

    // The cycle's inputs as the window holds them.
    void LeerEntradas(Entradas& x) const;
    // Whether each calculation also shows the cycle with dissociation.
    bool ConDisociacion() const;

public slots:
    void cmdCal_Click();
    void imgOtto_Click();
    void imgDiesel_Click();
    void imgMixto_Click();
    void optGmedioCom_Click();
    void optPolitropicaCom_Click();
    void optGvariable_Click();
    void optGmedioExp_Click();
    void optPolitropica_Click();
    void optGvariableExp_Click();
    void optProporcion_Click();
    void optPmax_Click();
    void txtPropVcte_Change();

protected:
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearControles();
    // The three pictures of the cycles first in the Tab order, as they are
    // first in reading order.
    void OrdenarPrimeroImagenes();
    void Distribuir();
    // The frames and pictures of the cycle chosen.
    void MostrarCiclo(const VistaCiclo& v);

    Estado& e_;
    Dialogos& dlg_;
    Diagramas& diagramas_;
    EnlacePrincipal& principal_;
    bool cargada_ = false;

    QCheckBox* chkOcultar_;
    QCheckBox* chkDisociacion_;
    QGroupBox *fraDTecnicos_, *fraAire_, *fraOpcion_, *fraExpansion_, *fraCompresion_;
    QLineEdit *txtCilindrada_, *txtRc_, *txtP1_, *txtT1_, *txtPropVcte_, *txtPMax_, *txtPropPcte_,
        *txtGMedioExp_, *txt_nExp_, *txtGammaMedioComp_, *txt_nCom_;
    QLabel *Label1_, *Label2_, *lblcc_, *Label3_, *Label5_, *lblPa_, *lblK_, *lblcVc_, *lblCienCvC_, *lblcPc_,
        *lblCienCpC_, *lblPmax_, *lblPaPmax_, *lbl_nExp_, *lbl_n_comp_;
    QRadioButton *optProporcion_, *optPmax_, *optGvariableExp_, *optGmedioExp_, *optPolitropica_,
        *optGvariable_, *optGmedioCom_, *optPolitropicaCom_;
    QPushButton* cmdCal_;
    QLabel *imgOtto_, *imgDiesel_, *imgMixto_, *imgSeleccinar_;
    Forma *shpOtto_, *shpDiesel_, *shpMixto_, *shpActiva_, *shpInactiva_;
    // The stock of pictures: [cycle][variant 1 idle, variant 2 chosen].
    QPixmap stock_[3][2];
};

}  // namespace vanta
