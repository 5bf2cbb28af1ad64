// Whole calculations on random inputs: every box of the four stages, every
// option, cycle and model, with values drawn from their usual ranges, their
// boundaries and garbage, written as a user may write them. Each case must
// end, in results or in a message, with no number that is not finite in the
// state, the texts or the pictures; a case that calculated is then read by
// the pointer over its diagrams and tabled, under the same checks.
//
// VANTA_ALEATORIOS sets the number of cases, VANTA_SEMILLA the seed and
// VANTA_CASO runs one case alone, printing it as the options that replay it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <random>

#include "core/database/Registro.h"
#include "core/diagrams/LecturaRaton.h"
#include "core/fluids/Combustible.h"
#include "core/reports/Informes.h"
#include "core/tables/TablasPropiedades.h"
#include "tests/core/Calculos.h"

using namespace vanta;
using namespace vanta::pruebas;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr long long kCasos = 300;
#else
constexpr long long kCasos = 3000;
#endif

long long DelEntorno(const char* nombre, long long porDefecto) {
    const char* v = std::getenv(nombre);
    return v && *v ? std::atoll(v) : porDefecto;
}

// Texts that are no numbers, or numbers at the edges of the doubles or in
// forms the boxes must tell apart.
const std::vector<std::string> kBasura = {
    "",       " ",        "abc", "\xE2\x88\x9E", "1/2",   "nan", "-inf", "0x10", "1e308", "-1e309",
    "1e-320", "4.9e-324", "0",   "-0",           "-1",    "--1", "-",    ",",    ".",     "1,2,3",
    "1..2",   "1.234,5",  "1 2", "1e",           "1,5e3", ".5",  "5,"};

struct Magnitud {
    double minimo, maximo;  // usual values, drawn in the logarithm when both are positive
    std::vector<std::string> bordes;
};

class Azar {
public:
    explicit Azar(uint64_t semilla) : motor_(semilla) {}
    double Uniforme(double a, double b) { return std::uniform_real_distribution<double>(a, b)(motor_); }
    bool Moneda(double p) { return Uniforme(0, 1) < p; }
    template <class T>
    const T& Uno(const std::vector<T>& v) {
        return v[std::uniform_int_distribution<size_t>(0, v.size() - 1)(motor_)];
    }
    // A value of the quantity, or one of its boundaries, or garbage, written
    // with a point or a comma, fixed or with an exponent.
    std::string Texto(const Magnitud& m, double rareza) {
        if (Moneda(rareza)) return Moneda(0.5) && !m.bordes.empty() ? Uno(m.bordes) : Uno(kBasura);
        const double v = m.minimo > 0 ? std::exp(Uniforme(std::log(m.minimo), std::log(m.maximo)))
                                      : Uniforme(m.minimo, m.maximo);
        char b[64];
        std::snprintf(b, sizeof b, Moneda(0.2) ? "%.4e" : "%.6g", v);
        std::string s = b;
        if (Moneda(0.5))
            for (char& c : s)
                if (c == '.') c = ',';
        return s;
    }

private:
    std::mt19937_64 motor_;
};

// clang-format off
const Magnitud kPresion{60000, 120000, {"0", "1", "1e-300", "1e308", "-100000"}};
const Magnitud kTemperatura{260, 330, {"250", "249.99", "5000", "5000.0001"}};
const Magnitud kHumedad{0, 100, {"0", "100", "100.0001", "-50", "1e6"}};
const Magnitud kAtomos{0.01, 20, {"0", "-1", "1e-300", "1e300", "0.000001"}};
const Magnitud kCien{0, 60, {"0", "100", "100.0001", "-1", "1e300"}};
const Magnitud kMasaMolecular{0.02, 0.3, {"0", "-0.1", "4.9e-324", "1e300"}};
const Magnitud kEntalpia{-500000, 100000, {"0", "-1e12", "1e300"}};
const Magnitud kFr{0.4, 1.3, {"0", "1", "1e-300", "1e300", "-1", "1.35"}};
const Magnitud kLambda{0.8, 2.5, {"0", "1e-300", "-1", "0.0005", "1000"}};
const Magnitud kCilindrada{50, 3000, {"0", "-100", "1e-300", "1e-310", "1e300", "0.000001"}};
const Magnitud kRc{4, 25, {"1", "1.0000000000000002", "1.0000000001", "30.0001", "1e6", "1e300"}};
const Magnitud kP1{50000, 300000, {"0", "1e-300", "1", "1e300"}};
const Magnitud kT1{260, 450, {"1e-310", "1", "7500", "7500.01", "1e300", "-300"}};
const Magnitud kExponente{1.15, 1.45, {"1", "1.0000000000000002", "0.9", "10", "1e300"}};
const Magnitud kPropVcte{0, 100, {"0", "100", "100.0000001", "-0.0001"}};
const Magnitud kPmax{3e6, 2e7, {"0", "-1", "1e-300", "1e300", "9e9"}};
// clang-format on

