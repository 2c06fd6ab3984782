#include "Workbench/Script/SurfaceShapes.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

#include "Workbench/Script/ShapeProfile.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double WholeTurn = 360.0;
constexpr double NoArea = 1e-12; // m2
constexpr std::size_t FewestPoints = 3;
constexpr std::size_t PlaceNumbers = 3;

constexpr std::int32_t BaseBit = 1;
constexpr std::int32_t SidesBit = 4;

/// A face of one contour of new vertices.
std::string AddContour(const ShapeInput& input, ShapeSketch& sketch,
                       const std::vector<Coordinate3D>& places) {
    if (std::string refusal = CheckRoom(sketch, 1, places.size()); !refusal.empty()) {
        return refusal;
    }
    sketch.oriented = true;
    AddFace(sketch, {AddSection(sketch, places.size(), [&](auto i) { return places[i]; })},
            input.surface);
    return {};
}

/// A whole circle, or the part of one from an angle on through another [degrees].
std::vector<Coordinate3D> ArcPlaces(const ShapeInput& input, double radius, double begin,
                                    double angle) {
    const int chords = ArcSegments(input.curves, radius, angle);
    std::vector<Coordinate3D> places;
    for (int i = angle == WholeTurn ? 1 : 0; i <= chords; ++i) {
        const double at = (begin + angle * i / chords) * Degree;
        places.push_back({radius * std::cos(at), radius * std::sin(at), 0.0});
    }
    return places;
}

std::string SketchAnyPolygon(ShapeInput& input, ShapeSketch& sketch, const RowLayout& layout) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(layout), count); !refusal.empty()) {
        return refusal;
    }
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, layout, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckRoom(sketch, 1, points.size()); !refusal.empty()) {
        return refusal;
    }
    sketch.oriented = true;
    AddCap(sketch, ProfileLoft(profile, input.surface, true),
           AddSection(sketch, points.size(),
                      [&](std::size_t i) {
                          return Coordinate3D{points[i].x, points[i].y, 0.0};
                      }),
           input.surface, true, false);
    return {};
}

/// The contours of a polygon in space, holes walked against the outline.
std::vector<std::vector<std::int32_t>> TakeContours(ShapeInput& input, ShapeSketch& sketch,
                                                    std::size_t count, bool hasStatus) {
    std::vector<std::vector<std::int32_t>> contours(1);
    for (std::size_t i = 0; i < count; ++i) {
        const Coordinate3D place = TakePlace(input);
        const bool ends = hasStatus && TakeBits(input) < 0;
        std::vector<std::int32_t>& contour = contours.back();
        const auto isAt = [&](std::int32_t vertex) {
            const Coordinate3D& other = sketch.body.vertices[static_cast<std::size_t>(vertex)];
            return Length(Difference(place, other)) <= NoShapeLength;
        };
        if (contour.empty() || !(isAt(contour.back()) || isAt(contour.front()))) {
            contour.push_back(AddVertex(sketch, place));
        }
        if (ends) {
            contours.emplace_back();
        }
    }
    std::erase_if(contours, [](const auto& contour) { return contour.size() < FewestPoints; });
    for (std::size_t i = 1; i < contours.size(); ++i) {
        if (Dot(DoubledNormal(sketch.body, contours[i]), DoubledNormal(sketch.body, contours[0])) >
            0.0) {
            std::reverse(contours[i].begin(), contours[i].end());
        }
    }
    return contours;
}

std::string SketchAnyPlane(ShapeInput& input, ShapeSketch& sketch, bool hasStatus) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestPoints, count); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckRest(input, count * (PlaceNumbers + (hasStatus ? 1 : 0)));
        !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckRoom(sketch, 1, count); !refusal.empty()) {
        return refusal;
    }
    sketch.oriented = true;
    std::vector<std::vector<std::int32_t>> contours = TakeContours(input, sketch, count, hasStatus);
    if (!contours.empty() && Length(DoubledNormal(sketch.body, contours[0])) > 2.0 * NoArea) {
        AddFace(sketch, std::move(contours), input.surface);
    }
    return {};
}

/// The faces of a grid of vertices, `columns` in a row, up for rows that follow on the left.
void AddGrid(ShapeSketch& sketch, std::size_t columns, std::size_t rows, std::int32_t surface) {
    for (std::size_t row = 0; row + 1 < rows; ++row) {
        for (std::size_t column = 0; column + 1 < columns; ++column) {
            const auto here = static_cast<std::int32_t>(row * columns + column);
            const auto above = static_cast<std::int32_t>((row + 1) * columns + column);
            AddFace(sketch, {{here, here + 1, above + 1, above}}, surface);
        }
    }
}

/// The vertices around a grid, counter-clockwise.
std::vector<std::int32_t> GridBorder(std::size_t columns, std::size_t rows) {
    std::vector<std::int32_t> border;
    const auto add = [&](std::size_t row, std::size_t column) {
        border.push_back(static_cast<std::int32_t>(row * columns + column));
    };
    for (std::size_t column = 0; column + 1 < columns; ++column) {
        add(0, column);
    }
    for (std::size_t row = 0; row + 1 < rows; ++row) {
        add(row, columns - 1);
    }
    for (std::size_t column = columns - 1; column > 0; --column) {
        add(rows - 1, column);
    }
    for (std::size_t row = rows - 1; row > 0; --row) {
        add(row, 0);
    }
    return border;
}

/// Triangles of a grid may be twice its squares.
std::string CheckGridRoom(const ShapeSketch& sketch, std::size_t columns, std::size_t rows) {
    const std::size_t border = 2 * (columns + rows);
    return CheckRoom(sketch, 2 * columns * rows + border, columns * rows + border);
}

} // namespace

