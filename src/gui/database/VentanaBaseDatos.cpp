#include "gui/database/VentanaBaseDatos.h"

#include <QClipboard>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "gui/database/ControlImagen.h"
#include "gui/database/GuardarBaseDatos.h"
#include "gui/database/VentanaAmpliador.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

const char* const kCaptionVerInforme = "Ver informe";
const char* const kCaptionVerResumen = "Ver resumen";
const char* const kCaptionNavegador = "   Cambiar de registro";
const char* const kCaptionActualizar = "Actualizar";

// The window as designed, and the room that its frame takes on the screen
// when the window manager has not yet told it.
const QSize kTamanoDiseno(1100, 780);
const QMargins kMarcoSupuesto(4, 30, 4, 4);

// The report box in the report view and under the mouse, in parts of the
// form's size.
constexpr double kInformeArriba = 0.035, kInformeAlto = 0.72, kInformeAncho = 1.0;
constexpr double kInformeAltoRaton = 0.7, kInformeAnchoRaton = 0.98;

QString T(std::string_view s) {
    return ATexto(s);
}

QLabel* Rotulo(const QString& texto, QWidget* padre,
               Qt::Alignment alineacion = Qt::AlignLeft | Qt::AlignVCenter) {
    auto* l = new QLabel(texto, padre);
    l->setTextFormat(Qt::PlainText);
    l->setAlignment(alineacion);
    return l;
}

QLabel* Rotulo(const char* texto, QWidget* padre,
               Qt::Alignment alineacion = Qt::AlignLeft | Qt::AlignVCenter) {
    return Rotulo(QString::fromUtf8(texto), padre, alineacion);
}

}  // namespace

VentanaBaseDatos::VentanaBaseDatos(Dialogos& dlg, QWidget* padre)
    : QDialog(padre), dlg_(dlg), mostrarModal_([](QDialog& d) { d.exec(); }) {
    setObjectName(QStringLiteral("VentanaBaseDatos"));
    setWindowTitle(QStringLiteral("Base de datos"));
    setModal(false);
    pedirClave_ = [this](const QString& pregunta) -> std::optional<QString> {
        bool aceptada = false;
        const QString clave =
            QInputDialog::getText(this, windowTitle(), pregunta, QLineEdit::Password, QString(), &aceptada);
        if (!aceptada) return std::nullopt;
        return clave;
    };
    CrearControles();
    const QScreen* pantalla = padre && padre->screen() ? padre->screen() : QGuiApplication::primaryScreen();
    if (pantalla)
        AjustarAPantalla(pantalla->availableGeometry());
    else
        resize(kTamanoDiseno);
    ampliador_ = new VentanaAmpliador(this);
    CuidarVentana(this, QStringLiteral("baseDatos"), size(), false);
}

void VentanaBaseDatos::AjustarAPantalla(const QRect& libre) {
    const QWindow* ventana = windowHandle();
    const QMargins marco =
        ventana && !ventana->frameMargins().isNull() ? ventana->frameMargins() : kMarcoSupuesto;
    const QSize cabe = libre.size().shrunkBy(marco);
    resize(kTamanoDiseno.boundedTo(cabe));
    // Wholly inside the free area, as near as can be to where it stood.
    QRect sitio = frameGeometry().marginsAdded(frameGeometry() == geometry() ? marco : QMargins());
    sitio.moveLeft(
        std::clamp(sitio.left(), libre.left(), std::max(libre.left(), libre.right() - sitio.width() + 1)));
    sitio.moveTop(
        std::clamp(sitio.top(), libre.top(), std::max(libre.top(), libre.bottom() - sitio.height() + 1)));
    move(sitio.topLeft());
}

VentanaBaseDatos::~VentanaBaseDatos() = default;

// ---- Controls ------------------------------------------------------------------

