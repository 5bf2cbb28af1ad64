#include "gui/fluids/VentanaCombustible.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "gui/services/Controles.h"
#include "gui/services/EnlaceEntradas.h"
#include "gui/services/Escritorio.h"
#include "gui/services/SuperficieQt.h"
#include "gui/services/TextosVentanas.h"

namespace vanta {

namespace {

constexpr const char* kAyudaSeparador =
    "Se puede utilizar como separador decimal indistintamente \".\" o \",\" ";
constexpr const char* kAyudaEntalpia =
    "No poner separadores de miles- utilizar como separador decimal indistintamente \".\" o \",\" ";

// Locks a box, or opens it, with the background that tells which.
void Bloquear(QLineEdit* caja, bool bloqueada, const QPalette& normal) {
    caja->setReadOnly(bloqueada);
    QPalette p = normal;
    if (bloqueada) p.setColor(QPalette::Base, ColorQt(kColorCajaBloqueada));
    caja->setPalette(p);
}

}  // namespace

// ---- The window -------------------------------------------------------------------

VentanaCombustible::VentanaCombustible(Estado& e, Dialogos& dlg, Superficie& pct2, QWidget* padre)
    : QDialog(padre), e_(e), dlg_(dlg), pct2_(pct2) {
    setObjectName(QStringLiteral("VentanaCombustible"));
    setWindowTitle(QStringLiteral("Combustible"));
    setModal(true);

    auto* Label2 = NuevaEtiqueta(this, "Label2", "Combustible a utilizar:");
    cboTipCom_ = new QComboBox(this);
    cboTipCom_->setObjectName(QStringLiteral("cboTipCom"));
    for (const CombustibleDeLista& c : kBibliotecaCombustibles) cboTipCom_->addItem(ATexto(c.nombre));
    cboTipCom_->addItem(ATexto(kOtrosCombustibles));
    cboTipCom_->setPlaceholderText(ATexto(kElijaCombustible));
    cboTipCom_->setCurrentIndex(-1);

    fraOtrosCombustibles_ = NuevoMarco(this, "fraOtrosCombustibles", kOtrosCombustibles.data());
    optMasa_ = NuevaOpcion(fraOtrosCombustibles_, "optMasa", "Proporción en masa");
    optFOR_ = NuevaOpcion(fraOtrosCombustibles_, "optFOR", "Fórmula real o equivalente");

    // The mass composition (hydrogen is the remainder) and the formula.
    const char* masa[5][3] = {{"txtC", "lblC", "Carbono (C)"},
                              {"txtH", "lblH", "Hidrógeno (H)"},
                              {"txtN", "lblN", "Nitrógeno (N)"},
                              {"txtO", "lblO", "Oxígeno (O)"},
                              {"txtS", "lblS", "Azufre (S)"}};
    QLineEdit* cajasMasa[5];
    auto* rejillaOtros = new QGridLayout(fraOtrosCombustibles_);
    rejillaOtros->addWidget(optMasa_, 0, 0, 1, 3);
    rejillaOtros->addWidget(optFOR_, 0, 4, 1, 2);
    // The mass boxes of the input in its order C, N, O, S; hydrogen's is the
    // program's answer.
    const int campoMasa[5] = {0, -1, 1, 2, 3};
    for (int i = 0; i < 5; ++i) {
        cajasMasa[i] = campoMasa[i] < 0 ? NuevaCaja(fraOtrosCombustibles_, masa[i][0], "")
                                        : NuevaCajaEntrada(fraOtrosCombustibles_, "masa", campoMasa[i]);
        rejillaOtros->addWidget(NuevaEtiqueta(fraOtrosCombustibles_, masa[i][1], masa[i][2]), i + 1, 0);
        rejillaOtros->addWidget(cajasMasa[i], i + 1, 1);
        auto* unidad = NuevaEtiqueta(fraOtrosCombustibles_, "", "%");
        unidad->setObjectName(QString::fromLatin1(masa[i][1]) + QStringLiteral("Unidad"));
        rejillaOtros->addWidget(unidad, i + 1, 2);
    }
    txtC_ = cajasMasa[0];
    txtH_ = cajasMasa[1];
    txtN_ = cajasMasa[2];
    txtO_ = cajasMasa[3];
    txtS_ = cajasMasa[4];
    const char* formula[5][3] = {{"txtMolC", "lblMolC", "C"},
                                 {"txtMolH", "lblMolH", "H"},
                                 {"txtMolN", "lblMolN", "N"},
                                 {"txtMolO", "lblMolO", "O"},
                                 {"txtMolS", "lblMolS", "S"}};
    rejillaOtros->setColumnMinimumWidth(3, 24);
    for (int i = 0; i < 5; ++i) {
        txtMol_[i] = NuevaCajaEntrada(fraOtrosCombustibles_, "formula", i);
        txtMol_[i]->setToolTip(QString::fromUtf8(kAyudaSeparador));
        auto* l = NuevaEtiqueta(fraOtrosCombustibles_, formula[i][1], formula[i][2]);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        rejillaOtros->addWidget(l, i + 1, 4);
        rejillaOtros->addWidget(txtMol_[i], i + 1, 5);
    }
    for (QLineEdit* c : {txtC_, txtN_, txtO_, txtS_}) c->setToolTip(QString::fromUtf8(kAyudaSeparador));
    // Hydrogen is always computed.
    txtH_->setReadOnly(true);
    txtmmComb_ = NuevaCajaEntrada(fraOtrosCombustibles_, "masa-molecular");
    paletaCaja_ = txtmmComb_->palette();
    rejillaOtros->addWidget(
        NuevaEtiqueta(fraOtrosCombustibles_, "lblmmComb", "Masa molecular del combustible"), 6, 0, 1, 4);
    rejillaOtros->addWidget(txtmmComb_, 6, 4, 1, 2);
    rejillaOtros->addWidget(NuevaEtiqueta(fraOtrosCombustibles_, "lblmmCombUnidad", "kg/mol"), 6, 6);

    // The enthalpy of formation, and the heating values found.
    auto* rejillaValores = new QGridLayout;
    auto fila = [&](int n, const char* caja, const char* etiqueta, const char* texto, const char* unidad,
                    bool soloLectura) {
        QLineEdit* c = NuevaCaja(this, caja, texto, soloLectura);
        const QString nombre = QStringLiteral("lbl") + QString::fromLatin1(caja + 3);
        auto* l = NuevaEtiqueta(this, "", etiqueta);
        l->setObjectName(nombre);
        auto* u = NuevaEtiqueta(this, "", unidad);
        u->setObjectName(nombre + QStringLiteral("Unidad"));
        rejillaValores->addWidget(l, n, 0);
        rejillaValores->addWidget(c, n, 1);
        rejillaValores->addWidget(u, n, 2);
        return c;
    };
    txtEntPro_ = fila(0, "txtEntPro", "Entalpía de formación del combustible",
                      std::string(Entrada("entalpia-formacion").porDefecto).c_str(), "J/mol", false);
    txtEntPro_->setToolTip(QString::fromUtf8(kAyudaEntalpia));
    txtHcs_ = fila(1, "txtHcs", "Poder calorífico superior", "", "J/kg", true);
    txtHci_ = fila(2, "txtHci", "Poder calorífico inferior", "", "J/kg", true);
    txtQvap_ = fila(3, "txtQvap", "Calor de vaporización del agua formada", "", "J/kg", true);

    chkOcultar_ = NuevaCasilla(this, "chkOcultar", kOcultarAutomaticamente, true);
    cmdCal_ = NuevoBotonCalcular(this, "cmdCal");

    auto* arriba = new QHBoxLayout;
    arriba->addWidget(Label2);
    arriba->addWidget(cboTipCom_, 1);
    auto* abajo = new QHBoxLayout;
    abajo->addWidget(chkOcultar_);
    abajo->addStretch(1);
    abajo->addWidget(cmdCal_);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(arriba);
    columna->addWidget(fraOtrosCombustibles_);
    columna->addLayout(rejillaValores);
    columna->addLayout(abajo);

    connect(cboTipCom_, &QComboBox::activated, this, &VentanaCombustible::cboTipCom_Click);
    connect(cmdCal_, &QPushButton::clicked, this, &VentanaCombustible::cmdCal_Click);
    connect(optFOR_, &QRadioButton::clicked, this, &VentanaCombustible::optFOR_Click);
    connect(optMasa_, &QRadioButton::clicked, this, &VentanaCombustible::optMasa_Click);
    NombrarControles(this);
}

VentanaCombustible::~VentanaCombustible() = default;

std::string VentanaCombustible::TipoCombustible() const {
    if (cboTipCom_->currentIndex() < 0) return std::string(kElijaCombustible);
    return cboTipCom_->currentText().toStdString();
}

void VentanaCombustible::LeerEntradas(Entradas& x) const {
    LeerCajas(*this, EtapaEntrada::Combustible, x);
    const std::string lista = TipoCombustible();
    if (BuscarCombustible(lista)) {
        x.combustible = lista;
        x.formaCombustible = FormaCombustible::Lista;
    } else if (lista == kOtrosCombustibles) {
        x.formaCombustible = vista_.opcion.value_or(FormaCombustible::Masa);
    }
}

void VentanaCombustible::Mostrar(const Entradas& x) {
    PonerCajas(*this, EtapaEntrada::Combustible, x);
    txtH_->setText(ATexto(salidas_.cienH));
    txtHcs_->setText(ATexto(salidas_.hcs));
    txtHci_->setText(ATexto(salidas_.hci));
    txtQvap_->setText(ATexto(salidas_.calorVap));
    for (QWidget* w : std::initializer_list<QWidget*>{cmdCal_, optMasa_, optFOR_})
        w->setEnabled(vista_.entradaPropia);
    fraOtrosCombustibles_->setTitle(ATexto(vista_.tituloOtros));
    if (vista_.marcoOtros) fraOtrosCombustibles_->setEnabled(true);
    if (vista_.opcion) {
        const bool formula = *vista_.opcion == FormaCombustible::Formula;
        (formula ? optFOR_ : optMasa_)->setChecked(true);
        for (QLineEdit* c : {txtC_, txtN_, txtO_, txtS_, txtmmComb_}) Bloquear(c, formula, paletaCaja_);
        for (QLineEdit* c : txtMol_) Bloquear(c, !formula, paletaCaja_);
    }
}

void VentanaCombustible::Terminar(const Mensajes& msj, const Entradas& x, bool ocultar, bool definido,
                                  bool fallido) {
    Mostrar(x);
    MostrarMensajes(dlg_, msj.lista);
    Enfocar(*this, msj.Enfocado());
    if (definido) {
        Entradas aplicadas = x;
        LeerEntradas(aplicadas);
        emit Calculado(aplicadas);
    }
    if (fallido) emit NoCalculado();
    if (ocultar && !fallido && chkOcultar_->isChecked()) hide();
}

void VentanaCombustible::cboTipCom_Click() {
    const std::string lista = TipoCombustible();
    if (lista == kElijaCombustible) return;
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const bool calculado = ElegirEntradaLista(e_, msj, lista, x, vista_, salidas_, pct2_);
    const bool definido = calculado && !e_.ErrorCalculo;
    Terminar(msj, x, calculado, definido, msj.Rechaza() || (calculado && !definido));
}

void VentanaCombustible::cmdCal_Click() {
    const std::string lista = TipoCombustible();
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const bool ocultar = CalcularCombustiblePropio(e_, msj, lista, x, vista_, salidas_, pct2_);
    // CALCULAR that defines no fuel (none of one's own chosen, a box refused)
    // leaves the window open.
    const bool definido = ocultar && lista == kOtrosCombustibles && !e_.ErrorCalculo;
    Terminar(msj, x, ocultar, definido, !definido);
}

void VentanaCombustible::optFOR_Click() {
    Entradas x;
    LeerEntradas(x);
    ElegirFormaPropia(vista_, FormaCombustible::Formula);
    Mostrar(x);
}

void VentanaCombustible::optMasa_Click() {
    Entradas x;
    LeerEntradas(x);
    ElegirFormaPropia(vista_, FormaCombustible::Masa);
    Mostrar(x);
}

}  // namespace vanta
