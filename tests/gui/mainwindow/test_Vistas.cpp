// The enlarged views of the diagrams and the readout under the pointer, in the
// main window as the user drives them: menus, clicks on the diagrams, the
// pointer over p-V and T-V in every view.
#include <QTest>

#include "core/services/Numeros.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// A surface's place for the enlarged views, as fractions of the window.
struct Fracciones {
    double izquierda, arriba, ancho, alto;
};

bool Cerca(const QRect& r, double izquierda, double arriba, double ancho, double alto) {
    return std::abs(r.left() - izquierda) <= 1 && std::abs(r.top() - arriba) <= 1 &&
           std::abs(r.width() - ancho) <= 1 && std::abs(r.height() - alto) <= 1;
}

QString Texto(const QRect& r) {
    return QStringLiteral("%1,%2 %3×%4").arg(r.left()).arg(r.top()).arg(r.width()).arg(r.height());
}

// Whether the picture has anything but its ground in its right fifth: a
// picture drawn at its own size does, a smaller one carried over does not.
bool DibujadaHastaLaDerecha(SuperficieQt* s) {
    return Dibujada(s, 0.8);
}

// The pixels of the cross on the transient layer: the surface as shown less
// its persistent picture, counted in the colour of the cross.
int PixelesDeLaCruz(SuperficieQt* s, int32_t color) {
    const QImage vista = s->grab(s->contentsRect()).toImage();
    return Cuenta(vista, ColorQt(color)) - Cuenta(s->Imagen(), ColorQt(color));
}

const char* const kMenus[4] = {"mnuPV", "mnuTV", "mnuTS", "mnuHS"};

}  // namespace

class PruebaVistas : public QObject {
    Q_OBJECT

    static SuperficieQt* Superficie(const Programa& p, const QString& nombre) {
        return Hijo<SuperficieQt>(&p.f, nombre.toLatin1().constData());
    }

    static QString Marcas(const Programa& p) {
        QString s;
        for (const char* m : {"mnuVerTodo", "mnuPV", "mnuTV", "mnuTS", "mnuHS"})
            s += p.Menu(m)->isChecked() ? QLatin1Char('1') : QLatin1Char('0');
        return s;
    }

    static void VerificarVistaGeneral(const Programa& p) {
        const double W = p.f.width(), H = p.f.height();
        QVERIFY2(Cerca(p.f.pctPV()->geometry(), 0.001 * W, 0.529 * H, 0.345 * W, 0.32 * H),
                 qPrintable(Texto(p.f.pctPV()->geometry())));
        QVERIFY(Cerca(p.f.pctTV()->geometry(), 0.65 * W, 0.529 * H, 0.35 * W, 0.32 * H));
        for (const char* visible : {"pct1", "pct2", "pct3", "pctPV", "pctTV", "pctTS", "fraBotonera",
                                    "fraPuntos", "fraPotencia", "fraEstadoActual", "cmdInforme"})
            QVERIFY2(p.Control(visible)->isVisible(), visible);
        QVERIFY(!p.f.pctHS()->isVisible());
        QVERIFY(!p.Control("chkVerHs")->isVisible());
    }

private slots:
    void cadaDiagramaSeAmpliaYVuelve_data() {
        QTest::addColumn<int>("diagrama");
        QTest::addColumn<QString>("principal");
        QTest::addColumn<QString>("arriba");  // upper right
        QTest::addColumn<QString>("abajo");   // lower right
        QTest::addColumn<QString>("recuadro");
        QTest::addColumn<double>("recuadroIzquierda");
        QTest::addColumn<double>("recuadroAlto");
        QTest::addColumn<double>("recuadroAncho");
        QTest::newRow("p-V") << 0 << "pctPV"
                             << "pctTS"
                             << "pctTV"
                             << "pctHS" << 0.8 << 0.2 << 0.2;
        QTest::newRow("T-V") << 1 << "pctTV"
                             << "pctTS"
                             << "pctPV"
                             << "pctHS" << 0.8 << 0.2 << 0.2;
        QTest::newRow("T-s") << 2 << "pctTS"
                             << "pctPV"
                             << "pctTV"
                             << "pctHS" << 0.4 << 0.4 << 0.55;
        QTest::newRow("h-s") << 3 << "pctHS"
                             << "pctPV"
                             << "pctTV"
                             << "pctTS" << 0.6 << 0.2 << 0.3;
    }
    void cadaDiagramaSeAmpliaYVuelve() {
        QFETCH(int, diagrama);
        QFETCH(QString, principal);
        QFETCH(QString, arriba);
        QFETCH(QString, abajo);
        QFETCH(QString, recuadro);
        QFETCH(double, recuadroIzquierda);
        QFETCH(double, recuadroAlto);
        QFETCH(double, recuadroAncho);
        Programa p;
        QVERIFY(p.CuatroEtapas());
        const QImage tvGeneral = p.f.pctTV()->Imagen();
        const double W = p.f.width(), H = p.f.height();

        p.Menu(kMenus[diagrama])->trigger();
        SuperficieQt* grande = Superficie(p, principal);
        QVERIFY2(Cerca(grande->geometry(), 0, 0, 0.7 * W, 0.8 * H), qPrintable(Texto(grande->geometry())));
        QVERIFY(Cerca(Superficie(p, arriba)->geometry(), 0.7 * W, 0, 0.3 * W, 0.4 * H));
        QVERIFY(Cerca(Superficie(p, abajo)->geometry(), 0.7 * W, 0.4 * H, 0.3 * W, 0.4 * H));
        const QRect g = grande->geometry();
        QVERIFY2(Cerca(Superficie(p, recuadro)->geometry(), recuadroIzquierda * g.width(), 0,
                       recuadroAncho * g.width(), recuadroAlto * g.height()),
                 qPrintable(Texto(Superficie(p, recuadro)->geometry())));
        // The switch solved the cycle again: every diagram is drawn at its new size.
        for (SuperficieQt* s : {p.f.pctPV(), p.f.pctTV(), p.f.pctTS(), p.f.pctHS()})
            QVERIFY2(DibujadaHastaLaDerecha(s), qPrintable(s->objectName()));
        for (const char* oculto :
             {"pct1", "pct2", "pct3", "fraBotonera", "fraPotencia", "fraPuntos", "fraTransformaciones"})
            QVERIFY2(!p.Control(oculto)->isVisible(), oculto);
        for (const char* visible : {"pctTS", "fraEstadoActual", "cmdInforme", "cmdEnvBaseDatos", "chkVerHs"})
            QVERIFY2(p.Control(visible)->isVisible(), visible);
        QCOMPARE(p.f.pctHS()->isVisible(), principal == QLatin1String("pctHS"));
        QCOMPARE(Marcas(p), QString(QStringLiteral("00000")).replace(diagrama + 1, 1, QLatin1Char('1')));
        // The inset, when shown, stands in front of the main surface.
        if (Superficie(p, recuadro)->isVisible())
            QCOMPARE(p.f.centralWidget()->childAt(Superficie(p, recuadro)->geometry().center()),
                     static_cast<QWidget*>(Superficie(p, recuadro)));

        // The same entry again returns to the overview and solves the cycle at
        // its sizes: the pictures are those of the first calculation.
        p.Menu(kMenus[diagrama])->trigger();
        VerificarVistaGeneral(p);
        QVERIFY(p.Control("fraTransformaciones")->isVisible());
        QCOMPARE(p.f.pctTV()->Imagen(), tvGeneral);
        QVERIFY(p.Menu(kMenus[diagrama])->isChecked());
    }

