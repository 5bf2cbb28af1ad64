// The enlarged views of the diagrams: which surface takes the main place, the
// two on the right and the inset, and whether a click enlarges or returns.
// The view is read back from the geometry of the window, not remembered.
#pragma once

namespace vanta {

enum class DiagramaAmpliable { PV, TV, TS, HS };

// A control's place, in the window's units (W and H are its width and height).
struct LugarDiagrama {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

struct GeometriaDiagramas {
    double W = 0, H = 0;
    LugarDiagrama pctPV, pctTV, pctTS, pctHS;
};

// Whether the switch of diagram d enlarges it (true) or returns to the
// overview. The tests are on the current geometry: 0.7 W, rounded to single,
// against the main surface's width; T-s tests its Left against two twips,
// given here in the window's units.
bool DebeAmpliar(DiagramaAmpliable d, const GeometriaDiagramas& g, double dosTwips);

// The four surfaces placed for the enlarged view of d: the main one on the
// left, two on the right, the inset inside the main one.
GeometriaDiagramas DistribucionAmpliada(DiagramaAmpliable d, double W, double H);

}  // namespace vanta
