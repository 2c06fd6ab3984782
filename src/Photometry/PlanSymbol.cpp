#include "Photometry/PlanSymbol.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Merivane::Photometry {

namespace {

constexpr std::array<std::string_view, 31> Names = {
    "Forma real do modelo",
    "Círculo com X",
    "Círculo cheio",
    "Círculo com ponto",
    "Círculo meio cheio",
    "Quadrado",
    "Quadrado com X",
    "Quadrado com círculo",
    "Retângulo (tubular)",
    "Arandela (meio círculo)",
    "Losango",
    "Círculo com cruz",
    "Círculo duplo",
    "Sol (raios)",
    "Spot direcional",
    "Triângulo",
    "Triângulo cheio",
    "Hexágono",
    "Octógono",
    "Quadrado cheio",
    "Quadrado meio cheio",
    "Quadrado com ponto",
    "Retângulo com X",
    "Retângulo cheio",
    "Dois tubos",
    "Arandela cheia",
    "Pendente",
    "Emergência",
    "Trilho",
    "Losango cheio",
    "Estrela",
};

constexpr double FullTurn = 360.0; // degrees
constexpr int ChordsOfACircle = 48;
constexpr double RadiansPerDegree = 0.017453292519943295;

SymbolPoint PointAt(const SymbolStroke& round, double degrees) {
    const double angle = degrees * RadiansPerDegree;
    return {round.points[0].x + round.radius * std::cos(angle),
            round.points[0].y + round.radius * std::sin(angle)};
}

std::vector<SymbolPoint> PointsOnArc(const SymbolStroke& round, double begin, double sweep) {
    constexpr double slack = 1e-9; // chords; a whole number of them is not one more
    const double chords = std::max(2.0, std::ceil(sweep * ChordsOfACircle / FullTurn - slack));
    // The last point of a full turn would be the first again.
    const int count = static_cast<int>(chords) + (sweep < FullTurn ? 1 : 0);
    std::vector<SymbolPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        points.push_back(PointAt(round, begin + sweep * i / chords));
    }
    return points;
}

/// Degrees from the begin counter-clockwise to the end, above 0; a full turn where they agree.
double SweepOf(const SymbolStroke& arc) {
    const double sweep = std::fmod(arc.endAngle - arc.beginAngle, FullTurn);
    return sweep > 0.0 ? sweep : sweep + FullTurn;
}

bool HasItsPoints(const SymbolStroke& stroke) {
    switch (stroke.kind) {
    case SymbolStrokeKind::Line:
        return stroke.points.size() == 2;
    case SymbolStrokeKind::Circle:
    case SymbolStrokeKind::Arc:
        return stroke.points.size() == 1 && stroke.radius > 0.0;
    case SymbolStrokeKind::Polygon:
        return stroke.points.size() >= 3;
    }
    return false;
}

} // namespace

std::span<const std::string_view> BuiltInSymbolNames() {
    return Names;
}

bool IsBuiltInSymbol(int id) {
    return id >= 0 && id < static_cast<int>(Names.size());
}

PlanSymbol FilledCircleSymbol() {
    SymbolStroke circle;
    circle.kind = SymbolStrokeKind::Circle;
    circle.points = {{0.0, 0.0}};
    circle.radius = 1.0;
    circle.filled = true;
    PlanSymbol symbol;
    symbol.id = DefaultPlanSymbol;
    symbol.name = Names[DefaultPlanSymbol];
    symbol.strokes = {circle};
    return symbol;
}

bool IsDrawable(const SymbolStroke& stroke) {
    return HasItsPoints(stroke) && std::isfinite(stroke.radius) &&
           std::isfinite(stroke.beginAngle) && std::isfinite(stroke.endAngle) &&
           std::all_of(stroke.points.begin(), stroke.points.end(), [](const SymbolPoint& point) {
               return std::isfinite(point.x) && std::isfinite(point.y);
           });
}

std::vector<SymbolPoint> OutlinePoints(const SymbolStroke& stroke) {
    switch (stroke.kind) {
    case SymbolStrokeKind::Line:
        break;
    case SymbolStrokeKind::Polygon:
        return stroke.points;
    case SymbolStrokeKind::Circle:
        return PointsOnArc(stroke, 0.0, FullTurn);
    case SymbolStrokeKind::Arc:
        return PointsOnArc(stroke, stroke.beginAngle, SweepOf(stroke));
    }
    return {};
}

} // namespace Merivane::Photometry
