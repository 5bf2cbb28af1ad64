// The checks that every randomized case passes through: the state holds only
// finite numbers, no text shows a number that is not one, and the pictures
// get only finite coordinates on a scale that has a size.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/services/Superficie.h"
#include "core/state/Estado.h"

namespace vanta::prueba {

// The variables of the state (every double and float, and the numbers that a
// number-or-text variable holds) that are NaN or infinite.
std::vector<std::string> VariablesNoFinitas(const Estado& e);

// Why a text shown to the user betrays a number that is not finite: a word
// "nan" or "inf" in any case, or "N.D.", which is how the number services
// print such a number. Empty when the text is sound.
std::string DefectoDeTexto(std::string_view texto);
// The same, where " N.D." is a legitimate text of its own (the reports print
// the mean exponents that way): only the words.
std::string DefectoDePalabras(std::string_view texto);

// A recording surface for the charts that also checks every call: each
// coordinate finite, each scale with a finite size other than zero, each
// printed text sound. With grabar false it keeps no record of lines and
// points, which is what makes a diagram of thousands of steps cheap to check.
class SuperficieVigilada : public SuperficieGrabada {
public:
    explicit SuperficieVigilada(bool grabar = true) : grabar_(grabar) {}

    std::vector<std::string> defectos;  // the first few faults seen
    std::vector<std::string> textos;    // every printed text
    size_t trazos = 0;                  // points, lines and boxes drawn

    void Reiniciar();

protected:
    void AlPunto(float x, float y) override;
    void AlLinea(float x1, float y1, float x2, float y2) override;
    void AlCaja(float x1, float y1, float x2, float y2, int32_t color) override;
    void AlTexto(float x, float y, std::string_view texto) override;
    void CambioEscala() override;

private:
    void Defecto(std::string que);
    void Coordenadas(const char* operacion, std::initializer_list<float> valores);

    bool grabar_;
};

}  // namespace vanta::prueba
