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

std::string Causa(const QSqlError& error) {
    return bd::CausaSQLite(Codigo(error), error.databaseText().toStdString());
}

const char* const kDriver = "QSQLITE";
const char* const kCausaSinDriver = "falta el controlador QSQLITE de Qt (paquete libqt6sql6-sqlite)";
const char* const kCausaRegistroNoEsta = "el registro ya no está en la base de datos";

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

AlmacenResultados::AlmacenResultados(QString ruta) : ruta_(std::move(ruta)) {
    static std::atomic<int> cuenta{0};
    conexion_ = QStringLiteral("vanta_resultados_%1").arg(++cuenta);
}

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

bool AlmacenResultados::Fallo(const QSqlError& error, std::string (*mensaje)(std::string_view)) {
    error_ = mensaje(Causa(error));
    return false;
}

bool AlmacenResultados::Conectar() {
    if (!QSqlDatabase::isDriverAvailable(QString::fromLatin1(kDriver))) {
        error_ = bd::MsgNoSeAbre(ruta_.toStdString(), kCausaSinDriver);
        return false;
    }
    QSqlDatabase db = QSqlDatabase::addDatabase(QString::fromLatin1(kDriver), conexion_);
    db.setDatabaseName(ruta_);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(espera_));
    if (!db.open()) {
        error_ = bd::MsgNoSeAbre(ruta_.toStdString(), Causa(db.lastError()));
        return false;
    }
    return true;
}

// An existing file is ours when it carries the program's mark and the table
// with every column. A database with no table at all (a creation that was cut
// short) holds nothing to lose and is made ours.
bool AlmacenResultados::Comprobar(bool& vacia) {
    const std::string ruta = ruta_.toStdString();
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("PRAGMA application_id")) || !q.next()) {
        error_ = bd::MsgNoSeAbre(ruta, Causa(q.lastError()));
        return false;
    }
    if (q.value(0).toInt() != bd::kIdAplicacion) {
        const bool sinMarca = q.value(0).toInt() == 0;
        if (!q.exec(QStringLiteral("SELECT count(*) FROM sqlite_master")) || !q.next()) {
            error_ = bd::MsgNoSeAbre(ruta, Causa(q.lastError()));
            return false;
        }
        vacia = sinMarca && q.value(0).toInt() == 0;
        if (!vacia) error_ = bd::MsgNoSeAbre(ruta, bd::kCausaNoEsDeVanta);
        return vacia;
    }
    if (!q.exec(Q("PRAGMA table_info(" + bd::Citado(bd::kTabla) + ")"))) {
        error_ = bd::MsgNoSeAbre(ruta, Causa(q.lastError()));
        return false;
    }
    std::set<QString> nombres;
    while (q.next()) nombres.insert(q.value(1).toString());
    for (const auto& c : bd::kColumnasTexto)
        if (!nombres.count(Q(c.nombre))) return error_ = bd::MsgNoSeAbre(ruta, bd::kCausaSinColumnas), false;
    for (const auto& c : bd::kColumnasImagen)
        if (!nombres.count(Q(c.nombre))) return error_ = bd::MsgNoSeAbre(ruta, bd::kCausaSinColumnas), false;
    return true;
}

// The mark and the table in one transaction: a creation cut short leaves a
// database with no table, which the next opening makes again.
bool AlmacenResultados::Crear() {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    const bool bien = q.exec(QStringLiteral("BEGIN IMMEDIATE")) &&
                      q.exec(QStringLiteral("PRAGMA application_id = %1").arg(bd::kIdAplicacion)) &&
                      q.exec(Q(bd::SQLCrearTabla())) && q.exec(QStringLiteral("COMMIT"));
    if (bien) return true;
    error_ = bd::MsgNoSeCrea(ruta_.toStdString(), Causa(q.lastError()));
    q.exec(QStringLiteral("ROLLBACK"));
    return false;
}

bool AlmacenResultados::Abrir() {
    if (abierto_) return true;
    const QFileInfo archivo(ruta_);
    if (archivo.isDir()) {
        error_ = bd::MsgNoSeAbre(ruta_.toStdString(), bd::kCausaEsCarpeta);
        return false;
    }
    const bool existe = archivo.exists() && archivo.size() > 0;
    bool vacia = !existe;
    if (!Conectar() || (existe && !Comprobar(vacia))) {
        Cerrar();
        return false;
    }
    {
        // The rollback journal with a full sync at each commit. A file left in
        // another journal mode by some other tool keeps it when it is in use.
        QSqlQuery q(QSqlDatabase::database(conexion_, false));
        q.exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
        q.exec(QStringLiteral("PRAGMA synchronous = FULL"));
    }
    if (vacia && !Crear()) {
        Cerrar();
        return false;
    }
    abierto_ = true;
    return true;
}

