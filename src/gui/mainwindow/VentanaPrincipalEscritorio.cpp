// The main window on the desktop: it grows and shrinks with the places of its
// controls in proportion, draws its pictures again at the size they are
// shown, answers the platform's shortcuts, names its controls for screen
// readers and comes back at the size and place it had. The pictures of the
// report and the record keep the sizes of the design, whatever the window's.
#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QResizeEvent>
#include <QShortcut>
#include <QTimer>

#include "core/sequence/Calculo.h"
#include "gui/fluids/VentanaAire.h"
#include "gui/fluids/VentanaCombustible.h"
#include "gui/fluids/VentanaCombustion.h"
#include "gui/mainwindow/VentanaPrincipal.h"
#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"
#include "gui/services/SuperficiesSinVentana.h"

namespace vanta {

namespace {

// The window the layout was designed on, which the pictures of the reports
// and records keep.
constexpr TamanoVentana kVentanaDiseno{.W = 1024, .H = 768, .dosTwips = 2.0 * 96 / 1440};
// How long a size must stand before the pictures are drawn again at it.
constexpr int kEsperaRedibujoMs = 120;
const QString kClaveVentana = QStringLiteral("principal");

Diagrama DiagramaDe(Vista v) {
    return static_cast<Diagrama>(static_cast<int>(v) - 1);
}

QString Sin(QString texto, QChar c) {
    return texto.remove(c).trimmed();
}

}  // namespace

void VentanaPrincipal::PrepararEscritorio(bool tamanoRecordado) {
    redibujo_ = new QTimer(this);
    redibujo_->setSingleShot(true);
    redibujo_->setInterval(kEsperaRedibujoMs);
    connect(redibujo_, &QTimer::timeout, this, &VentanaPrincipal::DibujarAlTamano);
    // The charts a stage window drew, to draw them again at another size.
    connect(ventanaAire_, &VentanaAire::Calculado, this,
            [this] { graficasDibujadas_ = std::max(graficasDibujadas_, 1); });
    connect(ventanaCombustible_, &VentanaCombustible::Calculado, this,
            [this] { graficasDibujadas_ = std::max(graficasDibujadas_, 2); });
    connect(ventanaCombustion_, &VentanaCombustion::Calculado, this, [this] { graficasDibujadas_ = 3; });
    CrearAtajos();
    NombrarParaLectores();
    if (tamanoRecordado) {
        const QByteArray geometria =
            Ajustes().value(QStringLiteral("ventanas/") + kClaveVentana).toByteArray();
        if (!geometria.isEmpty()) restoreGeometry(geometria);
        EncajarEnPantalla(this);
    }
}

void VentanaPrincipal::CrearAtajos() {
    mnuArchivo_->addSeparator();
    mnuSalir_ = mnuArchivo_->addAction(QStringLiteral("&Salir"));
    mnuSalir_->setObjectName(QStringLiteral("mnuSalir"));
    mnuSalir_->setShortcuts(QKeySequence::Quit);
    connect(mnuSalir_, &QAction::triggered, this, &QWidget::close);
    mnuAyuda2_->setShortcuts(QKeySequence::HelpContents);
    mnuGuardarTexto_->setShortcuts(QKeySequence::Save);
    // The stage buttons on Ctrl+1 … Ctrl+4, when they can be pressed.
    QPushButton* etapas[4] = {cmdElegirComburente_, cmdCombustible_, cmdCarCombustion_, cmdCarCiclo_};
    for (int i = 0; i < 4; ++i) {
        QPushButton* boton = etapas[i];
        const QKeySequence tecla(QKeyCombination(Qt::ControlModifier, static_cast<Qt::Key>(Qt::Key_1 + i)));
        auto* atajo = new QShortcut(tecla, this);
        connect(atajo, &QShortcut::activated, boton, [boton] {
            if (boton->isVisible() && boton->isEnabled()) boton->click();
        });
        boton->setToolTip(tecla.toString(QKeySequence::NativeText));
    }
}

void VentanaPrincipal::NombrarParaLectores() {
    const std::pair<SuperficieQt*, const char*> superficies[] = {
        {pct1_, "Gráfica de la composición del aire"},
        {pct2_, "Gráfica de la composición del combustible"},
        {pct3_, "Gráfica de la composición de los gases de combustión"},
        {pctPV_, "Diagrama p-V"},
        {pctTV_, "Diagrama T-V"},
        {pctTS_, "Diagrama T-s"},
        {pctHS_, "Diagrama h-s"}};
    for (auto [s, nombre] : superficies) {
        s->setAccessibleName(QString::fromUtf8(nombre));
        s->setAccessibleDescription(QStringLiteral("Pulse para ampliarlo o volver a ver todos los gráficos"));
    }
    for (SuperficieQt* s : {pct1_, pct2_, pct3_}) s->setAccessibleDescription({});

    // The boxes of the power and the consumption: their caption, and the
    // unit beside them.
    const std::tuple<QLineEdit*, QLabel*, QLabel*> cajas[] = {
        {txtRpm_, Label30_, Label29_},        {txtPotencia_, Label30_, Label33_},
        {txtPotenciaCV_, Label30_, Label35_}, {txtConsumoMJ_, Label28_, Label31_},
        {txtConsumoKwh_, Label28_, Label32_}, {txtCilindrada_, nullptr, Label34_}};
    for (auto [caja, nombre, unidad] : cajas) {
        caja->setAccessibleName(nombre ? Sin(nombre->text(), QLatin1Char(':'))
                                       : QStringLiteral("Cilindrada"));
        caja->setAccessibleDescription(unidad->text());
    }
    txtRpm_->setAccessibleName(QStringLiteral("Régimen del motor"));
    txtCilindrada_->setAccessibleDescription(txtCilindrada_->accessibleDescription() +
                                             QStringLiteral("; pulse para cambiar el ciclo"));
    txtTransformacion_->setAccessibleName(QStringLiteral("Transformación bajo el puntero"));

    // What each cell of the results holds: its column and its state or
    // process.
    for (int c = 0; c < 5; ++c)
        for (int f = 0; f < 5; ++f)
            celdaPuntos_[c][f]->setAccessibleDescription(
                QStringLiteral("%1, estado %2").arg(cabezaPuntos_[c]->text()).arg(f + 1));
    const QString q = cabezaTransformaciones_[0]->text(), w = cabezaTransformaciones_[1]->text(),
                  gamma = cabezaTransformaciones_[3]->text(), julios = unidadQ_->text();
    auto proceso = [](QLabel* fila) { return fila->text(); };
    const std::pair<CeldaCifra*, QString> celdas[] = {
        {lblW12_, w + ' ' + julios + ", " + proceso(filaTransformaciones_[0])},
        {lblG12_, gamma + QStringLiteral(" al comienzo de ") + proceso(filaTransformaciones_[0])},
        {lblG2_, gamma + QStringLiteral(" al final de ") + proceso(filaTransformaciones_[0])},
        {lblQ23_, q + ' ' + julios + ", " + proceso(filaTransformaciones_[1])},
        {lblQ34_, q + ' ' + julios + ", " + proceso(filaTransformaciones_[2])},
        {lblW34_, w + ' ' + julios + ", " + proceso(filaTransformaciones_[2])},
        {lblG45_, gamma + QStringLiteral(" al comienzo de ") + proceso(filaTransformaciones_[3])},
        {lblW45_, w + ' ' + julios + ", " + proceso(filaTransformaciones_[3])},
        {lblG5_, gamma + QStringLiteral(" al final de ") + proceso(filaTransformaciones_[3])},
        {lblQciclo_, q + ' ' + julios + ", " + proceso(filaTransformaciones_[4])},
        {lblWciclo_, w + ' ' + julios + ", " + proceso(filaTransformaciones_[4])},
        {lblRen_, cabezaTransformaciones_[4]->text() + ", " + proceso(filaTransformaciones_[4])}};
    for (const auto& [celda, texto] : celdas) celda->setAccessibleDescription(texto);
    for (int i = 0; i < 5; ++i)
        valorEstado_[i]->setAccessibleDescription(
            QStringLiteral("%1 bajo el puntero, en %2")
                .arg(Sin(nombreEstado_[i]->text(), QLatin1Char('=')), unidadEstado_[i]->text()));
}

// Tab walks the controls in view in reading order, which the view decides.
// The entries of "Guardar como" answer their shortcuts only while the
// submenu may be used (the page, besides, not after a failed calculation).
void VentanaPrincipal::DistribuirEscritorio() {
    OrdenDeLectura(central_);
    const bool guardar = mnuGuardar_->menuAction()->isEnabled();
    mnuGuardarTexto_->setEnabled(guardar);
    mnuGuardarHTML_->setEnabled(guardar && !flujo_.intentoFallido);
}

void VentanaPrincipal::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    // Before the load the places are not made yet.
    if (flujo_.ventana.W == 0 || (width() == flujo_.ventana.W && height() == flujo_.ventana.H)) return;
    NuevoTamano(flujo_, {.W = width(), .H = height(), .dosTwips = flujo_.ventana.dosTwips});
    Mostrar();
    if (flujo_.visible.imgPresentacion) PresentacionInicial();
    redibujo_->start();
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    QSettings ajustes = Ajustes();
    ajustes.setValue(QStringLiteral("ventanas/") + kClaveVentana, saveGeometry());
    QMainWindow::closeEvent(evento);
}

