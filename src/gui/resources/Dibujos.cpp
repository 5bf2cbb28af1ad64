#include "gui/resources/Dibujos.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "gui/resources/Programa.h"

#ifndef VANTA_DIR_AYUDA_INSTALADA
#define VANTA_DIR_AYUDA_INSTALADA "/usr/local/share/vanta/ayuda"
#endif
#ifndef VANTA_AYUDA_RELATIVA
#define VANTA_AYUDA_RELATIVA "../share/vanta/ayuda"
#endif

namespace vanta {

namespace {

// ---- Colours -------------------------------------------------------------------

// The pens of the processes, the same hues the diagrams use for compression,
// heat at constant volume, heat at constant pressure, expansion and exhaust,
// softened a little for pictures.
struct Plumas {
    QColor compresion, calorV, calorP, expansion, escape;
};
const Plumas kPlumas{QColor(30, 70, 230), QColor(125, 0, 125), QColor(225, 30, 30), QColor(50, 50, 50),
                     QColor(20, 170, 70)};

const QColor kAcento(30, 70, 230);        // frames and highlights
const QColor kTinta(35, 45, 60);          // text
const QColor kTintaSuave(120, 130, 145);  // axes and idle text

// A colour pulled towards white: t = 0 keeps it, t = 1 is white.
QColor Aclarar(const QColor& c, double t) {
    auto m = [t](int v) { return static_cast<int>(std::lround(v + (255 - v) * t)); };
    return QColor(m(c.red()), m(c.green()), m(c.blue()), c.alpha());
}

QColor ConAlfa(QColor c, int alfa) {
    c.setAlpha(alfa);
    return c;
}

// ---- The canvas ----------------------------------------------------------------

// The largest side, in device pixels, that a picture may have: a wrong size
// gives a smaller picture, never a failed allocation.
constexpr int kLadoMaximo = 4096;

// An empty transparent pixmap of `tamano` logical pixels at `dpr`, or a null
// pixmap when there is no application to paint with.
QPixmap Lienzo(QSize tamano, qreal dpr) {
    if (!qGuiApp) return QPixmap();
    if (!std::isfinite(dpr) || dpr <= 0) dpr = 1;
    dpr = std::clamp(dpr, 0.25, 8.0);
    const int w = std::clamp(tamano.width(), 1, kLadoMaximo);
    const int h = std::clamp(tamano.height(), 1, kLadoMaximo);
    const int wd = std::clamp(static_cast<int>(std::ceil(w * dpr)), 1, kLadoMaximo);
    const int hd = std::clamp(static_cast<int>(std::ceil(h * dpr)), 1, kLadoMaximo);
    QPixmap pm(wd, hd);
    pm.setDevicePixelRatio(dpr);
    pm.fill(Qt::transparent);
    return pm;
}

// The logical size of a canvas.
QSizeF Logico(const QPixmap& pm) {
    return QSizeF(pm.size()) / pm.devicePixelRatio();
}

QFont Letra(double pixeles, bool negrita = false) {
    QFont f = QGuiApplication::font();
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(pixeles))));
    f.setBold(negrita);
    return f;
}

// A line that does not fit `ancho` broken in two at the blank nearest its
// middle, so that the two lines are of a length.
QString PartirEnDos(const QString& texto, const QFontMetricsF& fm, double ancho) {
    if (fm.horizontalAdvance(texto) <= ancho) return texto;
    const qsizetype mitad = texto.size() / 2;
    qsizetype mejor = -1;
    for (qsizetype i = 0; i < texto.size(); ++i)
        if (texto[i] == QLatin1Char(' ') && (mejor < 0 || std::abs(i - mitad) < std::abs(mejor - mitad)))
            mejor = i;
    if (mejor < 0) return texto;
    return texto.left(mejor) + QLatin1Char('\n') + texto.mid(mejor + 1);
}

// ---- The schematic cycles --------------------------------------------------------

enum class Forma { Otto, Diesel, Mixto, Ninguna };

