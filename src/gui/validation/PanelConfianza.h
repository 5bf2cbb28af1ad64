// The strip under the results of the main window: the validity warnings of
// the last calculation (an icon and their text) and a small chart of where the
// efficiency goes, from the ideal air-standard cycle through the ideal cycle
// with the calculation's own mean exponents to the program's efficiency.
#pragma once

#include <QFrame>
#include <QString>
#include <vector>

#include "core/warnings/Avisos.h"
#include "core/warnings/CicloIdeal.h"

class QLabel;

namespace vanta {

// Three bars of efficiency, each with its name and figure.
class GraficoRendimientos : public QWidget {
    Q_OBJECT

public:
    struct Barra {
        QString nombre;
        bool valida;
        double rendimiento;
    };

    explicit GraficoRendimientos(QWidget* padre = nullptr);
    void PonerBarras(std::vector<Barra> barras, char separador);
    const std::vector<Barra>& barras() const { return barras_; }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::vector<Barra> barras_;
    char separador_ = '.';
};

class PanelConfianza : public QFrame {
    Q_OBJECT

public:
    explicit PanelConfianza(QWidget* padre = nullptr);

    // The warnings and the efficiencies of a calculation that ended well,
    // whose ideal cycle has that name and explanation.
    void Mostrar(const std::vector<Aviso>& avisos, const DistanciaIdeal& distancia, char separador,
                 const std::string& nombreIdeal, const std::string& explicacionIdeal);

    // Whether a calculation has been shown.
    bool TieneCalculo() const { return tieneCalculo_; }

    QLabel* icono() const { return icono_; }
    QLabel* texto() const { return texto_; }
    GraficoRendimientos* grafico() const { return grafico_; }

private:
    QLabel* icono_ = nullptr;
    QLabel* texto_ = nullptr;
    GraficoRendimientos* grafico_ = nullptr;
    bool tieneCalculo_ = false;
};

}  // namespace vanta
