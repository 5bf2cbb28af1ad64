// What the main window and its stage windows do so that nothing stale is
// saved or shown: a calculation that fails leaves the last good figures on
// screen, says so, and neither saves nor exports them; a stage window that
// refuses a box stays open on it with the next stage shut; the gases chart,
// the readout and the menu's marks follow what is on screen.
#include <QTest>

#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// A box of a stage window typed, and its CALCULAR (cmdCal) pressed.
void Escribir(QDialog* v, const char* caja, const char* texto, const char* boton = "cmdCal") {
    Hijo<QLineEdit>(v, caja)->setText(QString::fromLatin1(texto));
    QTest::mouseClick(Hijo<QPushButton>(v, boton), Qt::LeftButton);
}

// The four stages again, the air at that ambient and the cycle admitting it.
bool Ciclo(Programa& p, const char* ambiente, const char* ciclo = "imgOtto") {
    if (!p.Pulsar("cmdElegirComburente") || !Programa::Abierta(p.f.Aire())) return false;
    Escribir(p.f.Aire(), "txtTemAmb", ambiente);
    if (!p.Etapa2(QStringLiteral("Gasoil")) || !p.Etapa3() || !p.AbrirCiclo(ciclo)) return false;
    Escribir(p.f.Ciclo(), "txtT1", ambiente);
    p.f.Ciclo()->hide();
    return true;
}

}  // namespace

class PruebaIntentoFallido : public QObject {
    Q_OBJECT

private slots:
    void unCalculoQueFallaNoSeGuardaNiSeExportaYLoDice() {
        Programa p;
        QVERIFY(Ciclo(p, "300", "imgMixto"));
        const QString t1 = p.Etiqueta("lblT1");
        SuperficieQt* tv = p.f.pctTV();
        const QPoint punto(tv->width() / 2, tv->height() / 3), otro(10, 10);
        QTest::mouseMove(tv, punto);
        const QString leida = p.Etiqueta("lblTmouseVal");
        auto* aviso = Hijo<QLabel>(&p.f, "lblIntentoFallido");
        QVERIFY(aviso->isHidden() && p.Boton("cmdEnvBaseDatos")->isEnabled() && !leida.isEmpty());

        // An Otto at 5000 K fails at the temperature limit, the Mixto in view.
        QVERIFY(Ciclo(p, "5000"));
        QVERIFY(p.e.ErrorCalculo && p.f.flujo().visible.fraPuntos && p.Etiqueta("lblT1") == t1);
        QVERIFY2(aviso->isVisible() && aviso->text().startsWith(QString::fromUtf8(
                                           "Las cifras son del último cálculo completo; el último intento "
                                           "falló: Se ha superado la temperatura máxima")),
                 qPrintable(aviso->text()));
        QVERIFY(!p.Pulsar("cmdEnvBaseDatos"));
        for (const char* menu : {"mnuBDatos", "mnuExportarDiagramas", "mnuGuardarHTML"})
            QVERIFY2(!p.Menu(menu)->isEnabled(), menu);
        const QString capturas = qEnvironmentVariable("VANTA_CAPTURAS");
        if (!capturas.isEmpty()) QVERIFY(p.f.grab().save(capturas + QStringLiteral("/intento-fallido.png")));
        // The readout starts empty, then reads the figures on screen.
        QVERIFY(p.Etiqueta("lblTmouseVal").isEmpty());
        QTest::mouseMove(tv, otro);
        QTest::mouseMove(tv, punto);
        QCOMPARE(p.Etiqueta("lblTmouseVal"), leida);
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);  // enlarged, the banner over the readout
        QVERIFY(p.f.flujo().vista == Vista::PV && aviso->isVisible());
        p.Menu("mnuVerTodo")->trigger();

        QVERIFY(Ciclo(p, "300"));
        QVERIFY(aviso->isHidden() && p.Boton("cmdEnvBaseDatos")->isEnabled() &&
                p.Menu("mnuBDatos")->isEnabled());
    }

    void unaEtapaQueRechazaUnaCajaSigueAbiertaSobreElla() {
        Programa p;
        QVERIFY(p.Pulsar("cmdElegirComburente") && Programa::Abierta(p.f.Aire()));
        for (auto [caja, texto] : {std::pair{"txtTemAmb", "calor"}, std::pair{"txtHum", "150"}}) {
            Escribir(p.f.Aire(), caja, texto);
            QVERIFY(p.f.Aire()->isVisible() && Hijo<QLineEdit>(p.f.Aire(), caja)->hasFocus());
            Hijo<QLineEdit>(p.f.Aire(), caja)->setText(QStringLiteral("300"));
        }
        QCOMPARE(p.dlg.mensajes.back(), std::string("La humedad relativa debe estar entre 0 y 100 %"));
        // Closed unfinished and opened again, the fuel stays shut until the
        // air is calculated.
        p.f.Aire()->hide();
        QVERIFY(p.Pulsar("cmdElegirComburente") && p.Etapas() == QStringLiteral("1000"));
        Escribir(p.f.Aire(), "txtHum", "0");
        QVERIFY(!p.f.Aire()->isVisible() && p.Etapas() == QStringLiteral("1100"));

        // CALCULAR of the fuel with no fuel of one's own chosen.
        QVERIFY(p.Pulsar("cmdCombustible") && Programa::Abierta(p.f.Combustible()));
        Programa::ElegirCombustible(p.f.Combustible(), QStringLiteral("Otros combustibles"));
        Hijo<QComboBox>(p.f.Combustible(), "cboTipCom")->setCurrentIndex(0);
        QTest::mouseClick(Hijo<QPushButton>(p.f.Combustible(), "cmdCal"), Qt::LeftButton);
        QVERIFY(p.f.Combustible()->isVisible() &&
                Hijo<QComboBox>(p.f.Combustible(), "cboTipCom")->hasFocus());
        QCOMPARE(p.Etapas(), QStringLiteral("1100"));
        p.f.Combustible()->hide();

        // A refused dosage keeps the cycle shut, its menu entries too.
        QVERIFY(p.Etapa2() && p.Pulsar("cmdCarCombustion") && Programa::Abierta(p.f.Combustion()));
        Escribir(p.f.Combustion(), "txtFr", "x", "cmdCalcular");
        QVERIFY(p.Etapas() == QStringLiteral("0110") && !p.Menu("mnuCalcular")->isEnabled());
    }

    void losPanelesSiguenALoQueHayEnPantalla() {
        Programa p;
        // A new air or fuel clears the gases until their combustion is calculated.
        QVERIFY(p.CuatroEtapas() && Dibujada(p.f.pct3()));
        QVERIFY(p.Etapa1() && !Dibujada(p.f.pct3()));
        QVERIFY(p.Etapa2() && p.Etapa3() && Dibujada(p.f.pct3()));
        QVERIFY(p.Etapa2(QStringLiteral("Metanol")) && !Dibujada(p.f.pct3()));
        QVERIFY(p.Etapa3() && p.Etapa4());
        // "Todos los gráficos" is marked whenever the four diagrams are in view.
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);
        QTest::mouseClick(p.f.pctPV(), Qt::LeftButton);
        QVERIFY(p.f.flujo().vista == Vista::General && p.Menu("mnuVerTodo")->isChecked());
        p.Menu("mnuTS")->trigger();
        p.Menu("mnuTS")->trigger();
        QVERIFY(p.Menu("mnuVerTodo")->isChecked() && !p.Menu("mnuTS")->isChecked());
    }
};

static Registrar<PruebaIntentoFallido> registrar;
#include "test_IntentoFallido.moc"
