#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Workbench/Script/PlanShapes.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr std::int32_t Contour = 1;
constexpr std::int32_t Filled = 2;
constexpr std::int32_t Closed = 4;

/// Where a version of POLY2 has its arguments, -1 = it has none of the kind.
struct PolygonForm {
    std::int32_t fillPen = -1;
    std::int32_t backgroundPen = -1;
    std::size_t firstPoint = 2;
    bool statuses = true;
};

/// The rows behind the statement's own arguments; their number must be the one it tells.
bool ReadRows(ScriptMachine& machine, const PolygonForm& form, std::vector<PolylineRow>& rows) {
    const std::size_t width = form.statuses ? 3 : 2;
    const std::size_t numbers = machine.argumentCount - form.firstPoint;
    std::int32_t told = 0;
    if (!AllNumbers(machine) || !IntegerArgument(machine, 0, told)) {
        return false;
    }
    if (told < 2) {
        return Fail(machine, "um polígono tem pelo menos 2 pontos");
    }
    if (numbers != width * static_cast<std::size_t>(told)) {
        return Fail(machine, "os argumentos não são os de " + std::to_string(told) + " pontos");
    }
    rows.reserve(numbers / width);
    for (std::size_t i = form.firstPoint; i < machine.argumentCount; i += width) {
        rows.push_back({PlanNumber(machine, i), PlanNumber(machine, i + 1),
                        form.statuses ? WholeNumber(PlanNumber(machine, i + 2)) : 1});
    }
    return true;
}

bool AddRings(ScriptMachine& machine, std::vector<PolylineContour>& contours,
              PlanPolygon& polygon) {
    std::size_t vertices = 0;
    for (PolylineContour& ring : contours) {
        if (!PlaceRing(machine, ring.points)) {
            return false;
        }
        PlanRingShape& shape = polygon.rings.emplace_back();
        shape.vertices = std::move(ring.points);
        for (const std::int32_t status : ring.status) {
            shape.visible.push_back((status & 1) != 0);
        }
        vertices += shape.vertices.size();
    }
    return AddPlanShape(machine, std::move(polygon), vertices);
}

bool AddPolygon(ScriptMachine& machine, const PolygonForm& form) {
    std::vector<PolylineRow> rows;
    std::int32_t frame = 0;
    if (machine.argumentCount < form.firstPoint) {
        return Fail(machine, "faltam argumentos");
    }
    if (!ReadRows(machine, form, rows) || !IntegerArgument(machine, 1, frame)) {
        return false;
    }
    std::vector<PolylineContour> contours;
    std::string refusal =
        ExpandPolyline(rows, PlanCurves(machine), machine.environment->limits.vertices, contours);
    if (!refusal.empty()) {
        return Fail(machine, std::move(refusal));
    }
    if (contours.empty()) {
        return Fail(machine, "o polígono não tem pontos");
    }
    PlanPolygon polygon;
    polygon.outlined = (frame & Contour) != 0;
    polygon.filled = (frame & Filled) != 0;
    polygon.closed = (frame & Closed) != 0 ||
                     std::all_of(contours.begin(), contours.end(),
                                 [](const PolylineContour& ring) { return ring.closed; });
    if (polygon.closed) {
        CloseContours(contours);
    }
    polygon.look = machine.look.plan;
    if (form.fillPen >= 0) {
        polygon.fillPen = WholeNumber(PlanNumber(machine, static_cast<std::size_t>(form.fillPen)));
    }
    if (form.backgroundPen >= 0) {
        polygon.backgroundPen =
            WholeNumber(PlanNumber(machine, static_cast<std::size_t>(form.backgroundPen)));
    }
    return AddRings(machine, contours, polygon);
}

bool Plain(ScriptMachine& machine) {
    return AddPolygon(machine, {-1, -1, 2, false});
}

bool WithStatuses(ScriptMachine& machine) {
    return AddPolygon(machine, {-1, -1, 2, true});
}

bool WithFillPen(ScriptMachine& machine) {
    return AddPolygon(machine, {2, -1, 3, true});
}

/// n, frame, fill pen, background pen, then so many numbers of the fill's place.
template <int Extra> bool WithBackground(ScriptMachine& machine) {
    return AddPolygon(machine, {2, 3, 4 + Extra, true});
}

/// n, frame, fill's category, distortion, fill pen, background pen, seven of the fill's place.
bool WithCategory(ScriptMachine& machine) {
    return AddPolygon(machine, {4, 5, 13, true});
}

/// A point of a spline with its direction [degrees] and the lengths of its handles.
struct SplineNode {
    Coordinate place;
    double angle = 0.0;
    double before = -1.0; ///< -1 = a third of the chord
    double behind = -1.0;
};

constexpr std::int32_t ClosedSpline = 1;
constexpr std::int32_t SmoothSpline = 2;
constexpr int SplinePieces = 16; ///< chords from one point to the next

/// Directions along the chord between each point's neighbours.
void Smooth(std::vector<SplineNode>& nodes, bool closed) {
    const std::size_t count = nodes.size();
    for (std::size_t i = 0; i < count; ++i) {
        const bool first = i == 0;
        const bool last = i + 1 == count;
        const std::size_t from = !first ? i - 1 : (closed ? count - 1 : 0);
        const std::size_t to = !last ? i + 1 : (closed ? 0 : count - 1);
        const Coordinate& a = nodes[from].place;
        const Coordinate& b = nodes[to].place;
        nodes[i].angle = std::atan2(b.y - a.y, b.x - a.x) * 180.0 / std::numbers::pi;
    }
}

