#include "tables/frmTablas.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "services/PuertosQt.h"

namespace vanta {

namespace {

// The size of letter of the print, in points, unless the rows need less.
constexpr qreal kPuntosImpresion = 10;
// The margin around the text that a document's print leaves, in centimetres.
constexpr qreal kMargenImpresionCm = 2;

// How long the rows gather before they reach the box, in milliseconds.
constexpr qint64 kIntervaloVaciado = 50;

QString DialogoGuardar(QWidget* padre, const QString& filtro) {
    return QFileDialog::getSaveFileName(padre, {}, {}, filtro);
}

bool DialogoImpresora(QWidget* padre, QPrinter& impresora) {
    QPrintDialog dialogo(&impresora, padre);
    return dialogo.exec() == QDialog::Accepted;
}

QAction* NuevaAccion(QMenu* menu, const char* nombre, const char* texto) {
    QAction* a = menu->addAction(QString::fromUtf8(texto));
    a->setObjectName(QString::fromLatin1(nombre));
    return a;
}

}  // namespace

frmTablas::frmTablas(QWidget* padre)
    : QMainWindow(padre, Qt::Window), pedirArchivo_(DialogoGuardar), pedirImpresora_(DialogoImpresora) {
    setObjectName(QStringLiteral("frmTablas"));
    setWindowTitle(QString::fromUtf8(kTituloTablas));
    resize(900, 600);

    auto* fondo = new QWidget(this);
    fondo->setMouseTracking(true);
    fondo->installEventFilter(this);
    setCentralWidget(fondo);

    rtfTablas_ = new QPlainTextEdit(fondo);
    rtfTablas_->setObjectName(QStringLiteral("rtfTablas"));
    rtfTablas_->setLineWrapMode(QPlainTextEdit::NoWrap);
    rtfTablas_->setUndoRedoEnabled(false);
    rtfTablas_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    rtfTablas_->viewport()->setMouseTracking(true);
    rtfTablas_->viewport()->installEventFilter(this);

    mnuArchivo_ = menuBar()->addMenu(QStringLiteral("&Archivo"));
    mnuArchivo_->setObjectName(QStringLiteral("mnuArchivo"));
    mnuGuardarComo_ = NuevaAccion(mnuArchivo_, "mnuGuardarComo", "&Guardar como");
    mnuImprimir_ = NuevaAccion(mnuArchivo_, "mnuImprimir", "&Imprimir");
    connect(mnuGuardarComo_, &QAction::triggered, this, &frmTablas::mnuGuardarComo_Click);
    connect(mnuImprimir_, &QAction::triggered, this, &frmTablas::mnuImprimir_Click);

    AjustarCaja();
    desdeUltimoVaciado_.start();
}

void frmTablas::Mostrar() {
    show();
    raise();
    activateWindow();
}

void frmTablas::Ocultar() {
    Vaciar();
    hide();
}

void frmTablas::PonerTexto(std::string_view texto) {
    pendiente_.clear();
    rtfTablas_->setPlainText(ATexto(texto));
    desdeUltimoVaciado_.restart();
}

void frmTablas::Anadir(std::string_view pieza) {
    pendiente_ += pieza;
    if (desdeUltimoVaciado_.elapsed() < kIntervaloVaciado) return;
    Vaciar();
    // Let the box paint and the windows answer the user.
    QCoreApplication::processEvents();
    desdeUltimoVaciado_.restart();
}

void frmTablas::Vaciar() {
    if (pendiente_.empty()) return;
    QTextCursor final(rtfTablas_->document());
    final.movePosition(QTextCursor::End);
    final.insertText(ATexto(pendiente_));
    pendiente_.clear();
}

std::string frmTablas::Texto() const {
    // The box keeps lines as blocks; the text the tables wrote has CR LF
    // between them and no other line end.
    QString texto = rtfTablas_->toPlainText();
    texto.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return texto.toStdString() + pendiente_;
}

void frmTablas::Imprimir(QPrinter& impresora) {
    Vaciar();
    // The rows are wider than a page at the box's size: the print takes the
    // size of letter at which the longest line fits the page's width.
    std::unique_ptr<QTextDocument> copia(rtfTablas_->document()->clone());
    QString masLarga;
    for (QTextBlock b = copia->begin(); b.isValid(); b = b.next())
        if (b.length() > masLarga.size() + 1) masLarga = b.text();
    QFont fuente = rtfTablas_->font();
    fuente.setPointSizeF(kPuntosImpresion);
    // The page less the margin that the print of a document leaves on each
    // side.
    const qreal anchoPagina = impresora.pageLayout().paintRectPixels(impresora.resolution()).width() -
                              2 * kMargenImpresionCm / 2.54 * impresora.resolution();
    const qreal anchoLinea = QFontMetricsF(fuente, &impresora).horizontalAdvance(masLarga);
    if (anchoLinea > anchoPagina && anchoPagina > 0)
        fuente.setPointSizeF(kPuntosImpresion * anchoPagina / anchoLinea * 0.97);
    copia->setDefaultFont(fuente);
    copia->print(&impresora);
}

bool frmTablas::Guardar(const QString& archivo) const {
    QFile f(archivo);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    const std::string texto = Texto();
    return f.write(texto.data(), static_cast<qint64>(texto.size())) == static_cast<qint64>(texto.size());
}

void frmTablas::FijarDialogos(PedirArchivo archivo, PedirImpresora impresora) {
    pedirArchivo_ = std::move(archivo);
    pedirImpresora_ = std::move(impresora);
}

void frmTablas::AjustarCaja() {
    rtfTablas_->resize(static_cast<int>(0.95 * width()), static_cast<int>(0.9 * height()));
}

void frmTablas::mnuGuardarComo_Click() {
    // Whatever the filter chosen, the file is plain text; a cancel, or a file
    // that cannot be written, ends here without a word.
    static const QString filtro = ATexto(FiltroDialogo(kFiltroGuardarTablas));
    const QString archivo = pedirArchivo_(this, filtro);
    if (archivo.isEmpty()) return;
    Guardar(archivo);
}

void frmTablas::mnuImprimir_Click() {
    QPrinter impresora;
    if (!pedirImpresora_(this, impresora)) return;
    Imprimir(impresora);
}

bool frmTablas::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseMove) AjustarCaja();
    return QMainWindow::eventFilter(objeto, evento);
}

}  // namespace vanta
