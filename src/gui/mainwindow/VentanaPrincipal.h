// The main window "Vanta": the one window that stays open for the whole run.
// It leads the user through the four stages (comburent, fuel, combustion,
// cycle), shows the composition charts, the four diagrams, the table of states
// and the table of processes, and gives access to reports, the results
// database and the property tables. It computes nothing itself: each stage
// window does its own calculation on the shared state. What may be used when,
// what is in view and where it stands is the workflow's value (Flujo); the
// window renders it after every event.
#pragma once

#include <QImage>
#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <string>

#include "core/cycle/Ciclo.h"
#include "core/diagrams/LecturaRaton.h"
#include "core/equilibrium/CicloEquilibrio.h"
#include "core/sequence/Calculo.h"
#include "core/state/Estado.h"
#include "core/workflow/Flujo.h"
#include "gui/cycle/VentanaCiclo.h"
#include "gui/services/PuertosQt.h"
#include "gui/services/SuperficieQt.h"

class QAction;
class QCheckBox;
class QDialog;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTimer;

namespace vanta {

class CeldaCifra;
class VentanaAire;
class VentanaBaseDatos;
class VisoresInforme;
class VentanaHerramientas;
class VentanaCombustible;
class VentanaCombustion;
class VentanaCiclo;
class PanelConfianza;
class VentanaDisociacion;
class VentanaEstudio;

class VentanaPrincipal : public QMainWindow, public EnlacePrincipal {
    Q_OBJECT

public:
    // dlg: where messages go; the window's own Qt dialogs when null.
    // tamano: the window's size at start; empty for the largest of the
    // design's proportions that the screen holds.
    explicit VentanaPrincipal(Estado& e, Dialogos* dlg = nullptr, QSize tamano = {},
                              QWidget* padre = nullptr);
    ~VentanaPrincipal() override;

    // ---- What the cycle window reaches ----
    void Ocultabotones(const Botones& b) override;
    std::string TipoCombustible() const override;
    void CicloTerminado(const ResultadoCiclo& r, const Entradas& x, const Mensajes& msj) override;

    // The last calculation that ended well, as it ended (its state, report,
    // labels, warnings and inputs): the report, the page, the record and the
    // comparisons are all made from it. Null before the first.
    const std::shared_ptr<const ResultadoCalculo>& CalculoActual() const { return calculo_; }
    // The inputs as the stage windows last calculated them.
    const Entradas& EntradasAplicadas() const { return aplicadas_; }
    // The inputs as the windows hold them now (a study starts from them).
    Entradas EntradasDeVentanas() const;

    // The workflow as the window shows it.
    const Flujo& flujo() const { return flujo_; }

    // The text report of the last success (the hidden store txtInformeF1).
    const std::string& InformeF1() const { return txtInformeF1_; }

    Estado& estado() { return e_; }
    // The report windows and their file dialogs.
    VisoresInforme& Visores() { return *visores_; }
    Dialogos& dialogos() { return *dlg_; }
    Diagramas& diagramas() { return diagramas_; }
    SuperficieQt* pct1() const { return pct1_; }
    SuperficieQt* pct2() const { return pct2_; }
    SuperficieQt* pct3() const { return pct3_; }
    SuperficieQt* pctPV() const { return pctPV_; }
    SuperficieQt* pctTV() const { return pctTV_; }
    SuperficieQt* pctTS() const { return pctTS_; }
    SuperficieQt* pctHS() const { return pctHS_; }

    // The stage windows, made once with the main window and hidden, never
    // destroyed, so that their inputs survive from one opening to the next.
    VentanaAire* Aire() const { return ventanaAire_; }
    VentanaCombustible* Combustible() const { return ventanaCombustible_; }
    VentanaCombustion* Combustion() const { return ventanaCombustion_; }
    VentanaCiclo* Ciclo() const { return ventanaCiclo_; }

    // How a stage window is shown modal: exec() unless replaced (the window
    // tests show it and drive it without a nested event loop).
    void FijarMostrarModal(std::function<void(QDialog&)> mostrar) { mostrarModal_ = std::move(mostrar); }
    // Where the results database is: a file, a postgresql:// address, or
    // empty for BD.sqlite in the current folder (the program gives the choice
    // remembered from the last session).
    void FijarDireccionBaseDatos(const QString& direccion);

public slots:
    void cmdElegirComburente_Click();
    void cmdCombustible_Click();
    void cmdCarCombustion_Click();
    void cmdCarCiclo_Click();
    void cmdInforme_Click();
    void cmdEnvBaseDatos_Click();
    void chkVerHs_Click();
    void pctPV_DblClick();
    void pctTV_KeyPress(int caracter);
    void txtCilindrada_Click();
    void txtRpm_Change();
    void txtRpm_Click();
    void pctPV_Click();
    void pctTV_Click();
    void pctTS_Click();
    void pctHS_Click();
    void pctPV_MouseMove(int boton, int mayusculas, float x, float y);
    void pctTV_MouseMove(int boton, int mayusculas, float x, float y);