Forma FormaDe(const QString& ciclo) {
    if (ciclo == QLatin1String(kCicloOtto)) return Forma::Otto;
    if (ciclo == QLatin1String(kCicloDiesel)) return Forma::Diesel;
    if (ciclo == QLatin1String(kCicloMixto)) return Forma::Mixto;
    return Forma::Ninguna;
}

// One process of a cycle: its points in (V / V1, p / pmax) and its pen.
struct Tramo {
    std::vector<QPointF> puntos;
    QColor color;
};

// A cycle in (V / V1, p / pmax): the processes in order, the five states and
// the label of each state (equal states share one label, "2=3", "3=4").
struct Ciclo {
    std::vector<Tramo> tramos;
    std::array<QPointF, 5> estados;
    std::array<QString, 5> etiquetas;
};

// Shapes chosen to read well, not to scale: a low compression ratio opens the
// loop; exponents 1.35 and 1.30.
constexpr double kRcDibujo = 6;
constexpr double kRcIcono = 4;
constexpr double kNCompresion = 1.35;
constexpr double kNExpansion = 1.30;
constexpr int kPasosCurva = 40;

// p V^n = constant from (va, pa) to vb.
std::vector<QPointF> Politropica(double va, double pa, double vb, double n) {
    std::vector<QPointF> r;
    r.reserve(kPasosCurva + 1);
    for (int i = 0; i <= kPasosCurva; ++i) {
        const double v = va + (vb - va) * i / kPasosCurva;
        r.emplace_back(v, pa * std::pow(va / v, n));
    }
    return r;
}

Ciclo CicloDe(Forma forma, double rc = kRcDibujo) {
    // Pressures in units of p1; state 1 at V1 = 1.
    const double v2 = 1 / rc;
    const double p1 = 1;
    const double p2 = p1 * std::pow(1 / v2, kNCompresion);
    double p3 = p2, v4 = v2;
    switch (forma) {
        case Forma::Otto:
            p3 = 2.6 * p2;
            break;
        case Forma::Diesel:
            v4 = 2.6 * v2;
            break;
        case Forma::Mixto:
        case Forma::Ninguna:
            p3 = 1.6 * p2;
            v4 = 1.7 * v2;
            break;
    }
    const double p4 = p3;
    const double p5 = p4 * std::pow(v4 / 1.0, kNExpansion);

    Ciclo c;
    c.tramos.push_back({Politropica(1, p1, v2, kNCompresion), kPlumas.compresion});
    if (p3 > p2) c.tramos.push_back({{QPointF(v2, p2), QPointF(v2, p3)}, kPlumas.calorV});
    if (v4 > v2) c.tramos.push_back({{QPointF(v2, p3), QPointF(v4, p4)}, kPlumas.calorP});
    c.tramos.push_back({Politropica(v4, p4, 1, kNExpansion), kPlumas.expansion});
    c.tramos.push_back({{QPointF(1, p5), QPointF(1, p1)}, kPlumas.escape});
    c.estados = {QPointF(1, p1), QPointF(v2, p2), QPointF(v2, p3), QPointF(v4, p4), QPointF(1, p5)};
    c.etiquetas = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                   QStringLiteral("5")};
    if (forma == Forma::Otto) {
        c.etiquetas[2] = QStringLiteral("3=4");
        c.etiquetas[3].clear();
    } else if (forma == Forma::Diesel) {
        c.etiquetas[1] = QStringLiteral("2=3");
        c.etiquetas[2].clear();
    }
    // To pmax = 1.
    const double pmax = p3;
    for (Tramo& t : c.tramos)
        for (QPointF& q : t.puntos) q.setY(q.y() / pmax);
    for (QPointF& q : c.estados) q.setY(q.y() / pmax);
    return c;
}

// How a cycle is painted.
enum class Estilo {
    Reposo,   // an idle picture: light hues, thin lines
    Elegido,  // the chosen picture: full colours, the work shaded
    Tenue,    // a faint outline, behind text
    Noche,    // bright lines on a dark ground, with a glow
};

// Where a cycle goes: the plot rectangle. Pressure is drawn through a square
// root so that the low part of the cycle stays visible beside the peak, and
// the bottom edge stands a little under state 1, not at zero, so that the
// loop fills the rectangle.
struct Plano {
    QRectF r;
    double pie = 0;  // the square root of p / pmax at the bottom edge

