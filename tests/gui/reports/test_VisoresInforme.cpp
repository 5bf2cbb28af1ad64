// The saved page with its bitmaps, the text report saved and read back, the
// report windows and their printing, driven with answered dialogs.
#include <QAction>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <sstream>

#include "app/LineaComandos.h"
#include "gui/reports/PaginaWeb.h"
#include "gui/reports/VentanaInforme.h"
#include "gui/reports/VentanaMostrarInforme.h"
#include "gui/reports/VisoresInforme.h"
#include "gui/services/SuperficieQt.h"
#include "tests/gui/mainwindow/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;

namespace {

// A cycle calculated as the command line does it, drawn on seven real
// picture boxes of distinct sizes; the report is what the run printed.
struct Calculo {
    std::shared_ptr<const ResultadoCalculo> r;
    DialogosGrabados dlg;
    SuperficieQt pct1, pct2, pct3, pctPV, pctTV, pctTS{nullptr, kFondoGris}, pctHS{nullptr, kFondoGris};
    std::string informe;

    Calculo() {
        int i = 0;
        for (SuperficieQt* s : Todas()) s->resize(180 + 10 * i, 120 + 7 * i), ++i;
        SuperficiesCalculo s{pct1, pct2, pct3, {pctPV, pctTV, pctTS, pctHS}};
        r = std::make_shared<const ResultadoCalculo>(Calcular(Entradas(), s));
        if (!r->bien) qFatal("el cálculo de prueba falla");
        informe = r->informe;
    }
    const Estado& e() const { return *r->estado; }

    std::array<SuperficieQt*, 7> Todas() { return {&pct1, &pct2, &pct3, &pctPV, &pctTV, &pctTS, &pctHS}; }

    SuperficieQt& Cuadro(CuadroImagen c) { return *Todas()[static_cast<size_t>(c)]; }

