#include "gui/cycle/VentanaCiclo.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/equilibrium/InformeDisociacion.h"
#include "gui/resources/Dibujos.h"
#include "gui/services/Controles.h"
#include "gui/services/EnlaceEntradas.h"
#include "gui/services/TextosVentanas.h"

namespace vanta {

namespace {

// The size of a cycle picture and of the panel shown until a cycle is chosen.
const QSize kTamanoCiclo(170, 120);
const QSize kTamanoSeleccionar(560, 330);
// The boxes of state 1 as designed, until the window loads the ambient; the
// boxes of the mean exponents until a calculation writes them.
constexpr const char* kTextoP1 = "100000";
constexpr const char* kTextoT1 = "298";
constexpr const char* kTextoPropPcte = "50";
constexpr const char* kTextoGammaMedioComp = "Gamma medio";
constexpr const char* kTextoGammaMedioExp = "Gamma medioExp";
// Room round a picture for the widest border of its shape.
constexpr int kMargenForma = 4;

// A control that keeps its room when hidden, so that the window does not
// jump as the frames and the boxes of the options come and go.
void GuardarSitio(QWidget* w) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
}

}  // namespace

// ---- Shapes -------------------------------------------------------------------------

Forma::Forma(QWidget* padre) : QWidget(padre) {}

void Forma::SetBorderColor(const QColor& color) {
    color_ = color;
    update();
}

void Forma::SetBorderWidth(int ancho) {
    ancho_ = ancho;
    update();
}

void Forma::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QPen pluma(color_, ancho_);
    pluma.setJoinStyle(Qt::MiterJoin);
    p.setPen(pluma);
    const qreal medio = ancho_ / 2.0;
    p.drawRect(QRectF(rect()).adjusted(medio, medio, -medio, -medio));
    // The picture that has the keyboard's focus, dotted inside its border.
    const QWidget* foco = QApplication::focusWidget();
    if (foco && isAncestorOf(foco)) {
        p.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
        const int dentro = ancho_ + 1;
        p.drawRect(rect().adjusted(dentro, dentro, -dentro - 1, -dentro - 1));
    }
}

// ---- The window ------------------------------------------------------------------------

VentanaCiclo::VentanaCiclo(Estado& e, Dialogos& dlg, Diagramas& diagramas, EnlacePrincipal& principal,
                           QWidget* padre)
    : QDialog(padre), e_(e), dlg_(dlg), diagramas_(diagramas), principal_(principal) {
    setObjectName(QStringLiteral("VentanaCiclo"));
    setWindowTitle(QStringLiteral("Ciclo"));
    setModal(true);
    CrearControles();
    Distribuir();

    connect(cmdCal_, &QPushButton::clicked, this, &VentanaCiclo::cmdCal_Click);
    // An option's Click runs when it becomes selected, by the user or by code.
    auto alElegir = [this](QRadioButton* opcion, void (VentanaCiclo::*accion)()) {
        connect(opcion, &QRadioButton::toggled, this, [this, accion](bool elegida) {
            if (elegida) (this->*accion)();
        });
    };
    alElegir(optGmedioCom_, &VentanaCiclo::optGmedioCom_Click);
    alElegir(optPolitropicaCom_, &VentanaCiclo::optPolitropicaCom_Click);
    alElegir(optGvariable_, &VentanaCiclo::optGvariable_Click);
    alElegir(optGmedioExp_, &VentanaCiclo::optGmedioExp_Click);
    alElegir(optPolitropica_, &VentanaCiclo::optPolitropica_Click);
    alElegir(optGvariableExp_, &VentanaCiclo::optGvariableExp_Click);
    alElegir(optProporcion_, &VentanaCiclo::optProporcion_Click);
    alElegir(optPmax_, &VentanaCiclo::optPmax_Click);
    connect(txtPropVcte_, &QLineEdit::textChanged, this, &VentanaCiclo::txtPropVcte_Change);
    for (QLabel* img : {imgOtto_, imgDiesel_, imgMixto_}) img->installEventFilter(this);
}

VentanaCiclo::~VentanaCiclo() = default;

