#include "gui/studies/VentanaEstudio.h"

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCursor>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSvgGenerator>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <cmath>

#include "core/files/EscribirArchivos.h"
#include "core/services/Numeros.h"
#include "core/studies/TablaEstudio.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/services/Controles.h"
#include "gui/services/Escritorio.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

constexpr const char* kTitulo = "Estudio paramétrico";
constexpr const char* kNinguna = "(ninguna)";
// Beyond this the plots and the table would not be read; the command line
// takes studies of any size.
constexpr size_t kPuntosMaximosVentana = 100'000;
constexpr const char* kMensajeSinSalidas = "Elija al menos una salida del estudio";
constexpr const char* kMensajeNoEscrito = "No se ha podido escribir el archivo ";

constexpr std::string_view kFiltroCSV =
    "Valores separados por comas (*.csv)|*.csv|Todos los archivos (*.*)|*.*|";
constexpr std::string_view kFiltroPNG = "Imagen PNG (*.png)|*.png|Todos los archivos (*.*)|*.*|";
constexpr std::string_view kFiltroSVG = "Imagen SVG (*.svg)|*.svg|Todos los archivos (*.*)|*.*|";

// The values each input offers when it is chosen.
struct Sugerencia {
    const char* nombre;
    const char* valores;
};
constexpr Sugerencia kSugerencias[] = {
    {"rc", "6:14:0.5"},
    {"fr", "0.7:1.2:0.05"},
    {"lambda", "0.8:1.4:0.05"},
    {"cilindrada", "100:1000:100"},
    {"p1", "80000:120000:5000"},
    {"t1", "280:360:10"},
    {"temperatura-ambiente", "260:340:10"},
    {"presion-ambiente", "80000:110000:5000"},
    {"humedad", "0:100:10"},
    {"proporcion-vcte", "0:100:10"},
    {"pmax", "5000000:15000000:1000000"},
    {"n-compresion", "1.3:1.4:0.01"},
    {"n-expansion", "1.2:1.35:0.01"},
    {"rpm", "1000:6000:500"},
};

// The inputs the window varies: the numbers of every fuel and cycle, and the
// choices; the formula of one's own fuel, its composition and the figures that
// go only with it are left to the command line.
bool EnLaVentana(const EntradaEstudio& e) {
    const std::string_view n = e.nombre;
    return n != "formula" && n != "masa" && n != "masa-molecular" && n != "entalpia-formacion";
}

// The pens of the lines, one a value of the second input.
const QColor kColores[] = {QColor(0, 90, 181),   QColor(220, 50, 32), QColor(0, 150, 70),
                           QColor(150, 60, 170), QColor(230, 140, 0), QColor(0, 160, 170),
                           QColor(120, 80, 40),  QColor(90, 90, 90)};

QString Q(const std::string& t) {
    return QString::fromStdString(t);
}

std::string Sugerido(const EntradaEstudio& e) {
    for (const Sugerencia& s : kSugerencias)
        if (std::string_view(s.nombre) == e.nombre) return s.valores;
    std::string lista;
    for (const std::string& v : ValoresEleccion(e.nombre)) lista += (lista.empty() ? "" : ",") + v;
    return lista;
}

const EntradaEstudio* EntradaDe(const QComboBox* lista) {
    return BuscarEntradaEstudio(lista->currentData().toString().toStdString());
}

// The text that names a line: the value of the second input.
QString NombreLinea(const Estudio& estudio, size_t punto, char separador) {
    if (estudio.variaciones.size() < 2) return {};
    const Variacion& v = estudio.variaciones[1];
    const EntradaEstudio* e = BuscarEntradaEstudio(v.nombre);
    const std::string valor = TextoEntrada(estudio, 1, punto, separador);
    if (!e->Numerica()) return Q(valor);
    return Q(v.nombre + " = " + valor + (e->unidad == "-" ? "" : " " + std::string(e->unidad)));
}

}  // namespace

