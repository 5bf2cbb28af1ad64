#include "core/validation/ValidacionEquilibrio.h"

#include <algorithm>
#include <cmath>

#include "core/equilibrium/CicloEquilibrio.h"
#include "core/equilibrium/Llama.h"
#include "core/sequence/Calculo.h"
#include "core/warnings/Cifras.h"
#include "core/warnings/Referencias.h"

namespace vanta {

namespace {

namespace eq = equilibrio;

// log10 Kf of the gases as the NIST-JANAF tables print them (4th edition,
// ideal gas at 0.1 MPa); those of H2, O2 and N2 are zero.
// clang-format off
constexpr std::string_view kCsvKf = R"csv(species,T_K,log10_Kf,table
CO,1000,10.461,C-093
CO,2000,7.470,C-093
CO,3000,6.404,C-093
CO,4000,5.830,C-093
CO,5000,5.458,C-093
CO2,1000,20.679,C-095
CO2,2000,10.351,C-095
CO2,3000,6.886,C-095
CO2,4000,5.134,C-095
CO2,5000,4.068,C-095
H2O,1000,10.060,H-064
H2O,2000,3.540,H-064
H2O,3000,1.344,H-064
H2O,4000,0.239,H-064
H2O,5000,-0.428,H-064
H,1000,-8.644,H-001
H,2000,-2.788,H-001
H,3000,-0.801,H-001
H,4000,0.203,H-001
H,5000,0.809,H-001
O,1000,-9.803,O-001
O,2000,-3.175,O-001
O,3000,-0.946,O-001
O,4000,0.173,O-001
O,5000,0.846,O-001
N,1000,-21.530,N-002
N,2000,-9.045,N-002
N,3000,-4.857,N-002
N,4000,-2.751,N-002
N,5000,-1.480,N-002
OH,1000,-1.222,H-038
OH,2000,-0.240,H-038
OH,3000,0.074,H-038
OH,4000,0.223,H-038
OH,5000,0.307,H-038
NO,1000,-4.063,N-005
NO,2000,-1.699,N-005
NO,3000,-0.913,N-005
NO,4000,-0.524,N-005
NO,5000,-0.295,N-005
)csv";
// clang-format on

struct Termino {
    eq::Gas gas;
    double nu;  // negative for a reactant
};
struct Reaccion {
    const char* texto;
    std::vector<Termino> terminos;
};

const std::vector<Reaccion>& Reacciones() {
    static const std::vector<Reaccion> r = {
        {"CO2 ⇌ CO + ½ O2", {{eq::CO2, -1}, {eq::CO, 1}, {eq::O2, 0.5}}},
        {"H2O ⇌ H2 + ½ O2", {{eq::H2O, -1}, {eq::H2, 1}, {eq::O2, 0.5}}},
        {"H2O ⇌ OH + ½ H2", {{eq::H2O, -1}, {eq::OH, 1}, {eq::H2, 0.5}}},
        {"H2 ⇌ 2 H", {{eq::H2, -1}, {eq::H, 2}}},
        {"O2 ⇌ 2 O", {{eq::O2, -1}, {eq::O, 2}}},
        {"N2 ⇌ 2 N", {{eq::N2, -1}, {eq::N, 2}}},
        {"½ N2 + ½ O2 ⇌ NO", {{eq::N2, -0.5}, {eq::O2, -0.5}, {eq::NO, 1}}},
    };
    return r;
}

// log10 Kf from the table; 0 for a gas that has no row (an element in its
// reference state).
double LogKf(eq::Gas gas, double T) {
    for (const auto& c : LeerCSV(kCsvKf))
        if (c[0] == eq::kNombresGases[gas] && LeerNumero(c[1]) == T) return LeerNumero(c[2]).value_or(0);
    return 0;
}

// A published adiabatic flame: stoichiometric with O2 + 3.76 N2 from
// 298.15 K and 1 atm, at constant pressure, products in equilibrium.
struct LlamaPublicada {
    const char* nombre;      // as the validation shows it
    const char* referencia;  // the fuel in the table of heating values, with its enthalpy of formation
    double C, H;
    double temperatura;  // K
};
constexpr LlamaPublicada kLlamas[] = {
    {"metano (CH4)", "methane", 1, 4, 2226},
    {"propano (C3H8)", "propane", 3, 8, 2267},
    {"hidrógeno (H2)", "hydrogen", 0, 2, 2383},
};
constexpr double kTemperaturaLlamas = 298.15;  // K
constexpr double kAtmosfera = 101325.0;        // Pa

// Validation cycles for the balances: a stoichiometric Otto, a lean Diesel
// with sulphur, a Mixto up to its maximum pressure and a rich Otto.
struct CicloBalance {
    const char* nombre;
    std::vector<std::pair<std::string, std::string>> opciones;
};
const std::vector<CicloBalance>& CiclosBalance() {
    static const std::vector<CicloBalance> c = {
        {"Otto, Gasolina, Fr 1, rc 10", {}},
        {"Diesel, Gasoil, Fr 0.8, rc 18",
         {{"ciclo", "Diesel"}, {"combustible", "Gasoil"}, {"fr", "0.8"}, {"rc", "18"}}},
        {"Mixto, pmax 6 MPa", {{"ciclo", "Mixto"}, {"pmax", "6000000"}}},
        {"Otto, Metanol, Fr 1.2, rc 12", {{"combustible", "Metanol"}, {"fr", "1.2"}, {"rc", "12"}}},
    };
    return c;
}

double Relativo(double diferencia, double escala) {
    return std::fabs(diferencia) / std::fabs(escala);
}

double ResiduoAtomos(const eq::Mezcla& m, const eq::Elementos& b) {
    const eq::Elementos r = eq::ElementosDe(m.n);
    double peor = 0;
    for (int i = 0; i < eq::kElementos; ++i)
        peor = std::max(peor, b[i] > 0 ? Relativo(r[i] - b[i], b[i]) : std::fabs(r[i]));
    return peor;
}

Comprobacion FilaBalance(std::string nombre, double residuo, char sep) {
    return {GrupoValidacion::Equilibrio,
            std::move(nombre),
            TextoResiduo(residuo, sep),
            "0",
            TextoResiduo(residuo, sep),
            TextoGeneral(eq::kToleranciaEquilibrio, sep),
            residuo <= eq::kToleranciaEquilibrio ? Resultado::Cumple : Resultado::NoCumple,
            {}};
}

}  // namespace

