#include "app/SalidaSegura.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <random>

#include "app/LineaComandos.h"

namespace vanta::cli {

std::string TextoErrorSistema(int error) {
    switch (error) {
        case ENOSPC:
            return "no queda espacio en el disco";
        case EDQUOT:
            return "se ha agotado la cuota de disco";
        case EACCES:
        case EPERM:
            return "no hay permiso";
        case ENOENT:
            return "la carpeta no existe";
        case ENOTDIR:
            return "una parte de la ruta no es una carpeta";
        case EISDIR:
            return "es una carpeta";
        case EROFS:
            return "el sistema de archivos es de solo lectura";
        case EBADF:
            return "está cerrada";
        case EPIPE:
            return "quien la leía la ha cerrado";
        case EFBIG:
            return "el archivo sería demasiado grande";
        case EIO:
            return "error de entrada o salida";
        default:
            return std::strerror(error);
    }
}

std::string NoSeEscribe(const std::string& ruta, const std::string& por) {
    return "no se puede escribir " + ruta + ": " + por;
}

// ---- BufferDescriptor ----------------------------------------------------------------

BufferDescriptor::BufferDescriptor(int fd) : fd_(fd), buffer_(1 << 13) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

BufferDescriptor::~BufferDescriptor() {
    Vaciar();
}

bool BufferDescriptor::Vaciar() {
    const char* p = pbase();
    const char* fin = pptr();
    while (error_ == 0 && p < fin) {
        const ssize_t n = ::write(fd_, p, static_cast<size_t>(fin - p));
        if (n > 0)
            p += n;
        else if (n < 0 && errno == EINTR)
            continue;
        else
            error_ = n < 0 ? errno : EIO;
    }
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    return error_ == 0;
}

BufferDescriptor::int_type BufferDescriptor::overflow(int_type c) {
    if (!Vaciar()) return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
    }
    return traits_type::not_eof(c);
}

std::streamsize BufferDescriptor::xsputn(const char* s, std::streamsize n) {
    std::streamsize hechos = 0;
    while (hechos < n) {
        if (pptr() == epptr() && !Vaciar()) return hechos;
        const std::streamsize trozo = std::min<std::streamsize>(n - hechos, epptr() - pptr());
        std::memcpy(pptr(), s + hechos, static_cast<size_t>(trozo));
        pbump(static_cast<int>(trozo));
        hechos += trozo;
    }
    return hechos;
}

int BufferDescriptor::sync() {
    return Vaciar() ? 0 : -1;
}

// ---- ArchivoNuevo --------------------------------------------------------------------

