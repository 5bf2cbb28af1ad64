// What the randomized runs watch besides their checks: a case that never ends
// and a case that brings the program down. Either way the case being run is
// written on standard error, so that it can be replayed.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

namespace vanta::prueba {

// Whether this build runs under AddressSanitizer (GCC's and Clang's marks).
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kConSanitizadores = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool kConSanitizadores = true;
#else
inline constexpr bool kConSanitizadores = false;
#endif
#else
inline constexpr bool kConSanitizadores = false;
#endif

// A number from the environment, or porDefecto when it is unset or not a
// whole number of zero or more.
long long NumeroDelEntorno(const char* nombre, long long porDefecto);

// Writes the text of the case under way on standard error if the process
// dies of a signal or a sanitizer report while it runs.
void PonerCasoEnCurso(const std::string& descripcion);

// A thread that ends the process, naming the case, when one case runs longer
// than its limit: a calculation that hangs would otherwise say nothing until
// ctest's own timeout.
class Vigilante {
public:
    explicit Vigilante(std::chrono::seconds limite);
    ~Vigilante();
    Vigilante(const Vigilante&) = delete;
    Vigilante& operator=(const Vigilante&) = delete;

    // Empezar names the case as PonerCasoEnCurso does; Terminar forgets it.
    void Empezar(const std::string& descripcion);
    void Terminar();

private:
    void Vigilar();

    std::chrono::seconds limite_;
    std::mutex mutex_;
    std::condition_variable aviso_;
    bool fin_ = false;
    bool enCurso_ = false;
    std::chrono::steady_clock::time_point inicio_;
    std::string descripcion_;
    std::thread hilo_;
};

}  // namespace vanta::prueba
