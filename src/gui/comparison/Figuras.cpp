#include "gui/comparison/Figuras.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "core/files/EscribirArchivos.h"
#include "core/fluids/Graficas.h"
#include "core/workflow/Flujo.h"
#include "gui/comparison/SuperficiePintor.h"
#include "gui/reports/DialogosInforme.h"
#include "gui/services/PuertosQt.h"
#include "gui/services/SuperficieImagen.h"
#include "gui/services/SuperficieQt.h"

namespace vanta {

namespace {

// Figures are measured as a screen of 96 dots per inch measures them.
constexpr int kPuntosPorPulgada = 96;
constexpr QSizeF kBaseDiagrama{900, 650};
constexpr qreal kPuntosLetraDiagrama = 9;

// The letter of the figures: one family wherever they are drawn or opened (an
// SVG names it, and a browser knows no "Sans Serif").
QFont LetraFigura(qreal puntos) {
    QFont letra(QStringLiteral("DejaVu Sans"));
    letra.setStyleHint(QFont::SansSerif);
    letra.setPointSizeF(puntos);
    return letra;
}

struct Lienzo {
    QSize pixeles;
    QSizeF logico;
    qreal escala = 1;
};

Lienzo LienzoDe(const Figura& f, QSize pedido) {
    Lienzo l;
    l.pixeles = TamanoFigura(f, pedido);
    if (f.grafica) {
        l.escala = l.pixeles.width() / f.base.width();
        l.logico = f.base;
    } else {
        l.escala = std::max<qreal>(
            1, std::min(l.pixeles.width() / f.base.width(), l.pixeles.height() / f.base.height()));
        l.logico = QSizeF(l.pixeles) / l.escala;
    }
    return l;
}

const char* kNombresDiagramas[] = {"diagrama-pv", "diagrama-tv", "diagrama-ts", "diagrama-hs"};

constexpr std::string_view kFiguraSinMemoria = "no hay memoria para dibujar las figuras de ese tamaño";

}  // namespace

QString ExtensionFigura(FormatoFigura f) {
    switch (f) {
        case FormatoFigura::SVG:
            return QStringLiteral("svg");
        case FormatoFigura::PDF:
            return QStringLiteral("pdf");
        case FormatoFigura::PNG:
            break;
    }
    return QStringLiteral("png");
}

std::optional<FormatoFigura> FormatoDe(const QString& extension) {
    for (FormatoFigura f : {FormatoFigura::PNG, FormatoFigura::SVG, FormatoFigura::PDF})
        if (extension.compare(ExtensionFigura(f), Qt::CaseInsensitive) == 0) return f;
    return std::nullopt;
}

QSize TamanoFigura(const Figura& f, QSize pedido) {
    pedido = pedido.expandedTo(QSize(1, 1));
    if (!f.grafica) return pedido;
    return {pedido.width(), std::max(1, qRound(pedido.width() * f.base.height() / f.base.width()))};
}

void PintarFigura(QPainter& pintor, const Figura& f, QSize pedido) {
    const Lienzo l = LienzoDe(f, pedido);
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.scale(l.escala, l.escala);
    pintor.setFont(f.letra);
    {
        SuperficiePintor s(pintor, l.logico, f.fondo);
        f.dibujar(s, l.logico);
    }
    pintor.restore();
}

QImage ImagenFigura(const Figura& f, QSize pedido) {
    QImage imagen(TamanoFigura(f, pedido), QImage::Format_RGB32);
    imagen.setDotsPerMeterX(qRound(kPuntosPorPulgada / 0.0254));
    imagen.setDotsPerMeterY(qRound(kPuntosPorPulgada / 0.0254));
    imagen.fill(ColorQt(f.fondo));
    QPainter pintor(&imagen);
    PintarFigura(pintor, f, pedido);
    return imagen;
}

QByteArray SVGFigura(const Figura& f, QSize pedido) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    const QSize t = TamanoFigura(f, pedido);
    svg.setSize(t);
    svg.setViewBox(QRect(QPoint(0, 0), t));
    svg.setResolution(kPuntosPorPulgada);
    svg.setTitle(f.titulo);
    svg.setDescription(QStringLiteral("Vanta"));
    QPainter pintor(&svg);
    PintarFigura(pintor, f, pedido);
    pintor.end();
    return buffer.data();
}