    Plano(const QRectF& rect, const Ciclo& c) : r(rect), pie(0.8 * std::sqrt(c.estados[0].y())) {}
    QPointF operator()(QPointF q) const {
        const double y = (std::sqrt(std::max(0.0, q.y())) - pie) / (1 - pie);
        return {r.left() + q.x() * r.width(), r.bottom() - y * r.height()};
    }
};

QColor PlumaSegun(const QColor& c, Estilo estilo) {
    switch (estilo) {
        case Estilo::Reposo:
            return Aclarar(c, 0.35);
        case Estilo::Elegido:
            return c;
        case Estilo::Tenue:
            return ConAlfa(Aclarar(c, 0.2), 70);
        case Estilo::Noche:
            return c == kPlumas.expansion ? QColor(235, 240, 250) : Aclarar(c, 0.3);
    }
    return c;
}

QPainterPath Camino(const Ciclo& c, const Plano& plano) {
    QPainterPath camino;
    bool primero = true;
    for (const Tramo& t : c.tramos)
        for (const QPointF& q : t.puntos) {
            if (primero)
                camino.moveTo(plano(q));
            else
                camino.lineTo(plano(q));
            primero = false;
        }
    camino.closeSubpath();
    return camino;
}

// A small arrowhead at the middle of a process, pointing the way it runs.
void Flecha(QPainter& p, const Tramo& t, const Plano& plano, double largo, const QColor& color) {
    if (t.puntos.size() < 2) return;
    const size_t m = t.puntos.size() / 2;
    const QPointF a = plano(t.puntos[m - 1]);
    const QPointF b = plano(t.puntos[m]);
    QPointF d = b - a;
    const double n = std::hypot(d.x(), d.y());
    if (n <= 0) return;
    d /= n;
    const QPointF normal(-d.y(), d.x());
    const QPointF punta = (a + b) / 2 + d * (largo / 2);
    QPolygonF cabeza;
    cabeza << punta << punta - d * largo + normal * (largo * 0.45)
           << punta - d * largo - normal * (largo * 0.45);
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPolygon(cabeza);
    p.restore();
}

