#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <utility>

#include "Host/Model3D.hpp"
#include "Text/ShownText.hpp"
#include "Workbench/Script/CuttingForms.hpp"
#include "Workbench/Script/ScriptStatements.hpp"
#include "Workbench/Script/ShapeModel.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

const ScriptFrame& FrameOf(const ScriptMachine& machine) {
    return CurrentFrame(machine.transforms);
}

/// A place of the script's frame in the part's. False where it is too far to count with.
bool SpacePlace(ScriptMachine& machine, std::size_t first, Coordinate3D& place) {
    constexpr double farthest = 1e15;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    if (!NumberArgument(machine, first, x) || !NumberArgument(machine, first + 1, y) ||
        !NumberArgument(machine, first + 2, z)) {
        return false;
    }
    place = FramePlace(FrameOf(machine), x, y, z);
    const bool near = std::abs(place.x) <= farthest && std::abs(place.y) <= farthest &&
                      std::abs(place.z) <= farthest;
    return near || Fail(machine, "o desenho fica longe demais");
}

bool Light(ScriptMachine& machine) {
    PartLight light;
    double shadow = 0.0;
    const std::pair<double*, std::size_t> numbers[] = {
        {&light.colour.red, 0},       {&light.colour.green, 1},
        {&light.colour.blue, 2},      {&shadow, 3},
        {&light.radius, 4},           {&light.coneInner, 5},
        {&light.coneOuter, 6},        {&light.angleFalloff, 7},
        {&light.distanceBegin, 8},    {&light.distanceEnd, 9},
        {&light.distanceFalloff, 10},
    };
    for (const auto& [number, place] : numbers) {
        if (!NumberArgument(machine, place, *number)) {
            return false;
        }
    }
    light.shadow = shadow != 0.0;
    light.frame = FrameOf(machine);
    light.position = FramePlace(light.frame, 0.0, 0.0, 0.0);
    const Coordinate3D along = FrameDirection(light.frame, 1.0, 0.0, 0.0);
    const double length = std::hypot(along.x, along.y, along.z);
    light.direction = length > 0.0
                          ? Coordinate3D{along.x / length, along.y / length, along.z / length}
                          : Coordinate3D{1.0, 0.0, 0.0};
    if (!CountShape(machine, 1)) {
        return false;
    }
    machine.model.model.lights.push_back(light);
    return true;
}

bool Wire(ScriptMachine& machine) {
    PartWire wire;
    wire.pen = machine.look.plan.pen;
    if (!SpacePlace(machine, 0, wire.begin) || !SpacePlace(machine, 3, wire.end) ||
        !CountShape(machine, 2)) {
        return false;
    }
    machine.model.model.wires.push_back(wire);
    return true;
}

bool Hotspot(ScriptMachine& machine) {
    constexpr std::size_t flags = 5;
    constexpr std::size_t parameter = 4;
    PartHotspot hotspot;
    if (!SpacePlace(machine, 0, hotspot.position) || !IntegerArgument(machine, 3, hotspot.id) ||
        !IntegerArgument(machine, flags, hotspot.flags) || !CountShape(machine, 1)) {
        return false;
    }
    if (parameter < machine.argumentCount && machine.arguments[parameter].isText) {
        hotspot.parameter = machine.arguments[parameter].text;
    }
    machine.model.model.hotspots.push_back(hotspot);
    return CountText(machine, hotspot.parameter.size());
}

/// TEXT thickness, 0, what it says.
bool SpaceText(ScriptMachine& machine) {
    constexpr double millimetres = 1000.0;
    PartText text;
    text.text = ShownValue(machine.arguments[2]);
    text.frame = FrameOf(machine);
    text.height = machine.look.style.size / millimetres * machine.environment->scale;
    if (!CountShape(machine, 1) || !CountText(machine, text.text.size())) {
        return false;
    }
    machine.model.model.texts.push_back(std::move(text));
    return true;
}

