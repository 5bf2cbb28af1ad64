// The ports on real Qt widgets.
#pragma once

#include <QAbstractButton>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>

#include "core/services/Puertos.h"

namespace vanta {

// Message boxes with OK only and the application's name as title; the input
// box with the platform's title and position.
class DialogosQt : public Dialogos {
public:
    explicit DialogosQt(QWidget* padre = nullptr) : padre_(padre) {}
    void MsgBox(std::string_view mensaje) override;
    std::string InputBox(std::string_view prompt, std::string_view porDefecto) override;

private:
    void MostrarEntera(QInputDialog& dialogo);

    QPointer<QWidget> padre_;
};

class CajaTextoQt : public CajaTexto {
public:
    explicit CajaTextoQt(QLineEdit* caja) : caja_(caja) {}
    std::string Text() const override { return caja_->text().toStdString(); }
    void SetText(std::string_view texto) override;
    void SetFocus() override { caja_->setFocus(); }
    void SetSelStart(int posicion) override;

private:
    QLineEdit* caja_;
};

class InterruptorQt : public Interruptor {
public:
    explicit InterruptorQt(QAbstractButton* boton) : boton_(boton) {}
    bool Value() const override { return boton_->isChecked(); }
    void SetValue(bool valor) override { boton_->setChecked(valor); }

private:
    QAbstractButton* boton_;
};

class VentanaQt : public Ventana {
public:
    explicit VentanaQt(QWidget* ventana) : ventana_(ventana) {}
    void Hide() override { ventana_->hide(); }

private:
    QWidget* ventana_;
};

inline QString ATexto(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

}  // namespace vanta
