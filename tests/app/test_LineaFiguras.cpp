// vanta calcular --figuras: the four diagrams with scales and the three
// charts, as files of the format and size asked.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "app/LineaComandos.h"

namespace fs = std::filesystem;

namespace {

int Orden(const std::string& orden) {
    const int w = std::system(orden.c_str());
    return WIFEXITED(w) ? WEXITSTATUS(w) : -1;
}

int Ejecutar(const std::string& argumentos) {
    return Orden(std::string(VANTA_BINARIO) + " " + argumentos + " >/dev/null 2>&1");
}

std::string Leer(const fs::path& p) {
    std::ifstream f(p);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

}  // namespace

TEST(LineaFiguras, LasOpcionesDeLasFiguras) {
    const auto p =
        vanta::cli::ParsearCalcular({"--figuras", "fig", "--formato", "svg", "--tamano", "800x600"});
    ASSERT_TRUE(p.opciones) << p.error;
    EXPECT_EQ(p.opciones->figuras, "fig");
    EXPECT_EQ(p.opciones->formato, "svg");
    EXPECT_EQ(p.opciones->ancho, 800);
    EXPECT_EQ(p.opciones->alto, 600);
    // What is not an input of the calculation does not reach it.
    EXPECT_FALSE(p.opciones->Tiene("figuras") || p.opciones->Tiene("formato") || p.opciones->Tiene("tamano"));
    for (std::vector<std::string> malos : {std::vector<std::string>{"--formato", "svg"},
                                           {"--figuras", "f", "--formato", "jpg"},
                                           {"--figuras", "f", "--tamano", "800"},
                                           {"--figuras", "f", "--tamano", "99x600"},
                                           {"--figuras", "f", "--tamano", "800x600.5"},
                                           {"--tamano", "800x600"}})
        EXPECT_FALSE(vanta::cli::ParsearCalcular(malos).opciones) << malos[1];
}

TEST(LineaFiguras, EscribeLosCuatroDiagramasYLasTresGraficas) {
    const fs::path carpeta = fs::path(::testing::TempDir()) / ("vanta_figuras_" + std::to_string(getpid()));
    fs::remove_all(carpeta);
    ASSERT_EQ(Ejecutar("calcular --ciclo Diesel --rc 18 --figuras " + carpeta.string() + " --formato svg"),
              0);
    for (const char* nombre : {"diagrama-pv", "diagrama-tv", "diagrama-ts", "diagrama-hs", "grafica-aire",
                               "grafica-combustible", "grafica-gases"}) {
        const std::string svg = Leer(carpeta / (std::string(nombre) + ".svg"));
        EXPECT_NE(svg.find("<svg"), std::string::npos) << nombre;
    }
    // The diagrams with their scales and axis titles.
    const std::string pv = Leer(carpeta / "diagrama-pv.svg");
    EXPECT_NE(pv.find(">V (c.c.)<"), std::string::npos);
    EXPECT_NE(pv.find(">p (Pa)<"), std::string::npos);
    EXPECT_NE(pv.find(">5 000 000<"), std::string::npos);

    ASSERT_EQ(Ejecutar("calcular --figuras " + carpeta.string() + " --formato pdf --tamano 640x480"), 0);
    EXPECT_EQ(Orden("pdfinfo " + (carpeta / "figuras.pdf").string() + " | grep -q '^Pages: *7$'"), 0);
    // A calculation that fails writes no figure.
    fs::remove_all(carpeta);
    EXPECT_EQ(Ejecutar("calcular --rc abc --figuras " + carpeta.string()), 1);
    EXPECT_FALSE(fs::exists(carpeta));
    fs::remove_all(carpeta);
}

TEST(LineaFiguras, LasSalidasSeEscribenSoloDondeSePidenYSinRegistroSiAlgunaFalla) {
    const fs::path raiz = fs::path(::testing::TempDir()) / ("vanta_salidas_" + std::to_string(getpid()));
    fs::remove_all(raiz);
    fs::create_directories(raiz / "fig");
    fs::create_directories(raiz / "html");
    std::ofstream(raiz / "privado") << "mío";
    // Links planted in the folders: replaced, never written through.
    fs::create_symlink(raiz / "privado", raiz / "fig" / "diagrama-pv.png");
    fs::create_symlink(raiz / "privado", raiz / "html" / "Index.htm");
    fs::create_symlink(raiz / "nada", raiz / "html" / "BMPAIRE.BMP");
    ASSERT_EQ(
        Ejecutar("calcular --figuras " + (raiz / "fig").string() + " --html " + (raiz / "html").string()), 0);
    EXPECT_EQ(Leer(raiz / "privado"), "mío");
    EXPECT_FALSE(fs::exists(fs::symlink_status(raiz / "nada")));
    EXPECT_FALSE(fs::is_symlink(raiz / "fig" / "diagrama-pv.png"));
    EXPECT_EQ(std::distance(fs::directory_iterator(raiz / "fig"), fs::directory_iterator()), 7);
    EXPECT_EQ(std::distance(fs::directory_iterator(raiz / "html"), fs::directory_iterator()), 8);
    // A folder that cannot be written is found before the record is saved.
    for (const char* salida : {"--figuras privado", "--html privado"})
        EXPECT_EQ(Orden("cd " + raiz.string() + " && " + VANTA_BINARIO + " calcular --guardar uno " + salida +
                        " >/dev/null 2>&1"),
                  1);
    EXPECT_FALSE(fs::exists(raiz / "BD.sqlite"));
    fs::remove_all(raiz);
}
