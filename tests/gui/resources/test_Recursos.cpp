// The program's pictures, the help pages as built, and the about and
// bibliography windows.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <limits>

#include "gui/mainwindow/frmAcercaDe.h"
#include "gui/mainwindow/frmBibliografia.h"
#include "gui/resources/Dibujos.h"
#include "gui/resources/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

#ifndef VANTA_DIR_CONSTRUCCION
#define VANTA_DIR_CONSTRUCCION ""
#endif

using namespace vanta;

namespace {

// Pixels of a picture by the family of their colour: the heat at constant
// volume is purple, the heat at constant pressure red.
struct Tonos {
    int purpuras = 0;
    int rojos = 0;
    int intensos = 0;  // strongly coloured pixels of any hue
};

Tonos ContarTonos(const QPixmap& pm) {
    const QImage im = pm.toImage().convertToFormat(QImage::Format_ARGB32);
    Tonos t;
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x) {
            const QColor c = QColor::fromRgba(im.pixel(x, y));
            if (c.alpha() < 250) continue;
            const int r = c.red(), g = c.green(), b = c.blue();
            if (r > 90 && b > 90 && g < 40 && std::abs(r - b) < 40) ++t.purpuras;
            if (r > 180 && g < 70 && b < 70) ++t.rojos;
            if (c.hsvSaturation() > 200 && c.value() > 90) ++t.intensos;
        }
    return t;
}

bool Iguales(const QPixmap& a, const QPixmap& b) {
    return a.toImage() == b.toImage();
}

void Escribir(const QString& ruta) {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("<html></html>");
}

}  // namespace

// ---- Pictures ----------------------------------------------------------------------

class PruebasDibujos : public QObject {
    Q_OBJECT

private slots:
    // Any size and pixel ratio gives a pixmap of exactly that many device
    // pixels that carries its ratio, so it is painted crisp, not scaled.
    void tamanosYRelacion_data() {
        QTest::addColumn<QSize>("tamano");
        QTest::addColumn<double>("dpr");
        QTest::newRow("miniatura") << QSize(60, 50) << 1.0;
        QTest::newRow("normal") << QSize(120, 100) << 1.0;
        QTest::newRow("alta resolucion") << QSize(120, 100) << 2.0;
        QTest::newRow("fraccionaria") << QSize(101, 77) << 1.25;
    }
    void tamanosYRelacion() {
        QFETCH(QSize, tamano);
        QFETCH(double, dpr);
        const QSize dispositivo(static_cast<int>(std::ceil(tamano.width() * dpr)),
                                static_cast<int>(std::ceil(tamano.height() * dpr)));
        for (const char* ciclo : {kCicloOtto, kCicloDiesel, kCicloMixto})
            for (bool elegido : {false, true}) {
                const QPixmap pm = DibujoCiclo(QLatin1String(ciclo), elegido, tamano, dpr);
                QCOMPARE(pm.size(), dispositivo);
                QCOMPARE(pm.devicePixelRatio(), dpr);
            }
        QCOMPARE(DibujoElegirCiclo(tamano, dpr).size(), dispositivo);
        QCOMPARE(DibujoPresentacion(tamano, dpr).size(), dispositivo);
    }

    // Each cycle shows the heat additions it has: Otto at constant volume
    // only, Diesel at constant pressure only, Mixto both; and the three
    // pictures, idle and chosen, are six different pictures.
    void cadaCicloConSusAportes() {
        const QSize t(240, 180);
        const Tonos otto = ContarTonos(DibujoCiclo(QLatin1String(kCicloOtto), true, t, 1));
        const Tonos diesel = ContarTonos(DibujoCiclo(QLatin1String(kCicloDiesel), true, t, 1));
        const Tonos mixto = ContarTonos(DibujoCiclo(QLatin1String(kCicloMixto), true, t, 1));
        QVERIFY2(otto.purpuras > 20 && otto.rojos == 0, "Otto: heat at constant volume only");
        QVERIFY2(diesel.rojos > 20 && diesel.purpuras == 0, "Diesel: heat at constant pressure only");
        QVERIFY2(mixto.purpuras > 10 && mixto.rojos > 10, "Mixto: both");

        QList<QPixmap> todas;
        for (const char* ciclo : {kCicloOtto, kCicloDiesel, kCicloMixto})
            for (bool elegido : {false, true}) todas << DibujoCiclo(QLatin1String(ciclo), elegido, t, 1);
        for (int i = 0; i < todas.size(); ++i)
            for (int j = i + 1; j < todas.size(); ++j)
                QVERIFY2(!Iguales(todas[i], todas[j]), "two pictures alike");
    }