VentanaEstudio::VentanaEstudio(std::function<Entradas()> base, Dialogos& dlg, char separador,
                               DialogosArchivo* archivos, QWidget* padre)
    : QDialog(padre), base_(std::move(base)), dlg_(dlg), separador_(separador) {
    if (!archivos) archivosPropios_ = std::make_unique<DialogosArchivoQt>();
    archivos_ = archivos ? archivos : archivosPropios_.get();
    setObjectName(QStringLiteral("VentanaEstudio"));
    setWindowTitle(QString::fromUtf8(kTitulo));
    setModal(false);
    CrearControles();
    temporizador_ = new QTimer(this);
    temporizador_->setInterval(50);
    connect(temporizador_, &QTimer::timeout, this, &VentanaEstudio::Recoger);
    CuidarVentana(this, QStringLiteral("estudio"), {1000, 760}, false);
    RecordarOpciones(this, QStringLiteral("estudio"),
                     {cboEntrada1_, txtValores1_, cboEntrada2_, txtValores2_, lstSalidas_, chkCsvEspanol_});
}

VentanaEstudio::~VentanaEstudio() {
    cancelar_ = true;
    if (hilo_.joinable()) hilo_.join();
}

void VentanaEstudio::CrearControles() {
    auto* principal = new QVBoxLayout(this);

    lblBase_ = NuevaEtiqueta(this, "lblBase", "");
    lblBase_->setWordWrap(true);
    principal->addWidget(lblBase_);

    auto* marcoEntradas = NuevoMarco(this, "fraEntradas", "Entradas variadas");
    auto* rejilla = new QGridLayout(marcoEntradas);
    cboEntrada1_ = new QComboBox(marcoEntradas);
    cboEntrada1_->setObjectName(QStringLiteral("cboEntrada1"));
    cboEntrada2_ = new QComboBox(marcoEntradas);
    cboEntrada2_->setObjectName(QStringLiteral("cboEntrada2"));
    cboEntrada2_->addItem(QString::fromUtf8(kNinguna), QString());
    for (const EntradaEstudio& e : EntradasEstudio()) {
        if (!EnLaVentana(e)) continue;
        const QString texto =
            ATexto(e.titulo) + QStringLiteral(" (") + ATexto(e.nombre) + QStringLiteral(")");
        if (e.Numerica()) cboEntrada1_->addItem(texto, ATexto(e.nombre));
        cboEntrada2_->addItem(texto, ATexto(e.nombre));
    }
    txtValores1_ = NuevaCaja(marcoEntradas, "txtValores1", "");
    txtValores2_ = NuevaCaja(marcoEntradas, "txtValores2", "");
    for (QLineEdit* caja : {txtValores1_, txtValores2_}) caja->setMinimumWidth(100);
    for (QComboBox* lista : {cboEntrada1_, cboEntrada2_}) {
        lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        lista->setMinimumContentsLength(12);
    }
    const char* ayuda = "INICIO:FIN:PASO (8:14:0.5) o una lista (0.8,0.9,1; Gasolina,Gasoil)";
    txtValores1_->setToolTip(QString::fromUtf8(ayuda));
    txtValores2_->setToolTip(QString::fromUtf8(ayuda));
    rejilla->addWidget(NuevaEtiqueta(marcoEntradas, "lblEntrada1", "Primera (eje horizontal)"), 0, 0);
    rejilla->addWidget(cboEntrada1_, 0, 1);
    rejilla->addWidget(txtValores1_, 0, 2);
    rejilla->addWidget(NuevaEtiqueta(marcoEntradas, "lblEntrada2", "Segunda (una línea por valor)"), 1, 0);
    rejilla->addWidget(cboEntrada2_, 1, 1);
    rejilla->addWidget(txtValores2_, 1, 2);
    rejilla->setColumnStretch(2, 1);
    connect(cboEntrada1_, &QComboBox::currentIndexChanged, this, [this] { ElegirEntrada(1); });
    connect(cboEntrada2_, &QComboBox::currentIndexChanged, this, [this] { ElegirEntrada(2); });
    cboEntrada1_->setCurrentIndex(cboEntrada1_->findData(QStringLiteral("rc")));
    ElegirEntrada(1);
    ElegirEntrada(2);

    auto* fila = new QHBoxLayout;
    fila->addWidget(marcoEntradas, 3);
    auto* marcoSalidas = NuevoMarco(this, "fraSalidas", "Salidas");
    auto* cajaSalidas = new QVBoxLayout(marcoSalidas);
    lstSalidas_ = new QListWidget(marcoSalidas);
    lstSalidas_->setObjectName(QStringLiteral("lstSalidas"));
    for (const SalidaEstudio& s : SalidasEstudio()) {
        auto* item = new QListWidgetItem(
            Q(TituloConUnidad(s.titulo, s.unidad)) + QStringLiteral(" — ") + QString::fromUtf8(s.nombre),
            lstSalidas_);
        item->setData(Qt::UserRole, QString::fromUtf8(s.nombre));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(std::string_view(s.nombre) == "rendimiento" ? Qt::Checked : Qt::Unchecked);
    }
    lstSalidas_->setMinimumSize(180, 120);
    cajaSalidas->addWidget(lstSalidas_);
    fila->addWidget(marcoSalidas, 2);
    principal->addLayout(fila);

    auto* filaCalculo = new QHBoxLayout;
    cmdCalcular_ = NuevoBoton(this, "cmdCalcular", "Calcular");
    cmdCancelar_ = NuevoBoton(this, "cmdCancelar", "Cancelar");
    cmdCancelar_->setEnabled(false);
    prgAvance_ = new QProgressBar(this);
    prgAvance_->setObjectName(QStringLiteral("prgAvance"));
    prgAvance_->setValue(0);
    lblAvance_ = NuevaEtiqueta(this, "lblAvance", "");
    filaCalculo->addWidget(cmdCalcular_);
    filaCalculo->addWidget(cmdCancelar_);
    filaCalculo->addWidget(prgAvance_, 1);
    filaCalculo->addWidget(lblAvance_);
    principal->addLayout(filaCalculo);
    connect(cmdCalcular_, &QPushButton::clicked, this, &VentanaEstudio::cmdCalcular_Click);
    connect(cmdCancelar_, &QPushButton::clicked, this, &VentanaEstudio::cmdCancelar_Click);

    tabResultados_ = new QTabWidget(this);
    tabResultados_->setObjectName(QStringLiteral("tabResultados"));
    desplazamiento_ = new QScrollArea(tabResultados_);
    desplazamiento_->setWidgetResizable(true);
    panelGraficas_ = new QWidget;
    panelGraficas_->setObjectName(QStringLiteral("panelGraficas"));
    rejillaGraficas_ = new QGridLayout(panelGraficas_);
    desplazamiento_->setWidget(panelGraficas_);
    tblPuntos_ = new QTableWidget(tabResultados_);
    tblPuntos_->setObjectName(QStringLiteral("tblPuntos"));
    tblPuntos_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabResultados_->addTab(desplazamiento_, QStringLiteral("Gráficas"));
    tabResultados_->addTab(tblPuntos_, QStringLiteral("Tabla de puntos"));
    principal->addWidget(tabResultados_, 1);

    auto* filaExportar = new QHBoxLayout;
    cmdExportarCSV_ = NuevoBoton(this, "cmdExportarCSV", "Exportar CSV…");
    chkCsvEspanol_ =
        NuevaCasilla(this, "chkCsvEspanol", "CSV en español (; y coma decimal)", separador_ == ',');
    cmdExportarPNG_ = NuevoBoton(this, "cmdExportarPNG", "Exportar PNG…");
    cmdExportarSVG_ = NuevoBoton(this, "cmdExportarSVG", "Exportar SVG…");
    cmdCopiar_ = NuevoBoton(this, "cmdCopiar", "Copiar la tabla");
    for (QWidget* w : std::initializer_list<QWidget*>{cmdExportarCSV_, chkCsvEspanol_, cmdExportarPNG_,
                                                      cmdExportarSVG_, cmdCopiar_})
        filaExportar->addWidget(w);
    filaExportar->addStretch(1);
    principal->addLayout(filaExportar);
    connect(cmdExportarCSV_, &QPushButton::clicked, this, &VentanaEstudio::cmdExportarCSV_Click);
    connect(cmdExportarPNG_, &QPushButton::clicked, this, &VentanaEstudio::cmdExportarPNG_Click);
    connect(cmdExportarSVG_, &QPushButton::clicked, this, &VentanaEstudio::cmdExportarSVG_Click);
    connect(cmdCopiar_, &QPushButton::clicked, this, &VentanaEstudio::cmdCopiar_Click);
    HabilitarResultados();
}

