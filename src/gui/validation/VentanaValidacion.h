// The validation window (Ayuda › Validación): the table of checks of
// `vanta validar`, one tab per group with its explanation, each row coloured
// by its result.
#pragma once

#include <QColor>
#include <QDialog>

#include "core/validation/Validacion.h"

class QLabel;
class QTabWidget;
class QTableWidget;

namespace vanta {

// The colour of a row: green within the tolerance, amber a difference of the
// model, red beyond.
QColor ColorResultado(Resultado r);

// Not modal: the user may keep it open beside the main window.
class VentanaValidacion : public QDialog {
    Q_OBJECT

public:
    explicit VentanaValidacion(char separador, QWidget* padre = nullptr);

    const TablaValidacion& tabla() const { return tabla_; }
    QTabWidget* pestanas() const { return pestanas_; }
    // The table of a group's tab.
    QTableWidget* Tabla(GrupoValidacion g) const;

private:
    TablaValidacion tabla_;
    QTabWidget* pestanas_ = nullptr;
};

// Shows the window, made once under padre and raised when it is open.
VentanaValidacion& MostrarValidacion(QWidget* padre, char separador);

}  // namespace vanta