std::optional<std::vector<qint64>> AlmacenResultados::Identificadores() {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    q.setForwardOnly(true);
    if (!q.exec(Q("SELECT rowid FROM " + bd::Citado(bd::kTabla) + " ORDER BY rowid"))) {
        Fallo(q.lastError(), bd::MsgNoSeLee);
        return std::nullopt;
    }
    std::vector<qint64> ids;
    while (q.next()) ids.push_back(q.value(0).toLongLong());
    if (q.lastError().isValid()) {
        Fallo(q.lastError(), bd::MsgNoSeLee);
        return std::nullopt;
    }
    return ids;
}

bool AlmacenResultados::LeerFila(QSqlQuery& q, const std::string& sql, qint64 id) {
    q.setForwardOnly(true);
    q.prepare(Q(sql));
    q.addBindValue(id);
    if (q.exec() && q.next()) return true;
    if (q.lastError().isValid()) return Fallo(q.lastError(), bd::MsgNoSeLee);
    error_ = bd::MsgNoSeLee(kCausaRegistroNoEsta);
    return false;
}

std::optional<bd::TextosRegistro> AlmacenResultados::LeerTextos(qint64 id) {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    if (!LeerFila(q, bd::SQLLeerTextos(), id)) return std::nullopt;
    bd::TextosRegistro textos;
    for (size_t i = 0; i < textos.size(); ++i)
        textos[i] = q.value(static_cast<int>(i)).toString().toStdString();
    return textos;
}

std::optional<ImagenesRegistro> AlmacenResultados::LeerImagenes(qint64 id) {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    if (!LeerFila(q, bd::SQLLeerImagenes(), id)) return std::nullopt;
    ImagenesRegistro imagenes;
    for (size_t i = 0; i < imagenes.size(); ++i)
        imagenes[i] = PNGAImagen(q.value(static_cast<int>(i)).toByteArray());
    return imagenes;
}

std::optional<qint64> AlmacenResultados::Insertar(const bd::TextosRegistro& textos,
                                                  const ImagenesRegistro& imagenes) {
    // The pictures are encoded before the transaction, which stays short.
    std::array<QByteArray, bd::kNumColumnasImagen> png;
    for (size_t i = 0; i < png.size(); ++i) png[i] = ImagenAPNG(imagenes[i]);

    QSqlDatabase db = QSqlDatabase::database(conexion_, false);
    QSqlQuery control(db);
    if (!control.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        Fallo(control.lastError(), bd::MsgNoSeGuarda);
        return std::nullopt;
    }
    qint64 id = 0;
    bool bien;
    {
        QSqlQuery q(db);
        bien = q.prepare(Q(bd::SQLInsertar()));
        for (const std::string& t : textos) q.addBindValue(QString::fromStdString(t));
        for (const QByteArray& p : png)
            q.addBindValue(p.isEmpty() ? QVariant(QMetaType(QMetaType::QByteArray)) : QVariant(p));
        bien = bien && q.exec();
        if (bien)
            id = q.lastInsertId().toLongLong();
        else
            Fallo(q.lastError(), bd::MsgNoSeGuarda);
    }
    if (bien && antesDeConfirmar_) antesDeConfirmar_();
    if (bien && !control.exec(QStringLiteral("COMMIT"))) bien = Fallo(control.lastError(), bd::MsgNoSeGuarda);
    if (!bien) {
        control.exec(QStringLiteral("ROLLBACK"));
        return std::nullopt;
    }
    return id;
}

bool AlmacenResultados::Borrar(qint64 id) {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    q.prepare(Q("DELETE FROM " + bd::Citado(bd::kTabla) + " WHERE rowid = ?"));
    q.addBindValue(id);
    return q.exec() || Fallo(q.lastError(), bd::MsgNoSeBorra);
}

bool AlmacenResultados::EscribirInforme(qint64 id, const std::string& informe) {
    QSqlQuery q(QSqlDatabase::database(conexion_, false));
    q.prepare(Q("UPDATE " + bd::Citado(bd::kTabla) + " SET " +
                bd::Citado(bd::kColumnasTexto[bd::kColumnaInforme].nombre) + " = ? WHERE rowid = ?"));
    q.addBindValue(QString::fromStdString(informe));
    q.addBindValue(id);
    return q.exec() || Fallo(q.lastError(), bd::MsgNoSeGuardaInforme);
}

}  // namespace vanta
