// "Comparación de cálculos": the p-V, T-V, T-s and h-s diagrams of up to six
// calculations on common axes, each in its own colour with a legend of the
// names, and beside them the table of the main figures side by side with the
// differences to the first. A double click on a diagram shows it alone (and
// again the four); its context menu copies or exports it.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "core/comparison/Calculos.h"
#include "core/comparison/Figura.h"
#include "gui/comparison/Figuras.h"
#include "gui/services/Dialogos.h"

class QComboBox;
class QTableWidget;

namespace vanta {

// A figure painted on a window at the window's size.
class LienzoFigura : public QWidget {
    Q_OBJECT

public:
    explicit LienzoFigura(QWidget* padre = nullptr);
    void PonerFigura(Figura f);
    const Figura& figura() const { return figura_; }

signals:
    void DobleClick();
    void Copiar();
    void Exportar();

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

private:
    Figura figura_;
};

class VentanaComparacion : public QWidget {
    Q_OBJECT

public:
    // separador: the decimal separator of the figures shown.
    VentanaComparacion(std::vector<CalculoComparado> calculos, char separador, Dialogos& dlg,
                       QWidget* padre = nullptr);

    const std::vector<CalculoComparado>& Calculos() const { return *calculos_; }
    UnidadPresion Presion() const;
    void FijarPresion(UnidadPresion u);
    // The diagram shown alone, or none for the four.
    void Ampliar(std::optional<Diagrama> d);
    LienzoFigura* Lienzo(Diagrama d) const { return lienzos_[static_cast<size_t>(d)]; }
    QTableWidget* Tabla() const { return tblCifras_; }

public slots:
    void cmdExportar_Click();

private:
    void Rehacer();
    void ExportarFiguras(std::vector<size_t> elegidas);

    std::shared_ptr<const std::vector<CalculoComparado>> calculos_;
    char separador_;
    Dialogos& dlg_;
    std::optional<Diagrama> ampliado_;
    QComboBox* cboPresion_ = nullptr;
    std::array<LienzoFigura*, 4> lienzos_{};
    QTableWidget* tblCifras_ = nullptr;
};

}  // namespace vanta
