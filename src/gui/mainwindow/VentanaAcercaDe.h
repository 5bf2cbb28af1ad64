// The about window: the program's name and version, what it does, the
// credits and the licence, and a button that opens the bibliography.
#pragma once

#include <QDialog>
#include <QPointer>

class QPushButton;

namespace vanta {

class VentanaBibliografia;

// Not modal.
class VentanaAcercaDe : public QDialog {
    Q_OBJECT

public:
    explicit VentanaAcercaDe(QWidget* padre = nullptr);

    QPushButton* cmdBibliografia() const { return cmdBibliografia_; }
    QPushButton* cmdCerrar() const { return cmdCerrar_; }
    // The bibliography window once opened, else null.
    VentanaBibliografia* Bibliografia() const { return bibliografia_; }

public slots:
    // Opens the bibliography, not modal; a second press raises the same one.
    void cmdBibliografia_Click();

private:
    QPushButton* cmdBibliografia_ = nullptr;
    QPushButton* cmdCerrar_ = nullptr;
    QPointer<VentanaBibliografia> bibliografia_;
};

// What the menu entry "Acerca de" does: shows the about window of `padre`,
// not modal; created on first use and brought to the front afterwards, so a
// second press never opens a second window. With no parent the window is its
// own and goes when closed.
VentanaAcercaDe* MostrarAcercaDe(QWidget* padre);

}  // namespace vanta
