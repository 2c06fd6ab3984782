#pragma once

#include <cstdint>
#include <optional>

#include "Drawing/DisplayList.hpp"
#include "Workbench/Project/Project.hpp"

/// The windows of a project as sheets of paper, right in their scale. Elements on hidden layers are
/// left out. Fills lie at the bottom, then curves and lines, then texts.
namespace Merivane::Workbench {

/// Where the plan cuts the model, above the floor [m].
inline constexpr double PlanCutHeight = 1.0;

/// The plan of a floor: what is drawn on it, its Zones, and the model as it is cut 1 m above the
/// floor. Walls and columns are filled where they are cut; what lies below is seen from above, what
/// hangs above is dashed; objects and lamps show their outlines from above. Elements of another
/// floor show only where they are cut. `scale` is the denominator, 0 = that of the plan.
Drawing::DisplayList DrawPlan(const Project& project, std::int16_t floorIndex, double scale = 0.0);

/// A worksheet: what is drawn on it. `scale` 0 = its own.
Drawing::DisplayList DrawWorksheet(const Project& project, const ProjectDatabase& worksheet,
                                   double scale = 0.0);

/// A section or elevation: the model as the upright plane through its line cuts it, what lies
/// behind it to the left of the line, and what is drawn on it; x along the line, y the height in
/// the project. Without a line only what is drawn. `scale` 0 = its own.
Drawing::DisplayList DrawSection(const Project& project, const ProjectDatabase& section,
                                 double scale = 0.0);

/// How the 3D window looks at the model.
struct AxonometryView {
    double azimuth = 4.1887902047863905;    ///< where the viewer stands, from x [rad]: 240 degrees
    double elevation = 0.6108652381980153;  ///< above the horizon [rad]: 35 degrees
    std::optional<std::int16_t> floorIndex; ///< this floor alone, without what hangs over its rooms
};

/// The bodies of the model in parallel projection, faces in the colours of their surfaces, nearer
/// ones over farther ones, glass translucent. Lengths across the view are right in the scale;
/// `scale` 0 = that of the plan.
Drawing::DisplayList DrawAxonometry(const Project& project, const AxonometryView& view = {},
                                    double scale = 0.0);

} // namespace Merivane::Workbench
