#include "gui/database/EntradasCalculo.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include "core/comparison/Calculos.h"

namespace vanta {

bool GuardarEntradas(AlmacenResultados& almacen, qint64 id, const ResultadoCalculo& r) {
    const CalculoComparado c = CalculoDeResultado("", r);
    if (!c.Hay()) return false;
    QSqlQuery q(QSqlDatabase::database(almacen.NombreConexion(), false));
    if (!q.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS EntradasCalculo (Registro BIGINT PRIMARY KEY, "
                               "Entradas TEXT NOT NULL)")))
        return false;
    q.prepare(
        QStringLiteral("INSERT INTO EntradasCalculo (Registro, Entradas) VALUES (?, ?) "
                       "ON CONFLICT (Registro) DO UPDATE SET Entradas = excluded.Entradas"));
    q.addBindValue(id);
    q.addBindValue(QString::fromStdString(EscribirEntradas(c.entradas)));
    return q.exec();
}

std::optional<std::string> EntradasGuardadas(AlmacenResultados& almacen, qint64 id) {
    QSqlQuery q(QSqlDatabase::database(almacen.NombreConexion(), false));
    q.prepare(QStringLiteral("SELECT Entradas FROM EntradasCalculo WHERE Registro = ?"));
    q.addBindValue(id);
    if (!q.exec() || !q.next()) return std::nullopt;
    return q.value(0).toString().toStdString();
}

}  // namespace vanta
