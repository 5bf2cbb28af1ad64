// An image control of the browser: shows a picture scaled to its box with its
// proportions kept, and tells a click. It keeps the picture whole, so that an
// enlargement shows it at its own size.
#pragma once

#include <QFrame>
#include <QImage>
#include <QPixmap>

namespace vanta {

class ControlImagen : public QFrame {
    Q_OBJECT

public:
    explicit ControlImagen(QWidget* padre = nullptr);

    const QImage& Picture() const { return imagen_; }
    void SetPicture(const QImage& imagen);

signals:
    void Click();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    QImage imagen_;
    QPixmap escalada_;  // the picture at the box's size, made when either changes
};

}  // namespace vanta
