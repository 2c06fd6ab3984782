#pragma once

#include "Workbench/Interface/PixelCanvas.hpp"

namespace Merivane::Workbench {

/// Paints what the add-on has drawn into an item, cut off at the item's edges; shapes with a
/// number that is not finite are left out.
void DrawUserPicture(PixelCanvas& canvas, const Host::UserPicture& picture, const PixelBox& place);

} // namespace Merivane::Workbench
