// The file of the results database: made when missing (also by several
// programs at once), checked before it is trusted, and never losing a record
// saved before, whatever happens to a save (a full disk, a file or a folder
// that cannot be written, another Vanta holding it, a program killed in the
// middle). Each failure is a message that says what happened, never a crash.
// And the record that the command line saves, as it always was.
#include <QClipboard>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include "gui/database/CarpetaDatos.h"
#include "gui/database/ControlImagen.h"
#include "tests/Dorados.h"
#include "tests/gui/database/Banco.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

QByteArray Leer(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void Escribir(const QString& ruta, const QByteArray& datos) {
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly) || f.write(datos) != datos.size())
        qFatal("no se escribe %s", qPrintable(ruta));
}

// Runs SQL on a file of its own making.
void Ejecutar(const QString& ruta, const QStringList& sentencias) {
    Mirada m(ruta);
    QSqlQuery q(QSqlDatabase::database(m.nombre, false));
    for (const QString& s : sentencias)
        if (!q.exec(s)) qFatal("%s", qPrintable(s));
}

// The other program, started on the file; its output waited for line by line.
struct Ayudante {
    QProcess p;
    QString salida;
    explicit Ayudante(const QStringList& argumentos) {
        p.start(QStringLiteral(VANTA_AYUDANTE_BD), argumentos);
        if (!p.waitForStarted()) qFatal("no arranca el ayudante");
    }
    ~Ayudante() {
        if (p.state() != QProcess::NotRunning) {
            p.kill();
            p.waitForFinished();
        }
    }
    bool Esperar(const QString& texto, int ms = 20000) {
        QElapsedTimer reloj;
        reloj.start();
        while (!salida.contains(texto) && reloj.elapsed() < ms) {
            p.waitForReadyRead(100);
            salida += QString::fromUtf8(p.readAllStandardOutput());
            if (p.state() == QProcess::NotRunning && !p.bytesAvailable()) break;
        }
        return salida.contains(texto);
    }
    void Matar() {
        p.kill();
        p.waitForFinished();
        salida += QString::fromUtf8(p.readAllStandardOutput());
    }
    // The last record it said it had saved.
    int UltimoGuardado() const {
        const qsizetype i = salida.lastIndexOf(QStringLiteral("guardado "));
        return i < 0 ? 0 : salida.mid(i + 9).section(QLatin1Char('\n'), 0, 0).toInt();
    }
};

// Every record of the file reads whole; how many there are.
int RegistrosLegibles(const QString& ruta) {
    AlmacenResultados almacen(ruta);
    if (!almacen.Abrir()) return -1;
    const auto ids = almacen.Identificadores();
    if (!ids) return -1;
    for (qint64 id : *ids) {
        const auto textos = almacen.LeerTextos(id);
        const auto imagenes = almacen.LeerImagenes(id);
        if (!textos || !imagenes || (*textos)[0].rfind("registro ", 0) != 0) return -1;
        for (const QImage& i : *imagenes)
            if (i.size() != QSize(400, 300)) return -1;
    }
    return static_cast<int>(ids->size());
}

std::string Abre(const QString& ruta, std::string_view causa) {
    return bd::MsgNoSeAbre(ruta.toStdString(), causa);
}

}  // namespace