void VentanaCiclo::CrearControles() {
    chkOcultar_ = NuevaCasilla(this, "chkOcultar", kOcultarAutomaticamente, true);
    chkDisociacion_ = NuevaCasilla(this, "chkDisociacion", equilibrio::kCasillaDisociacion, false);

    fraDTecnicos_ = NuevoMarco(this, "fraDTecnicos", "Datos técnicos del motor");
    txtCilindrada_ = NuevaCajaEntrada(fraDTecnicos_, "cilindrada");
    txtRc_ = NuevaCajaEntrada(fraDTecnicos_, "rc");
    Label1_ = NuevaEtiqueta(fraDTecnicos_, "Label1", "Cilindrada");
    Label2_ = NuevaEtiqueta(fraDTecnicos_, "Label2", "Rc");
    lblcc_ = NuevaEtiqueta(fraDTecnicos_, "lblcc", "c.c.");

    fraAire_ = NuevoMarco(this, "fraAire", "Propiedades del aire en el PMI (fin admisión)");
    txtP1_ = NuevaCaja(fraAire_, "txtP1", kTextoP1);
    txtP1_->setToolTip(QString::fromUtf8(kPresionAbsoluta));
    txtT1_ = NuevaCaja(fraAire_, "txtT1", kTextoT1);
    Label3_ = NuevaEtiqueta(fraAire_, "Label3", "Presión");
    Label5_ = NuevaEtiqueta(fraAire_, "Label5", "Temperatura");
    lblPa_ = NuevaEtiqueta(fraAire_, "lblPa", "Pa");
    lblK_ = NuevaEtiqueta(fraAire_, "lblK", "K");

    fraOpcion_ = NuevoMarco(this, "fraOpcion", "Ciclo Mixto");
    txtPropVcte_ = NuevaCajaEntrada(fraOpcion_, "proporcion-vcte");
    txtPMax_ = NuevaCajaEntrada(fraOpcion_, "pmax");
    txtPMax_->setToolTip(QString::fromUtf8(kPresionAbsoluta));
    // The share at constant pressure is the program's answer.
    txtPropPcte_ = NuevaCaja(fraOpcion_, "txtPropPcte", kTextoPropPcte, true);
    optProporcion_ = NuevaOpcion(fraOpcion_, "optProporcion", "Q proporciones");
    optPmax_ = NuevaOpcion(fraOpcion_, "optPmax", "P máxima");
    lblcVc_ = NuevaEtiqueta(fraOpcion_, "lblcVc", "Combustión a V = cte.");
    lblCienCvC_ = NuevaEtiqueta(fraOpcion_, "lblCienCvC", "%");
    lblcPc_ = NuevaEtiqueta(fraOpcion_, "lblcPc", "Combustión a P = cte.");
    lblCienCpC_ = NuevaEtiqueta(fraOpcion_, "lblCienCpC", "%");
    lblPmax_ = NuevaEtiqueta(fraOpcion_, "lblPmax", "Presión máxima");
    lblPaPmax_ = NuevaEtiqueta(fraOpcion_, "lblPaPmax", "Pa");

    fraExpansion_ = NuevoMarco(this, "fraExpansion", "Expansión");
    optGvariableExp_ = NuevaOpcion(fraExpansion_, "optGvariableExp", "Exponente adiabático variable");
    optGmedioExp_ = NuevaOpcion(fraExpansion_, "optGmedioExp", "Exponente adiabático medio");
    txtGMedioExp_ = NuevaCaja(fraExpansion_, "txtGMedioExp", kTextoGammaMedioExp, true);
    optPolitropica_ = NuevaOpcion(fraExpansion_, "optPolitropica", "Politrópica");
    txt_nExp_ = NuevaCajaEntrada(fraExpansion_, "n-expansion");
    lbl_nExp_ = NuevaEtiqueta(fraExpansion_, "lbl_nExp", "n =");

    fraCompresion_ = NuevoMarco(this, "fraCompresion", "Compresión");
    optGvariable_ = NuevaOpcion(fraCompresion_, "optGvariable", "Exponente adiabático variable");
    optGmedioCom_ = NuevaOpcion(fraCompresion_, "optGmedioCom", "Exponente adiabático medio");
    txtGammaMedioComp_ = NuevaCaja(fraCompresion_, "txtGammaMedioComp", kTextoGammaMedioComp, true);
    optPolitropicaCom_ = NuevaOpcion(fraCompresion_, "optPolitropicaCom", "Politrópica");
    txt_nCom_ = NuevaCajaEntrada(fraCompresion_, "n-compresion");
    lbl_n_comp_ = NuevaEtiqueta(fraCompresion_, "lbl_n_comp", "n =");

    cmdCal_ = NuevoBotonCalcular(this, "cmdCal");

    // The pictures, framed by their shapes; the two hidden samples of border.
    const qreal dpr = devicePixelRatioF();
    for (int i = 0; i < 3; ++i)
        for (int v = 0; v < 2; ++v)
            stock_[i][v] =
                DibujoCiclo(ATexto(NombreCiclo(static_cast<TipoCiclo>(i))), v == 1, kTamanoCiclo, dpr);
    auto imagen = [this](const char* nombreForma, const char* nombre, const char* ayuda, Forma*& forma,
                         int i) {
        forma = new Forma(this);
        forma->setObjectName(QString::fromLatin1(nombreForma));
        auto* img = new QLabel(forma);
        img->setObjectName(QString::fromLatin1(nombre));
        img->setToolTip(QString::fromUtf8(ayuda));
        img->setPixmap(stock_[i][0]);
        img->setCursor(Qt::PointingHandCursor);
        // Chosen from the keyboard too: Tab reaches it, Space chooses it.
        img->setFocusPolicy(Qt::StrongFocus);
        img->setAccessibleName(img->toolTip());
        img->setAccessibleDescription(QStringLiteral("Pulse Espacio para elegirlo"));
        auto* l = new QVBoxLayout(forma);
        l->setContentsMargins(kMargenForma, kMargenForma, kMargenForma, kMargenForma);
        l->addWidget(img);
        return img;
    };
    imgOtto_ = imagen("shpOtto", "imgOtto", "Ciclo Otto", shpOtto_, 0);
    imgDiesel_ = imagen("shpDiesel", "imgDiesel", "Ciclo Diesel", shpDiesel_, 1);
    imgMixto_ = imagen("shpMixto", "imgMixto", "Ciclo Mixto", shpMixto_, 2);
    shpActiva_ = new Forma(this);
    shpActiva_->setObjectName(QStringLiteral("shpActiva"));
    shpActiva_->SetBorderColor(QColor(0, 0, 255));
    shpActiva_->SetBorderWidth(3);
    shpActiva_->hide();
    shpInactiva_ = new Forma(this);
    shpInactiva_->setObjectName(QStringLiteral("shpInactiva"));
    shpInactiva_->SetBorderColor(QColor(160, 160, 160));
    shpInactiva_->SetBorderWidth(1);
    shpInactiva_->hide();
    for (Forma* f : {shpOtto_, shpDiesel_, shpMixto_}) {
        f->SetBorderColor(shpInactiva_->BorderColor());
        f->SetBorderWidth(shpInactiva_->BorderWidth());
    }
    imgSeleccinar_ = new QLabel(this);
    imgSeleccinar_->setObjectName(QStringLiteral("imgSeleccinar"));
    imgSeleccinar_->setAlignment(Qt::AlignCenter);
    imgSeleccinar_->setPixmap(DibujoElegirCiclo(kTamanoSeleccionar, dpr));
    OrdenarPrimeroImagenes();

    // What the window shows when it opens: the options of the defaults, the
    // pictures and the panel, the frames hidden.
    optGmedioCom_->setChecked(true);
    optGmedioExp_->setChecked(true);
    optPmax_->setChecked(true);
    for (QWidget* w :
         std::initializer_list<QWidget*>{txt_nCom_, lbl_n_comp_, txt_nExp_, lbl_nExp_, txtPropVcte_,
                                         txtPropPcte_, lblcVc_, lblcPc_, lblCienCvC_, lblCienCpC_})
        w->hide();
    for (QWidget* w : std::initializer_list<QWidget*>{fraDTecnicos_, fraAire_, fraOpcion_, fraCompresion_,
                                                      fraExpansion_, cmdCal_})
        w->hide();
}

