// A whole calculation as the command line runs it, on recording surfaces, for
// the cycle tests.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "core/services/Numeros.h"

namespace vanta::prueba {

struct Calculo {
    Estado e;
    DialogosGrabados dlg;
    SuperficieGrabada pct1, pct2, pct3, pv, tv, ts, hs;
    std::string salida;
    int estado = -1;

    Calculo() { GuardarColoresDiagramas(e); }

    // Runs `vanta calcular` with these options on this state.
    Calculo& Ejecutar(std::vector<std::string> opciones) {
        const cli::Parseo p = cli::ParsearCalcular(opciones);
        EXPECT_TRUE(p.opciones) << p.error;
        SuperficiesCalculo s{pct1, pct2, pct3, Diagramas{pv, tv, ts, hs}};
        std::ostringstream out;
        estado = cli::EjecutarCalcular(e, *p.opciones, dlg, s, out);
        salida = out.str();
        return *this;
    }

    // The lines of the report printed, without their CR LF.
    std::vector<std::string> Lineas() const {
        std::vector<std::string> lineas;
        size_t inicio = 0, fin;
        while ((fin = salida.find("\r\n", inicio)) != std::string::npos) {
            lineas.push_back(salida.substr(inicio, fin - inicio));
            inicio = fin + 2;
        }
        return lineas;
    }
};

}  // namespace vanta::prueba
