// The window tests: each Qt Test class registers itself here and the one test
// program runs them all on the offscreen platform.
#pragma once

#include <QObject>
#include <functional>
#include <vector>

namespace vanta::pruebas {

using Fabrica = std::function<QObject*()>;
std::vector<Fabrica>& Registro();

// Registers a test class: `static Registrar<MiPrueba> r;` in its file.
template <class T>
struct Registrar {
    Registrar() { Registro().push_back([] { return new T; }); }
};

}  // namespace vanta::pruebas
