// Figures leave the program: a diagram with its scales (of the main window's
// calculation, or of a comparison) or a composition chart, as a PNG of a
// chosen size, an SVG, pages of a PDF, or on the clipboard.
#pragma once

#include <QByteArray>
#include <QFont>
#include <QImage>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/comparison/Calculos.h"
#include "core/comparison/Figura.h"
#include "core/services/Superficie.h"

class QPainter;

namespace vanta {

enum class FormatoFigura { PNG, SVG, PDF };

// The extension of a format, "png"; and the format of one, if known.
QString ExtensionFigura(FormatoFigura f);
std::optional<FormatoFigura> FormatoDe(const QString& extension);

// A picture that draws itself at any size.
struct Figura {
    QString nombre;  // the file's name without extension: "diagrama-pv"
    QString titulo;  // what a list shows: "Diagrama p-V"
    // The size it is laid out at. A diagram asked smaller is laid out at the
    // size asked; asked bigger, it is drawn larger as a whole, so that its
    // text and lines keep their share of the picture. A chart keeps this
    // layout and only scales, its height following the width.
    QSizeF base;
    bool grafica = false;
    int32_t fondo = 0xFFFFFF;
    QFont letra;
    std::function<void(Superficie&, QSizeF)> dibujar;
};

// The size of a figure's picture when asked at this size (a chart keeps its
// proportion).
QSize TamanoFigura(const Figura& f, QSize pedido);

// Paints the figure on a painter whose device is of TamanoFigura pixels.
void PintarFigura(QPainter& pintor, const Figura& f, QSize pedido);

QImage ImagenFigura(const Figura& f, QSize pedido);
QByteArray SVGFigura(const Figura& f, QSize pedido);
// The bytes of one file: a PNG or an SVG of the first figure, or a PDF with a
// page per figure; nothing when the picture cannot be made (too big for the
// memory).
std::optional<QByteArray> ArchivoFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                         QSize pedido);
// That file, written whole; why not, in words for the user, or nothing.
std::optional<std::string> GuardarArchivoFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                                 QSize pedido, const QString& ruta);
// Each figure in a file of its own in the folder ("diagrama-pv.svg"), the
// files written as one set; why not, or nothing.
std::optional<std::string> GuardarFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                          QSize pedido, const QString& carpeta);
// The picture on the clipboard, as an image and as SVG.
void CopiarFigura(const Figura& f, QSize pedido);

// The figure of one diagram of the calculations, each in its own colour with
// a legend; a single calculation keeps the pens of the processes, with the
// numbers of the states. Calculations without one are left out.
Figura FiguraDiagrama(Diagrama d, std::shared_ptr<const std::vector<CalculoComparado>> calculos,
                      UnidadPresion presion, char separador);
// The figure of one diagram of a calculation, with the pens of its
// processes, and another series laid over it (a second model of the same
// cycle), with a legend of both.
Figura FiguraDiagramaSuperpuesto(Diagrama d, std::shared_ptr<const CalculoComparado> calculo,
                                 std::shared_ptr<const SerieFigura> superpuesta, char separador);
// The four diagrams, in the order p-V, T-V, T-s, h-s.
std::vector<Figura> FigurasDiagramas(std::shared_ptr<const std::vector<CalculoComparado>> calculos,
                                     UnidadPresion presion, char separador);
// The three composition charts of a calculation, at the sizes of the main
// window's boxes.
std::vector<Figura> FigurasGraficas(const CalculoComparado& calculo);

// The size figures are asked at when none is chosen.
inline constexpr QSize kTamanoFigura{1200, 900};

// Writes the four diagrams and the three charts of the calculation into the
// folder, as one set: one file each ("diagrama-pv.svg" …), or for PDF one file
// "figuras.pdf" with a page each. Why not, in words for the user, or nothing.
std::optional<std::string> EscribirFiguras(const CalculoComparado& calculo, const QString& carpeta,
                                           FormatoFigura formato, QSize pedido, UnidadPresion presion);

}  // namespace vanta
