#include "gui/reports/VentanaMostrarInforme.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>

#include "gui/reports/VisoresInforme.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"
namespace vanta {

namespace {

const QSize kTamanoMostrar(900, 600);
// The buttons stand in a row at the top; the box keeps below them.
constexpr int kMargen = 8;
constexpr int kAltoBotones = 30;

QPushButton* Boton(QWidget* padre, const char* nombre, const QString& texto) {
    auto* boton = new QPushButton(texto, padre);
    boton->setObjectName(QString::fromLatin1(nombre));
    return boton;
}

}  // namespace

VentanaMostrarInforme::VentanaMostrarInforme(VisoresInforme& visores, QWidget* padre)
    : VentanaTexto(padre, QStringLiteral("Abre informes"), kTamanoMostrar, kAjusteMostrarAlto,
                   kAjusteMostrarAncho, kAltoBotones + 2 * kMargen),
      visores_(visores),
      cmdAbriTexto_(Boton(Interior(), "cmdAbriTexto", QStringLiteral("Abrir informe texto"))),
      cmdIE_(Boton(Interior(), "cmdIE", QStringLiteral("Abrir informe Web"))),
      rtfMostrar_(CrearCaja("rtfMostrar")),
      mnuAbrirTexto_(Entrada("mnuAbrirTexto", QStringLiteral("Abri informe de &texto"))),
      mnuAbrirWeb_(Entrada("mnuAbrirWeb", QStringLiteral("Abrir  informe &Web"))),
      mnuImprimir_(Entrada("mnuImprimir", QStringLiteral("&Imprimir"))) {
    setObjectName(QStringLiteral("VentanaMostrarInforme"));
    CuidarVentana(this, QStringLiteral("abrirInforme"), kTamanoMostrar, true);
    mnuAbrirTexto_->setShortcuts(QKeySequence::Open);
    mnuImprimir_->setShortcuts(QKeySequence::Print);
    int x = kMargen;
    for (QPushButton* boton : {cmdAbriTexto_, cmdIE_}) {
        const int ancho = boton->sizeHint().width() + 2 * kMargen;
        boton->setGeometry(x, kMargen, ancho, kAltoBotones);
        x += ancho + kMargen;
    }
    rtfMostrar_->setReadOnly(true);
    rtfMostrar_->hide();
    mnuImprimir_->setEnabled(false);

    connect(cmdAbriTexto_, &QPushButton::clicked, this, &VentanaMostrarInforme::cmdAbriTexto_Click);
    connect(cmdIE_, &QPushButton::clicked, this, &VentanaMostrarInforme::cmdIE_Click);
    connect(mnuAbrirTexto_, &QAction::triggered, this, &VentanaMostrarInforme::mnuAbrirTexto_Click);
    connect(mnuAbrirWeb_, &QAction::triggered, this, &VentanaMostrarInforme::mnuAbrirWeb_Click);
    connect(mnuImprimir_, &QAction::triggered, this, &VentanaMostrarInforme::mnuImprimir_Click);
}

void VentanaMostrarInforme::AbrirInformeTexto() {
    rtfMostrar_->show();
    const QString nombre = visores_.Archivos().Abrir(this, kDialogoAbrirTexto);
    if (nombre.isEmpty()) return;
    const std::optional<std::string> bytes = LeerArchivoEntero(RutaArchivo(nombre));
    if (!bytes) return;
    rtfMostrar_->setPlainText(ATexto(TextoEnCaja(*bytes)));
    mnuImprimir_->setEnabled(true);
}

void VentanaMostrarInforme::AbrirInformeWeb() {
    const QString nombre = visores_.Archivos().Abrir(this, kDialogoAbrirPagina);
    if (nombre.isEmpty()) return;
    if (!visores_.Archivos().Navegar(QUrl::fromLocalFile(nombre))) return;
    mnuImprimir_->setEnabled(false);
}

void VentanaMostrarInforme::mnuImprimir_Click() {
    visores_.Imprimir(this, rtfMostrar_->toPlainText(), TextoSeleccionado(rtfMostrar_));
}

}  // namespace vanta
