// The dialogs on real Qt widgets.
#pragma once

#include <QInputDialog>
#include <QPointer>
#include <QWidget>

#include "gui/services/Dialogos.h"

namespace vanta {

// Message boxes with OK only and the application's name as title; the input
// box with the platform's title and position.
class DialogosQt : public Dialogos {
public:
    explicit DialogosQt(QWidget* padre = nullptr) : padre_(padre) {}
    void MsgBox(std::string_view mensaje) override;
    std::string InputBox(std::string_view prompt, std::string_view porDefecto) override;
    bool Pregunta(std::string_view pregunta) override;

private:
    void MostrarEntera(QInputDialog& dialogo);

    QPointer<QWidget> padre_;
};

inline QString ATexto(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

}  // namespace vanta