std::string SketchRectangle(ShapeInput& input, ShapeSketch& sketch) {
    const double a = TakeNumber(input);
    const double b = TakeNumber(input);
    if (std::abs(a) <= NoShapeLength || std::abs(b) <= NoShapeLength) {
        return {};
    }
    std::vector<Coordinate3D> places = {{0, 0, 0}, {a, 0, 0}, {a, b, 0}, {0, b, 0}};
    if ((a < 0.0) != (b < 0.0)) {
        std::reverse(places.begin(), places.end());
    }
    return AddContour(input, sketch, places);
}

std::string SketchDisc(ShapeInput& input, ShapeSketch& sketch) {
    const double radius = std::abs(TakeNumber(input));
    return radius <= NoShapeLength
               ? std::string{}
               : AddContour(input, sketch, ArcPlaces(input, radius, 0.0, WholeTurn));
}

std::string SketchSector(ShapeInput& input, ShapeSketch& sketch) {
    const double radius = std::abs(TakeNumber(input));
    const double begin = TakeNumber(input);
    const double turned = TakeNumber(input) - begin;
    if (radius <= NoShapeLength || turned == 0.0) {
        return {};
    }
    const double rest = std::fmod(turned, WholeTurn);
    const double angle = rest > 0.0 ? rest : rest + WholeTurn;
    std::vector<Coordinate3D> places = ArcPlaces(input, radius, begin, angle);
    if (!input.wire) {
        if (angle < WholeTurn) {
            places.push_back({});
        }
        return AddContour(input, sketch, places);
    }
    if (angle == WholeTurn) {
        places.push_back(places.front());
    }
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        sketch.wires.push_back({places[i], places[i + 1]});
    }
    return {};
}

std::string SketchPolygon(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyPolygon(input, sketch, {2, 0});
}

std::string SketchStatusPolygon(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyPolygon(input, sketch, {3, 2});
}

std::string SketchPlane(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyPlane(input, sketch, false);
}

std::string SketchStatusPlane(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnyPlane(input, sketch, true);
}

std::string SketchCoonsPatch(ShapeInput& input, ShapeSketch& sketch) {
    std::size_t columns = 0;
    std::size_t rows = 0;
    for (std::size_t* const count : {&columns, &rows}) {
        if (std::string refusal = TakeCount(input, 2, *count); !refusal.empty()) {
            return refusal;
        }
    }
    TakeNumber(input); // the mask tells how edges are drawn
    if (std::string refusal = CheckRest(input, 2 * PlaceNumbers * (columns + rows));
        !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckGridRoom(sketch, columns, rows); !refusal.empty()) {
        return refusal;
    }
    std::vector<Coordinate3D> lines[4];
    for (const std::size_t line : {0U, 1U, 2U, 3U}) {
        for (std::size_t i = 0; i < (line < 2 ? columns : rows); ++i) {
            lines[line].push_back(TakePlace(input));
        }
    }
    const auto mixed = [](const Coordinate3D& a, const Coordinate3D& b, double share) {
        return Sum(Scaled(a, 1.0 - share), Scaled(b, share));
    };
    for (std::size_t row = 0; row < rows; ++row) {
        const double v = static_cast<double>(row) / static_cast<double>(rows - 1);
        for (std::size_t column = 0; column < columns; ++column) {
            const double u = static_cast<double>(column) / static_cast<double>(columns - 1);
            // Coons: both ruled surfaces less the one that the corners span.
            const Coordinate3D along = mixed(lines[0][column], lines[1][column], v);
            const Coordinate3D across = mixed(lines[2][row], lines[3][row], u);
            const Coordinate3D corners = mixed(mixed(lines[0].front(), lines[0].back(), u),
                                               mixed(lines[1].front(), lines[1].back(), u), v);
            AddVertex(sketch, Difference(Sum(along, across), corners));
        }
    }
    sketch.oriented = true;
    AddGrid(sketch, columns, rows, input.surface);
    return {};
}

std::string SketchMesh(ShapeInput& input, ShapeSketch& sketch) {
    const double a = TakeNumber(input);
    const double b = TakeNumber(input);
    std::size_t columns = 0;
    std::size_t rows = 0;
    for (std::size_t* const count : {&columns, &rows}) {
        if (std::string refusal = TakeCount(input, 2, *count); !refusal.empty()) {
            return refusal;
        }
    }
    const std::int32_t mask = TakeBits(input);
    if (std::string refusal = CheckRest(input, columns * rows); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckGridRoom(sketch, columns, rows); !refusal.empty()) {
        return refusal;
    }
    if (!(a > NoShapeLength && b > NoShapeLength)) {
        return "pede lados maiores do que zero";
    }
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const double x = a * static_cast<double>(column) / static_cast<double>(columns - 1);
            const double y = b * static_cast<double>(row) / static_cast<double>(rows - 1);
            AddVertex(sketch, {x, y, TakeNumber(input)});
        }
    }
    AddGrid(sketch, columns, rows, input.surface);
    const std::vector<std::int32_t> top = GridBorder(columns, rows);
    const LoftSection bottom = AddSection(sketch, top.size(), [&](std::size_t i) {
        const Coordinate3D& above = sketch.body.vertices[static_cast<std::size_t>(top[i])];
        return Coordinate3D{above.x, above.y, 0.0};
    });
    // Only a whole body can be told to be inside out, as one below its base is.
    sketch.oriented = !HasBits(mask, BaseBit | SidesBit);
    Loft loft = RingLoft(top.size(), input.surface);
    for (LoftEdge& edge : loft.edges) {
        edge.present = HasBits(mask, SidesBit);
    }
    AddBand(sketch, loft, bottom, top);
    AddCap(sketch, loft, bottom, input.surface, HasBits(mask, BaseBit), true);
    return {};
}

} // namespace Merivane::Workbench
