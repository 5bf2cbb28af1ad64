#include "gui/database/VigiaConexion.h"

#include <libpq-fe.h>
#include <sys/socket.h>

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QVariant>

namespace vanta {

VigiaConexion::VigiaConexion(const QString& conexion, std::chrono::seconds plazo,
                             std::atomic<bool>& vencida) {
    const QSqlDatabase db = QSqlDatabase::database(conexion, false);
    if (!db.isOpen()) return;
    const QVariant manejador = db.driver()->handle();
    // Qt names the type by the structure behind libpq's typedef.
    if (qstrcmp(manejador.typeName(), "pg_conn*") != 0 && qstrcmp(manejador.typeName(), "PGconn*") != 0)
        return;
    const PGconn* pg = *static_cast<PGconn* const*>(manejador.constData());
    const int socket = pg ? PQsocket(pg) : -1;
    if (socket < 0) return;
    // The socket is shut under the lock, so never once the watch has ended
    // and the connection may be closed.
    hilo_ = std::thread([this, socket, plazo, &vencida] {
        std::unique_lock<std::mutex> cerrojo(m_);
        if (cv_.wait_for(cerrojo, plazo, [this] { return fin_; })) return;
        vencida = true;
        shutdown(socket, SHUT_RDWR);
    });
}

VigiaConexion::~VigiaConexion() {
    if (!hilo_.joinable()) return;
    {
        std::lock_guard<std::mutex> cerrojo(m_);
        fin_ = true;
    }
    cv_.notify_one();
    hilo_.join();
}

}  // namespace vanta
