#include "gui/database/VentanaElegirBaseDatos.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>

#include "core/database/Direccion.h"
#include "core/database/Registro.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

const char* const kClaveAjuste = "baseDatos/direccion";

}  // namespace

QString DireccionRecordada() {
    return Ajustes().value(QLatin1String(kClaveAjuste)).toString();
}

void RecordarDireccion(const QString& direccion) {
    QSettings ajustes = Ajustes();
    ajustes.setValue(QLatin1String(kClaveAjuste), direccion);
    ajustes.sync();
}

VentanaElegirBaseDatos::VentanaElegirBaseDatos(Dialogos& dlg, const QString& actual, QWidget* padre)
    : QDialog(padre), dlg_(dlg) {
    setObjectName(QStringLiteral("VentanaElegirBaseDatos"));
    setWindowTitle(QStringLiteral("Base de datos"));
    auto* explicacion = new QLabel(
        QStringLiteral("Archivo SQLite, o dirección de una base de datos en un servidor PostgreSQL:\n"
                       "%1[?sslmode=require]\n"
                       "Vacío: %2 en la carpeta actual. La contraseña no va en la dirección: se pide\n"
                       "al abrir la base de datos si el servidor la quiere.")
            .arg(ATexto(bd::kEjemploDireccion), ATexto(bd::kArchivoBaseDatos)),
        this);
    explicacion->setTextFormat(Qt::PlainText);
    txtDireccion_ = new QLineEdit(actual, this);
    txtDireccion_->setObjectName(QStringLiteral("txtDireccion"));
    txtDireccion_->setMinimumWidth(460);
    txtDireccion_->setPlaceholderText(ATexto(bd::kArchivoBaseDatos));
    auto* cmdExaminar = new QPushButton(QStringLiteral("Examinar…"), this);
    cmdExaminar->setObjectName(QStringLiteral("cmdExaminar"));
    auto* cmdPredeterminada = new QPushButton(QStringLiteral("Predeterminada"), this);
    cmdPredeterminada->setObjectName(QStringLiteral("cmdPredeterminada"));
    for (QPushButton* b : {cmdExaminar, cmdPredeterminada}) b->setAutoDefault(false);
    auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    botones->setObjectName(QStringLiteral("botones"));

    auto* g = new QGridLayout(this);
    g->addWidget(explicacion, 0, 0, 1, 3);
    g->addWidget(txtDireccion_, 1, 0);
    g->addWidget(cmdExaminar, 1, 1);
    g->addWidget(cmdPredeterminada, 1, 2);
    g->addWidget(botones, 2, 0, 1, 3);

    connect(cmdExaminar, &QPushButton::clicked, this, &VentanaElegirBaseDatos::cmdExaminar_Click);
    connect(cmdPredeterminada, &QPushButton::clicked, this, &VentanaElegirBaseDatos::cmdPredeterminada_Click);
    connect(botones, &QDialogButtonBox::accepted, this, &VentanaElegirBaseDatos::accept);
    connect(botones, &QDialogButtonBox::rejected, this, &VentanaElegirBaseDatos::reject);
}

QString VentanaElegirBaseDatos::Direccion() const {
    return txtDireccion_->text().trimmed();
}

void VentanaElegirBaseDatos::accept() {
    if (!Direccion().isEmpty()) {
        const bd::LecturaDireccion l = bd::LeerDireccion(Direccion().toStdString());
        if (!l.direccion) {
            dlg_.MsgBox(bd::MsgNoSeAbre(Direccion().toStdString(), l.error));
            return;
        }
    }
    QDialog::accept();
}

void VentanaElegirBaseDatos::cmdExaminar_Click() {
    const QString archivo = QFileDialog::getSaveFileName(
        this, windowTitle(), Direccion().isEmpty() ? ATexto(bd::kArchivoBaseDatos) : Direccion(),
        QStringLiteral("Bases de datos SQLite (*.sqlite);;Todos los archivos (*)"), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (!archivo.isEmpty()) txtDireccion_->setText(archivo);
}

void VentanaElegirBaseDatos::cmdPredeterminada_Click() {
    txtDireccion_->clear();
}

}  // namespace vanta
