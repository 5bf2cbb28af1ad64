#include "gui/services/SuperficiesSinVentana.h"

#include <QGuiApplication>
#include <QScreen>

#include "core/workflow/Flujo.h"
#include "gui/services/SuperficieQt.h"

namespace vanta {

namespace {

qreal RazonPantalla() {
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    return pantalla ? pantalla->devicePixelRatio() : 1;
}

}  // namespace

// The places of the overview, as the window has them after it opens.
SuperficiesSinVentana::SuperficiesSinVentana(int W, int H)
    : SuperficiesSinVentana(Form_Load({.W = W, .H = H}).lugar, RazonPantalla()) {}

SuperficiesSinVentana::SuperficiesSinVentana(const Lugares& l, qreal dpr)
    : pct1(kFondoBlanco),
      pct2(kFondoBlanco),
      pct3(kFondoBlanco),
      pctPV(kFondoBlanco),
      pctTV(kFondoBlanco),
      pctTS(kFondoGris),
      pctHS(kFondoGris) {
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    const int dpiX = pantalla ? qRound(pantalla->logicalDotsPerInchX()) : 96;
    const int dpiY = pantalla ? qRound(pantalla->logicalDotsPerInchY()) : 96;
    const QFont letra = LetraSuperficie(QGuiApplication::font());
    const std::pair<SuperficieImagen*, const Lugar*> cajas[] = {
        {&pct1, &l.pct1},   {&pct2, &l.pct2},   {&pct3, &l.pct3},  {&pctPV, &l.pctPV},
        {&pctTV, &l.pctTV}, {&pctTS, &l.pctTS}, {&pctHS, &l.pctHS}};
    for (auto [s, lugar] : cajas) {
        s->PonerLetra(letra);
        s->Dimensionar({.dentro = DentroDe(*lugar), .dpr = dpr, .dpiX = dpiX, .dpiY = dpiY});
    }
}

std::array<QImage, 7> SuperficiesSinVentana::Imagenes() {
    return {pct1.Imagen(),  pct2.Imagen(),  pct3.Imagen(), pctPV.Imagen(),
            pctTV.Imagen(), pctTS.Imagen(), pctHS.Imagen()};
}

}  // namespace vanta
