#include "gui/services/Escritorio.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTextEdit>
#include <QTimer>
#include <QWindow>
#include <algorithm>

namespace vanta {

namespace {

// A title bar and thin borders, until a window manager tells its own.
constexpr QMargins kMarcoSupuesto(4, 32, 4, 4);
// The window manager tells its frame a little after the window appears.
constexpr int kEsperaMarcoMs = 300;

QString ClaveVentana(const QString& clave) {
    return QStringLiteral("ventanas/") + clave;
}

class Cuidador : public QObject {
public:
    Cuidador(QWidget* ventana, QString clave, QSize deseado)
        : QObject(ventana), ventana_(ventana), clave_(std::move(clave)), deseado_(deseado) {
        ventana->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (objeto != ventana_) return false;
        if (evento->type() == QEvent::Show) {
            if (!abierta_) {
                abierta_ = true;
                NombrarControles(ventana_);
                const QByteArray geometria = Ajustes().value(ClaveVentana(clave_)).toByteArray();
                if (geometria.isEmpty() || !ventana_->restoreGeometry(geometria)) ventana_->resize(deseado_);
            }
            EncajarEnPantalla(ventana_);
            QPointer<QWidget> v = ventana_;
            QTimer::singleShot(kEsperaMarcoMs, this, [v] {
                if (v && v->isVisible() && !v->isMaximized() && !v->isFullScreen()) EncajarEnPantalla(v);
            });
        } else if (evento->type() == QEvent::Hide && abierta_) {
            QSettings ajustes = Ajustes();
            ajustes.setValue(ClaveVentana(clave_), ventana_->saveGeometry());
        }
        return false;
    }

private:
    QWidget* ventana_;
    QString clave_;
    QSize deseado_;
    bool abierta_ = false;
};

// Whether a comes before b in reading order: the upper row first, and in
// one row (the two overlap in height by more than half the lower one) the
// left one.
bool Antes(const QWidget* a, const QWidget* b) {
    const QRect ra = a->geometry(), rb = b->geometry();
    const int solape = std::min(ra.bottom(), rb.bottom()) - std::max(ra.top(), rb.top());
    if (solape * 2 > std::min(ra.height(), rb.height())) return ra.left() < rb.left();
    return ra.top() < rb.top();
}

// Controls whose parts keep their own order inside.
bool EsUnControl(const QWidget* w) {
    return qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QComboBox*>(w) ||
           qobject_cast<const QAbstractSpinBox*>(w) || qobject_cast<const QAbstractScrollArea*>(w) ||
           qobject_cast<const QLineEdit*>(w) || qobject_cast<const QAbstractSlider*>(w);
}

void Encadenar(QWidget* contenedor, QList<QWidget*>& cadena) {
    QList<QWidget*> hijos;
    for (QWidget* w : contenedor->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (!w->isWindow()) hijos << w;
    // Insertion, so that a pair the rule cannot order keeps its order.
    for (qsizetype i = 1; i < hijos.size(); ++i)
        for (qsizetype j = i; j > 0 && Antes(hijos[j], hijos[j - 1]); --j) hijos.swapItemsAt(j, j - 1);
    for (QWidget* w : hijos) {
        if (w->focusPolicy() & Qt::TabFocus) cadena << w;
        if (!EsUnControl(w)) Encadenar(w, cadena);
    }
}

bool TomaEntradas(const QWidget* w) {
    return qobject_cast<const QLineEdit*>(w) || qobject_cast<const QComboBox*>(w) ||
           qobject_cast<const QAbstractSpinBox*>(w) || qobject_cast<const QPlainTextEdit*>(w) ||
           qobject_cast<const QTextEdit*>(w) || qobject_cast<const QAbstractItemView*>(w) ||
           qobject_cast<const QAbstractSlider*>(w);
}

QString TextoEtiqueta(const QLabel* l) {
    QString t = l->text();
    t.remove(QLatin1Char('&'));
    t = t.trimmed();
    while (t.endsWith(QLatin1Char(':')) || t.endsWith(QLatin1Char('='))) t.chop(1);
    return t.trimmed();
}

// The labels before and after w in its layout's row.
std::pair<QLabel*, QLabel*> EtiquetasDeFila(const QWidget* w) {
    const QWidget* padre = w->parentWidget();
    if (!padre || !padre->layout()) return {};
    // The layout that holds w, the parent's own or one inside it.
    QList<QLayout*> capas{padre->layout()};
    for (qsizetype i = 0; i < capas.size(); ++i) {
        QLayout* capa = capas[i];
        for (int k = 0; k < capa->count(); ++k)
            if (QLayout* dentro = capa->itemAt(k)->layout()) capas << dentro;
        const int indice = capa->indexOf(w);
        if (indice < 0) continue;
        auto etiqueta = [](QLayoutItem* item) {
            return item ? qobject_cast<QLabel*>(item->widget()) : nullptr;
        };
        if (auto* forma = qobject_cast<QFormLayout*>(capa))
            return {qobject_cast<QLabel*>(forma->labelForField(const_cast<QWidget*>(w))), nullptr};
        if (auto* rejilla = qobject_cast<QGridLayout*>(capa)) {
            int fila, columna, filas, columnas;
            rejilla->getItemPosition(indice, &fila, &columna, &filas, &columnas);
            return {columna > 0 ? etiqueta(rejilla->itemAtPosition(fila, columna - 1)) : nullptr,
                    etiqueta(rejilla->itemAtPosition(fila, columna + columnas))};
        }
        return {indice > 0 ? etiqueta(capa->itemAt(indice - 1)) : nullptr,
                etiqueta(capa->itemAt(indice + 1))};
    }
    return {};
}

QVariant ValorDe(const QWidget* w) {
    if (auto* lista = qobject_cast<const QComboBox*>(w)) return lista->currentIndex();
    if (auto* numero = qobject_cast<const QSpinBox*>(w)) return numero->value();
    if (auto* caja = qobject_cast<const QLineEdit*>(w)) return caja->text();
    if (auto* boton = qobject_cast<const QAbstractButton*>(w)) return boton->isChecked();
    if (auto* marcas = qobject_cast<const QListWidget*>(w)) {
        QVariantList l;
        for (int i = 0; i < marcas->count(); ++i) l << (marcas->item(i)->checkState() == Qt::Checked);
        return l;
    }
    return {};
}

void PonerValor(QWidget* w, const QVariant& v) {
    if (auto* lista = qobject_cast<QComboBox*>(w)) {
        if (v.toInt() >= 0 && v.toInt() < lista->count()) lista->setCurrentIndex(v.toInt());
    } else if (auto* numero = qobject_cast<QSpinBox*>(w)) {
        numero->setValue(v.toInt());
    } else if (auto* caja = qobject_cast<QLineEdit*>(w)) {
        caja->setText(v.toString());
    } else if (auto* boton = qobject_cast<QAbstractButton*>(w)) {
        boton->setChecked(v.toBool());
    } else if (auto* marcas = qobject_cast<QListWidget*>(w)) {
        const QVariantList l = v.toList();
        if (l.size() != marcas->count()) return;
        for (int i = 0; i < marcas->count(); ++i)
            marcas->item(i)->setCheckState(l[i].toBool() ? Qt::Checked : Qt::Unchecked);
    }
}

class Opciones : public QObject {
public:
    Opciones(QWidget* ventana, QString clave, QList<QWidget*> controles)
        : QObject(ventana), clave_(std::move(clave)), controles_(std::move(controles)) {
        const QSettings ajustes = Ajustes();
        for (QWidget* w : controles_)
            if (const QVariant v = ajustes.value(Clave(w)); v.isValid()) PonerValor(w, v);
        ventana->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* evento) override {
        if (evento->type() == QEvent::Hide) {
            QSettings ajustes = Ajustes();
            for (const QWidget* w : controles_) ajustes.setValue(Clave(w), ValorDe(w));
        }
        return false;
    }

private:
    QString Clave(const QWidget* w) const {
        return QStringLiteral("opciones/%1/%2").arg(clave_, w->objectName());
    }
    QString clave_;
    QList<QWidget*> controles_;
};

}  // namespace

QSettings Ajustes() {
    return QSettings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/vanta/vanta.conf"),
                     QSettings::IniFormat);
}

QMargins MarcoVentana(const QWidget* ventana) {
    auto marco = [](const QWidget* w) {
        const QWindow* v = w ? w->windowHandle() : nullptr;
        return v && w->isVisible() ? v->frameMargins() : QMargins();
    };
    if (const QMargins propio = marco(ventana); !propio.isNull()) return propio;
    for (const QWidget* otra : QApplication::topLevelWidgets())
        if (const QMargins m = marco(otra); !m.isNull()) return m;
    return kMarcoSupuesto;
}

void EncajarEnPantalla(QWidget* ventana, QSize deseado) {
    const QScreen* pantalla = ventana->screen() ? ventana->screen() : QGuiApplication::primaryScreen();
    if (deseado.isEmpty()) deseado = ventana->size();
    if (!pantalla) {
        ventana->resize(deseado);
        return;
    }
    const QRect libre = pantalla->availableGeometry();
    const QMargins marco = MarcoVentana(ventana);
    const QSize tamano = deseado.boundedTo(libre.size().shrunkBy(marco));
    if (ventana->size() != tamano) ventana->resize(tamano);
    // The frame's place: pos() of a window is its frame's corner.
    QRect sitio(ventana->pos(), tamano.grownBy(marco));
    sitio.moveLeft(
        std::clamp(sitio.left(), libre.left(), std::max(libre.left(), libre.right() - sitio.width() + 1)));
    sitio.moveTop(
        std::clamp(sitio.top(), libre.top(), std::max(libre.top(), libre.bottom() - sitio.height() + 1)));
    if (sitio.topLeft() != ventana->pos()) ventana->move(sitio.topLeft());
}

void CuidarVentana(QWidget* ventana, const QString& clave, QSize deseado, bool conEscape) {
    new Cuidador(ventana, clave, deseado);
    QList<QKeySequence> teclas = QKeySequence::keyBindings(QKeySequence::Close);
    if (conEscape) teclas << QKeySequence(Qt::Key_Escape);
    auto* cerrar = new QAction(ventana);
    cerrar->setObjectName(QStringLiteral("accionCerrar"));
    cerrar->setShortcuts(teclas);
    cerrar->setShortcutContext(Qt::WindowShortcut);
    QObject::connect(cerrar, &QAction::triggered, ventana, &QWidget::close);
    ventana->addAction(cerrar);
}

void RecordarOpciones(QWidget* ventana, const QString& clave, const QList<QWidget*>& controles) {
    new Opciones(ventana, clave, controles);
}

QString CarpetaRecordada(const QString& clave) {
    return Ajustes().value(QStringLiteral("carpetas/") + clave).toString();
}

void RecordarCarpeta(const QString& clave, const QString& archivo) {
    if (archivo.isEmpty()) return;
    const QFileInfo info(archivo);
    QSettings ajustes = Ajustes();
    ajustes.setValue(QStringLiteral("carpetas/") + clave,
                     info.isDir() ? info.absoluteFilePath() : info.absolutePath());
}

void OrdenDeLectura(QWidget* raiz) {
    QList<QWidget*> cadena;
    Encadenar(raiz, cadena);
    for (qsizetype i = 0; i + 1 < cadena.size(); ++i) QWidget::setTabOrder(cadena[i], cadena[i + 1]);
}

void NombrarControles(QWidget* raiz) {
    const QList<QLabel*> etiquetas = raiz->findChildren<QLabel*>();
    for (QWidget* w : raiz->findChildren<QWidget*>()) {
        if (!TomaEntradas(w) || !w->accessibleName().isEmpty()) continue;
        // A combo box's own editor is named with it.
        if (qobject_cast<QComboBox*>(w->parentWidget())) continue;
        const QLabel* nombre = nullptr;
        for (const QLabel* l : etiquetas)
            if (l->buddy() == w) nombre = l;
        const auto [antes, despues] = EtiquetasDeFila(w);
        if (!nombre) nombre = antes;
        if (nombre && !TextoEtiqueta(nombre).isEmpty()) {
            w->setAccessibleName(TextoEtiqueta(nombre));
        } else if (auto* caja = qobject_cast<QLineEdit*>(w); caja && !caja->placeholderText().isEmpty()) {
            w->setAccessibleName(caja->placeholderText());
        } else if (auto* marco = qobject_cast<QGroupBox*>(w->parentWidget());
                   marco && !marco->title().isEmpty()) {
            w->setAccessibleName(marco->title().remove(QLatin1Char('&')));
        }
        // The label after a box is its unit.
        if (despues && w->accessibleDescription().isEmpty() && !TextoEtiqueta(despues).isEmpty())
            w->setAccessibleDescription(TextoEtiqueta(despues));
    }
    for (QComboBox* lista : raiz->findChildren<QComboBox*>())
        if (QLineEdit* editor = lista->lineEdit(); editor && editor->accessibleName().isEmpty())
            editor->setAccessibleName(lista->accessibleName());
}

}  // namespace vanta
