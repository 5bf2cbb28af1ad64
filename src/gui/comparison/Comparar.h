// How a comparison starts: the saved records are chosen (up to six, or five
// beside the main window's calculation), each is run again, and the window
// of the comparison opens on them.
#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "core/comparison/Calculos.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/services/Dialogos.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace vanta {

class VentanaComparacion;

// The most calculations a comparison lays side by side.
inline constexpr int kMaximoComparados = 6;

// "Comparar cálculos": the saved records, by their names, to check.
class VentanaElegirRegistros : public QDialog {
    Q_OBJECT

public:
    // nombres and ids of the records in the order of saving; maximo: how many
    // may be checked; minimo: how many must (0 when the main window's
    // calculation comes too); marcado: the id checked at the start, or -1.
    VentanaElegirRegistros(const std::vector<std::string>& nombres, const std::vector<qint64>& ids,
                           int maximo, int minimo, qint64 marcado, QWidget* padre = nullptr);

    std::vector<qint64> Elegidos() const;
    QListWidget* Lista() const { return lstRegistros_; }

private:
    void AlMarcar(QListWidgetItem* item);

    std::vector<qint64> ids_;
    int maximo_, minimo_;
    QListWidget* lstRegistros_ = nullptr;
    QLabel* lblAviso_ = nullptr;
    QPushButton* cmdComparar_ = nullptr;
};

// The records run again, in the order given. A record that cannot be read
// comes with the store's message.
std::vector<CalculoComparado> CalculosDeRegistros(AlmacenResultados& almacen, const std::vector<qint64>& ids);

// Asks for the records and opens the comparison, the calculation given (the
// main window's) first when there is one. almacen: the open store, or null
// (then only that calculation). separador: of the figures shown.
void Comparar(QWidget* padre, AlmacenResultados* almacen, std::optional<CalculoComparado> actual,
              qint64 marcado, char separador, Dialogos& dlg);

}  // namespace vanta
