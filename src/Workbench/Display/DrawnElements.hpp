#pragma once

#include "Workbench/Display/PaperDrawing.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// Puts what is drawn of an element on the paper: lines, polylines, arcs, circles, splines, hatches
/// and texts, and of a Zone its outline and its stamp. Other elements have nothing drawn.
///
/// A solid hatch is filled with its foreground; of a patterned one the lines are drawn, 2 mm apart.
void AddDrawnElement(const Project& project, const ProjectElement& element, PaperDrawing& drawing);

/// The stroke of a pen and a line type; 0 = continuous, as is one that the project does not have.
Drawing::Stroke StrokeOf(const Project& project, std::int32_t pen, Host::AttributeIndex lineType);

/// False for elements on a hidden layer and on one that the project does not have.
bool IsOnVisibleLayer(const Project& project, const ProjectElement& element);

} // namespace Merivane::Workbench
