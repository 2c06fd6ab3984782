#pragma once

#include "Workbench/Interface/ResourceCursor.hpp"
#include "Workbench/Interface/ResourceScript.hpp"

/// The lines of a dialog in a resource script.
namespace Merivane::Workbench {

/// Left, top, width and height; the sizes may not be negative.
bool ReadPixelBox(ResourceCursor& cursor, PixelBox& box);

/// Kind, rectangle and what the kind has behind it.
bool ReadItemResource(ResourceCursor& cursor, ItemResource& item);

} // namespace Merivane::Workbench
