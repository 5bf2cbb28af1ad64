#include "gui/mainwindow/VentanaPrincipal.h"

#include <QAction>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

#include "core/equilibrium/InformeDisociacion.h"
#include "core/reports/ArchivosInforme.h"
#include "core/services/Numeros.h"
#include "core/warnings/Avisos.h"
#include "core/warnings/CicloIdeal.h"
#include "gui/comparison/Comparar.h"
#include "gui/comparison/VentanaExportar.h"
#include "gui/cycle/VentanaCiclo.h"
#include "gui/database/GuardarBaseDatos.h"
#include "gui/database/VentanaBaseDatos.h"
#include "gui/database/VentanaElegirBaseDatos.h"
#include "gui/equilibrium/VentanaDisociacion.h"
#include "gui/fluids/VentanaAire.h"
#include "gui/fluids/VentanaCombustible.h"
#include "gui/fluids/VentanaCombustion.h"
#include "gui/mainwindow/VentanaAcercaDe.h"
#include "gui/mainwindow/VentanaBibliografia.h"
#include "gui/reports/VisoresInforme.h"
#include "gui/resources/Dibujos.h"
#include "gui/resources/Programa.h"
#include "gui/services/Controles.h"
#include "gui/studies/VentanaEstudio.h"
#include "gui/tables/VentanaHerramientas.h"
#include "gui/validation/PanelConfianza.h"
#include "gui/validation/VentanaValidacion.h"