std::optional<QByteArray> ArchivoFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                         QSize pedido) {
    if (figuras.empty()) return std::nullopt;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (formato == FormatoFigura::SVG) return SVGFigura(figuras.front(), pedido);
    if (formato == FormatoFigura::PNG) {
        if (!ImagenFigura(figuras.front(), pedido).save(&buffer, "PNG")) return std::nullopt;
        return buffer.data();
    }
    QPdfWriter pdf(&buffer);
    pdf.setResolution(kPuntosPorPulgada);
    pdf.setCreator(QStringLiteral("Vanta"));
    pdf.setTitle(figuras.front().titulo);
    QPainter pintor;
    for (size_t i = 0; i < figuras.size(); ++i) {
        // Each page is the figure's size, with no margins.
        const QSize t = TamanoFigura(figuras[i], pedido);
        const QPageSize pagina(QSizeF(t) * 72.0 / kPuntosPorPulgada, QPageSize::Point, QString(),
                               QPageSize::ExactMatch);
        pdf.setPageLayout(QPageLayout(pagina, QPageLayout::Portrait, QMarginsF()));
        if (i == 0 ? !pintor.begin(&pdf) : !pdf.newPage()) return std::nullopt;
        PintarFigura(pintor, figuras[i], pedido);
    }
    if (!pintor.end()) return std::nullopt;
    return buffer.data();
}

std::optional<std::string> GuardarArchivoFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                                 QSize pedido, const QString& ruta) {
    const std::optional<QByteArray> bytes = ArchivoFiguras(figuras, formato, pedido);
    if (!bytes) return std::string(kFiguraSinMemoria);
    return EscribirArchivo(RutaArchivo(ruta), std::string_view(bytes->constData(), bytes->size()));
}

std::optional<std::string> GuardarFiguras(const std::vector<Figura>& figuras, FormatoFigura formato,
                                          QSize pedido, const QString& carpeta) {
    std::vector<ArchivoDeConjunto> conjunto;
    for (const Figura& f : figuras) {
        const std::optional<QByteArray> bytes = ArchivoFiguras({f}, formato, pedido);
        if (!bytes) return std::string(kFiguraSinMemoria);
        conjunto.push_back(
            {RutaArchivo(QDir(carpeta).filePath(f.nombre + QLatin1Char('.') + ExtensionFigura(formato))),
             bytes->toStdString()});
    }
    return EscribirConjunto(conjunto);
}

void CopiarFigura(const Figura& f, QSize pedido) {
    auto* datos = new QMimeData;
    datos->setImageData(ImagenFigura(f, pedido));
    datos->setData(QStringLiteral("image/svg+xml"), SVGFigura(f, pedido));
    QGuiApplication::clipboard()->setMimeData(datos);
}

namespace {

// A diagram's figure with its name, title, size and letter, still to draw.
Figura FiguraBaseDiagrama(Diagrama d) {
    Figura f;
    f.nombre = QString::fromLatin1(kNombresDiagramas[static_cast<size_t>(d)]);
    f.titulo = ATexto(TituloFigura(d));
    f.base = kBaseDiagrama;
    f.fondo = kFondoBlanco;
    f.letra = LetraFigura(kPuntosLetraDiagrama);
    return f;
}

}  // namespace

Figura FiguraDiagrama(Diagrama d, std::shared_ptr<const std::vector<CalculoComparado>> calculos,
                      UnidadPresion presion, char separador) {
    Figura f = FiguraBaseDiagrama(d);
    f.dibujar = [d, calculos, presion, separador](Superficie& s, QSizeF t) {
        const auto hay =
            std::count_if(calculos->begin(), calculos->end(), [](const auto& c) { return c.Hay(); });
        std::vector<SerieFigura> series;
        for (size_t i = 0; i < calculos->size(); ++i) {
            const CalculoComparado& c = (*calculos)[i];
            if (c.Hay())
                series.push_back({c.nombre, &c.curvas, c.estado.get(), hay > 1, ColorComparacion(i)});
        }
        const OpcionesFigura o{
            .presion = presion, .separador = separador, .leyenda = hay > 1, .numerar = true};
        DibujarFigura(s, static_cast<float>(t.width()), static_cast<float>(t.height()), d, series, o);
    };
    return f;
}