Coordinate3D Cross(const Coordinate3D& a, const Coordinate3D& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// True, with `failure` set, where no further cut may begin.
bool TooManyCuts(ScriptMachine& machine) {
    constexpr std::size_t most = 1000;
    return machine.openCuts.size() >= most && !Fail(machine, "cortes demais, um dentro do outro");
}

/// The plane through `place` across `normal`, both in the script's frame.
bool AddCut(ScriptMachine& machine, const Coordinate3D& place, const Coordinate3D& normal) {
    const ScriptFrame& frame = FrameOf(machine);
    // Any two directions in the plane, moved, span the moved plane.
    const bool steep = std::abs(normal.z) < std::abs(normal.x) + std::abs(normal.y);
    const Coordinate3D u = Cross(normal, steep ? Coordinate3D{0, 0, 1} : Coordinate3D{1, 0, 0});
    const Coordinate3D v = Cross(normal, u);
    Coordinate3D across =
        Cross(FrameDirection(frame, u.x, u.y, u.z), FrameDirection(frame, v.x, v.y, v.z));
    const double length = std::hypot(across.x, across.y, across.z);
    if (!(length > 0.0) || !std::isfinite(length)) {
        return Fail(machine, "o plano de corte não tem direção");
    }
    if (TooManyCuts(machine)) {
        return false;
    }
    // A body is cut where it ends: what is open keeps the planes it began under.
    CloseOpenBody(machine.model);
    const double scale = (MirrorsSpace(frame) ? -1.0 : 1.0) / length;
    across = {across.x * scale, across.y * scale, across.z * scale};
    machine.model.cuts.push_back({FramePlace(frame, place.x, place.y, place.z), across});
    machine.openCuts.push_back({1, 0});
    return true;
}

/// CUTPLANE alone (the plane x-y), with an angle (through the x axis) or with the places where the
/// plane meets the axes, 0 for an axis along it; what lies above goes, below with a side of 1.
bool CutPlane(ScriptMachine& machine) {
    constexpr double degree = 3.14159265358979323846 / 180.0;
    constexpr std::size_t onAxes = 3;
    if (!AllNumbers(machine)) {
        return false;
    }
    if (machine.argumentCount < onAxes) {
        double angle = 0.0;
        NumberArgument(machine, 0, angle);
        return AddCut(machine, {}, {0.0, -std::sin(angle * degree), std::cos(angle * degree)});
    }
    double axes[onAxes] = {};
    double side = 0.0;
    for (std::size_t i = 0; i < onAxes; ++i) {
        NumberArgument(machine, i, axes[i]);
    }
    NumberArgument(machine, onAxes, side);
    Coordinate3D normal = {axes[0] == 0.0 ? 0.0 : 1.0 / axes[0],
                           axes[1] == 0.0 ? 0.0 : 1.0 / axes[1],
                           axes[2] == 0.0 ? 0.0 : 1.0 / axes[2]};
    Coordinate3D place = axes[2] != 0.0   ? Coordinate3D{0.0, 0.0, axes[2]}
                         : axes[1] != 0.0 ? Coordinate3D{0.0, axes[1], 0.0}
                                          : Coordinate3D{axes[0], 0.0, 0.0};
    if (normal == Coordinate3D{}) {
        normal.z = 1.0;
    }
    const double up = normal.z != 0.0 ? normal.z : (normal.y != 0.0 ? normal.y : normal.x);
    const double turn = (up < 0.0) != (side != 0.0) ? -1.0 : 1.0;
    return AddCut(machine, place, {normal.x * turn, normal.y * turn, normal.z * turn});
}

/// What the statements that build shapes see of the machine.
void HandOverLook(ScriptMachine& machine) {
    ModelLook& look = machine.model.look;
    const std::int32_t material = machine.look.material;
    look.frame = FrameOf(machine);
    look.pen = machine.look.plan.pen;
    look.surface = material > 0 ? material : -1;
    look.segments = machine.look.curves.segments;
    look.tolerance = machine.look.curves.tolerance;
    look.radiusLowest = machine.look.curves.radiusLowest;
    look.radiusHighest = machine.look.curves.radiusHighest;
    look.detail = machine.look.detail;
}

/// Texts among the arguments of shapes name materials.
void NumberMaterials(ScriptMachine& machine) {
    for (ScriptValue& argument : machine.arguments) {
        if (argument.isText) {
            argument = NumberValue(MaterialNumber(machine, argument));
        }
    }
}

/// A cut by a solid: see `ReadCuttingForm`.
bool AddForm(ScriptMachine& machine, std::string_view keyword) {
    if (TooManyCuts(machine)) {
        return false;
    }
    CloseOpenBody(machine.model);
    HandOverLook(machine);
    machine.arguments.resize(machine.argumentCount);
    NumberMaterials(machine);
    auto form = std::make_shared<CuttingForm>();
    std::string refusal = ReadCuttingForm(keyword, machine.arguments, machine.model, *form);
    if (!refusal.empty()) {
        return Fail(machine, std::move(refusal));
    }
    // They are kept until the cut's end.
    if (!Spend(machine.model.solidBudget, form->base.size())) {
        return Fail(machine, SolidsTakeTooMuch);
    }
    machine.model.forms.push_back(std::move(form));
    machine.openCuts.push_back({0, 1});
    return true;
}

bool CutPoly(ScriptMachine& machine) {
    return AddForm(machine, "CUTPOLY");
}

bool CutPolyA(ScriptMachine& machine) {
    return AddForm(machine, "CUTPOLYA");
}

bool CutForm(ScriptMachine& machine) {
    return AddForm(machine, "CUTFORM");
}

bool CutFormWithMaterials(ScriptMachine& machine) {
    return AddForm(machine, "CUTFORM{2}");
}

/// A cut that takes nothing off: its end must find it.
bool CutNothing(ScriptMachine& machine) {
    if (TooManyCuts(machine)) {
        return false;
    }
    machine.openCuts.push_back({});
    return true;
}

bool CutEnd(ScriptMachine& machine) {
    if (machine.openCuts.empty()) {
        return Fail(machine, "CUTEND sem corte aberto");
    }
    CloseOpenBody(machine.model);
    std::vector<CuttingPlane>& cuts = machine.model.cuts;
    auto& forms = machine.model.forms;
    const OpenCut& ended = machine.openCuts.back();
    cuts.resize(cuts.size() - std::min(cuts.size(), ended.planes));
    forms.resize(forms.size() - std::min(forms.size(), ended.forms));
    machine.openCuts.pop_back();
    return true;
}

void MoveGroup(ShapeGroup& group, const ScriptFrame& frame) {
    const bool mirrored = MirrorsSpace(frame);
    for (FacedBody& body : group.bodies) {
        for (Coordinate3D& vertex : body.vertices) {
            vertex = FramePlace(frame, vertex.x, vertex.y, vertex.z);
        }
        if (mirrored) {
            TurnFaces(body);
        }
    }
    for (PartWire& wire : group.wires) {
        wire.begin = FramePlace(frame, wire.begin.x, wire.begin.y, wire.begin.z);
        wire.end = FramePlace(frame, wire.end.x, wire.end.y, wire.end.z);
    }
}

bool BeginGroup(ScriptMachine& machine) {
    ScriptFrame inverse;
    if (!machine.openGroup.empty()) {
        return Fail(machine, "um grupo não começa dentro de outro");
    }
    constexpr std::size_t most = 10'000;
    if (machine.groups.size() >= most) {
        return Fail(machine, "grupos demais");
    }
    machine.openGroup = ShownValue(machine.arguments[0]);
    if (machine.openGroup.empty()) {
        return Fail(machine, "o grupo não tem nome");
    }
    if (!InvertFrame(FrameOf(machine), inverse)) {
        return Fail(machine, "as transformações não deixam volume ao grupo");
    }
    CloseOpenBody(machine.model);
    PartModel& model = machine.model.model;
    machine.outside.bodies = std::exchange(model.bodies, {});
    machine.outside.wires = std::exchange(model.wires, {});
    machine.groupFrame = inverse;
    return CountText(machine, machine.openGroup.size());
}

bool EndGroup(ScriptMachine& machine) {
    if (machine.openGroup.empty()) {
        return Fail(machine, "ENDGROUP sem GROUP");
    }
    CloseOpenBody(machine.model);
    PartModel& model = machine.model.model;
    ShapeGroup group;
    group.bodies = std::exchange(model.bodies, std::exchange(machine.outside.bodies, {}));
    group.wires = std::exchange(model.wires, std::exchange(machine.outside.wires, {}));
    MoveGroup(group, machine.groupFrame);
    machine.groups[machine.openGroup] = std::move(group);
    machine.openGroup.clear();
    return true;
}

/// Cuts the shapes of a group by what is in force where it is placed.
bool CutGroup(ScriptMachine& machine, ShapeGroup& group) {
    HandOverLook(machine);
    for (FacedBody& body : group.bodies) {
        ShapeSketch sketch;
        sketch.body = std::move(body);
        if (std::string refusal = CutSketch(machine.model, sketch); !refusal.empty()) {
            return Fail(machine, std::move(refusal));
        }
        body = std::move(sketch.body);
    }
    std::erase_if(group.bodies, [](const FacedBody& body) { return body.faces.empty(); });
    std::vector<PartWire> wires;
    for (const PartWire& wire : group.wires) {
        ShapeSketch sketch;
        sketch.wires.push_back({wire.begin, wire.end});
        if (std::string refusal = CutSketch(machine.model, sketch); !refusal.empty()) {
            return Fail(machine, std::move(refusal));
        }
        for (const auto& [begin, end] : sketch.wires) {
            wires.push_back({begin, end, wire.pen});
        }
    }
    group.wires = std::move(wires);
    return true;
}

bool PlaceGroup(ScriptMachine& machine) {
    const std::string name = ShownValue(machine.arguments[0]);
    const auto found = machine.groups.find(name);
    if (found == machine.groups.end()) {
        return Fail(machine, "o grupo " + Text::QuotedText(name) + " não existe");
    }
    std::size_t vertices = 2 * found->second.wires.size();
    std::size_t faces = found->second.bodies.size();
    for (const FacedBody& body : found->second.bodies) {
        vertices += body.vertices.size();
        faces += body.faces.size();
    }
    machine.shapes += faces;
    if (!CountShape(machine, vertices)) {
        return false;
    }
    ShapeGroup group = found->second;
    MoveGroup(group, FrameOf(machine));
    if (!machine.openCuts.empty() && !CutGroup(machine, group)) {
        return false;
    }
    PartModel& model = machine.model.model;
    std::move(group.bodies.begin(), group.bodies.end(), std::back_inserter(model.bodies));
    model.wires.insert(model.wires.end(), group.wires.begin(), group.wires.end());
    return true;
}

bool KillGroup(ScriptMachine& machine) {
    machine.groups.erase(ShownValue(machine.arguments[0]));
    return true;
}

/// Surfaces that no definition stands behind become the pen's colour.
void CheckSurfaces(ScriptMachine& machine, std::size_t firstBody) {
    PartModel& model = machine.model.model;
    const auto end = Host::FirstScriptSurface + static_cast<std::int32_t>(model.surfaces.size());
    for (std::size_t i = firstBody; i < model.bodies.size(); ++i) {
        for (ContouredFace& face : model.bodies[i].faces) {
            face.surface = face.surface >= end ? -1 : face.surface;
        }
    }
}

constexpr StatementShape Values = StatementShape::Values;
constexpr StatementShape Words = StatementShape::Words;
constexpr StatementScope Model = StatementScope::Model;

constexpr StatementEntry Entries[] = {
    {"LIGHT", 4, 11, Light, StatementShape::Light, Model,
     "a source in the frame in force; ADDITIONAL_DATA is not read"},
    {"LIN_", 6, 6, Wire, Values, Model, "a line in space"},
    {"HOTSPOT", 3, 7, Hotspot, StatementShape::Hotspot3, Model, "with number, parameter, flags"},
    {"TEXT", 3, 3, SpaceText, Values, Model, "in the style in force"},
    {"CUTPLANE", 0, 5, CutPlane, Values, Model, "takes off what lies above a plane"},
    {"CUTPLANE{2}", 0, 5, CutPlane, Values, Model, "the same"},
    {"CUTPLANE{3}", 0, 5, CutPlane, Values, Model, "the same"},
    {"CUTPOLY", 7, -1, CutPoly, Values, Model,
     "takes off what lies in an endless prism, along z or a direction"},
    {"CUTPOLYA", 9, -1, CutPolyA, Values, Model,
     "the same with status codes; from a distance on, or endless with 0"},
    {"CUTSHAPE", 0, -1, CutNothing, Values, Model, "accepted, cuts nothing"},
    {"CUTFORM", 13, -1, CutForm, Values, Model,
     "takes off what lies in a prism, a pyramid or a wedge, or what does not"},
    {"CUTFORM{2}", 15, -1, CutFormWithMaterials, Values, Model, "the same, its sides of materials"},
    {"CUTEND", 0, 0, CutEnd, Values, Model, "ends the innermost cut"},
    {"GROUP", 1, 1, BeginGroup, Values, Model, "begins a group of shapes"},
    {"ENDGROUP", 0, 0, EndGroup, Values, Model, "ends it"},
    {"PLACEGROUP", 1, 1, PlaceGroup, Values, Model, "places a group in the frame in force"},
    {"KILLGROUP", 1, 1, KillGroup, Values, Model, "forgets a group"},
    {"SHADOW", 1, 2, nullptr, Words, StatementScope::All, "accepted"},
    {"SECT_FILL", 1, 4, nullptr, Values, StatementScope::All, "accepted"},
    {"SECT_ATTRS", 1, 5, nullptr, Values, StatementScope::All, "accepted"},
    {"SECT_ATTRS{2}", 1, 5, nullptr, Values, StatementScope::All, "accepted"},
};

} // namespace

bool BuildShapeStatement(ScriptMachine& machine, const std::string& keyword) {
    HandOverLook(machine);
    machine.arguments.resize(machine.argumentCount);
    if (!keyword.starts_with("PICTURE")) {
        NumberMaterials(machine);
    }
    const std::size_t firstBody = machine.model.model.bodies.size();
    std::string refusal = BuildModelShape(machine.model, keyword, machine.arguments);
    CheckSurfaces(machine, std::min(firstBody, machine.model.model.bodies.size()));
    return refusal.empty() || Fail(machine, std::move(refusal));
}

void FinishModel(ScriptMachine& machine) {
    CloseOpenBody(machine.model);
    if (!machine.openGroup.empty()) {
        PartModel& model = machine.model.model;
        model.bodies = std::move(machine.outside.bodies);
        model.wires = std::move(machine.outside.wires);
    }
}

std::span<const StatementEntry> ModelControlStatements() {
    return Entries;
}

} // namespace Merivane::Workbench