// The pictures on show drawn again from what they show, on a state of their
// own: the cycle of the last calculation with its charts, or the charts of
// the stages passed so far.
void VentanaPrincipal::DibujarAlTamano() {
    if (CicloEnPantalla(flujo_) && calculo_) {
        SuperficiesCalculo s{*pct1_, *pct2_, *pct3_, diagramas_};
        Calcular(calculo_->entradas, s, e_.SeparadorDecimal);
        vistaDibujada_ = flujo_.lugaresDe;
        return;
    }
    if (graficasDibujadas_ == 0) return;
    Estado propio;
    GuardarColoresDiagramas(propio);
    propio.SeparadorDecimal = e_.SeparadorDecimal;
    SuperficiesNulas nulas;
    SuperficiesCalculo s{*pct1_, *pct2_, *pct3_, nulas.diagramas.Todos()};
    DibujarGraficas(propio, aplicadas_, s, graficasDibujadas_);
}

// The seven pictures of the last calculation as a window of the design's size
// shows them in the view they were drawn for.
std::array<QImage, 7> VentanaPrincipal::Imagenes() const {
    if (!calculo_)
        return {pct1_->Imagen(),  pct2_->Imagen(),  pct3_->Imagen(), pctPV_->Imagen(),
                pctTV_->Imagen(), pctTS_->Imagen(), pctHS_->Imagen()};
    Flujo diseno = vanta::Form_Load(kVentanaDiseno);
    if (vistaDibujada_ != Vista::General)
        ColocarAmpliado(DiagramaDe(vistaDibujada_), diseno.lugar, diseno.ventana);
    SuperficiesSinVentana cajas(diseno.lugar);
    SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
    Calcular(calculo_->entradas, s, e_.SeparadorDecimal);
    return cajas.Imagenes();
}

}  // namespace vanta
