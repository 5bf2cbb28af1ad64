// The tables tool driven as a user drives it: what each definition button
// enables, the tables growing in the viewer while the program answers, and
// the viewer's save, print and fitting of its box.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/LineaComandos.h"
#include "core/services/Numeros.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/tables/VentanaHerramientas.h"
#include "gui/tables/VentanaTablas.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// The tool with what the main window would give it: each definition button
// counts its openings, and the fluid of the screens' first values is at hand.
struct Herramienta {
    Estado e;
    DialogosGrabados dlg;
    DialogosArchivoGrabados archivos;
    int comburente = 0, combustible = 0, combustion = 0;
    VentanaHerramientas f{
        e, dlg,
        EnlacesHerramientas{[this] { ++comburente; }, [this] { ++combustible; }, [this] { ++combustion; },
                            [] { return std::string("Gasolina"); }},
        nullptr, &archivos};

    QPushButton* Boton(const char* nombre) const { return Hijo<QPushButton>(&f, nombre); }
    QRadioButton* Opcion(const char* nombre) const { return Hijo<QRadioButton>(&f, nombre); }
    QLineEdit* Caja(const char* nombre) const { return Hijo<QLineEdit>(&f, nombre); }
    VentanaTablas* Visor() const { return f.Tablas(); }
    QPlainTextEdit* Texto() const { return Hijo<QPlainTextEdit>(Visor(), "rtfTablas"); }

    bool Pulsar(const char* boton) const { return Programa::Pulsar(Boton(boton)); }
    void Elegir(const char* opcion) const { Programa::Elegir(Opcion(opcion)); }

    // Enabled of Combustible, Combustión and TABLAS, as "011".
    QString Habilitados() const {
        QString s;
        for (const char* b : {"cmdCombustible", "cmdCombustion", "cmdTablas"})
            s += Boton(b)->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
        return s;
    }

    void Fluido() {
        SuperficieNula pct1, pct2, pct3;
        DiagramasNulos d;
        SuperficiesCalculo s{pct1, pct2, pct3, d.Todos()};
        Mensajes msj;
        if (!DefinirFluido(e, msj, vanta::Entradas(), s, true)) qFatal("fluido");
    }

    // The text the core makes from the same state and boxes.
    std::string TextoEsperado(bool especie) {
        Estado copia = e;
        Mensajes d;
        const EntradasHerramientas c{
            .incremento = Caja("txtAT")->text().toStdString(),
            .tInicial = Caja("txtTinicial")->text().toStdString(),
            .tFinal = Caja("txtTfinal")->text().toStdString(),
            .porMol = Opcion("optMol")->isChecked(),
            .porKg = Opcion("optKg")->isChecked(),
            .aire = Opcion("optAire")->isChecked(),
            .humos = Opcion("optHumos")->isChecked(),
            .elemento = Hijo<QComboBox>(&f, "cboElemento")->currentText().toStdString()};
        MiembrosHerramientas m;
        VisorTablasTexto v;
        if (especie)
            cmdTab_Click(copia, d, c, m, v);
        else
            cmdTablas_Click(copia, d, c, m, v, "Gasolina");
        return v.texto;
    }
};

}  // namespace

class PruebaHerramientas : public QObject {
    Q_OBJECT

private slots:
    void cadaBotonDeDefinicionHabilitaLoQueLeSigue() {
        Herramienta h;
        h.f.MostrarParaDefinir();
        QVERIFY(h.Pulsar("cmdComburente"));
        QCOMPARE(h.comburente, 1);
        QCOMPARE(h.e.TablaAireDisponible, true);
        QCOMPARE(h.e.TablaHumosDisponible, false);
        QCOMPARE(h.Habilitados(), QStringLiteral("101"));  // TABLAS follows optAire

        // Choosing the gases never disables TABLAS.
        h.Elegir("optHumos");
        QCOMPARE(h.Habilitados(), QStringLiteral("101"));

        // The fuel, with the gases chosen: TABLAS goes off until the gases are
        // defined; the air's option brings it back, the gases' does not.
        QVERIFY(h.Pulsar("cmdCombustible"));
        QCOMPARE(h.combustible, 1);
        QCOMPARE(h.Habilitados(), QStringLiteral("110"));
        h.Elegir("optHumos");
        QCOMPARE(h.Habilitados(), QStringLiteral("110"));
        h.Elegir("optAire");
        QCOMPARE(h.Habilitados(), QStringLiteral("111"));

        QVERIFY(h.Pulsar("cmdCombustion"));
        QCOMPARE(h.combustion, 1);
        QCOMPARE(h.e.TablaHumosDisponible, true);
        QCOMPARE(h.Habilitados(), QStringLiteral("111"));

        // The comburent again: the gases count as undefined once more.
        h.Elegir("optHumos");
        QVERIFY(h.Pulsar("cmdComburente"));
        QCOMPARE(h.e.TablaHumosDisponible, false);
        QCOMPARE(h.Habilitados(), QStringLiteral("100"));
    }

    void elCicloActualEsconeLosBotonesYDaPorDefinidosLosFluidos() {
        Herramienta h;
        h.f.MostrarCicloActual();
        QVERIFY(h.f.isVisible());
        for (const char* b : {"cmdComburente", "cmdCombustible", "cmdCombustion"})
            QVERIFY2(!h.Boton(b)->isVisible(), b);
        QVERIFY(h.Boton("cmdTablas")->isEnabled());
        QCOMPARE(h.e.TablaAireDisponible, true);
        QCOMPARE(h.e.TablaHumosDisponible, true);
        // The definition buttons come back with the other entry; TABLAS stays
        // as this one left it.
        h.f.MostrarParaDefinir();
        QVERIFY(h.Boton("cmdComburente")->isVisible());
        QVERIFY(h.Boton("cmdTablas")->isEnabled());
    }

