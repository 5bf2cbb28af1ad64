// How the windows live on the desktop: each opens inside the free area of its
// screen (the window manager's title bar counted), comes back at the size and
// place it had, closes from the keyboard, is walked with Tab in reading order
// and names its controls to screen readers; the file dialogs open in the last
// folder used. What is remembered lives in the program's settings file.
#pragma once

#include <QMargins>
#include <QSettings>
#include <QSize>
#include <QString>

class QWidget;

namespace vanta {

// ~/.config/vanta/vanta.conf, named whole so that it follows the standard
// paths at each use.
QSettings Ajustes();

// The frame that a window manager puts round a window that is not yet shown:
// the frame of the program's first window when it has one, else a title bar
// and thin borders.
QMargins MarcoVentana(const QWidget* ventana);

// Brings a top-level window to `deseado` (its present size when empty), no
// larger than the free area of its screen less the frame, and moves it so
// that the frame lies wholly inside that area, as near as can be to where it
// stood.
void EncajarEnPantalla(QWidget* ventana, QSize deseado = {});

// Looks after a top-level window from its first showing on: it opens at its
// remembered size and place, or at `deseado`, always inside the free area of
// its screen, and keeps them under `clave` when it is hidden. With
// `conEscape`, Esc closes it; the platform's Close keys always do.
void CuidarVentana(QWidget* ventana, const QString& clave, QSize deseado, bool conEscape);

// The options of a window kept from one run to the next: the values of the
// controls given (a list's choice, a box's text or number, a check box, the
// marks of a list of check boxes), put back now in the order given and kept
// each time the window hides.
void RecordarOpciones(QWidget* ventana, const QString& clave, const QList<QWidget*>& controles);

// The folder of the file last chosen in the file dialogs of kind `clave`
// (empty before the first), and remembering it.
QString CarpetaRecordada(const QString& clave);
void RecordarCarpeta(const QString& clave, const QString& archivo);

// The Tab order of a window: within each container its controls row by row,
// left to right, a container with all it holds taken as one control.
void OrdenDeLectura(QWidget* raiz);

// Each control that takes input and has no accessible name takes the text of
// the label it stands for (its buddy, or the label just before it in its
// layout's row); a box without one takes the text it shows as a prompt.
void NombrarControles(QWidget* raiz);

}  // namespace vanta
