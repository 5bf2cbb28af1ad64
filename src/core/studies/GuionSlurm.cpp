#include "core/studies/GuionSlurm.h"

#include <cctype>

namespace vanta {

namespace {

bool Digitos(std::string_view t) {
    if (t.empty()) return false;
    for (char c : t)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

// Pieces of t between a separator.
std::vector<std::string_view> Trozos(std::string_view t, char separador) {
    std::vector<std::string_view> trozos;
    for (size_t i = 0;;) {
        const size_t j = t.find(separador, i);
        trozos.push_back(t.substr(i, j == std::string_view::npos ? std::string_view::npos : j - i));
        if (j == std::string_view::npos) return trozos;
        i = j + 1;
    }
}

// A file of the folder in an #SBATCH line, in double quotes: the folder's
// quotes escaped and its "%" doubled, which Slurm would read as a pattern;
// the name's own pattern kept.
std::string NombreSbatch(std::string_view carpeta, std::string_view patron) {
    std::string s = "\"";
    for (char c : carpeta) {
        if (c == '"') s += '\\';
        if (c == '%') s += '%';
        s += c;
    }
    return s + "/" + std::string(patron) + "\"";
}

}  // namespace

std::string ComillasShell(std::string_view t) {
    std::string s = "'";
    for (char c : t) s += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return s + "'";
}

std::string ComprobarCarpetaSlurm(std::string_view carpeta) {
    for (char c : carpeta)
        if (c == '\\' || static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            return "la carpeta de --carpeta no puede llevar «\\» ni caracteres de control: Slurm no "
                   "leería su nombre";
    return {};
}

std::string ComprobarTiempoSlurm(std::string_view tiempo) {
    const std::string error = "--tiempo es un tiempo de Slurm (minutos, M:S, H:M:S, D-H, D-H:M o D-H:M:S): ";
    const auto guion = tiempo.find('-');
    const bool conDias = guion != std::string_view::npos;
    if (conDias && !Digitos(tiempo.substr(0, guion))) return error + std::string(tiempo);
    const std::vector<std::string_view> partes = Trozos(conDias ? tiempo.substr(guion + 1) : tiempo, ':');
    bool bien = partes.size() <= 3;
    for (std::string_view p : partes) bien = bien && Digitos(p);
    return bien ? std::string() : error + std::string(tiempo);
}

std::string ComprobarMemoriaSlurm(std::string_view memoria) {
    std::string_view numero = memoria;
    if (!numero.empty() && std::string_view("KMGT").find(numero.back()) != std::string_view::npos)
        numero.remove_suffix(1);
    if (Digitos(numero)) return {};
    return "--memoria es un número entero de megabytes, o con K, M, G o T (4G): " + std::string(memoria);
}

std::string ComprobarParticionSlurm(std::string_view particion) {
    bool bien = true;
    for (std::string_view nombre : Trozos(particion, ',')) {
        bien = bien && !nombre.empty();
        for (char c : nombre)
            bien = bien && (std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '-' || c == '.');
    }
    return bien ? std::string()
                : "--particion es un nombre de partición de Slurm, o varios con comas: " +
                      std::string(particion);
}

std::string GuionSlurm(const PeticionSlurm& p) {
    const std::string n = std::to_string(p.tareas);
    const std::string hilos = std::to_string(p.hilos);
    const std::string extension = ExtensionParte(p.formato);
    std::string g = "#!/bin/bash\n";
    g += "#SBATCH --job-name=vanta-estudio\n";
    g += "#SBATCH --array=1-" + n + "\n";
    g += "#SBATCH --ntasks=1\n";
    g += "#SBATCH --cpus-per-task=" + hilos + "\n";
    g += "#SBATCH --output=" + NombreSbatch(p.carpeta, "slurm-%A_%a.out") + "\n";
    if (!p.particion.empty()) g += "#SBATCH --partition=" + p.particion + "\n";
    if (!p.tiempo.empty()) g += "#SBATCH --time=" + p.tiempo + "\n";
    if (!p.memoria.empty()) g += "#SBATCH --mem=" + p.memoria + "\n";
    g += "\n# Un estudio de vanta en " + n +
         " partes: la tarea K calcula la parte K en la carpeta del\n"
         "# estudio (parte-K" +
         extension +
         "). Cuando acaben todas, las une:\n"
         "#   vanta estudio --unir " +
         ComillasShell(p.carpeta) + "\n";
    g += "K=\"${SLURM_ARRAY_TASK_ID:?este guion es un array de Slurm: se lanza con sbatch}\"\n";
    g += "exec " + ComillasShell(p.programa) + " estudio";
    for (const std::string& palabra : p.palabras) g += " " + ComillasShell(palabra);
    g += " --hilos " + hilos + " --parte \"$K/" + n + "\" " +
         (p.formato == FormatoParte::CSV ? "--csv" : "--json") + " " +
         ComillasShell(p.carpeta + "/" + std::string(kPrefijoParte)) + "\"$K\"" + ComillasShell(extension) +
         "\n";
    return g;
}

}  // namespace vanta
