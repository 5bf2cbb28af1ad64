#include "gui/services/EnlaceEntradas.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSignalBlocker>

#include "gui/services/PuertosQt.h"

namespace vanta {

namespace {

QString Nombre(std::string_view nombre) {
    return QString::fromLatin1(nombre.data(), static_cast<qsizetype>(nombre.size()));
}

template <class T>
T* Buscar(const QWidget& ventana, std::string_view nombre) {
    return ventana.findChild<T*>(Nombre(nombre));
}

// Each number of the stage's inputs with its box, when the window has it.
template <class F>
void CadaCaja(const QWidget& ventana, EtapaEntrada etapa, F&& f) {
    for (const DefinicionEntrada& d : TablaEntradas()) {
        if (d.etapa != etapa || d.tipo == TipoEntrada::Eleccion) continue;
        for (int i = 0; i < d.Campos(); ++i)
            if (auto* caja = Buscar<QLineEdit>(ventana, d.controles[static_cast<size_t>(i)])) f(d, i, *caja);
    }
}

}  // namespace

void LeerCajas(const QWidget& ventana, EtapaEntrada etapa, Entradas& x) {
    CadaCaja(ventana, etapa, [&x](const DefinicionEntrada& d, int i, QLineEdit& caja) {
        *d.texto(x, i) = caja.text().toStdString();
    });
}

void PonerCajas(QWidget& ventana, EtapaEntrada etapa, const Entradas& x) {
    Entradas copia = x;
    CadaCaja(ventana, etapa, [&copia](const DefinicionEntrada& d, int i, QLineEdit& caja) {
        const QString texto = ATexto(*d.texto(copia, i));
        if (caja.text() == texto) return;
        const QSignalBlocker bloqueo(&caja);
        caja.setText(texto);
    });
}

std::string ValorElegido(const QWidget& ventana, const DefinicionEntrada& d) {
    for (size_t i = 0; i < d.controles.size() && i < d.valores.size(); ++i)
        if (auto* b = Buscar<QAbstractButton>(ventana, d.controles[i]); b && b->isChecked())
            return std::string(d.valores[i]);
    return std::string(d.valores.front());
}

void MarcarValor(QWidget& ventana, const DefinicionEntrada& d, std::string_view valor) {
    for (size_t i = 0; i < d.controles.size() && i < d.valores.size(); ++i)
        if (d.valores[i] == valor)
            if (auto* b = Buscar<QAbstractButton>(ventana, d.controles[i])) b->setChecked(true);
}

QWidget* ControlDe(const QWidget& ventana, const CampoEntrada& campo) {
    const DefinicionEntrada* d = BuscarEntrada(campo.nombre);
    if (!d || d->controles.empty()) return nullptr;
    const size_t i = d->tipo == TipoEntrada::Eleccion ? 0 : static_cast<size_t>(campo.campo);
    return i < d->controles.size() ? Buscar<QWidget>(ventana, d->controles[i]) : nullptr;
}

void Enfocar(const QWidget& ventana, const CampoEntrada& campo) {
    if (QWidget* c = ControlDe(ventana, campo)) c->setFocus();
}

}  // namespace vanta