class PruebaBaseDatos : public QObject {
    Q_OBJECT

private slots:
    void creaElArchivoConSuMarcaSuTablaYSuDiario() {
        Banco b;
        QVERIFY(b.f->Cargar());
        QVERIFY(b.dlg.mensajes.empty());
        Mirada m(b.Ruta());
        QCOMPARE(m.Valor(QStringLiteral("PRAGMA application_id")).toInt(), bd::kIdAplicacion);
        QSqlQuery q(QSqlDatabase::database(m.nombre, false));
        QVERIFY(q.exec(QStringLiteral("PRAGMA table_info(ResultadosGuardados)")));
        QStringList columnas;
        while (q.next()) columnas << q.value(1).toString() + QLatin1Char(' ') + q.value(2).toString();
        QCOMPARE(columnas.size(), 68);
        QCOMPARE(columnas.first(), QStringLiteral("Guardado como TEXT"));
        QCOMPARE(columnas[60], QStringLiteral("Informe TEXT"));
        QCOMPARE(columnas[64], QStringLiteral("imgDPV BLOB"));
        // The store's own connection: rollback journal, full sync.
        QSqlQuery propia(QSqlDatabase::database(b.f->Almacen()->NombreConexion(), false));
        QVERIFY(propia.exec(QStringLiteral("PRAGMA journal_mode")) && propia.next());
        QCOMPARE(propia.value(0).toString(), QStringLiteral("delete"));
        QVERIFY(propia.exec(QStringLiteral("PRAGMA synchronous")) && propia.next());
        QCOMPARE(propia.value(0).toInt(), 2);

        // An empty file, as a creation cut short leaves it, is made anew.
        Banco vacio;
        Escribir(vacio.Ruta(), {});
        QVERIFY(vacio.f->Cargar());
        QCOMPARE(Mirada(vacio.Ruta()).Valor(QStringLiteral("PRAGMA application_id")).toInt(),
                 bd::kIdAplicacion);
    }

