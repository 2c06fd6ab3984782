#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Workbench/Script/PlanShapes.hpp"
#include "Workbench/Script/ScriptStatements.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double Turn = 360.0;

bool Line(ScriptMachine& machine) {
    PlanLine line;
    line.look = machine.look.plan;
    return AllNumbers(machine) &&
           PlanPlace(machine, PlanNumber(machine, 0), PlanNumber(machine, 1), line.begin) &&
           PlanPlace(machine, PlanNumber(machine, 2), PlanNumber(machine, 3), line.end) &&
           AddPlanShape(machine, line, 2);
}

/// A broken line or an outline without fill.
bool AddOutline(ScriptMachine& machine, std::vector<Coordinate> points, bool closed) {
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

bool Rectangle(ScriptMachine& machine) {
    if (!AllNumbers(machine)) {
        return false;
    }
    const double left = PlanNumber(machine, 0);
    const double bottom = PlanNumber(machine, 1);
    const double right = PlanNumber(machine, 2);
    const double top = PlanNumber(machine, 3);
    return AddOutline(machine, {{left, bottom}, {right, bottom}, {right, top}, {left, top}}, true);
}

/// A curve of the script's frame, counter-clockwise from `begin` to `end` [degrees].
struct ScriptArc {
    Coordinate center;
    double radius = 0.0;
    double begin = 0.0;
    double end = Turn;
    bool whole = true;
};

/// What is no circle any more in the part's frame: chords.
bool AddEllipse(ScriptMachine& machine, const ScriptArc& arc) {
    const double span = arc.end - arc.begin;
    const std::int32_t segments = ArcSegments(PlanCurves(machine), arc.radius, span);
    std::vector<Coordinate> points;
    const std::int32_t count = arc.whole ? segments : segments + 1;
    for (std::int32_t i = 0; i < count; ++i) {
        const double angle = (arc.begin + span * i / segments) * Degree;
        points.push_back({arc.center.x + arc.radius * std::cos(angle),
                          arc.center.y + arc.radius * std::sin(angle)});
    }
    return AddOutline(machine, std::move(points), arc.whole);
}

bool AddArc(ScriptMachine& machine, const ScriptArc& from) {
    const PlanFrame frame = DescribePlanFrame(CurrentFrame(machine.transforms));
    if (!frame.conformal) {
        return AddEllipse(machine, from);
    }
    PlanArc arc;
    arc.radius = from.radius * frame.scaleX;
    arc.whole = from.whole;
    arc.look = machine.look.plan;
    if (!from.whole) {
        arc.begin = frame.mirrored ? frame.angle - from.end : from.begin + frame.angle;
        arc.end = frame.mirrored ? frame.angle - from.begin : from.end + frame.angle;
    }
    return PlanPlace(machine, from.center.x, from.center.y, arc.center) &&
           AddPlanShape(machine, arc, 1);
}

bool ReadCircle(ScriptMachine& machine, ScriptArc& arc) {
    if (!AllNumbers(machine)) {
        return false;
    }
    arc.center = {PlanNumber(machine, 0), PlanNumber(machine, 1)};
    arc.radius = std::abs(PlanNumber(machine, 2));
    return true;
}

bool Circle(ScriptMachine& machine) {
    ScriptArc arc;
    return ReadCircle(machine, arc) && AddArc(machine, arc);
}

/// Whole where the angles lie full turns apart, and not on each other.
bool Arc(ScriptMachine& machine) {
    ScriptArc arc;
    if (!ReadCircle(machine, arc)) {
        return false;
    }
    arc.begin = PlanNumber(machine, 3);
    arc.end = PlanNumber(machine, 4);
    const double span = arc.end - arc.begin;
    arc.whole = span != 0.0 && std::remainder(span, Turn) == 0.0;
    if (arc.whole) {
        arc.end = arc.begin + Turn;
    } else if (arc.end < arc.begin || span > Turn) {
        const double turned = std::fmod(span, Turn);
        arc.end = arc.begin + (turned < 0.0 ? turned + Turn : turned);
    }
    return AddArc(machine, arc);
}

bool Text(ScriptMachine& machine) {
    if (machine.arguments[0].isText || machine.arguments[1].isText) {
        return Fail(machine, "o lugar do texto são dois números");
    }
    const PlanFrame frame = DescribePlanFrame(CurrentFrame(machine.transforms));
    PlanText text;
    text.text = ShownValue(machine.arguments[2]);
    text.angle = frame.angle;
    text.mirrored = frame.mirrored;
    text.font = machine.look.style.font;
    text.size = machine.look.style.size;
    text.anchor = machine.look.style.anchor;
    text.face = machine.look.style.face;
    text.look = machine.look.plan;
    return CountText(machine, text.text.size() + text.font.size()) &&
           PlanPlace(machine, PlanNumber(machine, 0), PlanNumber(machine, 1), text.position) &&
           AddPlanShape(machine, std::move(text), 1);
}

/// Name of the parameter that an argument refers to, empty for none.
std::string ReferredName(const ScriptMachine& machine, std::size_t place) {
    const bool told = place < machine.argumentCount && machine.arguments[place].isText;
    return told ? machine.arguments[place].text : std::string();
}

bool Hotspot(ScriptMachine& machine) {
    PlanHotspot hotspot;
    double x = 0.0;
    double y = 0.0;
    constexpr std::size_t flags = 4;
    if (!NumberArgument(machine, 0, x) || !NumberArgument(machine, 1, y) ||
        !IntegerArgument(machine, 2, hotspot.id) ||
        !IntegerArgument(machine, flags, hotspot.flags)) {
        return false;
    }
    hotspot.parameter = ReferredName(machine, 3);
    hotspot.displayed = ReferredName(machine, flags + 1);
    return CountText(machine, hotspot.parameter.size() + hotspot.displayed.size()) &&
           PlanPlace(machine, x, y, hotspot.position) &&
           AddPlanShape(machine, std::move(hotspot), 1);
}

bool Picture(ScriptMachine& machine) {
    const PlanFrame frame = DescribePlanFrame(CurrentFrame(machine.transforms));
    if (!AllNumbers(machine, 1)) {
        return false;
    }
    PlanPicture picture;
    picture.picture = ShownValue(machine.arguments[0]);
    picture.width = PlanNumber(machine, 1) * frame.scaleX;
    picture.height = PlanNumber(machine, 2) * (frame.mirrored ? -frame.scaleY : frame.scaleY);
    picture.angle = frame.angle;
    return CountText(machine, picture.picture.size()) &&
           PlanPlace(machine, 0.0, 0.0, picture.position) &&
           AddPlanShape(machine, std::move(picture), 1);
}

/// FRAGMENT2 number or ALL, whether it takes the attributes in force.
bool Fragment(ScriptMachine& machine) {
    const PlanFrame frame = DescribePlanFrame(CurrentFrame(machine.transforms));
    PlanFragment fragment;
    std::int32_t current = 0;
    const bool all = IsWord(machine.arguments[0], "ALL");
    if ((!all && !IntegerArgument(machine, 0, fragment.number)) ||
        !IntegerArgument(machine, 1, current)) {
        return false;
    }
    fragment.useCurrent = current != 0;
    fragment.scaleX = frame.scaleX;
    fragment.scaleY = frame.mirrored ? -frame.scaleY : frame.scaleY;
    fragment.rotation = frame.angle;
    return PlanPlace(machine, 0.0, 0.0, fragment.position) && AddPlanShape(machine, fragment, 1);
}

bool Projection(ScriptMachine& machine) {
    const PlanFrame frame = DescribePlanFrame(CurrentFrame(machine.transforms));
    PlanProjection projection;
    if (!IntegerArgument(machine, 0, projection.code) ||
        !NumberArgument(machine, 1, projection.angle) ||
        !IntegerArgument(machine, 2, projection.method)) {
        return false;
    }
    projection.scaleX = frame.scaleX;
    projection.scaleY = frame.mirrored ? -frame.scaleY : frame.scaleY;
    projection.rotation = frame.angle;
    projection.look = machine.look.plan;
    return PlanPlace(machine, 0.0, 0.0, projection.position) &&
           AddPlanShape(machine, projection, 1);
}

constexpr StatementShape Values = StatementShape::Values;
constexpr StatementShape Words = StatementShape::Words;
constexpr StatementScope Plan = StatementScope::Plan;

constexpr StatementEntry Entries[] = {
    {"LINE2", 4, 4, Line, Values, Plan, "a line"},
    {"RECT2", 4, 4, Rectangle, Values, Plan, "an outline by its diagonal"},
    {"CIRCLE2", 3, 3, Circle, Values, Plan, "a circle; chords where it is scaled unevenly"},
    {"ARC2", 5, 5, Arc, Values, Plan, "counter-clockwise, degrees"},
    {"TEXT2", 3, 3, Text, Values, Plan, "in the style in force; numbers with up to 6 decimals"},
    {"HOTSPOT2", 2, 6, Hotspot, StatementShape::Hotspot2, Plan,
     "with number, parameter, flags and the parameter that is shown"},
    {"HOTLINE2", 4, 8, nullptr, StatementShape::Hotline2, Plan, "accepted"},
    {"HOTARC2", 5, 9, nullptr, StatementShape::Hotarc2, Plan, "accepted"},
    {"PICTURE2", 4, 4, Picture, Values, Plan, "from its lower left corner"},
    {"PICTURE2{2}", 4, 4, Picture, Values, Plan, "the same"},
    {"FRAGMENT2", 2, 2, Fragment, Words, Plan, "of the binary symbol, or ALL"},
    {"PROJECT2", 3, -1, Projection, Values, Plan, "the part's own model, seen by a code"},
    {"PROJECT2{2}", 3, -1, Projection, Values, Plan, "the same"},
    {"PROJECT2{3}", 3, -1, Projection, Values, Plan, "the same"},
    {"PROJECT2{4}", 3, -1, Projection, Values, Plan, "the same"},
    {"RICHTEXT2", 3, 3, nullptr, Values, Plan, "accepted, not drawn"},
};

} // namespace

