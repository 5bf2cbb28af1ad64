#include "gui/tables/VentanaTablas.h"

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTextCursor>

#include "core/files/EscribirArchivos.h"
#include "core/reports/ArchivosInforme.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

// How long the rows gather before they reach the box, in milliseconds.
constexpr qint64 kIntervaloVaciado = 50;

// The box takes 0.9 of the window's height and 0.95 of its width.
constexpr double kAltoCaja = 0.9;
constexpr double kAnchoCaja = 0.95;
const QSize kTamanoTablas(980, 620);

// The save dialog: the same filter as that of the saved reports' viewer; the
// file is plain text whichever is chosen.
constexpr DialogoArchivo kDialogoTablas{kFiltroTextoMostrar, "", 0};

}  // namespace

VentanaTablas::VentanaTablas(QWidget* padre, DialogosArchivo* archivos)
    : VentanaTexto(padre, QString::fromUtf8(kTituloTablas), kTamanoTablas, kAltoCaja, kAnchoCaja, 0),
      archivosPropios_(archivos ? nullptr : std::make_unique<DialogosArchivoQt>()),
      archivos_(archivos ? archivos : archivosPropios_.get()) {
    setObjectName(QStringLiteral("VentanaTablas"));
    rtfTablas_ = CrearCaja("rtfTablas");
    rtfTablas_->setUndoRedoEnabled(false);
    CuidarVentana(this, QStringLiteral("tablas"), kTamanoTablas, true);
    QAction* guardar = Entrada("mnuGuardarComo", QStringLiteral("&Guardar como"));
    guardar->setShortcuts(QKeySequence::Save);
    connect(guardar, &QAction::triggered, this, &VentanaTablas::mnuGuardarComo_Click);
    QAction* imprimir = Entrada("mnuImprimir", QStringLiteral("&Imprimir"));
    imprimir->setShortcuts(QKeySequence::Print);
    connect(imprimir, &QAction::triggered, this, &VentanaTablas::mnuImprimir_Click);
    desdeUltimoVaciado_.start();
}

VentanaTablas::~VentanaTablas() = default;

void VentanaTablas::Mostrar() {
    show();
    raise();
    activateWindow();
}

void VentanaTablas::Ocultar() {
    Vaciar();
    hide();
}

void VentanaTablas::PonerTexto(std::string_view texto) {
    pendiente_.clear();
    rtfTablas_->setPlainText(ATexto(texto));
    desdeUltimoVaciado_.restart();
}

void VentanaTablas::Anadir(std::string_view pieza) {
    pendiente_ += pieza;
    if (desdeUltimoVaciado_.elapsed() < kIntervaloVaciado) return;
    Vaciar();
    // Let the box paint and the windows answer the user.
    QCoreApplication::processEvents();
    desdeUltimoVaciado_.restart();
}

void VentanaTablas::Vaciar() {
    if (pendiente_.empty()) return;
    QTextCursor final(rtfTablas_->document());
    final.movePosition(QTextCursor::End);
    final.insertText(ATexto(pendiente_));
    pendiente_.clear();
}

std::string VentanaTablas::Texto() const {
    // The box keeps lines as blocks; the text the tables wrote has CR LF
    // between them and no other line end.
    QString texto = rtfTablas_->toPlainText();
    texto.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return texto.toStdString() + pendiente_;
}

void VentanaTablas::mnuGuardarComo_Click() {
    // A cancel, or a file that cannot be written, ends here without a word.
    const QString nombre = archivos_->Guardar(this, kDialogoTablas);
    if (nombre.isEmpty()) return;
    EscribirArchivoEntero(RutaArchivo(nombre), Texto());
}

void VentanaTablas::mnuImprimir_Click() {
    QPrinter impresora;
    if (!archivos_->ElegirImpresora(this, impresora, false)) return;
    Vaciar();
    ImprimirTexto(impresora, rtfTablas_->toPlainText());
}

}  // namespace vanta
