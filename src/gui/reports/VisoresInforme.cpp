#include "gui/reports/VisoresInforme.h"

#include <QPrinter>
#include <QWidget>

#include "core/files/EscribirArchivos.h"
#include "gui/reports/PaginaWeb.h"
#include "gui/reports/frmInforme.h"
#include "gui/reports/frmMostrar.h"

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
    delete frmInforme_.data();
    delete frmMostrar_.data();
}

frmInforme* VisoresInforme::Informe() {
    if (!frmInforme_) frmInforme_ = new frmInforme(*this, padre_);
    return frmInforme_;
}

frmMostrar* VisoresInforme::Mostrar() {
    if (!frmMostrar_) frmMostrar_ = new frmMostrar(*this, padre_);
    return frmMostrar_;
}

void VisoresInforme::VerInforme(const std::string& txtInformeF1) {
    frmInforme* ventana = Informe();
    ventana->PonerTexto(txtInformeF1);
    rthInforme_ = txtInformeF1;
    ventana->show();
    ventana->raise();
}

void VisoresInforme::AbrirInforme() {
    frmMostrar* ventana = Mostrar();
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
