// The saved record of a calculation: the 68 columns of ResultadosGuardados,
// the control of the browser that shows each one, the value that a save puts
// in each, and the texts of the results database. Standard library only: the
// store and the windows that use it are in the Qt part of this folder.
//
// How figures stand in the file: every column but the seven pictures is TEXT,
// and a figure is kept exactly as its box shows it when it is saved (rounded,
// by the general conversion, with the decimal separator of that session). The
// browser shows it back as it stands, so a comma of a Spanish system is never
// read as a thousands separator nor turned into a number by the engine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/database/Direccion.h"
#include "core/reports/Informes.h"
#include "core/state/Estado.h"

namespace vanta::bd {

// A column of text and the box or label of the browser bound to it.
struct ColumnaTexto {
    std::string_view nombre;
    std::string_view control;
};

// A picture column, its image control on the browser and the picture box of
// the main window whose picture it holds.
struct ColumnaImagen {
    std::string_view nombre;
    std::string_view control;
    CuadroImagen cuadro;
};

inline constexpr std::size_t kNumColumnasTexto = 61;
inline constexpr std::size_t kNumColumnasImagen = 7;
inline constexpr std::size_t kNumColumnas = kNumColumnasTexto + kNumColumnasImagen;

// The text columns in the order of the table.
inline constexpr std::array<ColumnaTexto, kNumColumnasTexto> kColumnasTexto{{
    {"Guardado como", "txtGuardarComo"},
    {"Atomos de C", "txtMolC"},
    {"Atomos de H", "txtMolH"},
    {"Atomos de N", "txtMolN"},
    {"Atomos de O", "txtMolO"},
    {"Atomos de S", "txtMolS"},
    {"Cien C", "txtCienC"},
    {"Cien H", "txtCienH"},
    {"Cien N", "txtCienN"},
    {"Cien O", "txtCienO"},
    {"Cien S", "txtCienS"},
    {"HCS", "txtHCS"},
    {"HCI", "txtHCI"},
    {"Calor vap", "txtQVap"},
    {"p1", "lblP1"},
    {"p2", "lblP2"},
    {"p3", "lblP3"},
    {"p4", "lblP4"},
    {"p5", "lblP5"},
    {"V1", "lblV1"},
    {"V2", "lblV2"},
    {"V3", "lblV3"},
    {"V4", "lblV4"},
    {"V5", "lblV5"},
    {"T1", "lblT1"},
    {"T2", "lblT2"},
    {"T3", "lblT3"},
    {"T4", "lblT4"},
    {"T5", "lblT5"},
    {"h1", "lblH1"},
    {"h2", "lblH2"},
    {"h3", "lblH3"},
    {"h4", "lblH4"},
    {"h5", "lblH5"},
    {"S1", "lbls1"},
    {"S2", "lbls2"},
    {"S3", "lbls3"},
    {"S4", "lbls4"},
    {"S5", "lblS5"},
    {"Q23", "lblQ23"},
    {"Q34", "lblQ34"},
    {"Qciclo", "lblQciclo"},
    {"W12", "lblW12"},
    {"W34", "lblW34"},
    {"W45", "lblW45"},
    {"Wciclo", "lblWciclo"},
    {"Rendimiento", "lblRen"},
    {"gamma1", "lblG12"},
    {"Gamma2", "lblG2"},
    {"Gamma4", "lblG45"},
    {"Gamma5", "lblG5"},
    {"Lambda", "txtLambda"},
    {"Fr", "txtFr"},
    {"HCIhumos", "txtHCIhumos"},
    {"Fe", "txtFe"},
    {"Humedad", "txtW"},
    {"Pambiente", "txtPamb"},
    {"Psaturacion", "txtPsat"},
    {"Tambiente", "txtTamb"},
    {"TipoCombustible", "txtTipoCombustible"},
    {"Informe", "txtInforme"},
}};

// Where the name and the report stand among the text columns.
inline constexpr std::size_t kColumnaNombre = 0;
inline constexpr std::size_t kColumnaInforme = kNumColumnasTexto - 1;

// The picture columns in the order of the table. imgDPV and imgDTV are crossed
// with the controls of the same names, and stay so: the column imgDTV holds
// the p-V diagram, shown by the control imgDPV, and the column imgDPV the T-V.
inline constexpr std::array<ColumnaImagen, kNumColumnasImagen> kColumnasImagen{{
    {"imgAire", "ImgAire", CuadroImagen::pct1},
    {"imgCombustible", "imgCombustible", CuadroImagen::pct2},
    {"imgCombustion", "imgCombustion", CuadroImagen::pct3},
    {"imgDPV", "imgDTV", CuadroImagen::pctTV},
    {"imgDTV", "imgDPV", CuadroImagen::pctPV},
    {"imgDTs", "imgDTS", CuadroImagen::pctTS},
    {"imgDhs", "imgDhs", CuadroImagen::pctHS},
}};

using TextosRegistro = std::array<std::string, kNumColumnasTexto>;

// The default answer of the name prompt: the humidity, the fuel, Fr and the
// cycle, both numbers unrounded.
std::string NombrePorDefecto(const Estado& e, std::string_view tipoCombustible);

// The text columns of a new record, in the order of the table, with the
// rounding and conversion of each. tipoCombustible is the text of the fuel
// list; informe, the report as its viewer holds it.
TextosRegistro ValoresRegistro(const Estado& e, std::string_view nombre, std::string_view tipoCombustible,
                               std::string_view informe);

// Where the browser stands after deleting the record at posicion of cuenta
// records (0-based): on the one that followed it, or on the one before when it
// was the last; -1 when none is left.
int PosicionTrasBorrar(int posicion, int cuenta);

// ---- The store -----------------------------------------------------------------

// The file's name, resolved against the current folder when the browser first
// loads, unless another file or a server is chosen.
inline constexpr std::string_view kArchivoBaseDatos = "BD.sqlite";
inline constexpr std::string_view kTabla = "ResultadosGuardados";
// Marks a file made by this program ("VANT"), set when the file is created.
inline constexpr int32_t kIdAplicacion = 0x56414E54;

// A name of the file quoted for SQL: "Guardado como".
std::string Citado(std::string_view nombre);
// CREATE TABLE with the 68 columns in order: TEXT, and BLOB (SQLite) or BYTEA
// (PostgreSQL) for the pictures. SQLite numbers the records itself in its
// hidden rowid; on PostgreSQL an identity column of that name follows the 68,
// so that the same statements name a record on both.
std::string SQLCrearTabla(Motor motor = Motor::SQLite);
// INSERT of the 68 columns in order, with positional parameters; on
// PostgreSQL it returns the new record's rowid.
std::string SQLInsertar(Motor motor = Motor::SQLite);
// SELECT of the text columns, or of the picture columns, of one record by its
// rowid (one parameter).
std::string SQLLeerTextos();
std::string SQLLeerImagenes();

// The inputs of each record, in a table of their own beside the results
// (its name unquoted, as the first stores made it): the record's id and the
// inputs as lines "name=value". Made with the table of results, or on opening
// a store made before it.
inline constexpr std::string_view kTablaEntradas = "EntradasCalculo";
std::string SQLCrearEntradas();
// The inputs of a record, saved in the record's own transaction (two
// parameters: the id, the inputs). Neither store gives a deleted record's id
// again; a file written by an older program may have, whose inputs are then
// replaced. A server's plain INSERT asks no more right than that of adding
// records.
std::string SQLGuardarEntradas(Motor motor);
std::string SQLLeerEntradas();
// A record and its inputs go together, in one transaction (one parameter each:
// the id).
std::string SQLBorrarEntradas();
std::string SQLBorrarRegistro();
// "que" over the inputs whose record is gone: "SELECT count(*)", "DELETE".
std::string SQLHuerfanas(std::string_view que);

// ---- Texts ---------------------------------------------------------------------

inline constexpr std::string_view kPromptGuardar = "Guardar en un registro de la base de datos como: ";
inline constexpr std::string_view kMsgSinRegistros = "La base de datos no contiene registros";
inline constexpr std::string_view kMsgRegistroBorrado =
    "Se ha borrado el registro seleccionado permanentemente";
inline constexpr std::string_view kPreguntaBorrar =
    "¿Borrar el registro seleccionado? Se borra para siempre, con sus datos de entrada.";

// What went wrong with the file, in Spanish, from an SQLite result code
// (primary or extended); descripcion is the engine's own text, for the codes
// that have no plain words here.
std::string CausaSQLite(int codigo, std::string_view descripcion);
// Whether an SQLite result code says that the file is damaged.
bool EsDano(int codigo);

// What went wrong on a PostgreSQL server, from the SQLSTATE of the error (empty
// when the connection itself failed) and the server's or libpq's text.
// usuario: the one of the address, to name it when it lacks a permission;
// esperas: its limits, to say which one was passed.
std::string CausaPostgreSQL(std::string_view estado, std::string_view texto, std::string_view usuario,
                            const Esperas& esperas = {});
// The server gave no answer within the program's wait, and the connection was cut.
std::string CausaSinRespuesta(const Esperas& esperas);
// Whether the failure cut the connection (the server stopped, restarted or
// could not be reached): the next operation connects again.
bool EsConexionPerdida(std::string_view estado, std::string_view texto);
// Whether libpq found no password for a server that wants one, or the server
// refused the one given.
bool FaltaClave(std::string_view texto);
bool ClaveRechazada(std::string_view texto);

// Failures of the store, each ending the operation with nothing written.
// ruta: the file; causa: CausaSQLite or one of the reasons below.
std::string MsgNoSeAbre(std::string_view ruta, std::string_view causa);
std::string MsgNoSeCrea(std::string_view ruta, std::string_view causa);
std::string MsgNoSeGuarda(std::string_view causa);
std::string MsgNoSeLee(std::string_view causa);
std::string MsgNoSeBorra(std::string_view causa);
// A save that met a damaged file whose integrity check fails: the earlier
// records are not promised. detalle: the first fault the check found.
std::string MsgArchivoDanado(std::string_view ruta, std::string_view detalle);

inline constexpr std::string_view kCausaNoEsDeVanta =
    "no es una base de datos de resultados de Vanta (ni se usa ni se modifica)";
inline constexpr std::string_view kCausaSinColumnas =
    "le falta la tabla ResultadosGuardados o alguna de sus 68 columnas (ni se usa ni se modifica)";
inline constexpr std::string_view kCausaEsCarpeta = "es una carpeta, no un archivo";
inline constexpr std::string_view kCausaSinDriverSQLite =
    "falta el controlador QSQLITE de Qt (paquete libqt6sql6-sqlite)";
inline constexpr std::string_view kCausaSinDriverPostgreSQL =
    "falta el controlador QPSQL de Qt (paquete libqt6sql6-psql)";
inline constexpr std::string_view kCausaRegistroNoEsta = "el registro ya no está en la base de datos";
inline constexpr std::string_view kCausaConexionPerdida =
    "se ha perdido la conexión con el servidor (se ha parado o reiniciado); vuelva a intentarlo cuando esté "
    "en marcha";
inline constexpr std::string_view kCausaSinServidor =
    "no se puede conectar con el servidor; compruebe que está en marcha y que la dirección es correcta";
inline constexpr std::string_view kCausaSinClave =
    "el servidor pide una contraseña: póngala en el archivo de contraseñas (PGPASSFILE, ~/.pgpass) o en la "
    "variable PGPASSWORD";
inline constexpr std::string_view kCausaClaveRechazada = "el servidor no acepta el usuario o la contraseña";
inline constexpr std::string_view kCausaNoHayBase = "esa base de datos no existe en el servidor";
// The prompt of the window when the server wants a password.
inline constexpr std::string_view kPromptClave = "Contraseña para ";

}  // namespace vanta::bd