void VentanaEstudio::ElegirEntrada(int cual) {
    QComboBox* lista = cual == 1 ? cboEntrada1_ : cboEntrada2_;
    QLineEdit* caja = cual == 1 ? txtValores1_ : txtValores2_;
    const EntradaEstudio* e = EntradaDe(lista);
    caja->setText(e ? Q(Sugerido(*e)) : QString());
    caja->setEnabled(e != nullptr);
}

void VentanaEstudio::MostrarBase() {
    const OpcionesCalculo o = OpcionesDeEntradas(base_());
    std::string texto;
    for (const auto& [nombre, valor] : o.valores)
        texto += (texto.empty() ? "" : ", ") + nombre + " = " + valor;
    lblBase_->setText(
        QStringLiteral("Cálculo de partida: ") +
        (texto.empty() ? QStringLiteral("los valores con que empiezan las pantallas") : Q(texto)));
}

void VentanaEstudio::Mostrar() {
    MostrarBase();
    show();
    raise();
    activateWindow();
}

bool VentanaEstudio::LeerEstudio(Estudio& estudio) {
    estudio = Estudio{};
    estudio.separador = separador_;
    std::vector<std::string> variadas;
    const std::pair<QComboBox*, QLineEdit*> entradas[] = {{cboEntrada1_, txtValores1_},
                                                          {cboEntrada2_, txtValores2_}};
    for (auto [lista, caja] : entradas) {
        const EntradaEstudio* e = EntradaDe(lista);
        if (!e) continue;
        Variacion v;
        v.nombre = e->nombre;
        if (std::string error = LeerValores(caja->text().toStdString(), e->Numerica(), v); !error.empty()) {
            dlg_.MsgBox(std::string(e->titulo) + ": " + error);
            caja->setFocus();
            return false;
        }
        variadas.push_back(v.nombre);
        estudio.variaciones.push_back(std::move(v));
    }
    for (int i = 0; i < lstSalidas_->count(); ++i) {
        const QListWidgetItem* item = lstSalidas_->item(i);
        if (item->checkState() == Qt::Checked)
            estudio.salidas.push_back(BuscarSalidaEstudio(item->data(Qt::UserRole).toString().toStdString()));
    }
    if (estudio.salidas.empty()) {
        dlg_.MsgBox(kMensajeSinSalidas);
        return false;
    }
    // The varied inputs lead, as choosing them on their windows would make them.
    estudio.base = BaseDeVentanas(base_(), variadas);
    if (std::string error = ComprobarEstudio(estudio); !error.empty()) {
        dlg_.MsgBox(error);
        return false;
    }
    if (NumeroPuntos(estudio) > kPuntosMaximosVentana) {
        dlg_.MsgBox("El estudio tiene " + std::to_string(NumeroPuntos(estudio)) +
                    " puntos, demasiados para la ventana (como mucho " +
                    std::to_string(kPuntosMaximosVentana) + "): la orden vanta estudio los calcula todos");
        return false;
    }
    return true;
}

