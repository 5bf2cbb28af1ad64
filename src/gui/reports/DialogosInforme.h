// What the report windows ask of the desktop: a file to save to or to open,
// a printer, and the system's web browser for a saved page. One port, so the
// tests answer the dialogs; the Qt one shows the real ones.
#pragma once

#include <QPointer>
#include <QPrinter>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWidget>
#include <vector>

#include "core/reports/ArchivosInforme.h"

namespace vanta {

class DialogosArchivo {
public:
    virtual ~DialogosArchivo() = default;
    // The file chosen; empty for a cancel.
    virtual QString Guardar(QWidget* padre, const DialogoArchivo& d) = 0;
    virtual QString Abrir(QWidget* padre, const DialogoArchivo& d) = 0;
    // The printer dialog on impresora; false for a cancel. seleccion: whether
    // there is a selection to print.
    virtual bool ElegirImpresora(QWidget* padre, QPrinter& impresora, bool seleccion) = 0;
    // Opens a page in the system's web browser; false when it cannot.
    virtual bool Navegar(const QUrl& pagina) = 0;
};

// The real dialogs. A file dialog starts in the folder of the last file
// chosen through it, offers the dialog's name, and adds the extension of the
// filter chosen to a name typed without one.
class DialogosArchivoQt : public DialogosArchivo {
public:
    QString Guardar(QWidget* padre, const DialogoArchivo& d) override;
    QString Abrir(QWidget* padre, const DialogoArchivo& d) override;
    bool ElegirImpresora(QWidget* padre, QPrinter& impresora, bool seleccion) override;
    bool Navegar(const QUrl& pagina) override;

private:
    QString Mostrar(QWidget* padre, const DialogoArchivo& d, bool guardar);
    QString carpeta_;
};

// Answers the dialogs from lists, and keeps what was asked.
class DialogosArchivoGrabados : public DialogosArchivo {
public:
    QStringList respuestas;               // file names, in order; none left is a cancel
    std::vector<DialogoArchivo> pedidos;  // the file dialogs shown
    QString pdf;                          // the printer dialog prints to this PDF file; empty is a cancel
    int impresoras = 0;                   // printer dialogs shown
    bool navegadorDisponible = true;
    std::vector<QUrl> paginas;  // pages opened in the browser

    QString Guardar(QWidget*, const DialogoArchivo& d) override { return Responder(d); }
    QString Abrir(QWidget*, const DialogoArchivo& d) override { return Responder(d); }
    bool ElegirImpresora(QWidget* padre, QPrinter& impresora, bool seleccion) override;
    bool Navegar(const QUrl& pagina) override;

private:
    QString Responder(const DialogoArchivo& d);
};

// A file name as the file system takes it.
std::filesystem::path RutaArchivo(const QString& nombre);

// Prints a report: a fixed-pitch font sized so that the longest line fits the
// printer's page width (within bounds), columns kept.
void ImprimirTexto(QPrinter& impresora, const QString& texto);

// The fixed-pitch font in which the report windows show a report.
QFont FuenteInforme();

}  // namespace vanta
