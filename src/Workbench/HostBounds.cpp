#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <variant>
#include <vector>

#include "Host/Elements.hpp"
#include "Workbench/Display/TextBlock.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/ElementBounds.hpp"
#include "Workbench/Project/DrawnExtent.hpp"
#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Session.hpp"

// The extent of elements of every kind.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::Extent;
using Workbench::ProjectDatabase;
using Workbench::ProjectElement;
using Workbench::Session;

constexpr double MillimetresInMetre = 1000.0;

// Metres of the drawing that one millimetre of its paper stands for.
double MetresOfMillimetre(const Session& session, const Guid& database) {
    double scale = session.project.planScale;
    for (const ProjectDatabase& candidate : session.project.databases) {
        if (candidate.window.database == database) {
            scale = candidate.scale;
        }
    }
    return scale / MillimetresInMetre;
}

void AddText(Extent& extent, const TextData& text, const std::vector<TextParagraph>& paragraphs,
             double metres) {
    const auto [lowest, highest] = Workbench::FrameText(text, paragraphs);
    const double cosine = std::cos(text.angle);
    const double sine = std::sin(text.angle);
    for (const double x : {lowest.x, highest.x}) {
        for (const double y : {lowest.y, highest.y}) {
            Workbench::AddPlace(extent, {text.position.x + metres * (x * cosine - y * sine),
                                         text.position.y + metres * (x * sine + y * cosine)});
        }
    }
}

Extent DrawnExtent(const Session& session, const ProjectElement& element) {
    Extent extent;
    const ElementData& data = element.element.data;
    if (const auto* const line = std::get_if<LineData>(&data)) {
        Workbench::AddPlace(extent, line->begin);
        Workbench::AddPlace(extent, line->end);
    } else if (const auto* const arc = std::get_if<ArcData>(&data)) {
        Workbench::AddArc(extent, *arc);
    } else if (const auto* const spline = std::get_if<SplineData>(&data)) {
        Workbench::AddSpline(extent, element.memo, spline->closed);
    } else if (const auto* const text = std::get_if<TextData>(&data)) {
        AddText(extent, *text, element.memo.paragraphs,
                MetresOfMillimetre(session, element.database));
    } else {
        const auto* const polyLine = std::get_if<PolyLineData>(&data);
        for (const Contour& contour : element.memo.polygon) {
            Workbench::AddContour(extent, contour, !polyLine || polyLine->closed);
        }
    }
    return extent;
}

// A marker's lines on the plan.
Extent MarkerExtent(const Session& session, const Guid& marker) {
    Extent extent;
    for (const ProjectDatabase& database : session.project.databases) {
        if (database.window.marker == marker) {
            Workbench::AddPlace(extent, database.section.begin);
            Workbench::AddPlace(extent, database.section.end);
        }
    }
    return extent;
}

Workbench::BodySource SourceOf(const Session& session) {
    Workbench::BodySource source;
    source.project = &session.project;
    source.index = &session.index;
    return source;
}

std::vector<Body> BodiesOf(const Session& session, const ProjectElement& element) {
    const Workbench::BodySource source = SourceOf(session);
    std::vector<Body> bodies;
    std::vector<Body> more;
    if (Workbench::BuildElementBodies(source, element, more)) {
        bodies = std::move(more);
    }
    for (const Workbench::ElementPart& part : element.parts) {
        more.clear();
        if (Workbench::BuildPartBodies(source, element, part, more)) {
            std::move(more.begin(), more.end(), std::back_inserter(bodies));
        }
    }
    return bodies;
}

