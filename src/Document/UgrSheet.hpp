#pragma once

#include "Document/UgrReport.hpp"
#include "Drawing/DisplayList.hpp"

namespace Merivane::Document {

/// Draws the glare table of a luminaire as a maker's data sheet does, on an upright A4: title, the
/// 19 rooms with the 5 reflectances for both sights, the reference room, the polar curve, key
/// figures, and the notes at the foot. Only of a report that is `ok`.
Drawing::DisplayList BuildUgrSheet(const UgrReport& report);

} // namespace Merivane::Document
