// The viewer "Tablas del aire y gases de combustión": the text box rtfTablas
// that the tables fill while the window shows, and the menu to save the text
// and to print it.
#pragma once

#include <QElapsedTimer>
#include <memory>
#include <string>

#include "core/tables/TablasPropiedades.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/reports/VentanaTexto.h"

class QPlainTextEdit;

namespace vanta {

class VentanaTablas : public VentanaTexto, public VisorTablas {
    Q_OBJECT

public:
    // archivos: the file and printer dialogs; the platform's when null.
    explicit VentanaTablas(QWidget* padre = nullptr, DialogosArchivo* archivos = nullptr);
    ~VentanaTablas() override;

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

public slots:
    void mnuGuardarComo_Click();
    void mnuImprimir_Click();

private:
    QPlainTextEdit* rtfTablas_;
    std::string pendiente_;
    QElapsedTimer desdeUltimoVaciado_;
    std::unique_ptr<DialogosArchivo> archivosPropios_;
    DialogosArchivo* archivos_;
};

}  // namespace vanta
