// Records that tell who saved them, for the tests with several programs on
// one store: every figure and every picture follows from the client and the
// record's number, so a record read back can be checked whole.
#pragma once

#include <QImage>
#include <QPainter>
#include <string>

#include "core/database/Registro.h"
#include "gui/database/AlmacenResultados.h"

namespace vanta::pruebas {

inline bd::TextosRegistro TextosNumerados(int k, int cliente = 0) {
    Estado e;
    e.T1 = 300 + k;
    e.p1 = 100000 + 1000 * cliente + k;
    const std::string nombre = cliente
                                   ? "cliente " + std::to_string(cliente) + " registro " + std::to_string(k)
                                   : "registro " + std::to_string(k);
    return bd::ValoresRegistro(e, nombre, "Gasolina", "informe " + std::to_string(k));
}

// Seven pictures of 400 x 300; with pesadas, of some weight to encode, so that
// a save takes its time.
inline ImagenesRegistro ImagenesNumeradas(int k, bool pesadas = true) {
    ImagenesRegistro imagenes;
    for (size_t i = 0; i < imagenes.size(); ++i) {
        QImage img(400, 300, QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        for (int x = 0; x < 400; x += pesadas ? 3 : 40)
            p.drawLine(x, 0, (x * (k + 7) + static_cast<int>(i) * 13) % 400, 299);
        imagenes[i] = img;
    }
    return imagenes;
}

}  // namespace vanta::pruebas
