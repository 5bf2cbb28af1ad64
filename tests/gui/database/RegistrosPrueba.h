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

// Seven pictures: of 400 x 300 and some weight to encode, so that a save
// takes its time; or light ones, of 160 x 120, for many saves.
inline ImagenesRegistro ImagenesNumeradas(int k, bool pesadas = true) {
    ImagenesRegistro imagenes;
    const int ancho = pesadas ? 400 : 160, alto = pesadas ? 300 : 120;
    for (size_t i = 0; i < imagenes.size(); ++i) {
        QImage img(ancho, alto, QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        for (int x = 0; x < ancho; x += pesadas ? 3 : 16)
            p.drawLine(x, 0, (x * (k + 7) + static_cast<int>(i) * 13) % ancho, alto - 1);
        imagenes[i] = img;
    }
    return imagenes;
}

}  // namespace vanta::pruebas
