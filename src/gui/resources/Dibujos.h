// The program's own pictures, painted by code at any size and pixel ratio so
// they stay crisp on high-resolution screens: the three cycle pictures of the
// cycle window (idle and chosen), the panel that invites the user to choose a
// cycle, the splash of the main window and the application icon. Also where
// the help pages are.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace vanta {

// Names of the three cycles, as TipoCiclo holds them.
inline constexpr const char* kCicloOtto = "Otto";
inline constexpr const char* kCicloDiesel = "Diesel";
inline constexpr const char* kCicloMixto = "Mixto";

// A schematic p-V diagram of the cycle "Otto", "Diesel" or "Mixto": its
// compression, heat addition (at constant volume, constant pressure or both),
// expansion and exhaust, the points numbered and the cycle's name. `elegido`
// gives the chosen variant, in stronger colours on a highlighted ground. An
// unknown name gives the frame and the name alone. `tamano` is in device-
// independent pixels; the pixmap carries `dpr`.
QPixmap DibujoCiclo(const QString& ciclo, bool elegido, QSize tamano, qreal dpr = 1.0);

// The large panel shown until a cycle is chosen: "Elija el ciclo" over the
// three shapes, faint.
QPixmap DibujoElegirCiclo(QSize tamano, qreal dpr = 1.0);

// The splash of the main window: the program's name, what it does, and a
// cycle motif.
QPixmap DibujoPresentacion(QSize tamano, qreal dpr = 1.0);

// The application icon, painted at the usual sizes.
QIcon IconoVanta();

// The help index, Index.htm: beside the program in the build tree
// (<build>/ayuda) or where it is installed (<prefix>/share/vanta/ayuda). When
// neither exists, the installed path all the same: the browser shows what it
// finds.
QString RutaAyuda();
// The same search from a given program folder.
QString RutaAyudaDesde(const QString& carpetaPrograma);

}  // namespace vanta
