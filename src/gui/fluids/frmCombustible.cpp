#include "gui/fluids/frmCombustible.h"

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

// ---- The list as a box ----------------------------------------------------------

std::string CajaListaQt::Text() const {
    if (lista_->currentIndex() < 0) return std::string(kElijaCombustible);
    return lista_->currentText().toStdString();
}

void CajaListaQt::SetText(std::string_view texto) {
    lista_->setCurrentIndex(lista_->findText(ATexto(texto)));
}

void CajaListaQt::SetFocus() {
    lista_->setFocus();
}

// ---- The window -------------------------------------------------------------------

// The boxes and options as the logic sees them, and the controls struct that
// gathers them.
struct frmCombustible::Puertos {
    explicit Puertos(frmCombustible& f)
        : txtC(f.txtC_),
          txtN(f.txtN_),
          txtO(f.txtO_),
          txtS(f.txtS_),
          txtH(f.txtH_),
          txtMolC(f.txtMol_[0]),
          txtMolH(f.txtMol_[1]),
          txtMolN(f.txtMol_[2]),
          txtMolO(f.txtMol_[3]),
          txtMolS(f.txtMol_[4]),
          txtmmComb(f.txtmmComb_),
          txtEntPro(f.txtEntPro_),
          txtHcs(f.txtHcs_),
          txtHci(f.txtHci_),
          txtQvap(f.txtQvap_),
          optMasa(f.optMasa_),
          optFOR(f.optFOR_),
          chkOcultar(f.chkOcultar_),
          ventana(&f),
          controles{.cboTipCom = f.lista_,
                    .txtC = txtC,
                    .txtN = txtN,
                    .txtO = txtO,
                    .txtS = txtS,
                    .txtH = txtH,
                    .txtMolC = txtMolC,
                    .txtMolH = txtMolH,
                    .txtMolN = txtMolN,
                    .txtMolO = txtMolO,
                    .txtMolS = txtMolS,
                    .txtmmComb = txtmmComb,
                    .txtEntPro = txtEntPro,
                    .txtHcs = txtHcs,
                    .txtHci = txtHci,
                    .txtQvap = txtQvap,
                    .optMasa = optMasa,
                    .optFOR = optFOR,
                    .chkOcultar = chkOcultar,
                    .ventana = ventana,
                    .pct2 = f.pct2_,
                    .formulario = f} {}

    CajaTextoQt txtC, txtN, txtO, txtS, txtH, txtMolC, txtMolH, txtMolN, txtMolO, txtMolS, txtmmComb,
        txtEntPro, txtHcs, txtHci, txtQvap;
    InterruptorQt optMasa, optFOR, chkOcultar;
    VentanaQt ventana;
    ControlesCombustible controles;
};

frmCombustible::frmCombustible(Estado& e, Dialogos& dlg, Superficie& pct2, QWidget* padre)
    : QDialog(padre), e_(e), dlg_(dlg), pct2_(pct2), lista_(nullptr) {
    setObjectName(QStringLiteral("frmCombustible"));
    setWindowTitle(QStringLiteral("Combustible"));
    setModal(true);

    auto* Label2 = NuevaEtiqueta(this, "Label2", "Combustible a utilizar:");
    cboTipCom_ = new QComboBox(this);
    cboTipCom_->setObjectName(QStringLiteral("cboTipCom"));
    for (const CombustibleDeLista& c : kBibliotecaCombustibles) cboTipCom_->addItem(ATexto(c.nombre));
    cboTipCom_->addItem(ATexto(kOtrosCombustibles));
    cboTipCom_->setPlaceholderText(ATexto(kElijaCombustible));
    cboTipCom_->setCurrentIndex(-1);
    lista_ = CajaListaQt(cboTipCom_);

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
    for (int i = 0; i < 5; ++i) {
        cajasMasa[i] = NuevaCaja(fraOtrosCombustibles_, masa[i][0], "");
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
        txtMol_[i] = NuevaCaja(fraOtrosCombustibles_, formula[i][0], "");
        txtMol_[i]->setToolTip(QString::fromUtf8(kAyudaSeparador));
        auto* l = NuevaEtiqueta(fraOtrosCombustibles_, formula[i][1], formula[i][2]);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        rejillaOtros->addWidget(l, i + 1, 4);
        rejillaOtros->addWidget(txtMol_[i], i + 1, 5);
    }
    for (QLineEdit* c : {txtC_, txtN_, txtO_, txtS_}) c->setToolTip(QString::fromUtf8(kAyudaSeparador));
    // Hydrogen is always computed.
    txtH_->setReadOnly(true);
    txtmmComb_ = NuevaCaja(fraOtrosCombustibles_, "txtmmComb", kTextoInicialMasaMolecular.data());
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
    txtEntPro_ = fila(0, "txtEntPro", "Entalpía de formación del combustible", kTextoInicialEntalpia.data(),
                      "J/mol", false);
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

    puertos_ = std::make_unique<Puertos>(*this);

    connect(cboTipCom_, &QComboBox::activated, this, &frmCombustible::cboTipCom_Click);
    connect(cmdCal_, &QPushButton::clicked, this, &frmCombustible::cmdCal_Click);
    connect(optFOR_, &QRadioButton::clicked, this, &frmCombustible::optFOR_Click);
    connect(optMasa_, &QRadioButton::clicked, this, &frmCombustible::optMasa_Click);
}

frmCombustible::~frmCombustible() = default;

ControlesCombustible& frmCombustible::Controles() {
    return puertos_->controles;
}

void frmCombustible::cboTipCom_Click() {
    if (lista_.Text() == kElijaCombustible) return;
    vanta::cboTipCom_Click(e_, dlg_, Controles());
}

void frmCombustible::cmdCal_Click() {
    vanta::cmdCal_Click(e_, dlg_, Controles());
}
void frmCombustible::optFOR_Click() {
    vanta::optFOR_Click(Controles());
}
void frmCombustible::optMasa_Click() {
    vanta::optMasa_Click(Controles());
}

void frmCombustible::HabilitarEntradaPropia(bool habilitar) {
    cmdCal_->setEnabled(habilitar);
    optMasa_->setEnabled(habilitar);
    optFOR_->setEnabled(habilitar);
}

void frmCombustible::PonerTituloOtros(std::string_view titulo) {
    fraOtrosCombustibles_->setTitle(ATexto(titulo));
}

void frmCombustible::HabilitarMarcoOtros() {
    fraOtrosCombustibles_->setEnabled(true);
}

void frmCombustible::BloquearCajas(bool formula) {
    for (QLineEdit* c : {txtC_, txtN_, txtO_, txtS_, txtmmComb_}) Bloquear(c, formula, paletaCaja_);
    for (QLineEdit* c : txtMol_) Bloquear(c, !formula, paletaCaja_);
}

}  // namespace vanta