void VentanaCiclo::Distribuir() {
    for (QWidget* w :
         std::initializer_list<QWidget*>{fraDTecnicos_,      fraAire_,     fraOpcion_,     fraCompresion_,
                                         fraExpansion_,      cmdCal_,      imgSeleccinar_, txt_nCom_,
                                         lbl_n_comp_,        txt_nExp_,    lbl_nExp_,      txtPropVcte_,
                                         txtPropPcte_,       lblcVc_,      lblcPc_,        lblCienCvC_,
                                         lblCienCpC_,        txtPMax_,     lblPmax_,       lblPaPmax_,
                                         txtGammaMedioComp_, txtGMedioExp_})
        GuardarSitio(w);

    auto* datos = new QGridLayout(fraDTecnicos_);
    datos->addWidget(Label1_, 0, 0);
    datos->addWidget(txtCilindrada_, 0, 1);
    datos->addWidget(lblcc_, 0, 2);
    datos->addWidget(Label2_, 1, 0);
    datos->addWidget(txtRc_, 1, 1);

    auto* aire = new QGridLayout(fraAire_);
    aire->addWidget(Label3_, 0, 0);
    aire->addWidget(txtP1_, 0, 1);
    aire->addWidget(lblPa_, 0, 2);
    aire->addWidget(Label5_, 1, 0);
    aire->addWidget(txtT1_, 1, 1);
    aire->addWidget(lblK_, 1, 2);

    auto* opcion = new QGridLayout(fraOpcion_);
    opcion->addWidget(optProporcion_, 0, 0);
    opcion->addWidget(optPmax_, 0, 1, 1, 2);
    opcion->addWidget(lblcVc_, 1, 0);
    opcion->addWidget(txtPropVcte_, 1, 1);
    opcion->addWidget(lblCienCvC_, 1, 2);
    opcion->addWidget(lblcPc_, 2, 0);
    opcion->addWidget(txtPropPcte_, 2, 1);
    opcion->addWidget(lblCienCpC_, 2, 2);
    opcion->addWidget(lblPmax_, 3, 0);
    opcion->addWidget(txtPMax_, 3, 1);
    opcion->addWidget(lblPaPmax_, 3, 2);

    // The boxes of the mean exponents hold their starting caption whole.
    for (QLineEdit* c : {txtGammaMedioComp_, txtGMedioExp_})
        c->setMinimumWidth(c->fontMetrics().horizontalAdvance(c->text()) + 16);

    auto modelos = [](QGroupBox* marco, QRadioButton* variable, QRadioButton* medio, QLineEdit* gamma,
                      QRadioButton* politropica, QLabel* n, QLineEdit* exponente) {
        auto* r = new QGridLayout(marco);
        r->addWidget(variable, 0, 0, 1, 3);
        r->addWidget(medio, 1, 0);
        r->addWidget(gamma, 1, 1, 1, 2);
        r->addWidget(politropica, 2, 0);
        n->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        r->addWidget(n, 2, 1);
        r->addWidget(exponente, 2, 2);
    };
    modelos(fraCompresion_, optGvariable_, optGmedioCom_, txtGammaMedioComp_, optPolitropicaCom_, lbl_n_comp_,
            txt_nCom_);
    modelos(fraExpansion_, optGvariableExp_, optGmedioExp_, txtGMedioExp_, optPolitropica_, lbl_nExp_,
            txt_nExp_);

    auto* imagenes = new QHBoxLayout;
    imagenes->addStretch(1);
    for (Forma* f : {shpOtto_, shpDiesel_, shpMixto_}) imagenes->addWidget(f);
    imagenes->addStretch(1);

    // The frames in two columns; the panel stands where they will appear.
    auto* zona = new QGridLayout;
    zona->addWidget(fraDTecnicos_, 0, 0);
    zona->addWidget(fraAire_, 1, 0);
    zona->addWidget(fraOpcion_, 2, 0);
    zona->addWidget(fraCompresion_, 0, 1);
    zona->addWidget(fraExpansion_, 1, 1);
    zona->addWidget(cmdCal_, 2, 1, Qt::AlignRight | Qt::AlignBottom);
    zona->addWidget(imgSeleccinar_, 0, 0, 3, 2);
    cmdCal_->setMinimumWidth(160);

    auto* columna = new QVBoxLayout(this);
    columna->addLayout(imagenes);
    columna->addLayout(zona, 1);
    columna->addWidget(chkDisociacion_);
    columna->addWidget(chkOcultar_);
}

