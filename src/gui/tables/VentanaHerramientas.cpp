#include "gui/tables/VentanaHerramientas.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/properties/Especies.h"
#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"
#include "gui/tables/VentanaTablas.h"

namespace vanta {

// The boxes, options and species list as the tables read them.
EntradasHerramientas VentanaHerramientas::LeerEntradas() const {
    return {.incremento = txtAT_->text().toStdString(),
            .tInicial = txtTinicial_->text().toStdString(),
            .tFinal = txtTfinal_->text().toStdString(),
            .porMol = optMol_->isChecked(),
            .porKg = optKg_->isChecked(),
            .aire = optAire_->isChecked(),
            .humos = optHumos_->isChecked(),
            .elemento = cboElemento_->currentText().toStdString()};
}

void VentanaHerramientas::Decir(const Mensajes& msj) {
    MostrarMensajes(dlg_, msj.lista);
    QLineEdit* cajas[] = {txtAT_, txtTinicial_, txtTfinal_};
    const std::string_view nombres[] = {kCampoIncremento, kCampoTinicial, kCampoTfinal};
    for (size_t i = 0; i < 3; ++i)
        if (msj.foco.nombre == nombres[i]) cajas[i]->setFocus();
}

VentanaHerramientas::VentanaHerramientas(Estado& e, Dialogos& dlg, EnlacesHerramientas enlaces,
                                         QWidget* padre, DialogosArchivo* archivos)
    : QWidget(padre, Qt::Window),
      e_(e),
      dlg_(dlg),
      enlaces_(std::move(enlaces)),
      optMol_(NuevaOpcion(this, "optMol", "por mol")),
      optKg_(NuevaOpcion(this, "optKg", "Por kg")),
      txtAT_(NuevaCaja(this, "txtAT", kTextoIncremento)),
      txtTinicial_(NuevaCaja(this, "txtTinicial", kTextoTinicial)),
      txtTfinal_(NuevaCaja(this, "txtTfinal", kTextoTfinal)),
      Frame2_(NuevoMarco(this, "Frame2")),
      cboElemento_(new QComboBox(Frame2_)),
      cmdTab_(NuevoBoton(Frame2_, "cmdTab", "TABLAS")),
      Frame1_(NuevoMarco(this, "Frame1")),
      optAire_(NuevaOpcion(Frame1_, "optAire", "Aire")),
      optHumos_(NuevaOpcion(Frame1_, "optHumos", "Gases de combustión")),
      cmdComburente_(NuevoBoton(Frame1_, "cmdComburente", "Comburente")),
      cmdCombustible_(NuevoBoton(Frame1_, "cmdCombustible", "Combustible")),
      cmdCombustion_(NuevoBoton(Frame1_, "cmdCombustion", "Combustión")),
      cmdTablas_(NuevoBoton(Frame1_, "cmdTablas", "TABLAS")),
      ventanaTablas_(new VentanaTablas(this, archivos)) {
    setObjectName(QStringLiteral("VentanaHerramientas"));
    setWindowTitle(QString::fromUtf8(kTituloHerramientas));
    optMol_->setChecked(true);
    optAire_->setChecked(true);

    cboElemento_->setObjectName(QStringLiteral("cboElemento"));
    cboElemento_->setEditable(true);
    cboElemento_->setInsertPolicy(QComboBox::NoInsert);
    for (const char* especie : kNombresEspecies) cboElemento_->addItem(QString::fromLatin1(especie));
    cboElemento_->setCurrentIndex(-1);
    cboElemento_->setEditText(QString::fromUtf8(kTextoElegir));

    // The fluid is defined through these buttons only when the main window
    // shows them; TABLAS waits for a fluid.
    for (QPushButton* b : {cmdComburente_, cmdCombustible_, cmdCombustion_}) b->setVisible(false);
    PonerBotones({.comburente = true, .combustible = false, .combustion = false, .tablas = false});

    // The range and the units.
    auto* rango = new QGridLayout;
    int fila = 0;
    for (auto [texto, caja] :
         {std::pair{"Incremento de temperatura", txtAT_}, std::pair{"Temperatura inicial", txtTinicial_},
          std::pair{"Temperatura final", txtTfinal_}}) {
        rango->addWidget(NuevaEtiqueta(this, "", texto), fila, 0);
        rango->addWidget(caja, fila, 1);
        rango->addWidget(NuevaEtiqueta(this, "", "K"), fila, 2);
        ++fila;
    }
    auto* unidades = new QHBoxLayout;
    unidades->addWidget(NuevaEtiqueta(this, "", "Resultados:"));
    unidades->addWidget(optMol_);
    unidades->addWidget(optKg_);
    unidades->addStretch();

    auto* especie = new QHBoxLayout(Frame2_);
    especie->addWidget(NuevaEtiqueta(Frame2_, "", "Propiedades del"));
    especie->addWidget(cboElemento_, 1);
    especie->addWidget(cmdTab_);

    auto* mezcla = new QGridLayout(Frame1_);
    mezcla->addWidget(optAire_, 0, 0);
    mezcla->addWidget(optHumos_, 1, 0);
    mezcla->addWidget(cmdComburente_, 0, 1);
    mezcla->addWidget(cmdCombustible_, 1, 1);
    mezcla->addWidget(cmdCombustion_, 2, 1);
    mezcla->addWidget(cmdTablas_, 3, 0, 1, 2);

    auto* columna = new QVBoxLayout(this);
    columna->addLayout(unidades);
    columna->addLayout(rango);
    columna->addWidget(Frame2_);
    columna->addWidget(Frame1_);

    connect(cmdComburente_, &QPushButton::clicked, this, &VentanaHerramientas::cmdComburente_Click);
    connect(cmdCombustible_, &QPushButton::clicked, this, &VentanaHerramientas::cmdCombustible_Click);
    connect(cmdCombustion_, &QPushButton::clicked, this, &VentanaHerramientas::cmdCombustion_Click);
    connect(optAire_, &QRadioButton::clicked, this, &VentanaHerramientas::optAire_Click);
    connect(optHumos_, &QRadioButton::clicked, this, &VentanaHerramientas::optHumos_Click);
    connect(cmdTablas_, &QPushButton::clicked, this, &VentanaHerramientas::cmdTablas_Click);
    connect(cmdTab_, &QPushButton::clicked, this, &VentanaHerramientas::cmdTab_Click);
    NombrarControles(this);
}

VentanaHerramientas::~VentanaHerramientas() = default;

void VentanaHerramientas::MostrarParaDefinir() {
    show();
    raise();
    activateWindow();
    for (QPushButton* b : {cmdComburente_, cmdCombustible_, cmdCombustion_}) b->setVisible(true);
}

void VentanaHerramientas::MostrarCicloActual() {
    show();
    raise();
    activateWindow();
    MostrarBotonesTablas({.comburente = false, .combustible = false, .combustion = false, .tablas = true});
    e_.TablaAireDisponible = true;
    e_.TablaHumosDisponible = true;
}

void VentanaHerramientas::MostrarBotonesTablas(const BotonesVisibles& b) {
    cmdComburente_->setVisible(b.comburente);
    cmdCombustible_->setVisible(b.comburente);
    cmdCombustion_->setVisible(b.combustion);
    cmdTablas_->setEnabled(b.tablas);
}

void VentanaHerramientas::PonerBotones(const BotonesHabilitados& b) {
    cmdCombustible_->setEnabled(b.combustible);
    cmdCombustion_->setEnabled(b.combustion);
    cmdTablas_->setEnabled(b.tablas);
}

void VentanaHerramientas::cmdComburente_Click() {
    e_.TablaAireDisponible = true;
    e_.TablaHumosDisponible = false;
    PonerBotones(
        {.comburente = true, .combustible = true, .combustion = false, .tablas = optAire_->isChecked()});
    if (enlaces_.comburente) enlaces_.comburente();
}

void VentanaHerramientas::cmdCombustible_Click() {
    e_.TablaAireDisponible = true;
    e_.TablaHumosDisponible = false;
    PonerBotones(
        {.comburente = true, .combustible = true, .combustion = true, .tablas = optAire_->isChecked()});
    if (enlaces_.combustible) enlaces_.combustible();
}

void VentanaHerramientas::cmdCombustion_Click() {
    e_.TablaAireDisponible = true;
    e_.TablaHumosDisponible = true;
    PonerBotones({.comburente = true, .combustible = true, .combustion = true, .tablas = true});
    if (enlaces_.combustion) enlaces_.combustion();
}

// An option never disables TABLAS: it only enables it for a fluid defined.
void VentanaHerramientas::optAire_Click() {
    cmdTablas_->setEnabled(cmdTablas_->isEnabled() || e_.TablaAireDisponible);
}

void VentanaHerramientas::optHumos_Click() {
    cmdTablas_->setEnabled(cmdTablas_->isEnabled() || e_.TablaHumosDisponible);
}

template <class F>
void VentanaHerramientas::HacerTabla(F&& tabla) {
    // The viewer lets the events through while it grows: a second press in
    // the meantime waits for the first table to end.
    if (ocupada_) return;
    ocupada_ = true;
    tabla();
    ventanaTablas_->Vaciar();
    ocupada_ = false;
}

void VentanaHerramientas::cmdTablas_Click() {
    HacerTabla([this] {
        const std::string combustible = enlaces_.tipoCombustible ? enlaces_.tipoCombustible() : std::string();
        Mensajes msj;
        vanta::cmdTablas_Click(e_, msj, LeerEntradas(), miembros_, *ventanaTablas_, combustible);
        Decir(msj);
    });
}

void VentanaHerramientas::cmdTab_Click() {
    HacerTabla([this] {
        Mensajes msj;
        vanta::cmdTab_Click(e_, msj, LeerEntradas(), miembros_, *ventanaTablas_);
        Decir(msj);
    });
}

}  // namespace vanta