std::string TextoResiduo(double r, char sep) {
    constexpr double kResiduoMinimo = 1e-12;
    if (!(r >= kResiduoMinimo))
        return r < kResiduoMinimo ? "< " + TextoGeneral(kResiduoMinimo, sep) : "no es un número";
    const double escala = std::pow(10.0, std::floor(std::log10(r)));
    return TextoGeneral(Round(r / escala, 1) * escala, sep);
}

ResiduosCiclo Residuos(const eq::CicloEquilibrio& c) {
    ResiduosCiclo r;
    const double f = c.fraccionVolumenConstante;
    eq::Elementos parcial = c.atomosAire, todo = c.atomosAire;
    for (int i = 0; i < eq::kElementos; ++i) {
        parcial[i] += f * c.atomosCombustible[i];
        todo[i] += c.atomosCombustible[i];
    }
    r.atomos = std::max(
        {ResiduoAtomos(c.estado3, parcial), ResiduoAtomos(c.estado4, todo), ResiduoAtomos(c.estado5, todo)});
    // Each state evaluated again from its moles, temperature and volume.
    const eq::Mezcla m2 = eq::Evaluar(c.estado2.n, c.estado2.T, c.estado2.V, false);
    const eq::Mezcla m3 = eq::Evaluar(c.estado3.n, c.estado3.T, c.estado3.V, false);
    const eq::Mezcla m4 = eq::Evaluar(c.estado4.n, c.estado4.T, c.estado4.V, false);
    const eq::Mezcla m5 = eq::Evaluar(c.estado5.n, c.estado5.T, c.estado5.V, false);
    // 2-3 keeps the internal energy with the fuel's enthalpy added, 3-4 the
    // enthalpy, 4-5 the entropy.
    const double q = c.entalpiaCombustible;
    r.energia = std::max({Relativo(m3.U - m2.U - f * q, c.calor),
                          Relativo(m4.H - m3.H - (1 - f) * q, c.calor), Relativo(m5.S - m4.S, m4.S)});
    // The pressure of each state from its moles, T and V; 3-4 at the
    // pressure of 3.
    for (const auto& [m, estado] :
         {std::pair{&m2, &c.estado2}, {&m3, &c.estado3}, {&m4, &c.estado4}, {&m5, &c.estado5}})
        r.energia = std::max(r.energia, Relativo(m->p - estado->p, estado->p));
    r.energia = std::max(r.energia, Relativo(m4.p - c.estado3.p, c.estado3.p));
    return r;
}

