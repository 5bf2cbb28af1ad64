#include "gui/comparison/VentanaComparacion.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "core/comparison/TablaComparacion.h"
#include "gui/comparison/VentanaExportar.h"
#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"
#include "gui/services/SuperficieImagen.h"

namespace vanta {

// ---- LienzoFigura ------------------------------------------------------------------

LienzoFigura::LienzoFigura(QWidget* padre) : QWidget(padre) {
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LienzoFigura::PonerFigura(Figura f) {
    figura_ = std::move(f);
    update();
}

void LienzoFigura::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    if (figura_.dibujar) PintarFigura(pintor, figura_, size());
}

void LienzoFigura::mouseDoubleClickEvent(QMouseEvent*) {
    emit DobleClick();
}

void LienzoFigura::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    menu.addAction(QStringLiteral("Copiar al portapapeles"), this, &LienzoFigura::Copiar);
    menu.addAction(QString::fromUtf8("Exportar…"), this, &LienzoFigura::Exportar);
    menu.exec(evento->globalPos());
}

// ---- VentanaComparacion ----------------------------------------------------------------

VentanaComparacion::VentanaComparacion(std::vector<CalculoComparado> calculos, char separador, Dialogos& dlg,
                                       QWidget* padre)
    : QWidget(padre, Qt::Window),
      calculos_(std::make_shared<const std::vector<CalculoComparado>>(std::move(calculos))),
      separador_(separador),
      dlg_(dlg) {
    setObjectName(QStringLiteral("VentanaComparacion"));
    setWindowTitle(QString::fromUtf8("Comparación de cálculos"));

    cboPresion_ = new QComboBox(this);
    cboPresion_->setObjectName(QStringLiteral("cboPresion"));
    cboPresion_->addItems({QStringLiteral("Pa"), QStringLiteral("bar")});
    connect(cboPresion_, &QComboBox::currentIndexChanged, this, [this] { Rehacer(); });
    auto* cmdExportar = NuevoBoton(this, "cmdExportar", "Exportar figuras…");
    connect(cmdExportar, &QPushButton::clicked, this, &VentanaComparacion::cmdExportar_Click);
    auto* barra = new QHBoxLayout;
    barra->addWidget(NuevaEtiqueta(this, "lblPresion", "Presión en:"));
    barra->addWidget(cboPresion_);
    barra->addStretch(1);
    barra->addWidget(
        NuevaEtiqueta(this, "lblAmpliar",
                      "Doble clic en un diagrama: solo él, o los cuatro. Botón derecho: copiar o "
                      "exportar."));
    barra->addWidget(cmdExportar);

    auto* diagramas = new QWidget(this);
    auto* rejilla = new QGridLayout(diagramas);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setSpacing(4);
    const char* nombres[] = {"pctPV", "pctTV", "pctTS", "pctHS"};
    for (size_t i = 0; i < 4; ++i) {
        const auto d = static_cast<Diagrama>(i);
        lienzos_[i] = new LienzoFigura(diagramas);
        lienzos_[i]->setObjectName(QString::fromLatin1(nombres[i]));
        rejilla->addWidget(lienzos_[i], static_cast<int>(i / 2), static_cast<int>(i % 2));
        connect(lienzos_[i], &LienzoFigura::DobleClick, this,
                [this, d] { Ampliar(ampliado_ ? std::nullopt : std::optional<Diagrama>(d)); });
        connect(lienzos_[i], &LienzoFigura::Copiar, this,
                [this, i] { CopiarFigura(lienzos_[i]->figura(), kTamanoFigura); });
        connect(lienzos_[i], &LienzoFigura::Exportar, this, [this, i] { ExportarFiguras({i}); });
    }

    tblCifras_ = new QTableWidget(this);
    tblCifras_->setObjectName(QStringLiteral("tblCifras"));
    tblCifras_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblCifras_->verticalHeader()->hide();

    auto* division = new QSplitter(Qt::Horizontal, this);
    division->addWidget(diagramas);
    division->addWidget(tblCifras_);
    division->setStretchFactor(0, 3);
    division->setStretchFactor(1, 2);
    division->setSizes({760, 720});

    auto* columna = new QVBoxLayout(this);
    columna->addLayout(barra);
    columna->addWidget(division, 1);
    CuidarVentana(this, QStringLiteral("comparacion"), {1400, 820}, true);
    Rehacer();
}

