// The calculation state: every variable that the calculation reads and writes,
// in the program's own groups and under the program's own names. One instance
// per process, made by main; every procedure takes it by reference.
//
// Each group is written once as a field list, which declares the struct and
// lets the JSON output and the tests walk the fields by name.
#pragma once

#include <cstdint>
#include <string>

#include "core/state/Variante.h"

namespace vanta {

// Models of compression and expansion.
enum class Modelo : int {
    GammaMedio = 1,     // "Exponente adiabático medio"
    Politropico = 2,    // "Politrópica"
    GammaVariable = 3,  // "Exponente adiabático variable"
};

// Kind of fluid of the current transformation (TipoFluido).
enum class Fluido : int16_t {
    Aire = 1,       // the humid comburent
    Humos = 2,      // the combustion gases
    AireHumos = 3,  // air with gases, while the heat is released
};

// The transformation record: the current state of the process, its start and
// its end. Every property evaluation works at Temperatura and Presion.
#define VANTA_CAMPOS_REGISTRO(X)  \
    X(double, Presion)            \
    X(double, PresionInicial)     \
    X(double, PresionFinal)       \
    X(double, Volumen)            \
    X(double, VolumenInicial)     \
    X(double, VolumenFinal)       \
    X(double, Temperatura)        \
    X(double, TemperaturaInicial) \
    X(double, TemperaturaFinal)   \
    X(double, Entalpia)           \
    X(double, EntalpiaInicial)    \
    X(double, EntalpiaFinal)      \
    X(double, Entropia)           \
    X(double, EntropiaInicial)    \
    X(double, EntropiaFinal)

// Results and the definition of the working fluid.
#define VANTA_CAMPOS_VALORES_OBTENIDOS(X) \
    X(double, gamma1)                     \
    X(double, Gamma2)                     \
    X(double, Gamma4)                     \
    X(double, Gamma5)                     \
    X(std::string, TipoCiclo)             \
    X(double, AtomosC)                    \
    X(double, AtomosH)                    \
    X(double, AtomosN)                    \
    X(double, AtomosO)                    \
    X(double, AtomosS)                    \
    X(double, MolesO2Aire)                \
    X(double, OxigenoEstequiometrico)     \
    X(double, MolesN2Aire)                \
    X(double, MolesArAire)                \
    X(double, MolesCO2Aire)               \
    X(double, MolesH2OAire)               \
    X(double, CienC)                      \
    X(double, CienH)                      \
    X(double, CienN)                      \
    X(double, CienO)                      \
    X(double, CienS)                      \
    X(double, ConsumoKWh)                 \
    X(double, ConsumoMJ)                  \
    X(double, EntalpiaFormacion)          \
    X(double, EntalpiaReaccion)           \
    X(double, EntalpiaProductos)          \
    X(double, Fe)                         \
    X(double, Fr)                         \
    X(double, GammaMedioCompresion)       \
    X(double, GammaMedioExpansion)        \
    X(double, h1)                         \
    X(double, h2)                         \
    X(double, h3)                         \
    X(double, h4)                         \
    X(double, h5)                         \
    X(double, HCI)                        \
    X(double, HCIhumos)                   \
    X(double, HCS)                        \
    X(double, HCShumos)                   \
    X(Variante, TextoExponente)           \
    X(double, nCompresion)                \
    X(double, nExpansion)                 \
    X(double, MasaAire)                   \
    X(double, MasaCombustible)            \
    X(double, MasaHumos)                  \
    X(double, MasaMolecularAire)          \
    X(double, MasaMolecularCombustible)   \
    X(double, MasaMolecularHumos)         \
    X(double, MolesCombustible)           \
    X(double, MolesAire)                  \
    X(double, MolesHumos)                 \
    X(double, p1)                         \
    X(double, p2)                         \
    X(double, p3)                         \
    X(double, p4)                         \
    X(double, p5)                         \
    X(double, Pambiente)                  \
    X(double, Pmax)                       \
    X(double, Psaturacion)                \
    X(double, Qciclo)                     \
    X(double, CalorVap)                   \
    X(double, Q23)                        \
    X(double, Rc)                         \
    X(double, Rendimiento)                \
    X(double, S1)                         \
    X(double, S2)                         \
    X(double, S3)                         \
    X(double, S4)                         \
    X(double, S5)                         \
    X(double, T1)                         \
    X(double, T2)                         \
    X(double, T3)                         \
    X(double, T4)                         \
    X(double, T5)                         \
    X(double, W12acumulado)               \
    X(double, W45acumulado)               \
    X(double, W34acumulado)               \
    X(double, Tambiente)                  \
    X(double, V1)                         \
    X(double, V2)                         \
    X(double, V3)                         \
    X(double, V4)                         \
    X(double, V5)                         \
    X(double, W12)                        \
    X(double, W34)                        \
    X(double, W45)                        \
    X(double, Humedad)                    \
    X(double, xArAire)                    \
    X(double, xH2OAire)                   \
    X(double, xCO2Aire)                   \
    X(double, xArHumos)                   \
    X(double, xCOHumos)                   \
    X(double, xCO2Humos)                  \
    X(double, xH2OHumos)                  \
    X(double, xN2Humos)                   \
    X(double, xSHumos)                    \
    X(double, xSO2Humos)                  \
    X(double, xO2Humos)                   \
    X(double, xN2Aire)                    \
    X(double, xO2Aire)

// The one flag of failure.
#define VANTA_CAMPOS_VARIOS(X) X(bool, ErrorCalculo)

// What the user chose for the cycle, and the pens of the diagrams.
#define VANTA_CAMPOS_OPCIONES_USUARIO(X) \
    X(double, PasoVolumen)               \
    X(double, PropPcte)                  \
    X(double, PropVcte)                  \
    X(bool, OpcionProporcion)            \
    X(int32_t, ColorEscape)              \
    X(int32_t, ColorCompresion)          \
    X(int32_t, ColorCombustionV)         \
    X(int32_t, ColorCombustionP)         \
    X(int32_t, ColorExpansion)           \
    X(std::string, RutaInformeHTML)

// Intermediate values of the property model and the running maxima, which are
// single precision.
#define VANTA_CAMPOS_VALORES_CALCULOS_INTERNOS(X) \
    X(double, CvActual)                           \
    X(double, FraccionQuemada)                    \
    X(double, GammaActual)                        \
    X(double, PresionPolitropica)                 \
    X(double, CalorIsobaro)                       \
    X(double, TemperaturaIsocoraA)                \
    X(double, TemperaturaIsocoraB)                \
    X(double, TemperaturaPolitropica)             \
    X(double, TrabajoTransformacion)              \
    X(double, VolumenProporcional)                \
    X(double, uInicial)                           \
    X(double, hInicial)                           \
    X(double, SInicial)                           \
    X(double, CpInicial)                          \
    X(Variante, GammaInicial)                     \
    X(double, uFinal)                             \
    X(double, SFinal)                             \
    X(Variante, GammaFinal)                       \
    X(double, CpFinal)                            \
    X(float, PresionMaxima)                       \
    X(float, TemperaturaMaxima)                   \
    X(float, EntropiaMaxima)                      \
    X(float, EntalpiaMaxima)

// The six species by range: Baja up to 1000 K, Alta above.
#define VANTA_CAMPOS_ESPECIES_RANGO(X, R) \
    X(double, CpAr##R)                    \
    X(double, CpCO##R)                    \
    X(double, CpCO2##R)                   \
    X(double, CpH2O##R)                   \
    X(double, CpN2##R)                    \
    X(double, CpO2##R)                    \
    X(double, hAr##R)                     \
    X(double, hCO##R)                     \
    X(double, hCO2##R)                    \
    X(double, hH2O##R)                    \
    X(double, hN2##R)                     \
    X(double, hO2##R)                     \
    X(double, S0Ar##R)                    \
    X(double, S0CO##R)                    \
    X(double, S0CO2##R)                   \
    X(double, S0H2O##R)                   \
    X(double, S0N2##R)                    \
    X(double, S0O2##R)

// The state of the searches and the properties of the last evaluation.
#define VANTA_CAMPOS_TRANSFORMACIONES(X) \
    X(double, SaltoEntalpia)             \
    X(double, TrabajoPaso)               \
    X(double, CpAire)                    \
    X(double, CpMezcla)                  \
    X(double, CpHumos)                   \
    X(double, CpMedio)                   \
    X(double, CvAire)                    \
    X(double, CvHumos)                   \
    X(double, hFinal)                    \
    X(double, Gamma)                     \
    X(Variante, GammaMedio)              \
    X(double, hInicioBusqueda)           \
    X(double, hBusqueda)                 \
    X(double, hAire)                     \
    X(double, hHumos)                    \
    X(double, hMezcla)                   \
    X(double, MolesReactivos)            \
    X(double, MolesQuemados)             \
    X(double, PresionMolQuemado)         \
    X(double, PresionIsocora)            \
    X(double, PresionMolFresco)          \
    X(double, FraccionHumos)             \
    X(double, Qtransformacion)           \
    X(double, CalorPorMol)               \
    X(double, SAire)                     \
    X(double, SMezcla)                   \
    X(double, SHumos)                    \
    X(double, S0Aire)                    \
    X(double, S0Mezcla)                  \
    X(double, S0Humos)                   \
    X(double, TemperaturaAnterior)       \
    X(double, TemperaturaIsocora)        \
    X(double, TemperaturaQuemado)        \
    X(double, Wciclo)                    \
    X(double, VolumenIsobaro)            \
    X(Fluido, TipoFluido)                \
    X(double, MolesSuperior)             \
    X(double, MolesInferior)             \
    X(double, TemperaturaSuperior)       \
    X(double, TemperaturaInferior)       \
    VANTA_CAMPOS_ESPECIES_RANGO(X, Baja) \
    VANTA_CAMPOS_ESPECIES_RANGO(X, Alta)

#define VANTA_CAMPOS_FUNCIONES_AUXILIARES(X) \
    X(bool, TablaHumosDisponible)            \
    X(bool, TablaAireDisponible)

#define VANTA_CAMPOS_DIAGRAMA_TVPV(X) \
    X(Modelo, ModeloExpansion)        \
    X(Modelo, ModeloCompresion)

// The running text position of the composition charts.
#define VANTA_CAMPOS_GRAFICAS(X) \
    X(double, CursorGrafica)     \
    X(double, PosicionFormula)

#define VANTA_DECLARAR_CAMPO(tipo, nombre) tipo nombre{};

struct RegistroTransformacion {
    VANTA_CAMPOS_REGISTRO(VANTA_DECLARAR_CAMPO)
};
struct ValoresObtenidos {
    VANTA_CAMPOS_VALORES_OBTENIDOS(VANTA_DECLARAR_CAMPO)
};
struct Varios {
    VANTA_CAMPOS_VARIOS(VANTA_DECLARAR_CAMPO)
};
struct OpcionesUsuario {
    VANTA_CAMPOS_OPCIONES_USUARIO(VANTA_DECLARAR_CAMPO)
};
struct ValoresCalculosInternos {
    VANTA_CAMPOS_VALORES_CALCULOS_INTERNOS(VANTA_DECLARAR_CAMPO)
};
struct Transformaciones {
    VANTA_CAMPOS_TRANSFORMACIONES(VANTA_DECLARAR_CAMPO)
};
struct FuncionesAuxiliares {
    VANTA_CAMPOS_FUNCIONES_AUXILIARES(VANTA_DECLARAR_CAMPO)
};
struct DiagramaTVPV {
    VANTA_CAMPOS_DIAGRAMA_TVPV(VANTA_DECLARAR_CAMPO)
};
struct Graficas {
    VANTA_CAMPOS_GRAFICAS(VANTA_DECLARAR_CAMPO)
};

// Every field of the state, group after group, for walking it by name.
#define VANTA_CAMPOS_ESTADO(X)                \
    VANTA_CAMPOS_REGISTRO(X)                  \
    VANTA_CAMPOS_VALORES_OBTENIDOS(X)         \
    VANTA_CAMPOS_VARIOS(X)                    \
    VANTA_CAMPOS_OPCIONES_USUARIO(X)          \
    VANTA_CAMPOS_VALORES_CALCULOS_INTERNOS(X) \
    VANTA_CAMPOS_TRANSFORMACIONES(X)          \
    VANTA_CAMPOS_FUNCIONES_AUXILIARES(X)      \
    VANTA_CAMPOS_DIAGRAMA_TVPV(X)             \
    VANTA_CAMPOS_GRAFICAS(X)

// The logarithms of the mole fractions, kept beside the fractions they were
// taken of: the entropy of a mixture needs them at every evaluation, and the
// fractions change only when a fluid is defined again. Derived data, not a
// variable of the calculation.
struct LogaritmosFracciones {
    struct Entrada {
        double x = -1;  // no fraction is negative when its logarithm is taken
        double ln = 0;
    };
    Entrada aire[5], humos[6];
};

// How many passes the last mean-exponent search of each fluid needed, for the
// validity warnings. A count beside the calculation, not a variable of it: no
// figure reads it, and a new calculation starts it at zero.
struct PasadasGammaMedio {
    int aire = 0;   // compression
    int humos = 0;  // expansion
};

// The six species (Ar, CO, CO2, H2O, N2, O2) of each range as the last
// evaluation in that range left them, the same values as CpArBaja … S0O2Alta,
// held as arrays for the mixtures' sums, with the temperature of the last
// evaluation that stored values: evaluating again at that temperature gives
// the same values, so it is not done twice. Derived data, not a variable of
// the calculation.
struct EspeciesEvaluadas {
    struct Rango {
        double cp[6], h[6], s0[6];
    };
    Rango baja{}, alta{};
    double temperatura = -1;  // none yet: no evaluation stores at T <= 0
};

struct Estado : RegistroTransformacion,
                ValoresObtenidos,
                Varios,
                OpcionesUsuario,
                ValoresCalculosInternos,
                Transformaciones,
                FuncionesAuxiliares,
                DiagramaTVPV,
                Graficas {
    LogaritmosFracciones logaritmos;
    PasadasGammaMedio pasadas;
    EspeciesEvaluadas especies;
    // The decimal separator of every number the calculation writes: "." by
    // default (command line, tests); the window takes the system's.
    char SeparadorDecimal = '.';
};

// RGB as the program writes colours: red in the low byte, blue in the high.
constexpr int32_t RGB(int r, int g, int b) {
    return r | (g << 8) | (b << 16);
}

// The five pens of the diagrams, stored when the main window loads.
inline void GuardarColoresDiagramas(Estado& e) {
    e.ColorEscape = RGB(0, 255, 0);
    e.ColorCompresion = RGB(1, 0, 255);
    e.ColorCombustionV = RGB(125, 0, 125);
    e.ColorCombustionP = RGB(255, 0, 0);
    e.ColorExpansion = RGB(50, 50, 50);
}

// Calls f(nombre, campo) for every field of the state.
template <class E, class F>
void VisitarCampos(E& e, F&& f) {
#define VANTA_VISITAR_CAMPO(tipo, nombre) f(#nombre, e.nombre);
    VANTA_CAMPOS_ESTADO(VANTA_VISITAR_CAMPO)
#undef VANTA_VISITAR_CAMPO
}

}  // namespace vanta
