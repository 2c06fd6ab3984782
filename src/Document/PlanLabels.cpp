#include "Document/PlanLabels.hpp"

#include <algorithm>
#include <cmath>

#include "Document/SheetText.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/CurveLabels.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Document {
namespace {

using Drawing::HorizontalAnchor;
using Drawing::Point;
using Drawing::TextRun;
using Drawing::VerticalAnchor;
using Simulation::Point2D;

constexpr double CurveLabelHeight = 2.0;
constexpr double ValueHeight = 1.5;
constexpr double OutlineLabelHeight = 1.8;
constexpr double NameHeight = 2.4;
constexpr double Halo = 0.4;
constexpr double CurveHalo = 0.7; // hides the curve between the number and its unit, too
constexpr double ValueGap = 1.2;  // at least between two written values

TextRun CenteredText(const std::string& text, double height) {
    TextRun run = SheetText(text, 0.0, 0.0, height);
    run.horizontal = HorizontalAnchor::Center;
    run.vertical = VerticalAnchor::Middle;
    run.halo = Halo;
    return run;
}

// Every how many nodes a value is written: as the user asks, and no closer than texts of
// `textSize` mm allow.
std::int32_t NodeStep(const PlanSheet& sheet, double spacing, double step, double textSize) {
    const double asked = std::max(std::round(spacing / step), 1.0);
    const double needed = std::ceil((textSize + ValueGap) / PaperLength(sheet, step) - 1e-9);
    return static_cast<std::int32_t>(std::clamp(std::max(asked, needed), 1.0, 1e9));
}

double WidestValue(const Simulation::GridField& field) {
    double highest = 0.0;
    for (double value : field.values) {
        if (std::isfinite(value)) {
            highest = std::max(highest, value);
        }
    }
    return Drawing::MeasureText(Simulation::FormatDecimal(highest, 0), ValueHeight).width;
}

// Points along the curves, at most `step` mm of paper apart, those nearest to `start` first.
std::vector<Point> PointsAlong(const PlanSheet& sheet,
                               const std::vector<Simulation::IsoCurve>& curves, Point start,
                               double step) {
    std::vector<Point> points;
    for (const Simulation::IsoCurve& curve : curves) {
        for (std::size_t k = 1; k < curve.points.size(); ++k) {
            const Point a = OnPaper(sheet, curve.points[k - 1]);
            const Point b = OnPaper(sheet, curve.points[k]);
            const double parts = std::ceil(std::hypot(b.x - a.x, b.y - a.y) / step);
            for (double part = 0.0; part < parts; part += 1.0) {
                const double t = part / parts;
                points.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
            }
        }
    }
    std::stable_sort(points.begin(), points.end(), [start](const Point& a, const Point& b) {
        return std::hypot(a.x - start.x, a.y - start.y) < std::hypot(b.x - start.x, b.y - start.y);
    });
    return points;
}

// Places for a text of `width` mm over and under the outline: the wanted one first.
std::vector<Point> OutlineLabelPlaces(const PlanSheet& sheet, const PlanZone& zone,
                                      const std::vector<Simulation::IsoCurve>& outline,
                                      double width) {
    constexpr double over = 0.8;          // mm
    constexpr double rightOfPoint = 0.05; // m
    constexpr double step = 3.0;          // mm
    const Point2D top = Simulation::TopmostPoint(outline).value_or(Point2D());
    const Point wanted = OnPaper(sheet, {top.x + rightOfPoint, top.y});
    std::vector<Point> places = {{wanted.x, wanted.y + over}};
    for (const Point& point : PointsAlong(sheet, outline, wanted, step)) {
        for (double y : {point.y + over, point.y - over - OutlineLabelHeight}) {
            const Point2D start = InModel(sheet, {point.x, y});
            const Point2D end = InModel(sheet, {point.x + width, y});
            if (IsInsidePolygon(zone.polygon, start) && IsInsidePolygon(zone.polygon, end)) {
                places.push_back({point.x, y});
            }
        }
    }
    return places;
}

std::size_t NearestPoint(const std::vector<Point2D>& points, Point2D place) {
    const auto nearer = [place](const Point2D& a, const Point2D& b) {
        return std::hypot(a.x - place.x, a.y - place.y) < std::hypot(b.x - place.x, b.y - place.y);
    };
    return static_cast<std::size_t>(std::min_element(points.begin(), points.end(), nearer) -
                                    points.begin());
}

// The wanted place and then the points of the curve, from there outwards on both sides; then the
// same with the text moved aside by parts of its `width`, or of its height, so that the curve runs
// through its edge: beside a wall that is all the room there is.
std::vector<Point> CurvePlaces(const PlanSheet& sheet, const Simulation::IsoCurve& curve,
                               Point2D wanted, double width) {
    std::vector<Point> places = {OnPaper(sheet, wanted)};
    const std::size_t count = curve.points.size();
    const std::size_t nearest = NearestPoint(curve.points, wanted);
    for (std::size_t k = 1; k < count; ++k) {
        if (curve.closed || nearest + k < count) {
            places.push_back(OnPaper(sheet, curve.points[(nearest + k) % count]));
        }
        if (curve.closed || nearest >= k) {
            places.push_back(OnPaper(sheet, curve.points[(nearest + count - k) % count]));
        }
    }
    const std::size_t onCurve = places.size();
    for (std::size_t k = 0; k < onCurve; ++k) {
        const Point on = places[k];
        places.push_back({on.x + 0.35 * width, on.y});
        places.push_back({on.x - 0.35 * width, on.y});
        places.push_back({on.x, on.y + 0.6 * CurveLabelHeight});
        places.push_back({on.x, on.y - 0.6 * CurveLabelHeight});
    }
    return places;
}

} // namespace

