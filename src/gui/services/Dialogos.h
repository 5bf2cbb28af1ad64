// The message box and the input box as the windows' logic sees them: the Qt
// ones in the program, recorded ones in the tests, standard error on the
// command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/services/Mensajes.h"

namespace vanta {

// Message box (OK only, the application's name as title) and input box.
class Dialogos {
public:
    virtual ~Dialogos() = default;
    virtual void MsgBox(std::string_view mensaje) = 0;
    // Returns the answer; an empty string for a cancel, as the input box does.
    virtual std::string InputBox(std::string_view prompt, std::string_view porDefecto) = 0;
    // A question with the buttons Sí and No, No by default: true for Sí.
    virtual bool Pregunta(std::string_view pregunta) = 0;
};

// What a calculation told, one box a message, in order.
inline void MostrarMensajes(Dialogos& dlg, const std::vector<MensajeCalculo>& mensajes) {
    for (const MensajeCalculo& m : mensajes) dlg.MsgBox(m.texto);
}

// Keeps every message; answers input boxes from a queue (empty when none left)
// and questions from another (No, the default, when none left).
class DialogosGrabados : public Dialogos {
public:
    std::vector<std::string> mensajes;
    std::vector<std::string> respuestas;
    std::vector<std::string> prompts;
    std::vector<bool> siNo;
    std::vector<std::string> preguntas;

    void MsgBox(std::string_view mensaje) override { mensajes.emplace_back(mensaje); }
    std::string InputBox(std::string_view prompt, std::string_view porDefecto) override {
        prompts.emplace_back(prompt);
        if (respuestas.empty()) return std::string(porDefecto);
        std::string r = respuestas.front();
        respuestas.erase(respuestas.begin());
        return r;
    }
    bool Pregunta(std::string_view pregunta) override {
        preguntas.emplace_back(pregunta);
        if (siNo.empty()) return false;
        const bool si = siNo.front();
        siNo.erase(siNo.begin());
        return si;
    }
};

// The command line: one message a line on standard error, after the name of
// the subcommand ("vanta calcular: "); input boxes take their default.
class DialogosConsola : public Dialogos {
public:
    explicit DialogosConsola(std::string prefijo = "") : prefijo_(std::move(prefijo)) {}
    void MsgBox(std::string_view mensaje) override;
    std::string InputBox(std::string_view, std::string_view porDefecto) override {
        return std::string(porDefecto);
    }
    bool Pregunta(std::string_view) override { return false; }
    int cuenta = 0;  // messages shown

private:
    std::string prefijo_;
};

}  // namespace vanta
