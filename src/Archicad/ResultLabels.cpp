#include "Archicad/ResultLabels.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Simulation/ColorScale.hpp"
#include "Simulation/CurveLabels.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Study/TextExtent.hpp"

namespace Merivane::Archicad {

namespace {

using Simulation::Bounds2D;
using Simulation::IsoCurve;
using Simulation::Point2D;

constexpr double CurveTextHeight = 2.0; // [mm]
constexpr double ValueTextHeight = 1.5;
constexpr double OutlineTextHeight = 1.8;
constexpr double OverOutline = 0.8;       // [mm]
constexpr double RightOfOutline = 0.05;   // [m]
constexpr double LargestStep = 1'000'000; // of nodes: further than any grid goes

double WidestLabel(const std::vector<IsoCurve>& curves) {
    double widest = 0.0;
    for (const IsoCurve& curve : curves) {
        widest = std::max(widest, Simulation::EstimateTextWidth(
                                      Simulation::CurveLabelText(curve.level), CurveTextHeight));
    }
    return widest;
}

// Every how many nodes a value is written.
std::int32_t NodeStep(double spacing, double step) {
    const double nodes = std::round(spacing / step);
    return nodes >= 1.0 ? static_cast<std::int32_t>(std::min(nodes, LargestStep)) : 1;
}

PlacedText CurveText(const IsoCurve& curve, Point2D position) {
    return {Simulation::CurveLabelText(curve.level), position, CurveTextHeight,
            Host::TextAnchor::Middle, true};
}

bool IsClear(const std::vector<Bounds2D>& boxes, const Bounds2D& box) {
    return std::none_of(boxes.begin(), boxes.end(), [&box](const Bounds2D& other) {
        return box.minimum.x < other.maximum.x && other.minimum.x < box.maximum.x &&
               box.minimum.y < other.maximum.y && other.minimum.y < box.maximum.y;
    });
}

bool IsInside(const Simulation::Polygon2D& zone, const Bounds2D& box) {
    return Simulation::IsInsidePolygon(zone, box.minimum) &&
           Simulation::IsInsidePolygon(zone, box.maximum) &&
           Simulation::IsInsidePolygon(zone, {box.minimum.x, box.maximum.y}) &&
           Simulation::IsInsidePolygon(zone, {box.maximum.x, box.minimum.y});
}

// A number on a wall is hard to read, one on a number harder still.
std::vector<Simulation::LabelFilter> WishesFor(const LabelSpace& space, double millimetre) {
    const auto boundsAt = [millimetre](const IsoCurve& curve, Point2D point) {
        return TextBounds(CurveText(curve, point), millimetre);
    };
    const auto clearOfTexts = [&space, boundsAt](const IsoCurve& curve, Point2D point) {
        return IsClear(space.texts, boundsAt(curve, point));
    };
    const auto insideToo = [&space, boundsAt, clearOfTexts](const IsoCurve& curve, Point2D point) {
        return clearOfTexts(curve, point) &&
               (space.zone == nullptr || IsInside(*space.zone, boundsAt(curve, point)));
    };
    const auto clearOfValuesToo = [&space, boundsAt, insideToo](const IsoCurve& curve,
                                                                Point2D point) {
        return insideToo(curve, point) && IsClear(space.values, boundsAt(curve, point));
    };
    return {clearOfValuesToo, insideToo, clearOfTexts};
}

} // namespace

CurveTexts PlaceCurveTexts(const std::vector<IsoCurve>& curves, const LabelSpace& space,
                           double millimetre) {
    const Simulation::CurveLabels labels = Simulation::PlaceCurveLabels(
        curves, WidestLabel(curves) * millimetre, WishesFor(space, millimetre));
    CurveTexts placed;
    placed.unlabelled = labels.unlabelled;
    for (std::size_t k = 0; k < curves.size(); ++k) {
        if (labels.positions[k]) {
            placed.texts.push_back(CurveText(curves[k], *labels.positions[k]));
        }
    }
    return placed;
}

std::optional<PlacedText> PlaceOutlineText(const std::vector<IsoCurve>& outline,
                                           double millimetre) {
    const std::optional<Point2D> top = Simulation::TopmostPoint(outline);
    if (!top) {
        return std::nullopt;
    }
    return PlacedText{Simulation::TaskLimitText,
                      {top->x + RightOfOutline, top->y + OverOutline * millimetre},
                      OutlineTextHeight,
                      Host::TextAnchor::LeftBottom,
                      true};
}

std::vector<PlacedText> PlaceValueTexts(const Simulation::ZoneDrawing& drawing,
                                        const DrawingOptions& options) {
    const Simulation::CalculationGrid& grid = drawing.grid;
    const std::int32_t stepX = NodeStep(options.valueSpacingX, grid.stepX);
    const std::int32_t stepY = NodeStep(options.valueSpacingY, grid.stepY);
    std::vector<PlacedText> texts;
    for (std::int32_t j = (grid.rows - 1) % stepY / 2; j < grid.rows; j += stepY) {
        for (std::int32_t i = (grid.columns - 1) % stepX / 2; i < grid.columns; i += stepX) {
            const std::size_t node =
                static_cast<std::size_t>(j) * static_cast<std::size_t>(grid.columns) +
                static_cast<std::size_t>(i);
            if (node < drawing.field.size() && !std::isnan(drawing.field[node])) {
                texts.push_back({Simulation::FormatDecimal(drawing.field[node], 0),
                                 Simulation::NodePosition(grid, i, j), ValueTextHeight,
                                 Host::TextAnchor::Middle});
            }
        }
    }
    return texts;
}

LabelSpace LabelSpaceOf(const Simulation::ZoneDrawing& drawing, const std::vector<Bounds2D>& others,
                        const DrawingOptions& options, double millimetre) {
    LabelSpace space;
    space.zone = &drawing.zone.outline;
    space.texts = others;
    if (const std::optional<PlacedText> text = PlaceOutlineText(drawing.taskOutline, millimetre)) {
        space.texts.push_back(TextBounds(*text, millimetre));
    }
    if (options.values) {
        for (const PlacedText& text : PlaceValueTexts(drawing, options)) {
            space.values.push_back(TextBounds(text, millimetre));
        }
    }
    return space;
}

Bounds2D TextBounds(const PlacedText& text, double millimetre) {
    const double width = Simulation::EstimateTextWidth(text.text, text.height) * millimetre;
    const double height = text.height * millimetre;
    const auto anchor = static_cast<std::int32_t>(text.anchor);
    const double left = text.position.x - width * (anchor % 3) / 2.0;
    const int rowsBelow = 2 - anchor / 3;
    const double bottom = text.position.y - height * rowsBelow / 2.0;
    return {{left, bottom}, {left + width, bottom + height}};
}

} // namespace Merivane::Archicad
