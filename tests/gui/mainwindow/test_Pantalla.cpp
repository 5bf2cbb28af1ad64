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
#include <functional>
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

        VentanaComparacion comparacion({CalculoDeResultado("Cálculo actual", *p.f.CalculoActual())}, '.', p.dlg,
                                       &p.f);
        VentanaTablas tablas(&p.f);
        // Each window opened alone over the main one, as the user opens it.
        const std::tuple<std::function<void()>, std::function<QWidget*()>, const char*> ventanas[] = {
            {[] {}, [&] { return &p.f; }, "pantalla-1024-principal.png"},
            {[&] { p.Menu("mnuEstudio")->trigger(); }, [] { return Abierta("VentanaEstudio"); },
             "pantalla-1024-estudio.png"},
            {[&] { comparacion.show(); }, [&] { return &comparacion; }, "pantalla-1024-comparacion.png"},
            {[&] { tablas.Mostrar(); }, [&] { return &tablas; }, "pantalla-1024-tablas.png"},
            {[&] { p.Menu("mnuAbrirBD")->trigger(); }, [] { return Abierta("VentanaBaseDatos"); },
             "pantalla-1024-base-datos.png"}};
        QStringList fuera;
        for (const auto& [abrir, ventana, captura] : ventanas) {
            abrir();
            QWidget* w = ventana();
            QVERIFY(w && QTest::qWaitForWindowExposed(w));
            // The window manager puts its frame on, and the window moves in.
            QTest::qWait(500);
            if (const QString f = NoCabe(w); !f.isEmpty()) fuera << f;
            Capturar(w, captura);
            // Resizable: smaller down to what its controls need, and back.
            const QSize antes = w->size();
            const QSize menor = (antes - QSize(60, 40)).expandedTo(w->minimumSizeHint());
            QVERIFY2(menor != antes && w->maximumSize() != w->minimumSize(), qPrintable(w->objectName()));
            w->resize(menor);
            QTRY_COMPARE(w->size(), menor);
            w->resize(antes);
            if (w != &p.f) w->hide();
        }
        QVERIFY2(fuera.isEmpty(), qPrintable(fuera.join(QLatin1Char('\n'))));
    }
};

static Registrar<PruebaPantalla> registro;

#include "test_Pantalla.moc"
