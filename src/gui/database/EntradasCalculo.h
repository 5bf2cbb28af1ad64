// The inputs of a calculation, kept beside its record in a table of their
// own, EntradasCalculo (the record's id and the inputs as lines
// "name=value"), so that the table of results keeps its 68 columns and its
// records as they are. They are saved in the record's own transaction. A
// comparison runs a record again from them; a record saved before this table
// existed has none, and is rebuilt from its figures.
#pragma once

#include <QtGlobal>
#include <optional>
#include <string>
#include <string_view>

#include "core/sequence/Calculo.h"
#include "gui/database/AlmacenResultados.h"

namespace vanta {

// The inputs that give the calculation again, as they are saved; nothing
// when none do.
std::optional<std::string> EntradasDe(const ResultadoCalculo& r);

// The inputs saved under the record's id; nothing when there are none.
std::optional<std::string> EntradasGuardadas(AlmacenResultados& almacen, qint64 id);

}  // namespace vanta