bool VentanaCiclo::ConDisociacion() const {
    return chkDisociacion_->isChecked();
}

// ---- What the logic does to the window ---------------------------------------------------

void VentanaCiclo::MostrarCiclo(const VistaCiclo& v) {
    const Marcos& m = v.marcos;
    fraCompresion_->setVisible(m.compresion);
    fraExpansion_->setVisible(m.expansion);
    fraAire_->setVisible(m.aire);
    fraOpcion_->setVisible(m.opcion);
    fraDTecnicos_->setVisible(m.datos);
    imgSeleccinar_->setVisible(m.seleccionar);
    cmdCal_->setVisible(m.compresion);
    const CiclosResaltados& c = v.resaltados;
    const bool elegido[3] = {c.otto, c.diesel, c.mixto};
    QLabel* imagenes[3] = {imgOtto_, imgDiesel_, imgMixto_};
    Forma* formas[3] = {shpOtto_, shpDiesel_, shpMixto_};
    for (int i = 0; i < 3; ++i) {
        const Forma* muestra = elegido[i] ? shpActiva_ : shpInactiva_;
        formas[i]->SetBorderColor(muestra->BorderColor());
        formas[i]->SetBorderWidth(muestra->BorderWidth());
        imagenes[i]->setPixmap(stock_[i][elegido[i] ? 1 : 0]);
    }
}

