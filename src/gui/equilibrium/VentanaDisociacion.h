// "Combustión con disociación": the calculation's cycle beside the same cycle
// with its products in chemical equilibrium. The four diagrams with the
// equilibrium cycle laid over the program's (dashed, with a legend), the
// temperatures, pressures, work and efficiencies of the three models side by
// side with the ideal cycle's efficiency, and the composition at the end of
// the combustion in equilibrium, the minor species on a logarithmic scale.
#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "core/comparison/Calculos.h"
#include "core/equilibrium/CicloEquilibrio.h"

class QLabel;
class QSplitter;
class QTableWidget;

namespace vanta {

class LienzoFigura;

// The mole fractions of a mixture as bars: those of 1 % or more on a linear
// scale, the rest down to 1E-06 on a logarithmic one.
class GraficaEspecies : public QWidget {
    Q_OBJECT

public:
    explicit GraficaEspecies(QWidget* padre = nullptr);
    void PonerMezcla(const equilibrio::Mezcla& m, char separador);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    struct Barra {
        QString especie, cifra;
        double fraccion;
    };
    std::vector<Barra> barras_;
};

class VentanaDisociacion : public QWidget {
    Q_OBJECT

public:
    explicit VentanaDisociacion(QWidget* padre = nullptr);

    // Shows a calculation that ended well and its cycles with dissociation.
    void Mostrar(std::shared_ptr<const CalculoComparado> calculo,
                 std::shared_ptr<const equilibrio::CiclosConDisociacion> ciclos);

    QTableWidget* Tabla() const { return tblCifras_; }
    LienzoFigura* Lienzo(Diagrama d) const { return lienzos_[static_cast<size_t>(d)]; }
    GraficaEspecies* Especies() const { return especies_; }

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void Repartir();

    int anchoTabla_ = 0;
    QSplitter* division_ = nullptr;
    std::array<LienzoFigura*, 4> lienzos_{};
    QTableWidget* tblCifras_ = nullptr;
    QLabel* lblIdeal_ = nullptr;
    QLabel* lblEspecies_ = nullptr;
    GraficaEspecies* especies_ = nullptr;
};

}  // namespace vanta
