#include "Workbench/Model/ElementLights.hpp"

#include <variant>

#include "Workbench/Bodies/GivenBodies.hpp"
#include "Workbench/Model/PartRuns.hpp"

namespace Merivane::Workbench {

namespace {

Host::Coordinate3D TurnDirection(const BodyTransform& transform, const Host::Coordinate3D& way) {
    BodyTransform turn = transform;
    turn[3] = turn[7] = turn[11] = 0.0;
    return TransformPlace(turn, way);
}

} // namespace

std::vector<Host::ModelLight> BuildElementLights(const BodySource& source,
                                                 const ProjectElement& element) {
    std::vector<Host::ModelLight> lights;
    const auto* const object = std::get_if<Host::ObjectData>(&element.element.data);
    const ProjectPart* const part = object ? FindObjectPart(*source.project, *object) : nullptr;
    if (!part || !HasModelScript(*part)) {
        return lights;
    }
    const BodyTransform transform =
        PlaceObject(*object, StoryLevel(*source.project, element.element.header.floorIndex));
    for (const PartLight& marked : ModelOfObject(*source.project, *part, element).lights) {
        Host::Coordinate3D place = marked.position;
        Host::Coordinate3D way = marked.direction;
        if (object->mirrored) {
            place.x = -place.x;
            way.x = -way.x;
        }
        Host::ModelLight& light = lights.emplace_back();
        light.position = TransformPlace(transform, place);
        light.direction = TurnDirection(transform, way);
        light.colour = marked.colour;
        light.shadow = marked.shadow;
    }
    return lights;
}

} // namespace Merivane::Workbench