bool AddPlanShape(ScriptMachine& machine, PlanShape shape, std::size_t vertices) {
    if (!CountShape(machine, vertices)) {
        return false;
    }
    machine.drawing->shapes.push_back(std::move(shape));
    return true;
}

double PlanNumber(const ScriptMachine& machine, std::size_t place) {
    return machine.arguments[place].number;
}

bool PlanPlace(ScriptMachine& machine, double x, double y, Coordinate& place) {
    constexpr double farthest = 1e15;
    place = FramePlanPlace(CurrentFrame(machine.transforms), x, y);
    return (std::abs(place.x) <= farthest && std::abs(place.y) <= farthest) ||
           Fail(machine, "o desenho fica longe demais");
}

bool PlaceRing(ScriptMachine& machine, std::vector<Coordinate>& points) {
    for (Coordinate& point : points) {
        const Coordinate from = point;
        if (!PlanPlace(machine, from.x, from.y, point)) {
            return false;
        }
    }
    return true;
}

CurveResolution PlanCurves(const ScriptMachine& machine) {
    constexpr std::int32_t coarse = 8;
    constexpr std::int32_t round = 72;
    CurveResolution curves = machine.look.curves;
    if (curves.segments > coarse) {
        curves.segments = std::max(curves.segments, round);
    }
    return curves;
}

std::span<const StatementEntry> PlanStatements() {
    return Entries;
}

} // namespace Merivane::Workbench
