// A whole program for a window test: a fresh state, the main window at the
// design's size, messages kept instead of shown, and the stage windows shown
// without a nested event loop so the test drives them as a user does.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <string>

#include "core/state/Estado.h"
#include "gui/cycle/VentanaCiclo.h"
#include "gui/fluids/VentanaAire.h"
#include "gui/fluids/VentanaCombustible.h"
#include "gui/fluids/VentanaCombustion.h"
#include "gui/mainwindow/VentanaPrincipal.h"
#include "gui/services/Dialogos.h"

namespace vanta::pruebas {

template <class T>
T* Hijo(const QObject* raiz, const char* nombre) {
    T* w = raiz->findChild<T*>(QString::fromLatin1(nombre));
    if (!w) qFatal("no hay control %s en %s", nombre, qPrintable(raiz->objectName()));
    return w;
}

struct Programa {
    Estado e;
    DialogosGrabados dlg;
    VentanaPrincipal f;

    explicit Programa(QSize tamano = QSize(1024, 768)) : f(e, &dlg, tamano) {
        f.FijarMostrarModal([](QDialog& d) { d.show(); });
        f.show();
        if (!QTest::qWaitForWindowExposed(&f)) qFatal("la ventana principal no aparece");
    }

    QPushButton* Boton(const char* nombre) const { return Hijo<QPushButton>(&f, nombre); }
    QAction* Menu(const char* nombre) const { return Hijo<QAction>(&f, nombre); }
    QString Etiqueta(const char* nombre) const { return Hijo<QLabel>(&f, nombre)->text(); }
    QWidget* Control(const char* nombre) const { return Hijo<QWidget>(&f, nombre); }

    // A click as the user gives it; false when the control was not there to
    // be clicked (hidden or disabled).
    static bool Pulsar(QAbstractButton* b) {
        if (!b->isVisible() || !b->isEnabled()) return false;
        QTest::mouseClick(b, Qt::LeftButton);
        return true;
    }
    bool Pulsar(const char* boton) const { return Pulsar(Boton(boton)); }
    // An option is chosen by a click on its round mark.
    static void Elegir(QRadioButton* opcion) {
        QTest::mouseClick(opcion, Qt::LeftButton, {}, QPoint(6, opcion->height() / 2));
    }

    // A stage window opened and ready for the pointer.
    static bool Abierta(QWidget* v) { return v->isVisible() && QTest::qWaitForWindowExposed(v); }

    // The enabled state of the four stage buttons, as "1011".
    QString Etapas() const {
        QString s;
        for (const char* b : {"cmdElegirComburente", "cmdCombustible", "cmdCarCombustion", "cmdCarCiclo"})
            s += Boton(b)->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
        return s;
    }

    // ---- The four stages with the values the windows start with ----

    bool Etapa1() {
        if (!Pulsar("cmdElegirComburente") || !Abierta(f.Aire())) return false;
        return Pulsar(Hijo<QPushButton>(f.Aire(), "cmdCal")) && !f.Aire()->isVisible();
    }

    // Chooses an entry of the fuel list from the keyboard, as the user does.
    static void ElegirCombustible(VentanaCombustible* v, const QString& nombre) {
        auto* lista = Hijo<QComboBox>(v, "cboTipCom");
        const int i = lista->findText(nombre);
        lista->setCurrentIndex(i - 1);
        lista->setFocus();
        QTest::keyClick(lista, Qt::Key_Down);
    }

    bool Etapa2(const QString& combustible = QStringLiteral("Gasolina")) {
        if (!Pulsar("cmdCombustible") || !Abierta(f.Combustible())) return false;
        ElegirCombustible(f.Combustible(), combustible);
        return !f.Combustible()->isVisible();
    }

    bool Etapa3() {
        if (!Pulsar("cmdCarCombustion") || !Abierta(f.Combustion())) return false;
        return Pulsar(Hijo<QPushButton>(f.Combustion(), "cmdCalcular")) && !f.Combustion()->isVisible();
    }

    // Opens the cycle window, picks the cycle by its picture and leaves the
    // window open for the test to set its boxes.
    bool AbrirCiclo(const char* imagen = "imgOtto") {
        if (!Pulsar("cmdCarCiclo") || !Abierta(f.Ciclo())) return false;
        QTest::mouseClick(Hijo<QLabel>(f.Ciclo(), imagen), Qt::LeftButton);
        return true;
    }

    bool Calcular() { return Pulsar(Hijo<QPushButton>(f.Ciclo(), "cmdCal")); }

    bool Etapa4(const char* imagen = "imgOtto") {
        return AbrirCiclo(imagen) && Calcular() && !f.Ciclo()->isVisible();
    }

    bool CuatroEtapas() { return Etapa1() && Etapa2() && Etapa3() && Etapa4(); }
};

// Whether the surface's persistent picture holds anything but its ground,
// from the given share of its width rightwards.
inline bool Dibujada(SuperficieQt* s, double desdeFraccion = 0) {
    const QImage i = s->Imagen();
    const QRgb fondo = ColorQt(s->Fondo()).rgb();
    for (int y = 0; y < i.height(); ++y)
        for (int x = int(i.width() * desdeFraccion); x < i.width(); ++x)
            if (i.pixel(x, y) != fondo) return true;
    return false;
}

inline QString Q(const std::string& s) {
    return QString::fromStdString(s);
}

}  // namespace vanta::pruebas
