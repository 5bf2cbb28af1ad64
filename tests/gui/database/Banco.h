// What the results database tests share: real calculations with their
// pictures, a browser on a store of its own (a SQLite file in a folder of its
// own, or a new database on the test server), and a look into the store that
// does not go through the browser.
#pragma once

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "core/database/Registro.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/database/GuardarBaseDatos.h"
#include "gui/database/VentanaBaseDatos.h"
#include "gui/services/SuperficieQt.h"
#include "tests/gui/database/ServidorPrueba.h"

namespace vanta::pruebas {

// A whole calculation as the command line runs it, drawn on Qt surfaces.
struct Calculo {
    ResultadoCalculo r;
    Estado e;  // the state it left
    std::string combustible;
    std::string informe;
    ImagenesPrincipal imagenes;
};

inline Calculo Calcular(const std::vector<std::string>& argumentos) {
    Calculo c;
    SuperficieQt pct1, pct2, pct3, pv, tv, ts(nullptr, kFondoGris), hs(nullptr, kFondoGris);
    for (SuperficieQt* s : {&pct1, &pct2, &pct3}) s->resize(280, 200);
    for (SuperficieQt* s : {&pv, &tv, &ts, &hs}) s->resize(420, 320);
    SuperficiesCalculo superficies{pct1, pct2, pct3, {pv, tv, ts, hs}};
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) qFatal("opciones: %s", p.error.c_str());
    c.r = Calcular(cli::EntradasDeCalcular(*p.opciones), superficies);
    if (!c.r.bien) qFatal("el cálculo falla");
    c.e = *c.r.estado;
    // The report as the main window keeps it: without the closing line end.
    c.informe = c.r.informe;
    c.combustible = c.r.tipoCombustible;
    c.imagenes = {pct1.Imagen(), pct2.Imagen(), pct3.Imagen(), pv.Imagen(),
                  tv.Imagen(),   ts.Imagen(),   hs.Imagen()};
    return c;
}

// The three cycles, calculated once for all the tests.
inline const std::vector<Calculo>& TresCiclos() {
    static const std::vector<Calculo> calculos{
        Calcular({}),
        Calcular({"--ciclo", "Diesel", "--combustible", "Gasoil", "--rc", "18", "--fr", "0,7", "--humedad",
                  "47.5", "--compresion", "variable"}),
        Calcular({"--ciclo", "Mixto", "--combustible", "GLP-Propano", "--lambda", "1.2", "--proporcion-vcte",
                  "40", "--temperatura-ambiente", "288.6"}),
    };
    return calculos;
}

inline bool MismaImagen(const QImage& a, const QImage& b) {
    return a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
}

// The vanta program run as a user runs it, in a folder and with an
// environment.
struct Salida {
    int estado = -1;
    QString out, err;
};

inline QProcess* LanzarVanta(const QStringList& argumentos, const QString& carpeta,
                             const QProcessEnvironment& entorno = QProcessEnvironment::systemEnvironment()) {
    auto* p = new QProcess;
    p->setWorkingDirectory(carpeta);
    p->setProcessEnvironment(entorno);
    p->start(QStringLiteral(VANTA_BINARIO), argumentos);
    return p;
}

inline Salida Esperar(QProcess* p) {
    Salida s;
    if (!p->waitForFinished(120000)) p->kill();
    s.estado = p->exitStatus() == QProcess::NormalExit ? p->exitCode() : -1;
    s.out = QString::fromUtf8(p->readAllStandardOutput());
    s.err = QString::fromUtf8(p->readAllStandardError());
    delete p;
    return s;
}

inline Salida Vanta(const QStringList& argumentos, const QString& carpeta,
                    const QProcessEnvironment& entorno = QProcessEnvironment::systemEnvironment()) {
    return Esperar(LanzarVanta(argumentos, carpeta, entorno));
}

// Texts of a record whose every part names it.
inline bd::TextosRegistro TextosDe(const std::string& nombre) {
    Estado e;
    e.T1 = 300;
    return bd::ValoresRegistro(e, nombre, "Gasolina", "informe de " + nombre + "\r\n");
}

// A browser on an empty folder of its own, which is the current folder while
// the bench stands, and BD.sqlite there; or, with servidor, on a new database
// of the test server. Modal windows are shown without a nested event loop.
struct Banco {
    QTemporaryDir carpeta;
    QString anterior = QDir::currentPath();
    DialogosGrabados dlg;
    QString direccion;  // empty for BD.sqlite in the folder
    std::unique_ptr<VentanaBaseDatos> f;

