// Vanta: with no arguments the main window; `vanta calcular …` and
// `vanta tablas …` the same logic headless.
#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "services/Numeros.h"

namespace {

int Calcular(const std::vector<std::string>& argumentos) {
    using namespace vanta;
    if (argumentos.size() == 1 && (argumentos[0] == "--help" || argumentos[0] == "-h")) {
        std::cout << cli::TextoUso();
        return cli::kSalidaBien;
    }
    const cli::Parseo p = cli::ParsearCalcular(argumentos);
    if (!p.opciones) {
        std::cerr << "vanta calcular: " << p.error << "\n\n" << cli::TextoUso();
        return cli::kSalidaUso;
    }
    Estado e;
    GuardarColoresDiagramas(e);
    DialogosConsola dlg;
    SuperficieNula pct1, pct2, pct3;
    DiagramasNulos diagramas;
    cli::SuperficiesCalculo s{pct1, pct2, pct3, diagramas.Todos()};
    return cli::EjecutarCalcular(e, *p.opciones, dlg, s, std::cout);
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_NUMERIC, "C");
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    if (!argumentos.empty() && argumentos[0] == "calcular")
        return Calcular({argumentos.begin() + 1, argumentos.end()});
    std::cerr << vanta::cli::TextoUso();
    return vanta::cli::kSalidaUso;
}
