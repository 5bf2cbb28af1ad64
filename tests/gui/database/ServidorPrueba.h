// A real PostgreSQL server for the tests, of their own: initdb in a temporary
// folder, the server listening only on a Unix socket in that folder (no TCP
// port), stopped and removed when the test program ends. Run as root (as CI
// does), the server runs as the user postgres (or nobody), since PostgreSQL
// refuses root; it also dies with the test program if that is killed.
//
// Roles: vanta, the superuser, trusted; alumno, who must give the password
// "secreto"; the tests make others as they need.
#pragma once

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace vanta::pruebas {

class ServidorPrueba {
public:
    static constexpr int kPuerto = 5432;
    static constexpr const char* kClaveAlumno = "secreto";

    // The one server of the test program, started on first use.
    static ServidorPrueba& Uno() {
        static ServidorPrueba servidor;
        return servidor;
    }

    ~ServidorPrueba() {
        // Its data go with it: no shutdown checkpoint to wait for.
        Parar(SIGQUIT);
        if (!raiz_.empty()) std::filesystem::remove_all(raiz_);
    }

    // Empty when the server is up; why not, otherwise.
    const std::string& Error() const { return error_; }
    bool Listo() const { return pid_ > 0 && error_.empty(); }
    QString Carpeta() const { return QString::fromStdString(raiz_); }

    // The address of a database of the server as a user of it writes it.
    QString Direccion(const QString& base, const QString& usuario = QStringLiteral("vanta")) const {
        return QStringLiteral("postgresql://%1@/%2?host=%3&port=%4")
            .arg(usuario, base, Carpeta())
            .arg(kPuerto);
    }

    // A new empty database; its name.
    QString NuevaBase() {
        static std::atomic<int> cuenta{0};
        const QString base = QStringLiteral("prueba_%1").arg(++cuenta);
        if (!Ejecutar(QStringLiteral("postgres"), {QStringLiteral("CREATE DATABASE ") + base}))
            qFatal("no se crea la base %s: %s", qPrintable(base), ultimoError_.c_str());
        return base;
    }

    // SQL as the superuser on a database of the server; false with
    // UltimoError().
    bool Ejecutar(const QString& base, const QStringList& sentencias) {
        static std::atomic<int> cuenta{0};
        const QString nombre = QStringLiteral("servidor_prueba_%1").arg(++cuenta);
        bool bien = true;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), nombre);
            db.setHostName(Carpeta());
            db.setPort(kPuerto);
            db.setUserName(QStringLiteral("vanta"));
            db.setDatabaseName(base);
            bien = db.open();
            if (!bien) ultimoError_ = db.lastError().text().toStdString();
            QSqlQuery q(db);
            for (const QString& s : sentencias) {
                if (!bien) break;
                bien = q.exec(s);
                if (!bien) ultimoError_ = (s + QStringLiteral(": ") + q.lastError().text()).toStdString();
            }
        }
        QSqlDatabase::removeDatabase(nombre);
        return bien;
    }
    const std::string& UltimoError() const { return ultimoError_; }

    // Stops the server at once, as its administrator would: sessions are cut,
    // open transactions rolled back (a fast shutdown).
    void Parar(int senal = SIGINT) {
        if (pid_ <= 0) return;
        kill(pid_, senal);
        int estado = 0;
        waitpid(pid_, &estado, 0);
        pid_ = -1;
    }

    // Starts it again on the same data; false with Error() when it does not
    // come up.
    bool Arrancar() {
        if (pid_ > 0) return true;
        const std::string registro = raiz_ + "/servidor.log";
        pid_ = Lanzar({postgres_, "-D", raiz_ + "/datos", "-k", raiz_, "-c", "listen_addresses=", "-p",
                       std::to_string(kPuerto), "-c", "max_connections=120"},
                      registro, true);
        if (pid_ <= 0) return Fallo("no arranca " + postgres_);
        error_.clear();
        QElapsedTimer reloj;
        reloj.start();
        while (reloj.elapsed() < 60000) {
            int estado = 0;
            if (waitpid(pid_, &estado, WNOHANG) == pid_) {
                pid_ = -1;
                return Fallo("el servidor termina al arrancar:\n" + Leer(registro));
            }
            if (Ejecutar(QStringLiteral("postgres"), {QStringLiteral("SELECT 1")})) return true;
            QThread::msleep(100);
        }
        Parar();
        return Fallo("el servidor no acepta conexiones en 60 s:\n" + Leer(registro));
    }

