// Where the results database lives: a SQLite file (the default, BD.sqlite in
// the current folder) or a database on a PostgreSQL server, shared by a class
// or a lab. The user writes either a file path or an address in libpq's URI
// form:
//
//   postgresql://usuario@servidor:5432/basedatos?sslmode=require
//
// The password never goes in the address: libpq takes it from PGPASSWORD or
// the password file (PGPASSFILE, ~/.pgpass by default), and the window asks
// for it when the server wants one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vanta::bd {

enum class Motor { SQLite, PostgreSQL };

struct Direccion {
    Motor motor = Motor::SQLite;
    std::string texto;  // as the user wrote it, for messages
    std::string ruta;   // SQLite: the file
    // PostgreSQL; an empty one leaves libpq its default (PGUSER, PGHOST, the
    // user's name for the database). servidor may be a folder, for a server
    // on a Unix socket.
    std::string usuario, servidor, base;
    int puerto = -1;  // -1: libpq's default (PGPORT, 5432)
    // Further connection parameters of libpq, in the order given (sslmode,
    // connect_timeout ...).
    std::vector<std::pair<std::string, std::string>> parametros;
};

struct LecturaDireccion {
    std::optional<Direccion> direccion;
    std::string error;  // why the text is not an address, when direccion is empty
};

// A file path, or an address that starts with postgresql:// (or postgres://).
LecturaDireccion LeerDireccion(std::string_view texto);

// The limits, in seconds, on the waits of a session on a server: for the
// connection, for one statement, and for a lock held by another session (as
// while another program makes the table). An address may give each
// (connect_timeout, statement_timeout, lock_timeout); 0 is the default, never
// an endless wait.
struct Esperas {
    int conexion = 10, orden = 30, bloqueo = 5;
    // How long the program waits for the server's answer before it takes the
    // connection for lost: the server's own limit on the statement, and the
    // connection's for the network.
    int Respuesta() const { return orden + conexion; }
};
Esperas EsperasDe(const Direccion& d);

// The parameters of a PostgreSQL address as Qt's driver takes them,
// "clave=valor;clave=valor": the address's own, the limits on every wait,
// keepalives that notice a connection gone dead, no server notices, and the
// program's name for the server's list of sessions unless given.
std::string OpcionesConexion(const Direccion& d);

// The parameters that an address may carry: libpq's, and the server's limits
// on a statement and on a lock.
inline constexpr std::string_view kParametrosAdmitidos[] = {
    "host",        "port",   "user",   "dbname",          "sslmode",          "sslrootcert",
    "sslcert",     "sslkey", "sslcrl", "connect_timeout", "application_name", "statement_timeout",
    "lock_timeout"};

// ---- Texts ---------------------------------------------------------------------

inline constexpr std::string_view kEjemploDireccion = "postgresql://usuario@servidor:5432/basedatos";
inline constexpr std::string_view kErrorDireccionVacia =
    "falta la ruta del archivo o la dirección del servidor";
inline constexpr std::string_view kErrorClaveEnDireccion =
    "la contraseña no va en la dirección: póngala en el archivo de contraseñas (PGPASSFILE, ~/.pgpass) o en "
    "la variable PGPASSWORD; la ventana la pide cuando el servidor la quiere";

}  // namespace vanta::bd