void VentanaEstudio::cmdCalcular_Click() {
    if (Calculando()) return;
    MostrarBase();
    Estudio estudio;
    if (!LeerEstudio(estudio)) return;
    estudio_ = std::move(estudio);
    resultados_.clear();
    llegados_.clear();
    cancelar_ = false;
    terminado_ = false;
    const size_t puntos = NumeroPuntos(estudio_);
    prgAvance_->setRange(0, static_cast<int>(puntos));
    prgAvance_->setValue(0);
    lblAvance_->setText(QStringLiteral("0 de %1 puntos").arg(puntos));
    cmdCalcular_->setEnabled(false);
    cmdCancelar_->setEnabled(true);
    HabilitarResultados();
    // The points run on every core, away from the window's thread; they come
    // back in order through llegados_.
    hilo_ = std::thread([this, puntos] {
        EjecutarEstudio(
            estudio_, 0, puntos, 0,
            [this](size_t punto, ResultadoPunto& r) {
                std::lock_guard l(mutex_);
                llegados_.emplace_back(punto, std::move(r));
            },
            &cancelar_);
        terminado_ = true;
    });
    temporizador_->start();
}

void VentanaEstudio::cmdCancelar_Click() {
    cancelar_ = true;
}

void VentanaEstudio::Recoger() {
    // Whether the run had ended before the last points were taken.
    const bool fin = terminado_;
    std::vector<std::pair<size_t, ResultadoPunto>> llegados;
    {
        std::lock_guard l(mutex_);
        llegados.swap(llegados_);
    }
    for (auto& [punto, r] : llegados) resultados_.push_back(std::move(r));
    prgAvance_->setValue(static_cast<int>(resultados_.size()));
    lblAvance_->setText(
        QStringLiteral("%1 de %2 puntos").arg(resultados_.size()).arg(NumeroPuntos(estudio_)));
    if (fin) Terminar();
}

