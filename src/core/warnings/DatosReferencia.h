// The reference tables of the validation as CSV text, a header line first.
#pragma once

#include <string_view>

namespace vanta {

extern const std::string_view kCsvJANAF;
extern const std::string_view kCsvCombustibles;
extern const std::string_view kCsvCombustiblesAdicionales;
extern const std::string_view kCsvInflamabilidad;

}  // namespace vanta
