#include "gui/comparison/Comparar.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/comparison/VentanaComparacion.h"
#include "gui/database/EntradasCalculo.h"
#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

VentanaElegirRegistros::VentanaElegirRegistros(const std::vector<std::string>& nombres,
                                               const std::vector<qint64>& ids, int maximo, int minimo,
                                               qint64 marcado, QWidget* padre)
    : QDialog(padre), ids_(ids), maximo_(maximo), minimo_(minimo) {
    setObjectName(QStringLiteral("VentanaElegirRegistros"));
    setWindowTitle(QStringLiteral("Comparar cálculos"));
    auto* lblElija = new QLabel(
        minimo_ == 0
            ? QStringLiteral("Elija hasta %1 registros guardados para compararlos con el cálculo actual:")
                  .arg(maximo_)
            : QStringLiteral("Elija hasta %1 registros guardados para compararlos:").arg(maximo_),
        this);
    lstRegistros_ = new QListWidget(this);
    lstRegistros_->setObjectName(QStringLiteral("lstRegistros"));
    for (size_t i = 0; i < nombres.size(); ++i) {
        auto* item =
            new QListWidgetItem(QStringLiteral("%1. ").arg(i + 1) + ATexto(nombres[i]), lstRegistros_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(ids_[i] == marcado ? Qt::Checked : Qt::Unchecked);
    }
    lblAviso_ = NuevaEtiqueta(this, "lblAviso", "");
    cmdComparar_ = NuevoBoton(this, "cmdComparar", "Comparar");
    auto* cmdCancelar = NuevoBoton(this, "cmdCancelar", "Cancelar");
    connect(cmdComparar_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(lstRegistros_, &QListWidget::itemChanged, this, &VentanaElegirRegistros::AlMarcar);
    auto* botones = new QHBoxLayout;
    botones->addWidget(lblAviso_, 1);
    botones->addWidget(cmdComparar_);
    botones->addWidget(cmdCancelar);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(lblElija);
    columna->addWidget(lstRegistros_, 1);
    columna->addLayout(botones);
    CuidarVentana(this, QStringLiteral("elegirRegistros"), {640, 420}, false);
    AlMarcar(nullptr);
}

std::vector<qint64> VentanaElegirRegistros::Elegidos() const {
    std::vector<qint64> e;
    for (int i = 0; i < lstRegistros_->count(); ++i)
        if (lstRegistros_->item(i)->checkState() == Qt::Checked) e.push_back(ids_[static_cast<size_t>(i)]);
    return e;
}

// A record checked beyond the most is unchecked again, with a word why.
void VentanaElegirRegistros::AlMarcar(QListWidgetItem* item) {
    lblAviso_->clear();
    if (item && item->checkState() == Qt::Checked && static_cast<int>(Elegidos().size()) > maximo_) {
        const QSignalBlocker callado(lstRegistros_);
        item->setCheckState(Qt::Unchecked);
        lblAviso_->setText(QStringLiteral("Como mucho %1 registros.").arg(maximo_));
    }
    cmdComparar_->setEnabled(static_cast<int>(Elegidos().size()) >= minimo_);
}

std::vector<CalculoComparado> CalculosDeRegistros(AlmacenResultados& almacen,
                                                  const std::vector<qint64>& ids) {
    std::vector<CalculoComparado> calculos;
    for (qint64 id : ids) {
        const auto textos = almacen.LeerTextos(id);
        if (!textos) {
            CalculoComparado c;
            c.nombre = "Registro " + std::to_string(id);
            c.mensaje = almacen.Error();
            calculos.push_back(std::move(c));
            continue;
        }
        const std::optional<std::string> entradas = EntradasGuardadas(almacen, id);
        calculos.push_back(CalculoDeRegistro(*textos, entradas ? &*entradas : nullptr));
    }
    return calculos;
}

void Comparar(QWidget* padre, AlmacenResultados* almacen, std::optional<CalculoComparado> actual,
              qint64 marcado, char separador, Dialogos& dlg) {
    std::vector<CalculoComparado> calculos;
    if (actual) calculos.push_back(std::move(*actual));
    if (almacen) {
        const auto ids = almacen->Identificadores();
        if (!ids) {
            dlg.MsgBox(almacen->Error());
            return;
        }
        std::vector<std::string> nombres;
        for (qint64 id : *ids) {
            const auto textos = almacen->LeerTextos(id);
            nombres.push_back(textos ? (*textos)[bd::kColumnaNombre] : std::string());
        }
        const int maximo = kMaximoComparados - static_cast<int>(calculos.size());
        VentanaElegirRegistros eleccion(nombres, *ids, maximo, calculos.empty() ? 1 : 0, marcado, padre);
        if (eleccion.exec() != QDialog::Accepted) return;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        for (CalculoComparado& c : CalculosDeRegistros(*almacen, eleccion.Elegidos()))
            calculos.push_back(std::move(c));
        QGuiApplication::restoreOverrideCursor();
    }
    if (calculos.empty()) return;
    auto* ventana = new VentanaComparacion(std::move(calculos), separador, dlg, padre);
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->show();
}

}  // namespace vanta
