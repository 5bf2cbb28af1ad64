#include "gui/mainwindow/VentanaAcercaDe.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtGlobal>

#include "gui/mainwindow/VentanaBibliografia.h"
#include "gui/resources/Dibujos.h"
#include "gui/resources/Programa.h"

namespace vanta {

namespace {

// What the program is, in a few lines.
const char* const kQueHace =
    "Calcula los cinco estados, el trabajo, el calor, el rendimiento, la potencia y el consumo "
    "específico de los ciclos Otto, Diesel y Mixto de motores alternativos de cuatro tiempos. "
    "No usa el ciclo de aire estándar: las propiedades del aire húmedo y de los gases de combustión "
    "salen de polinomios de siete coeficientes de seis especies, ponderados por su composición real.";

const char* const kCreditos =
    "Escrito en C++ con Qt por el equipo de desarrollo de Vanta. Los dibujos, el icono y las "
    "páginas de ayuda son obra del propio programa.";

// The licence notice, in the words the licence asks for.
const char* const kAviso =
    "Vanta es software libre: puede redistribuirlo y modificarlo según los términos de la "
    "Licencia Pública General de GNU publicada por la Free Software Foundation, ya sea la "
    "versión 3 de la Licencia o (a su elección) cualquier versión posterior. Se distribuye con "
    "la esperanza de que sea útil, pero SIN NINGUNA GARANTÍA; ni siquiera la garantía implícita "
    "de COMERCIABILIDAD o IDONEIDAD PARA UN PROPÓSITO PARTICULAR. Vea la "
    "<a href=\"https://www.gnu.org/licenses/gpl-3.0.html\">Licencia Pública General de GNU</a> "
    "para más detalles.";

QLabel* Parrafo(const QString& texto, QWidget* padre) {
    auto* l = new QLabel(texto, padre);
    l->setWordWrap(true);
    l->setTextFormat(Qt::RichText);
    l->setOpenExternalLinks(true);
    l->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return l;
}

}  // namespace

VentanaAcercaDe::VentanaAcercaDe(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("VentanaAcercaDe"));
    setWindowTitle(QStringLiteral("Acerca de %1").arg(NombrePrograma()));
    setModal(false);

    auto* icono = new QLabel(this);
    icono->setObjectName(QStringLiteral("imgIcono"));
    icono->setPixmap(IconoVanta().pixmap(QSize(72, 72)));
    icono->setAlignment(Qt::AlignTop);

    auto* nombre = new QLabel(NombrePrograma(), this);
    nombre->setObjectName(QStringLiteral("lblNombre"));
    QFont grande = nombre->font();
    grande.setPointSizeF(grande.pointSizeF() * 2.2);
    grande.setBold(true);
    nombre->setFont(grande);
    auto* version = new QLabel(QStringLiteral("Versión %1").arg(VersionPrograma()), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* descripcion = new QLabel(DescripcionPrograma(), this);
    descripcion->setWordWrap(true);

    auto* cabecera = new QVBoxLayout;
    cabecera->addWidget(nombre);
    cabecera->addWidget(version);
    cabecera->addWidget(descripcion);
    cabecera->addStretch();
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(icono);
    arriba->addSpacing(12);
    arriba->addLayout(cabecera, 1);

    auto* licencia = Parrafo(QStringLiteral("<b>Licencia:</b> GNU GPL, versión 3 o posterior (%1).<br>%2")
                                 .arg(LicenciaPrograma(), QString::fromUtf8(kAviso)),
                             this);
    licencia->setObjectName(QStringLiteral("lblLicencia"));
    auto* qt = new QLabel(QStringLiteral("Construido con Qt %1; en uso, Qt %2.")
                              .arg(QStringLiteral(QT_VERSION_STR), qVersion()),
                          this);

    auto* botones = new QDialogButtonBox(this);
    cmdBibliografia_ = botones->addButton(QStringLiteral("&Bibliografía"), QDialogButtonBox::ActionRole);
    cmdBibliografia_->setObjectName(QStringLiteral("cmdBibliografia"));
    cmdCerrar_ = botones->addButton(QString::fromUtf8(kCerrar), QDialogButtonBox::RejectRole);
    cmdCerrar_->setObjectName(QStringLiteral("cmdCerrar"));
    cmdCerrar_->setDefault(true);
    connect(cmdBibliografia_, &QPushButton::clicked, this, &VentanaAcercaDe::cmdBibliografia_Click);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* capa = new QVBoxLayout(this);
    capa->addLayout(arriba);
    capa->addSpacing(8);
    capa->addWidget(Parrafo(QString::fromUtf8(kQueHace), this));
    capa->addWidget(Parrafo(QString::fromUtf8(kCreditos), this));
    capa->addWidget(licencia);
    capa->addWidget(qt);
    capa->addStretch();
    capa->addWidget(botones);
    setMinimumWidth(520);
    capa->activate();
    resize(560, capa->hasHeightForWidth() ? capa->heightForWidth(560) : sizeHint().height());
}

void VentanaAcercaDe::cmdBibliografia_Click() {
    if (!bibliografia_) bibliografia_ = new VentanaBibliografia(this);
    bibliografia_->show();
    bibliografia_->raise();
    bibliografia_->activateWindow();
}

VentanaAcercaDe* MostrarAcercaDe(QWidget* padre) {
    VentanaAcercaDe* ventana =
        padre ? padre->findChild<VentanaAcercaDe*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (!ventana) {
        ventana = new VentanaAcercaDe(padre);
        if (!padre) ventana->setAttribute(Qt::WA_DeleteOnClose);
    }
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
    return ventana;
}

}  // namespace vanta
