#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "Host/Elements.hpp"
#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Project/ModelGeometry.hpp"
#include "Workbench/Project/Project.hpp"

/// Bodies that the project tells by their faces.
namespace Merivane::Workbench {

/// Gives a part's own surface its number for faces, from `Host::FirstScriptSurface` up; -1 for a
/// name that the part does not know.
using ScriptSurfaceNumber = std::function<std::int32_t(std::string_view name)>;

/// A given body; faces that name a vertex which it does not have are left out.
FacedBody BuildGivenBody(const GivenBody& given, const ScriptSurfaceNumber& numberOf);

/// A Morph's body, lifted by the Morph's level; faces without a surface of their own take the
/// Morph's.
FacedBody BuildMorphBody(const Host::MorphData& morph, const Host::MorphBody& body);

/// Stretches a part's body from the part's sizes A and B to those of the object, and mirrors it;
/// its faces still look outside.
void FitToObject(FacedBody& body, const ProjectPart& part, const Host::ObjectData& object);

/// Mirrors a body of a part, x to -x; its faces still look outside.
void MirrorObject(FacedBody& body);

/// Turns and moves a part's body to its object; `storyLevel` [m].
BodyTransform PlaceObject(const Host::ObjectData& object, double storyLevel);

} // namespace Merivane::Workbench
