#include "gui/services/PuertosQt.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <iostream>

namespace vanta {

void DialogosQt::MsgBox(std::string_view mensaje) {
    QMessageBox caja(QMessageBox::NoIcon, QApplication::applicationName(), ATexto(mensaje), QMessageBox::Ok,
                     padre_);
    caja.exec();
}

bool DialogosQt::Pregunta(std::string_view pregunta) {
    QMessageBox caja(QMessageBox::Question, QApplication::applicationName(), ATexto(pregunta),
                     QMessageBox::Yes | QMessageBox::No, padre_);
    caja.setDefaultButton(QMessageBox::No);
    return caja.exec() == QMessageBox::Yes;
}

std::string DialogosQt::InputBox(std::string_view prompt, std::string_view porDefecto) {
    QInputDialog dialogo(padre_);
    dialogo.setWindowTitle(QApplication::applicationName());
    dialogo.setLabelText(ATexto(prompt));
    dialogo.setTextValue(ATexto(porDefecto));
    MostrarEntera(dialogo);
    return dialogo.exec() == QDialog::Accepted ? dialogo.textValue().toStdString() : std::string();
}

// The suggestion shows from its start: the box grows to hold it (within the
// screen) and the whole text is selected with the cursor at its left end, so
// that typing replaces it and nothing of it scrolls out of sight.
void DialogosQt::MostrarEntera(QInputDialog& dialogo) {
    constexpr int kMarco = 48;
    auto* caja = dialogo.findChild<QLineEdit*>();
    if (!caja) return;
    const int largo = static_cast<int>(caja->text().size());
    const int ancho = caja->fontMetrics().horizontalAdvance(caja->text()) + kMarco;
    const QScreen* pantalla = padre_ ? padre_->screen() : QApplication::primaryScreen();
    const int maximo = pantalla ? pantalla->availableGeometry().width() : ancho;
    dialogo.resize(std::min(std::max(ancho, dialogo.sizeHint().width()), maximo),
                   dialogo.sizeHint().height());
    QTimer::singleShot(0, caja, [caja, largo] { caja->setSelection(largo, -largo); });
}

void DialogosConsola::MsgBox(std::string_view mensaje) {
    ++cuenta;
    std::cerr << prefijo_ << mensaje << '\n';
}

}  // namespace vanta
