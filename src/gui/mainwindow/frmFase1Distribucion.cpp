// Where the controls of the main window stand: every one is placed in
// proportion to the window's size at the moment of the call (the design is a
// window filling a 1024 × 768 screen). Nothing follows a later resize.
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "gui/mainwindow/frmFase1.h"
#include "gui/resources/Dibujos.h"
#include "gui/services/Controles.h"

namespace vanta {

namespace {

// A control's place as fractions: Left and Width of the width given, Top and
// Height of the height given.
struct Lugar {
    double izquierda, arriba, alto, ancho;
};

QRect Rectangulo(const Lugar& l, double W, double H) {
    return {qRound(l.izquierda * W), qRound(l.arriba * H), qRound(l.ancho * W), qRound(l.alto * H)};
}

void Colocar(QWidget* w, const Lugar& l, double W, double H) {
    w->setGeometry(Rectangulo(l, W, H));
}

// The overview.
constexpr Lugar kPct1{0.001, 0, 0.25, 0.499};
constexpr Lugar kPct2{0.501, 0, 0.25, 0.4995};
constexpr Lugar kPct3{0.501, 0.251, 0.25, 0.4995};
constexpr Lugar kPctPV{0.001, 0.529, 0.32, 0.345};
constexpr Lugar kPctTV{0.65, 0.529, 0.32, 0.35};
// pctTS is an inset at the top right of pctPV, by fractions of pctPV.
constexpr double kRecuadroIzquierda = 0.65, kRecuadroAlto = 0.3, kRecuadroAncho = 0.3;

constexpr Lugar kFraBotonera{0.00391, 0.23958, 0.21484, 0.106445};
constexpr Lugar kFraPuntos{0.109375, 0.23958, 0.21484, 0.38378906};
constexpr Lugar kFraPotencia{0.00391, 0.453125, 0.069, 0.489258};
constexpr Lugar kFraTransformaciones{0.351562, 0.52083, 0.28776, 0.301758};

// The stage buttons, inside fraBotonera: their Top is a factor of the frame's
// Top (not of its Height).
constexpr double kBotonAlto = 0.2, kBotonAncho = 0.91743;
constexpr double kBotonArriba[4] = {0.0652174, 0.266304, 0.472826, 0.673913};

// CambiarTamaño.
constexpr Lugar kCmdInforme{0.351562, 0.8125, 0.03776, 0.137695};
constexpr Lugar kCmdEnvBaseDatos{0.515625, 0.8125, 0.03776, 0.137695};
constexpr Lugar kChkVerHs{0.703125, 0.822917, 0.0221354, 0.204101};
constexpr Lugar kFraEstadoActual{0.00390625, 0.84986, 0.05868, 0.985351};

// The table of states, by fractions of fraPuntos.
constexpr double kPuntosCabezaArriba = 0.07227;
constexpr double kPuntosCabezaIzquierda[5] = {0.10178, 0.34606, 0.53944, 0.6819, 0.84478};
constexpr double kPuntosCeldaIzquierda[5] = {0.0407, 0.2646, 0.46819, 0.63104, 0.8};
constexpr double kPuntosCeldaAncho[5] = {0.213, 0.18, 0.15, 0.19, 0.19};
constexpr double kPuntosFilaArriba[5] = {0.19394, 0.36364, 0.521212, 0.68485, 0.8666667};
constexpr double kPuntosReglaV[5] = {0.04071247, 0.2544529, 0.45801527, 0.63104326, 0.834056};
constexpr double kPuntosReglaVDesde = 0.0404040404, kPuntosReglaVHasta = 0.993939394;
constexpr double kPuntosReglaH[5] = {0.16969697, 0.33131313, 0.492929293, 0.65454545, 0.816162};
constexpr double kPuntosReglaHHasta = 0.997455;
// The row heads stand left of the first rule.
constexpr double kPuntosFilaIzquierda = 0.004, kPuntosFilaAncho = 0.034;

// The table of processes, by fractions of fraTransformaciones.
constexpr double kTransReglaH[5] = {0.181, 0.35, 0.519, 0.6878, 0.857};
constexpr double kTransReglaHHasta = 0.997;
constexpr double kTransReglaV[4] = {0.136, 0.3754, 0.647, 0.8155};
constexpr double kTransReglaVDesde = 0.0302, kTransReglaVHasta = 0.9955;
constexpr double kTransFilaIzquierda = 0.02;
constexpr double kTransAnchoRen = 0.14;
enum Columna { kColQ, kColW, kColN, kColGamma };

}  // namespace

void frmFase1::PonerGraficosTodos() {
    const double W = width(), H = height();
    Colocar(pct1_, kPct1, W, H);
    Colocar(pct2_, kPct2, W, H);
    Colocar(pct3_, kPct3, W, H);
    Colocar(pctPV_, kPctPV, W, H);
    Colocar(pctTV_, kPctTV, W, H);
    const QRect pv = pctPV_->geometry();
    pctTS_->setGeometry(pv.left() + qRound(kRecuadroIzquierda * pv.width()), pv.top(),
                        qRound(kRecuadroAncho * pv.width()), qRound(kRecuadroAlto * pv.height()));
    pctTS_->raise();

    for (QWidget* w :
         {static_cast<QWidget*>(pct1_), static_cast<QWidget*>(pct2_), static_cast<QWidget*>(pct3_),
          static_cast<QWidget*>(pctTV_), static_cast<QWidget*>(pctTS_)})
        w->show();
    pctHS_->hide();
    fraBotonera_->show();
    fraPuntos_->show();
    fraPotencia_->show();
    chkVerHs_->hide();
    chkVerHs_->setChecked(false);

    Colocar(fraBotonera_, kFraBotonera, W, H);
    Colocar(fraPuntos_, kFraPuntos, W, H);
    Colocar(fraPotencia_, kFraPotencia, W, H);
    Colocar(fraTransformaciones_, kFraTransformaciones, W, H);

    const QRect b = fraBotonera_->geometry();
    QPushButton* botones[4] = {cmdElegirComburente_, cmdCombustible_, cmdCarCombustion_, cmdCarCiclo_};
    for (int i = 0; i < 4; ++i)
        botones[i]->setGeometry(b.left(), qRound(kBotonArriba[i] * b.top()), qRound(kBotonAncho * b.width()),
                                qRound(kBotonAlto * b.height()));

    DistribuirPuntos();
    DistribuirTransformaciones();
    DistribuirPotencia();
    CambiarTamaño();
}

void frmFase1::CambiarTamaño() {
    const double W = width(), H = height();
    Colocar(cmdInforme_, kCmdInforme, W, H);
    Colocar(cmdEnvBaseDatos_, kCmdEnvBaseDatos, W, H);
    Colocar(chkVerHs_, kChkVerHs, W, H);
    Colocar(fraEstadoActual_, kFraEstadoActual, W, H);
    // Room for the caption inside the button's frame.
    constexpr int kMargenBoton = 12;
    for (QPushButton* b : {cmdInforme_, cmdEnvBaseDatos_})
        AjustarLetra(b, b->text(), b->width() - kMargenBoton);
    DistribuirEstadoActual();
}

void frmFase1::DistribuirPuntos() {
    const double w = fraPuntos_->width(), h = fraPuntos_->height();
    const int alto = fraPuntos_->fontMetrics().height();
    for (int c = 0; c < 5; ++c) {
        // A head ends at the frame's edge.
        const int hasta = qRound(w) - qRound(kPuntosCabezaIzquierda[c] * w) - 2;
        AjustarLetra(cabezaPuntos_[c], cabezaPuntos_[c]->text(), hasta);
        cabezaPuntos_[c]->adjustSize();
        cabezaPuntos_[c]->move(qRound(kPuntosCabezaIzquierda[c] * w), qRound(kPuntosCabezaArriba * h));
        for (int f = 0; f < 5; ++f)
            celdaPuntos_[c][f]->setGeometry(qRound(kPuntosCeldaIzquierda[c] * w),
                                            qRound(kPuntosFilaArriba[f] * h),
                                            qRound(kPuntosCeldaAncho[c] * w), alto);
    }
    for (int f = 0; f < 5; ++f) {
        filaPuntos_[f]->setGeometry(qRound(kPuntosFilaIzquierda * w), qRound(kPuntosFilaArriba[f] * h),
                                    qRound(kPuntosFilaAncho * w), alto);
        lv_[f]->setGeometry(qRound(kPuntosReglaV[f] * w), qRound(kPuntosReglaVDesde * h), 1,
                            qRound((kPuntosReglaVHasta - kPuntosReglaVDesde) * h));
        lh_[f]->setGeometry(0, qRound(kPuntosReglaH[f] * h), qRound(kPuntosReglaHHasta * w), 1);
    }
}

void frmFase1::DistribuirTransformaciones() {
    const double w = fraTransformaciones_->width(), h = fraTransformaciones_->height();
    const int alto = fraTransformaciones_->fontMetrics().height();
    for (int i = 0; i < 5; ++i)
        lhT_[i]->setGeometry(0, qRound(kTransReglaH[i] * h), qRound(kTransReglaHHasta * w), 1);
    for (int i = 0; i < 4; ++i)
        lvT_[i]->setGeometry(qRound(kTransReglaV[i] * w), qRound(kTransReglaVDesde * h), 1,
                             qRound((kTransReglaVHasta - kTransReglaVDesde) * h));

    // A cell spans from the rule on its left to the next one.
    auto columna = [&](int c) {
        const double desde = kTransReglaV[c], hasta = c + 1 < 4 ? kTransReglaV[c + 1] : kTransReglaHHasta;
        return std::pair{desde * w, (hasta - desde) * w};
    };
    auto celda = [&](QLabel* l, int c, double arriba) {
        const auto [x, ancho] = columna(c);
        l->setGeometry(qRound(x), qRound(arriba * h), qRound(ancho), alto);
    };
    celda(lblW12_, kColW, 0.2314);
    celda(lblG12_, kColGamma, 0.2);
    celda(lblG2_, kColGamma, 0.276);
    celda(lblQ23_, kColQ, 0.407);
    celda(lblQ34_, kColQ, 0.575);
    celda(lblW34_, kColW, 0.575);
    celda(lblG45_, kColGamma, 0.7);
    celda(lblW45_, kColW, 0.74661);
    celda(lblG5_, kColGamma, 0.783);
    celda(lblQciclo_, kColQ, 0.905);
    celda(lblWciclo_, kColW, 0.905);
    celda(lblRen_, kColGamma, 0.905);
    lblRen_->resize(qRound(kTransAnchoRen * w), alto);
    // "Rend." names the efficiency beside it, in the row of the cycle.
    celda(cabezaTransformaciones_[4], kColN, 0.905);

    // Column heads in the band above the first rule, the units of Q and W
    // under their letters.
    const double banda = kTransReglaH[0] - kTransReglaVDesde;
    for (int c = 0; c < 4; ++c) {
        const bool conUnidad = c == kColQ || c == kColW;
        const double arriba = kTransReglaVDesde + (conUnidad ? 0.02 : banda / 2 - 0.5 * alto / h);
        celda(cabezaTransformaciones_[c], c, arriba);
    }
    celda(unidadQ_, kColQ, kTransReglaVDesde + 0.02 + static_cast<double>(alto) / h);
    celda(unidadW_, kColW, kTransReglaVDesde + 0.02 + static_cast<double>(alto) / h);

    // Row heads, each in the middle of its band.
    for (int i = 0; i < 5; ++i) {
        const double desde = kTransReglaH[i], hasta = i + 1 < 5 ? kTransReglaH[i + 1] : kTransReglaVHasta;
        filaTransformaciones_[i]->setGeometry(qRound(kTransFilaIzquierda * w),
                                              qRound((desde + hasta) / 2 * h - alto / 2.0),
                                              qRound((kTransReglaV[0] - kTransFilaIzquierda) * w), alto);
    }
}

void frmFase1::DistribuirPotencia() {
    if (fraPotencia_->layout()) return;
    // Two rows: power from the speed, then consumption and the volume.
    auto* rejilla = new QGridLayout(fraPotencia_);
    rejilla->setContentsMargins(6, 2, 6, 2);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(2);
    rejilla->addWidget(Label30_, 0, 0);
    rejilla->addWidget(txtRpm_, 0, 1);
    rejilla->addWidget(Label29_, 0, 2);
    rejilla->addWidget(txtPotencia_, 0, 3);
    rejilla->addWidget(Label33_, 0, 4);
    rejilla->addWidget(txtPotenciaCV_, 0, 5);
    rejilla->addWidget(Label35_, 0, 6);
    rejilla->addWidget(Label28_, 1, 0);
    rejilla->addWidget(txtConsumoMJ_, 1, 1);
    rejilla->addWidget(Label31_, 1, 2);
    rejilla->addWidget(txtConsumoKwh_, 1, 3);
    rejilla->addWidget(Label32_, 1, 4);
    rejilla->addWidget(txtCilindrada_, 1, 5);
    rejilla->addWidget(Label34_, 1, 6);
    for (int c : {1, 3, 5}) rejilla->setColumnStretch(c, 1);
}

void frmFase1::DistribuirEstadoActual() {
    if (fraEstadoActual_->layout()) return;
    // One row: the process under the pointer, then p, V, T, h and s.
    auto* fila = new QHBoxLayout(fraEstadoActual_);
    fila->setContentsMargins(6, 2, 6, 2);
    fila->setSpacing(3);
    // The values take the room of a pressure of nine digits (the blanks of
    // the masks before it fall off the left edge), the name of the process
    // all the rest.
    fila->addWidget(txtTransformacion_, 1);
    const int anchoValor = valorEstado_[0]->fontMetrics().horizontalAdvance(QStringLiteral("888 888 888"));
    for (int i = 0; i < 5; ++i) {
        fila->addSpacing(6);
        fila->addWidget(nombreEstado_[i]);
        valorEstado_[i]->setFixedWidth(anchoValor);
        fila->addWidget(valorEstado_[i]);
        fila->addWidget(unidadEstado_[i]);
    }
}

void frmFase1::LugaresIniciales() {
    // pctHS stands as an inset at the top left of T-V, as pctTS does on p-V.
    const QRect tv = pctTV_->geometry();
    pctHS_->setGeometry(tv.left(), tv.top(), qRound(kRecuadroAncho * tv.width()),
                        qRound(kRecuadroAlto * tv.height()));

    // The splash fills the window right of the stage buttons.
    const QRect b = fraBotonera_->geometry();
    const int izquierda = b.right() + 8;
    const int alto = height() - menuBar()->sizeHint().height();
    const QRect zona(izquierda, 4, width() - izquierda - 4, alto - 8);
    imgPresentacion_->setGeometry(zona);
    imgPresentacion_->setPixmap(DibujoPresentacion(zona.size(), devicePixelRatioF()));
}

}  // namespace vanta

