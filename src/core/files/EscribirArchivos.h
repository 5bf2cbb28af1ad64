// Files written whole, where they were asked and nowhere else.
//
// Each file is first written under a name of its own made exclusively in its
// folder (a name nobody can guess, on which no link can be planted), synced,
// and only then renamed onto its name: a symbolic link that stood there is
// replaced, never written through, and the folder is reached once, so that
// nothing lands outside it. A set of files (a page and its pictures, the
// figures of one run) replaces the earlier set as one: before the first
// rename a journal in the folder names the files being replaced, kept aside
// under names of their own; the set is in place when the journal is removed.
// A failure puts the earlier set back, and so does the next writer in the
// folder when a kill left a journal; it also removes whatever temporary
// files a killed writer left. Writers of one folder take turns under a lock
// on the folder itself, so no lock file is left among the user's files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vanta {

struct ArchivoDeConjunto {
    std::filesystem::path ruta;
    std::string bytes;
};

// Seconds that a writer waits for another one writing in the same folder.
inline constexpr int kEsperaCarpeta = 20;

// Writes the files, all of one folder, as one set: all of them or none, the
// folder's earlier files then left as they were. Makes the folder when it is
// missing. Returns why the set could not be written, in words for the user
// ("el disco está lleno", "no tiene permiso de escritura en …", "… es un
// archivo, no una carpeta"), or nothing.
std::optional<std::string> EscribirConjunto(const std::vector<ArchivoDeConjunto>& archivos);

// One file, whole or not at all; why not, or nothing.
std::optional<std::string> EscribirArchivo(const std::filesystem::path& ruta, std::string_view bytes);
// The same for the windows that say nothing of a failure: whether it was written.
bool EscribirArchivoEntero(const std::filesystem::path& ruta, std::string_view bytes);

// Whether a set can be written in the folder, before anything is: made when
// missing, a folder, and one where files can be made. Why not, or nothing.
std::optional<std::string> ComprobarCarpeta(const std::filesystem::path& carpeta);

// Puts back what a writer killed in the folder left half done (the earlier
// set, whole) and removes its temporary files, as every writer does first.
// Why it could not, or nothing.
std::optional<std::string> RecuperarCarpeta(const std::filesystem::path& carpeta);

}  // namespace vanta
