#include "core/files/EscribirArchivos.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

namespace vanta {

namespace {

namespace fs = std::filesystem;

// Every name the writer makes in a folder starts so; whatever a killed
// writer left under it goes with the next writer.
constexpr std::string_view kPrefijo = ".vanta-";
// While it is there, the folder may hold part of a set: it lists, two names
// each, every file of the set and the name under which the file it replaces
// waits (empty when there was none).
constexpr char kDiario[] = ".vanta-diario";

std::error_code UltimoError() {
    return {errno ? errno : EIO, std::generic_category()};
}

// A file descriptor, closed with its holder.
class Descriptor {
public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor() {
        if (fd_ >= 0) close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& otro) noexcept {
        std::swap(fd_, otro.fd_);
        return *this;
    }
    int fd() const { return fd_; }
    // A failed write may show only when the file is closed.
    std::error_code Cerrar() {
        return close(std::exchange(fd_, -1)) == 0 ? std::error_code() : UltimoError();
    }

private:
    int fd_;
};

// Why, in the user's words: the cause of the error on that path.
std::string Causa(const std::error_code& error, const fs::path& ruta) {
    const std::string carpeta = ruta.parent_path().empty() ? "." : ruta.parent_path().string();
    if (error == std::errc::no_space_on_device || error == std::error_code(EDQUOT, std::generic_category()))
        return "el disco está lleno";
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return "no tiene permiso de escritura en " + carpeta;
    if (error == std::errc::not_a_directory) return ruta.string() + " es un archivo, no una carpeta";
    if (error == std::errc::is_a_directory) return ruta.string() + " es una carpeta, no un archivo";
    if (error == std::errc::no_such_file_or_directory) return "la carpeta " + carpeta + " no existe";
    return "no se ha podido escribir " + ruta.string();
}

// A name nobody can guess: sixteen letters and digits from the system's
// entropy.
std::string NombreAlAzar() {
    static constexpr std::string_view kLetras =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::random_device azar;
    std::string nombre(kPrefijo);
    for (int i = 0; i < 16; ++i) nombre += kLetras[azar() % kLetras.size()];
    return nombre;
}

// A name that a set may give a file: one name of the folder, none of the
// writer's own.
bool NombreValido(std::string_view nombre) {
    return !nombre.empty() && nombre != "." && nombre != ".." &&
           nombre.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos &&
           !nombre.starts_with(kPrefijo);
}

// The bytes in a new file of the folder, under a name of its own made
// exclusively (no file or link of that name may stand there), and on the
// disk before it is closed. modo: the rights to give it, or -1.
std::error_code EscribirNuevo(int carpeta, std::string_view bytes, std::string& nombre, int modo = -1) {
    Descriptor archivo;
    std::error_code error = std::make_error_code(std::errc::file_exists);
    for (int intento = 0; intento < 64 && error == std::errc::file_exists; ++intento) {
        nombre = NombreAlAzar();
        archivo = Descriptor(
            openat(carpeta, nombre.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
        error = archivo.fd() < 0 ? UltimoError() : std::error_code();
    }
    if (error) return error;
    // A file system without rights keeps its own.
    if (modo >= 0) (void)fchmod(archivo.fd(), static_cast<mode_t>(modo));
    while (!error && !bytes.empty()) {
        const ssize_t n = write(archivo.fd(), bytes.data(), bytes.size());
        if (n > 0)
            bytes.remove_prefix(static_cast<size_t>(n));
        else if (n == 0 || errno != EINTR)
            error = UltimoError();
    }
    if (!error && fsync(archivo.fd()) != 0) error = UltimoError();
    if (const std::error_code cierre = archivo.Cerrar(); !error) error = cierre;
    if (error) unlinkat(carpeta, nombre.c_str(), 0);
    return error;
}

// Removes what writers left: temporary files and files set aside.
void Limpiar(int carpeta) {
    // The listing takes a descriptor of its own, read from the start.
    const int copia = dup(carpeta);
    DIR* listado = copia < 0 ? nullptr : fdopendir(copia);
    if (!listado) {
        if (copia >= 0) close(copia);
        return;
    }
    rewinddir(listado);
    std::vector<std::string> restos;
    while (const dirent* e = readdir(listado))
        if (std::string_view(e->d_name).starts_with(kPrefijo) && std::string_view(e->d_name) != kDiario)
            restos.emplace_back(e->d_name);
    closedir(listado);
    for (const std::string& r : restos) unlinkat(carpeta, r.c_str(), 0);
}

// Puts back the set a journal names, then removes the journal and what else
// writers left. A set cut short is undone, never finished: the files it
// replaced go back under their names, and a name that had none is left
// empty. Each step may be done again, so a kill while undoing is undone by
// the next writer.
std::error_code Recuperar(int carpeta) {
    const Descriptor archivo(openat(carpeta, kDiario, O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (archivo.fd() < 0) {
        if (errno != ENOENT) return UltimoError();
        Limpiar(carpeta);
        return {};
    }
    std::string diario;
    char trozo[4096];
    for (ssize_t n; (n = read(archivo.fd(), trozo, sizeof trozo)) != 0;) {
        if (n > 0)
            diario.append(trozo, static_cast<size_t>(n));
        else if (errno != EINTR)
            return UltimoError();
    }
    std::vector<std::string> nombres;
    for (size_t i = 0, fin; (fin = diario.find('\0', i)) != std::string::npos; i = fin + 1)
        nombres.push_back(diario.substr(i, fin - i));
    std::error_code error;
    for (size_t i = 0; i + 1 < nombres.size(); i += 2) {
        const std::string &nombre = nombres[i], &apartado = nombres[i + 1];
        // Only names of the folder: a journal planted by someone else moves
        // nothing in or out.
        if (!NombreValido(nombre) || (!apartado.empty() && (!apartado.starts_with(kPrefijo) ||
                                                            apartado.find('/') != std::string::npos)))
            continue;
        const int r = apartado.empty() ? unlinkat(carpeta, nombre.c_str(), 0)
                                       : renameat(carpeta, apartado.c_str(), carpeta, nombre.c_str());
        if (r != 0 && errno != ENOENT && !error) error = UltimoError();
    }
    if (!error && fsync(carpeta) != 0) error = UltimoError();
    if (!error && unlinkat(carpeta, kDiario, 0) != 0) error = UltimoError();
    // The files set aside stay while the journal does: they are the earlier set.
    if (!error) Limpiar(carpeta);
    return error;
}

// The folder, open and locked while a set is written in it.
class Carpeta {
public:
    // Opens the folder (made when missing, if crear), waits for its lock and
    // puts right what a killed writer left. Why not, or nothing.
    std::optional<std::string> Abrir(fs::path ruta, bool crear) {
        if (ruta.empty()) ruta = ".";
        // Another writer may make it meanwhile: what counts is a folder
        // there afterwards.
        std::error_code e, otro;
        if (crear && !fs::create_directories(ruta, e) && !fs::is_directory(ruta, otro))
            return Causa(fs::exists(ruta, otro) ? std::make_error_code(std::errc::not_a_directory) : e, ruta);
        // Its own links are followed, as the user named it; nothing is
        // reached through it by name again.
        fd_ = Descriptor(open(ruta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (fd_.fd() < 0) return Causa(UltimoError(), ruta);
        using namespace std::chrono;
        const auto limite = steady_clock::now() + seconds(kEsperaCarpeta);
        for (milliseconds pausa(1); flock(fd_.fd(), LOCK_EX | LOCK_NB) != 0;
             pausa = std::min(2 * pausa, 50ms)) {
            // A file system with no locks is written unlocked.
            if (errno != EWOULDBLOCK && errno != EINTR) break;
            if (steady_clock::now() >= limite)
                return "otro programa lleva más de " + std::to_string(kEsperaCarpeta) +
                       " s escribiendo en la carpeta " + ruta.string();
            std::this_thread::sleep_for(pausa);
        }
        if (const std::error_code error = Recuperar(fd_.fd())) return Causa(error, ruta / kDiario);
        return std::nullopt;
    }
    int fd() const { return fd_.fd(); }

private:
    Descriptor fd_;
};

}  // namespace

std::optional<std::string> EscribirConjunto(const std::vector<ArchivoDeConjunto>& archivos) {
    if (archivos.empty()) return std::nullopt;
    const fs::path carpeta = archivos.front().ruta.parent_path();
    for (const ArchivoDeConjunto& a : archivos)
        if (a.ruta.parent_path() != carpeta || !NombreValido(a.ruta.filename().string()))
            return Causa(std::make_error_code(std::errc::invalid_argument), a.ruta);
    Carpeta c;
    if (auto fallo = c.Abrir(carpeta, true)) return fallo;
    const int fd = c.fd();

    struct Pieza {
        std::string nombre, temporal, apartado;
    };
    std::vector<Pieza> piezas;
    std::string diario;
    std::error_code error;
    const fs::path* culpable = &archivos.front().ruta;
    // Each file whole under a name of its own, with the rights of the file
    // it replaces.
    for (size_t i = 0; i < archivos.size() && !error; ++i) {
        Pieza p{archivos[i].ruta.filename().string(), {}, {}};
        culpable = &archivos[i].ruta;
        struct stat antes {};
        int modo = -1;
        if (fstatat(fd, p.nombre.c_str(), &antes, AT_SYMLINK_NOFOLLOW) == 0) {
            if (S_ISDIR(antes.st_mode)) error = std::make_error_code(std::errc::is_a_directory);
            if (S_ISREG(antes.st_mode)) modo = static_cast<int>(antes.st_mode & 07777);
            p.apartado = NombreAlAzar();
        } else if (errno != ENOENT) {
            error = UltimoError();
        }
        if (!error) error = EscribirNuevo(fd, archivos[i].bytes, p.temporal, modo);
        diario += p.nombre + '\0' + p.apartado + '\0';
        piezas.push_back(std::move(p));
    }
    // From the journal on, a failure or a kill puts the earlier set back.
    if (!error) {
        culpable = &archivos.front().ruta;
        std::string temporal;
        error = EscribirNuevo(fd, diario, temporal);
        if (!error && renameat(fd, temporal.c_str(), fd, kDiario) != 0) error = UltimoError();
        if (!error && fsync(fd) != 0) error = UltimoError();
    }
    // The earlier files set aside under a second name (moved, on a file
    // system without links), then the new ones in their places.
    for (size_t i = 0; i < piezas.size() && !error; ++i) {
        const Pieza& p = piezas[i];
        culpable = &archivos[i].ruta;
        if (!p.apartado.empty() && linkat(fd, p.nombre.c_str(), fd, p.apartado.c_str(), 0) != 0 &&
            renameat(fd, p.nombre.c_str(), fd, p.apartado.c_str()) != 0)
            error = UltimoError();
    }
    for (size_t i = 0; i < piezas.size() && !error; ++i) {
        culpable = &archivos[i].ruta;
        if (renameat(fd, piezas[i].temporal.c_str(), fd, piezas[i].nombre.c_str()) != 0)
            error = UltimoError();
    }
    // The set is in place once the journal is gone.
    if (!error && fsync(fd) != 0) error = UltimoError();
    if (!error && unlinkat(fd, kDiario, 0) != 0) error = UltimoError();
    if (error) {
        Recuperar(fd);
        return Causa(error, *culpable);
    }
    Limpiar(fd);
    return std::nullopt;
}

std::optional<std::string> EscribirArchivo(const fs::path& ruta, std::string_view bytes) {
    return EscribirConjunto({{ruta, std::string(bytes)}});
}

bool EscribirArchivoEntero(const fs::path& ruta, std::string_view bytes) {
    return !EscribirArchivo(ruta, bytes);
}

std::optional<std::string> ComprobarCarpeta(const fs::path& carpeta) {
    Carpeta c;
    if (auto fallo = c.Abrir(carpeta, true)) return fallo;
    std::string prueba;
    if (const std::error_code error = EscribirNuevo(c.fd(), "", prueba))
        return Causa(error, carpeta / prueba);
    unlinkat(c.fd(), prueba.c_str(), 0);
    return std::nullopt;
}

std::optional<std::string> RecuperarCarpeta(const fs::path& carpeta) {
    Carpeta c;
    return c.Abrir(carpeta, false);
}

}  // namespace vanta