QGridLayout* VentanaBaseDatos::Filas(QWidget* marco, std::initializer_list<Fila> filas) const {
    auto* g = new QGridLayout;
    int f = 0;
    for (const Fila& fila : filas) {
        g->addWidget(Rotulo(fila.rotulo, marco), f, 0);
        g->addWidget(Control(fila.control), f, 1);
        g->addWidget(Rotulo(fila.unidad, marco), f, 2);
        ++f;
    }
    g->setColumnStretch(1, 1);
    return g;
}

QWidget* VentanaBaseDatos::Control(std::string_view nombre) const {
    for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i)
        if (bd::kColumnasTexto[i].control == nombre) return controles_[i];
    qFatal("no hay control %s", std::string(nombre).c_str());
}

void VentanaBaseDatos::CrearControles() {
    // One box or label per text column, named as its control: boxes (txt…)
    // and labels (lbl…) alike show the stored text and are not edited here.
    for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i) {
        const std::string_view nombre = bd::kColumnasTexto[i].control;
        QWidget* w;
        if (i == bd::kColumnaInforme) {
            txtInforme_ = new QPlainTextEdit(this);
            txtInforme_->setReadOnly(true);
            txtInforme_->setLineWrapMode(QPlainTextEdit::NoWrap);
            QFont fijo(QStringLiteral("DejaVu Sans Mono"));
            fijo.setStyleHint(QFont::Monospace);
            txtInforme_->setFont(fijo);
            txtInforme_->hide();
            txtInforme_->viewport()->setMouseTracking(true);
            txtInforme_->viewport()->installEventFilter(this);
            w = txtInforme_;
        } else if (nombre.substr(0, 3) == "txt") {
            auto* caja = new QLineEdit(this);
            caja->setReadOnly(true);
            caja->setAlignment(Qt::AlignRight);
            w = caja;
        } else {
            auto* etiqueta = Rotulo(QString(), this, Qt::AlignRight | Qt::AlignVCenter);
            etiqueta->setFrameStyle(QFrame::Panel | QFrame::Sunken);
            etiqueta->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
            etiqueta->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000000.00")));
            w = etiqueta;
        }
        w->setObjectName(T(nombre));
        controles_[i] = w;
    }
    for (const char* izquierda : {"txtGuardarComo", "txtTipoCombustible"})
        static_cast<QLineEdit*>(Control(izquierda))->setAlignment(Qt::AlignLeft);
    Control("txtHCIhumos")->setToolTip(QStringLiteral("Poder calorífico inferior"));

    for (size_t i = 0; i < bd::kColumnasImagen.size(); ++i) {
        auto* img = new ControlImagen(this);
        img->setObjectName(T(bd::kColumnasImagen[i].control));
        img->setMinimumSize(100, 70);
        connect(img, &ControlImagen::Click, this, [this, img] { Imagen_Click(img); });
        imagenes_[i] = img;
    }

    fraAire_ = CrearAire();
    fraCombustible_ = CrearCombustible();
    fraCombustion_ = CrearCombustion();
    fraPuntos_ = CrearPuntos();
    fraTransformaciones_ = CrearTransformaciones();

    // The summary: fluid on the left, cycle on the right, the pictures under
    // both. The report box lies over this area when it shows.
    auto* resumen = new QWidget;
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(fraAire_);
    izquierda->addWidget(fraCombustible_);
    izquierda->addWidget(fraCombustion_);
    izquierda->addStretch();
    auto* derecha = new QVBoxLayout;
    derecha->addWidget(fraPuntos_);
    derecha->addWidget(fraTransformaciones_);
    derecha->addStretch();
    auto* arriba = new QHBoxLayout;
    arriba->addLayout(izquierda, 2);
    arriba->addLayout(derecha, 3);
    // Pictures in the order of the main window: the three charts, then p-V,
    // T-V, T-s and h-s.
    auto* fotos = new QHBoxLayout;
    for (const char* nombre :
         {"ImgAire", "imgCombustible", "imgCombustion", "imgDPV", "imgDTV", "imgDTS", "imgDhs"})
        fotos->addWidget(findChild<ControlImagen*>(QString::fromLatin1(nombre)));
    auto* capa = new QVBoxLayout(resumen);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->addLayout(arriba);
    capa->addLayout(fotos, 1);

    // Record and buttons, in view in both modes.
    cmdCerrar_ = new QPushButton(QStringLiteral("Cerrar"), this);
    cmdCerrar_->setObjectName(QStringLiteral("cmdCerrar"));
    cmdVer_ = new QPushButton(QString::fromUtf8(kCaptionVerInforme), this);
    cmdVer_->setObjectName(QStringLiteral("cmdVer"));
    cmdBorrarRegistro_ = new QPushButton(QStringLiteral("Borrar registro"), this);
    cmdBorrarRegistro_->setObjectName(QStringLiteral("cmdBorrarRegistro"));
    cmdComparar_ = new QPushButton(QString::fromUtf8("Comparar…"), this);
    cmdComparar_->setObjectName(QStringLiteral("cmdComparar"));
    connect(cmdComparar_, &QPushButton::clicked, this, [this] {
        if (comparar_) comparar_();
    });
    cmdActualizar_ = new QPushButton(QString::fromUtf8(kCaptionActualizar), this);
    cmdActualizar_->setObjectName(QStringLiteral("cmdActualizar"));
    cmdActualizar_->setShortcut(QKeySequence(Qt::Key_F5));
    connect(cmdActualizar_, &QPushButton::clicked, this, &VentanaBaseDatos::Actualizar);
    for (QPushButton* b : {cmdCerrar_, cmdVer_, cmdBorrarRegistro_, cmdComparar_, cmdActualizar_})
        b->setAutoDefault(false);
    connect(cmdCerrar_, &QPushButton::clicked, this, &VentanaBaseDatos::cmdCerrar_Click);
    connect(cmdVer_, &QPushButton::clicked, this, &VentanaBaseDatos::cmdVer_Click);
    connect(cmdBorrarRegistro_, &QPushButton::clicked, this, &VentanaBaseDatos::cmdBorrarRegistro_Click);

    auto* nombre = new QHBoxLayout;
    auto* lblGuardoNombre = Rotulo("Se guardo con el nombre:", this);
    lblGuardoNombre->setObjectName(QStringLiteral("lblGuardoNombre"));
    nombre->addWidget(lblGuardoNombre);
    nombre->addWidget(Control("txtGuardarComo"), 1);
    auto* botones = new QHBoxLayout;
    botones->addWidget(CrearNavegador(), 1);
    botones->addSpacing(24);
    botones->addWidget(cmdVer_);
    botones->addWidget(cmdBorrarRegistro_);
    botones->addWidget(cmdComparar_);
    botones->addWidget(cmdActualizar_);
    botones->addWidget(cmdCerrar_);

    // The summary scrolls when the screen is smaller than the design.
    auto* desplazable = new QScrollArea(this);
    desplazable->setObjectName(QStringLiteral("desplazableResumen"));
    desplazable->setFrameShape(QFrame::NoFrame);
    desplazable->setWidgetResizable(true);
    desplazable->setWidget(resumen);
    desplazable->setMouseTracking(true);
    desplazable->viewport()->setMouseTracking(true);

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(desplazable, 1);
    todo->addLayout(nombre);
    todo->addLayout(botones);

    setMouseTracking(true);
    resumen->setMouseTracking(true);
    txtInforme_->raise();
}