DescripcionGrupo DescripcionEquilibrio(char sep) {
    const std::string logK = Cifra(kToleranciaLogK, "0.00", sep), llama = TextoGeneral(kToleranciaLlama, sep),
                      balance = TextoGeneral(eq::kToleranciaEquilibrio, sep);
    const std::string t0 = TextoGeneral(kTemperaturaLlamas, sep);
    return {
        GrupoValidacion::Equilibrio, "Equilibrio químico y disociación",
        "El modelo de equilibrio químico de la combustión con disociación (vanta llama). Las constantes de "
        "equilibrio de las reacciones de disociación, con los datos de sus gases (los polinomios del "
        "programa para Ar, CO, CO2, H2O, N2 y O2 con las entalpías de formación de las tablas; polinomios "
        "ajustados a las tablas para H2, H, O, N, OH y NO), frente a las que dan los log10 Kf de las tablas "
        "NIST-JANAF, 4.ª edición; tolerancia " +
            logK +
            " en log10 K. Las temperaturas de llama adiabática de metano, propano e hidrógeno "
            "estequiométricos con aire O2 + " +
            TextoGeneral(eq::kNitrogenoPorOxigeno, sep) + " N2 desde " + t0 +
            " K y 1 atm, a presión constante y con productos en equilibrio, frente a las publicadas en los "
            "libros de combustión (Turns, An Introduction to Combustion); tolerancia " +
            llama +
            " K. Y los balances de los estados de los ciclos con disociación, en equilibrio y sin "
            "disociación: los átomos de cada elemento en los estados 3, 4 y 5 frente a los de la carga, y la "
            "energía de la combustión (la energía interna a volumen constante, la entalpía a presión "
            "constante, con la entalpía del combustible), la entropía de la expansión y la presión de cada "
            "estado (evaluado de nuevo desde sus moles, su temperatura y su volumen) frente a las que el "
            "ciclo les da; tolerancia " +
            balance + " relativa."};
}

std::vector<Comprobacion> ComprobarConstantesEquilibrio(char sep) {
    std::vector<Comprobacion> filas;
    for (const Reaccion& r : Reacciones()) {
        for (double T : {1000.0, 2000.0, 3000.0, 4000.0, 5000.0}) {
            eq::PropiedadesGases g;
            eq::EvaluarGases(T, g);
            double modelo = 0, tabla = 0;
            for (const Termino& t : r.terminos) {
                modelo -= t.nu * (g.h[t.gas] - g.s0[t.gas]) / std::log(10.0);
                tabla += t.nu * LogKf(t.gas, T);
            }
            filas.push_back(
                {GrupoValidacion::Equilibrio,
                 std::string("log10 K de ") + r.texto + " a " + TextoGeneral(T, sep) + " K",
                 Cifra(modelo, "##0.000", sep),
                 Cifra(tabla, "##0.000", sep),
                 CifraConSigno(modelo - tabla, "0.000", sep),
                 Cifra(kToleranciaLogK, "0.00", sep),
                 std::fabs(modelo - tabla) <= kToleranciaLogK ? Resultado::Cumple : Resultado::NoCumple,
                 {}});
        }
    }
    return filas;
}

