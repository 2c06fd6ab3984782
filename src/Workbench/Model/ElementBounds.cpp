#include "Workbench/Model/ElementBounds.hpp"

#include <variant>
#include <vector>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Bodies/GivenBodies.hpp"
#include "Workbench/Bodies/WallBody.hpp"

namespace Merivane::Workbench {

namespace {

/// The extent of a body that has not been given its edges.
bool FacedBounds(const FacedBody& faced, const BodyTransform& transform, ElementBox& box) {
    Host::Body body;
    body.vertices = faced.vertices;
    body.transform = transform;
    return BodyBounds({body}, box.lowest, box.highest);
}

bool OpeningBounds(const BodySource& source, const OpeningGeometry& opening, ElementBox& box) {
    const ProjectElement* element = FindElement(*source.project, *source.index, opening.wall);
    const auto* wall = element == nullptr ? nullptr : std::get_if<WallGeometry>(&element->geometry);
    if (wall == nullptr) {
        return false;
    }
    const double level = StoryLevel(*source.project, element->element.header.floorIndex);
    return FacedBounds(BuildOpeningRoom(*wall, opening), LiftBody(level), box);
}

/// A project holds objects by the ten thousand: their faces are left aside.
bool ObjectBounds(const BodySource& source, const ProjectElement& element,
                  const Host::ObjectData& object, ElementBox& box) {
    const ProjectPart* part = FindObjectPart(*source.project, object);
    if (part == nullptr) {
        return false;
    }
    FacedBody all;
    for (const GivenBody& given : part->bodies) {
        all.vertices.insert(all.vertices.end(), given.vertices.begin(), given.vertices.end());
    }
    FitToObject(all, *part, object);
    const double level = StoryLevel(*source.project, element.element.header.floorIndex);
    return FacedBounds(all, PlaceObject(object, level), box);
}

} // namespace

bool ElementBounds(const BodySource& source, const ProjectElement& element, ElementBox& box) {
    const Host::ElementHeader& header = element.element.header;
    if (const auto* wall = std::get_if<WallGeometry>(&element.geometry)) {
        const double level = StoryLevel(*source.project, header.floorIndex);
        return FacedBounds(BuildWallBody(*wall, {}), LiftBody(level), box);
    }
    if (const auto* opening = std::get_if<OpeningGeometry>(&element.geometry)) {
        return OpeningBounds(source, *opening, box);
    }
    if (const auto* object = std::get_if<Host::ObjectData>(&element.element.data)) {
        return ObjectBounds(source, element, *object, box);
    }
    std::vector<Host::Body> bodies;
    if (HasBody(header.type)) {
        BuildElementBodies(source, element, bodies);
        return BodyBounds(bodies, box.lowest, box.highest);
    }
    for (const ElementPart& part : element.parts) {
        std::vector<Host::Body> ofPart;
        BuildPartBodies(source, element, part, ofPart);
        bodies.insert(bodies.end(), ofPart.begin(), ofPart.end());
    }
    return BodyBounds(bodies, box.lowest, box.highest);
}

bool PartBounds(const BodySource& source, const ProjectElement& whole, const ElementPart& part,
                ElementBox& box) {
    std::vector<Host::Body> bodies;
    BuildPartBodies(source, whole, part, bodies);
    return BodyBounds(bodies, box.lowest, box.highest);
}

} // namespace Merivane::Workbench
