#include "gui/comparison/VentanaExportar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"

namespace vanta {

namespace {
const FormatoFigura kFormatos[] = {FormatoFigura::PNG, FormatoFigura::SVG, FormatoFigura::PDF};
}

VentanaExportar::VentanaExportar(Hacer hacer, UnidadPresion presion, const std::vector<size_t>& elegidas,
                                 Dialogos& dlg, QWidget* padre)
    : QDialog(padre), hacer_(std::move(hacer)), dlg_(dlg) {
    setObjectName(QStringLiteral("VentanaExportar"));
    setWindowTitle(QStringLiteral("Exportar figuras"));

    lstFiguras_ = new QListWidget(this);
    lstFiguras_->setObjectName(QStringLiteral("lstFiguras"));
    const std::vector<Figura> figuras = hacer_(presion);
    for (size_t i = 0; i < figuras.size(); ++i) {
        auto* item = new QListWidgetItem(figuras[i].titulo, lstFiguras_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        const bool marcada = std::find(elegidas.begin(), elegidas.end(), i) != elegidas.end();
        item->setCheckState(marcada ? Qt::Checked : Qt::Unchecked);
    }
    cboFormato_ = new QComboBox(this);
    cboFormato_->setObjectName(QStringLiteral("cboFormato"));
    cboFormato_->addItems({QStringLiteral("PNG (imagen)"), QStringLiteral("SVG (vectorial)"),
                           QStringLiteral("PDF (una página por figura)")});
    cboPresion_ = new QComboBox(this);
    cboPresion_->setObjectName(QStringLiteral("cboPresion"));
    cboPresion_->addItems({QStringLiteral("Pa"), QStringLiteral("bar")});
    FijarPresion(presion);
    txtAncho_ = new QSpinBox(this);
    txtAlto_ = new QSpinBox(this);
    txtAncho_->setObjectName(QStringLiteral("txtAncho"));
    txtAlto_->setObjectName(QStringLiteral("txtAlto"));
    for (QSpinBox* s : {txtAncho_, txtAlto_}) {
        s->setRange(100, 10000);
        s->setSuffix(QStringLiteral(" px"));
    }
    FijarTamano(kTamanoFigura);

    auto* tamano = new QHBoxLayout;
    tamano->addWidget(txtAncho_);
    tamano->addWidget(new QLabel(QString::fromUtf8("×"), this));
    tamano->addWidget(txtAlto_);
    auto* formulario = new QFormLayout;
    formulario->addRow(QStringLiteral("Formato:"), cboFormato_);
    formulario->addRow(QString::fromUtf8("Tamaño:"), tamano);
    formulario->addRow(QStringLiteral("Presión en:"), cboPresion_);

    auto* cmdGuardar = NuevoBoton(this, "cmdGuardar", "Guardar…");
    auto* cmdCopiar = NuevoBoton(this, "cmdCopiar", "Copiar al portapapeles");
    auto* cmdCerrar = NuevoBoton(this, "cmdCerrar", "Cerrar");
    connect(cmdGuardar, &QPushButton::clicked, this, &VentanaExportar::cmdGuardar_Click);
    connect(cmdCopiar, &QPushButton::clicked, this, &VentanaExportar::cmdCopiar_Click);
    connect(cmdCerrar, &QPushButton::clicked, this, &QDialog::reject);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    for (QPushButton* b : {cmdGuardar, cmdCopiar, cmdCerrar}) botones->addWidget(b);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(new QLabel(QStringLiteral("Figuras:"), this));
    columna->addWidget(lstFiguras_, 1);
    columna->addLayout(formulario);
    columna->addLayout(botones);
    RecordarOpciones(this, QStringLiteral("exportar"), {cboFormato_, txtAncho_, txtAlto_});
}

std::vector<size_t> VentanaExportar::Elegidas() const {
    std::vector<size_t> e;
    for (int i = 0; i < lstFiguras_->count(); ++i)
        if (lstFiguras_->item(i)->checkState() == Qt::Checked) e.push_back(static_cast<size_t>(i));
    return e;
}

FormatoFigura VentanaExportar::Formato() const {
    return kFormatos[std::clamp(cboFormato_->currentIndex(), 0, 2)];
}

QSize VentanaExportar::Tamano() const {
    return {txtAncho_->value(), txtAlto_->value()};
}

void VentanaExportar::FijarFormato(FormatoFigura f) {
    cboFormato_->setCurrentIndex(
        static_cast<int>(std::find(std::begin(kFormatos), std::end(kFormatos), f) - std::begin(kFormatos)));
}

UnidadPresion VentanaExportar::Presion() const {
    return cboPresion_->currentIndex() == 1 ? UnidadPresion::bar : UnidadPresion::Pa;
}

void VentanaExportar::FijarPresion(UnidadPresion u) {
    cboPresion_->setCurrentIndex(u == UnidadPresion::bar ? 1 : 0);
}

void VentanaExportar::FijarTamano(QSize t) {
    txtAncho_->setValue(t.width());
    txtAlto_->setValue(t.height());
}

bool VentanaExportar::Guardar(const QString& ruta) {
    const std::vector<size_t> elegidas = Elegidas();
    const std::vector<Figura> todas = Figuras();
    std::vector<Figura> figuras;
    for (size_t i : elegidas) figuras.push_back(todas[i]);
    const FormatoFigura formato = Formato();
    const std::optional<std::string> fallo = formato == FormatoFigura::PDF || figuras.size() == 1
                                                 ? GuardarArchivoFiguras(figuras, formato, Tamano(), ruta)
                                                 : GuardarFiguras(figuras, formato, Tamano(), ruta);
    if (fallo) dlg_.MsgBox("No se ha podido escribir " + ruta.toStdString() + ": " + *fallo);
    return !fallo;
}

void VentanaExportar::cmdGuardar_Click() {
    const std::vector<size_t> elegidas = Elegidas();
    if (elegidas.empty()) {
        dlg_.MsgBox("Marque al menos una figura");
        return;
    }
    const FormatoFigura formato = Formato();
    const QString extension = ExtensionFigura(formato);
    QString ruta;
    // The dialogs open in the folder of the last figures saved.
    const QString clave = QStringLiteral("figuras");
    const QString carpeta = CarpetaRecordada(clave);
    if (formato == FormatoFigura::PDF || elegidas.size() == 1) {
        const QString nombre =
            elegidas.size() == 1 ? Figuras()[elegidas.front()].nombre : QStringLiteral("figuras");
        ruta = QFileDialog::getSaveFileName(
            this, QStringLiteral("Guardar figura"),
            QDir(carpeta).filePath(nombre + QLatin1Char('.') + extension),
            extension.toUpper() + QStringLiteral(" (*.") + extension + QLatin1Char(')'));
    } else {
        ruta = QFileDialog::getExistingDirectory(this, QStringLiteral("Carpeta de las figuras"), carpeta);
    }
    if (ruta.isEmpty()) return;
    RecordarCarpeta(clave, ruta);
    Guardar(ruta);
}

void VentanaExportar::cmdCopiar_Click() {
    const std::vector<size_t> elegidas = Elegidas();
    if (elegidas.empty()) {
        dlg_.MsgBox("Marque al menos una figura");
        return;
    }
    CopiarFigura(Figuras()[elegidas.front()], Tamano());
}

}  // namespace vanta
