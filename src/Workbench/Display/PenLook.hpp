#pragma once

#include <cstdint>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Workbench {

/// How a pen writes on paper.
struct PenLook {
    double width = 0.25; ///< [mm]
    Drawing::Color color;
};

/// The look of a pen of the pen table. Twenty looks repeat through the 255 pens: 1 is the black of
/// texts and outlines, 2 green and 3 red tell good from bad, 7 to 10 are black from thick to thin,
/// 11 to 13 and 20 greys. Anything that is no pen writes as pen 1.
PenLook LookOfPen(std::int32_t pen);

} // namespace Merivane::Workbench
