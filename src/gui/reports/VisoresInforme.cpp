#include "gui/reports/VisoresInforme.h"

#include <QPrinter>
#include <QWidget>

#include "core/files/EscribirArchivos.h"
#include "gui/reports/PaginaWeb.h"
#include "gui/reports/VentanaInforme.h"
#include "gui/reports/VentanaMostrarInforme.h"

namespace vanta {

VisoresInforme::VisoresInforme(Dialogos& dlg, FuentePagina fuente, QWidget* padre, DialogosArchivo* archivos)
    : dlg_(dlg), fuente_(std::move(fuente)), padre_(padre) {
    if (!archivos) {
        archivosPropios_ = std::make_unique<DialogosArchivoQt>();
        archivos = archivosPropios_.get();
    }
    archivos_ = archivos;
}

VisoresInforme::~VisoresInforme() {
    delete ventanaInforme_.data();
    delete ventanaMostrarInforme_.data();
}

VentanaInforme* VisoresInforme::Informe() {
    if (!ventanaInforme_) ventanaInforme_ = new VentanaInforme(*this, padre_);
    return ventanaInforme_;
}

VentanaMostrarInforme* VisoresInforme::Mostrar() {
    if (!ventanaMostrarInforme_) ventanaMostrarInforme_ = new VentanaMostrarInforme(*this, padre_);
    return ventanaMostrarInforme_;
}

void VisoresInforme::VerInforme(const std::string& txtInformeF1) {
    VentanaInforme* ventana = Informe();
    ventana->PonerTexto(txtInformeF1);
    rthInforme_ = txtInformeF1;
    ventana->show();
    ventana->raise();
}

void VisoresInforme::AbrirInforme() {
    VentanaMostrarInforme* ventana = Mostrar();
    ventana->show();
    ventana->raise();
}

void VisoresInforme::GuardarTexto(QWidget* ventana) {
    const QString nombre = archivos_->Guardar(ventana, kDialogoTexto);
    if (nombre.isEmpty()) return;
    EscribirArchivoEntero(RutaArchivo(nombre), BytesInformeTexto(rthInforme_));
}

void VisoresInforme::GuardarPaginaWeb(QWidget* ventana, const DialogoArchivo& dialogo) {
    const auto calculo = fuente_.calculo ? fuente_.calculo() : nullptr;
    if (!calculo) return;
    rthHTML_ = HTMLInforme(*calculo->estado, calculo->tipoCombustible);
    dlg_.MsgBox(kConsejoCarpetaNueva);
    const QString nombre = archivos_->Guardar(ventana, dialogo);
    if (nombre.isEmpty()) return;
    // The pictures are read as the boxes stand now, after the dialog.
    const ImagenesPagina imagenes =
        ImagenesDe([this](CuadroImagen c) { return fuente_.imagen ? fuente_.imagen(c) : QImage(); });
    // The page and its pictures go in whole or not at all; why not is told.
    if (const auto fallo = EscribirPaginaWeb(nombre, rthHTML_, imagenes))
        dlg_.MsgBox(std::string(kPaginaNoGuardada) + *fallo);
    else
        archivoPagina_ = nombre;
}

void VisoresInforme::Imprimir(QWidget* ventana, const QString& texto, const QString& seleccion) {
    if (!impresora_) impresora_ = std::make_unique<QPrinter>();
    if (!archivos_->ElegirImpresora(ventana, *impresora_, !seleccion.isEmpty())) return;
    const bool soloSeleccion = !seleccion.isEmpty() && impresora_->printRange() == QPrinter::Selection;
    ImprimirTexto(*impresora_, soloSeleccion ? seleccion : texto);
}

}  // namespace vanta
