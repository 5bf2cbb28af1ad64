// The results database on a PostgreSQL server shared by a class: thirty
// clients saving at once, the server stopped in the middle of a save,
// another session holding the locks, a network that stops carrying data,
// users who may not write, and the password, which the window asks and the
// command line takes from PGPASSWORD or the password file, never from its
// words.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <map>
#include <set>
#include <thread>

#include "tests/gui/database/Banco.h"
#include "tests/gui/database/RegistrosPrueba.h"
#include "tests/gui/mainwindow/Pruebas.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

ServidorPrueba& Servidor() {
    return ServidorPrueba::Uno();
}

QString Columnas() {
    QStringList nombres;
    for (const auto& c : bd::kColumnasTexto) nombres << QString::fromStdString(bd::Citado(c.nombre));
    for (const auto& c : bd::kColumnasImagen) nombres << QString::fromStdString(bd::Citado(c.nombre));
    return nombres.join(QStringLiteral(", "));
}

// A database whose table holds one record saved by its owner, and the user
// with these rights on it; the database's name.
QString BaseConPermisos(const QString& usuario, const QString& permisos) {
    const QString base = Servidor().NuevaBase();
    AlmacenResultados duena(*bd::LeerDireccion(Servidor().Direccion(base).toStdString()).direccion);
    if (!duena.Abrir() || !duena.Insertar(TextosDe("de la profesora"), {}))
        qFatal("%s", duena.Error().c_str());
    if (!Servidor().Ejecutar(base, {QStringLiteral("GRANT %1 ON \"ResultadosGuardados\", %2 TO %3")
                                        .arg(permisos, QLatin1String(bd::kTablaEntradas.data()), usuario)}))
        qFatal("%s", Servidor().UltimoError().c_str());
    return base;
}

// A TCP proxy on 127.0.0.1 to the test server's socket that can stop carrying
// data and keep the connections open: a network gone silent.
class Proxy {
public:
    Proxy() {
        escucha_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in a{};
        a.sin_family = AF_INET;
        a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t largo = sizeof a;
        if (bind(escucha_, reinterpret_cast<sockaddr*>(&a), largo) != 0 || listen(escucha_, 8) != 0 ||
            getsockname(escucha_, reinterpret_cast<sockaddr*>(&a), &largo) != 0)
            qFatal("no escucha el proxy");
        puerto_ = ntohs(a.sin_port);
        hilo_ = std::thread([this] { Servir(); });
    }
    ~Proxy() {
        fin_ = true;
        hilo_.join();
    }
    int Puerto() const { return puerto_; }
    void Parar() { parado_ = true; }

private:
    // The listener, then each connection as a pair: the client's, the server's.
    void Servir() {
        std::vector<pollfd> fds{{escucha_, POLLIN, 0}};
        sockaddr_un servidor{};
        servidor.sun_family = AF_UNIX;
        const std::string ruta = Servidor().Carpeta().toStdString() + "/.s.PGSQL.5432";
        ruta.copy(servidor.sun_path, sizeof servidor.sun_path - 1);
        char trozo[65536];
        while (!fin_) {
            // Stopped, what arrives stays where it is.
            if (poll(fds.data(), fds.size(), 20) <= 0 || parado_) {
                std::this_thread::sleep_for(std::chrono::milliseconds(parado_ ? 20 : 0));
                continue;
            }
            for (size_t i = 1; i < fds.size(); ++i) {
                if (!(fds[i].revents & (POLLIN | POLLHUP))) continue;
                const ssize_t n = read(fds[i].fd, trozo, sizeof trozo);
                const int otro = fds[i % 2 ? i + 1 : i - 1].fd;
                if (n <= 0) fds[i].events = 0, shutdown(otro, SHUT_WR);
                for (ssize_t hecho = 0, w; hecho < n && (w = write(otro, trozo + hecho, n - hecho)) > 0;)
                    hecho += w;
            }
            if (fds[0].revents & POLLIN) {
                const int cliente = accept4(escucha_, nullptr, nullptr, SOCK_CLOEXEC);
                const int s = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
                if (connect(s, reinterpret_cast<sockaddr*>(&servidor), sizeof servidor) != 0) qFatal("proxy");
                fds.push_back({cliente, POLLIN, 0});
                fds.push_back({s, POLLIN, 0});
            }
        }
        for (const pollfd& p : fds) close(p.fd);
    }