namespace vanta {

namespace {
LugarDiagrama LugarDe(const QWidget* w) {
    const QRect r = w->geometry();
    return {double(r.left()), double(r.top()), double(r.width()), double(r.height())};
}
void Poner(QWidget* w, const LugarDiagrama& l) {
    w->setGeometry(qRound(l.Left), qRound(l.Top), qRound(l.Width), qRound(l.Height));
}
}  // namespace

SuperficieQt* frmFase1::SuperficieDe(DiagramaAmpliable d) const {
    switch (d) {
        case DiagramaAmpliable::PV:
            return pctPV_;
        case DiagramaAmpliable::TV:
            return pctTV_;
        case DiagramaAmpliable::TS:
            return pctTS_;
        case DiagramaAmpliable::HS:
            return pctHS_;
    }
    return pctPV_;
}

GeometriaDiagramas frmFase1::GeometriaActual() const {
    GeometriaDiagramas actual;
    actual.W = width(), actual.H = height();
    actual.pctPV = LugarDe(pctPV_), actual.pctTV = LugarDe(pctTV_);
    actual.pctTS = LugarDe(pctTS_), actual.pctHS = LugarDe(pctHS_);
    return actual;
}

void frmFase1::PonerGraficos(DiagramaAmpliable d) {
    // Two twips of the design's unit, in this window's pixels.
    const double dosTwips = 2.0 * logicalDpiX() / 1440.0;
    if (!DebeAmpliar(d, GeometriaActual(), dosTwips)) {
        PonerGraficosTodos();
        CalcularCicloActual();
        DiagramaAmpliado_ = false;
        return;
    }
    const GeometriaDiagramas g = DistribucionAmpliada(d, width(), height());
    Poner(pctPV_, g.pctPV);
    Poner(pctTV_, g.pctTV);
    Poner(pctTS_, g.pctTS);
    Poner(pctHS_, g.pctHS);
    // In whole pixels the main surface may fall a hair short of 0.7 W, and a
    // second click on it would enlarge it again instead of returning: it
    // takes the next pixel.
    SuperficieQt* principal = SuperficieDe(d);
    if (DebeAmpliar(d, GeometriaActual(), dosTwips))
        principal->resize(principal->width() + 1, principal->height());
    // The inset stands over the main surface.
    (d == DiagramaAmpliable::HS ? pctTS_ : pctHS_)->raise();
    for (QWidget* w :
         {static_cast<QWidget*>(pct1_), static_cast<QWidget*>(pct2_), static_cast<QWidget*>(pct3_)})
        w->hide();
    pctTS_->show();
    if (d == DiagramaAmpliable::HS) pctHS_->show();
    fraBotonera_->hide();
    fraPotencia_->hide();
    CalcularCicloActual();
    DiagramaAmpliado_ = true;
    fraPotencia_->hide();
    chkVerHs_->show();
    fraPuntos_->hide();
    CambiarTamaño();
    for (QWidget* w :
         {static_cast<QWidget*>(pct1_), static_cast<QWidget*>(pct2_), static_cast<QWidget*>(pct3_),
          static_cast<QWidget*>(fraPuntos_), static_cast<QWidget*>(fraTransformaciones_)})
        w->hide();
}

}  // namespace vanta