std::vector<Comprobacion> ComprobarLlamas(char sep) {
    std::vector<Comprobacion> filas;
    for (const LlamaPublicada& l : kLlamas) {
        const ReferenciaCombustible* r = BuscarReferenciaCombustible(l.referencia);
        eq::DatosLlama d;
        d.combustible = {.C = l.C, .H = l.H, .entalpiaFormacion = r ? r->entalpiaFormacion.value_or(0) : 0};
        d.aire = eq::AireO2N2();
        d.T = kTemperaturaLlamas;
        d.p = kAtmosfera;
        const eq::ResultadoLlama llama = eq::LlamaAdiabatica(d);
        const double T = llama.bien ? llama.productos.T : 0;
        filas.push_back(
            {GrupoValidacion::Equilibrio,
             std::string("Temperatura de llama adiabática del ") + l.nombre + " (K)",
             llama.bien ? Cifra(T, "### ##0.0", sep) : llama.mensaje,
             Cifra(l.temperatura, "### ##0", sep),
             CifraConSigno(T - l.temperatura, "##0.0", sep),
             TextoGeneral(kToleranciaLlama, sep),
             std::fabs(T - l.temperatura) <= kToleranciaLlama ? Resultado::Cumple : Resultado::NoCumple,
             {}});
    }
    return filas;
}

std::vector<Comprobacion> ComprobarBalancesEquilibrio(const std::string& nombre, const OpcionesCalculo& o,
                                                      char sep) {
    const ResultadoCalculo calculo = Calcular(EntradasDeOpciones(o));
    const Estado& e = *calculo.estado;
    if (!calculo.CicloCalculado())
        return {{GrupoValidacion::Equilibrio,
                 nombre + ": el cálculo",
                 "no termina",
                 "termina",
                 "",
                 "",
                 Resultado::NoCumple,
                 {}}};
    const eq::CiclosConDisociacion ciclos = eq::CicloConDisociacion(e);
    std::vector<Comprobacion> filas;
    const std::pair<const char*, const eq::CicloEquilibrio*> modelos[] = {
        {"en equilibrio", &ciclos.equilibrio}, {"sin disociación", &ciclos.sinDisociacion}};
    for (const auto& [modelo, c] : modelos) {
        const std::string donde = nombre + ", " + modelo;
        if (!c->bien) {
            filas.push_back({GrupoValidacion::Equilibrio,
                             donde + ": el ciclo",
                             c->mensaje,
                             "termina",
                             "",
                             "",
                             Resultado::NoCumple,
                             {}});
            continue;
        }
        const ResiduosCiclo r = Residuos(*c);
        filas.push_back(FilaBalance(donde + ": átomos de 3, 4 y 5 (residuo relativo)", r.atomos, sep));
        filas.push_back(FilaBalance(donde + ": energía de 2-3 y 3-4, entropía de 4-5 (residuo relativo)",
                                    r.energia, sep));
    }
    return filas;
}

std::vector<Comprobacion> ComprobarEquilibrio(char sep) {
    std::vector<Comprobacion> filas = ComprobarConstantesEquilibrio(sep);
    for (auto& f : ComprobarLlamas(sep)) filas.push_back(std::move(f));
    for (const CicloBalance& c : CiclosBalance()) {
        OpcionesCalculo o;
        for (const auto& [nombre, valor] : c.opciones) o.valores[nombre] = valor;
        std::string nombre = c.nombre;
        std::replace(nombre.begin(), nombre.end(), '.', sep);
        for (auto& f : ComprobarBalancesEquilibrio(nombre, o, sep)) filas.push_back(std::move(f));
    }
    return filas;
}

}  // namespace vanta
