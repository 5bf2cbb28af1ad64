// The main window driven as a user drives it. After every action the window
// shows the workflow's value (what is enabled, in view, marked and where it
// stands), whose transitions the core tests; the results of the stage
// windows equal the same calculation headless; the readout follows the
// pointer in the overview and in an enlarged view; the power follows the
// speed typed.
#include <QCheckBox>
#include <QTest>

#include "core/cycle/Ciclo.h"
#include "core/diagrams/LecturaRaton.h"
#include "core/sequence/Calculo.h"
#include "core/services/Numeros.h"
#include "gui/services/Controles.h"
#include "gui/services/TextosVentanas.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// Where the window differs from the workflow's value; empty when it renders it.
QString Diferencias(Programa& p) {
    const Flujo& f = p.f.flujo();
    QString d;
    auto ver = [&](const char* nombre, bool esperado, bool visto) {
        if (esperado != visto) d += QStringLiteral(" %1=%2").arg(QLatin1String(nombre)).arg(visto);
    };
    for (auto [nombre, visible] : PorNombre(f.visible)) ver(nombre, visible, !p.Control(nombre)->isHidden());
    for (auto [nombre, habilitado] : PorNombre(f.habilitado))
        ver(nombre, habilitado,
            nombre[0] == 'c' ? p.Boton(nombre)->isEnabled() : p.Menu(nombre)->isEnabled());
    for (auto [nombre, marcada] : PorNombre(f.marcado))
        ver(nombre, marcada,
            nombre[0] == 'c' ? Hijo<QCheckBox>(&p.f, nombre)->isChecked() : p.Menu(nombre)->isChecked());
    const Lugares& l = f.lugar;
    const std::pair<const char*, const Lugar*> lugares[] = {{"pct1", &l.pct1},
                                                            {"pct2", &l.pct2},
                                                            {"pct3", &l.pct3},
                                                            {"pctPV", &l.pctPV},
                                                            {"pctTV", &l.pctTV},
                                                            {"pctTS", &l.pctTS},
                                                            {"pctHS", &l.pctHS},
                                                            {"fraBotonera", &l.fraBotonera},
                                                            {"fraPuntos", &l.fraPuntos},
                                                            {"fraPotencia", &l.fraPotencia},
                                                            {"fraTransformaciones", &l.fraTransformaciones},
                                                            {"cmdElegirComburente", &l.cmdElegirComburente},
                                                            {"cmdCarCiclo", &l.cmdCarCiclo},
                                                            {"cmdInforme", &l.cmdInforme},
                                                            {"chkVerHs", &l.chkVerHs},
                                                            {"fraEstadoActual", &l.fraEstadoActual}};
    for (auto [nombre, lugar] : lugares)
        if (p.Control(nombre)->geometry() != QRect(lugar->Left, lugar->Top, lugar->Width, lugar->Height))
            d += QStringLiteral(" lugar de %1").arg(QLatin1String(nombre));
    return d;
}

#define MUESTRA_EL_FLUJO(p, paso) QVERIFY2(Diferencias(p).isEmpty(), qPrintable(paso + Diferencias(p)))

}  // namespace

