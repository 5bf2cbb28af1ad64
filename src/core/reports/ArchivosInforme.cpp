#include "core/reports/ArchivosInforme.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace vanta {

namespace {

constexpr std::string_view kMarcaUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view kFinCRLF = "\r\n";

// Code points of the bytes 0x80 to 0x9F in Windows-1252; the five it leaves
// undefined keep their own number.
constexpr std::array<char32_t, 32> kWindows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AgregarUtf8(std::string& s, char32_t c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Every line end (CR LF, a lone CR, a lone LF) replaced by fin.
std::string CambiarFinesLinea(std::string_view texto, std::string_view fin) {
    std::string s;
    s.reserve(texto.size() + texto.size() / 32);
    for (size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        if (c == '\r') {
            if (i + 1 < texto.size() && texto[i + 1] == '\n') ++i;
            s.append(fin);
        } else if (c == '\n') {
            s.append(fin);
        } else {
            s += c;
        }
    }
    return s;
}

}  // namespace

// ---- File dialogs ------------------------------------------------------------------

std::vector<FiltroArchivo> FiltrosDialogo(std::string_view filtro) {
    std::vector<FiltroArchivo> filtros;
    while (!filtro.empty()) {
        const size_t barra = filtro.find('|');
        const std::string_view etiqueta = filtro.substr(0, barra);
        std::string_view patron;
        if (barra == std::string_view::npos) {
            filtro = {};
        } else {
            filtro.remove_prefix(barra + 1);
            const size_t fin = filtro.find('|');
            patron = filtro.substr(0, fin);
            filtro = fin == std::string_view::npos ? std::string_view{} : filtro.substr(fin + 1);
        }
        // The blanks that close the program's filters are a label with no
        // pattern: no filter.
        if (patron.find_first_not_of(' ') == std::string_view::npos) continue;

        FiltroArchivo f;
        f.patron = patron;
        f.etiqueta = etiqueta;
        const std::string entreParentesis = "(" + f.patron + ")";
        if (!f.etiqueta.ends_with(entreParentesis)) f.etiqueta += " " + entreParentesis;
        if (patron.starts_with("*.") && patron.find_first_of("*?", 2) == std::string_view::npos)
            f.extension = patron.substr(2);
        filtros.push_back(std::move(f));
    }
    return filtros;
}

size_t FiltroInicial(const DialogoArchivo& d, size_t cuantos) {
    if (cuantos == 0) return 0;
    const size_t indice = d.indiceFiltro > 1 ? static_cast<size_t>(d.indiceFiltro - 1) : 0;
    return std::min(indice, cuantos - 1);
}

std::string NombreConExtension(const DialogoArchivo& d) {
    const std::vector<FiltroArchivo> filtros = FiltrosDialogo(d.filtro);
    std::string nombre(d.nombre);
    if (!filtros.empty()) {
        const std::string& extension = filtros[FiltroInicial(d, filtros.size())].extension;
        if (!extension.empty()) nombre += "." + extension;
    }
    return nombre;
}

// ---- Bytes of the saved files ---------------------------------------------------------

std::string BytesPagina(std::string_view pagina) {
    std::string s(kMarcaUtf8);
    s.append(pagina);
    return s;
}

std::string BytesInformeTexto(std::string_view informe) {
    return CambiarFinesLinea(informe, kFinCRLF);
}

bool EsUtf8Valido(std::string_view bytes) {
    const auto* p = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const fin = p + bytes.size();
    while (p < fin) {
        const unsigned char c = *p;
        if (c < 0x80) {
            ++p;
            continue;
        }
        int siguen;
        char32_t minimo, cp;
        if ((c & 0xE0) == 0xC0) {
            siguen = 1, minimo = 0x80, cp = c & 0x1F;
        } else if ((c & 0xF0) == 0xE0) {
            siguen = 2, minimo = 0x800, cp = c & 0x0F;
        } else if ((c & 0xF8) == 0xF0) {
            siguen = 3, minimo = 0x10000, cp = c & 0x07;
        } else {
            return false;
        }
        if (fin - p <= siguen) return false;
        for (int k = 1; k <= siguen; ++k) {
            if ((p[k] & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (p[k] & 0x3F);
        }
        if (cp < minimo || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
        p += siguen + 1;
    }
    return true;
}

std::string Windows1252AUtf8(std::string_view bytes) {
    std::string s;
    s.reserve(bytes.size() + bytes.size() / 8);
    for (const char b : bytes) {
        const auto c = static_cast<unsigned char>(b);
        if (c >= 0x80 && c <= 0x9F)
            AgregarUtf8(s, kWindows1252[c - 0x80]);
        else
            AgregarUtf8(s, c);
    }
    return s;
}

std::string TextoEnCaja(std::string_view bytes) {
    if (EsUtf8Valido(bytes)) {
        if (bytes.starts_with(kMarcaUtf8)) bytes.remove_prefix(kMarcaUtf8.size());
        return CambiarFinesLinea(bytes, "\n");
    }
    return CambiarFinesLinea(Windows1252AUtf8(bytes), "\n");
}

// ---- Files ----------------------------------------------------------------------------

std::optional<std::string> LeerArchivoEntero(const std::filesystem::path& ruta) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(ruta, error)) return std::nullopt;
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) return std::nullopt;
    std::string bytes((std::istreambuf_iterator<char>(archivo)), std::istreambuf_iterator<char>());
    if (archivo.bad()) return std::nullopt;
    return bytes;
}

}  // namespace vanta
