// The windows on the desktop: the main window at the sizes of real screens, a
// whole calculation from the keyboard alone, every window as a screen reader
// walks it, and every window inside the screen's free area (PruebaPantalla,
// also run on a real X screen of 1024 x 768 under a window manager by
// pantalla_real.sh, which keeps pictures of the screen when VANTA_CAPTURAS
// names a folder).
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "core/comparison/Calculos.h"
#include "core/reports/ArchivosInforme.h"
#include "core/sequence/Calculo.h"
#include "gui/comparison/VentanaComparacion.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/reports/VisoresInforme.h"
#include "gui/services/Escritorio.h"
#include "gui/services/SuperficiesSinVentana.h"
#include "gui/tables/VentanaTablas.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// The controls in view directly inside w; the rules of the tables are lines
// between the cells, not controls.
QList<QWidget*> EnVista(const QWidget* w) {
    QList<QWidget*> l;
    for (QWidget* c : w->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const auto* f = qobject_cast<const QFrame*>(c);
        if (c->isVisible() && !(f && (f->frameShape() == QFrame::HLine || f->frameShape() == QFrame::VLine)))
            l << c;
    }
    return l;
}

// A pair by its names, a cell's without its state's number.
QString Par(const QWidget* a, const QWidget* b) {
    const QRegularExpression numero(QStringLiteral("^(lbl.*)[0-9]$"));
    QString x = a->objectName().replace(numero, QStringLiteral("\\1")),
            y = b->objectName().replace(numero, QStringLiteral("\\1"));
    return x < y ? x + '/' + y : y + '/' + x;
}

// What the layout's own proportions lay over each other: the frames of the
// stage buttons and of the states over the foot of the air chart, the table
// of processes and the database button over the left edge of T-V, the
// insets, frames that meet by a pixel, and the cells of h and s.
const QStringList kSolapesDelDiseno =
    QStringLiteral(
        "fraBotonera/pct1 fraPuntos/pct1 fraTransformaciones/pctTV cmdEnvBaseDatos/pctTV pctPV/pctTS "
        "pctHS/pctTV fraBotonera/fraPuntos fraBotonera/fraPotencia fraPotencia/fraPuntos "
        "fraPotencia/fraTransformaciones lblH/lbls lblH/lblS")
        .split(QLatin1Char(' '));

// The overlaps of the controls in view: the design's own only, which grow
// no more than the window (alDiseno, at 1024 x 768, filled on the first call).
QString Solapes(const QWidget* w, QMap<QString, QSize>& alDiseno, double sx, double sy) {
    QString d;
    const QList<QWidget*> c = EnVista(w);
    for (qsizetype i = 0; i < c.size(); ++i)
        for (qsizetype j = i + 1; j < c.size(); ++j) {
            const QRect comun = c[i]->geometry() & c[j]->geometry();
            const QString par = Par(c[i], c[j]);
            if (sx == 1 && sy == 1 && !comun.isEmpty())
                alDiseno[par] = comun.size().expandedTo(alDiseno[par]);
            const QSize disenado = alDiseno.value(par);
            if (!comun.isEmpty() &&
                (!kSolapesDelDiseno.contains(par) || comun.width() > disenado.width() * sx + 2 ||
                 comun.height() > disenado.height() * sy + 2))
                d += QStringLiteral(" %1 (%2x%3)").arg(par).arg(comun.width()).arg(comun.height());
        }
    return d;
}

// The seven pictures on show against the same calculation drawn afresh at
// the places the window gives them; empty when they agree.
QString NoDibujadas(Programa& p) {
    SuperficiesSinVentana cajas(p.f.flujo().lugar, p.f.devicePixelRatioF());
    SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
    Calcular(p.f.CalculoActual()->entradas, s);
    const std::array<QImage, 7> esperadas = cajas.Imagenes();
    SuperficieQt* const vistas[] = {p.f.pct1(),  p.f.pct2(),  p.f.pct3(), p.f.pctPV(),
                                    p.f.pctTV(), p.f.pctTS(), p.f.pctHS()};
    QString d;
    for (size_t i = 0; i < 7; ++i)
        if (vistas[i]->Imagen() != esperadas[i]) d += ' ' + vistas[i]->objectName();
    return d;
}

// A key as the user gives it: to the control with the focus in the window
// that has it.
void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mod = {}) {
    QWidget* activa = QApplication::activePopupWidget();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (!activa && w->windowHandle() && w->windowHandle() == QGuiApplication::focusWindow()) activa = w;
    QVERIFY(activa);
    QTest::keyClick(activa->focusWidget() ? activa->focusWidget() : activa, tecla, mod);
}

QWidget* Abierta(const char* nombre) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nombre) && w->isVisible()) return w;
    return nullptr;
}

