// The window "Informe": the text report of the current calculation, to read,
// save as text or as a page, and print. What it shows (txtInforme) is the
// copy made when the report was last shown; saving and printing take the
// report buffer, which a new calculation replaces at once, and the page is
// built from the state as it stands.
#pragma once

#include <string>

#include "gui/reports/VentanaTexto.h"

namespace vanta {

class VisoresInforme;

// The report box's share of the window's inside, each way.
inline constexpr double kAjusteInforme = 0.9;

class VentanaInforme : public VentanaTexto {
    Q_OBJECT

public:
    explicit VentanaInforme(VisoresInforme& visores, QWidget* padre = nullptr);

    // The report as the window shows it.
    void PonerTexto(const std::string& texto);
    QPlainTextEdit* txtInforme() const { return txtInforme_; }

public slots:
    void cmdGuardar_Click();
    void mnuHTML_Click();
    void mnuImprimir_Click();

private:
    VisoresInforme& visores_;
    QPlainTextEdit* txtInforme_;
};

}  // namespace vanta
