// The fuel and combustion screens with plain controls, driven as a user does,
// for the tests of the fluids.
#pragma once

#include <cmath>
#include <string>
#include <type_traits>
#include <vector>

#include "core/fluids/AireHumedo.h"
#include "core/fluids/Combustible.h"
#include "core/fluids/Combustion.h"
#include "core/services/Numeros.h"

namespace vanta::prueba {

inline void AireSecoCalculado(Estado& e) {
    e.xN2Aire = kAireSecoN2, e.xO2Aire = kAireSecoO2, e.xArAire = kAireSecoAr, e.xCO2Aire = kAireSecoCO2;
    e.xH2OAire = 0;
}

// The names of the variables of the state that hold NaN or infinity.
inline std::vector<std::string> NoFinitos(const Estado& e) {
    std::vector<std::string> nombres;
    VisitarCampos(e, [&](const char* nombre, const auto& v) {
        if constexpr (std::is_floating_point_v<std::decay_t<decltype(v)>>)
            if (!std::isfinite(v)) nombres.emplace_back(nombre);
    });
    return nombres;
}

struct EtapaCombustible {
    EtapaCombustible(Estado& e, DialogosGrabados& dlg) : e(e), dlg(dlg) {}
    Estado& e;
    DialogosGrabados& dlg;
    PantallaCombustibleSimple p;
    SuperficieGrabada pct2;
    ControlesCombustible c = p.Controles(pct2);

    void Elegir(const std::string& entrada) {
        p.cboTipCom.SetText(entrada);
        cboTipCom_Click(e, dlg, c);
    }
    // "Otros combustibles" with a formula typed in the boxes, then CALCULAR.
    void Formula(const std::string& C, const std::string& H, const std::string& N, const std::string& O,
                 const std::string& S) {
        Elegir(std::string(kOtrosCombustibles));
        optFOR_Click(c);
        p.txtMolC.SetText(C), p.txtMolH.SetText(H), p.txtMolN.SetText(N), p.txtMolO.SetText(O),
            p.txtMolS.SetText(S);
        cmdCal_Click(e, dlg, c);
    }
    // "Otros combustibles" with mass percentages and a molar mass, then CALCULAR.
    void Masa(const std::string& C, const std::string& N, const std::string& O, const std::string& S,
              const std::string& masaMolecular) {
        Elegir(std::string(kOtrosCombustibles));
        optMasa_Click(c);
        p.txtC.SetText(C), p.txtN.SetText(N), p.txtO.SetText(O), p.txtS.SetText(S);
        p.txtmmComb.SetText(masaMolecular);
        cmdCal_Click(e, dlg, c);
    }
};

struct EtapaCombustion {
    EtapaCombustion(Estado& e, DialogosGrabados& dlg) : e(e), dlg(dlg) {}
    Estado& e;
    DialogosGrabados& dlg;
    PantallaCombustionSimple p;
    SuperficieGrabada pct3;
    ControlesCombustion c = p.Controles(pct3);

    // Fr typed with its option leading, then CALCULAR.
    bool ConFr(const std::string& fr) {
        FormGases_Load(e, c);
        txtFr_Click(c);
        p.txtFr.SetText(fr);
        txtFr_Change(e, dlg, c);
        return CalcularHumos(e, dlg, c);
    }
};

}  // namespace vanta::prueba