    explicit Banco(bool servidor = false) {
        QDir::setCurrent(carpeta.path());
        if (servidor) direccion = ServidorPrueba::Uno().Direccion(ServidorPrueba::Uno().NuevaBase());
        f = Nuevo();
    }
    // On a store given.
    explicit Banco(const QString& almacen) : direccion(almacen) {
        QDir::setCurrent(carpeta.path());
        f = Nuevo();
    }
    ~Banco() {
        f.reset();
        QDir::setCurrent(anterior);
    }

    std::unique_ptr<VentanaBaseDatos> Nuevo() {
        auto n = std::make_unique<VentanaBaseDatos>(dlg);
        n->FijarMostrarModal([](QDialog& d) { d.show(); });
        n->FijarEspera(200);
        n->FijarDireccion(direccion);
        return n;
    }

    QString Ruta() const { return carpeta.filePath(QStringLiteral("BD.sqlite")); }
    // The store, as the address of a connection that looks into it.
    QString Donde() const { return direccion.isEmpty() ? Ruta() : direccion; }

    // Adds records named so, straight through the browser.
    void Agregar(std::initializer_list<const char*> nombres) {
        for (const char* n : nombres)
            if (!f->AgregarRegistro(TextosDe(n), {})) qFatal("no se guarda %s", n);
    }

    QString Texto(const char* control) const { return Texto(*f, control); }
    static QString Texto(const VentanaBaseDatos& f, const char* control) {
        QWidget* w = f.findChild<QWidget*>(QString::fromLatin1(control));
        if (!w) qFatal("no hay control %s", control);
        if (auto* caja = qobject_cast<QLineEdit*>(w)) return caja->text();
        if (auto* etiqueta = qobject_cast<QLabel*>(w)) return etiqueta->text();
        return QString::fromStdString(f.TextoInforme());
    }

    std::string Mensaje() const { return dlg.mensajes.empty() ? std::string() : dlg.mensajes.back(); }

    // Whether the store has been made: the file, or the table on the server.
    bool AlmacenCreado() const;
};

// The store seen with its engine alone, on a connection of its own: a file,
// or the address of a database of the test server.
struct Mirada {
    QString nombre;
    bool servidor = false;
    explicit Mirada(const QString& almacen)
        : nombre(QStringLiteral("mirada_%1").arg(reinterpret_cast<quintptr>(this))) {
        const bd::Direccion d = *bd::LeerDireccion(almacen.toStdString()).direccion;
        servidor = d.motor == bd::Motor::PostgreSQL;
        QSqlDatabase db =
            QSqlDatabase::addDatabase(servidor ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE"), nombre);
        if (servidor) {
            db.setHostName(QString::fromStdString(d.servidor));
            db.setPort(d.puerto);
            db.setUserName(QString::fromStdString(d.usuario));
            db.setDatabaseName(QString::fromStdString(d.base));
        } else {
            db.setDatabaseName(almacen);
        }
        if (!db.open()) qFatal("no se mira %s", qPrintable(almacen));
    }
    explicit Mirada(const Banco& b) : Mirada(b.Donde()) {}
    ~Mirada() {
        QSqlDatabase::database(nombre, false).close();
        QSqlDatabase::removeDatabase(nombre);
    }
    QVariant Valor(const QString& sql) const {
        QSqlQuery q(QSqlDatabase::database(nombre, false));
        return q.exec(sql) && q.next() ? q.value(0) : QVariant();
    }
    // The names of the records in the order of saving.
    QStringList Nombres() const {
        QSqlQuery q(QSqlDatabase::database(nombre, false));
        QStringList nombres;
        if (q.exec(QStringLiteral("SELECT \"Guardado como\" FROM \"ResultadosGuardados\" ORDER BY rowid")))
            while (q.next()) nombres << q.value(0).toString();
        return nombres;
    }
};

inline bool Banco::AlmacenCreado() const {
    if (direccion.isEmpty()) return QFile::exists(Ruta());
    return Mirada(*this)
        .Valor(QStringLiteral("SELECT to_regclass('\"ResultadosGuardados\"') IS NOT NULL"))
        .toBool();
}

}  // namespace vanta::pruebas