class PruebaVentana : public QObject {
    Q_OBJECT

private slots:
    void laVentanaMuestraElFlujoTrasCadaAccion() {
        Programa p;
        MUESTRA_EL_FLUJO(p, QStringLiteral("al abrir"));
        QVERIFY(p.Etapa1());
        MUESTRA_EL_FLUJO(p, QStringLiteral("etapa 1"));
        QVERIFY(p.Etapa2(QStringLiteral("Metanol")));
        MUESTRA_EL_FLUJO(p, QStringLiteral("etapa 2"));
        QVERIFY(p.Etapa3());
        MUESTRA_EL_FLUJO(p, QStringLiteral("etapa 3"));
        QVERIFY(p.Etapa4());
        MUESTRA_EL_FLUJO(p, QStringLiteral("etapa 4"));
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);
        MUESTRA_EL_FLUJO(p, QStringLiteral("p-V ampliado"));
        QVERIFY(Dibujada(p.f.pctPV(), 0.6));  // drawn at its new size
        QTest::mouseClick(Hijo<QCheckBox>(&p.f, "chkVerHs"), Qt::LeftButton);
        MUESTRA_EL_FLUJO(p, QStringLiteral("casilla h-s"));
        p.Menu("mnuHS")->trigger();
        MUESTRA_EL_FLUJO(p, QStringLiteral("h-s por el menú"));
        p.Menu("mnuVerTodo")->trigger();
        MUESTRA_EL_FLUJO(p, QStringLiteral("todos los gráficos"));
        p.Menu("mnuTablas")->trigger();
        MUESTRA_EL_FLUJO(p, QStringLiteral("tablas"));
        // With the cycle stage closed a double click on p-V says why.
        QTest::mouseDClick(p.f.pctPV(), Qt::LeftButton);
        QCOMPARE(p.dlg.mensajes.back(),
                 std::string("Antes debe especificar: comburente, combustible y combustión"));
        p.Menu("mnuNuevo")->trigger();
        MUESTRA_EL_FLUJO(p, QStringLiteral("nuevo ciclo"));
    }

    void lasEtapasDanLoMismoQueElCalculoSinVentanas() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2(QStringLiteral("Gasoil")) && p.Etapa3() && p.AbrirCiclo("imgDiesel"));
        VentanaCiclo* ciclo = p.f.Ciclo();
        Hijo<QLineEdit>(ciclo, "txtRc")->setText(QStringLiteral("18"));
        Programa::Elegir(Hijo<QRadioButton>(ciclo, "optGvariable"));
        QVERIFY(p.Calcular());
        QVERIFY2(p.dlg.mensajes.empty(), p.dlg.mensajes.empty() ? "" : p.dlg.mensajes.front().c_str());

        OpcionesCalculo o;
        o.valores = {
            {"combustible", "Gasoil"}, {"ciclo", "Diesel"}, {"rc", "18"}, {"compresion", "variable"}};
        const ResultadoCalculo r = Calcular(EntradasDeOpciones(o));
        QVERIFY(r.bien);
        QCOMPARE(Q(p.f.InformeF1()), Q(r.informe));
        // The window's snapshot is that calculation, inputs and all.
        QVERIFY(p.f.CalculoActual());
        QCOMPARE(p.f.CalculoActual()->estado->Wciclo, r.estado->Wciclo);
        QCOMPARE(p.f.CalculoActual()->informe, r.informe);
        // Its inputs, as the stage windows applied them, give it again.
        QCOMPARE(Q(Calcular(p.f.CalculoActual()->entradas).informe), Q(r.informe));
        const TextosResultados& t = r.textos;
        QCOMPARE(p.Etiqueta("lblP3"), Q(t.lblP[2]));
        QCOMPARE(p.Etiqueta("lblS5"), Q(t.lblS[4]));
        QCOMPARE(p.Etiqueta("lblG45"), Q(t.lblG45));
        QCOMPARE(p.Etiqueta("lblRen"), Q(t.lblRen));
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtConsumoKwh")->text(), Q(t.txtConsumoKwh));
        for (SuperficieQt* sup :
             {p.f.pct1(), p.f.pct2(), p.f.pct3(), p.f.pctPV(), p.f.pctTV(), p.f.pctTS(), p.f.pctHS()})
            QVERIFY(Dibujada(sup));
    }

    void laLecturaYLaPotenciaSiguenAlUsuario() {
        Programa p;
        QVERIFY(p.CuatroEtapas());
        Estado copia = p.e;
        for (bool ampliado : {false, true}) {
            if (ampliado) QTest::mouseClick(p.f.pctTV(), Qt::LeftButton);
            SuperficieQt* tv = p.f.pctTV();
            const QPoint punto(tv->width() / 2, tv->height() / 3);
            // A new calculation (the enlargement's) empties the readout.
            QTest::mouseMove(tv, QPoint(5, 5));
            QTest::mouseMove(tv, punto);
            const QPointF u = tv->AUsuario(punto - tv->contentsRect().topLeft());
            LecturaEstado esperada;
            Mensajes dlg;
            DiagramasNulos nulos;
            Diagramas g = nulos.Todos();
            copia = p.e;
            pctTV_MouseMove(copia, dlg, g, true, float(u.x()), float(u.y()), esperada);
            QCOMPARE(p.Etiqueta("lblTmouseVal"), Q(esperada.lblTmouseVal));
            QCOMPARE(p.Etiqueta("lblhmouseVal"), Q(esperada.lblhmouseVal));
            QCOMPARE(Hijo<QLineEdit>(&p.f, "txtTransformacion")->text(), Q(esperada.txtTransformacion));
            QVERIFY(!p.Etiqueta("lblSmouseVal").isEmpty());
        }
        p.Menu("mnuVerTodo")->trigger();
        // A calculation that fails leaves the figures of the last one on
        // screen, and the power follows them, not the work the failure left.
        const double wciclo = p.e.Wciclo;
        QVERIFY(p.AbrirCiclo("imgDiesel"));
        Hijo<QLineEdit>(p.f.Ciclo(), "txtRc")->setText(QStringLiteral("2"));
        QVERIFY(p.Calcular());
        QVERIFY(p.e.ErrorCalculo && p.e.Wciclo != wciclo);
        p.f.Ciclo()->hide();
        auto* rpm = Hijo<QLineEdit>(&p.f, "txtRpm");
        QTest::mouseClick(rpm, Qt::LeftButton);  // the prompt "rpm" goes
        QTest::keyClicks(rpm, QStringLiteral("3000"));
        Mensajes dlg;
        const auto potencia = txtRpm_Change(p.e, dlg, wciclo, "3000");
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtPotencia")->text(), Q(potencia->potencia));
        QCOMPARE(Hijo<QLineEdit>(&p.f, "txtPotenciaCV")->text(), Q(potencia->potenciaCV));
    }

    // Return in a stage window's box presses its CALCULAR; a figure too wide
    // for its cell shows whole in a smaller letter or says that it does not
    // fit, never with its left digits cut.
    void introCalculaYUnaCifraNoSeCorta() {
        Programa p;
        auto intro = [](QDialog* v) {
            if (!Programa::Abierta(v)) return false;
            for (QLineEdit* caja : v->findChildren<QLineEdit*>())
                if (caja->isVisible() && caja->isEnabled()) {
                    QTest::keyClick(caja, Qt::Key_Return);
                    return !v->isVisible();
                }
            return false;
        };
        QVERIFY(p.Pulsar("cmdElegirComburente") && intro(p.f.Aire()));
        QVERIFY(p.Etapa2());
        QVERIFY(p.Pulsar("cmdCarCombustion") && intro(p.f.Combustion()));
        QVERIFY(p.AbrirCiclo() && intro(p.f.Ciclo()));
        QVERIFY(p.f.flujo().visible.cmdInforme);

        auto* celda = Hijo<CeldaCifra>(&p.f, "lblP1");
        for (const QString& cifra :
             {QStringLiteral("100 000 000 000 000"), QStringLiteral("1 000 000 000")}) {
            celda->PonerCifra(cifra);
            const bool entera = celda->text() == cifra && celda->fontMetrics().horizontalAdvance(cifra) <=
                                                              celda->contentsRect().width();
            const bool avisa = celda->text() == QString::fromUtf8(kNoCabe) && celda->toolTip() == cifra;
            QVERIFY2(entera != avisa, qPrintable(celda->text()));
        }
        QCOMPARE(celda->text(), QStringLiteral("1 000 000 000"));
    }
};

static Registrar<PruebaVentana> registrar;
#include "test_Ventana.moc"
