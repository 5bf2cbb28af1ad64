// "Exportar figuras": which figures, the format (PNG, SVG, PDF), the size in
// pixels and the unit of pressure; saved to files (a PDF of several has a
// page each) or copied to the clipboard.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "gui/comparison/Figuras.h"
#include "gui/services/Dialogos.h"

class QComboBox;
class QListWidget;
class QSpinBox;

namespace vanta {

class VentanaExportar : public QDialog {
    Q_OBJECT

public:
    // The figures in a unit of pressure (always the same list).
    using Hacer = std::function<std::vector<Figura>(UnidadPresion)>;

    // elegidas: the figures checked at the start (indices into the list).
    VentanaExportar(Hacer hacer, UnidadPresion presion, const std::vector<size_t>& elegidas, Dialogos& dlg,
                    QWidget* padre = nullptr);

    std::vector<size_t> Elegidas() const;
    QListWidget* Lista() const { return lstFiguras_; }
    FormatoFigura Formato() const;
    QSize Tamano() const;
    UnidadPresion Presion() const;
    void FijarFormato(FormatoFigura f);
    void FijarTamano(QSize t);
    void FijarPresion(UnidadPresion u);

    // Writes the figures checked. With one figure, or in PDF, ruta is the
    // file; with several in PNG or SVG, the folder, one file each by its
    // name. False, with the message shown, when a file could not be written.
    bool Guardar(const QString& ruta);

public slots:
    void cmdGuardar_Click();
    // The first figure checked, as an image and as SVG.
    void cmdCopiar_Click();

private:
    std::vector<Figura> Figuras() const { return hacer_(Presion()); }

    Hacer hacer_;
    Dialogos& dlg_;
    QListWidget* lstFiguras_ = nullptr;
    QComboBox *cboFormato_ = nullptr, *cboPresion_ = nullptr;
    QSpinBox *txtAncho_ = nullptr, *txtAlto_ = nullptr;
};

}  // namespace vanta
