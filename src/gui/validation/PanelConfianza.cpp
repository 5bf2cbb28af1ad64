#include "gui/validation/PanelConfianza.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include "core/services/Numeros.h"
#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

constexpr int kAnchoGrafico = 330;
constexpr int kTamanoIcono = 20;
// The bars: ideal air-standard, ideal with the calculation's exponents, the
// program's.
const QColor kColoresBarras[3] = {QColor(0x9A, 0xB8, 0xD8), QColor(0x6F, 0x9A, 0xC8),
                                  QColor(0x2E, 0x6A, 0xA8)};

QString Rendimiento(double r, char separador) {
    return ATexto(Format(Round(r * 100, 1), "##0.0", separador)).trimmed() + QStringLiteral(" %");
}

QString Exponente(double g, char separador) {
    return ATexto(Format(Round(g, 3), "0.000", separador));
}

}  // namespace

GraficoRendimientos::GraficoRendimientos(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("grfRendimientos"));
    setFixedWidth(kAnchoGrafico);
}

void GraficoRendimientos::PonerBarras(std::vector<Barra> barras, char separador) {
    barras_ = std::move(barras);
    separador_ = separador;
    QStringList tip;
    for (const Barra& b : barras_)
        tip << b.nombre + QStringLiteral(": ") +
                   (b.valida ? Rendimiento(b.rendimiento, separador_) : QStringLiteral("no existe"));
    setToolTip(QStringLiteral("Rendimiento\n") + tip.join('\n'));
    update();
}

void GraficoRendimientos::paintEvent(QPaintEvent*) {
    if (barras_.empty()) return;
    QPainter p(this);
    QFont letra = font();
    letra.setPointSizeF(std::max(6.0, letra.pointSizeF() - 1));
    p.setFont(letra);
    const QFontMetrics m(letra);
    const int n = static_cast<int>(barras_.size());
    const int alto = height() / n;
    int anchoNombre = 0;
    for (const Barra& b : barras_) anchoNombre = std::max(anchoNombre, m.horizontalAdvance(b.nombre));
    const int anchoCifra = m.horizontalAdvance(QStringLiteral("100.0 %"));
    const int x0 = anchoNombre + 6, largo = std::max(10, width() - x0 - anchoCifra - 6);
    for (int i = 0; i < n; ++i) {
        const Barra& b = barras_[static_cast<size_t>(i)];
        const QRect fila(0, i * alto, width(), alto);
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QRect(0, fila.top(), anchoNombre, alto), Qt::AlignRight | Qt::AlignVCenter, b.nombre);
        const double r = b.valida ? std::clamp(b.rendimiento, 0.0, 1.0) : 0.0;
        const QRect barra(x0, fila.top() + 2, qRound(r * largo), std::max(2, alto - 4));
        p.fillRect(barra, kColoresBarras[std::min(i, 2)]);
        p.drawText(QRect(barra.right() + 4, fila.top(), anchoCifra + 2, alto),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   b.valida ? Rendimiento(b.rendimiento, separador_) : QStringLiteral("—"));
    }
}

PanelConfianza::PanelConfianza(QWidget* padre) : QFrame(padre) {
    setObjectName(QStringLiteral("fraConfianza"));
    setFrameShape(QFrame::StyledPanel);
    icono_ = new QLabel(this);
    icono_->setObjectName(QStringLiteral("imgAvisos"));
    icono_->setFixedWidth(kTamanoIcono + 4);
    icono_->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    texto_ = new QLabel(this);
    texto_->setObjectName(QStringLiteral("lblAvisos"));
    texto_->setWordWrap(true);
    texto_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    grafico_ = new GraficoRendimientos(this);
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(4, 1, 4, 1);
    fila->setSpacing(4);
    fila->addWidget(icono_);
    fila->addWidget(texto_, 1);
    fila->addWidget(grafico_);
}

void PanelConfianza::Mostrar(const std::vector<Aviso>& avisos, const DistanciaIdeal& d, char separador,
                             const std::string& nombreIdeal, const std::string& explicacionIdeal) {
    tieneCalculo_ = true;
    const QStyle::StandardPixmap simbolo =
        avisos.empty() ? QStyle::SP_DialogApplyButton : QStyle::SP_MessageBoxWarning;
    icono_->setPixmap(style()->standardIcon(simbolo).pixmap(kTamanoIcono, kTamanoIcono));
    QStringList lineas;
    for (const Aviso& a : avisos) lineas << ATexto(a.texto);
    if (lineas.isEmpty())
        lineas << QStringLiteral(
            "Sin avisos de validez: el cálculo queda dentro del terreno "
            "del modelo.");
    // The strip shows what fits; the tip shows every warning.
    QFont letra = font();
    letra.setPointSizeF(std::max(6.0, letra.pointSizeF() - 1));
    texto_->setFont(letra);
    texto_->setText(lineas.join(QStringLiteral("\n")));
    texto_->setToolTip(lineas.join(QStringLiteral("\n\n")));
    const QString exponentes =
        d.exponentes.valido ? QStringLiteral(" (") + Exponente(d.exponentes.gammaCompresion, separador) +
                                  QStringLiteral(" y ") + Exponente(d.exponentes.gammaExpansion, separador) +
                                  QStringLiteral(")")
                            : QString();
    const QString ideal = ATexto(nombreIdeal);
    grafico_->PonerBarras(
        {{ideal + QStringLiteral(", γ = ") + ATexto(TextoGeneral(kGammaAireEstandar, separador)),
          d.aireEstandar.valido, d.aireEstandar.rendimiento},
         {ideal + QStringLiteral(", γ del cálculo"), d.exponentes.valido, d.exponentes.rendimiento},
         {QStringLiteral("Cálculo"), true, d.rendimiento}},
        separador);
    grafico_->setToolTip(ATexto(explicacionIdeal) +
                         QStringLiteral("\nLa segunda barra es el mismo ciclo ideal ") +
                         QStringLiteral("con los exponentes medios del cálculo") + exponentes +
                         QStringLiteral(".\n") + grafico_->toolTip());
}

}  // namespace vanta