QGroupBox* VentanaBaseDatos::CrearAire() {
    auto* fra = new QGroupBox(QStringLiteral("Aire atmosférico"), this);
    fra->setObjectName(QStringLiteral("fraAire"));
    fra->setLayout(Filas(fra, {{"Humedad relativa:", "txtW", "%"},
                               {"Presión ambiente:", "txtPamb", "Pa"},
                               {"Temperatura ambiente", "txtTamb", "K"},
                               {"Presión de saturación:", "txtPsat", "Pa"}}));
    return fra;
}

QGroupBox* VentanaBaseDatos::CrearCombustible() {
    auto* fra = new QGroupBox(QStringLiteral("Combustible"), this);
    fra->setObjectName(QStringLiteral("fraCombustible"));
    auto* g = new QGridLayout(fra);
    g->addWidget(Control("txtTipoCombustible"), 0, 0, 1, 5);
    const char* const atomos[] = {"C", "H", "O", "N", "S"};
    for (int c = 0; c < 5; ++c) {
        auto* l = Rotulo(atomos[c], fra, Qt::AlignCenter);
        l->setObjectName(QStringLiteral("lbl%1").arg(QLatin1String(atomos[c])));
        g->addWidget(l, 1, c);
        g->addWidget(Control("txtMol" + std::string(atomos[c])), 2, c);
        g->addWidget(Control("txtCien" + std::string(atomos[c])), 4, c);
    }
    g->addWidget(Rotulo("Proporciones en masa (%)", fra), 3, 0, 1, 5);

    g->addLayout(Filas(fra, {{"Poder calorífico superior", "txtHCS", "J / kg"},
                             {"Poder calorífico inferior", "txtHCI", "J / kg"},
                             {"Calor de vaporización", "txtQVap", "J / kg"}}),
                 5, 0, 1, 5);
    return fra;
}

