// One `vanta calcular` on a state, watched: a run that does not end within a
// minute ends the test program with the arguments on standard error.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <string>
#include <vector>

#include "app/LineaComandos.h"
#include "tests/core/robustez/Inspeccion.h"
#include "tests/core/robustez/Vigilancia.h"

namespace vanta::prueba {

struct Ejecucion {
    Estado e;
    DialogosGrabados dlg;
    SuperficieVigilada pct1, pct2, pct3, pv{false}, tv{false}, ts{false}, hs{false};
    std::string salida;
    int estado = -1;

    Ejecucion() { GuardarColoresDiagramas(e); }

    Ejecucion& Calcular(const std::vector<std::string>& args) {
        std::string descripcion = "vanta calcular";
        for (const std::string& a : args) descripcion += " " + a;
        static Vigilante vigilante(std::chrono::seconds(kConSanitizadores ? 600 : 60));
        const cli::Parseo p = cli::ParsearCalcular(args);
        if (!p.opciones) {
            ADD_FAILURE() << descripcion << ": " << p.error;
            return *this;
        }
        for (SuperficieVigilada* s : {&pct1, &pct2, &pct3, &pv, &tv, &ts, &hs}) s->Reiniciar();
        dlg.mensajes.clear();
        SuperficiesCalculo s{pct1, pct2, pct3, Diagramas{pv, tv, ts, hs}};
        std::ostringstream out;
        vigilante.Empezar(descripcion);
        estado = cli::EjecutarCalcular(e, *p.opciones, dlg, s, out);
        vigilante.Terminar();
        salida = out.str();
        return *this;
    }

    bool Calculado() const { return estado == cli::kSalidaBien; }
    // Ended with ErrorCalculo set and at least one message.
    bool Rechazado() const { return estado == cli::kSalidaFallo && e.ErrorCalculo && !dlg.mensajes.empty(); }
    bool Dijo(std::string_view mensaje) const {
        for (const std::string& m : dlg.mensajes)
            if (m == mensaje) return true;
        return false;
    }
    std::string Mensajes() const {
        std::string t;
        for (const std::string& m : dlg.mensajes) t += "\n  " + m;
        return t;
    }
    // Faults of the pictures and numbers that are not finite, as one text.
    std::string Defectos() const {
        std::string t;
        for (const std::string& v : VariablesNoFinitas(e)) t += " " + v;
        for (const SuperficieVigilada* s : {&pct1, &pct2, &pct3, &pv, &tv, &ts, &hs})
            for (const std::string& d : s->defectos) t += " " + d;
        return t;
    }
};

}  // namespace vanta::prueba
