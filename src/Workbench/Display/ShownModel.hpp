#pragma once

#include <vector>

#include "Host/Model3D.hpp"
#include "Host/Types.hpp"
#include "Workbench/Display/ViewBody.hpp"
#include "Workbench/Project/Project.hpp"

namespace Merivane::Workbench {

/// An element of the model as a view shows it: its bodies and those of its parts.
struct ShownElement {
    const ProjectElement* element = nullptr; ///< of the project
    std::vector<ViewBody> bodies;            ///< each with faces; of objects maybe none
};

/// The elements with bodies, and all objects and lamps, on visible layers, in their order.
std::vector<ShownElement> CollectShownElements(const Project& project, const ViewFrame& frame);

/// Lowest and highest depth of a body in its view [m].
double LowestDepth(const ViewBody& body);
double HighestDepth(const ViewBody& body);

/// The surface of a face; a light grey one for none and for one that does not exist.
Host::ModelSurface SurfaceOfFace(const Project& project, const ViewFace& face);

/// True for a body that is mostly seen through: the largest part of it is.
bool IsMostlyGlass(const Project& project, const ViewBody& body);

/// True for a body with a face that is seen through.
bool HasGlass(const Project& project, const ViewBody& body);

} // namespace Merivane::Workbench
