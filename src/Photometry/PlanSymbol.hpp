#pragma once

#include <string>
#include <vector>

namespace Merivane::Photometry {

/// A point of a symbol, in a drawing that fits the circle of radius 1 around the origin.
struct SymbolPoint {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const SymbolPoint&) const = default;
};

enum class SymbolStrokeKind : int { Line = 0, Circle = 1, Polygon = 2, Arc = 3 };

/// One piece of a symbol's drawing.
struct SymbolStroke {
    SymbolStrokeKind kind = SymbolStrokeKind::Line;
    std::vector<SymbolPoint> points; ///< line: both ends; circle, arc: the centre; polygon: corners
    double radius = 0.0;             ///< circle, arc
    double beginAngle = 0.0;         ///< arc [deg], counter-clockwise from the right
    double endAngle = 0.0;           ///< arc [deg]
    bool filled = false;             ///< an arc together with its chord

    bool operator==(const SymbolStroke&) const = default;
};

/// A luminaire's technical symbol on the plan.
struct PlanSymbol {
    int id = 0;
    std::string name;
    bool hidden = false; ///< removed by the user, kept for the luminaires that show it
    std::vector<SymbolStroke> strokes;

    bool operator==(const PlanSymbol&) const = default;
};

/// True when a stroke has the points of its kind (a polygon three or more), a radius above 0 where
/// it has one, and finite numbers only. Others are drawn and stored nowhere.
bool IsDrawable(const SymbolStroke& stroke);

/// Corners that stand for a filled stroke: those of a polygon; 48 on a circle; on an arc its ends
/// and the corners between, at 48 chords for a full turn. Empty for a line.
std::vector<SymbolPoint> OutlinePoints(const SymbolStroke& stroke);

} // namespace Merivane::Photometry
