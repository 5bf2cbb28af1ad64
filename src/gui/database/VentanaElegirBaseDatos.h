// "Base de datos": where the results go, chosen in the window as the command
// line's --base-datos chooses it: a SQLite file, or the address of a database
// on a PostgreSQL server that a class or a lab shares. The choice is
// remembered from one session to the next; the password is not: the browser
// asks for it when the server wants one.
#pragma once

#include <QDialog>
#include <QString>

#include "gui/services/Dialogos.h"

class QLineEdit;
class QPushButton;

namespace vanta {

class VentanaElegirBaseDatos : public QDialog {
    Q_OBJECT

public:
    // actual: the choice in use, empty for BD.sqlite in the current folder.
    VentanaElegirBaseDatos(Dialogos& dlg, const QString& actual, QWidget* padre = nullptr);

    // The choice when the window is accepted.
    QString Direccion() const;

public slots:
    // Refuses, with its message, an address that cannot be read.
    void accept() override;
    void cmdExaminar_Click();
    void cmdPredeterminada_Click();

private:
    Dialogos& dlg_;
    QLineEdit* txtDireccion_;
};

// The choice remembered by the program's settings, and its keeping.
QString DireccionRecordada();
void RecordarDireccion(const QString& direccion);

}  // namespace vanta
