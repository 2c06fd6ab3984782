#pragma once

#include <cstdint>
#include <vector>

#include "Host/Elements.hpp"
#include "Host/Model3D.hpp"
#include "Workbench/Project/ElementIndex.hpp"
#include "Workbench/Project/Project.hpp"

/// From the elements of a project to their bodies.
namespace Merivane::Workbench {

/// Where bodies are made from.
struct BodySource {
    const Project* project = nullptr;
    const ElementIndex* index = nullptr; ///< of the project's elements
};

/// True for the types that are nothing but their parts: columns, beams, curtain walls, stairs and
/// railings.
bool IsMadeOfParts(Host::ElementType type);

/// True for the types whose elements and parts have bodies of their own.
bool HasBody(Host::ElementType type);

/// The level of a story [m]; 0 for one that the project does not have.
double StoryLevel(const Project& project, std::int16_t floorIndex);

/// The part of an object or lamp, null when the project does not have it.
const ProjectPart* FindObjectPart(const Project& project, const Host::ObjectData& object);

/// The bodies of one element, without those of its parts. Empty for an empty opening. Returns
/// false where there is nothing to build: no geometry, one that encloses nothing, an object of an
/// unknown part, an opening without its wall.
bool BuildElementBodies(const BodySource& source, const ProjectElement& element,
                        std::vector<Host::Body>& bodies);

/// The same for one part of an element.
bool BuildPartBodies(const BodySource& source, const ProjectElement& whole, const ElementPart& part,
                     std::vector<Host::Body>& bodies);

/// The extent of bodies in the project [m]. Returns false, leaving both as they were, when there
/// is no vertex.
bool BodyBounds(const std::vector<Host::Body>& bodies, Host::Coordinate3D& lowest,
                Host::Coordinate3D& highest);

} // namespace Merivane::Workbench