    void todosLosGraficosVuelveSinCalcular() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        p.Menu("mnuPV")->trigger();
        const QImage grande = p.f.pctPV()->Imagen();
        p.Menu("mnuVerTodo")->trigger();
        VerificarVistaGeneral(p);
        QCOMPARE(Marcas(p), QStringLiteral("10000"));
        // Without a calculation nobody shows the processes' table again.
        QVERIFY(!p.Control("fraTransformaciones")->isVisible());
        // The pictures stay those drawn for the enlarged size, from their top
        // left, until the next calculation.
        const QImage pequena = p.f.pctPV()->Imagen();
        QCOMPARE(pequena, grande.copy(QRect(QPoint(0, 0), pequena.size())));
    }

    void unClicEnUnDiagramaAmpliaSinTocarLasMarcas() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        p.Menu("mnuTV")->trigger();
        QCOMPARE(Marcas(p), QStringLiteral("00100"));
        // From T-V enlarged, a click on p-V (lower right) enlarges p-V.
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);
        QVERIFY(Cerca(p.f.pctPV()->geometry(), 0, 0, 0.7 * p.f.width(), 0.8 * p.f.height()));
        QVERIFY(DibujadaHastaLaDerecha(p.f.pctPV()));
        // T-s, upper right, enlarges by its Left; a second click returns.
        QTest::mouseClick(p.f.pctTS(), Qt::LeftButton);
        QCOMPARE(p.f.pctTS()->geometry().topLeft(), QPoint(0, 0));
        QTest::mouseClick(p.f.pctTS(), Qt::LeftButton);
        VerificarVistaGeneral(p);
        QCOMPARE(Marcas(p), QStringLiteral("00100"));
        QVERIFY(p.dlg.mensajes.empty());

        // With the cycle's button disabled the click does not calculate first,
        // and the switch calculates all the same.
        p.Boton("cmdCarCiclo")->setEnabled(false);
        QTest::mouseClick(p.f.pctTV(), Qt::LeftButton);
        QCOMPARE(p.f.pctTV()->geometry().topLeft(), QPoint(0, 0));
        QVERIFY(DibujadaHastaLaDerecha(p.f.pctTV()));
    }

    void unSegundoClicVuelveSeaCualSeaElAnchoDeLaVentana_data() {
        QTest::addColumn<int>("ancho");
        // 0.7 W falls below the half pixel, on it, above it, on a whole one.
        QTest::newRow("942") << 942;
        QTest::newRow("945") << 945;
        QTest::newRow("1024") << 1024;
        QTest::newRow("1000") << 1000;
    }
    void unSegundoClicVuelveSeaCualSeaElAnchoDeLaVentana() {
        QFETCH(int, ancho);
        Programa p(QSize(ancho, ancho * 3 / 4));
        QVERIFY(p.CuatroEtapas());
        for (SuperficieQt* s : {p.f.pctPV(), p.f.pctTV()}) {
            QTest::mouseClick(s, Qt::LeftButton);
            QCOMPARE(s->geometry().topLeft(), QPoint(0, 0));
            QTest::mouseClick(s, Qt::LeftButton);
            VerificarVistaGeneral(p);
            if (QTest::currentTestFailed()) return;
        }
        p.Menu("mnuHS")->trigger();
        p.Menu("mnuHS")->trigger();
        VerificarVistaGeneral(p);
    }

    void laCasillaHsSoloEnLasVistasAmpliadas() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        auto* chk = Hijo<QCheckBox>(&p.f, "chkVerHs");
        p.Menu("mnuPV")->trigger();
        QVERIFY(!p.f.pctHS()->isVisible());
        chk->setChecked(true);
        QVERIFY(p.f.pctHS()->isVisible());
        // T-V keeps h-s as the box left it.
        p.Menu("mnuTV")->trigger();
        QVERIFY(p.f.pctHS()->isVisible());
        chk->setChecked(false);
        // The h-s entry shows it whatever the box says.
        p.Menu("mnuHS")->trigger();
        QVERIFY(!chk->isChecked());
        QVERIFY(p.f.pctHS()->isVisible());
    }

    void laLecturaSigueAlPunteroEnCadaVista_data() {
        QTest::addColumn<int>("diagrama");  // -1 for the overview
        QTest::newRow("general") << -1;
        QTest::newRow("p-V") << 0;
        QTest::newRow("T-V") << 1;
        QTest::newRow("T-s") << 2;
        QTest::newRow("h-s") << 3;
    }
    void laLecturaSigueAlPunteroEnCadaVista() {
        QFETCH(int, diagrama);
        Programa p;
        QVERIFY(p.CuatroEtapas());
        if (diagrama >= 0) p.Menu(kMenus[diagrama])->trigger();
        const Estado& e = p.e;
        auto mover = [](SuperficieQt* s, double x, double y) {
            const QPointF pixel = s->APixel(x, y) + s->contentsRect().topLeft();
            QTest::mouseMove(s, pixel.toPoint());
        };

        // Left of V2 and below state 2 on p-V: state 2.
        const double margenV = (e.V1 - e.V2) / 50;
        mover(p.f.pctPV(), e.V2 - margenV, -e.p1);
        auto* proceso = Hijo<QLineEdit>(&p.f, "txtTransformacion");
        QCOMPARE(proceso->text(), QStringLiteral("Combustión a v = cte."));
        QCOMPARE(p.Etiqueta("lblVmouseVal"), Q(Format(e.V2 * 1e6, "0.000", '.')));
        QCOMPARE(p.Etiqueta("lblPmouseVal"), Q(Format(e.p2, "### ### ### ###", '.')));
        QCOMPARE(p.Etiqueta("lblTmouseVal"), Q(Format(e.T2, "### ### ### ##0.00", '.')));
        QVERIFY(!p.Etiqueta("lblhmouseVal").trimmed().isEmpty());
        QVERIFY(!p.Etiqueta("lblSmouseVal").trimmed().isEmpty());
        // The cross stands on all four surfaces, visible or not, and the
        // persistent pictures are untouched.
        const QImage pvAntes = p.f.pctPV()->Imagen();
        for (SuperficieQt* s : {p.f.pctPV(), p.f.pctTV(), p.f.pctTS(), p.f.pctHS()})
            QVERIFY2(PixelesDeLaCruz(s, e.ColorExpansion) > s->contentsRect().height() / 2,
                     qPrintable(s->objectName()));

        // Right of V1 and below state 1 on T-V: state 1.
        mover(p.f.pctTV(), e.V1 + margenV / 2, -e.T1 + (e.TemperaturaMaxima - e.T1) / 100);
        QCOMPARE(proceso->text(), QStringLiteral("Escape y admisión"));
        QCOMPARE(p.Etiqueta("lblVmouseVal"), Q(Format(e.V1 * 1e6, "0.000", '.')));
        QCOMPARE(p.Etiqueta("lblTmouseVal"), Q(Format(e.T1, "### ### ### ##0.00", '.')));
        QCOMPARE(p.Etiqueta("lblPmouseVal"), Q(Format(e.p1, "### ### ### ###", '.')));
        QCOMPARE(p.f.pctPV()->Imagen(), pvAntes);
    }
};

static vanta::pruebas::Registrar<PruebaVistas> registro;

#include "test_Vistas.moc"
