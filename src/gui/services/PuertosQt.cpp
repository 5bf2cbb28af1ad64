#include "gui/services/PuertosQt.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace vanta {

void DialogosQt::MsgBox(std::string_view mensaje) {
    QMessageBox caja(QMessageBox::NoIcon, QApplication::applicationName(), ATexto(mensaje), QMessageBox::Ok,
                     padre_);
    caja.exec();
}

std::string DialogosQt::InputBox(std::string_view prompt, std::string_view porDefecto) {
    bool aceptado = false;
    const QString r = QInputDialog::getText(padre_, QApplication::applicationName(), ATexto(prompt),
                                            QLineEdit::Normal, ATexto(porDefecto), &aceptado);
    return aceptado ? r.toStdString() : std::string();
}

void CajaTextoQt::SetText(std::string_view texto) {
    caja_->setText(ATexto(texto));
}

void CajaTextoQt::SetSelStart(int posicion) {
    caja_->setCursorPosition(std::min(posicion, static_cast<int>(caja_->text().size())));
}

}  // namespace vanta
