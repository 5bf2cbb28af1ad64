// The main window driven as a user drives it: the four stages with the values
// the windows start with, "CALCULAR", the results, and what is enabled and
// visible after each transition of the workflow.
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "core/cycle/Ciclo.h"
#include "core/services/Numeros.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {
const std::string kMensajeFaltanEtapas = "Antes debe especificar: comburente, combustible y combustión";
}

class PruebaFlujo : public QObject {
    Q_OBJECT

private slots:
    void alEmpezarSoloSePuedeElegirElComburente() {
        Programa p;
        QCOMPARE(p.f.windowTitle(), QStringLiteral("Vanta"));
        QCOMPARE(p.Etapas(), QStringLiteral("1000"));
        QVERIFY(p.Control("imgPresentacion")->isVisible());
        for (const char* oculto :
             {"fraPuntos", "fraTransformaciones", "fraPotencia", "fraEstadoActual", "pct1", "pct2", "pct3",
              "pctPV", "pctTV", "pctTS", "pctHS", "cmdInforme", "cmdEnvBaseDatos", "chkVerHs"})
            QVERIFY2(!p.Control(oculto)->isVisible(), oculto);
        for (const char* apagado : {"mnuInforme", "mnuBDatos", "mnuGuardar", "mnuTablasActual", "mnuVerTodo",
                                    "mnuVerCiclo", "mnuCalcular"})
            QVERIFY2(!p.Menu(apagado)->isEnabled(), apagado);
        for (const char* encendido :
             {"mnuNuevo", "mnuAbrirBD", "mnuAbrirInforme", "mnuTablas", "mnuAyuda2", "mnuAcercaDe"})
            QVERIFY2(p.Menu(encendido)->isEnabled(), encendido);
    }

    void cadaEtapaAbreLaSiguienteYDibujaSuGrafica() {
        Programa p;
        QVERIFY(p.Etapa1());
        QVERIFY(!p.Control("imgPresentacion")->isVisible());
        QCOMPARE(p.Etapas(), QStringLiteral("1100"));
        QVERIFY(p.f.pct1()->isVisible() && Dibujada(p.f.pct1()));
        QVERIFY(!p.f.pct2()->isVisible());

        QVERIFY(p.Etapa2(QStringLiteral("Metanol")));
        QCOMPARE(p.Etapas(), QStringLiteral("1110"));
        QCOMPARE(Q(p.f.TipoCombustible()), QStringLiteral("Metanol"));
        QVERIFY(p.f.pct2()->isVisible() && Dibujada(p.f.pct2()));
        QVERIFY(!p.f.pct3()->isVisible());

        // Stage 3 takes the comburent button away; only "Nuevo ciclo" or the
        // tables bring it back.
        QVERIFY(p.Etapa3());
        QCOMPARE(p.Etapas(), QStringLiteral("0111"));
        QVERIFY(p.f.pct3()->isVisible() && Dibujada(p.f.pct3()));
        QVERIFY(p.Menu("mnuCalcular")->isEnabled());
        QVERIFY(p.Menu("mnuTablasActual")->isEnabled());
        QVERIFY(!p.Menu("mnuVerTodo")->isEnabled());
        QVERIFY(p.dlg.mensajes.empty());
    }

    void elCicloPorDefectoLlenaLasTablasYDibujaLosDiagramas() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        QVERIFY2(p.dlg.mensajes.empty(), p.dlg.mensajes.empty() ? "" : p.dlg.mensajes.front().c_str());
        QVERIFY(!p.e.ErrorCalculo);

        // The start of a calculation disables the fuel button, and nothing
        // enables it again until an error or a stage button.
        QCOMPARE(p.Etapas(), QStringLiteral("1011"));
        for (const char* visible : {"fraPuntos", "fraTransformaciones", "fraPotencia", "fraEstadoActual",
                                    "pctPV", "pctTV", "pctTS", "cmdInforme", "cmdEnvBaseDatos"})
            QVERIFY2(p.Control(visible)->isVisible(), visible);
        QVERIFY(!p.f.pctHS()->isVisible());
        for (const char* encendido : {"mnuInforme", "mnuBDatos", "mnuGuardar", "mnuVerTodo", "mnuVerCiclo"})
            QVERIFY2(p.Menu(encendido)->isEnabled(), encendido);
        // Hidden h-s is drawn all the same.
        for (SuperficieQt* s : {p.f.pctPV(), p.f.pctTV(), p.f.pctTS(), p.f.pctHS()}) QVERIFY(Dibujada(s));