std::vector<std::string> UnCaso(Azar& a) {
    const double rareza = a.Uno(std::vector<double>{0, 0, 0.03, 0.1, 0.4});
    std::vector<std::string> o;
    auto poner = [&](double p, const char* nombre, const Magnitud& m) {
        if (a.Moneda(p)) o.insert(o.end(), {std::string("--") + nombre, a.Texto(m, rareza)});
    };
    auto lista = [&](int n, const Magnitud& m) {
        std::string l;
        for (int i = 0; i < n; ++i) {
            std::string t = a.Texto(m, rareza);
            for (char& c : t)
                if (c == ',') c = '.';
            l += (i ? "," : "") + t;
        }
        return l;
    };
    poner(0.6, "presion-ambiente", kPresion);
    poner(0.6, "temperatura-ambiente", kTemperatura);
    poner(0.6, "humedad", kHumedad);
    const double combustible = a.Uniforme(0, 1);
    if (combustible < 0.5) {
        o.insert(o.end(), {"--combustible",
                           std::string(a.Uno(std::vector<CombustibleDeLista>(kBibliotecaCombustibles.begin(),
                                                                             kBibliotecaCombustibles.end()))
                                           .nombre)});
    } else if (combustible < 0.75) {
        o.insert(o.end(), {"--formula", lista(5, kAtomos)});
        poner(0.8, "entalpia-formacion", kEntalpia);
    } else if (combustible < 0.95) {
        o.insert(o.end(), {"--masa", lista(4, kCien), "--masa-molecular", a.Texto(kMasaMolecular, rareza)});
        poner(0.8, "entalpia-formacion", kEntalpia);
    }
    poner(0.7, a.Moneda(0.8) ? "fr" : "lambda", a.Moneda(0.8) ? kFr : kLambda);
    const std::string ciclo = a.Uno(std::vector<std::string>{"Otto", "Diesel", "Mixto"});
    o.insert(o.end(), {"--ciclo", ciclo});
    poner(0.8, "cilindrada", kCilindrada);
    poner(1, "rc", kRc);
    poner(0.4, "p1", kP1);
    poner(0.4, "t1", kT1);
    for (const char* proceso : {"compresion", "expansion"})
        o.insert(o.end(), {std::string("--") + proceso,
                           a.Uno(std::vector<std::string>{"medio", "politropica", "variable"})});
    poner(0.5, "n-compresion", kExponente);
    poner(0.5, "n-expansion", kExponente);
    if (ciclo == "Mixto")
        poner(1, a.Moneda(0.5) ? "proporcion-vcte" : "pmax", a.Moneda(0.5) ? kPropVcte : kPmax);
    return o;
}

// Why a text betrays a number that is not finite ("nan", "inf", or "N.D.",
// how the number services print one); empty when it is sound. The reports
// print the mean exponents as " N.D." of their own.
std::string Defecto(std::string t, bool ndPropio = false) {
    for (char& c : t) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    auto letra = [&t](size_t i) { return i < t.size() && std::isalpha(static_cast<unsigned char>(t[i])); };
    for (const std::string malo : {"nan", "inf"})
        for (size_t i = t.find(malo); i != std::string::npos; i = t.find(malo, i + 1))
            if ((i == 0 || !letra(i - 1)) && !letra(i + 3)) return malo;
    if (!ndPropio && t.find("n.d.") != std::string::npos) return "N.D.";
    return {};
}

