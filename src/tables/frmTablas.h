// The viewer "Tablas del aire y gases de combustión": the text box rtfTablas
// that the tables fill while the window shows, and the menu to save the text
// and to print it.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <functional>
#include <string>

#include "tables/TablasPropiedades.h"

class QAction;
class QMenu;
class QPlainTextEdit;
class QPrinter;

namespace vanta {

class frmTablas : public QMainWindow, public VisorTablas {
    Q_OBJECT

public:
    explicit frmTablas(QWidget* padre = nullptr);

    // ---- What the tables reach ----
    void Mostrar() override;
    void Ocultar() override;
    void PonerTexto(std::string_view texto) override;
    // Rows gather and reach the box in batches, a few times a second, with the
    // events of the windows let through between them: the text grows in view
    // and the program answers meanwhile.
    void Anadir(std::string_view pieza) override;
    // What is still gathered, into the box.
    void Vaciar();

    // The text as the tables wrote it, CR LF line ends included.
    std::string Texto() const;

    // Prints the text on a printer already set up: the print of the menu, and
    // a file in PDF through the same steps.
    void Imprimir(QPrinter& impresora);
    // Writes the text to the file as plain text; false when it cannot.
    bool Guardar(const QString& archivo) const;

    // How the file and the printer are asked for: the platform's dialogs
    // unless replaced (the window tests answer them without a nested event
    // loop). An empty name, or false, is a cancel.
    using PedirArchivo = std::function<QString(QWidget* padre, const QString& filtro)>;
    using PedirImpresora = std::function<bool(QWidget* padre, QPrinter& impresora)>;
    void FijarDialogos(PedirArchivo archivo, PedirImpresora impresora);

    // Fits the box to the window: 0.95 of its width and 0.9 of its height.
    void AjustarCaja();

public slots:
    void mnuGuardarComo_Click();
    void mnuImprimir_Click();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QPlainTextEdit* rtfTablas_;
    QMenu* mnuArchivo_;
    QAction *mnuGuardarComo_, *mnuImprimir_;
    std::string pendiente_;
    QElapsedTimer desdeUltimoVaciado_;
    PedirArchivo pedirArchivo_;
    PedirImpresora pedirImpresora_;
};

}  // namespace vanta