private:
    ServidorPrueba() {
        const std::string initdb = Programa("initdb");
        postgres_ = Programa("postgres");
        if (initdb.empty() || postgres_.empty()) {
            Fallo("no están initdb y postgres de PostgreSQL (./vanta instala el paquete postgresql)");
            return;
        }
        char plantilla[] = "/tmp/vanta-pg-XXXXXX";
        if (!mkdtemp(plantilla)) {
            Fallo("no se crea la carpeta temporal");
            return;
        }
        raiz_ = plantilla;
        if (geteuid() == 0) {
            // PostgreSQL will not run as root.
            const passwd* p = getpwnam("postgres");
            if (!p) p = getpwnam("nobody");
            if (!p) {
                Fallo("no hay usuario postgres ni nobody con que arrancar el servidor");
                return;
            }
            uid_ = p->pw_uid;
            gid_ = p->pw_gid;
            if (chown(raiz_.c_str(), uid_, gid_) != 0) {
                Fallo("no se cambia el dueño de " + raiz_);
                return;
            }
        }
        const std::string registro = raiz_ + "/initdb.log";
        const pid_t pid = Lanzar({initdb, "-D", raiz_ + "/datos", "-U", "vanta", "-A", "trust", "-E", "UTF8",
                                  "--locale=C", "--no-sync"},
                                 registro, false);
        int estado = -1;
        if (pid <= 0 || waitpid(pid, &estado, 0) != pid || !WIFEXITED(estado) || WEXITSTATUS(estado) != 0) {
            Fallo("initdb falla:\n" + Leer(registro));
            return;
        }
        // alumno gives a password; everyone else on the socket is trusted.
        std::ofstream(raiz_ + "/datos/pg_hba.conf", std::ios::trunc)
            << "local all alumno scram-sha-256\nlocal all all trust\n";
        if (!Arrancar()) return;
        if (!Ejecutar(
                QStringLiteral("postgres"),
                {QStringLiteral("CREATE ROLE alumno LOGIN PASSWORD '%1'").arg(QLatin1String(kClaveAlumno))}))
            Fallo(ultimoError_);
    }

    bool Fallo(std::string mensaje) {
        error_ = std::move(mensaje);
        return false;
    }

    static std::string Leer(const std::string& ruta) {
        std::ifstream f(ruta);
        return std::string(std::istreambuf_iterator<char>(f), {});
    }

    // The newest PostgreSQL's program of that name: Debian keeps the server's
    // programs out of PATH, under /usr/lib/postgresql/VERSION/bin.
    static std::string Programa(const char* nombre) {
        std::vector<std::pair<int, std::string>> hallados;
        std::error_code e;
        for (const auto& version : std::filesystem::directory_iterator("/usr/lib/postgresql", e)) {
            const auto ruta = version.path() / "bin" / nombre;
            if (std::filesystem::exists(ruta))
                hallados.emplace_back(std::atoi(version.path().filename().c_str()), ruta.string());
        }
        if (!hallados.empty()) return std::max_element(hallados.begin(), hallados.end())->second;
        return QStandardPaths::findExecutable(QString::fromLatin1(nombre)).toStdString();
    }

    // Starts a program as the server's user, its output to registro; with
    // conPadre, it gets SIGQUIT (an immediate shutdown) when the test program
    // dies.
    pid_t Lanzar(const std::vector<std::string>& argumentos, const std::string& registro, bool conPadre) {
        std::vector<char*> argv;
        for (const std::string& a : argumentos) argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        const pid_t padre = getpid();
        const int salida = open(registro.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
        if (salida < 0) return -1;
        if (uid_ != static_cast<uid_t>(-1) && fchown(salida, uid_, gid_) != 0) {
            close(salida);
            return -1;
        }
        const pid_t pid = fork();
        if (pid == 0) {
            // Only calls that are safe after fork, up to exec.
            if (uid_ != static_cast<uid_t>(-1) &&
                (setgroups(0, nullptr) != 0 || setgid(gid_) != 0 || setuid(uid_) != 0))
                _exit(126);
            if (conPadre && (prctl(PR_SET_PDEATHSIG, SIGQUIT) != 0 || getppid() != padre)) _exit(125);
            if (chdir(raiz_.c_str()) != 0) _exit(124);
            dup2(salida, STDOUT_FILENO);
            dup2(salida, STDERR_FILENO);
            execv(argv[0], argv.data());
            _exit(127);
        }
        close(salida);
        return pid;
    }

    std::string raiz_, postgres_, error_, ultimoError_;
    uid_t uid_ = static_cast<uid_t>(-1);
    gid_t gid_ = static_cast<gid_t>(-1);
    pid_t pid_ = -1;
};

}  // namespace vanta::pruebas
