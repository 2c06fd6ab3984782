#pragma once

#include <vector>

#include "Host/Model3D.hpp"
#include "Workbench/Model/ElementBodies.hpp"

namespace Merivane::Workbench {

/// The sources of light that the script of a placed object or lamp marks, in the project's frame;
/// none for other elements and for parts without a script.
std::vector<Host::ModelLight> BuildElementLights(const BodySource& source,
                                                 const ProjectElement& element);

} // namespace Merivane::Workbench