QGroupBox* VentanaBaseDatos::CrearCombustion() {
    auto* fra = new QGroupBox(QStringLiteral("Combustión"), this);
    fra->setObjectName(QStringLiteral("fraCombustion"));
    fra->setLayout(Filas(fra, {{"Fr", "txtFr", ""},
                               {"Lambda", "txtLambda", ""},
                               {"Fe", "txtFe", "kg combustible /kg aire"},
                               {"HCI  (humos)", "txtHCIhumos", "J /kg"}}));
    return fra;
}

QGroupBox* VentanaBaseDatos::CrearPuntos() {
    auto* fra = new QGroupBox(this);
    fra->setObjectName(QStringLiteral("fraPuntos"));
    auto* g = new QGridLayout(fra);
    const char* const cabezas[] = {"P (Pa)", "V (c.c.)", "T (K)", "h (J/mol)", "s (J/(mol·K))"};
    const char* const columnas[5][5] = {{"lblP1", "lblP2", "lblP3", "lblP4", "lblP5"},
                                        {"lblV1", "lblV2", "lblV3", "lblV4", "lblV5"},
                                        {"lblT1", "lblT2", "lblT3", "lblT4", "lblT5"},
                                        {"lblH1", "lblH2", "lblH3", "lblH4", "lblH5"},
                                        {"lbls1", "lbls2", "lbls3", "lbls4", "lblS5"}};
    for (int c = 0; c < 5; ++c) {
        g->addWidget(Rotulo(cabezas[c], fra, Qt::AlignCenter), 0, c + 1);
        for (int f = 0; f < 5; ++f) g->addWidget(Control(columnas[c][f]), f + 1, c + 1);
    }
    for (int f = 0; f < 5; ++f) g->addWidget(Rotulo(QString::number(f + 1), fra, Qt::AlignCenter), f + 1, 0);
    return fra;
}

QGroupBox* VentanaBaseDatos::CrearTransformaciones() {
    auto* fra = new QGroupBox(this);
    fra->setObjectName(QStringLiteral("fraTransformaciones"));
    auto* g = new QGridLayout(fra);
    // Column heads over their units: W (J), Q (J), gamma, Rend. n.
    const char* const cabezas[][2] = {{"W", "(J)"}, {"Q", "(J)"}, {"gamma", ""}, {"Rend.", "n"}};
    for (int c = 0; c < 4; ++c) {
        g->addWidget(Rotulo(cabezas[c][0], fra, Qt::AlignCenter), 0, c + 1);
        g->addWidget(Rotulo(cabezas[c][1], fra, Qt::AlignCenter), 1, c + 1);
    }
    const char* const filas[] = {"1-2", "2-3", "3-4", "4-5", "Ciclo"};
    for (int f = 0; f < 5; ++f) g->addWidget(Rotulo(filas[f], fra, Qt::AlignCenter), f + 2, 0);
    // The exponents at the start and at the end of compression and of
    // expansion, one over the other in their rows.
    auto par = [&](const char* a, const char* b) {
        auto* v = new QVBoxLayout;
        v->setSpacing(1);
        v->addWidget(Control(a));
        v->addWidget(Control(b));
        return v;
    };
    g->addWidget(Control("lblW12"), 2, 1);
    g->addLayout(par("lblG12", "lblG2"), 2, 3);
    g->addWidget(Control("lblQ23"), 3, 2);
    g->addWidget(Control("lblW34"), 4, 1);
    g->addWidget(Control("lblQ34"), 4, 2);
    g->addWidget(Control("lblW45"), 5, 1);
    g->addLayout(par("lblG45", "lblG5"), 5, 3);
    g->addWidget(Control("lblWciclo"), 6, 1);
    g->addWidget(Control("lblQciclo"), 6, 2);
    g->addWidget(Control("lblRen"), 6, 4);
    return fra;
}