// The faults of one case; empty when it behaved.
std::vector<std::string> Revisar(const std::vector<std::string>& opciones) {
    std::vector<std::string> fallos;
    auto c = Calcular(opciones, false);
    for (const std::string& v : NoFinitas(c->e)) fallos.push_back("variable no finita: " + v);
    for (const std::string& m : c->r.TextosMensajes())
        if (m.empty() || !Defecto(m).empty()) fallos.push_back("mensaje \"" + m + "\"");
    if (!c->bien) {
        if (c->r.mensajes.empty()) fallos.push_back("falló sin ningún mensaje");
        return fallos;
    }
    const std::string tipo = c->r.tipoCombustible;
    std::string textos = c->r.informe + HTMLInforme(c->e, tipo);
    for (const std::string& v : bd::ValoresRegistro(c->e, "x", tipo, "")) textos += v;
    if (std::string d = Defecto(textos, true); !d.empty()) fallos.push_back("informe o registro con " + d);
    for (const double v : {c->e.p1, c->e.p2, c->e.p3, c->e.p4, c->e.p5, c->e.T1, c->e.T2, c->e.T3, c->e.T4,
                           c->e.T5, c->e.V2, c->e.V4})
        if (!(v > 0)) fallos.push_back("un estado con p, V o T no positivo");
    // The pointer over the diagrams, in and about the cycle.
    Diagramas g = c->Diagramas4();
    LecturaEstado l;
    for (double f : {-0.1, 0.0, 0.3, 0.7, 1.0, 1.2})
        for (double h : {-0.5, 0.4, 1.5}) {
            const float X = float(c->e.V2 + f * (c->e.V1 - c->e.V2));
            pctPV_MouseMove(c->e, c->dlg, g, true, X, float(-(c->e.p1 + h * (c->e.p3 - c->e.p1))), l);
            pctTV_MouseMove(c->e, c->dlg, g, true, X, float(-(c->e.T1 + h * (c->e.T3 - c->e.T1))), l);
            for (const std::string* t :
                 {&l.lblPmouseVal, &l.lblVmouseVal, &l.lblTmouseVal, &l.lblhmouseVal, &l.lblSmouseVal})
                if (std::string d = Defecto(*t); !d.empty()) fallos.push_back("lectura con " + d);
        }
    for (const std::string& v : NoFinitas(c->e)) fallos.push_back("tras la lectura, no finita: " + v);
    return fallos;
}

class Azares : public ::testing::TestWithParam<int> {};

}  // namespace

TEST_P(Azares, TerminanEnResultadosOEnUnMensajeSinNadaQueNoSeaFinito) {
    const uint64_t semilla = static_cast<uint64_t>(DelEntorno("VANTA_SEMILLA", 20240611));
    const long long total = DelEntorno("VANTA_ALEATORIOS", kCasos), solo = DelEntorno("VANTA_CASO", -1);
    int malos = 0;
    for (long long n = solo >= 0 ? solo : GetParam(); n < (solo >= 0 ? solo + 1 : total); n += 2) {
        Azar a(semilla * 1000003 + static_cast<uint64_t>(n));
        const std::vector<std::string> opciones = UnCaso(a);
        std::string caso = "caso " + std::to_string(n) + ": vanta calcular";
        for (const std::string& o : opciones) caso += " '" + o + "'";
        if (solo >= 0) std::printf("%s\n", caso.c_str());
        const std::vector<std::string> fallos = Revisar(opciones);
        if (fallos.empty()) continue;
        std::string texto;
        for (const std::string& f : fallos) texto += "\n    " + f;
        ADD_FAILURE() << caso << texto;
        if (++malos >= 10) break;
    }
}

INSTANTIATE_TEST_SUITE_P(Mitades, Azares, ::testing::Range(0, 2));
