#pragma once

#include "Drawing/DisplayList.hpp"

namespace Merivane::Tests {

/// A sheet with all built-in plan symbols that are drawn, each large and, beside it, in the size
/// of 4 mm that new luminaires have, with its identifier and name. What is drawn are the numbers
/// that luminaires carry, as their script draws them with a solid fill.
Drawing::DisplayList BuildSymbolSheet();

} // namespace Merivane::Tests