void VentanaEstudio::Terminar() {
    temporizador_->stop();
    hilo_.join();
    const size_t fallidos = static_cast<size_t>(std::count_if(
        resultados_.begin(), resultados_.end(), [](const ResultadoPunto& r) { return !r.bien; }));
    QString texto = QStringLiteral("%1 de %2 puntos").arg(resultados_.size()).arg(NumeroPuntos(estudio_));
    if (resultados_.size() < NumeroPuntos(estudio_)) texto += QStringLiteral(" (cancelado)");
    if (fallidos) texto += QStringLiteral(", %1 fallidos").arg(fallidos);
    lblAvance_->setText(texto);
    cmdCalcular_->setEnabled(true);
    cmdCancelar_->setEnabled(false);
    LlenarTabla();
    DibujarGraficas();
    HabilitarResultados();
}

void VentanaEstudio::HabilitarResultados() {
    const bool hay = !Calculando() && !resultados_.empty();
    for (QWidget* w :
         std::initializer_list<QWidget*>{cmdExportarCSV_, cmdExportarPNG_, cmdExportarSVG_, cmdCopiar_})
        w->setEnabled(hay);
    for (QWidget* w : std::initializer_list<QWidget*>{cboEntrada1_, cboEntrada2_, lstSalidas_})
        w->setEnabled(!Calculando());
    txtValores1_->setEnabled(!Calculando());
    txtValores2_->setEnabled(!Calculando() && EntradaDe(cboEntrada2_));
}

// ---- The table ---------------------------------------------------------------------

void VentanaEstudio::LlenarTabla() {
    QStringList cabecera;
    for (const Variacion& v : estudio_.variaciones) {
        const EntradaEstudio* e = BuscarEntradaEstudio(v.nombre);
        cabecera << Q(TituloConUnidad(e->nombre, e->unidad));
    }
    for (const SalidaEstudio* s : estudio_.salidas) cabecera << Q(TituloConUnidad(s->nombre, s->unidad));
    cabecera << QStringLiteral("Mensajes");
    tblPuntos_->clear();
    tblPuntos_->setColumnCount(static_cast<int>(cabecera.size()));
    tblPuntos_->setHorizontalHeaderLabels(cabecera);
    tblPuntos_->setRowCount(static_cast<int>(resultados_.size()));
    for (size_t p = 0; p < resultados_.size(); ++p) {
        const ResultadoPunto& r = resultados_[p];
        int c = 0;
        auto celda = [&](const QString& t) {
            auto* item = new QTableWidgetItem(t);
            if (!r.bien) item->setForeground(QColor(180, 0, 0));
            tblPuntos_->setItem(static_cast<int>(p), c++, item);
        };
        for (size_t i = 0; i < estudio_.variaciones.size(); ++i)
            celda(Q(TextoEntrada(estudio_, i, p, separador_)));
        for (size_t j = 0; j < estudio_.salidas.size(); ++j)
            celda(Q(TextoSalida(*estudio_.salidas[j], r.valores[j], separador_)));
        std::string mensajes;
        for (const std::string& m : r.mensajes) mensajes += (mensajes.empty() ? "" : " | ") + m;
        celda(Q(mensajes));
    }
    tblPuntos_->resizeColumnsToContents();
}

