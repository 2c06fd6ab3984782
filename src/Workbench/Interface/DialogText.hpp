#pragma once

#include <string>

#include "Workbench/Interface/UserInterface.hpp"

/// Dialogs and alerts as text that a person can read.
namespace Merivane::Workbench {

/// The dialog's title and size, then a line for each item: number, kind, label or value, and where
/// it is hidden or greyed. Pop-ups show all entries, lists their columns and rows; the selected one
/// is marked. Ends in a line feed.
std::string DialogText(const Dialog& dialog);

/// As `DialogText`, and how it was closed.
std::string DialogText(const ShownDialog& shown);

/// Kind, texts, buttons and the one that was pressed.
std::string AlertText(const ShownAlert& alert);

/// Title, what could be chosen, and what was.
std::string FileChoiceText(const ShownFileChoice& choice);

} // namespace Merivane::Workbench
