// What a calculation tells the user, in the order it tells it: each message
// (in the windows, a box with an OK button and the program's name as title),
// the input it concerns, and the input whose box has the focus at the end. The
// calculation never waits for the user: the windows show the messages once it
// has returned, in this order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vanta {

// An input of the calculation by its name ("rc", "formula"), and for an input
// of several numbers the one concerned (0 for the first). No name: none.
struct CampoEntrada {
    std::string nombre;
    int campo = 0;

    bool Vacio() const { return nombre.empty(); }
    bool operator==(const CampoEntrada&) const = default;
};

struct MensajeCalculo {
    std::string texto;
    CampoEntrada entrada;
};

class Mensajes {
public:
    void MsgBox(std::string_view texto, CampoEntrada entrada = {}) {
        lista.push_back({std::string(texto), std::move(entrada)});
    }
    // The focus goes to the box of that input.
    void Foco(CampoEntrada entrada) { foco = std::move(entrada); }

    // Whether a message concerns an input: a box was refused.
    bool Rechaza() const {
        for (const MensajeCalculo& m : lista)
            if (!m.entrada.Vacio()) return true;
        return false;
    }
    // The box that ends with the focus: the one given, or else the first that
    // a message concerns.
    CampoEntrada Enfocado() const {
        if (!foco.Vacio()) return foco;
        for (const MensajeCalculo& m : lista)
            if (!m.entrada.Vacio()) return m.entrada;
        return {};
    }

    std::vector<std::string> Textos() const {
        std::vector<std::string> t;
        for (const MensajeCalculo& m : lista) t.push_back(m.texto);
        return t;
    }

    std::vector<MensajeCalculo> lista;
    CampoEntrada foco;  // empty: the focus stays where it was
};

}  // namespace vanta
