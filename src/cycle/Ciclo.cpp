#include "cycle/Ciclo.h"

namespace vanta {

void FormCiclo_Load(Estado&, ControlesCiclo&) {}
void FormCiclo_Activate(Estado&) {}
void imgOtto_Click(Estado&, FormularioCiclo&) {}
void imgDiesel_Click(Estado&, FormularioCiclo&) {}
void imgMixto_Click(Estado&, FormularioCiclo&) {}
void ElegirModeloCompresion(Estado&, double) {}
void ElegirModeloExpansion(Estado&, double) {}
void optProporcion_Click(Estado&) {}
void optPmax_Click(Estado&) {}
void txtPropVcte_Change(Estado&, Dialogos&, ControlesCiclo&) {}
void CalcularCiclo(Estado&, Dialogos&, ControlesCiclo&, Diagramas&, VentanaPrincipal&) {}
void txtRpm_Change(Estado&, Dialogos&, CajaTexto&, CajaTexto&, CajaTexto&) {}

}  // namespace vanta
