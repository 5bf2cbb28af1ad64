// Pictures of the windows for the documentation: runs only when VANTA_CAPTURAS
// names a folder, and writes there the main window at each stage and each
// stage window as the user sees it.
#include <QDir>
#include <QTest>

#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

class PruebaCapturas : public QObject {
    Q_OBJECT

    QDir carpeta_;

    void Guardar(QWidget* w, const char* nombre) {
        QVERIFY2(w->grab().save(carpeta_.filePath(QString::fromLatin1(nombre))), nombre);
    }

private slots:
    // A skip here, not in initTestCase: a skipped initTestCase leaves the
    // test library skipping the classes that run after it.
    void lasVentanasDelCiclo() {
        const QString destino = qEnvironmentVariable("VANTA_CAPTURAS");
        if (destino.isEmpty()) QSKIP("VANTA_CAPTURAS no indica una carpeta");
        QVERIFY(QDir().mkpath(destino));
        carpeta_ = QDir(destino);
        Programa p;
        Guardar(&p.f, "ventana-principal-inicio.png");
        QVERIFY(p.Pulsar("cmdElegirComburente"));
        Guardar(p.f.AireHumedad(), "aire.png");
        QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.AireHumedad(), "cmdCal")));
        QVERIFY(p.Pulsar("cmdCombustible"));
        Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Gasolina"));
        QVERIFY(p.Pulsar("cmdCarCombustion"));
        Guardar(p.f.GasesCombustion(), "gases.png");
        QVERIFY(p.Pulsar(Hijo<QPushButton>(p.f.GasesCombustion(), "cmdCalcular")));
        Guardar(&p.f, "ventana-principal-combustion.png");
        QVERIFY(p.Pulsar("cmdCarCiclo"));
        Guardar(p.f.Otto_Diesel(), "ciclo-elegir.png");
        QTest::mouseClick(Hijo<QLabel>(p.f.Otto_Diesel(), "imgMixto"), Qt::LeftButton);
        Programa::Elegir(Hijo<QRadioButton>(p.f.Otto_Diesel(), "optProporcion"));
        Guardar(p.f.Otto_Diesel(), "ciclo.png");
        QVERIFY(p.Calcular());
        Hijo<QLineEdit>(&p.f, "txtRpm")->setText(QStringLiteral("3000"));
        Guardar(&p.f, "ventana-principal.png");

        // The fuel button waits for a new cycle; the window is the same.
        p.f.Combustible()->show();
        Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Otros combustibles"));
        Guardar(p.f.Combustible(), "combustible.png");
    }
};

static vanta::pruebas::Registrar<PruebaCapturas> registro;

#include "test_Capturas.moc"