// The record navigator: first, previous, the caption, next, last.
QWidget* VentanaBaseDatos::CrearNavegador() {
    auto* datBD = new QFrame(this);
    datBD->setObjectName(QStringLiteral("datBD"));
    datBD->setFrameStyle(QFrame::Panel | QFrame::Raised);
    auto* h = new QHBoxLayout(datBD);
    h->setContentsMargins(2, 2, 2, 2);
    h->setSpacing(0);
    auto boton = [&](QToolButton*& b, const char* nombre, const QString& texto,
                     void (VentanaBaseDatos::*mover)()) {
        b = new QToolButton(datBD);
        b->setObjectName(QString::fromLatin1(nombre));
        b->setText(texto);
        b->setAutoRaise(false);
        connect(b, &QToolButton::clicked, this, mover);
    };
    boton(cmdPrimero_, "cmdPrimero", QStringLiteral("|◀"), &VentanaBaseDatos::MoveFirst);
    boton(cmdAnterior_, "cmdAnterior", QStringLiteral("◀"), &VentanaBaseDatos::MovePrevious);
    boton(cmdSiguiente_, "cmdSiguiente", QStringLiteral("▶"), &VentanaBaseDatos::MoveNext);
    boton(cmdUltimo_, "cmdUltimo", QStringLiteral("▶|"), &VentanaBaseDatos::MoveLast);
    auto* caption = Rotulo(kCaptionNavegador, datBD);
    caption->setObjectName(QStringLiteral("lblCambiarRegistro"));
    h->addWidget(cmdPrimero_);
    h->addWidget(cmdAnterior_);
    h->addWidget(caption, 1);
    h->addWidget(cmdSiguiente_);
    h->addWidget(cmdUltimo_);
    return datBD;
}

// ---- The file and the records ----------------------------------------------------

bool VentanaBaseDatos::Cargar() {
    if (almacen_) return true;
    const bd::LecturaDireccion direccion = ResolverDireccion(direccion_);
    if (!direccion.direccion) {
        dlg_.MsgBox(bd::MsgNoSeAbre(direccion_.toStdString(), direccion.error));
        return false;
    }
    // The file name is resolved once: a later change of folder does not move it.
    if (direccion_.isEmpty()) direccion_ = QString::fromStdString(direccion.direccion->ruta);
    auto almacen = std::make_unique<AlmacenResultados>(*direccion.direccion, clave_);
    almacen->FijarEspera(espera_);
    while (!almacen->Abrir()) {
        // A server that wants a password not given, or refuses the one given:
        // asked until it takes one or the question is cancelled.
        const bool dicha = !clave_.isEmpty();
        if (!almacen->PideClave() || dicha) dlg_.MsgBox(almacen->Error());
        clave_.clear();
        if (!almacen->PideClave()) return false;
        const auto clave =
            pedirClave_(T(bd::kPromptClave) + T(direccion.direccion->texto) + QLatin1Char(':'));
        if (!clave) {
            if (!dicha) dlg_.MsgBox(almacen->Error());
            return false;
        }
        clave_ = *clave;
        almacen = std::make_unique<AlmacenResultados>(*direccion.direccion, clave_);
        almacen->FijarEspera(espera_);
    }
    almacen_ = std::move(almacen);
    if (!LeerIdentificadores(-1)) {
        almacen_.reset();
        return false;
    }
    MostrarRegistro();
    return true;
}

