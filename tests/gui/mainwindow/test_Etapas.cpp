// The four stage windows: what their options show and lock, the events that
// keep two boxes in step, and inputs that survive from one opening to the next.
#include <QTest>

#include "core/fluids/Combustible.h"
#include "gui/services/SuperficieQt.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {
bool Bloqueada(QLineEdit* c) {
    return c->isReadOnly() && c->palette().color(QPalette::Base) == QColor(0xC0, 0xFF, 0xC0);
}
bool Abierta(QLineEdit* c) {
    return !c->isReadOnly() && c->palette().color(QPalette::Base) != QColor(0xC0, 0xFF, 0xC0);
}
}  // namespace

class PruebaEtapas : public QObject {
    Q_OBJECT

private slots:
    void elAireGuardaSusDatosYSeQuedaSiFalla() {
        Programa p;
        QVERIFY(p.Pulsar("cmdElegirComburente"));
        frmAireHumedad* aire = p.f.AireHumedad();
        auto* temperatura = Hijo<QLineEdit>(aire, "txtTemAmb");
        temperatura->setText(QStringLiteral("200"));
        QVERIFY(p.Pulsar(Hijo<QPushButton>(aire, "cmdCal")));
        QCOMPARE(Q(p.dlg.mensajes.back()), QStringLiteral(" La temperatura ha de ser mayor a 300 K "));
        QVERIFY(aire->isVisible());

        temperatura->setText(QStringLiteral("310"));
        Hijo<QCheckBox>(aire, "chkOcultar")->setChecked(false);
        QVERIFY(p.Pulsar(Hijo<QPushButton>(aire, "cmdCal")));
        QVERIFY(aire->isVisible());  // not hidden when the box is clear
        QCOMPARE(p.e.Tambiente, 310.0);
        aire->close();

        // The same window comes back with what the user left in it.
        p.Menu("mnuNuevo")->trigger();
        QVERIFY(aire->isVisible());
        QCOMPARE(temperatura->text(), QStringLiteral("310"));
        QVERIFY(!Hijo<QCheckBox>(aire, "chkOcultar")->isChecked());
    }

    void otrosCombustiblesBloqueaLasCajasDeLaOtraEntrada() {
        Programa p;
        QVERIFY(p.Etapa1());
        QVERIFY(p.Pulsar("cmdCombustible"));
        frmCombustible* v = p.f.Combustible();
        auto* optMasa = Hijo<QRadioButton>(v, "optMasa");
        auto* optFOR = Hijo<QRadioButton>(v, "optFOR");
        QVERIFY(!optMasa->isChecked() && !optFOR->isChecked());

        // CALCULAR before a choice is refused, and the window goes all the
        // same.
        QVERIFY(p.Pulsar(Hijo<QPushButton>(v, "cmdCal")));
        QCOMPARE(Q(p.dlg.mensajes.back()), QStringLiteral("Elija Otros de la lista de combustible"));
        QVERIFY(!v->isVisible());
        QVERIFY(p.Pulsar("cmdCombustible"));

        Programa::ElegirCombustible(v, QString::fromUtf8(kOtrosCombustibles.data()));
        QVERIFY(v->isVisible());
        QVERIFY(optMasa->isChecked());
        QCOMPARE(Hijo<QGroupBox>(v, "fraOtrosCombustibles")->title(), QStringLiteral("Otros combustibles"));
        for (const char* c : {"txtC", "txtN", "txtO", "txtS", "txtmmComb"})
            QVERIFY2(Abierta(Hijo<QLineEdit>(v, c)), c);
        for (const char* c : {"txtMolC", "txtMolH", "txtMolN", "txtMolO", "txtMolS"})
            QVERIFY2(Bloqueada(Hijo<QLineEdit>(v, c)), c);

        Programa::Elegir(optFOR);
        QVERIFY(optFOR->isChecked() && !optMasa->isChecked());
        for (const char* c : {"txtC", "txtN", "txtO", "txtS", "txtmmComb"})
            QVERIFY2(Bloqueada(Hijo<QLineEdit>(v, c)), c);
        for (const char* c : {"txtMolC", "txtMolH", "txtMolN", "txtMolO", "txtMolS"})
            QVERIFY2(Abierta(Hijo<QLineEdit>(v, c)), c);

        // Methanol as a formula.
        Hijo<QLineEdit>(v, "txtMolC")->setText(QStringLiteral("1"));
        Hijo<QLineEdit>(v, "txtMolH")->setText(QStringLiteral("4"));
        Hijo<QLineEdit>(v, "txtMolO")->setText(QStringLiteral("1"));
        Hijo<QLineEdit>(v, "txtEntPro")->setText(QStringLiteral("-238600"));
        QVERIFY(p.Pulsar(Hijo<QPushButton>(v, "cmdCal")));
        QVERIFY(!v->isVisible());
        QCOMPARE(Hijo<QLineEdit>(v, "txtmmComb")->text(), QStringLiteral("0.032043"));
        QVERIFY(!Hijo<QLineEdit>(v, "txtHci")->text().isEmpty());
        QCOMPARE(Q(p.f.TipoCombustible()), QStringLiteral("Otros combustibles"));
    }

