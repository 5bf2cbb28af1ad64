#include "gui/reports/VentanaInforme.h"

#include <QAction>
#include <QPlainTextEdit>

#include "gui/reports/VisoresInforme.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

const QSize kTamanoInforme(900, 600);

}  // namespace

VentanaInforme::VentanaInforme(VisoresInforme& visores, QWidget* padre)
    : VentanaTexto(padre, QStringLiteral("Informe"), kTamanoInforme, kAjusteInforme, kAjusteInforme, 0),
      visores_(visores),
      txtInforme_(CrearCaja("txtInforme")) {
    setObjectName(QStringLiteral("VentanaInforme"));
    txtInforme_->setReadOnly(true);
    CuidarVentana(this, QStringLiteral("informe"), kTamanoInforme, true);
    QAction* guardar = Entrada("cmdGuardar", QStringLiteral("&Guardar como"));
    guardar->setShortcuts(QKeySequence::Save);
    connect(guardar, &QAction::triggered, this, &VentanaInforme::cmdGuardar_Click);
    connect(Entrada("mnuHTML", QStringLiteral("Guardar como página Web (*.html,*.htm)")), &QAction::triggered,
            this, &VentanaInforme::mnuHTML_Click);
    QAction* imprimir = Entrada("mnuImprimir", QStringLiteral("Im&primir"));
    imprimir->setShortcuts(QKeySequence::Print);
    connect(imprimir, &QAction::triggered, this, &VentanaInforme::mnuImprimir_Click);
}

void VentanaInforme::PonerTexto(const std::string& texto) {
    txtInforme_->setPlainText(ATexto(TextoEnCaja(texto)));
}

void VentanaInforme::cmdGuardar_Click() {
    visores_.GuardarTexto(this);
}

void VentanaInforme::mnuHTML_Click() {
    visores_.GuardarPaginaWeb(this, kDialogoPaginaInforme);
}

// Prints the report buffer, or what the user selected in the box.
void VentanaInforme::mnuImprimir_Click() {
    visores_.Imprimir(this, ATexto(TextoEnCaja(visores_.rthInforme())), TextoSeleccionado(txtInforme_));
}

}  // namespace vanta
