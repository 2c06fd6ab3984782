#pragma once

#include "Drawing/DisplayList.hpp"
#include "Workbench/Interface/UserInterface.hpp"

/// Dialogs as the host shows them, drawn at 96 pixels to the inch.
namespace Merivane::Workbench {

/// A dialog or palette with its frame and title, every visible item in its present state. `dark`
/// takes the colours of the host's dark interface.
Drawing::DisplayList DialogPicture(const Dialog& dialog, bool dark = false);

/// An alert with its sign, texts and buttons.
Drawing::DisplayList AlertPicture(const ShownAlert& alert, bool dark = false);

} // namespace Merivane::Workbench
