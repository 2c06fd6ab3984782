#pragma once

#include "Drawing/DisplayList.hpp"

namespace Merivane::Document {

/// An element made `scale` times as large about the origin, letters and lines too, and moved so
/// that the origin stands at `place` [mm].
Drawing::Element MovedElement(const Drawing::Element& element, double scale, Drawing::Point place);

} // namespace Merivane::Document