// In a section x runs along its line and y is the height above the project's zero.
Extent SectionExtent(const Session& session, const ProjectElement& shown,
                     const SectionElementData& data) {
    Extent extent;
    const ProjectElement* const parent =
        Workbench::FindElement(session.project, session.index, data.parent);
    for (const ProjectDatabase& database : session.project.databases) {
        if (!parent || database.window.database != shown.database) {
            continue;
        }
        const Coordinate& begin = database.section.begin;
        const Coordinate& end = database.section.end;
        const double length = std::hypot(end.x - begin.x, end.y - begin.y);
        for (const Body& body : BodiesOf(session, *parent)) {
            const auto& t = body.transform;
            for (const Coordinate3D& v : body.vertices) {
                const double x = t[0] * v.x + t[1] * v.y + t[2] * v.z + t[3] - begin.x;
                const double y = t[4] * v.x + t[5] * v.y + t[6] * v.z + t[7] - begin.y;
                const double along =
                    length > 0.0 ? (x * (end.x - begin.x) + y * (end.y - begin.y)) / length : 0.0;
                Workbench::AddPlace(extent, {along, t[8] * v.x + t[9] * v.y + t[10] * v.z + t[11]});
            }
        }
    }
    return extent;
}

// A Zone by its polygon and height; a part without a body by its sizes A and B about its origin.
bool FlatBounds(const Session& session, const ProjectElement& element, Workbench::ElementBox& box) {
    Extent extent;
    double bottom = Workbench::StoryLevel(session.project, element.element.header.floorIndex);
    double height = 0.0;
    if (const auto* const zone = std::get_if<ZoneData>(&element.element.data)) {
        for (const Contour& contour : element.memo.polygon) {
            Workbench::AddContour(extent, contour, true);
        }
        bottom += zone->baseLevel;
        height = zone->height;
    } else if (const auto* const object = std::get_if<ObjectData>(&element.element.data)) {
        const double x = object->sizeA / 2.0;
        const double y = object->sizeB / 2.0;
        const double cosine = std::cos(object->angle);
        const double sine = std::sin(object->angle);
        for (const Coordinate& corner :
             {Coordinate{x, y}, Coordinate{-x, y}, Coordinate{-x, -y}, Coordinate{x, -y}}) {
            Workbench::AddPlace(extent, {object->position.x + corner.x * cosine - corner.y * sine,
                                         object->position.y + corner.x * sine + corner.y * cosine});
        }
        bottom += object->level;
    }
    box = {{extent.lowest.x, extent.lowest.y, bottom},
           {extent.highest.x, extent.highest.y, bottom + height}};
    return !extent.empty;
}

bool MeasureElement(const Session& session, const ProjectElement& element,
                    Workbench::ElementBox& box) {
    const ElementType type = element.element.header.type;
    const auto* const shown = std::get_if<SectionElementData>(&element.element.data);
    const bool isMarker = type == ElementType::CutPlane || type == ElementType::Elevation ||
                          type == ElementType::InteriorElevation;
    if (shown || isMarker || Workbench::IsDrawnType(type)) {
        const Extent extent = shown      ? SectionExtent(session, element, *shown)
                              : isMarker ? MarkerExtent(session, element.element.header.guid)
                                         : DrawnExtent(session, element);
        box = {{extent.lowest.x, extent.lowest.y, 0.0}, {extent.highest.x, extent.highest.y, 0.0}};
        return !extent.empty;
    }
    return Workbench::ElementBounds(SourceOf(session), element, box) ||
           FlatBounds(session, element, box);
}

} // namespace

ErrorCode GetBounds(const Guid& guid, Coordinate3D& lowest, Coordinate3D& highest) {
    if (const ErrorCode code = Workbench::CountProjectCall("GetBounds")) {
        return code;
    }
    const Session& session = CurrentSession();
    Workbench::ElementBox box;
    bool found = false;
    if (const auto* const element = Workbench::FindElement(session.project, session.index, guid)) {
        found = MeasureElement(session, *element, box);
    } else {
        const auto [owner, part] = Workbench::FindElementPart(session.project, session.index, guid);
        if (!part) {
            return BadId;
        }
        found = Workbench::PartBounds(SourceOf(session), *owner, *part, box);
    }
    if (!found) {
        return GeneralError; // an element without extent, such as a part without geometry
    }
    lowest = box.lowest;
    highest = box.highest;
    return NoError;
}

} // namespace Merivane::Host
