#include "gui/mainwindow/VentanaBibliografia.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "gui/services/Escritorio.h"

namespace vanta {

const std::vector<Libro>& Bibliografia() {
    // Engines first, then thermodynamics; an ISBN only where it is known for
    // that very edition.
    static const std::vector<Libro> libros{
        {QStringLiteral("Internal Combustion Engine Fundamentals"), QStringLiteral("John B. Heywood"),
         QStringLiteral("McGraw-Hill"), 1988, QStringLiteral("1.ª"), QStringLiteral("0-07-028637-X")},
        {QStringLiteral("Internal Combustion Engine Fundamentals"), QStringLiteral("John B. Heywood"),
         QStringLiteral("McGraw-Hill Education"), 2018, QStringLiteral("2.ª"),
         QStringLiteral("978-1-260-11610-6")},
        {QStringLiteral("Motores de combustión interna alternativos"),
         QStringLiteral("F. Payri y J. M. Desantes (coordinadores)"),
         QStringLiteral("Reverté; Editorial Universitat Politècnica de València"), 2011,
         QStringLiteral("1.ª"), QString()},
        {QStringLiteral("The Internal-Combustion Engine in Theory and Practice (2 vols.)"),
         QStringLiteral("Charles Fayette Taylor"), QStringLiteral("The MIT Press"), 1985,
         QStringLiteral("2.ª, revisada"), QString()},
        {QStringLiteral("Internal Combustion Engines and Air Pollution"), QStringLiteral("Edward F. Obert"),
         QStringLiteral("Intext Educational Publishers"), 1973, QStringLiteral("3.ª"), QString()},
        {QStringLiteral("Internal Combustion Engines: Applied Thermosciences"),
         QStringLiteral("Colin R. Ferguson"), QStringLiteral("John Wiley & Sons"), 1986,
         QStringLiteral("1.ª"), QStringLiteral("0-471-88129-5")},
        {QStringLiteral("Internal Combustion Engines: Applied Thermosciences"),
         QStringLiteral("Colin R. Ferguson y Allan T. Kirkpatrick"), QStringLiteral("John Wiley & Sons"),
         2016, QStringLiteral("3.ª"), QStringLiteral("978-1-118-53331-4")},
        {QStringLiteral("Introduction to Internal Combustion Engines"), QStringLiteral("Richard Stone"),
         QStringLiteral("Palgrave Macmillan"), 2012, QStringLiteral("4.ª"), QString()},
        {QStringLiteral("Engineering Fundamentals of the Internal Combustion Engine"),
         QStringLiteral("Willard W. Pulkrabek"), QStringLiteral("Prentice Hall"), 2003, QStringLiteral("2.ª"),
         QString()},
        {QStringLiteral("Termodinámica"), QStringLiteral("Yunus A. Çengel y Michael A. Boles"),
         QStringLiteral("McGraw-Hill Education"), 2015, QStringLiteral("8.ª"), QString()},
        {QStringLiteral("Thermodynamics: An Engineering Approach"),
         QStringLiteral("Yunus A. Çengel y Michael A. Boles"), QStringLiteral("McGraw-Hill Education"), 2015,
         QStringLiteral("8.ª"), QStringLiteral("978-0-07-339817-4")},
        {QStringLiteral("Fundamentos de termodinámica técnica"),
         QStringLiteral("Michael J. Moran y Howard N. Shapiro"), QStringLiteral("Reverté"), 2004,
         QStringLiteral("2.ª"), QString()},
        {QStringLiteral("Fundamentals of Engineering Thermodynamics"),
         QStringLiteral("Michael J. Moran, Howard N. Shapiro, Daisie D. Boettner y Margaret B. Bailey"),
         QStringLiteral("John Wiley & Sons"), 2018, QStringLiteral("9.ª"), QString()},
    };
    return libros;
}

VentanaBibliografia::VentanaBibliografia(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("VentanaBibliografia"));
    setWindowTitle(QStringLiteral("Bibliografía"));
    setModal(false);

    auto* cabecera =
        new QLabel(QStringLiteral("Libros sobre motores alternativos y termodinámica técnica"), this);
    cabecera->setWordWrap(true);

    const QStringList columnas{QStringLiteral("Título"),    QStringLiteral("Autores"),
                               QStringLiteral("Editorial"), QStringLiteral("Año"),
                               QStringLiteral("Edición"),   QStringLiteral("ISBN")};
    const auto& libros = Bibliografia();
    lstLibros_ = new QTableWidget(static_cast<int>(libros.size()), static_cast<int>(columnas.size()), this);
    lstLibros_->setObjectName(QStringLiteral("lstLibros"));
    lstLibros_->setHorizontalHeaderLabels(columnas);
    lstLibros_->verticalHeader()->setVisible(false);
    lstLibros_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lstLibros_->setSelectionBehavior(QAbstractItemView::SelectRows);
    lstLibros_->setWordWrap(true);
    for (int fila = 0; fila < static_cast<int>(libros.size()); ++fila) {
        const Libro& l = libros[static_cast<size_t>(fila)];
        const QStringList celdas{l.titulo,    l.autores,
                                 l.editorial, QString::number(l.anio),
                                 l.edicion,   l.isbn.isEmpty() ? QStringLiteral("—") : l.isbn};
        for (int c = 0; c < celdas.size(); ++c) lstLibros_->setItem(fila, c, new QTableWidgetItem(celdas[c]));
    }
    QHeaderView* h = lstLibros_->horizontalHeader();
    h->setSectionResizeMode(QHeaderView::Interactive);
    lstLibros_->setColumnWidth(0, 300);
    lstLibros_->setColumnWidth(1, 230);
    lstLibros_->setColumnWidth(2, 220);
    h->setSectionResizeMode(3, QHeaderView::ResizeToContents);
    h->setSectionResizeMode(4, QHeaderView::ResizeToContents);
    h->setStretchLastSection(true);
    lstLibros_->resizeRowsToContents();
    // A click on a heading sorts by it; the list opens in its own order.
    h->setSortIndicator(-1, Qt::AscendingOrder);
    lstLibros_->setSortingEnabled(true);

    auto* botones = new QDialogButtonBox(this);
    QPushButton* cerrar = botones->addButton(QString::fromUtf8(kCerrar), QDialogButtonBox::RejectRole);
    cerrar->setObjectName(QStringLiteral("cmdCerrar"));
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* capa = new QVBoxLayout(this);
    capa->addWidget(cabecera);
    capa->addWidget(lstLibros_, 1);
    capa->addWidget(botones);
    CuidarVentana(this, QStringLiteral("bibliografia"), {1040, 520}, false);
}

}  // namespace vanta
