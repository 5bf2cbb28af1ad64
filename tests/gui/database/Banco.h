// What the results database tests share: real calculations with their
// pictures, a browser on a folder of its own, and a look into the file that
// does not go through the browser.
#pragma once

#include <QDir>
#include <QLabel>
#include <QLineEdit>
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
#include "gui/database/frmBaseDatos.h"
#include "gui/services/SuperficieQt.h"

namespace vanta::pruebas {

// A whole calculation as the command line runs it, drawn on Qt surfaces.
struct Calculo {
    Estado e;
    std::string combustible;
    std::string informe;
    ImagenesPrincipal imagenes;
};

inline Calculo Calcular(const std::vector<std::string>& argumentos) {
    Calculo c;
    GuardarColoresDiagramas(c.e);
    SuperficieQt pct1, pct2, pct3, pv, tv, ts(nullptr, kFondoGris), hs(nullptr, kFondoGris);
    for (SuperficieQt* s : {&pct1, &pct2, &pct3}) s->resize(280, 200);
    for (SuperficieQt* s : {&pv, &tv, &ts, &hs}) s->resize(420, 320);
    DialogosGrabados dlg;
    SuperficiesCalculo superficies{pct1, pct2, pct3, {pv, tv, ts, hs}};
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) qFatal("opciones: %s", p.error.c_str());
    std::ostringstream salida;
    if (cli::EjecutarCalcular(c.e, *p.opciones, dlg, superficies, salida) != cli::kSalidaBien)
        qFatal("el cálculo falla");
    // The report as the main window keeps it: without the closing line end.
    c.informe = salida.str();
    c.informe.resize(c.informe.size() - 2);
    c.combustible = p.opciones->Valor("combustible");
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

// Texts of a record whose every part names it.
inline bd::TextosRegistro TextosDe(const std::string& nombre) {
    Estado e;
    e.T1 = 300;
    return bd::ValoresRegistro(e, nombre, "Gasolina", "informe de " + nombre + "\r\n");
}

// A browser on an empty folder of its own, which is the current folder while
// the bench stands. Modal windows are shown without a nested event loop.
struct Banco {
    QTemporaryDir carpeta;
    QString anterior = QDir::currentPath();
    DialogosGrabados dlg;
    std::string buffer;  // the main window's report buffer
    std::unique_ptr<frmBaseDatos> f;

    Banco() {
        QDir::setCurrent(carpeta.path());
        f = Nuevo();
    }
    ~Banco() {
        f.reset();
        QDir::setCurrent(anterior);
    }

    std::unique_ptr<frmBaseDatos> Nuevo() {
        auto n = std::make_unique<frmBaseDatos>(dlg, [this] { return buffer; });
        n->FijarMostrarModal([](QDialog& d) { d.show(); });
        n->FijarEspera(200);
        return n;
    }

    QString Ruta() const { return carpeta.filePath(QStringLiteral("BD.sqlite")); }

    // Adds records named so, straight through the browser.
    void Agregar(std::initializer_list<const char*> nombres) {
        for (const char* n : nombres)
            if (!f->AgregarRegistro(TextosDe(n), {})) qFatal("no se guarda %s", n);
    }

    QString Texto(const char* control) const { return Texto(*f, control); }
    static QString Texto(const frmBaseDatos& f, const char* control) {
        QWidget* w = f.findChild<QWidget*>(QString::fromLatin1(control));
        if (!w) qFatal("no hay control %s", control);
        if (auto* caja = qobject_cast<QLineEdit*>(w)) return caja->text();
        if (auto* etiqueta = qobject_cast<QLabel*>(w)) return etiqueta->text();
        return QString::fromStdString(f.TextoInforme());
    }

    std::string Mensaje() const { return dlg.mensajes.empty() ? std::string() : dlg.mensajes.back(); }
};

// The file seen with SQLite alone, on a connection of its own.
struct Mirada {
    QString nombre;
    explicit Mirada(const QString& ruta)
        : nombre(QStringLiteral("mirada_%1").arg(reinterpret_cast<quintptr>(this))) {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nombre);
        db.setDatabaseName(ruta);
        db.open();
    }
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
        if (q.exec(QStringLiteral("SELECT \"Guardado como\" FROM ResultadosGuardados ORDER BY rowid")))
            while (q.next()) nombres << q.value(0).toString();
        return nombres;
    }
};

}  // namespace vanta::pruebas
