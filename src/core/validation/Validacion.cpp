#include "core/validation/Validacion.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "core/inputs/BibliotecaCombustibles.h"
#include "core/sequence/Calculo.h"
#include "core/validation/ValidacionEquilibrio.h"
#include "core/warnings/CicloIdeal.h"
#include "core/warnings/Cifras.h"
#include "core/warnings/Referencias.h"

namespace vanta {

namespace {

constexpr double kCien = 100.0;
constexpr double kKilo = 1000.0;
constexpr double kMega = 1.0e6;
// Where the program's enthalpies are zero, K.
constexpr double kTemperaturaReferencia = 298.15;

std::string DiferenciaPorcentual(double programa, double referencia, char sep) {
    return CifraConSigno((programa - referencia) / referencia * kCien, "##0.00", sep) + " %";
}

int IndiceEspecie(const std::string& nombre) {
    for (int k = 0; k < kNumeroEspecies; ++k)
        if (nombre == kNombresEspecies[k]) return k;
    return -1;
}

// ---- Species -------------------------------------------------------------------

Comprobacion FilaRelativa(std::string nombre, double programa, double referencia, double tolerancia,
                          std::string_view mascara, char sep) {
    const bool cumple = std::fabs(programa - referencia) <= tolerancia * std::fabs(referencia);
    return {GrupoValidacion::Especies,
            std::move(nombre),
            Cifra(programa, mascara, sep),
            Cifra(referencia, mascara, sep),
            DiferenciaPorcentual(programa, referencia, sep),
            Porcentaje(tolerancia, sep),
            cumple ? Resultado::Cumple : Resultado::NoCumple,
            {}};
}

// ---- Fuels ---------------------------------------------------------------------

// The published values each fuel of the library stands for.
struct ReferenciasDeLista {
    std::string_view combustible;
    std::vector<std::string_view> referencias;
};
const std::vector<ReferenciasDeLista>& ReferenciasLista() {
    static const std::vector<ReferenciasDeLista> lista = {
        {"Etanol", {"ethanol"}},
        {"Gasolina", {"gasoline (typical)", "gasoline (US conventional; GREET)"}},
        {"Gasoil", {"diesel, light (typical)", "diesel, heavy (typical)", "diesel (US conventional; GREET)"}},
        {"GLP-Etano", {"ethane"}},
        {"GLP-Butano", {"n-butane"}},
        {"GLP-Propano", {"propane"}},
        {"Metanol", {"methanol"}},
    };
    return lista;
}

std::string Formula(const CombustibleDeLista& c, char sep) {
    std::string f;
    const std::pair<const char*, double> atomos[] = {
        {"C", c.C}, {"H", c.H}, {"N", c.N}, {"O", c.O}, {"S", c.S}};
    for (auto [elemento, n] : atomos)
        if (n != 0) f += elemento + (n == 1 ? std::string() : TextoGeneral(n, sep));
    return f;
}

// Why a library entry differs from the table: its enthalpy of formation, or
// the model formula of a mixture.
std::string NotaCombustible(const CombustibleDeLista& c, const ReferenciaCombustible& r, char sep) {
    if (r.entalpiaFormacion) {
        const double tabla = *r.entalpiaFormacion;
        return c.nombre.data() + std::string(" (") + Formula(c, sep) +
               "): la entalpía de formación de la biblioteca, " +
               Cifra(c.EntalpiaFormacion / kKilo, "##0.0##", sep) + " kJ/mol, no es la de la tabla para " +
               r.nombre + ", " + Cifra(tabla / kKilo, "##0.0##", sep) + " kJ/mol.";
    }
    return c.nombre.data() + std::string(" (") + Formula(c, sep) +
           "): fórmula modelo de una mezcla comercial, con la entalpía de formación de la biblioteca (" +
           Cifra(c.EntalpiaFormacion / kKilo, "##0.0##", sep) +
           " kJ/mol); el poder calorífico publicado de estas mezclas varía de una fuente a otra.";
}

Comprobacion FilaCombustible(const CombustibleDeLista& c, const ReferenciaCombustible& r, const char* poder,
                             double programa, double referencia, char sep) {
    const double relativa = std::fabs(programa - referencia) / referencia;
    const Resultado resultado = relativa <= kToleranciaPoderCalorifico   ? Resultado::Cumple
                                : relativa <= kCotaPoderCalorificoModelo ? Resultado::Explicada
                                                                         : Resultado::NoCumple;
    return {GrupoValidacion::Combustibles,
            std::string(c.nombre) + ", " + poder + " frente a " + r.nombre + " (MJ/kg)",
            Cifra(programa / kMega, "##0.000", sep),
            Cifra(referencia / kMega, "##0.000", sep),
            DiferenciaPorcentual(programa, referencia, sep),
            Porcentaje(kToleranciaPoderCalorifico, sep) +
                " (modelo: " + Porcentaje(kCotaPoderCalorificoModelo, sep) + ")",
            resultado,
            resultado == Resultado::Explicada ? NotaCombustible(c, r, sep) : std::string()};
}

// ---- Cycles --------------------------------------------------------------------

struct CicloValidacion {
    const char* nombre;
    std::vector<std::pair<std::string, std::string>> opciones;
};

const std::vector<CicloValidacion>& CiclosValidacion() {
    static const std::vector<CicloValidacion> ciclos = {
        {"Otto, Gasolina, Fr 1, rc 10", {}},
        {"Otto, exponentes variables", {{"compresion", "variable"}, {"expansion", "variable"}}},
        {"Diesel, Gasoil, Fr 0.8, rc 18",
         {{"ciclo", "Diesel"}, {"combustible", "Gasoil"}, {"fr", "0.8"}, {"rc", "18"}}},
        {"Mixto, pmax 6 MPa", {{"ciclo", "Mixto"}, {"pmax", "6000000"}}},
        {"Mixto, 30 % a volumen constante", {{"ciclo", "Mixto"}, {"proporcion-vcte", "30"}}},
    };
    return ciclos;
}

// U = n·h − p·V with n = p·V/(R·T).
double EnergiaInterna(double p, double V, double T, double h) {
    return p * V * (h / (kR * T) - 1);
}

std::string NotaCombustion(const BalanceProceso& b, const Estado& e, char sep) {
    const std::string moles = Cifra(e.MolesHumos / e.MolesAire, "0.000", sep);
    if (std::string_view(b.nombre) == "2-3")
        return "Combustión a volumen constante: el calor se reparte entre los moles de los gases con su cv a "
               "la "
               "temperatura final, y T3 sale de la regla del gas ideal con los moles del aire (moles de "
               "gases / "
               "moles de aire = " +
               moles + ").";
    return "Combustión a presión constante: el calor es el salto de entalpía de los gases desde el estado 3 "
           "evaluado como gases, sobre los moles de los gases, " +
           moles + " veces los que llevan los estados.";
}

}  // namespace

std::vector<Comprobacion> ComprobarCiclo(const std::string& nombreCiclo, const OpcionesCalculo& o, char sep) {
    std::vector<Comprobacion> filas;
    const ResultadoCalculo calculo = Calcular(EntradasDeOpciones(o));
    const Estado& e = *calculo.estado;
    if (!calculo.CicloCalculado()) {
        filas.push_back({GrupoValidacion::Balance,
                         nombreCiclo + ": el cálculo",
                         "no termina",
                         "termina",
                         "",
                         "",
                         Resultado::NoCumple,
                         {}});
        return filas;
    }
    for (const BalanceProceso& b : BalancesProcesos(e)) {
        const double residuo = (b.calor - b.trabajo - b.energiaInterna) / e.Qciclo;
        const double r = std::fabs(residuo);
        const Resultado resultado = r <= kToleranciaBalance                       ? Resultado::Cumple
                                    : b.combustion && r <= kCotaBalanceCombustion ? Resultado::Explicada
                                                                                  : Resultado::NoCumple;
        std::string tolerancia = Porcentaje(kToleranciaBalance, sep);
        if (b.combustion) tolerancia += " (modelo: " + Porcentaje(kCotaBalanceCombustion, sep) + ")";
        filas.push_back({GrupoValidacion::Balance, nombreCiclo + ", " + b.nombre + ": Q − W frente a ΔU (J)",
                         Cifra(b.calor - b.trabajo, "### ##0.000", sep),
                         Cifra(b.energiaInterna, "### ##0.000", sep),
                         CifraConSigno(residuo * kCien, "##0.000", sep) + " % de Q", tolerancia, resultado,
                         resultado == Resultado::Explicada ? NotaCombustion(b, e, sep) : std::string()});
    }
    // The ideal cycle that the window's strip shows for the same calculation.
    const CicloIdeal ideal = DistanciaAlIdeal(e).aireEstandar;
    filas.push_back(
        {GrupoValidacion::Rendimiento,
         nombreCiclo + ": rendimiento frente al " + NombreCicloIdeal(e),
         Cifra(e.Rendimiento, "0.000", sep),
         ideal.valido ? Cifra(ideal.rendimiento, "0.000", sep) : "no existe",
         ideal.valido ? CifraConSigno(e.Rendimiento - ideal.rendimiento, "0.000", sep) : "",
         "menor que el ideal",
         ideal.valido && e.Rendimiento < ideal.rendimiento ? Resultado::Cumple : Resultado::NoCumple,
         {}});
    return filas;
}

namespace {

// ---- Text ----------------------------------------------------------------------

// Characters of a UTF-8 text.
size_t Ancho(const std::string& s) {
    return static_cast<size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string Rellenar(const std::string& s, size_t ancho, bool derecha) {
    const std::string blancos(ancho > Ancho(s) ? ancho - Ancho(s) : 0, ' ');
    return derecha ? blancos + s : s + blancos;
}

// The words of a text in lines of at most ancho characters, each after the
// indent.
std::string Parrafo(const std::string& texto, size_t ancho, const std::string& sangria) {
    std::string salida, linea;
    size_t i = 0;
    while (i < texto.size()) {
        const size_t fin = std::min(texto.find(' ', i), texto.size());
        const std::string palabra = texto.substr(i, fin - i);
        if (!linea.empty() && Ancho(linea) + 1 + Ancho(palabra) > ancho) {
            salida += sangria + linea + "\n";
            linea.clear();
        }
        linea += (linea.empty() ? "" : " ") + palabra;
        i = fin + 1;
    }
    if (!linea.empty()) salida += sangria + linea + "\n";
    return salida;
}

constexpr size_t kAnchoTexto = 100;

}  // namespace

bool TablaValidacion::Correcta() const {
    return Cuenta(Resultado::NoCumple) == 0;
}

int TablaValidacion::Cuenta(Resultado r) const {
    return static_cast<int>(
        std::count_if(filas.begin(), filas.end(), [r](const auto& f) { return f.resultado == r; }));
}

ValoresEspecies EspeciesDelPrograma(double T) {
    Estado e;
    Mensajes msj;
    e.Temperatura = T;
    CalcularEspecies(e, msj);
    return LeerEspecies(e, RangoBajo(T));
}

std::vector<Comprobacion> ComprobarEspecies(const EvaluadorEspecies& especies, char sep) {
    std::vector<Comprobacion> filas;
    for (const ReferenciaJANAF& r : ReferenciasJANAF()) {
        const int k = IndiceEspecie(r.especie);
        if (k < 0) continue;
        const ValoresEspecies v = especies(r.T);
        const std::string donde = r.especie + " a " + TextoGeneral(r.T, sep) + " K";
        const std::string referenciaH = "h − h(" + TextoGeneral(kTemperaturaReferencia, sep) + " K) de ";
        filas.push_back(
            FilaRelativa("cp de " + donde + " (J/(mol·K))", v.cp[k], r.cp, kToleranciaCp, "##0.000", sep));
        const double toleranciaH = std::max(kToleranciaH * std::fabs(r.h), kToleranciaHAbsoluta);
        filas.push_back({GrupoValidacion::Especies,
                         referenciaH + donde + " (kJ/mol)",
                         Cifra(v.h[k] / kKilo, "### ##0.000", sep),
                         Cifra(r.h / kKilo, "### ##0.000", sep),
                         CifraConSigno((v.h[k] - r.h) / kKilo, "##0.000", sep),
                         Cifra(toleranciaH / kKilo, "##0.000", sep),
                         std::fabs(v.h[k] - r.h) <= toleranciaH ? Resultado::Cumple : Resultado::NoCumple,
                         {}});
        filas.push_back(
            FilaRelativa("s de " + donde + " (J/(mol·K))", v.s0[k], r.s, kToleranciaS, "##0.000", sep));
    }
    return filas;
}

std::vector<Comprobacion> ComprobarCombustibles(char sep) {
    std::vector<Comprobacion> filas;
    for (const CombustibleDeLista& c : kBibliotecaCombustibles) {
        Estado e;
        Entradas x;
        x.combustible = c.nombre;
        Mensajes msj;
        SuperficiesNulas nulas;
        SuperficiesCalculo s = nulas.Todas();
        DefinirFluido(e, msj, x, s, true);
        for (const auto& lista : ReferenciasLista()) {
            if (lista.combustible != c.nombre) continue;
            for (std::string_view nombre : lista.referencias) {
                const ReferenciaCombustible* r = BuscarReferenciaCombustible(nombre);
                if (!r) continue;
                if (r->hcs > 0) filas.push_back(FilaCombustible(c, *r, "HCS", e.HCS, r->hcs, sep));
                if (r->hci > 0) filas.push_back(FilaCombustible(c, *r, "HCI", e.HCI, r->hci, sep));
            }
        }
    }
    return filas;
}

std::vector<BalanceProceso> BalancesProcesos(const Estado& e) {
    const double U[5] = {EnergiaInterna(e.p1, e.V1, e.T1, e.h1), EnergiaInterna(e.p2, e.V2, e.T2, e.h2),
                         EnergiaInterna(e.p3, e.V3, e.T3, e.h3), EnergiaInterna(e.p4, e.V4, e.T4, e.h4),
                         EnergiaInterna(e.p5, e.V5, e.T5, e.h5)};
    std::vector<BalanceProceso> b;
    b.push_back({"1-2", 0, e.W12acumulado, U[1] - U[0], false});
    if (e.Q23 > 0) b.push_back({"2-3", e.Q23, 0, U[2] - U[1], true});
    if (e.Q23 < e.Qciclo) b.push_back({"3-4", e.Qciclo - e.Q23, e.W34acumulado, U[3] - U[2], true});
    b.push_back({"4-5", 0, e.W45acumulado, U[4] - U[3], false});
    return b;
}

std::vector<Comprobacion> ComprobarCiclos(char sep) {
    std::vector<Comprobacion> filas;
    for (const CicloValidacion& c : CiclosValidacion()) {
        OpcionesCalculo o;
        for (const auto& [nombre, valor] : c.opciones) o.valores[nombre] = valor;
        // The names write their figures with the separator of the table.
        std::string nombre = c.nombre;
        std::replace(nombre.begin(), nombre.end(), '.', sep);
        for (auto& f : ComprobarCiclo(nombre, o, sep)) filas.push_back(std::move(f));
    }
    return filas;
}

TablaValidacion Validar(char sep) {
    TablaValidacion t;
    t.filas = ComprobarEspecies(EspeciesDelPrograma, sep);
    for (auto* grupo : {ComprobarCombustibles, ComprobarCiclos, ComprobarEquilibrio})
        for (auto& f : grupo(sep)) t.filas.push_back(std::move(f));
    return t;
}

std::string TextoResultado(Resultado r) {
    switch (r) {
        case Resultado::Cumple:
            return "cumple";
        case Resultado::Explicada:
            return "diferencia del modelo";
        case Resultado::NoCumple:
            return "NO CUMPLE";
    }
    return {};
}

std::array<DescripcionGrupo, 5> GruposValidacion(char sep) {
    const std::string cp = Porcentaje(kToleranciaCp, sep), s = Porcentaje(kToleranciaS, sep),
                      h = Porcentaje(kToleranciaH, sep),
                      hAbs = Cifra(kToleranciaHAbsoluta / kKilo, "0.0##", sep);
    const std::string poder = Porcentaje(kToleranciaPoderCalorifico, sep),
                      poderModelo = Porcentaje(kCotaPoderCalorificoModelo, sep);
    const std::string balance = Porcentaje(kToleranciaBalance, sep),
                      balanceModelo = Porcentaje(kCotaBalanceCombustion, sep);
    const std::string co2 = Cifra(kEntalpiaFormacionCO2 / kKilo, "##0.000", sep),
                      agua = Cifra(kEntalpiaFormacionH2O / kKilo, "##0.000", sep);
    const std::string t0 = TextoGeneral(kTemperaturaReferencia, sep), r = TextoGeneral(kR, sep),
                      rangos = TextoGeneral(kLimiteRangos, sep),
                      gamma = TextoGeneral(kGammaAireEstandar, sep);
    return {{
        {GrupoValidacion::Especies, "Especies frente a las tablas NIST-JANAF",
         "cp, h − h(" + t0 +
             " K) y s de Ar, CO, CO2, H2O, N2 y O2 con los polinomios de siete coeficientes del "
             "programa (hasta " +
             rangos +
             " K el juego bajo, por encima el alto), frente a las tablas "
             "NIST-JANAF, 4.ª edición, de gas ideal a 1 bar. Tolerancias: cp " +
             cp + ", s " + s + ", h " + h + " del valor de la tabla o " + hAbs +
             " kJ/mol. Un coeficiente equivocado de cualquier especie se ve aquí. El programa usa R = " + r +
             " J/(mol·K), y sus entalpías son sensibles: cero a " + t0 + " K."},
        {GrupoValidacion::Combustibles, "Poderes caloríficos de la biblioteca",
         "Poderes caloríficos superior (HCS) e inferior (HCI) de los combustibles de la biblioteca, tal como "
         "el "
         "programa los calcula con su fórmula y su entalpía de formación, frente a los publicados en tablas "
         "de "
         "termodinámica (Moran y Shapiro, tabla A-25; Çengel y Boles, tabla A-27; tabla GREET). "
         "Tolerancia: " +
             poder +
             ", lo que separa al programa de las tablas en un compuesto puro: sus entalpías de formación "
             "del CO2 y del agua líquida (" +
             co2 + " y " + agua +
             " kJ/mol) no son exactamente las de las tablas. Los combustibles de la biblioteca son fórmulas "
             "modelo: la Gasolina y el Gasoil representan mezclas comerciales cuyo poder calorífico "
             "publicado "
             "varía de una fuente a otra, y cada entrada lleva la entalpía de formación que fija la "
             "biblioteca. "
             "Una diferencia mayor que " +
             poder + " y menor que " + poderModelo +
             " se marca como propia del modelo, con su razón en las notas; mayor que " + poderModelo +
             " sería un error."},
        {GrupoValidacion::Balance, "Balance de energía de los procesos",
         "Cinco ciclos calculados por el programa. En cada proceso, el calor menos el trabajo del gas (Q − "
         "W) "
         "frente al cambio de energía interna ΔU de un sistema cerrado, con U = n·h − p·V: h la entalpía "
         "molar "
         "sensible del programa en el estado, y n = p·V/(R·T) los moles que llevan los estados (los del aire "
         "en todo el ciclo). Tolerancia: " +
             balance +
             " del calor aportado al ciclo. La compresión y la expansión con exponente medio o variable "
             "cierran "
             "el balance. La combustión del modelo no lo cierra, y aquí se ve: a volumen constante el calor "
             "se "
             "reparte entre los moles de los gases con el cv de los gases a la temperatura final de la "
             "liberación, no con su media, y la temperatura del estado 3 sale de la regla del gas ideal con "
             "los "
             "moles del aire (T3 = p3·T2/p2); a presión constante el calor es el salto de entalpía de los "
             "gases "
             "desde el estado 3 evaluado como gases, sobre los moles de los gases; y por encima de " +
             rangos +
             " K la entalpía de los gases no lleva el término del O2. Según combustible, dosado y ciclo, la "
             "combustión se aparta del balance entre un 1 % y un 20 % del calor aportado: se marca como "
             "propia "
             "del modelo hasta " +
             balanceModelo +
             ". Con exponente politrópico la compresión y la expansión intercambian un calor que el programa "
             "no calcula, y no se comprueban."},
        {GrupoValidacion::Rendimiento, "Rendimiento frente al ciclo ideal",
         "El rendimiento de los mismos ciclos frente al del ciclo ideal de aire estándar del mismo tipo "
         "(Otto, "
         "Diesel o Mixto), con γ = " +
             gamma +
             ", la misma relación de compresión, el mismo estado 1 y el mismo calor aportado (y su reparto): "
             "el "
             "mismo ciclo ideal que muestra la franja de avisos de la ventana. Con esos datos ningún ciclo "
             "rinde "
             "más, y el del programa ha de ser menor."},
        DescripcionEquilibrio(sep),
    }};
}

std::string TextoValidacion(const TablaValidacion& t, char sep) {
    std::string texto = "VALIDACIÓN DE VANTA\n";
    const char* cabeza[6] = {"Comprobación", "Programa",   "Referencia",
                             "Diferencia",   "Tolerancia", "Resultado"};
    for (const DescripcionGrupo& g : GruposValidacion(sep)) {
        std::vector<const Comprobacion*> filas;
        for (const auto& f : t.filas)
            if (f.grupo == g.grupo) filas.push_back(&f);
        size_t ancho[6];
        for (int c = 0; c < 6; ++c) ancho[c] = Ancho(cabeza[c]);
        auto columnas = [&](const Comprobacion& f) {
            return std::array<std::string, 6>{f.nombre,     f.programa,   f.referencia,
                                              f.diferencia, f.tolerancia, TextoResultado(f.resultado)};
        };
        for (const auto* f : filas) {
            const auto c = columnas(*f);
            for (int i = 0; i < 6; ++i) ancho[i] = std::max(ancho[i], Ancho(c[i]));
        }
        auto linea = [&](const std::array<std::string, 6>& c) {
            std::string l = "  " + Rellenar(c[0], ancho[0], false);
            for (int i = 1; i < 5; ++i) l += "  " + Rellenar(c[i], ancho[i], true);
            return l + "  " + c[5] + "\n";
        };
        texto += "\n" + g.titulo + "\n" + Parrafo(g.explicacion, kAnchoTexto, "  ") + "\n";
        texto += linea({cabeza[0], cabeza[1], cabeza[2], cabeza[3], cabeza[4], cabeza[5]});
        for (const auto* f : filas) texto += linea(columnas(*f));
        std::set<std::string> vistas;
        std::string notas;
        for (const auto* f : filas)
            if (!f->nota.empty() && vistas.insert(f->nota).second)
                notas += Parrafo(f->nota, kAnchoTexto - 4, "    ");
        if (!notas.empty()) texto += "  Notas:\n" + notas;
    }
    texto += "\n" + TextoGeneral(static_cast<double>(t.filas.size()), sep) +
             " comprobaciones: " + TextoGeneral(static_cast<double>(t.Cuenta(Resultado::Cumple)), sep) +
             " cumplen, " + TextoGeneral(static_cast<double>(t.Cuenta(Resultado::Explicada)), sep) +
             " con diferencia propia del modelo, " +
             TextoGeneral(static_cast<double>(t.Cuenta(Resultado::NoCumple)), sep) + " no cumplen.\n";
    return texto;
}

}  // namespace vanta
