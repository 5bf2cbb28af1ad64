// Another program on the same results database, for the window tests: it
// saves records (and may stop for good in the middle of one, to be killed
// there), holds the file locked as a second Vanta in the middle of a save
// would, or saves as an unprivileged user. RUTA is a file or a server's
// address.
//
//   ayudante_bd guardar RUTA N [--parar]   saves N records, "guardado K" after each;
//                                           with --parar, then stops inside the next one
//                                           and says "a mitad"
//   ayudante_bd cliente RUTA N C [--pesadas]  client C of many: N light records named for it
//                                           (or with the heavy pictures), waiting for a busy
//                                           file as the command line does
//   ayudante_bd bloquear RUTA               holds a write lock, says "bloqueada", waits
//   ayudante_bd sin-permisos RUTA           saves one record as user nobody when run as root
#include <unistd.h>

#include <QGuiApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#include "core/database/Registro.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/database/GuardarBaseDatos.h"
#include "tests/gui/database/RegistrosPrueba.h"

using namespace vanta;

namespace {

class DialogosSalida : public Dialogos {
public:
    void MsgBox(std::string_view mensaje) override { std::cout << mensaje << std::endl; }
    std::string InputBox(std::string_view, std::string_view porDefecto) override {
        return std::string(porDefecto);
    }
    bool Pregunta(std::string_view) override { return false; }
};

void Esperar() {
    for (;;) pause();
}

}  // namespace

int main(int argc, char** argv) {
    // A GUI application, as vanta is, so that its pictures are the same PNG
    // to the byte (the resolution written in the file follows the screen's).
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 3) return 2;
    const std::string orden = argv[1];
    const QString ruta = QString::fromLocal8Bit(argv[2]);

    if ((orden == "guardar" || orden == "cliente") && argc >= 4) {
        const int cliente = orden == "cliente" && argc >= 5 ? std::stoi(argv[4]) : 0;
        const bool pesadas = !cliente || (argc >= 6 && std::string(argv[5]) == "--pesadas");
        AlmacenResultados almacen(*bd::LeerDireccion(ruta.toStdString()).direccion);
        if (cliente) almacen.FijarEspera(15000);
        if (!almacen.Abrir()) return std::cout << almacen.Error() << std::endl, 1;
        const int n = std::stoi(argv[3]);
        for (int k = 1; k <= n; ++k) {
            if (!almacen.Insertar(pruebas::TextosNumerados(k, cliente),
                                  pruebas::ImagenesNumeradas(k, pesadas)))
                return std::cout << almacen.Error() << std::endl, 1;
            std::cout << "guardado " << k << std::endl;
        }
        if (argc >= 5 && std::string(argv[4]) == "--parar") {
            almacen.FijarAntesDeConfirmar([] {
                std::cout << "a mitad" << std::endl;
                Esperar();
            });
            almacen.Insertar(pruebas::TextosNumerados(n + 1), pruebas::ImagenesNumeradas(n + 1));
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
        ResultadoCalculo r;
        r.estado = std::make_shared<Estado>();
        r.tipoCombustible = "Gasolina";
        return GuardarRegistro(r, "sin permisos", {}, dlg, ruta) ? 0 : 1;
    }
    return 2;
}
