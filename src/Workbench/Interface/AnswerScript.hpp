#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Host/UserPicture.hpp"

/// Answers to dialogs and alerts, prepared by somebody who is not there when they open. The file is
/// a JSON list, one object for each dialog or alert, in the order in which they open:
///
///     [{ "dialogo": "Vantoro: instalação do Radiance",
///        "itens": [{ "item": 4, "entrada": 2 }, { "item": 30, "clicar": true }],
///        "botao": "Fechar" },
///      { "alerta": "Nada a calcular", "botao": 1 },
///      { "arquivo": "Escolha o arquivo IES da luminaria", "caminho": "spot.ies" }]
namespace Merivane::Workbench {

/// One of several things, by its number from 1 or, where that is 0, by its text.
struct NumberOrText {
    std::int16_t number = 0;
    std::string text;

    bool operator==(const NumberOrText&) const = default;
};

/// "roda": the wheel over a drawing.
struct WheelTurn {
    Host::ItemPoint position; ///< "em"
    std::int16_t notches = 0; ///< "passos": -100 to 100 without 0; above 0 away from the user

    bool operator==(const WheelTurn&) const = default;
};

/// "arrastar": the button pressed at one place of a drawing and released at another.
struct MouseDrag {
    Host::ItemPoint from; ///< "de"
    Host::ItemPoint to;   ///< "ate"; may lie outside of the drawing

    bool operator==(const MouseDrag&) const = default;
};

/// What is done to one item: what is given, then the mouse, then the clicks.
struct ItemAnswer {
    std::int16_t item = 0;
    std::optional<double> value;          ///< "valor": of a number field
    std::optional<std::string> text;      ///< "texto": of a text field
    std::optional<bool> checked;          ///< "marcado": of a check box or radio button
    std::optional<NumberOrText> entry;    ///< "entrada": of a pop-up
    std::optional<NumberOrText> row;      ///< "linha": of a list; a text is that of a cell
    std::optional<Host::ItemPoint> point; ///< "apontar": the mouse over a drawing
    std::optional<WheelTurn> wheel;
    std::optional<MouseDrag> drag;
    bool click = false; ///< "clicar"
    bool doubleClick =
        false; ///< "clicarDuasVezes": on a list's selected row, or a drawing's middle

    bool operator==(const ItemAnswer&) const = default;
};

/// What an answer is meant for.
enum class AnswerKind { Dialog, Alert, File };

/// The answer to one dialog or alert, or the file that is chosen.
struct DialogAnswer {
    AnswerKind kind = AnswerKind::Dialog;
    /// The dialog's resource number or title; of an alert, words that one of its texts holds; of
    /// the choice of a file, its title.
    NumberOrText dialog;
    std::vector<ItemAnswer> items;
    /// "botao", what ends it: a button by its item number (of an alert by its place) or by its
    /// text. Without one the default button.
    std::optional<NumberOrText> button;
    bool close = false; ///< "fechar": by its frame instead of a button
    /// "caminho", the file that is chosen: from the working folder where it does not begin at the
    /// root. Empty for "cancelar": none.
    std::string path;

    bool operator==(const DialogAnswer&) const = default;
};

using AnswerScript = std::vector<DialogAnswer>;

/// Reads the file's text. Returns false and sets `error` to one Portuguese sentence that names the
/// place ("[0].itens[2].item: ...") for a text that is no JSON, a key that is not known or
/// missing, a value of another kind, and for an item that nothing is done to; `script` is then
/// as it was.
bool ParseAnswerScript(std::string_view text, AnswerScript& script, std::string& error);

} // namespace Merivane::Workbench
