#include "core/database/Registro.h"

#include "core/services/Numeros.h"

namespace vanta::bd {

namespace {

std::string Unir(std::initializer_list<std::string_view> piezas) {
    std::string s;
    for (std::string_view p : piezas) s += p;
    return s;
}

}  // namespace

std::string NombrePorDefecto(const Estado& e, std::string_view tipoCombustible) {
    return Unir({"Aire ", TextoGeneral(e.Humedad, e.SeparadorDecimal), " % de humedad    ", tipoCombustible,
                 "  Fr = ", TextoGeneral(e.Fr, e.SeparadorDecimal), "   ", e.TipoCiclo});
}

TextosRegistro ValoresRegistro(const Estado& e, std::string_view nombre, std::string_view tipoCombustible,
                               std::string_view informe) {
    // [x, d]: rounded, then the general conversion.
    const auto R = [&e](double x, int d) { return TextoGeneral(Round(x, d), e.SeparadorDecimal); };
    return {
        std::string(nombre),
        TextoGeneral(e.AtomosC, e.SeparadorDecimal),
        TextoGeneral(e.AtomosH, e.SeparadorDecimal),
        TextoGeneral(e.AtomosN, e.SeparadorDecimal),
        TextoGeneral(e.AtomosO, e.SeparadorDecimal),
        TextoGeneral(e.AtomosS, e.SeparadorDecimal),
        R(e.CienC, 2),
        R(e.CienH, 2),
        R(e.CienN, 2),
        R(e.CienO, 2),
        R(e.CienS, 2),
        R(e.HCS, 2),
        R(e.HCI, 2),
        R(e.CalorVap, 2),
        R(e.p1, 0),
        R(e.p2, 0),
        R(e.p3, 0),
        R(e.p4, 0),
        R(e.p5, 0),
        R(e.V1 * 1000000, 2),
        R(e.V2 * 1000000, 2),
        R(e.V3 * 1000000, 2),
        R(e.V4 * 1000000, 2),
        R(e.V5 * 1000000, 2),
        R(e.T1, 2),
        R(e.T2, 2),
        R(e.T3, 2),
        R(e.T4, 2),
        R(e.T5, 2),
        R(e.h1, 2),
        R(e.h2, 2),
        R(e.h3, 2),
        R(e.h4, 2),
        R(e.h5, 2),
        R(e.S1, 2),
        R(e.S2, 2),
        R(e.S3, 2),
        R(e.S4, 2),
        R(e.S5, 2),
        R(e.Q23, 1),
        R(e.Qciclo - e.Q23, 1),
        R(e.Qciclo, 1),
        R(e.W12, 1),
        R(e.W34, 1),
        R(e.W45, 1),
        R(e.Wciclo, 1),
        TextoGeneral(e.Rendimiento, e.SeparadorDecimal),
        R(e.gamma1, 3),
        R(e.Gamma2, 4),
        R(e.Gamma4, 4),
        R(e.Gamma5, 4),
        R(1 / e.Fr, 3),
        R(e.Fr, 3),
        R(e.HCIhumos, 0),
        R(e.Fe, 6),
        R(e.Humedad, 3),
        R(e.Pambiente, 0),
        R(e.Psaturacion, 2),
        R(e.Tambiente, 0),
        std::string(tipoCombustible),
        std::string(informe),
    };
}

int PosicionTrasBorrar(int posicion, int cuenta) {
    if (cuenta <= 1) return -1;
    return posicion + 1 < cuenta ? posicion : posicion - 1;
}

// ---- SQL ---------------------------------------------------------------------------

std::string Citado(std::string_view nombre) {
    std::string s = "\"";
    for (char c : nombre) {
        if (c == '"') s += '"';
        s += c;
    }
    return s + '"';
}

std::string SQLCrearTabla(Motor motor) {
    const bool servidor = motor == Motor::PostgreSQL;
    std::string s = "CREATE TABLE " + Citado(kTabla) + " (";
    for (const auto& c : kColumnasTexto) s += Citado(c.nombre) + " TEXT, ";
    for (const auto& c : kColumnasImagen) s += Citado(c.nombre) + (servidor ? " BYTEA, " : " BLOB, ");
    if (servidor) s += "rowid BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY, ";
    s.resize(s.size() - 2);
    return s + ")";
}

std::string SQLInsertar(Motor motor) {
    std::string columnas, parametros;
    auto agregar = [&](std::string_view nombre) {
        columnas += (columnas.empty() ? "" : ", ") + Citado(nombre);
        parametros += parametros.empty() ? "?" : ", ?";
    };
    for (const auto& c : kColumnasTexto) agregar(c.nombre);
    for (const auto& c : kColumnasImagen) agregar(c.nombre);
    return "INSERT INTO " + Citado(kTabla) + " (" + columnas + ") VALUES (" + parametros + ")" +
           (motor == Motor::PostgreSQL ? " RETURNING rowid" : "");
}

std::string SQLCrearEntradas() {
    return Unir({"CREATE TABLE ", kTablaEntradas, " (Registro BIGINT PRIMARY KEY, Entradas TEXT NOT NULL)"});
}

std::string SQLGuardarEntradas(Motor motor) {
    return Unir(
        {"INSERT INTO ", kTablaEntradas, " (Registro, Entradas) VALUES (?, ?)",
         motor == Motor::SQLite ? " ON CONFLICT (Registro) DO UPDATE SET Entradas = excluded.Entradas" : ""});
}

std::string SQLLeerEntradas() {
    return Unir({"SELECT Entradas FROM ", kTablaEntradas, " WHERE Registro = ?"});
}

std::string SQLBorrarEntradas() {
    return Unir({"DELETE FROM ", kTablaEntradas, " WHERE Registro = ?"});
}

std::string SQLBorrarRegistro() {
    return "DELETE FROM " + Citado(kTabla) + " WHERE rowid = ?";
}

std::string SQLHuerfanas(std::string_view que) {
    return Unir({que, " FROM ", kTablaEntradas, " WHERE Registro NOT IN (SELECT rowid FROM "}) +
           Citado(kTabla) + ")";
}

namespace {

template <class Columnas>
std::string SQLLeer(const Columnas& columnas) {
    std::string s;
    for (const auto& c : columnas) s += (s.empty() ? "SELECT " : ", ") + Citado(c.nombre);
    return s + " FROM " + Citado(kTabla) + " WHERE rowid = ?";
}

}  // namespace

std::string SQLLeerTextos() {
    return SQLLeer(kColumnasTexto);
}
std::string SQLLeerImagenes() {
    return SQLLeer(kColumnasImagen);
}

// ---- Texts -------------------------------------------------------------------------

std::string CausaSQLite(int codigo, std::string_view descripcion) {
    // SQLITE_READONLY_DIRECTORY: the file may be written, but not its folder,
    // where each write makes and removes the rollback journal.
    if (codigo == 1544)
        return "la carpeta que lo contiene es de solo lectura, y SQLite necesita crear en ella su diario "
               "(BD.sqlite-journal) para escribir";
    switch (codigo & 0xFF) {
        case 3:  // SQLITE_PERM
        case 8:  // SQLITE_READONLY
            return "el archivo es de solo lectura";
        case 5:  // SQLITE_BUSY
        case 6:  // SQLITE_LOCKED
            return "otro programa (quizá otra Vanta) está usando la base de datos; inténtelo de nuevo más "
                   "tarde";
        case 10:  // SQLITE_IOERR
            return "error de lectura o escritura en el disco";
        case 11:  // SQLITE_CORRUPT
        case 26:  // SQLITE_NOTADB
            return "el archivo está dañado o no es una base de datos";
        case 13:  // SQLITE_FULL
            return "el disco está lleno";
        case 14:  // SQLITE_CANTOPEN
            return "no se puede abrir ni crear el archivo";
        default:
            return Unir({"error de la base de datos (", descripcion, ")"});
    }
}

bool EsDano(int codigo) {
    return (codigo & 0xFF) == 11 || (codigo & 0xFF) == 26;  // SQLITE_CORRUPT, SQLITE_NOTADB
}

namespace {

bool Contiene(std::string_view texto, std::string_view pieza) {
    return texto.find(pieza) != std::string_view::npos;
}

// The first line of the server's text, without its "ERROR:  " (Qt puts the
// SQLSTATE on a line of its own after it).
std::string PrimeraLinea(std::string_view texto) {
    std::string_view linea = texto.substr(0, texto.find('\n'));
    for (std::string_view prefijo : {"ERROR:", "FATAL:"})
        if (linea.substr(0, prefijo.size()) == prefijo) linea.remove_prefix(prefijo.size());
    while (!linea.empty() && linea.front() == ' ') linea.remove_prefix(1);
    return std::string(linea);
}

}  // namespace

bool EsConexionPerdida(std::string_view estado, std::string_view texto) {
    // Class 08: connection exceptions; 57P01-57P03: the server shutting down
    // or starting. With no SQLSTATE, libpq's own words.
    if (estado.substr(0, 2) == "08" || estado == "57P01" || estado == "57P02" || estado == "57P03")
        return true;
    return estado.empty() &&
           (Contiene(texto, "server closed the connection") ||
            Contiene(texto, "no connection to the server") || Contiene(texto, "terminating connection"));
}

bool FaltaClave(std::string_view texto) {
    return Contiene(texto, "no password supplied");
}

bool ClaveRechazada(std::string_view texto) {
    // The server's words, in its own language.
    return Contiene(texto, "authentication failed") || Contiene(texto, "autentificación") ||
           Contiene(texto, "autenticación");
}

std::string CausaSinRespuesta(const Esperas& esperas) {
    return Unir({"el servidor no ha contestado en ", std::to_string(esperas.Respuesta()),
                 " s y se ha cortado la conexión (la red o el servidor se han detenido); vuelva a "
                 "intentarlo más tarde"});
}

std::string CausaPostgreSQL(std::string_view estado, std::string_view texto, std::string_view usuario,
                            const Esperas& esperas) {
    if (EsConexionPerdida(estado, texto)) return std::string(kCausaConexionPerdida);
    if (estado == "55P03")
        return Unir({"otra sesión del servidor lo tiene bloqueado desde hace más de ",
                     std::to_string(esperas.bloqueo), " s (lock_timeout); vuelva a intentarlo más tarde"});
    if (estado == "57014" && Contiene(texto, "statement timeout"))
        return Unir({"el servidor ha cancelado la orden, que pasaba de ", std::to_string(esperas.orden),
                     " s (statement_timeout)"});
    if (estado == "42501") {
        const std::string quien = usuario.empty() ? "el usuario" : Unir({"el usuario ", usuario});
        return Unir({quien,
                     " no tiene permiso para ello en el servidor (pídalo a quien administra la base de "
                     "datos)"});
    }
    if (estado == "25006") return "la base de datos del servidor es de solo lectura";
    if (estado == "53100") return "el disco del servidor está lleno";
    if (estado == "3D000") return std::string(kCausaNoHayBase);
    if (estado.empty()) {
        // Failures to connect come with no SQLSTATE, only libpq's text (and
        // the server's, in the server's language).
        if (FaltaClave(texto)) return std::string(kCausaSinClave);
        if (ClaveRechazada(texto)) return std::string(kCausaClaveRechazada);
        if (Contiene(texto, "database \"") && Contiene(texto, "does not exist"))
            return std::string(kCausaNoHayBase);
        if (Contiene(texto, "connection to server") || Contiene(texto, "could not connect") ||
            Contiene(texto, "could not translate host name") || Contiene(texto, "timeout expired") ||
            Contiene(texto, "Connection refused") || Contiene(texto, "No such file or directory"))
            return Unir({kCausaSinServidor, " (", PrimeraLinea(texto), ")"});
    }
    return Unir({"error del servidor de la base de datos (", PrimeraLinea(texto), ")"});
}

std::string MsgNoSeAbre(std::string_view ruta, std::string_view causa) {
    return Unir({"No se puede abrir la base de datos ", ruta, ": ", causa, "."});
}

std::string MsgNoSeCrea(std::string_view ruta, std::string_view causa) {
    return Unir({"No se puede crear la base de datos ", ruta, ": ", causa, "."});
}

std::string MsgNoSeGuarda(std::string_view causa) {
    return Unir({"No se ha guardado el registro: ", causa,
                 ". Los registros guardados antes siguen en la base de datos."});
}

std::string MsgNoSeLee(std::string_view causa) {
    return Unir({"No se puede leer la base de datos: ", causa, "."});
}

std::string MsgNoSeBorra(std::string_view causa) {
    return Unir({"No se ha borrado el registro: ", causa, "."});
}

std::string MsgArchivoDanado(std::string_view ruta, std::string_view detalle) {
    return Unir(
        {"No se ha guardado el registro: el archivo ", ruta,
         " está dañado y falla su comprobación de integridad (", detalle,
         "). Puede que se hayan perdido registros guardados antes; haga una copia del archivo antes de "
         "seguir usándolo."});
}

}  // namespace vanta::bd
