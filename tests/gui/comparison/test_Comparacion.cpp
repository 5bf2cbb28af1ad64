// The comparison window on saved records, and figures as files: a record
// compared with itself shows one curve twice at the same pixels; an SVG
// parses and holds the curve's points; a PDF has a page per figure.
#include <QListWidget>
#include <QProcess>
#include <QSvgRenderer>
#include <QTableWidget>
#include <QTest>
#include <QXmlStreamReader>

#include "gui/comparison/Comparar.h"
#include "gui/comparison/SuperficiePintor.h"
#include "gui/comparison/VentanaComparacion.h"
#include "gui/comparison/VentanaExportar.h"
#include "gui/database/EntradasCalculo.h"
#include "tests/gui/database/Banco.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

// The saved Otto and Diesel of the bench's three cycles, in a file of their own.
struct Registros {
    QTemporaryDir carpeta;
    QString ruta = carpeta.filePath(QStringLiteral("BD.sqlite"));
    DialogosGrabados dlg;
    std::unique_ptr<AlmacenResultados> almacen;
    std::vector<qint64> ids;

    Registros() {
        for (size_t i : {0, 1}) {
            const Calculo& c = TresCiclos()[i];
            if (!GuardarRegistro(c.r, c.e.TipoCiclo, c.imagenes, dlg, ruta)) qFatal("no se guarda");
        }
        almacen = std::make_unique<AlmacenResultados>(ruta);
        if (!almacen->Abrir()) qFatal("no se abre");
        ids = *almacen->Identificadores();
    }
};

// The pages of a PDF, as pdfinfo counts them.
int Paginas(const QString& ruta) {
    QProcess p;
    p.start(QStringLiteral("pdfinfo"), {ruta});
    if (!p.waitForFinished()) return -1;
    const QString salida = QString::fromUtf8(p.readAllStandardOutput());
    for (const QString& linea : salida.split(QLatin1Char('\n')))
        if (linea.startsWith(QStringLiteral("Pages:"))) return linea.mid(6).trimmed().toInt();
    return -1;
}

}  // namespace

class PruebaComparacion : public QObject {
    Q_OBJECT

private slots:
    void UnRegistroConsigoMismoEsUnaCurvaDosVecesEnLosMismosPixeles() {
        Registros r;
        // A save keeps the inputs beside the record.
        QVERIFY(EntradasGuardadas(*r.almacen, r.ids[0]));
        const auto pixeles = [&](std::vector<qint64> ids) {
            VentanaComparacion f(CalculosDeRegistros(*r.almacen, ids), '.', r.dlg);
            f.resize(1200, 800);
            f.show();
            for (const CalculoComparado& c : f.Calculos()) [&] { QVERIFY2(c.Hay(), c.mensaje.c_str()); }();
            return f.Lienzo(Diagrama::PV)->grab().toImage();
        };
        // Below the legend (one line of two short names), the second curve
        // covers every pixel of the first.
        const auto bajoLeyenda = [](const QImage& i) { return i.copy(0, 70, i.width(), i.height() - 70); };
        const QImage mismo = bajoLeyenda(pixeles({r.ids[0], r.ids[0]}));
        QCOMPARE(Cuenta(mismo, ColorQt(ColorComparacion(0))), 0);
        QVERIFY(Cuenta(mismo, ColorQt(ColorComparacion(1))) > 300);
        const QImage dos = bajoLeyenda(pixeles({r.ids[0], r.ids[1]}));
        QVERIFY(Cuenta(dos, ColorQt(ColorComparacion(0))) > 300);
    }

    void LaTablaPoneLasCifrasJuntasYElAvisoDeLoQueNoSeCalcula() {
        Registros r;
        std::vector<CalculoComparado> c = CalculosDeRegistros(*r.almacen, {r.ids[0], r.ids[1], 999});
        QCOMPARE(c[2].mensaje, r.almacen->Error());
        VentanaComparacion f(std::move(c), ',', r.dlg);
        QTableWidget* t = f.Tabla();
        QCOMPARE(t->item(0, 0)->text(), QStringLiteral("Aviso"));
        QCOMPARE(t->item(1, 0)->text(), QStringLiteral("Ciclo"));
        QCOMPARE(t->item(1, 1)->text(), QStringLiteral("Otto"));
        QCOMPARE(t->item(1, 2)->text(), QStringLiteral("Diesel"));
        QCOMPARE(t->horizontalHeaderItem(3)->text(), QString::fromUtf8("Dif. con el 1.º"));
        f.FijarPresion(UnidadPresion::bar);
        QVERIFY(!t->findItems(QStringLiteral("p1 (bar)"), Qt::MatchExactly).isEmpty());
    }

