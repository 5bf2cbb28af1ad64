// "Base de datos": the browser of the saved results. It shows one record at a
// time, as a summary (every figure in its box, the seven pictures as
// thumbnails) or as the report text, and moves, deletes and enlarges. It is
// made once and only hidden when closed; the store (BD.sqlite in the current
// folder, or the file or server chosen) is opened when it is first needed,
// and stays open until another is chosen. It works the same on a SQLite file
// and on a PostgreSQL server.
//
// Viewing never writes: the report view shows the record's own Informe
// column, and leaving a record leaves it as it was. The list of records is
// read again whenever the browser is shown and on "Actualizar" (F5), so that
// the records that other programs saved on a shared store come into view.
#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/database/Registro.h"
#include "gui/database/AlmacenResultados.h"
#include "gui/services/Dialogos.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace vanta {

class ControlImagen;
class VentanaAmpliador;

class VentanaBaseDatos : public QDialog {
    Q_OBJECT

public:
    // dlg: where messages go and where a deletion is confirmed.
    explicit VentanaBaseDatos(Dialogos& dlg, QWidget* padre = nullptr);
    ~VentanaBaseDatos() override;

    // The first call resolves the file name against the current folder and
    // opens the store (making it when missing) on the first record; later
    // calls do nothing once it is open. A server that wants a password it was
    // not given gets it asked. False, with the message shown, when the store
    // cannot be used.
    bool Cargar();

    // The store to use from now on: a file, a postgresql:// address, or empty
    // for BD.sqlite in the current folder at the next load. The record left
    // keeps its report; a browser in view shows the new store at once.
    void FijarDireccion(const QString& direccion);
    const QString& Direccion() const { return direccion_; }
    // How the password of a server is asked: nothing for a cancel. By default
    // an input box that hides what is typed.
    void FijarPedirClave(std::function<std::optional<QString>(const QString&)> pedir) {
        pedirClave_ = std::move(pedir);
    }

    // The designed size where the free area of the screen holds it (with
    // the window's frame); otherwise the size of that area. The summary
    // scrolls inside, so that the navigator and the buttons stay in view.
    void AjustarAPantalla(const QRect& libre);

    // Adds a record (with the inputs of its calculation, when given) in one
    // transaction and moves to it, as the last one. False, with the message
    // shown, when nothing was saved.
    bool AgregarRegistro(const bd::TextosRegistro& textos, const ImagenesRegistro& imagenes,
                         const std::optional<std::string>& entradas = std::nullopt);

    // Reads the list of records again and stays on the current record, or on
    // the one that followed it when another program deleted it.
    void Actualizar();

    // Shown after a save, modally; from the menu, not modally, with the list
    // read again (nothing is shown when the file cannot be used).
    void MostrarModal();
    void MostrarNoModal();
    // How a modal window (this one, the enlargement) is shown: exec() unless
    // replaced; the window tests show it without a nested event loop.
    void FijarMostrarModal(std::function<void(QDialog&)> mostrar) { mostrarModal_ = std::move(mostrar); }
    // How long a save or a read waits for another program holding the file.
    void FijarEspera(int milisegundos) { espera_ = milisegundos; }

    // ---- The record navigator ----
    int RecordCount() const { return static_cast<int>(ids_.size()); }
    // 0-based position of the current record; -1 when there is none.
    int Posicion() const { return posicion_; }
    // The current record's id; -1 when there is none.
    qint64 IdActual() const { return posicion_ < 0 ? -1 : ids_[static_cast<size_t>(posicion_)]; }

    // What "Comparar…" opens (the comparison of saved records).
    void FijarComparar(std::function<void()> comparar) { comparar_ = std::move(comparar); }
    void MoveFirst();
    void MovePrevious();
    void MoveNext();
    void MoveLast();

    bool ModoInforme() const { return ModoInforme_; }
    // The text that the report box holds, line ends as stored.
    const std::string& TextoInforme() const { return textoInforme_; }
    AlmacenResultados* Almacen() const { return almacen_.get(); }
    VentanaAmpliador* Ampliador() const { return ampliador_; }

public slots:
    void cmdVer_Click();
    void cmdBorrarRegistro_Click();
    void cmdCerrar_Click();
    // Enlarges one of the seven pictures, through the system clipboard.
    void Imagen_Click(ControlImagen* imagen);

protected:
    void mouseMoveEvent(QMouseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearControles();
    QGroupBox* CrearAire();
    QGroupBox* CrearCombustible();
    QGroupBox* CrearCombustion();
    QGroupBox* CrearPuntos();
    QGroupBox* CrearTransformaciones();
    QWidget* CrearNavegador();
    void CerrarAlmacen();
    QWidget* Control(std::string_view nombre) const;
    // Rows of a caption, a box and its unit.
    struct Fila {
        const char *rotulo, *control, *unidad;
    };
    QGridLayout* Filas(QWidget* marco, std::initializer_list<Fila> filas) const;

    // Shows the record at posicion.
    void IrA(int posicion);
    // The ids of the store, standing on the record of id, or on the next
    // one after it; false with the message shown when they cannot be read.
    bool LeerIdentificadores(qint64 id);
    // Reads the current record into the controls; empty controls for none.
    void MostrarRegistro();
    void Vaciar();
    void PonerTexto(size_t columna, const std::string& texto);
    void PonerInformeEnCaja(const std::string& texto);
    // The report box's fit, in parts of the form's size.
    void AjustarInforme(double arriba, double alto, double ancho, double izquierda);
    void AjustarInformeRaton();

    Dialogos& dlg_;
    std::function<void(QDialog&)> mostrarModal_;
    std::function<void()> comparar_;
    int espera_ = 2000;

    QString direccion_;  // as chosen; empty for BD.sqlite
    QString clave_;      // the password asked, for this session only
    std::function<std::optional<QString>(const QString&)> pedirClave_;
    std::unique_ptr<AlmacenResultados> almacen_;
    std::vector<qint64> ids_;
    int posicion_ = -1;
    std::string textoInforme_;  // what the report box holds: the record's Informe
    bool ModoInforme_ = false;

    std::array<QWidget*, bd::kNumColumnasTexto> controles_{};
    std::array<ControlImagen*, bd::kNumColumnasImagen> imagenes_{};
    QPlainTextEdit* txtInforme_ = nullptr;
    QGroupBox *fraAire_ = nullptr, *fraCombustible_ = nullptr, *fraCombustion_ = nullptr,
              *fraPuntos_ = nullptr, *fraTransformaciones_ = nullptr;
    QPushButton *cmdCerrar_ = nullptr, *cmdVer_ = nullptr, *cmdBorrarRegistro_ = nullptr,
                *cmdComparar_ = nullptr, *cmdActualizar_ = nullptr;
    QToolButton *cmdPrimero_ = nullptr, *cmdAnterior_ = nullptr, *cmdSiguiente_ = nullptr,
                *cmdUltimo_ = nullptr;
    VentanaAmpliador* ampliador_ = nullptr;
};

}  // namespace vanta
