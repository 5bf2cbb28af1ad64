#include "gui/equilibrium/VentanaDisociacion.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QSplitter>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "core/comparison/Figura.h"
#include "core/equilibrium/CurvasDisociacion.h"
#include "core/equilibrium/InformeDisociacion.h"
#include "core/warnings/Cifras.h"
#include "gui/comparison/Figuras.h"
#include "gui/comparison/VentanaComparacion.h"
#include "gui/services/Escritorio.h"

namespace vanta {

namespace {

constexpr const char* kTitulo = "Combustión con disociación";
// A species of at least this share is drawn on the linear scale.
constexpr double kFraccionPrincipal = 0.01;
// The logarithmic scale's decades: 1E-06 to 1E-02.
constexpr int kDecadaMenor = -6, kDecadaMayor = -2;

// A minor share as "3.45E-04".
std::string Cientifica(double x, char separador) {
    int k = static_cast<int>(std::floor(std::log10(x)));
    double mantisa = x / std::pow(10.0, k);
    if (std::round(mantisa * 100) >= 1000) mantisa /= 10, ++k;
    const int a = std::abs(k);
    return Cifra(mantisa, "0.00", separador) + (k < 0 ? "E-" : "E+") + std::to_string(a / 10) +
           std::to_string(a % 10);
}

QString ATexto(const std::string& s) {
    return QString::fromStdString(s);
}

// What a cycle with dissociation draws: its curves and the series that
// points at them.
struct Superpuesta {
    CurvasCiclo curvas;
    SerieFigura serie;
};

}  // namespace

// ---- GraficaEspecies ------------------------------------------------------------

GraficaEspecies::GraficaEspecies(QWidget* padre) : QWidget(padre) {
    setMinimumSize(240, 160);
}

void GraficaEspecies::PonerMezcla(const equilibrio::Mezcla& m, char separador) {
    barras_.clear();
    for (int j = 0; j < equilibrio::kGases; ++j) {
        const double x = m.Fraccion(static_cast<equilibrio::Gas>(j));
        if (!(x > equilibrio::kFraccionVisible)) continue;
        const std::string cifra =
            x >= kFraccionPrincipal ? Porcentaje(x, separador) : Cientifica(x, separador);
        barras_.push_back({QString::fromLatin1(equilibrio::kNombresGases[j]), ATexto(cifra), x});
    }
    std::stable_sort(barras_.begin(), barras_.end(),
                     [](const Barra& a, const Barra& b) { return a.fraccion > b.fraccion; });
    update();
}

void GraficaEspecies::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (barras_.empty()) return;
    const QFontMetrics fm(font());
    const int fila = fm.height() + 4;
    const int izquierda = fm.horizontalAdvance(QStringLiteral("SO2")) + 12;
    const int derecha = width() - fm.horizontalAdvance(QStringLiteral("0.00E-00")) - 12;
    const int ancho = std::max(10, derecha - izquierda);
    int y = 4;
    bool menores = false;
    for (const Barra& b : barras_) {
        if (!menores && b.fraccion < kFraccionPrincipal) {
            // The minor species, under a title with the decades of their scale.
            menores = true;
            y += fila / 2;
            p.setPen(Qt::black);
            p.drawText(izquierda, y + fm.ascent(),
                       QString::fromUtf8("Minoritarias (escala logarítmica, 1E-06 a 1E-02)"));
            y += fila;
        }
        const double largo =
            menores ? (std::log10(b.fraccion) - kDecadaMenor) / (kDecadaMayor - kDecadaMenor) : b.fraccion;
        const int w = static_cast<int>(std::clamp(largo, 0.0, 1.0) * ancho);
        p.setPen(Qt::black);
        p.drawText(4, y + fm.ascent(), b.especie);
        p.fillRect(izquierda, y + 2, std::max(1, w), fila - 6,
                   menores ? QColor(210, 120, 40) : QColor(0, 90, 200));
        p.drawText(izquierda + w + 6, y + fm.ascent(), b.cifra);
        y += fila;
    }
}

// ---- VentanaDisociacion -----------------------------------------------------------

