#include "gui/validation/VentanaValidacion.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <set>

#include "core/services/Numeros.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

constexpr const char* kNombreVentana = "VentanaValidacion";

QString Resumen(const TablaValidacion& t, char separador) {
    auto n = [&](Resultado r) { return ATexto(TextoGeneral(static_cast<double>(t.Cuenta(r)), separador)); };
    return QStringLiteral(
               "%1 comprobaciones: <span style='background:%2'>&nbsp;%3 cumplen&nbsp;</span>, "
               "<span style='background:%4'>&nbsp;%5 con diferencia propia del modelo&nbsp;</span>, "
               "<span style='background:%6'>&nbsp;%7 no cumplen&nbsp;</span>.")
        .arg(ATexto(TextoGeneral(static_cast<double>(t.filas.size()), separador)))
        .arg(ColorResultado(Resultado::Cumple).name(), n(Resultado::Cumple))
        .arg(ColorResultado(Resultado::Explicada).name(), n(Resultado::Explicada))
        .arg(ColorResultado(Resultado::NoCumple).name(), n(Resultado::NoCumple));
}

// A group's tab: its explanation, its rows, the notes of its differences.
QWidget* Pestana(const DescripcionGrupo& g, const TablaValidacion& t, QWidget* padre) {
    auto* pagina = new QWidget(padre);
    auto* explicacion = new QLabel(ATexto(g.explicacion), pagina);
    explicacion->setWordWrap(true);

    std::vector<const Comprobacion*> filas;
    for (const auto& f : t.filas)
        if (f.grupo == g.grupo) filas.push_back(&f);
    auto* tabla = new QTableWidget(static_cast<int>(filas.size()), 6, pagina);
    tabla->setObjectName(QStringLiteral("lstComprobaciones"));
    tabla->setAccessibleName(QStringLiteral("Comprobaciones"));
    tabla->setHorizontalHeaderLabels({QStringLiteral("Comprobación"), QStringLiteral("Programa"),
                                      QStringLiteral("Referencia"), QStringLiteral("Diferencia"),
                                      QStringLiteral("Tolerancia"), QStringLiteral("Resultado")});
    tabla->verticalHeader()->setVisible(false);
    tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla->setSelectionBehavior(QAbstractItemView::SelectRows);
    std::set<std::string> vistas;
    QString notas;
    for (int i = 0; i < static_cast<int>(filas.size()); ++i) {
        const Comprobacion& f = *filas[static_cast<size_t>(i)];
        const std::string celdas[6] = {f.nombre,     f.programa,   f.referencia,
                                       f.diferencia, f.tolerancia, TextoResultado(f.resultado)};
        for (int c = 0; c < 6; ++c) {
            auto* item = new QTableWidgetItem(ATexto(celdas[c]));
            item->setBackground(ColorResultado(f.resultado));
            if (c >= 1 && c <= 4) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (!f.nota.empty()) item->setToolTip(ATexto(f.nota));
            tabla->setItem(i, c, item);
        }
        if (!f.nota.empty() && vistas.insert(f.nota).second)
            notas += QStringLiteral("• ") + ATexto(f.nota) + "\n";
    }
    tabla->verticalHeader()->setDefaultSectionSize(tabla->fontMetrics().height() + 6);
    tabla->resizeColumnsToContents();
    tabla->horizontalHeader()->setStretchLastSection(true);

    auto* capa = new QVBoxLayout(pagina);
    capa->addWidget(explicacion);
    capa->addWidget(tabla, 1);
    if (!notas.isEmpty()) {
        auto* lblNotas = new QLabel(QStringLiteral("Notas:\n") + notas.trimmed(), pagina);
        lblNotas->setObjectName(QStringLiteral("lblNotas"));
        lblNotas->setWordWrap(true);
        capa->addWidget(lblNotas);
    }
    return pagina;
}

}  // namespace

QColor ColorResultado(Resultado r) {
    switch (r) {
        case Resultado::Cumple:
            return QColor(0xC8, 0xEF, 0xC0);
        case Resultado::Explicada:
            return QColor(0xFF, 0xE2, 0x9E);
        case Resultado::NoCumple:
            return QColor(0xFF, 0xB0, 0xB0);
    }
    return {};
}

VentanaValidacion::VentanaValidacion(char separador, QWidget* padre)
    : QDialog(padre), tabla_(Validar(separador)) {
    setObjectName(QString::fromLatin1(kNombreVentana));
    setWindowTitle(QStringLiteral("Validación"));
    setModal(false);

    auto* cabecera = new QLabel(
        QStringLiteral(
            "<b>Validación del modelo</b>: cada comprobación compara un valor del programa con una "
            "referencia publicada o con una ley que el cálculo ha de cumplir, frente a una "
            "tolerancia declarada. Es la tabla de <tt>vanta validar</tt>.<br>") +
            Resumen(tabla_, separador),
        this);
    cabecera->setObjectName(QStringLiteral("lblResumen"));
    cabecera->setWordWrap(true);

    pestanas_ = new QTabWidget(this);
    pestanas_->setObjectName(QStringLiteral("tabGrupos"));
    for (const DescripcionGrupo& g : GruposValidacion(separador))
        pestanas_->addTab(Pestana(g, tabla_, pestanas_), ATexto(g.titulo));

    auto* botones = new QDialogButtonBox(this);
    botones->addButton(QStringLiteral("&Cerrar"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cmdCerrar"));
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(cabecera);
    capa->addWidget(pestanas_, 1);
    capa->addWidget(botones);
    CuidarVentana(this, QStringLiteral("validacion"), {980, 620}, false);
}

QTableWidget* VentanaValidacion::Tabla(GrupoValidacion g) const {
    return pestanas_->widget(static_cast<int>(g))
        ->findChild<QTableWidget*>(QStringLiteral("lstComprobaciones"));
}

VentanaValidacion& MostrarValidacion(QWidget* padre, char separador) {
    auto* ventana =
        padre->findChild<VentanaValidacion*>(QString::fromLatin1(kNombreVentana), Qt::FindDirectChildrenOnly);
    if (!ventana) ventana = new VentanaValidacion(separador, padre);
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
    return *ventana;
}

}  // namespace vanta
