// The results database on disk: an SQLite file reached through Qt SQL, with
// the one table ResultadosGuardados. The file is checked before it is
// trusted, made when it is missing, and written one transaction per change
// with the rollback journal and full syncs, so that a program killed in the
// middle of a save leaves every earlier record as it was.
//
// Records are named by SQLite's rowid, which follows the order of saving. The
// list of records holds those ids only; the texts and the pictures of one
// record are read when it is shown.
#pragma once

#include <QImage>
#include <QString>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/database/Registro.h"

class QSqlError;
class QSqlQuery;

namespace vanta {

// The pictures of a record in the order of its picture columns.
using ImagenesRegistro = std::array<QImage, bd::kNumColumnasImagen>;

class AlmacenResultados {
public:
    // ruta: the file, already resolved.
    explicit AlmacenResultados(QString ruta);
    ~AlmacenResultados();
    AlmacenResultados(const AlmacenResultados&) = delete;
    AlmacenResultados& operator=(const AlmacenResultados&) = delete;

    const QString& Ruta() const { return ruta_; }

    // Opens the file, or makes it with its table when it is missing or empty.
    // A file that is not this program's database, or lacks a column, is left
    // untouched. False with Error() set on failure; true at once when open.
    bool Abrir();
    bool Abierto() const { return abierto_; }

    // The message of the last failure, ready for a message box.
    const std::string& Error() const { return error_; }

    // The ids of every record, in the order of saving.
    std::optional<std::vector<qint64>> Identificadores();
    std::optional<bd::TextosRegistro> LeerTextos(qint64 id);
    std::optional<ImagenesRegistro> LeerImagenes(qint64 id);

    // Adds a record in one transaction; its id, or nothing on failure (and
    // then nothing of it is in the file).
    std::optional<qint64> Insertar(const bd::TextosRegistro& textos, const ImagenesRegistro& imagenes);
    bool Borrar(qint64 id);
    bool EscribirInforme(qint64 id, const std::string& informe);

    // How long to wait for another program that holds the file, in ms.
    void FijarEspera(int milisegundos) { espera_ = milisegundos; }
    // Called inside a save's transaction, after the record is written and
    // before it is committed (for the tests of a program killed mid-save).
    void FijarAntesDeConfirmar(std::function<void()> f) { antesDeConfirmar_ = std::move(f); }
    // The name of the Qt SQL connection, for the tests.
    const QString& NombreConexion() const { return conexion_; }

private:
    bool Conectar();
    bool Crear();
    bool Comprobar(bool& vacia);
    void Cerrar();
    // Runs a SELECT of one record by its id and stands on its row.
    bool LeerFila(QSqlQuery& q, const std::string& sql, qint64 id);
    // Sets Error() from a failed statement with the message maker given.
    bool Fallo(const QSqlError& error, std::string (*mensaje)(std::string_view));

    QString ruta_;
    QString conexion_;
    bool abierto_ = false;
    int espera_ = 2000;
    std::string error_;
    std::function<void()> antesDeConfirmar_;
};

// A picture as the lossless PNG stored in its column (empty for no picture),
// and back.
QByteArray ImagenAPNG(const QImage& imagen);
QImage PNGAImagen(const QByteArray& datos);

}  // namespace vanta
