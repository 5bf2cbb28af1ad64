// Captions that several windows share, written once.
#pragma once

namespace vanta {

// The check box of each stage window: hide the window after a success.
inline constexpr const char* kOcultarAutomaticamente = "Ocultar automáticamente";
// The button of each stage window that runs its calculation.
inline constexpr const char* kCalcular = "CALCULAR";
// A cell of results whose figure is wider than the cell at the smallest letter.
inline constexpr const char* kNoCabe = "no cabe";
// Tool tip of the boxes of absolute pressures.
inline constexpr const char* kPresionAbsoluta = "Presión absoluta";

}  // namespace vanta
