// Every window the program opens fits the free area of the screen with its
// frame and can be resized: the main window at its starting size, the
// parametric study, the comparison, the property tables viewer and the
// database browser. On the offscreen platform with the suite; under a window
// manager on a 1024 x 768 screen with pantalla_real.sh, which also keeps
// pictures of the screen when VANTA_CAPTURAS names a folder.
#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "core/comparison/Calculos.h"
#include "gui/comparison/VentanaComparacion.h"
#include "gui/services/Escritorio.h"
#include "gui/tables/VentanaTablas.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

QWidget* Abierta(const char* nombre) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nombre) && w->isVisible()) return w;
    return nullptr;
}

// Where the window stands with its frame, and what is wrong with it.
QString NoCabe(QWidget* w) {
    const QRect libre = w->screen()->availableGeometry();
    const QRect marco = w->geometry().marginsAdded(MarcoVentana(w));
    if (!libre.contains(marco))
        return QStringLiteral("%1: %2,%3 %4x%5 fuera de %6x%7")
            .arg(w->objectName())
            .arg(marco.x())
            .arg(marco.y())
            .arg(marco.width())
            .arg(marco.height())
            .arg(libre.width())
            .arg(libre.height());
    return {};
}

void Capturar(QWidget* w, const char* nombre) {
    const QString carpeta = qEnvironmentVariable("VANTA_CAPTURAS");
    if (carpeta.isEmpty()) return;
    QDir().mkpath(carpeta);
    w->raise();
    w->activateWindow();
    QTest::qWait(400);
    w->screen()->grabWindow(0).save(QDir(carpeta).filePath(QString::fromLatin1(nombre)));
}

}  // namespace

class PruebaPantalla : public QObject {
    Q_OBJECT

private slots:
    void cadaVentanaCabeYSeAgranda() {
        Programa p{QSize()};
        QVERIFY(p.CuatroEtapas());
        QTemporaryDir carpeta;
        p.f.FijarDireccionBaseDatos(carpeta.filePath(QStringLiteral("BD.sqlite")));

        p.Menu("mnuEstudio")->trigger();
        VentanaComparacion comparacion({CalculoDeResultado("Cálculo actual", *p.f.CalculoActual())}, '.', p.dlg,
                                       &p.f);
        comparacion.show();
        VentanaTablas tablas(&p.f);
        tablas.Mostrar();
        p.Menu("mnuAbrirBD")->trigger();

        QStringList fuera;
        const std::pair<QWidget*, const char*> ventanas[] = {{&p.f, "pantalla-1024-principal.png"},
                                                            {Abierta("VentanaEstudio"), "pantalla-1024-estudio.png"},
                                                            {&comparacion, "pantalla-1024-comparacion.png"},
                                                            {&tablas, "pantalla-1024-tablas.png"},
                                                            {Abierta("VentanaBaseDatos"), "pantalla-1024-base-datos.png"}};
        for (auto [w, captura] : ventanas) {
            QVERIFY(w && QTest::qWaitForWindowExposed(w));
            // The window manager puts its frame on, and the window moves in.
            QTest::qWait(500);
            if (const QString f = NoCabe(w); !f.isEmpty()) fuera << f;
            Capturar(w, captura);
            const QSize antes = w->size();
            w->resize(antes - QSize(60, 40));
            QTRY_COMPARE(w->size(), antes - QSize(60, 40));
            w->resize(antes);
        }
        QVERIFY2(fuera.isEmpty(), qPrintable(fuera.join(QLatin1Char('\n'))));
    }
};

static Registrar<PruebaPantalla> registro;

#include "test_Pantalla.moc"
