#include <algorithm>
#include <cmath>
#include <optional>
#include <variant>

#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultElements.hpp"
#include "Archicad/ResultLabels.hpp"
#include "Archicad/ResultLegend.hpp"
#include "Host/Stories.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Study/BlockPlacement.hpp"
#include "Simulation/Study/ZoneSummary.hpp"

// Where blocks of text find room beside a floor's drawing.
namespace Merivane::Archicad {

namespace {

using Host::ElementType;
using Simulation::Bounds2D;
using Simulation::Point2D;
using Simulation::ZoneDrawing;

constexpr double BlockGap = 3.0;    // [mm on paper]
constexpr double LongestPart = 1.0; // of a slanting line [m]
constexpr double MostParts = 100.0;

Bounds2D BoundsOf(Point2D a, Point2D b) {
    return {{std::min(a.x, b.x), std::min(a.y, b.y)}, {std::max(a.x, b.x), std::max(a.y, b.y)}};
}

// A slanting line in parts: one box round it all would keep texts from where nothing is.
void AddLine(std::vector<Bounds2D>& boxes, const Host::Coordinate& from,
             const Host::Coordinate& to) {
    const double slant = std::min(std::abs(to.x - from.x), std::abs(to.y - from.y));
    const double parts = std::clamp(std::ceil(slant / LongestPart), 1.0, MostParts);
    for (double part = 0.0; part < parts; part += 1.0) {
        const double a = part / parts;
        const double b = (part + 1.0) / parts;
        boxes.push_back(BoundsOf({std::lerp(from.x, to.x, a), std::lerp(from.y, to.y, a)},
                                 {std::lerp(from.x, to.x, b), std::lerp(from.y, to.y, b)}));
    }
}

// False for a polyline with arcs.
bool AddSides(std::vector<Bounds2D>& boxes, const Host::Guid& guid, bool closed) {
    Host::ElementMemo memo;
    if (Host::GetMemo(guid, Host::MemoParts::Polygon, memo) != Host::NoError ||
        memo.polygon.empty() || !memo.polygon.front().arcs.empty()) {
        return false;
    }
    const std::vector<Host::Coordinate>& vertices = memo.polygon.front().vertices;
    for (std::size_t i = closed ? 0 : 1; i < vertices.size(); ++i) {
        AddLine(boxes, vertices[i == 0 ? vertices.size() - 1 : i - 1], vertices[i]);
    }
    return true;
}

// A site's terrain reaches far beyond the building, and texts may stand on it.
bool KeepsTextsOff(ElementType type) {
    return type != ElementType::Mesh && type != ElementType::Hotspot;
}

bool IsMarker(ElementType type) {
    return type == ElementType::CutPlane || type == ElementType::Elevation ||
           type == ElementType::InteriorElevation;
}

/// The scale of the results, and that in which the host measures texts.
struct Scales {
    double results = 100.0;
    double host = 100.0;
};

// A text is as large as the paper's scale makes it; the names of markers stand beyond their lines.
Bounds2D InScale(const Host::Element& element, Bounds2D box, const Scales& scales) {
    constexpr double markerReach = 10.0; // [mm on paper]
    if (const auto* const text = std::get_if<Host::TextData>(&element.data)) {
        const double factor = scales.results / scales.host;
        const auto from = [factor](double origin, double place) {
            return origin + factor * (place - origin);
        };
        return {{from(text->position.x, box.minimum.x), from(text->position.y, box.minimum.y)},
                {from(text->position.x, box.maximum.x), from(text->position.y, box.maximum.y)}};
    }
    const double reach =
        IsMarker(element.header.type) ? markerReach * PaperMillimetre(scales.results) : 0.0;
    return {{box.minimum.x - reach, box.minimum.y - reach},
            {box.maximum.x + reach, box.maximum.y + reach}};
}

void AddElement(std::vector<Bounds2D>& boxes, const Host::Element& element, const Scales& scales) {
    const Host::Guid& guid = element.header.guid;
    if (const auto* const line = std::get_if<Host::LineData>(&element.data)) {
        AddLine(boxes, line->begin, line->end);
        return;
    }
    const auto* const polyLine = std::get_if<Host::PolyLineData>(&element.data);
    if (polyLine != nullptr && AddSides(boxes, guid, polyLine->closed)) {
        return;
    }
    Host::Coordinate3D lowest;
    Host::Coordinate3D highest;
    if (Host::GetBounds(guid, lowest, highest) == Host::NoError) {
        boxes.push_back(InScale(element, {{lowest.x, lowest.y}, {highest.x, highest.y}}, scales));
    }
}

// What stands on the floor and is seen. What can't be read keeps nothing off.
void AddFloorElements(std::vector<Bounds2D>& boxes, std::int32_t floorIndex, double scale) {
    Scales scales{scale, 0.0};
    if (Host::GetDrawingScale(scales.host) != Host::NoError || !(scales.host > 0.0)) {
        scales.host = scale;
    }
    std::vector<Host::Guid> guids;
    Host::ListElements(ElementType::Any, Host::ElementFilter::OnVisibleLayer, guids);
    for (const Host::Guid& guid : guids) {
        Host::Element element;
        if (Host::GetElement(guid, element) == Host::NoError &&
            element.header.floorIndex == floorIndex && KeepsTextsOff(element.header.type)) {
            AddElement(boxes, element, scales);
        }
    }
}

// The limits' labels have their places; curve labels come Zone by Zone, each clear of what stands.
std::vector<Bounds2D> PlaceLabels(std::vector<ZonePlacement>& zones, const DrawingOptions& options,
                                  double millimetre) {
    std::vector<Bounds2D> placed;
    for (const ZonePlacement& zone : zones) {
        if (const std::optional<PlacedText> text =
                PlaceOutlineText(zone.drawing->taskOutline, millimetre)) {
            placed.push_back(TextBounds(*text, millimetre));
        }
    }
    for (ZonePlacement& zone : zones) {
        zone.otherLabels = placed;
        if (options.curves && options.curveLabels) {
            const LabelSpace space =
                LabelSpaceOf(*zone.drawing, zone.otherLabels, options, millimetre);
            for (const PlacedText& text :
                 PlaceCurveTexts(zone.drawing->curves, space, millimetre).texts) {
                placed.push_back(TextBounds(text, millimetre));
            }
        }
    }
    return placed;
}

void Include(std::optional<Bounds2D>& all, const Bounds2D& bounds) {
    all = all ? Bounds2D{{std::min(all->minimum.x, bounds.minimum.x),
                          std::min(all->minimum.y, bounds.minimum.y)},
                         {std::max(all->maximum.x, bounds.maximum.x),
                          std::max(all->maximum.y, bounds.maximum.y)}}
              : bounds;
}

} // namespace

FloorLayout LayOutFloor(std::int32_t floorIndex, const std::vector<const ZoneDrawing*>& drawings,
                        const DrawingOptions& options, const ResultStructure& structure) {
    const double millimetre = PaperMillimetre(structure.scale);
    FloorLayout layout;
    layout.floorIndex = floorIndex;
    for (const ZoneDrawing* const drawing : drawings) {
        layout.zones.push_back({drawing, floorIndex, {}, {}});
    }
    std::vector<Bounds2D> occupied = PlaceLabels(layout.zones, options, millimetre);
    std::vector<Simulation::BlockRequest> blocks;
    std::optional<Bounds2D> all;
    for (const ZoneDrawing* const drawing : drawings) {
        const Bounds2D bounds = Simulation::OuterBounds(drawing->zone.outline);
        const Simulation::SummaryExtent extent =
            Simulation::MeasureSummary(Simulation::BuildZoneSummary(*drawing));
        blocks.push_back({bounds, extent.width * millimetre, extent.height * millimetre});
        occupied.push_back(bounds);
        Include(all, bounds);
    }
    AddFloorElements(occupied, floorIndex, structure.scale);
    if (all && HasLegend(options, structure)) {
        const LegendExtent extent = MeasureLegend(options.levels);
        blocks.push_back({*all, extent.width * millimetre, extent.height * millimetre});
    }
    const std::vector<Point2D> corners =
        Simulation::PlaceBlocks(blocks, occupied, BlockGap * millimetre);
    for (std::size_t i = 0; i < layout.zones.size(); ++i) {
        layout.zones[i].summary = corners[i];
    }
    layout.legend = corners.size() > drawings.size() ? corners.back() : Point2D();
    return layout;
}

} // namespace Merivane::Archicad
