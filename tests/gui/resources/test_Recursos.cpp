// The help pages as built, and the about and bibliography windows.
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

#include "gui/mainwindow/VentanaAcercaDe.h"
#include "gui/mainwindow/VentanaBibliografia.h"
#include "gui/resources/Dibujos.h"
#include "gui/resources/Programa.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;

namespace {

void Escribir(const QString& ruta) {
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("<html></html>");
}

}  // namespace

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
        VentanaAcercaDe* a = MostrarAcercaDe(&principal);
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
        QCOMPARE(principal.findChildren<VentanaAcercaDe*>().size(), 1);
    }

    // The button opens the bibliography, not modal, once: a second press
    // raises the same window. It lists every book in its own order.
    void bibliografia() {
        QWidget principal;
        VentanaAcercaDe* a = MostrarAcercaDe(&principal);
        QVERIFY(!a->Bibliografia());
        QTest::mouseClick(a->cmdBibliografia(), Qt::LeftButton);
        VentanaBibliografia* b = a->Bibliografia();
        QVERIFY(b && b->isVisible() && !b->isModal());
        b->close();
        QTest::mouseClick(a->cmdBibliografia(), Qt::LeftButton);
        QCOMPARE(a->Bibliografia(), b);
        QVERIFY(b->isVisible());

        const auto& libros = Bibliografia();
        QCOMPARE(b->lstLibros()->rowCount(), static_cast<int>(libros.size()));
        for (int fila : {0, static_cast<int>(libros.size()) - 1})
            QCOMPARE(b->lstLibros()->item(fila, 0)->text(), libros[static_cast<size_t>(fila)].titulo);
    }
};

namespace {
const vanta::pruebas::Registrar<PruebasAyuda> registroAyuda;
const vanta::pruebas::Registrar<PruebasAcercaDe> registroAcercaDe;
}  // namespace

#include "test_Recursos.moc"