bool VentanaBaseDatos::LeerIdentificadores(qint64 id) {
    auto ids = almacen_->Identificadores();
    if (!ids) {
        dlg_.MsgBox(almacen_->Error());
        return false;
    }
    ids_ = std::move(*ids);
    // Ids grow with each save and are never given twice.
    const auto sitio = std::lower_bound(ids_.begin(), ids_.end(), id);
    posicion_ = ids_.empty()
                    ? -1
                    : static_cast<int>(std::min(sitio - ids_.begin(), std::ptrdiff_t(RecordCount() - 1)));
    return true;
}

void VentanaBaseDatos::Actualizar() {
    if (!almacen_) return;
    if (LeerIdentificadores(IdActual())) MostrarRegistro();
}

bool VentanaBaseDatos::AgregarRegistro(const bd::TextosRegistro& textos, const ImagenesRegistro& imagenes,
                                       const std::optional<std::string>& entradas) {
    if (!Cargar()) return false;
    const auto id = almacen_->Insertar(textos, imagenes, entradas);
    if (!id) {
        dlg_.MsgBox(almacen_->Error());
        return false;
    }
    // With the records that others saved meanwhile; the new one is the last.
    if (!LeerIdentificadores(*id)) ids_.push_back(*id), posicion_ = RecordCount() - 1;
    MostrarRegistro();
    return true;
}

void VentanaBaseDatos::CerrarAlmacen() {
    almacen_.reset();
    ids_.clear();
    posicion_ = -1;
    Vaciar();
}

void VentanaBaseDatos::FijarDireccion(const QString& direccion) {
    if (direccion == direccion_ && almacen_) return;
    CerrarAlmacen();
    direccion_ = direccion;
    clave_.clear();
    if (isVisible()) Cargar();
}

void VentanaBaseDatos::MoveFirst() {
    if (RecordCount() > 0) IrA(0);
}

void VentanaBaseDatos::MovePrevious() {
    if (RecordCount() > 0) IrA(std::max(posicion_ - 1, 0));
}

void VentanaBaseDatos::MoveNext() {
    if (RecordCount() > 0) IrA(std::min(posicion_ + 1, RecordCount() - 1));
}

void VentanaBaseDatos::MoveLast() {
    if (RecordCount() > 0) IrA(RecordCount() - 1);
}

void VentanaBaseDatos::IrA(int posicion) {
    posicion_ = posicion;
    MostrarRegistro();
}

void VentanaBaseDatos::MostrarRegistro() {
    if (posicion_ < 0 || !almacen_) return Vaciar();
    const qint64 id = ids_[static_cast<size_t>(posicion_)];
    auto textos = almacen_->LeerTextos(id);
    auto imagenes = textos ? almacen_->LeerImagenes(id) : std::nullopt;
    if (!textos || !imagenes) {
        Vaciar();
        dlg_.MsgBox(almacen_->Error());
        return;
    }
    for (size_t i = 0; i < textos->size(); ++i) PonerTexto(i, (*textos)[i]);
    for (size_t i = 0; i < imagenes->size(); ++i) imagenes_[i]->SetPicture((*imagenes)[i]);
}

void VentanaBaseDatos::Vaciar() {
    for (size_t i = 0; i < controles_.size(); ++i) PonerTexto(i, {});
    for (ControlImagen* img : imagenes_) img->SetPicture({});
}

void VentanaBaseDatos::PonerTexto(size_t columna, const std::string& texto) {
    if (columna == bd::kColumnaInforme) return PonerInformeEnCaja(texto);
    QWidget* w = controles_[columna];
    if (auto* caja = qobject_cast<QLineEdit*>(w)) {
        caja->setText(T(texto));
        caja->setCursorPosition(0);
    } else {
        static_cast<QLabel*>(w)->setText(T(texto));
    }
}

