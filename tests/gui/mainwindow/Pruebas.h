// The window tests: each Qt Test class registers itself here and the one test
// program runs them all on the offscreen platform.
#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <functional>
#include <vector>

namespace vanta::pruebas {

using Fabrica = std::function<QObject*()>;
std::vector<Fabrica>& Registro();

// Pixels of exactly that colour in the image.
inline int Cuenta(const QImage& imagen, const QColor& color) {
    const QImage i = imagen.convertToFormat(QImage::Format_RGB32);
    const QRgb buscado = color.rgb();
    int n = 0;
    for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x) n += i.pixel(x, y) == buscado;
    return n;
}

// Registers a test class: `static Registrar<MiPrueba> r;` in its file.
template <class T>
struct Registrar {
    Registrar() {
        Registro().push_back([] { return new T; });
    }
};

}  // namespace vanta::pruebas
