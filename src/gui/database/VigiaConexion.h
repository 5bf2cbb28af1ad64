// A watch on a server connection while the program waits for the server.
// The server's own limits (a statement, a lock) end its waits; but a network
// that stops carrying data keeps the connection open and the server's answer
// from ever arriving. Past its time, the watch shuts the connection's socket,
// so that the wait ends as a lost connection instead of never.
#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace vanta {

class VigiaConexion {
public:
    // conexion: the name of a Qt SQL connection; only an open PostgreSQL one
    // is watched. vencida is set when the socket is shut.
    VigiaConexion(const QString& conexion, std::chrono::seconds plazo, std::atomic<bool>& vencida);
    ~VigiaConexion();
    VigiaConexion(const VigiaConexion&) = delete;
    VigiaConexion& operator=(const VigiaConexion&) = delete;

private:
    std::mutex m_;
    std::condition_variable cv_;
    bool fin_ = false;
    std::thread hilo_;
};

}  // namespace vanta
