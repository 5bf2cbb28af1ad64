// The window "Tablas del aire seco o húmedo y Gases de combustión": the range
// of temperatures, per mole or per kilogram, a species or the mixture, and the
// three buttons with which the user defines the fluid in the tool itself. The
// tables appear in VentanaTablas.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "core/state/Estado.h"
#include "core/tables/TablasPropiedades.h"
#include "gui/services/Dialogos.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vanta {

class DialogosArchivo;
class VentanaTablas;

// What the tool asks of the main window, which owns the stage windows.
struct EnlacesHerramientas {
    std::function<void()> comburente;              // shows VentanaAire, modal
    std::function<void()> combustible;             // shows VentanaCombustible, modal
    std::function<void()> combustion;              // shows VentanaCombustion, not modal
    std::function<std::string()> tipoCombustible;  // the text of the fuel list, cboTipCom
};

class VentanaHerramientas : public QWidget {
    Q_OBJECT

public:
    // archivos: the viewer's file and printer dialogs; the platform's when null.
    VentanaHerramientas(Estado& e, Dialogos& dlg, EnlacesHerramientas enlaces, QWidget* padre = nullptr,
                        DialogosArchivo* archivos = nullptr);
    ~VentanaHerramientas() override;

    // ---- What the main window calls ----
    // "Tablas del aire y gases": shown, with the three buttons that define the
    // fluid visible.
    void MostrarParaDefinir();
    // "Tablas del aire y gases del ciclo actual": shown for the fluid of the
    // current calculation, the definition buttons hidden, TABLAS enabled and
    // both fluids counted as defined.
    void MostrarCicloActual();
    // Which buttons that define the fluid are in view, and whether TABLAS may
    // be pressed. The fuel's button goes with the comburent's; the fuel's flag
    // is passed and has no effect.
    struct BotonesVisibles {
        bool comburente, combustible, combustion, tablas;
    };
    void MostrarBotonesTablas(const BotonesVisibles& b);

    // Which buttons may be pressed: the fuel's, the combustion's and TABLAS.
    // The comburent's flag is passed and has no effect.
    struct BotonesHabilitados {
        bool comburente, combustible, combustion, tablas;
    };
    void PonerBotones(const BotonesHabilitados& b);

    VentanaTablas* Tablas() const { return ventanaTablas_; }
    // Whether a table is being made now.
    bool Ocupada() const { return ocupada_; }

public slots:
    void cmdComburente_Click();
    void cmdCombustible_Click();
    void cmdCombustion_Click();
    void optAire_Click();
    void optHumos_Click();
    void cmdTablas_Click();
    void cmdTab_Click();

private:
    template <class F>
    void HacerTabla(F&& tabla);

    Estado& e_;
    Dialogos& dlg_;
    EnlacesHerramientas enlaces_;
    MiembrosHerramientas miembros_;
    bool ocupada_ = false;

    QRadioButton *optMol_, *optKg_;
    QLineEdit *txtAT_, *txtTinicial_, *txtTfinal_;
    QGroupBox* Frame2_;
    QComboBox* cboElemento_;
    QPushButton* cmdTab_;
    QGroupBox* Frame1_;
    QRadioButton *optAire_, *optHumos_;
    QPushButton *cmdComburente_, *cmdCombustible_, *cmdCombustion_, *cmdTablas_;

    VentanaTablas* ventanaTablas_;
    EntradasHerramientas LeerEntradas() const;
    // The messages of a table, and the focus on the box they name.
    void Decir(const Mensajes& msj);
};

}  // namespace vanta
