#include "exemplos/RoomModel.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Examples {

namespace {

using Catalog::JsonValue;

// Behind the wall's face, where the outer face of a window stands [m].
constexpr double WindowThickness = 0.01;

// A micrometre is finer than anything that is built, and hides the noise of the last digits.
double RoundToMicrometre(double length) {
    const double rounded = std::round(length * 1e6) / 1e6;
    return rounded == 0.0 ? 0.0 : rounded; // no minus zero
}

// The frame of a line in plan: its direction, and its normal to the left.
struct PlanLine {
    Point origin;
    Point direction;
    Point normal;
    double length = 0.0;

    PlanLine(Point first, Point second) : origin(first) {
        length = std::hypot(second[0] - first[0], second[1] - first[1]);
        direction = {(second[0] - first[0]) / length, (second[1] - first[1]) / length};
        normal = {-direction[1], direction[0]};
    }

    Vertex At(double along, double z, double left) const {
        return {origin[0] + direction[0] * along + normal[0] * left,
                origin[1] + direction[1] * along + normal[1] * left, z};
    }

    // A rectangle on the line that looks to its left.
    std::vector<Vertex> Facing(double from, double to, double bottom, double top,
                               double left) const {
        return {At(from, bottom, left), At(from, top, left), At(to, top, left),
                At(to, bottom, left)};
    }

    // The same rectangle, looking to the right.
    std::vector<Vertex> FacingAway(double from, double to, double bottom, double top,
                                   double left) const {
        std::vector<Vertex> vertices = Facing(from, to, bottom, top, left);
        std::reverse(vertices.begin(), vertices.end());
        return vertices;
    }
};

std::vector<Vertex> AtHeight(const std::vector<Point>& outline, double z) {
    std::vector<Vertex> vertices;
    vertices.reserve(outline.size());
    for (const Point& point : outline) {
        vertices.push_back({point[0], point[1], z});
    }
    return vertices;
}

} // namespace

JsonValue NumberList(const std::vector<double>& numbers) {
    JsonValue list = JsonValue::MakeArray();
    for (const double number : numbers) {
        list.items.push_back(JsonValue::MakeNumber(RoundToMicrometre(number)));
    }
    return list;
}

JsonValue PointList(const std::vector<Point>& points) {
    JsonValue list = JsonValue::MakeArray();
    for (const Point& point : points) {
        list.items.push_back(NumberList({point[0], point[1]}));
    }
    return list;
}

void RoomModel::AddFace(const std::string& material, const std::vector<Vertex>& vertices,
                        bool exterior) {
    JsonValue face;
    face.Set("material", JsonValue::MakeString(material));
    if (exterior) {
        face.Set("faceExterna", JsonValue::MakeBool(true));
    }
    JsonValue& list = face.Set("vertices", JsonValue::MakeArray());
    for (const Vertex& vertex : vertices) {
        list.items.push_back(NumberList({vertex[0], vertex[1], vertex[2]}));
    }
    surfaces.items.push_back(std::move(face));
}

void RoomModel::AddFloorAndCeiling(const std::vector<Point>& outline, double height,
                                   const std::string& floor, const std::string& ceiling) {
    AddFace(floor, AtHeight(outline, 0.0));
    std::vector<Vertex> above = AtHeight(outline, height);
    std::reverse(above.begin(), above.end());
    AddFace(ceiling, above);
}

void RoomModel::AddWall(const Wall& wall) {
    const PlanLine line(wall.first, wall.second);
    const auto addPiece = [&](double from, double to, double bottom, double top) {
        if (to > from && top > bottom) {
            AddFace(wall.material, line.Facing(from, to, bottom, top, 0.0));
        }
    };
    double done = 0.0;
    for (const Opening& opening : wall.openings) {
        addPiece(done, opening.from, 0.0, wall.height);
        addPiece(opening.from, opening.to, 0.0, opening.bottom);
        addPiece(opening.from, opening.to, opening.top, wall.height);
        AddFace(opening.material,
                line.Facing(opening.from, opening.to, opening.bottom, opening.top, 0.0));
        if (opening.glazed) {
            AddFace(opening.material,
                    line.FacingAway(opening.from, opening.to, opening.bottom, opening.top,
                                    -WindowThickness),
                    true);
        }
        done = opening.to;
    }
    addPiece(done, line.length, 0.0, wall.height);
}

void RoomModel::AddBox(const std::string& material, Point low, Point high, double bottom,
                       double top) {
    const std::vector<Point> corners = {low, {high[0], low[1]}, high, {low[0], high[1]}};
    AddFace(material, AtHeight(corners, top));
    std::vector<Vertex> below = AtHeight(corners, bottom);
    std::reverse(below.begin(), below.end());
    AddFace(material, below);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PlanLine side(corners[i], corners[(i + 1) % corners.size()]);
        AddFace(material, side.FacingAway(0.0, side.length, bottom, top, 0.0));
    }
}

void RoomModel::AddPane(const std::string& material, Point first, Point second, double height,
                        double thickness) {
    const PlanLine line(first, second);
    AddFace(material, line.Facing(0.0, line.length, 0.0, height, thickness / 2.0));
    AddFace(material, line.FacingAway(0.0, line.length, 0.0, height, -thickness / 2.0));
}

} // namespace Merivane::Examples