    void laTablaDeLosGasesApareceEnElVisorComoLaEscribenLasTablas() {
        Herramienta h;
        h.Fluido();
        h.f.MostrarCicloActual();
        h.Elegir("optHumos");
        h.Elegir("optKg");
        h.Caja("txtTinicial")->setText(QStringLiteral("800"));
        h.Caja("txtTfinal")->setText(QStringLiteral("1200"));
        const std::string esperado = h.TextoEsperado(false);
        QVERIFY(h.Pulsar("cmdTablas"));
        QVERIFY(h.Visor()->isVisible());
        QCOMPARE(QString::fromStdString(h.Visor()->Texto()), QString::fromStdString(esperado));
        QVERIFY(h.dlg.mensajes.empty());
        QCOMPARE(h.e.Temperatura, 1200.0);
    }

    void unaTablaLargaCreceALaVistaYElProgramaContesta() {
        Herramienta h;
        h.Fluido();
        h.f.MostrarCicloActual();
        h.Caja("txtAT")->setText(QStringLiteral("0.1"));
        int cambios = 0;
        QObject::connect(h.Texto()->document(), &QTextDocument::contentsChanged, [&] { ++cambios; });
        // A timer due at once fires while the table is being made, and a
        // second press of TABLAS then is let pass.
        bool atendido = false;
        QTimer::singleShot(0, [&] {
            atendido = h.f.Ocupada();
            QTest::mouseClick(h.Boton("cmdTablas"), Qt::LeftButton);
        });
        QVERIFY(h.Pulsar("cmdTablas"));
        QVERIFY(atendido);
        QVERIFY2(cambios > 2, qPrintable(QString::number(cambios)));
        QCOMPARE(h.Texto()->document()->blockCount(), 3 + 2 * 47001 + 1);
        const std::string texto = h.Visor()->Texto();
        QCOMPARE(texto.substr(texto.size() - 120), h.TextoEsperado(false).substr(texto.size() - 120));
    }

    void unaEspecieQueNoEstaEnLaListaSeAvisaYElVisorSeVa() {
        Herramienta h;
        auto* lista = Hijo<QComboBox>(&h.f, "cboElemento");
        h.f.MostrarParaDefinir();
        QVERIFY(h.Pulsar("cmdTab"));
        QCOMPARE(QString::fromStdString(h.dlg.mensajes.back()),
                 QStringLiteral("Elija un elemento de la lista"));
        QVERIFY(!h.Visor()->isVisible());

        lista->setCurrentIndex(lista->findText(QStringLiteral("CO2")));
        h.Caja("txtTfinal")->setText(QStringLiteral("400"));
        QVERIFY(h.Pulsar("cmdTab"));
        QVERIFY(h.Visor()->isVisible());
        QCOMPARE(QString::fromStdString(h.Visor()->Texto()), QString::fromStdString(h.TextoEsperado(true)));

        // A step of 0 is refused with no rows.
        h.Caja("txtAT")->setText(QStringLiteral("0"));
        const size_t antes = h.dlg.mensajes.size();
        QVERIFY(h.Pulsar("cmdTab"));
        QCOMPARE(h.dlg.mensajes.size(), antes + 1);
        QVERIFY(!h.Visor()->isVisible());
    }

    void elVisorGuardaElTextoTalCualEImprime() {
        Herramienta h;
        h.f.MostrarParaDefinir();
        Hijo<QComboBox>(&h.f, "cboElemento")->setEditText(QStringLiteral("N2"));
        h.Caja("txtTfinal")->setText(QStringLiteral("600"));
        QVERIFY(h.Pulsar("cmdTab"));
        const std::string texto = h.Visor()->Texto();

        QTemporaryDir carpeta;
        const QString archivo = carpeta.filePath(QStringLiteral("tabla.txt"));
        const QString pdf = carpeta.filePath(QStringLiteral("tabla.pdf"));
        auto* guardar = Hijo<QAction>(h.Visor(), "mnuGuardarComo");
        auto* imprimir = Hijo<QAction>(h.Visor(), "mnuImprimir");
        QCOMPARE(guardar->text(), QStringLiteral("&Guardar como"));
        QCOMPARE(imprimir->text(), QStringLiteral("&Imprimir"));

        // A cancelled dialog writes nothing.
        guardar->trigger();
        imprimir->trigger();
        QCOMPARE(h.archivos.impresoras, 1);
        QVERIFY(QDir(carpeta.path()).isEmpty());
        QVERIFY(h.archivos.pedidos.at(0).filtro.starts_with("Documento de texto  (*.txt)|*.txt|"));

        h.archivos.respuestas << archivo;
        h.archivos.pdf = pdf;
        guardar->trigger();
        QFile f(archivo);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray::fromStdString(texto));
        QVERIFY(texto.find("\r\n     \r\n") != std::string::npos);  // the line of five blanks between rows

        imprimir->trigger();
        QFile p(pdf);
        QVERIFY(p.open(QIODevice::ReadOnly));
        QVERIFY(p.read(5) == "%PDF-");
    }
};

static vanta::pruebas::Registrar<PruebaHerramientas> registro;

#include "test_VentanaHerramientas.moc"