void VentanaBaseDatos::PonerInformeEnCaja(const std::string& texto) {
    textoInforme_ = texto;
    txtInforme_->setPlainText(T(texto));
}

// ---- Events ------------------------------------------------------------------------

void VentanaBaseDatos::cmdVer_Click() {
    const std::array<QWidget*, 5> marcos{fraCombustion_, fraAire_, fraCombustible_, fraTransformaciones_,
                                         fraPuntos_};
    if (ModoInforme_) {
        ModoInforme_ = false;
        txtInforme_->hide();
        for (ControlImagen* img : imagenes_) img->show();
        for (QWidget* fra : marcos) fra->show();
        cmdVer_->setText(QString::fromUtf8(kCaptionVerInforme));
        return;
    }
    ModoInforme_ = true;
    // The box holds the record's own report since the record was shown.
    AjustarInforme(kInformeArriba, kInformeAlto, kInformeAncho, 0);
    txtInforme_->show();
    txtInforme_->raise();
    for (ControlImagen* img : imagenes_) img->hide();
    for (QWidget* fra : marcos) fra->hide();
    cmdVer_->setText(QString::fromUtf8(kCaptionVerResumen));
}

void VentanaBaseDatos::cmdBorrarRegistro_Click() {
    if (RecordCount() < 1 || posicion_ < 0) {
        dlg_.MsgBox(bd::kMsgSinRegistros);
        return;
    }
    if (!dlg_.Pregunta(bd::kPreguntaBorrar)) return;
    if (!almacen_->Borrar(ids_[static_cast<size_t>(posicion_)])) {
        dlg_.MsgBox(almacen_->Error());
        return;
    }
    const int destino = bd::PosicionTrasBorrar(posicion_, RecordCount());
    ids_.erase(ids_.begin() + posicion_);
    posicion_ = destino;
    MostrarRegistro();
    dlg_.MsgBox(bd::kMsgRegistroBorrado);
}

void VentanaBaseDatos::cmdCerrar_Click() {
    hide();
}

void VentanaBaseDatos::Imagen_Click(ControlImagen* imagen) {
    // Through the system clipboard, which keeps the picture afterwards.
    QClipboard* portapapeles = QGuiApplication::clipboard();
    portapapeles->clear();
    portapapeles->setImage(imagen->Picture());
    const QImage copia = portapapeles->image();
    ampliador_->PonerImagen(copia.isNull() ? imagen->Picture() : copia);
    mostrarModal_(*ampliador_);
}

void VentanaBaseDatos::MostrarModal() {
    // A window already shown from the menu changes its modality only when
    // shown again.
    if (isVisible()) hide();
    mostrarModal_(*this);
}

void VentanaBaseDatos::MostrarNoModal() {
    // What others saved since it was last shown comes into view.
    if (almacen_)
        Actualizar();
    else if (!Cargar())
        return;
    show();
    raise();
    activateWindow();
}

void VentanaBaseDatos::AjustarInforme(double arriba, double alto, double ancho, double izquierda) {
    txtInforme_->setGeometry(qRound(izquierda * width()), qRound(arriba * height()), qRound(ancho * width()),
                             qRound(alto * height()));
}

// The report box follows the form's size as soon as the mouse moves over
// either, a little smaller than the report view made it.
void VentanaBaseDatos::AjustarInformeRaton() {
    txtInforme_->resize(qRound(kInformeAnchoRaton * width()), qRound(kInformeAltoRaton * height()));
}

void VentanaBaseDatos::mouseMoveEvent(QMouseEvent* evento) {
    AjustarInformeRaton();
    QDialog::mouseMoveEvent(evento);
}

bool VentanaBaseDatos::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == txtInforme_->viewport() && evento->type() == QEvent::MouseMove) AjustarInformeRaton();
    return QDialog::eventFilter(objeto, evento);
}

}  // namespace vanta
