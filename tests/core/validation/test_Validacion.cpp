// The validation table: its whole text against the golden file, every check
// within its tolerances, and the species' checks seeing a wrong coefficient of
// any species.
#include <gtest/gtest.h>

#include <string>

#include "core/validation/Validacion.h"
#include "tests/Dorados.h"

using namespace vanta;

namespace {

// The program's polynomials with coefficient tables of the test's own.
struct Coeficientes12 {
    Coeficientes baja[kNumeroEspecies], alta[kNumeroEspecies];
};

Coeficientes12 DelPrograma() {
    Coeficientes12 c;
    for (int s = 0; s < kNumeroEspecies; ++s)
        c.baja[s] = kCoeficientesBaja[s], c.alta[s] = kCoeficientesAlta[s];
    return c;
}

ValoresEspecies Evaluar(const Coeficientes12& c, double T) {
    Estado e;
    e.Temperatura = T;
    ValoresEspecies v;
    for (int s = 0; s < kNumeroEspecies; ++s) {
        const Coeficientes& k = RangoBajo(T) ? c.baja[s] : c.alta[s];
        v.cp[s] = PolinomioCp(e, k.a1, k.a2, k.a3, k.a4, k.a5);
        v.h[s] = PolinomioEntalpia(e, k.a1, k.a2, k.a3, k.a4, k.a5, k.a6);
        v.s0[s] = PolinomioEntropia(e, k.a1, k.a2, k.a3, k.a4, k.a5, k.a7);
    }
    return v;
}

int Fallos(const std::vector<Comprobacion>& filas) {
    int n = 0;
    for (const auto& f : filas) n += f.resultado == Resultado::NoCumple;
    return n;
}

double& Coeficiente(Coeficientes& k, int i) {
    double* a[7] = {&k.a1, &k.a2, &k.a3, &k.a4, &k.a5, &k.a6, &k.a7};
    return *a[i];
}

}  // namespace

TEST(Validacion, LaTablaEnteraCumpleYSeLeeComoSuArchivo) {
    const TablaValidacion t = Validar('.');
    EXPECT_TRUE(t.Correcta());
    EXPECT_EQ(t.Cuenta(Resultado::NoCumple), 0);
    EXPECT_EQ(pruebas::CompararDorado("validacion/tabla.txt", TextoValidacion(t, '.')), "");
}

TEST(Validacion, UnaCarreraQueNoCierraElBalanceNoCumple) {
    // A polytropic stroke exchanges heat that the program does not give: the
    // balance of compression and expansion sees it, and only the combustion
    // may be the model's difference.
    OpcionesCalculo o;
    o.valores = {{"compresion", "politropica"}, {"expansion", "politropica"}};
    std::string resultados;
    for (const Comprobacion& f : ComprobarCiclo("Otto politrópico", o, '.'))
        resultados += f.nombre.substr(0, f.nombre.find(':')) + " " + TextoResultado(f.resultado) + "\n";
    EXPECT_EQ(resultados,
              "Otto politrópico, 1-2 NO CUMPLE\n"
              "Otto politrópico, 2-3 diferencia del modelo\n"
              "Otto politrópico, 4-5 NO CUMPLE\n"
              "Otto politrópico cumple\n");
    o.valores = {{"rc", "0.5"}};
    EXPECT_EQ(ComprobarCiclo("Imposible", o, '.').front().resultado, Resultado::NoCumple);
}

TEST(Validacion, LasEspeciesVenUnCoeficienteEquivocadoDeCualquiera) {
    // The polynomials of the program with its own coefficients pass.
    const Coeficientes12 programa = DelPrograma();
    ASSERT_EQ(Fallos(ComprobarEspecies([&](double T) { return Evaluar(programa, T); }, '.')), 0);
    // Slips of the pen on every coefficient of both ranges: a decimal point
    // one place off, a lost sign; and where the coefficient is zero (argon),
    // the next species' coefficient copied in its place.
    for (int rango = 0; rango < 2; ++rango)
        for (int s = 0; s < kNumeroEspecies; ++s)
            for (int i = 0; i < 7; ++i) {
                for (int error = 0; error < 3; ++error) {
                    Coeficientes12 c = programa;
                    Coeficientes* tabla = rango == 0 ? c.baja : c.alta;
                    double& a = Coeficiente(tabla[s], i);
                    const double otro = Coeficiente(tabla[(s + 1) % kNumeroEspecies], i);
                    const double correcto = a;
                    a = error == 0 ? a * 10 : error == 1 ? -a : correcto == 0 ? otro : correcto;
                    // A slip that changes nothing is no fault; the a5 of CO2
                    // below 1000 K (6.3e-16) weighs less than 0.02 % of cp at
                    // 1000 K, so that neither its decimal point nor its sign
                    // moves any property by a visible amount.
                    if (a == correcto || (rango == 0 && s == CO2 && i == 4)) continue;
                    EXPECT_GT(Fallos(ComprobarEspecies([&](double T) { return Evaluar(c, T); }, '.')), 0)
                        << (rango == 0 ? "baja " : "alta ") << kNombresEspecies[s] << " a" << i + 1
                        << " error " << error;
                }
            }
}
