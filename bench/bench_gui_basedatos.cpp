// The results browser on a file of 1000 records of real calculations:
// opening it (the window made, the file checked and listed, the first record
// read and painted) and moving to the next record (read, decoded, painted).
// Targets: opening at most 1 s, the next record at most 30 ms. The counter
// bytes_por_registro tells the file's size per record.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFileInfo>
#include <clocale>

#include "tests/gui/database/Banco.h"

using namespace vanta;

namespace {

constexpr int kRegistros = 1000;

void Aplicacion() {
    static QApplication* app = [] {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char nombre[] = "bench_gui_basedatos";
        static char* argv[] = {nombre, nullptr};
        auto* a = new QApplication(argc, argv);
        std::setlocale(LC_NUMERIC, "C");
        return a;
    }();
    (void)app;
}

// A folder with the file of 1000 records, made once: the three cycles in turn,
// with pictures of the main window's sizes.
const QTemporaryDir& Carpeta() {
    static QTemporaryDir carpeta;
    static bool hecha = [] {
        const auto& calculos = pruebas::TresCiclos();
        AlmacenResultados almacen(carpeta.filePath(QString::fromUtf8(bd::kArchivoBaseDatos.data())));
        if (!almacen.Abrir()) qFatal("%s", almacen.Error().c_str());
        // Speed of making the fixture only: the saves measured elsewhere sync.
        QSqlQuery(QSqlDatabase::database(almacen.NombreConexion(), false))
            .exec(QStringLiteral("PRAGMA synchronous = OFF"));
        for (int i = 0; i < kRegistros; ++i) {
            const pruebas::Calculo& c = calculos[static_cast<size_t>(i % 3)];
            const auto textos =
                bd::ValoresRegistro(c.e, "registro " + std::to_string(i), c.combustible, c.informe);
            if (!almacen.Insertar(textos, ImagenesDeColumnas(c.imagenes)))
                qFatal("%s", almacen.Error().c_str());
        }
        return true;
    }();
    (void)hecha;
    return carpeta;
}

double BytesPorRegistro() {
    return static_cast<double>(QFileInfo(Carpeta().filePath(QStringLiteral("BD.sqlite"))).size()) /
           kRegistros;
}

void BM_AbrirNavegador(benchmark::State& estado) {
    Aplicacion();
    QDir::setCurrent(Carpeta().path());
    DialogosGrabados dlg;
    for (auto _ : estado) {
        VentanaBaseDatos f(dlg);
        if (!f.Cargar()) estado.SkipWithError("no se abre");
        f.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(f.RecordCount());
    }
    estado.counters["bytes_por_registro"] = BytesPorRegistro();
}
BENCHMARK(BM_AbrirNavegador)->Unit(benchmark::kMillisecond);

void BM_SiguienteRegistro(benchmark::State& estado) {
    Aplicacion();
    QDir::setCurrent(Carpeta().path());
    DialogosGrabados dlg;
    VentanaBaseDatos f(dlg);
    if (!f.Cargar()) estado.SkipWithError("no se abre");
    f.show();
    QApplication::processEvents();
    for (auto _ : estado) {
        if (f.Posicion() == f.RecordCount() - 1)
            f.MoveFirst();
        else
            f.MoveNext();
        // The changed boxes and pictures painted, as the user sees them.
        QApplication::processEvents();
    }
    estado.counters["bytes_por_registro"] = BytesPorRegistro();
}
BENCHMARK(BM_SiguienteRegistro)->Unit(benchmark::kMillisecond);

}  // namespace