void VentanaEstudio::cmdCopiar_Click() {
    // Tab between fields and the window's decimal separator: what a
    // spreadsheet takes from the clipboard.
    QString texto;
    for (int c = 0; c < tblPuntos_->columnCount(); ++c)
        texto += (c ? QStringLiteral("\t") : QString()) + tblPuntos_->horizontalHeaderItem(c)->text();
    texto += QLatin1Char('\n');
    for (int f = 0; f < tblPuntos_->rowCount(); ++f) {
        for (int c = 0; c < tblPuntos_->columnCount(); ++c)
            texto += (c ? QStringLiteral("\t") : QString()) + tblPuntos_->item(f, c)->text();
        texto += QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(texto);
}

void VentanaEstudio::cmdExportarCSV_Click() {
    const QString archivo = archivos_->Guardar(this, DialogoArchivo{kFiltroCSV, "estudio", 0});
    if (archivo.isEmpty()) return;
    const DialectoCSV dialecto = chkCsvEspanol_->isChecked() ? DialectoCSV::Espanol : DialectoCSV::Rfc4180;
    std::string csv = CabeceraCSV(estudio_, dialecto);
    for (size_t p = 0; p < resultados_.size(); ++p) csv += FilaCSV(estudio_, p, resultados_[p], dialecto);
    Escribir(archivo, csv);
}

void VentanaEstudio::Escribir(const QString& archivo, std::string_view bytes) {
    if (const auto fallo = EscribirArchivo(RutaArchivo(archivo), bytes))
        dlg_.MsgBox(kMensajeNoEscrito + archivo.toStdString() + ": " + *fallo);
}

// ---- The plots -----------------------------------------------------------------------

void VentanaEstudio::DibujarGraficas() {
    for (QChartView* v : graficas_) delete v;
    graficas_.clear();
    if (estudio_.variaciones.empty()) return;
    const Variacion& primera = estudio_.variaciones[0];
    const EntradaEstudio* x = BuscarEntradaEstudio(primera.nombre);
    const size_t n1 = primera.Cuenta();
    const size_t lineas = estudio_.variaciones.size() > 1 ? estudio_.variaciones[1].Cuenta() : 1;
    const bool marcas = n1 <= 60;

    for (size_t j = 0; j < estudio_.salidas.size(); ++j) {
        const SalidaEstudio& s = *estudio_.salidas[j];
        auto* grafica = new QChart;
        grafica->setTitle(QString::fromUtf8(s.titulo) + QStringLiteral(" frente a ") +
                          QString::fromUtf8(x->titulo).toLower());
        grafica->setLocalizeNumbers(separador_ == ',');
        grafica->setLocale(separador_ == ',' ? QLocale(QLocale::Spanish) : QLocale::c());
        auto* ejeX = new QValueAxis;
        auto* ejeY = new QValueAxis;
        ejeX->setTitleText(Q(TituloConUnidad(x->titulo, x->unidad)));
        ejeY->setTitleText(Q(TituloConUnidad(s.titulo, s.unidad)));
        // Round ticks (applyNiceNumbers below) in plain figures up to ten digits.
        ejeX->setLabelFormat(QStringLiteral("%.10g"));
        ejeY->setLabelFormat(QStringLiteral("%.10g"));
        grafica->addAxis(ejeX, Qt::AlignBottom);
        grafica->addAxis(ejeY, Qt::AlignLeft);
        double xmin = INFINITY, xmax = -INFINITY, ymin = INFINITY, ymax = -INFINITY;
        for (size_t k = 0; k < lineas; ++k) {
            const QColor color = kColores[k % std::size(kColores)];
            const QString nombre =
                lineas > 1 ? NombreLinea(estudio_, k * n1, separador_) : QString::fromUtf8(s.titulo);
            // A failed point breaks the line: each run of points that ended
            // well is a series of its own, under one name in the legend.
            QLineSeries* tramo = nullptr;
            bool primerTramo = true;
            for (size_t i = 0; i < n1; ++i) {
                const size_t p = k * n1 + i;
                if (p >= resultados_.size()) break;
                const double y = resultados_[p].valores[j];
                const auto xv = LeerNumero(primera.Valor(i));
                if (!resultados_[p].bien || !std::isfinite(y) || !xv) {
                    tramo = nullptr;
                    continue;
                }
                if (!tramo) {
                    tramo = new QLineSeries;
                    tramo->setName(nombre);
                    tramo->setPen(QPen(color, 2));
                    tramo->setColor(color);
                    tramo->setPointsVisible(marcas);
                    grafica->addSeries(tramo);
                    tramo->attachAxis(ejeX);
                    tramo->attachAxis(ejeY);
                    if (!primerTramo)
                        for (QLegendMarker* m : grafica->legend()->markers(tramo)) m->setVisible(false);
                    primerTramo = false;
                    const QString tituloX = Q(primera.nombre), tituloY = QString::fromUtf8(s.nombre),
                                  unidadY = std::string_view(s.unidad) == "-" ? QString()
                                                                              : QString::fromUtf8(s.unidad);
                    connect(
                        tramo, &QLineSeries::hovered, this,
                        [this, tramo, nombre, tituloX, tituloY, unidadY](const QPointF& punto, bool encima) {
                            if (!encima) return QToolTip::hideText();
                            // The point of the line nearest the pointer.
                            const QList<QPointF> puntos = tramo->points();
                            QPointF cerca = puntos.value(0);
                            for (const QPointF& q : puntos)
                                if (std::fabs(q.x() - punto.x()) < std::fabs(cerca.x() - punto.x()))
                                    cerca = q;
                            const char sep = separador_;
                            QString t = tituloX + QStringLiteral(" = ") + Q(TextoGeneral(cerca.x(), sep)) +
                                        QLatin1Char('\n') + tituloY + QStringLiteral(" = ") +
                                        Q(TextoGeneral(cerca.y(), sep));
                            if (!unidadY.isEmpty()) t += QLatin1Char(' ') + unidadY;
                            if (!nombre.isEmpty()) t += QLatin1Char('\n') + nombre;
                            QToolTip::showText(QCursor::pos(), t);
                        });
                }
                tramo->append(*xv, y);
                xmin = std::min(xmin, *xv), xmax = std::max(xmax, *xv);
                ymin = std::min(ymin, y), ymax = std::max(ymax, y);
            }
        }
        if (xmin <= xmax) {
            const double mx = xmax > xmin ? 0 : std::max(1.0, std::fabs(xmin) * 0.05);
            const double my = ymax > ymin ? (ymax - ymin) * 0.05 : std::max(1e-12, std::fabs(ymin) * 0.05);
            ejeX->setRange(xmin - mx, xmax + mx);
            ejeY->setRange(ymin - my, ymax + my);
            ejeX->applyNiceNumbers();
            ejeY->applyNiceNumbers();
        }
        grafica->legend()->setVisible(true);
        grafica->legend()->setAlignment(Qt::AlignBottom);
        auto* vista = new QChartView(grafica, panelGraficas_);
        vista->setObjectName(QStringLiteral("grafica_") + QString::fromUtf8(s.nombre));
        vista->setRenderHint(QPainter::Antialiasing);
        vista->setMinimumSize(440, 320);
        const int n = static_cast<int>(graficas_.size());
        rejillaGraficas_->addWidget(vista, n / 2, n % 2);
        graficas_.push_back(vista);
    }
}

// Each plot goes out at this size, whatever its size in the window.
constexpr QSize kCeldaExportacion(800, 500);

QSize VentanaEstudio::TamanoExportacion() const {
    const int columnas = graficas_.size() > 1 ? 2 : 1;
    const int filas = static_cast<int>((graficas_.size() + 1) / 2);
    return {kCeldaExportacion.width() * columnas, kCeldaExportacion.height() * filas};
}

void VentanaEstudio::PintarGraficas(QPainter& pintor, const QSize& tamano) const {
    pintor.fillRect(QRect(QPoint(), tamano), Qt::white);
    for (size_t i = 0; i < graficas_.size(); ++i) {
        // The plot laid out afresh at the size of its cell, then given back
        // its place in the window.
        QChartView* vista = graficas_[i];
        const QSize antes = vista->size();
        vista->resize(kCeldaExportacion);
        const QRect destino(QPoint(static_cast<int>(i % 2) * kCeldaExportacion.width(),
                                   static_cast<int>(i / 2) * kCeldaExportacion.height()),
                            kCeldaExportacion);
        vista->render(&pintor, destino, vista->rect());
        vista->resize(antes);
    }
}

void VentanaEstudio::cmdExportarPNG_Click() {
    if (graficas_.empty()) return;
    const QString archivo = archivos_->Guardar(this, DialogoArchivo{kFiltroPNG, "estudio", 0});
    if (archivo.isEmpty()) return;
    QImage imagen(TamanoExportacion(), QImage::Format_RGB32);
    {
        QPainter pintor(&imagen);
        pintor.setRenderHint(QPainter::Antialiasing);
        PintarGraficas(pintor, imagen.size());
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    imagen.save(&png, "PNG");
    Escribir(archivo, png.data().toStdString());
}

void VentanaEstudio::cmdExportarSVG_Click() {
    if (graficas_.empty()) return;
    const QString archivo = archivos_->Guardar(this, DialogoArchivo{kFiltroSVG, "estudio", 0});
    if (archivo.isEmpty()) return;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&bytes);
    svg.setSize(TamanoExportacion());
    svg.setViewBox(QRect(QPoint(), TamanoExportacion()));
    svg.setTitle(QString::fromUtf8(kTitulo));
    {
        QPainter pintor(&svg);
        PintarGraficas(pintor, TamanoExportacion());
    }
    Escribir(archivo, bytes.data().toStdString());
}

}  // namespace vanta
