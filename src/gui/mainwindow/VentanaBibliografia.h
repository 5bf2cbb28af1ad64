// The bibliography window: books on piston engines and on engineering
// thermodynamics, with title, authors, publisher, year, edition and ISBN.
#pragma once

#include <QDialog>
#include <QString>
#include <vector>

class QTableWidget;

namespace vanta {

// The button that closes the about and the bibliography windows.
inline constexpr const char* kCerrar = "&Cerrar";

// One book of the list. An empty ISBN means the book is listed without one.
struct Libro {
    QString titulo;
    QString autores;
    QString editorial;
    int anio;
    QString edicion;
    QString isbn;
};

// The books, in the order the window lists them.
const std::vector<Libro>& Bibliografia();

// Not modal: the user may keep it open beside the main window.
class VentanaBibliografia : public QDialog {
    Q_OBJECT

public:
    explicit VentanaBibliografia(QWidget* padre = nullptr);

    QTableWidget* lstLibros() const { return lstLibros_; }

private:
    QTableWidget* lstLibros_ = nullptr;
};

}  // namespace vanta