/// The cubic piece between two points, without the first.
void AddPiece(const SplineNode& from, const SplineNode& to, std::vector<Coordinate>& points) {
    constexpr double degree = std::numbers::pi / 180.0;
    constexpr double third = 1.0 / 3.0;
    const double chord = std::hypot(to.place.x - from.place.x, to.place.y - from.place.y) * third;
    const double behind = from.behind < 0.0 ? chord : from.behind;
    const double before = to.before < 0.0 ? chord : to.before;
    const Coordinate a = {from.place.x + behind * std::cos(from.angle * degree),
                          from.place.y + behind * std::sin(from.angle * degree)};
    const Coordinate b = {to.place.x - before * std::cos(to.angle * degree),
                          to.place.y - before * std::sin(to.angle * degree)};
    for (int i = 1; i <= SplinePieces; ++i) {
        const double t = static_cast<double>(i) / SplinePieces;
        const double u = 1.0 - t;
        const double w0 = u * u * u;
        const double w1 = 3.0 * u * u * t;
        const double w2 = 3.0 * u * t * t;
        const double w3 = t * t * t;
        points.push_back({w0 * from.place.x + w1 * a.x + w2 * b.x + w3 * to.place.x,
                          w0 * from.place.y + w1 * a.y + w2 * b.y + w3 * to.place.y});
    }
}

bool ReadNodes(ScriptMachine& machine, std::size_t width, std::vector<SplineNode>& nodes) {
    std::int32_t told = 0;
    if (!AllNumbers(machine) || !IntegerArgument(machine, 0, told)) {
        return false;
    }
    if (told < 2) {
        return Fail(machine, "uma curva tem pelo menos 2 pontos");
    }
    if (machine.argumentCount - 2 != width * static_cast<std::size_t>(told)) {
        return Fail(machine, "os argumentos não são os de " + std::to_string(told) + " pontos");
    }
    constexpr std::size_t withLengths = 5;
    for (std::size_t i = 2; i < machine.argumentCount; i += width) {
        SplineNode& node = nodes.emplace_back();
        node.place = {PlanNumber(machine, i), PlanNumber(machine, i + 1)};
        node.angle = PlanNumber(machine, i + 2);
        if (width == withLengths) {
            node.before = PlanNumber(machine, i + 3);
            node.behind = PlanNumber(machine, i + 4);
        }
    }
    return true;
}

template <int Width> bool Spline(ScriptMachine& machine) {
    std::vector<SplineNode> nodes;
    std::int32_t status = 0;
    if (!ReadNodes(machine, Width, nodes) || !IntegerArgument(machine, 1, status)) {
        return false;
    }
    if (nodes.size() * SplinePieces > machine.environment->limits.vertices) {
        return Fail(machine, "o script desenha demais");
    }
    const bool closed = (status & ClosedSpline) != 0;
    if ((status & SmoothSpline) != 0) {
        Smooth(nodes, closed);
    }
    std::vector<Coordinate> points = {nodes.front().place};
    for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
        AddPiece(nodes[i], nodes[i + 1], points);
    }
    if (closed) {
        AddPiece(nodes.back(), nodes.front(), points);
        points.pop_back();
    }
    if (!PlaceRing(machine, points)) {
        return false;
    }
    PlanPolygon polygon;
    polygon.closed = closed;
    polygon.look = machine.look.plan;
    const std::size_t count = points.size();
    polygon.rings.push_back({std::move(points), std::vector<bool>(count, true)});
    return AddPlanShape(machine, std::move(polygon), count);
}

constexpr StatementShape Values = StatementShape::Values;
constexpr StatementScope Plan = StatementScope::Plan;

constexpr StatementEntry Entries[] = {
    {"POLY2", 2, -1, Plain, Values, Plan, "1 contour + 2 fill + 4 closed"},
    {"POLY2_", 2, -1, WithStatuses, Values, Plan, "with status codes"},
    {"POLY2_A", 3, -1, WithFillPen, Values, Plan, "and the fill's pen"},
    {"POLY2_B", 4, -1, WithBackground<0>, Values, Plan, "and its background's"},
    {"POLY2_B{2}", 7, -1, WithBackground<3>, Values, Plan, "and the fill's origin and angle"},
    {"POLY2_B{3}", 10, -1, WithBackground<6>, Values, Plan, "and the fill's matrix"},
    {"POLY2_B{4}", 11, -1, WithBackground<7>, Values, Plan, "and a gradient's inner radius"},
    {"POLY2_B{5}", 13, -1, WithCategory, Values, Plan, "and the fill's category and distortion"},
    {"SPLINE2", 2, -1, Spline<3>, Values, Plan, "places and directions; 1 closed + 2 smooth"},
    {"SPLINE2A", 2, -1, Spline<5>, Values, Plan, "and the lengths of the handles"},
};

} // namespace

std::span<const StatementEntry> PlanPolygonStatements() {
    return Entries;
}

} // namespace Merivane::Workbench