namespace vanta {

namespace {

// The prompt of the speed box, emptied by a click.
constexpr const char* kTextoRpm = "rpm";
constexpr const char* kMensajeFaltanEtapas = "Antes debe especificar: comburente, combustible y combustión";
// The caption of the readout's process box while no state is under the pointer.
constexpr const char* kTextoTransformacion = "Transformación";

// The design of the window: a 1024 × 768 screen.
constexpr int kAnchoDiseno = 1024;
constexpr int kAltoDiseno = 768;
// Share of the screen's free area that the window takes at most.
constexpr double kFraccionPantalla = 0.92;

CeldaCifra* Celda(QWidget* padre, const QString& nombre) {
    return new CeldaCifra(padre, nombre);
}

// A rule of a table: a line of one pixel.
QFrame* Regla(QWidget* padre, const QString& nombre, bool vertical) {
    auto* r = new QFrame(padre);
    r->setObjectName(nombre);
    r->setFrameShape(vertical ? QFrame::VLine : QFrame::HLine);
    r->setFrameShadow(QFrame::Plain);
    r->setLineWidth(1);
    r->setStyleSheet(QStringLiteral("color: #808080;"));
    return r;
}

QAction* Entrada(QMenu* menu, const char* nombre, const char* texto) {
    QAction* a = menu->addAction(QString::fromUtf8(texto));
    a->setObjectName(QString::fromLatin1(nombre));
    return a;
}

QMenu* Menu(QWidget* padre, const char* nombre, const char* texto) {
    auto* m = new QMenu(QString::fromUtf8(texto), padre);
    m->setObjectName(QString::fromLatin1(nombre));
    m->menuAction()->setObjectName(QString::fromLatin1(nombre));
    return m;
}

// The largest window of the design's proportions that the screen holds.
QSize TamanoInicial(const QWidget* ventana) {
    const QScreen* pantalla = ventana->screen() ? ventana->screen() : QGuiApplication::primaryScreen();
    if (!pantalla) return {kAnchoDiseno, kAltoDiseno};
    const QRect libre = pantalla->availableGeometry();
    const double ancho = libre.width() * kFraccionPantalla, alto = libre.height() * kFraccionPantalla;
    const double escala = std::min(ancho / kAnchoDiseno, alto / kAltoDiseno);
    return {qRound(kAnchoDiseno * escala), qRound(kAltoDiseno * escala)};
}

}  // namespace

VentanaPrincipal::VentanaPrincipal(Estado& e, Dialogos* dlg, QSize tamano, QWidget* padre)
    : QMainWindow(padre),
      e_(e),
      dlgPropios_(dlg ? nullptr : std::make_unique<DialogosQt>(this)),
      dlg_(dlg ? dlg : dlgPropios_.get()),
      pct1_(new SuperficieQt(nullptr, kFondoBlanco)),
      pct2_(new SuperficieQt(nullptr, kFondoBlanco)),
      pct3_(new SuperficieQt(nullptr, kFondoBlanco)),
      pctPV_(new SuperficieQt(nullptr, kFondoBlanco)),
      pctTV_(new SuperficieQt(nullptr, kFondoBlanco)),
      pctTS_(new SuperficieQt(nullptr, kFondoGris)),
      pctHS_(new SuperficieQt(nullptr, kFondoGris)),
      diagramas_{*pctPV_, *pctTV_, *pctTS_, *pctHS_} {
    setObjectName(QStringLiteral("VentanaPrincipal"));
    setWindowTitle(NombrePrograma());
    setWindowIcon(IconoVanta());
    CrearControles();
    CrearMenus();

    ventanaAire_ = new VentanaAire(e_, *dlg_, *pct1_, this);
    ventanaCombustible_ = new VentanaCombustible(e_, *dlg_, *pct2_, this);
    ventanaCombustion_ = new VentanaCombustion(e_, *dlg_, *pct3_, this);
    connect(ventanaAire_, &VentanaAire::Calculado, this, [this](const Entradas& x) {
        Aplicar(EtapaEntrada::Aire, x);
        EtapaTerminada(Etapa::Comburente, true);
    });
    connect(ventanaCombustible_, &VentanaCombustible::Calculado, this, [this](const Entradas& x) {
        Aplicar(EtapaEntrada::Combustible, x);
        EtapaTerminada(Etapa::Combustible, true);
    });
    connect(ventanaCombustion_, &VentanaCombustion::Calculado, this, [this](const Entradas& x) {
        Aplicar(EtapaEntrada::Combustion, x);
        EtapaTerminada(Etapa::Combustion, true);
    });
    connect(ventanaAire_, &VentanaAire::NoCalculado, this,
            [this] { EtapaTerminada(Etapa::Comburente, false); });
    connect(ventanaCombustible_, &VentanaCombustible::NoCalculado, this,
            [this] { EtapaTerminada(Etapa::Combustible, false); });
    connect(ventanaCombustion_, &VentanaCombustion::NoCalculado, this,
            [this] { EtapaTerminada(Etapa::Combustion, false); });
    FuentePagina fuente{[this] { return calculo_; },
                        [this](CuadroImagen cuadro) { return Imagenes()[static_cast<size_t>(cuadro)]; }};
    visores_ = std::make_unique<VisoresInforme>(*dlg_, std::move(fuente), this);
    ventanaCiclo_ = new VentanaCiclo(e_, *dlg_, diagramas_, *this, this);

    resize(tamano.isEmpty() ? TamanoInicial(this) : tamano);
    PrepararEscritorio(tamano.isEmpty());
    Form_Load();
}

VentanaPrincipal::~VentanaPrincipal() = default;

// ---- Controls -------------------------------------------------------------------

void VentanaPrincipal::CrearControles() {
    central_ = new QWidget(this);
    central_->setObjectName(QStringLiteral("centralFase1"));
    setCentralWidget(central_);

    imgPresentacion_ = new QLabel(central_);
    imgPresentacion_->setObjectName(QStringLiteral("imgPresentacion"));
    imgPresentacion_->setAlignment(Qt::AlignCenter);

    const std::pair<SuperficieQt*, const char*> superficies[] = {
        {pct1_, "pct1"},   {pct2_, "pct2"},   {pct3_, "pct3"},  {pctPV_, "pctPV"},
        {pctTV_, "pctTV"}, {pctTS_, "pctTS"}, {pctHS_, "pctHS"}};
    for (auto [s, nombre] : superficies) {
        s->setParent(central_);
        s->setObjectName(QString::fromLatin1(nombre));
    }
    connect(pctPV_, &SuperficieQt::DblClick, this, &VentanaPrincipal::pctPV_DblClick);
    connect(pctTV_, &SuperficieQt::KeyPress, this, &VentanaPrincipal::pctTV_KeyPress);
    connect(pctPV_, &SuperficieQt::Click, this, &VentanaPrincipal::pctPV_Click);
    connect(pctTV_, &SuperficieQt::Click, this, &VentanaPrincipal::pctTV_Click);
    connect(pctTS_, &SuperficieQt::Click, this, &VentanaPrincipal::pctTS_Click);
    connect(pctHS_, &SuperficieQt::Click, this, &VentanaPrincipal::pctHS_Click);
    connect(pctPV_, &SuperficieQt::MouseMove, this, &VentanaPrincipal::pctPV_MouseMove);
    connect(pctTV_, &SuperficieQt::MouseMove, this, &VentanaPrincipal::pctTV_MouseMove);

    fraBotonera_ = NuevoMarco(central_, "fraBotonera");
    auto boton = [this](QWidget* padre, const char* nombre, const char* texto,
                        void (VentanaPrincipal::*accion)()) {
        auto* b = new QPushButton(QString::fromUtf8(texto), padre);
        b->setObjectName(QString::fromLatin1(nombre));
        connect(b, &QPushButton::clicked, this, accion);
        return b;
    };
    cmdElegirComburente_ = boton(fraBotonera_, "cmdElegirComburente", "1- Comburente",
                                 &VentanaPrincipal::cmdElegirComburente_Click);
    cmdCombustible_ =
        boton(fraBotonera_, "cmdCombustible", "2 - Combustible", &VentanaPrincipal::cmdCombustible_Click);
    cmdCarCombustion_ =
        boton(fraBotonera_, "cmdCarCombustion", "3- Combustión", &VentanaPrincipal::cmdCarCombustion_Click);
    cmdCarCiclo_ = boton(fraBotonera_, "cmdCarCiclo", "4- Ciclo", &VentanaPrincipal::cmdCarCiclo_Click);
    cmdCombustible_->setEnabled(false);
    cmdCarCombustion_->setEnabled(false);
    cmdCarCiclo_->setEnabled(false);

    cmdInforme_ = boton(central_, "cmdInforme", "Ver informe", &VentanaPrincipal::cmdInforme_Click);
    cmdEnvBaseDatos_ = boton(central_, "cmdEnvBaseDatos", "Guardar en la base de datos",
                             &VentanaPrincipal::cmdEnvBaseDatos_Click);
    cmdInforme_->hide();
    cmdEnvBaseDatos_->hide();

    chkVerHs_ = new QCheckBox(QStringLiteral("Ver diagrama h-s"), central_);
    chkVerHs_->setObjectName(QStringLiteral("chkVerHs"));
    // The program's Click of a check box also runs when its value is set by
    // code, and only on a change.
    connect(chkVerHs_, &QCheckBox::toggled, this, &VentanaPrincipal::chkVerHs_Click);

    CrearTablaPuntos();
    CrearTablaTransformaciones();
    CrearPotencia();
    CrearEstadoActual();
    panelConfianza_ = new PanelConfianza(central_);
    panelConfianza_->hide();
    lblIntentoFallido_ = new QLabel(central_);
    lblIntentoFallido_->setObjectName(QStringLiteral("lblIntentoFallido"));
    lblIntentoFallido_->setTextFormat(Qt::PlainText);
    lblIntentoFallido_->setWordWrap(true);
    lblIntentoFallido_->setStyleSheet(QStringLiteral(
        "QLabel { background: #FFF1B8; color: #5C3B00; border: 1px solid #C89B00; padding: 2px 6px; }"));
    lblIntentoFallido_->hide();
}

void VentanaPrincipal::CrearTablaPuntos() {
    fraPuntos_ = NuevoMarco(central_, "fraPuntos");
    const char* cabezas[5][2] = {{"lblP", "P (Pa)"},
                                 {"lblV", "V (c.c.)"},
                                 {"lblT", "T (K)"},
                                 {"lblH", "h (J/mol)"},
                                 {"lblS", "s (J/(mol·K))"}};
    // The cells keep the program's names: lbls1 … lbls4 in lower case, lblS5.
    const char* celdas[5] = {"lblP%1", "lblV%1", "lblT%1", "lblH%1", "lbls%1"};
    for (int c = 0; c < 5; ++c) {
        cabezaPuntos_[c] = NuevaEtiqueta(fraPuntos_, cabezas[c][0], cabezas[c][1]);
        for (int f = 0; f < 5; ++f) {
            QString nombre = QString::fromLatin1(celdas[c]).arg(f + 1);
            if (c == 4 && f == 4) nombre = QStringLiteral("lblS5");
            celdaPuntos_[c][f] = Celda(fraPuntos_, nombre);
        }
    }
    for (int f = 0; f < 5; ++f) {
        filaPuntos_[f] = NuevaEtiqueta(fraPuntos_, "", "");
        filaPuntos_[f]->setText(QString::number(f + 1));
        filaPuntos_[f]->setObjectName(QStringLiteral("lbl%1").arg(f + 1));
        filaPuntos_[f]->setAlignment(Qt::AlignCenter);
        lv_[f] = Regla(fraPuntos_, QStringLiteral("lv%1").arg(f + 1), true);
        lh_[f] = Regla(fraPuntos_, QStringLiteral("lh%1").arg(f + 1), false);
    }
}

void VentanaPrincipal::CrearTablaTransformaciones() {
    fraTransformaciones_ = NuevoMarco(central_, "fraTransformaciones");
    const char* filas[5][2] = {
        {"lbl12", "1-2"}, {"lbl23", "2-3"}, {"lbl34", "3-4"}, {"lbl45", "4-5"}, {"lblCiclo", "Ciclo"}};
    for (int i = 0; i < 5; ++i)
        filaTransformaciones_[i] = NuevaEtiqueta(fraTransformaciones_, filas[i][0], filas[i][1]);
    const char* cabezas[5][2] = {
        {"Label12", "Q"}, {"Label13", "W"}, {"Label14", "n"}, {"Label23", "gamma"}, {"Label15", "Rend."}};
    for (int i = 0; i < 5; ++i) {
        cabezaTransformaciones_[i] = NuevaEtiqueta(fraTransformaciones_, cabezas[i][0], cabezas[i][1]);
        cabezaTransformaciones_[i]->setAlignment(Qt::AlignCenter);
    }
    unidadQ_ = NuevaEtiqueta(fraTransformaciones_, "Label20", "(J)");
    unidadW_ = NuevaEtiqueta(fraTransformaciones_, "Label22", "(J)");
    unidadQ_->setAlignment(Qt::AlignCenter);
    unidadW_->setAlignment(Qt::AlignCenter);
    lblW12_ = Celda(fraTransformaciones_, QStringLiteral("lblW12"));
    lblG12_ = Celda(fraTransformaciones_, QStringLiteral("lblG12"));
    lblG2_ = Celda(fraTransformaciones_, QStringLiteral("lblG2"));
    lblQ23_ = Celda(fraTransformaciones_, QStringLiteral("lblQ23"));
    lblQ34_ = Celda(fraTransformaciones_, QStringLiteral("lblQ34"));
    lblW34_ = Celda(fraTransformaciones_, QStringLiteral("lblW34"));
    lblW45_ = Celda(fraTransformaciones_, QStringLiteral("lblW45"));
    lblG45_ = Celda(fraTransformaciones_, QStringLiteral("lblG45"));
    lblG5_ = Celda(fraTransformaciones_, QStringLiteral("lblG5"));
    lblQciclo_ = Celda(fraTransformaciones_, QStringLiteral("lblQciclo"));
    lblWciclo_ = Celda(fraTransformaciones_, QStringLiteral("lblWciclo"));
    lblRen_ = Celda(fraTransformaciones_, QStringLiteral("lblRen"));
    for (int i = 0; i < 5; ++i)
        lhT_[i] = Regla(fraTransformaciones_, QStringLiteral("lh%1").arg(i + 6), false);
    for (int i = 0; i < 4; ++i)
        lvT_[i] = Regla(fraTransformaciones_, QStringLiteral("lv%1").arg(i + 6), true);
}

void VentanaPrincipal::CrearPotencia() {
    fraPotencia_ = NuevoMarco(central_, "fraPotencia");
    Label30_ = NuevaEtiqueta(fraPotencia_, "Label30", "Potencia:");
    Label28_ = NuevaEtiqueta(fraPotencia_, "Label28", "Consumo:");
    Label29_ = NuevaEtiqueta(fraPotencia_, "Label29", "r.p.m.");
    Label33_ = NuevaEtiqueta(fraPotencia_, "Label33", "W");
    Label35_ = NuevaEtiqueta(fraPotencia_, "Label35", "CV");
    Label34_ = NuevaEtiqueta(fraPotencia_, "Label34", "c.c.");
    Label31_ = NuevaEtiqueta(fraPotencia_, "Label31", "g / MJ");
    Label32_ = NuevaEtiqueta(fraPotencia_, "Label32", "g / (kW·h)");
    // The speed is the one value typed here; the others are figures.
    txtRpm_ = NuevaCaja(fraPotencia_, "txtRpm", kTextoRpm, false);
    txtPotencia_ = NuevaCaja(fraPotencia_, "txtPotencia", "watios", true);
    txtPotenciaCV_ = NuevaCaja(fraPotencia_, "txtPotenciaCV", "CV", true);
    txtCilindrada_ = NuevaCaja(fraPotencia_, "txtCilindrada", "c.c.", true);
    txtConsumoMJ_ = NuevaCaja(fraPotencia_, "txtConsumoMJ", "g/MJ", true);
    txtConsumoKwh_ = NuevaCaja(fraPotencia_, "txtConsumoKwh", "g/kWh", true);
    for (QLineEdit* c :
         {txtRpm_, txtPotencia_, txtPotenciaCV_, txtCilindrada_, txtConsumoMJ_, txtConsumoKwh_})
        c->setAlignment(Qt::AlignRight);
    connect(txtRpm_, &QLineEdit::textChanged, this, &VentanaPrincipal::txtRpm_Change);
    txtRpm_->installEventFilter(this);
    txtCilindrada_->installEventFilter(this);
}

void VentanaPrincipal::CrearEstadoActual() {
    fraEstadoActual_ = NuevoMarco(central_, "fraEstadoActual");
    const char* nombres[5][4] = {{"p = ", "lblPmouseVal", "Pa", "lblPmouse"},
                                 {"V = ", "lblVmouseVal", "cc", "lblVmouse"},
                                 {"T = ", "lblTmouseVal", "K", "lblTmouse"},
                                 {"h = ", "lblhmouseVal", "J/mol", "lblhmouse"},
                                 {"s =", "lblSmouseVal", "J/(mol·K)", "lblSmouse"}};
    for (int i = 0; i < 5; ++i) {
        nombreEstado_[i] = NuevaEtiqueta(fraEstadoActual_, nombres[i][3], nombres[i][0]);
        valorEstado_[i] = Celda(fraEstadoActual_, QString::fromLatin1(nombres[i][1]));
        unidadEstado_[i] = NuevaEtiqueta(fraEstadoActual_, "", nombres[i][2]);
        unidadEstado_[i]->setObjectName(QString::fromLatin1(nombres[i][3]) + QStringLiteral("Unidad"));
    }
    txtTransformacion_ = NuevaCaja(fraEstadoActual_, "txtTransformacion", kTextoTransformacion, true);
    fraEstadoActual_->hide();
}

void VentanaPrincipal::CrearMenus() {
    QMenuBar* barra = menuBar();
    mnuArchivo_ = Menu(barra, "mnuArchivo", "&Archivo");
    mnuNuevo_ = Entrada(mnuArchivo_, "mnuNuevo", "&Nuevo ciclo");
    mnuAbrirBD_ = Entrada(mnuArchivo_, "mnuAbrirBD", "&Abrir  base de datos");
    mnuAbrirInforme_ = Entrada(mnuArchivo_, "mnuAbrirInforme", "Abrir &informe");
    mnuInforme_ = Entrada(mnuArchivo_, "mnuInforme", "&Ver informe");
    mnuBDatos_ = Entrada(mnuArchivo_, "mnuBDatos", "Guardar en la base de &datos");
    mnuGuardar_ = Menu(mnuArchivo_, "mnuGuardar", "&Guardar como");
    mnuArchivo_->addMenu(mnuGuardar_);
    mnuGuardarTexto_ = Entrada(mnuGuardar_, "mnuGuardarTexto", "&Texto");
    mnuGuardarHTML_ = Entrada(mnuGuardar_, "mnuGuardarHTML", "&HTML (Página Web)");
    mnuExportarDiagramas_ = Entrada(mnuArchivo_, "mnuExportarDiagramas", "E&xportar diagramas…");
    mnuArchivo_->addSeparator();
    mnuElegirBD_ = Entrada(mnuArchivo_, "mnuElegirBD", "&Base de datos…");
    barra->addMenu(mnuArchivo_);

    mnuVer_ = Menu(barra, "mnuVer", "&Ver");
    mnuVerTodo_ = Entrada(mnuVer_, "mnuVerTodo", "&Todos los gráficos");
    mnuVerCiclo_ = Menu(mnuVer_, "mnuVerCiclo", "&Ampliar diagrama");
    mnuVer_->addMenu(mnuVerCiclo_);
    mnuPV_ = Entrada(mnuVerCiclo_, "mnuPV", "&PV");
    mnuTV_ = Entrada(mnuVerCiclo_, "mnuTV", "&TV");
    mnuTS_ = Entrada(mnuVerCiclo_, "mnuTS", "T&S");
    mnuHS_ = Entrada(mnuVerCiclo_, "mnuHS", "&HS");
    for (QAction* a : {mnuVerTodo_, mnuPV_, mnuTV_, mnuTS_, mnuHS_}) a->setCheckable(true);
    mnuCalcular_ = Entrada(mnuVer_, "mnuCalcular", "Calcular &ciclo");
    mnuComparar_ = Entrada(mnuVer_, "mnuComparar", "C&omparar cálculos…");
    mnuDisociacion_ = Entrada(mnuVer_, "mnuDisociacion", "Combustión con &disociación…");
    mnuDisociacion_->setEnabled(false);
    barra->addMenu(mnuVer_);

    mnuHerramientas_ = Menu(barra, "mnuHerramientas", "&Herramientas");
    mnuTablasActual_ =
        Entrada(mnuHerramientas_, "mnuTablasActual", "Tablas del aire y gases del ciclo &actual");
    mnuTablas_ = Entrada(mnuHerramientas_, "mnuTablas", "&Tablas del aire y gases");
    mnuEstudio_ = Entrada(mnuHerramientas_, "mnuEstudio", "&Estudio paramétrico");
    connect(mnuEstudio_, &QAction::triggered, this, &VentanaPrincipal::mnuEstudio_Click);
    barra->addMenu(mnuHerramientas_);

    mnuAyuda_ = Menu(barra, "mnuAyuda", "Ay&uda");
    mnuAyuda2_ = Entrada(mnuAyuda_, "mnuAyuda2", "Ay&uda");
    QAction* mnuValidacion = Entrada(mnuAyuda_, "mnuValidacion", "&Validación");
    connect(mnuValidacion, &QAction::triggered, this,
            [this] { MostrarValidacion(this, e_.SeparadorDecimal); });
    mnuAcercaDe_ = Entrada(mnuAyuda_, "mnuAcercaDe", "&Acerca de");
    barra->addMenu(mnuAyuda_);

    mnuInforme_->setEnabled(false);
    mnuBDatos_->setEnabled(false);
    mnuGuardar_->menuAction()->setEnabled(false);
    mnuTablasActual_->setEnabled(false);

    const std::pair<QAction*, void (VentanaPrincipal::*)()> acciones[] = {
        {mnuNuevo_, &VentanaPrincipal::mnuNuevo_Click},
        {mnuAbrirBD_, &VentanaPrincipal::mnuAbrirBD_Click},
        {mnuAbrirInforme_, &VentanaPrincipal::mnuAbrirInforme_Click},
        {mnuInforme_, &VentanaPrincipal::mnuInforme_Click},
        {mnuBDatos_, &VentanaPrincipal::mnuBDatos_Click},
        {mnuElegirBD_, &VentanaPrincipal::mnuElegirBD_Click},
        {mnuGuardarTexto_, &VentanaPrincipal::mnuGuardarTexto_Click},
        {mnuGuardarHTML_, &VentanaPrincipal::mnuGuardarHTML_Click},
        {mnuVerTodo_, &VentanaPrincipal::mnuVerTodo_Click},
        {mnuPV_, &VentanaPrincipal::mnuPV_Click},
        {mnuTV_, &VentanaPrincipal::mnuTV_Click},
        {mnuTS_, &VentanaPrincipal::mnuTS_Click},
        {mnuHS_, &VentanaPrincipal::mnuHS_Click},
        {mnuCalcular_, &VentanaPrincipal::mnuCalcular_Click},
        {mnuTablasActual_, &VentanaPrincipal::mnuTablasActual_Click},
        {mnuTablas_, &VentanaPrincipal::mnuTablas_Click},
        {mnuAyuda2_, &VentanaPrincipal::mnuAyuda2_Click},
        {mnuAcercaDe_, &VentanaPrincipal::mnuAcercaDe_Click},
        {mnuExportarDiagramas_, &VentanaPrincipal::mnuExportarDiagramas_Click},
        {mnuComparar_, &VentanaPrincipal::mnuComparar_Click},
        {mnuDisociacion_, &VentanaPrincipal::mnuDisociacion_Click}};
    for (auto [accion, metodo] : acciones) connect(accion, &QAction::triggered, this, metodo);
}

// ---- Load and workflow ---------------------------------------------------------------

void VentanaPrincipal::Form_Load() {
    GuardarColoresDiagramas(e_);
    // Two twips of the design's unit, in this window's pixels.
    flujo_ = vanta::Form_Load({.W = width(), .H = height(), .dosTwips = 2.0 * logicalDpiX() / 1440.0});
    Mostrar();
    PresentacionInicial();
}

void VentanaPrincipal::Ocultabotones(const Botones& b) {
    vanta::Ocultabotones(flujo_, b);
    Mostrar();
}

void VentanaPrincipal::Aplicar(EtapaEntrada etapa, const Entradas& x) {
    for (const DefinicionEntrada& d : TablaEntradas()) {
        if (d.etapa != etapa) continue;
        if (d.tipo == TipoEntrada::Eleccion) {
            const std::vector<std::string> valor = d.leer(x);
            if (!valor.empty()) d.elegir(aplicadas_, valor.front());
            continue;
        }
        Entradas copia = x;
        for (int i = 0; i < d.Campos(); ++i) *d.texto(aplicadas_, i) = *d.texto(copia, i);
    }
    if (etapa == EtapaEntrada::Combustible) aplicadas_.formaCombustible = x.formaCombustible;
    if (etapa == EtapaEntrada::Combustion) aplicadas_.formaDosado = x.formaDosado;
    if (etapa == EtapaEntrada::Ciclo) {
        aplicadas_.compresion = x.compresion, aplicadas_.expansion = x.expansion;
        aplicadas_.reparto = x.reparto;
    }
}

void VentanaPrincipal::EtapaTerminada(Etapa etapa, bool calculada) {
    if (calculada)
        vanta::EtapaCalculada(flujo_, etapa);
    else
        vanta::EtapaNoCalculada(flujo_, etapa);
    // A new comburent or fuel leaves the gases' chart stale until the
    // combustion is calculated again.
    if (calculada && etapa != Etapa::Combustion) {
        pct3_->SetAutoRedraw(true);
        pct3_->Cls();
    }
    Mostrar();
}

// A band over the tables of results, as wide as they are together; over the
// readout when a diagram is enlarged and they are hidden.
void VentanaPrincipal::DistribuirIntentoFallido() {
    const Visibles& v = flujo_.visible;
    const bool ver = flujo_.intentoFallido && v.fraEstadoActual;
    lblIntentoFallido_->setVisible(ver);
    if (!ver) return;
    QRect resultados;
    if (v.fraPuntos) resultados = fraPuntos_->geometry();
    if (v.fraTransformaciones) resultados = resultados.united(fraTransformaciones_->geometry());
    if (resultados.isNull()) resultados = fraEstadoActual_->geometry();
    const int alto = lblIntentoFallido_->heightForWidth(resultados.width());
    lblIntentoFallido_->setGeometry(resultados.left(), std::max(0, resultados.top() - alto),
                                    resultados.width(), alto);
    lblIntentoFallido_->raise();
}

void VentanaPrincipal::VaciarLectura() {
    lectura_ = {};
    lectura_.txtTransformacion = kTextoTransformacion;
    MostrarLectura();
}

void VentanaPrincipal::CicloTerminado(const ResultadoCiclo& r, const Entradas& x, const Mensajes& msj) {
    vistaDibujada_ = flujo_.lugaresDe;
    VaciarLectura();
    // After a failure the readout follows the figures on screen, not the
    // state the failure left.
    estadoEnPantalla_.reset();
    if (!r.bien && calculo_) estadoEnPantalla_ = std::make_unique<Estado>(*calculo_->estado);
    lblIntentoFallido_->setText(r.bien ? QString() : ATexto(TextoIntentoFallido(msj.Textos())));
    if (r.bien) {
        Aplicar(EtapaEntrada::Ciclo, x);
        auto calculo = std::make_shared<ResultadoCalculo>();
        calculo->entradas = aplicadas_;
        calculo->entradas.rpm.reset();
        calculo->tipoCombustible = TipoCombustible();
        calculo->bien = true;
        calculo->estado = std::make_shared<const Estado>(e_);
        calculo->informe = r.informe;
        calculo->textos = r.textos;
        calculo->avisos = AvisosValidez(e_, calculo->tipoCombustible);
        calculo_ = std::move(calculo);
        disociacion_.reset();
        PonerInforme(r.informe);
        MostrarResultados(r.textos);
    }
    vanta::CalculoTerminado(flujo_, r.bien);
    Mostrar();
    if (!r.bien) return;
    // The strip tells how hot the cycle would be in equilibrium, where the
    // model's temperature is past dissociation.
    std::vector<Aviso> avisos = calculo_->avisos;
    if (equilibrio::AvisaDisociacion(avisos))
        equilibrio::CompletarAvisoDisociacion(avisos, Disociacion(), e_.SeparadorDecimal);
    panelConfianza_->Mostrar(avisos, DistanciaAlIdeal(e_), e_.SeparadorDecimal, NombreCicloIdeal(e_),
                             ExplicacionCicloIdeal(e_, e_.SeparadorDecimal));
    DistribuirConfianza();
    mnuDisociacion_->setEnabled(true);
    if (ventanaCiclo_->ConDisociacion() || (ventanaDisociacion_ && ventanaDisociacion_->isVisible()))
        mnuDisociacion_Click();
}

std::string VentanaPrincipal::TipoCombustible() const {
    return ventanaCombustible_->TipoCombustible();
}

void VentanaPrincipal::PonerInforme(const std::string& texto) {
    txtInformeF1_ = texto;
    visores_->PonerInformeTexto(texto);
}

void VentanaPrincipal::MostrarResultados(const TextosResultados& t) {
    // The figures shown close with this work; the power follows it until
    // another calculation ends well.
    wcicloEnPantalla_ = e_.Wciclo;
    for (int i = 0; i < 5; ++i) {
        celdaPuntos_[0][i]->PonerCifra(ATexto(t.lblP[i]));
        celdaPuntos_[1][i]->PonerCifra(ATexto(t.lblV[i]));
        celdaPuntos_[2][i]->PonerCifra(ATexto(t.lblT[i]));
        celdaPuntos_[3][i]->PonerCifra(ATexto(t.lblH[i]));
        celdaPuntos_[4][i]->PonerCifra(ATexto(t.lblS[i]));
    }
    lblW12_->PonerCifra(ATexto(t.lblW12));
    lblW34_->PonerCifra(ATexto(t.lblW34));
    lblW45_->PonerCifra(ATexto(t.lblW45));
    lblQ23_->PonerCifra(ATexto(t.lblQ23));
    lblQ34_->PonerCifra(ATexto(t.lblQ34));
    lblWciclo_->PonerCifra(ATexto(t.lblWciclo));
    lblQciclo_->PonerCifra(ATexto(t.lblQciclo));
    lblRen_->PonerCifra(ATexto(t.lblRen));
    lblG12_->PonerCifra(ATexto(t.lblG12));
    lblG2_->PonerCifra(ATexto(t.lblG2));
    lblG45_->PonerCifra(ATexto(t.lblG45));
    lblG5_->PonerCifra(ATexto(t.lblG5));
    txtConsumoMJ_->setText(ATexto(t.txtConsumoMJ));
    txtConsumoKwh_->setText(ATexto(t.txtConsumoKwh));
    txtCilindrada_->setText(ATexto(t.txtCilindrada));
}

void VentanaPrincipal::MostrarModal(QDialog& ventana) {
    if (mostrarModal_) {
        mostrarModal_(ventana);
        return;
    }
    ventana.exec();
}

// ---- Events ------------------------------------------------------------------------

void VentanaPrincipal::cmdElegirComburente_Click() {
    vanta::cmdElegirComburente_Click(flujo_);
    Mostrar();
    MostrarModal(*ventanaAire_);
}

void VentanaPrincipal::cmdCombustible_Click() {
    vanta::cmdCombustible_Click(flujo_);
    Mostrar();
    MostrarModal(*ventanaCombustible_);
}

void VentanaPrincipal::cmdCarCombustion_Click() {
    vanta::cmdCarCombustion_Click(flujo_);
    Mostrar();
    MostrarModal(*ventanaCombustion_);
}

void VentanaPrincipal::cmdCarCiclo_Click() {
    MostrarModal(*ventanaCiclo_);
}

// The report window comes with the reports.
void VentanaPrincipal::cmdInforme_Click() {
    visores_->VerInforme(txtInformeF1_);
}

VentanaBaseDatos& VentanaPrincipal::BaseDatos() {
    if (!ventanaBaseDatos_) {
        ventanaBaseDatos_ = std::make_unique<VentanaBaseDatos>(*dlg_, this);
        ventanaBaseDatos_->FijarComparar([this] {
            VentanaBaseDatos& b = *ventanaBaseDatos_;
            Comparar(&b, b.Almacen(), std::nullopt, b.IdActual(), e_.SeparadorDecimal, *dlg_);
        });
        ventanaBaseDatos_->FijarDireccion(direccionBaseDatos_);
    }
    return *ventanaBaseDatos_;
}

void VentanaPrincipal::FijarDireccionBaseDatos(const QString& direccion) {
    direccionBaseDatos_ = direccion;
    if (ventanaBaseDatos_) ventanaBaseDatos_->FijarDireccion(direccion);
}

void VentanaPrincipal::cmdEnvBaseDatos_Click() {
    // The figures of a failed attempt's predecessor are not saved as its own.
    if (!calculo_ || flujo_.intentoFallido) return;
    GuardarBaseDatos(*calculo_, *dlg_, visores_->rthInforme(), Imagenes(), BaseDatos());
}

void VentanaPrincipal::chkVerHs_Click() {
    vanta::chkVerHs_Click(flujo_, chkVerHs_->isChecked());
    Mostrar();
}

void VentanaPrincipal::pctPV_DblClick() {
    if (EtapaCicloAbierta(flujo_))
        MostrarModal(*ventanaCiclo_);
    else
        dlg_->MsgBox(kMensajeFaltanEtapas);
}

void VentanaPrincipal::pctTV_KeyPress(int) {
    if (EtapaCicloAbierta(flujo_)) MostrarModal(*ventanaCiclo_);
}

void VentanaPrincipal::txtCilindrada_Click() {
    MostrarModal(*ventanaCiclo_);
}

void VentanaPrincipal::txtRpm_Change() {
    Mensajes msj;
    const auto potencia = vanta::txtRpm_Change(e_, msj, wcicloEnPantalla_, txtRpm_->text().toStdString());
    MostrarMensajes(*dlg_, msj.lista);
    if (!potencia) return;
    txtPotencia_->setText(ATexto(potencia->potencia));
    txtPotenciaCV_->setText(ATexto(potencia->potenciaCV));
}

void VentanaPrincipal::txtRpm_Click() {
    if (txtRpm_->text() == QLatin1String(kTextoRpm)) txtRpm_->clear();
}

void VentanaPrincipal::pctPV_Click() {
    ClickDiagrama(flujo_, Diagrama::PV, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::pctTV_Click() {
    ClickDiagrama(flujo_, Diagrama::TV, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::pctTS_Click() {
    ClickDiagrama(flujo_, Diagrama::TS, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::pctHS_Click() {
    ClickDiagrama(flujo_, Diagrama::HS, CalcularCicloActual());
    Mostrar();
}

CalculoCiclo VentanaPrincipal::CalcularCicloActual() {
    return [this] {
        // The surfaces take their new places before the cycle is drawn on them.
        Mostrar();
        ventanaCiclo_->cmdCal_Click();
    };
}

// The readout of the state under the pointer; only while a cycle is on show
// (the button of the report is not hidden).
void VentanaPrincipal::pctPV_MouseMove(int, int, float x, float y) {
    Mensajes msj;
    vanta::pctPV_MouseMove(estadoEnPantalla_ ? *estadoEnPantalla_ : e_, msj, diagramas_,
                           CicloEnPantalla(flujo_), x, y, lectura_);
    MostrarMensajes(*dlg_, msj.lista);
    MostrarLectura();
}

void VentanaPrincipal::pctTV_MouseMove(int, int, float x, float y) {
    Mensajes msj;
    vanta::pctTV_MouseMove(estadoEnPantalla_ ? *estadoEnPantalla_ : e_, msj, diagramas_,
                           CicloEnPantalla(flujo_), x, y, lectura_);
    MostrarMensajes(*dlg_, msj.lista);
    MostrarLectura();
}

void VentanaPrincipal::MostrarLectura() {
    const std::string* valores[5] = {&lectura_.lblPmouseVal, &lectura_.lblVmouseVal, &lectura_.lblTmouseVal,
                                     &lectura_.lblhmouseVal, &lectura_.lblSmouseVal};
    for (int i = 0; i < 5; ++i) valorEstado_[i]->PonerCifra(ATexto(*valores[i]));
    // A name longer than the box shows its beginning, and whole as a tip.
    txtTransformacion_->setText(ATexto(lectura_.txtTransformacion));
    txtTransformacion_->setCursorPosition(0);
    txtTransformacion_->setToolTip(txtTransformacion_->text());
}

bool VentanaPrincipal::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonRelease) {
        if (objeto == txtRpm_) txtRpm_Click();
        if (objeto == txtCilindrada_) txtCilindrada_Click();
    }
    return QMainWindow::eventFilter(objeto, evento);
}

// ---- Menus ----------------------------------------------------------------------------

void VentanaPrincipal::mnuNuevo_Click() {
    vanta::mnuNuevo_Click(flujo_);
    Mostrar();
    MostrarModal(*ventanaAire_);
}

void VentanaPrincipal::mnuAbrirBD_Click() {
    BaseDatos().MostrarNoModal();
}
void VentanaPrincipal::mnuAbrirInforme_Click() {
    visores_->AbrirInforme();
}
void VentanaPrincipal::mnuInforme_Click() {
    cmdInforme_Click();
}
void VentanaPrincipal::mnuBDatos_Click() {
    cmdEnvBaseDatos_Click();
}
void VentanaPrincipal::mnuElegirBD_Click() {
    // Made anew each time, on the choice in use; kept by the program's
    // settings when accepted.
    auto* elegir = new VentanaElegirBaseDatos(*dlg_, direccionBaseDatos_, this);
    elegir->setAttribute(Qt::WA_DeleteOnClose);
    connect(elegir, &QDialog::accepted, this, [this, elegir] {
        RecordarDireccion(elegir->Direccion());
        FijarDireccionBaseDatos(elegir->Direccion());
    });
    MostrarModal(*elegir);
}
void VentanaPrincipal::mnuGuardarTexto_Click() {
    visores_->GuardarTexto(this);
}
void VentanaPrincipal::mnuGuardarHTML_Click() {
    visores_->GuardarPaginaWeb(this, kDialogoPaginaPrincipal);
}

void VentanaPrincipal::mnuVerTodo_Click() {
    vanta::mnuVerTodo_Click(flujo_);
    Mostrar();
}

void VentanaPrincipal::mnuPV_Click() {
    MenuDiagrama(flujo_, Diagrama::PV, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::mnuTV_Click() {
    MenuDiagrama(flujo_, Diagrama::TV, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::mnuTS_Click() {
    MenuDiagrama(flujo_, Diagrama::TS, CalcularCicloActual());
    Mostrar();
}
void VentanaPrincipal::mnuHS_Click() {
    MenuDiagrama(flujo_, Diagrama::HS, CalcularCicloActual());
    Mostrar();
}

void VentanaPrincipal::mnuCalcular_Click() {
    MostrarModal(*ventanaCiclo_);
}

VentanaHerramientas& VentanaPrincipal::Herramientas() {
    if (!ventanaHerramientas_) {
        EnlacesHerramientas enlaces{
            [this] { MostrarModal(*ventanaAire_); },
            [this] { MostrarModal(*ventanaCombustible_); },
            [this] {
                ventanaCombustion_->show();
                ventanaCombustion_->raise();
            },
            [this] { return TipoCombustible(); },
        };
        ventanaHerramientas_ = std::make_unique<VentanaHerramientas>(e_, *dlg_, std::move(enlaces), this);
    }
    return *ventanaHerramientas_;
}

void VentanaPrincipal::mnuTablasActual_Click() {
    Herramientas().MostrarCicloActual();
}

void VentanaPrincipal::mnuTablas_Click() {
    vanta::mnuTablas_Click(flujo_);
    Mostrar();
    Herramientas().MostrarParaDefinir();
}

Entradas VentanaPrincipal::EntradasDeVentanas() const {
    Entradas x;
    ventanaAire_->LeerEntradas(x);
    ventanaCombustible_->LeerEntradas(x);
    ventanaCombustion_->LeerEntradas(x);
    // Until a cycle is picked, the cycle's inputs are those the screens start
    // with.
    if (!e_.TipoCiclo.empty()) ventanaCiclo_->LeerEntradas(x);
    const std::string rpm = txtRpm_->text().toStdString();
    if (LeerNumero(rpm)) x.rpm = rpm;
    return x;
}

void VentanaPrincipal::mnuEstudio_Click() {
    if (!ventanaEstudio_) {
        auto base = [this] { return EntradasDeVentanas(); };
        ventanaEstudio_ =
            std::make_unique<VentanaEstudio>(std::move(base), *dlg_, e_.SeparadorDecimal, nullptr, this);
    }
    ventanaEstudio_->Mostrar();
}

void VentanaPrincipal::mnuAyuda2_Click() {
    AbrirAyuda();
}

void VentanaPrincipal::mnuAcercaDe_Click() {
    MostrarAcercaDe(this);
}

void VentanaPrincipal::AbrirAyuda() {
    // No test that the pages are there: the browser shows what it finds.
    QDesktopServices::openUrl(QUrl::fromLocalFile(RutaAyuda()));
}

// ---- Comparison and figures ------------------------------------------------------------

void VentanaPrincipal::mnuExportarDiagramas_Click() {
    if (!calculo_) return;
    const auto calculo = std::make_shared<const std::vector<CalculoComparado>>(
        1, CalculoDeResultado(kCalculoActual, *calculo_));
    if (!calculo->front().Hay()) {
        dlg_->MsgBox(calculo->front().mensaje);
        return;
    }
    // The enlarged diagram, or the four of the overview.
    std::vector<size_t> elegidas = {0, 1, 2, 3};
    if (flujo_.vista != Vista::General) elegidas = {static_cast<size_t>(flujo_.vista) - 1};
    VentanaExportar ventana(
        [calculo, separador = e_.SeparadorDecimal](UnidadPresion u) {
            std::vector<Figura> figuras = FigurasDiagramas(calculo, u, separador);
            for (Figura& g : FigurasGraficas(calculo->front())) figuras.push_back(std::move(g));
            return figuras;
        },
        UnidadPresion::Pa, elegidas, *dlg_, this);
    MostrarModal(ventana);
}

void VentanaPrincipal::mnuComparar_Click() {
    std::optional<CalculoComparado> actual;
    if (flujo_.habilitado.mnuInforme && calculo_) actual = CalculoDeResultado(kCalculoActual, *calculo_);
    VentanaBaseDatos& b = BaseDatos();
    Comparar(this, b.Cargar() ? b.Almacen() : nullptr, std::move(actual), -1, e_.SeparadorDecimal, *dlg_);
}

// ---- The cycle with dissociation ---------------------------------------------------------------

const equilibrio::CiclosConDisociacion& VentanaPrincipal::Disociacion() {
    if (!disociacion_)
        disociacion_ = std::make_shared<const equilibrio::CiclosConDisociacion>(
            equilibrio::CicloConDisociacion(*calculo_->estado));
    return *disociacion_;
}

void VentanaPrincipal::mnuDisociacion_Click() {
    if (!calculo_) return;
    auto calculo = std::make_shared<const CalculoComparado>(CalculoDeResultado(kCalculoActual, *calculo_));
    if (!calculo->Hay()) {
        dlg_->MsgBox(calculo->mensaje);
        return;
    }
    Disociacion();
    if (!ventanaDisociacion_) ventanaDisociacion_ = std::make_unique<VentanaDisociacion>(this);
    ventanaDisociacion_->Mostrar(calculo, disociacion_);
    ventanaDisociacion_->show();
    ventanaDisociacion_->raise();
}

}  // namespace vanta