    void unCombustibleDeLaListaDejaElegirSoloLaLista() {
        Programa p;
        QVERIFY(p.Etapa1());
        QVERIFY(p.Etapa2(QStringLiteral("Gasoil")));
        frmCombustible* v = p.f.Combustible();
        QCOMPARE(Hijo<QGroupBox>(v, "fraOtrosCombustibles")->title(), QStringLiteral("Gasoil"));
        for (const char* c : {"cmdCal", "optMasa", "optFOR"}) QVERIFY2(!Hijo<QWidget>(v, c)->isEnabled(), c);
        QCOMPARE(Hijo<QLineEdit>(v, "txtEntPro")->text(), QStringLiteral("-174080"));
        QCOMPARE(Hijo<QLineEdit>(v, "txtMolN")->text(), QStringLiteral("0.073"));
    }

    void FrYLambdaSeSiguenSegunLaQueManda() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2());
        QVERIFY(p.Pulsar("cmdCarCombustion"));
        frmGasesCombustion* v = p.f.GasesCombustion();
        auto* fr = Hijo<QLineEdit>(v, "txtFr");
        auto* lambda = Hijo<QLineEdit>(v, "txtLambda");
        // Typing in a box that does not lead changes nothing else.
        lambda->setText(QStringLiteral("2"));
        QCOMPARE(fr->text(), QStringLiteral("1"));

        QTest::mouseClick(lambda, Qt::LeftButton);
        QVERIFY(Hijo<QRadioButton>(v, "optLambda")->isChecked());
        lambda->selectAll();
        QTest::keyClicks(lambda, QStringLiteral("1.25"));
        QCOMPARE(fr->text(), QStringLiteral("0.8"));

        QTest::mouseClick(fr, Qt::LeftButton);
        QVERIFY(Hijo<QRadioButton>(v, "optFr")->isChecked());
        fr->setText(QStringLiteral("1.2"));
        QCOMPARE(lambda->text(), QStringLiteral("0.833"));
        QVERIFY(p.Pulsar(Hijo<QPushButton>(v, "cmdCalcular")));
        QCOMPARE(p.e.Fr, 1.2);
        QVERIFY(p.e.xCOHumos > 0);
    }

    void elCicloSeEligePorSuDibujo() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3());
        QVERIFY(p.Pulsar("cmdCarCiclo"));
        frmOtto_Diesel* v = p.f.Otto_Diesel();
        const char* marcos[] = {"fraDTecnicos",  "fraAire",      "fraOpcion",
                                "fraCompresion", "fraExpansion", "cmdCal"};
        for (const char* m : marcos) QVERIFY2(!Hijo<QWidget>(v, m)->isVisible(), m);
        QVERIFY(Hijo<QWidget>(v, "imgSeleccinar")->isVisible());
        // The state at the end of admission starts as the ambient.
        QCOMPARE(Hijo<QLineEdit>(v, "txtP1")->text(), QStringLiteral("100000"));
        QCOMPARE(Hijo<QLineEdit>(v, "txtT1")->text(), QStringLiteral("300"));

        QTest::mouseClick(Hijo<QLabel>(v, "imgMixto"), Qt::LeftButton);
        for (const char* m : marcos) QVERIFY2(Hijo<QWidget>(v, m)->isVisible(), m);
        QVERIFY(!Hijo<QWidget>(v, "imgSeleccinar")->isVisible());
        const auto* activa = Hijo<Forma>(v, "shpActiva");
        const auto* inactiva = Hijo<Forma>(v, "shpInactiva");
        QCOMPARE(Hijo<Forma>(v, "shpMixto")->BorderColor(), activa->BorderColor());
        QCOMPARE(Hijo<Forma>(v, "shpMixto")->BorderWidth(), activa->BorderWidth());
        QCOMPARE(Hijo<Forma>(v, "shpOtto")->BorderColor(), inactiva->BorderColor());
        const qint64 mixtoElegido = Hijo<QLabel>(v, "imgMixto")->pixmap().cacheKey();

        QTest::mouseClick(Hijo<QLabel>(v, "imgOtto"), Qt::LeftButton);
        QVERIFY(!Hijo<QWidget>(v, "fraOpcion")->isVisible());
        QCOMPARE(Hijo<Forma>(v, "shpOtto")->BorderColor(), activa->BorderColor());
        QCOMPARE(Hijo<Forma>(v, "shpMixto")->BorderColor(), inactiva->BorderColor());
        QVERIFY(Hijo<QLabel>(v, "imgMixto")->pixmap().cacheKey() != mixtoElegido);
        QCOMPARE(Q(p.e.TipoCiclo), QStringLiteral("Otto"));
    }

    void lasOpcionesMuestranSusCajas() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3());
        QVERIFY(p.AbrirCiclo("imgMixto"));
        frmOtto_Diesel* v = p.f.Otto_Diesel();
        auto visible = [v](const char* c) { return Hijo<QWidget>(v, c)->isVisible(); };
        QVERIFY(visible("txtGammaMedioComp") && !visible("txt_nCom") && !visible("lbl_n_comp"));
        Programa::Elegir(Hijo<QRadioButton>(v, "optPolitropicaCom"));
        QVERIFY(!visible("txtGammaMedioComp") && visible("txt_nCom") && visible("lbl_n_comp"));
        QVERIFY(p.e.ModeloCompresion == Modelo::Politropico);
        Programa::Elegir(Hijo<QRadioButton>(v, "optGvariable"));
        QVERIFY(!visible("txtGammaMedioComp") && !visible("txt_nCom"));
        QVERIFY(p.e.ModeloCompresion == Modelo::GammaVariable);
        Programa::Elegir(Hijo<QRadioButton>(v, "optGvariableExp"));
        QVERIFY(!visible("txtGMedioExp") && !visible("txt_nExp") && !visible("lbl_nExp"));
        QVERIFY(p.e.ModeloExpansion == Modelo::GammaVariable);

        QVERIFY(visible("txtPMax") && !visible("txtPropVcte"));
        Programa::Elegir(Hijo<QRadioButton>(v, "optProporcion"));
        QVERIFY(!visible("txtPMax") && !visible("lblPmax") && visible("txtPropVcte") &&
                visible("txtPropPcte"));
        QVERIFY(p.e.OpcionProporcion);

        // Above 100 % is told once, and the box falls back to 100.
        auto* vcte = Hijo<QLineEdit>(v, "txtPropVcte");
        vcte->setText(QStringLiteral("150"));
        QCOMPARE(p.dlg.mensajes, std::vector<std::string>{" % no puede ser superior a 100"});
        QCOMPARE(vcte->text(), QStringLiteral("100"));
        QCOMPARE(Hijo<QLineEdit>(v, "txtPropPcte")->text(), QStringLiteral("0"));
        vcte->setText(QStringLiteral("30"));
        QCOMPARE(Hijo<QLineEdit>(v, "txtPropPcte")->text(), QStringLiteral("70"));
        QCOMPARE(p.dlg.mensajes.size(), size_t(1));

        // The mixed cycle by heat shares solves with the models chosen.
        QVERIFY(p.Calcular());
        QVERIFY(!p.e.ErrorCalculo);
        QVERIFY(!v->isVisible());
        QVERIFY(p.e.p4 == p.e.p3 && p.e.V4 > p.e.V3);
    }

    void sinOcultarElCicloSeQuedaDelante() {
        Programa p;
        QVERIFY(p.Etapa1() && p.Etapa2() && p.Etapa3());
        QVERIFY(p.AbrirCiclo());
        Hijo<QCheckBox>(p.f.Otto_Diesel(), "chkOcultar")->setChecked(false);
        QVERIFY(p.Calcular());
        QVERIFY(!p.e.ErrorCalculo);
        QVERIFY(p.f.Otto_Diesel()->isVisible());
        // The mean exponents found are written back into their boxes.
        const double gamma = Hijo<QLineEdit>(p.f.Otto_Diesel(), "txtGammaMedioComp")->text().toDouble();
        QVERIFY(gamma > 1.2 && gamma < 1.45);
    }
};

static vanta::pruebas::Registrar<PruebaEtapas> registro;

#include "test_Etapas.moc"