namespace {

// Twelve letters or digits from the system's source of randomness.
std::string NombreAzar() {
    static constexpr char kLetras[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::random_device azar;
    std::uniform_int_distribution<size_t> letra(0, sizeof kLetras - 2);
    std::string t;
    for (int i = 0; i < 12; ++i) t += kLetras[letra(azar)];
    return t;
}

// A path with no file to replace: a character device or a pipe itself (not a
// link to one, which is replaced like any link), or a name under /dev or
// /proc, whose links (/dev/stdout) lead to the process's own descriptors.
bool EscribirEnSuSitio(const std::string& ruta) {
    if (ruta.starts_with("/dev/") || ruta.starts_with("/proc/")) return true;
    struct stat st;
    return ::lstat(ruta.c_str(), &st) == 0 && (S_ISCHR(st.st_mode) || S_ISFIFO(st.st_mode));
}

}  // namespace

ArchivoNuevo::ArchivoNuevo(std::string ruta) : ruta_(std::move(ruta)) {
    struct stat anterior;
    const bool hay = ::lstat(ruta_.c_str(), &anterior) == 0;
    if (hay && S_ISDIR(anterior.st_mode)) {
        errno = EISDIR;
    } else if (EscribirEnSuSitio(ruta_)) {
        fd_ = ::open(ruta_.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    } else {
        namespace fs = std::filesystem;
        const fs::path final(ruta_);
        const fs::path carpeta = final.has_parent_path() ? final.parent_path() : fs::path(".");
        for (int intento = 0; intento < 100 && fd_ < 0; ++intento) {
            temporal_ = (carpeta / ("." + final.filename().string() + "." + NombreAzar())).string();
            fd_ = ::open(temporal_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
            if (fd_ < 0 && errno != EEXIST) break;
        }
        if (fd_ < 0) temporal_.clear();
        // The new file keeps the permissions of the one it replaces.
        if (fd_ >= 0 && hay && S_ISREG(anterior.st_mode)) ::fchmod(fd_, anterior.st_mode & 07777);
    }
    if (fd_ < 0) error_ = TextoErrorSistema(errno);
    buffer_ = std::make_unique<BufferDescriptor>(fd_);
    flujo_ = std::make_unique<std::ostream>(buffer_.get());
    if (fd_ < 0) flujo_->setstate(std::ios::badbit);
}

ArchivoNuevo::~ArchivoNuevo() {
    flujo_.reset();
    buffer_.reset();
    if (fd_ >= 0) ::close(fd_);
    if (!temporal_.empty()) ::unlink(temporal_.c_str());
}

std::string ArchivoNuevo::FalloEscritura() const {
    if (!error_.empty()) return error_;
    return buffer_->Error() ? TextoErrorSistema(buffer_->Error()) : std::string();
}

std::string ArchivoNuevo::Confirmar() {
    flujo_->flush();
    std::string fallo = FalloEscritura();
    // A device or a pipe has nothing to sync.
    if (fallo.empty() && ::fsync(fd_) != 0 && errno != EINVAL && errno != EROFS)
        fallo = TextoErrorSistema(errno);
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0 && fallo.empty()) fallo = TextoErrorSistema(errno);
    if (fallo.empty() && !temporal_.empty()) {
        if (::rename(temporal_.c_str(), ruta_.c_str()) != 0)
            fallo = TextoErrorSistema(errno);
        else
            temporal_.clear();
    }
    return fallo;
}

// ---- Signals -------------------------------------------------------------------------

namespace {

// A handler can reach only what is static; the atomics are lock free, so
// setting them is safe in it.
Parada gParada;

extern "C" void AnotarSenal(int senal) {
    gParada.senal.store(senal);
    gParada.cancelar.store(true);
}

}  // namespace

Parada& PararConSenales() {
    struct sigaction accion {};
    accion.sa_handler = AnotarSenal;
    sigemptyset(&accion.sa_mask);
    accion.sa_flags = SA_RESETHAND | SA_RESTART;
    sigaction(SIGINT, &accion, nullptr);
    sigaction(SIGTERM, &accion, nullptr);
    return gParada;
}

std::string NombreSenal(int senal) {
    if (senal == SIGINT) return "SIGINT";
    if (senal == SIGTERM) return "SIGTERM";
    return "la señal " + std::to_string(senal);
}

// ---- SalidaEstandar ------------------------------------------------------------------

SalidaEstandar::SalidaEstandar() : buffer_(STDOUT_FILENO) {
    std::signal(SIGPIPE, SIG_IGN);
    std::cout.flush();
    anterior_ = std::cout.rdbuf(&buffer_);
}

SalidaEstandar::~SalidaEstandar() {
    std::cout.rdbuf(anterior_);
}

int SalidaEstandar::Terminar(const std::string& orden, int estado) {
    std::cout.flush();
    const int error = buffer_.Error();
    if (error == 0) return estado;
    if (error == EPIPE) {
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
    std::cerr << "vanta" << (orden.starts_with("-") ? "" : " " + orden)
              << ": no se ha podido escribir la salida estándar: " << TextoErrorSistema(error) << '\n';
    return kSalidaFallo;
}

}  // namespace vanta::cli
