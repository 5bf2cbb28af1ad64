// The window "Abre informes": reports saved earlier, a text in its own box
// and a page in the system's web browser.
#pragma once

#include "gui/reports/VentanaTexto.h"

class QPushButton;

namespace vanta {

class VisoresInforme;

// The text box's share of the window's inside: of its height, of its width.
inline constexpr double kAjusteMostrarAlto = 0.85;
inline constexpr double kAjusteMostrarAncho = 0.95;

class VentanaMostrarInforme : public VentanaTexto {
    Q_OBJECT

public:
    explicit VentanaMostrarInforme(VisoresInforme& visores, QWidget* padre = nullptr);

    QPlainTextEdit* rtfMostrar() const { return rtfMostrar_; }

public slots:
    void cmdAbriTexto_Click() { AbrirInformeTexto(); }
    void mnuAbrirTexto_Click() { AbrirInformeTexto(); }
    void cmdIE_Click() { AbrirInformeWeb(); }
    void mnuAbrirWeb_Click() { AbrirInformeWeb(); }
    void mnuImprimir_Click();

private:
    // A saved text report into the box, which shows from then on; printing
    // becomes possible.
    void AbrirInformeTexto();
    // A saved page in the browser; printing is no longer offered.
    void AbrirInformeWeb();

    VisoresInforme& visores_;
    QPushButton *cmdAbriTexto_, *cmdIE_;
    QPlainTextEdit* rtfMostrar_;
    QAction *mnuAbrirTexto_, *mnuAbrirWeb_, *mnuImprimir_;
};

}  // namespace vanta
