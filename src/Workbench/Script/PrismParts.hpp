#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeProfile.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// What the statements for prisms share.
namespace Merivane::Workbench {

struct PrismSurfaces {
    std::int32_t top = -1;
    std::int32_t bottom = -1;
    std::int32_t side = -1;
};

/// The surface in force for all faces.
PrismSurfaces CommonSurfaces(const ShapeInput& input);

/// The next three arguments.
PrismSurfaces TakeSurfaces(ShapeInput& input);

/// The sides of a prism: present by bit 8 of their status.
Loft PrismLoft(const ShapeProfile& profile, std::int32_t surface);

/// The surfaces that a column of the rows gives to the sides.
void SetSideSurfaces(const ShapeInput& input, const ShapeProfile& profile, std::size_t column,
                     Loft& loft);

/// Both ends of a prism, for each point of its loft. Ends that are the same place are one vertex.
struct PrismEnds {
    std::vector<Host::Coordinate3D> bottom;
    std::vector<Host::Coordinate3D> top;
};

/// Adds the faces of a prism; where both ends are the same everywhere the top alone.
std::string AddPrism(ShapeSketch& sketch, const Loft& loft, const PrismEnds& ends,
                     const PrismSurfaces& surfaces);

} // namespace Merivane::Workbench
