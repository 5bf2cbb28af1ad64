// Another program on the same results database, for the window tests: it
// saves records (and may stop for good in the middle of one, to be killed
// there), holds the file locked as a second Vanta in the middle of a save
// would, or saves as an unprivileged user.
//
//   ayudante_bd guardar RUTA N [--parar]   saves N records, "guardado K" after each;
//                                           with --parar, then stops inside the next one
//                                           and says "a mitad"
//   ayudante_bd bloquear RUTA               holds a write lock, says "bloqueada", waits
//   ayudante_bd sin-permisos RUTA           saves one record as user nobody when run as root
#include <unistd.h>

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#include "core/database/Registro.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/database/GuardarBaseDatos.h"

using namespace vanta;

namespace {

class DialogosSalida : public Dialogos {
public:
    void MsgBox(std::string_view mensaje) override { std::cout << mensaje << std::endl; }
    std::string InputBox(std::string_view, std::string_view porDefecto) override {
        return std::string(porDefecto);
    }
};

// A record whose every figure tells its number, with pictures of some weight.
bd::TextosRegistro Textos(int k) {
    Estado e;
    e.T1 = 300 + k;
    e.p1 = 100000 + k;
    return bd::ValoresRegistro(e, "registro " + std::to_string(k), "Gasolina",
                               "informe " + std::to_string(k));
}

ImagenesRegistro Imagenes(int k) {
    ImagenesRegistro imagenes;
    for (size_t i = 0; i < imagenes.size(); ++i) {
        QImage img(400, 300, QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        for (int x = 0; x < 400; x += 3)
            p.drawLine(x, 0, (x * (k + 7) + static_cast<int>(i) * 13) % 400, 299);
        imagenes[i] = img;
    }
    return imagenes;
}

void Esperar() {
    for (;;) pause();
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc < 3) return 2;
    const std::string orden = argv[1];
    const QString ruta = QString::fromLocal8Bit(argv[2]);

    if (orden == "guardar" && argc >= 4) {
        AlmacenResultados almacen(ruta);
        if (!almacen.Abrir()) return std::cout << almacen.Error() << std::endl, 1;
        const int n = std::stoi(argv[3]);
        for (int k = 1; k <= n; ++k) {
            if (!almacen.Insertar(Textos(k), Imagenes(k)))
                return std::cout << almacen.Error() << std::endl, 1;
            std::cout << "guardado " << k << std::endl;
        }
        if (argc >= 5 && std::string(argv[4]) == "--parar") {
            almacen.FijarAntesDeConfirmar([] {
                std::cout << "a mitad" << std::endl;
                Esperar();
            });
            almacen.Insertar(Textos(n + 1), Imagenes(n + 1));
        }
        return 0;
    }
    if (orden == "bloquear") {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        db.setDatabaseName(ruta);
        if (!db.open()) return 1;
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("BEGIN EXCLUSIVE"))) return 1;
        std::cout << "bloqueada" << std::endl;
        Esperar();
    }
    if (orden == "sin-permisos") {
        if (getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) return 3;
        DialogosSalida dlg;
        Estado e;
        return GuardarRegistro(e, "sin permisos", "Gasolina", "", {}, dlg, ruta) ? 0 : 1;
    }
    return 2;
}