// ---- Events ----------------------------------------------------------------------------------

void VentanaCiclo::showEvent(QShowEvent* evento) {
    // Loaded once, at its first opening; activated at every opening.
    if (!cargada_) {
        cargada_ = true;
        Entradas x;
        FormCiclo_Load(e_, x);
        txtP1_->setText(ATexto(*x.p1));
        txtT1_->setText(ATexto(*x.t1));
    }
    FormCiclo_Activate(e_);
    QDialog::showEvent(evento);
}

void VentanaCiclo::OrdenarPrimeroImagenes() {
    QList<QWidget*> cadena = {imgOtto_, imgDiesel_, imgMixto_};
    for (QWidget* w = nextInFocusChain(); w != this; w = w->nextInFocusChain())
        if ((w->focusPolicy() & Qt::TabFocus) && !cadena.contains(w)) cadena << w;
    for (qsizetype i = 0; i + 1 < cadena.size(); ++i) setTabOrder(cadena[i], cadena[i + 1]);
}

bool VentanaCiclo::eventFilter(QObject* objeto, QEvent* evento) {
    const bool imagen = objeto == imgOtto_ || objeto == imgDiesel_ || objeto == imgMixto_;
    if (imagen && (evento->type() == QEvent::FocusIn || evento->type() == QEvent::FocusOut))
        static_cast<QWidget*>(objeto)->parentWidget()->update();
    if (imagen && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Space || tecla == Qt::Key_Select) {
            if (objeto == imgOtto_) imgOtto_Click();
            if (objeto == imgDiesel_) imgDiesel_Click();
            if (objeto == imgMixto_) imgMixto_Click();
            return true;
        }
    }
    if (evento->type() == QEvent::MouseButtonRelease) {
        if (objeto == imgOtto_) imgOtto_Click();
        if (objeto == imgDiesel_) imgDiesel_Click();
        if (objeto == imgMixto_) imgMixto_Click();
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaCiclo::LeerEntradas(Entradas& x) const {
    LeerCajas(*this, EtapaEntrada::Ciclo, x);
    const DefinicionEntrada& ciclo = Entrada("ciclo");
    for (std::string_view valor : ciclo.valores)
        if (valor == e_.TipoCiclo) ciclo.elegir(x, valor);
    Entrada("compresion").elegir(x, ValorElegido(*this, Entrada("compresion")));
    Entrada("expansion").elegir(x, ValorElegido(*this, Entrada("expansion")));
    x.reparto = optProporcion_->isChecked() ? RepartoMixto::Proporcion : RepartoMixto::PresionMaxima;
}

void VentanaCiclo::cmdCal_Click() {
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const ResultadoCiclo r = CalcularCiclo(e_, msj, x, diagramas_, principal_.TipoCombustible());
    if (r.gammaMedioCompresion) txtGammaMedioComp_->setText(ATexto(*r.gammaMedioCompresion));
    if (r.gammaMedioExpansion) txtGMedioExp_->setText(ATexto(*r.gammaMedioExpansion));
    for (const Botones& b : r.botones) principal_.Ocultabotones(b);
    MostrarMensajes(dlg_, msj.lista);
    Enfocar(*this, msj.foco);
    principal_.CicloTerminado(r, x, msj);
    if (r.bien && chkOcultar_->isChecked()) hide();
}

void VentanaCiclo::imgOtto_Click() {
    MostrarCiclo(ElegirCiclo(e_, TipoCiclo::Otto));
}
void VentanaCiclo::imgDiesel_Click() {
    MostrarCiclo(ElegirCiclo(e_, TipoCiclo::Diesel));
}
void VentanaCiclo::imgMixto_Click() {
    MostrarCiclo(ElegirCiclo(e_, TipoCiclo::Mixto));
}

void VentanaCiclo::optGmedioCom_Click() {
    txtGammaMedioComp_->show();
    txt_nCom_->hide();
    lbl_n_comp_->hide();
    ElegirModeloCompresion(e_, Modelo::GammaMedio);
}

void VentanaCiclo::optPolitropicaCom_Click() {
    txtGammaMedioComp_->hide();
    txt_nCom_->show();
    lbl_n_comp_->show();
    ElegirModeloCompresion(e_, Modelo::Politropico);
}

void VentanaCiclo::optGvariable_Click() {
    txt_nCom_->hide();
    lbl_n_comp_->hide();
    txtGammaMedioComp_->hide();
    ElegirModeloCompresion(e_, Modelo::GammaVariable);
}

void VentanaCiclo::optGmedioExp_Click() {
    txtGMedioExp_->show();
    txt_nExp_->hide();
    lbl_nExp_->hide();
    ElegirModeloExpansion(e_, Modelo::GammaMedio);
}

void VentanaCiclo::optPolitropica_Click() {
    txtGMedioExp_->hide();
    txt_nExp_->show();
    lbl_nExp_->show();
    ElegirModeloExpansion(e_, Modelo::Politropico);
}

void VentanaCiclo::optGvariableExp_Click() {
    txt_nExp_->hide();
    lbl_nExp_->hide();
    txtGMedioExp_->hide();
    ElegirModeloExpansion(e_, Modelo::GammaVariable);
}

void VentanaCiclo::optProporcion_Click() {
    for (QWidget* w : std::initializer_list<QWidget*>{txtPMax_, lblPmax_, lblPaPmax_}) w->hide();
    for (QWidget* w : std::initializer_list<QWidget*>{lblcVc_, txtPropVcte_, lblCienCvC_, lblcPc_,
                                                      txtPropPcte_, lblCienCpC_})
        w->show();
    vanta::optProporcion_Click(e_);
}

void VentanaCiclo::optPmax_Click() {
    for (QWidget* w : std::initializer_list<QWidget*>{txtPMax_, lblPmax_, lblPaPmax_}) w->show();
    for (QWidget* w : std::initializer_list<QWidget*>{lblcVc_, txtPropVcte_, lblCienCvC_, lblcPc_,
                                                      txtPropPcte_, lblCienCpC_})
        w->hide();
    vanta::optPmax_Click(e_);
}

void VentanaCiclo::txtPropVcte_Change() {
    Entradas x;
    LeerEntradas(x);
    Mensajes msj;
    const std::string propPcte = vanta::txtPropVcte_Change(e_, msj, x);
    PonerCajas(*this, EtapaEntrada::Ciclo, x);
    txtPropPcte_->setText(ATexto(propPcte));
    MostrarMensajes(dlg_, msj.lista);
    Enfocar(*this, msj.foco);
}

}  // namespace vanta
