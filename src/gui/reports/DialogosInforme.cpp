#include "gui/reports/DialogosInforme.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPrintDialog>
#include <QTextDocument>
#include <algorithm>

#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

// Bounds of the printed report's size, in points: never larger than a
// comfortable reading size, never smaller than what still reads on paper.
constexpr double kPuntosMaximo = 10;
constexpr double kPuntosMinimo = 5;
// The margin that a document keeps inside the printable area when it prints
// (2 cm).
constexpr double kMargenImpresionPuntos = 2.0 / 2.54 * 72;
// What the longest line may take of the width: a little room for the
// rounding of the glyphs' advances, so that it never wraps.
constexpr double kHolguraAncho = 0.98;

}  // namespace

// ---- The real dialogs -------------------------------------------------------------

QString DialogosArchivoQt::Mostrar(QWidget* padre, const DialogoArchivo& d, bool guardar) {
    const std::vector<FiltroArchivo> filtros = FiltrosDialogo(d.filtro);
    QStringList etiquetas;
    for (const FiltroArchivo& f : filtros) etiquetas << ATexto(f.etiqueta);

    QFileDialog dialogo(padre);
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // Each kind of file (the first extension of its filters) opens where the
    // last of its kind was saved or opened, in this run or an earlier one.
    const QString clave = (guardar ? QStringLiteral("guardar-") : QStringLiteral("abrir-")) +
                          (filtros.empty() ? QString() : ATexto(filtros.front().extension));
    const QString recordada = CarpetaRecordada(clave);
    dialogo.setDirectory(!recordada.isEmpty() ? recordada
                         : carpeta_.isEmpty() ? QDir::currentPath()
                                              : carpeta_);
    dialogo.setNameFilters(etiquetas);
    // A name typed without extension takes that of the filter in view.
    const auto alFiltrar = [&](const QString& etiqueta) {
        const qsizetype i = etiquetas.indexOf(etiqueta);
        dialogo.setDefaultSuffix(i >= 0 ? ATexto(filtros[static_cast<size_t>(i)].extension) : QString());
    };
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo, alFiltrar);
    if (!etiquetas.isEmpty()) {
        const QString inicial = etiquetas.at(static_cast<qsizetype>(FiltroInicial(d, filtros.size())));
        dialogo.selectNameFilter(inicial);
        if (guardar) alFiltrar(inicial);
    }
    if (!d.nombre.empty()) dialogo.selectFile(ATexto(d.nombre));

    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
    const QString nombre = dialogo.selectedFiles().constFirst();
    carpeta_ = QFileInfo(nombre).absolutePath();
    RecordarCarpeta(clave, nombre);
    return nombre;
}

QString DialogosArchivoQt::Guardar(QWidget* padre, const DialogoArchivo& d) {
    return Mostrar(padre, d, true);
}

QString DialogosArchivoQt::Abrir(QWidget* padre, const DialogoArchivo& d) {
    return Mostrar(padre, d, false);
}

bool DialogosArchivoQt::ElegirImpresora(QWidget* padre, QPrinter& impresora, bool seleccion) {
    QPrintDialog dialogo(&impresora, padre);
    dialogo.setOption(QAbstractPrintDialog::PrintSelection, seleccion);
    impresora.setPrintRange(seleccion ? QPrinter::Selection : QPrinter::AllPages);
    return dialogo.exec() == QDialog::Accepted;
}

bool DialogosArchivoQt::Navegar(const QUrl& pagina) {
    return QDesktopServices::openUrl(pagina);
}

// ---- Recorded answers -------------------------------------------------------------

QString DialogosArchivoGrabados::Responder(const DialogoArchivo& d) {
    pedidos.push_back(d);
    if (respuestas.isEmpty()) return {};
    return respuestas.takeFirst();
}

bool DialogosArchivoGrabados::ElegirImpresora(QWidget*, QPrinter& impresora, bool seleccion) {
    ++impresoras;
    if (pdf.isEmpty()) return false;
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(pdf);
    impresora.setPrintRange(seleccion ? QPrinter::Selection : QPrinter::AllPages);
    return true;
}

bool DialogosArchivoGrabados::Navegar(const QUrl& pagina) {
    if (!navegadorDisponible) return false;
    paginas.push_back(pagina);
    return true;
}

// ---- Files and printing -----------------------------------------------------------

std::filesystem::path RutaArchivo(const QString& nombre) {
    const QByteArray local = QFile::encodeName(nombre);
    return std::filesystem::path(std::string(local.constData(), static_cast<size_t>(local.size())));
}

QFont FuenteInforme() {
    QFont fuente = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fuente.setStyleHint(QFont::Monospace);
    fuente.setFixedPitch(true);
    return fuente;
}

void ImprimirTexto(QPrinter& impresora, const QString& texto) {
    qsizetype columnas = 1;
    for (const QStringView linea : QStringView(texto).split(QLatin1Char('\n')))
        columnas = std::max(columnas, linea.size());

    // The width of a character per point of size, on the printer itself.
    QFont fuente = FuenteInforme();
    fuente.setPointSizeF(kPuntosMaximo);
    const double puntosPorUnidad = 72.0 / impresora.resolution();
    const double anchoCaracter = QFontMetricsF(fuente, &impresora).horizontalAdvance(QLatin1Char('0')) *
                                 puntosPorUnidad / kPuntosMaximo;
    const double anchoPagina =
        (impresora.pageLayout().paintRect(QPageLayout::Point).width() - 2 * kMargenImpresionPuntos) *
        kHolguraAncho;
    if (anchoCaracter > 0 && anchoPagina > 0)
        fuente.setPointSizeF(std::clamp(anchoPagina / (anchoCaracter * static_cast<double>(columnas)),
                                        kPuntosMinimo, kPuntosMaximo));

    QTextDocument documento;
    documento.setDefaultFont(fuente);
    documento.setPlainText(texto);
    documento.print(&impresora);
}

}  // namespace vanta
