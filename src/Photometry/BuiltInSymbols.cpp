#include "Photometry/BuiltInSymbols.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

// Right is where C0 points, down is the room that a wall luminaire looks into. Drawings keep clear
// of thin gaps: a symbol is printed 4 mm wide.
namespace Merivane::Photometry {

namespace {

using Kind = SymbolStrokeKind;
using Points = std::vector<SymbolPoint>;
using Strokes = std::vector<SymbolStroke>;

constexpr double RadiansPerDegree = 0.017453292519943295;
constexpr SymbolPoint Center = {0.0, 0.0};
constexpr double Diagonal = 0.70710678118654752; // of a point on the circle at 45 degrees
constexpr double Side = 0.7; // half of a square's, whose corners keep to the circle

SymbolStroke Line(double x1, double y1, double x2, double y2) {
    return {.kind = Kind::Line, .points = {{x1, y1}, {x2, y2}}};
}

SymbolStroke Circle(double radius, SymbolPoint center = Center) {
    return {.kind = Kind::Circle, .points = {center}, .radius = radius};
}

SymbolStroke Arc(double radius, double begin, double end, SymbolPoint center = Center) {
    return {.kind = Kind::Arc,
            .points = {center},
            .radius = radius,
            .beginAngle = begin,
            .endAngle = end};
}

SymbolStroke Outline(Points corners) {
    return {.kind = Kind::Polygon, .points = std::move(corners)};
}

SymbolStroke Filled(SymbolStroke stroke) {
    stroke.filled = true;
    return stroke;
}

/// A rectangle around the origin, of half its width and half its height.
SymbolStroke Rectangle(double x, double y) {
    return Outline({{-x, -y}, {x, -y}, {x, y}, {-x, y}});
}

SymbolPoint OnCircle(double radius, double degrees) {
    return {radius * std::cos(degrees * RadiansPerDegree),
            radius * std::sin(degrees * RadiansPerDegree)};
}

/// A polygon on the circle, its first corner at an angle [deg].
SymbolStroke Regular(int corners, double firstAngle) {
    Points points;
    for (int i = 0; i < corners; ++i) {
        points.push_back(OnCircle(1.0, firstAngle + 360.0 * i / corners));
    }
    return Outline(std::move(points));
}

SymbolStroke Square() {
    return Rectangle(Side, Side);
}

SymbolStroke Diamond() {
    return Outline({{1, 0}, {0, 1}, {-1, 0}, {0, -1}});
}

/// The line that stands for a tube, of half its length, at a height.
SymbolStroke Tube(double x, double y) {
    return Line(-x, y, x, y);
}

/// The line of the wall that a luminaire hangs on.
SymbolStroke Wall() {
    return Line(-1, 0, 1, 0);
}

/// A frame with its diagonals, between corners at half its width and half its height.
Strokes Crossed(SymbolStroke frame, double x, double y) {
    return {std::move(frame), Line(-x, -y, x, y), Line(-x, y, x, -y)};
}

Strokes DrawSun() {
    Strokes strokes = {Circle(0.5)};
    for (int i = 0; i < 8; ++i) {
        const SymbolPoint from = OnCircle(0.68, 45.0 * i);
        const SymbolPoint to = OnCircle(1.0, 45.0 * i);
        strokes.push_back(Line(from.x, from.y, to.x, to.y));
    }
    return strokes;
}

Strokes DrawSpot() {
    return {Circle(0.48), Line(0.48, 0, 0.66, 0),
            Filled(Outline({{1, 0}, {0.66, 0.22}, {0.66, -0.22}}))};
}

Strokes DrawHalfSquare() {
    return {Line(-Side, 0, -Side, Side), Line(-Side, Side, Side, Side), Line(Side, Side, Side, 0),
            Filled(Outline({{-Side, -Side}, {Side, -Side}, {Side, 0}, {-Side, 0}}))};
}

// The shade hangs from its cord, seen from the side: from above it would be one more circle.
Strokes DrawPendant() {
    return {Line(-0.3, 0.95, 0.3, 0.95), Line(0, 0.95, 0, 0.35),
            Outline({{-0.22, 0.35}, {0.22, 0.35}, {0.8, -0.45}, {-0.8, -0.45}}),
            Filled(Arc(0.32, 180, 360, {0, -0.45}))};
}

Strokes DrawEmergency() {
    return {Square(), Line(-0.28, -0.42, -0.28, 0.42), Line(-0.28, 0.42, 0.32, 0.42),
            Line(-0.28, 0, 0.22, 0), Line(-0.28, -0.42, 0.32, -0.42)};
}

Strokes DrawTrack() {
    constexpr double top = 0.32;
    constexpr double bottom = 0.08;
    Strokes strokes = {Outline({{-0.94, bottom}, {0.94, bottom}, {0.94, top}, {-0.94, top}})};
    for (const double x : {-0.6, 0.0, 0.6}) {
        strokes.push_back(Line(x, bottom, x, -0.14));
        strokes.push_back(Filled(Circle(0.24, {x, -0.38})));
    }
    return strokes;
}

Strokes DrawStar() {
    constexpr double inner = 0.38196601125010515; // where the sides of a pentagram cross
    Points points;
    for (int i = 0; i < 5; ++i) {
        points.push_back(OnCircle(1.0, 90.0 + 72.0 * i));
        points.push_back(OnCircle(inner, 126.0 + 72.0 * i));
    }
    return {Outline(std::move(points))};
}

struct BuiltIn {
    std::string_view name;
    Strokes (*draw)();
};

// clang-format off
constexpr std::array<BuiltIn, 31> Table = {{
    {"Forma real do modelo", [] { return Strokes(); }},
    {"Círculo com X", [] { return Crossed(Circle(1), Diagonal, Diagonal); }},
    {"Círculo cheio", [] { return Strokes{Filled(Circle(1))}; }},
    {"Círculo com ponto", [] { return Strokes{Circle(1), Filled(Circle(0.28))}; }},
    {"Círculo meio cheio", [] { return Strokes{Arc(1, 0, 180), Filled(Arc(1, 180, 360))}; }},
    {"Quadrado", [] { return Strokes{Square()}; }},
    {"Quadrado com X", [] { return Crossed(Square(), Side, Side); }},
    {"Quadrado com círculo", [] { return Strokes{Square(), Circle(0.45)}; }},
    {"Retângulo (tubular)", [] { return Strokes{Rectangle(0.94, 0.3), Tube(0.76, 0)}; }},
    {"Arandela (meio círculo)", [] { return Strokes{Wall(), Arc(0.75, 180, 360)}; }},
    {"Losango", [] { return Strokes{Diamond()}; }},
    {"Círculo com cruz", [] { return Strokes{Circle(1), Line(-1, 0, 1, 0), Line(0, -1, 0, 1)}; }},
    {"Círculo duplo", [] { return Strokes{Circle(1), Circle(0.6)}; }},
    {"Sol (raios)", DrawSun},
    {"Spot direcional", DrawSpot},
    {"Triângulo", [] { return Strokes{Regular(3, 90)}; }},
    {"Triângulo cheio", [] { return Strokes{Filled(Regular(3, 90))}; }},
    {"Hexágono", [] { return Strokes{Regular(6, 0)}; }},
    {"Octógono", [] { return Strokes{Regular(8, 22.5)}; }},
    {"Quadrado cheio", [] { return Strokes{Filled(Square())}; }},
    {"Quadrado meio cheio", DrawHalfSquare},
    {"Quadrado com ponto", [] { return Strokes{Square(), Filled(Circle(0.22))}; }},
    {"Retângulo com X", [] { return Crossed(Rectangle(0.9, 0.42), 0.9, 0.42); }},
    {"Retângulo cheio", [] { return Strokes{Filled(Rectangle(0.94, 0.3))}; }},
    {"Dois tubos", [] { return Strokes{Rectangle(0.9, 0.42), Tube(0.72, 0.16), Tube(0.72, -0.16)}; }},
    {"Arandela cheia", [] { return Strokes{Wall(), Filled(Arc(0.75, 180, 360))}; }},
    {"Pendente", DrawPendant},
    {"Emergência", DrawEmergency},
    {"Trilho", DrawTrack},
    {"Losango cheio", [] { return Strokes{Filled(Diamond())}; }},
    {"Estrela", DrawStar},
}};
// clang-format on

} // namespace

bool IsBuiltInSymbol(int id) {
    return id >= 0 && id < static_cast<int>(Table.size());
}

PlanSymbol BuiltInSymbol(int id) {
    PlanSymbol symbol;
    symbol.id = id;
    if (IsBuiltInSymbol(id)) {
        const BuiltIn& row = Table[static_cast<std::size_t>(id)];
        symbol.name = row.name;
        symbol.strokes = row.draw();
    }
    return symbol;
}

std::vector<PlanSymbol> BuiltInSymbols() {
    std::vector<PlanSymbol> symbols;
    for (int id = NoPlanSymbol; IsBuiltInSymbol(id); ++id) {
        symbols.push_back(BuiltInSymbol(id));
    }
    return symbols;
}

} // namespace Merivane::Photometry
