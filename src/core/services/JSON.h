// Numbers and texts as the program's JSON writes them.
#pragma once

#include <string>

namespace vanta {

// The shortest text that reads back to the same number (of single precision
// for a float), "null" for one that is not finite.
std::string TextoNumeroJSON(double v);
std::string TextoNumeroJSON(float v);
// A text quoted and escaped.
std::string TextoCadenaJSON(const std::string& t);

}  // namespace vanta
