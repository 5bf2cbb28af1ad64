#include "gui/database/AlmacenResultados.h"

#include <QBuffer>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <atomic>
#include <set>
#include <unordered_set>

namespace vanta {

namespace {

QString Q(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

int Codigo(const QSqlError& error) {
    return error.nativeErrorCode().toInt();
}

// Takes the locks that make the creation of the table one at a time: SQLite's
// write lock, or a lock of the server's own for this program's mark.
const char* const kEmpezarSQLite = "BEGIN IMMEDIATE";
const char* const kEmpezarServidor = "BEGIN";
const char* const kBloquearCreacion = "SELECT pg_advisory_xact_lock(%1)";
// The columns of the table that names resolve to, none when there is no table.
const char* const kColumnasServidor =
    "SELECT attname FROM pg_attribute WHERE attrelid = to_regclass(?) AND attnum > 0 AND NOT attisdropped";

}  // namespace

namespace {

// An opaque picture of 256 colours or fewer (the diagrams are) as the same
// pixels on a palette: a smaller file that reads several times faster when a
// record is shown. Anything else stays as it is.
QImage EnPaleta(const QImage& imagen) {
    if (imagen.hasAlphaChannel() || imagen.format() == QImage::Format_Indexed8) return imagen;
    const QImage rgb = imagen.convertToFormat(QImage::Format_RGB32);
    std::unordered_set<QRgb> colores;
    for (int y = 0; y < rgb.height(); ++y) {
        const auto* fila = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x)
            if (colores.insert(fila[x]).second && colores.size() > 256) return imagen;
    }
    const QImage paleta =
        rgb.convertToFormat(QImage::Format_Indexed8, QList<QRgb>(colores.begin(), colores.end()),
                            Qt::ThresholdDither | Qt::AvoidDither);
    return paleta.convertToFormat(QImage::Format_RGB32) == rgb ? paleta : imagen;
}

}  // namespace

QByteArray ImagenAPNG(const QImage& imagen) {
    QByteArray datos;
    if (imagen.isNull()) return datos;
    QBuffer buffer(&datos);
    buffer.open(QIODevice::WriteOnly);
    EnPaleta(imagen).save(&buffer, "PNG");
    return datos;
}

QImage PNGAImagen(const QByteArray& datos) {
    if (datos.isEmpty()) return {};
    return QImage::fromData(datos, "PNG");
}

AlmacenResultados::AlmacenResultados(bd::Direccion direccion, QString clave)
    : direccion_(std::move(direccion)), clave_(std::move(clave)) {
    static std::atomic<int> cuenta{0};
    conexion_ = QStringLiteral("vanta_resultados_%1").arg(++cuenta);
}

AlmacenResultados::AlmacenResultados(const QString& ruta)
    : AlmacenResultados(*bd::LeerDireccion(ruta.toStdString()).direccion) {}

AlmacenResultados::~AlmacenResultados() {
    Cerrar();
}

void AlmacenResultados::Cerrar() {
    if (!QSqlDatabase::contains(conexion_)) return;
    {
        QSqlDatabase db = QSqlDatabase::database(conexion_, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(conexion_);
    abierto_ = false;
}

std::string AlmacenResultados::Causa(const QSqlError& error) const {
    if (Servidor()) {
        const bd::Esperas esperas = bd::EsperasDe(direccion_);
        if (sinRespuesta_) return bd::CausaSinRespuesta(esperas);
        return bd::CausaPostgreSQL(error.nativeErrorCode().toStdString(), error.databaseText().toStdString(),
                                   direccion_.usuario, esperas);
    }
    return bd::CausaSQLite(Codigo(error), error.databaseText().toStdString());
}

bool AlmacenResultados::Fallo(const QSqlError& error, std::string (*mensaje)(std::string_view)) {
    error_ = mensaje(Causa(error));
    return false;
}

bool AlmacenResultados::Conectar() {
    sinRespuesta_ = false;
    const std::string ruta = direccion_.texto;
    const QString driver = Servidor() ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        error_ =
            bd::MsgNoSeAbre(ruta, Servidor() ? bd::kCausaSinDriverPostgreSQL : bd::kCausaSinDriverSQLite);
        return false;
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(driver, conexion_);
    if (Servidor()) {
        db.setHostName(Q(direccion_.servidor));
        db.setPort(direccion_.puerto);
        db.setDatabaseName(Q(direccion_.base));
        db.setUserName(Q(direccion_.usuario));
        db.setPassword(clave_);
        db.setConnectOptions(Q(bd::OpcionesConexion(direccion_)));
    } else {
        db.setDatabaseName(Q(direccion_.ruta));
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(espera_));
    }
    if (!db.open()) {
        const std::string texto = db.lastError().databaseText().toStdString();
        pideClave_ = Servidor() && (bd::FaltaClave(texto) || bd::ClaveRechazada(texto));
        error_ = bd::MsgNoSeAbre(ruta, Causa(db.lastError()));
        return false;
    }
    return true;
}

bool AlmacenResultados::Viva() {
    // A cut for want of an answer belonged to the operation before.
    sinRespuesta_ = false;
    QSqlDatabase db = QSqlDatabase::database(conexion_, false);
    if (db.isOpen()) return true;
    if (db.open()) return true;
    error_ = bd::MsgNoSeAbre(direccion_.texto, Causa(db.lastError()));
    return false;
}

VigiaConexion AlmacenResultados::Vigilar() {
    sinRespuesta_ = false;
    return VigiaConexion(conexion_, std::chrono::seconds(bd::EsperasDe(direccion_).Respuesta()),
                         sinRespuesta_);
}

bool AlmacenResultados::ConReintento(const std::function<bool()>& f) {
    const auto vigilado = [&] {
        const VigiaConexion vigia = Vigilar();
        return f();
    };
    if (!Viva()) return false;
    if (vigilado()) return true;
    // Qt closes a server connection that it finds cut. One cut for want of
    // an answer is not tried again: the wait has had its time.
    if (!Servidor() || sinRespuesta_ || QSqlDatabase::database(conexion_, false).isOpen()) return false;
    const std::string primero = error_;
    if (!Viva()) {
        error_ = primero;
        return false;
    }
    return vigilado();
}

// A SQLite file is ours when it carries the program's mark and the table with
// every column; a database with no table at all (a creation that was cut
// short, or a file just made) holds nothing to lose and is made ours. On a
// server, the table is ours when it has every column.
std::optional<AlmacenResultados::Hallazgo> AlmacenResultados::Comprobar() {
    const std::string ruta = direccion_.texto;
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    q.setForwardOnly(true);
    auto fallo = [&] {
        error_ = bd::MsgNoSeAbre(ruta, Causa(q.lastError()));
        return std::nullopt;
    };
    std::set<QString> nombres;
    if (Servidor()) {
        q.prepare(QString::fromLatin1(kColumnasServidor));
        q.addBindValue(Q(bd::Citado(bd::kTabla)));
        if (!q.exec()) return fallo();
        while (q.next()) nombres.insert(q.value(0).toString());
        if (q.lastError().isValid()) return fallo();
        if (nombres.empty()) return Hallazgo::Vacia;
        if (!nombres.count(QStringLiteral("rowid"))) {
            error_ = bd::MsgNoSeAbre(ruta, bd::kCausaSinColumnas);
            return Hallazgo::Ajena;
        }
    } else {
        if (!q.exec(QStringLiteral("PRAGMA application_id")) || !q.next()) return fallo();
        const int marca = q.value(0).toInt();
        if (marca != bd::kIdAplicacion) {
            if (!q.exec(QStringLiteral("SELECT count(*) FROM sqlite_master")) || !q.next()) return fallo();
            if (marca == 0 && q.value(0).toInt() == 0) return Hallazgo::Vacia;
            error_ = bd::MsgNoSeAbre(ruta, bd::kCausaNoEsDeVanta);
            return Hallazgo::Ajena;
        }
        if (!q.exec(Q("PRAGMA table_info(" + bd::Citado(bd::kTabla) + ")"))) return fallo();
        while (q.next()) nombres.insert(q.value(1).toString());
    }
    auto falta = [&](std::string_view nombre) { return !nombres.count(Q(nombre)); };
    for (const auto& c : bd::kColumnasTexto)
        if (falta(c.nombre)) return error_ = bd::MsgNoSeAbre(ruta, bd::kCausaSinColumnas), Hallazgo::Ajena;
    for (const auto& c : bd::kColumnasImagen)
        if (falta(c.nombre)) return error_ = bd::MsgNoSeAbre(ruta, bd::kCausaSinColumnas), Hallazgo::Ajena;
    return Hallazgo::Nuestra;
}

// The table (and the mark of a file) in one transaction, after a second look
// under the lock: whoever comes second finds it made and makes nothing. A
// creation cut short leaves no table, which the next opening makes again.
bool AlmacenResultados::Crear() {
    QSqlDatabase db = QSqlDatabase::database(conexion_, false);
    QSqlQuery q(db);
    const bool bloqueada = Servidor()
                               ? q.exec(QString::fromLatin1(kEmpezarServidor)) &&
                                     q.exec(QString::fromLatin1(kBloquearCreacion).arg(bd::kIdAplicacion))
                               : q.exec(QString::fromLatin1(kEmpezarSQLite));
    if (!bloqueada) {
        error_ = bd::MsgNoSeCrea(direccion_.texto, Causa(q.lastError()));
        q.exec(QStringLiteral("ROLLBACK"));
        return false;
    }
    const auto hallazgo = Comprobar();
    const auto entradas = [&] { return HayEntradas() || q.exec(Q(bd::SQLCrearEntradas())); };
    if (hallazgo != Hallazgo::Vacia) {
        // A store made before the inputs had their table gets it, if it may
        // be changed.
        const bool bien = hallazgo == Hallazgo::Nuestra && entradas();
        q.exec(QString::fromLatin1(bien ? "COMMIT" : "ROLLBACK"));
        return hallazgo == Hallazgo::Nuestra;
    }
    const bool bien =
        (Servidor() || q.exec(QStringLiteral("PRAGMA application_id = %1").arg(bd::kIdAplicacion))) &&
        q.exec(Q(bd::SQLCrearTabla(direccion_.motor))) && entradas() && q.exec(QStringLiteral("COMMIT"));
    if (bien) return true;
    error_ = bd::MsgNoSeCrea(direccion_.texto, Causa(q.lastError()));
    q.exec(QStringLiteral("ROLLBACK"));
    return false;
}

bool AlmacenResultados::HayEntradas() {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    const std::string tabla(bd::kTablaEntradas);
    const std::string sql = Servidor()
                                ? "SELECT to_regclass('" + tabla + "') IS NOT NULL"
                                : "SELECT count(*) > 0 FROM sqlite_master WHERE type = 'table' AND name = '" +
                                      tabla + "' COLLATE NOCASE";
    return q.exec(Q(sql)) && q.next() && q.value(0).toBool();
}

bool AlmacenResultados::Abrir() {
    if (abierto_) return true;
    pideClave_ = false;
    if (!Servidor() && QFileInfo(Q(direccion_.ruta)).isDir()) {
        error_ = bd::MsgNoSeAbre(direccion_.texto, bd::kCausaEsCarpeta);
        return false;
    }
    if (!Conectar()) {
        Cerrar();
        return false;
    }
    const bool listo = [&] {
        const VigiaConexion vigia = Vigilar();
        // The look at a file is one read transaction, so that another
        // program's creation is seen whole or not at all.
        QSqlDatabase db = QSqlDatabase::database(conexion_, false);
        const bool lectura = !Servidor() && db.transaction();
        const auto hallazgo = Comprobar();
        if (lectura) db.rollback();
        if (!hallazgo || hallazgo == Hallazgo::Ajena) return false;
        if (!Servidor()) {
            // The rollback journal with a full sync at each commit. A file left
            // in another journal mode by some other tool keeps it when it is in
            // use.
            QSqlQuery q(QSqlDatabase::database(conexion_, false));
            q.exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
            q.exec(QStringLiteral("PRAGMA synchronous = FULL"));
        }
        // A store of ours without the inputs' table is read as it is when it
        // may not be changed; its saves are then refused.
        if (hallazgo == Hallazgo::Nuestra && !HayEntradas()) Crear();
        const bool nuestra = hallazgo == Hallazgo::Nuestra || Crear();
        if (nuestra && HayEntradas()) LimpiarHuerfanas();
        return nuestra;
    }();
    if (!listo) {
        Cerrar();
        return false;
    }
    abierto_ = true;
    return true;
}

std::optional<std::vector<qint64>> AlmacenResultados::Identificadores() {
    std::vector<qint64> ids;
    const bool bien = ConReintento([&] {
        ids.clear();
        QSqlQuery q(QSqlDatabase::database(conexion_, false));
        q.setForwardOnly(true);
        if (!q.exec(Q("SELECT rowid FROM " + bd::Citado(bd::kTabla) + " ORDER BY rowid")))
            return Fallo(q.lastError(), bd::MsgNoSeLee);
        while (q.next()) ids.push_back(q.value(0).toLongLong());
        return !q.lastError().isValid() || Fallo(q.lastError(), bd::MsgNoSeLee);
    });
    if (!bien) return std::nullopt;
    return ids;
}

bool AlmacenResultados::LeerFila(QSqlQuery& q, const std::string& sql, qint64 id) {
    q.setForwardOnly(true);
    q.prepare(Q(sql));
    q.addBindValue(id);
    if (q.exec() && q.next()) return true;
    if (q.lastError().isValid()) return Fallo(q.lastError(), bd::MsgNoSeLee);
    error_ = bd::MsgNoSeLee(bd::kCausaRegistroNoEsta);
    return false;
}

std::optional<bd::TextosRegistro> AlmacenResultados::LeerTextos(qint64 id) {
    bd::TextosRegistro textos;
    const bool bien = ConReintento([&] {
        QSqlQuery q(QSqlDatabase::database(conexion_, false));
        if (!LeerFila(q, bd::SQLLeerTextos(), id)) return false;
        for (size_t i = 0; i < textos.size(); ++i)
            textos[i] = q.value(static_cast<int>(i)).toString().toStdString();
        return true;
    });
    if (!bien) return std::nullopt;
    return textos;
}

std::optional<ImagenesRegistro> AlmacenResultados::LeerImagenes(qint64 id) {
    ImagenesRegistro imagenes;
    const bool bien = ConReintento([&] {
        QSqlQuery q(QSqlDatabase::database(conexion_, false));
        if (!LeerFila(q, bd::SQLLeerImagenes(), id)) return false;
        for (size_t i = 0; i < imagenes.size(); ++i)
            imagenes[i] = PNGAImagen(q.value(static_cast<int>(i)).toByteArray());
        return true;
    });
    if (!bien) return std::nullopt;
    return imagenes;
}

std::string AlmacenResultados::FalloDeIntegridad() {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    if (!q.exec(QStringLiteral("PRAGMA quick_check(1)")) || !q.next())
        return q.lastError().databaseText().toStdString();
    const QString resultado = q.value(0).toString();
    return resultado == QLatin1String("ok") ? std::string() : resultado.toStdString();
}

std::optional<qint64> AlmacenResultados::Insertar(const bd::TextosRegistro& textos,
                                                  const ImagenesRegistro& imagenes,
                                                  const std::optional<std::string>& entradas) {
    // The pictures are encoded before the transaction, which stays short.
    std::array<QByteArray, bd::kNumColumnasImagen> png;
    for (size_t i = 0; i < png.size(); ++i) png[i] = ImagenAPNG(imagenes[i]);

    // Only the start is tried again on a connection found lost: once the
    // record is sent, a lost connection is a failed save.
    const QString empezar = QString::fromLatin1(Servidor() ? kEmpezarServidor : kEmpezarSQLite);
    if (!ConReintento([&] {
            QSqlQuery control(QSqlDatabase::database(conexion_, false));
            return control.exec(empezar) || Fallo(control.lastError(), bd::MsgNoSeGuarda);
        }))
        return std::nullopt;

    const VigiaConexion vigia = Vigilar();
    QSqlDatabase db = QSqlDatabase::database(conexion_, false);
    QSqlQuery control(db);
    // The statement outlives the end of the transaction: a server frees its
    // prepared form only outside a failed one.
    QSqlQuery q(db);
    bool bien = q.prepare(Q(bd::SQLInsertar(direccion_.motor)));
    for (const std::string& t : textos) q.addBindValue(Q(t));
    for (const QByteArray& p : png)
        q.addBindValue(p.isEmpty() ? QVariant(QMetaType(QMetaType::QByteArray)) : QVariant(p));
    bien = bien && q.exec() && (!Servidor() || q.next());
    qint64 id = !bien ? 0 : Servidor() ? q.value(0).toLongLong() : q.lastInsertId().toLongLong();
    QSqlError error = q.lastError();
    q.finish();
    // SQLite gives the highest id plus one, which may be a deleted record's:
    // the record then takes the one after the highest ever given.
    if (bien && !Servidor()) {
        QSqlQuery marca(db);
        const auto mayor = MayorIdDado(marca);
        if (mayor && id <= *mayor) {
            marca.prepare(Q("UPDATE " + bd::Citado(bd::kTabla) + " SET rowid = ? WHERE rowid = ?"));
            marca.addBindValue(*mayor + 1);
            marca.addBindValue(id);
            if (marca.exec()) id = *mayor + 1;
        }
        if (!mayor || id <= *mayor || !ElevarMayorId(marca, id)) bien = false, error = marca.lastError();
    }
    // The inputs in the same transaction: a store that refuses them keeps no
    // record.
    QSqlQuery e(db);
    if (bien && entradas) {
        e.prepare(Q(bd::SQLGuardarEntradas(direccion_.motor)));
        e.addBindValue(id);
        e.addBindValue(Q(*entradas));
        if (!e.exec()) bien = false, error = e.lastError();
        e.finish();
    }
    if (bien && antesDeConfirmar_) antesDeConfirmar_();
    if (bien && !control.exec(QStringLiteral("COMMIT"))) {
        bien = false;
        error = control.lastError();
    }
    if (bien) return id;
    Fallo(error, bd::MsgNoSeGuarda);
    if (db.isOpen()) control.exec(QStringLiteral("ROLLBACK"));
    // A damaged file promises nothing of the records saved before.
    if (!Servidor() && bd::EsDano(Codigo(error)))
        if (const std::string detalle = FalloDeIntegridad(); !detalle.empty())
            error_ = bd::MsgArchivoDanado(direccion_.texto, detalle);
    return std::nullopt;
}

std::optional<std::string> AlmacenResultados::LeerEntradas(qint64 id) {
    std::optional<std::string> entradas;
    ConReintento([&] {
        QSqlQuery q(QSqlDatabase::database(conexion_, false));
        q.setForwardOnly(true);
        q.prepare(Q(bd::SQLLeerEntradas()));
        q.addBindValue(id);
        if (!q.exec()) return Fallo(q.lastError(), bd::MsgNoSeLee);
        if (q.next()) entradas = q.value(0).toString().toStdString();
        return true;
    });
    return entradas;
}

bool AlmacenResultados::Borrar(qint64 id) {
    const QString empezar = QString::fromLatin1(Servidor() ? kEmpezarServidor : kEmpezarSQLite);
    if (!ConReintento([&] {
            QSqlQuery control(QSqlDatabase::database(conexion_, false));
            return control.exec(empezar) || Fallo(control.lastError(), bd::MsgNoSeBorra);
        }))
        return false;
    const VigiaConexion vigia = Vigilar();
    QSqlDatabase db = QSqlDatabase::database(conexion_, false);
    QSqlQuery q(db);
    auto borrar = [&](const std::string& sql) {
        q.prepare(Q(sql));
        q.addBindValue(id);
        return q.exec();
    };
    // The file remembers the id, which a new record would otherwise take
    // again when it was the highest.
    const bool bien = (!HayEntradas() || borrar(bd::SQLBorrarEntradas())) &&
                      borrar(bd::SQLBorrarRegistro()) && (Servidor() || ElevarMayorId(q, id)) &&
                      q.exec(QStringLiteral("COMMIT"));
    if (bien) return true;
    Fallo(q.lastError(), bd::MsgNoSeBorra);
    if (db.isOpen()) q.exec(QStringLiteral("ROLLBACK"));
    return false;
}

std::optional<qint64> AlmacenResultados::MayorIdDado(QSqlQuery& q) {
    if (!q.exec(QStringLiteral("PRAGMA user_version")) || !q.next()) return std::nullopt;
    return q.value(0).toLongLong();
}

bool AlmacenResultados::ElevarMayorId(QSqlQuery& q, qint64 id) {
    const auto mayor = MayorIdDado(q);
    if (!mayor) return false;
    return id <= *mayor || q.exec(QStringLiteral("PRAGMA user_version = %1").arg(id));
}

void AlmacenResultados::LimpiarHuerfanas() {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    // Looked at first: a store that may only be read is not asked to change.
    if (!q.exec(Q(bd::SQLHuerfanas("SELECT count(*), max(Registro)"))) || !q.next() ||
        q.value(0).toLongLong() == 0)
        return;
    const qint64 mayor = q.value(1).toLongLong();
    const bool bien = q.exec(QString::fromLatin1(Servidor() ? kEmpezarServidor : kEmpezarSQLite)) &&
                      (Servidor() || ElevarMayorId(q, mayor)) && q.exec(Q(bd::SQLHuerfanas("DELETE"))) &&
                      q.exec(QStringLiteral("COMMIT"));
    if (!bien) q.exec(QStringLiteral("ROLLBACK"));
}

}  // namespace vanta
