#pragma once

#include <vector>

#include "Drawing/DisplayList.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// Rings on the paper, filled as a fill attribute fills them: solid with the colour, or with lines
/// in that colour 2 mm apart, crossed ones for a symbol fill; an empty fill leaves the paper. A
/// fill that the project does not have is solid.
void AddFilledRings(const Project& project, Host::AttributeIndex fill, const Drawing::Color& color,
                    const std::vector<std::vector<Drawing::Point>>& rings,
                    std::vector<Drawing::Element>& elements);

} // namespace Merivane::Workbench