VentanaDisociacion::VentanaDisociacion(QWidget* padre) : QWidget(padre, Qt::Window) {
    setObjectName(QStringLiteral("VentanaDisociacion"));
    setWindowTitle(QString::fromUtf8(kTitulo));
    auto* diagramas = new QWidget(this);
    auto* rejilla = new QGridLayout(diagramas);
    for (size_t i = 0; i < lienzos_.size(); ++i) {
        lienzos_[i] = new LienzoFigura(diagramas);
        // Smaller than the comparison's, so that the table fits beside them
        // on a screen of 1024 pixels.
        lienzos_[i]->setMinimumSize(180, 140);
        rejilla->addWidget(lienzos_[i], static_cast<int>(i / 2), static_cast<int>(i % 2));
    }
    auto* lado = new QWidget(this);
    auto* columna = new QVBoxLayout(lado);
    tblCifras_ = new QTableWidget(lado);
    tblCifras_->setObjectName(QStringLiteral("tblCifras"));
    tblCifras_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblCifras_->setAccessibleName(QString::fromUtf8("Cifras de los tres modelos"));

    lblIdeal_ = new QLabel(lado);
    lblIdeal_->setWordWrap(true);
    lblEspecies_ = new QLabel(lado);
    lblEspecies_->setWordWrap(true);
    especies_ = new GraficaEspecies(lado);
    especies_->setAccessibleName(QString::fromUtf8("Composición en equilibrio al final de la combustión"));
    columna->addWidget(tblCifras_, 3);
    columna->addWidget(lblIdeal_);
    columna->addWidget(lblEspecies_);
    columna->addWidget(especies_, 2);
    division_ = new QSplitter(this);
    division_->addWidget(diagramas);
    division_->addWidget(lado);
    division_->setStretchFactor(0, 1);
    division_->setStretchFactor(1, 0);
    (new QVBoxLayout(this))->addWidget(division_);
    CuidarVentana(this, QStringLiteral("disociacion"), {1280, 760}, true);
}

void VentanaDisociacion::Mostrar(std::shared_ptr<const CalculoComparado> calculo,
                                 std::shared_ptr<const equilibrio::CiclosConDisociacion> ciclos) {
    const Estado& e = *calculo->estado;
    const char sep = e.SeparadorDecimal;
    auto superpuesta = std::make_shared<Superpuesta>();
    superpuesta->curvas = equilibrio::CurvasDisociacion(e, ciclos->equilibrio, true, ColorComparacion(1));
    superpuesta->serie = {
        equilibrio::kSerieEquilibrio, &superpuesta->curvas, nullptr, true, ColorComparacion(1), true};
    const std::shared_ptr<const SerieFigura> serie(superpuesta, &superpuesta->serie);
    for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS})
        Lienzo(d)->PonerFigura(FiguraDiagramaSuperpuesto(d, calculo, serie, sep));

    const std::vector<equilibrio::FilaDisociacion> filas = equilibrio::FilasDisociacion(e, *ciclos);
    tblCifras_->clear();
    tblCifras_->setRowCount(static_cast<int>(filas.size()));
    tblCifras_->setColumnCount(3);
    QStringList columnas;
    for (const char* c : equilibrio::kColumnasDisociacion) columnas << QString::fromUtf8(c);
    tblCifras_->setHorizontalHeaderLabels(columnas);
    for (int i = 0; i < static_cast<int>(filas.size()); ++i) {
        const auto& f = filas[static_cast<size_t>(i)];
        tblCifras_->setVerticalHeaderItem(i, new QTableWidgetItem(ATexto(f.titulo)));
        const std::string* cifras[] = {&f.programa, &f.sinDisociacion, &f.equilibrio};
        for (int k = 0; k < 3; ++k) {
            auto* celda = new QTableWidgetItem(ATexto(*cifras[k]));
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tblCifras_->setItem(i, k, celda);
        }
    }
    tblCifras_->resizeColumnsToContents();
    // The row titles' width as their header will take it, with its margins.
    int titulos = 0;
    for (int i = 0; i < tblCifras_->rowCount(); ++i)
        titulos = std::max(
            titulos, tblCifras_->fontMetrics().horizontalAdvance(tblCifras_->verticalHeaderItem(i)->text()));
    anchoTabla_ =
        titulos + 2 * tblCifras_->style()->pixelMetric(QStyle::PM_HeaderMargin) +
        2 * tblCifras_->frameWidth() + tblCifras_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
        tblCifras_->fontMetrics().horizontalAdvance(QStringLiteral("0000"));  // the cells' own margins
    for (int k = 0; k < tblCifras_->columnCount(); ++k) anchoTabla_ += tblCifras_->columnWidth(k);
    Repartir();

    QString ideal;
    if (const std::string r = equilibrio::RendimientoIdealTexto(e); !r.empty())
        ideal = QString::fromUtf8(equilibrio::kTextoRendimientoIdeal) + ATexto(r) + " %";
    for (const std::string& m : equilibrio::MensajesDisociacion(*ciclos)) ideal += "\n" + ATexto(m);
    lblIdeal_->setText(ideal);

    const bool otto = e.TipoCiclo == "Otto";
    lblEspecies_->setText(QString::fromUtf8("Composición en equilibrio al final de la combustión (estado %1)")
                              .arg(otto ? 3 : 4));
    if (ciclos->equilibrio.bien) especies_->PonerMezcla(ciclos->equilibrio.estado4, sep);
}

// The table whole beside the diagrams, which take the rest, as far as the
// window's width allows; again at each new size of the window.
void VentanaDisociacion::Repartir() {
    if (anchoTabla_ > 0) division_->setSizes({division_->width() - anchoTabla_, anchoTabla_});
}

void VentanaDisociacion::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    layout()->activate();
    Repartir();
}

}  // namespace vanta