// Paints a cycle into the plot rectangle: the shaded work, the processes, the
// states and their numbers in letters of `letra` pixels (none when 0), the
// arrows (when `flechas`).
void PintarCiclo(QPainter& p, const Ciclo& c, const QRectF& r, Estilo estilo, double grosor, double letra,
                 bool flechas) {
    const Plano plano(r, c);
    const QPainterPath camino = Camino(c, plano);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    if (estilo == Estilo::Elegido) {
        QLinearGradient g(r.topLeft(), r.bottomLeft());
        g.setColorAt(0, QColor(255, 214, 140, 150));
        g.setColorAt(1, QColor(255, 236, 200, 90));
        p.fillPath(camino, g);
    } else if (estilo == Estilo::Noche) {
        QLinearGradient g(r.topLeft(), r.bottomLeft());
        g.setColorAt(0, QColor(255, 170, 80, 70));
        g.setColorAt(1, QColor(80, 160, 255, 25));
        p.fillPath(camino, g);
    }

    auto trazar = [&](double ancho, int alfa) {
        for (const Tramo& t : c.tramos) {
            QColor color = PlumaSegun(t.color, estilo);
            if (alfa < 255) color.setAlpha(alfa);
            p.setPen(QPen(color, ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            QPolygonF linea;
            for (const QPointF& q : t.puntos) linea << plano(q);
            p.drawPolyline(linea);
        }
    };
    if (estilo == Estilo::Noche) {
        trazar(grosor * 5, 28);  // the glow
        trazar(grosor * 2.6, 45);
    }
    trazar(grosor, 255);

    if (flechas)
        for (const Tramo& t : c.tramos)
            if (t.puntos.size() > 2) Flecha(p, t, plano, grosor * 4.2, PlumaSegun(t.color, estilo));

    if (letra > 0) {
        const double radio = grosor * 1.45;
        const QColor borde = estilo == Estilo::Elegido ? kTinta
                             : estilo == Estilo::Noche ? QColor(235, 240, 250)
                                                       : kTintaSuave;
        const QColor relleno = estilo == Estilo::Noche ? QColor(20, 40, 75) : QColor(Qt::white);
        QFont f = Letra(letra, estilo == Estilo::Elegido);
        p.setFont(f);
        const QFontMetricsF fm(f);
        for (size_t i = 0; i < c.estados.size(); ++i) {
            const QPointF q = plano(c.estados[i]);
            if (c.etiquetas[i].isEmpty()) continue;
            p.setPen(QPen(borde, std::max(1.0, grosor * 0.6)));
            p.setBrush(relleno);
            p.drawEllipse(q, radio, radio);
            // The number stands outside the loop: 1 and 5 to the right, 2 and 3
            // to the left, 4 above.
            static const std::array<QPointF, 5> kHacia{QPointF(0.82, 0.57), QPointF(-0.96, 0.28),
                                                       QPointF(-0.78, -0.62), QPointF(0.51, -0.86),
                                                       QPointF(0.89, -0.45)};
            const QPointF d = kHacia[i];
            const QString texto = c.etiquetas[i];
            const QSizeF t(fm.horizontalAdvance(texto), fm.capHeight());
            const double separacion = radio + fm.height() * 0.35;
            const QPointF ancla =
                q + QPointF(d.x() * (separacion + t.width() / 2), d.y() * (separacion + t.height() / 2));
            p.setPen(borde);
            p.drawText(QPointF(ancla.x() - t.width() / 2, ancla.y() + t.height() / 2), texto);
        }
    }
    p.restore();
}

// Axes p and V with arrowheads, from the corner `origen` to the ends given.
void PintarEjes(QPainter& p, QPointF origen, double finX, double finY, const QColor& color, double grosor,
                double letra) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(color, grosor, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(origen, QPointF(finX, origen.y()));
    p.drawLine(origen, QPointF(origen.x(), finY));
    const double a = grosor * 3.5;
    p.setBrush(color);
    p.setPen(Qt::NoPen);
    p.drawPolygon(QPolygonF{QPointF(finX + a, origen.y()), QPointF(finX - a * 0.4, origen.y() - a * 0.7),
                            QPointF(finX - a * 0.4, origen.y() + a * 0.7)});
    p.drawPolygon(QPolygonF{QPointF(origen.x(), finY - a), QPointF(origen.x() - a * 0.7, finY + a * 0.4),
                            QPointF(origen.x() + a * 0.7, finY + a * 0.4)});
    if (letra < 7) {
        p.restore();
        return;
    }
    QFont f = Letra(letra);
    f.setItalic(true);
    p.setFont(f);
    p.setPen(color);
    const QFontMetricsF fm(f);
    p.drawText(
        QPointF(finX - fm.horizontalAdvance(QStringLiteral("V")), origen.y() + fm.ascent() + grosor * 2),
        QStringLiteral("V"));
    p.drawText(
        QPointF(origen.x() - fm.horizontalAdvance(QStringLiteral("p")) - grosor * 3, finY + fm.ascent()),
        QStringLiteral("p"));
    p.restore();
}

// A whole cycle picture in `marco`: axes, cycle, numbers and, when asked, the
// name of the cycle above.
void PintarFicha(QPainter& p, Forma forma, const QString& nombre, const QRectF& marco, Estilo estilo,
                 bool conNombre) {
    const double s = std::min(marco.width(), marco.height());
    const double grosor = std::max(1.0, s / (estilo == Estilo::Elegido ? 45.0 : 60.0));
    const double letraEje = s * 0.085;
    const double arriba = conNombre ? s * 0.2 : s * 0.08;
    const QPointF origen(marco.left() + s * 0.12, marco.bottom() - s * 0.1);
    const double finX = marco.right() - s * 0.06;
    const double finY = marco.top() + arriba;
    const QColor colorEjes = estilo == Estilo::Tenue ? ConAlfa(kTintaSuave, 90) : kTintaSuave;
    PintarEjes(p, origen, finX, finY, colorEjes, std::max(1.0, s / 110), letraEje);

    if (conNombre) {
        QFont f = Letra(s * 0.13, true);
        p.setFont(f);
        p.setPen(estilo == Estilo::Elegido ? kAcento
                 : estilo == Estilo::Tenue ? ConAlfa(kTintaSuave, 110)
                                           : kTintaSuave);
        const QRectF caja(marco.left() + s * 0.2, marco.top() + s * 0.03, marco.width() - s * 0.26, s * 0.16);
        p.drawText(caja, Qt::AlignRight | Qt::AlignVCenter, nombre);
    }
    if (forma == Forma::Ninguna) return;
    // The loop stands clear of the axes.
    const QRectF plot(origen.x() + s * 0.16, finY + s * 0.07, finX - origen.x() - s * 0.28,
                      origen.y() - finY - s * 0.17);
    const bool detalle = estilo != Estilo::Tenue && s >= 56;
    PintarCiclo(p, CicloDe(forma), plot, estilo, grosor, detalle ? std::max(8.0, s * 0.075) : 0,
                detalle && s >= 110);
}

// Paints a picture of `tamano` logical pixels at `dpr` with `pintor`, which
// gets the painter, smoothing on, and the logical size.
template <class Pintor>
QPixmap Pintar(QSize tamano, qreal dpr, Pintor&& pintor) {
    QPixmap pm = Lienzo(tamano, dpr);
    if (pm.isNull()) return pm;
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    pintor(p, Logico(pm));
    return pm;
}

}  // namespace

// ---- Public pictures -------------------------------------------------------------

QPixmap DibujoCiclo(const QString& ciclo, bool elegido, QSize tamano, qreal dpr) {
    return Pintar(tamano, dpr, [&](QPainter& p, QSizeF t) {
        const double s = std::min(t.width(), t.height());
        const QRectF marco(QPointF(0, 0), t);
        const double radio = s * 0.07;
        // Ground: cool grey when idle, warm white with a blue edge when chosen.
        if (elegido) {
            QLinearGradient g(0, 0, 0, t.height());
            g.setColorAt(0, QColor(255, 255, 255));
            g.setColorAt(1, QColor(255, 247, 232));
            p.setBrush(g);
            const double borde = std::max(1.5, s / 40);
            p.setPen(QPen(kAcento, borde));
            p.drawRoundedRect(marco.adjusted(borde / 2, borde / 2, -borde / 2, -borde / 2), radio, radio);
        } else {
            p.setBrush(QColor(243, 245, 248));
            p.setPen(QPen(QColor(210, 216, 224), 1));
            p.drawRoundedRect(marco.adjusted(0.5, 0.5, -0.5, -0.5), radio, radio);
        }
        PintarFicha(p, FormaDe(ciclo), ciclo, marco.adjusted(s * 0.03, s * 0.03, -s * 0.03, -s * 0.03),
                    elegido ? Estilo::Elegido : Estilo::Reposo, true);
    });
}

QPixmap DibujoElegirCiclo(QSize tamano, qreal dpr) {
    return Pintar(tamano, dpr, [&](QPainter& p, QSizeF t) {
        const double s = std::min(t.width(), t.height());
        const QRectF marco(QPointF(0, 0), t);
        QLinearGradient g(0, 0, 0, t.height());
        g.setColorAt(0, QColor(250, 251, 253));
        g.setColorAt(1, QColor(234, 239, 246));
        p.setBrush(g);
        p.setPen(QPen(QColor(210, 216, 224), 1));
        p.drawRoundedRect(marco.adjusted(0.5, 0.5, -0.5, -0.5), s * 0.04, s * 0.04);

        // The three shapes, faint, side by side in the lower part.
        const double alto = t.height() * 0.5;
        const double ancho = t.width() / 3;
        const double lado = std::min(alto, ancho * 0.92);
        const std::array<Forma, 3> formas{Forma::Otto, Forma::Diesel, Forma::Mixto};
        const std::array<const char*, 3> nombres{kCicloOtto, kCicloDiesel, kCicloMixto};
        for (int i = 0; i < 3; ++i) {
            const QRectF celda(ancho * i + (ancho - lado) / 2, t.height() * 0.42 + (alto - lado) / 2, lado,
                               lado);
            PintarFicha(p, formas[i], QLatin1String(nombres[i]), celda, Estilo::Tenue, true);
        }

        p.setPen(kTinta);
        QFont titulo = Letra(std::min(t.height() * 0.14, t.width() * 0.085), true);
        p.setFont(titulo);
        p.drawText(QRectF(0, t.height() * 0.07, t.width(), t.height() * 0.2), Qt::AlignCenter,
                   QStringLiteral("Elija el ciclo"));
        p.setPen(kTintaSuave);
        p.setFont(Letra(std::min(t.height() * 0.055, t.width() * 0.036)));
        p.drawText(
            QRectF(0, t.height() * 0.27, t.width(), t.height() * 0.1), Qt::AlignCenter,
            QStringLiteral("Pulse sobre uno de los tres dibujos: %1, %2 o %3")
                .arg(QLatin1String(kCicloOtto), QLatin1String(kCicloDiesel), QLatin1String(kCicloMixto)));
    });
}

QPixmap DibujoPresentacion(QSize tamano, qreal dpr) {
    return Pintar(tamano, dpr, [&](QPainter& p, QSizeF t) {
        const double w = t.width(), h = t.height();
        const double s = std::min(w, h);

        // Night-blue ground with a lighter glow behind the cycle.
        QLinearGradient fondo(0, 0, w, h);
        fondo.setColorAt(0, QColor(9, 22, 48));
        fondo.setColorAt(1, QColor(16, 52, 92));
        p.fillRect(QRectF(0, 0, w, h), fondo);
        QRadialGradient brillo(QPointF(w * 0.68, h * 0.45), s * 0.6);
        brillo.setColorAt(0, QColor(70, 130, 220, 70));
        brillo.setColorAt(1, QColor(70, 130, 220, 0));
        p.fillRect(QRectF(0, 0, w, h), brillo);

        // Squared paper, faint.
        p.setPen(QPen(QColor(255, 255, 255, 14), 1));
        const double paso = std::max(8.0, s / 24);
        for (double x = 0; x < w; x += paso) p.drawLine(QPointF(x, 0), QPointF(x, h));
        for (double y = 0; y < h; y += paso) p.drawLine(QPointF(0, y), QPointF(w, y));

        // The cycle on the right, with a family of adiabats behind it.
        const QRectF zona(w * 0.5, h * 0.13, w * 0.33, h * 0.55);
        const Ciclo mixto = CicloDe(Forma::Mixto);
        const Plano plano(zona, mixto);
        p.setPen(QPen(QColor(255, 255, 255, 22), std::max(1.0, s / 500)));
        p.save();
        p.setClipRect(QRectF(zona.left(), 0, w, zona.bottom() + s * 0.02));
        for (int k = 1; k <= 7; ++k) {
            QPolygonF curva;
            const double pa = 0.06 * k * k;
            for (const QPointF& q : Politropica(0.1, pa, 1.06, kNExpansion)) curva << plano(q);
            p.drawPolyline(curva);
        }
        p.restore();
        const double grosor = std::max(1.5, s / 190);
        PintarEjes(p, QPointF(zona.left() - s * 0.05, zona.bottom() + s * 0.04), zona.right() + s * 0.04,
                   zona.top() - s * 0.05, QColor(200, 215, 235, 170), std::max(1.0, s / 400), s * 0.035);
        PintarCiclo(p, mixto, zona, Estilo::Noche, grosor, zona.height() * 0.105, true);

        // The cylinder under the diagram: head at V = 0, piston at bottom dead
        // centre, under V1; the crank beyond.
        const double x0 = zona.left();
        const double xPms = plano(QPointF(mixto.estados[1].x(), 0)).x();
        const double xPmi = plano(QPointF(1, 0)).x();
        const double yc = zona.bottom() + h * 0.14;
        const double radioCil = h * 0.045;
        const QColor linea(200, 215, 235, 150);
        p.setPen(QPen(linea, std::max(1.0, s / 350)));
        p.setBrush(Qt::NoBrush);
        QPainterPath cilindro;
        cilindro.moveTo(xPmi + (xPmi - x0) * 0.08, yc - radioCil);
        cilindro.lineTo(x0, yc - radioCil);
        cilindro.lineTo(x0, yc + radioCil);
        cilindro.lineTo(xPmi + (xPmi - x0) * 0.08, yc + radioCil);
        p.drawPath(cilindro);
        // The dead centres, dashed up to the diagram.
        QPen discontinua(QColor(200, 215, 235, 70), std::max(1.0, s / 500), Qt::DashLine);
        p.setPen(discontinua);
        p.drawLine(QPointF(xPms, yc - radioCil), QPointF(xPms, zona.bottom() + s * 0.04));
        p.drawLine(QPointF(xPmi, yc - radioCil), QPointF(xPmi, zona.bottom() + s * 0.04));
        // Piston at bottom dead centre, rod to the crank pin.
        const double anchoPiston = radioCil * 1.2;
        QLinearGradient metal(0, yc - radioCil, 0, yc + radioCil);
        metal.setColorAt(0, QColor(190, 205, 225));
        metal.setColorAt(1, QColor(110, 130, 160));
        p.setPen(Qt::NoPen);
        p.setBrush(metal);
        p.drawRoundedRect(QRectF(xPmi - anchoPiston, yc - radioCil * 0.92, anchoPiston, radioCil * 1.84),
                          radioCil * 0.12, radioCil * 0.12);
        const double radioMan = radioCil * 0.8;
        const QPointF ejeCiguenal(xPmi + radioCil * 3.4, yc);
        const QPointF munequilla = ejeCiguenal + QPointF(-radioMan * 0.7, -radioMan * 0.7);
        p.setPen(QPen(QColor(190, 205, 225, 200), radioCil * 0.22, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(xPmi - anchoPiston / 2, yc), munequilla);
        p.setPen(QPen(linea, std::max(1.0, s / 350)));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(ejeCiguenal, radioMan, radioMan);
        p.setBrush(QColor(190, 205, 225));
        p.drawEllipse(munequilla, radioCil * 0.14, radioCil * 0.14);
        // A spark at the head: the heat enters at top dead centre.
        QRadialGradient chispa(QPointF(x0 + (xPms - x0) * 0.5, yc), radioCil * 1.1);
        chispa.setColorAt(0, QColor(255, 200, 110, 200));
        chispa.setColorAt(1, QColor(255, 120, 40, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(chispa);
        p.drawEllipse(QPointF(x0 + (xPms - x0) * 0.5, yc), radioCil * 1.1, radioCil * 0.9);

        // The name and what the program does.
        const double margen = w * 0.06;
        p.setPen(QColor(245, 248, 255));
        QFont nombre = Letra(std::min(h * 0.17, w * 0.12), true);
        nombre.setLetterSpacing(QFont::PercentageSpacing, 104);
        p.setFont(nombre);
        const QFontMetricsF fmNombre(nombre);
        const double base = h * 0.42;
        p.drawText(QPointF(margen, base), NombrePrograma());
        // An accent rule in the colours of the processes.
        const std::array<QColor, 5> colores{kPlumas.compresion, kPlumas.calorV, kPlumas.calorP,
                                            QColor(235, 240, 250), kPlumas.escape};
        const double largoRegla = fmNombre.horizontalAdvance(NombrePrograma());
        const double yRegla = base + h * 0.035;
        const double grosorRegla = std::max(2.0, h * 0.008);
        for (size_t i = 0; i < colores.size(); ++i) {
            p.fillRect(QRectF(margen + largoRegla * i / colores.size(), yRegla, largoRegla / colores.size(),
                              grosorRegla),
                       Aclarar(colores[i], i == 3 ? 0 : 0.25));
        }
        p.setPen(QColor(200, 215, 235));
        // The description in at most two lines across the text column.
        const double anchoColumna = w * 0.38;
        QFont linea1 = Letra(std::min(h * 0.036, w * 0.024));
        const QString descripcion = PartirEnDos(DescripcionPrograma(), QFontMetricsF(linea1), anchoColumna);
        const double ancho = QFontMetricsF(linea1).boundingRect(QRectF(0, 0, w, h), 0, descripcion).width();
        if (ancho > anchoColumna)
            linea1.setPixelSize(std::max(1, static_cast<int>(linea1.pixelSize() * anchoColumna / ancho)));
        p.setFont(linea1);
        QRectF ocupado;
        p.drawText(QRectF(margen, yRegla + h * 0.045, anchoColumna, h * 0.2), Qt::AlignLeft | Qt::AlignTop,
                   descripcion, &ocupado);
        // The three cycles it solves, in the accent of the heat.
        p.setPen(QColor(255, 190, 120));
        p.setFont(Letra(std::min(h * 0.032, w * 0.021), true));
        const QString ciclos =
            QStringLiteral("%1  ·  %2  ·  %3")
                .arg(QLatin1String(kCicloOtto), QLatin1String(kCicloDiesel), QLatin1String(kCicloMixto));
        p.drawText(QPointF(margen, ocupado.bottom() + h * 0.06), ciclos);
    });
}

namespace {

// The icon's picture: the loop of a mixed cycle, its work shaded in the warm
// tint of the heat, on a night-blue tile; axes when there is room for them.
void PintarIcono(QPainter& p, double lado) {
    p.setRenderHint(QPainter::Antialiasing);
    const double radio = lado * 0.2;
    QLinearGradient fondo(0, 0, lado, lado);
    fondo.setColorAt(0, QColor(24, 60, 125));
    fondo.setColorAt(1, QColor(8, 22, 50));
    p.setPen(Qt::NoPen);
    p.setBrush(fondo);
    p.drawRoundedRect(QRectF(0, 0, lado, lado), radio, radio);
    if (lado >= 32) {
        const QColor eje(200, 215, 235, 150);
        p.setPen(QPen(eje, lado / 40, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(lado * 0.17, lado * 0.15), QPointF(lado * 0.17, lado * 0.83));
        p.drawLine(QPointF(lado * 0.17, lado * 0.83), QPointF(lado * 0.87, lado * 0.83));
    }
    const QRectF zona(lado * 0.28, lado * 0.2, lado * 0.55, lado * 0.66);
    const Ciclo c = CicloDe(Forma::Mixto, kRcIcono);
    const Plano plano(zona, c);
    QLinearGradient calor(zona.topLeft(), zona.bottomRight());
    calor.setColorAt(0, QColor(255, 196, 90));
    calor.setColorAt(1, QColor(240, 90, 50));
    p.fillPath(Camino(c, plano), calor);
    const double grosor = std::max(1.3, lado * 0.055);
    for (const Tramo& t : c.tramos) {
        p.setPen(
            QPen(PlumaSegun(t.color, Estilo::Noche), grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QPolygonF linea;
        for (const QPointF& q : t.puntos) linea << plano(q);
        p.drawPolyline(linea);
    }
}

}  // namespace

QIcon IconoVanta() {
    QIcon icono;
    if (!qGuiApp) return icono;
    for (int lado : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pm(lado, lado);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        PintarIcono(p, lado);
        p.end();
        icono.addPixmap(pm);
    }
    return icono;
}

// ---- Help ------------------------------------------------------------------------

QString RutaAyudaDesde(const QString& carpetaPrograma) {
    const QString indice = QStringLiteral("Index.htm");
    if (!carpetaPrograma.isEmpty()) {
        const QDir dir(carpetaPrograma);
        // The build tree keeps the pages beside the program; an installed
        // program finds them under its prefix.
        for (const QString& candidata : {dir.filePath(QStringLiteral("ayuda/") + indice),
                                         dir.filePath(QStringLiteral(VANTA_AYUDA_RELATIVA "/") + indice)}) {
            if (QFileInfo::exists(candidata)) return QDir::cleanPath(candidata);
        }
    }
    return QDir(QStringLiteral(VANTA_DIR_AYUDA_INSTALADA)).filePath(indice);
}

QString RutaAyuda() {
    return RutaAyudaDesde(QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString());
}

}  // namespace vanta
