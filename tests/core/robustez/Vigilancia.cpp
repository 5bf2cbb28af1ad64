#include "tests/core/robustez/Vigilancia.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

#if defined(__SANITIZE_ADDRESS__)
#define VANTA_SANITIZADORES 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VANTA_SANITIZADORES 1
#endif
#endif
#ifdef VANTA_SANITIZADORES
#include <sanitizer/common_interface_defs.h>
#endif

namespace vanta::prueba {

namespace {

// A signal handler may only write what is already in memory: the case lives
// in a fixed buffer, copied in before each case.
char casoEnCurso[16384];
std::atomic<bool> hayCaso{false};

void EscribirCasoEnCurso() {
    if (!hayCaso.load()) return;
    constexpr char kCabecera[] = "\n*** El programa cayó durante este caso:\n";
    [[maybe_unused]] ssize_t n = write(STDERR_FILENO, kCabecera, sizeof kCabecera - 1);
    n = write(STDERR_FILENO, casoEnCurso, std::strlen(casoEnCurso));
    n = write(STDERR_FILENO, "\n", 1);
}

void AlCaer(int senal) {
    EscribirCasoEnCurso();
    std::signal(senal, SIG_DFL);
    std::raise(senal);
}

void InstalarAvisos() {
    static bool instalados = false;
    if (instalados) return;
    instalados = true;
#ifdef VANTA_SANITIZADORES
    // AddressSanitizer owns the signals of a fault and calls this before it
    // ends the process; UndefinedBehaviorSanitizer ends it by abort (below).
    __sanitizer_set_death_callback(EscribirCasoEnCurso);
    std::signal(SIGABRT, AlCaer);
#else
    for (int senal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) std::signal(senal, AlCaer);
#endif
}

}  // namespace

#ifdef VANTA_SANITIZADORES
// UndefinedBehaviorSanitizer ends the process by abort rather than by exit,
// so that the case under way is named; with the stack of the fault.
extern "C" const char* __ubsan_default_options() {
    return "print_stacktrace=1:abort_on_error=1";
}
#endif

long long NumeroDelEntorno(const char* nombre, long long porDefecto) {
    const char* texto = std::getenv(nombre);
    if (!texto || !*texto) return porDefecto;
    char* fin = nullptr;
    const long long v = std::strtoll(texto, &fin, 10);
    return (*fin == '\0' && v >= 0) ? v : porDefecto;
}

void PonerCasoEnCurso(const std::string& descripcion) {
    InstalarAvisos();
    hayCaso = false;
    const size_t n = std::min(descripcion.size(), sizeof casoEnCurso - 1);
    std::memcpy(casoEnCurso, descripcion.data(), n);
    casoEnCurso[n] = '\0';
    hayCaso = true;
}

Vigilante::Vigilante(std::chrono::seconds limite) : limite_(limite), hilo_([this] { Vigilar(); }) {}

Vigilante::~Vigilante() {
    {
        std::lock_guard<std::mutex> cerrojo(mutex_);
        fin_ = true;
    }
    aviso_.notify_all();
    hilo_.join();
}

void Vigilante::Empezar(const std::string& descripcion) {
    PonerCasoEnCurso(descripcion);
    std::lock_guard<std::mutex> cerrojo(mutex_);
    descripcion_ = descripcion;
    inicio_ = std::chrono::steady_clock::now();
    enCurso_ = true;
}

void Vigilante::Terminar() {
    hayCaso = false;  // a fall after this is no fault of that case
    std::lock_guard<std::mutex> cerrojo(mutex_);
    enCurso_ = false;
}

void Vigilante::Vigilar() {
    std::unique_lock<std::mutex> cerrojo(mutex_);
    while (!fin_) {
        aviso_.wait_for(cerrojo, std::chrono::milliseconds(250));
        if (enCurso_ && std::chrono::steady_clock::now() - inicio_ > limite_) {
            std::fprintf(stderr, "\n*** Este caso no terminó en %lld s:\n%s\n",
                         static_cast<long long>(limite_.count()), descripcion_.c_str());
            std::fflush(stderr);
            std::_Exit(3);
        }
    }
}

}  // namespace vanta::prueba