    void mnuNuevo_Click();
    void mnuAbrirBD_Click();
    void mnuAbrirInforme_Click();
    void mnuInforme_Click();
    void mnuBDatos_Click();
    void mnuElegirBD_Click();
    void mnuGuardarTexto_Click();
    void mnuGuardarHTML_Click();
    void mnuVerTodo_Click();
    void mnuPV_Click();
    void mnuTV_Click();
    void mnuTS_Click();
    void mnuHS_Click();
    void mnuCalcular_Click();
    void mnuTablasActual_Click();
    void mnuTablas_Click();
    void mnuEstudio_Click();
    void mnuAyuda2_Click();
    void mnuAcercaDe_Click();
    // The diagrams (with scales) and charts of the calculation as figures.
    void mnuExportarDiagramas_Click();
    // The calculation beside saved ones on common diagrams.
    void mnuComparar_Click();
    // Ver › Combustión con disociación: the cycle in chemical equilibrium
    // beside the calculation's.
    void mnuDisociacion_Click();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void CrearControles();
    void CrearMenus();
    void CrearTablaPuntos();
    void CrearTablaTransformaciones();
    void CrearPotencia();
    void CrearEstadoActual();
    void Form_Load();
    void AbrirAyuda();
    void MostrarModal(QDialog& ventana);
    SuperficieQt* SuperficieDe(Diagrama d) const;
    // What the workflow's transitions run: the places shown, then CalcularCiclo
    // with the cycle window's inputs as they stand.
    CalculoCiclo CalcularCicloActual();
    void MostrarLectura();
    // The seven pictures, in the order of pct1, pct2, pct3, pctPV, pctTV,
    // pctTS, pctHS.
    std::array<QImage, 7> Imagenes() const;
    VentanaHerramientas& Herramientas();
    VentanaBaseDatos& BaseDatos();
    // The inner layouts of the frames, in proportion to their own size.
    void DistribuirBotonesResultados();
    void DistribuirPuntos();
    void DistribuirTransformaciones();
    void DistribuirPotencia();
    void DistribuirEstadoActual();
    // The strip of the warnings and the efficiencies, under the readout.
    void DistribuirConfianza();
    // The places that only the start gives: the splash, and pctHS until an
    // enlarged view places it.
    void PresentacionInicial();
    // Shows the workflow's value: places, what is enabled, in view and marked.
    void Mostrar();
    // The window on the desktop: its shortcuts, the names a screen reader
    // reads, its remembered size; its places follow a new size at once and
    // its pictures are drawn again at theirs when the size settles.
    void PrepararEscritorio(bool tamanoRecordado);
    void CrearAtajos();
    void NombrarParaLectores();
    void DistribuirEscritorio();
    void DibujarAlTamano();
    void PonerInforme(const std::string& texto);
    void MostrarResultados(const TextosResultados& textos);
    // The inputs a stage window calculated with, kept for the next snapshot.
    void Aplicar(EtapaEntrada etapa, const Entradas& x);
    // What a stage window's end changes in the workflow and the panels.
    void EtapaTerminada(Etapa etapa, bool calculada);
    // The readout strip as it starts, with no state under the pointer.
    void VaciarLectura();
    // The banner over the results after a failed calculation.
    void DistribuirIntentoFallido();

    Estado& e_;
    std::unique_ptr<Dialogos> dlgPropios_;
    Dialogos* dlg_;
    std::string txtInformeF1_;
    double wcicloEnPantalla_ = 0;
    std::function<void(QDialog&)> mostrarModal_;

    // Drawing surfaces.
    SuperficieQt* pct1_ = nullptr;
    SuperficieQt* pct2_ = nullptr;
    SuperficieQt* pct3_ = nullptr;
    SuperficieQt* pctPV_ = nullptr;
    SuperficieQt* pctTV_ = nullptr;
    SuperficieQt* pctTS_ = nullptr;
    SuperficieQt* pctHS_ = nullptr;
    Diagramas diagramas_;

    QWidget* central_ = nullptr;
    QLabel* imgPresentacion_ = nullptr;

    QGroupBox* fraBotonera_ = nullptr;
    QPushButton* cmdElegirComburente_ = nullptr;
    QPushButton* cmdCombustible_ = nullptr;
    QPushButton* cmdCarCombustion_ = nullptr;
    QPushButton* cmdCarCiclo_ = nullptr;
    QPushButton* cmdInforme_ = nullptr;
    QPushButton* cmdEnvBaseDatos_ = nullptr;
    QCheckBox* chkVerHs_ = nullptr;

    // Table of states.
    QGroupBox* fraPuntos_ = nullptr;
    QLabel* cabezaPuntos_[5] = {};        // lblP, lblV, lblT, lblH, lblS
    QLabel* filaPuntos_[5] = {};          // lbl1 … lbl5
    CeldaCifra* celdaPuntos_[5][5] = {};  // [column p, V, T, h, s][state 1 … 5]
    QFrame* lv_[5] = {};                  // lv1 … lv5
    QFrame* lh_[5] = {};                  // lh1 … lh5

