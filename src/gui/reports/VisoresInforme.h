// The reports of the current calculation and the two windows that put
// reports before the user: VentanaInforme (the report of the last calculation,
// saved as text or as a page, printed) and VentanaMostrarInforme (reports saved earlier).
//
// This object is the one holder of the report's buffer rthInforme: the text
// that saving as text, printing and the results database take. It exists with
// the main window, so the buffer has the report of the last calculation even
// when VentanaInforme was never opened; the windows are made on first use and
// stay until this object goes.
#pragma once

#include <QImage>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <string>

#include "core/reports/ArchivosInforme.h"
#include "core/reports/Informes.h"
#include "core/sequence/Calculo.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/services/Dialogos.h"

class QPrinter;
class QWidget;

namespace vanta {

class VentanaInforme;
class VentanaMostrarInforme;

// What a page is made of: the last calculation that ended well (its state
// and the text of its fuel list) and the pictures of the main window's
// boxes, read when the page is saved.
struct FuentePagina {
    std::function<std::shared_ptr<const ResultadoCalculo>()> calculo;
    std::function<QImage(CuadroImagen)> imagen;
};

class VisoresInforme {
public:
    // dlg: the message boxes (the advice before a page is saved). padre: the
    // main window, which the report windows stand beside. archivos: the file
    // and printer dialogs and the browser; the real ones when null.
    VisoresInforme(Dialogos& dlg, FuentePagina fuente, QWidget* padre = nullptr,
                   DialogosArchivo* archivos = nullptr);
    ~VisoresInforme();
    VisoresInforme(const VisoresInforme&) = delete;
    VisoresInforme& operator=(const VisoresInforme&) = delete;

    // ---- The buffers ----
    // The report of a calculation as it ends: rthInforme takes it; what
    // VentanaInforme shows stays until the report is shown again.
    void PonerInformeTexto(const std::string& texto) { rthInforme_ = texto; }
    const std::string& rthInforme() const { return rthInforme_; }
    // The last page built; nothing reads it but the saving that built it.
    const std::string& rthHTML() const { return rthHTML_; }
    // The file the last page was saved to.
    const QString& ArchivoPagina() const { return archivoPagina_; }

    // ---- What the main window reaches ----
    // cmdInforme_Click and mnuInforme_Click: the main window's report into
    // txtInforme and into rthInforme, and VentanaInforme shown, not modal.
    void VerInforme(const std::string& txtInformeF1);
    // Saving rthInforme as text: the save dialog of the text filters, then the
    // report with CR LF line ends, whatever extension was chosen. A cancel or
    // a failure writes nothing and says nothing.
    void GuardarTexto(QWidget* ventana);
    // Saving the page of the current state: the advice, the save dialog with
    // its default name ("Index" from the main window, "Ciclo" from
    // VentanaInforme), the page and its seven bitmaps beside it. A cancel writes
    // nothing; a failure ends it silently, keeping what was written.
    void GuardarPaginaWeb(QWidget* ventana, const DialogoArchivo& dialogo);
    // mnuAbrirInforme_Click: VentanaMostrarInforme shown, not modal.
    void AbrirInforme();

    // ---- The parts the windows share ----
    VentanaInforme* Informe();         // made on first use
    VentanaMostrarInforme* Mostrar();  // made on first use
    // Prints a text through the printer dialog: the selection, when there is
    // one and the dialog keeps it, or else the whole text. A cancel prints
    // nothing.
    void Imprimir(QWidget* ventana, const QString& texto, const QString& seleccion);
    DialogosArchivo& Archivos() { return *archivos_; }
    // Other dialogs from now on (a test answers them).
    void FijarDialogosArchivo(DialogosArchivo& archivos) { archivos_ = &archivos; }

private:
    Dialogos& dlg_;
    FuentePagina fuente_;
    QPointer<QWidget> padre_;
    std::unique_ptr<DialogosArchivo> archivosPropios_;
    DialogosArchivo* archivos_;
    std::unique_ptr<QPrinter> impresora_;

    std::string rthInforme_;
    std::string rthHTML_;
    QString archivoPagina_;

    QPointer<VentanaInforme> ventanaInforme_;
    QPointer<VentanaMostrarInforme> ventanaMostrarInforme_;
};

}  // namespace vanta