    // The chosen variant is the stronger one.
    void elegidoMasIntenso() {
        for (const char* ciclo : {kCicloOtto, kCicloDiesel, kCicloMixto}) {
            const Tonos reposo = ContarTonos(DibujoCiclo(QLatin1String(ciclo), false, QSize(160, 120), 1));
            const Tonos elegido = ContarTonos(DibujoCiclo(QLatin1String(ciclo), true, QSize(160, 120), 1));
            QVERIFY2(elegido.intensos > 2 * reposo.intensos, ciclo);
        }
    }

    // A wrong size, a wrong ratio or an unknown cycle still gives a picture:
    // small, capped, never a failed allocation.
    void entradasMalas() {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        for (const QSize& t : {QSize(0, 0), QSize(-5, 10), QSize(30, 20)})
            for (double dpr : {0.0, -1.0, nan, inf, 1.0}) {
                for (const QPixmap& pm : {DibujoCiclo(QStringLiteral("Wankel"), true, t, dpr),
                                          DibujoCiclo(QString(), false, t, dpr), DibujoElegirCiclo(t, dpr),
                                          DibujoPresentacion(t, dpr)}) {
                    QVERIFY(!pm.isNull());
                    QVERIFY(pm.width() >= 1 && pm.width() <= 30 && pm.height() >= 1 && pm.height() <= 20);
                    QVERIFY(std::isfinite(pm.devicePixelRatio()) && pm.devicePixelRatio() > 0);
                }
            }
        // An absurd size is capped to a few thousand device pixels a side.
        const QPixmap enorme = DibujoCiclo(QLatin1String(kCicloOtto), false, QSize(1000000, 3), 8);
        QVERIFY(enorme.width() <= 4096 && enorme.height() == 24);
    }
};

// ---- Help ----------------------------------------------------------------------------

class PruebasAyuda : public QObject {
    Q_OBJECT

private slots:
    // The index is looked for beside the program, then under the prefix of
    // an installation; the first found wins, and with none the installed
    // path is given all the same.
    void rutaAyuda() {
        QTemporaryDir raiz;
        QVERIFY(raiz.isValid());
        const QString bin = raiz.filePath(QStringLiteral("bin"));
        QDir().mkpath(bin);
        const QString instalada = RutaAyudaDesde(bin);
        QVERIFY(QDir::isAbsolutePath(instalada));
        QVERIFY(instalada.endsWith(QStringLiteral("vanta/ayuda/Index.htm")));
        QVERIFY(!instalada.startsWith(raiz.path()));

        const QString compartida = raiz.filePath(QStringLiteral("share/vanta/ayuda/Index.htm"));
        Escribir(compartida);
        QCOMPARE(RutaAyudaDesde(bin), QDir::cleanPath(compartida));

        const QString junto = raiz.filePath(QStringLiteral("bin/ayuda/Index.htm"));
        Escribir(junto);
        QCOMPARE(RutaAyudaDesde(bin), QDir::cleanPath(junto));

        QCOMPARE(RutaAyudaDesde(QString()), instalada);
    }

