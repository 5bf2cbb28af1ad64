// How the logic meets the screen: message and input boxes, text boxes, option
// buttons and check boxes, and a window that can hide itself. Each has a plain
// implementation here, for the command line and the tests; the windows give
// the Qt ones.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vanta {

// Message box (OK only, the application's name as title) and input box.
class Dialogos {
public:
    virtual ~Dialogos() = default;
    virtual void MsgBox(std::string_view mensaje) = 0;
    // Returns the answer; an empty string for a cancel, as the input box does.
    virtual std::string InputBox(std::string_view prompt, std::string_view porDefecto) = 0;
};

// A text box as the logic sees it.
class CajaTexto {
public:
    virtual ~CajaTexto() = default;
    virtual std::string Text() const = 0;
    virtual void SetText(std::string_view texto) = 0;
    virtual void SetFocus() = 0;
    virtual void SetSelStart(int posicion) = 0;
};

// An option button or a check box: its value.
class Interruptor {
public:
    virtual ~Interruptor() = default;
    virtual bool Value() const = 0;
    virtual void SetValue(bool valor) = 0;
};

// A stage window that hides itself after a success.
class Ventana {
public:
    virtual ~Ventana() = default;
    virtual void Hide() = 0;
};

// ---- Plain implementations ---------------------------------------------------

// Keeps every message; answers input boxes from a queue (empty when none left).
class DialogosGrabados : public Dialogos {
public:
    std::vector<std::string> mensajes;
    std::vector<std::string> respuestas;
    std::vector<std::string> prompts;

    void MsgBox(std::string_view mensaje) override { mensajes.emplace_back(mensaje); }
    std::string InputBox(std::string_view prompt, std::string_view porDefecto) override {
        prompts.emplace_back(prompt);
        if (respuestas.empty()) return std::string(porDefecto);
        std::string r = respuestas.front();
        respuestas.erase(respuestas.begin());
        return r;
    }
};

// The command line: one message a line on standard error, after the name of
// the subcommand ("vanta calcular: "); input boxes take their default.
class DialogosConsola : public Dialogos {
public:
    explicit DialogosConsola(std::string prefijo = "") : prefijo_(std::move(prefijo)) {}
    void MsgBox(std::string_view mensaje) override;
    std::string InputBox(std::string_view prompt, std::string_view porDefecto) override;
    int cuenta = 0;  // messages shown

private:
    std::string prefijo_;
};

class CajaTextoSimple : public CajaTexto {
public:
    CajaTextoSimple() = default;
    explicit CajaTextoSimple(std::string texto) : texto_(std::move(texto)) {}
    std::string Text() const override { return texto_; }
    void SetText(std::string_view texto) override { texto_ = texto; }
    void SetFocus() override { ++focos; }
    void SetSelStart(int posicion) override { selStart = posicion; }

    int focos = 0;  // how many times the focus came here
    int selStart = 0;

private:
    std::string texto_;
};

class InterruptorSimple : public Interruptor {
public:
    InterruptorSimple() = default;
    explicit InterruptorSimple(bool valor) : valor_(valor) {}
    bool Value() const override { return valor_; }
    void SetValue(bool valor) override { valor_ = valor; }

private:
    bool valor_ = false;
};

class VentanaSimple : public Ventana {
public:
    void Hide() override { oculta = true; }
    bool oculta = false;
};

}  // namespace vanta
