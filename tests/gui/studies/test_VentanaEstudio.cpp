// The study window driven as a user drives it: opened from Herramientas on
// the current calculation, run off the window's thread with its progress and
// Cancelar, plotted with a gap at a failed point, and exported.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include "core/services/Numeros.h"
#include "core/studies/TablaEstudio.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/services/Escritorio.h"
#include "gui/studies/VentanaEstudio.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// The window on the screens' first inputs, its messages and file dialogs kept.
struct EstudioAbierto {
    DialogosGrabados dlg;
    DialogosArchivoGrabados archivos;
    vanta::Entradas base;
    VentanaEstudio f{[this] { return base; }, dlg, '.', &archivos};

    EstudioAbierto() {
        f.Mostrar();
        if (!QTest::qWaitForWindowExposed(&f)) qFatal("la ventana del estudio no aparece");
    }
    void Entradas(const char* primera, const char* valores1, const char* segunda, const char* valores2) {
        auto elegir = [this](const char* lista, const char* nombre) {
            auto* c = Hijo<QComboBox>(&f, lista);
            c->setCurrentIndex(c->findData(QString::fromLatin1(nombre)));
        };
        elegir("cboEntrada1", primera);
        Hijo<QLineEdit>(&f, "txtValores1")->setText(QString::fromUtf8(valores1));
        elegir("cboEntrada2", segunda);
        Hijo<QLineEdit>(&f, "txtValores2")->setText(QString::fromUtf8(valores2));
    }
    void Salidas(std::initializer_list<const char*> nombres) {
        auto* lista = Hijo<QListWidget>(&f, "lstSalidas");
        for (int i = 0; i < lista->count(); ++i) {
            const QString n = lista->item(i)->data(Qt::UserRole).toString();
            const bool marcada = std::any_of(nombres.begin(), nombres.end(),
                                             [&](const char* x) { return n == QLatin1String(x); });
            lista->item(i)->setCheckState(marcada ? Qt::Checked : Qt::Unchecked);
        }
    }
    bool Pulsar(const char* boton) { return Programa::Pulsar(Hijo<QPushButton>(&f, boton)); }
    bool Calcular() {
        if (!Pulsar("cmdCalcular")) return false;
        return QTest::qWaitFor(
            [this] { return !f.Calculando() && Hijo<QPushButton>(&f, "cmdCalcular")->isEnabled(); }, 20000);
    }
};

}  // namespace

class PruebaEstudio : public QObject {
    Q_OBJECT

private slots:
    // Each case from the window as it first opens, with nothing remembered.
    void init() {
        QSettings ajustes = Ajustes();
        ajustes.remove(QStringLiteral("opciones"));
        ajustes.remove(QStringLiteral("ventanas"));
    }