UnidadPresion VentanaComparacion::Presion() const {
    return cboPresion_->currentIndex() == 1 ? UnidadPresion::bar : UnidadPresion::Pa;
}

void VentanaComparacion::FijarPresion(UnidadPresion u) {
    cboPresion_->setCurrentIndex(u == UnidadPresion::bar ? 1 : 0);
}

void VentanaComparacion::Ampliar(std::optional<Diagrama> d) {
    ampliado_ = d;
    for (size_t i = 0; i < 4; ++i) lienzos_[i]->setVisible(!d || static_cast<size_t>(*d) == i);
}

void VentanaComparacion::Rehacer() {
    const std::vector<Figura> figuras = FigurasDiagramas(calculos_, Presion(), separador_);
    for (size_t i = 0; i < 4; ++i) lienzos_[i]->PonerFigura(figuras[i]);

    // Columns: the figure, then each calculation with its difference to the
    // first beside it.
    const std::vector<CalculoComparado>& c = *calculos_;
    const std::vector<FilaComparacion> filas = TablaComparacion(c, Presion(), separador_);
    tblCifras_->clear();
    tblCifras_->setRowCount(static_cast<int>(filas.size()));
    tblCifras_->setColumnCount(static_cast<int>(2 * c.size()));
    const auto cabecera = [this](int columna, const QString& texto, const QColor& color) {
        auto* item = new QTableWidgetItem(texto);
        item->setForeground(color);
        item->setToolTip(texto);
        tblCifras_->setHorizontalHeaderItem(columna, item);
    };
    const auto columnaValor = [](size_t k) { return static_cast<int>(k == 0 ? 1 : 2 * k); };
    const auto columnaDiferencia = [](size_t k) { return static_cast<int>(2 * k + 1); };
    cabecera(0, QStringLiteral("Magnitud"), Qt::black);
    for (size_t k = 0; k < c.size(); ++k) {
        const QColor color = ColorQt(ColorComparacion(k));
        cabecera(columnaValor(k), ATexto(c[k].nombre), color);
        if (k > 0) cabecera(columnaDiferencia(k), QString::fromUtf8("Dif. con el 1.º"), color);
    }
    for (size_t f = 0; f < filas.size(); ++f) {
        const FilaComparacion& fila = filas[f];
        const auto celda = [&](int columna, const std::string& texto, bool numero) {
            auto* item = new QTableWidgetItem(ATexto(texto));
            if (numero) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (fila.distinta) {
                QFont letra = item->font();
                letra.setBold(true);
                item->setFont(letra);
            }
            if (fila.magnitud == kFilaAviso) item->setForeground(Qt::darkRed);
            tblCifras_->setItem(static_cast<int>(f), columna, item);
        };
        celda(0, fila.magnitud, false);
        for (size_t k = 0; k < c.size(); ++k) {
            celda(columnaValor(k), fila.valores[k], !fila.entrada && fila.magnitud != kFilaAviso);
            if (k > 0) celda(columnaDiferencia(k), fila.diferencias[k], true);
        }
    }
    // Long names and messages wrap rather than widen the table.
    tblCifras_->setWordWrap(true);
    tblCifras_->resizeColumnsToContents();
    for (int i = 0; i < tblCifras_->columnCount(); ++i)
        tblCifras_->setColumnWidth(i, std::min(tblCifras_->columnWidth(i), i == 0 ? 190 : 160));
    tblCifras_->resizeRowsToContents();
}

void VentanaComparacion::ExportarFiguras(std::vector<size_t> elegidas) {
    VentanaExportar ventana([calculos = calculos_, separador = separador_](
                                UnidadPresion u) { return FigurasDiagramas(calculos, u, separador); },
                            Presion(), elegidas, dlg_, this);
    ventana.exec();
}

void VentanaComparacion::cmdExportar_Click() {
    if (ampliado_)
        ExportarFiguras({static_cast<size_t>(*ampliado_)});
    else
        ExportarFiguras({0, 1, 2, 3});
}

}  // namespace vanta