    void unArchivoQueNoEsNuestroNoSeUsaNiSeToca() {
        const Calculo& c = TresCiclos()[0];
        struct Caso {
            const char* nombre;
            std::function<void(const QString&)> preparar;
            std::string_view causa;
        };
        const std::string noEsBase = bd::CausaSQLite(26, "");
        const Caso casos[] = {
            {"basura", [](const QString& r) { Escribir(r, QByteArray(6000, '\x5a')); }, noEsBase},
            {"otra base",
             [](const QString& r) { Ejecutar(r, {QStringLiteral("CREATE TABLE Clientes (Nombre TEXT)")}); },
             bd::kCausaNoEsDeVanta},
            {"sin una columna",
             [](const QString& r) {
                 QString sql = QString::fromStdString(bd::SQLCrearTabla());
                 sql.replace(QStringLiteral(", \"Fe\" TEXT"), QString());
                 Ejecutar(r, {QStringLiteral("PRAGMA application_id = %1").arg(bd::kIdAplicacion), sql});
             },
             bd::kCausaSinColumnas},
            {"carpeta", [](const QString& r) { QDir().mkdir(r); }, bd::kCausaEsCarpeta},
        };
        for (const Caso& caso : casos) {
            Banco b;
            caso.preparar(b.Ruta());
            const QByteArray antes = Leer(b.Ruta());
            b.dlg.respuestas = {"x"};
            QVERIFY2(!GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f), caso.nombre);
            QCOMPARE(b.Mensaje(), Abre(b.Ruta(), caso.causa));
            QVERIFY(!b.f->isVisible());
            b.f->MostrarNoModal();
            QVERIFY(!b.f->isVisible());
            QCOMPARE(b.dlg.mensajes.size(), size_t(2));
            b.f.reset();
            QVERIFY2(Leer(b.Ruta()) == antes, caso.nombre);
        }
    }

    void unArchivoDanadoDaUnMensajeYNoSeCae() {
        Banco b;
        b.Agregar({"A", "B", "C"});
        const qint64 pagina = Mirada(b.Ruta()).Valor(QStringLiteral("PRAGMA page_size")).toLongLong();
        b.f.reset();
        QByteArray datos = Leer(b.Ruta());
        // Every page after the first, where the records live, overwritten.
        for (qint64 i = pagina; i < datos.size(); ++i) datos[i] = static_cast<char>(i * 37);
        Escribir(b.Ruta(), datos);

        b.f = b.Nuevo();
        QVERIFY(!b.f->Cargar());
        QVERIFY(!b.Mensaje().empty());
        const Calculo& c = TresCiclos()[0];
        b.dlg.respuestas = {"x"};
        QVERIFY(!GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QCOMPARE(b.dlg.mensajes.size(), size_t(2));
        QVERIFY(Leer(b.Ruta()) == datos);
        // The command line's save opens it (its first page is whole) and meets
        // the damage: the message says so, and promises nothing of the records
        // saved before.
        QVERIFY(!GuardarRegistro(c.r, "x", c.imagenes, b.dlg));
        const std::string danado = bd::MsgArchivoDanado(b.Ruta().toStdString(), "");
        QVERIFY2(b.Mensaje().rfind(danado.substr(0, danado.find('(')), 0) == 0, b.Mensaje().c_str());
        QVERIFY(Leer(b.Ruta()) == datos);
    }

    void conElDiscoLlenoNoSeGuardaYNoSePierdeNada() {
        Banco b;
        b.Agregar({"A", "B"});
        QSqlQuery q(QSqlDatabase::database(b.f->Almacen()->NombreConexion(), false));
        const int paginas = Mirada(b.Ruta()).Valor(QStringLiteral("PRAGMA page_count")).toInt();
        QVERIFY(q.exec(QStringLiteral("PRAGMA max_page_count = %1").arg(paginas)));
        const Calculo& c = TresCiclos()[1];
        b.dlg.respuestas = {"no cabe"};
        QVERIFY(!GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QCOMPARE(b.Mensaje(), bd::MsgNoSeGuarda(bd::CausaSQLite(13, "")));
        QVERIFY(!b.f->isVisible());
        QCOMPARE(b.f->RecordCount(), 2);
        QCOMPARE(b.Texto("txtGuardarComo"), QStringLiteral("B"));
        QCOMPARE(Mirada(b.Ruta()).Nombres(), (QStringList{"A", "B"}));
        // With room again, the same connection saves.
        QVERIFY(q.exec(QStringLiteral("PRAGMA max_page_count = 1000000")));
        b.dlg.respuestas = {"cabe"};
        QVERIFY(GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QCOMPARE(Mirada(b.Ruta()).Nombres(), (QStringList{"A", "B", "cabe"}));
    }

    void otraVantaQueTieneElArchivoNoLoPierdeNiCuelga() {
        Banco b;
        b.Agregar({"A"});
        Ayudante otra({QStringLiteral("bloquear"), b.Ruta()});
        QVERIFY(otra.Esperar(QStringLiteral("bloqueada")));
        const std::string ocupada = bd::CausaSQLite(5, "");

        QVERIFY(!b.f->AgregarRegistro(TextosDe("B"), {}));
        QCOMPARE(b.Mensaje(), bd::MsgNoSeGuarda(ocupada));
        QCOMPARE(b.f->RecordCount(), 1);
        // A browser that opens meanwhile says so too.
        auto segundo = b.Nuevo();
        QVERIFY(!segundo->Cargar());
        QCOMPARE(b.Mensaje(), Abre(b.Ruta(), ocupada));

        otra.Matar();
        QVERIFY(b.f->AgregarRegistro(TextosDe("B"), {}));
        QVERIFY(segundo->Cargar());
        QCOMPARE(segundo->RecordCount(), 2);
    }

    void sinPermisoDeEscrituraSoloHayUnMensajeQueDiceQue() {
        // The other program runs as an unprivileged user when this one is root.
        const auto todos = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup |
                           QFile::ReadOther | QFile::WriteOther;
        const auto lectura = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        const auto entrar = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        struct Caso {
            const char* nombre;
            QFile::Permissions archivo, carpeta;
            int codigo;  // what SQLite answers
        } const casos[] = {
            {"archivo de solo lectura", lectura, todos | entrar, 8},
            // The file may be written; its journal may not be made beside it.
            {"carpeta de solo lectura", todos, lectura | entrar, 1544},
        };
        for (const Caso& caso : casos) {
            Banco b;
            b.Agregar({"A"});
            b.f.reset();
            QFile::setPermissions(b.Ruta(), caso.archivo);
            QFile::setPermissions(b.carpeta.path(), caso.carpeta);
            const QByteArray antes = Leer(b.Ruta());
            Ayudante otra({QStringLiteral("sin-permisos"), b.Ruta()});
            QVERIFY(otra.p.waitForFinished(20000));
            otra.salida += QString::fromUtf8(otra.p.readAllStandardOutput());
            QCOMPARE(otra.p.exitCode(), 1);
            QCOMPARE(otra.salida.trimmed().toStdString(),
                     bd::MsgNoSeGuarda(bd::CausaSQLite(caso.codigo, "")));
            QVERIFY2(Leer(b.Ruta()) == antes, caso.nombre);
            QFile::setPermissions(b.carpeta.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QFile::setPermissions(b.Ruta(), QFile::ReadOwner | QFile::WriteOwner);
        }
    }

    void unaVantaMatadaAMitadDeGuardarDejaLoAnteriorEntero() {
        Banco b;
        {
            Ayudante otra(
                {QStringLiteral("guardar"), b.Ruta(), QStringLiteral("3"), QStringLiteral("--parar")});
            QVERIFY(otra.Esperar(QStringLiteral("a mitad")));
            otra.Matar();
        }
        QVERIFY(b.f->Cargar());
        QCOMPARE(b.f->RecordCount(), 3);
        QCOMPARE(RegistrosLegibles(b.Ruta()), 3);
        b.f->MoveLast();
        QCOMPARE(b.Texto("txtGuardarComo"), QStringLiteral("registro 3"));
        QCOMPARE(b.Texto("lblT1"), QStringLiteral("303"));

        // Killed at any moment of a run of saves: every record it reported is
        // there and whole, and at most the one in flight besides.
        int total = 3;
        for (int vuelta = 0; vuelta < 3; ++vuelta) {
            Ayudante otra({QStringLiteral("guardar"), b.Ruta(), QStringLiteral("400")});
            QVERIFY(otra.Esperar(QStringLiteral("guardado 2")));
            QTest::qWait(QRandomGenerator::global()->bounded(10, 200));
            otra.Matar();
            const int dichos = otra.UltimoGuardado();
            const int hay = RegistrosLegibles(b.Ruta());
            QVERIFY2(hay == total + dichos || hay == total + dichos + 1,
                     qPrintable(QStringLiteral("%1 registros, %2 dichos").arg(hay).arg(total + dichos)));
            total = hay;
        }
        QVERIFY(b.f->AgregarRegistro(TextosDe("registro final"), {}));
    }

    void ochoProgramasALaVezEnUnArchivoQueNoExisteGuardanTodos() {
        QTemporaryDir carpeta;
        for (int vuelta = 1; vuelta <= 3; ++vuelta) {
            const QString ruta = carpeta.filePath(QStringLiteral("BD%1.sqlite").arg(vuelta));
            std::vector<QProcess*> programas;
            QStringList nombres;
            for (int i = 1; i <= 8; ++i) {
                nombres << QStringLiteral("vuelta %1 programa %2").arg(vuelta).arg(i);
                programas.push_back(LanzarVanta({QStringLiteral("calcular"), QStringLiteral("--guardar"),
                                                 nombres.back(), QStringLiteral("--base-datos"), ruta},
                                                carpeta.path()));
            }
            for (QProcess* p : programas) {
                const Salida s = Esperar(p);
                QVERIFY2(s.estado == 0, qPrintable(s.err));
            }
            QStringList guardados = Mirada(ruta).Nombres();
            guardados.sort();
            QCOMPARE(guardados, nombres);
        }
    }

    void laLineaDeOrdenesGuardaElInformeYElRegistroDeSiempre() {
        QTemporaryDir carpeta;
        const QStringList ordenes[] = {
            {QStringLiteral("calcular"), QStringLiteral("--guardar"), QStringLiteral("prueba uno")},
            {QStringLiteral("calcular"), QStringLiteral("--ciclo"), QStringLiteral("Diesel"),
             QStringLiteral("--combustible"), QStringLiteral("Gasoil"), QStringLiteral("--rc"),
             QStringLiteral("18"), QStringLiteral("--guardar"), QStringLiteral("dos")},
        };
        QStringList informes;
        for (const QStringList& orden : ordenes) {
            const Salida s = Vanta(orden, carpeta.path());
            QVERIFY2(s.estado == 0, qPrintable(s.err));
            informes << s.out.chopped(2);  // the report, without the line end that closes it
        }
        // Every column as it was always saved, and now the report that the
        // command line writes.
        Mirada m(carpeta.filePath(QStringLiteral("BD.sqlite")));
        QSqlQuery q(QSqlDatabase::database(m.nombre, false));
        QVERIFY(q.exec(QStringLiteral("SELECT * FROM \"ResultadosGuardados\" ORDER BY rowid")));
        QString volcado;
        for (int r = 0; q.next(); ++r) {
            QCOMPARE(q.value(bd::kColumnaInforme).toString(), informes[r]);
            for (size_t i = 0; i < bd::kNumColumnas; ++i) {
                const QVariant v = q.value(static_cast<int>(i));
                if (i < bd::kNumColumnasTexto) {
                    volcado += QString::fromUtf8(bd::kColumnasTexto[i].nombre.data()) + QStringLiteral(": ") +
                               v.toString() + QLatin1Char('\n');
                    continue;
                }
                // A picture: its size and its pixels' sum.
                const QImage img = PNGAImagen(v.toByteArray()).convertToFormat(QImage::Format_RGB32);
                volcado += QString::fromUtf8(bd::kColumnasImagen[i - bd::kNumColumnasTexto].nombre.data()) +
                           QStringLiteral(": %1x%2 ").arg(img.width()).arg(img.height()) +
                           QString::fromLatin1(
                               QCryptographicHash::hash(QByteArrayView(img.constBits(), img.sizeInBytes()),
                                                        QCryptographicHash::Md5)
                                   .toHex()) +
                           QLatin1Char('\n');
            }
        }
        QCOMPARE(informes.size(), 2);
        const std::string diferencia =
            CompararDorado("bd/registros-linea-ordenes.txt", volcado.toStdString());
        QVERIFY2(diferencia.empty(), diferencia.c_str());
    }

    void elEscritorioAbreElProgramaEnLaCarpetaDeDatosDelUsuario() {
        QTemporaryDir datos;
        const QString anterior = QDir::currentPath();
        const QByteArray xdg = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(datos.path()));
        QString error;
        // Made on the first start, used as it is on the next.
        for (int vez = 0; vez < 2; ++vez) {
            QVERIFY2(EntrarEnCarpetaDatos(error), qPrintable(error));
            QCOMPARE(QDir::currentPath(), datos.filePath(QStringLiteral("vanta")));
        }
        // A file where the folder should be: said, and the folder kept.
        QDir::setCurrent(anterior);
        QVERIFY(QDir(datos.path()).removeRecursively() && QDir().mkpath(datos.path()));
        QFile(datos.filePath(QStringLiteral("vanta"))).open(QIODevice::WriteOnly);
        QVERIFY(!EntrarEnCarpetaDatos(error));
        QVERIFY(error.contains(datos.filePath(QStringLiteral("vanta"))));
        QCOMPARE(QDir::currentPath(), anterior);
        if (xdg.isNull())
            qunsetenv("XDG_DATA_HOME");
        else
            qputenv("XDG_DATA_HOME", xdg);
    }

    void laRutaSeFijaAlPrimerUsoYLaLineaDeOrdenesGuardaSinVentana() {
        Banco b;
        QDir carpeta(b.carpeta.path());
        carpeta.mkdir(QStringLiteral("otra"));
        carpeta.mkdir(QStringLiteral("tercera"));
        QDir::setCurrent(carpeta.filePath(QStringLiteral("otra")));
        QVERIFY(b.f->Cargar());
        QDir::setCurrent(carpeta.filePath(QStringLiteral("tercera")));
        b.Agregar({"A"});
        QCOMPARE(Mirada(carpeta.filePath(QStringLiteral("otra/BD.sqlite"))).Nombres(), QStringList{"A"});
        QVERIFY(!QFile::exists(carpeta.filePath(QStringLiteral("tercera/BD.sqlite"))));

        const Calculo& c = TresCiclos()[0];
        QGuiApplication::clipboard()->setText(QStringLiteral("intacto"));
        QVERIFY(GuardarRegistro(c.r, "desde la línea de órdenes", c.imagenes, b.dlg));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("intacto"));
        auto otro = b.Nuevo();
        QVERIFY(otro->Cargar());
        QCOMPARE(Banco::Texto(*otro, "txtGuardarComo"), QStringLiteral("desde la línea de órdenes"));
        QVERIFY(MismaImagen(otro->findChild<ControlImagen*>(QStringLiteral("imgDTV"))->Picture(),
                            c.imagenes[static_cast<size_t>(CuadroImagen::pctTV)]));
        QVERIFY(b.dlg.mensajes.empty());
    }
};

static Registrar<PruebaBaseDatos> registro;

#include "test_BaseDatos.moc"