    FuentePagina Fuente() {
        return {[this] { return r; }, [this](CuadroImagen c) { return Cuadro(c).Imagen(); }};
    }
};

// The names between double quotes of the page's pictures.
QStringList ImagenesDeLaPagina(const QByteArray& pagina) {
    QStringList nombres;
    static const QRegularExpression img(QStringLiteral("<IMG SRC = \"([^\"]+)\">"));
    for (auto m = img.globalMatch(QString::fromUtf8(pagina)); m.hasNext();) nombres << m.next().captured(1);
    return nombres;
}

QByteArray Leer(const QString& archivo) {
    QFile f(archivo);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList Contenido(const QString& carpeta) {
    return QDir(carpeta).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

// The text of a PDF, with its layout (pdftotext, of poppler-utils, which
// ./vanta installs).
QString TextoPdf(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

// The report as a box shows it.
QString EnCaja(const std::string& informe) {
    return Q(TextoEnCaja(informe));
}

}  // namespace

class PruebaVisoresInforme : public QObject {
    Q_OBJECT

    Calculo c;
    std::unique_ptr<QTemporaryDir> carpeta;
    DialogosArchivoGrabados archivos;
    std::unique_ptr<VisoresInforme> v;

    QString Ruta(const QString& nombre) const { return carpeta->filePath(nombre); }
    QString Carpeta() const { return carpeta->path(); }

private slots:
    void init() {
        carpeta = std::make_unique<QTemporaryDir>();
        archivos = DialogosArchivoGrabados();
        c.dlg.mensajes.clear();
        v = std::make_unique<VisoresInforme>(c.dlg, c.Fuente(), nullptr, &archivos);
        v->PonerInformeTexto(c.informe);
    }
    void cleanup() {
        v.reset();
        carpeta.reset();
    }

    void laPaginaYSusSieteBitmapsQuedanJuntosYLaPaginaLosEncuentra() {
        const QString carpeta = Ruta(QStringLiteral("nueva/carpeta"));
        QCOMPARE(EscribirPaginaEnCarpeta(carpeta, *c.r, ImagenesDe(c.Fuente().imagen)), std::nullopt);
        const QByteArray pagina = Leer(QDir(carpeta).filePath(QStringLiteral("Index.htm")));
        QCOMPARE(pagina, QByteArray::fromStdString(BytesPagina(HTMLInforme(c.e(), "Gasolina"))));
        QCOMPARE(Contenido(carpeta).size(), 8);
        // Every picture the page names is a file of that very name: a Windows
        // bitmap of the picture box's size and picture.
        const QStringList nombres = ImagenesDeLaPagina(pagina);
        QCOMPARE(nombres.size(), 7);
        for (size_t i = 0; i < kImagenesPagina.size(); ++i) {
            QImageReader lector(QDir(carpeta).filePath(nombres[static_cast<qsizetype>(i)]));
            QCOMPARE(lector.format(), QByteArray("bmp"));
            QCOMPARE(lector.read().convertToFormat(QImage::Format_RGB32),
                     c.Cuadro(kImagenesPagina[i].cuadro).Imagen().convertToFormat(QImage::Format_RGB32));
        }
        // A box with no picture still gives the page a picture to show.
        ImagenesPagina vacias;
        QCOMPARE(EscribirPaginaEnCarpeta(carpeta, *c.r, vacias), std::nullopt);
        QCOMPARE(QImage(ArchivoImagenEn(carpeta, kImagenesPagina[0])).size(), QSize(1, 1));
        // A folder that is a file: the reason, and nothing written.
        QFile(Ruta(QStringLiteral("archivo"))).open(QIODevice::WriteOnly);
        QCOMPARE(EscribirPaginaEnCarpeta(Ruta(QStringLiteral("archivo")), *c.r, vacias),
                 Ruta(QStringLiteral("archivo")).toStdString() + " es un archivo, no una carpeta");
    }

    void guardarComoPaginaAconsejaPreguntaYEscribeElUltimoCalculo() {
        const QString primera = Ruta(QStringLiteral("Index.htm"));
        archivos.respuestas << primera;
        v->GuardarPaginaWeb(nullptr, kDialogoPaginaPrincipal);
        QCOMPARE(c.dlg.mensajes, std::vector<std::string>{std::string(kConsejoCarpetaNueva)});
        QCOMPARE(archivos.pedidos.size(), size_t{1});
        QCOMPARE(archivos.pedidos[0].nombre, std::string_view("Index"));
        QCOMPARE(archivos.pedidos[0].filtro, kFiltroPagina);
        QCOMPARE(v->ArchivoPagina(), primera);
        QCOMPARE(Leer(primera), QByteArray::fromStdString(BytesPagina(v->rthHTML())));
        QCOMPARE(Contenido(Carpeta()).size(), 8);

        // From the report window: its own default name; the page shows the
        // last calculation that ended well, and the pictures as the boxes
        // stand now, over those of the former page.
        auto otro = std::make_shared<ResultadoCalculo>(*c.r);
        Estado diesel = c.e();
        diesel.TipoCiclo = "Diesel";
        otro->estado = std::make_shared<const Estado>(diesel);
        c.r = otro;
        c.pctPV.Cls();
        archivos.respuestas << Ruta(QStringLiteral("Ciclo.htm"));
        pruebas::Hijo<QAction>(v->Informe(), "mnuHTML")->trigger();
        QCOMPARE(archivos.pedidos.back().nombre, std::string_view("Ciclo"));
        QVERIFY(Leer(Ruta(QStringLiteral("Ciclo.htm"))).contains("CICLO: Diesel"));
        QCOMPARE(c.dlg.mensajes.size(), size_t{2});
        QCOMPARE(Contenido(Carpeta()).size(), 9);
        QVERIFY(!pruebas::Dibujada(&c.pctPV));
        QCOMPARE(QImage(ArchivoImagenEn(Carpeta(), kImagenesPagina[3])).convertToFormat(QImage::Format_RGB32),
                 c.pctPV.Imagen().convertToFormat(QImage::Format_RGB32));
    }

    void cancelarNoEscribeNadaYUnFalloDiceElPorQue() {
        v->GuardarPaginaWeb(nullptr, kDialogoPaginaPrincipal);
        v->GuardarTexto(nullptr);
        QCOMPARE(archivos.pedidos.size(), size_t{2});
        QCOMPARE(c.dlg.mensajes.size(), size_t{1});  // the advice comes before the dialog
        QVERIFY(Contenido(Carpeta()).isEmpty());
        // A page into a folder that is a file: told why, nothing written.
        QFile(Ruta(QStringLiteral("falta"))).open(QIODevice::WriteOnly);
        archivos.respuestas << Ruta(QStringLiteral("falta/Index.htm"));
        v->GuardarPaginaWeb(nullptr, kDialogoPaginaPrincipal);
        QCOMPARE(c.dlg.mensajes.back(), std::string(kPaginaNoGuardada) +
                                            Ruta(QStringLiteral("falta")).toStdString() +
                                            " es un archivo, no una carpeta");
        QVERIFY(v->ArchivoPagina().isEmpty());
        QCOMPARE(Contenido(Carpeta()), QStringList{QStringLiteral("falta")});
    }

    void elTextoGuardadoSinAbrirLaVentanaSeReabreIgualEnMostrar() {
        // The report of the last calculation, whatever the filter names.
        const QString rtf = Ruta(QStringLiteral("informe.rtf"));
        archivos.respuestas << rtf;
        v->GuardarTexto(nullptr);
        QCOMPARE(archivos.pedidos[0].filtro, kFiltroTexto);
        const QByteArray bytes = Leer(rtf);
        QCOMPARE(bytes, QByteArray::fromStdString(c.informe));
        QCOMPARE(bytes.count("\r\n"), bytes.count('\n'));
        QVERIFY(bytes.count("\r\n") > 50);

        VentanaMostrarInforme* m = v->Mostrar();
        v->AbrirInforme();
        QVERIFY(m->isVisible());
        QCOMPARE(m->windowTitle(), QStringLiteral("Abre informes"));
        QVERIFY(!m->isModal());
        QAction* imprimir = pruebas::Hijo<QAction>(m, "mnuImprimir");
        QVERIFY(!imprimir->isEnabled());
        QVERIFY(!m->rtfMostrar()->isVisible());

        archivos.respuestas << rtf;
        QTest::mouseClick(pruebas::Hijo<QPushButton>(m, "cmdAbriTexto"), Qt::LeftButton);
        QCOMPARE(archivos.pedidos.back().filtro, kFiltroTextoMostrar);
        QCOMPARE(archivos.pedidos.back().indiceFiltro, 5);
        QVERIFY(m->rtfMostrar()->isVisible());
        QCOMPARE(m->rtfMostrar()->toPlainText(), EnCaja(c.informe));
        QVERIFY(imprimir->isEnabled());

        // A page goes to the browser; the text stays and printing goes.
        archivos.respuestas << Ruta(QStringLiteral("Index.htm"));
        QTest::mouseClick(pruebas::Hijo<QPushButton>(m, "cmdIE"), Qt::LeftButton);
        QCOMPARE(archivos.pedidos.back().filtro, kFiltroPagina);
        QCOMPARE(archivos.paginas.size(), size_t{1});
        QCOMPARE(archivos.paginas[0], QUrl::fromLocalFile(Ruta(QStringLiteral("Index.htm"))));
        QVERIFY(!imprimir->isEnabled());
        QCOMPARE(m->rtfMostrar()->toPlainText(), EnCaja(c.informe));

        // A report in the old 8-bit code page; then a cancel and a file that
        // is not there leave the box and the menu as they were; so does a
        // browser that does not open.
        QFile antiguo(Ruta(QStringLiteral("antiguo.txt")));
        QVERIFY(antiguo.open(QIODevice::WriteOnly));
        antiguo.write(
            "Presi\xF3n ambiente\r\nT = 26.85 \xBA"
            "C");
        antiguo.close();
        archivos.respuestas << antiguo.fileName();
        pruebas::Hijo<QAction>(m, "mnuAbrirTexto")->trigger();
        QCOMPARE(m->rtfMostrar()->toPlainText(), QStringLiteral("Presión ambiente\nT = 26.85 ºC"));
        pruebas::Hijo<QAction>(m, "mnuAbrirTexto")->trigger();
        archivos.respuestas << Ruta(QStringLiteral("falta.txt"));
        pruebas::Hijo<QAction>(m, "mnuAbrirTexto")->trigger();
        archivos.navegadorDisponible = false;
        archivos.respuestas << Ruta(QStringLiteral("Index.htm"));
        pruebas::Hijo<QAction>(m, "mnuAbrirWeb")->trigger();
        QCOMPARE(m->rtfMostrar()->toPlainText(), QStringLiteral("Presión ambiente\nT = 26.85 ºC"));
        QVERIFY(imprimir->isEnabled());
    }

    void laVentanaAbiertaMuestraLoAnteriorYGuardaLoUltimoCalculado() {
        v->VerInforme("uno\r\ndos");
        VentanaInforme* f = v->Informe();
        QVERIFY(f->isVisible());
        QVERIFY(!f->isModal());
        QCOMPARE(f->windowTitle(), QStringLiteral("Informe"));
        QCOMPARE(f->txtInforme()->toPlainText(), QStringLiteral("uno\ndos"));
        const QFontMetrics medidas(f->txtInforme()->font());
        QCOMPARE(medidas.horizontalAdvance(QLatin1Char('i')), medidas.horizontalAdvance(QLatin1Char('W')));
        QCOMPARE(v->rthInforme(), std::string("uno\r\ndos"));

        // A new calculation: the buffer changes, the window does not.
        v->PonerInformeTexto(c.informe);
        QCOMPARE(f->txtInforme()->toPlainText(), QStringLiteral("uno\ndos"));
        archivos.respuestas << Ruta(QStringLiteral("informe.txt"));
        pruebas::Hijo<QAction>(f, "cmdGuardar")->trigger();
        QCOMPARE(Leer(Ruta(QStringLiteral("informe.txt"))), QByteArray::fromStdString(c.informe));

        // Shown again: the window takes the report; one window all along.
        v->VerInforme(c.informe);
        QCOMPARE(v->Informe(), f);
        QCOMPARE(f->txtInforme()->toPlainText(), EnCaja(c.informe));
    }

    void imprimirDaElInformeEnteroOLaSeleccionYCancelarNada() {
        v->VerInforme(c.informe);
        VentanaInforme* f = v->Informe();
        QAction* imprimir = pruebas::Hijo<QAction>(f, "mnuImprimir");

        archivos.pdf = Ruta(QStringLiteral("todo.pdf"));
        imprimir->trigger();
        QVERIFY(QFile::exists(archivos.pdf));
        {
            const QString texto = TextoPdf(archivos.pdf);
            QVERIFY(texto.contains(QStringLiteral("CICLO: Otto")));
            QVERIFY(texto.contains(QStringLiteral("RENDIMIENTO")));
            // The widest lines keep their columns on one line of paper.
            static const QRegularExpression estado1(QStringLiteral("p1 =.*V1 =.*T 1 =.*ºC\\)"));
            QVERIFY2(texto.contains(estado1), qPrintable(texto.left(3000)));
        }

        // A selection in the box prints alone.
        QTextCursor cursor = f->txtInforme()->document()->find(QStringLiteral("Presión ambiente"));
        cursor.movePosition(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
        f->txtInforme()->setTextCursor(cursor);
        archivos.pdf = Ruta(QStringLiteral("seleccion.pdf"));
        imprimir->trigger();
        QVERIFY(QFile::exists(archivos.pdf));
        {
            const QString texto = TextoPdf(archivos.pdf);
            static const QRegularExpression linea(QStringLiteral("Presión ambiente +=  +100 000 Pa"));
            QVERIFY(texto.contains(linea));
            QVERIFY(!texto.contains(QStringLiteral("CICLO")));
        }

        // VentanaMostrarInforme prints what it opened.
        QFile guardado(Ruta(QStringLiteral("guardado.txt")));
        QVERIFY(guardado.open(QIODevice::WriteOnly));
        guardado.write("Un informe guardado\r\ncon dos líneas");
        guardado.close();
        archivos.respuestas << guardado.fileName();
        VentanaMostrarInforme* m = v->Mostrar();
        m->cmdAbriTexto_Click();
        archivos.pdf = Ruta(QStringLiteral("mostrar.pdf"));
        pruebas::Hijo<QAction>(m, "mnuImprimir")->trigger();
        QVERIFY(TextoPdf(archivos.pdf).contains(QStringLiteral("con dos líneas")));

        // A cancelled printer dialog prints nothing.
        archivos.pdf.clear();
        const int antes = archivos.impresoras;
        imprimir->trigger();
        pruebas::Hijo<QAction>(m, "mnuImprimir")->trigger();
        QCOMPARE(archivos.impresoras, antes + 2);
        QCOMPARE(Contenido(Carpeta()).size(), 4);
    }

    void elPunteroAjustaLaCajaALaVentana() {
        v->VerInforme(c.informe);
        v->AbrirInforme();
        VentanaMostrarInforme* m = v->Mostrar();
        m->cmdAbriTexto_Click();  // cancelled: the box shows all the same

        struct Caso {
            QMainWindow* ventana;
            QWidget* caja;
            double alto, ancho;
        };
        for (const Caso& caso :
             {Caso{v->Informe(), v->Informe()->txtInforme(), kAjusteInforme, kAjusteInforme},
              Caso{m, m->rtfMostrar(), kAjusteMostrarAlto, kAjusteMostrarAncho}}) {
            QVERIFY(QTest::qWaitForWindowExposed(caso.ventana));
            caso.ventana->resize(520, 430);
            QWidget* interior = caso.ventana->centralWidget();
            // The box follows a resize at once, and the pointer keeps it there.
            QTRY_COMPARE(caso.caja->size(), QSize(qRound(interior->width() * caso.ancho),
                                                  qRound(interior->height() * caso.alto)));
            QTest::mouseMove(caso.ventana->windowHandle(),
                             interior->mapTo(caso.ventana, QPoint(2, interior->height() - 2)));
            QTRY_COMPARE(caso.caja->size(), QSize(qRound(interior->width() * caso.ancho),
                                                  qRound(interior->height() * caso.alto)));

            caso.ventana->resize(700, 500);
            QTest::qWait(20);
            QTest::mouseMove(caso.ventana->windowHandle(),
                             caso.caja->mapTo(caso.ventana, caso.caja->rect().center()));
            QTRY_COMPARE(caso.caja->size(), QSize(qRound(interior->width() * caso.ancho),
                                                  qRound(interior->height() * caso.alto)));
            QVERIFY(interior->rect().contains(caso.caja->geometry().topLeft()));
        }
    }
};

static pruebas::Registrar<PruebaVisoresInforme> registro;

#include "test_VisoresInforme.moc"
