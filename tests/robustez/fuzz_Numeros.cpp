// The gates between numbers and text under coverage-guided fuzzing (libFuzzer).
// The first byte of an input chooses the decimal separator and a mask; the
// rest is a text typed in a box, and its first eight bytes also a double.
// What must hold:
// - nothing falls, whatever the text;
// - LeerNumero never gives a number that is not finite;
// - Format and TextoGeneral never write "nan" or "inf", and write "N.D." only
//   for a number that is not finite;
// - the general conversion of a number read back reads back, and gives the
//   same text again: 15 significant digits survive the round trip.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "core/services/Numeros.h"

namespace {

using namespace vanta;

// The masks of the program, and some of every shape.
constexpr std::string_view kMascaras[] = {
    "### ### ### ### ###",
    "### ### ### ### ##0.00",
    "##0.00",
    "# ##0.0## ###",
    "# ##0.0## ### ###",
    "0.0##",
    "### ##0.0## ###",
    "### ### ### ##0.00",
    "### ### ### ##0.000",
    "### ### ##0.0## ### ###",
    "### ### ##0.0## ###",
    "### ### ##0.0##",
    "### ### ##0.0",
    "### ### ##00",
    "##0.0##",
    "### ### ##0.00",
    "### ##0.00",
    "### ### ### ##0.0",
    "### ### ### ### ##0.0",
    "### ### ### ### ### ###",
    "",
    "#",
    "0",
    ".",
    "#.#",
    "0.0",
    " ",
    "00.00 0",
    "#.",
    ".0",
};
constexpr size_t kNumMascaras = sizeof kMascaras / sizeof kMascaras[0];

[[noreturn]] void Fallo(const char* que, std::string_view texto, const std::string& detalle) {
    std::fprintf(stderr, "\n*** %s\n    texto: \"%.*s\"\n    %s\n", que, static_cast<int>(texto.size()),
                 texto.data(), detalle.c_str());
    std::abort();
}

bool TienePalabraNoFinita(const std::string& s) {
    for (const char* palabra : {"nan", "NaN", "NAN", "inf", "Inf", "INF"})
        if (s.find(palabra) != std::string::npos) return true;
    return false;
}

void ComprobarTexto(const char* de, double x, std::string_view entrada, const std::string& salida) {
    if (TienePalabraNoFinita(salida)) Fallo(de, entrada, "escribe \"" + salida + "\"");
    const bool nd = salida.find("N.D.") != std::string::npos;
    if (nd != !std::isfinite(x)) Fallo(de, entrada, "escribe \"" + salida + "\" para " + std::to_string(x));
}

void ComprobarNumero(double x, std::string_view entrada, std::string_view mascara) {
    ComprobarTexto("TextoGeneral", x, entrada, TextoGeneral(x));
    ComprobarTexto("Format", x, entrada, Format(x, mascara));
    for (int d : {0, 1, 3, 6}) {
        const double r = Round(x, d);
        if (std::isfinite(x) && !std::isfinite(r)) Fallo("Round", entrada, "da un número no finito");
        ComprobarTexto("Format de Round", r, entrada, Format(r, mascara));
    }
}

// A mask made of the bytes themselves, as far as they are mask characters.
std::string MascaraDe(std::string_view bytes) {
    std::string m;
    for (char c : bytes.substr(0, 40))
        if (c == '#' || c == '0' || c == '.' || c == ' ') m += c;
    return m;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t n) {
    if (n == 0) return 0;
    FijarSeparadorDecimal(datos[0] & 1 ? ',' : '.');
    const std::string_view mascara = kMascaras[(datos[0] >> 1) % kNumMascaras];
    const std::string_view texto(reinterpret_cast<const char*>(datos + 1), n - 1);

    if (const auto v = LeerNumero(texto)) {
        if (!std::isfinite(*v)) Fallo("LeerNumero", texto, "da un número no finito");
        ComprobarNumero(*v, texto, mascara);
        const std::string general = TextoGeneral(*v);
        const auto w = LeerNumero(general);
        if (!w) Fallo("TextoGeneral", texto, "\"" + general + "\" no se lee como número");
        if (TextoGeneral(*w) != general)
            Fallo("TextoGeneral", texto,
                  "\"" + general + "\" se lee y se escribe \"" + TextoGeneral(*w) + "\"");
        if (std::fabs(*w - *v) > 1e-14 * std::fabs(*v))
            Fallo("TextoGeneral", texto, "\"" + general + "\" se aleja del número leído");
    }

    if (texto.size() >= sizeof(double)) {
        double x;
        std::memcpy(&x, texto.data(), sizeof x);
        ComprobarNumero(x, texto, mascara);
        const std::string propia = MascaraDe(texto.substr(sizeof x));
        ComprobarTexto("Format con la máscara de la entrada", x, texto, Format(x, propia));
    }
    return 0;
}
