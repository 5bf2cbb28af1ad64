// The command line as a script runs it: one whole process of `vanta calcular
// --json` (start, calculation, JSON, exit), and, for comparison, the same
// calculation a thousand times inside one `vanta estudio`.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

extern char** environ;

namespace {

// Runs the program with its output sent to /dev/null; false when it failed.
bool Ejecutar(std::vector<const char*> argumentos) {
    argumentos.insert(argumentos.begin(), VANTA_BINARIO);
    argumentos.push_back(nullptr);
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&acciones, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t pid = 0;
    const int error = posix_spawn(&pid, VANTA_BINARIO, &acciones, nullptr,
                                  const_cast<char* const*>(argumentos.data()), environ);
    posix_spawn_file_actions_destroy(&acciones);
    if (error != 0) return false;
    int estado = 0;
    waitpid(pid, &estado, 0);
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

void ProcesoCalcularJSON(benchmark::State& estado) {
    for (auto _ : estado)
        if (!Ejecutar({"calcular", "--json"})) estado.SkipWithError("vanta calcular falló");
}

void ProcesoEstudio1000(benchmark::State& estado) {
    for (auto _ : estado)
        if (!Ejecutar({"estudio", "--variar", "rc=6:15.99:0.01", "--salidas", "rendimiento", "--hilos", "1"}))
            estado.SkipWithError("vanta estudio falló");
    estado.SetItemsProcessed(estado.iterations() * 1000);
}

}  // namespace

BENCHMARK(ProcesoCalcularJSON)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ProcesoEstudio1000)->Unit(benchmark::kMillisecond)->UseRealTime();
