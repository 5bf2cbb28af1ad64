// The results database: the one table ResultadosGuardados, reached through Qt
// SQL in a SQLite file (QSQLITE) or on a PostgreSQL server (QPSQL). Both hold
// the same 68 columns with the same meaning, the figures as text and the
// pictures as binary columns, and both are written one transaction per change.
//
// The store is checked before it is trusted and made when it is missing, with
// the table created inside a transaction under a lock, so that several
// programs that start together against a missing store all find it made once.
// A SQLite file keeps the rollback journal with full syncs, so that a program
// killed in the middle of a save leaves every earlier record as it was.
//
// Records are named by their rowid, which follows the order of saving and is
// never given twice, also after a deletion: a server's identity column never
// goes back, and a file keeps the highest id it has given in its header's
// user_version. A record is deleted with its inputs, in one transaction; the
// inputs of records deleted by older programs are cleaned when the store is
// opened. The list of records holds those ids only; the texts and the pictures of one
// record are read when it is shown. A connection to a server that was lost (the
// server stopped or restarted) is made again by the next operation. Every wait
// for a server has its limit (the address's Esperas): past it, the operation
// fails and says so, and a save leaves nothing.
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/database/Direccion.h"
#include "core/database/Registro.h"
#include "gui/database/VigiaConexion.h"

class QSqlError;
class QSqlQuery;

namespace vanta {

// The pictures of a record in the order of its picture columns.
using ImagenesRegistro = std::array<QImage, bd::kNumColumnasImagen>;

class AlmacenResultados {
public:
    // direccion: a file already resolved, or a server. clave: the password
    // asked by the window, when the server wants one (libpq takes it from
    // PGPASSWORD or the password file otherwise).
    explicit AlmacenResultados(bd::Direccion direccion, QString clave = {});
    // A SQLite file, already resolved.
    explicit AlmacenResultados(const QString& ruta);
    ~AlmacenResultados();
    AlmacenResultados(const AlmacenResultados&) = delete;
    AlmacenResultados& operator=(const AlmacenResultados&) = delete;

    // The file or the address, as messages name it.
    QString Ruta() const { return QString::fromStdString(direccion_.texto); }
    bd::Motor Motor() const { return direccion_.motor; }

    // Opens the store, or makes its table when it is missing. A file that is
    // not this program's database, or a table that lacks a column, is left
    // untouched. False with Error() set on failure; true at once when open.
    bool Abrir();
    bool Abierto() const { return abierto_; }
    // Whether the last opening failed on the password: a server asked for one
    // it was not given, or refused the one given.
    bool PideClave() const { return pideClave_; }

    // The message of the last failure, ready for a message box.
    const std::string& Error() const { return error_; }

    // The ids of every record, in the order of saving.
    std::optional<std::vector<qint64>> Identificadores();
    std::optional<bd::TextosRegistro> LeerTextos(qint64 id);
    std::optional<ImagenesRegistro> LeerImagenes(qint64 id);

    // Adds a record in one transaction, with the inputs of its calculation
    // when given; its id, or nothing on failure (and then nothing of it is in
    // the store, its inputs neither).
    std::optional<qint64> Insertar(const bd::TextosRegistro& textos, const ImagenesRegistro& imagenes,
                                   const std::optional<std::string>& entradas = std::nullopt);
    // The inputs saved with a record; nothing when there are none.
    std::optional<std::string> LeerEntradas(qint64 id);
    // Deletes a record and its inputs, in one transaction.
    bool Borrar(qint64 id);

    // How long to wait for another program that holds a SQLite file, in ms.
    void FijarEspera(int milisegundos) { espera_ = milisegundos; }
    // Called inside a save's transaction, after the record is written and
    // before it is committed (for the tests of a program killed mid-save).
    void FijarAntesDeConfirmar(std::function<void()> f) { antesDeConfirmar_ = std::move(f); }
    // The name of the Qt SQL connection, for the tests.
    const QString& NombreConexion() const { return conexion_; }

private:
    enum class Hallazgo { Nuestra, Vacia, Ajena };
    bool Servidor() const { return direccion_.motor == bd::Motor::PostgreSQL; }
    bool Conectar();
    // A server connection that was lost is opened again.
    bool Viva();
    // Runs f, which makes its own queries; when it fails on a server
    // connection that turns out lost before anything was written, connects
    // again and runs it once more.
    bool ConReintento(const std::function<bool()>& f);
    // The watch on a server connection for one operation.
    VigiaConexion Vigilar();
    std::optional<Hallazgo> Comprobar();
    bool Crear();
    bool HayEntradas();
    // Removes the inputs whose record is gone (nothing when the store may not
    // be changed).
    void LimpiarHuerfanas();
    // The highest id a file has given, and raising it; a server needs none.
    std::optional<qint64> MayorIdDado(QSqlQuery& q);
    bool ElevarMayorId(QSqlQuery& q, qint64 id);
    void Cerrar();
    std::string Causa(const QSqlError& error) const;
    // Runs a SELECT of one record by its id and stands on its row.
    bool LeerFila(QSqlQuery& q, const std::string& sql, qint64 id);
    // Sets Error() from a failed statement with the message maker given.
    bool Fallo(const QSqlError& error, std::string (*mensaje)(std::string_view));
    // The first fault that SQLite's integrity check finds; empty when none.
    std::string FalloDeIntegridad();

    bd::Direccion direccion_;
    QString clave_;
    QString conexion_;
    bool abierto_ = false;
    bool pideClave_ = false;
    int espera_ = 2000;
    std::string error_;
    std::function<void()> antesDeConfirmar_;
    // Set when the server's answer did not come in time and the connection
    // was cut: the operation's failure is that.
    std::atomic<bool> sinRespuesta_{false};
};

// A picture as the lossless PNG stored in its column (empty for no picture),
// and back.
QByteArray ImagenAPNG(const QImage& imagen);
QImage PNGAImagen(const QByteArray& datos);

}  // namespace vanta