Figura FiguraDiagramaSuperpuesto(Diagrama d, std::shared_ptr<const CalculoComparado> calculo,
                                 std::shared_ptr<const SerieFigura> superpuesta, char separador) {
    Figura f = FiguraBaseDiagrama(d);
    f.dibujar = [d, calculo, superpuesta, separador](Superficie& s, QSizeF t) {
        const std::vector<SerieFigura> series = {
            {calculo->nombre, &calculo->curvas, calculo->estado.get(), true, ColorComparacion(0)},
            *superpuesta};
        const OpcionesFigura o{.presion = UnidadPresion::Pa, .separador = separador, .leyenda = true};
        DibujarFigura(s, static_cast<float>(t.width()), static_cast<float>(t.height()), d, series, o);
    };
    return f;
}

std::vector<Figura> FigurasDiagramas(std::shared_ptr<const std::vector<CalculoComparado>> calculos,
                                     UnidadPresion presion, char separador) {
    std::vector<Figura> figuras;
    for (Diagrama d : {Diagrama::PV, Diagrama::TV, Diagrama::TS, Diagrama::HS})
        figuras.push_back(FiguraDiagrama(d, calculos, presion, separador));
    return figuras;
}

std::vector<Figura> FigurasGraficas(const CalculoComparado& calculo) {
    if (!calculo.Hay()) return {};
    const Lugares l = Form_Load({.W = 1024, .H = 768}).lugar;
    const std::shared_ptr<const Estado> e = calculo.estado;
    const std::string tipo = calculo.tipoCombustible;
    const struct {
        const char* nombre;
        const char* titulo;
        const Lugar* lugar;
        std::function<void(Estado&, Superficie&)> dibujar;
    } graficas[] = {
        {"grafica-aire", "Gráfica del aire", &l.pct1, [](Estado& x, Superficie& s) { GraficaAire(x, s); }},
        {"grafica-combustible", "Gráfica del combustible", &l.pct2,
         [tipo](Estado& x, Superficie& s) { GraficaCombustible(x, s, tipo); }},
        {"grafica-gases", "Gráfica de los gases de combustión", &l.pct3,
         [](Estado& x, Superficie& s) { GraficaHumos(x, s); }},
    };
    std::vector<Figura> figuras;
    for (const auto& g : graficas) {
        Figura f;
        f.nombre = QString::fromLatin1(g.nombre);
        f.titulo = QString::fromUtf8(g.titulo);
        f.base = QSizeF(DentroDe(*g.lugar));
        f.grafica = true;
        f.fondo = kFondoBlanco;
        f.letra = LetraSuperficie(LetraFigura(kPuntosLetraDiagrama));
        // The chart moves its own text position in the state: a copy each time.
        f.dibujar = [e, dibujar = g.dibujar](Superficie& s, QSizeF) {
            Estado copia = *e;
            dibujar(copia, s);
        };
        figuras.push_back(std::move(f));
    }
    return figuras;
}

std::optional<std::string> EscribirFiguras(const CalculoComparado& calculo, const QString& carpeta,
                                           FormatoFigura formato, QSize pedido, UnidadPresion presion) {
    const auto calculos = std::make_shared<const std::vector<CalculoComparado>>(1, calculo);
    std::vector<Figura> figuras = FigurasDiagramas(calculos, presion, '.');
    for (Figura& g : FigurasGraficas(calculo)) figuras.push_back(std::move(g));
    if (formato == FormatoFigura::PDF)
        return GuardarArchivoFiguras(figuras, formato, pedido,
                                     QDir(carpeta).filePath(QStringLiteral("figuras.pdf")));
    return GuardarFiguras(figuras, formato, pedido, carpeta);
}

}  // namespace vanta
