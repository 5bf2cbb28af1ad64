// The seven pictures of the main window with no window: the three charts and
// the four diagrams drawn offscreen, on images of the sizes their boxes have
// in the overview of a window of the design's size, 1024 × 768. The command
// line writes its bitmaps from them.
#pragma once

#include <QImage>
#include <array>

#include "core/workflow/Distribucion.h"
#include "gui/services/SuperficieImagen.h"

namespace vanta {

struct SuperficiesSinVentana {
    // Needs the application's screen and letter: a QGuiApplication made.
    SuperficiesSinVentana(int W = 1024, int H = 768);
    // The boxes at the places given, one pixel a pixel of the picture
    // whatever the screen's ratio (the pictures of the reports and records).
    explicit SuperficiesSinVentana(const Lugares& l, qreal dpr = 1);

    SuperficieImagen pct1, pct2, pct3, pctPV, pctTV, pctTS, pctHS;

    Diagramas diagramas() { return {pctPV, pctTV, pctTS, pctHS}; }
    // In the order of pct1, pct2, pct3, pctPV, pctTV, pctTS, pctHS.
    std::array<QImage, 7> Imagenes();
};

}  // namespace vanta
