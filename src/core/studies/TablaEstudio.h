// A study as a table: CSV (RFC 4180, or the Spanish spreadsheets' dialect with
// ";" between fields and a decimal comma) and JSON, point by point so that a
// study of any size is written as it runs. Numbers keep full precision: the
// shortest text that reads back to the same number, as in the JSON of the
// state.
#pragma once

#include <iosfwd>
#include <string>

#include "core/studies/Estudio.h"

namespace vanta {

enum class DialectoCSV {
    Rfc4180,  // "," between fields, decimal point
    Espanol,  // ";" between fields, decimal comma
};

// The header line: each input, each output with its unit in brackets
// ("p3 [Pa]"), and the messages. Lines end in CR LF.
std::string CabeceraCSV(const Estudio& estudio, DialectoCSV dialecto);
// One point's line: its inputs, its outputs (empty where it failed) and its
// messages, joined by " | ".
std::string FilaCSV(const Estudio& estudio, size_t punto, const ResultadoPunto& r, DialectoCSV dialecto);

// The value of input i at a point as the box read it (a number, with the
// decimal separator given), or the text of a choice.
std::string TextoEntrada(const Estudio& estudio, size_t i, size_t punto, char decimal = '.');
// An output's value with the decimal separator given; empty when it has none.
std::string TextoSalida(const SalidaEstudio& salida, double valor, char decimal = '.');
// The caption of a column: "Relación de compresión [-]".
std::string TituloConUnidad(std::string_view titulo, std::string_view unidad);

// The study as one JSON document: its inputs with their units and values, its
// outputs with their units, then one object a point: "entradas" and
// "salidas" by name (an output null where the point failed), "bien" and
// "mensajes". A key given first (with its comma) opens the document.
class EscritorJSONEstudio {
public:
    EscritorJSONEstudio(std::ostream& os, const Estudio& estudio, const std::string& primeraClave = {});
    void Punto(size_t punto, const ResultadoPunto& r);
    void Cerrar();

private:
    std::ostream& os_;
    const Estudio& estudio_;
    bool primero_ = true;
};

}  // namespace vanta
