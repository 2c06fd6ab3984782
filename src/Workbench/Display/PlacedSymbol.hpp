#pragma once

#include <vector>

#include "Workbench/Display/PaperDrawing.hpp"
#include "Workbench/Project/Project.hpp"
#include "Workbench/Script/PlanSymbolDrawing.hpp"

namespace Merivane::Workbench {

/// Where an object stands on the plan.
struct SymbolPlace {
    Host::Coordinate position; ///< [m]
    double angle = 0.0;        ///< counter-clockwise [rad]
    bool mirrored = false;     ///< x to -x, before it is turned
};

SymbolPlace PlaceOfObject(const Host::ObjectData& object);

/// Puts what a part's plan script drew on the paper: its lines, arcs and fills behind what stands
/// in `elements`, in their order (by drawing index first), and its texts among those of the
/// drawing. Hotspots, pictures, fragments and projections are not drawn here.
void AddPlacedSymbol(const Project& project, const PlanSymbolDrawing& symbol,
                     const SymbolPlace& place, PaperDrawing& drawing,
                     std::vector<Drawing::Element>& elements);

} // namespace Merivane::Workbench
