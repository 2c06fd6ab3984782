#pragma once

#include "Workbench/Interface/PixelCanvas.hpp"

namespace Merivane::Workbench {

/// Draws one item in its present state. `isDefault`: the button that Enter presses.
void DrawItem(PixelCanvas& canvas, const DialogItem& item, bool isDefault);

} // namespace Merivane::Workbench
