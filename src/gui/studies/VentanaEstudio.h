// The window "Estudio paramétrico": one or two inputs varied on top of the
// current calculation's inputs, the outputs chosen, the points run on every
// core while the window stays responsive (a progress bar and Cancelar), then a
// plot of each output against the first input, one line for each value of
// the second, and a table of the points; the table goes out as CSV or to the
// clipboard, the plots as PNG or SVG.
#pragma once

#include <QDialog>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "core/studies/Estudio.h"
#include "gui/services/Dialogos.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QTabWidget;
class QTableWidget;
class QTimer;
class QChartView;

namespace vanta {

class DialogosArchivo;

class VentanaEstudio : public QDialog {
    Q_OBJECT

public:
    // base: the inputs of the current calculation, asked each time the window
    // is shown and each time a study starts. separador: the decimal separator
    // of the numbers shown. archivos: the file dialogs (the real ones when
    // null).
    VentanaEstudio(std::function<Entradas()> base, Dialogos& dlg, char separador,
                   DialogosArchivo* archivos = nullptr, QWidget* padre = nullptr);
    // A study under way is cancelled and waited for.
    ~VentanaEstudio() override;

    // Shows the window with the current calculation's inputs.
    void Mostrar();
    bool Calculando() const { return hilo_.joinable(); }

    // The study last run and the results of its points (those done, when it
    // was cancelled).
    const Estudio& estudio() const { return estudio_; }
    const std::vector<ResultadoPunto>& Resultados() const { return resultados_; }
    // The plots, one an output.
    const std::vector<QChartView*>& Graficas() const { return graficas_; }

public slots:
    void cmdCalcular_Click();
    void cmdCancelar_Click();
    void cmdExportarCSV_Click();
    void cmdExportarPNG_Click();
    void cmdExportarSVG_Click();
    void cmdCopiar_Click();

private:
    void CrearControles();
    void ElegirEntrada(int cual);
    void MostrarBase();
    // The study from the controls; false, with a message told, when it
    // cannot run.
    bool LeerEstudio(Estudio& estudio);
    // Takes the points the run has handed over; ends the run when it is done.
    void Recoger();
    void Terminar();
    void LlenarTabla();
    void DibujarGraficas();
    // The plots laid out in a grid, as one picture of the size given.
    void PintarGraficas(class QPainter& pintor, const QSize& tamano) const;
    QSize TamanoExportacion() const;
    // An export's file written whole; a failure is told.
    void Escribir(const QString& archivo, std::string_view bytes);
    void HabilitarResultados();

    std::function<Entradas()> base_;
    Dialogos& dlg_;
    char separador_;
    std::unique_ptr<DialogosArchivo> archivosPropios_;
    DialogosArchivo* archivos_;

    QLabel* lblBase_;
    QComboBox *cboEntrada1_, *cboEntrada2_;
    QLineEdit *txtValores1_, *txtValores2_;
    QListWidget* lstSalidas_;
    QPushButton *cmdCalcular_, *cmdCancelar_;
    QProgressBar* prgAvance_;
    QLabel* lblAvance_;
    QTabWidget* tabResultados_;
    QScrollArea* desplazamiento_;
    QWidget* panelGraficas_;
    QGridLayout* rejillaGraficas_;
    QTableWidget* tblPuntos_;
    QPushButton *cmdExportarCSV_, *cmdExportarPNG_, *cmdExportarSVG_, *cmdCopiar_;
    QCheckBox* chkCsvEspanol_;
    QTimer* temporizador_;
    std::vector<QChartView*> graficas_;

    // The run: the points arrive from the calculating thread through llegados_.
    Estudio estudio_;
    std::vector<ResultadoPunto> resultados_;
    std::thread hilo_;
    std::atomic<bool> cancelar_{false};
    std::atomic<bool> terminado_{false};
    std::mutex mutex_;
    std::vector<std::pair<size_t, ResultadoPunto>> llegados_;
};

}  // namespace vanta