    int escucha_ = -1, puerto_ = 0;
    std::atomic<bool> parado_{false}, fin_{false};
    std::thread hilo_;
};

AlmacenResultados AlmacenEn(const QString& direccion) {
    return AlmacenResultados(*bd::LeerDireccion(direccion.toStdString()).direccion);
}

bd::Esperas EsperasEn(const QString& direccion) {
    return bd::EsperasDe(*bd::LeerDireccion(direccion.toStdString()).direccion);
}

}  // namespace

class PruebaServidor : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY2(Servidor().Listo(), Servidor().Error().c_str());
        QVERIFY2(
            Servidor().Ejecutar(QStringLiteral("postgres"), {QStringLiteral("CREATE ROLE lector LOGIN")}),
            Servidor().UltimoError().c_str());
    }

    void treintaClientesALaVezGuardanSeiscientosRegistrosEnteros() {
        // The table does not exist yet: the thirty make it together.
        const QString direccion = Servidor().Direccion(Servidor().NuevaBase());
        constexpr int kClientes = 30, kRegistros = 20;
        std::vector<std::unique_ptr<QProcess>> clientes;
        QElapsedTimer reloj;
        reloj.start();
        for (int c = 1; c <= kClientes; ++c) {
            clientes.push_back(std::make_unique<QProcess>());
            clientes.back()->setProcessChannelMode(QProcess::MergedChannels);
            clientes.back()->start(
                QStringLiteral(VANTA_AYUDANTE_BD),
                {QStringLiteral("cliente"), direccion, QString::number(kRegistros), QString::number(c)});
        }
        for (auto& p : clientes) {
            QVERIFY(p->waitForFinished(180000));
            const QString salida = QString::fromUtf8(p->readAll());
            QVERIFY2(p->exitCode() == 0, qPrintable(salida));
        }
        const double segundos = static_cast<double>(reloj.elapsed()) / 1000;
        qInfo("%d clientes: %d registros en %.1f s, %.0f guardados por segundo", kClientes,
              kClientes * kRegistros, segundos, kClientes * kRegistros / segundos);

        // Every record there once, and whole: each of its 68 columns what its
        // client saved.
        std::map<int, std::array<QByteArray, bd::kNumColumnasImagen>> imagenes;
        for (int k = 1; k <= kRegistros; ++k) {
            const ImagenesRegistro i = ImagenesNumeradas(k, false);
            for (size_t j = 0; j < i.size(); ++j) imagenes[k][j] = ImagenAPNG(i[j]);
        }
        Mirada m(direccion);
        QSqlQuery q(QSqlDatabase::database(m.nombre, false));
        QVERIFY(q.exec(QStringLiteral("SELECT %1 FROM \"ResultadosGuardados\"").arg(Columnas())));
        std::set<std::pair<int, int>> vistos;
        while (q.next()) {
            const QStringList nombre = q.value(0).toString().split(QLatin1Char(' '));
            QCOMPARE(nombre.size(), 4);
            const int c = nombre[1].toInt(), k = nombre[3].toInt();
            QVERIFY2(vistos.insert({c, k}).second, qPrintable(q.value(0).toString()));
            const bd::TextosRegistro textos = TextosNumerados(k, c);
            for (size_t i = 0; i < textos.size(); ++i)
                QCOMPARE(q.value(static_cast<int>(i)).toString().toStdString(), textos[i]);
            for (size_t j = 0; j < bd::kNumColumnasImagen; ++j)
                QVERIFY(q.value(static_cast<int>(bd::kNumColumnasTexto + j)).toByteArray() == imagenes[k][j]);
        }
        QCOMPARE(vistos.size(), size_t(kClientes * kRegistros));
    }

    void elServidorParadoAMitadDeGuardarNoDejaMedioRegistroYLuegoSeGuarda() {
        Banco b(true);
        b.Agregar({"A", "B"});
        const Calculo& c = TresCiclos()[0];
        b.f->Almacen()->FijarAntesDeConfirmar([] { Servidor().Parar(); });
        b.dlg.respuestas = {"a medias"};
        QVERIFY(!GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QCOMPARE(b.Mensaje(), bd::MsgNoSeGuarda(bd::kCausaConexionPerdida));
        QVERIFY(!b.f->isVisible());
        QCOMPARE(b.f->RecordCount(), 2);
        // While it is down, a save says that the server cannot be reached.
        b.f->Almacen()->FijarAntesDeConfirmar({});
        b.dlg.respuestas = {"sin servidor"};
        QVERIFY(!GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QVERIFY2(b.Mensaje().find(bd::kCausaSinServidor) != std::string::npos, b.Mensaje().c_str());

        QVERIFY2(Servidor().Arrancar(), Servidor().Error().c_str());
        QCOMPARE(Mirada(b).Nombres(), (QStringList{"A", "B"}));
        // The same browser, on its connection made again.
        b.dlg.respuestas = {"de nuevo"};
        QVERIFY(GuardarBaseDatos(c.r, b.dlg, c.informe, c.imagenes, *b.f));
        QCOMPARE(Mirada(b).Nombres(), (QStringList{"A", "B", "de nuevo"}));
        b.f->MoveFirst();
        QCOMPARE(b.Texto("txtGuardarComo"), QStringLiteral("A"));
        QCOMPARE(b.dlg.mensajes.size(), size_t(2));
    }

    void otraSesionQueRetieneLosBloqueosNoHaceEsperarMasDeSuLimite() {
        const QString base = Servidor().NuevaBase();
        const QString direccion = Servidor().Direccion(base) + QStringLiteral("&lock_timeout=1");
        const std::string bloqueado = bd::CausaPostgreSQL("55P03", "", "", EsperasEn(direccion));
        QElapsedTimer reloj;
        reloj.start();
        {
            // Holding the lock under which the table is made.
            Mirada otra(Servidor().Direccion(base));
            otra.Valor(QStringLiteral("BEGIN"));
            otra.Valor(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(bd::kIdAplicacion));
            AlmacenResultados almacen = AlmacenEn(direccion);
            QVERIFY(!almacen.Abrir());
            QCOMPARE(almacen.Error(), bd::MsgNoSeCrea(direccion.toStdString(), bloqueado));
        }
        // Holding the table: the save gives up, and neither the record nor
        // its inputs are there.
        AlmacenResultados almacen = AlmacenEn(direccion);
        QVERIFY2(almacen.Abrir(), almacen.Error().c_str());
        Mirada otra(Servidor().Direccion(base));
        otra.Valor(QStringLiteral("BEGIN"));
        otra.Valor(QStringLiteral("LOCK TABLE \"ResultadosGuardados\""));
        QVERIFY(!almacen.Insertar(TextosDe("bloqueado"), {}, "rc=9"));
        QCOMPARE(almacen.Error(), bd::MsgNoSeGuarda(bloqueado));
        QVERIFY(reloj.elapsed() < 20000);
        otra.Valor(QStringLiteral("ROLLBACK"));
        QVERIFY(almacen.Insertar(TextosDe("luego"), {}, "rc=9"));
        QCOMPARE(Mirada(Servidor().Direccion(base)).Nombres(), QStringList{"luego"});
        QCOMPARE(otra.Valor(QStringLiteral("SELECT count(*) FROM EntradasCalculo")).toInt(), 1);
    }

    void unaRedQueDejaDePasarDatosAMitadDeGuardarTerminaConSuMensaje() {
        const QString base = Servidor().NuevaBase();
        Proxy proxy;
        const QString direccion =
            QStringLiteral("postgresql://vanta@127.0.0.1:%1/%2?statement_timeout=1&connect_timeout=1")
                .arg(proxy.Puerto())
                .arg(base);
        AlmacenResultados almacen = AlmacenEn(direccion);
        QVERIFY2(almacen.Abrir(), almacen.Error().c_str());
        almacen.FijarAntesDeConfirmar([&] { proxy.Parar(); });
        QElapsedTimer reloj;
        reloj.start();
        QVERIFY(!almacen.Insertar(TextosDe("a medias"), {}, "rc=9"));
        QCOMPARE(almacen.Error(), bd::MsgNoSeGuarda(bd::CausaSinRespuesta(EsperasEn(direccion))));
        // A new connection, through the silent network, within its own limit.
        AlmacenResultados otro = AlmacenEn(direccion);
        QVERIFY(!otro.Abrir());
        QVERIFY2(otro.Error().find(bd::kCausaSinServidor) != std::string::npos, otro.Error().c_str());
        QVERIFY(reloj.elapsed() < 20000);
        QCOMPARE(Mirada(Servidor().Direccion(base)).Nombres(), QStringList{});
    }

    void quienNoPuedeEscribirLoSabe() {
        // Reads, but neither saves nor deletes.
        const QString base = BaseConPermisos(QStringLiteral("lector"), QStringLiteral("SELECT"));
        Banco lector(Servidor().Direccion(base, QStringLiteral("lector")));
        QVERIFY(lector.f->Cargar());
        QCOMPARE(lector.Texto("txtGuardarComo"), QStringLiteral("de la profesora"));
        const std::string sinPermiso = bd::CausaPostgreSQL("42501", "", "lector");
        QVERIFY(!lector.f->AgregarRegistro(TextosDe("del lector"), {}));
        QCOMPARE(lector.Mensaje(), bd::MsgNoSeGuarda(sinPermiso));
        lector.f->show();
        lector.dlg.siNo = {true};
        QTest::mouseClick(lector.f->findChild<QAbstractButton*>(QStringLiteral("cmdBorrarRegistro")),
                          Qt::LeftButton);
        QCOMPARE(lector.Mensaje(), bd::MsgNoSeBorra(sinPermiso));
        QCOMPARE(Mirada(Servidor().Direccion(base)).Nombres(), QStringList{"de la profesora"});
        QCOMPARE(lector.dlg.mensajes.size(), size_t(2));

        // Not even allowed to read: said when the browser opens.
        Banco ajeno(Servidor().Direccion(BaseConPermisos(QStringLiteral("lector"), QStringLiteral("UPDATE")),
                                         QStringLiteral("lector")));
        QVERIFY(!ajeno.f->Cargar());
        QCOMPARE(ajeno.Mensaje(), bd::MsgNoSeLee(sinPermiso));
    }

    void unRegistroSeGuardaConSusEntradasOSeRechazaEnteroYSinAvisosDelServidor() {
        // May add records but not their inputs: refused before anything is stored.
        const QString base = BaseConPermisos(QStringLiteral("lector"), QStringLiteral("SELECT"));
        QVERIFY(
            Servidor().Ejecutar(base, {QStringLiteral("GRANT INSERT ON \"ResultadosGuardados\" TO lector")}));
        QTemporaryDir carpeta;
        const auto guardar = [&](const char* nombre, const char* usuario) {
            return Vanta(
                {QStringLiteral("calcular"), QStringLiteral("--guardar"), QString::fromLatin1(nombre),
                 QStringLiteral("--base-datos"), Servidor().Direccion(base, QString::fromLatin1(usuario))},
                carpeta.path());
        };
        Salida s = guardar("sin entradas", "lector");
        QCOMPARE(s.estado, 1);
        const std::string rechazo = bd::MsgNoSeGuarda(bd::CausaPostgreSQL("42501", "", "lector"));
        QVERIFY2(s.err.contains(QString::fromStdString(rechazo)), qPrintable(s.err));
        for (const char* nombre : {"uno", "dos"}) {
            s = guardar(nombre, "vanta");
            QCOMPARE(s.estado, 0);
            QVERIFY2(!s.err.contains(QStringLiteral("NOTICE")), qPrintable(s.err));
        }
        Mirada m(Servidor().Direccion(base));
        QCOMPARE(m.Nombres(), (QStringList{"de la profesora", "uno", "dos"}));
        QCOMPARE(m.Valor(QStringLiteral("SELECT count(*) FROM EntradasCalculo")).toInt(), 2);
    }

    void laContrasenaLaPideLaVentanaYLaLineaDeOrdenesLaTomaDelEntorno() {
        const QString base = BaseConPermisos(QStringLiteral("alumno"), QStringLiteral("SELECT, INSERT"));
        const QString direccion = Servidor().Direccion(base, QStringLiteral("alumno"));
        // The window: asked until the server takes it; a wrong one is said.
        {
            Banco b(direccion);
            QStringList preguntas, respuestas{"mal", ServidorPrueba::kClaveAlumno};
            b.f->FijarPedirClave([&](const QString& pregunta) -> std::optional<QString> {
                preguntas << pregunta;
                return respuestas.takeFirst();
            });
            QVERIFY(b.f->Cargar());
            QCOMPARE(preguntas, QStringList(2, QStringLiteral("Contraseña para %1:").arg(direccion)));
            QCOMPARE(b.dlg.mensajes, std::vector<std::string>{
                                         bd::MsgNoSeAbre(direccion.toStdString(), bd::kCausaClaveRechazada)});
            QVERIFY(b.f->AgregarRegistro(TextosDe("con la ventana"), {}));
            // The question cancelled: the message says where a password goes.
            Banco otra(direccion);
            otra.f->FijarPedirClave([](const QString&) { return std::nullopt; });
            QVERIFY(!otra.f->Cargar());
            QCOMPARE(otra.dlg.mensajes,
                     std::vector<std::string>{bd::MsgNoSeAbre(direccion.toStdString(), bd::kCausaSinClave)});
        }
        // The command line: the environment or the password file, or a message.
        QTemporaryDir carpeta;
        const QString archivoClaves = carpeta.filePath(QStringLiteral("claves"));
        QFile claves(archivoClaves);
        QVERIFY(claves.open(QIODevice::WriteOnly));
        claves.write(QByteArray("*:*:*:alumno:") + ServidorPrueba::kClaveAlumno + "\n");
        claves.close();
        claves.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        auto entorno = [&](const char* variable, const QString& valor) {
            QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
            e.remove(QStringLiteral("PGPASSWORD"));
            e.insert(QStringLiteral("PGPASSFILE"), carpeta.filePath(QStringLiteral("ninguno")));
            e.insert(QString::fromLatin1(variable), valor);
            return e;
        };
        const auto guardar = [&](const char* nombre, const QProcessEnvironment& e) {
            return Vanta({QStringLiteral("calcular"), QStringLiteral("--guardar"),
                          QString::fromLatin1(nombre), QStringLiteral("--base-datos"), direccion},
                         carpeta.path(), e);
        };
        Salida s =
            guardar("con PGPASSWORD", entorno("PGPASSWORD", QLatin1String(ServidorPrueba::kClaveAlumno)));
        QVERIFY2(s.estado == 0, qPrintable(s.err));
        s = guardar("con PGPASSFILE", entorno("PGPASSFILE", archivoClaves));
        QVERIFY2(s.estado == 0, qPrintable(s.err));
        s = guardar("sin clave", entorno("VANTA_NADA", QString()));
        QCOMPARE(s.estado, 1);
        QVERIFY2(s.err.contains(QString::fromUtf8(bd::kCausaSinClave.data())), qPrintable(s.err));
        QVERIFY(!QFile::exists(carpeta.filePath(QStringLiteral("BD.sqlite"))));
        QCOMPARE(Mirada(Servidor().Direccion(base)).Nombres(),
                 (QStringList{"de la profesora", "con la ventana", "con PGPASSWORD", "con PGPASSFILE"}));
    }

    void losParametrosDeLaDireccionLleganAlServidor() {
        const QString direccion = Servidor().Direccion(Servidor().NuevaBase()) +
                                  QStringLiteral("&sslmode=require&application_name=aula-B");
        AlmacenResultados almacen(*bd::LeerDireccion(direccion.toStdString()).direccion);
        QVERIFY2(almacen.Abrir(), almacen.Error().c_str());
        QSqlQuery q(QSqlDatabase::database(almacen.NombreConexion(), false));
        QVERIFY(q.exec(QStringLiteral("SELECT current_setting('application_name')")) && q.next());
        QCOMPARE(q.value(0).toString(), QStringLiteral("aula-B"));
    }
};

static Registrar<PruebaServidor> registro;

#include "test_Servidor.moc"
