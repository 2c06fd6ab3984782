#include "Workbench/Display/DrawnElements.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Text/Number.hpp"
#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Display/CurvePoints.hpp"
#include "Workbench/Display/FilledRings.hpp"
#include "Workbench/Display/PenLook.hpp"
#include "Workbench/Display/TextBlock.hpp"

namespace Merivane::Workbench {

namespace {

using Drawing::Point;

constexpr double WholeTurn = 2.0 * std::numbers::pi;
constexpr double StampName = 2.5; // heights of capitals [mm]
constexpr double StampDetail = 1.8;
constexpr Drawing::Stroke ZoneStroke = {0.13, {0.45, 0.45, 0.45}, {}};
constexpr Drawing::Color StampColor = {0.15, 0.15, 0.15};

struct ElementDrawer {
    const Project& project;
    const ProjectElement& element;
    PaperDrawing& drawing;

    double Tolerance() const { return CurveTolerance / MillimetresPerMetre(drawing); }

    std::vector<std::vector<Point>> Rings() const {
        std::vector<std::vector<Point>> rings;
        for (const Host::Contour& contour : element.memo.polygon) {
            rings.push_back(PaperPoints(drawing, ContourPoints(contour, true, Tolerance())));
        }
        return rings;
    }

    void operator()(const Host::LineData& line) const {
        drawing.curves.emplace_back(
            Drawing::Polyline{{PaperPoint(drawing, line.begin), PaperPoint(drawing, line.end)},
                              false,
                              StrokeOf(project, line.pen, line.lineType)});
    }

    void operator()(const Host::PolyLineData& line) const {
        for (const Host::Contour& contour : element.memo.polygon) {
            drawing.curves.emplace_back(Drawing::Polyline{
                PaperPoints(drawing, ContourPoints(contour, line.closed, Tolerance())), line.closed,
                StrokeOf(project, line.pen, line.lineType)});
        }
    }

    void operator()(const Host::ArcData& arc) const {
        Drawing::Arc drawn;
        drawn.center = PaperPoint(drawing, arc.center);
        drawn.radius = arc.radius * MillimetresPerMetre(drawing);
        drawn.stroke = StrokeOf(project, arc.pen, arc.lineType);
        if (!arc.whole) {
            double sweep = std::fmod(arc.end - arc.begin, WholeTurn);
            sweep += sweep <= 0.0 ? WholeTurn : 0.0;
            drawn.start = arc.begin;
            drawn.end = arc.begin + sweep;
        }
        drawing.curves.emplace_back(std::move(drawn));
    }

    void operator()(const Host::SplineData& spline) const {
        drawing.curves.emplace_back(
            Drawing::Polyline{PaperPoints(drawing, SplinePoints(element.memo.splinePoints,
                                                                element.memo.splineDirections,
                                                                spline.closed, Tolerance())),
                              false, StrokeOf(project, spline.pen, spline.lineType)});
    }

    void operator()(const Host::HatchData& hatch) const {
        const std::vector<std::vector<Point>> rings = Rings();
        const Host::Colour& own = hatch.foreground;
        const Drawing::Color color = hatch.hasForeground
                                         ? Drawing::Color{own.red, own.green, own.blue}
                                         : LookOfPen(hatch.fillPen).color;
        AddFilledRings(project, hatch.fill, color, rings, drawing.fills);
        if (hatch.contourPen > 0) {
            for (const std::vector<Point>& ring : rings) {
                drawing.curves.emplace_back(
                    Drawing::Polyline{ring, true, StrokeOf(project, hatch.contourPen, {})});
            }
        }
    }

    void operator()(const Host::TextData& text) const {
        for (Drawing::TextRun& run :
             LayOutText(text, element.memo.paragraphs, PaperPoint(drawing, text.position))) {
            drawing.texts.emplace_back(std::move(run));
        }
    }

    void AddStampLine(const std::string& text, const Point& position, double height,
                      Drawing::TextWeight weight) const {
        if (text.empty()) {
            return;
        }
        Drawing::TextRun run;
        run.text = text;
        run.position = position;
        run.height = height;
        run.weight = weight;
        run.horizontal = Drawing::HorizontalAnchor::Center;
        run.vertical = Drawing::VerticalAnchor::Middle;
        run.color = StampColor;
        run.halo = 0.5;
        drawing.texts.emplace_back(std::move(run));
    }

    void operator()(const Host::ZoneData& zone) const {
        for (const std::vector<Point>& ring : Rings()) {
            drawing.curves.emplace_back(Drawing::Polyline{ring, true, ZoneStroke});
        }
        double area = 0.0;
        for (const PlanRing& ring : PolygonRings(element.memo.polygon)) {
            area += SignedArea(ring);
        }
        std::string figures = Text::FormatFixed(area, 2) + " m²";
        std::replace(figures.begin(), figures.end(), '.', ',');
        const Point place = PaperPoint(drawing, zone.stampPosition);
        AddStampLine(zone.name, place, StampName, Drawing::TextWeight::Bold);
        AddStampLine(zone.number.empty() ? figures : zone.number + " · " + figures,
                     {place.x, place.y - TextLineStep * StampName}, StampDetail,
                     Drawing::TextWeight::Normal);
    }

    template <typename Other> void operator()(const Other& /*data*/) const {}
};

} // namespace

void AddDrawnElement(const Project& project, const ProjectElement& element, PaperDrawing& drawing) {
    std::visit(ElementDrawer{project, element, drawing}, element.element.data);
}

Drawing::Stroke StrokeOf(const Project& project, std::int32_t pen, Host::AttributeIndex lineType) {
    const PenLook look = LookOfPen(pen);
    Drawing::Stroke stroke{look.width, look.color, {}};
    const auto found = project.lineTypes.find(lineType.value);
    if (found != project.lineTypes.end()) {
        stroke.dashes = found->second.dashes;
    }
    for (std::size_t i = 0; i < stroke.dashes.size(); i += 2) {
        // A dash without length is a dot: as long as the pen is thick.
        stroke.dashes[i] = stroke.dashes[i] > 0.0 ? stroke.dashes[i] : look.width;
    }
    return stroke;
}

bool IsOnVisibleLayer(const Project& project, const ProjectElement& element) {
    const auto layer = project.layers.find(element.element.header.layer.value);
    return layer != project.layers.end() && !layer->second.hidden;
}

} // namespace Merivane::Workbench