void AppendValues(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                  const PlanZone& zone, const PlanStyle& style) {
    const Simulation::CalculationGrid& grid = zone.grid;
    const Simulation::GridField field = MakeGridField(grid, zone.values);
    const TextSpace others = space; // values of one Zone keep clear of each other by their steps
    const std::int32_t stepX = NodeStep(sheet, style.valueSpacingX, grid.stepX, WidestValue(field));
    const std::int32_t stepY = NodeStep(sheet, style.valueSpacingY, grid.stepY, ValueHeight);
    for (std::int32_t j = (grid.rows - 1) % stepY / 2; j < grid.rows; j += stepY) {
        for (std::int32_t i = (grid.columns - 1) % stepX / 2; i < grid.columns; i += stepX) {
            const double value =
                field.values[static_cast<std::size_t>(j) * static_cast<std::size_t>(grid.columns) +
                             static_cast<std::size_t>(i)];
            if (!std::isfinite(value)) {
                continue;
            }
            TextRun text = CenteredText(Simulation::FormatDecimal(value, 0), ValueHeight);
            text.position =
                OnPaper(sheet, {grid.originX + i * grid.stepX, grid.originY + j * grid.stepY});
            const Drawing::Box box = Drawing::TextBounds(text);
            if (IsFreeOfTexts(others, box)) {
                space.texts.push_back(box);
                layer.elements.emplace_back(text);
            }
        }
    }
}

void AppendOutlineLabel(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                        const PlanZone& zone, const std::vector<Simulation::IsoCurve>& outline) {
    if (outline.empty()) {
        return;
    }
    TextRun text = SheetText(Simulation::TaskLimitText, 0.0, 0.0, OutlineLabelHeight);
    text.halo = Halo;
    const double width = Drawing::MeasureText(text.text, text.height).width;
    if (PlaceText(space, text, OutlineLabelPlaces(sheet, zone, outline, width))) {
        layer.elements.emplace_back(text);
    }
}

void AppendZoneName(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                    const PlanZone& zone) {
    const Simulation::Bounds2D bounds = OuterBounds(zone.polygon);
    constexpr int fields = 40;
    std::vector<Point> inside;
    for (int j = 0; j <= fields; ++j) {
        for (int i = 0; i <= fields; ++i) {
            const Point2D place{
                bounds.minimum.x + (bounds.maximum.x - bounds.minimum.x) * i / fields,
                bounds.minimum.y + (bounds.maximum.y - bounds.minimum.y) * j / fields};
            if (IsInsidePolygon(zone.polygon, place)) {
                inside.push_back(OnPaper(sheet, place));
            }
        }
    }
    TextRun text = SheetText(zone.name, 0.0, 0.0, NameHeight, Drawing::TextWeight::Bold);
    text.halo = Halo;
    if (PlaceText(space, text, inside)) {
        layer.elements.emplace_back(text);
    }
}

void AppendCurveLabels(Drawing::Layer& layer, TextSpace& space, const PlanSheet& sheet,
                       const std::vector<Simulation::IsoCurve>& curves) {
    const Simulation::CurveLabels labels = Simulation::PlaceCurveLabels(curves);
    for (std::size_t k = 0; k < curves.size(); ++k) {
        if (!labels.positions[k]) {
            continue;
        }
        TextRun text = CenteredText(Simulation::CurveLabelText(curves[k].level), CurveLabelHeight);
        text.halo = CurveHalo;
        const double width = Drawing::MeasureText(text.text, text.height).width;
        if (PlaceText(space, text, CurvePlaces(sheet, curves[k], *labels.positions[k], width))) {
            layer.elements.emplace_back(text);
        }
    }
}

} // namespace Merivane::Document