    void UnSVGSeLeeYLlevaLosPuntosDeLaCurva() {
        const Calculo& otto = TresCiclos()[0];
        const auto calculos = std::make_shared<const std::vector<CalculoComparado>>(
            1, CalculoDeEstado("Otto", otto.e, otto.combustible));
        const Figura f = FiguraDiagrama(Diagrama::PV, calculos, UnidadPresion::bar, '.');
        const QSize t(900, 650);  // the figure's own size: no scaling
        const QByteArray svg = SVGFigura(f, t);
        QVERIFY(QSvgRenderer(svg).isValid());

        std::vector<QPointF> puntos;
        QXmlStreamReader xml(svg);
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QStringLiteral("polyline"))
                for (const QString& p : xml.attributes()
                                            .value(QStringLiteral("points"))
                                            .toString()
                                            .split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    puntos.emplace_back(p.section(QLatin1Char(','), 0, 0).toDouble(),
                                        p.section(QLatin1Char(','), 1, 1).toDouble());
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));

        // Where the five states fall, measured as the figure measures its text.
        QImage muestra(t, QImage::Format_RGB32);
        muestra.setDotsPerMeterX(qRound(96 / 0.0254));
        muestra.setDotsPerMeterY(qRound(96 / 0.0254));
        QPainter pintor(&muestra);
        pintor.setFont(f.letra);
        SuperficiePintor s(pintor, t, 0);
        s.Scale(0, 0, t.width(), t.height());
        const CalculoComparado& c = calculos->front();
        const Disposicion d =
            Disponer(s, t.width(), t.height(), Diagrama::PV, {{"Otto", &c.curvas, c.estado.get(), false, 0}},
                     {.presion = UnidadPresion::bar, .leyenda = false});
        const Estado& e = *c.estado;
        const double V[] = {e.V1, e.V2, e.V3, e.V5}, p[] = {e.p1, e.p2, e.p3, e.p5};
        for (int k = 0; k < 4; ++k) {
            const QPointF estado(d.X(V[k] * 1e6), d.Y(p[k] * 1e-5));
            const bool esta = std::any_of(puntos.begin(), puntos.end(), [&](const QPointF& q) {
                return std::abs(q.x() - estado.x()) < 0.01 && std::abs(q.y() - estado.y()) < 0.01;
            });
            QVERIFY2(
                esta,
                qPrintable(QStringLiteral("estado %1 en (%2, %3)").arg(k).arg(estado.x()).arg(estado.y())));
        }
    }

    void UnPDFLlevaUnaPaginaPorFiguraYUnPNGSuTamano() {
        const Calculo& otto = TresCiclos()[0];
        const auto calculos = std::make_shared<const std::vector<CalculoComparado>>(
            1, CalculoDeEstado("Otto", otto.e, otto.combustible));
        DialogosGrabados dlg;
        VentanaExportar v([calculos](UnidadPresion u) { return FigurasDiagramas(calculos, u, '.'); },
                          UnidadPresion::Pa, {0, 1, 2, 3}, dlg);
        QTemporaryDir carpeta;
        v.FijarFormato(FormatoFigura::PDF);
        QVERIFY(v.Guardar(carpeta.filePath(QStringLiteral("cuatro.pdf"))));
        QCOMPARE(Paginas(carpeta.filePath(QStringLiteral("cuatro.pdf"))), 4);

        v.Lista()->item(0)->setCheckState(Qt::Unchecked);
        v.Lista()->item(2)->setCheckState(Qt::Unchecked);
        QVERIFY(v.Guardar(carpeta.filePath(QStringLiteral("dos.pdf"))));
        QCOMPARE(Paginas(carpeta.filePath(QStringLiteral("dos.pdf"))), 2);

        v.FijarFormato(FormatoFigura::PNG);
        v.FijarTamano({640, 480});
        QVERIFY(v.Guardar(carpeta.path()));
        QCOMPARE(QImage(carpeta.filePath(QStringLiteral("diagrama-tv.png"))).size(), QSize(640, 480));
        QCOMPARE(QImage(carpeta.filePath(QStringLiteral("diagrama-hs.png"))).size(), QSize(640, 480));
        QVERIFY(!QFile::exists(carpeta.filePath(QStringLiteral("diagrama-pv.png"))));
        QVERIFY(!v.Guardar(carpeta.filePath(QStringLiteral("dos.pdf"))));
        QCOMPARE(dlg.mensajes.size(), size_t(1));
    }

    void LaVentanaPrincipalExportaSuCalculoConElDiagramaAmpliadoElegido() {
        Programa p;
        std::vector<size_t> elegidas;
        int figuras = 0;
        p.f.FijarMostrarModal([&](QDialog& d) {
            if (auto* x = qobject_cast<VentanaExportar*>(&d)) {
                elegidas = x->Elegidas();
                figuras = x->Lista()->count();
            }
            d.show();
        });
        QVERIFY(!p.Menu("mnuExportarDiagramas")->isEnabled());
        QVERIFY(p.CuatroEtapas());
        QVERIFY(p.Menu("mnuExportarDiagramas")->isEnabled());
        p.Menu("mnuExportarDiagramas")->trigger();
        QCOMPARE(figuras, 7);  // four diagrams, three charts
        QCOMPARE(elegidas, (std::vector<size_t>{0, 1, 2, 3}));
        p.Menu("mnuTS")->trigger();
        p.Menu("mnuExportarDiagramas")->trigger();
        QCOMPARE(elegidas, std::vector<size_t>{2});
        QVERIFY(p.dlg.mensajes.empty());
    }

    void NoSeEligenMasDeSeisRegistros() {
        std::vector<std::string> nombres(8, "r");
        std::vector<qint64> ids = {1, 2, 3, 4, 5, 6, 7, 8};
        VentanaElegirRegistros f(nombres, ids, kMaximoComparados, 1, 3, nullptr);
        QCOMPARE(f.Elegidos(), std::vector<qint64>{3});
        for (int i = 0; i < 8; ++i) f.Lista()->item(i)->setCheckState(Qt::Checked);
        QCOMPARE(f.Elegidos(), (std::vector<qint64>{1, 2, 3, 4, 5, 6}));
    }
};

static Registrar<PruebaComparacion> registro;

#include "test_Comparacion.moc"
