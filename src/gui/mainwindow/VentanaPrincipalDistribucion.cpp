// Where the controls of the main window stand: every one is placed in
// proportion to the window's size (the design is a window filling a
// 1024 × 768 screen), again whenever that size changes.
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

#include "gui/mainwindow/VentanaPrincipal.h"
#include "gui/resources/Dibujos.h"
#include "gui/services/Controles.h"
#include "gui/validation/PanelConfianza.h"

namespace vanta {

namespace {

void Colocar(QWidget* w, const Lugar& l) {
    const QRect r(l.Left, l.Top, l.Width, l.Height);
    if (w->geometry() != r) w->setGeometry(r);
}

// The table of states, by fractions of fraPuntos.
// Room for a caption inside its button's frame.
constexpr int kMargenBoton = 12;
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

void VentanaPrincipal::Mostrar() {
    const Flujo& f = flujo_;
    const Lugares& l = f.lugar;
    const std::pair<QWidget*, const Lugar*> lugares[] = {
        {pct1_, &l.pct1},
        {pct2_, &l.pct2},
        {pct3_, &l.pct3},
        {pctPV_, &l.pctPV},
        {pctTV_, &l.pctTV},
        {pctTS_, &l.pctTS},
        {pctHS_, &l.pctHS},
        {fraBotonera_, &l.fraBotonera},
        {fraPuntos_, &l.fraPuntos},
        {fraPotencia_, &l.fraPotencia},
        {fraTransformaciones_, &l.fraTransformaciones},
        {cmdInforme_, &l.cmdInforme},
        {cmdEnvBaseDatos_, &l.cmdEnvBaseDatos},
        {chkVerHs_, &l.chkVerHs},
        {fraEstadoActual_, &l.fraEstadoActual},
    };
    for (auto [w, lugar] : lugares) Colocar(w, *lugar);
    const std::pair<QPushButton*, const Lugar*> botones[] = {{cmdElegirComburente_, &l.cmdElegirComburente},
                                                             {cmdCombustible_, &l.cmdCombustible},
                                                             {cmdCarCombustion_, &l.cmdCarCombustion},
                                                             {cmdCarCiclo_, &l.cmdCarCiclo}};
    for (auto [boton, lugar] : botones) {
        Colocar(boton, *lugar);
        AjustarLetra(boton, boton->text(), boton->width() - kMargenBoton);
    }

    const Habilitados& h = f.habilitado;
    cmdElegirComburente_->setEnabled(h.cmdElegirComburente);
    cmdCombustible_->setEnabled(h.cmdCombustible);
    cmdCarCombustion_->setEnabled(h.cmdCarCombustion);
    cmdCarCiclo_->setEnabled(h.cmdCarCiclo);
    mnuInforme_->setEnabled(h.mnuInforme);
    mnuBDatos_->setEnabled(h.mnuBDatos);
    mnuGuardar_->menuAction()->setEnabled(h.mnuGuardar);
    mnuTablasActual_->setEnabled(h.mnuTablasActual);
    // The figures of a calculation that failed are not those on screen.
    mnuExportarDiagramas_->setEnabled(h.mnuInforme && !f.intentoFallido);
    cmdEnvBaseDatos_->setEnabled(h.mnuBDatos);
    mnuCalcular_->setEnabled(h.mnuCalcular);
    mnuVerTodo_->setEnabled(h.mnuVerTodo);
    mnuVerCiclo_->menuAction()->setEnabled(h.mnuVerCiclo);

    const Marcas& m = f.marcado;
    mnuVerTodo_->setChecked(m.mnuVerTodo);
    mnuPV_->setChecked(m.mnuPV);
    mnuTV_->setChecked(m.mnuTV);
    mnuTS_->setChecked(m.mnuTS);
    mnuHS_->setChecked(m.mnuHS);
    {
        const QSignalBlocker callado(chkVerHs_);
        chkVerHs_->setChecked(m.chkVerHs);
    }

    const Visibles& v = f.visible;
    const std::pair<QWidget*, bool> visibles[] = {
        {imgPresentacion_, v.imgPresentacion},
        {fraBotonera_, v.fraBotonera},
        {pct1_, v.pct1},
        {pct2_, v.pct2},
        {pct3_, v.pct3},
        {pctPV_, v.pctPV},
        {pctTV_, v.pctTV},
        {pctTS_, v.pctTS},
        {pctHS_, v.pctHS},
        {fraPuntos_, v.fraPuntos},
        {fraTransformaciones_, v.fraTransformaciones},
        {fraPotencia_, v.fraPotencia},
        {fraEstadoActual_, v.fraEstadoActual},
        {cmdInforme_, v.cmdInforme},
        {cmdEnvBaseDatos_, v.cmdEnvBaseDatos},
        {chkVerHs_, v.chkVerHs},
    };
    for (auto [w, visible] : visibles) w->setVisible(visible);
    SuperficieDe(f.encima)->raise();
    if (v.imgPresentacion) {
        imgPresentacion_->raise();
        fraBotonera_->raise();
    }

    DistribuirBotonesResultados();
    DistribuirPuntos();
    DistribuirTransformaciones();
    DistribuirPotencia();
    DistribuirEstadoActual();
    DistribuirConfianza();
    DistribuirIntentoFallido();
    DistribuirEscritorio();
}

// The two buttons under the results share one letter, the largest that
// fits both captions in their places.
void VentanaPrincipal::DistribuirBotonesResultados() {
    for (QPushButton* boton : {cmdInforme_, cmdEnvBaseDatos_})
        AjustarLetra(boton, boton->text(), boton->width() - kMargenBoton);
    if (cmdEnvBaseDatos_->font().pointSizeF() < cmdInforme_->font().pointSizeF())
        cmdInforme_->setFont(cmdEnvBaseDatos_->font());
    else
        cmdEnvBaseDatos_->setFont(cmdInforme_->font());
}

void VentanaPrincipal::DistribuirPuntos() {
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

void VentanaPrincipal::DistribuirTransformaciones() {
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
    // Both edges rounded, so that neighbours meet and never overlap.
    auto celda = [&](QLabel* l, int c, double arriba) {
        const auto [x, ancho] = columna(c);
        const int izquierda = qRound(x);
        l->setGeometry(izquierda, qRound(arriba * h), qRound(x + ancho) - izquierda, alto);
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

void VentanaPrincipal::DistribuirPotencia() {
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

void VentanaPrincipal::DistribuirEstadoActual() {
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

void VentanaPrincipal::DistribuirConfianza() {
    // The free band between the readout and the window's bottom edge.
    constexpr int kMargen = 2, kAltoMinimo = 24;
    const QRect lectura = fraEstadoActual_->geometry();
    const int arriba = lectura.bottom() + 1 + kMargen;
    const QRect zona(lectura.left(), arriba, lectura.width(), central_->height() - arriba - kMargen);
    if (panelConfianza_->geometry() != zona) panelConfianza_->setGeometry(zona);
    panelConfianza_->setVisible(flujo_.visible.fraEstadoActual && panelConfianza_->TieneCalculo() &&
                                zona.height() >= kAltoMinimo);
}

void VentanaPrincipal::PresentacionInicial() {
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

SuperficieQt* VentanaPrincipal::SuperficieDe(Diagrama d) const {
    switch (d) {
        case Diagrama::PV:
            return pctPV_;
        case Diagrama::TV:
            return pctTV_;
        case Diagrama::TS:
            return pctTS_;
        case Diagrama::HS:
            return pctHS_;
    }
    return pctPV_;
}

}  // namespace vanta
