// The validation window from the help menu, and the strip of warnings and
// efficiencies under the results of the main window.
#include <QDir>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "core/warnings/CicloIdeal.h"
#include "gui/validation/PanelConfianza.h"
#include "gui/validation/VentanaValidacion.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

class PruebaValidacion : public QObject {
    Q_OBJECT

    // Pictures for the documentation when VANTA_CAPTURAS names a folder.
    static void Capturar(QWidget* w, const char* nombre) {
        const QString destino = qEnvironmentVariable("VANTA_CAPTURAS");
        if (!destino.isEmpty() && QDir().mkpath(destino))
            w->grab().save(QDir(destino).filePath(QString::fromLatin1(nombre)));
    }

    static bool Rellenar(QLineEdit* caja, const char* texto) {
        caja->setText(QString::fromLatin1(texto));
        return caja->text() == QLatin1String(texto);
    }

private slots:
    void elMenuDeAyudaAbreLaTablaConSusColores() {
        Programa p;
        p.Menu("mnuValidacion")->trigger();
        auto* v = p.f.findChild<VentanaValidacion*>(QStringLiteral("VentanaValidacion"));
        QVERIFY(v && v->isVisible());
        QCOMPARE(v->pestanas()->count(), 5);
        int filas = 0;
        for (auto g : {GrupoValidacion::Especies, GrupoValidacion::Combustibles, GrupoValidacion::Balance,
                       GrupoValidacion::Rendimiento, GrupoValidacion::Equilibrio}) {
            QTableWidget* t = v->Tabla(g);
            for (int i = 0; i < t->rowCount(); ++i) {
                const QString resultado = t->item(i, 5)->text();
                const Resultado r = resultado == Q(TextoResultado(Resultado::Cumple)) ? Resultado::Cumple
                                    : resultado == Q(TextoResultado(Resultado::Explicada))
                                        ? Resultado::Explicada
                                        : Resultado::NoCumple;
                QCOMPARE(t->item(i, 0)->background().color(), ColorResultado(r));
                QVERIFY2(r != Resultado::NoCumple, qPrintable(t->item(i, 0)->text()));
            }
            filas += t->rowCount();
        }
        QCOMPARE(filas, static_cast<int>(v->tabla().filas.size()));
        // A second click raises the same window.
        p.Menu("mnuValidacion")->trigger();
        QCOMPARE(p.f.findChildren<VentanaValidacion*>().size(), 1);
        v->pestanas()->setCurrentIndex(static_cast<int>(GrupoValidacion::Balance));
        Capturar(v, "validacion.png");
        v->pestanas()->setCurrentIndex(static_cast<int>(GrupoValidacion::Equilibrio));
        Capturar(v, "validacion-equilibrio.png");
    }

    void laFranjaMuestraLosAvisosYLosRendimientos() {
        Programa p;
        auto* panel = Hijo<PanelConfianza>(&p.f, "fraConfianza");
        QVERIFY(!panel->isVisible());
        QVERIFY(p.CuatroEtapas());
        QVERIFY(panel->isVisible());
        // Under the readout, inside the window, clear of every control of the
        // results.
        const QRect franja = panel->geometry();
        QVERIFY(franja.top() > p.Control("fraEstadoActual")->geometry().bottom());
        QVERIFY(franja.bottom() < p.f.centralWidget()->height());
        QVERIFY(panel->texto()->text().contains(QStringLiteral("supera 2 500 K")));
        const auto& barras = panel->grafico()->barras();
        QCOMPARE(barras.size(), size_t{3});
        QVERIFY(barras[0].valida && barras[1].valida);
        QCOMPARE(barras[0].rendimiento, RendimientoOttoIdeal(10, kGammaAireEstandar));
        // The ideal cycle named as the validation names it, and said why.
        QVERIFY(barras[0].nombre.startsWith(QStringLiteral("Otto ideal")));
        QVERIFY(
            panel->grafico()->toolTip().startsWith(QStringLiteral("El ciclo Otto ideal de aire estándar")));
        QCOMPARE(barras[2].rendimiento, p.e.Rendimiento);
        Capturar(&p.f, "avisos.png");
        // An enlarged diagram leaves the band free too.
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);
        QVERIFY(p.f.pctPV()->width() > p.f.width() / 2);
        QVERIFY(panel->isVisible());
        QVERIFY(panel->geometry().top() > p.Control("fraEstadoActual")->geometry().bottom());
        Capturar(&p.f, "avisos-ampliado.png");
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);

        // A lean methanol cycle stays on the model's ground: no warning.
        p.Menu("mnuNuevo")->trigger();
        QVERIFY(Programa::Abierta(p.f.Aire()));
        QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.Aire(), "cmdCal")));
        QVERIFY(p.Etapa2(QStringLiteral("Metanol")));
        QVERIFY(p.Pulsar("cmdCarCombustion"));
        auto* fr = Hijo<QLineEdit>(p.f.Combustion(), "txtFr");
        QTest::mouseClick(fr, Qt::LeftButton);
        QVERIFY(Rellenar(fr, "0.6"));
        QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.Combustion(), "cmdCalcular")));
        QVERIFY(p.Etapa4());
        QVERIFY(panel->isVisible());
        QVERIFY2(panel->texto()->text().startsWith(QStringLiteral("Sin avisos")),
                 qPrintable(panel->texto()->text()));
        Capturar(&p.f, "sin-avisos.png");
    }
};

static vanta::pruebas::Registrar<PruebaValidacion> registro;

#include "test_Validacion.moc"
