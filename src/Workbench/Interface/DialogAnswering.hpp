#pragma once

#include <string>
#include <vector>

#include "Workbench/Interface/AnswerScript.hpp"
#include "Workbench/Interface/DialogState.hpp"

/// Answers carried out on a dialog as a person would: only on what is visible and enabled, only
/// with values that the item can take, and telling what the add-on has to be told.
namespace Merivane::Workbench {

enum class DialogEventKind {
    None,
    ButtonClicked,
    Changed,
    ListSelected,
    ListDoubleClicked,
    MouseUsed
};

/// What the add-on has to be told of after a step.
struct DialogEvent {
    DialogEventKind kind = DialogEventKind::None;
    std::int16_t item = 0;
    std::vector<Host::MouseEvent> mouse = {}; ///< one after the other

    bool operator==(const DialogEvent&) const = default;
};

/// An answer in steps of one doing each, in their order: what is given, what the mouse does on a
/// drawing, a click, a double click.
/// Between two of them the add-on may change the dialog.
std::vector<ItemAnswer> AnswerSteps(const ItemAnswer& answer);

/// Carries out one step. What is given and stands there already is no event.
///
/// Returns false for what a person could not do, with `error` a Portuguese sentence that names
/// dialog and item; the dialog is then as it was.
bool ApplyAnswer(Dialog& dialog, const ItemAnswer& step, DialogEvent& event, std::string& error);

/// The item of a button by its number or its text. Returns false, as `ApplyAnswer`, for one that
/// is not there or can't be pressed.
bool FindButton(const Dialog& dialog, const NumberOrText& button, std::int16_t& item,
                std::string& error);

/// True when an answer is meant for a dialog.
bool IsAnswerTo(const DialogAnswer& answer, const Dialog& dialog);

/// What an answer is meant for, as messages name it: `o diálogo 32650`, `o alerta "Zona"`.
std::string AnswerName(const DialogAnswer& answer);

/// A dialog as messages name it: `diálogo "Título" (32650)`.
std::string DialogName(const Dialog& dialog);

} // namespace Merivane::Workbench