// The controls that take a press or a text and have no name to be read by.
void SinNombre(QAccessibleInterface* i, QStringList& faltan) {
    static const QSet<QAccessible::Role> interactivos = {
        QAccessible::PushButton,   QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::SpinBox,  QAccessible::Slider,      QAccessible::List,
        QAccessible::Table,        QAccessible::Tree,     QAccessible::PageTab,     QAccessible::ButtonMenu};
    if (!i || i->state().invisible) return;
    if (interactivos.contains(i->role()) && i->text(QAccessible::Name).trimmed().isEmpty())
        faltan << (i->object() ? i->object()->objectName() + '/' + i->object()->metaObject()->className()
                               : "?");
    for (int k = 0; k < i->childCount(); ++k) SinNombre(i->child(k), faltan);
}

}  // namespace

class PruebaEscritorio : public QObject {
    Q_OBJECT

private slots:
    // At each size the controls stand in the design's proportions without
    // covering each other, and the pictures are drawn at the size shown, in
    // the overview and in an enlarged view; the page's pictures keep the
    // design's sizes, as the command line draws them.
    void laVentanaCreceEnSusProporciones() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3() && p.Etapa4("imgMixto"));
        QMap<QString, QSize> alDiseno;
        for (const QSize tamano : {QSize(1024, 768), QSize(1600, 900), QSize(2560, 1440)}) {
            p.f.resize(tamano);
            const QString en = QStringLiteral("%1x%2:").arg(tamano.width()).arg(tamano.height());
            const double sx = tamano.width() / 1024.0, sy = tamano.height() / 768.0;
            QString solapes = Solapes(p.f.centralWidget(), alDiseno, sx, sy);
            for (const char* marco :
                 {"fraBotonera", "fraPuntos", "fraTransformaciones", "fraPotencia", "fraEstadoActual"})
                solapes += Solapes(p.Control(marco), alDiseno, sx, sy);
            QVERIFY2(solapes.isEmpty(), qPrintable(en + solapes));
            for (auto [s, ancho, alto] :
                 {std::tuple{p.f.pct1(), 0.499, 0.25}, std::tuple{p.f.pctPV(), 0.345, 0.32},
                  std::tuple{p.f.pctTV(), 0.35, 0.32}})
                QVERIFY2(std::abs(s->width() - ancho * tamano.width()) <= 1 &&
                             std::abs(s->height() - alto * tamano.height()) <= 1,
                         qPrintable(en + s->objectName()));
            QTRY_VERIFY2(NoDibujadas(p).isEmpty(), qPrintable(en + NoDibujadas(p)));
        }
        QTemporaryDir carpeta;
        DialogosArchivoGrabados archivos;
        archivos.respuestas << carpeta.filePath(QStringLiteral("ciclo.html"));
        p.f.Visores().FijarDialogosArchivo(archivos);
        p.Menu("mnuGuardarHTML")->trigger();
        SuperficiesSinVentana cajas;
        SuperficiesCalculo s{cajas.pct1, cajas.pct2, cajas.pct3, cajas.diagramas()};
        Calcular(p.f.CalculoActual()->entradas, s);
        QCOMPARE(QImage(carpeta.filePath(QStringLiteral("BMPPV.BMP"))).convertToFormat(QImage::Format_RGB32),
                 cajas.pctPV.Imagen().convertToFormat(QImage::Format_RGB32));
        p.Menu("mnuTV")->trigger();
        p.f.resize(1600, 900);
        QCOMPARE(p.f.pctTV()->width(), qRound(0.7 * 1600));
        QTRY_VERIFY2(NoDibujadas(p).isEmpty(), qPrintable(NoDibujadas(p)));
    }

    // Ctrl+1 … Ctrl+4, Tab to the Mixto cycle and Space, Return to
    // calculate, Alt+A V for the report, Ctrl+S to save it, Esc to close it.
    void unCicloMixtoSoloConElTeclado() {
        Programa p;
        QTemporaryDir carpeta;
        DialogosArchivoGrabados archivos;
        archivos.respuestas << carpeta.filePath(QStringLiteral("mixto.txt"));
        p.f.Visores().FijarDialogosArchivo(archivos);
        // A window takes the focus as it opens and gives it back to the main
        // window as it closes, as a window manager has it.
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
        const std::tuple<Qt::Key, QWidget*, Qt::Key> etapas[] = {
            {Qt::Key_1, p.f.Aire(), Qt::Key_Return},
            {Qt::Key_2, p.f.Combustible(), Qt::Key_Down},
            {Qt::Key_3, p.f.Combustion(), Qt::Key_Return}};
        for (auto [etapa, ventana, calcular] : etapas) {
            Tecla(etapa, Qt::ControlModifier);
            QVERIFY(activa(ventana));
            Tecla(calcular);  // the fuel list has the focus: its first fuel
            QVERIFY(cerrada(ventana));
        }
        Tecla(Qt::Key_4, Qt::ControlModifier);
        QVERIFY(activa(p.f.Ciclo()));
        QWidget* mixto = Hijo<QWidget>(p.f.Ciclo(), "imgMixto");
        for (int i = 0; i < 40 && QApplication::focusWidget() != mixto; ++i) Tecla(Qt::Key_Tab);
        Tecla(Qt::Key_Space);
        QCOMPARE(p.e.TipoCiclo, std::string("Mixto"));
        Tecla(Qt::Key_Return);
        QVERIFY(cerrada(p.f.Ciclo()) && p.f.CalculoActual());

        Tecla(Qt::Key_A, Qt::AltModifier);
        Tecla(Qt::Key_V);
        QWidget* informe = Abierta("VentanaInforme");
        QVERIFY(informe && activa(informe));
        Tecla(Qt::Key_S, Qt::ControlModifier);
        QFile guardado(carpeta.filePath(QStringLiteral("mixto.txt")));
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
        QVERIFY(p.Calcular() && p.Pulsar("cmdInforme"));
        revisar(&p.f);
        for (QWidget* etapa :
             std::initializer_list<QWidget*>{p.f.Aire(), p.f.Combustible(), p.f.Combustion()}) {
            etapa->show();
            revisar(etapa);
            etapa->hide();
        }
        for (const char* menu :
             {"mnuEstudio", "mnuValidacion", "mnuAcercaDe", "mnuAbrirInforme", "mnuTablas", "mnuDisociacion"})
            p.Menu(menu)->trigger();
        for (const char* ventana :
             {"VentanaInforme", "VentanaEstudio", "VentanaValidacion", "VentanaAcercaDe",
              "VentanaMostrarInforme", "VentanaHerramientas", "VentanaDisociacion"})
            revisar(Abierta(ventana));
        QVERIFY2(faltan.isEmpty(), qPrintable(faltan.join(QLatin1Char('\n'))));
    }
    // A window opens again at the size it had, inside the screen however
    // far it was moved, and the study with the inputs last chosen.
    void seRecuerdaElTamanoYLoElegido() {
        {
            VentanaTablas tablas;
            tablas.Mostrar();
            tablas.resize(610, 410);
            tablas.move(5000, 5000);
            tablas.hide();
        }
        VentanaTablas tablas;
        tablas.Mostrar();
        QCOMPARE(tablas.size(), QSize(610, 410));
        QVERIFY(tablas.screen()->availableGeometry().contains(tablas.geometry() + MarcoVentana(&tablas)));
        for (int vez = 0; vez < 2; ++vez) {
            Programa p;
            p.Menu("mnuEstudio")->trigger();
            auto* lista = Hijo<QComboBox>(Abierta("VentanaEstudio"), "cboEntrada2");
            if (vez == 0) lista->setCurrentIndex(3);
            QCOMPARE(lista->currentIndex(), 3);
            lista->window()->hide();
        }
    }
};

