#include "tests/core/Calculos.h"

#include <cmath>

#include "core/database/Registro.h"
#include "core/reports/Informes.h"

namespace vanta::pruebas {

Calculo::Calculo() {
    // Text metrics of a small letter, so that placements by text size show.
    for (SuperficieGrabada* s : {&pct1, &pct2, &pct3, &pctPV, &pctTV, &pctTS, &pctHS}) {
        s->anchoCaracter = 0.01f;
        s->altoTexto = 0.02f;
    }
}

OpcionesCalculo Opciones(const std::vector<std::string>& palabras) {
    OpcionesCalculo o;
    for (size_t i = 0; i + 1 < palabras.size(); i += 2) o.valores[palabras[i].substr(2)] = palabras[i + 1];
    return o;
}

std::unique_ptr<Calculo> Calcular(const std::vector<std::string>& opciones, bool dibujar, char separador) {
    auto c = std::make_unique<Calculo>();
    const Entradas x = EntradasDeOpciones(Opciones(opciones));
    if (dibujar) {
        SuperficiesCalculo s = c->Superficies();
        c->r = vanta::Calcular(x, s, separador);
    } else {
        c->r = vanta::Calcular(x, separador);
    }
    c->bien = c->r.CicloCalculado();
    c->e = *c->r.estado;
    return c;
}

std::string Dibujo(const SuperficieGrabada& s) {
    uint64_t huella = 1469598103934665603ull;  // FNV-1a
    std::string otras;
    for (const std::string& l : s.llamadas) {
        for (unsigned char ch : l) huella = (huella ^ ch) * 1099511628211ull;
        huella = (huella ^ '\n') * 1099511628211ull;
        if (l.rfind("Line", 0) != 0 && l.rfind("T Line", 0) != 0) otras += l + "\n";
    }
    char cabeza[64];
    std::snprintf(cabeza, sizeof cabeza, "%zu llamadas, huella %016llx\n", s.llamadas.size(),
                  static_cast<unsigned long long>(huella));
    return cabeza + otras;
}

namespace {

// The JSON that `vanta calcular --json` writes, one variable a line.
std::string JSONEnLineas(const ResultadoCalculo& r) {
    std::string json = ResultadoJSON(r), s;
    for (size_t i = 0; i < json.size(); ++i) {
        if (json[i] == ',' && i + 1 < json.size() && json[i + 1] == '"')
            s += ",\n";
        else
            s += json[i];
    }
    return s + "\n";
}

}  // namespace

std::string Volcado(Calculo& c) {
    std::string s = "== mensajes\n";
    for (const std::string& m : c.r.TextosMensajes()) s += m + "\n";
    s += "== json\n" + JSONEnLineas(c.r);
    if (!c.bien) return s;
    const TextosResultados& r = c.r.textos;
    s += "== etiquetas\n";
    for (int k = 0; k < 5; ++k)
        s += "[" + r.lblP[k] + "][" + r.lblV[k] + "][" + r.lblT[k] + "][" + r.lblH[k] + "][" + r.lblS[k] +
             "]\n";
    for (const std::string* t :
         {&r.lblW12, &r.lblW34, &r.lblW45, &r.lblQ23, &r.lblQ34, &r.lblWciclo, &r.lblQciclo, &r.lblRen,
          &r.lblG12, &r.lblG2, &r.lblG45, &r.lblG5, &r.txtConsumoMJ, &r.txtConsumoKwh, &r.txtCilindrada})
        s += "[" + *t + "]";
    const std::string& tipo = c.r.tipoCombustible;
    s += "\n== informe\n" + c.r.informe + "\n== pagina\n" + HTMLInforme(c.e, tipo) + "\n";
    s += "== registro\n";
    for (const std::string& v : bd::ValoresRegistro(c.e, bd::NombrePorDefecto(c.e, tipo), tipo, "informe"))
        s += "[" + v + "]";
    s += "\n";
    const std::pair<const char*, SuperficieGrabada*> superficies[] = {
        {"pct1", &c.pct1},   {"pct2", &c.pct2},   {"pct3", &c.pct3},  {"pctPV", &c.pctPV},
        {"pctTV", &c.pctTV}, {"pctTS", &c.pctTS}, {"pctHS", &c.pctHS}};
    for (auto [nombre, sup] : superficies) s += "== " + std::string(nombre) + "\n" + Dibujo(*sup);
    return s;
}

std::vector<std::string> NoFinitas(const Estado& e) {
    std::vector<std::string> malas;
    VisitarCampos(e, [&](const char* nombre, const auto& v) {
        using T = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<T, double> || std::is_same_v<T, float>) {
            if (!std::isfinite(v)) malas.push_back(nombre);
        } else if constexpr (std::is_same_v<T, Variante>) {
            if (v.EsNumero() && !std::isfinite(v.Numero())) malas.push_back(nombre);
        }
    });
    return malas;
}

std::vector<std::string> Lineas(const std::string& texto) {
    std::vector<std::string> lineas;
    size_t inicio = 0, fin;
    while ((fin = texto.find("\r\n", inicio)) != std::string::npos) {
        lineas.push_back(texto.substr(inicio, fin - inicio));
        inicio = fin + 2;
    }
    lineas.push_back(texto.substr(inicio));
    return lineas;
}

}  // namespace vanta::pruebas