    // The pages copied into the build tree: each is UTF-8 and says so, has
    // a title, every link between them leads to a page that exists, and
    // every page can be reached from the index.
    void paginasEnlazadas() {
        const QString construccion = QStringLiteral(VANTA_DIR_CONSTRUCCION);
        if (construccion.isEmpty()) QSKIP("no build folder given");
        const QString indice = RutaAyudaDesde(construccion);
        QVERIFY2(QFileInfo::exists(indice), qPrintable(indice));
        const QDir dir = QFileInfo(indice).absoluteDir();

        const QRegularExpression enlace(QStringLiteral(R"((?:href|src)="([^"#:]+)(?:#[^"]*)?")"));
        QSet<QString> paginas, alcanzadas{QStringLiteral("Index.htm")};
        QList<QString> porVisitar{QStringLiteral("Index.htm")};
        for (const QString& p : dir.entryList({QStringLiteral("*.htm")}, QDir::Files)) paginas.insert(p);
        QVERIFY(paginas.size() >= 6);
        while (!porVisitar.isEmpty()) {
            const QString pagina = porVisitar.takeFirst();
            QFile f(dir.filePath(pagina));
            QVERIFY2(f.open(QIODevice::ReadOnly), qPrintable(pagina));
            const QByteArray bytes = f.readAll();
            QStringDecoder utf8(QStringDecoder::Utf8);
            const QString texto = utf8.decode(bytes);
            QVERIFY2(!utf8.hasError(), qPrintable(pagina));
            QVERIFY2(texto.contains(QStringLiteral("<meta charset=\"utf-8\">")), qPrintable(pagina));
            QVERIFY2(texto.contains(QRegularExpression(QStringLiteral("<title>[^<]+</title>"))),
                     qPrintable(pagina));
            for (auto m = enlace.globalMatch(texto); m.hasNext();) {
                const QString destino = m.next().captured(1);
                QVERIFY2(QFileInfo::exists(dir.filePath(destino)), qPrintable(pagina + " -> " + destino));
                if (destino.endsWith(QStringLiteral(".htm")) && !alcanzadas.contains(destino)) {
                    alcanzadas.insert(destino);
                    porVisitar << destino;
                }
            }
        }
        QCOMPARE(alcanzadas, paginas);
    }
};

// ---- About and bibliography ------------------------------------------------------------

class PruebasAcercaDe : public QObject {
    Q_OBJECT

private slots:
    // The menu entry shows one about window per parent, not modal, with the
    // project's version; pressing it again brings back the same window.
    void unaVentanaNoModal() {
        QWidget principal;
        frmAcercaDe* a = MostrarAcercaDe(&principal);
        QVERIFY(a->isVisible());
        QVERIFY(!a->isModal());
        QVERIFY(QRegularExpression(QStringLiteral(R"(^\d+\.\d+\.\d+$)")).match(VersionPrograma()).hasMatch());
        const auto* version = a->findChild<QLabel*>(QStringLiteral("lblVersion"));
        QVERIFY(version && version->text().contains(VersionPrograma()));
        QVERIFY(a->findChild<QLabel*>(QStringLiteral("lblLicencia"))->text().contains(LicenciaPrograma()));

        QTest::mouseClick(a->cmdCerrar(), Qt::LeftButton);
        QVERIFY(!a->isVisible());
        QCOMPARE(MostrarAcercaDe(&principal), a);
        QVERIFY(a->isVisible());
        QCOMPARE(principal.findChildren<frmAcercaDe*>().size(), 1);
    }

    // The button opens the bibliography, not modal, once: a second press
    // raises the same window. It lists every book in its own order.
    void bibliografia() {
        QWidget principal;
        frmAcercaDe* a = MostrarAcercaDe(&principal);
        QVERIFY(!a->VentanaBibliografia());
        QTest::mouseClick(a->cmdBibliografia(), Qt::LeftButton);
        frmBibliografia* b = a->VentanaBibliografia();
        QVERIFY(b && b->isVisible() && !b->isModal());
        b->close();
        QTest::mouseClick(a->cmdBibliografia(), Qt::LeftButton);
        QCOMPARE(a->VentanaBibliografia(), b);
        QVERIFY(b->isVisible());

        const auto& libros = Bibliografia();
        QCOMPARE(b->lstLibros()->rowCount(), static_cast<int>(libros.size()));
        for (int fila : {0, static_cast<int>(libros.size()) - 1})
            QCOMPARE(b->lstLibros()->item(fila, 0)->text(), libros[static_cast<size_t>(fila)].titulo);
    }

    // The check of an ISBN: both lengths, the X of ISBN-10, hyphens and
    // blanks ignored; a wrong check digit, length or character refused.
};

namespace {
const vanta::pruebas::Registrar<PruebasDibujos> registroDibujos;
const vanta::pruebas::Registrar<PruebasAyuda> registroAyuda;
const vanta::pruebas::Registrar<PruebasAcercaDe> registroAcercaDe;
}  // namespace

#include "test_Recursos.moc"