    // Table of processes.
    QGroupBox* fraTransformaciones_ = nullptr;
    QLabel* filaTransformaciones_[5] = {};    // lbl12, lbl23, lbl34, lbl45, lblCiclo
    QLabel* cabezaTransformaciones_[5] = {};  // Label12 Q, Label13 W, Label14 n, Label23 gamma, Label15 Rend.
    QLabel* unidadQ_ = nullptr;               // Label20
    QLabel* unidadW_ = nullptr;               // Label22
    CeldaCifra *lblW12_ = nullptr, *lblG12_ = nullptr, *lblG2_ = nullptr, *lblQ23_ = nullptr,
               *lblQ34_ = nullptr, *lblW34_ = nullptr, *lblW45_ = nullptr, *lblG45_ = nullptr,
               *lblG5_ = nullptr, *lblQciclo_ = nullptr, *lblWciclo_ = nullptr, *lblRen_ = nullptr;
    QFrame* lhT_[5] = {};  // lh6 … lh10
    QFrame* lvT_[4] = {};  // lv6 … lv9

    // Power and consumption.
    QGroupBox* fraPotencia_ = nullptr;
    QLineEdit *txtRpm_ = nullptr, *txtPotencia_ = nullptr, *txtPotenciaCV_ = nullptr,
              *txtCilindrada_ = nullptr, *txtConsumoMJ_ = nullptr, *txtConsumoKwh_ = nullptr;
    QLabel *Label28_ = nullptr, *Label30_ = nullptr, *Label29_ = nullptr, *Label33_ = nullptr,
           *Label35_ = nullptr, *Label34_ = nullptr, *Label31_ = nullptr, *Label32_ = nullptr;

    // The readout of the state under the pointer.
    QGroupBox* fraEstadoActual_ = nullptr;
    QLabel* nombreEstado_[5] = {};     // "p = " … "s ="
    CeldaCifra* valorEstado_[5] = {};  // lblPmouseVal … lblSmouseVal
    QLabel* unidadEstado_[5] = {};     // "Pa" … "J/(mol·K)"
    QLineEdit* txtTransformacion_ = nullptr;

    // The validity warnings and the distance to the ideal cycle.
    PanelConfianza* panelConfianza_ = nullptr;
    // Over the results while the last calculation failed.
    QLabel* lblIntentoFallido_ = nullptr;

    // Menus.
    QMenu *mnuArchivo_ = nullptr, *mnuGuardar_ = nullptr, *mnuVer_ = nullptr, *mnuVerCiclo_ = nullptr,
          *mnuHerramientas_ = nullptr, *mnuAyuda_ = nullptr;
    QAction *mnuNuevo_ = nullptr, *mnuAbrirBD_ = nullptr, *mnuAbrirInforme_ = nullptr, *mnuInforme_ = nullptr,
            *mnuBDatos_ = nullptr, *mnuGuardarTexto_ = nullptr, *mnuGuardarHTML_ = nullptr,
            *mnuVerTodo_ = nullptr, *mnuPV_ = nullptr, *mnuTV_ = nullptr, *mnuTS_ = nullptr,
            *mnuHS_ = nullptr, *mnuCalcular_ = nullptr, *mnuTablasActual_ = nullptr, *mnuTablas_ = nullptr,
            *mnuAyuda2_ = nullptr, *mnuAcercaDe_ = nullptr, *mnuExportarDiagramas_ = nullptr,
            *mnuComparar_ = nullptr, *mnuElegirBD_ = nullptr, *mnuDisociacion_ = nullptr;

    VentanaAire* ventanaAire_ = nullptr;
    VentanaCombustible* ventanaCombustible_ = nullptr;
    VentanaCombustion* ventanaCombustion_ = nullptr;
    VentanaCiclo* ventanaCiclo_ = nullptr;

    Flujo flujo_;
    LecturaEstado lectura_;
    std::unique_ptr<VentanaHerramientas> ventanaHerramientas_;
    // Herramientas › Estudio paramétrico, made at its first opening.
    QAction* mnuEstudio_ = nullptr;
    std::unique_ptr<VentanaEstudio> ventanaEstudio_;
    std::unique_ptr<VentanaBaseDatos> ventanaBaseDatos_;
    QString direccionBaseDatos_;
    // The report windows and the buffer rthInforme, which lives with them.
    std::unique_ptr<VisoresInforme> visores_;
    Entradas aplicadas_;
    std::shared_ptr<const ResultadoCalculo> calculo_;
    // The cycles with dissociation of calculo_, once asked for.
    std::shared_ptr<const equilibrio::CiclosConDisociacion> disociacion_;
    std::unique_ptr<VentanaDisociacion> ventanaDisociacion_;
    const equilibrio::CiclosConDisociacion& Disociacion();
    // While the last calculation failed: a copy of the state of the figures
    // on screen, which the readout works on.
    std::unique_ptr<Estado> estadoEnPantalla_;

    // The view whose places the pictures on show were drawn in; how many of
    // the composition charts the stage windows have drawn (1 to 3).
    Vista vistaDibujada_ = Vista::General;
    int graficasDibujadas_ = 0;
    QTimer* redibujo_ = nullptr;
    QAction* mnuSalir_ = nullptr;
};

}  // namespace vanta
