// The main window at the sizes of real screens, a whole calculation from the
// keyboard alone, and every window as a screen reader walks it.
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "core/reports/ArchivosInforme.h"
#include "core/sequence/Calculo.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/reports/VisoresInforme.h"
#include "gui/services/SuperficiesSinVentana.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// The rules of the tables are lines between the cells, not controls.
bool EsRegla(const QWidget* w) {
    const auto* f = qobject_cast<const QFrame*>(w);
    return f && (f->frameShape() == QFrame::HLine || f->frameShape() == QFrame::VLine);
}

QList<QWidget*> EnVista(const QWidget* contenedor) {
    QList<QWidget*> l;
    for (QWidget* w : contenedor->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (w->isVisible() && !EsRegla(w) && !w->isWindow()) l << w;
    return l;
}

// The pair by its names, a cell's without its state's number.
QString Par(const QWidget* a, const QWidget* b) {
    QString x = a->objectName(), y = b->objectName();
    if (x.startsWith(QLatin1String("lbl"))) x.remove(QRegularExpression(QStringLiteral("[0-9]$")));
    if (y.startsWith(QLatin1String("lbl"))) y.remove(QRegularExpression(QStringLiteral("[0-9]$")));
    return x < y ? x + '/' + y : y + '/' + x;
}

// What the described proportions lay over each other: the frames of the
// stage buttons and of the states over the foot of the air chart, the table
// of processes and the database button over the left edge of T-V, the
// insets, the frames that meet by a pixel, and the cells of h and s.
const QStringList kSolapesDelDiseno = {
    "fraBotonera/pct1", "fraPuntos/pct1", "fraTransformaciones/pctTV", "cmdEnvBaseDatos/pctTV",
    "pctPV/pctTS",      "pctHS/pctTV",    "fraBotonera/fraPuntos",     "fraBotonera/fraPotencia",
    "fraPotencia/fraPuntos", "fraPotencia/fraTransformaciones", "lblH/lbls", "lblH/lblS"};

// The overlaps of the controls in view: none, but for the design's own,
// which grow no more than the window.
QString Solapes(const QWidget* contenedor, const QMap<QString, QSize>& alDiseno, double sx, double sy) {
    QString d;
    const QList<QWidget*> w = EnVista(contenedor);
    for (qsizetype i = 0; i < w.size(); ++i)
        for (qsizetype j = i + 1; j < w.size(); ++j) {
            const QRect comun = w[i]->geometry() & w[j]->geometry();
            if (comun.isEmpty()) continue;
            const QString par = Par(w[i], w[j]);
            const QSize disenado = alDiseno.value(par, QSize(-1, -1));
            if (!kSolapesDelDiseno.contains(par) ||
                (disenado.isValid() && (comun.width() > disenado.width() * sx + 2 ||
                                        comun.height() > disenado.height() * sy + 2)))
                d += QStringLiteral(" %1 (%2x%3)").arg(par).arg(comun.width()).arg(comun.height());
        }
    return d;
}

// The bounding box of what is drawn on a picture, as shares of its size.
QSizeF Dibujado(const QImage& imagen, QRgb fondo) {
    int derecha = -1, abajo = -1;
    const QImage i = imagen.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x)
            if (i.pixel(x, y) != fondo) derecha = std::max(derecha, x), abajo = std::max(abajo, y);
    return {double(derecha + 1) / i.width(), double(abajo + 1) / i.height()};
}

// A key as the user gives it: to the control that has the focus in the
// window that has it.
void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mod = {}) {
    QWidget* activa = QApplication::activePopupWidget();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (!activa && w->windowHandle() && w->windowHandle() == QGuiApplication::focusWindow()) activa = w;
    QVERIFY(activa);
    QWidget* foco = activa->focusWidget() ? activa->focusWidget() : activa;
    QTest::keyClick(foco, tecla, mod);
}

QWidget* Abierta(const char* nombre) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nombre) && w->isVisible()) return w;
    return nullptr;
}

const QSet<QAccessible::Role> kInteractivos = {
    QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::ComboBox,
    QAccessible::EditableText, QAccessible::SpinBox, QAccessible::Slider, QAccessible::List,
    QAccessible::Table, QAccessible::Tree, QAccessible::PageTab, QAccessible::ButtonMenu};

void SinNombre(QAccessibleInterface* i, QStringList& faltan) {
    if (!i || i->state().invisible) return;
    if (kInteractivos.contains(i->role()) && i->text(QAccessible::Name).trimmed().isEmpty())
        faltan << (i->object() ? i->object()->objectName() + '/' + i->object()->metaObject()->className()
                               : QStringLiteral("?"));
    for (int k = 0; k < i->childCount(); ++k) SinNombre(i->child(k), faltan);
}

}  // namespace