    void seAbreDesdeHerramientasSobreElCalculoActual() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3());
        QVERIFY(p.AbrirCiclo("imgDiesel"));
        Hijo<QLineEdit>(p.f.Ciclo(), "txtRc")->setText(QStringLiteral("18"));
        QVERIFY(p.Calcular());
        p.Menu("mnuEstudio")->trigger();
        auto* f = p.f.findChild<VentanaEstudio*>();
        QVERIFY(f && Programa::Abierta(f));
        QCOMPARE(f->windowTitle(), QStringLiteral("Estudio paramétrico"));
        const QString base = Hijo<QLabel>(f, "lblBase")->text();
        for (const char* parte :
             {"ciclo = Diesel", "combustible = Gasoil", "rc = 18", "fr = 1", "compresion = medio"})
            QVERIFY2(base.contains(QLatin1String(parte)), qPrintable(base));
        // The study runs on those inputs: its points at rc 18 are the cycle's.
        Hijo<QLineEdit>(f, "txtValores1")->setText(QStringLiteral("18"));
        QVERIFY(Programa::Pulsar(Hijo<QPushButton>(f, "cmdCalcular")));
        QVERIFY(QTest::qWaitFor([f] { return !f->Calculando() && !f->Resultados().empty(); }, 20000));
        QCOMPARE(Hijo<QTableWidget>(f, "tblPuntos")->item(0, 1)->text(),
                 Q(TextoGeneral(p.e.Rendimiento, '.')));
    }

    void calculaDibujaConHuecosYExporta() {
        EstudioAbierto v;
        // Wider than the test screen of 800 pixels: the two plots side by
        // side, whole, as on a screen of 1024.
        v.f.setMinimumWidth(1000);
        v.base.rpm = "3000";
        v.Entradas("rc", "8, 0.5, 10, 12", "combustible", "Gasolina,Gasoil");
        v.Salidas({"rendimiento", "potencia"});
        QVERIFY(v.Calcular());
        QVERIFY(v.dlg.mensajes.empty());

        // The table: every point, the refused one with its message.
        auto* tabla = Hijo<QTableWidget>(&v.f, "tblPuntos");
        QCOMPARE(tabla->rowCount(), 8);
        QCOMPARE(tabla->horizontalHeaderItem(2)->text(), QStringLiteral("rendimiento [-]"));
        QCOMPARE(tabla->item(1, 0)->text(), QStringLiteral("0.5"));
        QCOMPARE(tabla->item(1, 2)->text(), QString());
        QCOMPARE(tabla->item(1, 4)->text(), QStringLiteral("La relación de compresión debe ser mayor que 1"));
        QCOMPARE(tabla->item(5, 1)->text(), QStringLiteral("Gasoil"));

        // A plot an output; a line a fuel, broken at the failed point.
        QCOMPARE(v.f.Graficas().size(), size_t(2));
        QChart* grafica = v.f.Graficas()[0]->chart();
        const auto series = grafica->series();
        QCOMPARE(series.size(), 4);
        QCOMPARE(static_cast<QLineSeries*>(series[0])->count(), 1);
        QCOMPARE(static_cast<QLineSeries*>(series[1])->count(), 2);
        QCOMPARE(series[1]->name(), QStringLiteral("Gasolina"));
        QCOMPARE(series[3]->name(), QStringLiteral("Gasoil"));
        // One name a line in the legend, once the plot is laid out.
        auto visibles = [grafica] {
            int n = 0;
            for (QLegendMarker* m : grafica->legend()->markers()) n += m->isVisible();
            return n;
        };
        QTRY_COMPARE(visibles(), 2);
        // The pointer on a point of a line shows its values.
        auto* serie = static_cast<QLineSeries*>(series[3]);
        const QPoint sobre = v.f.Graficas()[0]->mapFromScene(grafica->mapToPosition(serie->at(1), serie));
        QTest::mouseMove(v.f.Graficas()[0]->viewport(), sobre + QPoint(1, 0));
        QTest::mouseMove(v.f.Graficas()[0]->viewport(), sobre);
        QTRY_COMPARE(QToolTip::text(), QStringLiteral("rc = 12\nrendimiento = ") +
                                           Q(TextoGeneral(serie->at(1).y(), '.')) +
                                           QStringLiteral("\nGasoil"));
        QCOMPARE(static_cast<QValueAxis*>(grafica->axes(Qt::Horizontal)[0])->titleText(),
                 QStringLiteral("Relación de compresión [-]"));
        QCOMPARE(static_cast<QValueAxis*>(v.f.Graficas()[1]->chart()->axes(Qt::Vertical)[0])->titleText(),
                 QStringLiteral("Potencia [W]"));

        // CSV as the command line writes it; PNG and SVG of the plots.
        QTemporaryDir dir;
        const QString csv = dir.filePath("e.csv"), png = dir.filePath("e.png"), svg = dir.filePath("e.svg");
        v.archivos.respuestas = {csv, png, svg};
        QVERIFY(v.Pulsar("cmdExportarCSV") && v.Pulsar("cmdExportarPNG") && v.Pulsar("cmdExportarSVG"));
        std::string esperado = CabeceraCSV(v.f.estudio(), DialectoCSV::Rfc4180);
        for (size_t i = 0; i < v.f.Resultados().size(); ++i)
            esperado += FilaCSV(v.f.estudio(), i, v.f.Resultados()[i], DialectoCSV::Rfc4180);
        QFile archivo(csv);
        QVERIFY(archivo.open(QIODevice::ReadOnly));
        QCOMPARE(archivo.readAll().toStdString(), esperado);
        const QImage imagen(png);
        QCOMPARE(imagen.size(), QSize(1600, 500));          // two plots side by side
        QVERIFY(Cuenta(imagen, QColor(0, 90, 181)) > 100);  // the first line's pen
        QFile dibujo(svg);
        QVERIFY(dibujo.open(QIODevice::ReadOnly) && dibujo.readAll().contains("<svg"));

        QVERIFY(v.Pulsar("cmdCopiar"));
        const QStringList lineas =
            QApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lineas.size(), 9);
        QVERIFY(lineas[0].startsWith(QStringLiteral("rc [-]\tcombustible\trendimiento [-]")));
    }

    void cancelarDejaLosPuntosHechosSinBloquearLaVentana() {
        EstudioAbierto v;
        v.Entradas("rc", "8:14:0.001", "", "");
        QVERIFY(v.Pulsar("cmdCalcular"));
        auto* avance = Hijo<QProgressBar>(&v.f, "prgAvance");
        // The window answers while the points run: the bar moves.
        QVERIFY(QTest::qWaitFor([avance] { return avance->value() > 0; }, 20000));
        QVERIFY(v.f.Calculando());
        QVERIFY(!Hijo<QPushButton>(&v.f, "cmdCalcular")->isEnabled());
        QVERIFY(v.Pulsar("cmdCancelar"));
        QVERIFY(QTest::qWaitFor([&v] { return !v.f.Calculando(); }, 20000));
        QVERIFY(v.f.Resultados().size() < 6001);
        QVERIFY(Hijo<QLabel>(&v.f, "lblAvance")->text().contains(QStringLiteral("(cancelado)")));
        QCOMPARE(Hijo<QTableWidget>(&v.f, "tblPuntos")->rowCount(), int(v.f.Resultados().size()));
        QVERIFY(Hijo<QPushButton>(&v.f, "cmdExportarCSV")->isEnabled());
    }

    void entradasQueNoValenNoEmpiezan() {
        EstudioAbierto v;
        const std::pair<std::pair<const char*, const char*>, const char*> casos[] = {
            {{"8:14", "Gasolina"}, "Relación de compresión: un intervalo se escribe"},
            {{"8:14:1", "Gasolina,Queroseno"}, "Combustible: combustible desconocido: Queroseno"},
        };
        for (const auto& [valores, mensaje] : casos) {
            v.dlg.mensajes.clear();
            v.Entradas("rc", valores.first, "combustible", valores.second);
            QVERIFY(v.Pulsar("cmdCalcular"));
            QVERIFY(!v.f.Calculando());
            QCOMPARE(v.dlg.mensajes.size(), size_t(1));
            QVERIFY2(Q(v.dlg.mensajes[0]).startsWith(QString::fromUtf8(mensaje)), v.dlg.mensajes[0].c_str());
        }
        v.dlg.mensajes.clear();
        v.Entradas("rc", "8:14:1", "", "");
        v.Salidas({"potencia"});
        QVERIFY(v.Pulsar("cmdCalcular"));
        QVERIFY(!v.f.Calculando());
        QCOMPARE(v.dlg.mensajes.size(), size_t(1));
    }
};

static Registrar<PruebaEstudio> registro;

#include "test_VentanaEstudio.moc"
