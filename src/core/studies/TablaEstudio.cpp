#include "core/studies/TablaEstudio.h"

#include <cmath>
#include <ostream>

#include "core/services/JSON.h"
#include "core/services/Numeros.h"

namespace vanta {

namespace {

std::string ConDecimal(std::string t, char decimal) {
    if (decimal != '.')
        for (char& c : t)
            if (c == '.') c = decimal;
    return t;
}

// RFC 4180: a field with the separator, a quote or a line end goes in quotes,
// its quotes doubled.
std::string Campo(const std::string& t, char separador) {
    if (t.find_first_of(std::string{separador, '"', '\r', '\n'}) == std::string::npos) return t;
    std::string c = "\"";
    for (char ch : t) {
        if (ch == '"') c += '"';
        c += ch;
    }
    return c + '"';
}

char SeparadorCampos(DialectoCSV d) {
    return d == DialectoCSV::Espanol ? ';' : ',';
}
char SeparadorDecimal(DialectoCSV d) {
    return d == DialectoCSV::Espanol ? ',' : '.';
}

std::string Linea(const std::vector<std::string>& campos, DialectoCSV d) {
    std::string linea;
    for (size_t i = 0; i < campos.size(); ++i) {
        if (i) linea += SeparadorCampos(d);
        linea += Campo(campos[i], SeparadorCampos(d));
    }
    return linea + "\r\n";
}

std::string NombreConUnidad(std::string_view nombre, std::string_view unidad) {
    std::string t(nombre);
    if (!unidad.empty()) t += " [" + std::string(unidad) + "]";
    return t;
}

std::string UnirMensajes(const std::vector<std::string>& mensajes) {
    std::string t;
    for (const std::string& m : mensajes) t += (t.empty() ? "" : " | ") + m;
    return t;
}

}  // namespace

std::string TextoEntrada(const Estudio& estudio, size_t i, size_t punto, char decimal) {
    const Variacion& v = estudio.variaciones[i];
    const std::string texto = v.Valor(IndicesPunto(estudio, punto)[i]);
    const EntradaEstudio* entrada = BuscarEntradaEstudio(v.nombre);
    if (entrada && entrada->Numerica())
        if (const auto x = LeerNumero(texto)) return ConDecimal(TextoNumeroJSON(*x), decimal);
    return texto;
}

std::string TextoSalida(const SalidaEstudio& salida, double valor, char decimal) {
    if (!std::isfinite(valor)) return {};
    return ConDecimal(salida.sencilla ? TextoNumeroJSON(static_cast<float>(valor)) : TextoNumeroJSON(valor),
                      decimal);
}

std::string TituloConUnidad(std::string_view titulo, std::string_view unidad) {
    return NombreConUnidad(titulo, unidad);
}

std::string CabeceraCSV(const Estudio& estudio, DialectoCSV dialecto) {
    std::vector<std::string> campos;
    for (const Variacion& v : estudio.variaciones) {
        const EntradaEstudio* entrada = BuscarEntradaEstudio(v.nombre);
        campos.push_back(NombreConUnidad(v.nombre, entrada ? entrada->unidad : std::string_view()));
    }
    for (const SalidaEstudio* s : estudio.salidas) campos.push_back(NombreConUnidad(s->nombre, s->unidad));
    campos.push_back("mensajes");
    return Linea(campos, dialecto);
}

std::string FilaCSV(const Estudio& estudio, size_t punto, const ResultadoPunto& r, DialectoCSV dialecto) {
    std::vector<std::string> campos;
    for (size_t i = 0; i < estudio.variaciones.size(); ++i)
        campos.push_back(TextoEntrada(estudio, i, punto, SeparadorDecimal(dialecto)));
    for (size_t j = 0; j < estudio.salidas.size(); ++j)
        campos.push_back(TextoSalida(*estudio.salidas[j], r.valores[j], SeparadorDecimal(dialecto)));
    campos.push_back(UnirMensajes(r.mensajes));
    return Linea(campos, dialecto);
}

// ---- JSON ------------------------------------------------------------------------

namespace {

std::string ValorJSON(const Estudio& estudio, size_t i, const std::string& texto) {
    const EntradaEstudio* entrada = BuscarEntradaEstudio(estudio.variaciones[i].nombre);
    if (entrada && entrada->Numerica())
        if (const auto x = LeerNumero(texto)) return TextoNumeroJSON(*x);
    return TextoCadenaJSON(texto);
}

}  // namespace

EscritorJSONEstudio::EscritorJSONEstudio(std::ostream& os, const Estudio& estudio,
                                         const std::string& primeraClave)
    : os_(os), estudio_(estudio) {
    os_ << "{" << primeraClave << "\"entradas\":[";
    for (size_t i = 0; i < estudio.variaciones.size(); ++i) {
        const Variacion& v = estudio.variaciones[i];
        const EntradaEstudio* entrada = BuscarEntradaEstudio(v.nombre);
        os_ << (i ? "," : "") << "{\"nombre\":" << TextoCadenaJSON(v.nombre)
            << ",\"unidad\":" << TextoCadenaJSON(entrada ? std::string(entrada->unidad) : std::string())
            << ",\"valores\":[";
        for (size_t k = 0; k < v.Cuenta(); ++k) os_ << (k ? "," : "") << ValorJSON(estudio, i, v.Valor(k));
        os_ << "]}";
    }
    os_ << "],\"salidas\":[";
    for (size_t j = 0; j < estudio.salidas.size(); ++j)
        os_ << (j ? "," : "") << "{\"nombre\":" << TextoCadenaJSON(estudio.salidas[j]->nombre)
            << ",\"unidad\":" << TextoCadenaJSON(estudio.salidas[j]->unidad) << "}";
    os_ << "],\"puntos\":[";
}

void EscritorJSONEstudio::Punto(size_t punto, const ResultadoPunto& r) {
    os_ << (primero_ ? "\n" : ",\n") << "{\"entradas\":{";
    primero_ = false;
    const std::vector<size_t> indices = IndicesPunto(estudio_, punto);
    for (size_t i = 0; i < estudio_.variaciones.size(); ++i) {
        const Variacion& v = estudio_.variaciones[i];
        os_ << (i ? "," : "") << TextoCadenaJSON(v.nombre) << ":"
            << ValorJSON(estudio_, i, v.Valor(indices[i]));
    }
    os_ << "},\"salidas\":{";
    for (size_t j = 0; j < estudio_.salidas.size(); ++j) {
        const SalidaEstudio& s = *estudio_.salidas[j];
        const std::string t = TextoSalida(s, r.valores[j]);
        os_ << (j ? "," : "") << TextoCadenaJSON(s.nombre) << ":" << (t.empty() ? "null" : t);
    }
    os_ << "},\"bien\":" << (r.bien ? "true" : "false") << ",\"mensajes\":[";
    for (size_t k = 0; k < r.mensajes.size(); ++k) os_ << (k ? "," : "") << TextoCadenaJSON(r.mensajes[k]);
    os_ << "]}";
}

void EscritorJSONEstudio::Cerrar() {
    os_ << "\n]}\n";
}

}  // namespace vanta