class PruebaPantalla : public QObject {
    Q_OBJECT

private slots:
    // The main window at its starting size and each window opened over it
    // alone: its frame inside the free area, and smaller at will.
    void cadaVentanaCabeYSeAgranda() {
        Programa p{QSize()};
        QVERIFY(p.CuatroEtapas());
        QTemporaryDir carpeta;
        p.f.FijarDireccionBaseDatos(carpeta.filePath(QStringLiteral("BD.sqlite")));
        VentanaComparacion comparacion({CalculoDeResultado("Cálculo actual", *p.f.CalculoActual())}, '.',
                                       p.dlg, &p.f);
        VentanaTablas tablas(&p.f);
        const std::tuple<std::function<QWidget*()>, const char*> ventanas[] = {
            {[&] { return &p.f; }, "principal"},
            {[&] { return p.Menu("mnuEstudio")->trigger(), Abierta("VentanaEstudio"); }, "estudio"},
            {[&] { return comparacion.show(), &comparacion; }, "comparacion"},
            {[&] { return tablas.Mostrar(), &tablas; }, "tablas"},
            {[&] { return p.Menu("mnuAbrirBD")->trigger(), Abierta("VentanaBaseDatos"); }, "base-datos"},
            {[&] { return p.Menu("mnuDisociacion")->trigger(), Abierta("VentanaDisociacion"); },
             "disociacion"}};
        for (const auto& [abrir, nombre] : ventanas) {
            QWidget* w = abrir();
            QVERIFY(w && QTest::qWaitForWindowExposed(w));
            QTest::qWait(500);  // the window manager frames it, and it moves in
            const QRect marco = w->geometry() + MarcoVentana(w);
            QVERIFY2(w->screen()->availableGeometry().contains(marco), nombre);
            if (const QString capturas = qEnvironmentVariable("VANTA_CAPTURAS"); !capturas.isEmpty())
                w->screen()->grabWindow(0).save(
                    QStringLiteral("%1/pantalla-1024-%2.png").arg(capturas, nombre));
            const QSize antes = w->size(), menor = (antes - QSize(60, 40)).expandedTo(w->minimumSizeHint());
            QVERIFY2(menor != antes, nombre);
            w->resize(menor);
            QTRY_COMPARE(w->size(), menor);
            w->resize(antes);
            if (w != &p.f) w->hide();
        }
    }
};

static Registrar<PruebaEscritorio> registro;
static Registrar<PruebaPantalla> registroPantalla;

#include "test_Escritorio.moc"