        // State 1 is the ambient: 100 000 Pa, 100 c.c., 300 K.
        QCOMPARE(p.Etiqueta("lblP1"), QStringLiteral("   100 000"));
        QCOMPARE(p.Etiqueta("lblV1"), QStringLiteral("  100.00"));
        QCOMPARE(p.Etiqueta("lblT1"), QStringLiteral(" 300.00"));
        // Every label shows its own figure.
        const TextosResultados t = TextosDeResultados(p.e);
        const char* columnas[5] = {"lblP%1", "lblV%1", "lblT%1", "lblH%1", "lbls%1"};
        for (int i = 0; i < 5; ++i) {
            const std::string* esperado[5] = {&t.lblP[i], &t.lblV[i], &t.lblT[i], &t.lblH[i], &t.lblS[i]};
            for (int c = 0; c < 5; ++c) {
                QString nombre = QString::fromLatin1(columnas[c]).arg(i + 1);
                if (nombre == QLatin1String("lbls5")) nombre = QStringLiteral("lblS5");
                QCOMPARE(p.Etiqueta(nombre.toLatin1().constData()), Q(*esperado[c]));
            }
        }
        const std::pair<const char*, const std::string*> procesos[] = {
            {"lblW12", &t.lblW12},       {"lblW34", &t.lblW34}, {"lblW45", &t.lblW45},
            {"lblQ23", &t.lblQ23},       {"lblQ34", &t.lblQ34}, {"lblWciclo", &t.lblWciclo},
            {"lblQciclo", &t.lblQciclo}, {"lblRen", &t.lblRen}, {"lblG12", &t.lblG12},
            {"lblG2", &t.lblG2},         {"lblG45", &t.lblG45}, {"lblG5", &t.lblG5}};
        for (const auto& [nombre, texto] : procesos) QCOMPARE(p.Etiqueta(nombre), Q(*texto));
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtCilindrada")->text(), QStringLiteral("100"));
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtConsumoMJ")->text(), Q(t.txtConsumoMJ));
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtConsumoKwh")->text(), Q(t.txtConsumoKwh));
        const double rendimiento = p.Etiqueta("lblRen").toDouble();
        QVERIFY(rendimiento > 0.2 && rendimiento < 0.8);
        QVERIFY(!p.f.InformeF1().empty());
    }

    void laPotenciaSigueALaVelocidadTecleada() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        auto* rpm = Hijo<QLineEdit>(&p.f, "txtRpm");
        auto* potencia = Hijo<QLineEdit>(&p.f, "txtPotencia");
        auto* cv = Hijo<QLineEdit>(&p.f, "txtPotenciaCV");
        QCOMPARE(rpm->text(), QStringLiteral("rpm"));
        QTest::mouseClick(rpm, Qt::LeftButton);
        QCOMPARE(rpm->text(), QString());
        QCOMPARE(potencia->text(), QStringLiteral("watios"));

        QTest::keyClicks(rpm, QStringLiteral("3000"));
        const double w3000 = potencia->text().remove(QLatin1Char(' ')).toDouble();
        QVERIFY(w3000 > 0);
        QVERIFY(cv->text().contains(QLatin1Char('.')));
        QTest::keyClicks(rpm, QStringLiteral("0"));  // 30000 rpm: ten times the power
        const double w30000 = potencia->text().remove(QLatin1Char(' ')).toDouble();
        QVERIFY(std::fabs(w30000 - 10 * w3000) < 1.0);

        // A click on a speed is no prompt: the box keeps it. A letter is told.
        QTest::mouseClick(rpm, Qt::LeftButton);
        QCOMPARE(rpm->text(), QStringLiteral("30000"));
        QTest::keyClicks(rpm, QStringLiteral("x"));
        QCOMPARE(p.dlg.mensajes.size(), size_t(1));
        QCOMPARE(Q(p.dlg.mensajes.back()), QStringLiteral(" rpm no es un número"));
        rpm->clear();
        QCOMPARE(p.dlg.mensajes.size(), size_t(1));
    }

    void unCalculoFallidoVuelveAlEstadoDeErrorYBorraLosDiagramas() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        // An exponent typed without its decimal point (400 for 1,400) cools
        // the gases past what the numbers hold, in the drawing pass only.
        QVERIFY(p.AbrirCiclo("imgOtto"));
        Programa::Elegir(Hijo<QRadioButton>(p.f.Otto_Diesel(), "optPolitropica"));
        Hijo<QLineEdit>(p.f.Otto_Diesel(), "txt_nExp")->setText(QStringLiteral("400"));
        const QString p2Antes = p.Etiqueta("lblP2");
        QVERIFY(p.Calcular());
        QVERIFY(p.e.ErrorCalculo);
        QVERIFY(!p.dlg.mensajes.empty());
        QCOMPARE(Q(p.dlg.mensajes.back()),
                 QStringLiteral("Se ha producido un error de cálculo, corrija el error y pulse el botón "
                                "\"CALCULAR\" otra vez"));
        // The window stays in front to be corrected.
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        QCOMPARE(p.Etapas(), QStringLiteral("1111"));
        for (const char* oculto : {"fraPuntos", "fraTransformaciones", "fraPotencia", "pctPV", "pctTV",
                                   "pctTS", "cmdInforme", "cmdEnvBaseDatos"})
            QVERIFY2(!p.Control(oculto)->isVisible(), oculto);
        QVERIFY(!Dibujada(p.f.pctPV()) && !Dibujada(p.f.pctTV()) && !Dibujada(p.f.pctTS()));
        QVERIFY(Dibujada(p.f.pctHS()));          // h-s keeps its old picture
        QCOMPARE(p.Etiqueta("lblP2"), p2Antes);  // the labels keep the former figures
        QVERIFY(!p.Menu("mnuInforme")->isEnabled());
        QVERIFY(p.Menu("mnuCalcular")->isEnabled());
    }

    void unaEntradaRechazadaDetieneElCalculoSinBorrarNada() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        QVERIFY(p.AbrirCiclo());
        Hijo<QLineEdit>(p.f.Otto_Diesel(), "txtRc")->setText(QStringLiteral("diez"));
        QVERIFY(p.Calcular());
        QCOMPARE(Q(p.dlg.mensajes.back()), QStringLiteral(" Relación de compresión no es un número"));
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        // The calculation's entry shows the results panels again; the
        // pictures of the last success stay.
        QCOMPARE(p.Etapas(), QStringLiteral("1011"));
        QVERIFY(Dibujada(p.f.pctPV()));
    }

    void lasTablasYElNuevoCicloEsconden_data() {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("etapas");
        QTest::addColumn<bool>("abreAire");
        QTest::newRow("tablas") << QStringLiteral("mnuTablas") << QStringLiteral("1000") << false;
        QTest::newRow("nuevo") << QStringLiteral("mnuNuevo") << QStringLiteral("1100") << true;
    }
    void lasTablasYElNuevoCicloEsconden() {
        QFETCH(QString, menu);
        QFETCH(QString, etapas);
        QFETCH(bool, abreAire);
        Programa p;
        QVERIFY(p.CuatroEtapas());
        p.Menu(menu.toLatin1().constData())->trigger();
        QCOMPARE(p.Etapas(), etapas);
        QCOMPARE(p.f.AireHumedad()->isVisible(), abreAire);
        for (const char* oculto :
             {"fraPuntos", "fraTransformaciones", "fraPotencia", "fraEstadoActual", "pct2", "pct3", "pctPV",
              "pctTV", "pctTS", "cmdInforme", "cmdEnvBaseDatos"})
            QVERIFY2(!p.Control(oculto)->isVisible(), oculto);
        QVERIFY(!p.Menu("mnuInforme")->isEnabled());
        QVERIFY(!p.Menu("mnuCalcular")->isEnabled());
        // Nothing of the state is cleared.
        QVERIFY(p.e.Wciclo != 0);
        QVERIFY(!p.Control("imgPresentacion")->isVisible());
    }

    void losDiagramasAbrenElCicloSoloCuandoSePuede() {
        Programa p;
        QVERIFY(p.Etapa1());
        // Before stage 3 the diagrams are hidden: the events themselves decide.
        p.f.pctPV_DblClick();
        QCOMPARE(p.dlg.mensajes, std::vector<std::string>{kMensajeFaltanEtapas});
        p.f.pctTV_KeyPress('a');
        QVERIFY(!p.f.Otto_Diesel()->isVisible());
        QCOMPARE(p.dlg.mensajes.size(), size_t(1));

        QVERIFY(p.Etapa2() && p.Etapa3() && p.Etapa4());
        QTest::mouseDClick(p.f.pctPV(), Qt::LeftButton);
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        p.f.Otto_Diesel()->hide();
        QTest::keyClick(p.f.pctTV(), Qt::Key_Z);
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        p.f.Otto_Diesel()->hide();
        QTest::mouseClick(Hijo<QLineEdit>(&p.f, "txtCilindrada"), Qt::LeftButton);
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        QCOMPARE(p.dlg.mensajes.size(), size_t(1));
    }

    void laCasillaHsMuestraElDiagramaHs() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        auto* chk = Hijo<QCheckBox>(&p.f, "chkVerHs");
        QVERIFY(!chk->isVisible());
        chk->setChecked(true);
        QVERIFY(p.f.pctHS()->isVisible());
        // The overview hides it again and clears the box.
        p.Menu("mnuVerTodo")->trigger();
        QVERIFY(!chk->isChecked());
        QVERIFY(!p.f.pctHS()->isVisible());
        QVERIFY(p.Menu("mnuVerTodo")->isChecked());
    }

    void laVistaGeneralGuardaLasProporciones() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        const double W = p.f.width(), H = p.f.height();
        const QRect pv = p.f.pctPV()->geometry(), ts = p.f.pctTS()->geometry();
        QVERIFY(std::abs(pv.width() - 0.345 * W) <= 1 && std::abs(pv.top() - 0.529 * H) <= 1);
        // T-s is an inset at the top right of p-V, in front of it.
        QCOMPARE(ts.top(), pv.top());
        QVERIFY(std::abs(ts.left() - (pv.left() + 0.65 * pv.width())) <= 1);
        QVERIFY(std::abs(ts.width() - 0.3 * pv.width()) <= 1);
        const QWidget* centro = p.f.centralWidget();
        QCOMPARE(centro->childAt(ts.center()), static_cast<QWidget*>(p.f.pctTS()));
        // The stage buttons stay inside their frame.
        const QRect botonera = p.Control("fraBotonera")->rect();
        for (const char* b : {"cmdElegirComburente", "cmdCombustible", "cmdCarCombustion", "cmdCarCiclo"})
            QVERIFY2(botonera.contains(p.Boton(b)->geometry()), b);
    }

    void unaVentanaDeEtapaEsModalYSeOcultaTrasElExito() {
        Estado e;
        DialogosGrabados dlg;
        frmFase1 f(e, &dlg, QSize(1024, 768));
        f.show();
        QVERIFY(QTest::qWaitForWindowExposed(&f));
        bool pulsado = false;
        QTimer::singleShot(0, f.AireHumedad(), [&] {
            QVERIFY(f.AireHumedad()->isModal());
            pulsado = Programa::Pulsar(Hijo<QPushButton>(f.AireHumedad(), "cmdCal"));
        });
        // Returns when the window hides itself after the calculation.
        QTest::mouseClick(Hijo<QPushButton>(&f, "cmdElegirComburente"), Qt::LeftButton);
        QVERIFY(pulsado);
        QVERIFY(!f.AireHumedad()->isVisible());
        QVERIFY(f.pct1()->isVisible());
    }
};

static vanta::pruebas::Registrar<PruebaFlujo> registro;

#include "test_frmFase1.moc"
