#include "Workbench/Model/ElementBodies.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <variant>

#include "Workbench/Bodies/FacedBody.hpp"
#include "Workbench/Bodies/GivenBodies.hpp"
#include "Workbench/Bodies/SolidBodies.hpp"
#include "Workbench/Bodies/WallBody.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/Model/ScriptSurfaces.hpp"

namespace Merivane::Workbench {

namespace {

using Host::ElementType;

std::int32_t NoScriptSurface(std::string_view /*name*/) {
    return -1;
}

/// Geometry that needs nothing but itself.
struct PlainBody {
    FacedBody operator()(const SlabGeometry& slab) const { return BuildSlabBody(slab); }
    FacedBody operator()(const PrismGeometry& prism) const { return BuildPrismBody(prism); }
    FacedBody operator()(const BarGeometry& bar) const { return BuildBarBody(bar); }
    FacedBody operator()(const RoofGeometry& roof) const { return BuildRoofBody(roof); }
    FacedBody operator()(const MeshGeometry& mesh) const { return BuildMeshBody(mesh); }
    FacedBody operator()(const GivenBody& given) const {
        return BuildGivenBody(given, NoScriptSurface);
    }
    template <typename Other> FacedBody operator()(const Other& /*geometry*/) const { return {}; }
};

bool AddBody(const FacedBody& faced, const BodyTransform& transform,
             std::vector<Host::Body>& bodies) {
    if (faced.faces.empty()) {
        return false;
    }
    bodies.push_back(MakeBody(faced, transform));
    return true;
}

bool BuildWall(const BodySource& source, const ProjectElement& element, const WallGeometry& wall,
               std::vector<Host::Body>& bodies) {
    const Host::ElementHeader& header = element.element.header;
    std::vector<OpeningGeometry> openings;
    for (const Host::Guid& guid : FindOpenings(*source.index, header.guid)) {
        const ProjectElement* found = FindElement(*source.project, *source.index, guid);
        if (const auto* opening = std::get_if<OpeningGeometry>(&found->geometry)) {
            openings.push_back(*opening);
        }
    }
    return AddBody(BuildWallBody(wall, openings),
                   LiftBody(StoryLevel(*source.project, header.floorIndex)), bodies);
}

bool BuildOpening(const BodySource& source, const OpeningGeometry& opening,
                  std::vector<Host::Body>& bodies) {
    const ProjectElement* element = FindElement(*source.project, *source.index, opening.wall);
    const auto* wall = element == nullptr ? nullptr : std::get_if<WallGeometry>(&element->geometry);
    WallCut cut;
    if (wall == nullptr || !CutOfOpening(*wall, opening, cut)) {
        return false;
    }
    const double level = StoryLevel(*source.project, element->element.header.floorIndex);
    AddBody(BuildOpeningBody(*wall, opening), LiftBody(level), bodies);
    return true;
}

// A model that scripts built already has the object's sizes.
void AddScriptedBodies(const PartModel& model, const Host::ObjectData& object,
                       const BodyTransform& transform, std::vector<Host::Body>& bodies) {
    for (const FacedBody& built : model.bodies) {
        FacedBody faced = built;
        if (object.mirrored) {
            MirrorObject(faced);
        }
        AddBody(faced, transform, bodies);
    }
}

bool BuildObject(const BodySource& source, const ProjectElement& element,
                 const Host::ObjectData& object, std::vector<Host::Body>& bodies) {
    const Host::ElementHeader& header = element.element.header;
    const ProjectPart* part = FindObjectPart(*source.project, object);
    if (part == nullptr) {
        return false;
    }
    const auto numberOf = [&](std::string_view name) {
        return NumberScriptSurface(*source.project, *part, name);
    };
    const BodyTransform transform =
        PlaceObject(object, StoryLevel(*source.project, header.floorIndex));
    if (HasModelScript(*part)) {
        AddScriptedBodies(ModelOfObject(*source.project, *part, element), object, transform,
                          bodies);
    }
    for (const GivenBody& given : part->bodies) {
        FacedBody faced = BuildGivenBody(given, numberOf);
        FitToObject(faced, *part, object);
        AddBody(faced, transform, bodies);
    }
    return true;
}

} // namespace

bool IsMadeOfParts(ElementType type) {
    switch (type) {
    case ElementType::Column:
    case ElementType::Beam:
    case ElementType::CurtainWall:
    case ElementType::Stair:
    case ElementType::Railing:
        return true;
    default:
        return false;
    }
}

bool HasBody(ElementType type) {
    switch (type) {
    case ElementType::Wall:
    case ElementType::Window:
    case ElementType::Door:
    case ElementType::Object:
    case ElementType::Lamp:
    case ElementType::Slab:
    case ElementType::Roof:
    case ElementType::Mesh:
    case ElementType::CurtainWallFrame:
    case ElementType::CurtainWallPanel:
    case ElementType::Shell:
    case ElementType::Skylight:
    case ElementType::Morph:
    case ElementType::Riser:
    case ElementType::Tread:
    case ElementType::StairStructure:
    case ElementType::RailingPart:
    case ElementType::BeamSegment:
    case ElementType::ColumnSegment:
        return true;
    default:
        return false;
    }
}

double StoryLevel(const Project& project, std::int16_t floorIndex) {
    const auto story =
        std::find_if(project.stories.begin(), project.stories.end(),
                     [&](const Host::Story& candidate) { return candidate.index == floorIndex; });
    return story == project.stories.end() ? 0.0 : story->level;
}

const ProjectPart* FindObjectPart(const Project& project, const Host::ObjectData& object) {
    const auto place = static_cast<std::size_t>(object.libraryIndex) - 1;
    return object.libraryIndex > 0 && place < project.parts.size() ? &project.parts[place]
                                                                   : nullptr;
}

bool BuildElementBodies(const BodySource& source, const ProjectElement& element,
                        std::vector<Host::Body>& bodies) {
    bodies.clear();
    const Host::ElementHeader& header = element.element.header;
    if (const auto* wall = std::get_if<WallGeometry>(&element.geometry)) {
        return BuildWall(source, element, *wall, bodies);
    }
    if (const auto* opening = std::get_if<OpeningGeometry>(&element.geometry)) {
        return BuildOpening(source, *opening, bodies);
    }
    if (const auto* object = std::get_if<Host::ObjectData>(&element.element.data)) {
        return BuildObject(source, element, *object, bodies);
    }
    const BodyTransform lift = LiftBody(StoryLevel(*source.project, header.floorIndex));
    if (const auto* morph = std::get_if<Host::MorphData>(&element.element.data)) {
        return AddBody(BuildMorphBody(*morph, element.memo.body), lift, bodies);
    }
    return AddBody(std::visit(PlainBody{}, element.geometry), lift, bodies);
}

bool BuildPartBodies(const BodySource& source, const ProjectElement& whole, const ElementPart& part,
                     std::vector<Host::Body>& bodies) {
    bodies.clear();
    return AddBody(std::visit(PlainBody{}, part.geometry),
                   LiftBody(StoryLevel(*source.project, whole.element.header.floorIndex)), bodies);
}

bool BodyBounds(const std::vector<Host::Body>& bodies, Host::Coordinate3D& lowest,
                Host::Coordinate3D& highest) {
    bool any = false;
    Host::Coordinate3D low;
    Host::Coordinate3D high;
    for (const Host::Body& body : bodies) {
        for (const Host::Coordinate3D& vertex : body.vertices) {
            const Host::Coordinate3D place = TransformPlace(body.transform, vertex);
            low = any ? Host::Coordinate3D{std::min(low.x, place.x), std::min(low.y, place.y),
                                           std::min(low.z, place.z)}
                      : place;
            high = any ? Host::Coordinate3D{std::max(high.x, place.x), std::max(high.y, place.y),
                                            std::max(high.z, place.z)}
                       : place;
            any = true;
        }
    }
    if (any) {
        lowest = low;
        highest = high;
    }
    return any;
}

} // namespace Merivane::Workbench
