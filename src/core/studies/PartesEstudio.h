// The shares of a study run apart (on the nodes of a cluster, say) and their
// join. A share's output starts with a mark that names its study and its place:
// a first line in CSV, a first key "parte" in JSON. The join reads a folder of
// shares parte-1 … parte-N, checks that every share is there, whole and of the
// same study, and writes the table the whole study writes, byte for byte.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/studies/Estudio.h"

namespace vanta {

// A share's place in its study, and the study: the words of `vanta estudio`
// that define it (inputs, varied inputs, outputs, dialect), written as a JSON
// array of strings so that any word fits on one line.
struct MarcaParte {
    Parte parte;
    size_t puntos = 0;  // of the whole study
    std::string estudio;

    bool operator==(const MarcaParte&) const = default;
};

std::string EstudioDePalabras(const std::vector<std::string>& palabras);

// The first line of a CSV share, CR LF ended.
std::string LineaParte(const MarcaParte& marca);
// The first key of a JSON share's document, comma included.
std::string ClaveParte(const MarcaParte& marca);
// The last line of a CSV table cut short by an interruption, so that it does
// not pass for a whole one.
std::string LineaIncompleta(size_t hechos, size_t total);

enum class FormatoParte { CSV, JSON };

// The file of share k in the folder: parte-K.csv or parte-K.json.
inline constexpr std::string_view kPrefijoParte = "parte-";
std::string ExtensionParte(FormatoParte formato);
std::string NombreParte(size_t k, FormatoParte formato);

// Whether the folder holds a file named as a share.
bool TienePartes(const std::filesystem::path& carpeta);

// The shares of a folder checked: in order 1 … N when they join, else what is
// wrong, one line a fault, each naming the share it concerns.
struct PartesComprobadas {
    std::vector<std::string> errores;
    FormatoParte formato = FormatoParte::CSV;
    std::vector<std::filesystem::path> archivos;
};
PartesComprobadas ComprobarPartes(const std::filesystem::path& carpeta);

// Writes the whole table from shares that passed the check; false when a
// share changed since (it is read again, with the same checks).
bool UnirPartes(const PartesComprobadas& partes, std::ostream& out);

}  // namespace vanta
