#include "app/LineaCluster.h"

#include <filesystem>
#include <ostream>

#include "app/LineaComandos.h"
#include "app/SalidaSegura.h"
#include "core/studies/GuionSlurm.h"
#include "core/studies/PartesEstudio.h"

namespace vanta::cli {

int EscribirGuionSlurm(const OpcionesEstudio& o, std::ostream& out, std::ostream& err) {
    namespace fs = std::filesystem;
    const fs::path carpeta = o.carpeta;
    std::error_code ec;
    fs::create_directories(carpeta, ec);
    if (ec || !fs::is_directory(carpeta)) {
        err << kPrefijoEstudio << "no se puede crear la carpeta " << o.carpeta << '\n';
        return kSalidaFallo;
    }
    // Shares of another run would join with the new ones, or stand for them.
    if (TienePartes(carpeta)) {
        err << kPrefijoEstudio << "la carpeta " << o.carpeta
            << " ya tiene partes de un estudio: bórralas, o elige otra carpeta\n";
        return kSalidaFallo;
    }
    // The tasks run this same program, by the path it was started from.
    const fs::path programa = fs::read_symlink("/proc/self/exe", ec);
    if (ec) {
        err << kPrefijoEstudio << "no se sabe dónde está este programa: " << ec.message() << '\n';
        return kSalidaFallo;
    }
    PeticionSlurm p;
    p.programa = programa.string();
    p.palabras = o.palabras;
    p.tareas = o.slurm;
    p.carpeta = o.carpeta;
    p.formato = o.json ? FormatoParte::JSON : FormatoParte::CSV;
    p.hilos = o.hilos ? o.hilos : 1;
    p.particion = o.particion;
    p.tiempo = o.tiempo;
    p.memoria = o.memoria;
    const std::string ruta = (carpeta / kNombreGuion).string();
    ArchivoNuevo guion(ruta);
    guion.Flujo() << GuionSlurm(p);
    if (const std::string fallo = guion.Error().empty() ? guion.Confirmar() : guion.Error(); !fallo.empty()) {
        err << kPrefijoEstudio << NoSeEscribe(ruta, fallo) << '\n';
        return kSalidaFallo;
    }
    out << "sbatch " << ComillasShell(ruta) << '\n';
    err << kPrefijoEstudio << "el guion de " << o.slurm << " tareas está en " << ruta
        << "; cuando acaben, «vanta estudio --unir " << ComillasShell(o.carpeta) << "» une sus partes\n";
    return kSalidaBien;
}

int UnirEstudio(const OpcionesEstudio& o, std::ostream& out, std::ostream& err) {
    const PartesComprobadas partes = ComprobarPartes(o.unir);
    for (const std::string& error : partes.errores) err << kPrefijoEstudio << error << '\n';
    if (!partes.errores.empty()) {
        err << kPrefijoEstudio << "no se ha escrito nada\n";
        return kSalidaFallo;
    }
    const bool json = partes.formato == FormatoParte::JSON;
    if ((o.json && !json) || (!o.csv.empty() && json)) {
        err << kPrefijoEstudio << "las partes de " << o.unir << " son " << (json ? "JSON" : "CSV")
            << ": la tabla entera se escribe con " << (json ? "--json" : "--csv") << '\n';
        return kSalidaUso;
    }
    const std::string cambiada = "una parte ha cambiado mientras se unía";
    const std::string ruta = json ? o.archivoJson : o.csv == "-" ? std::string() : o.csv;
    if (ruta.empty()) {
        // A failed standard output is told by the caller.
        if (UnirPartes(partes, out) || !out) return out ? kSalidaBien : kSalidaFallo;
        err << kPrefijoEstudio << cambiada << '\n';
        return kSalidaFallo;
    }
    ArchivoNuevo archivo(ruta);
    std::string fallo = archivo.Error();
    if (fallo.empty() && !UnirPartes(partes, archivo.Flujo()))
        fallo = archivo.FalloEscritura().empty() ? cambiada : archivo.FalloEscritura();
    if (fallo.empty()) fallo = archivo.Confirmar();
    if (fallo.empty()) return kSalidaBien;
    err << kPrefijoEstudio << NoSeEscribe(ruta, fallo) << '\n';
    return kSalidaFallo;
}

}  // namespace vanta::cli
