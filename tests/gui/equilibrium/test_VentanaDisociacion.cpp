// The cycle with dissociation in the windows: the cycle window's check box
// opens it after CALCULAR with the figures the command line writes, the
// strip tells the temperature in equilibrium, and a new calculation renews
// the window it left open.
#include <QTableWidget>
#include <QTest>

#include "core/equilibrium/InformeDisociacion.h"
#include "core/warnings/Cifras.h"
#include "gui/comparison/VentanaComparacion.h"
#include "gui/equilibrium/VentanaDisociacion.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

class PruebaVentanaDisociacion : public QObject {
    Q_OBJECT

private slots:
    void LaCasillaDelCicloLaAbreConLasCifrasDelNucleo() {
        Programa p;
        QVERIFY(!p.Menu("mnuDisociacion")->isEnabled());
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3() && p.AbrirCiclo("imgOtto"));
        Hijo<QCheckBox>(p.f.Ciclo(), "chkDisociacion")->setChecked(true);
        QVERIFY(p.Calcular());
        auto* v = Hijo<VentanaDisociacion>(&p.f, "VentanaDisociacion");
        QVERIFY(v->isVisible());
        QVERIFY(p.Menu("mnuDisociacion")->isEnabled());

        const auto ciclos = equilibrio::CicloConDisociacion(*p.f.CalculoActual()->estado);
        const auto filas = equilibrio::FilasDisociacion(*p.f.CalculoActual()->estado, ciclos);
        QCOMPARE(v->Tabla()->rowCount(), int(filas.size()));
        for (int i = 0; i < int(filas.size()); ++i) {
            QCOMPARE(v->Tabla()->item(i, 0)->text(), Q(filas[size_t(i)].programa));
            QCOMPARE(v->Tabla()->item(i, 2)->text(), Q(filas[size_t(i)].equilibrio));
        }
        // The default Otto passes 2 500 K: the strip tells the equilibrium's.
        const std::string maxima = "la máxima sería de " +
                                   Cifra(equilibrio::TemperaturaMaximaEquilibrio(ciclos), "### ##0", '.') +
                                   " K.";
        bool dicho = false;
        for (QLabel* l : p.f.findChildren<QLabel*>()) dicho = dicho || l->text().contains(Q(maxima));
        QVERIFY2(dicho, maxima.c_str());

        // A Diesel computed next renews the open window with its own figures.
        QVERIFY(p.AbrirCiclo("imgDiesel") && p.Calcular());
        const auto diesel = equilibrio::FilasDisociacion(
            *p.f.CalculoActual()->estado, equilibrio::CicloConDisociacion(*p.f.CalculoActual()->estado));
        QCOMPARE(v->Tabla()->item(2, 2)->text(), Q(diesel[2].equilibrio));
        QVERIFY(v->Tabla()->item(2, 2)->text() != Q(filas[2].equilibrio));
    }

    void LosDiagramasLlevanLosDosCiclos() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        p.Menu("mnuDisociacion")->trigger();
        auto* v = Hijo<VentanaDisociacion>(&p.f, "VentanaDisociacion");
        QVERIFY(QTest::qWaitForWindowExposed(v));
        // Each diagram draws the program's cycle in its colour and the
        // equilibrium's, dashed, in the second.
        for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS}) {
            const QImage i = v->Lienzo(d)->grab().toImage();
            int programa = 0, equilibrio = 0;
            for (int y = 0; y < i.height(); ++y)
                for (int x = 0; x < i.width(); ++x) {
                    const QRgb c = i.pixel(x, y);
                    programa += c == QColor(0, 90, 200).rgb();
                    equilibrio += c == QColor(210, 40, 40).rgb();
                }
            QVERIFY2(programa > 50 && equilibrio > 50, qPrintable(QString::number(int(d))));
        }
    }
};

static Registrar<PruebaVentanaDisociacion> registro;

#include "test_VentanaDisociacion.moc"