class PruebaEscritorio : public QObject {
    Q_OBJECT

private slots:
    // At each size the controls stand in the design's proportions without
    // covering each other, the diagrams fill their share and are drawn at
    // the size shown; the report's pictures keep the design's sizes.
    void laVentanaCreceEnSusProporciones() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3() && p.Etapa4("imgMixto"));
        const QWidget* central = p.f.centralWidget();
        QMap<QString, QSize> alDiseno;
        for (const QSize tamano : {QSize(1024, 768), QSize(1600, 900), QSize(2560, 1440)}) {
            p.f.resize(tamano);
            const QString en = QStringLiteral("%1x%2:").arg(tamano.width()).arg(tamano.height());
            QTRY_COMPARE(p.f.pctPV()->Imagen().size(), p.f.pctPV()->contentsRect().size());
            if (alDiseno.isEmpty()) {
                const QList<QWidget*> w = EnVista(central);
                for (qsizetype i = 0; i < w.size(); ++i)
                    for (qsizetype j = i + 1; j < w.size(); ++j)
                        alDiseno[Par(w[i], w[j])] = (w[i]->geometry() & w[j]->geometry()).size();
            }
            const double sx = tamano.width() / 1024.0, sy = tamano.height() / 768.0;
            QString solapes = Solapes(central, alDiseno, sx, sy);
            for (const char* marco : {"fraBotonera", "fraPuntos", "fraTransformaciones", "fraPotencia",
                                      "fraEstadoActual"})
                solapes += Solapes(p.Control(marco), {}, sx, sy);
            QVERIFY2(solapes.isEmpty(), qPrintable(en + solapes));

            // The diagrams take their share of the window, and every picture
            // is the one drawn afresh at the size of its box.
            const std::tuple<SuperficieQt*, double, double> partes[] = {
                {p.f.pct1(), 0.499, 0.25}, {p.f.pct2(), 0.4995, 0.25}, {p.f.pctPV(), 0.345, 0.32},
                {p.f.pctTV(), 0.35, 0.32}};
            for (auto [s, ancho, altura] : partes)
                QVERIFY2(std::abs(s->width() - ancho * tamano.width()) <= 1 &&
                             std::abs(s->height() - altura * tamano.height()) <= 1,
                         qPrintable(en + s->objectName()));
            SuperficiesSinVentana cajas(p.f.flujo().lugar, p.f.devicePixelRatioF());
            SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
            Calcular(p.f.CalculoActual()->entradas, s);
            const std::array<QImage, 7> esperadas = cajas.Imagenes();
            SuperficieQt* const vistas[] = {p.f.pct1(),  p.f.pct2(),  p.f.pct3(), p.f.pctPV(),
                                            p.f.pctTV(), p.f.pctTS(), p.f.pctHS()};
            for (size_t i = 0; i < 7; ++i)
                QTRY_VERIFY2(vistas[i]->Imagen() == esperadas[i], qPrintable(en + vistas[i]->objectName()));
        }

        // Saved from the largest window, the page's pictures are those of
        // the design's window, as the command line draws them.
        QTemporaryDir carpeta;
        DialogosArchivoGrabados archivos;
        archivos.respuestas << carpeta.filePath(QStringLiteral("ciclo.html"));
        p.f.Visores().FijarDialogosArchivo(archivos);
        p.Menu("mnuGuardarHTML")->trigger();
        SuperficiesSinVentana cajas;
        SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
        Calcular(p.f.CalculoActual()->entradas, s);
        const QImage pv(carpeta.filePath(QStringLiteral("BMPPV.BMP")));
        QCOMPARE(pv.size(), cajas.pctPV.Imagen().size());
        QCOMPARE(pv.convertToFormat(QImage::Format_RGB32), cajas.pctPV.Imagen().convertToFormat(QImage::Format_RGB32));
    }

    // An enlarged diagram stays enlarged at a new size, in the new places.
    void unDiagramaAmpliadoSigueAmpliado() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        p.Menu("mnuTV")->trigger();
        p.f.resize(1600, 900);
        QCOMPARE(p.f.flujo().vista, Vista::TV);
        QCOMPARE(p.f.pctTV()->width(), qRound(0.7 * 1600));
        QTRY_VERIFY(Dibujado(p.f.pctTV()->Imagen(), ColorQt(p.f.pctTV()->Fondo()).rgb()).width() > 0.9);
    }

    // Ctrl+1 … Ctrl+4, Tab to the Mixto cycle and Space, Return to
    // calculate, Alt+A V for the report, Ctrl+S to save it, Esc to close it.
    void unCicloMixtoSoloConElTeclado() {
        Programa p;
        QTemporaryDir carpeta;
        DialogosArchivoGrabados archivos;
        const QString archivo = carpeta.filePath(QStringLiteral("mixto.txt"));
        archivos.respuestas << archivo;
        p.f.Visores().FijarDialogosArchivo(archivos);
        // A window takes the focus as it opens, and gives it back to the
        // main window as it closes, as a window manager has it.
        p.f.FijarMostrarModal([](QDialog& d) {
            d.show();
            d.activateWindow();
        });
        auto activa = [](QWidget* w) {
            w->activateWindow();
            return QTest::qWaitFor([w] { return QGuiApplication::focusWindow() == w->windowHandle(); });
        };
        auto cerrada = [&](QWidget* w) { return !w->isVisible() && activa(&p.f); };
        QVERIFY(activa(&p.f));

        Tecla(Qt::Key_1, Qt::ControlModifier);
        QVERIFY(activa(p.f.Aire()));
        Tecla(Qt::Key_Return);
        QVERIFY(cerrada(p.f.Aire()));
        Tecla(Qt::Key_2, Qt::ControlModifier);
        QVERIFY(activa(p.f.Combustible()));
        // The fuel list has the focus; the first fuel down from its prompt.
        Tecla(Qt::Key_Down);
        QVERIFY(cerrada(p.f.Combustible()));
        Tecla(Qt::Key_3, Qt::ControlModifier);
        QVERIFY(activa(p.f.Combustion()));
        Tecla(Qt::Key_Return);
        QVERIFY(cerrada(p.f.Combustion()));
        Tecla(Qt::Key_4, Qt::ControlModifier);
        QVERIFY(activa(p.f.Ciclo()));
        QWidget* mixto = Hijo<QWidget>(p.f.Ciclo(), "imgMixto");
        for (int i = 0; i < 40 && QApplication::focusWidget() != mixto; ++i) Tecla(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), mixto);
        Tecla(Qt::Key_Space);
        QCOMPARE(p.e.TipoCiclo, std::string("Mixto"));
        Tecla(Qt::Key_Return);
        QVERIFY(cerrada(p.f.Ciclo()));
        QVERIFY(p.f.CalculoActual());

        Tecla(Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        Tecla(Qt::Key_V);
        QTRY_VERIFY(Abierta("VentanaInforme"));
        QWidget* informe = Abierta("VentanaInforme");
        QVERIFY(activa(informe));
        Tecla(Qt::Key_S, Qt::ControlModifier);
        QFile guardado(archivo);
        QVERIFY(guardado.open(QIODevice::ReadOnly));
        QCOMPARE(guardado.readAll(), QByteArray::fromStdString(BytesInformeTexto(p.f.InformeF1())));
        Tecla(Qt::Key_Escape);
        QVERIFY(!informe->isVisible());
    }

    // Every control that takes a press or a text has a name to be read by,
    // in each window the program opens.
    void cadaControlTieneNombre() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3() && p.AbrirCiclo("imgMixto"));
        QStringList faltan;
        auto revisar = [&](QWidget* w) {
            QVERIFY2(w && w->isVisible(), w ? qPrintable(w->objectName()) : "sin ventana");
            QStringList aqui;
            SinNombre(QAccessible::queryAccessibleInterface(w), aqui);
            for (const QString& c : aqui) faltan << w->objectName() + ": " + c;
        };
        revisar(p.f.Ciclo());
        QVERIFY(p.Calcular());
        revisar(&p.f);
        for (QWidget* etapa : std::initializer_list<QWidget*>{p.f.Aire(), p.f.Combustible(), p.f.Combustion()}) {
            etapa->show();
            revisar(etapa);
            etapa->hide();
        }
        QVERIFY(p.Pulsar("cmdInforme"));
        revisar(Abierta("VentanaInforme"));
        for (const char* menu : {"mnuEstudio", "mnuValidacion", "mnuAcercaDe", "mnuAbrirInforme", "mnuTablas"})
            p.Menu(menu)->trigger();
        for (const char* ventana :
             {"VentanaEstudio", "VentanaValidacion", "VentanaAcercaDe", "VentanaMostrarInforme", "VentanaHerramientas"})
            revisar(Abierta(ventana));
        QVERIFY2(faltan.isEmpty(), qPrintable(faltan.join(QStringLiteral("\n"))));
    }
};

static Registrar<PruebaEscritorio> registro;

#include "test_Escritorio.moc"
