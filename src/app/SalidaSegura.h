// The command line's outputs whole or not at all: standard output with its
// write errors kept and told, files written through a temporary file of their
// own folder renamed onto the final name, and the signals that stop a study.
#pragma once

#include <atomic>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

namespace vanta::cli {

// Spanish words for a system error (errno).
std::string TextoErrorSistema(int error);
// The message of a file that could not be written, and why.
std::string NoSeEscribe(const std::string& ruta, const std::string& por);

// A stream buffer on a file descriptor: every byte is written, a short write
// is carried on, and the first failed write is kept (its errno), after which
// the stream goes bad.
class BufferDescriptor : public std::streambuf {
public:
    explicit BufferDescriptor(int fd);
    ~BufferDescriptor() override;
    int Error() const { return error_; }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* s, std::streamsize n) override;
    int sync() override;

private:
    bool Vaciar();
    int fd_;
    int error_ = 0;
    std::vector<char> buffer_;
};

// A file written whole or not at all. The text goes to a temporary file
// created in the file's folder, exclusively and never through a link
// (O_CREAT|O_EXCL|O_NOFOLLOW), under a name no one can guess; Confirmar syncs
// it and renames it onto the final name, which replaces a symbolic link there
// rather than writing through it. Unconfirmed, it is removed. A path that is
// no regular file to replace (a device such as /dev/full or /dev/null, a pipe,
// /dev/stdout) is written in place.
class ArchivoNuevo {
public:
    explicit ArchivoNuevo(std::string ruta);
    ~ArchivoNuevo();
    ArchivoNuevo(const ArchivoNuevo&) = delete;
    ArchivoNuevo& operator=(const ArchivoNuevo&) = delete;

    // Empty when the file could be created, else why not.
    const std::string& Error() const { return error_; }
    std::ostream& Flujo() { return *flujo_; }
    // Why the text written so far could not be written, or empty.
    std::string FalloEscritura() const;
    // Empty when the file is in place under its name, else why not (and the
    // temporary file is gone).
    std::string Confirmar();

private:
    std::string ruta_, temporal_;
    int fd_ = -1;
    std::unique_ptr<BufferDescriptor> buffer_;
    std::unique_ptr<std::ostream> flujo_;
    std::string error_;
};

// What stops a study from outside: the signal's number once SIGINT or SIGTERM
// came, with cancelar set; the study sets cancelar itself when its output
// fails.
struct Parada {
    std::atomic<bool> cancelar{false};
    std::atomic<int> senal{0};
};
// Handlers of SIGINT and SIGTERM that fill the process's Parada; a second
// signal ends the process at once.
Parada& PararConSenales();
std::string NombreSenal(int senal);

// Standard output of a subcommand, checked. While it lives std::cout writes
// through a BufferDescriptor on descriptor 1, and SIGPIPE is ignored so that a
// closed pipe is a failed write the command sees (and stops on).
class SalidaEstandar {
public:
    SalidaEstandar();
    ~SalidaEstandar();
    SalidaEstandar(const SalidaEstandar&) = delete;
    SalidaEstandar& operator=(const SalidaEstandar&) = delete;

    // The exit status, given the command's. A reader that closed its end
    // (`| head`) ends the process quietly by SIGPIPE, as the shell's own
    // filters end; any other failed or short write is told on standard error
    // and the status is 1.
    int Terminar(const std::string& orden, int estado);

private:
    BufferDescriptor buffer_;
    std::streambuf* anterior_;
};

}  // namespace vanta::cli
